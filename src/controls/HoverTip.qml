import QtQuick
import QtQuick.Templates as T
import Tessarine.Controls
import Tessarine.Theme

// A line of help beside the item that declares it, some time after the pointer has come to rest there:
// `HoverTip { text: …; hovered: item.hovered }`. A press ends it until the pointer comes anew, and it
// keeps away while anything lies over the item. Without a text it shows nothing.
T.ToolTip {
    id: tip

    required property bool hovered

    readonly property int widest: 320

    implicitWidth: Math.min(widest, Math.ceil(implicitContentWidth) + leftPadding + rightPadding)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    margins: Metrics.windowMargin
    verticalPadding: Metrics.spacingSmall
    horizontalPadding: Metrics.spacingMedium
    delay: Metrics.tipDelay
    visible: rules.allowed
    opacity: text ? 1 : 0
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    onAboutToShow: {
        const place = rules.place(Qt.size(implicitWidth, implicitHeight), Metrics.spacingSmall, margins);
        x = place.x;
        y = place.y;
    }

    contentItem: PlainLabel {
        text: tip.text
        font.pixelSize: Metrics.textSmall
        wrapMode: Text.Wrap
    }

    background: PanelFace {
        radius: Metrics.controlRadius
        shadowReach: Metrics.tipShadowReach
    }

    TipRules {
        id: rules

        item: tip.parent
        overlay: tip.T.Overlay.overlay
        hovered: tip.hovered
    }
}
