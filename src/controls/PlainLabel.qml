import QtQuick
import Tessarine.Theme

// Text exactly as it came: no markup, cut with an ellipsis where it doesn't fit.
Text {
    color: Theme.colours.label
    elide: Text.ElideRight
    font.pixelSize: Metrics.textBody
    horizontalAlignment: Text.AlignLeft
    textFormat: Text.PlainText
}
