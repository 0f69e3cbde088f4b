import QtQuick
import Tessarine.Theme

// What the corners of a row's icon say: that its texts are masked, and that it is pinned.
Item {
    id: badges

    required property bool masked
    required property bool pinned
    required property color surroundings

    IconBadge {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        surroundings: badges.surroundings
        symbol: "lock.fill"
        size: 9
        color: Qt.alpha(Theme.colours.secondaryLabel, 0.8)
        visible: badges.masked
    }

    IconBadge {
        anchors.right: parent.right
        anchors.top: parent.top
        surroundings: badges.surroundings
        symbol: "pin.fill"
        size: 8
        color: Theme.colours.accentFill
        visible: badges.pinned
    }
}
