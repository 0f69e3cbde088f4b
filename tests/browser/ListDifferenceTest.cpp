#include "browser/list/ListDifference.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessarine {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

// A list of rows with these keys in the hoard.
ListEntries entries(std::initializer_list<qint64> keys) {
    NotificationList list;
    for (const qint64 key : keys) {
        list.emplace_back();
        list.back().dbId = key;
    }
    return ungroupedEntries(list);
}

TEST(KeptRows, AreAllWhenNothingChanged) {
    EXPECT_THAT(keptRows(entries({1, 2, 3}), entries({1, 2, 3})),
                ElementsAre(Pair(0, 0), Pair(1, 1), Pair(2, 2)));
}

TEST(KeptRows, AreNoneBetweenStrangers) {
    EXPECT_THAT(keptRows(entries({1, 2}), entries({3, 4})), IsEmpty());
    EXPECT_THAT(keptRows({}, entries({1})), IsEmpty());
    EXPECT_THAT(keptRows(entries({1}), {}), IsEmpty());
}

TEST(KeptRows, MoveDownWhenRowsComeInFront) {
    EXPECT_THAT(keptRows(entries({1, 2}), entries({8, 9, 1, 2})),
                ElementsAre(Pair(0, 2), Pair(1, 3)));
}

TEST(KeptRows, LeaveOutWhatWentFromTheMiddle) {
    EXPECT_THAT(keptRows(entries({1, 2, 3}), entries({1, 3})), ElementsAre(Pair(0, 0), Pair(2, 1)));
}

TEST(KeptRows, AreAsManyAsTheOrderAllowsWhenARowMoves) {
    EXPECT_THAT(keptRows(entries({1, 2, 3, 4}), entries({4, 1, 2, 3})),
                ElementsAre(Pair(0, 1), Pair(1, 2), Pair(2, 3)));
}

TEST(KeptRows, MayHaveChangedInContent) {
    ListEntries after = entries({1, 2, 3});
    after[1].notification.pinned = true;
    EXPECT_THAT(keptRows(entries({1, 2, 3}), after),
                ElementsAre(Pair(0, 0), Pair(1, 1), Pair(2, 2)));
}

TEST(KeptRows, OfOneKeyPairUpInTheirOrder) {
    ListEntries before = entries({0, 0, 0});
    ListEntries after = entries({0, 0});
    before[0].notification.title = QStringLiteral("a");
    after[0].notification.title = QStringLiteral("b");
    after[1].notification.title = QStringLiteral("c");
    EXPECT_THAT(keptRows(before, after), ElementsAre(Pair(0, 0), Pair(1, 1)));
}

// Two groups of one row each, named by their applications.
ListEntries grouped(const QSet<QString>& collapsed) {
    NotificationList list(2);
    list[0].dbId = 1;
    list[0].appName = QStringLiteral("A");
    list[1].dbId = 2;
    list[1].appName = QStringLiteral("B");
    return groupedEntries(GroupMode::app, groupedByApp(list), collapsed);
}

TEST(KeptRows, AreTheHeadersOfGroupsThatOpenAndClose) {
    const ListEntries open = grouped({});                      // A 1 B 2
    const ListEntries closed = grouped({QStringLiteral("A")}); // A B 2
    EXPECT_THAT(keptRows(open, closed), ElementsAre(Pair(0, 0), Pair(2, 1), Pair(3, 2)));
    EXPECT_THAT(keptRows(closed, open), ElementsAre(Pair(0, 0), Pair(1, 2), Pair(2, 3)));
}

TEST(KeptRows, AreTheRowsWhenGroupingBegins) {
    EXPECT_THAT(keptRows(entries({1, 2}), grouped({})), ElementsAre(Pair(0, 1), Pair(1, 3)));
}

} // namespace
} // namespace tessarine
