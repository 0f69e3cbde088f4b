import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// The circle before a row in selection mode. Its column opens and closes with the mode, in all rows
// alike.
Loader {
    id: circle

    required property real openness // from 0 to 1
    required property bool checked

    readonly property int column: 24
    readonly property int symbolTop: 8
    readonly property int symbolSize: 18

    width: column * openness
    height: symbolTop + symbolSize
    opacity: openness
    active: openness > 0

    // A loader can't make a component that is bound to this file.
    // qmllint disable unqualified
    sourceComponent: Item {
        SymbolImage {
            anchors.horizontalCenter: parent.horizontalCenter
            y: circle.symbolTop
            symbol: circle.checked ? "checkmark.circle.fill" : "circle"
            size: circle.symbolSize
            tint: circle.checked ? Theme.colours.accent : Theme.colours.tertiaryLabel
        }
    }
    // qmllint enable unqualified
}
