import QtQuick
import Tessarine.Browser

// The room of the inline banner: it opens from the top edge, and closes more slowly.
Item {
    id: slot

    required property ContentViewState view

    readonly property int entering: 200
    readonly property int leaving: 300
    readonly property bool open: view.hasInlineBanner

    // What was shown last stays while the banner leaves.
    property inlineBanner lastShown

    implicitHeight: open ? content.implicitHeight : 0
    opacity: open ? 1 : 0
    clip: true

    Binding on lastShown {
        value: slot.view.inlineBanner
        when: slot.open
        restoreMode: Binding.RestoreNone
    }

    Behavior on implicitHeight {
        NumberAnimation { duration: slot.open ? slot.entering : slot.leaving; easing.type: Easing.OutQuad }
    }

    Behavior on opacity {
        NumberAnimation { duration: slot.open ? slot.entering : slot.leaving; easing.type: Easing.OutQuad }
    }

    InlineBannerView {
        id: content

        objectName: "inlineBanner"
        width: parent.width
        anchors.bottom: parent.bottom
        banner: slot.lastShown
        visible: slot.implicitHeight > 0
        onDismissed: slot.view.dismissBanner()
    }
}
