import QtQuick
import Tessarine.Controls
import Tessarine.Help
import Tessarine.Theme

// A small screen on which the steps of a walkthrough come after each other. It plays while it is seen,
// unless the desktop wants nothing to move.
Item {
    id: root

    required property IPhoneWalkthrough walkthrough

    readonly property list<color> inks: [Theme.colours.secondaryLabel, Theme.colours.red,
        Theme.colours.accent, Theme.colours.green, Theme.colours.orange]
    readonly property int screenHeight: 148

    function begin() {
        if (visible && !Theme.reducesMotion)
            walkthrough.restart();
    }

    width: parent?.width ?? 0
    implicitHeight: screenHeight + Metrics.spacingMedium + controls.height
    onVisibleChanged: begin()
    Component.onCompleted: {
        walkthrough.setStage(root);
        begin();
    }
    Accessible.role: Accessible.Grouping
    Accessible.name: qsTrId("help.iphone.h.howToEnable")

    Rectangle {
        width: parent.width
        height: root.screenHeight
        radius: Metrics.sheetRadius
        color: Theme.colours.controlBackground
        Accessible.role: Accessible.StaticText
        Accessible.name: root.walkthrough.step.screen
        Accessible.description: root.walkthrough.step.label

        Column {
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.margins: Metrics.spacingWide
            anchors.verticalCenter: parent.verticalCenter
            spacing: Metrics.spacingMedium

            SymbolImage {
                anchors.horizontalCenter: parent.horizontalCenter
                symbol: root.walkthrough.step.icon
                size: Metrics.iconSize
                tint: root.inks[root.walkthrough.step.color]
            }

            PlainLabel {
                objectName: "screen"
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: root.walkthrough.step.screen
                font.pixelSize: Metrics.textNotice
                font.weight: Font.DemiBold
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }

            PlainLabel {
                objectName: "label"
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: root.walkthrough.step.label
                color: Theme.colours.secondaryLabel
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
        }
    }

    Row {
        id: controls

        anchors.bottom: parent.bottom
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: Metrics.spacingMedium

        IconButton {
            objectName: "previousStep"
            symbol: "chevron.left"
            directional: true
            tint: Theme.colours.label
            accessibleName: qsTrId("help.iphone.walk.previous")
            onClicked: root.walkthrough.previous()
        }

        IconButton {
            objectName: "playSteps"
            symbol: root.walkthrough.playing ? "pause.fill" : "play.fill"
            tint: Theme.colours.label
            accessibleName: root.walkthrough.playing ? qsTrId("help.iphone.walk.pause") : qsTrId("help.iphone.walk.play")
            onClicked: root.walkthrough.togglePlaying()
        }

        IconButton {
            objectName: "nextStep"
            symbol: "chevron.right"
            directional: true
            tint: Theme.colours.label
            accessibleName: qsTrId("help.iphone.walk.next")
            onClicked: root.walkthrough.next()
        }

        PlainLabel {
            objectName: "position"
            anchors.verticalCenter: parent.verticalCenter
            text: root.walkthrough.position
            color: Theme.colours.secondaryLabel
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
