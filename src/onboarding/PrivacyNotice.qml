import QtQuick
import Tessarine.Controls
import Tessarine.Onboarding
import Tessarine.Theme

// What is stored, where, and who can read it.
Rectangle {
    id: notice

    required property PrivacyNoticeView view

    color: Theme.colours.windowBackground
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Dialog
    Accessible.name: qsTrId("window.title.privacy")
    Keys.onEscapePressed: view.continueOn()

    GuidePage {
        objectName: "texts"
        anchors.top: parent.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: divider.top
        symbol: "lock.shield.fill"
        title: qsTrId("privacy.notice.title")
        subtitle: qsTrId("privacy.notice.subtitle")

        PrivacyBlock {
            width: parent.width
            icon: "internaldrive.fill"
            iconColor: Theme.colours.accent
            title: qsTrId("privacy.block1.title")
            text: qsTrId("privacy.block1.text")
        }

        PrivacyBlock {
            width: parent.width
            icon: "envelope.open.fill"
            iconColor: Theme.colours.orange
            title: qsTrId("privacy.block2.title")
            text: qsTrId("privacy.block2.text")
        }

        PrivacyBlock {
            width: parent.width
            icon: "lock.open.fill"
            iconColor: Theme.colours.red
            title: qsTrId("privacy.block3.title")
            text: qsTrId("privacy.block3.text")
        }

        PrivacyBlock {
            width: parent.width
            icon: "arrow.up.doc.fill"
            iconColor: Theme.colours.secondaryLabel
            title: qsTrId("privacy.block4.title")
            text: qsTrId("privacy.block4.text")
        }

        PrivacyBlock {
            width: parent.width
            icon: "person.fill.checkmark"
            iconColor: Theme.colours.green
            title: qsTrId("privacy.block5.title")
            text: qsTrId("privacy.block5.text")
        }

        SymbolNote {
            width: parent.width
            symbol: "info.circle"
            text: qsTrId("privacy.notice.reviewNote")
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
            objectName: "continue"
            anchors.right: parent.right
            anchors.rightMargin: Metrics.sheetPadding
            anchors.verticalCenter: parent.verticalCenter
            focus: true
            prominent: true
            text: notice.view.isModal ? qsTrId("privacy.notice.btn.understood") : qsTrId("action.close")
            onClicked: notice.view.continueOn()
        }
    }
}
