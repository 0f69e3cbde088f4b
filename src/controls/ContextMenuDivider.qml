import QtQuick
import QtQuick.Templates as T
import Tessarine.Theme

// A line between entries of a ContextMenu.
T.MenuSeparator {
    implicitWidth: Metrics.spacingHuge
    implicitHeight: Metrics.spacingSmall * 2 + Metrics.hairline
    height: visible ? implicitHeight : 0
    verticalPadding: Metrics.spacingSmall
    horizontalPadding: Metrics.spacingMedium
    Accessible.ignored: true

    contentItem: HorizontalDivider {}
}
