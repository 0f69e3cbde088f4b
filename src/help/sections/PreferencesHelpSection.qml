import QtQuick
import Tessarine.Controls
import Tessarine.Help
import Tessarine.Theme

// What can be set.
HelpPage {
    HelpTitle { text: qsTrId("help.prefs.title") }

    HelpParagraph { text: qsTrId("help.prefs.p.intro") }

    HelpHeading { text: qsTrId("help.prefs.h.excludedApps") }

    HelpParagraph { text: qsTrId("help.prefs.p.excludedApps.intro") }

    HelpParagraph { text: qsTrId("help.prefs.p.excludedApps.manage") }

    HelpRow {
        icon: "eye.slash"
        color: Theme.colours.secondaryLabel
        title: qsTrId("help.prefs.excludeOnly.title")
        description: qsTrId("help.prefs.excludeOnly.desc")
    }

    HelpRow {
        icon: "trash"
        color: Theme.colours.red
        title: qsTrId("help.prefs.excludeDelete.title")
        description: qsTrId("help.prefs.excludeDelete.desc")
    }

    HelpParagraph { text: qsTrId("help.prefs.p.excludedApps.note") }

    HelpHeading { text: qsTrId("help.prefs.h.retention") }

    HelpParagraph { text: qsTrId("help.prefs.p.retention") }

    HelpTable {
        accessibleName: qsTrId("help.prefs.h.retention")
        headers: ["Setting", "Effect"]

        TextTableRow { cells: ["Forever (recommended)", "All notifications kept indefinitely. Hoard has no size limit."] }
        TextTableRow { cells: ["1 year / 6 months / 90 / 60 / 30 days", "Notifications older than the period are deleted at startup."] }
        TextTableRow { cells: ["14 days", "Short retention — high risk of losing data. ⚠️"] }
        TextTableRow { cells: ["7 days", "Very short retention. ⚠️"] }
    }

    HelpHeading { text: qsTrId("help.prefs.h.hoard") }

    HelpParagraph { text: qsTrId("help.prefs.p.hoard") }

    HelpParagraph { text: qsTrId("help.prefs.p.backup") }

    HelpHeading { text: qsTrId("help.prefs.h.startup") }

    HelpParagraph { text: qsTrId("help.prefs.p.startup") }

    HelpParagraph { text: qsTrId("help.prefs.p.startup2") }

    HelpParagraph { text: qsTrId("help.prefs.p.startup3") }

    HelpHeading { text: qsTrId("help.prefs.h.privacy") }

    HelpParagraph { text: qsTrId("help.prefs.p.privacyHide") }

    HelpParagraph { text: qsTrId("help.prefs.p.otp") }

    HelpParagraph { text: qsTrId("help.prefs.p.welcomeGuide") }
}
