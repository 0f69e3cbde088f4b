import QtQuick
import QtQuick.Templates as T
import Tessarine.Theme

// One text in the menu of a MenuPicker.
T.MenuItem {
    id: row

    required property int index
    property bool chosen
    property bool current

    objectName: "menuRow"
    implicitHeight: Metrics.menuRowHeight
    focusPolicy: Qt.NoFocus
    Accessible.role: Accessible.MenuItem
    Accessible.checkable: true
    Accessible.checked: chosen
    Accessible.onPressAction: clicked()
    Accessible.name: text

    background: MenuRowFace {
        lit: row.current
    }

    contentItem: MenuRowContent {
        symbol: row.chosen ? "checkmark" : ""
        text: row.text
    }
}
