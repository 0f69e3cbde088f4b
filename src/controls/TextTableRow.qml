import QtQuick

// One row of a TextTable.
QtObject {
    required property list<string> cells
}
