import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// A small heading inside a popover.
PlainLabel {
    leftPadding: Metrics.spacingSmall
    rightPadding: Metrics.spacingSmall
    topPadding: Metrics.spacingTiny
    font.pixelSize: Metrics.textSmall
    font.weight: Font.DemiBold
    color: Theme.colours.secondaryLabel
    Accessible.role: Accessible.Heading
    Accessible.name: text
}
