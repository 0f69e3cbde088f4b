#pragma once

#include <QIcon>

namespace tessarine {

// The program's own icon, for its windows and whatever lists them. It is drawn at the size that is
// asked for.
QIcon programIcon();

} // namespace tessarine
