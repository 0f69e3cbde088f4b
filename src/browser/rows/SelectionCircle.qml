import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// The circle before a row in selection mode. Its column opens and closes with the mode.
Item {
    id: circle

    property bool shown
    property bool checked

    readonly property int column: 24
    readonly property int symbolTop: 8
    readonly property int symbolSize: 18

    property bool isComplete // and so may open and close; a new row has its place at once

    width: shown ? column : 0
    height: symbolTop + symbolSize
    opacity: shown ? 1 : 0
    visible: opacity > 0
    Component.onCompleted: isComplete = true

    Behavior on width {
        enabled: circle.isComplete

        NumberAnimation { duration: Metrics.gentle; easing.type: Easing.InOutQuad }
    }

    Behavior on opacity {
        enabled: circle.isComplete

        NumberAnimation { duration: Metrics.gentle; easing.type: Easing.InOutQuad }
    }

    SymbolImage {
        anchors.horizontalCenter: parent.horizontalCenter
        y: circle.symbolTop
        symbol: circle.checked ? "checkmark.circle.fill" : "circle"
        size: circle.symbolSize
        tint: circle.checked ? Theme.colours.accent : Theme.colours.tertiaryLabel
    }
}
