#include "diagnosticsview/DiagnosticsLogModel.h"

#include "support/Printers.h"
#include "support/TimeZoneScope.h"

#include <QAbstractItemModelTester>
#include <QColor>
#include <QSignalSpy>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using LogRole = DiagnosticsLogModel::Role;

class DiagnosticsLogModelTest : public ::testing::Test {
protected:
    // As the store does it: the newest first, 200 at most.
    void log(const QString& message, Category category = Category::system) {
        DiagnosticEntry entry;
        entry.timestamp = 785000000.0 + double(++moments);
        entry.category = category;
        entry.message = message;
        entries.prepend(entry);
        model.follow(entries);
        if (entries.size() > 200) {
            entries.resize(200);
            model.follow(entries);
        }
    }

    void clear() {
        entries.clear();
        model.follow(entries);
    }

    QVariant at(int row, LogRole role) const { return model.data(model.index(row), int(role)); }

    QStringList messages() const {
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row)
            texts << at(row, LogRole::Message).toString();
        return texts;
    }

    const testing::TimeZoneScope zone{"UTC"};
    int moments = 0;
    QList<DiagnosticEntry> entries;
    DiagnosticsLogModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
    QSignalSpy inserted{&model, &QAbstractItemModel::rowsInserted};
    QSignalSpy removed{&model, &QAbstractItemModel::rowsRemoved};
    QSignalSpy resets{&model, &QAbstractItemModel::modelReset};
};

TEST_F(DiagnosticsLogModelTest, HasTheNewestLineFirst) {
    log(u"one"_qs);
    log(u"two"_qs);
    EXPECT_THAT(messages(), ElementsAre(u"two"_qs, u"one"_qs));
}

TEST_F(DiagnosticsLogModelTest, TellsANewLineAsOneThatCameAtTheBeginning) {
    log(u"one"_qs);
    inserted.clear();
    log(u"two"_qs);
    ASSERT_EQ(inserted.size(), 1);
    EXPECT_EQ(inserted[0][1].toInt(), 0);
    EXPECT_EQ(inserted[0][2].toInt(), 0);
    EXPECT_THAT(removed, IsEmpty());
    EXPECT_THAT(resets, IsEmpty());
}

TEST_F(DiagnosticsLogModelTest, LetsTheOldestLineGoAtTheEnd) {
    for (int i = 1; i <= 201; ++i)
        log(QString::number(i));
    ASSERT_EQ(model.rowCount(), 200);
    EXPECT_EQ(messages().front(), u"201"_qs);
    EXPECT_EQ(messages().back(), u"2"_qs);
    ASSERT_EQ(removed.size(), 1);
    EXPECT_EQ(removed[0][1].toInt(), 200);
    EXPECT_THAT(resets, IsEmpty());
}

TEST_F(DiagnosticsLogModelTest, IsEmptyAfterTheLogWasCleared) {
    log(u"one"_qs);
    clear();
    EXPECT_THAT(messages(), IsEmpty());
    log(u"two"_qs);
    EXPECT_THAT(messages(), ElementsAre(u"two"_qs));
}

TEST_F(DiagnosticsLogModelTest, TakesALogThatItHasNeverSeen) {
    log(u"one"_qs);
    const QList<DiagnosticEntry> before = entries;
    entries.clear();
    log(u"other"_qs);
    EXPECT_THAT(messages(), ElementsAre(u"other"_qs));
    model.follow(before);
    EXPECT_THAT(messages(), ElementsAre(u"one"_qs));
}

TEST_F(DiagnosticsLogModelTest, HidesWhatDoesNotPassTheFilter) {
    log(u"Mail one"_qs, Category::ax);
    log(u"Post"_qs, Category::ax);
    log(u"Mail two"_qs, Category::hoard);
    model.setFilter(Category::ax, {});
    EXPECT_THAT(messages(), ElementsAre(u"Post"_qs, u"Mail one"_qs));
    model.setFilter(Category::ax, u"mail"_qs);
    EXPECT_THAT(messages(), ElementsAre(u"Mail one"_qs));
    model.setFilter({}, u"MAIL"_qs);
    EXPECT_THAT(messages(), ElementsAre(u"Mail two"_qs, u"Mail one"_qs));
    model.setFilter({}, {});
    EXPECT_THAT(messages(), ElementsAre(u"Mail two"_qs, u"Post"_qs, u"Mail one"_qs));
    EXPECT_THAT(resets, IsEmpty());
}

