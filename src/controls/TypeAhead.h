#pragma once

#include <QString>
#include <QStringList>

namespace tessarine {

// Finds a row by the first letters of its text, as somebody types them. Letters that follow each
// other within a second belong together; one letter alone, again and again, goes from match to
// match.
class TypeAhead {
public:
    // The row that the typed text leads to from the current one; -1 if none begins so. `time` is in
    // milliseconds and never goes back.
    int find(const QString& typed, quint64 time, const QStringList& texts, int current);

private:
    QString letters_;
    quint64 lastTime_ = 0;
};

} // namespace tessarine
