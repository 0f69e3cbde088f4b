import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// The ground of a card of the status board, with its heading. What it says stands below, in its own
// room.
Rectangle {
    id: face

    required property string symbol
    required property string title
    required property color tint
    default property alias room: body.data

    implicitHeight: 62
    radius: Metrics.cornerRadius
    color: Theme.colours.controlBackground
    border.width: Metrics.hairline
    border.color: Theme.colours.controlBorder

    SymbolImage {
        id: icon

        anchors.left: parent.left
        anchors.leftMargin: Metrics.spacingLarge
        y: Metrics.spacingMedium + 2
        symbol: face.symbol
        size: Metrics.symbolSize
        tint: face.tint
    }

    PlainLabel {
        anchors.left: icon.right
        anchors.leftMargin: Metrics.spacingSmall + 2
        anchors.right: parent.right
        anchors.rightMargin: Metrics.spacingLarge
        anchors.verticalCenter: icon.verticalCenter
        text: face.title
        font.pixelSize: Metrics.textSmall
        color: Theme.colours.secondaryLabel
        Accessible.ignored: true
    }

    Item {
        id: body

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: icon.bottom
        anchors.bottom: parent.bottom
        anchors.leftMargin: Metrics.spacingLarge
        anchors.rightMargin: Metrics.spacingLarge
        anchors.topMargin: Metrics.spacingTiny
        anchors.bottomMargin: Metrics.spacingSmall
    }
}
