#include "diagnosticsview/DatabaseSectionView.h"

#include "diagnostics/DiagnosticsReport.h"
#include "diagnostics/DiagnosticsStore.h"
#include "diagnosticsview/ViewColour.h"
#include "platform/PrivateFile.h"
#include "shared/DateFormatter.h"
#include "shared/FreshId.h"
#include "store/HoardStore.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace tessarine {

namespace {

constexpr qint64 exportedRows = 500;

QString dash() {
    return QStringLiteral("—");
}

// As suggested names of files have it: with digits that every file system and reader knows.
QString minuteForName(double now) {
    return DateFormatter::withPattern(QStringLiteral("yyyy-MM-dd_HHmm"), "en_US_POSIX").text(now);
}

QString freshReportId() {
    return freshId().toString(QUuid::WithoutBraces).toUpper();
}

} // namespace

DatabaseSectionView::DatabaseSectionView(Services services, QObject* parent)
    : QObject(parent)
    , services_(std::move(services))
    , stats_(services_.store.hoardStats()) {
    connect(&services_.store, &DiagnosticsStore::statusChanged, this,
            &DatabaseSectionView::followStats);
}

// The status board changes with each capture, the statistics hardly ever.
void DatabaseSectionView::followStats() {
    if (std::exchange(stats_, services_.store.hoardStats()) != stats_)
        Q_EMIT statsChanged();
}

QList<DBStatCellContent> DatabaseSectionView::cells() const {
    const auto cell = [](const char* key, const char* symbol, const char16_t* colour,
                         const QString& value) {
        return DBStatCellContent{QString::fromLatin1(key), QString::fromLatin1(symbol),
                                 viewColour(colourFromHex(colour)), value};
    };
    return {
        cell("diag.db.records", "tray.full", u"4FC3F7", reportCount(stats_.totalCount)),
        cell("diag.db.size", "internaldrive", u"81C784",
             stats_.fileSizeBytes < 1 ? dash() : stats_.formattedSize()),
        cell("diag.db.pinned", "pin.fill", u"CE93D8", QString::number(stats_.pinnedCount)),
        cell("diag.db.apps", "square.grid.2x2", u"FFB74D",
             QString::number(stats_.distinctAppsCount)),
        cell("diag.db.first", "calendar.badge.clock", u"90A4AE", reportDate(stats_.firstTimestamp)),
        cell("diag.db.last", "calendar.badge.clock", u"90A4AE", reportDate(stats_.lastTimestamp))};
}

void DatabaseSectionView::set(bool& flag, bool value) {
    flag = value;
    Q_EMIT changed();
}

void DatabaseSectionView::setIncludeNotifContent(bool include) {
    set(includeNotifContent_, include);
}

void DatabaseSectionView::refresh() {
    services_.store.refreshHoardStats();
}

// What follows is called on the main thread with what the work gave.
template <typename Work, typename Then>
void DatabaseSectionView::onWorker(QualityOfService quality, Work work, Then then) {
    Scheduler& scheduler = *services_.platform.scheduler;
    scheduler.onGlobalQueue(quality, [work, then, &scheduler] {
        scheduler.onMain([then, result = work()] { then(result); });
    });
}

void DatabaseSectionView::verifyIntegrity() {
    if (isCheckingIntegrity_)
        return;
    set(isCheckingIntegrity_, true);
    const auto finish = alive_.guard([this] { set(isCheckingIntegrity_, false); });
    onWorker(
        QualityOfService::utility, [&hoard = services_.hoard] { return hoard.integrityCheck(); },
        [finish, log = services_.store.logger()](const QString& result) {
            if (result == u"ok")
                log(qtTrId("diag.db.integrity.pass"), Level::success, Category::hoard);
            else
                log(qtTrId("diag.db.integrity.fail").arg(result), Level::warning, Category::hoard);
            finish();
        });
}

void DatabaseSectionView::createBackup() {
    if (isCreatingBackup_)
        return;
    set(isCreatingBackup_, true);
    const auto ask = alive_.guard([this](bool) { askForBackup(); });
    onWorker(
        QualityOfService::utility,
        [&hoard = services_.hoard] {
            hoard.checkpoint();
            return true;
        },
        ask);
}

// Nothing where the user cancelled, and where the view has gone while they decided.
std::optional<QString> DatabaseSectionView::askForPath(const SavePanel::Request& request) {
    const AliveGuard::Token self = alive_.token();
    std::optional<QString> path = services_.savePanel.runModal(request);
    return self.isAlive() ? path : std::nullopt;
}

