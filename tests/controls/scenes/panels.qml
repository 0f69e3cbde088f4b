import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// A list with rows, and one of each panel that can lie over it.
Rectangle {
    id: scene

    property var log: []
    property string question: "Delete 12 notifications?"
    property bool mirrored: false
    property var someTexts: ["Newest first", "Oldest first", "By app, from the first letter to the last"]
    property var manyTexts: Array.from({ length: 60 }, (nothing, i) => "Application " + (i + 1))

    function note(line: string) {
        log = [...log, line];
    }

    function openMenu(x: real, y: real) {
        menu.popup(x, y);
    }

    width: 640
    height: 420
    color: Theme.colours.windowBackground
    LayoutMirroring.enabled: mirrored
    LayoutMirroring.childrenInherit: true

    Row {
        x: 20
        y: 16
        spacing: 8

        TextButton {
            objectName: "button"
            text: "Dates"
            onClicked: popover.open()

            PopoverPanel {
                id: popover

                objectName: "popover"
                accessibleName: "Dates"

                Column {
                    spacing: 8
                    PlainLabel { text: "Choose days"; font.weight: Font.DemiBold; font.pixelSize: Metrics.textHeadline }
                    HorizontalDivider { width: 200 }
                    PlainLabel { text: "Quick ranges"; color: Theme.colours.secondaryLabel; font.pixelSize: Metrics.textSmall }
                    TextButton { objectName: "today"; text: "Today"; symbol: "sun.max"; plain: true }
                    TextButton { objectName: "yesterday"; text: "Yesterday"; symbol: "moon"; plain: true }
                }
            }
        }

        MenuPicker {
            objectName: "long"
            width: 160
            accessibleName: "App"
            model: scene.manyTexts
            currentIndex: 40
            onActivated: index => scene.note("app " + index)
        }

        MenuPicker {
            objectName: "short"
            width: 130
            accessibleName: "Sort"
            model: scene.someTexts
            currentIndex: 1
            onActivated: index => scene.note("sort " + index)
        }
    }

    FocusScope {
        id: list

        objectName: "list"
        x: 20
        y: 60
        width: parent.width - 40
        height: parent.height - 80
        activeFocusOnTab: true

        Rectangle {
            anchors.fill: parent
            color: Theme.colours.controlBackground
            radius: Metrics.cornerRadius
        }

        PlainLabel { x: 12; y: 12; text: "A list that has the keyboard" }

        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.RightButton
            onClicked: menu.popup()
        }
    }

    ContextMenu {
        id: menu

        objectName: "menu"

        ContextMenuItem { objectName: "pin"; text: "Pin"; symbol: "pin"; onTriggered: scene.note("pin") }
        ContextMenuDivider {}
        ContextMenuItem { objectName: "copy"; text: "Copy Notification"; symbol: "doc.on.doc"; onTriggered: scene.note("copy") }
        ContextMenuItem { objectName: "open"; text: "Open in Mail"; symbol: "arrow.up.forward.app"; enabled: false }
        ContextMenuDivider {}
        ContextMenuItem { objectName: "delete"; text: "Delete All from Mail"; symbol: "trash.fill"; destructive: true; onTriggered: scene.note("delete") }
    }

    Sheet {
        objectName: "sheet"
        accessibleName: "Preview"
        minimumWidth: 420
        idealWidth: 480
        maximumWidth: 600
        minimumHeight: 200
        idealHeight: 280
        defaultButton: copy

        Item {
            anchors.fill: parent

            PlainLabel { x: 20; y: 20; text: "Mail"; font.pixelSize: Metrics.textHeadline; font.weight: Font.DemiBold }

            SearchField { objectName: "sheetField"; x: 20; y: 60; width: 200; placeholderText: "Find"; clearLabel: "Clear"; focus: true }

            Row {
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                anchors.margins: 16
                spacing: 8
                TextButton { objectName: "sheetOpen"; text: "Open in Mail"; onClicked: scene.note("sheet open") }
                TextButton { id: copy; objectName: "sheetCopy"; text: "Copy"; prominent: true; onClicked: scene.note("sheet copy") }
            }
        }
    }

    AlertDialog {
        objectName: "alert"
        text: scene.question
        message: "They leave the hoard for good. This can't be undone, and nothing else will bring them back."
        actions: [
            AlertAction { text: "Cancel"; role: AlertAction.Cancel; onTriggered: scene.note("cancel") },
            AlertAction { text: "Delete"; role: AlertAction.Destructive; onTriggered: scene.note("destroy") }
        ]
    }

    AlertDialog {
        objectName: "notice"
        text: "The export is done"
        actions: [
            AlertAction { text: "OK"; role: AlertAction.Default; onTriggered: scene.note("ok") },
            AlertAction { text: "Show"; onTriggered: scene.note("show") }
        ]
    }

    AlertDialog {
        objectName: "brief"
        text: scene.question
        actions: [
            AlertAction { text: "No"; role: AlertAction.Cancel; onTriggered: scene.note("no") },
            AlertAction { text: "Yes"; onTriggered: scene.note("yes") }
        ]
    }

    AlertDialog {
        objectName: "single"
        text: "Everything goes"
        actions: [
            AlertAction { text: "Delete"; role: AlertAction.Destructive; onTriggered: scene.note("only") }
        ]
    }
}
