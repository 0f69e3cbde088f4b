// What the store keeps of the hoard in memory must never be seen from outside: whatever happens,
// each answer is that of the statement, which an independent connection runs here.

#include "shared/DayKey.h"
#include "store/HoardFixture.h"
#include "store/SqlTrace.h"
#include "support/Numbers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <array>
#include <limits>
#include <random>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ContainerEq;
using ::testing::ElementsAre;
using testing::infinity;
using testing::SqlTrace;

// A second connection, as another program would hold it.
class Outsider {
public:
    explicit Outsider(const QString& path) {
        EXPECT_EQ(sqlite3_open(path.toUtf8().constData(), &connection_), SQLITE_OK);
        sqlite3_busy_timeout(connection_, 5000);
    }
    Outsider(const Outsider&) = delete;
    Outsider& operator=(const Outsider&) = delete;
    ~Outsider() { sqlite3_close(connection_); }

    void run(const QString& script) {
        EXPECT_EQ(sqlite3_exec(connection_, script.toUtf8().constData(), nullptr, nullptr, nullptr),
                  SQLITE_OK)
            << sqlite3_errmsg(connection_) << ": " << script.toStdString();
    }

    // The list as the statement gives it, a row each as one text of all its columns.
    std::vector<QString> list(qint64 limit) {
        sqlite3_stmt* statement = prepare(
            "SELECT id, system_note_id, bundle_id, app_name, title, body, timestamp, pinned\n"
            "FROM notifications\nORDER BY pinned DESC, timestamp DESC\nLIMIT ?;");
        sqlite3_bind_int64(statement, 1, limit);
        std::vector<QString> rows;
        while (sqlite3_step(statement) == SQLITE_ROW)
            rows.push_back(rowText(
                sqlite3_column_int(statement, 0), sqlite3_column_int(statement, 1),
                text(statement, 2), text(statement, 3), text(statement, 4), text(statement, 5),
                sqlite3_column_double(statement, 6), sqlite3_column_int(statement, 7) != 0));
        sqlite3_finalize(statement);
        return rows;
    }

    // Whether the probe finds a duplicate.
    bool hasDuplicate(const CapturedNotification& notification) {
        sqlite3_stmt* statement =
            prepare("SELECT COUNT(*) FROM notifications\nWHERE bundle_id = ? AND title = ? AND "
                    "body = ?\nAND ABS(timestamp - ?) < 300;");
        int parameter = 0;
        for (const QString& text :
             {notification.appBundleId, notification.title, notification.body})
            sqlite3_bind_text(statement, ++parameter, text.toUtf8().constData(), -1,
                              SQLITE_TRANSIENT);
        sqlite3_bind_double(statement, 4, notification.timestamp);
        const bool found =
            sqlite3_step(statement) == SQLITE_ROW && sqlite3_column_int(statement, 0) > 0;
        sqlite3_finalize(statement);
        return found;
    }

    static QString rowText(qint64 id, qint64 noteId, const QString& bundleId, const QString& name,
                           const QString& title, const QString& body, double timestamp,
                           bool pinned) {
        return QStringList{QString::number(id),
                           QString::number(noteId),
                           bundleId,
                           name,
                           title,
                           body,
                           QString::number(timestamp, 'g', 17),
                           pinned ? u"pinned"_qs : QString()}
            .join(u'|');
    }

private:
    sqlite3_stmt* prepare(const char* text) {
        sqlite3_stmt* statement = nullptr;
        EXPECT_EQ(sqlite3_prepare_v2(connection_, text, -1, &statement, nullptr), SQLITE_OK);
        return statement;
    }

    static QString text(sqlite3_stmt* statement, int column) {
        return QString::fromUtf8(
            reinterpret_cast<const char*>(sqlite3_column_text(statement, column)),
            sqlite3_column_bytes(statement, column));
    }

    sqlite3* connection_ = nullptr;
};

class CachedRows : public testing::HoardFixture {
protected:
    std::vector<QString> answer(qint64 limit) {
        std::vector<QString> rows;
        for (const CapturedNotification& row : store->fetchRecent(limit))
            rows.push_back(Outsider::rowText(row.dbId, row.noteId, row.appBundleId, row.appName,
                                             row.title, row.body, row.timestamp, row.pinned));
        return rows;
    }

    void fill(int count) {
        outsider.run(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE "
                     "i < %1) INSERT INTO notifications (bundle_id, app_name, title, body, "
                     "timestamp) SELECT 'a' || i % 3, 'A' || i % 3, 'T' || i % 5, 'B', "
                     "785000000 + i / 4 FROM n"_qs.arg(count));
    }

