#include "platform/ThreadQuality.h"

namespace tessarine {

// A thread without privileges can lower its priority here and never raise it again, so that a
// worker would keep that of its first task.
void setThreadQuality(QualityOfService) {}

} // namespace tessarine
