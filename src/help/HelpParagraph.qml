import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// Running text of a section.
PlainLabel {
    readonly property string words: text

    width: parent?.width ?? 0
    font.pixelSize: Metrics.textHeadline
    lineHeight: 1.25
    wrapMode: Text.Wrap
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
