#pragma once

#include "platform/LoginItem.h"

#include <QStringList>

namespace tessarine {

// An entry in the autostart folders of freedesktop's Desktop Application Autostart Specification.
class LinuxLoginItem : public LoginItem {
public:
    struct Setting {
        QString userFolder;        // the user's own entries
        QStringList systemFolders; // those of all users, best first; the user's hide them
        QStringList desktops;      // what the session calls itself, best first
    };

    // XDG_CONFIG_HOME, XDG_CONFIG_DIRS and XDG_CURRENT_DESKTOP as they stand.
    static Setting settingOfSession();

    explicit LinuxLoginItem(Setting setting = settingOfSession());

    LoginItemStatus status() const override;
    Failure registerMainApp() override;
    Failure unregisterMainApp() override;

private:
    QString userEntry() const;
    QString systemEntry() const; // empty where there is none

    Setting setting_;
};

// How to start the program at this path in times to come: by its name alone where the shell would
// find the same file.
QString lastingCommand(const QString& programPath);

} // namespace tessarine
