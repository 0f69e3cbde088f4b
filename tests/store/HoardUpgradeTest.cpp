#include "store/HoardFixture.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

// A hoard that an earlier version has left, as the statements that made it.
struct EarlierHoard {
    const char* name;
    QStringList titles; // in the order of the list, worked out by hand
    bool hasPins = true;
};

class HoardUpgrade : public testing::HoardFixture,
                     public ::testing::WithParamInterface<EarlierHoard> {
protected:
    HoardUpgrade() {
        const QString script =
            QStringLiteral(EARLIER_HOARDS "/%1.sql").arg(QString::fromLatin1(GetParam().name));
        EXPECT_TRUE(QDir().mkpath(folder()));
        EXPECT_TRUE(file().run(QString::fromUtf8(readFile(script))));
    }

    // Everything that a user has put in, with the types of the values.
    std::vector<QStringList> content() const {
        const QString columns = u"id, system_note_id, bundle_id, app_name, title, body, timestamp, "
                                "captured_at"_qs;
        QString query = u"SELECT "_qs + columns;
        for (const QString& column : columns.split(u", "_qs))
            query += u", typeof(%1), hex(%1)"_qs.arg(column);
        return file().rows(query + u" FROM notifications ORDER BY id"_qs);
    }

    std::vector<QStringList> pins() const {
        return file().rows(u"SELECT id, pinned FROM notifications ORDER BY id"_qs);
    }

    QStringList listedTitles() {
        QStringList titles;
        for (const CapturedNotification& row : store->fetchRecent(100))
            titles << row.title;
        return titles;
    }
};

TEST_P(HoardUpgrade, OpensUnchanged) {
    const auto before = content();
    const auto pinsBefore = GetParam().hasPins ? pins() : std::vector<QStringList>();
    const auto numbersBefore = file().rows(u"SELECT * FROM sqlite_sequence"_qs);
    start();
    EXPECT_EQ(listedTitles(), GetParam().titles);
    store.reset();
    EXPECT_EQ(content(), before);
    EXPECT_EQ(before.size(), std::size_t(GetParam().titles.size()));
    if (GetParam().hasPins)
        EXPECT_EQ(pins(), pinsBefore);
    else
        EXPECT_EQ(file().number(u"SELECT SUM(pinned) FROM notifications"_qs), 0);
    EXPECT_EQ(file().rows(u"SELECT * FROM sqlite_sequence"_qs), numbersBefore);
    EXPECT_EQ(file().rows(u"PRAGMA integrity_check"_qs).front().front(), u"ok"_qs);
}

TEST_P(HoardUpgrade, TakesFurtherNotifications) {
    const auto before = content();
    const qint64 highest = file().number(u"SELECT seq FROM sqlite_sequence"_qs);
    EXPECT_TRUE(start().insert(capture(1234)));
    store.reset();
    auto after = content();
    ASSERT_EQ(after.size(), before.size() + 1);
    EXPECT_EQ(after.back().front(), QString::number(highest + 1)); // no number comes twice
    after.pop_back();
    EXPECT_EQ(after, before);
}

INSTANTIATE_TEST_SUITE_P(
    Each, HoardUpgrade,
    ::testing::Values(EarlierHoard{"first-capture",
                                   {u"Grüße aus 東京 🎌"_qs, u"Anna"_qs, u"Your parcel"_qs,
                                    QString()}},
                      EarlierHoard{"deletions-and-pins",
                                   {u"oldest, pinned"_qs, u"newest"_qs, u"pinned and unpinned"_qs}},
                      EarlierHoard{"before-pins", {u"second"_qs, u"first"_qs}, false}),
    [](const auto& test) {
        std::string name = test.param.name;
        std::erase(name, '-');
        return name;
    });

} // namespace
} // namespace tessarine
