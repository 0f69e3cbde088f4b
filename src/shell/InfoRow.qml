import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// One thing worth knowing: a coloured symbol and a text that takes the lines it needs.
Row {
    id: row

    required property string icon
    required property color iconColor
    required property string text

    spacing: Metrics.spacingLarge
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    SymbolImage {
        id: image

        symbol: row.icon
        size: Metrics.badgeSize
        tint: row.iconColor
    }

    PlainLabel {
        width: row.width - image.width - row.spacing
        anchors.verticalCenter: lineCount > 1 ? undefined : image.verticalCenter
        text: row.text
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
}
