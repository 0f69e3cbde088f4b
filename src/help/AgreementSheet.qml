import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// The agreement to read again. Parts of it can be copied.
Sheet {
    id: sheet

    required property string agreementText

    objectName: "agreement"
    accessibleName: qsTrId("help.about.h.eula")
    idealWidth: 560
    idealHeight: 480
    padding: 0
    defaultButton: closeButton

    KeyboardScroller {
        view: sheet.contentItem
        scrolled: area
    }

    Item {
        anchors.fill: parent

        ScrollArea {
            id: area

            objectName: "agreementArea"
            anchors.top: parent.top
            anchors.bottom: divider.top
            width: parent.width
            contentHeight: agreement.height + 2 * Metrics.sheetPadding

            SelectableText {
                id: agreement

                objectName: "agreementText"
                x: Metrics.sheetPadding
                y: Metrics.sheetPadding
                width: parent.width - 2 * Metrics.sheetPadding
                text: sheet.agreementText
            }
        }

        HorizontalDivider {
            id: divider

            anchors.bottom: closeButton.top
            anchors.bottomMargin: Metrics.spacingLarge
            width: parent.width
        }

        TextButton {
            id: closeButton

            objectName: "closeAgreement"
            anchors.right: parent.right
            anchors.rightMargin: Metrics.sheetPadding
            anchors.bottom: parent.bottom
            anchors.bottomMargin: Metrics.spacingLarge
            focus: true
            prominent: true
            text: qsTrId("action.close")
            onClicked: sheet.close()
        }
    }
}
