#pragma once

#include "platform/UserDefaults.h"

#include <QMap>
#include <QSettings>
#include <QString>
#include <QVariant>

#include <memory>
#include <mutex>

namespace tessarine {

// User defaults in an INI file, which people can read and edit while the program is off. A list is
// separated by commas. Getters are strict: a value that is not plainly of the type asked for reads
// as absent. They go by how a value reads and not by the setter that wrote it: "1" is a text, a
// bool, an integer, a number and a list of one. Programs that use Qt lock such a file while they
// write it: a setter waits for one that does so a moment, and not again for one that goes on.
class LinuxUserDefaults : public UserDefaults {
public:
    explicit LinuxUserDefaults(const QString& path);

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
    bool hasUnsavedValues() const override;

private:
    QVariant value(const QString& key) const;
    void write(const QString& key, const QVariant& value);

    // With the mutex held.
    bool isLockedByOther() const;
    bool save();

    const QString path_;
    mutable std::mutex mutex_; // guards what follows
    std::unique_ptr<QSettings> settings_;
    QMap<QString, QVariant> unsaved_; // by key; these hold instead of what the settings have
};

} // namespace tessarine
