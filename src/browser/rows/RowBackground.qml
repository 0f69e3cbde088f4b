import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// What lies behind a row: its fill and edge, by the strongest of its states.
Item {
    id: background

    property bool focused
    property bool selected
    property bool hovered

    readonly property bool marked: focused || selected
    readonly property int radius: Metrics.cornerRadius
    readonly property real restingOpacity: 0.5

    // As it is seen: the fill over the window.
    readonly property color shade: Qt.tint(Theme.colours.windowBackground, Qt.alpha(fill.color, fill.opacity))

    Rectangle {
        id: fill

        anchors.fill: parent
        radius: background.radius
        color: background.marked ? Theme.colours.accent : Theme.colours.controlBackground
        opacity: background.focused ? 0.13 : background.selected ? 0.08
            : background.hovered ? 1 : background.restingOpacity
    }

    // An outline paints itself even where it is invisible.
    Loader {
        anchors.fill: parent
        active: background.marked

        // A loader can't make a component that is bound to this file.
        // qmllint disable unqualified
        sourceComponent: Outline {
            radius: background.radius
            color: Theme.colours.accent
            strokeWidth: background.focused ? 1.5 : 1
            opacity: background.focused ? 0.55 : 0.25
        }
        // qmllint enable unqualified
    }
}
