pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tessarine.Controls

// The rows in the menu of a MenuPicker. Each time it opens, the chosen row is the current one.
ScrollList {
    id: list

    required property list<string> texts
    required property int chosenIndex
    required property bool open
    required property bool pointerCounts

    signal chosen(int index)

    implicitHeight: contentHeight
    model: texts
    currentIndex: -1
    Accessible.role: Accessible.PopupMenu
    onOpenChanged: if (open) currentIndex = chosenIndex

    delegate: MenuPickerRow {
        required property string modelData

        width: list.width
        hoverEnabled: list.pointerCounts
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
