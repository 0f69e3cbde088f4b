import QtQuick
import Tessarine.Controls
import Tessarine.Diagnostics
import Tessarine.Theme

// A figure of the hoard: what it counts, and how many.
Item {
    id: cell

    required property dbStatCellContent content

    implicitHeight: Metrics.controlHeight
    Accessible.role: Accessible.StaticText
    Accessible.name: title.text
    Accessible.description: content.value

    SymbolImage {
        id: icon

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        symbol: cell.content.symbol
        size: Metrics.symbolSize
        tint: cell.content.colour
    }

    PlainLabel {
        id: title

        anchors.left: icon.right
        anchors.leftMargin: Metrics.spacingMedium
        anchors.verticalCenter: parent.verticalCenter
        text: qsTrId(cell.content.key)
        color: Theme.colours.secondaryLabel
        Accessible.ignored: true
    }

    PlainLabel {
        anchors.left: title.right
        anchors.leftMargin: Metrics.spacingMedium
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: cell.content.value
        font.weight: Font.Medium
        Accessible.ignored: true
    }
}
