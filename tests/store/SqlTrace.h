#pragma once

#include <QString>
#include <QStringList>

#include <sqlite3.h>

namespace tessarine::testing {

// Hears every statement that runs on the connections opened while it lives, as SQLite was given
// its text. One at a time, one thread.
class SqlTrace {
public:
    SqlTrace();
    SqlTrace(const SqlTrace&) = delete;
    SqlTrace& operator=(const SqlTrace&) = delete;
    ~SqlTrace(); // the connections are silent afterwards

    // Connections opened from now on go unheard.
    void listenToNoFurtherConnection();

    // The texts that have run since the last call, in their order.
    QStringList taken();

    // The connection opened last; null when there was none.
    sqlite3* connection() const { return connection_; }

private:
    static int connected(sqlite3* connection, char** error, const void* api);
    static int ran(unsigned event, void* self, void* statement, void* text);

    QStringList texts_;
    sqlite3* connection_ = nullptr;
};

} // namespace tessarine::testing
