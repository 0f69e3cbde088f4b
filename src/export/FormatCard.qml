import QtQuick
import QtQuick.Templates as T
import Tessarine.Controls
import Tessarine.Theme

// One of the formats to choose from.
T.RadioButton {
    id: card

    required property string title
    required property string symbol
    required property bool isSelected

    signal tap()

    implicitHeight: 84
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    checked: isSelected
    Accessible.name: title
    Accessible.onPressAction: tap()
    Accessible.onToggleAction: tap()
    onClicked: tap()

    background: Rectangle {
        radius: Metrics.cornerRadius
        color: Theme.colours.controlBackground
        border.width: card.isSelected ? 2 : Metrics.hairline
        border.color: card.isSelected ? Theme.colours.accent : Theme.colours.controlBorder

        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: card.down ? Theme.colours.pressedFill : Theme.colours.hoverFill
            visible: card.down || card.hovered
        }

        FocusRing {
            innerRadius: parent.radius
            visible: card.visualFocus
        }
    }

    contentItem: Item {
        Column {
            anchors.centerIn: parent
            width: parent.width
            spacing: Metrics.spacingMedium

            SymbolImage {
                anchors.horizontalCenter: parent.horizontalCenter
                symbol: card.symbol
                size: 26
                tint: card.isSelected ? Theme.colours.accent : Theme.colours.secondaryLabel
            }

            PlainLabel {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: card.title
                font.weight: Font.Medium
                color: card.isSelected ? Theme.colours.label : Theme.colours.secondaryLabel
                Accessible.ignored: true
            }
        }
    }
}
