#include "settings/ExcludedAppsModel.h"

namespace tessarine {

void ExcludedAppsModel::setApps(DistinctAppList apps) {
    beginResetModel();
    apps_ = std::move(apps);
    endResetModel();
}

void ExcludedAppsModel::setExcluded(std::set<QString> bundleIds) {
    if (excluded_ == bundleIds)
        return;
    excluded_ = std::move(bundleIds);
    if (!apps_.empty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {isExcluded});
}

int ExcludedAppsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(apps_.size());
}

QVariant ExcludedAppsModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const DistinctApp& app = apps_[std::size_t(index.row())];
    switch (role) {
    case bundleId:
        return app.bundleId;
    case appName:
        return app.appName.simplified();
    case isExcluded:
        return excluded_.contains(app.bundleId);
    default:
        return {};
    }
}

QHash<int, QByteArray> ExcludedAppsModel::roleNames() const {
    return {{bundleId, "bundleId"}, {appName, "appName"}, {isExcluded, "isExcluded"}};
}

} // namespace tessarine
