import QtQuick
import Tessarine.Controls
import Tessarine.Onboarding
import Tessarine.Theme

// The agreement, and the box that says that it is accepted. The box waits until the end was seen.
Item {
    id: page

    required property OnboardingView view

    readonly property int margin: Math.max(2 * Metrics.sheetPadding, Math.round((width - Metrics.readingWidth) / 2))

    Column {
        id: head

        x: page.margin
        y: Metrics.sheetPadding
        width: page.width - 2 * page.margin
        spacing: Metrics.spacingSmall

        PlainLabel {
            objectName: "title"
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: qsTrId("onboarding.eula.title")
            font.pixelSize: Metrics.textLargeTitle
            font.weight: Font.DemiBold
            wrapMode: Text.Wrap
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        PlainLabel {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: qsTrId("onboarding.eula.subtitle")
            color: Theme.colours.secondaryLabel
            font.pixelSize: Metrics.textHeadline
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }

    AgreementText {
        anchors.top: head.bottom
        anchors.topMargin: Metrics.spacingWide
        anchors.bottom: foot.top
        anchors.bottomMargin: Metrics.spacingLarge
        x: page.margin
        width: page.width - 2 * page.margin
        agreement: page.view.agreementText
        onReachedEnd: page.view.noteEndOfAgreement()
    }

    Column {
        id: foot

        anchors.bottom: parent.bottom
        x: page.margin
        width: page.width - 2 * page.margin
        spacing: Metrics.spacingSmall

        CheckBox {
            objectName: "agree"
            anchors.left: parent.left
            width: Math.min(implicitWidth, parent.width)
            text: qsTrId("onboarding.eula.agree")
            textWeight: Font.Medium
            enabled: page.view.eulaScrolledToBottom
            checked: page.view.eulaAgreed
            onActivated: wanted => page.view.eulaAgreed = wanted
        }

        // Its line is there from the start, so that the box stays where it is.
        PlainLabel {
            objectName: "scrollHint"
            width: parent.width
            text: qsTrId("onboarding.eula.scrollHint")
            color: Theme.colours.secondaryLabel
            font.pixelSize: Metrics.textSmall
            opacity: page.view.eulaScrolledToBottom ? 0 : 1
            Accessible.role: Accessible.StaticText
            Accessible.name: text
            Accessible.ignored: page.view.eulaScrolledToBottom
        }
    }
}
