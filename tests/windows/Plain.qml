import QtQuick

Item {
    required property string text
    implicitWidth: 300
    implicitHeight: 200
}
