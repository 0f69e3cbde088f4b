import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// One section in the sidebar. The arrows go from row to row; the row that is a stop for Tab is
// `tabStop`.
FocusableItem {
    id: row

    required property string icon
    required property string title
    property bool chosen
    property bool tabStop

    readonly property color ink: chosen ? Theme.colours.accentLabel : Theme.colours.label

    signal clicked
    signal moved(int steps)

    implicitHeight: Metrics.menuRowHeight + Metrics.spacingTiny
    activeFocusOnTab: tabStop
    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.focusable: true
    Accessible.selectable: true
    Accessible.selected: chosen
    Accessible.onPressAction: clicked()
    onKeyPressed: clicked()
    Keys.onUpPressed: moved(-1)
    Keys.onDownPressed: moved(1)

    Rectangle {
        anchors.fill: parent
        radius: Metrics.controlRadius
        color: row.chosen ? Theme.colours.pressedFill : area.containsMouse ? Theme.colours.hoverFill : "transparent"

        FocusRing {
            inside: true
            innerRadius: parent.radius
            visible: row.visualFocus
        }
    }

    SymbolImage {
        id: image

        anchors.left: parent.left
        anchors.leftMargin: Metrics.spacingMedium
        anchors.verticalCenter: parent.verticalCenter
        symbol: row.icon
        size: Metrics.symbolSize
        tint: row.ink
    }

    PlainLabel {
        anchors.left: image.right
        anchors.leftMargin: Metrics.spacingMedium
        anchors.right: parent.right
        anchors.rightMargin: Metrics.spacingSmall
        anchors.verticalCenter: parent.verticalCenter
        text: row.title
        color: row.ink
        font.weight: row.chosen ? Font.DemiBold : Font.Normal
        Accessible.ignored: true
    }

    MouseArea {
        id: area

        anchors.fill: parent
        hoverEnabled: true
        onClicked: row.clicked()
    }
}
