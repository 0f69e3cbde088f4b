#include "theme/ProgramIcon.h"

// Qt's macro can't name a resource from inside a namespace.
static void initIconResources() {
    Q_INIT_RESOURCE(icons);
}

namespace tessarine {

QIcon programIcon() {
    initIconResources();
    return QIcon(QStringLiteral(":/icons/com.zorvek.Tessarine.svg"));
}

} // namespace tessarine
