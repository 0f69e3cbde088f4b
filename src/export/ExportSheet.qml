pragma ComponentBehavior: Bound

import QtQuick
import Tessarine.Export
import Tessarine.Controls
import Tessarine.Theme

// Where the user chooses how to export. What doesn't fit into a low window scrolls; heading and
// buttons stay.
Sheet {
    id: sheet

    required property ExportOptionsSheet options

    readonly property int fixedWidth: 460
    readonly property int margin: Metrics.sheetPadding
    readonly property int innerWidth: fixedWidth - 2 * margin

    accessibleName: qsTrId("export.title")
    minimumWidth: fixedWidth
    maximumWidth: fixedWidth
    closesOnEscape: false
    defaultButton: exportButton
    onEscaped: options.cancel()

    Item {
        implicitWidth: sheet.fixedWidth
        implicitHeight: header.height + body.contentHeight + footer.height
        anchors.fill: parent

        Item {
            id: header

            anchors.left: parent.left
            anchors.right: parent.right
            height: 72

            SymbolImage {
                id: icon

                anchors.left: parent.left
                anchors.leftMargin: sheet.margin
                anchors.verticalCenter: parent.verticalCenter
                symbol: "square.and.arrow.up.circle.fill"
                size: Metrics.noticeSymbolSize
                tint: Theme.colours.accent
            }

            Column {
                anchors.left: icon.right
                anchors.leftMargin: Metrics.spacingLarge
                anchors.right: closeButton.left
                anchors.verticalCenter: parent.verticalCenter
                spacing: Metrics.spacingTiny

                PlainLabel {
                    width: parent.width
                    text: qsTrId("export.title")
                    font.pixelSize: Metrics.textNotice
                    font.weight: Font.DemiBold
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }

                PlainLabel {
                    objectName: "count"
                    width: parent.width
                    text: qsTrId("export.count", sheet.options.count)
                    color: Theme.colours.secondaryLabel
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
            }

            IconButton {
                id: closeButton

                objectName: "close"
                anchors.right: parent.right
                anchors.rightMargin: sheet.margin - Metrics.spacingSmall
                anchors.verticalCenter: parent.verticalCenter
                symbol: "xmark.circle.fill"
                accessibleName: qsTrId("export.close")
                size: 18
                tint: Theme.colours.tertiaryLabel
                onClicked: sheet.options.cancel()
            }

            HorizontalDivider {
                anchors.bottom: parent.bottom
                width: parent.width
            }
        }

        ScrollArea {
            id: body

            objectName: "body"
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: header.bottom
            anchors.bottom: footer.top
            contentHeight: sections.height

            // As far as that goes, so that what the keyboard comes to is in sight.
            function scrollTo(y: real) {
                contentY = Math.max(0, Math.min(y, contentHeight - height));
            }

            Column {
                id: sections

                width: parent.width

                Column {
                    x: sheet.margin
                    width: sheet.innerWidth
                    topPadding: Metrics.spacingWide
                    bottomPadding: Metrics.spacingWide
                    spacing: Metrics.spacingLarge

                    SectionHeading {
                        text: qsTrId("export.format.header")
                    }

                    Row {
                        id: cards

                        width: parent.width
                        spacing: Metrics.spacingLarge

                        Repeater {
                            model: sheet.options.cards

                            FormatCard {
                                required property exportFormatCard modelData
                                required property int index

                                objectName: "card" + index
                                width: (cards.width - 2 * cards.spacing) / 3
                                title: modelData.name
                                symbol: modelData.symbol
                                isSelected: index === sheet.options.selectedCard
                                onTap: sheet.options.selectedCard = index
                                onActiveFocusChanged: body.scrollTo(0)
                            }
                        }
                    }

                    ExportMessage {
                        objectName: "description"
                        width: parent.width
                        symbol: "info.circle"
                        text: qsTrId(sheet.options.card.descriptionKey)
                    }
                }

                Column {
                    objectName: "privacy"
                    width: parent.width
                    visible: sheet.options.offersPrivateContent

                    HorizontalDivider {
                        width: parent.width
                    }

                    Column {
                        x: sheet.margin
                        width: sheet.innerWidth
                        topPadding: Metrics.spacingWide
                        bottomPadding: Metrics.spacingWide
                        spacing: Metrics.spacingLarge

                        SectionHeading {
                            text: qsTrId("export.privacy.header")
                        }

                        Item {
                            width: parent.width
                            height: labels.height

                            Column {
                                id: labels

                                anchors.left: parent.left
                                anchors.right: includeSwitch.left
                                anchors.rightMargin: Metrics.spacingLarge
                                spacing: Metrics.spacingTiny

                                PlainLabel {
                                    width: parent.width
                                    text: qsTrId("export.privacy.includeHidden")
                                    wrapMode: Text.Wrap
                                }

                                PlainLabel {
                                    width: parent.width
                                    text: qsTrId("export.privacy.includeHidden.caption")
                                    font.pixelSize: Metrics.textSmall
                                    color: Theme.colours.secondaryLabel
                                    wrapMode: Text.Wrap
                                }
                            }

                            ToggleSwitch {
                                id: includeSwitch

                                objectName: "includeSwitch"
                                anchors.right: parent.right
                                anchors.verticalCenter: parent.verticalCenter
                                accessibleName: qsTrId("export.privacy.includeHidden")
                                checked: sheet.options.includePrivateContent
                                onActivated: wanted => sheet.options.includePrivateContent = wanted
                                onActiveFocusChanged: body.scrollTo(body.contentHeight)
                            }
                        }

                        ExportMessage {
                            objectName: "includeWarning"
                            width: parent.width
                            visible: sheet.options.includePrivateContent
                            symbol: "exclamationmark.triangle.fill"
                            text: qsTrId("export.privacy.includeHidden.warning")
                            symbolTint: Theme.colours.orange
                            textColour: Theme.colours.orange
                        }
                    }
                }

                HorizontalDivider {
                    width: parent.width
                }

                Item {
                    width: parent.width
                    height: warningBox.height + 2 * Metrics.spacingWide

                    Rectangle {
                        id: warningBox

                        x: sheet.margin
                        y: Metrics.spacingWide
                        width: sheet.innerWidth
                        height: plaintextWarning.height + 2 * Metrics.spacingLarge
                        radius: Metrics.cornerRadius
                        color: Qt.alpha(Theme.colours.orange, 0.07)

                        ExportMessage {
                            id: plaintextWarning

                            objectName: "plaintextWarning"
                            x: Metrics.spacingLarge
                            y: Metrics.spacingLarge
                            width: parent.width - 2 * Metrics.spacingLarge
                            symbol: "exclamationmark.lock.fill"
                            text: qsTrId("export.plaintextWarning")
                            symbolTint: Theme.colours.orange
                        }
                    }
                }
            }
        }

        Column {
            id: footer

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom

            HorizontalDivider {
                width: parent.width
            }

            Item {
                width: parent.width
                height: Metrics.spacingWide
            }

            ExportMessage {
                objectName: "error"
                x: sheet.margin
                width: sheet.innerWidth
                height: visible ? implicitHeight + Metrics.spacingLarge : 0
                visible: sheet.options.exportError
                symbol: "xmark.circle.fill"
                text: sheet.options.exportError
                symbolTint: Theme.colours.red
                textColour: Theme.colours.red
            }

            // Its line is there from the start, so that the buttons stay where they are.
            Item {
                width: parent.width
                height: sheet.options.exportError ? 0 : done.implicitHeight + Metrics.spacingLarge

                ExportMessage {
                    id: done

                    objectName: "done"
                    x: sheet.margin
                    width: sheet.innerWidth
                    visible: sheet.options.exportDone
                    symbol: "checkmark.circle.fill"
                    text: qsTrId("export.done")
                    symbolTint: Theme.colours.green
                    textColour: Theme.colours.green
                }
            }

            Row {
                anchors.right: parent.right
                anchors.rightMargin: sheet.margin
                bottomPadding: Metrics.spacingWide
                spacing: Metrics.spacingMedium

                TextButton {
                    objectName: "cancel"
                    text: qsTrId("action.cancel")
                    onClicked: sheet.options.cancel()
                }

                TextButton {
                    id: exportButton

                    objectName: "export"
                    focus: true
                    prominent: true
                    enabled: sheet.options.canExport
                    opacity: enabled || sheet.options.isExporting ? 1 : Metrics.disabledOpacity
                    symbol: sheet.options.isExporting ? "" : "square.and.arrow.up"
                    text: sheet.options.isExporting ? qsTrId("export.exporting")
                        : qsTrId("export.exportAs").arg(sheet.options.card.name)
                    leftPadding: horizontalPadding + (spinner.visible ? spinner.width + Metrics.spacingSmall : 0)
                    onClicked: sheet.options.requestExport()

                    ProgressSpinner {
                        id: spinner

                        objectName: "spinner"
                        x: exportButton.horizontalPadding
                        anchors.verticalCenter: parent.verticalCenter
                        accessibleName: qsTrId("export.exporting")
                        size: Metrics.symbolSize
                        tint: exportButton.ink
                        visible: sheet.options.isExporting
                    }
                }
            }
        }
    }

    AlertDialog {
        objectName: "confirm"
        text: qsTrId("export.privacy.confirmTitle")
        message: qsTrId("export.privacy.confirmMessage")
        visible: sheet.options.showPrivacyWarning
        actions: [
            AlertAction {
                text: qsTrId("export.privacy.keepHidden")
                role: AlertAction.Cancel
                onTriggered: sheet.options.keepHidden()
            },
            AlertAction {
                text: qsTrId("export.privacy.includeReal")
                role: AlertAction.Destructive
                onTriggered: sheet.options.confirmPrivateContent()
            }
        ]
    }

    component SectionHeading: PlainLabel {
        width: parent.width
        font.pixelSize: Metrics.textSmall
        font.weight: Font.DemiBold
        color: Theme.colours.secondaryLabel
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
}
