import QtQuick
import Tessarine.Controls

// The context menu of a group's header.
ContextMenu {
    id: menu

    property string key
    property int groupCount

    signal deleteRequested(string key)

    function openFor(key: string, count: int, place: point) {
        menu.key = key;
        menu.groupCount = count;
        menu.popupAtPointer(place);
    }

    objectName: "groupMenu"

    ContextMenuItem {
        symbol: "trash"
        text: qsTrId("contextMenu.deleteAllCount", menu.groupCount)
        destructive: true
        onTriggered: menu.deleteRequested(menu.key)
    }
}
