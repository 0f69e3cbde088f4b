import QtQuick
import QtQuick.Templates as T
import Tessarine.Theme

// A line to type a search into, with a button that empties it while there is something to empty. Both
// typing and emptying emit `textEdited`.
T.TextField {
    id: field

    required property string clearLabel

    readonly property bool mirrored: LayoutMirroring.enabled
    readonly property int symbolColumn: Metrics.controlHeight
    readonly property int clearColumn: clearButton.visible ? symbolColumn : Metrics.spacingMedium

    function empty() {
        clear();
        textEdited();
    }

    implicitWidth: 200
    implicitHeight: Metrics.controlHeight
    leftPadding: mirrored ? clearColumn : symbolColumn
    rightPadding: mirrored ? symbolColumn : clearColumn
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
    Accessible.name: placeholderText
    Accessible.searchEdit: true

    background: Rectangle {
        radius: Metrics.controlRadius
        color: Theme.colours.controlBackground
        border.width: Metrics.hairline
        border.color: Theme.colours.controlBorder

        FocusRing {
            visible: field.activeFocus
        }
    }

    SymbolImage {
        x: field.mirrored ? field.width - width - Metrics.spacingMedium : Metrics.spacingMedium
        anchors.verticalCenter: parent.verticalCenter
        symbol: "magnifyingglass"
        size: Metrics.smallSymbolSize
        tint: Theme.colours.secondaryLabel
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

    IconButton {
        id: clearButton

        x: field.mirrored ? 0 : field.width - width
        height: field.height
        symbol: "xmark.circle.fill"
        size: Metrics.smallSymbolSize
        accessibleName: field.clearLabel
        visible: field.length
        onClicked: field.empty()
    }
}
