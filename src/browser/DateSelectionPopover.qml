// qmllint disable unqualified deferred-property-id

import QtQuick
import QtQuick.Templates as T
import Tessarine.Browser
import Tessarine.Theme

// Ranges and days whose rows can be added to the selection.
PopoverPanel {
    id: popover

    required property ContentViewState view

    readonly property int contentColumn: 240
    readonly property int tallestDays: 260

    objectName: "datePopover"
    width: contentColumn
    horizontalPadding: Metrics.spacingMedium
    visible: view.showDatePickerPopover
    onClosed: view.showDatePickerPopover = false

    contentItem: Column {
        spacing: Metrics.spacingSmall

        PlainLabel {
            width: parent.width
            leftPadding: Metrics.spacingSmall
            text: qsTrId("datePopover.title")
            font.pixelSize: Metrics.textHeadline
            font.weight: Font.DemiBold
            wrapMode: Text.Wrap
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        HorizontalDivider { width: parent.width }

        SectionLabel {
            width: parent.width
            text: qsTrId("datePopover.quickRanges")
        }

        Column {
            width: parent.width

            Repeater {
                model: popover.view.presets

                PopoverRow {
                    required property var modelData
                    required property int index

                    width: parent.width
                    icon.name: modelData.symbol
                    text: modelData.label
                    onClicked: popover.view.onSelectPreset(index)
                }
            }
        }

        HorizontalDivider { width: parent.width }

        SectionLabel {
            width: parent.width
            text: qsTrId("datePopover.specificDays")
        }

        PlainLabel {
            width: parent.width
            leftPadding: Metrics.spacingSmall
            text: qsTrId("datePopover.noData")
            color: Theme.colours.secondaryLabel
            wrapMode: Text.Wrap
            visible: !popover.view.hasDays
        }

        Flickable {
            width: parent.width
            height: Math.min(days.height, popover.tallestDays)
            contentHeight: days.height
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            visible: popover.view.hasDays

            T.ScrollBar.vertical: ThinScrollBar {}

            Column {
                id: days

                width: parent.width

                Repeater {
                    model: popover.view.popoverMonths

                    PopoverMonthRows {
                        required property var modelData

                        width: days.width
                        month: modelData
                        onDaySelected: text => popover.view.onSelectDay(text)
                    }
                }
            }
        }

        HorizontalDivider { width: parent.width }

        PlainLabel {
            width: parent.width
            leftPadding: Metrics.spacingSmall
            rightPadding: Metrics.spacingSmall
            text: qsTrId("datePopover.footer")
            font.pixelSize: Metrics.textTiny
            color: Theme.colours.secondaryLabel
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
