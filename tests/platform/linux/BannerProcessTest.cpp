// What a scan finds in the windows of the banner process.

#include "platform/linux/BannerProcessFixture.h"

namespace tessarine {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::otherPid;
using testing::pid;
using ::testing::SizeIs;

using BannerProcessTest = testing::BannerProcessFixture;

TEST_F(BannerProcessTest, DrawsABannerAsAWindowWithOneGroupOfTexts) {
    daemonTakesTheName();
    process->announce({":1.1", 1}, {u"Mail"_qs, u"Ann"_qs, u"Hello"_qs}, 0);
    const AXElementRef application = accessibility.applicationElement(pid);
    const auto windows = testing::elements(accessibility, application, ax::windows);
    ASSERT_THAT(windows, SizeIs(1));
    EXPECT_EQ(testing::text(accessibility, windows[0], ax::role), u"AXWindow"_qs);
    EXPECT_EQ(accessibility.pid(windows[0]), pid);
    const auto groups = testing::elements(accessibility, windows[0], ax::children);
    ASSERT_THAT(groups, SizeIs(1));
    EXPECT_EQ(testing::text(accessibility, groups[0], ax::role), ax::group);
    EXPECT_EQ(accessibility.pid(groups[0]), pid);
    EXPECT_EQ(testing::text(accessibility, groups[0], ax::description), u"Mail, Ann, Hello"_qs);
    const auto texts = testing::elements(accessibility, groups[0], ax::children);
    ASSERT_THAT(texts, SizeIs(3));
    EXPECT_EQ(testing::text(accessibility, texts[0], ax::role), ax::staticText);
    EXPECT_EQ(testing::text(accessibility, texts[0], ax::value), u"Ann"_qs);
    EXPECT_EQ(testing::text(accessibility, texts[1], ax::value), u"Just now"_qs);
    EXPECT_EQ(testing::text(accessibility, texts[2], ax::value), u"Hello"_qs);
}

TEST_F(BannerProcessTest, AnswersNothingThatAnElementDoesNotHave) {
    daemonTakesTheName();
    announce(u"one"_qs);
    const AXElementRef application = accessibility.applicationElement(pid);
    const auto window = testing::elements(accessibility, application, ax::windows).front();
    const auto group = testing::elements(accessibility, window, ax::children).front();
    const auto value = testing::elements(accessibility, group, ax::children).front();
    EXPECT_EQ(accessibility.copyAttributeValue(application, ax::value), std::nullopt);
    EXPECT_EQ(accessibility.copyAttributeValue(window, ax::description), std::nullopt);
    EXPECT_EQ(accessibility.copyAttributeValue(group, ax::value), std::nullopt);
    EXPECT_EQ(accessibility.copyAttributeValue(value, ax::children), std::nullopt);
}

TEST_F(BannerProcessTest, TellsTheAgeAtTheMomentOfReading) {
    daemonTakesTheName();
    announce(u"one"_qs);
    const auto group = testing::shownGroups(accessibility, pid).front();
    scheduler.advance(12);
    EXPECT_EQ(testing::readGroup(accessibility, group).texts,
              QStringList({u"one"_qs, u"12s ago"_qs}));
}

TEST_F(BannerProcessTest, ShowsABannerUntilAWholeScanHasReadIt) {
    daemonTakesTheName();
    announce(u"one"_qs);
    EXPECT_THAT(testing::shownGroups(accessibility, pid), SizeIs(1)) << "found, but not read";
    EXPECT_THAT(scannedSummaries(), ElementsAre(u"one"_qs));
    EXPECT_THAT(scannedSummaries(), IsEmpty());
}

TEST_F(BannerProcessTest, KeepsABannerWhoseTextsWereNotAllRead) {
    daemonTakesTheName();
    announce(u"one"_qs);
    const auto group = testing::shownGroups(accessibility, pid).front();
    testing::text(accessibility, group, ax::description);
    const auto texts = testing::elements(accessibility, group, ax::children);
    testing::text(accessibility, texts[0], ax::value);
    testing::text(accessibility, texts[0], ax::value);
    EXPECT_THAT(scannedSummaries(), ElementsAre(u"one"_qs));
}

TEST_F(BannerProcessTest, KeepsABannerWhoseDescriptionWasNotRead) {
    daemonTakesTheName();
    announce(u"one"_qs);
    const auto group = testing::shownGroups(accessibility, pid).front();
    for (const auto& child : testing::elements(accessibility, group, ax::children))
        testing::text(accessibility, child, ax::value);
    EXPECT_THAT(scannedSummaries(), ElementsAre(u"one"_qs));
}

TEST_F(BannerProcessTest, DoesNotAddUpTheHalvesOfTwoScans) {
    daemonTakesTheName();
    announce(u"one"_qs);
    const auto first = testing::shownGroups(accessibility, pid).front();
    testing::text(accessibility, first, ax::description);
    testing::text(accessibility, testing::elements(accessibility, first, ax::children)[0],
                  ax::value);
    const auto second = testing::shownGroups(accessibility, pid).front();
    testing::text(accessibility, testing::elements(accessibility, second, ax::children)[1],
                  ax::value);
    EXPECT_THAT(scannedSummaries(), ElementsAre(u"one"_qs));
}

TEST_F(BannerProcessTest, LetsOverlappingScansBothReadToTheEnd) {
    daemonTakesTheName();
    announce(u"one"_qs);
    const auto slow = testing::shownGroups(accessibility, pid);
    EXPECT_THAT(scannedSummaries(), ElementsAre(u"one"_qs));
    EXPECT_EQ(testing::readGroup(accessibility, slow[0]).description, u"Mail, one"_qs);
}

TEST_F(BannerProcessTest, HasNoWindowsUnderAnotherPid) {
    daemonTakesTheName();
    announce(u"one"_qs);
    EXPECT_EQ(
        accessibility.copyAttributeValue(accessibility.applicationElement(otherPid), ax::windows),
        std::nullopt);
    EXPECT_EQ(accessibility.pid(accessibility.applicationElement(otherPid)), otherPid);
}

TEST_F(BannerProcessTest, AnswersNothingOnceItIsGone) {
    daemonTakesTheName();
    const AXElementRef application = accessibility.applicationElement(pid);
    daemonGoes();
    EXPECT_EQ(accessibility.copyAttributeValue(application, ax::windows), std::nullopt);
}

TEST_F(BannerProcessTest, AnswersNothingForElementsOfOthers) {
    EXPECT_EQ(accessibility.copyAttributeValue(std::make_shared<AXElement>(), ax::role),
              std::nullopt);
    EXPECT_EQ(accessibility.pid(nullptr), std::nullopt);
}

} // namespace
} // namespace tessarine
