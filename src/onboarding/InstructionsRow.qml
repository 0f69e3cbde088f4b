import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// A line of the pictured list: this program with its switch on, or another with its switch off.
Item {
    id: program

    required property bool known

    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: Metrics.spacingMedium
        anchors.rightMargin: Metrics.spacingMedium
        visible: program.known
        radius: Metrics.cornerRadius
        color: Theme.colours.hoverFill
    }

    Rectangle {
        id: icon

        anchors.left: parent.left
        anchors.leftMargin: Metrics.sheetPadding
        anchors.verticalCenter: parent.verticalCenter
        width: 28
        height: 28
        radius: Metrics.controlRadius
        color: Theme.colours.track

        Image {
            anchors.fill: parent
            visible: program.known
            sourceSize.width: width
            sourceSize.height: height
            source: "qrc:/icons/com.zorvek.Tessarine.svg"
            Accessible.ignored: true
        }
    }

    PlainLabel {
        anchors.left: icon.right
        anchors.leftMargin: Metrics.spacingLarge
        anchors.verticalCenter: parent.verticalCenter
        visible: program.known
        text: "Tessarine"
        font.weight: Font.DemiBold
        Accessible.ignored: true
    }

    Rectangle {
        anchors.left: icon.right
        anchors.leftMargin: Metrics.spacingLarge
        anchors.verticalCenter: parent.verticalCenter
        visible: !program.known
        width: 110
        height: 8
        radius: 4
        color: Theme.colours.track
    }

    Rectangle {
        id: groove

        anchors.right: parent.right
        anchors.rightMargin: Metrics.sheetPadding
        anchors.verticalCenter: parent.verticalCenter
        width: 36
        height: 20
        radius: 10
        color: program.known ? Theme.colours.accentFill : Theme.colours.track

        Rectangle {
            readonly property bool atEnd: program.known !== program.LayoutMirroring.enabled

            x: atEnd ? parent.width - width - 2 : 2
            y: 2
            width: 16
            height: 16
            radius: 8
            color: program.known ? Theme.colours.switchThumb : Theme.colours.raised
        }
    }
}
