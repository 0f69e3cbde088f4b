#pragma once

#include <QString>

namespace tessarine {

// Pages of the system's own settings, under these addresses on every system.
namespace settingsPages {

inline const QString accessibility =
    QStringLiteral("x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility");
inline const QString fullDiskAccess =
    QStringLiteral("x-apple.systempreferences:com.apple.preference.security?Privacy_AllFiles");

} // namespace settingsPages

// The program in which the user sets up the system. Main thread.
class SystemSettings {
public:
    SystemSettings() = default;
    SystemSettings(const SystemSettings&) = delete;
    SystemSettings& operator=(const SystemSettings&) = delete;
    virtual ~SystemSettings() = default;

    // Whether the system has such a page.
    virtual bool offers(const QString& page) const = 0;

    // Whether such a page is a list of programs, each with a switch.
    virtual bool listsPrograms() const = 0;

    // Shows the page. Returns before it is there; false where there is none, or nothing could be
    // started.
    virtual bool open(const QString& page) = 0;
};

} // namespace tessarine
