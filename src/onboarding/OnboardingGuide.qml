import QtQuick
import Tessarine.Controls
import Tessarine.Onboarding
import Tessarine.Theme

// The guide: its pages, one at a time, and below them where one is and the way on.
Rectangle {
    id: guide

    required property OnboardingView view

    color: Theme.colours.windowBackground
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Pane
    Accessible.name: qsTrId("onboarding.window.title")

    // A page that comes hands the keyboard to the button that leads on.
    Connections {
        target: guide.view

        function onChanged() {
            if (pages.page !== guide.view.page)
                pages.page = guide.view.page;
        }
    }

    Item {
        id: pages

        property int page: guide.view.page

        anchors.top: parent.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: divider.top
        anchors.bottomMargin: Metrics.spacingWide
        onPageChanged: {
            fade.restart();
            forwardButton.forceActiveFocus();
        }

        NumberAnimation {
            id: fade

            target: pages
            property: "opacity"
            from: Metrics.pace > 0 ? 0 : 1
            to: 1
            duration: Metrics.gentle
        }

        WelcomePage {
            objectName: "welcomePage"
            anchors.fill: parent
            visible: pages.page === OnboardingView.Page.welcome
        }

        AgreementPage {
            objectName: "agreementPage"
            anchors.fill: parent
            view: guide.view
            visible: pages.page === OnboardingView.Page.agreement
        }

        AccessibilityPage {
            objectName: "accessibilityPage"
            anchors.fill: parent
            view: guide.view
            visible: pages.page === OnboardingView.Page.accessibility
        }

        PrivacyPage {
            objectName: "privacyPage"
            anchors.fill: parent
            visible: pages.page === OnboardingView.Page.privacy
        }
    }

    HorizontalDivider {
        id: divider

        anchors.bottom: footer.top
        width: parent.width
    }

    Item {
        id: footer

        anchors.bottom: parent.bottom
        width: parent.width
        height: Metrics.controlHeight + 2 * Metrics.sheetPadding

        TextButton {
            objectName: "back"
            anchors.left: parent.left
            anchors.leftMargin: Metrics.sheetPadding
            anchors.verticalCenter: parent.verticalCenter
            visible: guide.view.offersBack
            text: qsTrId("onboarding.btn.back")
            onClicked: guide.view.back()
        }

        PageDots {
            objectName: "dots"
            anchors.centerIn: parent
            count: guide.view.stepCount
            current: guide.view.currentStep
        }

        TextButton {
            id: forwardButton

            objectName: "forward"
            anchors.right: parent.right
            anchors.rightMargin: Metrics.sheetPadding
            anchors.verticalCenter: parent.verticalCenter
            focus: true
            prominent: true
            enabled: guide.view.canGoForward
            text: guide.view.forwardText
            onClicked: guide.view.forward()
        }
    }

    Keys.onReturnPressed: forwardButton.press()
    Keys.onEnterPressed: forwardButton.press()
}
