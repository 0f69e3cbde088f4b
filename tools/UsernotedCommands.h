#pragma once

#include "tools/UsernotedAppender.h"

#include <QString>
#include <QStringList>

namespace tessarine::tools {

// Carries out the commands that a script sends over standard input, one a line, and answers each
// by one line on standard output, "ok ..." or "error ...". Blank lines are passed over.
//
//     append key=value ...   as the options of a request; what isn't given is as in the defaults,
//                            but it is one record, whose rec_id follows the greatest
//     checkpoint [truncate]
//     lock, unlock           begin and commit an exclusive transaction
//     close, open            the connection
//     count                  the number of records
//     quit
class UsernotedCommands {
public:
    // Everything that is referred to must outlive this.
    UsernotedCommands(UsernotedDatabase& database, UsernotedAppender& appender,
                      WriterConsole& console, UsernotedRequest defaults);

    // Until `quit`, the end of the input or the request to end; gives what was appended.
    AppendOutcome run();

private:
    QString answer(const QString& line);
    QString answerPlain(const QString& name);
    QString append(const QStringList& arguments);
    QString checkpoint(UsernotedDatabase::Checkpoint kind);
    QString close();
    QString count();
    QString outcome(bool done, const QString& name) const;
    QString failure() const;

    UsernotedDatabase& database_;
    UsernotedAppender& appender_;
    WriterConsole& console_;
    UsernotedRequest defaults_;
    AppendOutcome total_;
    bool quit_ = false;
};

} // namespace tessarine::tools
