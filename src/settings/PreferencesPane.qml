import QtQuick
import QtQuick.Window
import Tessarine.Controls
import Tessarine.Settings
import Tessarine.Theme

// The root of the preferences window: its tabs, and the chosen one's content.
FocusScope {
    id: root

    required property PreferencesView view

    focus: true
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    Keys.onEscapePressed: event => event.isAutoRepeat || Window.window.close()

    Rectangle {
        anchors.fill: parent
        color: Theme.colours.windowBackground
    }

    Item {
        id: bar

        width: parent.width
        height: tabs.height + 2 * Metrics.spacingMedium

        TabStrip {
            id: tabs

            objectName: "tabs"
            y: Metrics.spacingMedium
            width: parent.width - 2 * Metrics.spacingMedium
            anchors.horizontalCenter: parent.horizontalCenter
            accessibleName: qsTrId("prefs.window.title")
            currentIndex: root.view.selectedTab
            onActivated: index => root.view.selectedTab = index
            tabs: [
                TabItem { text: root.view.tabs[0].label; symbol: root.view.tabs[0].symbol },
                TabItem { text: root.view.tabs[1].label; symbol: root.view.tabs[1].symbol },
                TabItem { text: root.view.tabs[2].label; symbol: root.view.tabs[2].symbol },
                TabItem { text: root.view.tabs[3].label; symbol: root.view.tabs[3].symbol }
            ]
        }

        HorizontalDivider {
            anchors.bottom: parent.bottom
            width: parent.width
        }
    }

    Item {
        anchors.top: bar.bottom
        anchors.bottom: problem.top
        width: parent.width

        GeneralTab {
            objectName: "generalTab"
            anchors.fill: parent
            visible: root.view.selectedTab === 0
            settings: root.view.general
        }

        StorageTab {
            objectName: "storageTab"
            anchors.fill: parent
            visible: root.view.selectedTab === 1
            settings: root.view.storage
        }

        PrivacyTab {
            objectName: "privacyTab"
            anchors.fill: parent
            visible: root.view.selectedTab === 2
            settings: root.view.privacy
        }

        PermissionsTab {
            objectName: "permissionsTab"
            anchors.fill: parent
            visible: root.view.selectedTab === 3
            settings: root.view.permissions
        }
    }

    SavingProblem {
        id: problem

        objectName: "savingProblem"
        anchors.bottom: parent.bottom
        width: parent.width
        visible: !root.view.isSaved
        height: visible ? implicitHeight : 0
    }

    ExcludedAppsSheet {
        objectName: "excludedAppsSheet"
        view: root.view.general.excludedApps
        visible: root.view.general.showExcludedAppsSheet
        onClosed: root.view.general.showExcludedAppsSheet = false
        onDone: root.view.general.showExcludedAppsSheet = false
    }

    BackupAlerts {
        backup: root.view.storage.backup
    }
}
