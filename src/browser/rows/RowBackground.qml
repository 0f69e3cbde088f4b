import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// What lies behind a row: its fill and edge, by the strongest of its states.
Item {
    id: background

    property bool focused
    property bool selected
    property bool hovered

    readonly property int radius: Metrics.cornerRadius
    readonly property real restingOpacity: 0.5

    Rectangle {
        anchors.fill: parent
        radius: background.radius
        color: Theme.colours.controlBackground
        opacity: background.hovered ? 1 : background.restingOpacity
        visible: !background.focused && !background.selected
    }

    Rectangle {
        anchors.fill: parent
        radius: background.radius
        color: Theme.colours.accent
        opacity: background.focused ? 0.13 : 0.08
        visible: background.focused || background.selected
    }

    Outline {
        anchors.fill: parent
        radius: background.radius
        color: Theme.colours.accent
        strokeWidth: background.focused ? 1.5 : 1
        opacity: background.focused ? 0.55 : 0.25
        visible: background.focused || background.selected
    }
}
