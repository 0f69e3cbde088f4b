#pragma once

#include <QString>

namespace tessarine {

class Workspace;

// The name under which the polls store an application: its own while it runs, else the last
// component of its bundle id.
QString displayName(const Workspace& workspace, const QString& bundleId);

} // namespace tessarine
