#include "browser/list/ListDerivation.h"

#include "support/Printers.h"
#include "support/TimeZoneScope.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

CapturedNotification row(const QString& app, double timestamp, const QString& title = {},
                         const QString& body = {}) {
    CapturedNotification made;
    made.appName = app;
    made.timestamp = timestamp;
    made.title = title;
    made.body = body;
    return made;
}

QStringList titlesOf(const NotificationList& rows) {
    QStringList titles;
    for (const CapturedNotification& row : rows)
        titles << row.title;
    return titles;
}

QStringList keysOf(const std::vector<NotificationGroup>& groups) {
    QStringList keys;
    for (const NotificationGroup& group : groups)
        keys << group.key;
    return keys;
}

// Modes

TEST(Modes, HaveTheirRawValuesInOrder) {
    QStringList groups;
    for (const GroupMode mode : allGroupModes)
        groups << rawValue(mode);
    EXPECT_EQ(groups, QStringList({u"none"_qs, u"app"_qs, u"date"_qs}));
    QStringList sorts;
    for (const SortMode mode : allSortModes)
        sorts << rawValue(mode);
    EXPECT_EQ(sorts, QStringList({u"newest"_qs, u"oldest"_qs, u"app"_qs}));
}

// Filter

TEST(AppFilter, KeepsExactlyTheNamedApplication) {
    const NotificationList rows{row(u"Mail"_qs, 3, u"a"_qs), row(u"mail"_qs, 2, u"b"_qs),
                                row(u"Mail "_qs, 1, u"c"_qs)};
    EXPECT_EQ(titlesOf(keepingApp(rows, u"Mail"_qs)), QStringList(u"a"_qs));
    EXPECT_EQ(keepingApp(rows, u"All"_qs), rows);
    EXPECT_TRUE(keepingApp(rows, u"Gone"_qs).empty());
}

TEST(AppFilter, ComparesTheShownNameAndNotTheBundleId) {
    CapturedNotification odd = row(u"Mail"_qs, 1);
    odd.appBundleId = u"com.example.other"_qs;
    EXPECT_EQ(keepingApp({odd}, u"Mail"_qs).size(), 1U);
    EXPECT_TRUE(keepingApp({odd}, u"com.example.other"_qs).empty());
}

struct Search {
    QString text;
    QString title;
    QString body;
    QString app;
    bool found;
};

class SearchTest : public ::testing::TestWithParam<Search> {};

TEST_P(SearchTest, FindsOrNot) {
    const Search& search = GetParam();
    const NotificationList rows{row(search.app, 1, search.title, search.body)};
    EXPECT_EQ(keepingMatches(rows, search.text).size(), search.found ? 1U : 0U);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, SearchTest,
    ::testing::Values(
        Search{u""_qs, u""_qs, u""_qs, u""_qs, true},
        Search{u"INVOICE"_qs, u"Your invoice"_qs, u""_qs, u"Mail"_qs, true},
        Search{u"invoice"_qs, u""_qs, u"YOUR INVOICE"_qs, u"Mail"_qs, true},
        Search{u"mai"_qs, u""_qs, u""_qs, u"Mail"_qs, true},
        Search{u"il y"_qs, u"Your"_qs, u""_qs, u"Mail"_qs, false}, // no text across fields
        Search{u"café"_qs, u"cafe"_qs, u""_qs, u""_qs, false},
        Search{u"cafe"_qs, u"café"_qs, u""_qs, u""_qs, false},
        Search{u"CAFÉ"_qs, u"le café"_qs, u""_qs, u""_qs, true},
        Search{u"cafe\u0301"_qs, u"caf\u00e9"_qs, u""_qs, u""_qs, false}, // nothing is normalised
        Search{u" "_qs, u"word"_qs, u"word"_qs, u"App"_qs, false},
        Search{u" "_qs, u"two words"_qs, u""_qs, u"App"_qs, true},
        Search{u"word "_qs, u"word"_qs, u""_qs, u""_qs, false},  // not trimmed
        Search{u"σοφος"_qs, u"ΣΟΦΟΣ"_qs, u""_qs, u""_qs, false}, // no final sigma by lowering
        Search{u"σοφοσ"_qs, u"ΣΟΦΟΣ"_qs, u""_qs, u""_qs, true},
        Search{u"s"_qs, u"ſ"_qs, u""_qs, u""_qs, false},
        Search{u"strasse"_qs, u"STRAẞE"_qs, u""_qs, u""_qs, false},
        Search{u"straße"_qs, u"STRAẞE"_qs, u""_qs, u""_qs, true},
        Search{u"i"_qs, u"I"_qs, u""_qs, u""_qs, true}, // whatever the user's language
        Search{u"ı"_qs, u"I"_qs, u""_qs, u""_qs, false},
        Search{u"𐐨"_qs, u"𐐀"_qs, u""_qs, u""_qs, true}, // beyond the basic plane
        Search{u"😀"_qs, u"a 😀 b"_qs, u""_qs, u""_qs, true},
        Search{u"c*"_qs, u"cat"_qs, u""_qs, u""_qs, false},
        Search{u"a\nb"_qs, u""_qs, u"A\nB"_qs, u""_qs, true}));

