pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tessarine.Theme

// Says that something is going on. It turns only while it can be seen.
T.BusyIndicator {
    id: spinner

    required property string accessibleName
    property int size: 16
    property color tint: Theme.colours.secondaryLabel

    readonly property int spokes: 8
    readonly property int turn: 800
    readonly property bool turning: running && visible && !Theme.reducesMotion && Window.visibility !== Window.Hidden

    implicitWidth: size
    implicitHeight: size
    Accessible.name: accessibleName

    contentItem: Item {
        visible: spinner.running

        RotationAnimation on rotation {
            objectName: "turning"
            running: spinner.turning
            from: 0
            to: 360
            duration: spinner.turn
            loops: Animation.Infinite
        }

        Repeater {
            model: spinner.spokes

            Item {
                required property int index

                anchors.fill: parent
                rotation: index * 360 / spinner.spokes
                opacity: (index + 1) / spinner.spokes

                Rectangle {
                    anchors.top: parent.top
                    anchors.horizontalCenter: parent.horizontalCenter
                    width: Math.max(1.5, spinner.size / 9)
                    height: spinner.size * 0.3
                    radius: width / 2
                    color: spinner.tint
                    antialiasing: true
                }
            }
        }
    }
}
