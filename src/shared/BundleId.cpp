#include "shared/BundleId.h"

namespace tessarine {

QString derivedBundleId(const QString& shownName) {
    return shownName.toLower().replace(u' ', u'.');
}

} // namespace tessarine
