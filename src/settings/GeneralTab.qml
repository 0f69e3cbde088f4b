import QtQuick
import Tessarine.Controls
import Tessarine.Settings
import Tessarine.Theme

// Appearance, start at login, excluded applications, and how capture works.
PreferencesTab {
    id: tab

    required property GeneralSettings settings

    PreferencesSection {
        heading: qsTrId("prefs.general.section.appearance")

        Item {
            width: parent.width
            height: appearance.height

            PlainLabel {
                anchors.left: parent.left
                anchors.right: appearance.left
                anchors.rightMargin: Metrics.spacingLarge
                anchors.verticalCenter: parent.verticalCenter
                text: qsTrId("prefs.general.appearance")
                Accessible.ignored: true
            }

            SegmentedButtons {
                id: appearance

                objectName: "appearance"
                anchors.right: parent.right
                accessibleName: qsTrId("prefs.general.appearance")
                model: tab.settings.appearanceTexts
                currentIndex: tab.settings.appearanceIndex
                onActivated: index => tab.settings.appearanceIndex = index
            }
        }
    }

    HorizontalDivider {
        width: parent.width
    }

    PreferencesSection {
        heading: qsTrId("prefs.general.section.startup")

        SwitchRow {
            objectName: "launchAtLogin"
            width: parent.width
            title: qsTrId("prefs.general.launchAtLogin")
            caption: qsTrId("prefs.general.launchAtLogin.caption")
            note: tab.settings.launchAtLogin ? "" : qsTrId("prefs.general.launchAtLogin.warning")
            noteSymbol: "exclamationmark.triangle.fill"
            noteInk: Theme.colours.orange
            checked: tab.settings.launchAtLogin
            onActivated: wanted => tab.settings.launchAtLogin = wanted
        }
    }

    HorizontalDivider {
        width: parent.width
    }

    PreferencesSection {
        heading: qsTrId("prefs.general.section.capture")

        StatusRow {
            objectName: "excludedApps"
            width: parent.width
            granted: false
            symbol: "eye.slash"
            title: qsTrId("prefs.general.excludedApps")
            caption: qsTrId("prefs.general.excludedApps.caption")
            status: tab.settings.excludedCount > 0
                ? qsTrId("prefs.general.excludedApps.count", tab.settings.excludedCount) : ""

            TextButton {
                objectName: "manage"
                text: qsTrId("prefs.general.excludedApps.manage")
                onClicked: tab.settings.showExcludedAppsSheet = true
            }
        }
    }

    HorizontalDivider {
        width: parent.width
    }

    PreferencesSection {
        heading: qsTrId("prefs.general.section.howCapture")

        PlainLabel {
            objectName: "explainer"
            width: parent.width
            text: qsTrId("prefs.general.captureExplainer")
            color: Theme.colours.secondaryLabel
            lineHeight: 1.2
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
