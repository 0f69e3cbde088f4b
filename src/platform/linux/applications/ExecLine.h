#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace tessarine {

struct DesktopEntry;

// The words of a command line in the form of freedesktop's Desktop Entry Specification, unquoted.
// Single quotes, which the specification leaves open, hold their text as it is. Nothing where a
// quote isn't closed.
std::optional<QStringList> execWords(const QString& exec);

// A word as it is written in such a line, quoted where it must be.
QString execWord(const QString& word);

// The program that the entry starts: the first word of its command line, unquoted. Empty where the
// line is empty or broken.
QString executableOf(const DesktopEntry& entry);

// What to start for the entry when it is to open no file: program and arguments, the field codes
// replaced. Nothing where the entry's line is empty or broken.
std::optional<QStringList> commandOf(const DesktopEntry& entry);

} // namespace tessarine
