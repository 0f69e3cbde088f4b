import QtQuick
import Tessarine.Apps
import Tessarine.Controls
import Tessarine.Theme

// The icon of an application, or a tile with its initials while there is none.
AppIconView {
    id: view

    readonly property int tileRadius: 7
    readonly property real initialsShare: 0.45 // of the side, at most

    Image {
        objectName: "icon"
        anchors.fill: parent
        visible: view.hasIcon
        source: view.width > 0 && view.height > 0 ? view.iconSource : ""
        sourceSize.width: view.width
        sourceSize.height: view.height
        smooth: true
        mipmap: true
    }

    Rectangle {
        objectName: "placeholder"
        anchors.fill: parent
        visible: !view.hasIcon
        radius: Math.max(view.tileRadius, view.cornerRadius)
        color: view.placeholderColour

        PlainLabel {
            objectName: "initials"
            anchors.centerIn: parent
            text: view.initials
            color: "white"
            font.pixelSize: Math.max(1, Math.min(Metrics.textBody, Math.floor(view.initialsShare * view.height)))
            font.weight: Font.DemiBold
            scale: Math.min(1, (view.width - 2 * Metrics.hairline) / Math.max(1, implicitWidth))
        }
    }
}
