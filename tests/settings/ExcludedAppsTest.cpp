#include "settings/SettingsFixture.h"
#include "support/EventLoop.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

const QString sheetName = u"excludedAppsSheet"_qs;
const QString questionName = u"confirmExclusion"_qs;

class ExcludedAppsTest : public SettingsTest {
protected:
    void openSheet() {
        show();
        click(u"manage"_qs);
        system.scheduler.settle();
        ASSERT_TRUE(opens(sheetName));
        user().draw();
    }

    void closeSheet() {
        user().click(item(u"done"_qs));
        ASSERT_TRUE(closes(sheetName));
    }

    ExcludedAppsView& state() { return *view().general()->excludedApps(); }

    // A line by its number, as far as it is in sight.
    QQuickItem& row(int number) {
        QQuickItem* found = nullptr;
        QMetaObject::invokeMethod(&item(u"apps"_qs), "itemAtIndex",
                                  Q_RETURN_ARG(QQuickItem*, found), Q_ARG(int, number));
        if (!found)
            qFatal("there is no line %d", number);
        return *found;
    }
    bool isOn(int number) { return row(number).property("checked").toBool(); }
    void turn(int number) {
        user().clickAt(row(number), {row(number).width() - 30, row(number).height() / 2});
    }
    void askAbout(int number) {
        turn(number);
        ASSERT_TRUE(opens(questionName));
    }
    void answer(const QString& text) {
        user().click(*user().entry(text));
        ASSERT_TRUE(closes(questionName));
    }

    QStringList stored() {
        QStringList names;
        for (const CapturedNotification& notification : hoard.fetchRecent(1000))
            names << notification.appName + u' ' + notification.appBundleId;
        names.sort();
        return names;
    }

    QStringList excludedInDefaults() {
        QStringList ids = system.defaults.textList(u"excludedBundleIds"_qs);
        ids.sort();
        return ids;
    }

    void storeThree() {
        store(u"mail"_qs, u"com.example.mail"_qs, 1);
        store(u"Calendar"_qs, u"com.example.calendar"_qs, 2);
        store(u"Notes"_qs, u"com.example.notes"_qs, 3);
    }
};

TEST_F(ExcludedAppsTest, TheSheetHasItsFixedSize) {
    openSheet();
    const QObject* sheet = window->window()->contentItem()->findChild<QObject*>(sheetName);
    EXPECT_EQ(sheet->property("width").toDouble(), 460);
    EXPECT_EQ(sheet->property("height").toDouble(), 400);
}

TEST_F(ExcludedAppsTest, ListsTheAppsByNameWithoutRegardToCase) {
    storeThree();
    openSheet();
    QStringList names;
    for (int i = 0; i < 3; ++i)
        names << row(i).property("appName").toString();
    EXPECT_EQ(names, QStringList({u"Calendar"_qs, u"mail"_qs, u"Notes"_qs}));
    EXPECT_TRUE(isShown(u"com.example.calendar"_qs));
}

TEST_F(ExcludedAppsTest, OneAppUnderTwoNamesIsThereTwiceAndBothAreOnTogether) {
    store(u"Mail"_qs, u"com.example.mail"_qs, 1);
    store(u"Post"_qs, u"com.example.mail"_qs, 2);
    openSheet();
    ASSERT_EQ(state().apps()->rowCount(), 2);
    askAbout(0);
    answer(u"Exclude Only"_qs);
    EXPECT_TRUE(isOn(0));
    EXPECT_TRUE(isOn(1));
    EXPECT_TRUE(isShown(u"1 app is excluded"_qs));
}

TEST_F(ExcludedAppsTest, AnAppWithoutANameIsCalledByItsId) {
    store(QString(), u"com.example.nameless"_qs, 1);
    openSheet();
    EXPECT_EQ(row(0).property("name").toString(), u"com.example.nameless"_qs);
    askAbout(0);
    EXPECT_TRUE(isShown(u"Exclude com.example.nameless?"_qs));
}

TEST_F(ExcludedAppsTest, RowsWithoutAnIdLeaveTheListEmpty) {
    store(u"Nobody"_qs, QString(), 1);
    openSheet();
    EXPECT_NE(user().findItem(u"empty"_qs), nullptr);
    EXPECT_TRUE(isShown(u"No apps yet"_qs));
    EXPECT_EQ(user().findItem(u"apps"_qs), nullptr);
}

TEST_F(ExcludedAppsTest, NeitherListNorNoticeIsThereWhileTheHoardIsRead) {
    storeThree();
    show();
    system.scheduler.holdGlobalQueues(true);
    click(u"manage"_qs);
    system.scheduler.settle();
    ASSERT_TRUE(opens(sheetName));
    EXPECT_EQ(user().findItem(u"empty"_qs), nullptr);
    EXPECT_EQ(user().findItem(u"apps"_qs), nullptr);
    system.scheduler.holdGlobalQueues(false);
    system.scheduler.settle();
    EXPECT_NE(user().findItem(u"apps"_qs), nullptr);
}

