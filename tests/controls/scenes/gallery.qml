import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// Every control in every state that needs no pointer.
Rectangle {
    id: scene

    property var log: []
    property bool mirrored: false

    width: 720
    height: 520
    color: Theme.colours.windowBackground
    LayoutMirroring.enabled: mirrored
    LayoutMirroring.childrenInherit: true

    component Caption: PlainLabel {
        color: Theme.colours.secondaryLabel
        font.pixelSize: Metrics.textSmall
    }

    Column {
        anchors.fill: parent
        anchors.margins: 20
        spacing: 12

        Column {
            spacing: 8
            Repeater {
                model: [true, false]
                Row {
                    required property bool modelData
                    spacing: 8
                    enabled: modelData
                    TextButton { objectName: modelData ? "first" : ""; text: "Cancel" }
                    TextButton { text: "Copy"; symbol: "doc.on.doc" }
                    TextButton { text: "Delete"; destructive: true; symbol: "trash" }
                    TextButton { text: "Export"; prominent: true }
                    TextButton { text: "Delete All"; prominent: true; destructive: true }
                }
            }
        }

        Row {
            spacing: 8
            TextButton { objectName: "plain"; text: "Plain"; plain: true }
            TextButton { text: "Delete Selected"; plain: true; destructive: true; symbol: "trash" }
            TextButton { text: "Select All"; plain: true; ink: Theme.colours.accentLabel; font.pixelSize: Metrics.textTiny }
            VerticalDivider { anchors.verticalCenter: parent.verticalCenter }
            IconButton { objectName: "icon"; symbol: "square.and.arrow.up"; accessibleName: "Export" }
            IconButton { symbol: "trash"; accessibleName: "Delete" }
            IconButton { symbol: "xmark"; size: 10; accessibleName: "Close" }
            IconButton { symbol: "xmark.circle.fill"; size: 20; accessibleName: "Close" }
            IconButton { symbol: "trash"; accessibleName: "Delete"; enabled: false }
            Tag { anchors.verticalCenter: parent.verticalCenter; text: "7" }
            Tag { anchors.verticalCenter: parent.verticalCenter; text: "1,024" }
            ProgressSpinner { anchors.verticalCenter: parent.verticalCenter; accessibleName: "Working" }
            ProgressSpinner { anchors.verticalCenter: parent.verticalCenter; accessibleName: "Working"; size: 24 }
        }

        Row {
            spacing: 8
            SearchField { width: 200; placeholderText: "Search notifications"; clearLabel: "Clear" }
            SearchField { width: 160; text: "café"; placeholderText: "Search"; clearLabel: "Clear" }
            SearchField { width: 120; text: "a rather long search text"; placeholderText: "Search"; clearLabel: "Clear" }
            SearchField { width: 120; placeholderText: "Search"; clearLabel: "Clear"; enabled: false }
        }

        Row {
            spacing: 8
            Caption { anchors.verticalCenter: parent.verticalCenter; text: "Sort" }
            MenuPicker { objectName: "picker"; width: 130; accessibleName: "Sort"; model: ["Newest first", "Oldest first", "By app"]; currentIndex: 0 }
            MenuPicker { width: 160; accessibleName: "App"; model: ["All"]; displayText: "An application with a very long name" }
            MenuPicker { width: 120; accessibleName: "Sort"; model: ["Newest first"]; currentIndex: 0; enabled: false }
        }

        Row {
            spacing: 8
            Caption { anchors.verticalCenter: parent.verticalCenter; text: "Group" }
            SegmentedButtons { objectName: "segments"; accessibleName: "Group"; model: ["None", "App", "Date"]; currentIndex: 1 }
            SegmentedButtons { accessibleName: "Group"; model: ["None", "App", "Date"]; currentIndex: 0; enabled: false }
            SegmentedButtons { accessibleName: "Nothing chosen"; model: ["Auto", "Light"] }
        }

        Row {
            spacing: 8
            ToggleSwitch { objectName: "toggle"; accessibleName: "Off" }
            ToggleSwitch { accessibleName: "On"; checked: true }
            ToggleSwitch { accessibleName: "Off"; enabled: false }
            ToggleSwitch { accessibleName: "On"; checked: true; enabled: false }
        }

        HorizontalDivider { width: parent.width }

        Row {
            spacing: 16
            Repeater {
                model: [["Label", Theme.colours.label], ["Secondary", Theme.colours.secondaryLabel], ["Tertiary", Theme.colours.tertiaryLabel],
                    ["Accent", Theme.colours.accentLabel], ["Red", Theme.colours.red], ["Orange", Theme.colours.orange], ["Green", Theme.colours.green]]
                PlainLabel {
                    required property var modelData
                    text: modelData[0]
                    color: modelData[1]
                }
            }
        }

        Row {
            spacing: 16
            Repeater {
                model: [Metrics.textTiny, Metrics.textSmall, Metrics.textBody, Metrics.textHeadline, Metrics.textNotice, Metrics.textTitle, Metrics.textLargeTitle]
                PlainLabel {
                    required property int modelData
                    text: "Text " + modelData
                    font.pixelSize: modelData
                }
            }
        }

        PanelFace {
            width: 240
            height: 64
            PlainLabel { x: 12; y: 10; text: "A panel" }
            Caption { x: 12; y: 32; text: "and what it is for" }
        }
    }
}
