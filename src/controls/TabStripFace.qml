import QtQuick
import Tessarine.Theme

// What stands on a tab: a symbol above a small text, or a text alone, in the middle of the room.
Item {
    id: face

    required property string symbol
    required property string text
    required property color ink

    implicitWidth: Math.ceil(label.implicitWidth)
    implicitHeight: lines.implicitHeight

    Column {
        id: lines

        anchors.centerIn: parent
        spacing: Metrics.spacingTiny

        SymbolImage {
            anchors.horizontalCenter: parent.horizontalCenter
            symbol: face.symbol
            size: Metrics.tabSymbolSize
            tint: face.ink
            visible: symbol
        }

        PlainLabel {
            id: label

            width: Math.min(Math.ceil(implicitWidth), face.width)
            text: face.text
            color: face.ink
            font.pixelSize: face.symbol ? Metrics.textTiny : Metrics.textBody
            horizontalAlignment: Text.AlignHCenter
            Accessible.ignored: true
        }
    }
}
