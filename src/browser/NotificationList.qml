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

    required property ContentViewState view
    property NotificationRow pressedRow: null // by the left button, last

    clip: true

    function showBeginning() {
        list.positionViewAtBeginning();
        list.contentY = list.originY - list.topMargin;
    }

    ScrollList {
        id: list

        objectName: "list"
        anchors.fill: parent
        focus: true
        activeFocusOnTab: true
        // A current row would have the keyboard and read as focused, and its highlight, though unseen,
        // would move for a dozen frames at each capture.
        currentIndex: -1
        model: root.view.lines
        spacing: Metrics.spacingSmall
        topMargin: Metrics.spacingSmall
        bottomMargin: Metrics.spacingSmall
        Accessible.role: Accessible.List
        Accessible.name: qsTrId("hoard.list")

        // The line at the upper edge; -1 above the first one. The room between two lines belongs to
        // the lower one.
        readonly property int topLine: (root.view.revision, contentHeight, originY,
                                        lineAt(contentY + 1) >= 0 ? lineAt(contentY + 1)
                                                                  : lineAt(contentY + 1 + spacing))
        readonly property int pinnedLine: (root.view.revision, root.view.lines.headerAbove(topLine))
        readonly property Item pinnedItem: (root.view.revision, contentY, itemAtIndex(pinnedLine))
        readonly property Item nextItem: (root.view.revision, contentY, itemAtIndex(root.view.lines.headerBelow(topLine)))

        function lineAt(y: real): int {
            return indexAt(width / 2, y);
        }

        // Components bound to this file would have qualified names, but a list makes no footer of one.
        // qmllint disable unqualified
        delegate: DelegateChooser {
            role: "kind"

            DelegateChoice {
                roleValue: "header"

                SectionHeader {
                    width: list.width
                    selectionMode: root.view.selectionMode
                    onToggled: key => root.view.toggleGroup(key)
                    onSelectAll: key => root.view.selectGroup(key)
                    onDeselectAll: key => root.view.deselectGroup(key)
                    onMenuRequested: (key, count, place) => groupMenu.openFor(key, count, place)
                }
            }

            DelegateChoice {
                roleValue: "row"

                NotificationRow {
                    id: row

                    width: list.width
                    selectionMode: root.view.selectionMode
                    menuOpen: rowMenu.visible
                    onPressed: root.notePress(row)
                    onSingleTap: id => root.tapRow(id)
                    onDoubleTap: id => root.view.onDoubleTap(id)
                    onToggleSelection: id => root.view.toggleSelection(id)
                    onMenuRequested: (id, place) => rowMenu.openFor(id, place)
                }
            }
        }

        footer: LoadOlderFooter {
            width: list.width
            shown: root.view.canLoadOlder
            onClicked: root.view.loadOlder()
        }
        // qmllint enable unqualified

        KeyboardScroller {
            view: list
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

    function notePress(row: NotificationRow) {
        if (pressedRow !== row)
            pressedRow?.forgetPress();
        pressedRow = row;
    }

    function tapRow(id) {
        list.forceActiveFocus(Qt.MouseFocusReason);
        root.view.onSingleTap(id);
    }

    SectionHeader {
        objectName: "pinnedHeader"
        width: list.width
        y: Math.min(0, list.nextItem ? list.nextItem.y - list.contentY - height : 0)
        header: (root.view.revision, root.view.lines.header(list.pinnedLine))
        selectionMode: root.view.selectionMode
        visible: list.pinnedLine >= 0 && (!list.pinnedItem || list.pinnedItem.y < list.contentY)
        Accessible.ignored: true
        onToggled: key => {
            list.positionViewAtIndex(list.pinnedLine, ListView.Beginning);
            root.view.toggleGroup(key);
        }
        onSelectAll: key => root.view.selectGroup(key)
        onDeselectAll: key => root.view.deselectGroup(key)
        onMenuRequested: (key, count, place) => groupMenu.openFor(key, count, place)
    }

    RowMenu {
        id: rowMenu

        view: root.view
    }

    GroupMenu {
        id: groupMenu

        onDeleteRequested: key => root.view.deleteGroup(key)
    }

    Connections {
        target: root.view

        function onDerivationChanged() {
            root.showBeginning();
        }
    }
}
