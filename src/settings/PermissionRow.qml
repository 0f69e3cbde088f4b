import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// One permission: whether it is granted, the way to the system's settings for it, and a button that
// asks anew. Where the system has no such settings the first button says so.
Item {
    id: row

    required property string title
    required property string caption
    required property bool isEnabled
    required property string settingsURLString
    property bool hasSettings: true

    readonly property string status: isEnabled ? "Enabled" : "Not enabled"
    readonly property color tint: isEnabled ? Theme.colours.green : Theme.colours.secondaryLabel

    signal recheck
    signal openSettings(string url)

    width: parent?.width ?? 0
    height: lines.height
    Accessible.role: Accessible.Grouping
    Accessible.name: title
    Accessible.description: status + "\n" + caption

    SymbolImage {
        id: badge

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        symbol: row.isEnabled ? "checkmark.circle.fill" : "xmark.circle.fill"
        size: Metrics.badgeSize
        tint: row.tint
    }

    Column {
        id: lines

        anchors.left: badge.right
        anchors.leftMargin: Metrics.spacingLarge
        anchors.right: parent.right
        spacing: Metrics.spacingTiny

        Item {
            width: parent.width
            height: titleLabel.height

            PlainLabel {
                id: titleLabel

                anchors.left: parent.left
                text: row.title
                Accessible.ignored: true
            }

            PlainLabel {
                objectName: "status"
                anchors.right: parent.right
                anchors.baseline: titleLabel.baseline
                text: row.status
                font.pixelSize: Metrics.textSmall
                color: row.tint
                Accessible.ignored: true
            }
        }

        PlainLabel {
            width: parent.width
            text: row.caption
            font.pixelSize: Metrics.textSmall
            color: Theme.colours.secondaryLabel
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }

        Row {
            width: parent.width
            topPadding: Metrics.spacingSmall
            spacing: Metrics.spacingMedium

            TextButton {
                objectName: "openSettings"
                text: row.hasSettings ? "Open System Settings" : "No System Settings for This"
                enabled: row.hasSettings
                onClicked: row.openSettings(row.settingsURLString)
            }

            TextButton {
                objectName: "recheck"
                text: "Re-check"
                onClicked: row.recheck()
            }
        }
    }
}
