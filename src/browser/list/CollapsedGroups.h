#pragma once

#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>

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
    QSet<QString> fading() const;

    void toggle(const QString& key);
    void open(const QString& key); // at once, without a fade
    void openAll();

Q_SIGNALS:
    void faded(); // the rows of a group that was toggled have come or gone

private:
    void finishFade(const QString& key, int toggle);

    Scheduler& scheduler_;
    QSet<QString> keys_;
    QHash<QString, int> fades_; // by key, the number of the group's last toggle
    int toggleCount_ = 0;
};

} // namespace tessarine
