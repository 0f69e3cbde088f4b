#include "shared/UserLocale.h"

#include <QLocale>
#include <QtGlobal>

#include <algorithm>

namespace tessarine {

namespace {

// Language and country of a POSIX locale name, without encoding and modifier.
QByteArray language(const QByteArray& locale) {
    const auto end = std::find_if(locale.begin(), locale.end(), [](char character) {
        return character == '.' || character == '@';
    });
    return locale.left(end - locale.begin());
}

} // namespace

QByteArray userDateLocale() {
    // By name and not through setlocale, which knows only the locales that were generated.
    for (const char* variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const QByteArray value = qgetenv(variable);
        if (!value.isEmpty())
            return language(value);
    }
    return QLocale::system().name().toLatin1();
}

} // namespace tessarine
