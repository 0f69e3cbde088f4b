import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// One thing of several: a coloured symbol, its title, and below that what there is to say, which may
// be nothing.
Item {
    id: row

    required property string icon
    required property color color
    required property string title
    property string description

    readonly property string words: title + "\n" + description

    width: parent?.width ?? 0
    implicitHeight: Math.max(image.height, texts.height)
    Accessible.role: Accessible.StaticText
    Accessible.name: title
    Accessible.description: description

    SymbolImage {
        id: image

        anchors.left: parent.left
        symbol: row.icon
        size: Metrics.badgeSize
        tint: row.color
    }

    Column {
        id: texts

        anchors.left: image.right
        anchors.leftMargin: Metrics.spacingLarge
        anchors.right: parent.right
        spacing: Metrics.spacingTiny

        PlainLabel {
            width: parent.width
            text: row.title
            font.pixelSize: Metrics.textHeadline
            font.weight: row.description ? Font.DemiBold : Font.Normal
            lineHeight: 1.2
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }

        PlainLabel {
            width: parent.width
            text: row.description
            color: Theme.colours.secondaryLabel
            lineHeight: 1.25
            wrapMode: Text.Wrap
            visible: text
            Accessible.ignored: true
        }
    }
}
