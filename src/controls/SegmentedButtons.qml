pragma ComponentBehavior: Bound

import QtQuick
import Tessarine.Theme

// A row of buttons of which one is chosen. It shows what its owner holds (`currentIndex`) and tells
// what the user wants (`activated`). The row is one stop for Tab; the arrows go from part to part.
Item {
    id: control

    required property string accessibleName
    required property list<string> model // the parts' texts
    property int currentIndex: -1

    readonly property int gap: 2

    signal activated(int index)

    function goTo(index: int) {
        if (index < 0 || index >= parts.count)
            return;
        control.activated(index);
        parts.itemAt(index).forceActiveFocus(Qt.TabFocusReason);
    }

    implicitWidth: row.implicitWidth + 2 * gap
    implicitHeight: Metrics.controlHeight
    opacity: enabled ? 1 : Metrics.disabledOpacity
    Accessible.role: Accessible.Grouping
    Accessible.name: accessibleName

    Rectangle {
        anchors.fill: parent
        radius: Metrics.controlRadius
        color: Theme.colours.track
    }

    Row {
        id: row

        anchors.fill: parent
        anchors.margins: control.gap
        spacing: control.gap

        Repeater {
            id: parts

            model: control.model

            SegmentedButtonsPart {
                required property string modelData

                text: modelData
                height: row.height
                chosen: index === control.currentIndex
                tabStop: index === Math.max(0, control.currentIndex)
                onClicked: control.activated(index)
                onMoved: steps => control.goTo(index + (control.LayoutMirroring.enabled ? -steps : steps))
            }
        }
    }
}
