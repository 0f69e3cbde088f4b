import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// A control with a short caption before it.
Row {
    property alias caption: label.text

    spacing: Metrics.spacingSmall + 2

    PlainLabel {
        id: label

        height: Metrics.controlHeight
        verticalAlignment: Text.AlignVCenter
        font.pixelSize: Metrics.textSmall
        color: Theme.colours.secondaryLabel
        Accessible.ignored: true
    }
}
