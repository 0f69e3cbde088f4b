import QtQuick
import QtQuick.Templates as T
import Tessarine.Theme

// The rows of a ContextMenu.
ScrollList {
    required property T.Menu menu

    readonly property real widestRow: Array.from({ length: menu.count }, (nothing, index) => menu.itemAt(index))
        .reduce((widest, row) => Math.max(widest, row?.implicitWidth ?? 0), 0)

    implicitWidth: widestRow
    implicitHeight: contentHeight
    model: menu.contentModel
    currentIndex: menu.currentIndex

    T.ScrollBar.vertical: ThinScrollBar {}
}