    Outsider outsider{start().path()};
};

// Random operations

// One long life of a hoard from a seed.
class HoardLife : public CachedRows, public ::testing::WithParamInterface<unsigned> {
protected:
    int below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(generator_); }

    template <typename Value, std::size_t Count>
    const Value& oneOf(const std::array<Value, Count>& values) {
        return values[std::size_t(below(int(Count)))];
    }

    // Few different values, so that equals are common.
    double timestamp() {
        static const std::array<double, 6> rare{
            infinity, -infinity, 0.0, -1.0, 1e18, std::numeric_limits<double>::quiet_NaN()};
        return below(20) == 0 ? oneOf(rare) : 784999600.0 + below(12) * 100.0 + below(2) * 0.25;
    }

    CapturedNotification record() {
        static const std::array<QString, 4> titles{u"T1"_qs, u"T2"_qs, QString(), u"Größe 😀"_qs};
        CapturedNotification record;
        record.noteId = below(400);
        record.appBundleId = u"a%1"_qs.arg(below(3));
        record.appName = u"A%1"_qs.arg(below(3));
        record.title = oneOf(titles);
        record.body = below(4) == 0 ? u"cut\0off"_qs : u"B%1"_qs.arg(below(3));
        record.timestamp = timestamp();
        return record;
    }

    // Of a row near the top, or of any row that there is or was.
    qint64 someId() {
        const NotificationList top = store->fetchRecent(30);
        return top.empty() || below(3) == 0 ? below(1700) + 1
                                            : top[std::size_t(below(int(top.size())))].dbId;
    }

    void storeDeduplicated() {
        CapturedNotification notification = record();
        const bool isDuplicate = outsider.hasDuplicate(notification);
        ASSERT_EQ(store->insertDeduplicated(notification), !isDuplicate);
    }

    void writeFromOutside() {
        static const std::array<QString, 10> scripts{
            u"INSERT INTO notifications (bundle_id, app_name, title, body, timestamp) VALUES "
            "('a1', 'A1', 'T1', 'B1', 785000500)"_qs,
            u"INSERT INTO notifications (title) VALUES (NULL)"_qs,
            u"INSERT INTO notifications (bundle_id, title, body, timestamp) VALUES "
            "(x'6131', 'T1', 'B1', 785000500)"_qs,
            u"UPDATE notifications SET timestamp = timestamp + 50 WHERE id % 7 = 0"_qs,
            u"UPDATE notifications SET timestamp = NULL WHERE id % 11 = 0"_qs,
            u"UPDATE notifications SET title = 'T1', body = 'B1' WHERE id % 5 = 0"_qs,
            u"UPDATE notifications SET pinned = 1 - pinned WHERE id % 13 = 0"_qs,
            u"DELETE FROM notifications WHERE id % 17 = 0"_qs,
            // What only SQLite can order, and what makes it well again.
            u"UPDATE notifications SET timestamp = '785000500 or so' WHERE id % 3 = 0; UPDATE "
            "notifications SET pinned = 'yes' WHERE id % 200 = 0"_qs,
            u"UPDATE notifications SET timestamp = 785000500, pinned = 2 WHERE "
            "typeof(timestamp) = 'text'"_qs,
        };
        outsider.run(oneOf(scripts));
    }

    void deleteSome() {
        switch (below(6)) {
        case 0:
            return store->deleteApp(u"A%1"_qs.arg(below(3)));
        case 1:
            return store->deleteDay(*dayKeyOf(785000000.0));
        case 2:
            scheduler.setWallClock(785000000.0 + 86400 + below(1200));
            store->deleteOlderThan(1);
            return;
        case 3:
            store->deleteOtpOlderThan(1);
            return;
        case 4:
            return store->deleteAll();
        default:
            outsider.run(u"DELETE FROM notifications"_qs);
        }
    }

    static std::optional<QString> dayKeyOf(double timestamp) { return dayKey(timestamp); }

    void step() {
        switch (below(20)) {
        case 0:
            if (below(2) == 0)
                writeFromOutside();
            return;
        case 1:
            if (below(8) == 0)
                deleteSome();
            return;
        case 2:
        case 3:
            return store->togglePin(someId());
        case 4:
        case 5:
            return store->deleteNotification(someId());
        case 6:
            if (below(8) == 0)
                fill(900);
            return;
        case 7:
            store->readAhead(below(900));
            return;
        case 8:
        case 9:
        case 10:
        case 11:
        case 12:
            store->insert(record());
            return;
        default:
            return storeDeduplicated();
        }
    }

