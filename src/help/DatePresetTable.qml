import QtQuick
import Tessarine.Controls

// What each range of dates holds.
HelpTable {
    accessibleName: qsTrId("help.selectDelete.h.datePresets")
    headers: [qsTrId("toolbar.group.byDate"), "Effect"]

    TextTableRow { cells: [qsTrId("datePreset.yesterday"), "Full previous day"] }
    TextTableRow { cells: [qsTrId("datePreset.last7days"), "Rolling 7-day window"] }
    TextTableRow { cells: [qsTrId("datePreset.last30days"), "Rolling 30-day window"] }
    TextTableRow { cells: [qsTrId("datePreset.thisMonth"), "1st of current month to now"] }
    TextTableRow { cells: [qsTrId("datePreset.lastMonth"), "Full previous calendar month"] }
    TextTableRow { cells: [qsTrId("datePreset.thisYear"), "1st January to now"] }
}
