#pragma once

#include "tools/PacedAppend.h"
#include "tools/UsernotedDatabase.h"
#include "tools/WriterOptions.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace tessarine::tools {

// Which records to append.
struct UsernotedRequest {
    qint64 count = 0;
    // Taken in turn.
    QList<UsernotedForm> forms{UsernotedForm::RequestTitleBody};
    // "{n}" in them stands for the running number.
    QString title = QStringLiteral("Title {n}");
    QString body = QStringLiteral("Body {n}");
    QString subtitle = QStringLiteral("Subtitle {n}");
    // Bundle ids, taken in turn.
    QStringList applications{QStringLiteral("com.example.Mail")};
    // Takes the place of the application's own id; must have no row in `app`.
    std::optional<qint64> strayAppId;
    // Without it the first follows the greatest in the table.
    std::optional<qint64> firstRecordId;
    qint64 recordIdStep = 1;
    WantedDate date;
    // Seconds from the first record's date to the last's, which is `date`.
    std::optional<double> span;
    // One date for all; otherwise "now" is each record's own moment.
    bool sameDate = false;
    std::optional<double> rate;
    std::optional<qint64> batch;
};

// The options that make up a request, for the command line and for the command `append` alike.
[[nodiscard]] const QList<WriterOption<UsernotedRequest>>& usernotedRequestOptions();

// Why a request can't be met, as far as it contradicts itself.
[[nodiscard]] std::optional<QString> contradictionIn(const UsernotedRequest& request);

// Appends records to a database. If a transaction is open already, the rows join it and its owner
// commits; otherwise transactions follow the request's pace.
class UsernotedAppender {
public:
    enum class Report { EachRecord, Nothing };

    // Both must outlive the appender.
    UsernotedAppender(UsernotedDatabase& database, WriterConsole& console);

    // Reports "appended REC_ID TIME" after the commit if that is wanted.
    AppendOutcome append(const UsernotedRequest& request, Report report);

private:
    std::optional<QString> prepare(const UsernotedRequest& request);
    std::optional<qint64> appendRow(const UsernotedRequest& request, qint64 index);
    ColumnValue dateOf(const UsernotedRequest& request, qint64 index) const;
    std::optional<qint64> appIdFor(const UsernotedRequest& request, const QString& application);

    UsernotedDatabase& database_;
    WriterConsole& console_;
    // Runs on over all requests.
    qint64 runningNumber_ = 0;
    qint64 firstRecordId_ = 0;
    // The moment of the last record of the request under way, if the request fixes it.
    std::optional<double> lastMoment_;
};

} // namespace tessarine::tools
