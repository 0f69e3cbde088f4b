import QtQuick
import Tessarine.Controls

// A card of the status board: what it is about, and how it stands, in up to two lines.
StatusFace {
    id: card

    required property string value

    Accessible.role: Accessible.StaticText
    Accessible.name: title
    Accessible.description: value

    PlainLabel {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: card.value
        font.weight: Font.Medium
        wrapMode: Text.Wrap
        maximumLineCount: 2
        Accessible.ignored: true
    }

    HoverTip {
        text: card.value
        hovered: pointer.hovered
    }

    HoverHandler {
        id: pointer
    }
}
