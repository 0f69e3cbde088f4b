import QtQuick
import Tessarine.Browser
import Tessarine.Controls

// The context menu of a row.
ContextMenu {
    id: menu

    required property RowActions actions
    property rowMenuContent row

    function openFor(id: uuid, place: point) {
        menu.row = menu.actions.menuOf(id);
        if (!menu.row.isEmpty)
            menu.popupAtPointer(place);
    }

    objectName: "rowMenu"

    ContextMenuItem {
        symbol: menu.row.pinned ? "pin.slash" : "pin"
        text: menu.row.pinned ? qsTrId("contextMenu.unpinNotification") : qsTrId("contextMenu.pinNotification")
        onTriggered: menu.actions.togglePinned(menu.row.id)
    }

    ContextMenuDivider {}

    ContextMenuItem {
        symbol: "doc.on.doc"
        text: qsTrId("contextMenu.copyNotification")
        onTriggered: menu.actions.copyToPasteboard(menu.row.id)
    }

    ContextMenuItem {
        symbol: "arrow.up.forward.app"
        text: menu.row.openText
        onTriggered: menu.actions.openInApp(menu.row.id)
    }

    ContextMenuDivider {}

    ContextMenuItem {
        symbol: "trash"
        text: qsTrId("contextMenu.deleteThis")
        destructive: true
        onTriggered: menu.actions.deleteNotification(menu.row.id)
    }

    ContextMenuDivider {}

    ContextMenuItem {
        symbol: "trash.fill"
        text: menu.row.deleteAppText
        destructive: true
        onTriggered: menu.actions.deleteAllFromApp(menu.row.appName)
    }

    ContextMenuItem {
        symbol: "calendar.badge.minus"
        text: menu.row.deleteDayText
        destructive: true
        onTriggered: menu.actions.deleteAllFromDate(menu.row.dayKey)
    }
}
