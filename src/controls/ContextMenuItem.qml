import QtQuick
import QtQuick.Templates as T
import Tessarine.Theme

// An entry of a ContextMenu; `triggered` says that it was chosen. A destructive one is red.
T.MenuItem {
    id: item

    property string symbol
    property bool destructive

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Metrics.menuRowHeight
    height: visible ? implicitHeight : 0
    hoverEnabled: (menu as ContextMenu)?.pointerCounts ?? true
    Accessible.role: Accessible.MenuItem
    Accessible.name: text
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    background: MenuRowFace {
        lit: item.highlighted
    }

    contentItem: MenuRowContent {
        symbol: item.symbol
        text: item.text
        ink: item.destructive ? Theme.colours.red : Theme.colours.label
        opacity: item.enabled ? 1 : Metrics.disabledOpacity
    }
}
