import QtQuick
import Tessarine.Controls

// A small white symbol on a round ground, in a corner of an icon, which a ring in the colour of what
// the icon stands on sets off from it.
Rectangle {
    id: badge

    required property string symbol
    required property int size
    required property color surroundings

    readonly property int padding: 3
    readonly property real ringWidth: 1.5

    width: size + 2 * padding
    height: width
    radius: width / 2

    Rectangle {
        anchors.fill: parent
        anchors.margins: -badge.ringWidth
        z: -1
        radius: width / 2
        color: badge.surroundings
    }

    SymbolImage {
        anchors.centerIn: parent
        symbol: badge.symbol
        size: badge.size
        tint: "white"
    }
}
