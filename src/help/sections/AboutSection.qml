import QtQuick
import Tessarine.Controls
import Tessarine.Help
import Tessarine.Theme

// Which version runs, whose work is in it, and the agreement.
HelpPage {
    id: page

    property bool showEULA: false

    HelpTitle { text: qsTrId("help.about.title") }

    Item {
        readonly property string words: name.text + "\n" + version.text

        width: parent?.width ?? 0
        height: icon.height
        Accessible.role: Accessible.StaticText
        Accessible.name: name.text
        Accessible.description: version.text

        Image {
            id: icon

            anchors.left: parent.left
            width: 64
            height: 64
            sourceSize.width: 64
            sourceSize.height: 64
            source: "qrc:/icons/com.zorvek.Tessarine.svg"
            Accessible.ignored: true
        }

        Column {
            anchors.left: icon.right
            anchors.leftMargin: Metrics.spacingWide
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            spacing: Metrics.spacingSmall

            PlainLabel {
                id: name

                width: parent.width
                text: "Tessarine"
                font.pixelSize: Metrics.textTitle
                font.weight: Font.DemiBold
                Accessible.ignored: true
            }

            PlainLabel {
                id: version

                objectName: "version"
                width: parent.width
                text: "Version " + page.view.version
                color: Theme.colours.secondaryLabel
                font.pixelSize: Metrics.textHeadline
                Accessible.ignored: true
            }
        }
    }

    HelpHeading { text: qsTrId("help.about.h.acknowledgements") }

    HelpRow {
        icon: "arrow.up.circle.fill"
        color: Theme.colours.accent
        title: "Sparkle 2.9.0"
        description: qsTrId("help.about.sparkle.credit")
    }

    HelpHeading { text: qsTrId("help.about.h.eula") }

    HelpRow {
        icon: "checkmark.circle.fill"
        color: Theme.colours.green
        title: qsTrId("help.about.eula.accepted")
    }

    TextButton {
        objectName: "reviewAgreement"
        anchors.left: parent.left
        text: qsTrId("help.about.eula.reviewBtn")
        enabled: page.view.agreementText
        onClicked: page.showEULA = true
    }

    AgreementSheet {
        agreementText: page.view.agreementText
        visible: page.showEULA
        onClosed: page.showEULA = false
    }
}
