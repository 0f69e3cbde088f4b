#pragma once

#include "store/HoardStore.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <set>

namespace tessarine {

// The applications that the hoard knows, in its order, and whether they are excluded. A view gets
// names in one line. Main thread.
class ExcludedAppsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("ExcludedAppsView brings it")

public:
    enum Role { bundleId = Qt::UserRole, appName, isExcluded };

    const DistinctAppList& apps() const { return apps_; }
    void setApps(DistinctAppList apps);
    void setExcluded(std::set<QString> bundleIds);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    DistinctAppList apps_;
    std::set<QString> excluded_; // bundle ids
};

} // namespace tessarine
