import QtQuick
import Tessarine.Theme

// A line between what stands on its left and right.
Rectangle {
    implicitWidth: Metrics.hairline
    implicitHeight: Metrics.spacingWide
    color: Theme.colours.separator
    Accessible.ignored: true
}
