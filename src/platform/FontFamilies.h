#pragma once

#include <QString>
#include <QStringList>

namespace tessarine {

// The families of the faces that the program draws with. All are on every machine that the program
// was installed on: its packages bring them.
struct FontFamilies {
    QStringList text;   // of running text, and those that stand in for its missing characters
    QString monospaced; // letters that are all equally wide
    QString tabular;    // digits that are all equally wide
};

// Each system's folder defines it.
FontFamilies systemFontFamilies();

} // namespace tessarine
