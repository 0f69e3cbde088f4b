#include "controls/MenuTexts.h"

#include <utility>

namespace tessarine {

void MenuTexts::setTexts(const QStringList& texts) {
    if (std::exchange(texts_, texts) == texts)
        return;
    Q_EMIT textsChanged();
    showLatest();
}

void MenuTexts::setChosenIndex(int index) {
    if (std::exchange(chosenIndex_, index) == index)
        return;
    Q_EMIT chosenIndexChanged();
    showLatest();
}

void MenuTexts::setOpen(bool open) {
    if (std::exchange(open_, open) == open)
        return;
    Q_EMIT openChanged();
    showLatest();
}

void MenuTexts::showLatest() {
    if (open_)
        return;
    if (std::exchange(shown_, texts_) != texts_)
        Q_EMIT shownChanged();
    if (std::exchange(shownIndex_, chosenIndex_) != chosenIndex_)
        Q_EMIT shownIndexChanged();
}

int MenuTexts::ownersIndex(int shownIndex) const {
    const QString text = shown_.value(shownIndex);
    qsizetype equalOnes = shown_.first(shownIndex + 1).count(text);
    qsizetype index = -1;
    while (equalOnes-- > 0) {
        index = texts_.indexOf(text, index + 1);
        if (index < 0)
            return -1;
    }
    return int(index);
}

} // namespace tessarine
