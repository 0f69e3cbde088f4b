import QtQuick
import Tessarine.Theme

// One step of an instruction: its number in a circle, what to do, and a note beneath that may be absent.
Item {
    id: step

    required property int number
    required property string text
    property alias note: noteLabel.text

    implicitWidth: 320
    implicitHeight: Math.max(circle.height, texts.y + texts.height)
    Accessible.role: Accessible.StaticText
    Accessible.name: number + ". " + text
    Accessible.description: note

    Rectangle {
        id: circle

        anchors.left: parent.left
        width: Metrics.stepSize
        height: width
        radius: width / 2
        color: Theme.colours.accentFill

        PlainLabel {
            anchors.centerIn: parent
            text: step.number
            color: Theme.colours.onFill
            font.pixelSize: Metrics.textSmall
            font.weight: Font.DemiBold
            Accessible.ignored: true
        }
    }

    FontMetrics {
        id: firstLine

        font: textLabel.font
    }

    Column {
        id: texts

        anchors.left: circle.right
        anchors.leftMargin: Metrics.spacingMedium
        anchors.right: parent.right
        y: Math.round((circle.height - firstLine.height) / 2)
        spacing: Metrics.spacingTiny

        PlainLabel {
            id: textLabel

            width: parent.width
            text: step.text
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }

        PlainLabel {
            id: noteLabel

            width: parent.width
            visible: text
            color: Theme.colours.secondaryLabel
            font.pixelSize: Metrics.textSmall
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
}
