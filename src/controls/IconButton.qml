import QtQuick
import QtQuick.Templates as T
import Tessarine.Theme

// A button that is a symbol alone. It has no edge until the pointer or the keyboard comes to it.
T.AbstractButton {
    id: button

    required property string symbol
    required property string accessibleName
    property int size: Metrics.symbolSize
    property color tint: Theme.colours.secondaryLabel
    property string toolTipText

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
    }

    contentItem: Item {
        SymbolImage {
            anchors.centerIn: parent
            symbol: button.symbol
            size: button.size
            tint: button.tint
        }
    }

    HoverTip {
        text: button.toolTipText
        visible: button.hovered && !button.down
    }
}