// Sort

TEST(Sort, NewestAndOldestGoByTimeAlone) {
    NotificationList rows{row(u"A"_qs, 2, u"two"_qs), row(u"B"_qs, 3, u"three"_qs),
                          row(u"C"_qs, 1, u"one"_qs)};
    EXPECT_EQ(titlesOf(sortedBy(SortMode::newest, rows)),
              QStringList({u"three"_qs, u"two"_qs, u"one"_qs}));
    EXPECT_EQ(titlesOf(sortedBy(SortMode::oldest, rows)),
              QStringList({u"one"_qs, u"two"_qs, u"three"_qs}));
}

TEST(Sort, RowsOfOneMomentKeepTheirOrderUnderEveryMode) {
    const NotificationList rows{row(u"b"_qs, 5, u"1"_qs), row(u"B"_qs, 5, u"2"_qs),
                                row(u"b"_qs, 5, u"3"_qs), row(u"B"_qs, 5, u"4"_qs)};
    for (const SortMode mode : allSortModes)
        EXPECT_EQ(sortedBy(mode, rows), rows) << rawValue(mode).toStdString();
}

TEST(Sort, APinnedRowStandsAtItsOwnTime) {
    CapturedNotification pinned = row(u"A"_qs, 1, u"pinned"_qs);
    pinned.pinned = true;
    const NotificationList rows{pinned, row(u"A"_qs, 9, u"new"_qs), row(u"A"_qs, 8, u"newer"_qs)};
    EXPECT_EQ(titlesOf(sortedBy(SortMode::newest, rows)).last(), u"pinned"_qs);
    EXPECT_EQ(titlesOf(sortedBy(SortMode::app, rows)).first(), u"pinned"_qs);
}

TEST(Sort, ByAppGoesByTheLoweredNameInPlainTextOrder) {
    const NotificationList rows{row(u"Zoom"_qs, 4), row(u"apple"_qs, 3), row(u"Émile"_qs, 2),
                                row(u"～"_qs, 1), row(u"😀"_qs, 5)};
    QStringList names;
    for (const CapturedNotification& sorted : sortedBy(SortMode::app, rows))
        names << sorted.appName;
    EXPECT_EQ(names, QStringList({u"apple"_qs, u"Zoom"_qs, u"Émile"_qs, u"～"_qs, u"😀"_qs}));
}

TEST(Sort, CopesWithMomentsThatAreNoNumbers) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    NotificationList rows;
    for (int i = 0; i < 100; ++i)
        rows.push_back(row(u"A"_qs, i % 3 == 0 ? nan : i % 3 == 1 ? infinity : double(i)));
    const NotificationList sorted = sortedBy(SortMode::newest, rows);
    EXPECT_EQ(sorted.size(), rows.size());
    EXPECT_EQ(sorted.front().timestamp, infinity);
    EXPECT_TRUE(std::isnan(sorted.back().timestamp));
}

