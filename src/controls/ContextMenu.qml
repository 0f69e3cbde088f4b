import QtQuick
import QtQuick.Templates as T
import Tessarine.Controls
import Tessarine.Theme

// A menu of ContextMenuItems and ContextMenuDividers. `popupBelow(item)` opens it there, and
// `popupAtPointer(place)` where the pointer was pressed, in the window's coordinates. The keyboard goes
// back to where it was.
T.Menu {
    id: contextMenu

    readonly property int narrowest: 160
    readonly property int widest: 420
    readonly property bool pointerCounts: mouse.moved
    readonly property bool mirrors: Application.layoutDirection === Qt.RightToLeft

    property point pointer // where it was pressed, in the window
    readonly property bool opensLeft: mirrors ? pointer.x - implicitWidth - margins >= 0
        : pointer.x + implicitWidth + margins > (parent?.Window.width ?? 0)
    readonly property bool opensUp: pointer.y + implicitHeight + margins > (parent?.Window.height ?? 0)

    implicitWidth: Math.max(narrowest, Math.min(widest, implicitContentWidth + leftPadding + rightPadding))
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: Metrics.spacingSmall
    margins: Metrics.windowMargin
    modal: true
    dim: false
    focus: true
    cascade: false

    // Under an item, from the side where its lines begin.
    function popupBelow(item: Item) {
        parent = item;
        x = Qt.binding(() => mirrors ? parent.width - width : 0);
        y = item.height + Metrics.spacingSmall;
        open();
    }

    // A corner of the menu lies at the pointer, whichever leaves it room in the window, so that nobody
    // presses an entry without having aimed at it. A menu knows its size only after it has opened.
    function popupAtPointer(place: point) {
        pointer = place;
        x = Qt.binding(() => parent.mapFromItem(null, pointer.x - (opensLeft ? width : 0), 0).x);
        y = Qt.binding(() => parent.mapFromItem(null, 0, pointer.y - (opensUp ? height : 0)).y);
        open();
    }

    onAboutToShow: {
        currentIndex = -1; // nobody has aimed at an entry yet
        focusKeeper.remember(parent);
    }
    onAboutToHide: focusKeeper.restore(contentItem)

    delegate: ContextMenuItem {}

    background: PanelFace {}

    contentItem: ContextMenuRows {
        LayoutMirroring.enabled: contextMenu.mirrors // popups inherit it from nobody
        LayoutMirroring.childrenInherit: true
        menu: contextMenu
    }

    FocusKeeper {
        id: focusKeeper
    }

    ContextMenuKeyboard {
        view: contextMenu.contentItem?.parent ?? null
        menu: contextMenu
    }

    MouseWatch {
        id: mouse

        item: contextMenu.parent
        awaitsMove: contextMenu.visible
    }
}
