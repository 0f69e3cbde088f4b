import QtQuick
import Tessarine.Browser
import Tessarine.Controls
import Tessarine.Theme

// A short message between toolbar and list.
Rectangle {
    id: view

    required property inlineBanner banner

    readonly property int sideBar: 3
    readonly property int symbolColumn: 20
    readonly property int symbolSize: 15
    readonly property int horizontalPadding: 14
    readonly property int itemSpacing: 10
    readonly property color ink: banner.isWarning ? Theme.colours.orange : Theme.colours.accent

    signal dismissed

    implicitHeight: texts.height + 2 * Metrics.spacingMedium
    color: Qt.alpha(ink, banner.isWarning ? 0.09 : 0.07)
    Accessible.role: Accessible.AlertMessage
    Accessible.name: banner.title + " " + banner.subtitle

    Rectangle {
        anchors.left: parent.left
        width: view.sideBar
        height: parent.height
        color: view.ink
    }

    Item {
        id: symbolRoom

        anchors.left: parent.left
        anchors.leftMargin: view.horizontalPadding
        width: view.symbolColumn
        height: parent.height

        SymbolImage {
            anchors.centerIn: parent
            symbol: view.banner.icon
            size: view.symbolSize
            tint: view.ink
        }
    }

    Column {
        id: texts

        anchors.left: symbolRoom.right
        anchors.leftMargin: view.itemSpacing
        anchors.right: closeButton.left
        anchors.rightMargin: view.itemSpacing
        anchors.verticalCenter: parent.verticalCenter
        spacing: 1

        PlainLabel {
            width: parent.width
            text: view.banner.title
            font.weight: Font.DemiBold
            Accessible.ignored: true
        }

        PlainLabel {
            width: parent.width
            text: view.banner.subtitle
            font.pixelSize: Metrics.textSmall
            color: Theme.colours.secondaryLabel
            Accessible.ignored: true
        }
    }

    IconButton {
        id: closeButton

        objectName: "dismissBanner"
        anchors.right: parent.right
        anchors.rightMargin: view.horizontalPadding - Metrics.spacingSmall
        anchors.verticalCenter: parent.verticalCenter
        symbol: "xmark"
        size: 10
        accessibleName: qsTrId("action.close")
        onClicked: view.dismissed()
    }
}
