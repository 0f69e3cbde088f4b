import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// A symbol and a text beside it, over as many lines as it takes.
Item {
    id: message

    required property string symbol
    required property string text
    property color symbolTint: Theme.colours.secondaryLabel
    property color textColour: Theme.colours.secondaryLabel

    implicitHeight: Math.max(icon.height, label.height)
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    SymbolImage {
        id: icon

        anchors.left: parent.left
        symbol: message.symbol
        size: Metrics.symbolSize
        tint: message.symbolTint
    }

    PlainLabel {
        id: label

        anchors.left: icon.right
        anchors.leftMargin: Metrics.spacingMedium
        anchors.right: parent.right
        text: message.text
        color: message.textColour
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
}
