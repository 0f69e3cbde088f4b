import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// A control with a short caption before it, where there is room for that.
Row {
    id: row

    property alias caption: label.text
    property bool captionFits: true

    required property real controlWidth

    readonly property real widthWithCaption: label.implicitWidth + spacing + controlWidth

    spacing: Metrics.spacingSmall + 2

    PlainLabel {
        id: label

        height: Metrics.controlHeight
        verticalAlignment: Text.AlignVCenter
        font.pixelSize: Metrics.textSmall
        color: Theme.colours.secondaryLabel
        visible: row.captionFits
        Accessible.ignored: true
    }
}
