#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>
#include <vector>

// A stored value as each type of setting, judged by its form alone: an INI file holds nothing but
// texts, so that what was set must read alike in the run that set it and in the next one. "1" is a
// text, a bool, an integer, a number, and a list of one. What is not plainly of a type is none.

namespace tessarine {

bool booleanOf(const QVariant& value);   // "true" or "1"
qint64 integerOf(const QVariant& value); // 0 for none
double numberOf(const QVariant& value);  // 0 for none, and for what is not finite
QStringList textListOf(const QVariant& value);
std::optional<QString> textOf(const QVariant& value);
std::vector<qint64> integerListOf(const QVariant& value); // all or none

// The form in which a list of integers is stored.
QStringList storedForm(const std::vector<qint64>& numbers);

} // namespace tessarine
