import QtQuick
import Tessarine.Controls
import Tessarine.Settings
import Tessarine.Theme

// What the system permits, and the way to its own settings. English in every language.
PreferencesTab {
    id: tab

    required property PermissionSettings settings

    readonly property string note: "macOS does not allow apps to grant or revoke permissions directly. Use “Open System Settings” to manage each permission, then tap “Re-check” to update the status shown here."

    padding: Metrics.spacingMedium
    gap: Metrics.spacingMedium

    PreferencesSection {
        heading: "System Permissions"
        rowGap: Metrics.spacingMedium

        PermissionRow {
            objectName: "accessibility"
            title: "Accessibility"
            caption: "Required to capture notifications from Notification Center in real time."
            isEnabled: tab.settings.axEnabled
            settingsURLString: tab.settings.axSettingsURL
            hasSettings: tab.settings.offersAxSettings
            onRecheck: tab.settings.recheckAx()
            onOpenSettings: url => tab.settings.openSettings(url)
        }

        HorizontalDivider {
            width: parent.width
        }

        PermissionRow {
            objectName: "fullDiskAccess"
            title: "Full Disk Access"
            caption: "Enables recovery of past notifications from the system database."
            isEnabled: tab.settings.fdaEnabled
            settingsURLString: tab.settings.fdaSettingsURL
            hasSettings: tab.settings.offersFdaSettings
            onRecheck: tab.settings.recheckFda()
            onOpenSettings: url => tab.settings.openSettings(url)
        }
    }

    HorizontalDivider {
        width: parent.width
    }

    PlainLabel {
        objectName: "note"
        width: parent.width
        text: qsTrId(tab.note)
        font.pixelSize: Metrics.textSmall
        color: Theme.colours.secondaryLabel
        lineHeight: 1.15
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
