#pragma once

#include "platform/FileSystem.h"
#include "platform/Scheduler.h"
#include "platform/SystemSettings.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <memory>

namespace tessarine {

// Leads through granting access to the system's notification database, and notices by itself when
// that has come. Main thread.
class FullDiskAccessView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The window of the permission brings it")
    Q_PROPERTY(bool showNotActiveWarning READ showNotActiveWarning NOTIFY changed)
    Q_PROPERTY(bool offersSettings READ offersSettings CONSTANT)
    Q_PROPERTY(bool showsPicture READ showsPicture CONSTANT)

public:
    static constexpr double pollInterval = 1.0; // seconds
    static constexpr int pollLimit = 15;        // then only the user's word makes it look

    struct Services {
        const FileSystem& fileSystem;
        Scheduler& scheduler;
        SystemSettings& settings;
        QString fdaPath; // readable once the access is there
    };

    // What follows the access, at most once, and what a skip. The services outlive the view.
    FullDiskAccessView(Services services, std::function<void()> onEnabled,
                       std::function<void()> onSkip);

    bool showNotActiveWarning() const { return showNotActiveWarning_; }
    bool offersSettings() const;
    bool showsPicture() const; // of the system's list of programs, where there is one

    Q_INVOKABLE void appear();       // the view is on the screen
    Q_INVOKABLE void claimEnabled(); // the user says that it is done
    Q_INVOKABLE void skip();
    Q_INVOKABLE void openSettings();

Q_SIGNALS:
    void changed();

private:
    bool isGranted() const;
    void autoClose();
    void poll();

    Services services_;
    std::function<void()> onEnabled_;
    std::function<void()> onSkip_;
    bool showNotActiveWarning_ = false;
    int pollCount_ = 0;
    bool didAutoClose_ = false;
    std::unique_ptr<RepeatingTimer> timer_;
};

} // namespace tessarine
