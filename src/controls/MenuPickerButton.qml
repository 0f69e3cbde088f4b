import QtQuick
import QtQuick.Templates as T
import Tessarine.Theme

// What a MenuPicker looks like, and its menu: a button without the keyboard, which whoever shows it has.
T.AbstractButton {
    id: picker

    required property string accessibleName
    required property list<string> model // the texts
    property int currentIndex: -1
    property string displayText: currentText

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
    focusPolicy: Qt.NoFocus
    hoverEnabled: true
    Accessible.ignored: true
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
}
