import QtQuick

// A line of text. It shows what its owner holds (`value`) until somebody types. What was typed stays
// until Return offers it to the owner (`accepted`), or Escape puts the owner's value back. Who comes by
// the keyboard finds all of it selected.
LineField {
    id: field

    required property string accessibleName
    property string value

    readonly property bool cameByKeyboard: Array.from([Qt.TabFocusReason, Qt.BacktabFocusReason, Qt.ShortcutFocusReason]).includes(focusReason)

    // False if there was nothing to put back.
    function restore(): bool {
        const changed = text !== value;
        text = Qt.binding(() => value);
        return changed;
    }

    text: value
    autoScroll: activeFocus // else it shows where its text begins
    Accessible.name: accessibleName
    Keys.onEscapePressed: event => event.accepted = field.restore()
    onActiveFocusChanged: if (activeFocus && cameByKeyboard) selectAll()
}
