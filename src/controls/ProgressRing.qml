import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// A ring that fills from 0 to 1, from the top and clockwise. Each change takes a second, so that what is
// counted in seconds moves evenly.
Item {
    id: ring

    required property string accessibleName
    property alias fraction: motion.value
    property color tint: Theme.colours.accent
    property int size: Metrics.ringSize

    readonly property alias moving: motion.moving
    readonly property alias shown: motion.shown

    implicitWidth: size
    implicitHeight: size
    Accessible.role: Accessible.ProgressBar
    Accessible.name: accessibleName
    Accessible.description: qsTrId("progress.percent").arg(motion.percent)

    AnimatedFraction {
        id: motion

        value: 0
        seen: ring.visible && ring.Window.visibility !== Window.Hidden
        duration: Metrics.ringStep
    }

    Arc {
        anchors.fill: parent
        color: Theme.colours.tagFill
        strokeWidth: Metrics.ringWidth
    }

    Arc {
        anchors.fill: parent
        color: ring.tint
        strokeWidth: Metrics.ringWidth
        fraction: motion.shown
        visible: fraction > 0
    }
}
