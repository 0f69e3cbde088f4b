import QtQuick
import Tessarine.Controls
import Tessarine.Diagnostics
import Tessarine.Theme

// The card that counts down to the next poll, with a ring that fills on the way.
StatusFace {
    id: card

    required property string value
    required property double fraction

    symbol: "timer"
    title: "Next Poll"
    tint: "#CE93D8"
    Accessible.role: Accessible.StaticText
    Accessible.name: title
    Accessible.description: value

    PlainLabel {
        anchors.left: parent.left
        anchors.right: ring.left
        anchors.verticalCenter: parent.verticalCenter
        text: card.value
        font.family: Theme.tabularFamily
        font.weight: Font.Medium
        Accessible.ignored: true
    }

    ProgressRing {
        id: ring

        objectName: "pollRing"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.verticalCenterOffset: -Metrics.spacingSmall
        accessibleName: card.title
        fraction: card.fraction
        tint: card.tint
    }
}
