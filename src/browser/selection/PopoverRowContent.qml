import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// What a choice in the date popover shows: a symbol, a text, and a number where there is one.
Item {
    id: content

    required property string symbol
    required property string text
    required property int badge

    SymbolImage {
        id: image

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        symbol: content.symbol
        size: Metrics.symbolSize
        tint: Theme.colours.accentLabel
    }

    PlainLabel {
        anchors.left: image.right
        anchors.leftMargin: Metrics.spacingMedium
        anchors.right: number.visible ? number.left : parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: content.text
        Accessible.ignored: true
    }

    Tag {
        id: number

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: content.badge
        visible: content.badge > 0
    }
}
