pragma ComponentBehavior: Bound

import QtQuick
import Tessarine.Theme

// How far somebody has come on a way of several steps: a dot for each, and a longer one for where they
// are. `current` counts from 0.
Row {
    id: dots

    required property int count
    required property int current

    readonly property int longDot: 24
    readonly property int shortDot: 8
    readonly property real aheadOpacity: 0.25
    readonly property bool seen: visible && Window.visibility !== Window.Hidden

    spacing: Metrics.dotSize
    Accessible.role: Accessible.Indicator
    Accessible.name: qsTrId("pageDots.position").arg(current + 1).arg(count)

    Repeater {
        model: dots.count

        Rectangle {
            required property int index

            readonly property bool reached: index <= dots.current

            objectName: "dot" + index
            width: index === dots.current ? dots.longDot : dots.shortDot
            height: Metrics.dotSize
            radius: height / 2
            color: reached ? Theme.colours.accent : Theme.colours.secondaryLabel
            opacity: reached ? 1 : dots.aheadOpacity

            Behavior on width {
                enabled: dots.seen
                NumberAnimation { duration: Metrics.leisurely; easing.type: Easing.InOutQuad }
            }

            Behavior on opacity {
                enabled: dots.seen
                NumberAnimation { duration: Metrics.leisurely; easing.type: Easing.InOutQuad }
            }
        }
    }
}
