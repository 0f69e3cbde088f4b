import QtQuick
import QtQuick.Templates as T
import Tessarine.Theme

// A quiet scroll bar: a thumb without a track, stronger and wider under the pointer, and always there
// while the list is longer than its view. All of it fits between the cards of a list and its edge.
T.ScrollBar {
    id: bar

    readonly property bool inUse: pressed || hovered
    readonly property int thickness: Metrics.spacingMedium - 2 * padding
    readonly property int shortestThumb: 28

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: inUse ? 1 : Metrics.spacingTiny
    minimumSize: height > 0 ? Math.min(1, shortestThumb / height) : 0
    visible: size < 1
    Accessible.name: orientation === Qt.Vertical ? qsTrId("scrollBar.vertical") : qsTrId("scrollBar.horizontal")

    contentItem: Rectangle {
        implicitWidth: bar.thickness
        implicitHeight: bar.thickness
        radius: bar.thickness / 2
        color: Theme.colours.scrollThumb
        opacity: bar.pressed ? 1 : bar.hovered ? 0.8 : 0.5
    }
}