// Groups

TEST(Groups, OfApplicationsComeInCaseSensitivePlainTextOrder) {
    const NotificationList rows{row(u"apple"_qs, 2), row(u"Zoom"_qs, 1), row(u"😀"_qs, 4),
                                row(u"～"_qs, 3)};
    EXPECT_EQ(keysOf(groupedByApp(rows)),
              QStringList({u"Zoom"_qs, u"apple"_qs, u"～"_qs, u"😀"_qs}));
    EXPECT_EQ(sortedBy(SortMode::app, rows).front().appName, u"apple"_qs);
}

TEST(Groups, OfOneNameHoldRowsOfSeveralBundleIds) {
    NotificationList rows{row(u"Mail"_qs, 2), row(u"Mail"_qs, 1)};
    rows[0].appBundleId = u"first"_qs;
    rows[1].appBundleId = u"second"_qs;
    const auto groups = groupedByApp(rows);
    ASSERT_EQ(groups.size(), 1U);
    EXPECT_EQ(groups[0].notifications.front().appBundleId, u"first"_qs);
}

TEST(Groups, OfDaysRunNewestFirstWhateverTheOrderInThem) {
    const testing::TimeZoneScope zone("UTC");
    const double day = 86400;
    const NotificationList rows{row(u"A"_qs, 10 * day + 1, u"early"_qs),
                                row(u"A"_qs, 10 * day + 2, u"late"_qs),
                                row(u"A"_qs, 12 * day, u"new"_qs)};
    const auto groups = groupedByDate(sortedBy(SortMode::oldest, rows));
    EXPECT_EQ(keysOf(groups), QStringList({u"2001-01-13"_qs, u"2001-01-11"_qs}));
    EXPECT_EQ(titlesOf(groups[1].notifications), QStringList({u"early"_qs, u"late"_qs}));
}

TEST(Groups, OfMomentsBeyondAllDaysComeFirstAndLast) {
    const testing::TimeZoneScope zone("UTC");
    const double infinity = std::numeric_limits<double>::infinity();
    const NotificationList rows{row(u"A"_qs, 0, u"today"_qs), row(u"A"_qs, infinity, u"never"_qs),
                                row(u"A"_qs, -1e300, u"old"_qs), row(u"A"_qs, 1e300, u"far"_qs),
                                row(u"A"_qs, -infinity, u"oldest"_qs)};
    const auto groups = groupedByDate(sortedBy(SortMode::newest, rows));
    EXPECT_EQ(keysOf(groups), QStringList({u"9999-12-31"_qs, u"2001-01-01"_qs, u"0001-01-01"_qs}));
    EXPECT_EQ(titlesOf(groups[0].notifications), QStringList({u"never"_qs, u"far"_qs}));
    EXPECT_EQ(titlesOf(groups[2].notifications), QStringList({u"old"_qs, u"oldest"_qs}));
}

TEST(Choices, ReadTheWholeList) {
    const testing::TimeZoneScope zone("UTC");
    const NotificationList rows{row(u"b"_qs, 0), row(u"B"_qs, 86400), row(u"b"_qs, 5)};
    EXPECT_EQ(uniqueApps(rows), QStringList({u"B"_qs, u"b"_qs}));
    EXPECT_EQ(uniqueDays(rows), QStringList({u"2001-01-02"_qs, u"2001-01-01"_qs}));
    EXPECT_EQ(dayCounts(rows),
              (QMap<QString, qsizetype>{{u"2001-01-01"_qs, 2}, {u"2001-01-02"_qs, 1}}));
}

// Against a reference that is as plain as can be: selection of the next row by full comparison.

std::u32string scalars(const QString& text) {
    const QList<uint> points = text.toUcs4();
    return {points.begin(), points.end()};
}

