import QtQuick
import QtQuick.Templates as T
import Qt.labs.qmlmodels
import Tessarine.Browser
import Tessarine.Controls
import Tessarine.Theme

// The notifications, grouped or not. The header of the group in sight stays at the top while its
// rows scroll, until the next header pushes it out.
FocusScope {
    id: root

    required property BrowserList list
    required property ListSelection selection
    required property RowActions actions
    property NotificationRowView pressedRow: null // by the left button, last
    property real circleOpenness: selection.selectionMode ? 1 : 0 // of the rows, one motion for all

    readonly property int columnWidth: Math.min(width, Metrics.listColumn)
    readonly property int columnLeft: Math.round((width - columnWidth) / 2)

    clip: true

    Behavior on circleOpenness {
        NumberAnimation { duration: Metrics.gentle; easing.type: Easing.InOutQuad }
    }

    function showBeginning() {
        listView.positionViewAtBeginning();
        listView.contentY = listView.originY - listView.topMargin;
    }

    ScrollList {
        id: listView

        objectName: "list"
        anchors.fill: parent
        focus: true
        activeFocusOnTab: true
        // A current row would have the keyboard and read as focused, and its highlight, though unseen,
        // would move for a dozen frames at each capture.
        currentIndex: -1
        model: root.list.lines
        spacing: Metrics.spacingSmall
        topMargin: Metrics.spacingSmall
        bottomMargin: Metrics.spacingSmall
        Accessible.role: Accessible.List
        Accessible.name: qsTrId("hoard.list")

        onContentYChanged: pinned.update()
        onContentHeightChanged: pinned.update()
        onOriginYChanged: pinned.update()

        // Components bound to this file would have qualified names, but a list makes no footer of one.
        // qmllint disable unqualified
        delegate: DelegateChooser {
            role: "kind"

            DelegateChoice {
                roleValue: "header"

                SectionHeader {
                    x: root.columnLeft
                    width: root.columnWidth
                    selectionMode: root.selection.selectionMode
                    onToggled: key => slide.toggle(key)
                    onSelectAll: key => root.selection.selectGroup(key)
                    onDeselectAll: key => root.selection.deselectGroup(key)
                    onMenuRequested: (key, count, place) => groupMenu.openFor(key, count, place)
                }
            }

            DelegateChoice {
                roleValue: "row"

                NotificationRowView {
                    id: row

                    x: root.columnLeft
                    width: root.columnWidth
                    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
                        || Theme.isRightToLeft(title || body)
                    LayoutMirroring.childrenInherit: true
                    selectionMode: root.selection.selectionMode
                    circleOpenness: root.circleOpenness
                    menuOpen: rowMenu.visible
                    onPressed: root.notePress(row)
                    onSingleTap: id => root.tapRow(id)
                    onDoubleTap: id => root.actions.onDoubleTap(id)
                    onToggleSelection: id => root.selection.toggleSelection(id)
                    onMenuRequested: (id, place) => rowMenu.openFor(id, place)
                    onPreviewRequested: id => root.actions.previewRow(id)
                }
            }
        }

        footer: LoadOlderFooter {
            x: root.columnLeft
            width: root.columnWidth
            shown: root.list.canLoadOlder
            onClicked: root.list.loadOlder()
        }
        // qmllint enable unqualified

        KeyboardScroller {
            view: listView
        }

        MenuKey {
            view: listView
            onAsked: root.openFocusedMenu()
        }

        FocusFollower {
            view: listView
            covered: pinnedHeader.visible ? pinnedHeader.height : 0
        }

        VisualFocus {
            id: ring

            item: listView
        }

        // Over the pinned header as well.
        T.ScrollBar.vertical: ThinScrollBar {
            parent: root
            z: 1
            anchors.top: parent.top
            anchors.bottom: parent.bottom
            anchors.right: parent.right
        }
    }

    // Under the icon of the focused row, which comes into sight.
    function openFocusedMenu() {
        const line = root.list.lines.focusedLine();
        listView.positionViewAtIndex(line, ListView.Contain);
        (listView.itemAtIndex(line) as NotificationRowView)?.askForMenu();
    }

    function notePress(row: NotificationRowView) {
        if (pressedRow !== row)
            pressedRow?.forgetPress();
        pressedRow = row;
        gesture.restart();
    }

    function tapRow(id: uuid) {
        listView.forceActiveFocus(Qt.MouseFocusReason);
        root.actions.onSingleTap(id);
    }

    // The time in which a second press would make it a double click.
    Timer {
        id: gesture

        interval: Application.styleHints.mouseDoubleClickInterval
        onTriggered: root.pressedRow?.endGesture()
    }

    PinnedHeader {
        id: pinned

        view: listView
        list: root.list
        height: pinnedHeader.height
    }

    GroupSlide {
        id: slide

        view: listView
        list: root.list
        translation: Translate {}
        duration: Metrics.gentle
    }

    SectionHeader {
        id: pinnedHeader

        objectName: "pinnedHeader"
        x: root.columnLeft
        y: pinned.top
        width: root.columnWidth
        header: pinned.header
        selectionMode: root.selection.selectionMode
        visible: pinned.isPinned
        repeated: true
        onToggled: key => {
            listView.positionViewAtIndex(pinned.line, ListView.Beginning);
            slide.toggle(key);
        }
        onSelectAll: key => root.selection.selectGroup(key)
        onDeselectAll: key => root.selection.deselectGroup(key)
        onMenuRequested: (key, count, place) => groupMenu.openFor(key, count, place)
    }

    FocusRing {
        z: 2
        innerRadius: 0
        inside: true
        visible: ring.visual
    }

    HorizontalDivider {
        objectName: "pinnedLine"
        anchors.top: pinnedHeader.bottom
        anchors.left: pinnedHeader.left
        anchors.right: pinnedHeader.right
        anchors.leftMargin: Metrics.spacingMedium
        anchors.rightMargin: Metrics.spacingMedium
        visible: pinnedHeader.visible
    }

    RowMenu {
        id: rowMenu

        actions: root.actions
    }

    GroupMenu {
        id: groupMenu

        onDeleteRequested: key => root.actions.deleteGroup(key)
    }

    Connections {
        target: root.list

        function onDerivationChanged() {
            root.showBeginning();
        }

        // Rows that a frame makes leave marks that ask for one more frame.
        function onListChanged() {
            slide.layOut();
        }
    }
}
