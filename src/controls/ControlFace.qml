import QtQuick
import QtQuick.Templates as T
import Tessarine.Theme

// What lies behind a button: its fill, its edge, the shade of hovering and pressing, and the ring of
// the keyboard's focus.
Rectangle {
    id: face

    required property T.AbstractButton control
    property bool bordered: true // else there is a ground only under the pointer
    property bool edged: bordered
    property bool ringInside: false // where there is no room around the control
    property color fill: Theme.colours.controlBackground

    radius: Metrics.controlRadius
    color: bordered ? fill : "transparent"

    Rectangle {
        anchors.fill: parent
        radius: face.radius
        color: face.control.down ? Theme.colours.pressedFill : Theme.colours.hoverFill
        visible: face.control.enabled && (face.control.down || face.control.hovered)
    }

    Rectangle {
        anchors.fill: parent
        radius: face.radius
        color: "transparent"
        border.width: Metrics.hairline
        border.color: Theme.colours.controlBorder
        visible: face.edged
    }

    FocusRing {
        innerRadius: face.radius
        inside: face.ringInside
        visible: face.control.visualFocus
    }
}
