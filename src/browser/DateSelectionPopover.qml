import QtQuick
import Tessarine.Browser
import Tessarine.Controls
import Tessarine.Theme

// Ranges and days whose rows can be added to the selection.
PopoverPanel {
    id: popover

    required property ContentViewState view

    readonly property int contentColumn: 240

    objectName: "datePopover"
    width: contentColumn
    horizontalPadding: Metrics.spacingMedium
    visible: view.showDatePickerPopover
    onClosed: view.showDatePickerPopover = false

    contentItem: DateSelectionChoices {
        view: popover.view
    }
}