TEST_F(ExcludedAppsTest, AReadingForASheetThatHasClosedIsDropped) {
    storeThree();
    show();
    system.scheduler.holdGlobalQueues(true);
    view().general()->setShowExcludedAppsSheet(true);
    view().general()->setShowExcludedAppsSheet(false);
    system.scheduler.holdGlobalQueues(false);
    system.scheduler.settle();
    EXPECT_EQ(state().apps()->rowCount(), 0);
}

TEST_F(ExcludedAppsTest, TheSwitchMovesOnlyWithTheAnswer) {
    storeThree();
    openSheet();
    askAbout(1);
    EXPECT_FALSE(isOn(1));
    EXPECT_TRUE(isShown(u"Exclude mail?"_qs));
    EXPECT_TRUE(isShown(u"New notifications of mail will not be kept. You can also delete all that "
                        u"the hoard has under this name."_qs));
    EXPECT_EQ(excludedInDefaults(), QStringList());
}

TEST_F(ExcludedAppsTest, CancelLeavesTheSwitchOff) {
    storeThree();
    openSheet();
    askAbout(1);
    answer(u"Cancel"_qs);
    EXPECT_FALSE(isOn(1));
    EXPECT_EQ(excludedInDefaults(), QStringList());
    EXPECT_EQ(state().pendingExclude(), std::nullopt);
    EXPECT_EQ(hoard.totalCount(), 3);
}

TEST_F(ExcludedAppsTest, ExcludeOnlyStoresTheIdAndKeepsTheRows) {
    storeThree();
    openSheet();
    EXPECT_EQ(user().findItem(u"footerCount"_qs), nullptr);
    askAbout(1);
    answer(u"Exclude Only"_qs);
    EXPECT_TRUE(isOn(1));
    EXPECT_FALSE(isOn(0));
    EXPECT_EQ(excludedInDefaults(), QStringList(u"com.example.mail"_qs));
    EXPECT_TRUE(isShown(u"1 app is excluded"_qs));
    EXPECT_EQ(hoard.totalCount(), 3);
    EXPECT_EQ(state().pendingExclude(), std::nullopt);
    EXPECT_FALSE(state().showConfirmation());
}

TEST_F(ExcludedAppsTest, TheNextRecordOfAnExcludedAppIsDroppedAndOfAnIncludedOneKept) {
    storeThree();
    openSheet();
    askAbout(1);
    answer(u"Exclude Only"_qs);
    CapturedNotification mail;
    mail.noteId = 10;
    mail.appName = u"mail"_qs;
    mail.appBundleId = u"com.example.mail"_qs;
    EXPECT_FALSE(hoard.insert(mail));
    turn(1);
    EXPECT_TRUE(hoard.insert(mail));
}

TEST_F(ExcludedAppsTest, ExcludeAndDeleteGoesByTheShownName) {
    store(u"Mail"_qs, u"com.example.mail"_qs, 1);
    store(u"Mail"_qs, u"org.other.mail"_qs, 2);
    store(u"Post"_qs, u"com.example.mail"_qs, 3);
    store(u"Notes"_qs, u"com.example.notes"_qs, 4);
    openSheet();
    ASSERT_EQ(state().apps()->apps()[0], (DistinctApp{u"com.example.mail"_qs, u"Mail"_qs}));
    askAbout(0);
    answer(u"Exclude and Delete"_qs);
    EXPECT_EQ(stored(), QStringList({u"Notes com.example.notes"_qs, u"Post com.example.mail"_qs}));
    EXPECT_EQ(excludedInDefaults(), QStringList(u"com.example.mail"_qs));
}

TEST_F(ExcludedAppsTest, DeletingReloadsNeitherThisListNorThatOfTheMainWindow) {
    storeThree();
    services.listener->setNotifications(hoard.fetchRecent(500));
    openSheet();
    askAbout(1);
    answer(u"Exclude and Delete"_qs);
    system.scheduler.settle();
    EXPECT_EQ(hoard.totalCount(), 2);
    EXPECT_EQ(services.listener->notifications().size(), 3U);
    EXPECT_EQ(state().apps()->rowCount(), 3);
    EXPECT_TRUE(isOn(1));
}

