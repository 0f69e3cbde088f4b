#pragma once

#include "diagnostics/DiagnosticEntry.h"
#include "diagnostics/LogTimeFormatter.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace tessarine {

// The lines of the log that pass a filter, the newest first. A new log is told as the lines that
// came at its beginning and went at its end, another filter as those between, never as a reset: a
// view keeps its place. Main thread.
class DiagnosticsLogModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("DiagnosticsLog brings it")

public:
    // Each is a role in QML, under its name with a small first letter.
    enum class Role {
        TimeText = Qt::UserRole + 1,
        CategoryName,
        CategoryColour,
        Glyph,
        HasGlyphColour, // else the glyph has the colour of secondary texts
        GlyphColour,
        Message,    // its beginning: as much as a row can show
        SpokenText, // the whole line for a screen reader
    };
    Q_ENUM(Role)

    explicit DiagnosticsLogModel(QObject* parent = nullptr);

    // The log as it is now. What was there before is told apart from what is new by the id of the
    // newest entry.
    void follow(const QList<DiagnosticEntry>& entries);

    void setFilter(std::optional<Category> category, const QString& searchText);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    // Lines are numbered in the order of their coming.
    struct Line {
        qint64 number;
        DiagnosticEntry entry;
    };
    using Lines = QList<Line>;

    Lines passing(qsizetype first, qsizetype end) const;
    void insert(qsizetype row, const Lines& lines);
    void remove(qsizetype row, qsizetype count);
    void become(const Lines& wanted);
    QVariant value(const DiagnosticEntry& entry, Role role) const;
    QString spokenText(const DiagnosticEntry& entry) const;

    QList<DiagnosticEntry> entries_;
    qint64 newestNumber_ = 0; // of the entries
    QUuid newestId_;
    std::optional<Category> category_;
    QString searchText_;
    Lines lines_;
    LogTimeFormatter times_;
};

} // namespace tessarine
