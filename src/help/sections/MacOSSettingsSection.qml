import QtQuick
import Tessarine.Controls
import Tessarine.Help
import Tessarine.Theme

// What the system's own settings mean for capture. Its steps are English in all languages.
HelpPage {
    HelpTitle { text: qsTrId("help.macos.title") }

    HelpHeading { text: qsTrId("help.macos.h.alertStyle") }

    HelpParagraph { text: qsTrId("help.macos.p.alertStyle") }

    HelpTable {
        accessibleName: qsTrId("help.macos.h.alertStyle")
        headers: ["Setting", "Effect"]

        TextTableRow { cells: ["Alert style = None (silent)", "Captured via usernoted DB poller within 30s (no banner)"] }
        TextTableRow { cells: ["Alert style = Banners", "✅ Captured immediately by AXObserver"] }
        TextTableRow { cells: ["Alert style = Alerts", "✅ Captured; user must dismiss manually"] }
    }

    HelpParagraph { text: qsTrId("help.macos.p.alertReco") }

    HelpHeading { text: qsTrId("help.macos.h.focus") }

    HelpParagraph { text: qsTrId("help.macos.p.focus") }

    HelpHeading { text: qsTrId("help.macos.h.accessibility") }

    HelpParagraph { text: qsTrId("help.macos.p.accessibility") }

    HelpNumberedStep {
        n: 1
        text: "Open System Settings"
    }

    HelpNumberedStep {
        n: 2
        text: "Go to Privacy & Security → Accessibility"
    }

    HelpNumberedStep {
        n: 3
        text: "Find Tessarine and enable the toggle"
    }

    HelpNumberedStep {
        n: 4
        text: "If not listed, click + and add it from Applications"
    }

    HelpParagraph { text: qsTrId("help.macos.p.accessibility2") }

    HelpHeading { text: "Full Disk Access (Optional)" }

    HelpParagraph { text: "Tessarine captures all new notifications using the Accessibility API — Full Disk Access is not required for normal operation." }

    HelpRow {
        icon: "checkmark.circle.fill"
        color: Theme.colours.green
        title: "With Full Disk Access enabled"
        description: "The app can import past notifications already stored by macOS, and improves reliability in some edge cases (e.g. when the app was not running when a notification arrived)."
    }

    HelpRow {
        icon: "xmark.circle.fill"
        color: Theme.colours.secondaryLabel
        title: "Without Full Disk Access"
        description: "All new notifications are captured normally. Some older notifications that arrived before the app was running may not be available."
    }

    HelpRow {
        icon: "gearshape.fill"
        color: Theme.colours.accent
        title: "You can enable or disable Full Disk Access at any time:"
        description: "System Settings → Privacy & Security → Full Disk Access → toggle Tessarine."
    }

    HelpHeading { text: qsTrId("help.macos.h.timeMachine") }

    HelpParagraph { text: qsTrId("help.macos.p.timeMachine") }
}
