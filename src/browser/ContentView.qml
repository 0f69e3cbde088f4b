import QtQuick
import QtQuick.Templates as T
import Tessarine.Browser
import Tessarine.Theme

// The root of the main window: the list, or what stands in its place.
Rectangle {
    id: root

    required property ContentViewState view

    implicitWidth: 720
    color: Theme.colours.windowBackground

    Notice {
        anchors.centerIn: parent
        visible: root.view.face === ContentViewState.Loading
        symbol: "clock.arrow.circlepath"
        title: qsTrId("hoard.loading")
    }

    Notice {
        anchors.centerIn: parent
        visible: root.view.face === ContentViewState.Empty
        symbol: "bell.slash"
        title: qsTrId("hoard.empty.waiting")
        detail: qsTrId("hoard.empty.waiting.detail")
    }

    ListView {
        id: list

        objectName: "list"
        anchors.fill: parent
        visible: root.view.face === ContentViewState.List
        focus: true
        keyNavigationEnabled: false
        model: root.view.notifications
        reuseItems: true
        spacing: Metrics.spacingSmall
        topMargin: Metrics.spacingSmall
        bottomMargin: Metrics.spacingSmall
        boundsBehavior: Flickable.StopAtBounds
        Accessible.role: Accessible.List
        Accessible.name: qsTrId("hoard.list")

        delegate: NotificationRow {
            width: ListView.view.width
        }

        KeyboardScroller {
            view: list
        }

        T.ScrollBar.vertical: ThinScrollBar {}
    }
}
