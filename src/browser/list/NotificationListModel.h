#pragma once

#include "browser/list/ListEntry.h"

#include <QAbstractListModel>
#include <QSet>
#include <QtQml/qqmlregistration.h>

#include <functional>

namespace tessarine {

// The lines of the browser's list: notifications, and headers where they are grouped. A new list is
// told as the lines that went, came and changed, never as a reset: every reload makes new ids, and
// a view must keep its place all the same. Main thread.
class NotificationListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("BrowserList brings it")

public:
    // Each is a role in QML, under its name with a small first letter.
    enum class Role {
        Kind = Qt::UserRole + 1, // "row" or "header"; the roles below are a row's, but for Header
        NotificationId,          // fresh with each reload
        BundleId,
        AppName,
        Title,    // its beginning: as much as a row can show
        Body,     // likewise
        TimeText, // in the user's style: date and time, or the time alone below a day's header
        Pinned,
        IsPrivate, // content is hidden until the user asks for it
        IsSelected,
        IsFocused,
        IsArriving, // fades in with its group; read when a view makes the row
        IsLeaving,  // fades out with its group, and is gone after that
        SpokenText, // the whole row for a screen reader
        SpokenMask, // the same while its content is hidden
        Header,     // a GroupHeader
    };
    Q_ENUM(Role)

    using IsPrivate = std::function<bool(const QString& bundleId)>;

    explicit NotificationListModel(IsPrivate isPrivate = {}, QObject* parent = nullptr);

    void setEntries(ListEntries entries);
    const ListEntries& entries() const { return entries_; }

    // What the rows are marked with. They are told apart by their ids in memory.
    void setSelected(const QSet<QUuid>& ids);
    void setFocused(const QUuid& id);

    // To be called when the answer to IsPrivate has changed.
    void privacyChanged();

    // The rows of a group, those hidden too. Empty when no header has the key.
    QSet<QUuid> idsOfGroup(const QString& key) const;

    // The header that a line belongs to: the line itself or the nearest above. -1 without groups,
    // or when there is no such line.
    Q_INVOKABLE int headerAbove(int line) const;

    // The next header behind a line, -1 when there is none.
    Q_INVOKABLE int headerBelow(int line) const;

    Q_INVOKABLE tessarine::GroupHeader header(int line) const;

    // The line of the row that is marked as focused, -1 when there is none.
    Q_INVOKABLE int focusedLine() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    bool isHeader(int line) const;
    QVariant value(const ListEntry& entry, Role role) const;
    QVariant valueOfRow(const ListEntry& entry, Role role) const;
    GroupHeader headerOf(const ListEntry& entry) const;
    void removeLinesAt(int first, int count);
    void insertLinesAt(const ListEntries& from, std::size_t first, std::size_t end);
    void replaceLines(ListEntries entries);
    void tellOfAll(const QList<int>& roles);

    IsPrivate isPrivate_;
    QSet<QUuid> selected_;
    QUuid focused_;
    ListEntries entries_;
    int zone_; // the time zone in which the rows' times were last told
};

} // namespace tessarine
