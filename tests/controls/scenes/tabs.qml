import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// Tabs with symbols and without, whose owner obeys.
Rectangle {
    id: scene

    property var log: []
    property int section: 0
    property int kind: 1
    property bool usable: true
    property bool mirrored: false

    function say(line: string) {
        log = [...log, line];
    }

    width: 520
    height: 220
    color: Theme.colours.windowBackground
    LayoutMirroring.enabled: mirrored
    LayoutMirroring.childrenInherit: true

    Column {
        x: 20
        y: 20
        width: 480
        spacing: 10
        enabled: scene.usable

        TextButton { objectName: "before"; text: "Before" }

        TabStrip {
            objectName: "tabs"
            width: parent.width
            accessibleName: "Sections"
            currentIndex: scene.section
            onActivated: index => { scene.section = index; scene.say("section " + index) }
            tabs: [
                TabItem { symbol: "gearshape.fill"; text: "General" },
                TabItem { symbol: "folder"; text: "Storage" },
                TabItem { symbol: "lock.fill"; text: "Privacy" }
            ]
        }

        TextButton { objectName: "after"; text: "After" }

        TabStrip {
            objectName: "texts"
            accessibleName: "Kinds"
            currentIndex: scene.kind
            onActivated: index => { scene.kind = index; scene.say("kind " + index) }
            tabs: [ TabItem { text: "All" }, TabItem { text: "Warnings" } ]
        }

        TabStrip {
            objectName: "narrow"
            width: 150
            accessibleName: "Narrow"
            currentIndex: 0
            tabs: [ TabItem { symbol: "folder"; text: "A text too long for it" }, TabItem { symbol: "trash"; text: "Another that is" } ]
        }
    }
}
