pragma ComponentBehavior: Bound

import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// A table of texts to read: a line of headers, which says how many columns there are, and rows between
// hairlines. Texts wrap in their columns, which are equally wide.
Item {
    id: table

    required property string accessibleName
    required property list<string> headers
    property list<TextTableRow> rows
    property bool monospacedFirst // the first column's texts are paths, keys, addresses

    implicitWidth: 420
    implicitHeight: lines.height
    Accessible.role: Accessible.Table
    Accessible.name: accessibleName

    Rectangle {
        anchors.fill: parent
        radius: Metrics.controlRadius
        color: Theme.colours.controlBackground
    }

    Rectangle {
        width: parent.width
        height: headerLine.height
        radius: Metrics.controlRadius
        color: Theme.colours.track
    }

    Column {
        id: lines

        width: parent.width

        TextTableLine {
            id: headerLine

            width: parent.width
            cells: table.headers
            headers: []
            columns: table.headers.length
            ink: Theme.colours.secondaryLabel
            cellFont: Theme.textFont(Metrics.textSmall, Font.DemiBold)
            cellRole: Accessible.ColumnHeader
        }

        Repeater {
            model: table.rows

            Column {
                required property TextTableRow modelData

                width: lines.width

                HorizontalDivider {
                    width: parent.width
                }

                TextTableLine {
                    width: parent.width
                    cells: parent.modelData.cells
                    headers: table.headers
                    columns: table.headers.length
                    cellFont: Theme.textFont(Metrics.textSmall)
                    firstCellFont: table.monospacedFirst ? Theme.monospacedFont(Metrics.textSmall) : cellFont
                }
            }
        }
    }

    Rectangle {
        anchors.fill: parent
        radius: Metrics.controlRadius
        color: "transparent"
        border.width: Metrics.hairline
        border.color: Theme.colours.separator
    }
}
