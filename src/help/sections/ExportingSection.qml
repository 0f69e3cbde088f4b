import QtQuick
import Tessarine.Help
import Tessarine.Theme

// Files of what was kept.
HelpPage {
    HelpTitle { text: qsTrId("help.exporting.title") }

    HelpParagraph { text: qsTrId("help.exporting.p.intro") }

    HelpHeading { text: qsTrId("help.exporting.h.formats") }

    HelpRow {
        icon: "tablecells"
        color: Theme.colours.green
        title: qsTrId("help.exporting.format.csv.title")
        description: qsTrId("help.exporting.format.csv.desc")
    }

    HelpRow {
        icon: "square.grid.2x2"
        color: Theme.colours.accent
        title: qsTrId("help.exporting.format.xlsx.title")
        description: qsTrId("help.exporting.format.xlsx.desc")
    }

    HelpRow {
        icon: "doc.richtext.fill"
        color: Theme.colours.red
        title: qsTrId("help.exporting.format.pdf.title")
        description: qsTrId("help.exporting.format.pdf.desc")
    }

    HelpHeading { text: qsTrId("help.exporting.h.privacy") }

    HelpParagraph { text: qsTrId("help.exporting.p.privacy") }

    HelpHeading { text: qsTrId("help.exporting.h.naming") }

    HelpParagraph { text: qsTrId("help.exporting.p.naming") }

    HelpHeading { text: qsTrId("help.exporting.h.numbersExcel") }

    HelpParagraph { text: qsTrId("help.exporting.p.numbers") }
}
