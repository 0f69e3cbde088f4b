import QtQuick
import QtQuick.Templates as T
import Tessarine.Theme

// One tab of a TabStrip: its symbol above its text, or the text alone.
T.TabButton {
    id: tab

    required property int index
    property string symbol
    property bool chosen
    property bool tabStop

    readonly property color ink: chosen ? Theme.colours.accentLabel : Theme.colours.secondaryLabel

    // An arrow key, as steps to the right.
    signal moved(int steps)

    function press() {
        if (enabled)
            clicked();
    }

    implicitWidth: Math.max(symbol ? Metrics.tabWidth : 0, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    horizontalPadding: Metrics.controlPadding
    verticalPadding: Metrics.controlRadius
    focusPolicy: tabStop || activeFocus ? Qt.TabFocus : Qt.NoFocus // Qt takes it from nobody who has the keyboard
    hoverEnabled: true
    autoExclusive: false
    checked: chosen
    onToggled: checked = Qt.binding(() => chosen) // the owner decides
    Accessible.role: Accessible.PageTab
    Accessible.name: text
    Accessible.selectable: true
    Accessible.selected: chosen
    Accessible.onPressAction: press()
    Keys.onReturnPressed: press()
    Keys.onEnterPressed: press()
    Keys.onLeftPressed: moved(-1)
    Keys.onRightPressed: moved(1)

    background: ControlFace {
        control: tab
        edged: false
        bordered: tab.chosen
        fill: Theme.colours.track
    }

    contentItem: TabStripFace {
        symbol: tab.symbol
        text: tab.text
        ink: tab.ink
    }
}
