import QtQuick
import Tessarine.Apps
import Tessarine.Browser
import Tessarine.Controls
import Tessarine.Theme

// The header of a group: it opens and closes the group, and in selection mode selects it whole.
Rectangle {
    id: section

    required property groupHeader header
    property bool selectionMode
    property bool repeated // shows what another header tells screen readers of

    readonly property int chevronColumn: 12
    readonly property int iconSize: 18
    readonly property int lineHeight: 28
    readonly property real titleStart: chevron.anchors.leftMargin + chevron.width + icon.anchors.leftMargin
        + icon.width + title.anchors.leftMargin // from the side where lines begin
    readonly property bool everySelected: header.selectedCount === header.count

    signal toggled(string key)
    signal menuRequested(string key, int count, point place) // in the window
    signal selectAll(string key)
    signal deselectAll(string key)

    // Where the keyboard is: under the chevron.
    function askForMenu() {
        if (!selectionMode)
            menuRequested(header.key, header.count, chevron.mapToItem(null, 0, chevron.height));
    }

    implicitHeight: lineHeight
    color: Theme.colours.windowBackground
    onHeaderChanged: icon.rebuild()

    GroupHeading {
        anchors.fill: parent
        title: section.header.title
        hasMenu: !section.selectionMode
        Accessible.role: Accessible.Heading
        Accessible.name: section.header.title
        Accessible.ignored: section.repeated
        onMenuRequested: section.askForMenu()
    }

    // A pinned header lies over rows, and what happens on it isn't for them.
    HoverHandler { blocking: true }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: section.selectionMode ? Qt.LeftButton | Qt.RightButton : Qt.LeftButton
    }

    // No TapHandler: once it has opened a menu, Qt hands it the left button too on Wayland.
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.RightButton
        enabled: !section.selectionMode
        onClicked: mouse => section.menuRequested(section.header.key, section.header.count,
                                                  mapToItem(null, mouse.x, mouse.y))
    }

    MenuKey {
        view: section
        onAsked: section.askForMenu()
    }

    IconButton {
        id: chevron

        anchors.left: parent.left
        anchors.leftMargin: Metrics.spacingMedium - Metrics.spacingSmall // the symbol stands above the edge of the cards
        anchors.verticalCenter: parent.verticalCenter
        width: section.chevronColumn + Metrics.spacingMedium
        height: section.lineHeight - Metrics.spacingSmall
        symbol: section.header.isCollapsed ? "chevron.right" : "chevron.down"
        directional: section.header.isCollapsed
        size: section.chevronColumn
        accessibleName: (section.header.isCollapsed ? qsTrId("group.expand") : qsTrId("group.collapse"))
            .arg(section.header.title)
        ringInside: true
        onClicked: {
            section.toggled(section.header.key);
            turning.restart();
        }
    }

    // From what the other symbol looks like.
    NumberAnimation {
        id: turning

        target: chevron
        property: "turn"
        from: section.header.isCollapsed ? 90 : -90
        to: 0
        duration: Metrics.gentle
        easing.type: Easing.InOutQuad
    }

    AppIconTile {
        id: icon

        anchors.left: chevron.right
        anchors.leftMargin: Metrics.spacingSmall
        anchors.verticalCenter: parent.verticalCenter
        width: section.header.hasIcon ? section.iconSize : 0
        height: section.iconSize
        cornerRadius: Metrics.spacingSmall
        bundleId: section.header.bundleId
        appName: section.header.appName
        visible: section.header.hasIcon
    }

    PlainLabel {
        id: title

        anchors.left: icon.right
        anchors.leftMargin: section.header.hasIcon ? Metrics.spacingMedium - 2 : 0
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, section.width - section.titleStart - tag.width - 3 * Metrics.spacingMedium
                        - (selectButton.visible ? selectButton.width : 0))
        text: section.header.title
        font.weight: Font.DemiBold
        maximumLineCount: 1
        Accessible.ignored: true
    }

    Tag {
        id: tag

        anchors.left: title.right
        anchors.leftMargin: Metrics.spacingMedium
        anchors.verticalCenter: parent.verticalCenter
        text: section.header.count
    }

    TextButton {
        id: selectButton

        anchors.right: parent.right
        anchors.rightMargin: Metrics.spacingMedium
        anchors.verticalCenter: parent.verticalCenter
        height: section.lineHeight - Metrics.spacingSmall
        plain: true
        font.pixelSize: Metrics.textTiny
        ink: Theme.colours.accentLabel
        text: section.everySelected ? qsTrId("selection.deselectAll") : qsTrId("selection.selectAll")
        visible: section.selectionMode
        onClicked: section.everySelected ? section.deselectAll(section.header.key)
                                         : section.selectAll(section.header.key)
    }
}
