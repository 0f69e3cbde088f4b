import QtQuick
import Tessarine.Theme

// The texts of a settings row: its title, what it is for, and a note on the value that it has just now,
// with a symbol where one is named. All but the title may be empty.
Column {
    id: texts

    required property string title
    property string caption
    property string note
    property string noteSymbol
    property color noteInk: Theme.colours.secondaryLabel

    readonly property string spokenDetail: Array.from([caption, note]).filter(text => text).join("\n")
    readonly property int symbolRoom: noteSymbol ? Metrics.smallSymbolSize + Metrics.spacingSmall : 0

    component Detail: PlainLabel {
        font.pixelSize: Metrics.textSmall
        color: Theme.colours.secondaryLabel
        lineHeight: 1.15
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }

    spacing: Metrics.spacingTiny

    PlainLabel {
        width: texts.width
        text: texts.title
        wrapMode: Text.Wrap
        maximumLineCount: 2
        Accessible.ignored: true
    }

    Detail {
        width: texts.width
        text: texts.caption
        visible: text
    }

    Item {
        width: texts.width
        height: noteLabel.height
        visible: texts.note

        SymbolImage {
            anchors.left: parent.left
            y: Math.round((firstLine.height - height) / 2)
            symbol: texts.noteSymbol
            size: Metrics.smallSymbolSize
            tint: texts.noteInk
        }

        FontMetrics {
            id: firstLine

            font: noteLabel.font
        }

        Detail {
            id: noteLabel

            anchors.left: parent.left
            anchors.leftMargin: texts.symbolRoom
            anchors.right: parent.right
            text: texts.note
            color: texts.noteInk
        }
    }
}
