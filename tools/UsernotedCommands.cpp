#include "tools/UsernotedCommands.h"

#include <QMap>

namespace tessarine::tools {

namespace {

QString unknown(const QString& command) {
    return QStringLiteral("error there is no command '%1'").arg(command);
}

// Puts "key=value" arguments into a request; the first refusal, or nothing.
std::optional<QString> readArguments(const QStringList& arguments, UsernotedRequest& request) {
    QMap<QString, QStringList> values;
    for (const QString& argument : arguments) {
        values[argument.section(u'=', 0, 0)].append(argument.section(u'=', 1));
    }
    for (const auto& option : usernotedRequestOptions()) {
        const QStringList given = values.take(option.name);
        if (given.isEmpty()) {
            continue;
        }
        if (const auto problem = option.set(request, given)) {
            return QStringLiteral("%1: %2").arg(option.name, *problem);
        }
    }
    return values.isEmpty()
               ? std::nullopt
               : std::optional(QStringLiteral("there is no key '%1'").arg(values.firstKey()));
}

} // namespace

UsernotedCommands::UsernotedCommands(UsernotedDatabase& database, UsernotedAppender& appender,
                                     WriterConsole& console, UsernotedRequest defaults)
    : database_(database)
    , appender_(appender)
    , console_(console)
    , defaults_(std::move(defaults)) {
    defaults_.count = 1;
    defaults_.firstRecordId.reset();
}

AppendOutcome UsernotedCommands::run() {
    while (!quit_) {
        const std::optional<QString> line = console_.readLine();
        if (!line) {
            break;
        }
        if (!line->trimmed().isEmpty()) {
            console_.print(answer(*line));
        }
    }
    return total_;
}

QString UsernotedCommands::answer(const QString& line) {
    const std::optional<QStringList> words = splitCommand(line);
    if (!words) {
        return QStringLiteral("error open quote or unknown escape");
    }
    const QString& name = words->first();
    const QStringList arguments = words->mid(1);
    if (name == u"append") {
        return append(arguments);
    }
    if (name == u"checkpoint" && arguments == QStringList{QStringLiteral("truncate")}) {
        return checkpoint(UsernotedDatabase::Checkpoint::Truncate);
    }
    return arguments.isEmpty() ? answerPlain(name) : unknown(line);
}

QString UsernotedCommands::answerPlain(const QString& name) {
    if (name == u"checkpoint") {
        return checkpoint(UsernotedDatabase::Checkpoint::Passive);
    }
    if (name == u"lock") {
        return outcome(database_.begin(UsernotedDatabase::Transaction::Exclusive), name);
    }
    if (name == u"unlock") {
        return outcome(database_.commit(), name);
    }
    if (name == u"close") {
        return close();
    }
    if (name == u"open") {
        return outcome(database_.open(), name);
    }
    if (name == u"count") {
        return count();
    }
    quit_ = name == u"quit";
    return quit_ ? QStringLiteral("ok quit") : unknown(name);
}

QString UsernotedCommands::append(const QStringList& arguments) {
    UsernotedRequest request = defaults_;
    auto problem = readArguments(arguments, request);
    problem = problem ? problem : contradictionIn(request);
    if (problem) {
        return QStringLiteral("error ") + *problem;
    }
    AppendOutcome done = appender_.append(request, UsernotedAppender::Report::Nothing);
    const std::optional<QString> error = std::exchange(done.error, std::nullopt);
    total_.add(done);
    return error ? QStringLiteral("error ") + *error
                 : QStringLiteral("ok %1 time %2").arg(summary(done), unixTimeText(done.committed));
}

QString UsernotedCommands::checkpoint(UsernotedDatabase::Checkpoint kind) {
    const auto frames = database_.checkpoint(kind);
    return frames ? QStringLiteral("ok checkpoint log %1 copied %2")
                        .arg(frames->logFrames)
                        .arg(frames->checkpointedFrames)
                  : failure();
}

QString UsernotedCommands::close() {
    const bool wasOpen = database_.isOpen();
    database_.close();
    return wasOpen ? QStringLiteral("ok close") : QStringLiteral("error the database is not open");
}

QString UsernotedCommands::count() {
    const std::optional<qint64> records = database_.recordCount();
    return records ? QStringLiteral("ok count %1").arg(*records) : failure();
}

QString UsernotedCommands::outcome(bool done, const QString& name) const {
    return done ? QStringLiteral("ok ") + name : failure();
}

QString UsernotedCommands::failure() const {
    return QStringLiteral("error ") + database_.lastError();
}

} // namespace tessarine::tools
