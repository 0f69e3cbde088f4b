import QtQuick
import Tessarine.Theme

// A short text, most often a number, on a small rounded ground.
Rectangle {
    id: root

    property alias text: label.text

    readonly property int padding: Metrics.spacingSmall + 2

    implicitWidth: Math.max(implicitHeight, Math.ceil(label.implicitWidth) + 2 * padding)
    implicitHeight: Math.ceil(label.implicitHeight) + Metrics.spacingTiny
    radius: height / 2
    color: Theme.colours.tagFill
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    PlainLabel {
        id: label

        anchors.fill: parent
        anchors.leftMargin: root.padding
        anchors.rightMargin: root.padding
        font.family: Theme.tabularFamily
        font.pixelSize: Metrics.textTiny
        color: Theme.colours.secondaryLabel
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
}
