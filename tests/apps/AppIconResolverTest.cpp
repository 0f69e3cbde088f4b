#include "apps/AppIconResolver.h"

#include "support/Printers.h"
#include "support/SimulatedApplicationIcons.h"
#include "support/SimulatedPlatform.h"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::SimulatedApplicationIcons;
using testing::SimulatedPlatform;
using testing::SimulatedSymbols;
using testing::square;

class AppIconResolverTest : public ::testing::Test {
protected:
    AppIconResolverTest() {
        system.workspace.installed[u"com.example.foo"_qs] = u"/Foo.app"_qs;
        icons.files[u"/Foo.app"_qs] = square(64, Qt::red);
    }

    void resolve(const QString& bundleId, const QString& appName) {
        resolver->resolve(bundleId, appName,
                          [this](const QImage& icon) { answers.push_back(icon); });
    }

    SimulatedPlatform system{u"/home/anna"_qs};
    SimulatedApplicationIcons icons;
    SimulatedSymbols symbols;
    std::shared_ptr<AppIconResolver> resolver = AppIconResolver::create(
        system.scheduler, {system.workspace, system.fileSystem, icons, symbols});
    std::vector<QImage> answers;
};

TEST_F(AppIconResolverTest, AnswersAfterALookupElsewhere) {
    resolve(u"com.example.foo"_qs, u"Foo"_qs);
    EXPECT_TRUE(answers.empty());
    EXPECT_TRUE(icons.askedPaths.empty());
    EXPECT_EQ(system.scheduler.waitingGlobalTasks(), 1U);
    system.scheduler.settle();
    ASSERT_EQ(answers.size(), 1U);
    EXPECT_EQ(answers[0].pixelColor(54, 54), QColor(Qt::red));
    EXPECT_EQ(resolver->cache().value(u"bundle:com.example.foo"_qs), answers[0]);
}

TEST_F(AppIconResolverTest, AnswersAtOnceWhatItKnows) {
    resolve(u"com.example.foo"_qs, u"Foo"_qs);
    system.scheduler.settle();
    resolve(u"com.example.foo"_qs, u"Foo"_qs);
    ASSERT_EQ(answers.size(), 2U);
    EXPECT_EQ(answers[1], answers[0]);
    EXPECT_EQ(system.scheduler.waitingGlobalTasks(), 0U);
}

TEST_F(AppIconResolverTest, NeverAnswersTheSecondToAskForAKey) {
    bool secondAnswered = false;
    resolve(u"com.example.foo"_qs, u"Foo"_qs);
    resolver->resolve(u"com.example.foo"_qs, u"Foo"_qs,
                      [&secondAnswered](const QImage&) { secondAnswered = true; });
    EXPECT_EQ(system.scheduler.waitingGlobalTasks(), 1U);
    system.scheduler.settle();
    EXPECT_EQ(answers.size(), 1U);
    EXPECT_FALSE(secondAnswered);
}

TEST_F(AppIconResolverTest, AnswersTheThirdWhoAsksAfterwards) {
    resolve(u"com.example.foo"_qs, u"Foo"_qs);
    resolve(u"com.example.foo"_qs, u"Foo"_qs);
    system.scheduler.settle();
    resolve(u"com.example.foo"_qs, u"Foo"_qs);
    EXPECT_EQ(answers.size(), 2U);
}

TEST_F(AppIconResolverTest, KeepsOneIconForTwoNamesOfARealBundleId) {
    resolve(u"com.example.foo"_qs, u"Foo"_qs);
    system.scheduler.settle();
    resolve(u"com.example.foo"_qs, u"Foo Helper"_qs);
    EXPECT_EQ(answers.size(), 2U);
    EXPECT_EQ(resolver->cache().size(), 1);
}

TEST_F(AppIconResolverTest, KeepsTwoIconsForTwoNamesWithoutARealBundleId) {
    resolve(u"app_id_1"_qs, u"Foo"_qs);
    resolve(u"app_id_1"_qs, u"Bar"_qs);
    system.scheduler.settle();
    EXPECT_EQ(answers.size(), 2U);
    EXPECT_EQ(resolver->cache().keys().size(), 2);
    EXPECT_TRUE(resolver->cache().contains(u"name:Foo"_qs));
    EXPECT_TRUE(resolver->cache().contains(u"name:Bar"_qs));
}

