#include "export/ExportOptionsSheet.h"

#include "preferences/PreferencesStore.h"

// In the sources that Qt makes for the module. Naming it keeps a static library's types from being
// left out of the program.
void qml_register_types_Tessarine_Export();

namespace tessarine {

namespace {

// How long the user sees that the export is done.
constexpr double dismissDelay = 1.5;

} // namespace

ExportOptionsSheet::ExportOptionsSheet(NotificationList notifications,
                                       std::function<void()> onDismiss, const Services& services)
    : services_(services)
    , notifications_(std::move(notifications))
    , onDismiss_(std::move(onDismiss)) {
    [[maybe_unused]] const volatile auto types = &qml_register_types_Tessarine_Export;
    connect(&services_.preferences, &PreferencesStore::changed, this,
            &ExportOptionsSheet::onPreferencesChanged);
}

bool ExportOptionsSheet::offersPrivateContent() const {
    return services_.preferences.globalPrivacyMode();
}

QList<ExportFormatCard> ExportOptionsSheet::cards() {
    QList<ExportFormatCard> cards;
    for (const ExportFormat format : allExportFormats)
        cards.append({rawValue(format), iconName(format), descriptionKey(format)});
    return cards;
}

void ExportOptionsSheet::selectCard(int index) {
    setSelectedFormat(allExportFormats.at(std::size_t(index)));
}

// Where the choice is no longer offered, it is taken back: nobody could see that it stands.
void ExportOptionsSheet::onPreferencesChanged() {
    if (!offersPrivateContent()) {
        includePrivateContent_ = false;
        showPrivacyWarning_ = false;
    }
    Q_EMIT changed();
}

void ExportOptionsSheet::setSelectedFormat(ExportFormat format) {
    selectedFormat_ = format;
    Q_EMIT changed();
}

void ExportOptionsSheet::setIncludePrivateContent(bool include) {
    const bool turnsOn = include && !includePrivateContent_;
    if (turnsOn && !offersPrivateContent())
        return;
    includePrivateContent_ = include;
    if (turnsOn)
        showPrivacyWarning_ = true;
    Q_EMIT changed();
}

void ExportOptionsSheet::confirmPrivateContent() {
    showPrivacyWarning_ = false;
    includePrivateContent_ = true;
    Q_EMIT changed();
}

void ExportOptionsSheet::keepHidden() {
    showPrivacyWarning_ = false;
    includePrivateContent_ = false;
    Q_EMIT changed();
}

void ExportOptionsSheet::requestExport() {
    ++dismissal_;
    services_.scheduler.onMain(alive_.guard([this] { runExport(); }));
}

void ExportOptionsSheet::runExport() {
    if (!canExport() || asksForPath_)
        return;
    ++dismissal_;
    exportError_.reset();
    exportDone_ = false;
    Q_EMIT changed();
    const std::optional<QString> path = askForPath();
    if (!path)
        return;
    isExporting_ = true;
    Q_EMIT changed();
    dispatch(*path);
}

// Nothing when the user cancelled, and when the sheet has gone meanwhile.
std::optional<QString> ExportOptionsSheet::askForPath() {
    const AliveGuard::Token self = alive_.token();
    asksForPath_ = true;
    std::optional<QString> path = services_.exports.askSaveURL(selectedFormat_);
    if (!self.isAlive())
        return std::nullopt;
    asksForPath_ = false;
    return path;
}

void ExportOptionsSheet::dispatch(const QString& path) {
    const auto job = std::make_shared<const Job>(
        Job{services_.exports, notifications_, includePrivateContent_, selectedFormat_, path});
    const auto finishLater = alive_.guard([this](const ExportResult& result) { finish(result); });
    services_.scheduler.onGlobalQueue(
        QualityOfService::userInitiated, [job, finishLater, &scheduler = services_.scheduler] {
            scheduler.onMain([finishLater, result = job->run()] { finishLater(result); });
        });
}

ExportResult ExportOptionsSheet::Job::run() const {
    switch (format) {
    case ExportFormat::txt:
        return exports.exportTXT(notifications, includePrivate, path);
    case ExportFormat::csv:
        return exports.exportCSV(notifications, includePrivate, path);
    case ExportFormat::pdf:
        return exports.exportPDF(notifications, includePrivate, path);
    }
    Q_UNREACHABLE();
}

void ExportOptionsSheet::finish(const ExportResult& result) {
    isExporting_ = false;
    if (!result.isSuccess()) {
        exportError_ = result.failureText();
        Q_EMIT changed();
        return;
    }
    exportDone_ = true;
    Q_EMIT changed();
    services_.fileViewer.reveal(result.path());
    dismissLater();
}

void ExportOptionsSheet::dismissLater() {
    services_.scheduler.onMainAfter(dismissDelay, alive_.guard([this, number = ++dismissal_] {
        if (dismissal_ == number)
            dismiss();
    }));
}

void ExportOptionsSheet::cancel() {
    dismiss();
}

// The callback may destroy the sheet, and itself with it.
void ExportOptionsSheet::dismiss() {
    const std::function<void()> callback = onDismiss_;
    callback();
}

} // namespace tessarine
