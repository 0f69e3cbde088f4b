import QtQuick
import QtQuick.Templates as T
import Tessarine.Browser
import Tessarine.Export
import Tessarine.Controls
import Tessarine.Theme

// The root of the main window: what narrows the list, the list, or what stands in its place.
Rectangle {
    id: root

    required property ContentViewState view

    implicitWidth: 720
    color: Theme.colours.windowBackground

    Column {
        id: top

        width: parent.width

        BrowserHead {
            width: parent.width
            view: root.view
        }

        HorizontalDivider {
            width: parent.width
        }

        BannerSlot {
            width: parent.width
            height: implicitHeight
            view: root.view
        }
    }

    Item {
        id: room

        anchors.top: top.bottom
        anchors.bottom: parent.bottom
        width: parent.width

        Notice {
            anchors.centerIn: parent
            visible: root.view.face === ContentViewState.Loading
            symbol: "clock.arrow.circlepath"
            title: qsTrId("hoard.loading")
        }

        Notice {
            anchors.centerIn: parent
            visible: root.view.face === ContentViewState.Waiting
            symbol: "bell.slash"
            title: qsTrId("hoard.empty.waiting")
            detail: qsTrId("hoard.empty.waiting.detail")
        }

        Notice {
            anchors.centerIn: parent
            visible: root.view.face === ContentViewState.Fruitless
            symbol: "magnifyingglass"
            title: qsTrId("hoard.empty.noResults")
            detail: qsTrId("hoard.empty.noResults.detail")
        }

        NotificationList {
            id: list

            anchors.fill: parent
            visible: root.view.face === ContentViewState.List
            focus: true
            view: root.view
        }
    }

    NotificationPreviewSheet {
        view: root.view
    }

    // The export's sheet goes without closing, and can't give the keyboard back itself.
    FocusKeeper {
        id: exportFocus

        otherwise: list
    }

    Connections {
        target: root.view

        function onExportSheetMade() {
            exportFocus.remember(root);
        }
    }

    Loader {
        active: root.view.showExportSheet
        onActiveChanged: if (!active) exportFocus.restore(root.T.Overlay.overlay)

        // A loader can't make a component that is bound to this file.
        sourceComponent: Item {
            ExportOptionsSheet {
                objectName: "exportSheet"
                options: root.view.exportSheet // qmllint disable unqualified
                visible: true
            }
        }
    }

    AlertDialog {
        objectName: "deleteSelectedConfirm"
        text: root.view.deleteSelectedTitle
        visible: root.view.showDeleteSelectedConfirm
        onClosed: root.view.showDeleteSelectedConfirm = false
        actions: [
            AlertAction {
                text: qsTrId("selection.confirmDelete.btn")
                role: AlertAction.Destructive
                onTriggered: root.view.deleteSelected()
            },
            AlertAction {
                text: qsTrId("action.cancel")
                role: AlertAction.Cancel
            }
        ]
    }

    AlertDialog {
        objectName: "deleteAllConfirm"
        text: root.view.deleteAllTitle
        visible: root.view.showDeleteAllConfirm
        onClosed: root.view.showDeleteAllConfirm = false
        actions: [
            AlertAction {
                text: qsTrId("selection.deleteAll")
                role: AlertAction.Destructive
                onTriggered: root.view.deleteEverything()
            },
            AlertAction {
                text: qsTrId("action.cancel")
                role: AlertAction.Cancel
            }
        ]
    }
}
