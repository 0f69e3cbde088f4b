import QtQuick
import Tessarine.Browser
import Tessarine.Controls
import Tessarine.Theme

// Ranges and days whose rows can be added to the selection.
PopoverPanel {
    id: popover

    required property DateSelection dates

    readonly property int contentColumn: 240

    objectName: "datePopover"
    accessibleName: qsTrId("datePopover.title")
    width: contentColumn
    horizontalPadding: Metrics.spacingMedium
    visible: dates.showDatePickerPopover
    onClosed: dates.showDatePickerPopover = false

    contentItem: DateSelectionChoices {
        LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft // popups inherit it from nobody
        LayoutMirroring.childrenInherit: true
        dates: popover.dates
    }
}
