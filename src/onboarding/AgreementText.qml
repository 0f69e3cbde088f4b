import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// The agreement in a box of its own, to be scrolled through. Tells when its end has come into sight.
Rectangle {
    id: box

    required property string agreement

    // While it is laid out for the first time it has other heights.
    readonly property bool onScreen: visible && Window.visibility !== Window.Hidden
    readonly property bool endInSight: onScreen && eulaBottom.y < scroller.contentY + scroller.height

    signal reachedEnd

    onEndInSightChanged: if (endInSight) reachedEnd()
    Component.onCompleted: if (endInSight) reachedEnd()

    radius: Metrics.cornerRadius
    color: Theme.colours.controlBackground
    border.width: Metrics.hairline
    border.color: Theme.colours.controlBorder

    ScrollArea {
        id: scroller

        objectName: "agreementScroller"
        anchors.fill: parent
        anchors.margins: Metrics.hairline
        contentHeight: eulaBottom.y + eulaBottom.height

        SelectableText {
            id: text

            objectName: "agreementText"
            x: Metrics.spacingWide
            y: Metrics.spacingWide
            width: scroller.width - 2 * Metrics.spacingWide
            text: box.agreement
            activeFocusOnTab: true
        }

        KeyboardScroller {
            view: scroller
        }

        Item {
            id: eulaBottom

            objectName: "eulaBottom"
            y: text.y + text.height + Metrics.spacingWide
            width: 1
            height: 1
        }
    }
}
