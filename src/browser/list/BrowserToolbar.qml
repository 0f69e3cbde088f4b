import QtQuick
import Tessarine.Browser
import Tessarine.Controls
import Tessarine.Theme

// What narrows, orders and groups the list, and how much of it is shown.
Item {
    id: toolbar

    required property BrowserList list

    implicitHeight: controls.height

    Row {
        id: controls

        anchors.left: parent.left
        spacing: Metrics.spacingWide

        CaptionedControl {
            caption: qsTrId("toolbar.app.label")

            MenuPicker {
                objectName: "appPicker"
                width: 160
                accessibleName: qsTrId("toolbar.app.label")
                model: toolbar.list.appLabels
                currentIndex: toolbar.list.selectedAppIndex
                displayText: toolbar.list.selectedAppLabel
                onActivated: index => toolbar.list.selectedAppIndex = index
            }
        }

        CaptionedControl {
            caption: qsTrId("toolbar.sort.label")

            MenuPicker {
                objectName: "sortPicker"
                width: 120
                accessibleName: qsTrId("toolbar.sort.label")
                model: toolbar.list.sortLabels
                currentIndex: toolbar.list.sortMode
                onActivated: index => toolbar.list.sortMode = index
            }
        }

        CaptionedControl {
            caption: qsTrId("toolbar.group.label")

            SegmentedButtons {
                objectName: "groupButtons"
                accessibleName: qsTrId("toolbar.group.label")
                model: toolbar.list.groupLabels
                currentIndex: toolbar.list.groupMode
                onActivated: index => toolbar.list.groupMode = index
            }
        }
    }

    PlainLabel {
        objectName: "counter"
        anchors.left: controls.right
        anchors.leftMargin: Metrics.spacingMedium
        anchors.right: parent.right
        anchors.verticalCenter: controls.verticalCenter
        horizontalAlignment: Text.AlignRight
        text: toolbar.list.counterText
        font.pixelSize: Metrics.textSmall
        color: Theme.colours.secondaryLabel
        visible: toolbar.list.face !== BrowserList.Loading
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
