import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// A heading, and the rows below it.
Column {
    id: section

    required property string heading
    property int rowGap: Metrics.spacingLarge

    default property alias rows: rowColumn.data

    width: parent?.width ?? 0
    spacing: Metrics.spacingMedium

    PlainLabel {
        width: section.width
        text: section.heading
        font.pixelSize: Metrics.textSmall
        font.weight: Font.DemiBold
        color: Theme.colours.secondaryLabel
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    Column {
        id: rowColumn

        width: section.width
        spacing: section.rowGap
    }
}
