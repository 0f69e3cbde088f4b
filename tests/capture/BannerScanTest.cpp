#include "capture/BannerScan.h"

#include "support/Printers.h"
#include "support/SimulatedAccessibility.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessarine {
namespace {

using testing::ElementPtr;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::makeElement;
using testing::makeGroup;
using testing::makeText;
using testing::ManualScheduler;
using testing::SimulatedAccessibility;
using namespace Qt::StringLiterals;

constexpr qint32 pid = 501;

// Accessibility that loses an element just after it was named.
class LosingAccessibility : public SimulatedAccessibility {
public:
    using SimulatedAccessibility::SimulatedAccessibility;

    std::optional<qint32> pid(const AXElementRef& element) override {
        return element == lost ? std::nullopt : SimulatedAccessibility::pid(element);
    }

    AXElementRef lost;
};

class BannerScanTest : public ::testing::Test {
protected:
    std::vector<QString> scan(const std::function<bool()>& isCancelled = {}) {
        std::vector<QString> titles;
        runBannerScan(
            accessibility_, scheduler_, pid,
            [&](const CapturedNotification& record) { titles.push_back(record.title); },
            isCancelled);
        return titles;
    }

    void show(const std::vector<AXElementRef>& windows) {
        accessibility_.application(pid)->attributes[ax::windows] = windows;
    }

    static ElementPtr banner(const QString& title) {
        return makeGroup(pid, u"Mail"_qs, {makeText(pid, title)});
    }

    static ElementPtr holding(const QString& role, const std::vector<AXElementRef>& children) {
        ElementPtr element = makeElement(pid, role);
        element->attributes[ax::children] = children;
        return element;
    }

    static ElementPtr window(const std::vector<AXElementRef>& children) {
        return holding(u"AXWindow"_qs, children);
    }

    // A window, which is depth 0, with the element this far below it.
    static ElementPtr windowWith(ElementPtr element, int depth) {
        for (int level = depth; level > 0; --level)
            element = holding(u"AXScrollArea"_qs, {element});
        return element;
    }

    // Every question that is put to the element and to what lies below it.
    void watch(const ElementPtr& element) {
        element->onRead = [this](const QString& attribute) { questions_.push_back(attribute); };
        const auto children = element->attributes.find(ax::children);
        if (children == element->attributes.end())
            return;
        for (const AXElementRef& child : std::get<std::vector<AXElementRef>>(children->second))
            watch(std::const_pointer_cast<testing::SimulatedElement>(
                std::static_pointer_cast<const testing::SimulatedElement>(child)));
    }

