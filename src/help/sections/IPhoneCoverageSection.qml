import QtQuick
import Tessarine.Controls
import Tessarine.Help
import Tessarine.Theme

// How notifications of a phone come into the hoard.
HelpPage {
    id: page

    HelpTitle { text: qsTrId("help.iphone.title") }

    HelpHeading { text: qsTrId("help.iphone.h.nativeMac") }

    HelpParagraph { text: qsTrId("help.iphone.p.nativeMac") }

    HelpParagraph { text: qsTrId("help.iphone.p.nativeMac2") }

    HelpHeading { text: qsTrId("help.iphone.h.solution") }

    HelpParagraph { text: qsTrId("help.iphone.p.solution") }

    HelpHeading { text: qsTrId("help.iphone.h.requirements") }

    HelpRow {
        icon: "iphone"
        color: Theme.colours.accent
        title: qsTrId("help.iphone.req.ios18.title")
        description: qsTrId("help.iphone.req.ios18.desc")
    }

    HelpRow {
        icon: "checkmark.shield.fill"
        color: Theme.colours.green
        title: qsTrId("help.iphone.req.appleId.title")
        description: qsTrId("help.iphone.req.appleId.desc")
    }

    HelpRow {
        icon: "antenna.radiowaves.left.and.right"
        color: Theme.colours.orange
        title: qsTrId("help.iphone.req.wifi.title")
        description: qsTrId("help.iphone.req.wifi.desc")
    }

    HelpRow {
        icon: "bell.fill"
        color: Theme.colours.red
        title: qsTrId("help.iphone.req.notifs.title")
        description: qsTrId("help.iphone.req.notifs.desc")
    }

    HelpHeading { text: qsTrId("help.iphone.h.howToEnable") }

    WalkthroughView { walkthrough: page.view.walkthrough }

    HelpHeading { text: qsTrId("help.iphone.h.iphoneSettings") }

    HelpTable {
        accessibleName: qsTrId("help.iphone.h.iphoneSettings")
        headers: ["Condition", "Effect"]

        TextTableRow { cells: ["Allow Notifications From iPhone = OFF", "iPhone notifications not mirrored to Mac"] }
        TextTableRow { cells: ["Focus mode active on iPhone", "Notifications may be delayed; still captured via usernoted DB"] }
        TextTableRow { cells: ["iPhone powered off", "No mirroring — notifications not forwarded"] }
    }

    HelpHeading { text: qsTrId("help.iphone.h.routing") }

    HelpParagraph { text: qsTrId("help.iphone.p.routing") }
}