TEST_F(AppIconResolverTest, KeepsTheGenericIconOfAFailedLookup) {
    resolve(u"com.example.new"_qs, u"New"_qs);
    system.scheduler.settle();
    system.workspace.installed[u"com.example.new"_qs] = u"/Foo.app"_qs;
    resolve(u"com.example.new"_qs, u"New"_qs);
    ASSERT_EQ(answers.size(), 2U);
    EXPECT_EQ(answers[1].pixelColor(54, 54), QColor(Qt::gray));
}

TEST_F(AppIconResolverTest, LooksOnceForAnIconThatDoesNotExist) {
    icons.generic = QImage();
    resolve(u"com.example.new"_qs, u"New"_qs);
    system.scheduler.settle();
    resolve(u"com.example.new"_qs, u"New"_qs);
    EXPECT_EQ(system.scheduler.waitingGlobalTasks(), 0U);
    ASSERT_EQ(answers.size(), 2U);
    EXPECT_TRUE(answers[0].isNull());
    EXPECT_TRUE(answers[1].isNull());
}

TEST_F(AppIconResolverTest, AnswersNobodyWhenItIsGone) {
    resolve(u"com.example.foo"_qs, u"Foo"_qs);
    resolver.reset();
    system.scheduler.settle();
    EXPECT_TRUE(answers.empty());
    EXPECT_EQ(icons.askedPaths.size(), 1U); // the lookup itself went on
}

TEST_F(AppIconResolverTest, PreparesEachApplicationOnceOnAWorker) {
    resolver->prepare({{u"com.example.foo"_qs, u"Foo"_qs},
                       {u"com.example.foo"_qs, u"Foo Helper"_qs},
                       {{}, u"Bar"_qs}});
    resolver->prepare({{u"com.example.foo"_qs, u"Foo"_qs}});
    EXPECT_TRUE(icons.askedPaths.empty());
    EXPECT_EQ(system.scheduler.waitingGlobalTasks(), 1U);
    system.scheduler.settle();
    EXPECT_EQ(icons.askedPaths.size(), 1U);
    EXPECT_EQ(resolver->cache().value(u"bundle:com.example.foo"_qs).pixelColor(54, 54),
              QColor(Qt::red));
    EXPECT_EQ(resolver->cache().value(u"name:Bar"_qs).pixelColor(54, 54), QColor(Qt::gray));
    EXPECT_EQ(resolver->cache().size(), 2);
}

TEST_F(AppIconResolverTest, AnswersAViewThatAsksForWhatIsBeingPrepared) {
    resolver->prepare({{u"com.example.foo"_qs, u"Foo"_qs}});
    resolve(u"com.example.foo"_qs, u"Foo"_qs);
    system.scheduler.settle();
    ASSERT_EQ(answers.size(), 1U);
    EXPECT_EQ(answers[0].pixelColor(54, 54), QColor(Qt::red));
}

TEST_F(AppIconResolverTest, PreparesNothingThatAViewHasAskedFor) {
    resolve(u"com.example.foo"_qs, u"Foo"_qs);
    resolver->prepare({{u"com.example.foo"_qs, u"Foo"_qs}});
    system.scheduler.settle();
    resolver->prepare({{u"com.example.foo"_qs, u"Foo"_qs}});
    system.scheduler.settle();
    EXPECT_EQ(icons.askedPaths.size(), 1U);
}

TEST_F(AppIconResolverTest, ResolvesAtOnceWhatItDoesNotKnow) {
    resolver->resolveNow({{u"com.example.foo"_qs, u"Foo"_qs}, {u"com.example.foo"_qs, u"Foo"_qs}});
    resolver->resolveNow({{u"com.example.foo"_qs, u"Foo"_qs}});
    EXPECT_EQ(icons.askedPaths.size(), 1U);
    EXPECT_EQ(system.scheduler.waitingGlobalTasks(), 0U);
    EXPECT_EQ(resolver->cache().value(u"bundle:com.example.foo"_qs).pixelColor(54, 54),
              QColor(Qt::red));
}

TEST_F(AppIconResolverTest, LooksUpWithoutKeepingWhenAskedSo) {
    EXPECT_EQ(resolver->resolveIcon(u"com.example.foo"_qs, u"Foo"_qs).pixelColor(54, 54),
              QColor(Qt::red));
    EXPECT_TRUE(resolver->systemSettingsIcon(u"Login Items"_qs, {}));
    EXPECT_TRUE(resolver->cache().isEmpty());
}

} // namespace
} // namespace tessarine
