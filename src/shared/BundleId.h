#pragma once

#include <QString>

namespace tessarine {

// The id that an application's shown name stands for where no real one is known: in lower case
// (Unicode, no locale), each U+0020 a dot. The same name always gives the same id.
QString derivedBundleId(const QString& shownName);

// The id that stands for an application of which a foreign database tells no more than its own
// number: "app_id_7".
QString unresolvedBundleId(qint64 appId);
bool isUnresolvedBundleId(const QString& bundleId);

} // namespace tessarine
