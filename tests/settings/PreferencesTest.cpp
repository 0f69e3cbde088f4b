#include "settings/SettingsFixture.h"
#include "support/EventLoop.h"
#include "ui/AnimationClock.h"

#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>
#include <QTest>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

class PreferencesTest : public SettingsTest {
protected:
    QRect frame() const { return window->window()->geometry(); }

    void clickTab(const QString& name) { user().click(*user().entry(name)); }

    bool heightBecomes(int height) {
        return turnsUntil([&] { return window->window()->height() == height; });
    }

    bool isOn(const QString& name) { return item(name).property("checked").toBool(); }

    void clickSwitch(const QString& name) {
        QQuickItem& row = item(name);
        user().clickAt(row, {row.width() - 10, row.height() / 2});
    }

    // A file in the hoard's place.
    void writeHoard(int bytes) {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(hoard.path()).path()));
        QFile file(hoard.path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(bytes, 'x'));
    }
};

// The window

TEST_F(PreferencesTest, TheWindowBeginsInTheMiddleWithItsFirstSizeAndTheFirstTab) {
    show();
    EXPECT_EQ(window->window()->title(), u"Preferences"_qs);
    EXPECT_EQ(frame().size(), QSize(480, 500));
    EXPECT_LE((frame().center() - QGuiApplication::primaryScreen()->availableGeometry().center())
                  .manhattanLength(),
              2);
    EXPECT_EQ(view().selectedTab(), PrefTab::general);
    EXPECT_FALSE(window->window()->flags().testFlag(Qt::WindowMaximizeButtonHint));
    EXPECT_FALSE(window->window()->flags().testFlag(Qt::WindowMinimizeButtonHint));
    EXPECT_TRUE(window->window()->flags().testFlag(Qt::WindowCloseButtonHint));
}

struct TabHeight {
    const char* before;
    const char* name;
    int height;
};

class PreferencesTabsTest : public PreferencesTest,
                            public ::testing::WithParamInterface<TabHeight> {};

TEST_P(PreferencesTabsTest, AClickGivesTheWindowTheHeightOfTheTabAndKeepsItsTop) {
    show();
    clickTab(QString::fromUtf8(GetParam().before));
    const QRect before = frame();
    clickTab(QString::fromUtf8(GetParam().name));
    EXPECT_TRUE(heightBecomes(GetParam().height));
    EXPECT_EQ(frame().topLeft(), before.topLeft());
    EXPECT_EQ(frame().width(), 480);
    EXPECT_EQ(window->window()->minimumSize(), QSize(480, GetParam().height));
    EXPECT_EQ(window->window()->maximumSize(), QSize(480, GetParam().height));
}

