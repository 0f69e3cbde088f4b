import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// A category's name on a ground in its colour.
Rectangle {
    id: pill

    required property string name
    required property color colour

    implicitWidth: Math.ceil(label.implicitWidth) + 2 * Metrics.spacingMedium
    implicitHeight: Math.ceil(label.implicitHeight) + Metrics.spacingTiny
    radius: height / 2
    color: Qt.alpha(colour, Theme.dark ? 0.28 : 0.38)

    PlainLabel {
        id: label

        anchors.centerIn: parent
        text: pill.name
        font.pixelSize: Metrics.textTiny
        font.weight: Font.Medium
        Accessible.ignored: true
    }
}
