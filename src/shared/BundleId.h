#pragma once

#include <QString>

namespace tessarine {

// The id that an application's shown name stands for where no real one is known: in lower case
// (Unicode, no locale), each U+0020 a dot. The same name always gives the same id.
QString derivedBundleId(const QString& shownName);

} // namespace tessarine
