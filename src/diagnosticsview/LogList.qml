import QtQuick
import QtQuick.Templates as T
import Tessarine.Controls
import Tessarine.Diagnostics
import Tessarine.Theme

// The lines of the log, the newest at the top. Whoever reads further down keeps their place when
// lines come above.
Rectangle {
    id: root

    required property DiagnosticsLog log

    radius: Metrics.cornerRadius
    color: Theme.colours.controlBackground
    border.width: Metrics.hairline
    border.color: Theme.colours.controlBorder

    ScrollList {
        id: listView

        objectName: "logList"
        anchors.fill: parent
        anchors.margins: Metrics.hairline
        activeFocusOnTab: true
        currentIndex: -1
        cacheBuffer: 0 // rows are cheap, and Qt complains of those that go while it makes them
        model: root.log.lines
        topMargin: Metrics.spacingSmall
        bottomMargin: Metrics.spacingSmall
        Accessible.role: Accessible.List
        Accessible.name: qsTrId("diag.log.list")

        // qmllint disable unqualified
        delegate: LogRow {
            width: listView.width
        }
        // qmllint enable unqualified

        KeyboardScroller {
            view: listView
        }

        VisualFocus {
            id: ring

            item: listView
        }

        T.ScrollBar.vertical: ThinScrollBar {}
    }

    Notice {
        objectName: "noEntries"
        anchors.centerIn: parent
        visible: root.log.showsNothing
        symbol: "doc.text.magnifyingglass"
        title: "No entries yet"
        detail: root.log.hidesAll ? qsTrId("diag.log.filtered") : ""
    }

    FocusRing {
        innerRadius: root.radius
        inside: true
        visible: ring.visual
    }
}
