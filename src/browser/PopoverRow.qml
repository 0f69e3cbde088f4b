// qmllint disable unqualified deferred-property-id

import QtQuick
import QtQuick.Templates as T
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
    Keys.onReturnPressed: click()
    Keys.onEnterPressed: click()

    background: ControlFace {
        control: row
        bordered: false
    }

    contentItem: Item {
        SymbolImage {
            id: symbol

            anchors.verticalCenter: parent.verticalCenter
            symbol: row.icon.name
            size: Metrics.symbolSize
            tint: Theme.colours.accentLabel
        }

        PlainLabel {
            anchors.left: symbol.right
            anchors.leftMargin: Metrics.spacingMedium
            anchors.right: number.visible ? number.left : parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: row.text
            Accessible.ignored: true
        }

        Tag {
            id: number

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: row.badge
            visible: row.badge > 0
        }
    }
}
