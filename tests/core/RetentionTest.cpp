#include "core/Retention.h"

#include "support/HoardFile.h"
#include "support/Numbers.h"
#include "support/Printers.h"
#include "support/SimulatedPlatform.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::day;
using ::testing::ElementsAre;
using testing::hour;
using ::testing::IsEmpty;

class Retention : public ::testing::Test {
protected:
    Retention()
        : system_(folder_.path()) {}

    void keep(qint64 days, qint64 hoursOfCodes = 0) {
        system_.defaults.setInteger(u"retentionDays"_qs, days);
        system_.defaults.setInteger(u"otpRetentionHours"_qs, hoursOfCodes);
    }

    void add(const QString& title, double age) {
        CapturedNotification notification;
        notification.noteId = ++last_;
        notification.title = title;
        notification.timestamp = testing::ManualScheduler::startOfTime - age;
        ASSERT_TRUE(hoard().insert(notification));
    }

    HoardStore& hoard() {
        if (!hoard_)
            hoard_.emplace(system_.fileSystem, system_.defaults, system_.scheduler);
        return *hoard_;
    }

    void launch() {
        const PreferencesStore preferences(system_.defaults);
        applyRetention(preferences, hoard(), diagnostics_);
    }

    QStringList titles() {
        QStringList found;
        for (const CapturedNotification& row : hoard().fetchRecent(100))
            found.prepend(row.title);
        return found;
    }

    // Each line of the log with its level and category.
    std::vector<DiagnosticEntry> lines() const {
        return {diagnostics_.entries().begin(), diagnostics_.entries().end()};
    }

    static auto line(const QString& message) {
        return ::testing::AllOf(
            ::testing::Field("message", &DiagnosticEntry::message, message),
            ::testing::Field("level", &DiagnosticEntry::level, Level::info),
            ::testing::Field("category", &DiagnosticEntry::category, Category::system));
    }

    QTemporaryDir folder_;
    testing::SimulatedPlatform system_;
    std::optional<HoardStore> hoard_;
    DiagnosticsStore diagnostics_{system_.scheduler, hoard()};
    qint64 last_ = 0;
};

const QString keepsAll = u"Retention: Policy — retentionDays=0, no deletion"_qs;

TEST_F(Retention, DeletesWhatIsOlderThanTheSettingAndLogsTheCount) {
    for (int i = 0; i < 12; ++i)
        add(u"old"_qs, 31 * day);
    add(u"young"_qs, 29 * day);
    keep(30);
    launch();
    EXPECT_THAT(titles(), ElementsAre(u"young"_qs));
    EXPECT_THAT(lines(),
                ElementsAre(line(u"Retention: Policy — deleteOlderThan(30d) → 12 deleted"_qs)));
}

TEST_F(Retention, LogsAlsoThatNothingWasOldEnough) {
    keep(1);
    launch();
    EXPECT_THAT(lines(),
                ElementsAre(line(u"Retention: Policy — deleteOlderThan(1d) → 0 deleted"_qs)));
}

TEST_F(Retention, OfZeroDaysKeepsEverything) {
    add(u"ancient"_qs, 10000 * day);
    keep(0);
    launch();
    EXPECT_THAT(titles(), ElementsAre(u"ancient"_qs));
    EXPECT_THAT(lines(), ElementsAre(line(keepsAll)));
}

TEST_F(Retention, OfNegativeDaysKeepsEverythingAndSaysZero) {
    add(u"ancient"_qs, 10000 * day);
    add(u"of tomorrow"_qs, -day);
    keep(-1);
    launch();
    EXPECT_THAT(titles(), ElementsAre(u"ancient"_qs, u"of tomorrow"_qs));
    EXPECT_THAT(lines(), ElementsAre(line(keepsAll)));
}

TEST_F(Retention, KeepsEverythingWhereNothingWasChosen) {
    add(u"Code 123456"_qs, 10000 * day);
    launch();
    EXPECT_THAT(titles(), ElementsAre(u"Code 123456"_qs));
    EXPECT_THAT(lines(), ElementsAre(line(keepsAll)));
}

TEST_F(Retention, DeletesOldCodesWithoutALine) {
    add(u"Code 123456"_qs, 2 * hour);
    add(u"Code 654321"_qs, 0.5 * hour);
    add(u"Lunch"_qs, 2 * hour);
    keep(0, 1);
    launch();
    EXPECT_THAT(titles(), ElementsAre(u"Lunch"_qs, u"Code 654321"_qs));
    EXPECT_THAT(lines(), ElementsAre(line(keepsAll)));
}

TEST_F(Retention, OfNegativeHoursKeepsCodes) {
    add(u"Code 123456"_qs, 2 * hour);
    keep(0, -1);
    launch();
    EXPECT_THAT(titles(), ElementsAre(u"Code 123456"_qs));
}

TEST_F(Retention, DoesBothAndCountsNoCodes) {
    add(u"old"_qs, 31 * day);
    add(u"Code 123456"_qs, 2 * hour);
    add(u"Lunch"_qs, 2 * hour);
    keep(30, 1);
    launch();
    EXPECT_THAT(titles(), ElementsAre(u"Lunch"_qs));
    EXPECT_THAT(lines(),
                ElementsAre(line(u"Retention: Policy — deleteOlderThan(30d) → 1 deleted"_qs)));
}

TEST_F(Retention, LeavesTheHoardUnopenedWhereNothingIsDue) {
    keep(0, 0);
    launch();
    EXPECT_FALSE(QFile::exists(hoard().path()));
}

TEST_F(Retention, OpensTheHoardWhereADeletionIsDue) {
    keep(0, 1);
    launch();
    EXPECT_TRUE(QFile::exists(hoard().path()));
}

TEST_F(Retention, CountsNothingInAHoardThatCannotBeOpened) {
    QFile inTheWay(folder_.filePath(u"Library"_qs));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    keep(30, 1);
    launch();
    EXPECT_THAT(lines(),
                ElementsAre(line(u"Retention: Policy — deleteOlderThan(30d) → 0 deleted"_qs)));
}

TEST_F(Retention, TakesAChangedSettingAtTheNextLaunch) {
    add(u"old"_qs, 31 * day);
    keep(0);
    launch();
    keep(30);
    EXPECT_THAT(titles(), ElementsAre(u"old"_qs));
    launch();
    EXPECT_THAT(titles(), IsEmpty());
}

} // namespace
} // namespace tessarine
