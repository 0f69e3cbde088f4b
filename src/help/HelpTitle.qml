import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// The title of a section.
PlainLabel {
    readonly property string words: text
    readonly property bool leads: true

    width: parent?.width ?? 0
    bottomPadding: Metrics.spacingSmall
    font.pixelSize: Metrics.textLargeTitle
    font.weight: Font.DemiBold
    wrapMode: Text.Wrap
    Accessible.role: Accessible.Heading
    Accessible.name: text
}
