import QtQuick
import Tessarine.Controls
import Tessarine.Settings
import Tessarine.Theme

// How long notifications are kept, and the hoard's file.
PreferencesTab {
    id: tab

    required property StorageSettings settings

    readonly property preferenceNote note: settings.retentionNote

    PreferencesSection {
        heading: qsTrId("prefs.storage.section.retention")

        MenuRow {
            objectName: "keepFor"
            width: parent.width
            title: qsTrId("prefs.storage.keepFor")
            model: tab.settings.retentionTexts
            currentIndex: tab.settings.retentionIndex
            displayText: tab.settings.retentionText
            note: tab.note.text
            noteSymbol: tab.note.symbol
            noteInk: tab.note.isWarning ? Theme.colours.orange
                : tab.note.isGood ? Theme.colours.green : Theme.colours.secondaryLabel
            onActivated: index => tab.settings.retentionIndex = index
        }
    }

    HorizontalDivider {
        width: parent.width
    }

    PreferencesSection {
        heading: qsTrId("prefs.storage.section.hoard")

        StatusRow {
            objectName: "hoardSize"
            width: parent.width
            granted: false
            symbol: "cylinder"
            title: qsTrId("prefs.storage.dbSize")
            status: tab.settings.hoardSize

            TextButton {
                objectName: "exportBackup"
                text: qsTrId("prefs.storage.exportBackup")
                toolTipText: qsTrId("prefs.storage.exportBackup.help")
                enabled: !tab.settings.backup.isRunning
                onClicked: tab.settings.backup.request()
            }
        }
    }
}
