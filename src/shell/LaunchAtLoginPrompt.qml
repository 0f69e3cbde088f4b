import QtQuick
import Tessarine.Controls
import Tessarine.Shell
import Tessarine.Theme

// Asks once whether the program may start at login. Return says yes, Escape not now.
Rectangle {
    id: root

    required property LaunchAtLoginPromptView prompt

    implicitWidth: 440
    implicitHeight: 300
    color: Theme.colours.windowBackground
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Dialog
    Accessible.name: title.text
    Keys.onEscapePressed: prompt.notNow()

    Column {
        id: head

        anchors.top: parent.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: Metrics.sheetPadding
        spacing: Metrics.spacingWide

        Row {
            width: parent.width
            spacing: Metrics.spacingLarge

            SymbolImage {
                id: sign

                symbol: "arrow.up.circle.fill"
                size: Metrics.iconSize
                tint: Theme.colours.accent
            }

            Column {
                width: parent.width - sign.width - parent.spacing
                spacing: Metrics.spacingSmall

                PlainLabel {
                    id: title

                    objectName: "title"
                    width: parent.width
                    text: qsTrId("launchAtLogin.prompt.title")
                    font.pixelSize: Metrics.textNotice
                    font.weight: Font.DemiBold
                    wrapMode: Text.Wrap
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }

                PlainLabel {
                    width: parent.width
                    text: qsTrId("launchAtLogin.prompt.subtitle")
                    color: Theme.colours.secondaryLabel
                    wrapMode: Text.Wrap
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
            }
        }

        Rectangle {
            objectName: "rows"
            width: parent.width
            height: rows.height + 2 * Metrics.spacingLarge
            radius: Metrics.cornerRadius
            color: Theme.colours.controlBackground

            Column {
                id: rows

                x: Metrics.spacingLarge
                y: Metrics.spacingLarge
                width: parent.width - 2 * x
                spacing: Metrics.spacingLarge

                InfoRow {
                    width: parent.width
                    icon: "bell.fill"
                    iconColor: Theme.colours.orange
                    text: qsTrId("launchAtLogin.info.missedNotifs")
                }

                InfoRow {
                    width: parent.width
                    icon: "checkmark.shield.fill"
                    iconColor: Theme.colours.green
                    text: qsTrId("launchAtLogin.info.silentStart")
                }

                InfoRow {
                    width: parent.width
                    icon: "gearshape.fill"
                    iconColor: Theme.colours.secondaryLabel
                    text: qsTrId("launchAtLogin.info.changeLater")
                }
            }
        }
    }

    TextButton {
        objectName: "dontAsk"
        anchors.left: parent.left
        anchors.bottom: parent.bottom
        anchors.margins: Metrics.sheetPadding
        text: qsTrId("launchAtLogin.btn.dontAsk")
        onClicked: root.prompt.suppress()
    }

    Row {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: Metrics.sheetPadding
        spacing: Metrics.spacingMedium

        TextButton {
            objectName: "notNow"
            text: qsTrId("launchAtLogin.btn.notNow")
            onClicked: root.prompt.notNow()
        }

        TextButton {
            objectName: "enable"
            focus: true
            prominent: true
            text: qsTrId("launchAtLogin.btn.enable")
            onClicked: root.prompt.enable()
        }
    }
}
