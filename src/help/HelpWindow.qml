pragma ComponentBehavior: Bound

import QtQuick
import Tessarine.Controls
import Tessarine.Help
import Tessarine.Theme

// The built-in manual: its sections at the side, the chosen one beside them. What is looked for shows
// what all sections have of it.
Rectangle {
    id: root

    required property HelpView view

    readonly property int sidebarWidth: 216
    readonly property int margin: Metrics.spacingLarge

    color: Theme.colours.windowBackground
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Pane
    Accessible.name: qsTrId("menu.help.title")
    Keys.onEscapePressed: Window.window.close()

    Shortcut {
        sequence: "Ctrl+F"
        onActivated: searchField.beginTyping()
    }

    SearchField {
        id: searchField

        objectName: "search"
        anchors.top: parent.top
        anchors.left: parent.left
        anchors.margins: root.margin
        width: root.sidebarWidth - 2 * root.margin
        placeholderText: qsTrId("help.find.placeholder")
        clearLabel: qsTrId("toolbar.search.clear")
        text: root.view.searchText
        onTextEdited: root.view.searchText = text
        Keys.onEscapePressed: event => event.accepted = root.view.endSearch()
    }

    HelpSidebar {
        objectName: "sidebar"
        anchors.top: searchField.bottom
        anchors.topMargin: root.margin
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.leftMargin: Metrics.spacingMedium
        width: root.sidebarWidth - 2 * Metrics.spacingMedium
        bottomMargin: Metrics.spacingMedium
        view: root.view
    }

    VerticalDivider {
        id: divider

        anchors.left: parent.left
        anchors.leftMargin: root.sidebarWidth
        height: parent.height
    }

    ScrollArea {
        id: area

        objectName: "page"
        anchors.left: divider.right
        anchors.right: parent.right
        height: parent.height
        activeFocusOnTab: true
        contentHeight: pages.height + 2 * Metrics.spacingHuge
        Accessible.role: Accessible.Pane
        Accessible.name: qsTrId("help.page")
        Accessible.focusable: true

        KeyboardScroller {
            view: area
        }

        Column {
            id: pages

            objectName: "pages"
            x: Metrics.spacingHuge
            y: Metrics.spacingHuge
            width: Math.max(0, Math.min(area.width - 2 * Metrics.spacingHuge, Metrics.readingWidth))
            spacing: Metrics.spacingHuge

            Repeater {
                model: root.view.shownSections

                Loader {
                    id: loader

                    required property helpSectionEntry modelData

                    objectName: "page-" + modelData.rawValue
                    width: pages.width
                    visible: narrowing.found
                    Component.onCompleted: setSource(modelData.view, { view: root.view })

                    HelpNarrowing {
                        id: narrowing

                        page: loader.item as Item
                        soughtText: root.view.searchText
                    }
                }
            }
        }

        Notice {
            objectName: "nothingFound"
            anchors.horizontalCenter: parent.horizontalCenter
            y: Math.round(area.height / 3)
            symbol: "magnifyingglass"
            title: qsTrId("help.find.none")
            detail: qsTrId("help.find.none.detail")
            visible: pages.height === 0
        }

        Connections {
            target: root.view

            function onShownSectionsChanged() {
                area.contentY = 0;
            }

            function onSearchTextChanged() {
                area.contentY = 0;
            }
        }
    }

    FocusRing {
        anchors.fill: area
        inside: true
        innerRadius: 0
        visible: ring.visual
    }

    VisualFocus {
        id: ring

        item: area
    }
}
