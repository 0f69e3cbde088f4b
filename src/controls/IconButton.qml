import QtQuick
import QtQuick.Templates as T
import Tessarine.Theme

// A button that is a symbol alone. It has no edge until the pointer or the keyboard comes to it.
T.AbstractButton {
    id: button

    required property string symbol
    required property string accessibleName
    property int size: Metrics.symbolSize
    property color tint: Theme.colours.placeholderLabel
    property string toolTipText
    property real turn: 0 // of the symbol, in degrees
    property bool ringInside: false // where there is no room around the button
    property bool directional // the symbol points where lines go on

    // As a click would, for a key or a screen reader.
    function press() {
        if (enabled)
            clicked();
    }

    implicitWidth: Math.max(Metrics.controlHeight, size + Metrics.spacingMedium)
    implicitHeight: implicitWidth
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    opacity: enabled ? 1 : Metrics.disabledOpacity
    Accessible.role: Accessible.Button
    Accessible.name: accessibleName
    Accessible.onPressAction: press()
    Keys.onReturnPressed: press()
    Keys.onEnterPressed: press()

    background: ControlFace {
        control: button
        bordered: false
        ringInside: button.ringInside
    }

    contentItem: Item {
        SymbolImage {
            anchors.centerIn: parent
            symbol: button.symbol
            size: button.size
            tint: button.tint
            rotation: button.turn
            mirror: button.directional && button.mirrored
        }
    }

    HoverTip {
        text: button.toolTipText
        hovered: button.hovered
    }
}
