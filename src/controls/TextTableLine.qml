pragma ComponentBehavior: Bound

import QtQuick
import Tessarine.Theme

// The texts of one row of a TextTable, beside each other, as high as the one that takes most lines.
Row {
    id: line

    required property list<string> cells
    required property list<string> headers // empty for the line of the headers itself
    required property int columns
    required property font cellFont
    property font firstCellFont: cellFont
    property color ink: Theme.colours.label
    property int cellRole: Accessible.Cell

    Accessible.role: Accessible.Row
    Accessible.name: Array.from(cells).join("\n")

    Repeater {
        model: line.columns

        PlainLabel {
            required property int index

            width: line.width / line.columns
            topPadding: Metrics.spacingSmall + Metrics.hairline
            bottomPadding: topPadding
            leftPadding: Metrics.spacingMedium
            rightPadding: Metrics.spacingMedium
            text: line.cells[index] ?? ""
            color: line.ink
            font: index === 0 ? line.firstCellFont : line.cellFont
            lineHeight: 1.15
            wrapMode: Text.Wrap
            Accessible.role: line.cellRole
            Accessible.name: text
            Accessible.description: line.headers[index] ?? ""
        }
    }
}
