#include "capture/CaptureFixture.h"
#include "platform/linux/played/PlayedSystem.h"
#include "platform/macos/MacAccessibility.h"
#include "support/Printers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

// The whole way from another process's windows into the hoard, over the Mac's own sources, with
// everything that real windows do.

namespace tessarine {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::IsSupersetOf;
using ::testing::Le;
using testing::PlayedNode;
using testing::PlayedSystem;
using ::testing::SizeIs;
using namespace Qt::StringLiterals;

constexpr qint32 drawer = 501;
constexpr qint32 drawerAfterIt = 777;

class AccessibilityPathTest : public testing::CaptureFixture {
protected:
    AccessibilityPathTest() {
        system_.platform.accessibility = std::make_unique<MacAccessibility>();
        runDrawer(drawer);
        makeServices();
    }

    void TearDown() override {
        endProcess();
        system_.scheduler.settle();
        system_.platform.accessibility.reset();
        EXPECT_EQ(drawn_.attachedObservers(), 0U);
        EXPECT_EQ(PlayedSystem::ownedObjects(), 0) << "somebody still owns them";
    }

    void runDrawer(qint32 pid) {
        root_ = drawn_.startProcess(pid);
        system_.workspace.running = {{pid, bannerProcess, std::nullopt}};
    }

    void launch() {
        listener_->start();
        system_.scheduler.settle();
        drawn_.resetQuestions();
    }

    // An event that the throttle lets through, and the scan that it leads to.
    void event() {
        system_.scheduler.advance(1);
        drawn_.send(root_, ax::valueChanged);
        system_.scheduler.settle();
    }

    int window(const std::vector<int>& children) {
        return drawn_.add(drawer, u"AXWindow"_qs, {{ax::children, children}});
    }

    // What the system's own has: a window, groups and a scroll area that say nothing, a stack.
    std::vector<int> realWindows() {
        const int mail = drawn_.addBanner(drawer, u"Mail, Noor, Lunch"_qs,
                                          {u"Noor"_qs, u"5m ago"_qs, u"Lunch?"_qs});
        const int news =
            drawn_.addBanner(drawer, u"News"_qs, {u"Headline"_qs, u"Just now"_qs, u"Text"_qs});
        const int chat = drawn_.addBanner(drawer, u"Chat"_qs, {u"Idris"_qs});
        const int stack = drawn_.add(drawer, ax::group, {{ax::children, std::vector{mail, news}}});
        const int area =
            drawn_.add(drawer, u"AXScrollArea"_qs, {{ax::children, std::vector{stack, chat}}});
        const int quiet = drawn_.addGroup(drawer, {}, {area});
        const int button = drawn_.add(drawer, u"AXButton"_qs, {{ax::value, PlayedNode::Number()}});
        return {window({button, quiet})};
    }

    const std::vector<QString> realTitles_{u"Noor"_qs, u"Headline"_qs, u"Idris"_qs};

    // Draws everything anew, with an empty hoard.
    void startAnew() {
        hoard().deleteAll();
        drawn_.onQuestion = nullptr;
        drawn_.setWindows(drawer, realWindows());
        drawn_.resetQuestions();
    }

    // Whatever was disturbed before, all is in the hoard now. Of a banner that could be read in
    // part there may be a row of what was read.
    void expectAllStoredAtLast() {
        const std::vector<QString> titles = stored();
        EXPECT_THAT(titles, IsSupersetOf(realTitles_));
        EXPECT_THAT(titles, SizeIs(Le(2 * realTitles_.size())));
        const QStringList drawn{u"Noor"_qs,     u"5m ago"_qs, u"Lunch?"_qs, u"Headline"_qs,
                                u"Just now"_qs, u"Text"_qs,   u"Idris"_qs};
        for (const QString& title : titles)
            EXPECT_TRUE(drawn.contains(title)) << title.toStdString();
    }

    void vanish() { drawn_.setWindows(drawer, {}), drawn_.removeAllBut(root_); }

    void startWindowsAgain() {
        drawn_.onQuestion = nullptr;
        drawn_.setWindows(drawer, realWindows());
    }

