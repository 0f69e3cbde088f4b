import QtQuick
import Tessarine.Controls
import Tessarine.Settings
import Tessarine.Theme

// Masked content, the deletion of one-time codes, and what the program says of privacy.
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

    HorizontalDivider {
        width: parent.width
    }

    PreferencesSection {
        heading: qsTrId("prefs.privacy.section.documents")

        StatusRow {
            width: parent.width
            granted: false
            symbol: "doc.text"
            title: qsTrId("prefs.privacy.privacyNotice")
            caption: qsTrId("prefs.privacy.privacyNotice.caption")
            status: ""

            TextButton {
                objectName: "privacyNotice"
                text: qsTrId("prefs.privacy.privacyNotice.btn")
                onClicked: tab.settings.showPrivacyNotice()
            }
        }

        StatusRow {
            width: parent.width
            granted: false
            symbol: "bell.and.waveform.fill"
            title: qsTrId("prefs.privacy.welcomeGuide")
            caption: qsTrId("prefs.privacy.welcomeGuide.caption")
            status: ""

            TextButton {
                objectName: "welcomeGuide"
                text: qsTrId("prefs.privacy.welcomeGuide.btn")
                onClicked: tab.settings.showWelcomeGuide()
            }
        }
    }
}
