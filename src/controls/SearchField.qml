import QtQuick
import Tessarine.Theme

// A line to type a search into, with a button that empties it while there is something to empty. Both
// typing and emptying emit `textEdited`.
LineField {
    id: field

    required property string clearLabel

    readonly property int symbolColumn: Metrics.controlHeight
    readonly property int clearColumn: clearButton.visible ? symbolColumn : Metrics.spacingMedium

    // What is there already is replaced by what is typed.
    function beginTyping() {
        forceActiveFocus(Qt.ShortcutFocusReason);
        selectAll();
    }

    function empty() {
        clear();
        textEdited();
    }

    leftPadding: mirrored ? clearColumn : symbolColumn
    rightPadding: mirrored ? symbolColumn : clearColumn
    Accessible.name: placeholderText
    Accessible.searchEdit: true

    SymbolImage {
        x: field.mirrored ? field.width - width - Metrics.spacingMedium : Metrics.spacingMedium
        anchors.verticalCenter: parent.verticalCenter
        symbol: "magnifyingglass"
        size: Metrics.smallSymbolSize
        tint: Theme.colours.secondaryLabel
    }

    IconButton {
        id: clearButton

        x: field.mirrored ? 0 : field.width - width
        height: field.height
        symbol: "xmark.circle.fill"
        size: Metrics.smallSymbolSize
        accessibleName: field.clearLabel
        ringInside: true
        visible: field.length
        onClicked: field.empty()
    }
}
