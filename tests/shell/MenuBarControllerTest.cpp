#include "shell/MenuBarController.h"

#include "core/Services.h"
#include "shell/LaunchAgentManager.h"
#include "support/Printers.h"
#include "support/SimulatedDesktop.h"
#include "support/SimulatedPlatform.h"

#include <QMenu>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <limits>
#include <optional>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

const QString lastSeenKey = u"menuBarLastSeenCount"_qs;

class MenuBarTest : public ::testing::Test {
protected:
    void launch() {
        controller_.emplace(item_, listener_, system_.defaults, launchAgent_,
                            MenuBarController::Actions{[this] { ++opened_; },
                                                       [this] { ++preferences_; },
                                                       [this] { ++quit_; }});
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
    int preferences_ = 0;
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

TEST_F(MenuBarTest, TheMenuHasItsItemsInTheirOrder) {
    launch();
    QMenu menu;
    item_.menuBuilder(menu);
    QStringList texts;
    for (const QAction* action : menu.actions())
        texts << (action->isSeparator() ? u"-"_qs : action->text());
    EXPECT_EQ(texts, QStringList({u"Tessarine"_qs, u"-"_qs, u"Open Hoard"_qs, u"Preferences…"_qs,
                                  u"-"_qs, u"Launch at Login"_qs, u"-"_qs, u"Quit Tessarine"_qs}));
    EXPECT_FALSE(menu.actions()[0]->isEnabled());
    EXPECT_EQ(menu.actions()[2]->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_O));
    EXPECT_EQ(menu.actions()[3]->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Comma));
    EXPECT_EQ(menu.actions()[7]->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Q));
}

TEST_F(MenuBarTest, TheItemsDoWhatTheySay) {
    launch();
    QMenu menu;
    item_.menuBuilder(menu);
    menu.actions()[2]->trigger();
    EXPECT_EQ(opened_, 1);
    EXPECT_EQ(preferences_, 0);
    menu.actions()[3]->trigger();
    EXPECT_EQ(preferences_, 1);
    EXPECT_EQ(opened_, 1);
    EXPECT_EQ(quit_, 0);
    menu.actions()[7]->trigger();
    EXPECT_EQ(quit_, 1);
}

TEST_F(MenuBarTest, LaunchAtLoginIsCheckedWhileItIsEnabledAndTogglesIt) {
    launch();
    for (const auto status : {LoginItemStatus::notRegistered, LoginItemStatus::requiresApproval,
                              LoginItemStatus::notFound}) {
        system_.loginItem.current = status;
        QMenu off;
        item_.menuBuilder(off);
        EXPECT_FALSE(off.actions()[5]->isChecked());
        off.actions()[5]->trigger();
        EXPECT_EQ(system_.loginItem.current, LoginItemStatus::enabled);
    }
    QMenu on;
    item_.menuBuilder(on);
    EXPECT_TRUE(on.actions()[5]->isChecked());
    on.actions()[5]->trigger();
    EXPECT_EQ(system_.loginItem.current, LoginItemStatus::notRegistered);
}

} // namespace
} // namespace tessarine
