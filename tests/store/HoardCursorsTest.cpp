#include "store/HoardFixture.h"
#include "store/SqlTrace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::SqlTrace;

const QString recIdsKey = u"lastSeenUsernotedRecIds"_qs;
const QString timestampKey = u"lastSeenUsernotedTimestamp"_qs;

// The two cursors that are single integers keep the same promises.
struct Cursor {
    const char* key;
    qint64 (HoardStore::*last)();
    void (HoardStore::*save)(qint64);
};

class IntegerCursor : public testing::HoardFixture, public ::testing::WithParamInterface<Cursor> {
protected:
    IntegerCursor() { start(); }

    QString key() const { return QString::fromLatin1(GetParam().key); }
    qint64 last() { return ((*store).*(GetParam().last))(); }
    void save(qint64 value) { ((*store).*(GetParam().save))(value); }
};

TEST_P(IntegerCursor, IsZeroOnEmptyDefaultsAndAnEmptyTable) {
    EXPECT_EQ(last(), 0);
}

TEST_P(IntegerCursor, IsWhatIsStored) {
    defaults.setInteger(key(), 12);
    EXPECT_EQ(last(), 12);
}

TEST_P(IntegerCursor, ResumesFromTheHighestKeyOfAnOldHoard) {
    store->insert(capture(77));
    store->insert(capture(33));
    EXPECT_EQ(last(), 77);
}

TEST_P(IntegerCursor, IsWhatIsStoredThoughTheHoardHasAHigherKey) {
    store->insert(capture(77));
    defaults.setInteger(key(), 12);
    EXPECT_EQ(last(), 12);
}

TEST_P(IntegerCursor, AsksTheHoardWhereZeroOrLessIsStored) {
    store->insert(capture(77));
    defaults.setInteger(key(), 0);
    EXPECT_EQ(last(), 77);
    defaults.setInteger(key(), -4);
    EXPECT_EQ(last(), 77);
}

TEST_P(IntegerCursor, AsksTheHoardWhereAnotherTypeIsStored) {
    store->insert(capture(77));
    defaults.setText(key(), u"twelve"_qs);
    EXPECT_EQ(last(), 77);
}

TEST_P(IntegerCursor, IsNotWrittenByReadingIt) {
    store->insert(capture(77));
    last();
    EXPECT_THAT(defaults.values, IsEmpty());
}

TEST_P(IntegerCursor, RunsNoStatementWhereItIsStored) {
    store.reset();
    SqlTrace trace;
    start();
    trace.taken();
    defaults.setInteger(key(), 12);
    last();
    EXPECT_THAT(trace.taken(), IsEmpty());
    defaults.values.clear();
    last();
    EXPECT_THAT(trace.taken(), ElementsAre(u"SELECT MAX(system_note_id) FROM notifications"_qs));
}

TEST_P(IntegerCursor, IsSavedUnderItsKey) {
    save(5);
    EXPECT_EQ(defaults.integer(key()), 5);
    EXPECT_EQ(defaults.values.size(), 1U);
}

TEST_P(IntegerCursor, MovesForward) {
    save(5);
    save(9);
    EXPECT_EQ(defaults.integer(key()), 9);
}

TEST_P(IntegerCursor, NeverMovesBack) {
    save(9);
    save(5);
    save(0);
    save(-1);
    EXPECT_EQ(defaults.integer(key()), 9);
}

TEST_P(IntegerCursor, IsNotWrittenForZeroOrLessWhereNothingIsStored) {
    save(0);
    save(-1);
    EXPECT_THAT(defaults.values, IsEmpty());
}

TEST_P(IntegerCursor, TakesIntegersBeyondThirtyTwoBits) {
    save(std::numeric_limits<qint64>::max());
    EXPECT_EQ(last(), std::numeric_limits<qint64>::max());
}

