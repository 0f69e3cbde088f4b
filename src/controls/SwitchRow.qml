import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// A row of settings that is on or off: its texts, and a switch at the far end. All of it can be clicked.
CheckControl {
    id: row

    required property string title
    property alias caption: texts.caption
    property alias note: texts.note
    property alias noteSymbol: texts.noteSymbol
    property alias noteInk: texts.noteInk

    readonly property alias position: face.position

    implicitWidth: 320
    implicitHeight: Math.max(Metrics.controlHeight, texts.height)
    opacity: enabled ? 1 : Metrics.disabledOpacity
    Accessible.name: title
    Accessible.description: texts.spokenDetail

    RowTexts {
        id: texts

        anchors.left: parent.left
        anchors.right: face.left
        anchors.rightMargin: Metrics.spacingLarge
        anchors.verticalCenter: parent.verticalCenter
        title: row.title
    }

    ToggleFace {
        id: face

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        control: row
    }
}
