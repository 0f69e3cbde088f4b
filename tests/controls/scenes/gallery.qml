import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// Every control in every state that needs no pointer.
Rectangle {
    id: scene

    property var log: []
    property bool mirrored: false

    width: 1180
    height: 800
    color: Theme.colours.windowBackground
    LayoutMirroring.enabled: mirrored
    LayoutMirroring.childrenInherit: true

    component Caption: PlainLabel {
        color: Theme.colours.secondaryLabel
        font.pixelSize: Metrics.textSmall
    }

    Column {
        anchors.left: parent.left
        anchors.top: parent.top
        anchors.margins: 20
        width: 660
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

    Column {
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: 20
        width: 460
        spacing: 12

        TabStrip {
            objectName: "tabs"
            width: parent.width
            accessibleName: "Sections"
            currentIndex: 0
            tabs: [
                TabItem { symbol: "gearshape.fill"; text: "General" },
                TabItem { symbol: "folder"; text: "Storage" },
                TabItem { symbol: "lock.shield.fill"; text: "Privacy" },
                TabItem { symbol: "lock.fill"; text: "Permissions of the system" }
            ]
        }

        TabStrip {
            accessibleName: "Kinds"
            currentIndex: 1
            tabs: [ TabItem { text: "All" }, TabItem { text: "Warnings" }, TabItem { text: "Steps" } ]
        }

        SwitchRow {
            objectName: "switchRow"
            width: parent.width
            title: "Launch at login"
            caption: "Tessarine captures only while it runs."
            note: "Notifications that come while it is not running may be lost, and this note is long enough to need a second line."
            noteSymbol: "exclamationmark.triangle.fill"
            noteInk: Theme.colours.orange
        }

        SwitchRow { width: parent.width; title: "Hide contents"; checked: true }
        SwitchRow { width: parent.width; title: "Hide contents"; caption: "Out of order"; enabled: false }

        MenuRow {
            objectName: "choiceRow"
            width: parent.width
            title: "Keep notifications for"
            note: "Everything is kept."
            noteSymbol: "checkmark.circle.fill"
            noteInk: Theme.colours.green
            model: ["Forever", "One year", "30 days"]
            currentIndex: 0
        }

        MenuRow { width: parent.width; title: "A title that is so long that it has to take a second line, and even then there is no room for the last of its words in the row"; model: ["A rather long choice of a user"]; currentIndex: 0 }
        MenuRow { width: parent.width; title: "Keep notifications for"; model: ["Forever"]; currentIndex: 0; enabled: false }

        StatusRow {
            width: parent.width
            granted: true
            title: "Accessibility"
            caption: "Required to capture notifications in real time."
            status: "Enabled"
            TextButton { text: "Re-check" }
        }

        StatusRow {
            width: parent.width
            granted: false
            title: "Full Disk Access"
            caption: "Enables recovery of past notifications from the database of the system."
            status: "Not enabled"
            TextButton { text: "Settings" }
            TextButton { text: "Re-check" }
        }

        HorizontalDivider { width: parent.width }

        Row {
            spacing: 8
            TextField { objectName: "textField"; width: 140; accessibleName: "Name"; placeholderText: "A name" }
            TextField { width: 140; accessibleName: "Name"; value: "A text that is too long for its field" }
            TextField { width: 140; accessibleName: "Name"; value: "Disabled"; enabled: false }
        }

        Row {
            spacing: 16
            CheckBox { objectName: "checkBox"; text: "I agree"; textWeight: Font.Medium }
            CheckBox { text: "I agree"; checked: true }
            CheckBox { text: "I agree"; enabled: false }
            CheckBox { text: "I agree"; checked: true; enabled: false }
        }

        Row {
            spacing: 16
            CheckBox { width: 200; text: "I have read the agreement, and I agree to all that it says" }
            LinkText { objectName: "link"; text: "Read the agreement" }
            LinkText { width: 60; text: "Read the agreement"; enabled: false }
        }

        Row {
            spacing: 16
            Repeater {
                model: [0, 0.02, 0.5, 1]
                ProgressBar { required property real modelData; width: 50; anchors.verticalCenter: parent.verticalCenter; accessibleName: "Export"; fraction: modelData }
            }
            Repeater {
                model: [0, 0.1, 0.5, 1]
                ProgressRing { required property real modelData; accessibleName: "Next poll"; fraction: modelData }
            }
        }
    }

    Column {
        anchors.left: parent.left
        anchors.top: parent.top
        anchors.topMargin: 440
        anchors.margins: 20
        width: 600
        spacing: 12

        TextTable {
            width: parent.width
            accessibleName: "How it is captured"
            headers: ["Event", "Accessibility layer", "Database layer"]
            rows: [
                TextTableRow { cells: ["Banner displayed on screen", "✅ Captured immediately", "✅ Also written"] },
                TextTableRow { cells: ["App not running when the notification arrived", "❌ No banner shown", "✅ Recovered when the program starts the next time"] }
            ]
        }

        TextTable {
            width: parent.width
            accessibleName: "Places"
            headers: ["Path", "What is there"]
            monospacedFirst: true
            rows: [
                TextTableRow { cells: ["~/.local/share/Tessarine/hoard.db", "The hoard"] },
                TextTableRow { cells: ["/a/path/without/a/blank/that/is/longer/than/its/column/by/far", "Nothing"] }
            ]
        }

        NumberedStep { width: parent.width; number: 1; text: "Open the settings of the system" }
        NumberedStep { width: 300; number: 12; text: "Find the program in the list, and if it is not there, add it by the button"; note: "It may take a moment." }

        PageDots { objectName: "dots"; count: 4; current: 1 }
    }
}
