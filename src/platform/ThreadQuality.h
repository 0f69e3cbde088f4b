#pragma once

#include "platform/Scheduler.h"

namespace tessarine {

// Tells the system how urgent what this thread does from now on is, where it wants to know. Each
// system's folder defines it.
void setThreadQuality(QualityOfService quality);

} // namespace tessarine
