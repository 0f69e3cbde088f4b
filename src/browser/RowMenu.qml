import QtQuick
import Tessarine.Browser
import Tessarine.Controls

// The context menu of a row.
ContextMenu {
    id: menu

    required property ContentViewState view
    property var row: ({})

    function openFor(id, place) {
        if (menu.view.selectionMode)
            return;
        menu.row = menu.view.menuOf(id);
        menu.popupAtPointer(place);
    }

    objectName: "rowMenu"

    ContextMenuItem {
        symbol: menu.row.pinned ? "pin.slash" : "pin"
        text: menu.row.pinned ? qsTrId("contextMenu.unpinNotification") : qsTrId("contextMenu.pinNotification")
        onTriggered: menu.view.togglePinned(menu.row.id)
    }

    ContextMenuDivider {}

    ContextMenuItem {
        symbol: "doc.on.doc"
        text: qsTrId("contextMenu.copyNotification")
        onTriggered: menu.view.copyToPasteboard(menu.row.id)
    }

    ContextMenuItem {
        symbol: "arrow.up.forward.app"
        text: menu.row.open ?? ""
        onTriggered: menu.view.openInApp(menu.row.id)
    }

    ContextMenuDivider {}

    ContextMenuItem {
        symbol: "trash"
        text: qsTrId("contextMenu.deleteThis")
        destructive: true
        onTriggered: menu.view.deleteNotification(menu.row.id)
    }

    ContextMenuDivider {}

    ContextMenuItem {
        symbol: "trash.fill"
        text: menu.row.deleteApp ?? ""
        destructive: true
        onTriggered: menu.view.deleteAllFromApp(menu.row.appName)
    }

    ContextMenuItem {
        symbol: "calendar.badge.minus"
        text: menu.row.deleteDay ?? ""
        destructive: true
        onTriggered: menu.view.deleteAllFromDate(menu.row.dayKey)
    }
}
