#include "tools/UsernotedAppender.h"

#include <limits>

namespace tessarine::tools {

namespace {

using Option = WriterOption<UsernotedRequest>;
using Request = UsernotedRequest;

constexpr qint64 lowest = std::numeric_limits<qint64>::min();
constexpr double aMomentBeforeTheReferenceDate = -1.0;

std::optional<QString> setForms(Request& request, const QStringList& values) {
    const QList<UsernotedForm> forms = usernotedFormsNamed(values.last());
    if (forms.isEmpty()) {
        return QStringLiteral("there is no form '%1'").arg(values.last());
    }
    request.forms = forms;
    return std::nullopt;
}

std::optional<QString> setDate(Request& request, const QStringList& values) {
    const QString& text = values.last();
    std::optional<WantedDate> date = parseMoment(text);
    if (text == u"null") {
        date = WantedDate{WantedDate::Kind::None, 0};
    } else if (text == u"text") {
        date = WantedDate{WantedDate::Kind::Text, 0};
    } else if (text == u"negative") {
        date = WantedDate{WantedDate::Kind::Fixed, aMomentBeforeTheReferenceDate};
    }
    if (!date) {
        return QStringLiteral("seconds, now, now-SECONDS, null, text, inf, -inf or negative is "
                              "wanted, not '%1'")
            .arg(text);
    }
    request.date = *date;
    return std::nullopt;
}

std::optional<QString> setStep(Request& request, const QStringList& values) {
    auto problem = intoWholeNumber(&Request::recordIdStep, lowest)(request, values);
    if (!problem && request.recordIdStep == 0) {
        return QStringLiteral("a step of 0 would repeat the rec_id");
    }
    return problem;
}

QList<Option> textOptions() {
    return {
        {QStringLiteral("form"), QStringLiteral("form"),
         QStringLiteral("Form of the payload (default request-title-body): ") +
             usernotedFormNames().join(QStringLiteral(", ")) +
             QStringLiteral(". mixed takes all that give text in turn, mixed-bad all others."),
         setForms},
        {QStringLiteral("title"), QStringLiteral("text"),
         QStringLiteral("Title; {n} stands for the running number (default 'Title {n}')."),
         intoText(&Request::title)},
        {QStringLiteral("body"), QStringLiteral("text"),
         QStringLiteral("Body (default 'Body {n}')."), intoText(&Request::body)},
        {QStringLiteral("subtitle"), QStringLiteral("text"),
         QStringLiteral("Subtitle, for the forms that have one (default 'Subtitle {n}')."),
         intoText(&Request::subtitle)},
        {QStringLiteral("app"), QStringLiteral("bundle id"),
         QStringLiteral("Application; its row is made if needed, in lower case. May be given "
                        "several times: taken in turn (default com.example.Mail)."),
         intoTexts(&Request::applications)},
        {QStringLiteral("no-app-row"), QStringLiteral("app_id"),
         QStringLiteral("Use this app_id, which must have no row in app."),
         intoWholeNumber(&Request::strayAppId, lowest)},
    };
}

QList<Option> numberOptions() {
    return {
        {QStringLiteral("records"), QStringLiteral("N"),
         QStringLiteral("Append N records (default 0)."), intoWholeNumber(&Request::count, 0)},
        {QStringLiteral("first-rec-id"), QStringLiteral("N"),
         QStringLiteral("rec_id of the first record (default: follows the greatest)."),
         intoWholeNumber(&Request::firstRecordId, lowest)},
        {QStringLiteral("rec-id-step"), QStringLiteral("K"),
         QStringLiteral("From one rec_id to the next (default 1)."), setStep},
        {QStringLiteral("date"), QStringLiteral("date"),
         QStringLiteral("delivered_date: seconds since 2001-01-01 UTC, now, now-SECONDS, null, "
                        "text, inf, -inf or negative (default now: each record's own moment)."),
         setDate},
        {QStringLiteral("span"), QStringLiteral("seconds"),
         QStringLiteral("Spread the dates evenly over this span, oldest first, ending at --date."),
         intoNumber(&Request::span, 0, Bound::Included)},
        {QStringLiteral("same-date"), QString(),
         QStringLiteral("Give all records the very same date."), intoFlag(&Request::sameDate)},
        {QStringLiteral("rate"), QStringLiteral("R"),
         QStringLiteral("Append R records per second, each in a transaction of its own. Without "
                        "it, all go into one transaction."),
         intoNumber(&Request::rate, 0, Bound::Excluded)},
        {QStringLiteral("batch"), QStringLiteral("K"),
         QStringLiteral("Put K records into a transaction."), intoWholeNumber(&Request::batch, 1)},
    };
}

// The id of a row, if it is one.
std::optional<qint64> recordIdAt(qint64 first, qint64 step, qint64 index) {
    qint64 distance = 0;
    qint64 id = 0;
    if (__builtin_mul_overflow(step, index, &distance) ||
        __builtin_add_overflow(first, distance, &id)) {
        return std::nullopt;
    }
    return id;
}

// The date for the payload, which has room for a number only.
double payloadDate(const ColumnValue& date) {
    const auto* const seconds = std::get_if<double>(&date);
    return seconds ? *seconds : 0;
}

} // namespace

const QList<Option>& usernotedRequestOptions() {
    static const QList<Option> options = numberOptions() + textOptions();
    return options;
}

std::optional<QString> contradictionIn(const Request& request) {
    if (request.span && request.sameDate) {
        return QStringLiteral("--span and --same-date exclude each other");
    }
    if (request.span && !request.date.isMoment()) {
        return QStringLiteral("--span needs a --date that is a moment");
    }
    if (request.recordIdStep < 0 && !request.firstRecordId) {
        return QStringLiteral("a negative --rec-id-step needs --first-rec-id");
    }
    if (request.firstRecordId && request.count > 0 &&
        !recordIdAt(*request.firstRecordId, request.recordIdStep, request.count - 1)) {
        return QStringLiteral("the last rec_id would not fit 64 bits");
    }
    return std::nullopt;
}

UsernotedAppender::UsernotedAppender(UsernotedDatabase& database, WriterConsole& console)
    : database_(database)
    , console_(console) {}

AppendOutcome UsernotedAppender::append(const Request& request, Report report) {
    const bool joins = database_.inTransaction();
    if (const auto problem = prepare(request)) {
        return AppendOutcome::failed(*problem);
    }
    AppendSteps steps;
    steps.begin = [&] { return joins || database_.begin(); };
    steps.append = [&](qint64 index) { return appendRow(request, index); };
    steps.commit = [&] { return joins || database_.commit(); };
    steps.rollBack = [&] {
        if (!joins) {
            database_.rollback();
        }
    };
    steps.report = [&](const QList<qint64>& ids, qint64 committed) {
        for (const qint64 id : report == Report::EachRecord ? ids : QList<qint64>()) {
            console_.print(QStringLiteral("appended %1 %2").arg(id).arg(unixTimeText(committed)));
        }
    };
    steps.error = [&] { return database_.lastError(); };
    return appendPaced(request.count, {request.rate, request.batch}, steps, console_);
}

// Settles what all records of a request share; the reason why that can't be done, or nothing.
std::optional<QString> UsernotedAppender::prepare(const Request& request) {
    const auto last = database_.lastRecordId();
    if (!last) {
        return database_.lastError();
    }
    const auto next = recordIdAt(*last, request.recordIdStep, 1);
    if (!request.firstRecordId && (!next || !recordIdAt(*next, request.recordIdStep,
                                                        std::max<qint64>(request.count - 1, 0)))) {
        return QStringLiteral("the last rec_id would not fit 64 bits");
    }
    firstRecordId_ = request.firstRecordId ? *request.firstRecordId : *next;
    if (request.strayAppId && database_.hasApp(*request.strayAppId).value_or(false)) {
        return QStringLiteral("app_id %1 has a row in app").arg(*request.strayAppId);
    }
    const bool fixed = request.span || request.sameDate;
    lastMoment_ =
        fixed && request.date.isMoment() ? std::optional(request.date.moment()) : std::nullopt;
    return std::nullopt;
}

std::optional<qint64> UsernotedAppender::appendRow(const Request& request, qint64 index) {
    const qint64 number = ++runningNumber_;
    const qint64 id = *recordIdAt(firstRecordId_, request.recordIdStep, index);
    const QString& application = request.applications.at(index % request.applications.size());
    const std::optional<qint64> appId = appIdFor(request, application);
    if (!appId) {
        return std::nullopt;
    }
    const ColumnValue date = dateOf(request, index);
    const UsernotedContent content{.title = numbered(request.title, number),
                                   .body = numbered(request.body, number),
                                   .subtitle = numbered(request.subtitle, number),
                                   .application = application,
                                   .date = payloadDate(date),
                                   .recordId = id};
    const UsernotedForm form = request.forms.at(index % request.forms.size());
    return database_.append(id, *appId, usernotedPayload(form, content), date) ? std::optional(id)
                                                                               : std::nullopt;
}

ColumnValue UsernotedAppender::dateOf(const Request& request, qint64 index) const {
    if (!lastMoment_) {
        return request.date.value();
    }
    const qint64 steps = request.count - 1;
    if (index == steps) {
        return *lastMoment_;
    }
    return *lastMoment_ - request.span.value_or(0) * static_cast<double>(steps - index) /
                              static_cast<double>(steps);
}

std::optional<qint64> UsernotedAppender::appIdFor(const Request& request,
                                                  const QString& application) {
    return request.strayAppId ? request.strayAppId : database_.appId(application.toLower());
}

} // namespace tessarine::tools
