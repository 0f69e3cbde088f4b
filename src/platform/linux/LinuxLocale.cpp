#include "shared/SystemLocale.h"

#include <QLocale>
#include <QtGlobal>

namespace tessarine {

// By name and not through setlocale, which knows only the locales that were generated.
QByteArray systemDateLocaleName() {
    for (const char* variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        QByteArray value = qgetenv(variable);
        if (!value.isEmpty())
            return value;
    }
    return QLocale::system().name().toLatin1();
}

} // namespace tessarine