TEST_F(ExcludedAppsTest, AnExcludedAppWithoutRowsIsGoneAtTheNextOpeningAndCountsAllTheSame) {
    storeThree();
    openSheet();
    askAbout(1);
    answer(u"Exclude and Delete"_qs);
    closeSheet();
    openSheet();
    EXPECT_EQ(state().apps()->rowCount(), 2);
    EXPECT_TRUE(isShown(u"1 app is excluded"_qs));
    for (int i = 0; i < 2; ++i)
        EXPECT_FALSE(isOn(i));
}

TEST_F(ExcludedAppsTest, SwitchingOffAsksNothingAndTheFooterGoesWithTheLast) {
    storeThree();
    preferences.setExcludedBundleIds({u"com.example.mail"_qs});
    openSheet();
    EXPECT_TRUE(isOn(1));
    turn(1);
    EXPECT_FALSE(isOn(1));
    EXPECT_FALSE(state().showConfirmation());
    EXPECT_TRUE(closes(questionName));
    EXPECT_EQ(excludedInDefaults(), QStringList());
    EXPECT_EQ(user().findItem(u"footerCount"_qs), nullptr);
}

TEST_F(ExcludedAppsTest, AnswersWithoutAQuestionDoNothing) {
    storeThree();
    openSheet();
    state().excludeOnly();
    state().excludeAndDelete();
    EXPECT_EQ(excludedInDefaults(), QStringList());
    EXPECT_EQ(hoard.totalCount(), 3);
}

TEST_F(ExcludedAppsTest, TheQuestionComesAsOftenAsItIsAsked) {
    storeThree();
    openSheet();
    for (int round = 0; round < 3; ++round) {
        askAbout(round);
        EXPECT_EQ(state().pendingExclude(), state().apps()->apps()[std::size_t(round)]);
        answer(u"Cancel"_qs);
    }
}

TEST_F(ExcludedAppsTest, ASecondRequestForTheSheetIsOneSheetWithOneReading) {
    storeThree();
    openSheet();
    const QSignalSpy readings(&state(), &ExcludedAppsView::loaded);
    view().general()->setShowExcludedAppsSheet(true);
    system.scheduler.settle();
    EXPECT_EQ(readings.count(), 0);
    EXPECT_EQ(state().apps()->rowCount(), 3);
}

TEST_F(ExcludedAppsTest, WhatIsExcludedElsewhereIsSeenInTheOpenSheet) {
    storeThree();
    openSheet();
    preferences.setExcludedBundleIds({u"com.example.notes"_qs});
    EXPECT_TRUE(isOn(2));
    EXPECT_TRUE(isShown(u"1 app is excluded"_qs));
}

TEST_F(ExcludedAppsTest, AClosedWindowComesBackWithoutSheetAndQuestion) {
    storeThree();
    openSheet();
    askAbout(1);
    user().press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(window->isVisible());
    show();
    EXPECT_TRUE(closes(questionName));
    EXPECT_TRUE(closes(sheetName));
    EXPECT_EQ(excludedInDefaults(), QStringList());
    openSheet();
    EXPECT_FALSE(state().showConfirmation());
}

