import QtQuick
import Tessarine.Theme

// Two bars in the place of a hidden title and body.
Column {
    readonly property int barRadius: 3

    topPadding: Metrics.spacingTiny
    spacing: Metrics.spacingSmall

    Rectangle {
        width: 160
        height: 12
        radius: parent.barRadius
        color: Theme.colours.secondaryLabel
        opacity: 0.2
    }

    Rectangle {
        width: 220
        height: 10
        radius: parent.barRadius
        color: Theme.colours.secondaryLabel
        opacity: 0.13
    }
}
