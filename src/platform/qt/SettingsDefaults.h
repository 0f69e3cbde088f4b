#pragma once

#include "platform/UserDefaults.h"

#include <QSettings>

#include <mutex>

namespace tessarine {

// User defaults in an INI file, which people can read and edit while the program is off. A list is
// separated by commas.
class SettingsDefaults : public UserDefaults {
public:
    explicit SettingsDefaults(const QString& path);

    bool contains(const QString& key) const override;
    bool boolean(const QString& key) const override;
    qint64 integer(const QString& key) const override;
    double real(const QString& key) const override;
    std::optional<QString> text(const QString& key) const override;
    QStringList textList(const QString& key) const override;
    std::vector<qint64> integerList(const QString& key) const override;

    void setBoolean(const QString& key, bool value) override;
    void setInteger(const QString& key, qint64 value) override;
    void setReal(const QString& key, double value) override;
    void setText(const QString& key, const QString& value) override;
    void setTextList(const QString& key, const QStringList& value) override;
    void setIntegerList(const QString& key, const std::vector<qint64>& value) override;

private:
    QVariant value(const QString& key) const;
    void write(const QString& key, const QVariant& value);

    mutable std::mutex mutex_;
    QSettings settings_;
};

} // namespace tessarine
