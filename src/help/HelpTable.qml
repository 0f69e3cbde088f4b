import QtQuick
import Tessarine.Controls

// A table in a section. Its rows are declared in it.
TextTable {
    id: table

    default property alias lines: table.rows

    readonly property string words: Array.from(headers)
        .concat(...Array.from(rows).map(row => Array.from(row.cells))).join("\n")

    width: parent?.width ?? 0
}
