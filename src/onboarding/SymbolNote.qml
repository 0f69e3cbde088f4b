import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// A quiet line with a symbol before it.
Item {
    id: note

    required property string symbol
    required property string text
    property color ink: Theme.colours.secondaryLabel

    implicitHeight: Math.max(image.height, label.height)
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    SymbolImage {
        id: image

        anchors.left: parent.left
        symbol: note.symbol
        size: Metrics.symbolSize
        tint: note.ink
    }

    PlainLabel {
        id: label

        anchors.left: image.right
        anchors.leftMargin: Metrics.spacingMedium
        anchors.right: parent.right
        text: note.text
        color: note.ink
        font.pixelSize: Metrics.textSmall
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
}
