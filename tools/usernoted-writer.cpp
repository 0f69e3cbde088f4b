// Imitates the system's notification daemon: writes records into a database of its format, all at
// once, at a steady rate, or as commands on standard input tell.

#include "tools/UsernotedAppender.h"
#include "tools/UsernotedCommands.h"
#include "tools/WriterConsole.h"
#include "tools/WriterOptions.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

#include <cstdlib>

using namespace tessarine::tools;

namespace {

constexpr int exitFailed = 1;
constexpr int exitBadInput = 2;

struct ToolSettings {
    bool create = false;
    bool commands = false;
    bool quiet = false;
    double hold = 0;
};

const QList<WriterOption<ToolSettings>>& toolOptions() {
    static const QList<WriterOption<ToolSettings>> options{
        {QStringLiteral("create"), QString(),
         QStringLiteral("Make folder, file and tables where they are missing."),
         intoFlag(&ToolSettings::create)},
        {QStringLiteral("commands"), QString(),
         QStringLiteral("Then read commands from standard input."),
         intoFlag(&ToolSettings::commands)},
        {QStringLiteral("hold"), QStringLiteral("seconds"),
         QStringLiteral("Keep the connection open afterwards: 0 not at all (default), -1 until "
                        "standard input or the process is ended."),
         intoHold(&ToolSettings::hold)},
        {QStringLiteral("quiet"), QString(),
         QStringLiteral("Print no line for each record, only the summary and answers."),
         intoFlag(&ToolSettings::quiet)},
    };
    return options;
}

constexpr auto description =
    R"(Writes notifications as the system's daemon does, for tests and for trying things out.

Prints "appended REC_ID TIME" for each record, with the Unix time after its commit, then
"records N first A last B". Exits with 0, with 1 if the database failed, with 2 on bad input.

Commands, one a line; each is answered by one line, "ok ..." or "error ...":
  append key=value ...   the options below, without the dashes; what isn't given is as on
                         the command line, but records is 1 and first-rec-id unset.
                         Quotes keep blanks; double ones know \n \t \" \\
  checkpoint [truncate]  copy the log into the file [and empty it]
  lock, unlock           begin and commit an exclusive transaction; records appended
                         between the two belong to it
  close, open            the connection
  count                  the number of records
  quit)";

int run(const ToolSettings& settings, const UsernotedRequest& request, const QString& path,
        WriterConsole& console) {
    UsernotedDatabase database(path);
    if (!settings.create && !QFileInfo::exists(path)) {
        console.complain(QStringLiteral("there is no %1; --create makes it").arg(path));
        return exitBadInput;
    }
    if (settings.create ? !database.createTables() : !database.open()) {
        console.complain(QStringLiteral("%1: %2").arg(path, database.lastError()));
        return exitFailed;
    }
    UsernotedAppender appender(database, console);
    AppendOutcome outcome =
        appender.append(request, settings.quiet ? UsernotedAppender::Report::Nothing
                                                : UsernotedAppender::Report::EachRecord);
    if (outcome.error) {
        console.complain(*outcome.error);
        return exitFailed;
    }
    console.print(summary(outcome));
    if (settings.commands) {
        outcome.add(UsernotedCommands(database, appender, console, request).run());
        console.print(summary(outcome));
    }
    console.hold(settings.hold);
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("usernoted-writer"));
    QCommandLineParser parser;
    parser.setApplicationDescription(QString::fromUtf8(description));
    parser.addPositionalArgument(QStringLiteral("DATABASE"), QStringLiteral("The database file."));
    addOptions(parser, toolOptions());
    addOptions(parser, usernotedRequestOptions());
    WriterConsole console;

    const CommandLine parsed = parseCommandLine(parser, application.arguments(), console);
    if (parsed != CommandLine::Good) {
        return parsed == CommandLine::Help ? EXIT_SUCCESS : exitBadInput;
    }
    ToolSettings settings;
    UsernotedRequest request;
    auto problem = readOptions(parser, toolOptions(), settings);
    problem = problem ? problem : readOptions(parser, usernotedRequestOptions(), request);
    problem = problem ? problem : contradictionIn(request);
    if (problem) {
        console.complain(*problem);
        return exitBadInput;
    }
    return run(settings, request, parser.positionalArguments().constFirst(), console);
}
