pragma ComponentBehavior: Bound

import QtQuick
import Tessarine.Browser
import Tessarine.Controls
import Tessarine.Theme

// The choices of the date popover: ranges first, then the days that have rows.
Column {
    id: choices

    required property DateSelection dates

    readonly property int tallestDays: 260

    spacing: Metrics.spacingSmall

    PlainLabel {
        width: parent.width
        leftPadding: Metrics.spacingSmall
        rightPadding: Metrics.spacingSmall
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
            model: choices.dates.presets

            PopoverRow {
                required property presetChoice modelData
                required property int index

                width: parent.width
                icon.name: modelData.symbol
                text: modelData.label
                onClicked: choices.dates.onSelectPreset(index)
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
        rightPadding: Metrics.spacingSmall
        text: qsTrId("datePopover.noData")
        color: Theme.colours.secondaryLabel
        wrapMode: Text.Wrap
        visible: !choices.dates.hasDays
    }

    ScrollArea {
        objectName: "days"
        width: parent.width
        height: Math.min(days.height, choices.tallestDays)
        contentHeight: days.height
        visible: choices.dates.hasDays

        Column {
            id: days

            width: parent.width

            Repeater {
                model: choices.dates.months

                PopoverMonthRows {
                    required property popoverMonth modelData

                    width: days.width
                    month: modelData
                    onDaySelected: text => choices.dates.onSelectDay(text)
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
