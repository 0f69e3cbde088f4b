import QtQuick
import Tessarine.Controls
import Tessarine.Help

// The window that shows the program at work.
HelpPage {
    HelpTitle { text: qsTrId("help.diagnostics.title") }

    HelpParagraph { text: qsTrId("help.diagnostics.p.intro") }

    HelpHeading { text: qsTrId("help.diagnostics.h.statusCards") }

    HelpTable {
        accessibleName: qsTrId("help.diagnostics.h.statusCards")
        headers: ["Status field", "Meaning"]

        TextTableRow { cells: ["AXObserver", "Current state: Active (pid XXXX), Inactive (sleep), Restarting after wake…"] }
        TextTableRow { cells: ["usernoted DB", "Watcher active (WAL) or Polling every 30s"] }
        TextTableRow { cells: ["DB Records", "Total records in usernoted DB; last processed cursor (rec_id)"] }
        TextTableRow { cells: ["Next Poll", "Countdown ring (seconds) until next 30-second usernoted DB poll"] }
    }

    HelpHeading { text: qsTrId("help.diagnostics.h.liveLog") }

    HelpParagraph { text: qsTrId("help.diagnostics.p.liveLog") }

    HelpHeading { text: qsTrId("help.diagnostics.h.filtering") }

    HelpParagraph { text: qsTrId("help.diagnostics.p.filtering") }

    HelpHeading { text: qsTrId("help.diagnostics.h.clear") }

    HelpParagraph { text: qsTrId("help.diagnostics.p.clear") }
}
