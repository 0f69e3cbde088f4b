// The operations that delete rows. None of them spares pinned rows.

#include "shared/DayKey.h"
#include "shared/Narrowing.h"
#include "shared/ReferenceTime.h"
#include "shared/Text.h"
#include "store/HoardStore.h"
#include "store/Sqlite.h"

namespace tessarine {

namespace {

constexpr const char* deleteById = "DELETE FROM notifications WHERE id = ?";
constexpr const char* deleteByAppName = "DELETE FROM notifications WHERE app_name = ?";
constexpr const char* deleteSpan =
    "DELETE FROM notifications WHERE timestamp >= ? AND timestamp < ?;";
constexpr const char* deleteEverything = "DELETE FROM notifications";
constexpr const char* deleteBefore = "DELETE FROM notifications WHERE timestamp < ?";

// Deliberately takes more than its comments say: any four digits in a row, also of a year or a
// price, and the short keywords also within longer words. LOWER converts ASCII only.
constexpr const char* deleteCodesBefore = R"(DELETE FROM notifications
WHERE timestamp < ?
AND (
    -- Short numeric codes: 4 to 8 digits as a standalone token
    title  GLOB '*[0-9][0-9][0-9][0-9]*'
    OR body GLOB '*[0-9][0-9][0-9][0-9]*'
    -- OTP keywords (checked via LOWER for unicode safety)
    OR LOWER(title) LIKE '%otp%'
    OR LOWER(body)  LIKE '%otp%'
    OR LOWER(title) LIKE '%2fa%'
    OR LOWER(body)  LIKE '%2fa%'
    OR LOWER(title) LIKE '%two-factor%'
    OR LOWER(body)  LIKE '%two-factor%'
    OR LOWER(title) LIKE '%two factor%'
    OR LOWER(body)  LIKE '%two factor%'
    OR LOWER(title) LIKE '%verification code%'
    OR LOWER(body)  LIKE '%verification code%'
    OR LOWER(title) LIKE '%verify%'
    OR LOWER(body)  LIKE '%verify%'
    OR LOWER(title) LIKE '%your code%'
    OR LOWER(body)  LIKE '%your code%'
    OR LOWER(title) LIKE '%codice%'
    OR LOWER(body)  LIKE '%codice%'
    OR LOWER(title) LIKE '%codice monouso%'
    OR LOWER(body)  LIKE '%codice monouso%'
    OR LOWER(title) LIKE '%bestätigungscode%'
    OR LOWER(body)  LIKE '%bestätigungscode%'
    OR LOWER(title) LIKE '%einmalpasswort%'
    OR LOWER(body)  LIKE '%einmalpasswort%'
    OR LOWER(title) LIKE '%code de vérification%'
    OR LOWER(body)  LIKE '%code de vérification%'
    OR LOWER(title) LIKE '%code de verification%'
    OR LOWER(body)  LIKE '%code de verification%'
    OR LOWER(title) LIKE '%passcode%'
    OR LOWER(body)  LIKE '%passcode%'
    OR LOWER(title) LIKE '%authenticate%'
    OR LOWER(body)  LIKE '%authenticate%'
    OR LOWER(title) LIKE '%one-time%'
    OR LOWER(body)  LIKE '%one-time%'
    OR LOWER(title) LIKE '%einmalig%'
    OR LOWER(body)  LIKE '%einmalig%'
);)";

} // namespace

void HoardStore::deleteNotification(qint64 id) {
    onQueue([&] {
        SqliteStatement statement(db(), deleteById);
        if (!statement.isReady())
            return;
        statement.bindInt32(1, narrowToInt32(id));
        if (changesBy([&] { return statement.stepsToDone(); }) == 1)
            recent_.rowDeleted(id);
        else
            recent_.clear();
    });
}

void HoardStore::deleteApp(const QString& appName) {
    onQueue([&] {
        SqliteStatement statement(db(), deleteByAppName);
        if (!statement.isReady())
            return;
        statement.bind(1, storedUtf8(appName));
        statement.stepsToDone();
        removeDeletedFromCache();
    });
}

// Always 24 hours, also on the days of a clock change, which have 23 or 25.
void HoardStore::deleteDay(const QString& key) {
    const std::optional<double> start = startOfDay(key);
    if (!start)
        return;
    onQueue([&] {
        SqliteStatement statement(db(), deleteSpan);
        if (!statement.isReady())
            return;
        statement.bind(1, *start);
        statement.bind(2, *start + secondsPerDay);
        statement.stepsToDone();
        removeDeletedFromCache();
    });
}

void HoardStore::deleteAll() {
    onQueue([&] {
        db().execute(deleteEverything);
        clearCaches();
    });
}

qint64 HoardStore::deleteOlderThan(qint64 days) {
    const double edge = clock_.now() + static_cast<double>(days) * -secondsPerDay;
    return onQueue([&] { return deletedBefore(edge, deleteBefore); });
}

qint64 HoardStore::deleteOtpOlderThan(qint64 hours) {
    if (hours < 1)
        return 0;
    return onQueue([&] {
        const double edge = clock_.now() + static_cast<double>(hours) * -secondsPerHour;
        return deletedBefore(edge, deleteCodesBefore);
    });
}

// A step that fails is not detected: the count is then that of the change before it.
qint64 HoardStore::deletedBefore(double edge, const char* deletion) {
    SqliteStatement statement(db(), deletion);
    if (!statement.isReady())
        return 0;
    statement.bind(1, edge);
    statement.stepsToDone();
    const int count = db().changes();
    removeDeletedFromCache();
    return count;
}

} // namespace tessarine
