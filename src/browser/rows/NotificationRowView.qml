import QtQuick
import Tessarine.Apps
import Tessarine.Browser
import Tessarine.Controls
import Tessarine.Theme

// One notification in the list, as its roles in the model say. A capture makes a row, so what most rows
// never show is made when it is first shown.
Item {
    id: row

    required property uuid notificationId
    required property string bundleId
    required property string appName
    required property string title
    required property string body
    required property string timeText
    required property bool pinned
    required property bool isPrivate
    required property bool isSelected
    required property bool isFocused
    required property bool isArriving
    required property bool isLeaving
    required property string spokenText
    property bool selectionMode
    property bool menuOpen // a context menu, which a tip would lie over

    readonly property int horizontalPadding: 10
    readonly property int verticalPadding: 6
    readonly property int itemSpacing: 10
    readonly property bool masked: reactions.masked
    readonly property bool showsTitle: title.text && !masked
    readonly property bool showsBody: body.text && !masked
    readonly property bool drawnFocused: isFocused && !selectionMode
    readonly property bool showsTip: pointer.hovered && !menuOpen && Window.window !== null

    signal pressed
    signal singleTap(uuid id)
    signal doubleTap(uuid id)
    signal toggleSelection(uuid id)
    signal menuRequested(uuid id, point place) // in the window

    property bool isComplete // and so may fade; what is only scrolled into sight is there at once
    property bool hasArrived: !isArriving
    property bool wasHovered
    property real clarity: 1 // of the texts, while they come out from under the mask

    // Another row was pressed, so that a double click here would have begun elsewhere.
    function forgetPress() {
        reactions.forgetPress();
    }

    opacity: hasArrived && !isLeaving ? 1 : 0
    enabled: !isLeaving
    implicitHeight: Math.max(icon.height, texts.height) + 2 * verticalPadding
    Accessible.role: Accessible.ListItem
    Accessible.name: masked ? appName + ", " + qsTrId("row.clickToReveal") : spokenText
    Accessible.selectable: true
    Accessible.selected: selectionMode ? isSelected : isFocused
    Accessible.checkable: selectionMode
    Accessible.checked: selectionMode && isSelected
    Accessible.onPressAction: reactions.click()

    Component.onCompleted: {
        isComplete = true;
        hasArrived = true;
    }
    // A reload is a new list, and its rows know every icon that was found since.
    onNotificationIdChanged: icon.rebuild()

    Behavior on opacity {
        enabled: row.isComplete

        NumberAnimation {
            duration: Metrics.gentle
            easing.type: Easing.InOutQuad
        }
    }

    NumberAnimation {
        id: clearing

        target: row
        property: "clarity"
        from: 0
        to: 1
        duration: Metrics.swift
        easing.type: Easing.InQuad
    }

    NotificationRow {
        id: reactions

        notificationId: row.notificationId
        isPrivate: row.isPrivate
        selectionMode: row.selectionMode
        onRevealed: clearing.restart()
        onSingleTap: id => row.singleTap(id)
        onDoubleTap: id => row.doubleTap(id)
        onToggleSelection: id => row.toggleSelection(id)
    }

    HoverHandler {
        id: pointer

        cursorShape: row.selectionMode ? Qt.ArrowCursor : Qt.PointingHandCursor
        onHoveredChanged: row.wasHovered = true
    }

    // The time in which a second press would make it a double click.
    Timer {
        id: gesture

        interval: Application.styleHints.mouseDoubleClickInterval
        onTriggered: reactions.endGesture()
    }

    MouseArea {
        anchors.fill: card
        acceptedButtons: Qt.LeftButton
        onPressed: {
            row.pressed();
            reactions.press();
            gesture.restart();
        }
        onClicked: reactions.click()
        onDoubleClicked: reactions.doubleClick()
    }

    // No TapHandler: once it has opened a menu, Qt hands it the left button too on Wayland.
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.RightButton
        onClicked: mouse => row.menuRequested(row.notificationId, mapToItem(null, mouse.x, mouse.y))
    }

    Loader {
        id: tip

        anchors.fill: parent
        active: row.wasHovered

        // A loader can't make a component that is bound to this file. The tip waits until it is complete:
        // one that is made visible would be there at once.
        // qmllint disable unqualified
        sourceComponent: Item {
            HoverTip {
                text: row.selectionMode ? (row.isSelected ? qsTrId("row.deselect") : qsTrId("row.select"))
                    : row.masked ? qsTrId("row.clickToReveal")
                    : qsTrId("row.singleClickToSelect").arg(row.appName)
                visible: row.showsTip && tip.status === Loader.Ready
            }
        }
        // qmllint enable unqualified
    }

    RowBackground {
        id: card

        anchors.fill: parent
        anchors.leftMargin: Metrics.spacingMedium
        anchors.rightMargin: Metrics.spacingMedium
        focused: row.drawnFocused
        selected: row.isSelected
        hovered: pointer.hovered
    }

    SelectionCircle {
        id: circle

        anchors.left: card.left
        anchors.leftMargin: row.horizontalPadding
        y: row.verticalPadding
        shown: row.selectionMode
        checked: row.isSelected
    }

    AppIconTile {
        id: icon

        anchors.left: circle.right
        anchors.leftMargin: circle.shown ? row.itemSpacing : 0
        y: row.verticalPadding
        width: Metrics.iconSize
        height: Metrics.iconSize
        cornerRadius: Metrics.cornerRadius
        bundleId: row.bundleId
        appName: row.appName

        Loader {
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            active: row.masked

            sourceComponent: IconBadge {
                symbol: "lock.fill"
                size: 9
                color: Qt.alpha(Theme.colours.secondaryLabel, 0.8)
            }
        }

        Loader {
            anchors.right: parent.right
            anchors.top: parent.top
            active: row.pinned

            sourceComponent: IconBadge {
                symbol: "pin.fill"
                size: 8
                color: Theme.colours.accentFill
            }
        }
    }

    // The texts are placed by bindings and not by a positioner, which waits for the next frame: a row
    // has its height from the moment it is made, or those in sight would move when it grows.
    Item {
        id: texts

        anchors.left: icon.right
        anchors.leftMargin: row.itemSpacing
        anchors.right: card.right
        anchors.rightMargin: row.horizontalPadding
        y: row.verticalPadding
        height: row.masked ? mask.y + mask.height
            : row.showsBody ? body.y + body.height
            : row.showsTitle ? title.y + title.height : topLine.height

        RowTopLine {
            id: topLine

            width: parent.width
            appName: row.appName
            timeText: row.timeText
            masked: row.masked
        }

        Loader {
            id: mask

            y: topLine.height + Metrics.spacingTiny
            opacity: row.masked ? 1 : 1 - row.clarity
            active: opacity > 0

            sourceComponent: RowMask {}
        }

        PlainLabel {
            id: title

            y: topLine.height + Metrics.spacingTiny
            width: parent.width
            text: row.title
            visible: row.showsTitle
            opacity: row.clarity
            font.pixelSize: Metrics.textHeadline
            font.weight: Font.Medium
            maximumLineCount: 2
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }

        PlainLabel {
            id: body

            y: title.y + (row.showsTitle ? title.height + Metrics.spacingTiny : 0)
            width: parent.width
            text: row.body
            visible: row.showsBody
            opacity: row.clarity
            color: Theme.colours.secondaryLabel
            maximumLineCount: 3
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
}
