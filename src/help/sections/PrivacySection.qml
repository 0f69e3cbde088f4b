import QtQuick
import Tessarine.Controls
import Tessarine.Help
import Tessarine.Theme

// What is hidden, what is stored, and what protects it.
HelpPage {
    id: page

    HelpTitle { text: qsTrId("help.privacy.title") }

    HelpHeading { text: qsTrId("help.privacy.h.displayFilter") }

    HelpParagraph { text: qsTrId("help.privacy.p.displayFilter1") }

    HelpParagraph { text: qsTrId("help.privacy.p.displayFilter2") }

    HelpNumberedStep {
        n: 1
        text: qsTrId("help.privacy.step.1")
    }

    HelpNumberedStep {
        n: 2
        text: qsTrId("help.privacy.step.2")
    }

    HelpNumberedStep {
        n: 3
        text: qsTrId("help.privacy.step.3")
    }

    HelpNumberedStep {
        n: 4
        text: qsTrId("help.privacy.step.4")
    }

    HelpHeading { text: qsTrId("help.privacy.h.exports") }

    HelpParagraph { text: qsTrId("help.privacy.p.exports") }

    HelpParagraph { text: qsTrId("help.privacy.p.exports2") }

    HelpHeading { text: qsTrId("help.privacy.h.doesNotDo") }

    LimitationRow {
        severity: LimitationRow.Important
        title: qsTrId("help.privacy.lim.noEncrypt.title")
        description: qsTrId("help.privacy.lim.noEncrypt.desc")
        workaround: qsTrId("help.privacy.lim.noEncrypt.workaround")
    }

    LimitationRow {
        severity: LimitationRow.Minor
        title: qsTrId("help.privacy.lim.noPerApp.title")
        description: qsTrId("help.privacy.lim.noPerApp.desc")
        workaround: qsTrId("help.privacy.lim.noPerApp.workaround")
    }

    HelpHeading { text: qsTrId("help.privacy.h.otp") }

    HelpParagraph { text: qsTrId("help.privacy.p.otp1") }

    HelpParagraph { text: qsTrId("help.privacy.p.otp2") }

    HelpParagraph { text: qsTrId("help.privacy.p.otp3") }

    HelpHeading { text: qsTrId("help.privacy.h.protecting") }

    HelpRow {
        icon: "lock.fill"
        color: Theme.colours.accent
        title: qsTrId("help.privacy.protect.filevault.title")
        description: qsTrId("help.privacy.protect.filevault.desc")
    }

    HelpRow {
        icon: "xmark.circle.fill"
        color: Theme.colours.red
        title: qsTrId("help.privacy.protect.noCloud.title")
        description: qsTrId("help.privacy.protect.noCloud.desc")
    }

    HelpRow {
        icon: "exclamationmark.lock.fill"
        color: Theme.colours.orange
        title: qsTrId("help.privacy.protect.exports.title")
        description: qsTrId("help.privacy.protect.exports.desc")
    }

    HelpRow {
        icon: "clock.arrow.circlepath"
        color: Theme.colours.green
        title: qsTrId("help.privacy.protect.retention.title")
        description: qsTrId("help.privacy.protect.retention.desc")
    }

    HelpHeading { text: qsTrId("help.privacy.h.notice") }

    HelpParagraph { text: qsTrId("help.privacy.p.notice") }

    TextButton {
        objectName: "reviewNotice"
        anchors.left: parent.left
        text: qsTrId("help.privacy.btn.reviewNotice")
        enabled: page.view.canShowPrivacyNotice
        onClicked: page.view.showPrivacyNotice()
    }
}
