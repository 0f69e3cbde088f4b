import QtQuick
import Tessarine.Controls

// One step of an instruction.
NumberedStep {
    required property int n

    readonly property string words: text

    width: parent?.width ?? 0
    number: n
}
