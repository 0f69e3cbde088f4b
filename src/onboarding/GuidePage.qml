import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// One page of a guide: a large symbol, a title and a line beneath it, and below them what the page
// declares. What doesn't fit scrolls.
ScrollArea {
    id: page

    required property string symbol
    required property string title
    required property string subtitle
    property color tint: Theme.colours.accent
    default property alias content: below.data

    readonly property int margin: Math.max(2 * Metrics.sheetPadding, Math.round((width - Metrics.readingWidth) / 2))

    contentHeight: column.height + 2 * Metrics.sheetPadding

    Column {
        id: column

        x: page.margin
        y: Metrics.sheetPadding
        width: page.width - 2 * page.margin
        spacing: Metrics.sheetPadding

        Column {
            width: parent.width
            spacing: Metrics.spacingMedium

            SymbolImage {
                anchors.horizontalCenter: parent.horizontalCenter
                symbol: page.symbol
                size: 52
                tint: page.tint
            }

            PlainLabel {
                objectName: "title"
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: page.title
                font.pixelSize: Metrics.textLargeTitle
                font.weight: Font.DemiBold
                wrapMode: Text.Wrap
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }

            PlainLabel {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: page.subtitle
                color: Theme.colours.secondaryLabel
                font.pixelSize: Metrics.textHeadline
                lineHeight: 1.15
                wrapMode: Text.Wrap
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }

        Column {
            id: below

            width: parent.width
            spacing: Metrics.spacingWide
        }
    }
}
