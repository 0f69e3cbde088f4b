#pragma once

#include <QUuid>

namespace tessarine {

// A random UUID (version 4) for telling records apart in memory. From a generator that each thread
// seeds once: QUuid::createUuid asks the system each time, which for a list of records takes longer
// than reading them. Not for secrets. Any thread.
QUuid freshId();

} // namespace tessarine
