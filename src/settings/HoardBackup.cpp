#include "settings/HoardBackup.h"

#include "platform/Scheduler.h"
#include "shared/DayKey.h"
#include "store/HoardStore.h"

#include <utility>

namespace tessarine {

namespace {

const QString extension = QStringLiteral("db");

} // namespace

HoardBackup::HoardBackup(HoardStore& hoard, Scheduler& scheduler, SavePanel& savePanel)
    : hoard_(hoard)
    , scheduler_(scheduler)
    , savePanel_(savePanel) {}

void HoardBackup::request() {
    if (!isRunning_)
        setShowWarning(true);
}

void HoardBackup::setShowWarning(bool shown) {
    if (std::exchange(showWarning_, shown) != shown)
        Q_EMIT changed();
}

void HoardBackup::setShowError(bool shown) {
    if (std::exchange(showError_, shown) != shown)
        Q_EMIT changed();
}

QString HoardBackup::suggestedName() const {
    return QStringLiteral("hoard-backup-") + dayKey(scheduler_.now()) + u'.' + extension;
}

void HoardBackup::proceed() {
    setShowWarning(false);
    if (isRunning_)
        return;
    isRunning_ = true;
    Q_EMIT changed();
    scheduler_.onMain(alive_.guard([this] { run(); }));
}

void HoardBackup::run() {
    const AliveGuard::Token self = alive_.token();
    const std::optional<QString> path =
        savePanel_.runModal({suggestedName(), qtTrId("prefs.storage.backup.panel.title"),
                             qtTrId("prefs.storage.backup.panel.save"), extension});
    if (!self.isAlive())
        return;
    if (path)
        copyTo(*path);
    else
        finish(std::nullopt);
}

void HoardBackup::copyTo(const QString& path) {
    const auto finishLater =
        alive_.guard([this](const std::optional<QString>& failure) { finish(failure); });
    scheduler_.onGlobalQueue(
        QualityOfService::utility, [&hoard = hoard_, &scheduler = scheduler_, path, finishLater] {
            scheduler.onMain([finishLater, failure = hoard.copyTo(path)] { finishLater(failure); });
        });
}

void HoardBackup::finish(const std::optional<QString>& failure) {
    isRunning_ = false;
    error_ = failure.value_or(QString());
    showError_ = failure.has_value();
    Q_EMIT changed();
}

} // namespace tessarine
