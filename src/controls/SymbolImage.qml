import QtQuick
import Tessarine.Theme

// A symbol by its name, in one colour, sharp at every density. An empty name draws nothing.
Image {
    required property string symbol
    required property int size
    property color tint: Theme.colours.label

    width: size
    height: size
    sourceSize.width: size
    sourceSize.height: size
    source: Theme.symbolSource(symbol, tint)
    Accessible.ignored: true
}