TEST_F(ExcludedAppsTest, TheModelKeepsTheRulesOfModels) {
    storeThree();
    show();
    const QAbstractItemModelTester tester(state().apps(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    view().general()->setShowExcludedAppsSheet(true);
    system.scheduler.settle();
    preferences.setExcludedBundleIds({u"com.example.mail"_qs});
    EXPECT_EQ(state().apps()->index(1).data(ExcludedAppsModel::isExcluded), true);
    view().general()->setShowExcludedAppsSheet(false);
}

TEST_F(ExcludedAppsTest, ThreeHundredExcludedOfTwoThousandAppsWithHugeNamesAreWorkedAtOnce) {
    std::set<QString> excluded;
    const QString huge = u"Donaudampfschifffahrtsgesellschaft"_qs.repeated(100);
    for (int i = 0; i < 2000; ++i) {
        const QString id = u"com.example.app%1"_qs.arg(i, 4, 10, QLatin1Char('0'));
        store(u"%1 "_qs.arg(i, 4, 10, QLatin1Char('0')) + huge, id, i + 1);
        if (i < 300)
            excluded.insert(id);
    }
    preferences.setExcludedBundleIds(excluded);
    openSheet();
    EXPECT_EQ(state().apps()->rowCount(), 2000);
    EXPECT_TRUE(isShown(u"300 apps are excluded"_qs));
    EXPECT_EQ(user().textsOutside(), QStringList());
    EXPECT_LT(item(u"apps"_qs).findChildren<QQuickItem*>(u"appName"_qs).size(), 40);
    turn(0); // which is on, so that it goes off without a question
    EXPECT_EQ(preferences.excludedBundleIds().size(), 299U);
}

// By keyboard and by ear

class ExcludedAppsKeyboardTest : public ExcludedAppsTest {
protected:
    void openByKeyboard() {
        show();
        ASSERT_TRUE(user().tabTo(u"Manage…"_qs));
        user().press(Qt::Key_Return);
        system.scheduler.settle();
        ASSERT_TRUE(opens(sheetName));
        user().draw();
    }
};

TEST_F(ExcludedAppsKeyboardTest, FromOpeningToDeletingWithoutAMouse) {
    storeThree();
    openByKeyboard();
    EXPECT_EQ(user().focusName(), u"Done"_qs);
    user().press(Qt::Key_Tab);
    EXPECT_EQ(user().focusName(), u"Calendar"_qs);
    user().press(Qt::Key_Down);
    EXPECT_EQ(user().focusName(), u"mail"_qs);
    user().press(Qt::Key_Space);
    ASSERT_TRUE(opens(questionName));
    EXPECT_EQ(user().focusName(), u"Cancel"_qs);
    user().press(Qt::Key_Escape);
    ASSERT_TRUE(closes(questionName));
    EXPECT_EQ(user().focusName(), u"mail"_qs);
    user().press(Qt::Key_Return);
    ASSERT_TRUE(opens(questionName));
    ASSERT_TRUE(user().tabTo(u"Exclude and Delete"_qs));
    user().press(Qt::Key_Return);
    ASSERT_TRUE(closes(questionName));
    EXPECT_EQ(hoard.totalCount(), 2);
    EXPECT_TRUE(isOn(1));
    user().press(Qt::Key_Space);
    EXPECT_FALSE(isOn(1));
    user().press(Qt::Key_Escape);
    EXPECT_TRUE(closes(sheetName));
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(user().focusName(), u"Manage…"_qs);
}

TEST_F(ExcludedAppsKeyboardTest, ReturnPressesDoneFromTheBeginning) {
    openByKeyboard();
    user().press(Qt::Key_Return);
    EXPECT_TRUE(closes(sheetName));
    EXPECT_FALSE(view().general()->showExcludedAppsSheet());
}

TEST_F(ExcludedAppsKeyboardTest, TheListIsOneStopAndArrowsGoThroughAllOfIt) {
    for (int i = 1; i <= 30; ++i)
        store(u"App %1"_qs.arg(i, 2, 10, QLatin1Char('0')), u"com.example.%1"_qs.arg(i), i);
    openByKeyboard();
    user().press(Qt::Key_Tab);
    EXPECT_EQ(user().focusName(), u"App 01"_qs);
    user().press(Qt::Key_Up);
    EXPECT_EQ(user().focusName(), u"App 01"_qs);
    user().press(Qt::Key_End);
    EXPECT_EQ(user().focusName(), u"App 30"_qs);
    user().press(Qt::Key_Down);
    EXPECT_EQ(user().focusName(), u"App 30"_qs);
    user().press(Qt::Key_PageUp);
    EXPECT_EQ(user().focusName(), u"App 25"_qs);
    user().press(Qt::Key_Tab);
    EXPECT_EQ(user().focusName(), u"Done"_qs);
    user().press(Qt::Key_Backtab);
    EXPECT_EQ(user().focusName(), u"App 25"_qs);
    user().press(Qt::Key_Home);
    user().press(Qt::Key_PageDown);
    EXPECT_EQ(user().focusName(), u"App 06"_qs);
}

TEST_F(ExcludedAppsKeyboardTest, TheLineWithTheKeyboardIsInSightAndHasARing) {
    for (int i = 1; i <= 30; ++i)
        store(u"App %1"_qs.arg(i, 2, 10, QLatin1Char('0')), u"com.example.%1"_qs.arg(i), i);
    openByKeyboard();
    user().press(Qt::Key_Tab);
    user().press(Qt::Key_End);
    QQuickItem& list = item(u"apps"_qs);
    const QRectF place = row(29).mapRectToItem(&list, row(29).boundingRect());
    EXPECT_GE(place.top(), 0);
    EXPECT_LE(place.bottom(), list.height());
    EXPECT_TRUE(row(29).property("visualFocus").toBool());
}

TEST_F(ExcludedAppsKeyboardTest, AScreenReaderReadsEachLineAsASwitchWithItsState) {
    storeThree();
    preferences.setExcludedBundleIds({u"com.example.mail"_qs});
    openSheet();
    QAccessibleInterface* const line = QAccessible::queryAccessibleInterface(&row(1));
    EXPECT_EQ(line->role(), QAccessible::CheckBox);
    EXPECT_EQ(line->text(QAccessible::Name), u"mail"_qs);
    EXPECT_EQ(line->text(QAccessible::Description), u"com.example.mail"_qs);
    EXPECT_TRUE(line->state().checked);
    line->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_FALSE(isOn(1));
    line->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(opens(questionName));
}

} // namespace
} // namespace tessarine::testing
