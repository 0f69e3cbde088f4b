import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// A button that shows the chosen one of several texts and opens a menu of all of them. It shows what
// its owner holds (`currentIndex`, or `displayText` for what is not in the list) and tells what the
// user wants (`activated`). It is no control of Qt's, whose role could not be changed: a screen reader
// comes upon a combo box.
FocusableItem {
    id: picker

    required property string accessibleName
    required property list<string> model // the texts
    property alias currentIndex: button.currentIndex
    property alias displayText: button.displayText
    property string toolTipText

    readonly property alias currentText: button.currentText
    readonly property alias opened: button.opened
    readonly property alias hovered: button.hovered

    signal activated(int index)

    function open() {
        if (enabled)
            button.open();
    }

    implicitWidth: button.implicitWidth
    implicitHeight: button.implicitHeight
    opacity: enabled ? 1 : Metrics.disabledOpacity
    Accessible.role: Accessible.ComboBox
    Accessible.name: accessibleName
    Accessible.description: displayText
    Accessible.focusable: true
    Accessible.onPressAction: open()
    Keys.onDownPressed: open()
    Keys.onUpPressed: open()
    onKeyPressed: open()

    MenuPickerButton {
        id: button

        anchors.fill: parent
        accessibleName: picker.accessibleName
        model: picker.model
        onActivated: index => picker.activated(index)
    }

    FocusRing {
        visible: picker.visualFocus
    }

    HoverTip {
        text: picker.toolTipText
        hovered: button.hovered
    }
}
