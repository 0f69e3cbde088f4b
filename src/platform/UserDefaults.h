#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace tessarine {

// The key-value store of the user's settings and cursors. What a setter is given is on disk before
// it returns. What could not be written holds for this run, and the next setter writes it too if it
// can; until then hasUnsavedValues() tells. Nothing waits for long. What was set reads as it was
// set by the getter of its own type. What a getter makes of a value of another type is the system's
// habit: nothing, or the value converted; a text that is no number is 0 everywhere, and no list of
// texts. Any thread.
class UserDefaults {
public:
    UserDefaults() = default;
    UserDefaults(const UserDefaults&) = delete;
    UserDefaults& operator=(const UserDefaults&) = delete;
    virtual ~UserDefaults() = default;

    virtual bool contains(const QString& key) const = 0;

    virtual bool boolean(const QString& key) const = 0;   // false when absent
    virtual qint64 integer(const QString& key) const = 0; // 0 when absent
    virtual double real(const QString& key) const = 0;    // 0 when absent or not finite
    virtual std::optional<QString> text(const QString& key) const = 0;
    virtual QStringList textList(const QString& key) const = 0; // empty when absent
    // Empty when absent, and when a single element is no integer.
    virtual std::vector<qint64> integerList(const QString& key) const = 0;

    virtual void setBoolean(const QString& key, bool value) = 0;
    virtual void setInteger(const QString& key, qint64 value) = 0;
    virtual void setReal(const QString& key, double value) = 0;
    virtual void setText(const QString& key, const QString& value) = 0;
    virtual void setTextList(const QString& key, const QStringList& value) = 0;
    virtual void setIntegerList(const QString& key, const std::vector<qint64>& value) = 0;

    // Whether a value that was set is not on disk, by what the last setter has met with.
    virtual bool hasUnsavedValues() const = 0;
};

} // namespace tessarine
