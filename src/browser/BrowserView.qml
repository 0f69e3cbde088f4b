import QtQuick
import QtQuick.Templates as T
import Tessarine.Browser
import Tessarine.Export
import Tessarine.Controls
import Tessarine.Theme

// The root of the main window: what narrows the list, the list, or what stands in its place.
Rectangle {
    id: root

    required property ContentView view

    implicitWidth: 720
    color: Theme.colours.windowBackground
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    Column {
        id: top

        width: parent.width

        BrowserHead {
            width: parent.width
            list: root.view.list
            selection: root.view.selection
            overlays: root.view.overlays
        }

        HorizontalDivider {
            width: parent.width
        }

        BannerSlot {
            width: parent.width
            height: implicitHeight
            overlays: root.view.overlays
        }
    }

    Item {
        id: room

        anchors.top: top.bottom
        anchors.bottom: parent.bottom
        width: parent.width

        Notice {
            anchors.centerIn: parent
            visible: root.view.list.face === BrowserList.Loading
            symbol: "clock.arrow.circlepath"
            title: qsTrId("hoard.loading")
        }

        Notice {
            anchors.centerIn: parent
            visible: root.view.list.face === BrowserList.Waiting
            symbol: "bell.slash"
            title: qsTrId("hoard.empty.waiting")
            detail: root.view.list.waitingDetail
        }

        Notice {
            id: noResults

            anchors.centerIn: parent
            visible: root.view.list.face === BrowserList.NoResults
            symbol: "magnifyingglass"
            title: qsTrId("hoard.empty.noResults")
            detail: root.view.list.noResultsDetail
        }

        TextButton {
            objectName: "loadOlderResults"
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.top: noResults.bottom
            anchors.topMargin: Metrics.spacingLarge
            symbol: "clock.arrow.circlepath"
            text: qsTrId("toolbar.loadOlder")
            toolTipText: qsTrId("toolbar.loadOlder.help")
            visible: noResults.visible && root.view.list.canLoadOlder
            onClicked: root.view.list.loadOlder()
        }

        NotificationList {
            id: notifications

            anchors.fill: parent
            visible: root.view.list.face === BrowserList.List
            focus: true
            list: root.view.list
            selection: root.view.selection
            actions: root.view.actions
        }
    }

    NotificationPreviewSheet {
        actions: root.view.actions
    }

    // The export's sheet goes without closing, and can't give the keyboard back itself.
    FocusKeeper {
        id: exportFocus

        otherwise: notifications
    }

    Connections {
        target: root.view.overlays

        function onExportSheetMade() {
            exportFocus.remember(root);
        }
    }

    Loader {
        active: root.view.overlays.showExportSheet
        onActiveChanged: if (!active) exportFocus.restore(root.T.Overlay.overlay)

        // A loader can't make a component that is bound to this file.
        sourceComponent: Item {
            ExportSheet {
                objectName: "exportSheet"
                options: root.view.overlays.exportSheet // qmllint disable unqualified
                visible: true
            }
        }
    }

    AlertDialog {
        objectName: "deleteSelectedConfirm"
        text: root.view.selection.deleteSelectedTitle
        visible: root.view.selection.showDeleteSelectedConfirm
        onClosed: root.view.selection.showDeleteSelectedConfirm = false
        actions: [
            AlertAction {
                text: qsTrId("selection.confirmDelete.btn")
                role: AlertAction.Destructive
                onTriggered: root.view.selection.deleteSelected()
            },
            AlertAction {
                text: qsTrId("action.cancel")
                role: AlertAction.Cancel
            }
        ]
    }

    AlertDialog {
        objectName: "deleteAllConfirm"
        text: root.view.selection.deleteAllTitle
        message: qsTrId("selection.confirmDeleteAll.message")
        visible: root.view.selection.showDeleteAllConfirm
        onClosed: root.view.selection.showDeleteAllConfirm = false
        actions: [
            AlertAction {
                text: qsTrId("selection.deleteAll")
                role: AlertAction.Destructive
                onTriggered: root.view.selection.deleteEverything()
            },
            AlertAction {
                text: qsTrId("action.cancel")
                role: AlertAction.Cancel
            }
        ]
    }
}
