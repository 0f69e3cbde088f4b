import QtQuick
import QtQuick.Templates as T
import Tessarine.Theme

// A line of help under the item that declares it, some time after the pointer has come to rest there:
// `HoverTip { text: …; visible: hovered }`. Without a text it shows nothing.
T.ToolTip {
    id: tip

    readonly property int widest: 320

    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: parent ? parent.height + Metrics.spacingSmall : 0
    implicitWidth: Math.min(widest, Math.ceil(implicitContentWidth) + leftPadding + rightPadding)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    margins: Metrics.windowMargin
    verticalPadding: Metrics.spacingSmall
    horizontalPadding: Metrics.spacingMedium
    delay: Metrics.tipDelay
    opacity: text ? 1 : 0
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

    contentItem: PlainLabel {
        text: tip.text
        font.pixelSize: Metrics.textSmall
        wrapMode: Text.Wrap
    }

    background: PanelFace {
        radius: Metrics.controlRadius
    }
}
