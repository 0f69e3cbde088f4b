#include "controls/TypeAhead.h"

#include <algorithm>

namespace tessarine {

namespace {

constexpr quint64 pause = 1000; // milliseconds after which a word starts over

// The first row from `start` on, and round the end, whose text begins with the letters.
int firstMatch(const QStringList& texts, const QString& letters, int start) {
    const int count = int(texts.size());
    for (int step = 0; step < count; ++step) {
        const int row = (start + step) % count;
        if (texts[row].startsWith(letters, Qt::CaseInsensitive))
            return row;
    }
    return -1;
}

bool isOneLetterAgain(const QString& letters) {
    return std::all_of(letters.begin(), letters.end(),
                       [&](QChar letter) { return letter == letters.front(); });
}

} // namespace

int TypeAhead::find(const QString& typed, quint64 time, const QStringList& texts, int current) {
    if (time - lastTime_ > pause)
        letters_.clear();
    lastTime_ = time;
    letters_ += typed.toLower();
    const int here = std::max(current, 0);
    const int whole = letters_.size() > 1 ? firstMatch(texts, letters_, here) : -1;
    if (whole >= 0 || !isOneLetterAgain(letters_))
        return whole;
    return firstMatch(texts, letters_.left(1), current + 1);
}

} // namespace tessarine
