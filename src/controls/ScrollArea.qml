import QtQuick
import QtQuick.Templates as T
import Tessarine.Controls

// Room for something that may be longer than it. A finger drags it; a mouse scrolls by its wheel and
// the scroll bar.
Flickable {
    id: area

    clip: true
    boundsBehavior: Flickable.StopAtBounds
    interactive: !mouse.down

    T.ScrollBar.vertical: ThinScrollBar {}

    FocusFollower {
        view: area
    }

    MouseWatch {
        id: mouse

        item: area
    }
}
