import QtQuick
import Tessarine.Controls
import Tessarine.Help
import Tessarine.Theme

// How notifications come into the hoard.
HelpPage {
    HelpTitle { text: qsTrId("help.howItWorks.title") }

    HelpParagraph { text: qsTrId("help.howItWorks.p1") }

    HelpHeading { text: qsTrId("help.howItWorks.h.threeLayers") }

    HelpRow {
        icon: "eye"
        color: Theme.colours.accent
        title: qsTrId("help.howItWorks.layer.ax.title")
        description: qsTrId("help.howItWorks.layer.ax.desc")
    }

    HelpRow {
        icon: "tray.full"
        color: Theme.colours.green
        title: qsTrId("help.howItWorks.layer.usernoted.title")
        description: qsTrId("help.howItWorks.layer.usernoted.desc")
    }

    HelpRow {
        icon: "clock.arrow.circlepath"
        color: Theme.colours.orange
        title: qsTrId("help.howItWorks.layer.legacy.title")
        description: qsTrId("help.howItWorks.layer.legacy.desc")
    }

    HelpHeading { text: qsTrId("help.howItWorks.h.layersTogether") }

    HelpTable {
        accessibleName: qsTrId("help.howItWorks.h.layersTogether")
        headers: ["Event", "Accessibility layer", "Database layer"]

        TextTableRow { cells: ["Banner displayed on screen", "✅ Captured immediately", "✅ Also written"] }
        TextTableRow { cells: ["Silent notification (no banner)", "❌ No banner to capture", "✅ Captured within 30s"] }
        TextTableRow { cells: ["Focus mode suppressed banner", "❌ No banner shown", "✅ Captured within 30s"] }
        TextTableRow { cells: ["App not running when notif arrived", "❌ No banner shown", "✅ Recovered on startup (~30)"] }
        TextTableRow { cells: ["After system sleep / wake", "Reconnects in 2s", "✅ Polls on wake"] }
    }

    HelpHeading { text: qsTrId("help.howItWorks.h.sleepWake") }

    HelpParagraph { text: qsTrId("help.howItWorks.p.sleep") }

    HelpHeading { text: qsTrId("help.howItWorks.h.localStorage") }

    HelpParagraph { text: qsTrId("help.howItWorks.p.storage") }
}