    // As the system tells it when the process has crashed.
    void restartDrawer(qint32 pid) {
        const qint32 before = system_.workspace.running.front().pid;
        system_.workspace.running.clear();
        drawn_.endProcess(before);
        system_.workspace.post(WorkspaceEvent::didTerminateApplication,
                               RunningApplication{before, bannerProcess, std::nullopt});
        system_.scheduler.settle();
        runDrawer(pid);
        system_.workspace.post(WorkspaceEvent::didLaunchApplication,
                               RunningApplication{pid, bannerProcess, std::nullopt});
        system_.scheduler.advance(1.5);
    }

    std::vector<QString> messages() const {
        std::vector<QString> messages;
        for (const DiagnosticEntry& entry : diagnostics_->entries())
            messages.push_back(entry.message);
        return messages;
    }

    // How many questions an undisturbed event leads to.
    int questionsOfAnEvent() {
        startAnew();
        event();
        return drawn_.questions();
    }

    PlayedSystem drawn_;
    int root_ = 0;
};

// Real trees

TEST_F(AccessibilityPathTest, StoresTheBannersOfAStackInTheirOrder) {
    drawn_.setWindows(drawer, realWindows());
    launch();
    EXPECT_EQ(stored(), realTitles_);
    EXPECT_THAT(stored(u"app_name"_qs), ElementsAre(u"Mail"_qs, u"News"_qs, u"Chat"_qs));
    EXPECT_THAT(stored(u"body"_qs), ElementsAre(u"Lunch?"_qs, u"Text"_qs, QString()));
}

TEST_F(AccessibilityPathTest, StoresABannerThatComesWithAnEventOnce) {
    launch();
    EXPECT_THAT(stored(), IsEmpty());
    drawn_.setWindows(drawer, realWindows());
    for (int i = 0; i < 3; ++i)
        event();
    EXPECT_EQ(stored(), realTitles_);
}

TEST_F(AccessibilityPathTest, LooksAtNoMoreThanItsDepthOfAnEndlessTree) {
    int inner = drawn_.addBanner(drawer, u"Too deep"_qs, {u"never"_qs});
    for (int i = 0; i < 300; ++i)
        inner = drawn_.add(drawer, ax::group, {{ax::children, std::vector{inner}}});
    const int shallow = drawn_.addBanner(drawer, u"Mail"_qs, {u"near"_qs});
    drawn_.setWindows(drawer, {window({inner, shallow})});
    launch();
    event();
    EXPECT_THAT(stored(), ElementsAre(u"near"_qs));
    EXPECT_LT(drawn_.questions(), 80);
}

TEST_F(AccessibilityPathTest, GoesRoundInNoCircle) {
    const int group = drawn_.add(drawer, ax::group);
    drawn_.node(group).attributes[ax::children] = std::vector{group};
    const int banner = drawn_.addBanner(drawer, u"Mail"_qs, {u"beside"_qs});
    drawn_.setWindows(drawer, {window({group, banner})});
    launch();
    EXPECT_THAT(stored(), ElementsAre(u"beside"_qs));
}

TEST_F(AccessibilityPathTest, LooksThroughThreeHundredBanners) {
    std::vector<int> banners;
    banners.reserve(300);
    for (int i = 0; i < 300; ++i)
        banners.push_back(
            drawn_.addBanner(drawer, u"Mail"_qs, {u"Message %1"_qs.arg(i), u"Body"_qs}));
    drawn_.setWindows(drawer, {window(banners)});
    launch();
    EXPECT_THAT(stored(), SizeIs(300));
}

struct Words {
    const char* name;
    const char* description;
    std::vector<const char*> texts;
    const char* title;
    const char* body;
};

class LanguageTest : public AccessibilityPathTest, public ::testing::WithParamInterface<Words> {};

// Words for times are known in English alone: in another language they stay in the body.
TEST_P(LanguageTest, StoresTheTextsAsTheyAreDrawn) {
    QStringList texts;
    for (const char* text : GetParam().texts)
        texts << QString::fromUtf8(text);
    drawn_.setWindows(
        drawer,
        {window({drawn_.addBanner(drawer, QString::fromUtf8(GetParam().description), texts)})});
    launch();
    EXPECT_THAT(stored(), ElementsAre(QString::fromUtf8(GetParam().title)));
    EXPECT_THAT(stored(u"body"_qs), ElementsAre(QString::fromUtf8(GetParam().body)));
}

INSTANTIATE_TEST_SUITE_P(
    Each, LanguageTest,
    ::testing::Values(
        Words{"English", "Mail, Noor", {"Noor", "5m ago", "Lunch?"}, "Noor", "Lunch?"},
        Words{
            "German", "Mail, Noor", {"Noor", "vor 5 Min.", "Essen?"}, "Noor", "vor 5 Min. Essen?"},
        Words{"French",
              "Mail",
              {"Noor", "à l’instant", "Déjeuner ?"},
              "Noor",
              "à l’instant Déjeuner ?"},
        Words{"Japanese", "メール, 新着", {"件名", "5分前", "本文です"}, "件名", "5分前 本文です"},
        Words{"Arabic", "البريد", {"نور", "الآن", "غداء؟"}, "نور", "الآن غداء؟"},
        Words{"Emoji",
              "Chat 🏳️‍🌈",
              {"👩‍👩‍👧", "Just now", "🎉"},
              "👩‍👩‍👧",
              "🎉"}),
    [](const auto& test) { return std::string(test.param.name); });

// Errors

class ErrorPathTest : public AccessibilityPathTest,
                      public ::testing::WithParamInterface<AXError> {};

// Each question of a scan fails once. What could not be read comes with the next event.
TEST_P(ErrorPathTest, OfAnyQuestionCostsNothingForGood) {
    launch();
    const int questions = questionsOfAnEvent();
    ASSERT_GT(questions, 30);
    for (int failing = 1; failing <= questions; ++failing) {
        SCOPED_TRACE(failing);
        startAnew();
        drawn_.onQuestion = [&](const PlayedSystem::Question& question) {
            return question.number == failing ? std::optional(GetParam()) : std::nullopt;
        };
        event();
        EXPECT_GE(drawn_.questions(), failing);
        drawn_.onQuestion = nullptr;
        event();
        expectAllStoredAtLast();
    }
}

TEST_P(ErrorPathTest, OfEveryQuestionLeavesTheHoardAsItIs) {
    launch();
    startAnew();
    drawn_.onQuestion = [](const auto&) { return GetParam(); };
    for (int i = 0; i < 3; ++i)
        event();
    EXPECT_THAT(stored(), IsEmpty());
    drawn_.onQuestion = nullptr;
    event();
    EXPECT_EQ(stored(), realTitles_);
}

INSTANTIATE_TEST_SUITE_P(Each, ErrorPathTest,
                         ::testing::Values(kAXErrorFailure, kAXErrorInvalidUIElement,
                                           kAXErrorCannotComplete, kAXErrorAttributeUnsupported,
                                           kAXErrorAPIDisabled, kAXErrorNoValue));

// Vanishing

// Between any two questions everything that is drawn goes.
TEST_F(AccessibilityPathTest, WhatVanishesBetweenTwoQuestionsDoesNoHarm) {
    launch();
    const int questions = questionsOfAnEvent();
    for (int vanishing = 1; vanishing <= questions; ++vanishing) {
        SCOPED_TRACE(vanishing);
        startAnew();
        drawn_.onQuestion = [&](const PlayedSystem::Question& question) -> std::optional<AXError> {
            if (question.number == vanishing)
                vanish();
            return std::nullopt;
        };
        event();
        startWindowsAgain();
        event();
        expectAllStoredAtLast();
    }
}

// At each question something else goes, comes or changes.
TEST_F(AccessibilityPathTest, ATreeThatNeverStandsStillDoesNoHarm) {
    launch();
    std::mt19937 random(20260214);
    for (int round = 0; round < 150; ++round) {
        SCOPED_TRACE(round);
        startAnew();
        drawn_.onQuestion = [&](const PlayedSystem::Question& question) -> std::optional<AXError> {
            switch (random() % 12) {
            case 0:
                if (question.node != root_)
                    drawn_.remove(question.node);
                break;
            case 1:
                drawn_.setWindows(drawer, realWindows());
                break;
            case 2:
                return kAXErrorCannotComplete;
            default:
                break;
            }
            return std::nullopt;
        };
        for (int i = 0; i < 3; ++i)
            event();
        startWindowsAgain();
        event();
        EXPECT_THAT(stored(), IsSupersetOf(realTitles_));
    }
}

// Time-outs

TEST_F(AccessibilityPathTest, AnyQuestionMayTakeLongAndIsReportedThen) {
    launch();
    const int questions = questionsOfAnEvent();
    // The first is that of the main thread, which does not wait for it in a scan.
    for (int slow = 2; slow <= questions; ++slow) {
        SCOPED_TRACE(slow);
        startAnew();
        diagnostics_->clearEntries();
        drawn_.onQuestion = [&](const PlayedSystem::Question& question) -> std::optional<AXError> {
            if (question.number != slow)
                return std::nullopt;
            system_.scheduler.spend(5);
            return kAXErrorCannotComplete;
        };
        event();
        system_.scheduler.advance(10);
        EXPECT_THAT(messages(),
                    Contains(u"AX scan timed out (notificationcenterui unresponsive)"_qs));
        drawn_.onQuestion = nullptr;
        event();
        expectAllStoredAtLast();
    }
}

// The other process

TEST_F(AccessibilityPathTest, TheProcessMayEndBetweenAnyTwoQuestions) {
    launch();
    const int questions = questionsOfAnEvent();
    for (int ending = 1; ending <= questions; ++ending) {
        SCOPED_TRACE(ending);
        startAnew();
        drawn_.onQuestion = [&](const PlayedSystem::Question& question) -> std::optional<AXError> {
            if (question.number == ending)
                drawn_.endProcess(drawer);
            return std::nullopt;
        };
        event();
        drawn_.onQuestion = nullptr;
        restartDrawer(drawer);
        drawn_.setWindows(drawer, realWindows());
        event();
        expectAllStoredAtLast();
        EXPECT_EQ(drawn_.attachedObservers(), 1U);
    }
}

TEST_F(AccessibilityPathTest, TheProcessMayEndWhileItsEventIsTold) {
    launch();
    drawn_.setWindows(drawer, realWindows());
    system_.scheduler.advance(1);
    drawn_.send(root_, ax::valueChanged);
    drawn_.endProcess(drawer); // before the main thread comes to the event
    system_.scheduler.settle();
    EXPECT_THAT(stored(), IsEmpty());

    restartDrawer(drawerAfterIt);
    EXPECT_EQ(listener_->observedPid(), drawerAfterIt);
    EXPECT_EQ(drawn_.attachedObservers(), 1U);
    drawn_.setWindows(drawerAfterIt, {drawn_.addBanner(drawerAfterIt, u"Mail"_qs, {u"back"_qs})});
    event();
    EXPECT_THAT(stored(), ElementsAre(u"back"_qs));
}

TEST_F(AccessibilityPathTest, TheObserverMayBeTakenDownWhileItsEventsWait) {
    launch();
    drawn_.setWindows(drawer, realWindows());
    system_.scheduler.advance(1);
    drawn_.send(root_, ax::valueChanged);
    system_.workspace.post(WorkspaceEvent::willSleep);
    system_.scheduler.settle();
    EXPECT_EQ(drawn_.attachedObservers(), 0U);
    system_.workspace.post(WorkspaceEvent::didWake);
    system_.scheduler.advance(3);
    EXPECT_EQ(drawn_.attachedObservers(), 1U);
    EXPECT_EQ(stored(), realTitles_);
}

TEST_F(AccessibilityPathTest, ASystemThatObservesNothingIsAskedAgainAtTheNextChance) {
    drawn_.observing = kAXErrorAPIDisabled;
    launch();
    EXPECT_EQ(drawn_.attachedObservers(), 0U);
    drawn_.observing = kAXErrorSuccess;
    restartDrawer(drawerAfterIt);
    EXPECT_EQ(drawn_.attachedObservers(), 1U);
}

TEST_F(AccessibilityPathTest, WithoutThePermissionNobodyIsAskedAnything) {
    drawn_.isTrusted = false;
    drawn_.setWindows(drawer, realWindows());
    listener_->start();
    system_.scheduler.advance(60);
    EXPECT_EQ(drawn_.questions(), 0);
    EXPECT_EQ(drawn_.prompts, 0);
    EXPECT_THAT(stored(), IsEmpty());
}

} // namespace
} // namespace tessarine
