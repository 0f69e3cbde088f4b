#pragma once

#include <QString>
#include <QStringList>

namespace tessarine {

// The language that the program has texts in and that comes first in a user's list (codes as of
// QLocale::uiLanguages, such as "de-AT"); English where it has none of them.
QString languageOf(const QStringList& wanted);

// Makes the texts of that language known to the application object, those that are the system's own
// before those of all systems, in place of any that were. What a language doesn't have is said in
// English. Main thread.
void installTexts(const QStringList& wanted);

} // namespace tessarine
