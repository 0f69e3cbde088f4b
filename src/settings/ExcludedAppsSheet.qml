pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tessarine.Controls
import Tessarine.Settings
import Tessarine.Theme

// The applications that the hoard knows, each with a switch that stops its capture.
Sheet {
    id: sheet

    required property ExcludedAppsView view

    readonly property size fixedSize: Qt.size(460, 400)

    signal done

    accessibleName: qsTrId("excludedApps.title")
    windowMargin: Metrics.windowMargin
    minimumWidth: fixedSize.width
    maximumWidth: fixedSize.width
    minimumHeight: fixedSize.height
    maximumHeight: fixedSize.height
    defaultButton: doneButton

    Item {
        anchors.fill: parent

        Column {
            id: header

            width: parent.width
            padding: Metrics.sheetPadding
            bottomPadding: Metrics.spacingLarge
            spacing: Metrics.spacingSmall

            PlainLabel {
                width: parent.width - 2 * parent.padding
                text: qsTrId("excludedApps.title")
                font.pixelSize: Metrics.textNotice
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }

            PlainLabel {
                width: parent.width - 2 * parent.padding
                text: qsTrId("excludedApps.subtitle")
                color: Theme.colours.secondaryLabel
                lineHeight: 1.15
                wrapMode: Text.Wrap
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }

        HorizontalDivider {
            anchors.bottom: list.top
            width: parent.width
        }

        Notice {
            objectName: "empty"
            anchors.centerIn: list
            visible: sheet.view.isEmpty
            textWidth: sheet.fixedSize.width - 2 * Metrics.sheetPadding
            symbol: "tray"
            title: qsTrId("excludedApps.empty.title")
            detail: qsTrId("excludedApps.empty.subtitle")
        }

        ScrollList {
            id: list

            objectName: "apps"

            // Whether there was such a row.
            function goTo(row: int): bool {
                if (row < 0)
                    return false;
                positionViewAtIndex(row, ListView.Contain);
                itemAtIndex(row).forceActiveFocus(Qt.TabFocusReason);
                return true;
            }

            function takeFocusOf(row: int) {
                currentIndex = row;
                positionViewAtIndex(row, ListView.Contain);
            }

            anchors.top: header.bottom
            anchors.topMargin: Metrics.hairline
            anchors.bottom: footer.top
            width: parent.width
            model: sheet.view.apps
            visible: count > 0
            Accessible.role: Accessible.List
            Accessible.name: qsTrId("excludedApps.title")
            Keys.onPressed: event => event.accepted = goTo(sheet.view.rowAfter(event.key, currentIndex))

            delegate: AppExclusionRow {
                id: row

                required property int index

                width: list.width
                focusPolicy: index === Math.max(0, list.currentIndex) || activeFocus ? Qt.TabFocus : Qt.NoFocus
                onToggleOn: sheet.view.toggleOn(index)
                onToggleOff: sheet.view.toggleOff(index)
                onActiveFocusChanged: if (activeFocus) list.takeFocusOf(index)

                HorizontalDivider {
                    anchors.bottom: parent.bottom
                    width: parent.width
                    visible: row.index + 1 < list.count
                }
            }

            T.ScrollBar.vertical: ThinScrollBar {}
        }

        Item {
            id: footer

            anchors.bottom: parent.bottom
            width: parent.width
            height: doneButton.height + 2 * Metrics.spacingLarge

            HorizontalDivider {
                width: parent.width
            }

            PlainLabel {
                objectName: "footerCount"
                anchors.left: parent.left
                anchors.leftMargin: Metrics.sheetPadding
                anchors.right: doneButton.left
                anchors.rightMargin: Metrics.spacingLarge
                anchors.verticalCenter: parent.verticalCenter
                visible: sheet.view.excludedCount > 0
                text: qsTrId("excludedApps.footer.count", sheet.view.excludedCount)
                font.pixelSize: Metrics.textSmall
                color: Theme.colours.secondaryLabel
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }

            TextButton {
                id: doneButton

                objectName: "done"
                anchors.right: parent.right
                anchors.rightMargin: Metrics.sheetPadding
                anchors.verticalCenter: parent.verticalCenter
                focus: true
                prominent: true
                text: qsTrId("action.done")
                onClicked: sheet.done()
            }
        }
    }

    AlertDialog {
        objectName: "confirmExclusion"
        text: sheet.view.confirmationTitle
        message: sheet.view.confirmationMessage
        visible: sheet.view.showConfirmation
        onClosed: sheet.view.showConfirmation = false
        actions: [
            AlertAction {
                text: qsTrId("excludedApps.confirm.excludeOnly")
                onTriggered: sheet.view.excludeOnly()
            },
            AlertAction {
                text: qsTrId("excludedApps.confirm.excludeAndDelete")
                role: AlertAction.Destructive
                onTriggered: sheet.view.excludeAndDelete()
            },
            AlertAction {
                text: qsTrId("action.cancel")
                role: AlertAction.Cancel
                onTriggered: sheet.view.cancel()
            }
        ]
    }
}
