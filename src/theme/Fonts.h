#pragma once

#include <QFont>

namespace tessarine {

// The face of running text, with the faces that stand in for its missing characters.
QFont textFont();

// A face whose letters are all equally wide.
QFont monospacedFont();

// A face whose digits are all equally wide, so that times stand in columns. The text face has such
// digits too, but Qt 6.4 can't ask for them.
QString tabularDigitsFamily();

} // namespace tessarine
