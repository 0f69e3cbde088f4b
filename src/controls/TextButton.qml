import QtQuick
import QtQuick.Templates as T
import Tessarine.Theme

// A button with a text, and a symbol before it where one is named. A prominent button is the one that
// Return presses; a destructive one is red; a plain one has no edge.
T.Button {
    id: button

    property string symbol
    property bool prominent
    property bool destructive
    property bool plain
    property string toolTipText
    property color ink: prominent ? Theme.colours.onFill
        : destructive ? Theme.colours.red : Theme.colours.label
    property color symbolInk: ink

    // As a click would, for a key or a screen reader.
    function press() {
        if (enabled)
            clicked();
    }

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Metrics.controlHeight
    horizontalPadding: plain ? Metrics.spacingMedium : Metrics.controlPadding
    font.pixelSize: Metrics.textBody
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    opacity: enabled ? 1 : Metrics.disabledOpacity
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: press()
    Accessible.defaultButton: prominent
    Keys.onReturnPressed: press()
    Keys.onEnterPressed: press()

    background: ControlFace {
        control: button
        bordered: !button.plain
        ringInside: button.plain
        edged: bordered && !button.prominent
        fill: !button.prominent ? Theme.colours.controlBackground
            : button.destructive ? Theme.colours.redFill : Theme.colours.accentFill
    }

    contentItem: SymbolAndText {
        symbol: button.symbol
        text: button.text
        ink: button.ink
        symbolInk: button.symbolInk
        textSize: button.font.pixelSize
        textWeight: button.prominent ? Font.Medium : Font.Normal
    }

    HoverTip {
        text: button.toolTipText
        hovered: button.hovered
    }
}
