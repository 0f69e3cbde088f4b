import QtQuick
import Tessarine.Controls

// A small white symbol on a round ground, in a corner of an icon.
Rectangle {
    id: badge

    required property string symbol
    required property int size

    readonly property int padding: 3

    width: size + 2 * padding
    height: width
    radius: width / 2

    SymbolImage {
        anchors.centerIn: parent
        symbol: badge.symbol
        size: badge.size
        tint: "white"
    }
}
