#include "diagnosticsview/DiagnosticsLogModel.h"

#include "diagnosticsview/ViewColour.h"
#include "shared/UserLocale.h"

#include <QMetaEnum>

#include <algorithm>
#include <cctype>

namespace tessarine {

namespace {

constexpr qsizetype longestMessage = 2000; // characters that a row is given

QString levelName(Level level) {
    switch (level) {
    case Level::info:
        return qtTrId("diag.level.info");
    case Level::success:
        return qtTrId("diag.level.success");
    case Level::warning:
        return qtTrId("diag.level.warning");
    case Level::activity:
        return qtTrId("diag.level.activity");
    }
    return {};
}

QByteArray withSmallFirstLetter(const char* name) {
    QByteArray text(name);
    text[0] = char(std::tolower(static_cast<unsigned char>(text[0])));
    return text;
}

} // namespace

DiagnosticsLogModel::DiagnosticsLogModel(QObject* parent)
    : QAbstractListModel(parent)
    , times_(userDateLocale()) {}

void DiagnosticsLogModel::follow(const QList<DiagnosticEntry>& entries) {
    const auto known =
        std::find_if(entries.begin(), entries.end(),
                     [this](const DiagnosticEntry& entry) { return entry.id == newestId_; });
    const qsizetype fresh = known - entries.begin();
    entries_ = entries;
    newestNumber_ += fresh;
    if (!entries.isEmpty())
        newestId_ = entries.front().id;
    const qint64 oldestNumber = newestNumber_ - entries.size() + 1;
    qsizetype kept = lines_.size();
    while (kept > 0 && lines_[kept - 1].number < oldestNumber)
        --kept;
    remove(kept, lines_.size() - kept);
    insert(0, passing(0, fresh));
}

void DiagnosticsLogModel::setFilter(std::optional<Category> category, const QString& searchText) {
    category_ = category;
    searchText_ = searchText;
    become(passing(0, entries_.size()));
}

DiagnosticsLogModel::Lines DiagnosticsLogModel::passing(qsizetype first, qsizetype end) const {
    Lines lines;
    for (qsizetype i = first; i < end; ++i) {
        if (!filteredEntries({entries_[i]}, category_, searchText_).isEmpty())
            lines.append({newestNumber_ - i, entries_[i]});
    }
    return lines;
}

void DiagnosticsLogModel::insert(qsizetype row, const Lines& lines) {
    if (lines.isEmpty())
        return;
    beginInsertRows({}, int(row), int(row + lines.size() - 1));
    lines_ = lines_.first(row) + lines + lines_.sliced(row);
    endInsertRows();
}

void DiagnosticsLogModel::remove(qsizetype row, qsizetype count) {
    if (count < 1)
        return;
    beginRemoveRows({}, int(row), int(row + count - 1));
    lines_.remove(row, count);
    endRemoveRows();
}

// Both lists have falling numbers. Lines that stand in only one of them go or come, each run of
// them at once.
void DiagnosticsLogModel::become(const Lines& wanted) {
    qsizetype row = 0;
    qsizetype next = 0;
    while (row < lines_.size() || next < wanted.size()) {
        qsizetype gone = row;
        while (gone < lines_.size() &&
               (next == wanted.size() || lines_[gone].number > wanted[next].number))
            ++gone;
        remove(row, gone - row);
        qsizetype come = next;
        while (come < wanted.size() &&
               (row == lines_.size() || wanted[come].number > lines_[row].number))
            ++come;
        insert(row, wanted.sliced(next, come - next));
        row += come - next;
        next = come;
        while (row < lines_.size() && next < wanted.size() &&
               lines_[row].number == wanted[next].number) {
            ++row;
            ++next;
        }
    }
}

int DiagnosticsLogModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(lines_.size());
}

QVariant DiagnosticsLogModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    return value(lines_[index.row()].entry, Role(role));
}

QVariant DiagnosticsLogModel::value(const DiagnosticEntry& entry, Role role) const {
    switch (role) {
    case Role::TimeText:
        return times_.text(entry.timestamp);
    case Role::CategoryName:
        return rawValue(entry.category);
    case Role::CategoryColour:
        return viewColour(colour(entry.category));
    case Role::Glyph:
        return glyph(entry.level);
    case Role::HasGlyphColour:
        return colour(entry.level).has_value();
    case Role::GlyphColour:
        return viewColour(colour(entry.level).value_or(Colour()));
    case Role::Message:
        return entry.message.left(longestMessage);
    case Role::SpokenText:
        return spokenText(entry);
    }
    return {};
}

QString DiagnosticsLogModel::spokenText(const DiagnosticEntry& entry) const {
    return QStringList{times_.text(entry.timestamp), rawValue(entry.category),
                       levelName(entry.level), entry.message.left(longestMessage)}
        .join(QStringLiteral(", "));
}

QHash<int, QByteArray> DiagnosticsLogModel::roleNames() const {
    QHash<int, QByteArray> names;
    const auto roles = QMetaEnum::fromType<Role>();
    for (int i = 0; i < roles.keyCount(); ++i)
        names.insert(roles.value(i), withSmallFirstLetter(roles.key(i)));
    return names;
}

} // namespace tessarine
