import QtQuick
import QtQuick.Templates as T
import Tessarine.Controls
import Tessarine.Theme

// A choice in the date popover: a symbol, a text, and a number where there is one.
T.AbstractButton {
    id: row

    property int badge

    implicitHeight: Metrics.menuRowHeight
    leftPadding: Metrics.spacingSmall
    rightPadding: Metrics.spacingSmall
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onReturnPressed: row.clicked()
    Keys.onEnterPressed: row.clicked()

    background: ControlFace {
        control: row
        bordered: false
        ringInside: true
    }

    contentItem: PopoverRowContent {
        symbol: row.icon.name
        text: row.text
        badge: row.badge
    }
}
