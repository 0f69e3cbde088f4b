import QtQuick
import Tessarine.Theme

// Two bars in the place of a hidden title and body.
Item {
    id: mask

    readonly property int barRadius: 3

    implicitWidth: lower.width
    implicitHeight: lower.y + lower.height

    Rectangle {
        id: upper

        anchors.left: parent.left
        y: Metrics.spacingTiny
        width: 160
        height: 12
        radius: mask.barRadius
        color: Theme.colours.secondaryLabel
        opacity: 0.2
    }

    Rectangle {
        id: lower

        anchors.left: parent.left
        y: upper.y + upper.height + Metrics.spacingSmall
        width: 220
        height: 10
        radius: mask.barRadius
        color: Theme.colours.secondaryLabel
        opacity: 0.13
    }
}
