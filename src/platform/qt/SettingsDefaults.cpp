#include "platform/qt/SettingsDefaults.h"

#include <QVariant>

#include <charconv>
#include <cmath>

namespace tessarine {

namespace {

template <typename Number>
std::optional<Number> plainNumber(const QString& text) {
    const QByteArray bytes = text.toLatin1(); // what is not Latin-1 becomes '?' and no number
    Number number{};
    const char* const end = bytes.constData() + bytes.size();
    const auto [stop, error] = std::from_chars(bytes.constData(), end, number);
    if (error != std::errc() || stop != end)
        return std::nullopt;
    return number;
}

// A value as its text, however it was set: in this run, or read from the file.
std::optional<QString> asText(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::QString:
    case QMetaType::Bool:
    case QMetaType::LongLong:
    case QMetaType::Double:
        return value.toString();
    default:
        return std::nullopt;
    }
}

} // namespace

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
    const std::optional<QString> text = asText(value(key));
    return text == QStringLiteral("true") || text == QStringLiteral("1");
}

qint64 SettingsDefaults::integer(const QString& key) const {
    const std::optional<QString> text = asText(value(key));
    return text ? plainNumber<qint64>(*text).value_or(0) : 0;
}

double SettingsDefaults::real(const QString& key) const {
    const std::optional<QString> text = asText(value(key));
    const double number = text ? plainNumber<double>(*text).value_or(0) : 0;
    return std::isfinite(number) ? number : 0;
}

std::optional<QString> SettingsDefaults::text(const QString& key) const {
    return asText(value(key));
}

QStringList SettingsDefaults::textList(const QString& key) const {
    const QVariant stored = value(key);
    if (stored.typeId() == QMetaType::QStringList)
        return stored.toStringList();
    if (stored.typeId() == QMetaType::QString)
        return {stored.toString()};
    return {};
}

std::vector<qint64> SettingsDefaults::integerList(const QString& key) const {
    std::vector<qint64> numbers;
    for (const QString& text : textList(key)) {
        const std::optional<qint64> number = plainNumber<qint64>(text);
        if (!number)
            return {};
        numbers.push_back(*number);
    }
    return numbers;
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
    QStringList texts;
    texts.reserve(static_cast<qsizetype>(value.size()));
    for (const qint64 number : value)
        texts.append(QString::number(number));
    write(key, texts);
}

} // namespace tessarine
