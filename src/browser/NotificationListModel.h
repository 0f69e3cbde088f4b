#pragma once

#include "shared/CapturedNotification.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The rows of the browser, in the order of the list that it is given. A new list is told as the
// rows that went, came and changed, never as a reset: every reload makes new ids, and a view must
// keep its place all the same. Main thread.
class NotificationListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("ContentView brings it")

public:
    // Each is a role in QML, under its name with a small first letter.
    enum class Role {
        NotificationId = Qt::UserRole + 1, // fresh with each reload
        BundleId,
        AppName,
        Title,      // its beginning: as much as a row can show
        Body,       // likewise
        TimeText,   // date and time in the user's style
        SpokenText, // the whole row for a screen reader
    };
    Q_ENUM(Role)

    explicit NotificationListModel(QObject* parent = nullptr);

    void setNotifications(NotificationList notifications);
    const NotificationList& notifications() const { return rows_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    QVariant value(const CapturedNotification& row, Role role) const;
    QString spokenText(const CapturedNotification& row) const;
    void removeRowsAt(int first, int count);
    void insertRowsAt(const NotificationList& from, std::size_t first, std::size_t end);
    void replaceRows(NotificationList rows);

    NotificationList rows_;
};

} // namespace tessarine
