#pragma once

#include "platform/linux/applications/ApplicationNames.h"
#include "platform/linux/banners/AnnouncementFilter.h"
#include "platform/linux/banners/RecentMap.h"
#include "platform/linux/bus/BusConnection.h"
#include "platform/linux/bus/BusQuestions.h"

#include <memory>
#include <optional>
#include <string>
#include <thread>

namespace tessarine {

// Where the session's bus listens, in the form of D-Bus addresses. Empty when there is none: none
// is ever started for us.
std::string sessionBusAddress();

// Reads along what the applications of the session announce, on a thread of its own, and tells the
// banner process. It never sends a message that another application could see, answers nothing, and
// keeps nobody waiting. When the bus is gone, isn't there yet or refuses monitors, it tries again,
// less and less often down to twice a minute; otherwise it sleeps until the bus has something.
class BusMonitor {
public:
    // With an empty address there is no bus, and no thread.
    BusMonitor(std::shared_ptr<BannerProcess> process, std::string address);
    ~BusMonitor();
    BusMonitor(const BusMonitor&) = delete;
    BusMonitor& operator=(const BusMonitor&) = delete;

private:
    void run();
    bool attach();
    void read();
    std::optional<NameOwner> watchOwner(NotificationService service);
    NameOwner ownerNamed(const std::string& uniqueName);
    bool becomeMonitor();

    void handle(DBusMessage* message);
    void handleCall(DBusMessage* call);
    void handleError(DBusMessage* error);
    void handleSignal(DBusMessage* signal);

    QString applicationName(const QString& desktopEntry, const char* sender);
    QString senderName(const char* sender);

    const std::string address_;
    AnnouncementFilter filter_;
    ApplicationNames names_;
    RecentMap<std::string, QString> senderNames_; // of their programs, by unique name
    StopSignal stop_;
    std::unique_ptr<BusConnection> stream_;   // the monitor: may only read
    std::unique_ptr<BusQuestions> questions_; // for what the monitor needs to ask
    std::thread thread_;
};

} // namespace tessarine
