import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// A row of settings with a choice: its texts, and a MenuPicker at the far end. It shows what its owner
// holds (`currentIndex`, or `displayText` for what is not in the list) and tells what the user wants
// (`activated`). The row has the keyboard, so that a screen reader comes upon one combo box.
FocusableItem {
    id: row

    required property string title
    required property list<string> model // the texts to choose from
    property int currentIndex: -1
    property alias displayText: picker.displayText
    property alias caption: texts.caption
    property alias note: texts.note
    property alias noteSymbol: texts.noteSymbol
    property alias noteInk: texts.noteInk
    property int widestPicker: 200

    readonly property alias opened: picker.opened

    signal activated(int index)

    function open() {
        if (enabled)
            picker.open();
    }

    implicitWidth: 320
    implicitHeight: Math.max(picker.height, texts.height)
    Accessible.role: Accessible.ComboBox
    Accessible.name: title
    Accessible.description: Array.from([displayText, texts.spokenDetail]).filter(text => text).join("\n")
    Accessible.focusable: true
    Accessible.onPressAction: open()
    Keys.onDownPressed: open()
    Keys.onUpPressed: open()
    onKeyPressed: open()

    RowTexts {
        id: texts

        anchors.left: parent.left
        anchors.right: picker.left
        anchors.rightMargin: Metrics.spacingLarge
        anchors.verticalCenter: parent.verticalCenter
        title: row.title
        opacity: enabled ? 1 : Metrics.disabledOpacity
    }

    MenuPickerButton {
        id: picker

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, row.widestPicker)
        accessibleName: row.title
        model: row.model
        currentIndex: row.currentIndex
        opacity: enabled ? 1 : Metrics.disabledOpacity
        onActivated: index => row.activated(index)

        FocusRing {
            visible: row.visualFocus
        }
    }
}
