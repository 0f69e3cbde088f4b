#include "shell/MenuBarController.h"

#include "core/Services.h"
#include "shell/LaunchAgentManager.h"
#include "support/Printers.h"
#include "support/SimulatedDesktop.h"
#include "support/SimulatedPlatform.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <optional>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

const QString lastSeenKey = u"menuBarLastSeenCount"_qs;

class MenuBarTest : public ::testing::Test {
protected:
    void launch() {
        MenuBarController::Actions actions;
        actions.openHoard = [this] { ++opened_; };
        actions.openHelp = [this] { ++helps_; };
        actions.openWelcomeGuide = [this] { ++guides_; };
        actions.openPreferences = [this] { ++preferences_; };
        actions.openFullDiskAccess = [this] { ++fdaPrompts_; };
        actions.lacksFullDiskAccess = [this] { return lacksFda_; };
        actions.checkForUpdates = [this] { ++updateChecks_; };
        actions.openDiagnostics = [this] { ++diagnostics_; };
        actions.quit = [this] { ++quit_; };
        controller_.emplace(item_, listener_, system_.defaults, launchAgent_, actions);
    }

    void publish(std::size_t count) { listener_->setNotifications(NotificationList(count)); }

    QTemporaryDir folder_;
    testing::SimulatedPlatform system_{folder_.path()};
    Services services_{system_.platform};
    std::shared_ptr<NotificationListener> listener_ = services_.listener;
    LaunchAgentManager launchAgent_{system_.loginItem, system_.fileSystem, [](const QString&) {}};
    testing::SimulatedStatusItem item_;
    std::optional<MenuBarController> controller_;
    int opened_ = 0;
    int helps_ = 0;
    int guides_ = 0;
    int fdaPrompts_ = 0;
    bool lacksFda_ = false;
    int updateChecks_ = 0;
    int preferences_ = 0;
    int diagnostics_ = 0;
    int quit_ = 0;
};

TEST_F(MenuBarTest, ShowsABellWithoutABadge) {
    launch();
    EXPECT_TRUE(item_.shown);
    EXPECT_EQ(item_.symbol, u"bell.fill"_qs);
    EXPECT_EQ(item_.description, u"Tessarine"_qs);
    EXPECT_EQ(item_.title, QString());
}

struct Badge {
    qint64 seen;
    std::size_t inList;
    const char* title;
};

class BadgeTest : public MenuBarTest, public ::testing::WithParamInterface<Badge> {};

TEST_P(BadgeTest, TellsWhatIsUnseen) {
    system_.defaults.setInteger(lastSeenKey, GetParam().seen);
    launch();
    publish(GetParam().inList);
    EXPECT_EQ(item_.title, QString::fromUtf8(GetParam().title));
}

INSTANTIATE_TEST_SUITE_P(Counts, BadgeTest,
                         ::testing::Values(Badge{0, 0, ""}, Badge{0, 1, " 1"}, Badge{0, 5, " 5"},
                                           Badge{0, 99, " 99"}, Badge{0, 100, " 99+"},
                                           Badge{0, 500, " 99+"}, Badge{100, 105, " 5"},
                                           Badge{100, 100, ""}, Badge{100, 20, ""},
                                           Badge{std::numeric_limits<qint64>::max(), 5, ""},
                                           Badge{std::numeric_limits<qint64>::min(), 5, " 99+"}));

TEST_F(MenuBarTest, AListThatWasThereBeforeCountsAtOnce) {
    publish(7);
    launch();
    EXPECT_EQ(item_.title, u" 7"_qs);
}

TEST_F(MenuBarTest, AListThatShrinksBelowWhatWasSeenShowsNothing) {
    launch();
    publish(10);
    controller_->markAllSeen();
    publish(4);
    EXPECT_EQ(item_.title, QString());
    publish(12);
    EXPECT_EQ(item_.title, u" 2"_qs);
}

TEST_F(MenuBarTest, MarkingAllSeenClearsTheBadgeAndStoresTheCount) {
    launch();
    publish(5);
    controller_->markAllSeen();
    EXPECT_EQ(item_.title, QString());
    EXPECT_EQ(system_.defaults.integer(lastSeenKey), 5);
    EXPECT_EQ(controller_->lastSeenCount(), 5);
}

TEST_F(MenuBarTest, TheTipTellsTheWholeCountInWords) {
    launch();
    EXPECT_EQ(item_.tip, QString());
    publish(1);
    EXPECT_EQ(item_.tip, u"1 new notification"_qs);
    publish(14);
    EXPECT_EQ(item_.tip, u"14 new notifications"_qs);
    publish(200);
    EXPECT_EQ(item_.tip, u"200 new notifications"_qs);
    controller_->markAllSeen();
    EXPECT_EQ(item_.tip, QString());
}

TEST_F(MenuBarTest, ATipCountsAsFarAsTextsCan) {
    EXPECT_EQ(MenuBarController::tip(std::numeric_limits<quint64>::max()),
              u"2,147,483,647 new notifications"_qs);
}

TEST_F(MenuBarTest, AClickThatLeavesTheMenuToTheDesktopOpensTheHoard) {
    launch();
    item_.activation();
    EXPECT_EQ(opened_, 1);
}

