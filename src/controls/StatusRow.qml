import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// A row that says whether something is granted: a symbol in its colour, the texts, the state in a word,
// and at the far end the buttons that its owner declares in it.
Item {
    id: row

    required property bool granted
    required property string title
    required property string status
    property alias caption: texts.caption
    property alias note: texts.note
    property alias noteSymbol: texts.noteSymbol
    property alias noteInk: texts.noteInk
    property string symbol: granted ? "checkmark.circle.fill" : "xmark.circle.fill"
    property color tint: granted ? Theme.colours.green : Theme.colours.secondaryLabel
    default property alias buttons: trailing.data

    implicitWidth: 320
    implicitHeight: Math.max(Metrics.controlHeight, texts.height, trailing.height)
    Accessible.role: Accessible.Grouping
    Accessible.name: title
    Accessible.description: Array.from([status, texts.spokenDetail]).filter(text => text).join("\n")

    SymbolImage {
        id: badge

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        symbol: row.symbol
        size: Metrics.badgeSize
        tint: row.tint
    }

    RowTexts {
        id: texts

        anchors.left: badge.right
        anchors.leftMargin: Metrics.spacingMedium
        anchors.right: stateLabel.left
        anchors.rightMargin: Metrics.spacingLarge
        anchors.verticalCenter: parent.verticalCenter
        title: row.title
    }

    PlainLabel {
        id: stateLabel

        anchors.right: trailing.left
        anchors.rightMargin: trailing.width > 0 ? Metrics.spacingLarge : 0
        anchors.verticalCenter: parent.verticalCenter
        text: row.status
        color: row.granted ? Theme.colours.green : Theme.colours.secondaryLabel
        font.pixelSize: Metrics.textSmall
        Accessible.ignored: true
    }

    Row {
        id: trailing

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: Metrics.spacingMedium
    }
}
