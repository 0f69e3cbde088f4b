import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// The rows of settings, whose owner obeys: what the user wants becomes so.
Rectangle {
    id: scene

    property var log: []
    property bool on: false
    property int kept: 0
    property bool granted: false
    property string note: ""
    property string longText: "A text that is very much longer than the row has room for, with_one_word_that_no_line_has_room_for_at_all in it"
    property real rowWidth: 320
    property bool usable: true
    property bool obedient: true
    property bool mirrored: false

    function say(line: string) {
        log = [...log, line];
    }

    width: 520
    height: 520
    color: Theme.colours.windowBackground
    LayoutMirroring.enabled: mirrored
    LayoutMirroring.childrenInherit: true

    Column {
        x: 20
        y: 20
        width: scene.rowWidth
        spacing: 16
        enabled: scene.usable

        TextButton {
            objectName: "before"
            text: "Before"
        }

        SwitchRow {
            objectName: "switchRow"
            width: parent.width
            title: "Launch at login"
            caption: "It captures only while it runs."
            note: scene.note
            noteSymbol: "exclamationmark.triangle.fill"
            checked: scene.on
            onActivated: wanted => { scene.on = scene.obedient && wanted; scene.say("switch " + wanted) }
        }

        MenuRow {
            objectName: "choiceRow"
            width: parent.width
            title: "Keep for"
            note: scene.note
            model: ["Forever", "One year", "30 days"]
            currentIndex: scene.kept
            onActivated: index => { scene.kept = index; scene.say("keep " + index) }
        }

        StatusRow {
            objectName: "statusRow"
            width: parent.width
            granted: scene.granted
            title: "Full Disk Access"
            caption: "Recovers past notifications."
            note: scene.note
            status: scene.granted ? "Enabled" : "Not enabled"

            TextButton {
                objectName: "recheck"
                text: "Re-check"
                onClicked: { scene.granted = !scene.granted; scene.say("check") }
            }
        }

        SwitchRow { objectName: "longSwitch"; width: parent.width; title: scene.longText; caption: scene.longText; note: scene.longText; noteSymbol: "trash" }
        MenuRow { objectName: "longMenu"; width: parent.width; title: scene.longText; caption: scene.longText; model: [scene.longText]; currentIndex: 0 }

        StatusRow {
            objectName: "longStatus"
            width: parent.width
            granted: true
            title: scene.longText
            caption: scene.longText
            status: "Enabled"
            TextButton { text: "Settings" }
        }
    }
}
