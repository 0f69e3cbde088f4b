import QtQuick

// One answer to an AlertDialog.
QtObject {
    enum Role { Regular, Default, Cancel, Destructive }

    required property string text
    property int role: AlertAction.Regular

    signal triggered()
}
