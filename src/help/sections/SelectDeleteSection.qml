import QtQuick
import Tessarine.Help
import Tessarine.Theme

// Selection mode and what deletes.
HelpPage {
    HelpTitle { text: qsTrId("help.selectDelete.title") }

    HelpHeading { text: qsTrId("help.selectDelete.h.entering") }

    HelpParagraph { text: qsTrId("help.selectDelete.p.entering") }

    HelpHeading { text: qsTrId("help.selectDelete.h.selecting") }

    HelpRow {
        icon: "checkmark.circle"
        color: Theme.colours.accent
        title: qsTrId("help.selectDelete.row.tap.title")
        description: qsTrId("help.selectDelete.row.tap.desc")
    }

    HelpRow {
        icon: "square.grid.2x2"
        color: Theme.colours.accent
        title: qsTrId("help.selectDelete.row.byApp.title")
        description: qsTrId("help.selectDelete.row.byApp.desc")
    }

    HelpRow {
        icon: "calendar"
        color: Theme.colours.accent
        title: qsTrId("help.selectDelete.row.byDate.title")
        description: qsTrId("help.selectDelete.row.byDate.desc")
    }

    HelpRow {
        icon: "checkmark.circle.fill"
        color: Theme.colours.accent
        title: qsTrId("help.selectDelete.row.selectAll.title")
        description: qsTrId("help.selectDelete.row.selectAll.desc")
    }

    HelpHeading { text: qsTrId("help.selectDelete.h.datePresets") }

    DatePresetTable {}

    HelpHeading { text: qsTrId("help.selectDelete.h.deleting") }

    HelpParagraph { text: qsTrId("help.selectDelete.p.deleting") }

    HelpRow {
        icon: "exclamationmark.triangle.fill"
        color: Theme.colours.orange
        title: qsTrId("help.selectDelete.warning")
    }
}
