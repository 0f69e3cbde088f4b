#pragma once

#include "platform/SavePanel.h"
#include "shared/AliveGuard.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

class HoardStore;
class Scheduler;

// A copy of the hoard's file at the user's wish: a warning, the question where to, the copy on a
// worker, and a message where it failed. Success is silent. What the write-ahead log still holds is
// not in the copy. Main thread.
class HoardBackup : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("StorageSettings brings it")
    Q_PROPERTY(bool showWarning READ showWarning WRITE setShowWarning NOTIFY changed)
    Q_PROPERTY(bool showError READ showError WRITE setShowError NOTIFY changed)
    Q_PROPERTY(QString error READ error NOTIFY changed)
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY changed)

public:
    // The references outlive this.
    HoardBackup(HoardStore& hoard, Scheduler& scheduler, SavePanel& savePanel);

    // The button: shows the warning, unless a backup is on its way.
    Q_INVOKABLE void request();

    // The answer that goes on. The question for a path comes when the handler that calls this has
    // returned: while the user is asked events go on, and this may go.
    Q_INVOKABLE void proceed();

    bool showWarning() const { return showWarning_; }
    void setShowWarning(bool shown);

    // The failure stays in words after the user has seen it, while its message fades.
    bool showError() const { return showError_; }
    void setShowError(bool shown);
    const QString& error() const { return error_; }

    bool isRunning() const { return isRunning_; } // from the question for a path to the copy

    QString suggestedName() const;

Q_SIGNALS:
    void changed();

private:
    void run();
    void copyTo(const QString& path);
    void finish(const std::optional<QString>& failure);

    HoardStore& hoard_;
    Scheduler& scheduler_;
    SavePanel& savePanel_;
    bool showWarning_ = false;
    bool showError_ = false;
    bool isRunning_ = false;
    QString error_;
    AliveGuard alive_;
};

} // namespace tessarine
