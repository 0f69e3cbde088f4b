#pragma once

#include "platform/UserDefaults.h"

#include <atomic>

#import <Foundation/Foundation.h>

namespace tessarine {

// The user defaults of the program's own domain. A value of another type than the one asked for
// reads as the system's getter reads it: numbers and texts are converted into each other, and
// "YES" and "true" are true.
class MacUserDefaults : public UserDefaults {
public:
    explicit MacUserDefaults(NSUserDefaults* defaults);

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
    void store(const QString& key, id value);

    NSUserDefaults* const defaults_;
    std::atomic<bool> isSaved_ = true;
};

} // namespace tessarine
