import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// What shows something and takes no input.
Rectangle {
    id: scene

    property var log: []
    property real fraction: 0.25
    property int current: 0
    property bool mono: false
    property bool mirrored: false
    property string longText: "A text that is very much longer than there is room for, with_one_word_that_no_line_has_room_for_at_all in it"

    width: 520
    height: 560
    color: Theme.colours.windowBackground
    LayoutMirroring.enabled: mirrored
    LayoutMirroring.childrenInherit: true

    Column {
        x: 20
        y: 20
        width: 480
        spacing: 12

        TextTable {
            objectName: "table"
            width: parent.width
            accessibleName: "Layers"
            headers: ["Event", "Accessibility", "Database"]
            monospacedFirst: scene.mono
            rows: [
                TextTableRow { cells: ["Banner", "At once", "Also"] },
                TextTableRow { cells: ["Silent"] }, // the others stay empty
                TextTableRow { cells: [scene.longText, "No", scene.longText] }
            ]
        }

        ProgressBar { objectName: "bar"; width: 200; accessibleName: "Export"; fraction: scene.fraction }
        ProgressRing { objectName: "ring"; accessibleName: "Next poll"; fraction: scene.fraction }
        NumberedStep { objectName: "step"; width: 200; number: 3; text: "Open the settings"; note: "It takes a moment." }
        NumberedStep { objectName: "longStep"; width: 200; number: 12; text: scene.longText; note: scene.longText }
        PageDots { objectName: "dots"; count: 4; current: scene.current }
    }
}
