import QtQuick
import Tessarine.Browser
import Tessarine.Controls
import Tessarine.Theme

// What narrows, orders and groups the list, and how much of it is shown.
Item {
    id: toolbar

    required property BrowserList list

    readonly property real fullWidth: app.widthWithCaption + sort.widthWithCaption + group.widthWithCaption
        + 2 * controls.spacing + Metrics.spacingMedium + Math.ceil(counter.implicitWidth)
    readonly property bool captionsFit: fullWidth <= width
    readonly property int narrowestSort: 120
    readonly property int widestSort: 140

    implicitHeight: controls.height

    Row {
        id: controls

        anchors.left: parent.left
        spacing: Metrics.spacingWide

        CaptionedControl {
            id: app

            caption: qsTrId("toolbar.app.label")
            captionFits: toolbar.captionsFit
            controlWidth: appPicker.width

            MenuPicker {
                id: appPicker

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
            id: sort

            caption: qsTrId("toolbar.sort.label")
            captionFits: toolbar.captionsFit
            controlWidth: sortPicker.width

            MenuPicker {
                id: sortPicker

                objectName: "sortPicker"
                width: Math.max(toolbar.narrowestSort, Math.min(toolbar.widestSort, implicitWidth))
                accessibleName: qsTrId("toolbar.sort.label")
                model: toolbar.list.sortLabels
                currentIndex: toolbar.list.sortMode
                onActivated: index => toolbar.list.sortMode = index
            }
        }

        CaptionedControl {
            id: group

            caption: qsTrId("toolbar.group.label")
            captionFits: toolbar.captionsFit
            controlWidth: groupButtons.width

            SegmentedButtons {
                id: groupButtons

                objectName: "groupButtons"
                accessibleName: qsTrId("toolbar.group.label")
                model: toolbar.list.groupLabels
                currentIndex: toolbar.list.groupMode
                onActivated: index => toolbar.list.groupMode = index
            }
        }
    }

    PlainLabel {
        id: counter

        objectName: "counter"
        anchors.left: controls.right
        anchors.leftMargin: Metrics.spacingMedium
        anchors.right: parent.right
        anchors.verticalCenter: controls.verticalCenter
        horizontalAlignment: Text.AlignRight
        text: toolbar.list.counterText
        font.family: Theme.tabularFamily
        font.pixelSize: Metrics.textSmall
        color: Theme.colours.secondaryLabel
        wrapMode: Text.Wrap
        maximumLineCount: 2
        visible: toolbar.list.face !== BrowserList.Loading
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
