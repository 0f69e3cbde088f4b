#pragma once

#include <QString>
#include <QStringList>

namespace tessarine {

// The agreement with the user, in the language that the program speaks to one who wants these
// (codes as of QLocale::uiLanguages, best first).
QString agreementText(const QStringList& languages);

} // namespace tessarine