void DatabaseSectionView::askForBackup() {
    const AliveGuard::Token self = alive_.token();
    const QString minute = minuteForName(services_.platform.scheduler->now());
    const auto path =
        askForPath({QStringLiteral("Tessarine_backup_%1.db").arg(minute),
                    qtTrId("diag.db.backup.panelTitle"), qtTrId("diag.db.backup.saveBtn")});
    if (path)
        copyTo(*path);
    else if (self.isAlive())
        set(isCreatingBackup_, false);
}

void DatabaseSectionView::copyTo(const QString& path) {
    const auto finish = alive_.guard([this] { set(isCreatingBackup_, false); });
    const auto refreshStats = services_.store.statsRefresher();
    onWorker(
        QualityOfService::utility, [&hoard = services_.hoard, path] { return hoard.copyTo(path); },
        [finish, refreshStats, path,
         log = services_.store.logger()](const std::optional<QString>& error) {
            if (error) {
                log(qtTrId("diag.db.backup.fail").arg(*error), Level::warning, Category::hoard);
            } else {
                log(qtTrId("diag.db.backup.success").arg(path), Level::success, Category::hoard);
                refreshStats();
            }
            finish();
        });
}

void DatabaseSectionView::copyReport() {
    if (isCopyingReport_)
        return;
    set(isCopyingReport_, true);
    onWorker(
        QualityOfService::userInitiated, [&hoard = services_.hoard] { return hoard.stats(); },
        alive_.guard([this](const HoardStats& stats) { copyReportOf(stats); }));
}

void DatabaseSectionView::copyReportOf(const HoardStats& stats) {
    const ReportFacts facts =
        reportFacts(services_.platform, services_.usernotedDbPath, services_.hoard.path());
    services_.setPasteboard(
        quickReport(stats, services_.store.entries(), facts, services_.platform.scheduler->now()));
    services_.store.log(qtTrId("diag.report.copied"), Level::success, Category::system);
    set(isCopyingReport_, false);
}

// The panel comes when the handler that calls this has returned: events go on while the user
// decides, and the view with its handlers may go.
void DatabaseSectionView::exportReport() {
    if (isExportingReport_)
        return;
    set(isExportingReport_, true);
    services_.platform.scheduler->onMain(alive_.guard([this] { askForReport(); }));
}

void DatabaseSectionView::askForReport() {
    const AliveGuard::Token self = alive_.token();
    const QString minute = minuteForName(services_.platform.scheduler->now());
    const auto path =
        askForPath({QStringLiteral("Tessarine_Diagnostics_%1.txt").arg(minute),
                    qtTrId("diag.report.export.panelTitle"), qtTrId("diag.report.export.saveBtn")});
    if (!path) {
        if (self.isAlive())
            set(isExportingReport_, false);
        return;
    }
    onWorker(
        QualityOfService::userInitiated, [&hoard = services_.hoard] { return hoard.stats(); },
        alive_.guard([this, path = *path](const HoardStats& stats) {
            const QList<DiagnosticEntry>& entries = services_.store.entries();
            writeReport(path, {stats, entries.first(std::min(fileReportEntries, entries.size()))});
        }));
}

void DatabaseSectionView::writeReport(const QString& path, const DiagnosticsSnapshot& snapshot) {
    const auto finish = alive_.guard([this] { set(isExportingReport_, false); });
    const ReportFacts facts =
        reportFacts(services_.platform, services_.usernotedDbPath, services_.hoard.path());
    const auto content = includeNotifContent_ ? ReportContent::included : ReportContent::masked;
    const auto write = [path, snapshot, facts, content, now = services_.platform.scheduler->now()] {
        const QString report = fileReport(snapshot, facts, content, freshReportId(), now);
        return replacePrivately(path, report.toUtf8());
    };
    onWorker(
        QualityOfService::userInitiated, write,
        [finish, path, log = services_.store.logger()](const std::error_code& error) {
            if (error)
                log(qtTrId("diag.report.export.fail").arg(QString::fromLocal8Bit(error.message())),
                    Level::warning, Category::system);
            else
                log(qtTrId("diag.report.exported").arg(QFileInfo(path).fileName()), Level::success,
                    Category::system);
            finish();
        });
}

void DatabaseSectionView::exportData() {
    if (showDataExportSheet_)
        return;
    exportSheet_ = services_
                       .makeExportSheet(services_.hoard.fetchRecent(exportedRows),
                                        alive_.guard([this] { closeExportSheet(); }))
                       .release();
    exportSheet_->setParent(this);
    Q_EMIT exportSheetMade();
    set(showDataExportSheet_, true);
}

// A sheet that is closed may be in the middle of telling so.
void DatabaseSectionView::closeExportSheet() {
    set(showDataExportSheet_, false);
    if (exportSheet_)
        exportSheet_->deleteLater();
}

} // namespace tessarine
