import QtQuick
import QtQuick.Templates as T
import Tessarine.Controls
import Tessarine.Theme

// A panel under the item that declares it, for something short. A press outside or Escape closes it,
// and the keyboard goes back to where it was. It stays within its window.
T.Popup {
    id: panel

    required property string accessibleName
    property bool above

    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: above ? -height - Metrics.spacingSmall : parent ? parent.height + Metrics.spacingSmall : 0
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: Metrics.spacingLarge
    margins: Metrics.windowMargin
    modal: true
    dim: false
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    onAboutToShow: {
        contentItem.parent.Accessible.name = accessibleName; // Qt has made that item a dialog
        focusKeeper.remember(parent);
        focusKeeper.beginIn(contentItem);
    }
    onAboutToHide: focusKeeper.restore(contentItem)

    background: PanelFace {}

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Metrics.quick }
    }

    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Metrics.quick }
    }

    FocusKeeper {
        id: focusKeeper
    }
}
