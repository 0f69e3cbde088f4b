import QtQuick
import Tessarine.Theme

// The tile that stands for an application's icon.
Rectangle {
    id: tile

    required property string initials

    radius: 7

    PlainLabel {
        anchors.centerIn: parent
        text: tile.initials
        color: "white"
        font.weight: Font.DemiBold
        Accessible.ignored: true
    }
}
