pragma Singleton

import QtQuick

// Sizes in points that several views share.
QtObject {
    readonly property int textTiny: 10
    readonly property int textSmall: 11
    readonly property int textBody: 12
    readonly property int textHeadline: 13
    readonly property int textNotice: 15

    readonly property int spacingTiny: 2
    readonly property int spacingSmall: 4
    readonly property int spacingMedium: 8
    readonly property int spacingLarge: 12
    readonly property int spacingHuge: 24

    readonly property int cornerRadius: 8
    readonly property int iconSize: 36
    readonly property int noticeSymbolSize: 32
}
