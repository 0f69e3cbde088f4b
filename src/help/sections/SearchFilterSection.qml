import QtQuick
import Tessarine.Controls
import Tessarine.Help

// Search, filter, order and groups.
HelpPage {
    HelpTitle { text: qsTrId("help.search.title") }

    HelpHeading { text: qsTrId("help.search.h.searchBar") }

    HelpParagraph { text: qsTrId("help.search.p.searchBar") }

    HelpHeading { text: qsTrId("help.search.h.appFilter") }

    HelpParagraph { text: qsTrId("help.search.p.appFilter") }

    HelpHeading { text: qsTrId("help.search.h.sortModes") }

    HelpTable {
        accessibleName: qsTrId("help.search.h.sortModes")
        headers: [qsTrId("toolbar.sort.label"), "Effect"]

        TextTableRow { cells: [qsTrId("toolbar.sort.newest"), "Most recent notifications first (default)"] }
        TextTableRow { cells: [qsTrId("toolbar.sort.oldest"), "Oldest notifications first"] }
        TextTableRow { cells: [qsTrId("toolbar.sort.appAZ"), "Alphabetical by app name"] }
    }

    HelpHeading { text: qsTrId("help.search.h.groupModes") }

    HelpTable {
        accessibleName: qsTrId("help.search.h.groupModes")
        headers: [qsTrId("toolbar.group.label"), "Effect"]

        TextTableRow { cells: [qsTrId("toolbar.group.none"), "Flat list, no grouping (default)"] }
        TextTableRow { cells: [qsTrId("toolbar.group.byApp"), "Grouped by application, each group collapsible"] }
        TextTableRow { cells: [qsTrId("toolbar.group.byDate"), "Grouped by calendar day (newest first), each group collapsible"] }
    }

    HelpParagraph { text: qsTrId("help.search.p.groupCollapse") }

    HelpHeading { text: qsTrId("help.selectDelete.h.datePresets") }

    DatePresetTable {}

    HelpHeading { text: qsTrId("help.search.h.resultCount") }

    HelpParagraph { text: qsTrId("help.search.p.resultCount") }
}
