import QtQuick
import Tessarine.Theme

// Text exactly as it came, for reading and copying parts of it.
TextEdit {
    color: Theme.colours.label
    selectionColor: Theme.colours.selection
    selectedTextColor: Theme.colours.label
    font.pixelSize: Metrics.textBody
    readOnly: true
    selectByMouse: true
    textFormat: TextEdit.PlainText
    wrapMode: TextEdit.Wrap
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
