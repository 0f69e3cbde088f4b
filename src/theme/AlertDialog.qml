pragma ComponentBehavior: Bound

import QtQuick
import Tessarine.Theme

// A question, or a message, with its answers. Return gives the default answer, Escape the one that
// cancels. What destroys is never the default, unless there is no other answer. The first answer stands
// at the far end.
Sheet {
    id: dialog

    required property string text
    property string message
    property list<AlertAction> actions

    readonly property int defaultIndex: Array.from(actions).length === 1 ? 0 : firstOf(AlertAction.Default)
    readonly property int cancelIndex: firstOf(AlertAction.Cancel)
    readonly property int firstFocus: defaultIndex >= 0 ? defaultIndex : cancelIndex

    signal answered(int index)

    function firstOf(role: int): int {
        return Array.from(actions).findIndex(action => action.role === role);
    }

    function answer(index: int) {
        dialog.close();
        dialog.answered(index);
        dialog.actions[index].triggered();
    }

    accessibleName: text
    minimumWidth: 260
    maximumWidth: 380
    padding: Metrics.sheetPadding
    closesOnEscape: false
    defaultButton: buttons.itemAt(defaultIndex) as TextButton
    onOpened: buttons.itemAt(Math.max(0, firstFocus))?.forceActiveFocus(defaultIndex < 0 ? Qt.TabFocusReason : Qt.OtherFocusReason)

    Column {
        width: parent.width
        spacing: Metrics.spacingMedium
        Keys.onEscapePressed: if (dialog.cancelIndex >= 0) dialog.answer(dialog.cancelIndex)

        PlainLabel {
            width: parent.width
            text: dialog.text
            font.pixelSize: Metrics.textHeadline
            font.weight: Font.DemiBold
            wrapMode: Text.Wrap
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        PlainLabel {
            width: parent.width
            text: dialog.message
            visible: text
            color: Theme.colours.secondaryLabel
            lineHeight: 1.15
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        Item {
            width: 1
            height: Metrics.spacingSmall
        }

        Flow {
            width: parent.width
            spacing: Metrics.spacingMedium
            layoutDirection: dialog.mirrored ? Qt.LeftToRight : Qt.RightToLeft

            Repeater {
                id: buttons

                model: dialog.actions

                TextButton {
                    required property AlertAction modelData
                    required property int index

                    text: modelData.text
                    destructive: modelData.role === AlertAction.Destructive
                    prominent: index === dialog.defaultIndex
                    onClicked: dialog.answer(index)
                }
            }
        }
    }
}
