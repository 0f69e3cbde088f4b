import QtQuick
import Tessarine.Controls
import Tessarine.Diagnostics
import Tessarine.Theme

// A line of the log. The message takes as many lines as it needs, up to a bound.
Item {
    id: row

    required property string timeText
    required property string categoryName
    required property color categoryColour
    required property string glyph
    required property bool hasGlyphColour
    required property color glyphColour
    required property string message
    required property string spokenText

    readonly property int timeColumn: 82
    readonly property int pillColumn: 66
    readonly property int glyphColumn: 16

    implicitHeight: Math.max(pill.implicitHeight, label.implicitHeight) + 2 * Metrics.spacingTiny + 2
    Accessible.role: Accessible.ListItem
    Accessible.name: spokenText

    PlainLabel {
        id: time

        anchors.left: parent.left
        anchors.leftMargin: Metrics.spacingLarge
        anchors.baseline: label.baseline
        width: row.timeColumn
        text: row.timeText
        font: Theme.monospacedFont(Metrics.textSmall)
        color: Theme.colours.secondaryLabel
        Accessible.ignored: true
    }

    Item {
        id: pillPlace

        anchors.left: time.right
        width: row.pillColumn
        height: parent.height

        CategoryPill {
            id: pill

            anchors.horizontalCenter: parent.horizontalCenter
            y: label.y + Math.ceil((firstLine.height - height) / 2)
            name: row.categoryName
            colour: row.categoryColour
        }
    }

    PlainLabel {
        id: mark

        anchors.left: pillPlace.right
        anchors.baseline: label.baseline
        width: row.glyphColumn
        horizontalAlignment: Text.AlignHCenter
        text: row.glyph
        color: row.hasGlyphColour ? row.glyphColour : Theme.colours.secondaryLabel
        Accessible.ignored: true
    }

    FontMetrics {
        id: firstLine

        font: label.font
    }

    PlainLabel {
        id: label

        anchors.left: mark.right
        anchors.leftMargin: Metrics.spacingSmall
        anchors.right: parent.right
        anchors.rightMargin: Metrics.spacingLarge
        y: Metrics.spacingTiny + 1
        text: row.message
        wrapMode: Text.Wrap
        maximumLineCount: 12
        Accessible.ignored: true
    }
}
