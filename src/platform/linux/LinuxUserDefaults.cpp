#include "platform/linux/LinuxUserDefaults.h"

#include "platform/qt/StoredValue.h"

#include <QFile>
#include <QLockFile>

namespace tessarine {

namespace {

constexpr int lockPatience = 250; // milliseconds

std::unique_ptr<QSettings> openSettings(const QString& path) {
    auto settings = std::make_unique<QSettings>(path, QSettings::IniFormat);
    settings->setFallbacksEnabled(false);
    return settings;
}

} // namespace

LinuxUserDefaults::LinuxUserDefaults(const QString& path)
    : path_(path)
    , settings_(openSettings(path)) {}

QVariant LinuxUserDefaults::value(const QString& key) const {
    const std::lock_guard lock(mutex_);
    const auto unsaved = unsaved_.find(key);
    return unsaved != unsaved_.end() ? *unsaved : settings_->value(key);
}

void LinuxUserDefaults::write(const QString& key, const QVariant& value) {
    const std::lock_guard lock(mutex_);
    const bool isLocked = isLockedByOther();
    unsaved_[key] = value;
    if (!isLocked && save())
        unsaved_.clear();
}

// QSettings itself would wait for half a minute.
bool LinuxUserDefaults::isLockedByOther() const {
    const QString lockPath = path_ + QStringLiteral(".lock");
    if (!QFile::exists(lockPath))
        return false;
    QLockFile lock(lockPath);
    return !lock.tryLock(unsaved_.isEmpty() ? lockPatience : 0) &&
           lock.error() == QLockFile::LockFailedError;
}

// The status of QSettings is that of the first failure for ever. A new one shares what the old one
// has not written, and tries that at once.
bool LinuxUserDefaults::save() {
    for (auto value = unsaved_.cbegin(); value != unsaved_.cend(); ++value)
        settings_->setValue(value.key(), value.value());
    settings_->sync();
    if (settings_->status() != QSettings::NoError)
        settings_ = openSettings(path_);
    return settings_->status() == QSettings::NoError;
}

bool LinuxUserDefaults::hasUnsavedValues() const {
    const std::lock_guard lock(mutex_);
    return !unsaved_.isEmpty();
}

bool LinuxUserDefaults::contains(const QString& key) const {
    const std::lock_guard lock(mutex_);
    return unsaved_.contains(key) || settings_->contains(key);
}

bool LinuxUserDefaults::boolean(const QString& key) const {
    return booleanOf(value(key));
}

qint64 LinuxUserDefaults::integer(const QString& key) const {
    return integerOf(value(key));
}

double LinuxUserDefaults::real(const QString& key) const {
    return numberOf(value(key));
}

std::optional<QString> LinuxUserDefaults::text(const QString& key) const {
    return textOf(value(key));
}

QStringList LinuxUserDefaults::textList(const QString& key) const {
    return textListOf(value(key));
}

std::vector<qint64> LinuxUserDefaults::integerList(const QString& key) const {
    return integerListOf(value(key));
}

void LinuxUserDefaults::setBoolean(const QString& key, bool value) {
    write(key, value);
}

void LinuxUserDefaults::setInteger(const QString& key, qint64 value) {
    write(key, value);
}

void LinuxUserDefaults::setReal(const QString& key, double value) {
    write(key, value);
}

void LinuxUserDefaults::setText(const QString& key, const QString& value) {
    write(key, value);
}

void LinuxUserDefaults::setTextList(const QString& key, const QStringList& value) {
    write(key, value);
}

void LinuxUserDefaults::setIntegerList(const QString& key, const std::vector<qint64>& value) {
    write(key, storedForm(value));
}

} // namespace tessarine
