import QtQuick
import Tessarine.Controls
import Tessarine.Theme

// Every symbol at the sizes that the windows use.
Rectangle {
    id: scene

    property var log: []
    property var names: []

    width: 900
    height: 560
    color: Theme.colours.windowBackground

    Flow {
        anchors.fill: parent
        anchors.margins: 16
        spacing: 8

        Repeater {
            model: scene.names

            Column {
                id: cell

                required property string modelData

                width: 136
                spacing: 4

                Row {
                    spacing: 6
                    Repeater {
                        model: [10, 12, 14, 16, 20, 32]
                        SymbolImage {
                            required property int modelData
                            anchors.verticalCenter: parent.verticalCenter
                            symbol: cell.modelData
                            size: modelData
                        }
                    }
                }

                PlainLabel {
                    width: parent.width
                    text: cell.modelData
                    font.pixelSize: Metrics.textTiny
                    color: Theme.colours.secondaryLabel
                }
            }
        }
    }
}
