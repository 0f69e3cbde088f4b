import QtQuick
import Tessarine.Apps
import Tessarine.Browser
import Tessarine.Controls
import Tessarine.Theme

// One notification in the list, as its roles in the model say. A capture makes a row, so what most rows
// never show is made when it is first shown.
NotificationRowItem {
    id: row

    required property string bundleId
    required property string appName
    required property string title
    required property string body
    required property string timeText
    required property bool pinned
    property bool menuOpen // a context menu, which a tip would lie over
    property real circleOpenness // of the column for the circle: from 0 to 1
    property real clarity: 1 // of the texts, while they come out from under the mask

    readonly property int horizontalPadding: 10
    readonly property int verticalPadding: 6
    readonly property int itemSpacing: 10
    readonly property real timeOpacity: 0.7
    readonly property bool showsTitle: title.text && !masked
    readonly property bool showsBody: body.text && !masked
    readonly property bool drawnFocused: isFocused && !selectionMode
    readonly property bool showsTip: hovered && !menuOpen

    cardMargin: Metrics.spacingMedium
    menuPlace: Qt.point(icon.x, icon.y + icon.height)
    implicitHeight: Math.max(icon.height, texts.height) + 2 * verticalPadding
    Accessible.role: Accessible.ListItem
    Accessible.name: masked ? spokenMask : spokenText
    Accessible.selectable: true
    Accessible.selected: selectionMode ? isSelected : isFocused
    Accessible.checkable: selectionMode
    Accessible.checked: selectionMode && isSelected
    Accessible.onPressAction: row.click()

    // A reload is a new list, and its rows know every icon that was found since.
    onNotificationIdChanged: icon.rebuild()
    onFadeRequested: fading.restart()
    onRevealed: clearing.restart()

    NumberAnimation {
        id: fading

        target: row
        property: "opacity"
        to: row.isLeaving ? 0 : 1
        duration: Metrics.gentle
        easing.type: Easing.InOutQuad
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

    RowBackground {
        id: card

        anchors.fill: parent
        anchors.leftMargin: row.cardMargin
        anchors.rightMargin: row.cardMargin
        focused: row.drawnFocused
        selected: row.isSelected
        hovered: row.hovered
    }

    SelectionCircle {
        id: circle

        anchors.left: card.left
        anchors.leftMargin: row.horizontalPadding
        y: row.verticalPadding
        openness: row.circleOpenness
        checked: row.isSelected
    }

    AppIconTile {
        id: icon

        anchors.left: circle.right
        anchors.leftMargin: row.selectionMode ? row.itemSpacing : 0
        y: row.verticalPadding
        width: Metrics.iconSize
        height: Metrics.iconSize
        cornerRadius: Metrics.cornerRadius
        bundleId: row.bundleId
        appName: row.appName
    }

    // Loaders can't make components that are bound to this file.
    // qmllint disable unqualified
    Loader {
        anchors.fill: icon
        active: row.masked || row.pinned

        sourceComponent: IconBadges {
            masked: row.masked
            pinned: row.pinned
            surroundings: card.shade
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
            : row.showsTitle ? title.y + title.height : name.height

        PlainLabel {
            id: name

            anchors.left: parent.left
            anchors.right: row.masked ? hint.left : time.left
            anchors.rightMargin: Metrics.spacingMedium
            text: row.appName
            font.pixelSize: Metrics.textSmall
            font.weight: Font.DemiBold
            color: Theme.colours.secondaryLabel
            maximumLineCount: 1
            wrapMode: Text.WrapAnywhere
        }

        PlainLabel {
            id: time

            anchors.right: parent.right
            anchors.baseline: name.baseline
            text: row.timeText
            font.family: Theme.tabularFamily
            font.pixelSize: Metrics.textTiny
            color: Theme.colours.secondaryLabel
            opacity: row.timeOpacity
            visible: !row.masked
        }

        Loader {
            id: hint

            anchors.right: parent.right
            anchors.verticalCenter: name.verticalCenter
            active: row.masked

            sourceComponent: RevealHint {}
        }

        Loader {
            id: mask

            anchors.left: parent.left
            y: name.height + Metrics.spacingTiny
            opacity: row.masked ? 1 : 1 - row.clarity
            active: opacity > 0

            sourceComponent: RowMask {}
        }

        PlainLabel {
            id: title

            anchors.left: parent.left
            y: name.height + Metrics.spacingTiny
            width: Math.min(parent.width, Metrics.readingWidth)
            text: row.title
            visible: row.showsTitle
            opacity: row.clarity
            font.pixelSize: Metrics.textHeadline
            font.weight: Font.Medium
            maximumLineCount: 2
            wrapMode: Text.Wrap
        }

        PlainLabel {
            id: body

            anchors.left: parent.left
            y: title.y + (row.showsTitle ? title.height + Metrics.spacingTiny : 0)
            width: Math.min(parent.width, Metrics.readingWidth)
            text: row.body
            visible: row.showsBody
            opacity: row.clarity
            color: Theme.colours.secondaryLabel
            maximumLineCount: 3
            wrapMode: Text.Wrap
        }
    }

    Loader {
        id: tip

        anchors.fill: parent
        active: row.wasHovered

        // The tip waits until it is complete: one that is made visible would be there at once.
        sourceComponent: Item {
            HoverTip {
                text: row.selectionMode ? (row.isSelected ? qsTrId("row.deselect") : qsTrId("row.select"))
                    : row.masked ? qsTrId("row.clickToReveal")
                    : qsTrId("row.singleClickToSelect").arg(row.appName)
                hovered: row.showsTip && tip.status === Loader.Ready
            }
        }
    }
    // qmllint enable unqualified
}
