import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// A bar that fills from 0 to 1.
Item {
    id: bar

    required property string accessibleName
    property alias fraction: motion.value
    property color tint: Theme.colours.accent

    readonly property alias moving: motion.moving
    readonly property alias shown: motion.shown

    implicitWidth: 200
    implicitHeight: Metrics.barHeight
    Accessible.role: Accessible.ProgressBar
    Accessible.name: accessibleName
    Accessible.description: qsTrId("progress.percent").arg(motion.percent)

    AnimatedFraction {
        id: motion

        value: 0
        seen: bar.visible && bar.Window.visibility !== Window.Hidden
        duration: Metrics.gentle
    }

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: Theme.colours.tagFill
    }

    Rectangle {
        objectName: "fill"
        anchors.left: parent.left
        width: Math.max(height, motion.shown * bar.width)
        height: bar.height
        radius: height / 2
        color: bar.tint
        visible: motion.shown > 0
    }
}
