#pragma once

namespace tessarine {

// Gives the application object the program's name and version and lets the process run on with
// nothing on the screen: neither the last window that closes nor the last lock on the event loop
// that goes ends it, only being asked to quit. Main thread, once there is an application object.
void setUpApplication();

} // namespace tessarine
