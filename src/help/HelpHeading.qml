import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// A heading inside a section.
PlainLabel {
    readonly property string words: text
    readonly property bool leads: true

    width: parent?.width ?? 0
    topPadding: Metrics.spacingWide
    font.pixelSize: Metrics.textNotice
    font.weight: Font.DemiBold
    wrapMode: Text.Wrap
    Accessible.role: Accessible.Heading
    Accessible.name: text
}
