import QtQuick
import Tessarine.Theme

// Shows that the keyboard is with the item that it lies around.
Rectangle {
    property int innerRadius: Metrics.controlRadius

    anchors.fill: parent
    anchors.margins: -Metrics.focusRingWidth
    radius: innerRadius + Metrics.focusRingWidth
    color: "transparent"
    border.width: Metrics.focusRingWidth
    border.color: Theme.colours.focusRing
}
