import QtQuick
import Tessarine.Theme

// A line between what stands above and below.
Rectangle {
    implicitWidth: Metrics.spacingHuge
    implicitHeight: Metrics.hairline
    color: Theme.colours.separator
    Accessible.ignored: true
}
