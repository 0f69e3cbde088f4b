pragma ComponentBehavior: Bound

import QtQuick
import Tessarine.Controls
import Tessarine.Diagnostics
import Tessarine.Theme

// The figures of the hoard, and what can be done with it.
Column {
    id: section

    required property DatabaseSectionView database

    readonly property int widthOfThreeCells: 680
    readonly property int widthOfSixCells: 1400

    spacing: Metrics.spacingMedium

    Item {
        width: parent.width
        height: Metrics.controlHeight

        SymbolImage {
            id: icon

            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            symbol: "cylinder.split.1x2"
            size: Metrics.symbolSize
            tint: Theme.colours.secondaryLabel
        }

        PlainLabel {
            anchors.left: icon.right
            anchors.leftMargin: Metrics.spacingMedium
            anchors.verticalCenter: parent.verticalCenter
            text: qsTrId("diag.db.header")
            font.pixelSize: Metrics.textHeadline
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        IconButton {
            objectName: "refresh"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            symbol: "arrow.clockwise"
            accessibleName: qsTrId("diag.db.refresh.help")
            toolTipText: qsTrId("diag.db.refresh.help")
            tint: Theme.colours.secondaryLabel
            onClicked: section.database.refresh()
        }
    }

    Grid {
        id: cells

        objectName: "cells"
        width: parent.width
        columns: width < section.widthOfThreeCells ? 2 : width < section.widthOfSixCells ? 3 : 6
        columnSpacing: Metrics.spacingWide

        Repeater {
            model: section.database.cells

            DBStatCell {
                required property dbStatCellContent modelData
                required property int index

                objectName: "cell" + index
                content: modelData
                width: (cells.width - (cells.columns - 1) * cells.columnSpacing) / cells.columns
            }
        }
    }

    Flow {
        width: parent.width
        spacing: Metrics.spacingMedium

        ActionButton {
            objectName: "verifyIntegrity"
            text: qsTrId("diag.db.verifyIntegrity")
            symbolName: "checkmark.shield"
            tint: "#81C784"
            busy: section.database.isCheckingIntegrity
            onClicked: section.database.verifyIntegrity()
        }

        ActionButton {
            objectName: "createBackup"
            text: qsTrId("diag.db.createBackup")
            symbolName: "square.and.arrow.down"
            tint: "#4FC3F7"
            busy: section.database.isCreatingBackup
            onClicked: section.database.createBackup()
        }

        ActionButton {
            objectName: "copyReport"
            text: qsTrId("diag.report.copy")
            symbolName: "doc.on.clipboard"
            tint: "#CE93D8"
            busy: section.database.isCopyingReport
            onClicked: section.database.copyReport()
        }

        ActionButton {
            objectName: "exportData"
            text: qsTrId("diag.export.data")
            symbolName: "tablecells"
            tint: "#4FC3F7"
            onClicked: section.database.exportData()
        }

        ActionButton {
            objectName: "exportReport"
            text: qsTrId("diag.report.exportReport")
            symbolName: "square.and.arrow.up"
            tint: "#90A4AE"
            busy: section.database.isExportingReport
            onClicked: section.database.exportReport()
        }
    }

    SwitchRow {
        objectName: "includeContent"
        anchors.left: parent.left
        width: Math.min(parent.width, 480)
        title: qsTrId("diag.report.includeContent")
        caption: qsTrId("diag.report.safeNote")
        checked: section.database.includeNotifContent
        onActivated: wanted => section.database.includeNotifContent = wanted
    }
}
