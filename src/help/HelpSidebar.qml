pragma ComponentBehavior: Bound

import QtQuick
import Tessarine.Controls
import Tessarine.Help

// The sections of the help, of which one is shown; while something is looked for, none is.
ScrollArea {
    id: sidebar

    required property HelpView view

    // A section, with the keyboard.
    function goTo(index: int) {
        view.selectedIndex = index;
        rows.itemAt(view.selectedIndex).forceActiveFocus(Qt.TabFocusReason);
    }

    contentHeight: column.height
    Accessible.role: Accessible.List
    Accessible.name: qsTrId("help.sections")

    Column {
        id: column

        width: parent.width

        Repeater {
            id: rows

            model: sidebar.view.sections

            HelpSidebarRow {
                required property int index
                required property helpSectionEntry modelData

                objectName: modelData.rawValue
                width: column.width
                focus: tabStop
                icon: modelData.icon
                title: modelData.title
                chosen: tabStop && !sidebar.view.searching
                tabStop: index === sidebar.view.selectedIndex
                onClicked: sidebar.view.selectedIndex = index
                onMoved: steps => sidebar.goTo(index + steps)
                Keys.onPressed: event => {
                    event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End;
                    if (event.accepted)
                        sidebar.goTo(event.key === Qt.Key_Home ? 0 : rows.count - 1);
                }
            }
        }
    }
}
