import QtQuick
import QtQuick.Templates as T
import Tessarine.Theme

// A button that shows the chosen one of several texts and opens a menu of all of them. It shows what
// its owner holds (`currentIndex`, or `displayText` for what is not in the list) and tells what the
// user wants (`activated`).
T.AbstractButton {
    id: picker

    required property string accessibleName
    required property list<string> model // the texts
    property int currentIndex: -1
    property string displayText: currentText
    property string toolTipText

    readonly property string currentText: model[currentIndex] ?? ""
    readonly property alias opened: menu.opened

    signal activated(int index)

    function open() {
        menu.open();
    }

    function choose(index: int) {
        menu.close();
        if (index >= 0)
            picker.activated(index);
    }

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Metrics.controlHeight
    leftPadding: mirrored ? Metrics.spacingMedium : Metrics.controlPadding
    rightPadding: mirrored ? Metrics.controlPadding : Metrics.spacingMedium
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    opacity: enabled ? 1 : Metrics.disabledOpacity
    Accessible.role: Accessible.Button // what a template says of itself can't be changed
    Accessible.name: accessibleName
    Accessible.description: displayText
    Accessible.onPressAction: if (enabled) menu.open()
    Keys.onReturnPressed: menu.open()
    Keys.onEnterPressed: menu.open()
    Keys.onDownPressed: menu.open()
    Keys.onUpPressed: menu.open()
    onPressed: menu.open()

    background: ControlFace {
        control: picker
    }

    contentItem: MenuPickerFace {
        text: picker.displayText
    }

    MenuPickerPopup {
        id: menu

        y: picker.height + Metrics.spacingSmall
        narrowest: picker.width
        accessibleName: picker.accessibleName
        texts: picker.model
        chosenIndex: picker.currentIndex
        onChosen: index => picker.choose(index)
    }

    HoverTip {
        text: picker.toolTipText
        visible: picker.hovered && !menu.visible
    }
}
