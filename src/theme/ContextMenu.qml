import QtQuick
import QtQuick.Templates as T
import Tessarine.Theme

// A menu of ContextMenuItems and ContextMenuDividers. `popup()` opens it at the pointer,
// `popup(item, x, y)` at a place. The keyboard goes back to where it was.
T.Menu {
    id: contextMenu

    readonly property int narrowest: 160
    readonly property int widest: 420

    implicitWidth: Math.max(narrowest, Math.min(widest, implicitContentWidth + leftPadding + rightPadding))
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: Metrics.spacingSmall
    margins: Metrics.windowMargin
    modal: true
    dim: false
    focus: true
    cascade: false
    onAboutToShow: focusKeeper.remember(parent)
    onAboutToHide: focusKeeper.restore(contentItem)

    delegate: ContextMenuItem {}

    background: PanelFace {}

    contentItem: ContextMenuRows {
        menu: contextMenu
    }

    FocusKeeper {
        id: focusKeeper
    }
}
