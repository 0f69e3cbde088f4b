#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <optional>

namespace tessarine {

// The group "Desktop Entry" of a file in the form of freedesktop's Desktop Entry Specification: its
// keys as they are written, localised ones with their suffix, and their values unescaped.
using DesktopEntryKeys = QHash<QString, QString>;

DesktopEntryKeys desktopEntryKeys(const QByteArray& content);

// The same of a file. Nothing where it can't be read.
std::optional<DesktopEntryKeys> readDesktopEntryKeys(const QString& path);

// As GLib and the specification read booleans: "true" alone is true.
bool isTrue(const DesktopEntryKeys& keys, const QString& key);

// A text as it is written for the value of a key.
QString escapedValue(const QString& text);

} // namespace tessarine
