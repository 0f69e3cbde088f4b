#pragma once

#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>

#include <limits>

namespace tessarine {

class Scheduler;

// Which groups of the list are closed, and which of them are just opening or closing, so that their
// rows still fade. Groups are told apart by their keys and remembered while they have no rows. Main
// thread.
class CollapsedGroups : public QObject {
    Q_OBJECT

public:
    explicit CollapsedGroups(Scheduler& scheduler)
        : scheduler_(scheduler) {}

    const QSet<QString>& keys() const { return keys_; }

    // The groups that fade, and how many rows of each that closes: those that can be seen.
    const QHash<QString, int>& fading() const { return fading_; }

    // One group fades at a time: another's fade ends at once.
    void toggle(const QString& key, int fadingRows = std::numeric_limits<int>::max());
    void open(const QString& key); // at once, without a fade
    void openAll();

Q_SIGNALS:
    void faded(); // the rows of a group that was toggled have come or gone

private:
    void finishFade(int toggle);

    Scheduler& scheduler_;
    QSet<QString> keys_;
    QHash<QString, int> fading_; // by key, the number of rows that fade
    int toggleCount_ = 0;
};

} // namespace tessarine