std::u32string lowered(const QString& text) {
    std::u32string result;
    for (const uint point : text.toUcs4()) {
        const QString one = QString::fromUcs4(reinterpret_cast<const char32_t*>(&point), 1);
        result += scalars(one.toLower());
    }
    return result;
}

bool holds(const QString& text, const QString& wanted) {
    return lowered(text).find(lowered(wanted)) != std::u32string::npos;
}

bool comesBefore(SortMode mode, const CapturedNotification& left,
                 const CapturedNotification& right) {
    switch (mode) {
    case SortMode::newest:
        return left.timestamp > right.timestamp;
    case SortMode::oldest:
        return left.timestamp < right.timestamp;
    case SortMode::app:
        return lowered(left.appName) < lowered(right.appName);
    }
    return false;
}

NotificationList reference(const NotificationList& rows, const QString& app, const QString& search,
                           SortMode mode) {
    NotificationList sorted;
    for (const CapturedNotification& row : rows) {
        if (app != u"All"_qs && row.appName != app)
            continue;
        if (!search.isEmpty() && !holds(row.title, search) && !holds(row.body, search) &&
            !holds(row.appName, search))
            continue;
        // Insertion behind all that don't have to come after it keeps equal rows in order.
        auto place = sorted.end();
        while (place != sorted.begin() && comesBefore(mode, row, *(place - 1)))
            --place;
        sorted.insert(place, row);
    }
    return sorted;
}

class RandomListTest : public ::testing::TestWithParam<unsigned> {
protected:
    template <typename Choice>
    const Choice& oneOf(const std::vector<Choice>& choices) {
        return choices[std::uniform_int_distribution<std::size_t>(0, choices.size() - 1)(random_)];
    }

    QString text() {
        QString text;
        for (int parts = std::uniform_int_distribution(0, 4)(random_); parts > 0; --parts)
            text += oneOf(parts_);
        return text;
    }

    NotificationList list() {
        NotificationList rows;
        for (int i = 0; i < 120; ++i)
            rows.push_back(row(oneOf(apps_),
                               std::uniform_int_distribution(0, 30)(random_) * 40000.0, text(),
                               text()));
        return rows;
    }

    std::mt19937 random_{GetParam()};
    const std::vector<QString> apps_{u"Mail"_qs, u"mail"_qs, u"Zoom"_qs,    u"äpfel"_qs, u"～"_qs,
                                     u"😀"_qs,    u"𐐀"_qs,    u"e\u0301"_qs, u""_qs};
    const std::vector<QString> parts_{u"a"_qs, u"A"_qs, u" "_qs, u"é"_qs,  u"e\u0301"_qs,
                                      u"😀"_qs, u"𐐀"_qs, u"Σ"_qs, u"🇮🇹"_qs, u"b"_qs};
};

TEST_P(RandomListTest, IsFilteredAndSortedAsTheReferenceDoesIt) {
    const NotificationList rows = list();
    const QString app = oneOf(std::vector{u"All"_qs, apps_[0], apps_[4]});
    const QString search = oneOf(parts_);
    for (const SortMode mode : allSortModes)
        EXPECT_EQ(sortedBy(mode, keepingMatches(keepingApp(rows, app), search)),
                  reference(rows, app, search, mode));
}

TEST_P(RandomListTest, IsGroupedByAppAsTheReferenceDoesIt) {
    const NotificationList rows = sortedBy(SortMode::newest, list());
    std::map<std::u32string, NotificationGroup> expected;
    for (const CapturedNotification& row : rows) {
        expected[scalars(row.appName)].key = row.appName;
        expected[scalars(row.appName)].notifications.push_back(row);
    }
    const auto groups = groupedByApp(rows);
    ASSERT_EQ(groups.size(), expected.size());
    auto next = expected.begin();
    for (const NotificationGroup& group : groups)
        EXPECT_EQ(group, (next++)->second);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomListTest, ::testing::Range(1U, 21U));

} // namespace
} // namespace tessarine
