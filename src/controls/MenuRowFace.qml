import QtQuick
import Tessarine.Theme

// What lies behind a row of a menu: a shade where the pointer or the keyboard is.
Rectangle {
    property bool lit

    radius: Metrics.controlRadius - Metrics.spacingTiny
    color: lit ? Theme.colours.pressedFill : "transparent"
}
