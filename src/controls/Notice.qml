import QtQuick
import Tessarine.Theme

// What stands in the place of a list that has nothing to show: a symbol, a line, and a second one
// that may be absent.
Column {
    id: notice

    required property string symbol
    required property string title
    property string detail

    property int textWidth: 440

    spacing: Metrics.spacingSmall
    Accessible.role: Accessible.StaticText
    Accessible.name: detail ? title + " " + detail : title

    SymbolImage {
        anchors.horizontalCenter: parent.horizontalCenter
        symbol: notice.symbol
        size: Metrics.noticeSymbolSize
        tint: Theme.colours.tertiaryLabel
    }

    Item {
        width: 1
        height: Metrics.spacingSmall
    }

    PlainLabel {
        width: notice.textWidth
        horizontalAlignment: Text.AlignHCenter
        text: notice.title
        font.pixelSize: Metrics.textNotice
        font.weight: Font.DemiBold
        color: Theme.colours.secondaryLabel
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }

    PlainLabel {
        width: notice.textWidth
        horizontalAlignment: Text.AlignHCenter
        text: notice.detail
        visible: notice.detail
        color: Theme.colours.secondaryLabel
        lineHeight: 1.2
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
}
