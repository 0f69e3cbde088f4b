pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tessarine.Theme

// The rows in the menu of a MenuPicker. Each time it opens, the chosen row is the current one.
ListView {
    id: list

    required property var texts
    required property int chosenIndex
    required property bool open

    signal chosen(int index)

    implicitHeight: contentHeight
    clip: true
    model: texts
    currentIndex: -1
    boundsBehavior: Flickable.StopAtBounds
    highlightMoveDuration: 0
    keyNavigationEnabled: false
    Accessible.role: Accessible.PopupMenu
    onOpenChanged: if (open) currentIndex = chosenIndex

    delegate: MenuPickerRow {
        required property string modelData

        width: list.width
        text: modelData
        chosen: index === list.chosenIndex
        current: ListView.isCurrentItem
        onClicked: list.chosen(index)
        onHoveredChanged: if (hovered) list.currentIndex = index
    }

    MenuKeyboard {
        view: list
        texts: list.texts
        onChosen: row => list.chosen(row)
    }

    T.ScrollBar.vertical: ThinScrollBar {}
}
