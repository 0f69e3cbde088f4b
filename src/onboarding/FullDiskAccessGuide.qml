import QtQuick
import Tessarine.Controls
import Tessarine.Onboarding
import Tessarine.Theme

// What the access to the system's database of notifications is good for, and the way to it.
Rectangle {
    id: guide

    required property FullDiskAccessView view

    color: Theme.colours.windowBackground
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Pane
    Accessible.name: qsTrId("window.title.fda")
    Keys.onEscapePressed: view.skip()

    GuidePage {
        id: page

        objectName: "texts"
        anchors.top: parent.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: divider.top
        symbol: "internaldrive"
        title: qsTrId("perm.fda.title")
        subtitle: qsTrId("perm.fda.subtitle")

        Heading {
            text: qsTrId("perm.fda.benefits.header")
        }

        SymbolNote {
            width: parent.width
            symbol: "checkmark.shield"
            text: qsTrId("perm.fda.reason1")
            ink: Theme.colours.label
        }

        SymbolNote {
            width: parent.width
            symbol: "checkmark.shield"
            text: qsTrId("perm.fda.reason2")
            ink: Theme.colours.label
        }

        Heading {
            text: qsTrId("perm.fda.without.header")
        }

        SymbolNote {
            width: parent.width
            symbol: "checkmark"
            text: qsTrId("perm.fda.without.row1")
            ink: Theme.colours.label
        }

        SymbolNote {
            width: parent.width
            symbol: "xmark"
            text: qsTrId("perm.fda.without.row2")
            ink: Theme.colours.label
        }

        Heading {
            text: qsTrId("perm.fda.howto.header")
        }

        FDAStep {
            width: parent.width
            number: 1
            text: qsTrId("perm.fda.step1")
        }

        FDAStep {
            width: parent.width
            number: 2
            text: qsTrId("perm.fda.step2")
        }

        FDAStep {
            width: parent.width
            number: 3
            text: qsTrId("perm.fda.step3")
        }

        FDAStep {
            width: parent.width
            number: 4
            text: qsTrId("perm.fda.step4")
        }

        FDAStep {
            width: parent.width
            number: 5
            text: qsTrId("perm.fda.step5")
        }

        InstructionsPicture {
            objectName: "fda_instructions"
            visible: guide.view.showsPicture
            width: Math.min(520, parent.width)
        }

        TextButton {
            objectName: "openSettings"
            anchors.left: parent.left
            visible: guide.view.offersSettings
            symbol: "gear"
            text: qsTrId("perm.fda.openSettings")
            onClicked: guide.view.openSettings()
        }

        SymbolNote {
            width: parent.width
            symbol: "arrow.clockwise.circle"
            text: qsTrId("perm.fda.restartHint")
        }

        PlainLabel {
            width: parent.width
            text: qsTrId("perm.fda.laterHint")
            color: Theme.colours.secondaryLabel
            font.pixelSize: Metrics.textSmall
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }

    SymbolNote {
        id: warning

        objectName: "notDetected"
        anchors.bottom: footer.top
        anchors.bottomMargin: visible ? Metrics.spacingMedium : 0
        x: 2 * Metrics.sheetPadding
        width: parent.width - 2 * x
        height: visible ? implicitHeight : 0
        visible: guide.view.showNotActiveWarning
        symbol: "exclamationmark.triangle.fill"
        text: qsTrId("perm.fda.notDetected")
        ink: Theme.colours.orange
    }

    HorizontalDivider {
        id: divider

        anchors.bottom: warning.top
        anchors.bottomMargin: warning.visible ? Metrics.spacingMedium : 0
        width: parent.width
    }

    Item {
        id: footer

        anchors.bottom: parent.bottom
        width: parent.width
        height: Metrics.controlHeight + 2 * Metrics.sheetPadding

        TextButton {
            objectName: "skip"
            anchors.left: parent.left
            anchors.leftMargin: Metrics.sheetPadding
            anchors.verticalCenter: parent.verticalCenter
            text: qsTrId("perm.fda.skip")
            onClicked: guide.view.skip()
        }

        TextButton {
            objectName: "enabled"
            anchors.right: parent.right
            anchors.rightMargin: Metrics.sheetPadding
            anchors.verticalCenter: parent.verticalCenter
            focus: true
            prominent: true
            text: qsTrId("perm.fda.enabled")
            onClicked: guide.view.claimEnabled()
        }
    }

    component Heading: PlainLabel {
        width: parent.width
        font.pixelSize: Metrics.textHeadline
        font.weight: Font.DemiBold
        wrapMode: Text.Wrap
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
}
