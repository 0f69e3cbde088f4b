import QtQuick
import Tessarine.Apps
import Tessarine.Controls
import Tessarine.Theme

// An application, and whether it is excluded. It shows what its owner holds and tells what the user
// wants.
CheckControl {
    id: row

    required property string bundleId
    required property string appName
    required property bool isExcluded

    readonly property string name: appName || bundleId

    signal toggleOn
    signal toggleOff

    implicitHeight: 44
    checked: isExcluded
    onActivated: wanted => wanted ? toggleOn() : toggleOff()
    Accessible.name: name
    Accessible.description: bundleId

    AppIconTile {
        id: icon

        anchors.left: parent.left
        anchors.leftMargin: Metrics.sheetPadding
        anchors.verticalCenter: parent.verticalCenter
        width: 28
        height: 28
        bundleId: row.bundleId
        appName: row.name
        cornerRadius: 6
    }

    Column {
        anchors.left: icon.right
        anchors.leftMargin: Metrics.spacingLarge
        anchors.right: face.left
        anchors.rightMargin: Metrics.spacingLarge
        anchors.verticalCenter: parent.verticalCenter

        PlainLabel {
            objectName: "appName"
            width: parent.width
            text: row.name
            font.pixelSize: Metrics.textHeadline
            maximumLineCount: 1
            Accessible.ignored: true
        }

        PlainLabel {
            objectName: "bundleId"
            width: parent.width
            text: row.bundleId
            font.pixelSize: Metrics.textSmall
            color: Theme.colours.secondaryLabel
            maximumLineCount: 1
            Accessible.ignored: true
        }
    }

    ToggleFace {
        id: face

        anchors.right: parent.right
        anchors.rightMargin: Metrics.sheetPadding
        anchors.verticalCenter: parent.verticalCenter
        control: row
    }
}
