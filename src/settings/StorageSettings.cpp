#include "settings/StorageSettings.h"

#include "platform/Scheduler.h"
#include "preferences/PreferencesStore.h"
#include "settings/FileSizeText.h"
#include "store/HoardStore.h"

#include <QFileInfo>

namespace tessarine {

StorageSettings::StorageSettings(PreferencesStore& preferences, HoardStore& hoard,
                                 Scheduler& scheduler, SavePanel& savePanel)
    : preferences_(preferences)
    , hoard_(hoard)
    , scheduler_(scheduler)
    , backup_(hoard, scheduler, savePanel) {
    connect(&preferences, &PreferencesStore::changed, this, &StorageSettings::changed);
}

void StorageSettings::appear() {
    refreshSize();
}

void StorageSettings::disappear() {
    backup_.setShowWarning(false);
    backup_.setShowError(false);
}

// Asks for the size without opening the file, which would end SQLite's locks on it.
void StorageSettings::refreshSize() {
    const auto takeLater = alive_.guard([this](qint64 bytes) {
        hoardSize_ = fileSizeText(bytes);
        Q_EMIT hoardSizeChanged();
    });
    scheduler_.onGlobalQueue(
        QualityOfService::utility, [path = hoard_.path(), &scheduler = scheduler_, takeLater] {
            scheduler.onMain([takeLater, bytes = QFileInfo(path).size()] { takeLater(bytes); });
        });
}

int StorageSettings::retentionIndex() const {
    return tessarine::retentionIndex(preferences_.retentionDays());
}

void StorageSettings::chooseRetention(int index) {
    preferences_.setRetentionDays(retentionChoices.at(std::size_t(index)));
}

QString StorageSettings::retentionText() const {
    return tessarine::retentionText(preferences_.retentionDays());
}

PreferenceNote StorageSettings::retentionNote() const {
    return tessarine::retentionNote(preferences_.retentionDays());
}

} // namespace tessarine