    ManualScheduler scheduler_;
    LosingAccessibility accessibility_{scheduler_};
    std::vector<QString> questions_;
};

// The root

TEST_F(BannerScanTest, GivesTheRootAloneTwoSecondsToAnswer) {
    show({window({banner(u"a"_qs), banner(u"b"_qs)})});
    scan();
    EXPECT_THAT(accessibility_.timeouts,
                ElementsAre(SimulatedAccessibility::Timeout{accessibility_.application(pid), 2.0}));
}

TEST_F(BannerScanTest, OfAProcessWithoutWindowsFindsNothing) {
    show({});
    EXPECT_THAT(scan(), IsEmpty());
}

TEST_F(BannerScanTest, EndsWhenTheWindowsCannotBeRead) {
    accessibility_.application(pid)->attributes.erase(ax::windows);
    EXPECT_THAT(scan(), IsEmpty());
}

TEST_F(BannerScanTest, EndsWhenTheWindowsAreNoList) {
    accessibility_.application(pid)->attributes[ax::windows] = u"windows"_qs;
    EXPECT_THAT(scan(), IsEmpty());
}

TEST_F(BannerScanTest, EndsWhenTheProcessIsGone) {
    show({window({banner(u"a"_qs)})});
    accessibility_.application(pid)->gone = true;
    EXPECT_THAT(scan(), IsEmpty());
}

TEST_F(BannerScanTest, LooksAtTheGivenProcessOnly) {
    accessibility_.addBanner(502, u"Mail"_qs, {u"other"_qs});
    show({window({banner(u"own"_qs)})});
    EXPECT_THAT(scan(), ElementsAre(u"own"_qs));
}

// The walk

TEST_F(BannerScanTest, FindsAWindowThatIsABanner) {
    show({banner(u"a"_qs)});
    EXPECT_THAT(scan(), ElementsAre(u"a"_qs));
}

TEST_F(BannerScanTest, FindsABannerAtDepthEleven) {
    show({windowWith(banner(u"deep"_qs), 11)});
    EXPECT_THAT(scan(), ElementsAre(u"deep"_qs));
}

TEST_F(BannerScanTest, FindsNoBannerAtDepthTwelve) {
    show({windowWith(banner(u"too deep"_qs), 12), windowWith(banner(u"deep"_qs), 11)});
    EXPECT_THAT(scan(), ElementsAre(u"deep"_qs));
}

TEST_F(BannerScanTest, AsksNothingOfAnElementAtDepthTwelve) {
    const ElementPtr deepest = holding(u"AXScrollArea"_qs, {});
    watch(deepest);
    show({windowWith(deepest, 12)});
    scan();
    EXPECT_THAT(questions_, IsEmpty());
}

TEST_F(BannerScanTest, GoesDepthFirstInTheOrderOfWindowsAndChildren) {
    show({window({banner(u"1"_qs), window({banner(u"2"_qs), banner(u"3"_qs)}), banner(u"4"_qs)}),
          window({banner(u"5"_qs)}), banner(u"6"_qs)});
    EXPECT_THAT(scan(), ElementsAre(u"1"_qs, u"2"_qs, u"3"_qs, u"4"_qs, u"5"_qs, u"6"_qs));
}

TEST_F(BannerScanTest, TakesAGroupWithoutATextOfItsOwnForAContainer) {
    show({makeGroup(pid, u"Notification Center"_qs,
                    {makeElement(pid, u"AXButton"_qs), banner(u"inside"_qs)})});
    EXPECT_THAT(scan(), ElementsAre(u"inside"_qs));
}

TEST_F(BannerScanTest, TakesAGroupWithAnEmptyDescriptionForAContainer) {
    show({makeGroup(pid, QString(), {makeText(pid, u"no title"_qs), banner(u"inside"_qs)})});
    EXPECT_THAT(scan(), ElementsAre(u"inside"_qs));
}

TEST_F(BannerScanTest, TakesAGroupWithoutADescriptionForAContainer) {
    show({holding(ax::group, {makeText(pid, u"no title"_qs), banner(u"inside"_qs)})});
    EXPECT_THAT(scan(), ElementsAre(u"inside"_qs));
}

TEST_F(BannerScanTest, TakesADescriptionOfAnotherTypeForNone) {
    const ElementPtr group =
        makeGroup(pid, QString(), {makeText(pid, u"no title"_qs), banner(u"inside"_qs)});
    group->attributes[ax::description] = AXValue();
    show({group});
    EXPECT_THAT(scan(), ElementsAre(u"inside"_qs));
}

TEST_F(BannerScanTest, TakesOnlyGroupsForBanners) {
    const ElementPtr list = banner(u"no banner"_qs);
    list->attributes[ax::role] = u"AXList"_qs;
    show({list, banner(u"a"_qs)});
    EXPECT_THAT(scan(), ElementsAre(u"a"_qs));
}

TEST_F(BannerScanTest, FindsTheTextBehindChildrenOfOtherRoles) {
    show({makeGroup(pid, u"Mail"_qs,
                    {makeElement(pid, u"AXImage"_qs), makeElement(pid, u"AXButton"_qs),
                     makeText(pid, u"a"_qs)})});
    EXPECT_THAT(scan(), ElementsAre(u"a"_qs));
}

TEST_F(BannerScanTest, DoesNotDescendBelowABanner) {
    const ElementPtr inner = banner(u"inner"_qs);
    show({makeGroup(pid, u"Mail"_qs, {makeText(pid, u"outer"_qs), inner})});
    EXPECT_THAT(scan(), ElementsAre(u"outer"_qs));
}

TEST_F(BannerScanTest, ReadsNothingBelowTheChildrenOfABanner) {
    const ElementPtr text = makeText(pid, u"below"_qs);
    watch(text);
    show({makeGroup(pid, u"Mail"_qs, {makeText(pid, u"a"_qs), holding(ax::group, {text})})});
    scan();
    EXPECT_THAT(questions_, IsEmpty());
}

TEST_F(BannerScanTest, AsksTheChildrenForTheirRolesUpToTheFirstText) {
    const ElementPtr first = makeText(pid, u"a"_qs);
    const ElementPtr second = makeText(pid, u"b"_qs);
    watch(first);
    watch(second);
    const ElementPtr group = makeGroup(pid, u"Mail"_qs, {first, second});
    EXPECT_THAT(collectBanners(accessibility_, group, 0), ElementsAre(AXElementRef(group)));
    EXPECT_THAT(questions_, ElementsAre(ax::role)); // the first one's
}

TEST_F(BannerScanTest, GoesOnBehindAnElementThatIsGone) {
    const ElementPtr gone = banner(u"gone"_qs);
    gone->gone = true;
    show({window({gone, banner(u"a"_qs)})});
    EXPECT_THAT(scan(), ElementsAre(u"a"_qs));
}

TEST_F(BannerScanTest, AsksNothingOfAnElementThatBelongsToNoProcess) {
    const ElementPtr lost = banner(u"lost"_qs);
    watch(lost);
    accessibility_.lost = lost;
    show({window({lost, banner(u"a"_qs)})});
    EXPECT_THAT(scan(), ElementsAre(u"a"_qs));
    EXPECT_THAT(questions_, IsEmpty());
}

TEST_F(BannerScanTest, GoesOnBehindAWindowThatIsGone) {
    const ElementPtr gone = window({banner(u"gone"_qs)});
    gone->gone = true;
    show({gone, window({banner(u"a"_qs)})});
    EXPECT_THAT(scan(), ElementsAre(u"a"_qs));
}

TEST_F(BannerScanTest, SkipsABranchWhoseRoleCannotBeRead) {
    const ElementPtr unreadable = window({banner(u"below"_qs)});
    unreadable->attributes.erase(ax::role);
    show({window({unreadable, banner(u"a"_qs)})});
    EXPECT_THAT(scan(), ElementsAre(u"a"_qs));
}

TEST_F(BannerScanTest, WalksOnThroughARoleOfAnotherType) {
    const ElementPtr odd = window({banner(u"below"_qs)});
    odd->attributes[ax::role] = AXValue();
    show({odd});
    EXPECT_THAT(scan(), ElementsAre(u"below"_qs));
}

TEST_F(BannerScanTest, TakesAGroupWhoseRoleIsOfAnotherTypeForNoBanner) {
    const ElementPtr odd = banner(u"a"_qs);
    odd->attributes[ax::role] = AXValue();
    show({odd});
    EXPECT_THAT(scan(), IsEmpty());
}

TEST_F(BannerScanTest, EndsABranchWhoseChildrenCannotBeRead) {
    show({makeElement(pid, u"AXWindow"_qs), window({banner(u"a"_qs)})});
    EXPECT_THAT(scan(), ElementsAre(u"a"_qs));
}

TEST_F(BannerScanTest, EndsABranchWhoseChildrenAreNoList) {
    const ElementPtr odd = makeElement(pid, u"AXWindow"_qs);
    odd->attributes[ax::children] = u"children"_qs;
    show({odd, window({banner(u"a"_qs)})});
    EXPECT_THAT(scan(), ElementsAre(u"a"_qs));
}

TEST_F(BannerScanTest, TakesADescribedGroupWhoseChildrenCannotBeReadForNoBanner) {
    const ElementPtr group = banner(u"unreadable"_qs);
    group->attributes.erase(ax::children);
    show({group, banner(u"a"_qs)});
    EXPECT_THAT(scan(), ElementsAre(u"a"_qs));
}

TEST_F(BannerScanTest, FindsTheTextBehindAChildWhoseRoleCannotBeRead) {
    const ElementPtr unreadable = makeText(pid, u"unreadable"_qs);
    unreadable->attributes.erase(ax::role);
    show({makeGroup(pid, u"Mail"_qs, {unreadable, makeText(pid, u"a"_qs)})});
    EXPECT_THAT(scan(), ElementsAre(u"a"_qs));
}

TEST_F(BannerScanTest, OfAWindowThatVanishesHalfWayKeepsWhatItFound) {
    const ElementPtr second = window({banner(u"b"_qs)});
    second->onRead = [&](const QString&) { second->gone = true; };
    show({window({banner(u"a"_qs)}), second, window({banner(u"c"_qs)})});
    EXPECT_THAT(scan(), ElementsAre(u"a"_qs, u"c"_qs));
}

TEST_F(BannerScanTest, ReadsElementsThatBelongToAnotherProcess) {
    const ElementPtr foreign = banner(u"foreign"_qs);
    foreign->pid = 999;
    show({window({foreign})});
    EXPECT_THAT(scan(), ElementsAre(u"foreign"_qs));
}

// The reading of a banner

TEST_F(BannerScanTest, ReadsTheDescriptionAndTheTextsInTheirOrder) {
    const BannerTexts read = readBanner(
        accessibility_, makeGroup(pid, u"Mail, Hello"_qs,
                                  {makeElement(pid, u"AXImage"_qs), makeText(pid, u"a"_qs),
                                   makeElement(pid, u"AXButton"_qs), makeText(pid, u"b"_qs)}));
    EXPECT_EQ(read.description, u"Mail, Hello"_qs);
    EXPECT_EQ(read.texts, (QStringList{u"a"_qs, u"b"_qs}));
}

TEST_F(BannerScanTest, SkipsTheValuesOfOtherRoles) {
    const ElementPtr button = makeText(pid, u"Reply"_qs);
    button->attributes[ax::role] = u"AXButton"_qs;
    EXPECT_EQ(
        readBanner(accessibility_, makeGroup(pid, u"Mail"_qs, {button, makeText(pid, u"a"_qs)}))
            .texts,
        QStringList{u"a"_qs});
}

TEST_F(BannerScanTest, SkipsEmptyMissingAndUnreadableValues) {
    const ElementPtr missing = makeElement(pid, ax::staticText);
    const ElementPtr number = makeText(pid, u"5"_qs);
    number->attributes[ax::value] = AXValue();
    const ElementPtr gone = makeText(pid, u"gone"_qs);
    gone->gone = true;
    EXPECT_EQ(readBanner(accessibility_, makeGroup(pid, u"Mail"_qs,
                                                   {makeText(pid, QString()), missing, number, gone,
                                                    makeText(pid, u"a"_qs)}))
                  .texts,
              QStringList{u"a"_qs});
}

TEST_F(BannerScanTest, OfABannerThatIsGoneReadsNothing) {
    const ElementPtr group = banner(u"a"_qs);
    group->gone = true;
    const BannerTexts read = readBanner(accessibility_, group);
    EXPECT_EQ(read.description, QString());
    EXPECT_THAT(read.texts, IsEmpty());
}

TEST_F(BannerScanTest, GivesNoRecordForABannerWhoseTextsAreAllEmpty) {
    show({banner(QString()), banner(u"a"_qs)});
    EXPECT_THAT(scan(), ElementsAre(u"a"_qs));
}

TEST_F(BannerScanTest, GivesNoRecordForABannerThatVanishesBeforeItIsRead) {
    const ElementPtr vanishing = banner(u"vanishing"_qs);
    const ElementPtr last = window({});
    last->onRead = [&](const QString&) { vanishing->gone = true; };
    show({vanishing, banner(u"a"_qs), last});
    EXPECT_THAT(scan(), ElementsAre(u"a"_qs));
}

TEST_F(BannerScanTest, WhenTheDescriptionVanishesGivesARecordWithoutAName) {
    const ElementPtr group = banner(u"a"_qs);
    const ElementPtr last = window({});
    last->onRead = [&](const QString&) { group->attributes.erase(ax::description); };
    show({group, last});
    std::vector<CapturedNotification> records;
    runBannerScan(accessibility_, scheduler_, pid,
                  [&](const CapturedNotification& record) { records.push_back(record); });
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records.front().title, u"a"_qs);
    EXPECT_EQ(records.front().appName, QString());
    EXPECT_EQ(records.front().appBundleId, QString());
}

