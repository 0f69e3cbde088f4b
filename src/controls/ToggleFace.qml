import QtQuick
import QtQuick.Templates as T
import Tessarine.Theme

// What a switch looks like: a groove, in the accent's colour while it is on, and the thumb in it.
Rectangle {
    id: face

    required property T.AbstractButton control

    readonly property int gap: 2
    readonly property real travel: width - height
    property real position: control.checked ? 1 : 0

    Behavior on position {
        NumberAnimation { duration: Metrics.quick; easing.type: Easing.InOutQuad }
    }

    implicitWidth: 36
    implicitHeight: 20
    radius: height / 2
    color: control.checked ? Theme.colours.accentFill : Theme.colours.switchOff

    Behavior on color {
        ColorAnimation { duration: Metrics.quick }
    }

    Rectangle {
        anchors.fill: parent
        radius: face.radius
        color: face.control.down ? Theme.colours.pressedFill : Theme.colours.hoverFill
        visible: face.control.enabled && (face.control.down || face.control.hovered)
    }

    FocusRing {
        innerRadius: face.radius
        visible: face.control.visualFocus
    }

    Rectangle {
        x: face.gap + (face.control.mirrored ? 1 - face.position : face.position) * face.travel
        y: face.gap
        width: height
        height: face.height - 2 * face.gap
        radius: height / 2
        color: Theme.colours.switchThumb
    }
}
