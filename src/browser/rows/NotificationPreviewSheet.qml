import QtQuick
import Tessarine.Apps
import Tessarine.Browser
import Tessarine.Controls
import Tessarine.Theme

// A notification in full, whatever the list hides of it. Its text can be selected.
Sheet {
    id: sheet

    required property RowActions actions

    // What is shown stays while the sheet fades.
    property previewContent shown

    readonly property int headerIcon: 44
    readonly property int headerRadius: 10
    readonly property int closeSymbol: 20

    objectName: "preview"
    accessibleName: qsTrId("preview.title")
    minimumWidth: 420
    idealWidth: 480
    maximumWidth: 600
    minimumHeight: 200
    idealHeight: 280
    padding: 0
    visible: actions.showPreview
    onAboutToShow: {
        shown = actions.preview;
        icon.rebuild();
    }
    onClosed: actions.showPreview = false

    KeyboardScroller {
        view: sheet.contentItem
        scrolled: area
    }

    Item {
        anchors.fill: parent

        Item {
            id: header

            width: parent.width
            height: sheet.headerIcon + 2 * Metrics.sheetPadding

            AppIconTile {
                id: icon

                anchors.left: parent.left
                anchors.leftMargin: Metrics.sheetPadding
                y: Metrics.sheetPadding
                width: sheet.headerIcon
                height: sheet.headerIcon
                cornerRadius: sheet.headerRadius
                bundleId: sheet.shown.bundleId
                appName: sheet.shown.appName
            }

            Column {
                anchors.left: icon.right
                anchors.leftMargin: Metrics.spacingLarge
                anchors.right: closeButton.left
                anchors.rightMargin: Metrics.spacingMedium
                anchors.verticalCenter: icon.verticalCenter
                spacing: Metrics.spacingTiny

                PlainLabel {
                    width: parent.width
                    text: sheet.shown.appName
                    font.pixelSize: Metrics.textNotice
                    font.weight: Font.DemiBold
                    maximumLineCount: 1
                    wrapMode: Text.WrapAnywhere
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }

                PlainLabel {
                    width: parent.width
                    text: sheet.shown.time
                    font.pixelSize: Metrics.textSmall
                    color: Theme.colours.secondaryLabel
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
            }

            IconButton {
                id: closeButton

                objectName: "closePreview"
                anchors.right: parent.right
                anchors.rightMargin: Metrics.sheetPadding - Metrics.spacingSmall
                anchors.verticalCenter: icon.verticalCenter
                symbol: "xmark.circle.fill"
                size: sheet.closeSymbol
                accessibleName: qsTrId("action.close")
                onClicked: sheet.close()
            }
        }

        HorizontalDivider {
            id: upperDivider

            anchors.top: header.bottom
            width: parent.width
        }

        ScrollArea {
            id: area

            objectName: "previewTexts"
            anchors.top: upperDivider.bottom
            anchors.bottom: lowerDivider.top
            width: parent.width
            contentHeight: texts.height

            Column {
                id: texts

                x: Metrics.sheetPadding
                width: parent.width - 2 * Metrics.sheetPadding
                topPadding: Metrics.spacingLarge
                bottomPadding: Metrics.spacingLarge
                spacing: Metrics.spacingLarge

                SelectableText {
                    objectName: "previewTitle"
                    width: parent.width
                    text: sheet.shown.title
                    font.pixelSize: Metrics.textNotice
                    font.weight: Font.DemiBold
                    visible: text
                }

                SelectableText {
                    objectName: "previewBody"
                    width: parent.width
                    text: sheet.shown.body
                    font.pixelSize: Metrics.textHeadline
                    visible: text
                }

                PlainLabel {
                    width: parent.width
                    text: qsTrId("preview.empty")
                    color: Theme.colours.secondaryLabel
                    wrapMode: Text.Wrap
                    visible: !sheet.shown.title && !sheet.shown.body
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
            }
        }

        HorizontalDivider {
            id: lowerDivider

            anchors.bottom: buttons.top
            width: parent.width
        }

        Item {
            id: buttons

            anchors.bottom: parent.bottom
            width: parent.width
            height: Metrics.controlHeight + 2 * Metrics.spacingLarge

            TextButton {
                objectName: "copyPreview"
                anchors.left: parent.left
                anchors.leftMargin: Metrics.sheetPadding
                anchors.verticalCenter: parent.verticalCenter
                symbol: "doc.on.doc"
                text: qsTrId("preview.copy")
                onClicked: sheet.actions.copyPreview()
            }

            TextButton {
                objectName: "openPreviewed"
                anchors.right: parent.right
                anchors.rightMargin: Metrics.sheetPadding
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, parent.width / 2)
                symbol: "arrow.up.forward.app"
                text: sheet.shown.openText
                enabled: sheet.shown.bundleId !== ""
                onClicked: sheet.actions.openPreviewed()
            }
        }
    }
}
