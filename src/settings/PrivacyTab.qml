import QtQuick
import Tessarine.Controls
import Tessarine.Settings
import Tessarine.Theme

// Masked content, and the deletion of one-time codes. The rows of the documents come below these.
PreferencesTab {
    id: tab

    required property PrivacySettings settings

    PreferencesSection {
        heading: qsTrId("prefs.privacy.section.privacyMode")

        SwitchRow {
            objectName: "hideContent"
            width: parent.width
            title: qsTrId("prefs.privacy.hideContent")
            caption: qsTrId("prefs.privacy.hideContent.caption")
            note: tab.settings.globalPrivacyMode ? qsTrId("prefs.privacy.hideContent.activeNote") : ""
            checked: tab.settings.globalPrivacyMode
            onActivated: wanted => tab.settings.globalPrivacyMode = wanted
        }
    }

    HorizontalDivider {
        width: parent.width
    }

    PreferencesSection {
        heading: qsTrId("prefs.privacy.section.otpAutoDelete")

        Item {
            width: parent.width
            height: otp.height

            SymbolImage {
                id: timer

                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                symbol: "timer"
                size: Metrics.badgeSize
                tint: Theme.colours.secondaryLabel
            }

            MenuRow {
                id: otp

                objectName: "otpAutoDelete"
                anchors.left: timer.right
                anchors.leftMargin: Metrics.spacingMedium
                anchors.right: parent.right
                title: qsTrId("prefs.privacy.otpAutoDelete")
                caption: qsTrId("prefs.privacy.otpAutoDelete.caption")
                model: tab.settings.otpTexts
                currentIndex: tab.settings.otpIndex
                displayText: tab.settings.otpText
                note: tab.settings.otpNote.text
                onActivated: index => tab.settings.otpIndex = index
            }
        }
    }
}
