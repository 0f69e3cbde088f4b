import QtQuick
import QtQuick.Templates as T

// What all that is on or off has in common. It shows what its owner holds (`checked`) and tells what
// the user wants (`activated`): one that the owner refuses stays as it was.
T.CheckBox {
    id: control

    signal activated(bool wanted)

    function turnOver() {
        if (enabled)
            activated(!checked);
    }

    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    nextCheckState: () => checkState
    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onPressAction: turnOver()
    Accessible.onToggleAction: turnOver()
    Keys.onReturnPressed: turnOver()
    Keys.onEnterPressed: turnOver()
    onClicked: turnOver()
}
