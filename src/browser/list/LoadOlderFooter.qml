import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// The end of the list while the hoard holds more than is loaded.
Item {
    id: footer

    property bool shown

    signal clicked

    implicitHeight: shown ? divider.height + button.height + 3 * Metrics.spacingMedium : 0
    visible: shown

    HorizontalDivider {
        id: divider

        y: Metrics.spacingMedium
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: Metrics.spacingMedium
        anchors.rightMargin: Metrics.spacingMedium
    }

    TextButton {
        id: button

        objectName: "loadOlder"
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: divider.bottom
        anchors.topMargin: Metrics.spacingMedium
        symbol: "clock.arrow.circlepath"
        text: qsTrId("toolbar.loadOlder")
        toolTipText: qsTrId("toolbar.loadOlder.help")
        onClicked: footer.clicked()
    }
}
