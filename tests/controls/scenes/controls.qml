import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// One of each control, whose owner obeys: what the user wants becomes so.
Rectangle {
    id: scene

    property var log: []
    property int sort: 0
    property string shown: "Mail"
    property int group: 1
    property bool on: false
    property bool usable: true
    property bool obedient: true
    property bool mirrored: false

    function note(line: string) {
        log = [...log, line];
    }

    width: 420
    height: 300
    color: Theme.colours.windowBackground
    LayoutMirroring.enabled: mirrored
    LayoutMirroring.childrenInherit: true

    Column {
        x: 20
        y: 20
        spacing: 10
        enabled: scene.usable

        TextButton {
            objectName: "textButton"
            text: "Cancel"
            onClicked: scene.note("text")
        }

        IconButton {
            objectName: "iconButton"
            symbol: "trash"
            accessibleName: "Delete"
            toolTipText: "Deletes what is selected"
            onClicked: scene.note("icon")
        }

        MenuPicker {
            objectName: "picker"
            width: 140
            accessibleName: "Sort"
            model: ["Newest", "Oldest", "By app"]
            currentIndex: scene.sort
            onActivated: index => { scene.sort = index; scene.note("sort " + index) }
        }

        SegmentedButtons {
            objectName: "segments"
            accessibleName: "Group"
            model: ["None", "App", "Date"]
            currentIndex: scene.group
            onActivated: index => { scene.group = index; scene.note("group " + index) }
        }

        SearchField {
            objectName: "search"
            width: 200
            placeholderText: "Search"
            clearLabel: "Clear the search"
            onTextEdited: scene.note("search " + text)
        }

        ToggleSwitch {
            objectName: "toggle"
            accessibleName: "Launch at login"
            checked: scene.on
            onActivated: wanted => { scene.on = scene.obedient && wanted; scene.note("switch " + wanted) }
        }

        ProgressSpinner {
            objectName: "spinner"
            accessibleName: "Working"
        }

        Tag {
            objectName: "tag"
            text: "42"
        }
    }
}
