import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// What one types into, ticks or follows, one of each.
Rectangle {
    id: scene

    property var log: []
    property string name: "Mail"
    property bool agreed: false
    property bool usable: true
    property bool obedient: true
    property bool mirrored: false
    property string longText: "A text that is very much longer than there is room for, with_one_word_that_no_line_has_room_for_at_all in it"

    function say(line: string) {
        log = [...log, line];
    }

    width: 420
    height: 360
    color: Theme.colours.windowBackground
    focus: true
    LayoutMirroring.enabled: mirrored
    LayoutMirroring.childrenInherit: true
    Keys.onEscapePressed: say("escape")

    Column {
        x: 20
        y: 20
        spacing: 12
        enabled: scene.usable

        TextButton { objectName: "before"; text: "Before" }

        TextField {
            objectName: "field"
            accessibleName: "Name"
            placeholderText: "A name"
            maximumLength: 8
            value: scene.name
            onAccepted: { scene.say("accepted " + text); scene.name = scene.obedient ? text.toUpperCase() : scene.name }
        }

        CheckBox {
            objectName: "box"
            text: "I agree"
            checked: scene.agreed
            onActivated: wanted => { scene.agreed = scene.obedient && wanted; scene.say("agree " + wanted) }
        }

        LinkText {
            objectName: "link"
            width: 200
            text: "Read it"
            onClicked: scene.say("link")
        }

        CheckBox { objectName: "longBox"; width: 200; text: scene.longText }
        LinkText { objectName: "longLink"; width: 120; text: scene.longText }
    }
}
