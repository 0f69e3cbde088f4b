#pragma once

#include <QtGlobal>

namespace tessarine {

// The one way by which an integer goes into a 32-bit bind. A value outside the signed 32-bit range
// ends the process with a message: storing another number in its place would mix up rows.
int narrowToInt32(qint64 value);

} // namespace tessarine
