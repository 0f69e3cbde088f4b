import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// Says in a masked row, in the place of its time, how to see more.
Row {
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