private:
    std::mt19937 generator_{GetParam()};
};

TEST_P(HoardLife, GivesTheStatementsAnswerAtEachMoment) {
    // Around what is kept after 30 were asked for, and less than the whole hoard but for the end.
    static const std::array<qint64, 8> limits{30, 30, 510, 529, 530, 531, 0, 1};
    fill(1500);
    for (int round = 0; round < 300; ++round) {
        step();
        ASSERT_FALSE(HasFatalFailure()) << "round " << round;
        const qint64 limit = round == 299 ? -1 : oneOf(limits);
        ASSERT_THAT(answer(limit), ContainerEq(outsider.list(limit))) << "round " << round;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, HoardLife, ::testing::Range(1U, 11U));

// That the answers do come from memory

TEST_F(CachedRows, SortTheTableOnceForManyCaptures) {
    store.reset();
    SqlTrace trace;
    start();
    trace.listenToNoFurtherConnection();
    fill(3000);
    store->fetchRecent(500);
    trace.taken();
    for (int i = 0; i < 600; ++i) {
        CapturedNotification notification = capture(0, 786000000.0 + i);
        notification.title = QString::number(i);
        ASSERT_TRUE(store->insertDeduplicated(notification));
        ASSERT_EQ(store->fetchRecent(500).size(), 500U);
    }
    EXPECT_EQ(trace.taken().filter(u"ORDER BY"_qs).size(), 0);
    EXPECT_THAT(answer(500), ContainerEq(outsider.list(500)));
}

TEST_F(CachedRows, SortTheTableOnceForManyDeletionsAndPins) {
    store.reset();
    SqlTrace trace;
    start();
    trace.listenToNoFurtherConnection();
    fill(3000);
    store->fetchRecent(500);
    trace.taken();
    for (int i = 0; i < 200; ++i) {
        store->deleteNotification(store->fetchRecent(500).at(std::size_t(i)).dbId);
        store->togglePin(store->fetchRecent(500).at(2 * std::size_t(i)).dbId);
        store->togglePin(i + 1);
    }
    EXPECT_EQ(trace.taken().filter(u"ORDER BY"_qs).size(), 0);
    EXPECT_THAT(answer(500), ContainerEq(outsider.list(500)));
}

TEST_F(CachedRows, AreReadAnewAfterATriggerOfAnotherProgram) {
    outsider.run(u"CREATE TRIGGER doubling AFTER INSERT ON notifications WHEN new.title = 'Title' "
                 "BEGIN INSERT INTO notifications (title, timestamp) VALUES ('copy', 1); END"_qs);
    store->fetchRecent(500);
    ASSERT_TRUE(store->insertDeduplicated(capture(0)));
    EXPECT_THAT(answer(500), ContainerEq(outsider.list(500)));
    EXPECT_EQ(store->fetchRecent(500).size(), 2U);
}

TEST_F(CachedRows, StayWhereADeletionFails) {
    store->insert(capture(1));
    store->fetchRecent(500);
    Outsider holder(hoardPath());
    holder.run(u"BEGIN IMMEDIATE"_qs);
    store->deleteNotification(1);
    EXPECT_THAT(answer(500), ContainerEq(outsider.list(500)));
    EXPECT_EQ(store->fetchRecent(500).size(), 1U);
}

// Reading ahead

TEST_F(CachedRows, AreReadAheadWithoutAnAnswer) {
    store.reset();
    SqlTrace trace;
    start();
    trace.listenToNoFurtherConnection();
    fill(3000);
    EXPECT_EQ(store->readAhead(1000), ReadingAhead::done);
    trace.taken();
    EXPECT_EQ(store->readAhead(1000), ReadingAhead::done);
    EXPECT_THAT(answer(1000), ContainerEq(outsider.list(1000)));
    EXPECT_EQ(trace.taken().filter(u"ORDER BY"_qs).size(), 0);
}

TEST_F(CachedRows, AreNotKnownWhereTheyCanNotBeReadAhead) {
    outsider.run(u"INSERT INTO notifications (pinned) VALUES ('yes')"_qs);
    EXPECT_EQ(store->readAhead(10), ReadingAhead::impossible);
    EXPECT_THAT(answer(10), ContainerEq(outsider.list(10)));
}

} // namespace
} // namespace tessarine
