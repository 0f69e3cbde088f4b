import QtQuick
import Tessarine.Controls
import Tessarine.Settings

// What a backup says before it begins, and when it has failed.
Item {
    id: alerts

    required property HoardBackup backup

    AlertDialog {
        objectName: "backupWarning"
        text: qsTrId("prefs.storage.backup.alert.title")
        message: qsTrId("prefs.storage.backup.alert.body")
        visible: alerts.backup.showWarning
        onClosed: alerts.backup.showWarning = false
        actions: [
            AlertAction {
                text: qsTrId("action.continue")
                role: AlertAction.Default
                onTriggered: alerts.backup.proceed()
            },
            AlertAction {
                text: qsTrId("action.cancel")
                role: AlertAction.Cancel
            }
        ]
    }

    AlertDialog {
        objectName: "backupError"
        text: qsTrId("prefs.storage.backup.error.title")
        message: alerts.backup.error
        visible: alerts.backup.showError
        onClosed: alerts.backup.showError = false
        actions: [
            AlertAction {
                text: qsTrId("action.ok")
                role: AlertAction.Cancel
            }
        ]
    }
}
