import QtQuick
import Tessarine.Theme

// A symbol with a text after it, in the middle of the room that there is. Either may be empty.
Item {
    id: content

    property string symbol
    property string text
    property color ink: Theme.colours.label
    property color symbolInk: ink
    property int textSize: Metrics.textBody
    property int textWeight: Font.Normal
    property int symbolSize: Metrics.symbolSize

    readonly property int symbolRoom: symbol ? symbolSize + (text ? row.spacing : 0) : 0

    implicitWidth: symbolRoom + Math.ceil(label.implicitWidth)
    implicitHeight: Math.max(symbol ? symbolSize : 0, label.implicitHeight)

    Row {
        id: row

        anchors.centerIn: parent
        spacing: Metrics.spacingSmall + 2

        SymbolImage {
            anchors.verticalCenter: parent.verticalCenter
            symbol: content.symbol
            size: content.symbolSize
            tint: content.symbolInk
            visible: symbol
        }

        PlainLabel {
            id: label

            anchors.verticalCenter: parent.verticalCenter
            width: Math.max(0, Math.min(Math.ceil(implicitWidth), content.width - content.symbolRoom))
            text: content.text
            color: content.ink
            font.pixelSize: content.textSize
            font.weight: content.textWeight
            visible: text
            Accessible.ignored: true
        }
    }
}
