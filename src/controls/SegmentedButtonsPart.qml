import QtQuick
import QtQuick.Templates as T
import Tessarine.Theme

// One button of SegmentedButtons.
T.RadioButton {
    id: part

    required property int index
    property bool chosen
    property bool tabStop

    // An arrow key, as steps to the right.
    signal moved(int steps)

    function press() {
        if (enabled)
            clicked();
    }

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    horizontalPadding: Metrics.controlPadding
    focusPolicy: tabStop || activeFocus ? Qt.TabFocus : Qt.NoFocus // Qt takes it from nobody who has the keyboard
    hoverEnabled: true
    autoExclusive: false
    checked: chosen
    onToggled: checked = Qt.binding(() => chosen) // the owner decides
    Accessible.role: Accessible.RadioButton
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: chosen
    Accessible.onPressAction: press()
    Accessible.onToggleAction: press()
    Keys.onReturnPressed: press()
    Keys.onEnterPressed: press()
    Keys.onLeftPressed: moved(-1)
    Keys.onRightPressed: moved(1)

    background: Rectangle {
        radius: Metrics.controlRadius - Metrics.spacingTiny
        color: part.chosen ? Theme.colours.raised
            : part.down ? Theme.colours.pressedFill
            : part.hovered ? Theme.colours.hoverFill : "transparent"
        border.width: part.chosen ? Metrics.hairline : 0
        border.color: Theme.colours.controlBorder

        FocusRing {
            innerRadius: parent.radius
            visible: part.visualFocus
        }
    }

    contentItem: SymbolAndText {
        text: part.text
        ink: part.chosen ? Theme.colours.label : Theme.colours.secondaryLabel
        textWeight: part.chosen ? Font.Medium : Font.Normal
    }
}
