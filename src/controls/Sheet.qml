import QtQuick
import QtQuick.Templates as T
import Tessarine.Controls
import Tessarine.Theme

// A panel over its dimmed window, which waits until it closes. It is as large as its ideal size, or
// else as its content, within its bounds and within the window less `windowMargin`. Return presses the
// default button, wherever in the sheet the keyboard is and unless something there wants the key
// itself. Escape closes it; one that decides for itself (`closesOnEscape` is false) is told by
// `escaped`.
T.Dialog {
    id: sheet

    required property string accessibleName
    property real minimumWidth: 0
    property real idealWidth: 0
    property real maximumWidth: Infinity
    property real minimumHeight: 0
    property real idealHeight: 0
    property real maximumHeight: Infinity
    property real windowMargin: Metrics.sheetMargin
    property bool closesOnEscape: true
    property TextButton defaultButton: null

    signal escaped

    // Qt has made the item around the content a dialog for a screen reader.
    function tellName() {
        contentItem.parent.Accessible.name = accessibleName;
    }

    readonly property real room: 2 * windowMargin
    readonly property real naturalWidth: idealWidth || implicitContentWidth + leftPadding + rightPadding
    readonly property real naturalHeight: idealHeight || implicitContentHeight + topPadding + bottomPadding

    parent: T.Overlay.overlay
    anchors.centerIn: parent
    width: Math.min((parent?.width ?? Infinity) - room, Math.max(minimumWidth, Math.min(maximumWidth, naturalWidth)))
    height: Math.min((parent?.height ?? Infinity) - room, Math.max(minimumHeight, Math.min(maximumHeight, naturalHeight)))
    modal: true
    dim: true
    focus: true
    closePolicy: closesOnEscape ? T.Popup.CloseOnEscape : T.Popup.NoAutoClose
    onAccessibleNameChanged: tellName()
    onAboutToShow: {
        tellName();
        focusKeeper.remember(parent);
        focusKeeper.beginIn(contentItem);
    }
    onAboutToHide: focusKeeper.restore(contentItem)

    background: PanelFace {
        radius: Metrics.sheetRadius
        shadowReach: Metrics.sheetShadowReach
    }

    contentItem: FocusScope {
        focus: true
        LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft // popups inherit it from nobody
        LayoutMirroring.childrenInherit: true
        implicitWidth: children[0]?.implicitWidth ?? 0
        implicitHeight: children[0]?.implicitHeight ?? 0
        Keys.onReturnPressed: sheet.defaultButton?.press()
        Keys.onEnterPressed: sheet.defaultButton?.press()
        Keys.onEscapePressed: event => {
            event.accepted = !sheet.closesOnEscape;
            if (event.accepted)
                sheet.escaped();
        }
    }

    T.Overlay.modal: Rectangle {
        color: Theme.colours.dim

        Behavior on opacity {
            NumberAnimation { duration: Metrics.gentle }
        }
    }

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Metrics.gentle; easing.type: Easing.OutQuad }
        NumberAnimation { property: "scale"; from: 0.97; to: 1; duration: Metrics.gentle; easing.type: Easing.OutQuad }
    }

    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Metrics.quick }
    }

    FocusKeeper {
        id: focusKeeper
    }
}
