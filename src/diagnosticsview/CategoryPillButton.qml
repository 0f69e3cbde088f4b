import QtQuick
import QtQuick.Templates as T
import Tessarine.Controls
import Tessarine.Diagnostics
import Tessarine.Theme

// A category to narrow the log to. It shows what its owner holds (`chosen`).
T.AbstractButton {
    id: button

    required property categoryPillContent content
    required property bool chosen

    function press() {
        if (enabled)
            clicked();
    }

    implicitWidth: implicitContentWidth + 2 * Metrics.spacingTiny
    implicitHeight: Metrics.controlHeight
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    Accessible.role: Accessible.CheckBox
    Accessible.name: qsTrId("diag.log.only").arg(content.name)
    Accessible.checkable: true
    Accessible.checked: chosen
    Accessible.onPressAction: press()
    Accessible.onToggleAction: press()
    Keys.onReturnPressed: press()
    Keys.onEnterPressed: press()

    background: Item {
        Rectangle {
            anchors.centerIn: parent
            width: parent.width
            height: button.implicitContentHeight + 2 * Metrics.spacingTiny
            radius: height / 2
            color: button.down ? Theme.colours.pressedFill : button.hovered ? Theme.colours.hoverFill : "transparent"
            border.width: button.chosen ? 2 : 0
            border.color: Theme.colours.accent

            FocusRing {
                innerRadius: parent.radius
                visible: button.visualFocus
            }
        }
    }

    contentItem: Item {
        implicitWidth: children[0].implicitWidth
        implicitHeight: children[0].implicitHeight

        CategoryPill {
            anchors.centerIn: parent
            name: button.content.name
            colour: button.content.colour
        }
    }
}
