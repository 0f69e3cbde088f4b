// Writes notifications into a database as older systems kept it.

#include "tools/LegacyDatabase.h"
#include "tools/PacedAppend.h"
#include "tools/WriterConsole.h"
#include "tools/WriterOptions.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

#include <cstdlib>
#include <limits>

using namespace tessarine::tools;

namespace {

constexpr int exitFailed = 1;
constexpr int exitBadInput = 2;

struct Settings {
    bool create = false;
    bool quiet = false;
    qint64 count = 0;
    QString title = QStringLiteral("Title {n}");
    QString body = QStringLiteral("Body {n}");
    QStringList applications{QStringLiteral("com.example.mail")};
    std::optional<qint64> firstNoteId;
    WantedDate date;
    std::optional<qint64> objects;
    std::optional<double> rate;
    double hold = 0;
};

std::optional<QString> setDate(Settings& settings, const QStringList& values) {
    const auto date = values.last() == u"none"
                          ? std::optional(WantedDate{WantedDate::Kind::None, 0})
                          : parseMoment(values.last());
    if (!date) {
        return QStringLiteral("seconds, now, now-SECONDS or none is wanted, not '%1'")
            .arg(values.last());
    }
    settings.date = *date;
    return std::nullopt;
}

QList<WriterOption<Settings>> contentOptions() {
    return {
        {QStringLiteral("title"), QStringLiteral("text"),
         QStringLiteral("Title; {n} stands for the running number (default 'Title {n}')."),
         intoText(&Settings::title)},
        {QStringLiteral("body"), QStringLiteral("text"),
         QStringLiteral("Body (default 'Body {n}')."), intoText(&Settings::body)},
        {QStringLiteral("app"), QStringLiteral("bundle id"),
         QStringLiteral("Application; its row is made if needed. May be given several times: taken "
                        "in turn (default com.example.mail)."),
         intoTexts(&Settings::applications)},
        {QStringLiteral("date"), QStringLiteral("date"),
         QStringLiteral("Delivery date: seconds since 2001-01-01 UTC, now, now-SECONDS or none "
                        "(default now)."),
         setDate},
        {QStringLiteral("raw-objects"), QStringLiteral("N"),
         QStringLiteral("Cut the archive's list of objects to N; 0 and 1 leave no notification."),
         intoWholeNumber(&Settings::objects, 0)},
    };
}

QList<WriterOption<Settings>> workOptions() {
    return {
        {QStringLiteral("create"), QString(),
         QStringLiteral("Make folder, file and tables where they are missing."),
         intoFlag(&Settings::create)},
        {QStringLiteral("records"), QStringLiteral("N"),
         QStringLiteral("Append N notifications (default 0)."),
         intoWholeNumber(&Settings::count, 0)},
        {QStringLiteral("first-note-id"), QStringLiteral("N"),
         QStringLiteral("note_id of the first (default: follows the greatest)."),
         intoWholeNumber(&Settings::firstNoteId, std::numeric_limits<qint64>::min())},
        {QStringLiteral("rate"), QStringLiteral("R"),
         QStringLiteral("Append R a second, each in a transaction of its own. Without it, all go "
                        "into one transaction."),
         intoNumber(&Settings::rate, 0, Bound::Excluded)},
        {QStringLiteral("hold"), QStringLiteral("seconds"),
         QStringLiteral("Keep the connection open afterwards: 0 not at all (default), -1 until "
                        "standard input or the process is ended."),
         intoHold(&Settings::hold)},
        {QStringLiteral("quiet"), QString(),
         QStringLiteral("Print no line for each notification, only the summary."),
         intoFlag(&Settings::quiet)},
    };
}

// The id of the first notification; nothing if the table can't be read or the last id would not
// fit.
std::optional<qint64> firstNoteId(const Settings& settings, LegacyDatabase& database) {
    const std::optional<qint64> greatest = database.lastNoteId();
    if (!greatest) {
        return std::nullopt;
    }
    constexpr qint64 most = std::numeric_limits<qint64>::max();
    if (!settings.firstNoteId && *greatest == most) {
        return std::nullopt;
    }
    const qint64 first = settings.firstNoteId.value_or(*greatest + 1);
    const bool fits = first <= 0 || settings.count <= most - first;
    return fits ? std::optional(first) : std::nullopt;
}

std::optional<qint64> appendNote(const Settings& settings, LegacyDatabase& database, qint64 noteId,
                                 qint64 index) {
    const QString& application = settings.applications.at(index % settings.applications.size());
    const std::optional<qint64> appId = database.appId(application);
    if (!appId) {
        return std::nullopt;
    }
    const LegacyContent content{
        .title = numbered(settings.title, index + 1),
        .body = numbered(settings.body, index + 1),
        .date = settings.date.isMoment() ? std::optional(settings.date.moment()) : std::nullopt};
    const QByteArray payload = legacyPayload(content, settings.objects);
    return database.append(noteId, *appId, payload) ? std::optional(noteId) : std::nullopt;
}

AppendOutcome append(const Settings& settings, LegacyDatabase& database, WriterConsole& console) {
    const std::optional<qint64> first = firstNoteId(settings, database);
    if (!first) {
        return AppendOutcome::failed(
            QStringLiteral("no note_id is left, or the table can't be read"));
    }
    AppendSteps steps;
    steps.begin = [&] { return database.begin(); };
    steps.append = [&](qint64 index) {
        return appendNote(settings, database, *first + index, index);
    };
    steps.commit = [&] { return database.commit(); };
    steps.rollBack = [&] { database.rollback(); };
    steps.report = [&](const QList<qint64>& ids, qint64 committed) {
        for (const qint64 id : settings.quiet ? QList<qint64>() : ids) {
            console.print(QStringLiteral("appended %1 %2").arg(id).arg(unixTimeText(committed)));
        }
    };
    steps.error = [&] { return database.lastError(); };
    return appendPaced(settings.count, {settings.rate, std::nullopt}, steps, console);
}

int run(const Settings& settings, const QString& path, WriterConsole& console) {
    LegacyDatabase database(path);
    if (!settings.create && !QFileInfo::exists(path)) {
        console.complain(QStringLiteral("there is no %1; --create makes it").arg(path));
        return exitBadInput;
    }
    if (settings.create ? !database.createTables() : !database.open()) {
        console.complain(QStringLiteral("%1: %2").arg(path, database.lastError()));
        return exitFailed;
    }
    const AppendOutcome outcome = append(settings, database, console);
    if (outcome.error) {
        console.complain(*outcome.error);
        return exitFailed;
    }
    console.print(summary(outcome));
    console.hold(settings.hold);
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("legacy-writer"));
    const QList<WriterOption<Settings>> options = workOptions() + contentOptions();
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Writes notifications into a database as older systems kept it.\n"
        "\n"
        "Prints \"appended NOTE_ID TIME\" for each, with the Unix time after its commit, then "
        "\"records N first A last B\". Exits with 0, with 1 if the database failed, with 2 on bad "
        "input."));
    parser.addPositionalArgument(QStringLiteral("DATABASE"), QStringLiteral("The database file."));
    addOptions(parser, options);
    WriterConsole console;

    const CommandLine parsed = parseCommandLine(parser, application.arguments(), console);
    if (parsed != CommandLine::Good) {
        return parsed == CommandLine::Help ? EXIT_SUCCESS : exitBadInput;
    }
    Settings settings;
    if (const auto problem = readOptions(parser, options, settings)) {
        console.complain(*problem);
        return exitBadInput;
    }
    return run(settings, parser.positionalArguments().constFirst(), console);
}
