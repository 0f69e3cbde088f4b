import QtQuick
import Tessarine.Theme

// The text of a MenuPicker and the arrows that say that there are others.
Item {
    id: face

    required property string text

    implicitWidth: Math.ceil(label.implicitWidth) + arrows.width + Metrics.spacingSmall
    implicitHeight: label.implicitHeight

    PlainLabel {
        id: label

        anchors.left: parent.left
        anchors.right: arrows.left
        anchors.rightMargin: Metrics.spacingSmall
        anchors.verticalCenter: parent.verticalCenter
        text: face.text
        Accessible.ignored: true
    }

    SymbolImage {
        id: arrows

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        symbol: "chevron.up.chevron.down"
        size: Metrics.smallSymbolSize
        tint: Theme.colours.secondaryLabel
    }
}
