import QtQuick
import Tessarine.Browser
import Tessarine.Theme

// The room of the inline banner: it opens from the top edge, and closes more slowly, but at once by
// the banner's own button.
Item {
    id: slot

    required property Overlays overlays

    readonly property int entering: 200 * Metrics.pace
    readonly property int leaving: 300 * Metrics.pace
    readonly property bool open: overlays.hasInlineBanner

    property bool leavesAtOnce: false

    function dismiss() {
        leavesAtOnce = true;
        overlays.dismissBanner();
        leavesAtOnce = false;
    }

    // What was shown last stays while the banner leaves.
    property inlineBanner lastShown

    implicitHeight: open ? content.implicitHeight : 0
    opacity: open ? 1 : 0
    clip: true

    Binding on lastShown {
        value: slot.overlays.inlineBanner
        when: slot.open
        restoreMode: Binding.RestoreNone
    }

    Behavior on implicitHeight {
        enabled: !slot.leavesAtOnce

        NumberAnimation { duration: slot.open ? slot.entering : slot.leaving; easing.type: Easing.OutQuad }
    }

    Behavior on opacity {
        enabled: !slot.leavesAtOnce

        NumberAnimation { duration: slot.open ? slot.entering : slot.leaving; easing.type: Easing.OutQuad }
    }

    InlineBannerView {
        id: content

        objectName: "inlineBanner"
        width: parent.width
        anchors.bottom: parent.bottom
        banner: slot.lastShown
        visible: slot.implicitHeight > 0
        onDismissed: slot.dismiss()
    }
}
