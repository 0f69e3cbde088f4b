import QtQuick
import QtQuick.Templates as T
import Tessarine.Controls
import Tessarine.Theme

// The menu of a MenuPicker: its texts, one under the other, with a check mark at the chosen one. It
// stays as it opened, whatever becomes of the texts meanwhile; `chosen` tells where the text that was
// chosen stands among them now, or -1 when it has gone.
T.Popup {
    id: menu

    required property string accessibleName
    required property list<string> texts
    required property int chosenIndex
    required property real narrowest

    readonly property int widest: 360
    readonly property int tallest: 320
    readonly property int textRoom: measure.widest + Metrics.menuColumn + Metrics.controlPadding

    signal chosen(int index)

    x: Application.layoutDirection === Qt.RightToLeft && parent ? parent.width - width : 0
    implicitWidth: Math.max(narrowest, Math.min(widest, textRoom + leftPadding + rightPadding))
    implicitHeight: Math.min(tallest, implicitContentHeight + topPadding + bottomPadding)
    padding: Metrics.spacingSmall
    margins: Metrics.windowMargin
    modal: true
    dim: false
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    onAboutToShow: {
        contentItem.parent.Accessible.ignored = true; // Qt has made that item a dialog
        focusKeeper.remember(parent);
    }
    onAboutToHide: focusKeeper.restore(contentItem)

    background: PanelFace {}

    contentItem: MenuPickerList {
        focus: true
        LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft // popups inherit it from nobody
        LayoutMirroring.childrenInherit: true
        texts: held.shown
        chosenIndex: held.shownIndex
        open: menu.visible
        pointerCounts: mouse.moved
        Accessible.name: menu.accessibleName
        onChosen: index => menu.chosen(held.ownersIndex(index))
    }

    MenuTexts {
        id: held

        texts: menu.texts
        chosenIndex: menu.chosenIndex
        open: menu.visible
    }

    FocusKeeper {
        id: focusKeeper
    }

    MouseWatch {
        id: mouse

        item: menu.parent
        awaitsMove: menu.visible
    }

    TextWidths {
        id: measure

        texts: held.shown
        font.pixelSize: Metrics.textBody
    }
}
