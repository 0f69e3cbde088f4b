#include "platform/qt/SettingsDefaults.h"

#include "platform/qt/StoredValue.h"

#include <QVariant>

namespace tessarine {

SettingsDefaults::SettingsDefaults(const QString& path)
    : settings_(path, QSettings::IniFormat) {
    settings_.setFallbacksEnabled(false);
}

QVariant SettingsDefaults::value(const QString& key) const {
    const std::lock_guard lock(mutex_);
    return settings_.value(key);
}

void SettingsDefaults::write(const QString& key, const QVariant& value) {
    const std::lock_guard lock(mutex_);
    settings_.setValue(key, value);
    settings_.sync();
}

bool SettingsDefaults::contains(const QString& key) const {
    const std::lock_guard lock(mutex_);
    return settings_.contains(key);
}

bool SettingsDefaults::boolean(const QString& key) const {
    return booleanOf(value(key));
}

qint64 SettingsDefaults::integer(const QString& key) const {
    return integerOf(value(key));
}

double SettingsDefaults::real(const QString& key) const {
    return numberOf(value(key));
}

std::optional<QString> SettingsDefaults::text(const QString& key) const {
    return textOf(value(key));
}

QStringList SettingsDefaults::textList(const QString& key) const {
    return textListOf(value(key));
}

std::vector<qint64> SettingsDefaults::integerList(const QString& key) const {
    return integerListOf(value(key));
}

void SettingsDefaults::setBoolean(const QString& key, bool value) {
    write(key, value);
}

void SettingsDefaults::setInteger(const QString& key, qint64 value) {
    write(key, value);
}

void SettingsDefaults::setReal(const QString& key, double value) {
    write(key, value);
}

void SettingsDefaults::setText(const QString& key, const QString& value) {
    write(key, value);
}

void SettingsDefaults::setTextList(const QString& key, const QStringList& value) {
    write(key, value);
}

void SettingsDefaults::setIntegerList(const QString& key, const std::vector<qint64>& value) {
    write(key, storedForm(value));
}

} // namespace tessarine
