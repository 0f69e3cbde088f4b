import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// The first line of a row: the application, and at the far end the time or how to see more.
Item {
    id: line

    required property string appName
    required property string timeText
    required property bool masked

    readonly property real timeOpacity: 0.7

    height: name.height

    PlainLabel {
        id: name

        anchors.left: parent.left
        anchors.right: line.masked ? hint.left : time.left
        anchors.rightMargin: Metrics.spacingMedium
        text: line.appName
        font.pixelSize: Metrics.textSmall
        font.weight: Font.DemiBold
        color: Theme.colours.secondaryLabel
        maximumLineCount: 1
        wrapMode: Text.WrapAnywhere
        Accessible.ignored: true
    }

    PlainLabel {
        id: time

        anchors.right: parent.right
        anchors.baseline: name.baseline
        text: line.timeText
        font.family: Theme.tabularFamily
        font.pixelSize: Metrics.textTiny
        color: Theme.colours.secondaryLabel
        opacity: line.timeOpacity
        visible: !line.masked
        Accessible.ignored: true
    }

    Loader {
        id: hint

        anchors.right: parent.right
        anchors.verticalCenter: name.verticalCenter
        active: line.masked

        sourceComponent: Row {
            readonly property real hintOpacity: 0.6

            opacity: hintOpacity
            spacing: Metrics.spacingSmall

            SymbolImage {
                anchors.verticalCenter: parent.verticalCenter
                symbol: "eye"
                size: Metrics.textTiny
                tint: Theme.colours.secondaryLabel
            }

            PlainLabel {
                anchors.verticalCenter: parent.verticalCenter
                text: qsTrId("row.clickToReveal")
                font.pixelSize: Metrics.textTiny
                color: Theme.colours.secondaryLabel
                Accessible.ignored: true
            }
        }
    }
}
