import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// Where the data is and who can read it, in short.
GuidePage {
    symbol: "lock.shield.fill"
    title: qsTrId("onboarding.privacy.title")
    subtitle: qsTrId("onboarding.privacy.subtitle")

    PrivacySummaryRow {
        width: parent.width
        icon: "internaldrive.fill"
        iconColor: Theme.colours.accent
        title: qsTrId("onboarding.privacy.row1.title")
        text: qsTrId("onboarding.privacy.row1.text")
    }

    PrivacySummaryRow {
        width: parent.width
        icon: "lock.open.fill"
        iconColor: Theme.colours.orange
        title: qsTrId("onboarding.privacy.row2.title")
        text: qsTrId("onboarding.privacy.row2.text")
    }

    PrivacySummaryRow {
        width: parent.width
        icon: "key.fill"
        iconColor: Theme.colours.red
        title: qsTrId("onboarding.privacy.row3.title")
        text: qsTrId("onboarding.privacy.row3.text")
    }

    PrivacySummaryRow {
        width: parent.width
        icon: "trash.fill"
        iconColor: Theme.colours.green
        title: qsTrId("onboarding.privacy.row4.title")
        text: qsTrId("onboarding.privacy.row4.text")
    }

    SymbolNote {
        width: parent.width
        symbol: "info.circle"
        text: qsTrId("onboarding.privacy.reviewNote")
    }
}
