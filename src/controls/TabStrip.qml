pragma ComponentBehavior: Bound

import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// A row of equally wide tabs, of which one is chosen. It shows what its owner holds (`currentIndex`) and
// tells what the user wants (`activated`). The row is one stop for Tab; the arrows go from tab to tab.
Item {
    id: strip

    required property string accessibleName
    property list<TabItem> tabs
    property int currentIndex: -1

    readonly property real widest: Array.from({ length: buttons.count }, (nothing, index) => buttons.itemAt(index))
        .reduce((widest, button) => Math.max(widest, button?.implicitWidth ?? 0), 0)
    readonly property real room: (width - Math.max(0, buttons.count - 1) * row.spacing) / Math.max(1, buttons.count)

    signal activated(int index)

    function goTo(index: int) {
        if (index < 0 || index >= buttons.count)
            return;
        strip.activated(index);
        buttons.itemAt(index).forceActiveFocus(Qt.TabFocusReason);
    }

    implicitWidth: buttons.count * (widest + row.spacing) - row.spacing
    implicitHeight: row.implicitHeight
    opacity: enabled ? 1 : Metrics.disabledOpacity
    Accessible.role: Accessible.PageTabList
    Accessible.name: accessibleName

    Row {
        id: row

        anchors.horizontalCenter: parent.horizontalCenter
        spacing: Metrics.spacingSmall

        Repeater {
            id: buttons

            model: strip.tabs

            TabStripButton {
                required property TabItem modelData

                text: modelData.text
                symbol: modelData.symbol
                width: Math.max(0, Math.floor(Math.min(strip.widest, strip.room)))
                chosen: index === strip.currentIndex
                tabStop: index === Math.max(0, strip.currentIndex)
                onClicked: strip.activated(index)
                onMoved: steps => strip.goTo(index + (strip.LayoutMirroring.enabled ? -steps : steps))
            }
        }
    }
}