TEST_F(BannerScanTest, GivesEachRecordTheMomentOfItsOwnReading) {
    const ElementPtr first = banner(u"a"_qs);
    show({first, banner(u"b"_qs)});
    std::vector<double> moments;
    runBannerScan(accessibility_, scheduler_, pid, [&](const CapturedNotification& record) {
        moments.push_back(record.timestamp);
        scheduler_.setWallClock(ManualScheduler::startOfTime + 7);
    });
    EXPECT_THAT(moments,
                ElementsAre(ManualScheduler::startOfTime, ManualScheduler::startOfTime + 7));
}

TEST_F(BannerScanTest, HandsOverEachBannerBeforeItReadsTheNext) {
    const ElementPtr first = banner(u"a"_qs);
    const ElementPtr second = banner(u"b"_qs);
    show({first, second});
    std::vector<std::size_t> readBefore;
    runBannerScan(accessibility_, scheduler_, pid, [&](const CapturedNotification&) {
        readBefore.push_back(questions_.size());
        watch(second);
    });
    ASSERT_EQ(readBefore.size(), 2U);
    EXPECT_EQ(readBefore.front(), 0U);
    EXPECT_GT(readBefore.back(), 0U);
}

// Slow answers

TEST_F(BannerScanTest, GoesOnAfterASlowAnswer) {
    const ElementPtr slow = window({banner(u"slow"_qs)});
    slow->delays[ax::role] = 60.0;
    show({slow, window({banner(u"a"_qs)})});
    EXPECT_THAT(scan(), ElementsAre(u"slow"_qs, u"a"_qs));
}

