#include "support/HoardFile.h"

#include <sqlite3.h>

namespace tessarine::testing {

namespace {

QString columnText(sqlite3_stmt* statement, int column) {
    const auto* const text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    return text ? QString::fromUtf8(text, sqlite3_column_bytes(statement, column))
                : QStringLiteral("NULL");
}

} // namespace

std::vector<QStringList> DatabaseFile::rows(const QString& query) const {
    std::vector<QStringList> found;
    sqlite3* connection = nullptr;
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_open_v2(path_.toUtf8().constData(), &connection, SQLITE_OPEN_READWRITE, nullptr) ==
            SQLITE_OK &&
        sqlite3_prepare_v2(connection, query.toUtf8().constData(), -1, &statement, nullptr) ==
            SQLITE_OK) {
        sqlite3_busy_timeout(connection, 5000);
        while (sqlite3_step(statement) == SQLITE_ROW) {
            QStringList& row = found.emplace_back();
            for (int column = 0; column < sqlite3_column_count(statement); ++column)
                row.append(columnText(statement, column));
        }
    }
    sqlite3_finalize(statement);
    sqlite3_close(connection);
    return found;
}

qint64 DatabaseFile::number(const QString& query) const {
    const std::vector<QStringList> found = rows(query);
    return found.empty() ? -1 : found.front().front().toLongLong();
}

bool DatabaseFile::run(const QString& script) const {
    sqlite3* connection = nullptr;
    const bool done = sqlite3_open(path_.toUtf8().constData(), &connection) == SQLITE_OK &&
                      sqlite3_exec(connection, script.toUtf8().constData(), nullptr, nullptr,
                                   nullptr) == SQLITE_OK;
    sqlite3_close(connection);
    return done;
}

} // namespace tessarine::testing
