import QtQuick

// One tab of a TabStrip. Without a symbol it is its text alone.
QtObject {
    required property string text
    property string symbol
}
