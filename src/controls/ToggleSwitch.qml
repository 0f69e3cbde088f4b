import QtQuick
import QtQuick.Templates as T
import Tessarine.Theme

// A switch. It shows what its owner holds (`checked`) and tells what the user wants (`activated`): one
// that the owner refuses stays as it was.
T.CheckBox {
    id: toggle

    required property string accessibleName

    readonly property int gap: 2
    readonly property real travel: width - height
    property real position: checked ? 1 : 0

    Behavior on position {
        NumberAnimation { duration: Metrics.quick; easing.type: Easing.InOutQuad }
    }

    signal activated(bool wanted)

    function turnOver() {
        if (enabled)
            activated(!checked);
    }

    implicitWidth: 36
    implicitHeight: 20
    focusPolicy: Qt.TabFocus
    opacity: enabled ? 1 : Metrics.disabledOpacity
    hoverEnabled: true
    nextCheckState: () => checkState
    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onPressAction: turnOver()
    Accessible.onToggleAction: turnOver()
    Keys.onReturnPressed: turnOver()
    Keys.onEnterPressed: turnOver()
    Accessible.name: accessibleName
    onClicked: turnOver()

    background: Rectangle {
        radius: height / 2
        color: toggle.checked ? Theme.colours.accentFill : Theme.colours.switchOff

        Behavior on color {
            ColorAnimation { duration: Metrics.quick }
        }

        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: toggle.down ? Theme.colours.pressedFill : Theme.colours.hoverFill
            visible: toggle.enabled && (toggle.down || toggle.hovered)
        }

        FocusRing {
            innerRadius: parent.radius
            visible: toggle.visualFocus
        }
    }

    contentItem: Item {
        Rectangle {
            x: toggle.gap + (toggle.mirrored ? 1 - toggle.position : toggle.position) * toggle.travel
            y: toggle.gap
            width: height
            height: parent.height - 2 * toggle.gap
            radius: height / 2
            color: Theme.colours.switchThumb
        }
    }
}
