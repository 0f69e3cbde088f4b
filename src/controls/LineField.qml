import QtQuick
import QtQuick.Templates as T
import Tessarine.Theme

// What every line to type into looks like: its ground, the ring while the keyboard is there, and what it
// asks for while it is empty.
T.TextField {
    id: field

    readonly property bool mirrored: LayoutMirroring.enabled

    implicitWidth: 200
    implicitHeight: Metrics.controlHeight
    leftPadding: Metrics.spacingMedium
    rightPadding: Metrics.spacingMedium
    verticalAlignment: Text.AlignVCenter
    font: Theme.textFont(Metrics.textBody)
    color: Theme.colours.label
    selectionColor: Theme.colours.selection
    selectedTextColor: Theme.colours.label
    placeholderTextColor: Theme.colours.placeholderLabel
    selectByMouse: true
    hoverEnabled: true
    opacity: enabled ? 1 : Metrics.disabledOpacity
    Accessible.role: Accessible.EditableText

    background: Rectangle {
        radius: Metrics.controlRadius
        color: Theme.colours.controlBackground
        border.width: Metrics.hairline
        border.color: Theme.colours.controlBorder

        FocusRing {
            visible: field.activeFocus
        }
    }

    PlainLabel {
        x: field.leftPadding
        y: field.topPadding
        width: field.width - field.leftPadding - field.rightPadding
        height: field.height - field.topPadding - field.bottomPadding
        text: field.placeholderText
        color: field.placeholderTextColor
        font: field.font
        verticalAlignment: Text.AlignVCenter
        visible: !field.length && !field.preeditText
        Accessible.ignored: true
    }
}
