#include "help/HelpNarrowing.h"

#include <utility>

namespace tessarine {

namespace {

QString wordsOf(const QQuickItem& part) {
    return part.property("words").toString();
}

bool leads(const QQuickItem& part) {
    return part.property("leads").toBool();
}

} // namespace

void HelpNarrowing::setPage(QQuickItem* page) {
    if (page_ == page)
        return;
    page_ = page;
    Q_EMIT pageChanged();
    narrow();
}

void HelpNarrowing::setSoughtText(const QString& text) {
    const QString trimmed = text.trimmed();
    if (soughtText_ == trimmed)
        return;
    soughtText_ = trimmed;
    Q_EMIT soughtTextChanged();
    narrow();
}

void HelpNarrowing::narrow() {
    const bool found = page_ && showParts(page_->childItems());
    if (std::exchange(found_, found) != found)
        Q_EMIT foundChanged();
}

bool HelpNarrowing::holds(const QQuickItem& part) const {
    return wordsOf(part).contains(soughtText_, Qt::CaseInsensitive);
}

// The first part is the title, which leads the whole page.
bool HelpNarrowing::showParts(const QList<QQuickItem*>& parts) const {
    if (parts.isEmpty())
        return false;
    QList<bool> shown = heldParts(parts);
    keepHeadings(parts, shown);
    shown[0] = shown.contains(true);
    for (qsizetype i = 0; i < parts.size(); ++i)
        parts[i]->setVisible(shown[i]);
    return shown[0];
}

// What holds the words, or is below a heading that does.
QList<bool> HelpNarrowing::heldParts(const QList<QQuickItem*>& parts) const {
    const bool whole = holds(*parts[0]);
    bool below = false;
    QList<bool> held;
    for (const QQuickItem* part : parts) {
        if (leads(*part))
            below = holds(*part);
        held << (whole || below || holds(*part));
    }
    return held;
}

// From the bottom up, so that a heading knows what was found below it.
void HelpNarrowing::keepHeadings(const QList<QQuickItem*>& parts, QList<bool>& shown) {
    bool foundBelow = false;
    for (qsizetype i = parts.size() - 1; i > 0; --i) {
        if (leads(*parts[i])) {
            shown[i] = shown[i] || foundBelow;
            foundBelow = false;
        } else {
            foundBelow = foundBelow || shown[i];
        }
    }
}

} // namespace tessarine
