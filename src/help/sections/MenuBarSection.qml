import QtQuick
import Tessarine.Controls
import Tessarine.Help

// The status item, its badge and its menu.
HelpPage {
    HelpTitle { text: qsTrId("help.menuBar.title") }

    HelpParagraph { text: qsTrId("help.menuBar.p.intro") }

    HelpHeading { text: qsTrId("help.menuBar.h.badge") }

    HelpParagraph { text: qsTrId("help.menuBar.p.badge") }

    HelpHeading { text: qsTrId("help.menuBar.h.leftClick") }

    HelpTable {
        accessibleName: qsTrId("help.menuBar.h.leftClick")
        headers: [qsTrId("help.menuBar.table.header.item"), qsTrId("help.menuBar.table.header.action")]

        TextTableRow { cells: [qsTrId("help.menuBar.row.openHoard"), qsTrId("help.menuBar.row.openHoard.action")] }
        TextTableRow { cells: [qsTrId("help.menuBar.row.help"), qsTrId("help.menuBar.row.help.action")] }
        TextTableRow { cells: [qsTrId("help.menuBar.row.welcomeGuide"), qsTrId("help.menuBar.row.welcomeGuide.action")] }
        TextTableRow { cells: [qsTrId("help.menuBar.row.preferences"), qsTrId("help.menuBar.row.preferences.action")] }
        TextTableRow { cells: [qsTrId("help.menuBar.row.launchAtLogin"), qsTrId("help.menuBar.row.launchAtLogin.action")] }
        TextTableRow { cells: [qsTrId("help.menuBar.row.checkUpdates"), qsTrId("help.menuBar.row.checkUpdates.action")] }
        TextTableRow { cells: [qsTrId("help.menuBar.row.quit"), qsTrId("help.menuBar.row.quit.action")] }
    }

    HelpHeading { text: qsTrId("help.menuBar.h.optionClick") }

    HelpParagraph { text: qsTrId("help.menuBar.p.optionClick") }
}