INSTANTIATE_TEST_SUITE_P(Tabs, PreferencesTabsTest,
                         ::testing::Values(TabHeight{"Storage", "General", 533},
                                           TabHeight{"General", "Storage", 333},
                                           TabHeight{"General", "Privacy", 433},
                                           TabHeight{"General", "Permissions", 313}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(PreferencesTest, FromGeneralToPermissionsTheWindowShrinksBy220PointsOverItsTime) {
    AnimationClock clock;
    show();
    view().setSelectedTab(PrefTab::storage);
    clock.turnOn(1000);
    view().setSelectedTab(PrefTab::general);
    clock.turnOn(1000);
    ASSERT_EQ(frame().height(), 533);
    const QPoint top = frame().topLeft();
    view().setSelectedTab(PrefTab::permissions);
    // Slow at both ends: after a quarter of the time less than a quarter of the way, and half of it
    // at half time.
    clock.turnOn(45);
    EXPECT_GT(frame().height(), 533 - 55);
    EXPECT_LT(frame().height(), 533);
    clock.turnOn(45);
    EXPECT_NEAR(frame().height(), 423, 2);
    clock.turnOn(80);
    EXPECT_GT(frame().height(), 313);
    clock.turnOn(11);
    EXPECT_EQ(frame().height(), 313);
    EXPECT_EQ(frame().topLeft(), top);
}

TEST_F(PreferencesTest, WithReducedMotionTheHeightIsThereAtOnce) {
    desktop.appearance.setReducesMotion(true);
    show();
    view().setSelectedTab(PrefTab::permissions);
    EXPECT_EQ(frame().height(), 313);
}

TEST_F(PreferencesTest, AnotherTabDuringTheChangeLeadsToItsHeight) {
    AnimationClock clock;
    show();
    view().setSelectedTab(PrefTab::permissions);
    clock.turnOn(90);
    view().setSelectedTab(PrefTab::general);
    clock.turnOn(1000);
    EXPECT_EQ(frame().height(), 533);
}

TEST_F(PreferencesTest, AClosedWindowComesBackWithItsTabAndItsHeight) {
    show();
    choose(PrefTab::privacy);
    close();
    show();
    EXPECT_EQ(view().selectedTab(), PrefTab::privacy);
    EXPECT_EQ(frame().height(), 433);
}

TEST_F(PreferencesTest, OneTabIsShownAtATime) {
    show();
    for (const PrefTab tab : allPrefTabs) {
        choose(tab);
        for (const PrefTab other : allPrefTabs)
            EXPECT_EQ(user().findItem(rawValue(other) + u"Tab"_qs) != nullptr, other == tab);
    }
}

TEST_F(PreferencesTest, OpenedAndClosedAHundredTimesItHasNoMoreObjects) {
    store(u"Mail"_qs, u"com.example.mail"_qs, 1);
    const auto openAndClose = [this] {
        show();
        view().general()->setShowExcludedAppsSheet(true);
        system.scheduler.settle();
        ASSERT_TRUE(opens(u"excludedAppsSheet"_qs));
        close();
        ASSERT_TRUE(closes(u"excludedAppsSheet"_qs));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    desktop.appearance.setReducesMotion(true);
    openAndClose();
    openAndClose();
    const qsizetype before = user().objects();
    for (int i = 0; i < 100; ++i)
        openAndClose();
    EXPECT_EQ(user().objects(), before);
}

// General

struct AppearanceCase {
    const char* button;
    const char* mode;
};

class AppearanceChoiceTest : public PreferencesTest,
                             public ::testing::WithParamInterface<AppearanceCase> {};

TEST_P(AppearanceChoiceTest, IsStoredAndAppliedAtOnce) {
    preferences.setAppearanceMode(u"neither"_qs);
    show();
    user().click(*user().entry(QString::fromUtf8(GetParam().button)));
    system.scheduler.settle();
    const QString mode = QString::fromUtf8(GetParam().mode);
    EXPECT_EQ(system.defaults.text(u"appearanceMode"_qs), mode);
    EXPECT_EQ(appliedModes, QStringList(mode));
    EXPECT_TRUE(user().entry(QString::fromUtf8(GetParam().button))->property("chosen").toBool());
}

INSTANTIATE_TEST_SUITE_P(Modes, AppearanceChoiceTest,
                         ::testing::Values(AppearanceCase{"Automatic", "auto"},
                                           AppearanceCase{"Light", "light"},
                                           AppearanceCase{"Dark", "dark"}),
                         [](const auto& test) { return std::string(test.param.mode); });

TEST_F(PreferencesTest, TheWindowItselfTurnsDarkAtOnce) {
    show();
    const auto corner = [this] { return window->window()->grabWindow().pixelColor(2, 100); };
    EXPECT_GT(corner().lightness(), 128);
    user().click(*user().entry(u"Dark"_qs));
    system.scheduler.settle();
    EXPECT_LT(corner().lightness(), 128);
}

TEST_F(PreferencesTest, AnUnknownAppearanceStaysStoredAndNothingIsChosen) {
    preferences.setAppearanceMode(u"sepia"_qs);
    show();
    for (const QString& text : {u"Automatic"_qs, u"Light"_qs, u"Dark"_qs})
        EXPECT_FALSE(user().entry(text)->property("chosen").toBool());
    EXPECT_EQ(preferences.appearanceMode(), u"sepia"_qs);
    EXPECT_TRUE(appliedModes.isEmpty());
}

const QString loginWarning =
    u"Notifications that come while Tessarine is not running may be missed."_qs;

class LoginStatusTest : public PreferencesTest,
                        public ::testing::WithParamInterface<LoginItemStatus> {};

TEST_P(LoginStatusTest, OnlyEnabledIsOnAndEveryOtherWarns) {
    system.loginItem.current = GetParam();
    show();
    EXPECT_EQ(isOn(u"launchAtLogin"_qs), GetParam() == LoginItemStatus::enabled);
    EXPECT_EQ(isShown(loginWarning), GetParam() != LoginItemStatus::enabled);
}

INSTANTIATE_TEST_SUITE_P(Statuses, LoginStatusTest,
                         ::testing::Values(LoginItemStatus::notRegistered, LoginItemStatus::enabled,
                                           LoginItemStatus::requiresApproval,
                                           LoginItemStatus::notFound));

TEST_F(PreferencesTest, TheSwitchRegistersTheLoginItemAndTakesItBack) {
    show();
    clickSwitch(u"launchAtLogin"_qs);
    EXPECT_EQ(system.loginItem.current, LoginItemStatus::enabled);
    EXPECT_TRUE(isOn(u"launchAtLogin"_qs));
    EXPECT_FALSE(isShown(loginWarning));
    clickSwitch(u"launchAtLogin"_qs);
    EXPECT_EQ(system.loginItem.current, LoginItemStatus::notRegistered);
    EXPECT_FALSE(isOn(u"launchAtLogin"_qs));
    EXPECT_TRUE(isShown(loginWarning));
}

TEST_F(PreferencesTest, ALoginItemThatCannotBeChangedShowsItsRealStatus) {
    system.loginItem.nextFailure = u"no"_qs;
    show();
    clickSwitch(u"launchAtLogin"_qs);
    EXPECT_FALSE(isOn(u"launchAtLogin"_qs));
    EXPECT_TRUE(isShown(loginWarning));
}

TEST_F(PreferencesTest, ALoginItemThatIsSwitchedElsewhereIsSeenWhenTheWindowIsActiveAgain) {
    show();
    system.loginItem.current = LoginItemStatus::enabled;
    Q_EMIT window->window()->activeChanged();
    EXPECT_TRUE(isOn(u"launchAtLogin"_qs));
}

TEST_F(PreferencesTest, TheNumberOfExcludedAppsStandsThereOnceThereAreAny) {
    show();
    EXPECT_FALSE(user().texts().join(u' ').contains(u"0 app"_qs));
    preferences.setExcludedBundleIds({u"one"_qs});
    EXPECT_TRUE(isShown(u"1 app"_qs));
    preferences.setExcludedBundleIds({u"one"_qs, u"two"_qs, u"three"_qs});
    EXPECT_TRUE(isShown(u"3 apps"_qs));
    preferences.setExcludedBundleIds({});
    EXPECT_FALSE(user().texts().join(u' ').contains(u"0 app"_qs));
}

// Storage

TEST_F(PreferencesTest, ARetentionFromTheMenuIsStored) {
    show();
    choose(PrefTab::storage);
    chooseFromMenu(u"keepFor"_qs, u"90 days"_qs);
    EXPECT_EQ(system.defaults.integer(u"retentionDays"_qs), 90);
    chooseFromMenu(u"keepFor"_qs, u"Forever"_qs);
    EXPECT_EQ(system.defaults.integer(u"retentionDays"_qs), 0);
    chooseFromMenu(u"keepFor"_qs, u"7 days"_qs);
    EXPECT_EQ(system.defaults.integer(u"retentionDays"_qs), 7);
}

TEST_F(PreferencesTest, AShorterRetentionDeletesNothingYet) {
    store(u"Mail"_qs, u"com.example.mail"_qs, 9000000); // a hundred days old
    show();
    choose(PrefTab::storage);
    chooseFromMenu(u"keepFor"_qs, u"7 days"_qs);
    system.scheduler.advance(100);
    EXPECT_EQ(hoard.totalCount(), 1);
}

TEST_F(PreferencesTest, FourteenDaysWarnInOrangeAndThirtyAreNeutral) {
    preferences.setRetentionDays(14);
    show();
    choose(PrefTab::storage);
    const auto ink = [this] { return item(u"keepFor"_qs).property("noteInk").value<QColor>(); };
    EXPECT_EQ(ink(), Palette::light().orange);
    preferences.setRetentionDays(30);
    EXPECT_EQ(ink(), Palette::light().secondaryLabel);
    EXPECT_TRUE(isShown(
        u"At each start, notifications older than 30 days are deleted, pinned ones too."_qs));
    preferences.setRetentionDays(0);
    EXPECT_EQ(ink(), Palette::light().green);
}

TEST_F(PreferencesTest, AValueThatIsNotOfferedIsShownWithItsNoteAndNoRowOfTheMenuIsChosen) {
    preferences.setRetentionDays(15);
    show();
    choose(PrefTab::storage);
    EXPECT_EQ(item(u"keepFor"_qs).property("currentIndex").toInt(), -1);
    EXPECT_TRUE(isShown(u"15 days"_qs));
    EXPECT_TRUE(isShown(
        u"At each start, notifications older than 15 days are deleted, pinned ones too."_qs));
    EXPECT_EQ(preferences.retentionDays(), 15);
}

TEST_F(PreferencesTest, TheSizeIsThatOfTheMainFileAloneAsOfTheAppearance) {
    writeHoard(1500000);
    QFile log(hoard.path() + u"-wal"_qs);
    ASSERT_TRUE(log.open(QIODevice::WriteOnly));
    log.write(QByteArray(5000000, 'x'));
    show();
    choose(PrefTab::storage);
    EXPECT_TRUE(isShown(u"1.5 MB"_qs));
    writeHoard(2500000);
    system.scheduler.advance(100);
    EXPECT_TRUE(isShown(u"1.5 MB"_qs));
    close();
    show();
    EXPECT_TRUE(isShown(u"2.5 MB"_qs));
}

TEST_F(PreferencesTest, AHoardThatIsNotThereHasNoSizeAndIsNotMade) {
    show();
    choose(PrefTab::storage);
    EXPECT_TRUE(isShown(u"Zero KB"_qs));
    EXPECT_FALSE(QFile::exists(hoard.path()));
}

// Privacy

TEST_F(PreferencesTest, HidingContentIsStoredAndNoted) {
    show();
    choose(PrefTab::privacy);
    const QString note = u"The content of all apps is hidden. It is stored all the same."_qs;
    EXPECT_FALSE(isShown(note));
    clickSwitch(u"hideContent"_qs);
    EXPECT_TRUE(system.defaults.boolean(u"globalPrivacyMode"_qs));
    EXPECT_TRUE(isShown(note));
    clickSwitch(u"hideContent"_qs);
    EXPECT_FALSE(system.defaults.boolean(u"globalPrivacyMode"_qs));
    EXPECT_FALSE(isShown(note));
}

struct HoursCase {
    const char* choice;
    qint64 hours;
    const char* note; // empty: none
};

class CodeHoursTest : public PreferencesTest, public ::testing::WithParamInterface<HoursCase> {};

TEST_P(CodeHoursTest, AreStoredAndNoted) {
    preferences.setOtpRetentionHours(2);
    show();
    choose(PrefTab::privacy);
    chooseFromMenu(u"otpAutoDelete"_qs, QString::fromUtf8(GetParam().choice));
    EXPECT_EQ(system.defaults.integer(u"otpRetentionHours"_qs), GetParam().hours);
    EXPECT_EQ(item(u"otpAutoDelete"_qs).property("note").toString(),
              QString::fromUtf8(GetParam().note));
}

INSTANTIATE_TEST_SUITE_P(
    Hours, CodeHoursTest,
    ::testing::Values(
        HoursCase{"Off", 0, ""},
        HoursCase{"1 hour", 1, "At each start, those older than an hour are deleted."},
        HoursCase{"4 hours", 4, "At each start, those older than 4 hours are deleted."},
        HoursCase{"24 hours", 24, "At each start, those older than a day are deleted."}));

TEST_F(PreferencesTest, HoursThatAreNotOfferedHaveNoNote) {
    preferences.setOtpRetentionHours(2);
    show();
    choose(PrefTab::privacy);
    EXPECT_TRUE(isShown(u"2 hours"_qs));
    EXPECT_EQ(item(u"otpAutoDelete"_qs).property("note").toString(), QString());
    EXPECT_EQ(item(u"otpAutoDelete"_qs).property("currentIndex").toInt(), -1);
}

// What can't be saved, and what no setter wrote

TEST_F(PreferencesTest, AChangeThatCannotBeSavedHoldsAndSaysSo) {
    show();
    choose(PrefTab::privacy);
    EXPECT_EQ(user().findItem(u"savingProblem"_qs), nullptr);
    system.defaults.cannotBeWritten = true;
    clickSwitch(u"hideContent"_qs);
    EXPECT_NE(user().findItem(u"savingProblem"_qs), nullptr);
    EXPECT_TRUE(isOn(u"hideContent"_qs));
    EXPECT_TRUE(services.preferences.isPrivate(u"any"_qs));
    system.defaults.cannotBeWritten = false;
    clickSwitch(u"hideContent"_qs);
    EXPECT_EQ(user().findItem(u"savingProblem"_qs), nullptr);
}

TEST_F(PreferencesTest, AScreenReaderFindsTheMessageThatNothingIsSaved) {
    system.defaults.cannotBeWritten = true;
    show();
    const QAccessibleInterface* const line =
        QAccessible::queryAccessibleInterface(&item(u"savingProblem"_qs));
    EXPECT_EQ(line->role(), QAccessible::AlertMessage);
    EXPECT_TRUE(line->text(QAccessible::Name).startsWith(u"Your changes could not be saved"_qs));
}

TEST_F(PreferencesTest, ValuesOfAnotherKindReadAsNoneAndGiveWayToAChange) {
    system.defaults.values[u"retentionDays"_qs] = u"soon"_qs;
    system.defaults.values[u"otpRetentionHours"_qs] = QStringList{u"1"_qs, u"2"_qs};
    system.defaults.values[u"globalPrivacyMode"_qs] = u"maybe"_qs;
    system.defaults.values[u"appearanceMode"_qs] = QStringList{u"dark"_qs, u"light"_qs};
    system.defaults.values[u"unknown"_qs] = u"kept"_qs;
    PreferencesStore read(system.defaults);
    PreferencesView odd({read,
                         services.listener,
                         hoard,
                         system.platform,
                         savePanel,
                         LaunchAtLogin{[] { return false; }, [] {}, [] {}},
                         [](const QString&) {},
                         {}});
    EXPECT_EQ(odd.storage()->retentionText(), u"Forever"_qs);
    EXPECT_EQ(odd.privacy()->otpText(), u"Off"_qs);
    EXPECT_FALSE(odd.privacy()->globalPrivacyMode());
    EXPECT_EQ(odd.general()->appearanceIndex(), 0);
    EXPECT_EQ(system.defaults.values[u"retentionDays"_qs], u"soon"_qs);
    odd.storage()->chooseRetention(5);
    odd.privacy()->chooseOtp(2);
    EXPECT_EQ(system.defaults.integer(u"retentionDays"_qs), 30);
    EXPECT_EQ(system.defaults.integer(u"otpRetentionHours"_qs), 4);
    EXPECT_EQ(system.defaults.values[u"globalPrivacyMode"_qs], u"maybe"_qs);
    EXPECT_EQ(system.defaults.text(u"unknown"_qs), u"kept"_qs);
    EXPECT_TRUE(odd.isSaved());
}

TEST_F(PreferencesTest, TheDocumentsCanBeReadAgain) {
    show();
    choose(PrefTab::privacy);
    click(u"privacyNotice"_qs);
    EXPECT_EQ(noticesShown, 1);
    click(u"welcomeGuide"_qs);
    EXPECT_EQ(guidesShown, 1);
}

} // namespace
} // namespace tessarine::testing
