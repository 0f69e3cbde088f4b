import QtQuick
import Tessarine.Apps
import Tessarine.Theme

// One notification in the list.
Item {
    id: row

    required property string bundleId
    required property string appName
    required property string title
    required property string body
    required property string timeText
    required property string spokenText

    readonly property int horizontalPadding: 10
    readonly property int verticalPadding: 6
    readonly property int itemSpacing: 10
    readonly property int iconRadius: 8
    readonly property real timeOpacity: 0.7
    readonly property real restingOpacity: 0.5

    implicitHeight: Math.max(icon.height, texts.height) + 2 * verticalPadding
    Accessible.role: Accessible.ListItem
    Accessible.name: spokenText
    ListView.onReused: icon.rebuild()

    HoverHandler {
        id: pointer
    }

    Rectangle {
        id: card

        anchors.fill: parent
        anchors.leftMargin: Metrics.spacingMedium
        anchors.rightMargin: Metrics.spacingMedium
        radius: Metrics.cornerRadius
        color: Theme.colours.controlBackground
        opacity: pointer.hovered ? 1 : row.restingOpacity
    }

    AppIconView {
        id: icon

        anchors.left: card.left
        anchors.leftMargin: row.horizontalPadding
        y: row.verticalPadding
        width: Metrics.iconSize
        height: Metrics.iconSize
        bundleId: row.bundleId
        appName: row.appName
        cornerRadius: row.iconRadius
    }

    Column {
        id: texts

        anchors.left: icon.right
        anchors.leftMargin: row.itemSpacing
        anchors.right: card.right
        anchors.rightMargin: row.horizontalPadding
        y: row.verticalPadding
        spacing: Metrics.spacingTiny

        Item {
            width: parent.width
            height: name.height

            PlainLabel {
                id: name

                anchors.left: parent.left
                anchors.right: time.left
                anchors.rightMargin: Metrics.spacingMedium
                text: row.appName
                font.pixelSize: Metrics.textSmall
                font.weight: Font.DemiBold
                color: Theme.colours.secondaryLabel
                maximumLineCount: 1
                wrapMode: Text.WrapAnywhere
                Accessible.ignored: true
            }

            PlainLabel {
                id: time

                anchors.right: parent.right
                anchors.baseline: name.baseline
                text: row.timeText
                font.family: Theme.tabularFamily
                font.pixelSize: Metrics.textTiny
                color: Theme.colours.secondaryLabel
                opacity: row.timeOpacity
                Accessible.ignored: true
            }
        }

        PlainLabel {
            width: parent.width
            text: row.title
            visible: row.title
            font.pixelSize: Metrics.textHeadline
            font.weight: Font.Medium
            maximumLineCount: 2
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }

        PlainLabel {
            width: parent.width
            text: row.body
            visible: row.body
            color: Theme.colours.secondaryLabel
            maximumLineCount: 3
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
}
