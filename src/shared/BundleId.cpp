#include "shared/BundleId.h"

namespace tessarine {

namespace {

const QString unresolvedPrefix = QStringLiteral("app_id_");

} // namespace

QString derivedBundleId(const QString& shownName) {
    return shownName.toLower().replace(u' ', u'.');
}

QString unresolvedBundleId(qint64 appId) {
    return unresolvedPrefix + QString::number(appId);
}

bool isUnresolvedBundleId(const QString& bundleId) {
    return bundleId.startsWith(unresolvedPrefix);
}

} // namespace tessarine
