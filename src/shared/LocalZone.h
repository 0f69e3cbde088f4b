#pragma once

namespace tessarine {

// A number for the time zone that the user's clock is set to: another one when the clock is set to
// another zone, for what is made for a zone and kept. Zones that have shown the same times since
// 2000 count as one. The system is asked once a second at most. Any thread.
int localZoneNumber();

// Makes ICU, which keeps the zone that it found first, look again if the number has changed. To be
// called before anything of ICU's is made for the user's zone. Any thread.
void followLocalZone();

} // namespace tessarine