// Cancelling

TEST_F(BannerScanTest, CancelledBeforeTheFirstWindowLooksAtNone) {
    const ElementPtr shown = window({banner(u"a"_qs)});
    watch(shown);
    show({shown});
    EXPECT_THAT(scan([] { return true; }), IsEmpty());
    EXPECT_THAT(questions_, IsEmpty());
}

TEST_F(BannerScanTest, CancelledBetweenWindowsLooksAtNoFurtherOneAndParsesNothing) {
    bool cancelled = false;
    const ElementPtr first = window({banner(u"a"_qs)});
    first->onRead = [&](const QString&) { cancelled = true; };
    const ElementPtr second = window({banner(u"b"_qs)});
    watch(second);
    show({first, second});
    EXPECT_THAT(scan([&] { return cancelled; }), IsEmpty());
    EXPECT_THAT(questions_, IsEmpty());
}

TEST_F(BannerScanTest, CancelledInTheLastWindowParsesNothing) {
    bool cancelled = false;
    const ElementPtr last = window({banner(u"b"_qs)});
    last->onRead = [&](const QString&) { cancelled = true; };
    show({banner(u"a"_qs), last});
    EXPECT_THAT(scan([&] { return cancelled; }), IsEmpty());
}

TEST_F(BannerScanTest, CancelledBetweenBannersKeepsWhatIsHandedOver) {
    bool cancelled = false;
    show({banner(u"a"_qs), banner(u"b"_qs), banner(u"c"_qs)});
    std::vector<QString> titles;
    runBannerScan(
        accessibility_, scheduler_, pid,
        [&](const CapturedNotification& record) {
            titles.push_back(record.title);
            if (record.title == u"b")
                cancelled = true;
        },
        [&] { return cancelled; });
    EXPECT_THAT(titles, ElementsAre(u"a"_qs, u"b"_qs));
}

TEST_F(BannerScanTest, CancelledWithinABannerStillHandsItOver) {
    bool cancelled = false;
    const ElementPtr first = banner(u"a"_qs);
    const ElementPtr last = window({});
    last->onRead = [&](const QString&) {
        first->onRead = [&](const QString&) { cancelled = true; };
    };
    show({first, banner(u"b"_qs), last});
    EXPECT_THAT(scan([&] { return cancelled; }), ElementsAre(u"a"_qs));
}

} // namespace
} // namespace tessarine
