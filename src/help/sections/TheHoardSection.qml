import QtQuick
import Tessarine.Controls
import Tessarine.Help
import Tessarine.Theme

// The list of notifications, its rows and what they do.
HelpPage {
    HelpTitle { text: qsTrId("help.hoard.title") }

    HelpHeading { text: qsTrId("help.hoard.h.rows") }

    HelpParagraph { text: qsTrId("help.hoard.p.rows") }

    HelpHeading { text: qsTrId("help.hoard.h.interactions") }

    HelpParagraph { text: qsTrId("help.hoard.p.interaction.click") }

    HelpParagraph { text: qsTrId("help.hoard.p.interaction.doubleClick") }

    HelpParagraph { text: qsTrId("help.hoard.p.interaction.space") }

    HelpParagraph { text: qsTrId("help.hoard.p.interaction.cmdC") }

    HelpParagraph { text: qsTrId("help.hoard.p.interaction.esc") }

    HelpHeading { text: qsTrId("help.hoard.h.clicking") }

    HelpTable {
        accessibleName: qsTrId("help.hoard.h.clicking")
        headers: ["Result", "Meaning"]

        TextTableRow { cells: ["App opens normally", "Standard app launch"] }
        TextTableRow { cells: ["\"Deep link opened\" banner", "App supported a URL scheme — opened to the relevant screen"] }
        TextTableRow { cells: ["\"App not installed\" banner", "Notification came via iPhone Mirroring; app is not on this Mac"] }
    }

    HelpHeading { text: qsTrId("help.hoard.h.contextMenu") }

    HelpRow {
        icon: "pin"
        color: Theme.colours.accent
        title: qsTrId("help.hoard.contextMenu.pin")
    }

    HelpRow {
        icon: "doc.on.doc"
        color: Theme.colours.secondaryLabel
        title: qsTrId("help.hoard.contextMenu.0")
    }

    HelpRow {
        icon: "arrow.up.forward.app"
        color: Theme.colours.accent
        title: qsTrId("help.hoard.contextMenu.openInApp")
    }

    HelpRow {
        icon: "trash"
        color: Theme.colours.red
        title: qsTrId("help.hoard.contextMenu.1")
    }

    HelpRow {
        icon: "trash.fill"
        color: Theme.colours.red
        title: qsTrId("help.hoard.contextMenu.2")
    }

    HelpRow {
        icon: "calendar.badge.minus"
        color: Theme.colours.red
        title: qsTrId("help.hoard.contextMenu.3")
    }
}
