import QtQuick
import Tessarine.Browser
import Tessarine.Controls
import Tessarine.Theme

// What narrows, orders and groups the list, and how much of it is shown.
Item {
    id: toolbar

    required property ContentViewState view

    implicitHeight: controls.height

    Row {
        id: controls

        spacing: Metrics.spacingWide

        CaptionedControl {
            caption: qsTrId("toolbar.app.label")

            MenuPicker {
                objectName: "appPicker"
                width: toolbar.width > 760 ? 180 : 160
                accessibleName: qsTrId("toolbar.app.label")
                model: toolbar.view.appLabels
                currentIndex: toolbar.view.selectedAppIndex
                displayText: toolbar.view.selectedAppLabel
                onActivated: index => toolbar.view.selectedAppIndex = index
            }
        }

        CaptionedControl {
            caption: qsTrId("toolbar.sort.label")

            MenuPicker {
                objectName: "sortPicker"
                width: toolbar.width > 760 ? 140 : 120
                accessibleName: qsTrId("toolbar.sort.label")
                model: toolbar.view.sortLabels
                currentIndex: toolbar.view.sortMode
                onActivated: index => toolbar.view.sortMode = index
            }
        }

        CaptionedControl {
            caption: qsTrId("toolbar.group.label")

            SegmentedButtons {
                objectName: "groupButtons"
                accessibleName: qsTrId("toolbar.group.label")
                model: toolbar.view.groupLabels
                currentIndex: toolbar.view.groupMode
                onActivated: index => toolbar.view.groupMode = index
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
        text: toolbar.view.counterText
        font.pixelSize: Metrics.textSmall
        color: Theme.colours.secondaryLabel
        visible: toolbar.view.face !== ContentViewState.Loading
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
