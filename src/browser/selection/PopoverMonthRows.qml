pragma ComponentBehavior: Bound

import QtQuick
import Tessarine.Browser

// The days of one month in the date popover.
Column {
    id: rows

    required property popoverMonth month

    signal daySelected(string text)

    SectionLabel {
        width: parent.width
        text: rows.month.title
    }

    Repeater {
        model: rows.month.days

        PopoverRow {
            required property popoverDay modelData

            width: rows.width
            icon.name: "calendar"
            text: modelData.label
            badge: modelData.badge
            onClicked: rows.daySelected(modelData.text)
        }
    }
}
