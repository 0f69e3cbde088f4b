import QtQuick
import Tessarine.Theme

// Shows that the keyboard is with the item that it lies around, with a gap between the two, so that it
// is seen beside any fill. Where there is no room around the item it lies `inside`.
Rectangle {
    property int innerRadius: Metrics.controlRadius
    property bool inside: false

    readonly property int reach: inside ? 0 : Metrics.focusRingGap + Metrics.focusRingWidth

    anchors.fill: parent
    anchors.margins: -reach
    radius: innerRadius + reach
    color: "transparent"
    border.width: Metrics.focusRingWidth
    border.color: Theme.colours.focusRing
}
