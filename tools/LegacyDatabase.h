#pragma once

#include "tools/SqliteConnection.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace tessarine::tools {

// What a payload of the older systems' table tells. Empty texts are written too.
struct LegacyContent {
    QString title;
    QString body;
    // Seconds since 2001-01-01 00:00:00 UTC; without it the payload bears no date.
    std::optional<double> date;
};

// A keyed archive of a notification. `objects`, if given, cuts the archive's list of objects to
// that length, so that references point past its end; 0 and 1 leave no notification in it.
[[nodiscard]] QByteArray legacyPayload(const LegacyContent& content,
                                       std::optional<qint64> objects = std::nullopt);

// Writes a database as older systems keep it: an SQLite file with a rollback journal, so that
// every write touches the main file. For tests and developers.
//
// Failures are values: false or nothing, with the reason in `lastError`. Use from one thread at a
// time. Another writer is waited for up to ten seconds.
class LegacyDatabase {
public:
    // Touches no file yet.
    explicit LegacyDatabase(QString path);

    // Makes folder, file and tables where they are missing, and opens the file if it isn't open.
    bool createTables();
    // Opens a file that exists and bears the tables.
    bool open();
    bool isOpen() const { return connection_.isOpen(); }
    // Rolls back an open transaction.
    void close();

    // The id of the application with this bundle id, whose row is added if it is missing.
    std::optional<qint64> appId(const QString& bundleId);
    // Adds a row to `app_info`, also a second one for the same id. No bundle id is NULL.
    bool addApp(qint64 appId, const std::optional<QString>& bundleId);

    // The greatest `note_id`, 0 in an empty table.
    std::optional<qint64> lastNoteId();

    // Adds a row to `notifications`; no payload is NULL. Outside of a transaction each row is one
    // of its own.
    bool append(qint64 noteId, qint64 appId, const std::optional<QByteArray>& payload);

    // Takes the right to write at once.
    bool begin();
    bool commit();
    void rollback();

    const QString& path() const { return path_; }
    QString lastError() const { return connection_.lastError(); }

private:
    QString path_;
    SqliteConnection connection_;
};

} // namespace tessarine::tools
