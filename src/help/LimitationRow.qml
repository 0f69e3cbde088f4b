import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// One thing that the program can't do: how much it matters, what it is, and how to live with it.
Item {
    id: row

    enum Severity { Important, Minor, Info }

    required property int severity
    required property string title
    required property string description
    required property string workaround

    readonly property list<string> icons: ["exclamationmark.triangle.fill", "exclamationmark.circle", "info.circle"]
    readonly property list<color> inks: [Theme.colours.orange, Theme.colours.yellow, Theme.colours.blue]
    readonly property string words: title + "\n" + description + "\n" + workaround

    width: parent?.width ?? 0
    implicitHeight: texts.height + 2 * Metrics.spacingLarge
    Accessible.role: Accessible.StaticText
    Accessible.name: title
    Accessible.description: description + "\n" + "Workaround: " + workaround

    Rectangle {
        anchors.fill: parent
        radius: Metrics.cornerRadius
        color: Theme.colours.controlBackground
    }

    SymbolImage {
        id: image

        objectName: "severity"
        anchors.left: parent.left
        anchors.leftMargin: Metrics.spacingLarge
        y: Metrics.spacingLarge
        symbol: row.icons[row.severity]
        size: Metrics.badgeSize
        tint: row.inks[row.severity]
    }

    Column {
        id: texts

        anchors.left: image.right
        anchors.leftMargin: Metrics.spacingLarge
        anchors.right: parent.right
        anchors.rightMargin: Metrics.spacingLarge
        y: Metrics.spacingLarge
        spacing: Metrics.spacingSmall

        PlainLabel {
            width: parent.width
            text: row.title
            font.pixelSize: Metrics.textHeadline
            font.weight: Font.DemiBold
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }

        PlainLabel {
            width: parent.width
            text: row.description
            lineHeight: 1.25
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }

        PlainLabel {
            objectName: "workaround"
            width: parent.width
            text: "**Workaround:** " + row.workaround
            color: Theme.colours.secondaryLabel
            textFormat: Text.MarkdownText
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
}