TEST_F(MenuBarTest, ABadgeThatStaysIsNotDrawnAnew) {
    launch();
    publish(200);
    const int before = item_.titlesSet;
    publish(201);
    EXPECT_EQ(item_.titlesSet, before);
    publish(5);
    EXPECT_EQ(item_.titlesSet, before + 1);
}

TEST_F(MenuBarTest, TheSeenCountOutlivesTheProcess) {
    launch();
    publish(5);
    controller_->markAllSeen();
    controller_.reset();
    launch();
    publish(8);
    EXPECT_EQ(item_.title, u" 3"_qs);
}

// As a click opens it.
class OpenedMenu {
public:
    explicit OpenedMenu(const testing::SimulatedStatusItem& item)
        : items_(item.menuBuilder()) {}

    // The entry with this text; null if there is none.
    const StatusMenuItem* entry(const QString& title) const {
        const auto found =
            std::find_if(items_.begin(), items_.end(),
                         [&](const StatusMenuItem& item) { return item.title == title; });
        return found == items_.end() ? nullptr : &*found;
    }

    QStringList texts() const {
        QStringList texts;
        for (const StatusMenuItem& item : items_)
            texts << (item.isSeparator ? u"-"_qs : item.title);
        return texts;
    }

private:
    const StatusMenu items_;
};

TEST_F(MenuBarTest, TheMenuHasItsItemsInTheirOrder) {
    launch();
    const OpenedMenu menu(item_);
    EXPECT_EQ(menu.texts(),
              QStringList({u"Tessarine"_qs, u"-"_qs, u"Open Hoard"_qs, u"Tessarine Help"_qs,
                           u"Welcome Guide…"_qs, u"Preferences…"_qs, u"-"_qs, u"Launch at Login"_qs,
                           u"-"_qs, u"Check for Updates…"_qs, u"-"_qs, u"Quit Tessarine"_qs}));
    EXPECT_FALSE(menu.entry(u"Tessarine"_qs)->isEnabled);
    EXPECT_EQ(menu.entry(u"Open Hoard"_qs)->key, u"o"_qs);
    EXPECT_EQ(menu.entry(u"Preferences…"_qs)->key, u","_qs);
    EXPECT_EQ(menu.entry(u"Tessarine Help"_qs)->key, u"?"_qs);
    EXPECT_EQ(menu.entry(u"Welcome Guide…"_qs)->key, QString());
    EXPECT_EQ(menu.entry(u"Quit Tessarine"_qs)->key, u"q"_qs);
}

TEST_F(MenuBarTest, TheClickWithOptionLeadsToTheDiagnosticsAlone) {
    launch();
    item_.alternateActivation();
    EXPECT_EQ(diagnostics_, 1);
    EXPECT_EQ(opened_, 0);
}

TEST_F(MenuBarTest, TheWayToTheDatabaseIsThereAsLongAsItIsMissing) {
    launch();
    lacksFda_ = true;
    const OpenedMenu with(item_);
    EXPECT_EQ(with.texts().indexOf(u"Access to a Database…"_qs),
              with.texts().indexOf(u"Launch at Login"_qs) + 1);
    with.entry(u"Access to a Database…"_qs)->action();
    EXPECT_EQ(fdaPrompts_, 1);
    lacksFda_ = false;
    EXPECT_EQ(OpenedMenu(item_).entry(u"Access to a Database…"_qs), nullptr);
}

TEST_F(MenuBarTest, TheItemsDoWhatTheySay) {
    launch();
    const OpenedMenu menu(item_);
    menu.entry(u"Open Hoard"_qs)->action();
    EXPECT_EQ(opened_, 1);
    menu.entry(u"Tessarine Help"_qs)->action();
    EXPECT_EQ(helps_, 1);
    menu.entry(u"Welcome Guide…"_qs)->action();
    EXPECT_EQ(guides_, 1);
    menu.entry(u"Preferences…"_qs)->action();
    EXPECT_EQ(preferences_, 1);
    menu.entry(u"Check for Updates…"_qs)->action();
    EXPECT_EQ(updateChecks_, 1);
    EXPECT_EQ(quit_, 0);
    menu.entry(u"Quit Tessarine"_qs)->action();
    EXPECT_EQ(quit_, 1);
}

TEST_F(MenuBarTest, LaunchAtLoginIsCheckedWhileItIsEnabledAndTogglesIt) {
    launch();
    for (const auto status : {LoginItemStatus::notRegistered, LoginItemStatus::requiresApproval,
                              LoginItemStatus::notFound}) {
        system_.loginItem.current = status;
        const OpenedMenu off(item_);
        EXPECT_EQ(off.entry(u"Launch at Login"_qs)->isChecked, false);
        off.entry(u"Launch at Login"_qs)->action();
        EXPECT_EQ(system_.loginItem.current, LoginItemStatus::enabled);
    }
    const OpenedMenu on(item_);
    EXPECT_EQ(on.entry(u"Launch at Login"_qs)->isChecked, true);
    on.entry(u"Launch at Login"_qs)->action();
    EXPECT_EQ(system_.loginItem.current, LoginItemStatus::notRegistered);
}

} // namespace
} // namespace tessarine
