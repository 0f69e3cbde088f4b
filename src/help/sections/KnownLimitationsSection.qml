import QtQuick
import Tessarine.Help

// What the program can't do, and ways around it.
HelpPage {
    HelpTitle { text: qsTrId("help.limitations.title") }

    HelpParagraph { text: qsTrId("help.limitations.p.disclaimer") }

    HelpParagraph { text: qsTrId("help.limitations.p.eula") }

    HelpHeading { text: qsTrId("help.limitations.h.capture") }

    LimitationRow {
        severity: LimitationRow.Important
        title: qsTrId("help.lim.notRunning.title")
        description: qsTrId("help.lim.notRunning.desc")
        workaround: qsTrId("help.lim.notRunning.workaround")
    }

    LimitationRow {
        severity: LimitationRow.Minor
        title: qsTrId("help.lim.silent.title")
        description: qsTrId("help.lim.silent.desc")
        workaround: qsTrId("help.lim.silent.workaround")
    }

    LimitationRow {
        severity: LimitationRow.Minor
        title: qsTrId("help.lim.30entries.title")
        description: qsTrId("help.lim.30entries.desc")
        workaround: qsTrId("help.lim.30entries.workaround")
    }

    LimitationRow {
        severity: LimitationRow.Info
        title: qsTrId("help.lim.timestamps.title")
        description: qsTrId("help.lim.timestamps.desc")
        workaround: qsTrId("help.lim.timestamps.workaround")
    }

    LimitationRow {
        severity: LimitationRow.Info
        title: qsTrId("help.lim.calendar.title")
        description: qsTrId("help.lim.calendar.desc")
        workaround: qsTrId("help.lim.calendar.workaround")
    }

    LimitationRow {
        severity: LimitationRow.Minor
        title: qsTrId("help.lim.focus.title")
        description: qsTrId("help.lim.focus.desc")
        workaround: qsTrId("help.lim.focus.workaround")
    }

    HelpHeading { text: qsTrId("help.limitations.h.iphone") }

    LimitationRow {
        severity: LimitationRow.Important
        title: qsTrId("help.lim.nativeMacApp.title")
        description: qsTrId("help.lim.nativeMacApp.desc")
        workaround: qsTrId("help.lim.nativeMacApp.workaround")
    }

    LimitationRow {
        severity: LimitationRow.Minor
        title: qsTrId("help.lim.mirroringSetup.title")
        description: qsTrId("help.lim.mirroringSetup.desc")
        workaround: qsTrId("help.lim.mirroringSetup.workaround")
    }

    LimitationRow {
        severity: LimitationRow.Minor
        title: qsTrId("help.lim.iphoneOff.title")
        description: qsTrId("help.lim.iphoneOff.desc")
        workaround: qsTrId("help.lim.iphoneOff.workaround")
    }

    LimitationRow {
        severity: LimitationRow.Minor
        title: qsTrId("help.lim.network.title")
        description: qsTrId("help.lim.network.desc")
        workaround: qsTrId("help.lim.network.workaround")
    }

    LimitationRow {
        severity: LimitationRow.Info
        title: qsTrId("help.lim.sameAppleId.title")
        description: qsTrId("help.lim.sameAppleId.desc")
        workaround: qsTrId("help.lim.sameAppleId.workaround")
    }

    HelpHeading { text: qsTrId("help.limitations.h.privacy") }

    LimitationRow {
        severity: LimitationRow.Info
        title: qsTrId("help.lim.privacyGlobal.title")
        description: qsTrId("help.lim.privacyGlobal.desc")
        workaround: qsTrId("help.lim.privacyGlobal.workaround")
    }

    LimitationRow {
        severity: LimitationRow.Important
        title: qsTrId("help.lim.plaintext.title")
        description: qsTrId("help.lim.plaintext.desc")
        workaround: qsTrId("help.lim.plaintext.workaround")
    }

    LimitationRow {
        severity: LimitationRow.Minor
        title: qsTrId("help.lim.otpForever.title")
        description: qsTrId("help.lim.otpForever.desc")
        workaround: qsTrId("help.lim.otpForever.workaround")
    }

    LimitationRow {
        severity: LimitationRow.Important
        title: qsTrId("help.lim.exportPlain.title")
        description: qsTrId("help.lim.exportPlain.desc")
        workaround: qsTrId("help.lim.exportPlain.workaround")
    }

    HelpHeading { text: qsTrId("help.limitations.h.hoard") }

    LimitationRow {
        severity: LimitationRow.Important
        title: qsTrId("help.lim.walBackup.title")
        description: qsTrId("help.lim.walBackup.desc")
        workaround: qsTrId("help.lim.walBackup.workaround")
    }

    LimitationRow {
        severity: LimitationRow.Info
        title: qsTrId("help.lim.python.title")
        description: qsTrId("help.lim.python.desc")
        workaround: qsTrId("help.lim.python.workaround")
    }

    LimitationRow {
        severity: LimitationRow.Minor
        title: qsTrId("help.lim.uiLimit.title")
        description: qsTrId("help.lim.uiLimit.desc")
        workaround: qsTrId("help.lim.uiLimit.workaround")
    }

    HelpHeading { text: qsTrId("help.limitations.h.system") }

    LimitationRow {
        severity: LimitationRow.Minor
        title: qsTrId("help.lim.usernoted.title")
        description: qsTrId("help.lim.usernoted.desc")
        workaround: qsTrId("help.lim.usernoted.workaround")
    }

    LimitationRow {
        severity: LimitationRow.Info
        title: qsTrId("help.lim.appStore.title")
        description: qsTrId("help.lim.appStore.desc")
        workaround: qsTrId("help.lim.appStore.workaround")
    }

    LimitationRow {
        severity: LimitationRow.Minor
        title: qsTrId("help.lim.tahoe.title")
        description: qsTrId("help.lim.tahoe.desc")
        workaround: qsTrId("help.lim.tahoe.workaround")
    }
}