TEST_P(IntegerCursor, LiesOutsideTheHoard) {
    save(5);
    store.reset();
    defaults.values.clear();
    EXPECT_EQ(start().maxSystemNoteId(), 0);
    EXPECT_EQ(last(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Each, IntegerCursor,
    ::testing::Values(Cursor{"lastSeenUsernotedRecId", &HoardStore::lastSeenUsernotedRecId,
                             &HoardStore::saveLastSeenUsernotedRecId},
                      Cursor{"lastSeenSystemNoteId", &HoardStore::lastSeenSystemNoteId,
                             &HoardStore::saveLastSeenSystemNoteId}),
    [](const auto& test) { return std::string(test.param.key); });

class HoardCursors : public testing::HoardFixture {
protected:
    HoardCursors() { start(); }
};

TEST_F(HoardCursors, AreSavedEachUnderItsOwnKey) {
    store->saveLastSeenUsernotedRecId(3);
    store->saveLastSeenSystemNoteId(4);
    EXPECT_EQ(store->lastSeenUsernotedRecId(), 3);
    EXPECT_EQ(store->lastSeenSystemNoteId(), 4);
}

TEST_F(HoardCursors, HaveNoIdsAndNoTimeAtFirst) {
    EXPECT_THAT(store->lastSeenUsernotedRecIds(), IsEmpty());
    EXPECT_EQ(store->lastSeenUsernotedTimestamp(), 0.0);
}

TEST_F(HoardCursors, StoreTheIdsAndTheirTime) {
    store->saveLastSeenUsernotedState({5, 3, 4}, 778912345.5);
    EXPECT_THAT(defaults.integerList(recIdsKey), ::testing::UnorderedElementsAre(3, 4, 5));
    EXPECT_EQ(defaults.real(timestampKey), 778912345.5);
    EXPECT_EQ(defaults.values.size(), 2U);
    EXPECT_THAT(store->lastSeenUsernotedRecIds(), ElementsAre(3, 4, 5));
    EXPECT_EQ(store->lastSeenUsernotedTimestamp(), 778912345.5);
}

TEST_F(HoardCursors, WriteNothingForAnEarlierTime) {
    store->saveLastSeenUsernotedState({1, 2}, 200.0);
    store->saveLastSeenUsernotedState({9}, 199.9);
    EXPECT_THAT(store->lastSeenUsernotedRecIds(), ElementsAre(1, 2));
    EXPECT_EQ(store->lastSeenUsernotedTimestamp(), 200.0);
}

TEST_F(HoardCursors, WriteForAnEqualTime) {
    store->saveLastSeenUsernotedState({1, 2}, 200.0);
    store->saveLastSeenUsernotedState({1, 2, 3}, 200.0);
    EXPECT_THAT(store->lastSeenUsernotedRecIds(), ElementsAre(1, 2, 3));
}

TEST_F(HoardCursors, WriteForALaterTime) {
    store->saveLastSeenUsernotedState({1, 2}, 200.0);
    store->saveLastSeenUsernotedState({}, 200.1);
    EXPECT_THAT(store->lastSeenUsernotedRecIds(), IsEmpty());
    EXPECT_EQ(store->lastSeenUsernotedTimestamp(), 200.1);
    EXPECT_TRUE(defaults.contains(recIdsKey));
}

TEST_F(HoardCursors, WriteTheTimeZeroAtTheFirstTime) {
    store->saveLastSeenUsernotedState({1}, 0.0);
    EXPECT_TRUE(defaults.contains(timestampKey));
    EXPECT_THAT(store->lastSeenUsernotedRecIds(), ElementsAre(1));
}

TEST_F(HoardCursors, RefuseANegativeTimeAtTheFirstTime) {
    store->saveLastSeenUsernotedState({1}, -1.0);
    EXPECT_THAT(defaults.values, IsEmpty());
}

TEST_F(HoardCursors, CountTheWholeListAsEmptyWhenOneElementIsNoInteger) {
    defaults.values[recIdsKey] = QStringList{u"1"_qs, u"two"_qs, u"3"_qs};
    EXPECT_THAT(store->lastSeenUsernotedRecIds(), IsEmpty());
    defaults.values[recIdsKey] = QStringList{u"1"_qs, u"2.5"_qs};
    EXPECT_THAT(store->lastSeenUsernotedRecIds(), IsEmpty());
}

TEST_F(HoardCursors, FoldRepeatedIds) {
    defaults.setIntegerList(recIdsKey, {4, 4, 2});
    EXPECT_THAT(store->lastSeenUsernotedRecIds(), ElementsAre(2, 4));
}

TEST_F(HoardCursors, RunNoStatementForIdsAndTime) {
    store.reset();
    SqlTrace trace;
    start();
    trace.taken();
    store->saveLastSeenUsernotedState({1}, 5.0);
    store->lastSeenUsernotedRecIds();
    store->lastSeenUsernotedTimestamp();
    store->saveLastSeenUsernotedRecId(1);
    store->saveLastSeenSystemNoteId(1);
    EXPECT_THAT(trace.taken(), IsEmpty());
}

// A crash between the two writes must not skip records: the ids are down before their time.

class OrderedDefaults : public testing::SimulatedDefaults {
public:
    void setReal(const QString& key, double value) override {
        order.append(key);
        SimulatedDefaults::setReal(key, value);
    }
    void setIntegerList(const QString& key, const std::vector<qint64>& value) override {
        order.append(key);
        SimulatedDefaults::setIntegerList(key, value);
    }

    QStringList order;
};

TEST(HoardCursorOrder, WritesTheIdsBeforeTheirTime) {
    const QTemporaryDir home;
    const testing::SimulatedFileSystem fileSystem(home.path());
    OrderedDefaults defaults;
    const testing::ManualScheduler clock;
    HoardStore store(fileSystem, defaults, clock);
    store.saveLastSeenUsernotedState({1}, 5.0);
    EXPECT_THAT(defaults.order, ElementsAre(recIdsKey, timestampKey));
}

} // namespace
} // namespace tessarine
