#include "platform/FontFamilies.h"

#include <QFontDatabase>

namespace tessarine {

// The system finds the faces for missing characters by itself. The digits of its own face are not
// equally wide; those of the tabular one, which every Mac has, are.
FontFamilies systemFontFamilies() {
    return {QFontDatabase::systemFont(QFontDatabase::GeneralFont).families(),
            QFontDatabase::systemFont(QFontDatabase::FixedFont).family(),
            QStringLiteral("Helvetica Neue")};
}

} // namespace tessarine
