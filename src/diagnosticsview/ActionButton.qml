import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// A button whose action goes on for a while. Meanwhile a wheel turns in the place of its symbol, and the
// owner ignores its presses: it keeps the keyboard and its size.
TextButton {
    id: button

    required property string symbolName
    required property color tint
    property bool busy

    symbol: symbolName
    symbolInk: busy ? "transparent" : tint
    Accessible.description: busy ? qsTrId("diag.busy") : ""

    ProgressSpinner {
        objectName: "spinner"
        anchors.verticalCenter: parent.verticalCenter
        x: button.mirrored ? button.width - width - button.rightPadding : button.leftPadding
        accessibleName: qsTrId("diag.busy")
        size: Metrics.symbolSize
        tint: button.tint
        visible: button.busy
    }
}
