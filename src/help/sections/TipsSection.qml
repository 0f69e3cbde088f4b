import QtQuick
import Tessarine.Help
import Tessarine.Theme

// Ways to get more out of the program.
HelpPage {
    HelpTitle { text: qsTrId("help.tips.title") }

    HelpRow {
        icon: "arrow.up.circle.fill"
        color: Theme.colours.accent
        title: qsTrId("help.tips.launchAtLogin.title")
        description: qsTrId("help.tips.launchAtLogin.desc")
    }

    HelpRow {
        icon: "clock.arrow.circlepath"
        color: Theme.colours.green
        title: qsTrId("help.tips.retention.title")
        description: qsTrId("help.tips.retention.desc")
    }

    HelpRow {
        icon: "calendar"
        color: Theme.colours.orange
        title: qsTrId("help.tips.byDate.title")
        description: qsTrId("help.tips.byDate.desc")
    }

    HelpRow {
        icon: "antenna.radiowaves.left.and.right"
        color: Theme.colours.accent
        title: qsTrId("help.tips.diagnostics.title")
        description: qsTrId("help.tips.diagnostics.desc")
    }

    HelpRow {
        icon: "folder"
        color: Theme.colours.green
        title: qsTrId("help.tips.backup.title")
        description: qsTrId("help.tips.backup.desc")
    }

    HelpRow {
        icon: "tablecells"
        color: Theme.colours.green
        title: qsTrId("help.tips.csv.title")
        description: qsTrId("help.tips.csv.desc")
    }

    HelpRow {
        icon: "square.grid.2x2"
        color: Theme.colours.accent
        title: qsTrId("help.tips.xlsx.title")
        description: qsTrId("help.tips.xlsx.desc")
    }

    HelpRow {
        icon: "bell.fill"
        color: Theme.colours.red
        title: qsTrId("help.tips.notifStyles.title")
        description: qsTrId("help.tips.notifStyles.desc")
    }

    HelpRow {
        icon: "iphone"
        color: Theme.colours.accent
        title: qsTrId("help.tips.mirroring.title")
        description: qsTrId("help.tips.mirroring.desc")
    }
}
