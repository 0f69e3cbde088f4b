import QtQuick
import QtQuick.Templates as T
import Tessarine.Theme

// The rows of a ContextMenu.
ListView {
    required property T.Menu menu

    readonly property real widestRow: Array.from({ length: menu.count }, (nothing, index) => menu.itemAt(index))
        .reduce((widest, row) => Math.max(widest, row?.implicitWidth ?? 0), 0)

    implicitWidth: widestRow
    implicitHeight: contentHeight
    model: menu.contentModel
    currentIndex: menu.currentIndex
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    highlightMoveDuration: 0
    keyNavigationEnabled: false

    T.ScrollBar.vertical: ThinScrollBar {}
}
