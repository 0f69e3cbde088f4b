#pragma once

namespace tessarine {

// What this process has in memory now, in megabytes; 0 where the system doesn't tell.
double residentMegabytes();

} // namespace tessarine
