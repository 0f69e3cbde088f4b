import QtQuick
import Tessarine.Controls
import Tessarine.Onboarding
import Tessarine.Theme

// How the program gets to see notifications, and whether it may.
GuidePage {
    id: page

    required property OnboardingView view

    symbol: "accessibility"
    title: qsTrId("onboarding.ax.title")
    subtitle: qsTrId("onboarding.ax.subtitle")

    Rectangle {
        width: parent.width
        height: status.height + 2 * Metrics.spacingLarge
        radius: Metrics.cornerRadius
        color: Theme.colours.controlBackground
        Accessible.role: Accessible.StaticText
        Accessible.name: status.text

        SymbolImage {
            x: mirrored ? parent.width - width - Metrics.spacingLarge : Metrics.spacingLarge
            anchors.verticalCenter: parent.verticalCenter
            symbol: page.view.axGranted ? "checkmark.circle.fill" : "exclamationmark.circle.fill"
            size: Metrics.badgeSize
            tint: page.view.axGranted ? Theme.colours.green : Theme.colours.orange

            readonly property bool mirrored: page.LayoutMirroring.enabled
        }

        PlainLabel {
            id: status

            objectName: "status"
            anchors.left: parent.left
            anchors.leftMargin: 2 * Metrics.spacingLarge + Metrics.badgeSize
            anchors.right: parent.right
            anchors.rightMargin: Metrics.spacingLarge
            anchors.verticalCenter: parent.verticalCenter
            text: page.view.axGranted ? qsTrId("onboarding.ax.granted") : qsTrId("onboarding.ax.notGranted")
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }

    TitledRow {
        width: parent.width
        icon: "eye"
        iconColor: Theme.colours.accent
        title: qsTrId("onboarding.ax.whatItDoes.title")
        text: qsTrId("onboarding.ax.whatItDoes.text")
    }

    TitledRow {
        width: parent.width
        icon: "hand.raised.fill"
        iconColor: Theme.colours.orange
        title: qsTrId("onboarding.ax.whatItDoesNot.title")
        text: qsTrId("onboarding.ax.whatItDoesNot.text")
    }

    Column {
        objectName: "howTo"
        width: parent.width
        visible: !page.view.axGranted
        spacing: Metrics.spacingLarge

        PlainLabel {
            width: parent.width
            text: qsTrId("onboarding.ax.howToEnable")
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        TextButton {
            objectName: "openSettings"
            anchors.left: parent.left
            visible: page.view.offersSettings
            symbol: "gear"
            text: qsTrId("onboarding.ax.openSettings")
            onClicked: page.view.openSettings()
        }

        PlainLabel {
            width: parent.width
            text: qsTrId("onboarding.ax.openSettings.hint")
            color: Theme.colours.secondaryLabel
            font.pixelSize: Metrics.textSmall
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        PlainLabel {
            width: parent.width
            text: qsTrId("onboarding.ax.noPermissionWarning")
            color: Theme.colours.orange
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
