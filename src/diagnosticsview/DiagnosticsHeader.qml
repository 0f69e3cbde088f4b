import QtQuick
import Tessarine.Controls
import Tessarine.Diagnostics
import Tessarine.Theme

// The head of the window: what it is, how much was captured, and the way to an empty log.
Item {
    id: header

    required property DiagnosticsView view

    implicitHeight: 60

    SymbolImage {
        id: icon

        anchors.left: parent.left
        anchors.leftMargin: Metrics.spacingWide
        anchors.verticalCenter: parent.verticalCenter
        symbol: "antenna.radiowaves.left.and.right"
        size: 26
        tint: Theme.colours.accent
    }

    Column {
        anchors.left: icon.right
        anchors.leftMargin: Metrics.spacingLarge
        anchors.right: counter.left
        anchors.rightMargin: Metrics.spacingLarge
        anchors.verticalCenter: parent.verticalCenter

        PlainLabel {
            width: parent.width
            text: "Tessarine"
            font.pixelSize: Metrics.textTitle
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        PlainLabel {
            width: parent.width
            text: "Live Diagnostics"
            color: Theme.colours.secondaryLabel
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }

    Item {
        id: counter

        objectName: "captured"
        anchors.right: clear.left
        anchors.rightMargin: Metrics.spacingLarge
        anchors.verticalCenter: parent.verticalCenter
        width: content.implicitWidth
        height: content.implicitHeight
        Accessible.role: Accessible.StaticText
        Accessible.name: header.view.captured

        SymbolAndText {
            id: content

            anchors.fill: parent
            symbol: "tray.full"
            text: header.view.captured
            ink: Theme.colours.secondaryLabel
        }
    }

    IconButton {
        id: clear

        objectName: "clearLog"
        anchors.right: parent.right
        anchors.rightMargin: Metrics.spacingLarge
        anchors.verticalCenter: parent.verticalCenter
        symbol: "trash"
        accessibleName: qsTrId("diag.log.clear")
        toolTipText: qsTrId("diag.log.clear")
        tint: Theme.colours.secondaryLabel
        onClicked: header.view.log.clear()
    }
}
