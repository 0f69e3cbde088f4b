import QtQuick
import Tessarine.Theme

// A box to tick, with its text beside it. The text wraps where it doesn't fit.
CheckControl {
    id: box

    property int textWeight: Font.Normal

    readonly property int boxRoom: Metrics.checkBoxSize + spacing

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(Metrics.checkBoxSize, implicitContentHeight)
    spacing: Metrics.spacingMedium
    leftPadding: mirrored ? 0 : boxRoom
    rightPadding: mirrored ? boxRoom : 0
    Accessible.name: text

    FontMetrics {
        id: firstLine

        font.pixelSize: Metrics.textBody
    }

    indicator: Rectangle {
        x: box.mirrored ? box.width - width : 0
        y: Math.round((Math.min(box.height, firstLine.height) - height) / 2)
        width: Metrics.checkBoxSize
        height: Metrics.checkBoxSize
        radius: Metrics.spacingSmall
        color: box.checked ? Theme.colours.accentFill : Theme.colours.controlBackground
        border.width: box.checked ? 0 : Metrics.hairline
        border.color: Theme.colours.tertiaryLabel
        opacity: box.enabled ? 1 : Metrics.disabledOpacity

        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: box.down ? Theme.colours.pressedFill : Theme.colours.hoverFill
            visible: box.enabled && (box.down || box.hovered)
        }

        SymbolImage {
            anchors.centerIn: parent
            symbol: "checkmark"
            size: Metrics.smallSymbolSize
            tint: Theme.colours.onFill
            visible: box.checked
        }

        FocusRing {
            innerRadius: parent.radius
            visible: box.visualFocus
        }
    }

    contentItem: PlainLabel {
        text: box.text
        color: box.enabled ? Theme.colours.label : Theme.colours.secondaryLabel
        font.weight: box.textWeight
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
}
