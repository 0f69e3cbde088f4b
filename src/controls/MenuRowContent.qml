import QtQuick
import Tessarine.Theme

// A row of a menu: a column for its symbol, and its text.
Item {
    id: content

    property string symbol
    property string text
    property color ink: Theme.colours.label

    implicitWidth: Metrics.menuColumn + Math.ceil(label.implicitWidth) + Metrics.controlPadding
    implicitHeight: Metrics.menuRowHeight

    SymbolImage {
        anchors.left: parent.left
        anchors.leftMargin: Metrics.spacingMedium
        anchors.verticalCenter: parent.verticalCenter
        symbol: content.symbol
        size: Metrics.smallSymbolSize
        tint: content.ink
    }

    PlainLabel {
        id: label

        anchors.left: parent.left
        anchors.leftMargin: Metrics.menuColumn
        anchors.right: parent.right
        anchors.rightMargin: Metrics.controlPadding
        anchors.verticalCenter: parent.verticalCenter
        text: content.text
        color: content.ink
        Accessible.ignored: true
    }
}
