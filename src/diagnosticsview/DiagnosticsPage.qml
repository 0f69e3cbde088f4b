import QtQuick
import QtQuick.Templates as T
import Tessarine.Controls
import Tessarine.Diagnostics
import Tessarine.Export
import Tessarine.Theme

// The root of the diagnostics window: how capture stands, the log, the tools for the hoard. What a low
// window has no room for scrolls.
FocusScope {
    id: root

    required property DiagnosticsView view

    readonly property int margin: Metrics.spacingWide
    readonly property int leastLogHeight: 150

    focus: true
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    Keys.onEscapePressed: event => {
        if (!event.isAutoRepeat)
            root.Window.window.close();
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.colours.windowBackground
    }

    DiagnosticsHeader {
        id: header

        width: parent.width
        view: root.view
    }

    HorizontalDivider {
        id: line

        anchors.top: header.bottom
        width: parent.width
    }

    ScrollArea {
        id: area

        objectName: "page"
        anchors.top: line.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        contentHeight: Math.max(height, cards.height + database.height + root.leastLogHeight + 4 * root.margin)

        Row {
            id: cards

            readonly property real cardWidth: (width - 3 * spacing) / 4

            x: root.margin
            y: root.margin
            width: area.width - 2 * root.margin
            spacing: Metrics.spacingLarge

            StatusCard {
                objectName: "axCard"
                width: cards.cardWidth
                symbol: "eye"
                title: "AXObserver"
                value: root.view.axStatus
                tint: "#4FC3F7"
            }

            StatusCard {
                objectName: "dbCard"
                width: cards.cardWidth
                symbol: "cylinder"
                title: "usernoted DB"
                value: root.view.dbStatus
                tint: "#81C784"
            }

            StatusCard {
                objectName: "recordsCard"
                width: cards.cardWidth
                symbol: "cylinder.split.1x2"
                title: "DB Records"
                value: root.view.records
                tint: "#FFB74D"
            }

            PollCard {
                objectName: "pollCard"
                width: cards.cardWidth
                value: root.view.nextPoll
                fraction: root.view.pollFraction
            }
        }

        LogPane {
            anchors.top: cards.bottom
            anchors.topMargin: root.margin
            anchors.bottom: database.top
            anchors.bottomMargin: Metrics.spacingLarge
            x: root.margin
            width: cards.width
            log: root.view.log
        }

        DatabaseSection {
            id: database

            x: root.margin
            y: area.contentHeight - height - root.margin
            width: cards.width
            database: root.view.database
        }
    }

    // The export's sheet goes without closing, and can't give the keyboard back itself.
    FocusKeeper {
        id: exportFocus

        otherwise: root
    }

    Connections {
        target: root.view.database

        function onExportSheetMade() {
            exportFocus.remember(root);
        }
    }

    Loader {
        active: root.view.database.showDataExportSheet
        onActiveChanged: if (!active) exportFocus.restore(root.T.Overlay.overlay)

        // A loader can't make a component that is bound to this file.
        sourceComponent: Item {
            ExportSheet {
                objectName: "exportSheet"
                options: root.view.database.exportSheet // qmllint disable unqualified
                visible: true
            }
        }
    }
}
