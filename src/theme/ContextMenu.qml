import QtQuick
import QtQuick.Templates as T
import Tessarine.Theme

// A menu of ContextMenuItems and ContextMenuDividers. `popup(item, x, y)` opens it at a place, and
// `popupAtPointer(place)` where the pointer was pressed, in the window's coordinates. The keyboard goes
// back to where it was.
T.Menu {
    id: contextMenu

    readonly property int narrowest: 160
    readonly property int widest: 420
    readonly property bool pointerCounts: mouse.moved

    implicitWidth: Math.max(narrowest, Math.min(widest, implicitContentWidth + leftPadding + rightPadding))
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: Metrics.spacingSmall
    margins: Metrics.windowMargin
    modal: true
    dim: false
    focus: true
    cascade: false

    // A corner of the menu lies at the pointer, whichever leaves it room in the window, so that nobody
    // presses an entry without having aimed at it.
    function popupAtPointer(place: point) {
        const window = parent.Window;
        const left = place.x + implicitWidth + margins > window.width;
        const up = place.y + implicitHeight + margins > window.height;
        const corner = parent.mapFromItem(null, place.x - (left ? implicitWidth : 0),
                                          place.y - (up ? implicitHeight : 0));
        popup(corner.x, corner.y);
    }

    onAboutToShow: {
        currentIndex = -1; // nobody has aimed at an entry yet
        focusKeeper.remember(parent);
    }
    onAboutToHide: focusKeeper.restore(contentItem)

    delegate: ContextMenuItem {}

    background: PanelFace {}

    contentItem: ContextMenuRows {
        menu: contextMenu
    }

    FocusKeeper {
        id: focusKeeper
    }

    MouseWatch {
        id: mouse

        item: contextMenu.parent
        awaitsMove: contextMenu.visible
    }
}
