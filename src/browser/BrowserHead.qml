import QtQuick
import Tessarine.Browser
import Tessarine.Controls
import Tessarine.Theme

// The head of the main window: the search field with the buttons that act on the whole list, and
// below it the toolbar or, while rows are being selected, the selection bar.
Item {
    id: head

    required property BrowserList list
    required property ListSelection selection
    required property Overlays overlays

    readonly property int sidePadding: Metrics.spacingMedium
        + Math.max(0, Math.round((width - Metrics.listColumn) / 2))

    readonly property bool selecting: selection.selectionMode

    // A keyboard that is where things leave goes on in the selection bar.
    function enterSelectionMode() {
        focusKeeper.remember(head);
        head.selection.enterSelectionMode();
        focusKeeper.moveOn(actions, selectionBar.firstStop);
        focusKeeper.moveOn(toolbar, selectionBar.firstStop);
    }

    // One that is in the selection bar when that leaves goes back, once what left is there again.
    onSelectingChanged: if (!selecting) focusKeeper.restoreLater(selectionBar)

    implicitHeight: 2 * Metrics.controlHeight + Metrics.spacingMedium + 2 * Metrics.spacingLarge - 2

    SearchField {
        id: search

        objectName: "searchField"
        anchors.left: parent.left
        anchors.leftMargin: head.sidePadding
        anchors.right: actions.visible ? actions.left : parent.right
        anchors.rightMargin: actions.visible ? Metrics.spacingMedium : head.sidePadding
        y: Metrics.spacingLarge - 1
        placeholderText: qsTrId("toolbar.search.placeholder")
        clearLabel: qsTrId("toolbar.search.clear")
        text: head.list.searchText
        onTextEdited: head.list.searchText = text
    }

    // Not while anything lies over the window.
    Shortcut {
        sequences: [StandardKey.Find] // qmllint disable unqualified
        onActivated: search.beginTyping()
    }

    Row {
        id: actions

        anchors.right: parent.right
        anchors.rightMargin: head.sidePadding - Metrics.spacingSmall
        anchors.verticalCenter: search.verticalCenter
        spacing: Metrics.spacingSmall
        visible: head.list.hasNotifications && !head.selecting

        IconButton {
            objectName: "export"
            symbol: "square.and.arrow.up"
            accessibleName: qsTrId("toolbar.export.help")
            toolTipText: qsTrId("toolbar.export.help")
            onClicked: head.overlays.showExportSheet = true
        }

        IconButton {
            objectName: "enterSelection"
            symbol: "trash"
            accessibleName: qsTrId("toolbar.delete.help")
            toolTipText: qsTrId("toolbar.delete.help")
            onClicked: head.enterSelectionMode()
        }
    }

    // The bar that is in force lies above, the one that fades below, and between them what keeps
    // the pointer from it.
    BrowserToolbar {
        id: toolbar

        anchors.fill: bars
        z: head.selecting ? 0 : 2
        list: head.list
        opacity: head.selecting ? 0 : 1
        visible: opacity > 0 || !head.selecting

        Behavior on opacity {
            NumberAnimation { duration: Metrics.gentle; easing.type: Easing.InOutQuad }
        }
    }

    MouseArea {
        id: bars

        anchors.top: search.bottom
        anchors.topMargin: Metrics.spacingMedium
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: head.sidePadding
        anchors.rightMargin: head.sidePadding
        z: 1
        height: Metrics.controlHeight
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
    }

    SelectionBar {
        id: selectionBar

        anchors.fill: bars
        z: head.selecting ? 2 : 0
        selection: head.selection
        opacity: head.selecting ? 1 : 0
        visible: opacity > 0 || head.selecting

        Behavior on opacity {
            NumberAnimation { duration: Metrics.gentle; easing.type: Easing.InOutQuad }
        }
    }

    FocusKeeper {
        id: focusKeeper

        otherwise: search
    }
}
