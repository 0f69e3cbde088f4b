#include "export/ExportFixture.h"
#include "export/ExportOptionsSheet.h"
#include "platform/qt/QtScheduler.h"
#include "support/EventLoop.h"

#include <atomic>
#include <memory>
#include <thread>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

// The real scheduler: writers on workers, everything else here.
class ExportThreadsTest : public ExportTest {
protected:
    static NotificationList many(int count) {
        NotificationList list;
        for (int i = 0; i < count; ++i)
            list.push_back(notification(u"Mail"_qs, u"Title"_qs, u"Body"_qs, march3(9) - i));
        return list;
    }

    std::unique_ptr<ExportOptionsSheet> sheetOf(NotificationList list) {
        return std::make_unique<ExportOptionsSheet>(
            std::move(list), [this] { ++dismissed; },
            ExportOptionsSheet::Services{manager, preferences, scheduler, viewer});
    }

    QtScheduler scheduler;
    SimulatedFileViewer viewer;
    int dismissed = 0;
};

TEST_F(ExportThreadsTest, ASettingChangedMeanwhileHidesWholeRecordsOnly) {
    const NotificationList list = many(2000);
    std::atomic<bool> done = false;
    ExportResult result = ExportResult::failure({});
    std::thread worker([&] {
        result = manager.exportCSV(list, false, path(u"out"_qs));
        done = true;
    });
    for (bool hidden = true; !done; hidden = !hidden) {
        preferences.setGlobalPrivacyMode(hidden);
        preferences.setPrivacyApps({hidden ? u"com.example.mail"_qs : u"other"_qs});
    }
    worker.join();
    ASSERT_TRUE(result.isSuccess());
    const QByteArray content = contentOf(path(u"out"_qs));
    EXPECT_EQ(content.count("mail;Title;Body") + content.count("mail;[hidden];[hidden]"), 2000);
}

TEST_F(ExportThreadsTest, TwoSheetsExportSideBySide) {
    panel.answer = path(u"one"_qs);
    const auto one = sheetOf(many(40));
    one->setSelectedFormat(ExportFormat::pdf);
    one->runExport();
    panel.answer = path(u"other"_qs);
    const auto other = sheetOf(many(40));
    other->setSelectedFormat(ExportFormat::pdf);
    other->runExport();
    ASSERT_TRUE(turnsUntil([&] { return one->exportDone() && other->exportDone(); }, 60000));
    EXPECT_EQ(viewer.revealed.size(), 2U);
    EXPECT_EQ(contentOf(path(u"one"_qs)).size(), contentOf(path(u"other"_qs)).size());
}

TEST_F(ExportThreadsTest, AWindowMayCloseWhileItsExportRuns) {
    panel.answer = path(u"out"_qs);
    auto closing = sheetOf(many(2000));
    closing->runExport();
    closing.reset();
    // A later export comes to its end only after the first one, if that ever does.
    ASSERT_TRUE(turnsUntil([&] { return QFile::exists(path(u"out"_qs)); }, 60000));
    panel.answer = path(u"later"_qs);
    const auto later = sheetOf(many(1));
    later->runExport();
    ASSERT_TRUE(turnsUntil([&] { return later->exportDone(); }, 60000));
    EXPECT_EQ(viewer.revealed, std::vector{path(u"later"_qs)});
    EXPECT_EQ(dismissed, 0);
}

} // namespace
} // namespace tessarine::testing
