import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// How the system's list of programs looks once the permission is given: two other programs whose
// switches are off, and between them this one.
Rectangle {
    id: picture

    readonly property int rowHeight: 44

    implicitHeight: 3 * rowHeight + 2 * Metrics.spacingMedium
    radius: Metrics.sheetRadius
    color: Theme.colours.panelBackground
    border.width: Metrics.hairline
    border.color: Theme.colours.panelBorder
    Accessible.role: Accessible.Graphic
    Accessible.name: qsTrId("perm.fda.picture")

    Column {
        y: Metrics.spacingMedium
        width: parent.width

        InstructionsRow {
            width: parent.width
            height: picture.rowHeight
            known: false
        }

        InstructionsRow {
            width: parent.width
            height: picture.rowHeight
            known: true
        }

        InstructionsRow {
            width: parent.width
            height: picture.rowHeight
            known: false
        }
    }
}
