import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// A coloured symbol, a title, and a text beneath it that takes the lines it needs.
Item {
    id: row

    required property string icon
    required property color iconColor
    required property string title
    required property string text

    implicitHeight: Math.max(image.height, texts.height)
    Accessible.role: Accessible.StaticText
    Accessible.name: title
    Accessible.description: text

    SymbolImage {
        id: image

        anchors.left: parent.left
        y: Metrics.spacingTiny
        symbol: row.icon
        size: 24
        tint: row.iconColor
    }

    Column {
        id: texts

        anchors.left: image.right
        anchors.leftMargin: Metrics.spacingWide
        anchors.right: parent.right
        spacing: Metrics.spacingTiny

        PlainLabel {
            width: parent.width
            text: row.title
            font.pixelSize: Metrics.textHeadline
            font.weight: Font.DemiBold
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }

        PlainLabel {
            width: parent.width
            text: row.text
            color: Theme.colours.secondaryLabel
            lineHeight: 1.15
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
}
