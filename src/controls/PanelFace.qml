import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// What lies behind a menu, a popover or a sheet, with the shadow that it throws.
Rectangle {
    id: face

    property int shadowReach: Metrics.shadowReach

    readonly property int shadowDrop: Math.round(shadowReach / 4) // light falls from above

    radius: Metrics.cornerRadius
    color: Theme.colours.panelBackground
    border.width: Metrics.hairline
    border.color: Theme.colours.panelBorder

    SoftShadow {
        objectName: "shadow"
        anchors.fill: parent
        anchors.margins: -reach
        anchors.topMargin: face.shadowDrop - reach
        anchors.bottomMargin: -face.shadowDrop - reach
        z: -1
        reach: face.shadowReach
        color: Theme.colours.shadow
    }
}
