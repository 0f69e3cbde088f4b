pragma ComponentBehavior: Bound

import QtQuick
import Tessarine.Controls
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

    // What was asked stays while the question fades, and is answered once.
    property bool fading: false
    property string shownText

    signal answered(int index)

    function firstOf(role: int): int {
        return Array.from(actions).findIndex(action => action.role === role);
    }

    function answer(index: int) {
        if (fading)
            return;
        dialog.close();
        dialog.answered(index);
        dialog.actions[index].triggered();
    }

    accessibleName: shownText
    minimumWidth: 260
    idealWidth: Math.ceil(Math.max(question.implicitWidth, note.implicitWidth, answers.widthInLine)) + 2 * padding
    maximumWidth: 380
    padding: Metrics.sheetPadding
    closesOnEscape: false
    defaultButton: buttons.itemAt(defaultIndex) as TextButton
    onEscaped: if (cancelIndex >= 0) answer(cancelIndex)
    onOpened: buttons.itemAt(Math.max(0, firstFocus))?.forceActiveFocus(defaultIndex < 0 ? Qt.TabFocusReason : Qt.OtherFocusReason)

    onAboutToShow: fading = false
    onAboutToHide: fading = true

    Binding on shownText {
        value: dialog.text
        when: !dialog.fading
        restoreMode: Binding.RestoreNone
    }

    Column {
        width: parent.width
        spacing: Metrics.spacingMedium

        PlainLabel {
            id: question

            width: parent.width
            text: dialog.shownText
            font.pixelSize: Metrics.textHeadline
            font.weight: Font.DemiBold
            wrapMode: Text.Wrap
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        PlainLabel {
            id: note

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
            id: answers

            readonly property real widthInLine: Array.from({ length: buttons.count }, (nothing, index) => buttons.itemAt(index))
                .reduce((width, button) => width + (button?.implicitWidth ?? 0) + spacing, -spacing)

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
