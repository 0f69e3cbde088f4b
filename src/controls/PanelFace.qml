import QtQuick
import Tessarine.Theme

// What lies behind a menu, a popover or a sheet.
Rectangle {
    radius: Metrics.cornerRadius
    color: Theme.colours.panelBackground
    border.width: Metrics.hairline
    border.color: Theme.colours.panelBorder
}
