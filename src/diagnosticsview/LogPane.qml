pragma ComponentBehavior: Bound

import QtQuick
import Tessarine.Controls
import Tessarine.Diagnostics
import Tessarine.Theme

// The log with what narrows it.
Item {
    id: pane

    required property DiagnosticsLog log

    SearchField {
        id: search

        objectName: "logSearch"
        anchors.left: parent.left
        anchors.right: pills.left
        anchors.rightMargin: Metrics.spacingLarge
        placeholderText: "Filter log..."
        clearLabel: qsTrId("diag.log.clearFilter")
        onTextEdited: pane.log.searchText = text
    }

    Row {
        id: pills

        anchors.right: parent.right
        spacing: Metrics.spacingSmall

        Repeater {
            model: pane.log.categories

            CategoryPillButton {
                required property categoryPillContent modelData
                required property int index

                objectName: "pill" + index
                content: modelData
                checked: index === pane.log.selectedPill
                onActivated: pane.log.tapPill(index)
            }
        }
    }

    LogList {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: search.bottom
        anchors.topMargin: Metrics.spacingMedium
        anchors.bottom: parent.bottom
        log: pane.log
    }
}
