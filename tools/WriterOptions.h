#pragma once

#include "tools/SqliteConnection.h"
#include "tools/WriterConsole.h"

#include <QCommandLineParser>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <limits>
#include <optional>

namespace tessarine::tools {

// One option of a tool: how it is called and explained, and how its values go into the settings.
// `set` gives the reason why it refuses a value.
template <class Settings>
struct WriterOption {
    QString name;
    // How the help calls the value; empty for an option without one.
    QString valueName;
    QString help;
    std::function<std::optional<QString>(Settings&, const QStringList& values)> set;
};

template <class Settings>
void addOptions(QCommandLineParser& parser, const QList<WriterOption<Settings>>& options) {
    for (const auto& option : options) {
        parser.addOption(QCommandLineOption(option.name, option.help, option.valueName));
    }
}

// Hands the options that were given over to the settings; the first refusal, or nothing.
template <class Settings>
std::optional<QString> readOptions(const QCommandLineParser& parser,
                                   const QList<WriterOption<Settings>>& options,
                                   Settings& settings) {
    for (const auto& option : options) {
        if (!parser.isSet(option.name)) {
            continue;
        }
        if (const auto problem = option.set(settings, parser.values(option.name))) {
            return QStringLiteral("--%1: %2").arg(option.name, *problem);
        }
    }
    return std::nullopt;
}

enum class CommandLine { Good, Help, Bad };

// Parses a tool's command line, which takes one argument beside the options. Prints the help if it
// is asked for, and complains in one line about what it can't take.
[[nodiscard]] CommandLine parseCommandLine(QCommandLineParser& parser, const QStringList& arguments,
                                           const WriterConsole& console);

// For `set`: takes the last value that was given into a member of the settings.
template <class Settings, class Number>
auto intoWholeNumber(Number Settings::*member, qint64 least) {
    return [member, least](Settings& settings,
                           const QStringList& values) -> std::optional<QString> {
        bool valid = false;
        const qint64 number = values.last().toLongLong(&valid);
        if (!valid || number < least) {
            const QString range = least == std::numeric_limits<qint64>::min()
                                      ? QString()
                                      : QStringLiteral(" from %1 up").arg(least);
            return QStringLiteral("a whole number%1 is wanted, not '%2'").arg(range, values.last());
        }
        settings.*member = number;
        return std::nullopt;
    };
}

enum class Bound { Included, Excluded };

// A finite number of `least` or more, or above it.
template <class Settings, class Number>
auto intoNumber(Number Settings::*member, double least, Bound bound) {
    return [=](Settings& settings, const QStringList& values) -> std::optional<QString> {
        bool valid = false;
        const double number = values.last().toDouble(&valid);
        const bool inRange = bound == Bound::Included ? number >= least : number > least;
        if (!valid || !inRange || number > std::numeric_limits<double>::max()) {
            return QStringLiteral("a number %1 %2 is wanted, not '%3'")
                .arg(bound == Bound::Included ? QStringLiteral("from") : QStringLiteral("above"))
                .arg(least)
                .arg(values.last());
        }
        settings.*member = number;
        return std::nullopt;
    };
}

template <class Settings>
auto intoText(QString Settings::*member) {
    return [member](Settings& settings, const QStringList& values) -> std::optional<QString> {
        settings.*member = values.last();
        return std::nullopt;
    };
}

// All values, none of them empty.
template <class Settings>
auto intoTexts(QStringList Settings::*member) {
    return [member](Settings& settings, const QStringList& values) -> std::optional<QString> {
        if (values.contains(QString())) {
            return QStringLiteral("a text is wanted");
        }
        settings.*member = values;
        return std::nullopt;
    };
}

template <class Settings>
auto intoFlag(bool Settings::*member) {
    return [member](Settings& settings, const QStringList&) -> std::optional<QString> {
        settings.*member = true;
        return std::nullopt;
    };
}

// The delivery date that was asked for. `now` is followed by an optional distance.
struct WantedDate {
    enum class Kind { Fixed, Now, None, Text };
    Kind kind = Kind::Now;
    // Fixed: seconds since 2001-01-01 00:00:00 UTC, also infinite. Now: added to the moment.
    double seconds = 0;

    // Only these two lie on a line of time.
    bool isMoment() const { return kind == Kind::Fixed || kind == Kind::Now; }
    // In seconds since 2001-01-01 00:00:00 UTC; `now` by the clock. Moments only.
    double moment() const;
    // NULL, the moment, or a text.
    ColumnValue value() const;
};

// "SECONDS", "inf", "-inf", "now", "now-SECONDS" and "now+SECONDS"; otherwise nothing.
[[nodiscard]] std::optional<WantedDate> parseMoment(const QString& text);

// Puts the running number in for every "{n}".
[[nodiscard]] QString numbered(QString text, qint64 number);

// Splits a command into words at blanks. Single quotes keep everything between them as it stands;
// double quotes know \n, \t, \" and \\. Nothing if a quote stays open or an escape is unknown.
[[nodiscard]] std::optional<QStringList> splitCommand(const QString& line);

// A hold of some seconds, 0 for none, -1 until the input ends.
template <class Settings>
auto intoHold(double Settings::*member) {
    return [member](Settings& settings, const QStringList& values) -> std::optional<QString> {
        if (values.last() == u"-1") {
            settings.*member = -1;
            return std::nullopt;
        }
        return intoNumber(member, 0, Bound::Included)(settings, values);
    };
}

} // namespace tessarine::tools
