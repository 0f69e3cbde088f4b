import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// A text that leads somewhere.
FocusableItem {
    id: link

    required property string text
    property alias textSize: label.font.pixelSize

    signal clicked

    function press() {
        if (enabled)
            clicked();
    }

    implicitWidth: Math.ceil(label.implicitWidth)
    implicitHeight: Math.ceil(label.implicitHeight)
    opacity: enabled ? 1 : Metrics.disabledOpacity
    Accessible.role: Accessible.Link
    Accessible.name: text
    Accessible.focusable: true
    Accessible.onPressAction: press()
    onKeyPressed: press()

    PlainLabel {
        id: label

        width: link.width
        text: link.text
        color: Theme.colours.accentLabel
        font.underline: area.containsMouse
        Accessible.ignored: true
    }

    MouseArea {
        id: area

        objectName: "linkArea"
        anchors.left: parent.left
        width: Math.min(link.width, Math.ceil(label.paintedWidth))
        height: link.height
        hoverEnabled: true
        cursorShape: Qt.PointingHandCursor
        onClicked: link.press()

        FocusRing {
            innerRadius: Metrics.spacingTiny
            visible: link.visualFocus
        }
    }
}
