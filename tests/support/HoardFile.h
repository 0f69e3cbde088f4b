#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace tessarine::testing {

// Looks at a SQLite file through a connection of its own, as an outsider would.
class DatabaseFile {
public:
    explicit DatabaseFile(QString path)
        : path_(std::move(path)) {}

    // All rows of a query, each column as text ("NULL" for NULL).
    std::vector<QStringList> rows(const QString& query) const;

    // The first column of the first row as a number; -1 when there is none.
    qint64 number(const QString& query) const;

    // Runs statements that change the file. False on an error.
    bool run(const QString& script) const;

private:
    QString path_;
};

} // namespace tessarine::testing
