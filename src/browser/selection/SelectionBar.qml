pragma ComponentBehavior: Bound

import QtQuick
import Tessarine.Browser
import Tessarine.Controls
import Tessarine.Theme

// What stands in the toolbar's place while rows are being selected.
Item {
    id: bar

    required property ListSelection selection

    readonly property int dividerHeight: 16
    readonly property Item firstStop: cancel // of the keyboard

    implicitHeight: first.height

    Row {
        id: first

        anchors.left: parent.left
        spacing: Metrics.spacingMedium

        TextButton {
            id: cancel

            objectName: "cancelSelection"
            text: qsTrId("selection.cancel")
            onClicked: bar.selection.exitSelectionMode()
        }

        VerticalDivider {
            anchors.verticalCenter: parent.verticalCenter
            height: bar.dividerHeight
        }

        TextButton {
            id: byApp

            objectName: "selectByApp"
            symbol: "square.grid.2x2"
            text: qsTrId("toolbar.group.byApp")
            toolTipText: qsTrId("selection.byApp.help")
            onClicked: appMenu.popupBelow(byApp)

            ContextMenu {
                id: appMenu

                objectName: "appMenu"

                MenuTexts {
                    id: apps

                    texts: bar.selection.apps
                    open: appMenu.visible
                }

                Repeater {
                    model: apps.shown

                    ContextMenuItem {
                        required property string modelData

                        text: modelData
                        onTriggered: bar.selection.selectApp(modelData)
                    }
                }
            }
        }

        TextButton {
            objectName: "selectByDate"
            symbol: "calendar"
            text: qsTrId("toolbar.group.byDate")
            toolTipText: qsTrId("selection.byDate.help")
            onClicked: bar.selection.dates.showDatePickerPopover = true

            DateSelectionPopover {
                id: datePopover

                dates: bar.selection.dates
            }
        }

        TextButton {
            objectName: "selectAll"
            text: bar.selection.everySelected ? qsTrId("selection.deselectAll") : qsTrId("selection.selectAll")
            onClicked: bar.selection.selectAllVisible()
        }
    }

    PlainLabel {
        objectName: "selectionCount"
        anchors.left: first.right
        anchors.leftMargin: Metrics.spacingMedium
        anchors.right: last.left
        anchors.rightMargin: Metrics.spacingMedium
        anchors.verticalCenter: first.verticalCenter
        text: bar.selection.selectionText
        font.pixelSize: Metrics.textSmall
        color: Theme.colours.secondaryLabel
        wrapMode: Text.Wrap
        maximumLineCount: 2
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    Row {
        id: last

        anchors.right: parent.right
        spacing: Metrics.spacingMedium

        VerticalDivider {
            anchors.verticalCenter: parent.verticalCenter
            height: bar.dividerHeight
        }

        TextButton {
            objectName: "deleteSelected"
            text: qsTrId("selection.deleteSelected")
            destructive: enabled
            ink: enabled ? Theme.colours.red : Theme.colours.secondaryLabel
            enabled: bar.selection.selectedCount > 0
            onClicked: bar.selection.showDeleteSelectedConfirm = true
        }

        TextButton {
            objectName: "deleteAll"
            text: qsTrId("selection.deleteAll")
            destructive: true
            onClicked: bar.selection.showDeleteAllConfirm = true
        }
    }
}
