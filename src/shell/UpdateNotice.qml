import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// Says which version runs and how new ones come, where the program has no updater of its own.
Rectangle {
    id: root

    required property string version

    implicitWidth: 400
    implicitHeight: closeButton.y + closeButton.height + Metrics.sheetPadding
    color: Theme.colours.windowBackground
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Dialog
    Accessible.name: heading.text
    Keys.onEscapePressed: Window.window.close()

    Image {
        id: icon

        anchors.top: parent.top
        anchors.left: parent.left
        anchors.margins: Metrics.sheetPadding
        width: 48
        height: 48
        sourceSize.width: 48
        sourceSize.height: 48
        source: "qrc:/icons/com.zorvek.Tessarine.svg"
        Accessible.ignored: true
    }

    PlainLabel {
        id: heading

        objectName: "version"
        anchors.top: parent.top
        anchors.left: icon.right
        anchors.right: parent.right
        anchors.topMargin: Metrics.sheetPadding
        anchors.leftMargin: Metrics.spacingLarge
        anchors.rightMargin: Metrics.sheetPadding
        text: qsTrId("updates.version").arg(root.version)
        font.pixelSize: Metrics.textNotice
        font.weight: Font.DemiBold
        wrapMode: Text.Wrap
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    PlainLabel {
        id: explanation

        objectName: "explanation"
        anchors.top: heading.bottom
        anchors.left: heading.left
        anchors.right: heading.right
        anchors.topMargin: Metrics.spacingSmall
        text: qsTrId("updates.howTheyCome")
        color: Theme.colours.secondaryLabel
        lineHeight: 1.2
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    TextButton {
        id: closeButton

        objectName: "close"
        anchors.top: explanation.bottom
        anchors.right: parent.right
        anchors.topMargin: Metrics.spacingWide
        anchors.rightMargin: Metrics.sheetPadding
        focus: true
        prominent: true
        text: qsTrId("action.close")
        onClicked: root.Window.window.close()
    }
}