TEST_F(DiagnosticsLogModelTest, KeepsWhatPassesWhenTheFilterChanges) {
    for (int i = 0; i < 6; ++i)
        log(QString::number(i), i % 2 ? Category::ax : Category::hoard);
    removed.clear();
    inserted.clear();
    model.setFilter(Category::ax, {});
    EXPECT_THAT(messages(), ElementsAre(u"5"_qs, u"3"_qs, u"1"_qs));
    EXPECT_EQ(removed.size(), 3);
    EXPECT_THAT(inserted, IsEmpty());
}

TEST_F(DiagnosticsLogModelTest, TellsNothingOfANewLineThatDoesNotPass) {
    model.setFilter(Category::ax, {});
    log(u"other"_qs, Category::hoard);
    EXPECT_THAT(inserted, IsEmpty());
    log(u"mine"_qs, Category::ax);
    EXPECT_THAT(messages(), ElementsAre(u"mine"_qs));
}

TEST_F(DiagnosticsLogModelTest, ShowsALineAsTheLogHasIt) {
    log(u"Stored"_qs, Category::usernoted);
    EXPECT_EQ(at(0, LogRole::TimeText), u"15:33:21.000"_qs);
    EXPECT_EQ(at(0, LogRole::CategoryName), u"DB"_qs);
    EXPECT_EQ(at(0, LogRole::CategoryColour).value<QColor>().name(), u"#81c784"_qs);
    EXPECT_EQ(at(0, LogRole::Glyph), u"·"_qs);
    EXPECT_EQ(at(0, LogRole::HasGlyphColour), false);
    entries.front().level = Level::warning;
    entries.front().id = freshId();
    model.follow(entries);
    EXPECT_EQ(at(0, LogRole::Glyph), u"◆"_qs);
    EXPECT_EQ(at(0, LogRole::HasGlyphColour), true);
    EXPECT_EQ(at(0, LogRole::GlyphColour).value<QColor>().name(), u"#ffb74d"_qs);
    EXPECT_EQ(at(0, LogRole::SpokenText), u"15:33:21.000, DB, warning, Stored"_qs);
}

TEST_F(DiagnosticsLogModelTest, GivesARowTheBeginningOfAVeryLongMessage) {
    log(QString(100000, u'x'));
    EXPECT_EQ(at(0, LogRole::Message).toString().size(), 2000);
}

TEST_F(DiagnosticsLogModelTest, HasRolesNamedForViews) {
    const QHash<int, QByteArray> names = model.roleNames();
    EXPECT_EQ(names.value(int(LogRole::TimeText)), "timeText");
    EXPECT_EQ(names.value(int(LogRole::SpokenText)), "spokenText");
    EXPECT_EQ(names.size(), 8);
}

// Against the plain definition: the lines of the log that pass, whatever happened before.
TEST_F(DiagnosticsLogModelTest, IsRightAfterAnyNumberOfChanges) {
    std::mt19937 random(4711);
    const auto below = [&](unsigned bound) { return unsigned(random() % bound); };
    std::optional<Category> category;
    QString search;
    for (int step = 0; step < 3000; ++step) {
        const unsigned dice = below(100);
        if (dice < 90) {
            log(u"m%1"_qs.arg(below(10)), Category(below(5)));
        } else if (dice < 91) {
            clear();
        } else {
            category = below(2) ? std::optional(Category(below(5))) : std::nullopt;
            search = below(2) ? u"M%1"_qs.arg(below(10)) : QString();
            model.setFilter(category, search);
        }
        QStringList expected;
        for (const DiagnosticEntry& entry : entries) {
            if ((!category || entry.category == *category) &&
                (search.isEmpty() || entry.message == search.toLower()))
                expected << entry.message;
        }
        ASSERT_EQ(messages(), expected) << "step " << step;
    }
    EXPECT_THAT(resets, IsEmpty());
}

} // namespace
} // namespace tessarine
