import QtQuick
import Tessarine.Theme

// A switch, without a word of what it switches beside it.
CheckControl {
    id: toggle

    required property string accessibleName

    readonly property alias position: face.position

    implicitWidth: face.implicitWidth
    implicitHeight: face.implicitHeight
    opacity: enabled ? 1 : Metrics.disabledOpacity
    Accessible.name: accessibleName

    ToggleFace {
        id: face

        anchors.fill: parent
        control: toggle
    }
}
