import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// The content of one tab: sections below one another, which scroll where the window is too low.
ScrollArea {
    id: tab

    property int padding: Metrics.sheetPadding
    property int gap: Metrics.spacingWide

    default property alias sections: column.data

    contentHeight: column.height

    Column {
        id: column

        x: Metrics.sheetPadding
        width: tab.width - 2 * x
        topPadding: tab.padding
        bottomPadding: tab.padding
        spacing: tab.gap
    }
}
