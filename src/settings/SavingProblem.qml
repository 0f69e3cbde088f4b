import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// Says that what the user has set is not on disk.
Rectangle {
    id: problem

    readonly property string message: qsTrId("prefs.saveProblem")

    implicitHeight: line.height + 2 * Metrics.spacingMedium
    color: Theme.colours.controlBackground
    Accessible.role: Accessible.AlertMessage
    Accessible.name: message

    HorizontalDivider {
        width: parent.width
    }

    SymbolImage {
        id: sign

        anchors.left: parent.left
        anchors.leftMargin: Metrics.sheetPadding
        anchors.verticalCenter: parent.verticalCenter
        symbol: "exclamationmark.triangle.fill"
        size: Metrics.symbolSize
        tint: Theme.colours.orange
    }

    PlainLabel {
        id: line

        anchors.left: sign.right
        anchors.leftMargin: Metrics.spacingMedium
        anchors.right: parent.right
        anchors.rightMargin: Metrics.sheetPadding
        anchors.verticalCenter: parent.verticalCenter
        text: problem.message
        font.pixelSize: Metrics.textSmall
        color: Theme.colours.orange
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
}
