#include "store/SqlTrace.h"

namespace tessarine::testing {

namespace {

SqlTrace* current = nullptr;

using EntryPoint = void (*)();

} // namespace

SqlTrace::SqlTrace() {
    current = this;
    sqlite3_auto_extension(reinterpret_cast<EntryPoint>(&SqlTrace::connected));
}

SqlTrace::~SqlTrace() {
    listenToNoFurtherConnection();
    current = nullptr;
}

void SqlTrace::listenToNoFurtherConnection() {
    sqlite3_cancel_auto_extension(reinterpret_cast<EntryPoint>(&SqlTrace::connected));
}

QStringList SqlTrace::taken() {
    return std::exchange(texts_, {});
}

int SqlTrace::connected(sqlite3* connection, char**, const void*) {
    current->connection_ = connection;
    return sqlite3_trace_v2(connection, SQLITE_TRACE_STMT, &SqlTrace::ran, nullptr);
}

int SqlTrace::ran(unsigned, void*, void*, void* text) {
    if (current)
        current->texts_.append(QString::fromUtf8(static_cast<const char*>(text)));
    return 0;
}

} // namespace tessarine::testing
