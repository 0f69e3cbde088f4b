pragma Singleton

import QtQuick
import Tessarine.Theme

// Sizes in points, and times in milliseconds, that several views share.
QtObject {
    // Type
    readonly property int textTiny: 10
    readonly property int textSmall: 11
    readonly property int textBody: 12
    readonly property int textHeadline: 13
    readonly property int textNotice: 15
    readonly property int textTitle: 17
    readonly property int textLargeTitle: 22

    // Room between and inside things
    readonly property int spacingTiny: 2
    readonly property int spacingSmall: 4
    readonly property int spacingMedium: 8
    readonly property int spacingLarge: 12
    readonly property int spacingWide: 16
    readonly property int spacingHuge: 24
    readonly property int sheetPadding: 20

    // Controls
    readonly property int controlHeight: 26
    readonly property int controlRadius: 6
    readonly property int controlPadding: 10
    readonly property int menuRowHeight: 26
    readonly property int menuColumn: 28 // of the symbols before the texts of a menu
    readonly property int symbolSize: 14
    readonly property int smallSymbolSize: 12
    readonly property int tabSymbolSize: 18
    readonly property int tabWidth: 84
    readonly property int badgeSize: 18
    readonly property int checkBoxSize: 16
    readonly property int barHeight: 6
    readonly property int ringSize: 22
    readonly property int ringWidth: 3
    readonly property int stepSize: 20
    readonly property int dotSize: 6
    readonly property real disabledOpacity: 0.4
    readonly property int focusRingWidth: 2
    readonly property int focusRingGap: 2
    readonly property int hairline: 1

    // Panels
    readonly property int cornerRadius: 8
    readonly property int sheetRadius: 12
    readonly property int windowMargin: 8
    readonly property int sheetMargin: 20

    readonly property int tipShadowReach: 12
    readonly property int shadowReach: 24
    readonly property int sheetShadowReach: 48

    // A list keeps its lines short enough to read and its times near their texts, however wide the
    // window is. Its cards begin where the fields and captions above them do.
    readonly property int listColumn: 720

    // Running text at the size of most: some 90 characters.
    readonly property int readingWidth: 530

    readonly property int iconSize: 36
    readonly property int noticeSymbolSize: 32

    // Times of what moves: none where the desktop is set to that
    readonly property real pace: Theme.reducesMotion ? 0 : 1
    readonly property int quick: 100 * pace
    readonly property int swift: 150 * pace
    readonly property int gentle: 200 * pace
    readonly property int leisurely: 250 * pace
    readonly property int ringStep: 1000 * pace

    // Other times
    readonly property int tipDelay: 700
}
