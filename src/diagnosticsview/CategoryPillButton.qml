import QtQuick
import Tessarine.Controls
import Tessarine.Diagnostics
import Tessarine.Theme

// A category to narrow the log to.
CheckControl {
    id: button

    required property categoryPillContent content

    implicitWidth: implicitContentWidth + 2 * Metrics.spacingTiny
    implicitHeight: Metrics.controlHeight
    Accessible.name: qsTrId("diag.log.only").arg(content.name)

    background: Item {
        Rectangle {
            anchors.centerIn: parent
            width: parent.width
            height: button.implicitContentHeight + 2 * Metrics.spacingTiny
            radius: height / 2
            color: button.down ? Theme.colours.pressedFill : button.hovered ? Theme.colours.hoverFill : "transparent"
            border.width: button.checked ? 2 : 0
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
