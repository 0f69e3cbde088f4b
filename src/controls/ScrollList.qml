import QtQuick
import Tessarine.Controls

// A list whose rows may be more than it has room for. A finger drags it; a mouse scrolls by its wheel
// and the scroll bar. What else its keys do, it is given.
ListView {
    id: list

    clip: true
    boundsBehavior: Flickable.StopAtBounds
    highlightMoveDuration: 0
    keyNavigationEnabled: false
    interactive: !mouse.down

    MouseWatch {
        id: mouse

        item: list
    }
}
