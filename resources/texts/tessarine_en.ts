<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="action.cancel">
        <source>action.cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="action.close">
        <source>action.close</source>
        <translation>Close</translation>
    </message>
    <message id="action.continue">
        <source>action.continue</source>
        <translation>Continue</translation>
    </message>
    <message id="action.done">
        <source>action.done</source>
        <translation>Done</translation>
    </message>
    <message id="action.ok">
        <source>action.ok</source>
        <translation>OK</translation>
    </message>
    <message id="banner.deepLink.subtitle">
        <source>banner.deepLink.subtitle</source>
        <translation>The app shows the place this notification is about.</translation>
    </message>
    <message id="banner.deepLink.title">
        <source>banner.deepLink.title</source>
        <translation>Opened in %1</translation>
    </message>
    <message id="banner.notInstalled.subtitle">
        <source>banner.notInstalled.subtitle</source>
        <translation>No app called %1 was found to open.</translation>
    </message>
    <message id="banner.notInstalled.title">
        <source>banner.notInstalled.title</source>
        <translation>%1 is not on this computer</translation>
    </message>
    <message id="banner.notInstalled.unknownSubtitle">
        <source>banner.notInstalled.unknownSubtitle</source>
        <translation>The system names it only as %1.</translation>
    </message>
    <message id="banner.notInstalled.unknownTitle">
        <source>banner.notInstalled.unknownTitle</source>
        <translation>The app is not known</translation>
    </message>
    <message id="contextMenu.copyNotification">
        <source>contextMenu.copyNotification</source>
        <translation>Copy Text</translation>
    </message>
    <message id="contextMenu.deleteAllCount" numerus="yes">
        <source>contextMenu.deleteAllCount</source>
        <translation>
            <numerusform>Delete %Ln Notification</numerusform>
            <numerusform>Delete All %Ln Notifications</numerusform>
        </translation>
    </message>
    <message id="contextMenu.deleteAllFrom">
        <source>contextMenu.deleteAllFrom</source>
        <translation>Delete All from %1</translation>
    </message>
    <message id="contextMenu.deleteAllFromDate">
        <source>contextMenu.deleteAllFromDate</source>
        <translation>Delete All from %1</translation>
    </message>
    <message id="contextMenu.deleteThis">
        <source>contextMenu.deleteThis</source>
        <translation>Delete This Notification</translation>
    </message>
    <message id="contextMenu.openInApp">
        <source>contextMenu.openInApp</source>
        <translation>Open %1</translation>
    </message>
    <message id="contextMenu.pinNotification">
        <source>contextMenu.pinNotification</source>
        <translation>Pin</translation>
    </message>
    <message id="contextMenu.unpinNotification">
        <source>contextMenu.unpinNotification</source>
        <translation>Unpin</translation>
    </message>
    <message id="datePopover.footer">
        <source>datePopover.footer</source>
        <translation>Choices add up: each one adds its notifications to the selection.</translation>
    </message>
    <message id="datePopover.noData">
        <source>datePopover.noData</source>
        <translation>No days to choose from yet</translation>
    </message>
    <message id="datePopover.quickRanges">
        <source>datePopover.quickRanges</source>
        <translation>Ranges</translation>
    </message>
    <message id="datePopover.specificDays">
        <source>datePopover.specificDays</source>
        <translation>Days</translation>
    </message>
    <message id="datePopover.title">
        <source>datePopover.title</source>
        <translation>Select by Date</translation>
    </message>
    <message id="datePreset.last30days">
        <source>datePreset.last30days</source>
        <translation>Last 30 Days</translation>
    </message>
    <message id="datePreset.last7days">
        <source>datePreset.last7days</source>
        <translation>Last 7 Days</translation>
    </message>
    <message id="datePreset.lastMonth">
        <source>datePreset.lastMonth</source>
        <translation>Last Month</translation>
    </message>
    <message id="datePreset.thisMonth">
        <source>datePreset.thisMonth</source>
        <translation>This Month</translation>
    </message>
    <message id="datePreset.thisYear">
        <source>datePreset.thisYear</source>
        <translation>This Year</translation>
    </message>
    <message id="datePreset.today">
        <source>datePreset.today</source>
        <translation>Today</translation>
    </message>
    <message id="datePreset.yesterday">
        <source>datePreset.yesterday</source>
        <translation>Yesterday</translation>
    </message>
    <message id="diag.busy">
        <source>diag.busy</source>
        <translation>In progress</translation>
    </message>
    <message id="diag.db.apps">
        <source>diag.db.apps</source>
        <translation>Apps</translation>
    </message>
    <message id="diag.db.backup.fail">
        <source>diag.db.backup.fail</source>
        <translation>Backup failed: %1</translation>
    </message>
    <message id="diag.db.backup.panelTitle">
        <source>diag.db.backup.panelTitle</source>
        <translation>Back Up the Hoard</translation>
    </message>
    <message id="diag.db.backup.saveBtn">
        <source>diag.db.backup.saveBtn</source>
        <translation>Back Up</translation>
    </message>
    <message id="diag.db.backup.success">
        <source>diag.db.backup.success</source>
        <translation>Backup saved to %1</translation>
    </message>
    <message id="diag.db.createBackup">
        <source>diag.db.createBackup</source>
        <translation>Create Backup…</translation>
    </message>
    <message id="diag.db.first">
        <source>diag.db.first</source>
        <translation>First</translation>
    </message>
    <message id="diag.db.header">
        <source>diag.db.header</source>
        <translation>Hoard</translation>
    </message>
    <message id="diag.db.integrity.fail">
        <source>diag.db.integrity.fail</source>
        <translation>Integrity check found problems: %1</translation>
    </message>
    <message id="diag.db.integrity.pass">
        <source>diag.db.integrity.pass</source>
        <translation>Integrity check passed</translation>
    </message>
    <message id="diag.db.last">
        <source>diag.db.last</source>
        <translation>Last</translation>
    </message>
    <message id="diag.db.pinned">
        <source>diag.db.pinned</source>
        <translation>Pinned</translation>
    </message>
    <message id="diag.db.records">
        <source>diag.db.records</source>
        <translation>Records</translation>
    </message>
    <message id="diag.db.refresh.help">
        <source>diag.db.refresh.help</source>
        <translation>Count the hoard again</translation>
    </message>
    <message id="diag.db.size">
        <source>diag.db.size</source>
        <translation>Size</translation>
    </message>
    <message id="diag.db.verifyIntegrity">
        <source>diag.db.verifyIntegrity</source>
        <translation>Verify Integrity</translation>
    </message>
    <message id="diag.export.data">
        <source>diag.export.data</source>
        <translation>Export Data…</translation>
    </message>
    <message id="diag.level.activity">
        <source>diag.level.activity</source>
        <translation>activity</translation>
    </message>
    <message id="diag.level.info">
        <source>diag.level.info</source>
        <translation>information</translation>
    </message>
    <message id="diag.level.success">
        <source>diag.level.success</source>
        <translation>success</translation>
    </message>
    <message id="diag.level.warning">
        <source>diag.level.warning</source>
        <translation>warning</translation>
    </message>
    <message id="diag.log.clear">
        <source>diag.log.clear</source>
        <translation>Clear the log</translation>
    </message>
    <message id="diag.log.clearFilter">
        <source>diag.log.clearFilter</source>
        <translation>Clear the filter</translation>
    </message>
    <message id="diag.log.filtered">
        <source>diag.log.filtered</source>
        <translation>No line of the log passes the filter.</translation>
    </message>
    <message id="diag.log.list">
        <source>diag.log.list</source>
        <translation>Log</translation>
    </message>
    <message id="diag.log.only">
        <source>diag.log.only</source>
        <translation>Only %1</translation>
    </message>
    <message id="diag.report.copied">
        <source>diag.report.copied</source>
        <translation>Report copied to the clipboard</translation>
    </message>
    <message id="diag.report.copy">
        <source>diag.report.copy</source>
        <translation>Copy Report</translation>
    </message>
    <message id="diag.report.export.fail">
        <source>diag.report.export.fail</source>
        <translation>Report could not be exported: %1</translation>
    </message>
    <message id="diag.report.export.panelTitle">
        <source>diag.report.export.panelTitle</source>
        <translation>Export Diagnostics Report</translation>
    </message>
    <message id="diag.report.export.saveBtn">
        <source>diag.report.export.saveBtn</source>
        <translation>Export</translation>
    </message>
    <message id="diag.report.exportReport">
        <source>diag.report.exportReport</source>
        <translation>Export Report…</translation>
    </message>
    <message id="diag.report.exported">
        <source>diag.report.exported</source>
        <translation>Report exported as %1</translation>
    </message>
    <message id="diag.report.includeContent">
        <source>diag.report.includeContent</source>
        <translation>Include notification content in exported reports</translation>
    </message>
    <message id="diag.report.safeNote">
        <source>diag.report.safeNote</source>
        <translation>When off, lines of the log that quote a notification name its app only. A copied report holds the log as it is.</translation>
    </message>
    <message id="excludedApps.confirm.excludeAndDelete">
        <source>excludedApps.confirm.excludeAndDelete</source>
        <translation>Exclude and Delete</translation>
    </message>
    <message id="excludedApps.confirm.excludeOnly">
        <source>excludedApps.confirm.excludeOnly</source>
        <translation>Exclude Only</translation>
    </message>
    <message id="excludedApps.confirm.message">
        <source>excludedApps.confirm.message</source>
        <translation>New notifications of %1 will not be kept. You can also delete all that the hoard has under this name.</translation>
    </message>
    <message id="excludedApps.confirm.title">
        <source>excludedApps.confirm.title</source>
        <translation>Exclude %1?</translation>
    </message>
    <message id="excludedApps.empty.subtitle">
        <source>excludedApps.empty.subtitle</source>
        <translation>An app is listed here once one of its notifications was kept.</translation>
    </message>
    <message id="excludedApps.empty.title">
        <source>excludedApps.empty.title</source>
        <translation>No apps yet</translation>
    </message>
    <message id="excludedApps.footer.count" numerus="yes">
        <source>excludedApps.footer.count</source>
        <translation>
            <numerusform>%Ln app is excluded</numerusform>
            <numerusform>%Ln apps are excluded</numerusform>
        </translation>
    </message>
    <message id="excludedApps.subtitle">
        <source>excludedApps.subtitle</source>
        <translation>Turn an app on to stop keeping its notifications.</translation>
    </message>
    <message id="excludedApps.title">
        <source>excludedApps.title</source>
        <translation>Excluded Apps</translation>
    </message>
    <message id="export.close">
        <source>export.close</source>
        <translation>Close</translation>
    </message>
    <message id="export.count" numerus="yes">
        <source>export.count</source>
        <translation>
            <numerusform>%n notification</numerusform>
            <numerusform>%n notifications</numerusform>
        </translation>
    </message>
    <message id="export.done">
        <source>export.done</source>
        <translation>Done. Here comes your file.</translation>
    </message>
    <message id="export.exportAs">
        <source>export.exportAs</source>
        <translation>Export as %1</translation>
    </message>
    <message id="export.exporting">
        <source>export.exporting</source>
        <translation>Exporting…</translation>
    </message>
    <message id="export.format.csv.desc">
        <source>export.format.csv.desc</source>
        <translation>One row for each notification, for spreadsheets.</translation>
    </message>
    <message id="export.format.header">
        <source>export.format.header</source>
        <translation>Format</translation>
    </message>
    <message id="export.format.pdf.desc">
        <source>export.format.pdf.desc</source>
        <translation>A report to print or pass on, with a summary by app.</translation>
    </message>
    <message id="export.format.txt.desc">
        <source>export.format.txt.desc</source>
        <translation>A plain text to read, day by day.</translation>
    </message>
    <message id="export.plaintextWarning">
        <source>export.plaintextWarning</source>
        <translation>Anyone who can open the file can read it. Keep it in a safe place.</translation>
    </message>
    <message id="export.privacy.confirmMessage">
        <source>export.privacy.confirmMessage</source>
        <translation>Titles and messages that Tessarine hides will be written into the file as they are. Anyone who opens it can read them.</translation>
    </message>
    <message id="export.privacy.confirmTitle">
        <source>export.privacy.confirmTitle</source>
        <translation>Include hidden content?</translation>
    </message>
    <message id="export.privacy.header">
        <source>export.privacy.header</source>
        <translation>Privacy</translation>
    </message>
    <message id="export.privacy.includeHidden">
        <source>export.privacy.includeHidden</source>
        <translation>Include hidden content</translation>
    </message>
    <message id="export.privacy.includeHidden.caption">
        <source>export.privacy.includeHidden.caption</source>
        <translation>Otherwise titles and messages are written as “[hidden]”.</translation>
    </message>
    <message id="export.privacy.includeHidden.warning">
        <source>export.privacy.includeHidden.warning</source>
        <translation>The file will show everything that Tessarine hides.</translation>
    </message>
    <message id="export.privacy.includeReal">
        <source>export.privacy.includeReal</source>
        <translation>Include Content</translation>
    </message>
    <message id="export.privacy.keepHidden">
        <source>export.privacy.keepHidden</source>
        <translation>Keep Hidden</translation>
    </message>
    <message id="export.title">
        <source>export.title</source>
        <translation>Export Notifications</translation>
    </message>
    <message id="group.collapse">
        <source>group.collapse</source>
        <translation>Hide %1</translation>
    </message>
    <message id="group.expand">
        <source>group.expand</source>
        <translation>Show %1</translation>
    </message>
    <message id="help.about.eula.accepted">
        <source>help.about.eula.accepted</source>
        <translation>You accepted the agreement at the first start.</translation>
    </message>
    <message id="help.about.eula.reviewBtn">
        <source>help.about.eula.reviewBtn</source>
        <translation>Review Agreement</translation>
    </message>
    <message id="help.about.h.acknowledgements">
        <source>help.about.h.acknowledgements</source>
        <translation>Acknowledgements</translation>
    </message>
    <message id="help.about.h.eula">
        <source>help.about.h.eula</source>
        <translation>End-user agreement</translation>
    </message>
    <message id="help.about.sparkle.credit">
        <source>help.about.sparkle.credit</source>
        <translation>On macOS, the open-source library Sparkle brings Tessarine’s updates. Thanks to its authors.</translation>
    </message>
    <message id="help.about.title">
        <source>help.about.title</source>
        <translation>About</translation>
    </message>
    <message id="help.diagnostics.h.clear">
        <source>help.diagnostics.h.clear</source>
        <translation>Clearing and reports</translation>
    </message>
    <message id="help.diagnostics.h.filtering">
        <source>help.diagnostics.h.filtering</source>
        <translation>Filtering</translation>
    </message>
    <message id="help.diagnostics.h.liveLog">
        <source>help.diagnostics.h.liveLog</source>
        <translation>Live log</translation>
    </message>
    <message id="help.diagnostics.h.statusCards">
        <source>help.diagnostics.h.statusCards</source>
        <translation>Status</translation>
    </message>
    <message id="help.diagnostics.p.clear">
        <source>help.diagnostics.p.clear</source>
        <translation>The trash button empties the log; the hoard is not touched. A report for a bug can be copied or saved. A saved one names the app of a notification and leaves its content out, unless you switch that on; a copied one holds the log as it is.</translation>
    </message>
    <message id="help.diagnostics.p.filtering">
        <source>help.diagnostics.p.filtering</source>
        <translation>Click the name of a part to see only its lines, and again to see all. The search field looks into the messages and the names.</translation>
    </message>
    <message id="help.diagnostics.p.intro">
        <source>help.diagnostics.p.intro</source>
        <translation>This window shows Tessarine at work. Click the bell with Option held to open it. Its content is in memory only and is gone when Tessarine quits.</translation>
    </message>
    <message id="help.diagnostics.p.liveLog">
        <source>help.diagnostics.p.liveLog</source>
        <translation>Each line has a time, the part of the program that wrote it, a sign for its weight, and what happened. The newest line is on top; the last 200 are kept.</translation>
    </message>
    <message id="help.diagnostics.title">
        <source>help.diagnostics.title</source>
        <translation>Diagnostics</translation>
    </message>
    <message id="help.exporting.format.csv.desc">
        <source>help.exporting.format.csv.desc</source>
        <translation>One line for each notification: date, time, app, bundle ID, title and text. The separator is the semicolon, the encoding UTF-8.</translation>
    </message>
    <message id="help.exporting.format.csv.title">
        <source>help.exporting.format.csv.title</source>
        <translation>CSV</translation>
    </message>
    <message id="help.exporting.format.pdf.desc">
        <source>help.exporting.format.pdf.desc</source>
        <translation>A report to print or pass on, with a summary by app.</translation>
    </message>
    <message id="help.exporting.format.pdf.title">
        <source>help.exporting.format.pdf.title</source>
        <translation>PDF Report</translation>
    </message>
    <message id="help.exporting.format.xlsx.desc">
        <source>help.exporting.format.xlsx.desc</source>
        <translation>There is no format of its own for them: spreadsheet programs open the CSV file. A cell holds exactly what the notification said, even if it looks like a formula.</translation>
    </message>
    <message id="help.exporting.format.xlsx.title">
        <source>help.exporting.format.xlsx.title</source>
        <translation>Spreadsheets</translation>
    </message>
    <message id="help.exporting.h.formats">
        <source>help.exporting.h.formats</source>
        <translation>Formats</translation>
    </message>
    <message id="help.exporting.h.naming">
        <source>help.exporting.h.naming</source>
        <translation>Name and place</translation>
    </message>
    <message id="help.exporting.h.numbersExcel">
        <source>help.exporting.h.numbersExcel</source>
        <translation>Numbers and Excel</translation>
    </message>
    <message id="help.exporting.h.privacy">
        <source>help.exporting.h.privacy</source>
        <translation>Hidden content</translation>
    </message>
    <message id="help.exporting.p.intro">
        <source>help.exporting.p.intro</source>
        <translation>The export button above the list writes what is loaded into a file, in one of three formats: Text, CSV or PDF Report. Search, filter and selection don’t matter here. From the diagnostics window an export holds the first 500 notifications.</translation>
    </message>
    <message id="help.exporting.p.naming">
        <source>help.exporting.p.naming</source>
        <translation>The suggested name is Tessarine_ and today’s date, for example Tessarine_2026-03-03.csv. You choose the folder. Only your user account may read the file.</translation>
    </message>
    <message id="help.exporting.p.numbers">
        <source>help.exporting.p.numbers</source>
        <translation>Numbers opens the CSV file by a double-click. If Excel shows everything in one column, import the file as text and choose the semicolon as the separator.</translation>
    </message>
    <message id="help.exporting.p.privacy">
        <source>help.exporting.p.privacy</source>
        <translation>Titles and texts that Tessarine hides are written as “[hidden]”. While the content of all apps is hidden, a switch offers to include it, and asks once more.</translation>
    </message>
    <message id="help.exporting.title">
        <source>help.exporting.title</source>
        <translation>Exporting</translation>
    </message>
    <message id="help.find.none">
        <source>help.find.none</source>
        <translation>No matches</translation>
    </message>
    <message id="help.find.none.detail">
        <source>help.find.none.detail</source>
        <translation>No section of the help holds these words.</translation>
    </message>
    <message id="help.find.placeholder">
        <source>help.find.placeholder</source>
        <translation>Search Help</translation>
    </message>
    <message id="help.hoard.contextMenu.0">
        <source>help.hoard.contextMenu.0</source>
        <translation>Copy Text: puts title and text on the clipboard.</translation>
    </message>
    <message id="help.hoard.contextMenu.1">
        <source>help.hoard.contextMenu.1</source>
        <translation>Delete This Notification: at once, without a question.</translation>
    </message>
    <message id="help.hoard.contextMenu.2">
        <source>help.hoard.contextMenu.2</source>
        <translation>Delete All from this app: every notification with the same app name, also those that are not loaded. At once.</translation>
    </message>
    <message id="help.hoard.contextMenu.3">
        <source>help.hoard.contextMenu.3</source>
        <translation>Delete All from this day: also those that are not loaded. At once.</translation>
    </message>
    <message id="help.hoard.contextMenu.openInApp">
        <source>help.hoard.contextMenu.openInApp</source>
        <translation>Open: the same as a double-click.</translation>
    </message>
    <message id="help.hoard.contextMenu.pin">
        <source>help.hoard.contextMenu.pin</source>
        <translation>Pin, or Unpin: a pinned notification is always loaded. Pinning doesn’t protect it from deletion.</translation>
    </message>
    <message id="help.hoard.h.clicking">
        <source>help.hoard.h.clicking</source>
        <translation>What a double-click leads to</translation>
    </message>
    <message id="help.hoard.h.contextMenu">
        <source>help.hoard.h.contextMenu</source>
        <translation>The menu of a row</translation>
    </message>
    <message id="help.hoard.h.interactions">
        <source>help.hoard.h.interactions</source>
        <translation>Mouse and keyboard</translation>
    </message>
    <message id="help.hoard.h.rows">
        <source>help.hoard.h.rows</source>
        <translation>What a row shows</translation>
    </message>
    <message id="help.hoard.p.interaction.click">
        <source>help.hoard.p.interaction.click</source>
        <translation>Click: marks the row. If its content is hidden, the first click reveals it.</translation>
    </message>
    <message id="help.hoard.p.interaction.cmdC">
        <source>help.hoard.p.interaction.cmdC</source>
        <translation>Command-C: copies title and text of the marked notification.</translation>
    </message>
    <message id="help.hoard.p.interaction.doubleClick">
        <source>help.hoard.p.interaction.doubleClick</source>
        <translation>Double-click: opens the app that sent the notification.</translation>
    </message>
    <message id="help.hoard.p.interaction.esc">
        <source>help.hoard.p.interaction.esc</source>
        <translation>Escape: takes the mark away.</translation>
    </message>
    <message id="help.hoard.p.interaction.space">
        <source>help.hoard.p.interaction.space</source>
        <translation>Space: shows the marked notification in full, and closes that view again.</translation>
    </message>
    <message id="help.hoard.p.rows">
        <source>help.hoard.p.rows</source>
        <translation>Each row has the icon and name of the app, the title, the text and the time of a notification. A pin marks a pinned row, a lock one whose content is hidden. Pinned rows stay among the others at their own time; they are loaded first, however old they are.</translation>
    </message>
    <message id="help.hoard.title">
        <source>help.hoard.title</source>
        <translation>The Hoard</translation>
    </message>
    <message id="help.howItWorks.h.layersTogether">
        <source>help.howItWorks.h.layersTogether</source>
        <translation>What each way catches</translation>
    </message>
    <message id="help.howItWorks.h.localStorage">
        <source>help.howItWorks.h.localStorage</source>
        <translation>Where the hoard is</translation>
    </message>
    <message id="help.howItWorks.h.sleepWake">
        <source>help.howItWorks.h.sleepWake</source>
        <translation>Sleep and wake</translation>
    </message>
    <message id="help.howItWorks.h.threeLayers">
        <source>help.howItWorks.h.threeLayers</source>
        <translation>Three ways to a notification</translation>
    </message>
    <message id="help.howItWorks.layer.ax.desc">
        <source>help.howItWorks.layer.ax.desc</source>
        <translation>Through Accessibility, Tessarine reads each banner off the screen, at most once a second. This is the fastest way, and it needs no access to files.</translation>
    </message>
    <message id="help.howItWorks.layer.ax.title">
        <source>help.howItWorks.layer.ax.title</source>
        <translation>Banners</translation>
    </message>
    <message id="help.howItWorks.layer.legacy.desc">
        <source>help.howItWorks.layer.legacy.desc</source>
        <translation>Older versions of macOS kept notifications in another file. Where that file is there and can be read, Tessarine reads it at start and whenever it is written.</translation>
    </message>
    <message id="help.howItWorks.layer.legacy.title">
        <source>help.howItWorks.layer.legacy.title</source>
        <translation>The database of older systems</translation>
    </message>
    <message id="help.howItWorks.layer.usernoted.desc">
        <source>help.howItWorks.layer.usernoted.desc</source>
        <translation>With Full Disk Access, Tessarine reads the database in which macOS keeps recent notifications: at start, whenever it is written, and every 30 seconds. So it also finds what was never shown as a banner.</translation>
    </message>
    <message id="help.howItWorks.layer.usernoted.title">
        <source>help.howItWorks.layer.usernoted.title</source>
        <translation>The system’s database</translation>
    </message>
    <message id="help.howItWorks.p.sleep">
        <source>help.howItWorks.p.sleep</source>
        <translation>Before the computer sleeps, Tessarine stops watching banners. Two seconds after it wakes, it begins again, and the next look into the database brings what came meanwhile.</translation>
    </message>
    <message id="help.howItWorks.p.storage">
        <source>help.howItWorks.p.storage</source>
        <translation>Everything is in one file on your Mac, ~/Library/Application Support/Tessarine/hoard.db, which only your user account may read. Tessarine has no server and no account and sends your notifications to nobody.</translation>
    </message>
    <message id="help.howItWorks.p1">
        <source>help.howItWorks.p1</source>
        <translation>The system forgets notifications within days. Tessarine copies each one into an archive of its own, the hoard, where it stays until you delete it. It sits in the menu bar and works for as long as it runs.</translation>
    </message>
    <message id="help.howItWorks.title">
        <source>help.howItWorks.title</source>
        <translation>How It Works</translation>
    </message>
    <message id="help.iphone.h.howToEnable">
        <source>help.iphone.h.howToEnable</source>
        <translation>On the iPhone, for each app</translation>
    </message>
    <message id="help.iphone.h.iphoneSettings">
        <source>help.iphone.h.iphoneSettings</source>
        <translation>When nothing comes</translation>
    </message>
    <message id="help.iphone.h.nativeMac">
        <source>help.iphone.h.nativeMac</source>
        <translation>Apps on the Mac and on the iPhone</translation>
    </message>
    <message id="help.iphone.h.requirements">
        <source>help.iphone.h.requirements</source>
        <translation>What it needs</translation>
    </message>
    <message id="help.iphone.h.routing">
        <source>help.iphone.h.routing</source>
        <translation>Where they come from</translation>
    </message>
    <message id="help.iphone.h.solution">
        <source>help.iphone.h.solution</source>
        <translation>iPhone Mirroring</translation>
    </message>
    <message id="help.iphone.p.nativeMac">
        <source>help.iphone.p.nativeMac</source>
        <translation>Tessarine sees what this Mac shows. An app that runs on the Mac announces here, and is captured.</translation>
    </message>
    <message id="help.iphone.p.nativeMac2">
        <source>help.iphone.p.nativeMac2</source>
        <translation>What only the iPhone shows never reaches the Mac and can’t be captured.</translation>
    </message>
    <message id="help.iphone.p.routing">
        <source>help.iphone.p.routing</source>
        <translation>A mirrored notification has the name of the iPhone’s app. If that app is not on the Mac, a double-click can’t open it and says so.</translation>
    </message>
    <message id="help.iphone.p.solution">
        <source>help.iphone.p.solution</source>
        <translation>With iPhone Mirroring the Mac shows the notifications of the iPhone as its own. Tessarine then captures them like all others.</translation>
    </message>
    <message id="help.iphone.req.appleId.desc">
        <source>help.iphone.req.appleId.desc</source>
        <translation>Mac and iPhone are signed in to the same account, with two-factor authentication.</translation>
    </message>
    <message id="help.iphone.req.appleId.title">
        <source>help.iphone.req.appleId.title</source>
        <translation>The same Apple Account</translation>
    </message>
    <message id="help.iphone.req.ios18.desc">
        <source>help.iphone.req.ios18.desc</source>
        <translation>Older systems have no iPhone Mirroring.</translation>
    </message>
    <message id="help.iphone.req.ios18.title">
        <source>help.iphone.req.ios18.title</source>
        <translation>iOS 18 and macOS 15, or later</translation>
    </message>
    <message id="help.iphone.req.notifs.desc">
        <source>help.iphone.req.notifs.desc</source>
        <translation>System Settings › Notifications › Allow notifications from iPhone is on.</translation>
    </message>
    <message id="help.iphone.req.notifs.title">
        <source>help.iphone.req.notifs.title</source>
        <translation>Notifications from iPhone</translation>
    </message>
    <message id="help.iphone.req.wifi.desc">
        <source>help.iphone.req.wifi.desc</source>
        <translation>Both are on, on both devices, and the devices are near each other.</translation>
    </message>
    <message id="help.iphone.req.wifi.title">
        <source>help.iphone.req.wifi.title</source>
        <translation>Wi-Fi and Bluetooth</translation>
    </message>
    <message id="help.iphone.title">
        <source>help.iphone.title</source>
        <translation>iPhone</translation>
    </message>
    <message id="help.iphone.walk.app.label">
        <source>help.iphone.walk.app.label</source>
        <translation>Tap the app whose notifications you want.</translation>
    </message>
    <message id="help.iphone.walk.app.screen">
        <source>help.iphone.walk.app.screen</source>
        <translation>The app</translation>
    </message>
    <message id="help.iphone.walk.hoard.label">
        <source>help.iphone.walk.hoard.label</source>
        <translation>The next notification appears on the Mac and lands in the hoard.</translation>
    </message>
    <message id="help.iphone.walk.hoard.screen">
        <source>help.iphone.walk.hoard.screen</source>
        <translation>On the Mac</translation>
    </message>
    <message id="help.iphone.walk.next">
        <source>help.iphone.walk.next</source>
        <translation>Next step</translation>
    </message>
    <message id="help.iphone.walk.notifications.label">
        <source>help.iphone.walk.notifications.label</source>
        <translation>Tap Notifications.</translation>
    </message>
    <message id="help.iphone.walk.notifications.screen">
        <source>help.iphone.walk.notifications.screen</source>
        <translation>Notifications</translation>
    </message>
    <message id="help.iphone.walk.pause">
        <source>help.iphone.walk.pause</source>
        <translation>Pause</translation>
    </message>
    <message id="help.iphone.walk.play">
        <source>help.iphone.walk.play</source>
        <translation>Play from the first step</translation>
    </message>
    <message id="help.iphone.walk.previous">
        <source>help.iphone.walk.previous</source>
        <translation>Previous step</translation>
    </message>
    <message id="help.iphone.walk.settings.label">
        <source>help.iphone.walk.settings.label</source>
        <translation>Open Settings on the iPhone.</translation>
    </message>
    <message id="help.iphone.walk.settings.screen">
        <source>help.iphone.walk.settings.screen</source>
        <translation>Settings</translation>
    </message>
    <message id="help.iphone.walk.showOnMac.label">
        <source>help.iphone.walk.showOnMac.label</source>
        <translation>Turn on Show on Mac.</translation>
    </message>
    <message id="help.iphone.walk.showOnMac.screen">
        <source>help.iphone.walk.showOnMac.screen</source>
        <translation>Show on Mac</translation>
    </message>
    <message id="help.lim.30entries.desc">
        <source>help.lim.30entries.desc</source>
        <translation>At start Tessarine takes all that the system’s database still has, back to 30 days at the first start. The system itself deletes early; often some 30 entries are left.</translation>
    </message>
    <message id="help.lim.30entries.title">
        <source>help.lim.30entries.title</source>
        <translation>The system keeps little</translation>
    </message>
    <message id="help.lim.30entries.workaround">
        <source>help.lim.30entries.workaround</source>
        <translation>Leave Tessarine running.</translation>
    </message>
    <message id="help.lim.appStore.desc">
        <source>help.lim.appStore.desc</source>
        <translation>Apps from the App Store may not watch others through Accessibility.</translation>
    </message>
    <message id="help.lim.appStore.title">
        <source>help.lim.appStore.title</source>
        <translation>Not in the App Store</translation>
    </message>
    <message id="help.lim.appStore.workaround">
        <source>help.lim.appStore.workaround</source>
        <translation>Get Tessarine and its updates from its makers.</translation>
    </message>
    <message id="help.lim.calendar.desc">
        <source>help.lim.calendar.desc</source>
        <translation>A reminder of a calendar stands at the time of its banner, not of the event. “Tomorrow at 9:30” stays in its text.</translation>
    </message>
    <message id="help.lim.calendar.title">
        <source>help.lim.calendar.title</source>
        <translation>Times of events</translation>
    </message>
    <message id="help.lim.calendar.workaround">
        <source>help.lim.calendar.workaround</source>
        <translation>Search for the day or the event in the text.</translation>
    </message>
    <message id="help.lim.exportPlain.desc">
        <source>help.lim.exportPlain.desc</source>
        <translation>No export has a password.</translation>
    </message>
    <message id="help.lim.exportPlain.title">
        <source>help.lim.exportPlain.title</source>
        <translation>Exports are plain files</translation>
    </message>
    <message id="help.lim.exportPlain.workaround">
        <source>help.lim.exportPlain.workaround</source>
        <translation>Keep exports on an encrypted disk, and delete those that you no longer need.</translation>
    </message>
    <message id="help.lim.focus.desc">
        <source>help.lim.focus.desc</source>
        <translation>While a Focus keeps banners back, the banner way sees nothing.</translation>
    </message>
    <message id="help.lim.focus.title">
        <source>help.lim.focus.title</source>
        <translation>Focus</translation>
    </message>
    <message id="help.lim.focus.workaround">
        <source>help.lim.focus.workaround</source>
        <translation>Grant Full Disk Access.</translation>
    </message>
    <message id="help.lim.iphoneOff.desc">
        <source>help.lim.iphoneOff.desc</source>
        <translation>An iPhone that is off or far away mirrors nothing.</translation>
    </message>
    <message id="help.lim.iphoneOff.title">
        <source>help.lim.iphoneOff.title</source>
        <translation>The iPhone must be on</translation>
    </message>
    <message id="help.lim.iphoneOff.workaround">
        <source>help.lim.iphoneOff.workaround</source>
        <translation>Keep it near the Mac, and charged.</translation>
    </message>
    <message id="help.lim.mirroringSetup.desc">
        <source>help.lim.mirroringSetup.desc</source>
        <translation>An app whose switch Show on Mac is off stays on the iPhone.</translation>
    </message>
    <message id="help.lim.mirroringSetup.title">
        <source>help.lim.mirroringSetup.title</source>
        <translation>Mirroring is set up app by app</translation>
    </message>
    <message id="help.lim.mirroringSetup.workaround">
        <source>help.lim.mirroringSetup.workaround</source>
        <translation>Turn the switch on in the iPhone’s settings.</translation>
    </message>
    <message id="help.lim.nativeMacApp.desc">
        <source>help.lim.nativeMacApp.desc</source>
        <translation>Notifications that only the iPhone shows are never captured.</translation>
    </message>
    <message id="help.lim.nativeMacApp.title">
        <source>help.lim.nativeMacApp.title</source>
        <translation>Only what reaches the Mac</translation>
    </message>
    <message id="help.lim.nativeMacApp.workaround">
        <source>help.lim.nativeMacApp.workaround</source>
        <translation>Use iPhone Mirroring, or the app’s version for the Mac.</translation>
    </message>
    <message id="help.lim.network.desc">
        <source>help.lim.network.desc</source>
        <translation>Without them nothing is mirrored, and Tessarine can’t know what is missing.</translation>
    </message>
    <message id="help.lim.network.title">
        <source>help.lim.network.title</source>
        <translation>Wi-Fi and Bluetooth</translation>
    </message>
    <message id="help.lim.network.workaround">
        <source>help.lim.network.workaround</source>
        <translation>Leave both on, on both devices.</translation>
    </message>
    <message id="help.lim.notRunning.desc">
        <source>help.lim.notRunning.desc</source>
        <translation>What comes while Tessarine is not running can be taken only from the system’s database, and only with Full Disk Access.</translation>
    </message>
    <message id="help.lim.notRunning.title">
        <source>help.lim.notRunning.title</source>
        <translation>Nothing is seen while it doesn’t run</translation>
    </message>
    <message id="help.lim.notRunning.workaround">
        <source>help.lim.notRunning.workaround</source>
        <translation>Launch Tessarine at login, and grant Full Disk Access.</translation>
    </message>
    <message id="help.lim.otpForever.desc">
        <source>help.lim.otpForever.desc</source>
        <translation>One-time codes are kept like all else, as long as you don’t choose otherwise. Even then they go only at a start.</translation>
    </message>
    <message id="help.lim.otpForever.title">
        <source>help.lim.otpForever.title</source>
        <translation>Codes stay</translation>
    </message>
    <message id="help.lim.otpForever.workaround">
        <source>help.lim.otpForever.workaround</source>
        <translation>Choose a time under Preferences › Privacy, and restart Tessarine now and then.</translation>
    </message>
    <message id="help.lim.plaintext.desc">
        <source>help.lim.plaintext.desc</source>
        <translation>Notifications are stored as they came, without encryption.</translation>
    </message>
    <message id="help.lim.plaintext.title">
        <source>help.lim.plaintext.title</source>
        <translation>The hoard is plain text</translation>
    </message>
    <message id="help.lim.plaintext.workaround">
        <source>help.lim.plaintext.workaround</source>
        <translation>Turn on FileVault.</translation>
    </message>
    <message id="help.lim.privacyGlobal.desc">
        <source>help.lim.privacyGlobal.desc</source>
        <translation>The switch for hidden content is for all apps.</translation>
    </message>
    <message id="help.lim.privacyGlobal.title">
        <source>help.lim.privacyGlobal.title</source>
        <translation>Hidden all or none</translation>
    </message>
    <message id="help.lim.privacyGlobal.workaround">
        <source>help.lim.privacyGlobal.workaround</source>
        <translation>Exclude an app whose notifications you don’t want to have kept at all.</translation>
    </message>
    <message id="help.lim.python.desc">
        <source>help.lim.python.desc</source>
        <translation>Tessarine can’t be driven by Python or other scripts.</translation>
    </message>
    <message id="help.lim.python.title">
        <source>help.lim.python.title</source>
        <translation>No commands for scripts</translation>
    </message>
    <message id="help.lim.python.workaround">
        <source>help.lim.python.workaround</source>
        <translation>Let scripts read an exported CSV file, or a backup, which is an SQLite database with the table notifications.</translation>
    </message>
    <message id="help.lim.sameAppleId.desc">
        <source>help.lim.sameAppleId.desc</source>
        <translation>Mac and iPhone of different accounts can’t be connected.</translation>
    </message>
    <message id="help.lim.sameAppleId.title">
        <source>help.lim.sameAppleId.title</source>
        <translation>One account</translation>
    </message>
    <message id="help.lim.sameAppleId.workaround">
        <source>help.lim.sameAppleId.workaround</source>
        <translation>Sign in to the same Apple Account on both.</translation>
    </message>
    <message id="help.lim.silent.desc">
        <source>help.lim.silent.desc</source>
        <translation>A notification without a banner is only in the system’s database.</translation>
    </message>
    <message id="help.lim.silent.title">
        <source>help.lim.silent.title</source>
        <translation>Silent notifications</translation>
    </message>
    <message id="help.lim.silent.workaround">
        <source>help.lim.silent.workaround</source>
        <translation>Grant Full Disk Access, or set the app’s alert style to Banners.</translation>
    </message>
    <message id="help.lim.tahoe.desc">
        <source>help.lim.tahoe.desc</source>
        <translation>Each macOS draws banners in its own way. If one draws them differently, texts may be missing or mixed up.</translation>
    </message>
    <message id="help.lim.tahoe.title">
        <source>help.lim.tahoe.title</source>
        <translation>macOS 26 and later</translation>
    </message>
    <message id="help.lim.tahoe.workaround">
        <source>help.lim.tahoe.workaround</source>
        <translation>Look into the diagnostics window after an update of the system.</translation>
    </message>
    <message id="help.lim.timestamps.desc">
        <source>help.lim.timestamps.desc</source>
        <translation>A banner shows an age such as “5m ago”, or nothing. Its time is worked out from that and may be a minute off. On a Mac that isn’t set to English it is the time at which the banner was seen.</translation>
    </message>
    <message id="help.lim.timestamps.title">
        <source>help.lim.timestamps.title</source>
        <translation>Times of banners</translation>
    </message>
    <message id="help.lim.timestamps.workaround">
        <source>help.lim.timestamps.workaround</source>
        <translation>With Full Disk Access there is a second row with the exact time.</translation>
    </message>
    <message id="help.lim.uiLimit.desc">
        <source>help.lim.uiLimit.desc</source>
        <translation>Search, filter and selection see only what is loaded. After each capture the list is the newest 500 again.</translation>
    </message>
    <message id="help.lim.uiLimit.title">
        <source>help.lim.uiLimit.title</source>
        <translation>The list begins with 500</translation>
    </message>
    <message id="help.lim.uiLimit.workaround">
        <source>help.lim.uiLimit.workaround</source>
        <translation>Press Load Older until the list reaches back far enough.</translation>
    </message>
    <message id="help.lim.usernoted.desc">
        <source>help.lim.usernoted.desc</source>
        <translation>A new version of macOS may change it. Then this way finds nothing until Tessarine knows the new form.</translation>
    </message>
    <message id="help.lim.usernoted.title">
        <source>help.lim.usernoted.title</source>
        <translation>The system’s database is not documented</translation>
    </message>
    <message id="help.lim.usernoted.workaround">
        <source>help.lim.usernoted.workaround</source>
        <translation>Banners are captured all the same.</translation>
    </message>
    <message id="help.lim.walBackup.desc">
        <source>help.lim.walBackup.desc</source>
        <translation>SQLite writes first into hoard.db-wal, beside the hoard. Whoever copies hoard.db alone, as Back Up in the preferences does, may miss what came last.</translation>
    </message>
    <message id="help.lim.walBackup.title">
        <source>help.lim.walBackup.title</source>
        <translation>A copied file may lack the newest rows</translation>
    </message>
    <message id="help.lim.walBackup.workaround">
        <source>help.lim.walBackup.workaround</source>
        <translation>Use Create Backup in the diagnostics window.</translation>
    </message>
    <message id="help.limitations.h.capture">
        <source>help.limitations.h.capture</source>
        <translation>Capture</translation>
    </message>
    <message id="help.limitations.h.hoard">
        <source>help.limitations.h.hoard</source>
        <translation>Hoard</translation>
    </message>
    <message id="help.limitations.h.iphone">
        <source>help.limitations.h.iphone</source>
        <translation>iPhone</translation>
    </message>
    <message id="help.limitations.h.privacy">
        <source>help.limitations.h.privacy</source>
        <translation>Privacy</translation>
    </message>
    <message id="help.limitations.h.system">
        <source>help.limitations.h.system</source>
        <translation>System</translation>
    </message>
    <message id="help.limitations.p.disclaimer">
        <source>help.limitations.p.disclaimer</source>
        <translation>Tessarine reads what the system shows and keeps. It can’t promise to catch every notification.</translation>
    </message>
    <message id="help.limitations.p.eula">
        <source>help.limitations.p.eula</source>
        <translation>Don’t rely on it as the only record of something important. The agreement says more.</translation>
    </message>
    <message id="help.limitations.title">
        <source>help.limitations.title</source>
        <translation>Limitations</translation>
    </message>
    <message id="help.macos.h.accessibility">
        <source>help.macos.h.accessibility</source>
        <translation>Accessibility</translation>
    </message>
    <message id="help.macos.h.alertStyle">
        <source>help.macos.h.alertStyle</source>
        <translation>Alert style</translation>
    </message>
    <message id="help.macos.h.focus">
        <source>help.macos.h.focus</source>
        <translation>Focus</translation>
    </message>
    <message id="help.macos.h.timeMachine">
        <source>help.macos.h.timeMachine</source>
        <translation>Time Machine</translation>
    </message>
    <message id="help.macos.p.accessibility">
        <source>help.macos.p.accessibility</source>
        <translation>Tessarine needs this permission to read banners off the screen.</translation>
    </message>
    <message id="help.macos.p.accessibility2">
        <source>help.macos.p.accessibility2</source>
        <translation>Tessarine uses it to read notification banners and for nothing else. Once granted, it takes effect without a restart.</translation>
    </message>
    <message id="help.macos.p.alertReco">
        <source>help.macos.p.alertReco</source>
        <translation>Recommended: Banners or Alerts for every app that matters to you. They are captured even without Full Disk Access.</translation>
    </message>
    <message id="help.macos.p.alertStyle">
        <source>help.macos.p.alertStyle</source>
        <translation>System Settings › Notifications sets for each app how it announces. What this means for capture:</translation>
    </message>
    <message id="help.macos.p.focus">
        <source>help.macos.p.focus</source>
        <translation>While a Focus is on, macOS may show no banners. What it keeps back can then be found in the system’s database only, which needs Full Disk Access.</translation>
    </message>
    <message id="help.macos.p.timeMachine">
        <source>help.macos.p.timeMachine</source>
        <translation>The hoard is in your Library folder, so Time Machine copies it. A file that is in use may be copied in the middle of a change; a backup made with Tessarine is safer.</translation>
    </message>
    <message id="help.macos.title">
        <source>help.macos.title</source>
        <translation>macOS Settings</translation>
    </message>
    <message id="help.menuBar.h.badge">
        <source>help.menuBar.h.badge</source>
        <translation>The number beside the bell</translation>
    </message>
    <message id="help.menuBar.h.leftClick">
        <source>help.menuBar.h.leftClick</source>
        <translation>The menu</translation>
    </message>
    <message id="help.menuBar.h.optionClick">
        <source>help.menuBar.h.optionClick</source>
        <translation>Diagnostics</translation>
    </message>
    <message id="help.menuBar.p.badge">
        <source>help.menuBar.p.badge</source>
        <translation>It counts what came since you last opened the hoard, up to 99; above that it reads 99+. It counts the list of the newest 500, so with a full list it may stay behind.</translation>
    </message>
    <message id="help.menuBar.p.intro">
        <source>help.menuBar.p.intro</source>
        <translation>The bell in the menu bar is where Tessarine can always be found.</translation>
    </message>
    <message id="help.menuBar.p.optionClick">
        <source>help.menuBar.p.optionClick</source>
        <translation>Click the bell with Option held to open the diagnostics window.</translation>
    </message>
    <message id="help.menuBar.row.checkUpdates">
        <source>help.menuBar.row.checkUpdates</source>
        <translation>Check for Updates</translation>
    </message>
    <message id="help.menuBar.row.checkUpdates.action">
        <source>help.menuBar.row.checkUpdates.action</source>
        <translation>Looks for a newer version.</translation>
    </message>
    <message id="help.menuBar.row.help">
        <source>help.menuBar.row.help</source>
        <translation>Tessarine Help</translation>
    </message>
    <message id="help.menuBar.row.help.action">
        <source>help.menuBar.row.help.action</source>
        <translation>Opens a window like this one.</translation>
    </message>
    <message id="help.menuBar.row.launchAtLogin">
        <source>help.menuBar.row.launchAtLogin</source>
        <translation>Launch at Login</translation>
    </message>
    <message id="help.menuBar.row.launchAtLogin.action">
        <source>help.menuBar.row.launchAtLogin.action</source>
        <translation>Switches it on or off. A check mark shows that it is on.</translation>
    </message>
    <message id="help.menuBar.row.openHoard">
        <source>help.menuBar.row.openHoard</source>
        <translation>Open Hoard</translation>
    </message>
    <message id="help.menuBar.row.openHoard.action">
        <source>help.menuBar.row.openHoard.action</source>
        <translation>Shows the window with your notifications and clears the number.</translation>
    </message>
    <message id="help.menuBar.row.preferences">
        <source>help.menuBar.row.preferences</source>
        <translation>Preferences</translation>
    </message>
    <message id="help.menuBar.row.preferences.action">
        <source>help.menuBar.row.preferences.action</source>
        <translation>Opens the settings.</translation>
    </message>
    <message id="help.menuBar.row.quit">
        <source>help.menuBar.row.quit</source>
        <translation>Quit Tessarine</translation>
    </message>
    <message id="help.menuBar.row.quit.action">
        <source>help.menuBar.row.quit.action</source>
        <translation>Ends the program, and with it the capture.</translation>
    </message>
    <message id="help.menuBar.row.welcomeGuide">
        <source>help.menuBar.row.welcomeGuide</source>
        <translation>Welcome Guide</translation>
    </message>
    <message id="help.menuBar.row.welcomeGuide.action">
        <source>help.menuBar.row.welcomeGuide.action</source>
        <translation>Shows the guide of the first start again.</translation>
    </message>
    <message id="help.menuBar.table.header.action">
        <source>help.menuBar.table.header.action</source>
        <translation>What it does</translation>
    </message>
    <message id="help.menuBar.table.header.item">
        <source>help.menuBar.table.header.item</source>
        <translation>Entry</translation>
    </message>
    <message id="help.menuBar.title">
        <source>help.menuBar.title</source>
        <translation>Menu Bar</translation>
    </message>
    <message id="help.page">
        <source>help.page</source>
        <translation>Page</translation>
    </message>
    <message id="help.prefs.excludeDelete.desc">
        <source>help.prefs.excludeDelete.desc</source>
        <translation>Also deletes what the hoard has under this app’s name.</translation>
    </message>
    <message id="help.prefs.excludeDelete.title">
        <source>help.prefs.excludeDelete.title</source>
        <translation>Exclude and Delete</translation>
    </message>
    <message id="help.prefs.excludeOnly.desc">
        <source>help.prefs.excludeOnly.desc</source>
        <translation>New notifications are not kept; what is in the hoard stays.</translation>
    </message>
    <message id="help.prefs.excludeOnly.title">
        <source>help.prefs.excludeOnly.title</source>
        <translation>Exclude Only</translation>
    </message>
    <message id="help.prefs.h.excludedApps">
        <source>help.prefs.h.excludedApps</source>
        <translation>Excluded apps</translation>
    </message>
    <message id="help.prefs.h.hoard">
        <source>help.prefs.h.hoard</source>
        <translation>The hoard’s file</translation>
    </message>
    <message id="help.prefs.h.privacy">
        <source>help.prefs.h.privacy</source>
        <translation>Privacy</translation>
    </message>
    <message id="help.prefs.h.retention">
        <source>help.prefs.h.retention</source>
        <translation>How long to keep notifications</translation>
    </message>
    <message id="help.prefs.h.startup">
        <source>help.prefs.h.startup</source>
        <translation>Startup</translation>
    </message>
    <message id="help.prefs.p.backup">
        <source>help.prefs.p.backup</source>
        <translation>Back Up copies the file to a place of your choice. The most recent notifications may be missing from the copy, and it is not encrypted. Create Backup in the diagnostics window first writes everything into the file.</translation>
    </message>
    <message id="help.prefs.p.excludedApps.intro">
        <source>help.prefs.p.excludedApps.intro</source>
        <translation>Notifications of an excluded app are not kept.</translation>
    </message>
    <message id="help.prefs.p.excludedApps.manage">
        <source>help.prefs.p.excludedApps.manage</source>
        <translation>General › Excluded apps › Manage lists every app that has a notification in the hoard. Turning one on asks what to do with what is there already:</translation>
    </message>
    <message id="help.prefs.p.excludedApps.note">
        <source>help.prefs.p.excludedApps.note</source>
        <translation>An app is known by its identifier. The banner way knows only the app’s name, so one app may be listed twice; exclude both.</translation>
    </message>
    <message id="help.prefs.p.hoard">
        <source>help.prefs.p.hoard</source>
        <translation>Storage shows how large the file is.</translation>
    </message>
    <message id="help.prefs.p.intro">
        <source>help.prefs.p.intro</source>
        <translation>Preferences are in the menu of the bell. A change is stored at once.</translation>
    </message>
    <message id="help.prefs.p.otp">
        <source>help.prefs.p.otp</source>
        <translation>Delete codes after 1, 4 or 24 hours deletes, at each start, notifications that may hold a one-time code.</translation>
    </message>
    <message id="help.prefs.p.privacyHide">
        <source>help.prefs.p.privacyHide</source>
        <translation>Hide content masks the titles and texts of all apps in the window and in exports. They are stored all the same.</translation>
    </message>
    <message id="help.prefs.p.retention">
        <source>help.prefs.p.retention</source>
        <translation>Storage › Keep notifications. What is too old is deleted the next time Tessarine starts, pinned notifications too.</translation>
    </message>
    <message id="help.prefs.p.startup">
        <source>help.prefs.p.startup</source>
        <translation>Launch at login starts Tessarine when you log in. It can keep only what comes while it runs, or what the system still has.</translation>
    </message>
    <message id="help.prefs.p.startup2">
        <source>help.prefs.p.startup2</source>
        <translation>Until that is switched on, Tessarine asks after its start whether to. “Don’t Ask Again” ends that.</translation>
    </message>
    <message id="help.prefs.p.startup3">
        <source>help.prefs.p.startup3</source>
        <translation>It starts without a window. You see nothing but its bell in the menu bar.</translation>
    </message>
    <message id="help.prefs.p.welcomeGuide">
        <source>help.prefs.p.welcomeGuide</source>
        <translation>The privacy notice and the welcome guide can be read again here.</translation>
    </message>
    <message id="help.prefs.title">
        <source>help.prefs.title</source>
        <translation>Preferences</translation>
    </message>
    <message id="help.privacy.btn.reviewNotice">
        <source>help.privacy.btn.reviewNotice</source>
        <translation>Review Privacy Notice</translation>
    </message>
    <message id="help.privacy.h.displayFilter">
        <source>help.privacy.h.displayFilter</source>
        <translation>A mask, not a lock</translation>
    </message>
    <message id="help.privacy.h.doesNotDo">
        <source>help.privacy.h.doesNotDo</source>
        <translation>What it doesn’t do</translation>
    </message>
    <message id="help.privacy.h.exports">
        <source>help.privacy.h.exports</source>
        <translation>Exports</translation>
    </message>
    <message id="help.privacy.h.notice">
        <source>help.privacy.h.notice</source>
        <translation>Privacy notice</translation>
    </message>
    <message id="help.privacy.h.otp">
        <source>help.privacy.h.otp</source>
        <translation>One-time codes</translation>
    </message>
    <message id="help.privacy.h.protecting">
        <source>help.privacy.h.protecting</source>
        <translation>Protecting your hoard</translation>
    </message>
    <message id="help.privacy.lim.noEncrypt.desc">
        <source>help.privacy.lim.noEncrypt.desc</source>
        <translation>Whoever can read your user’s files can read the hoard, with or without Tessarine.</translation>
    </message>
    <message id="help.privacy.lim.noEncrypt.title">
        <source>help.privacy.lim.noEncrypt.title</source>
        <translation>The hoard is not encrypted</translation>
    </message>
    <message id="help.privacy.lim.noEncrypt.workaround">
        <source>help.privacy.lim.noEncrypt.workaround</source>
        <translation>Turn on FileVault, and lock the screen when you leave.</translation>
    </message>
    <message id="help.privacy.lim.noPerApp.desc">
        <source>help.privacy.lim.noPerApp.desc</source>
        <translation>The preferences hide all apps or none.</translation>
    </message>
    <message id="help.privacy.lim.noPerApp.title">
        <source>help.privacy.lim.noPerApp.title</source>
        <translation>No switch for single apps</translation>
    </message>
    <message id="help.privacy.lim.noPerApp.workaround">
        <source>help.privacy.lim.noPerApp.workaround</source>
        <translation>Put the bundle IDs of the apps into the list privacyApps of the defaults domain com.zorvek.Tessarine while Tessarine is not running.</translation>
    </message>
    <message id="help.privacy.p.displayFilter1">
        <source>help.privacy.p.displayFilter1</source>
        <translation>Hide content is for eyes that look over your shoulder. Rows show bars instead of words. A click reveals a row until the list changes; the preview, selection mode and the search see the real content.</translation>
    </message>
    <message id="help.privacy.p.displayFilter2">
        <source>help.privacy.p.displayFilter2</source>
        <translation>To hide the content of all apps:</translation>
    </message>
    <message id="help.privacy.p.exports">
        <source>help.privacy.p.exports</source>
        <translation>What is hidden is hidden in exports too, unless you include it for that export.</translation>
    </message>
    <message id="help.privacy.p.exports2">
        <source>help.privacy.p.exports2</source>
        <translation>Exported files are not encrypted. Whoever gets one can read it.</translation>
    </message>
    <message id="help.privacy.p.notice">
        <source>help.privacy.p.notice</source>
        <translation>The notice that you saw at the first start says what is stored and what is not.</translation>
    </message>
    <message id="help.privacy.p.otp1">
        <source>help.privacy.p.otp1</source>
        <translation>Codes for logging in arrive as notifications, and the hoard would keep them. If you wish, Tessarine deletes them by itself.</translation>
    </message>
    <message id="help.privacy.p.otp2">
        <source>help.privacy.p.otp2</source>
        <translation>It deletes what may be a code: four digits in a row, or words that such messages use in English, Italian, German or French. That also takes notifications with a year or a price, and pinned ones.</translation>
    </message>
    <message id="help.privacy.p.otp3">
        <source>help.privacy.p.otp3</source>
        <translation>This happens once, when Tessarine starts. A code that comes later stays until the next start.</translation>
    </message>
    <message id="help.privacy.protect.exports.desc">
        <source>help.privacy.protect.exports.desc</source>
        <translation>An exported file stays until you delete it.</translation>
    </message>
    <message id="help.privacy.protect.exports.title">
        <source>help.privacy.protect.exports.title</source>
        <translation>Delete exports</translation>
    </message>
    <message id="help.privacy.protect.filevault.desc">
        <source>help.privacy.protect.filevault.desc</source>
        <translation>FileVault keeps the hoard unreadable while the Mac is off.</translation>
    </message>
    <message id="help.privacy.protect.filevault.title">
        <source>help.privacy.protect.filevault.title</source>
        <translation>Encrypt the disk</translation>
    </message>
    <message id="help.privacy.protect.noCloud.desc">
        <source>help.privacy.protect.noCloud.desc</source>
        <translation>Don’t put the hoard, its backups or exports where a service copies them.</translation>
    </message>
    <message id="help.privacy.protect.noCloud.title">
        <source>help.privacy.protect.noCloud.title</source>
        <translation>No cloud folder</translation>
    </message>
    <message id="help.privacy.protect.retention.desc">
        <source>help.privacy.protect.retention.desc</source>
        <translation>What is deleted after some time can’t be read by anybody later.</translation>
    </message>
    <message id="help.privacy.protect.retention.title">
        <source>help.privacy.protect.retention.title</source>
        <translation>Keep less</translation>
    </message>
    <message id="help.privacy.step.1">
        <source>help.privacy.step.1</source>
        <translation>Open Preferences from the menu of the bell.</translation>
    </message>
    <message id="help.privacy.step.2">
        <source>help.privacy.step.2</source>
        <translation>Choose Privacy.</translation>
    </message>
    <message id="help.privacy.step.3">
        <source>help.privacy.step.3</source>
        <translation>Turn on Hide content.</translation>
    </message>
    <message id="help.privacy.step.4">
        <source>help.privacy.step.4</source>
        <translation>Close the window. All rows are masked at once.</translation>
    </message>
    <message id="help.privacy.title">
        <source>help.privacy.title</source>
        <translation>Privacy</translation>
    </message>
    <message id="help.search.h.appFilter">
        <source>help.search.h.appFilter</source>
        <translation>App</translation>
    </message>
    <message id="help.search.h.groupModes">
        <source>help.search.h.groupModes</source>
        <translation>Groups</translation>
    </message>
    <message id="help.search.h.resultCount">
        <source>help.search.h.resultCount</source>
        <translation>The number at the side</translation>
    </message>
    <message id="help.search.h.searchBar">
        <source>help.search.h.searchBar</source>
        <translation>Search</translation>
    </message>
    <message id="help.search.h.sortModes">
        <source>help.search.h.sortModes</source>
        <translation>Order</translation>
    </message>
    <message id="help.search.p.appFilter">
        <source>help.search.p.appFilter</source>
        <translation>The App menu limits the list to one app. It offers every app that has a loaded notification. Search and filter work together.</translation>
    </message>
    <message id="help.search.p.groupCollapse">
        <source>help.search.p.groupCollapse</source>
        <translation>Click the arrow of a group to close or open it. Another grouping opens all groups again.</translation>
    </message>
    <message id="help.search.p.resultCount">
        <source>help.search.p.resultCount</source>
        <translation>It counts the notifications that the list shows. If the hoard holds more than is loaded, it reads “shown of all”.</translation>
    </message>
    <message id="help.search.p.searchBar">
        <source>help.search.p.searchBar</source>
        <translation>Type any part of a title, a text or an app’s name. Upper and lower case are the same; accents count. The search goes through the loaded notifications, first the newest 500. Load Older at the end of the list adds 500 more. Hidden content is searched too.</translation>
    </message>
    <message id="help.search.title">
        <source>help.search.title</source>
        <translation>Search &amp; Filter</translation>
    </message>
    <message id="help.sections">
        <source>help.sections</source>
        <translation>Sections</translation>
    </message>
    <message id="help.selectDelete.h.datePresets">
        <source>help.selectDelete.h.datePresets</source>
        <translation>Ranges of dates</translation>
    </message>
    <message id="help.selectDelete.h.deleting">
        <source>help.selectDelete.h.deleting</source>
        <translation>Deleting</translation>
    </message>
    <message id="help.selectDelete.h.entering">
        <source>help.selectDelete.h.entering</source>
        <translation>Selection mode</translation>
    </message>
    <message id="help.selectDelete.h.selecting">
        <source>help.selectDelete.h.selecting</source>
        <translation>Ways to select</translation>
    </message>
    <message id="help.selectDelete.p.deleting">
        <source>help.selectDelete.p.deleting</source>
        <translation>Delete Selected asks before it deletes, and so does Delete All. Delete All empties the whole hoard, pinned notifications and those that are not loaded too. If a new notification arrives while you select, the selection is lost and nothing is deleted.</translation>
    </message>
    <message id="help.selectDelete.p.entering">
        <source>help.selectDelete.p.entering</source>
        <translation>Click the trash button above the list. Each row then shows a circle, and hidden content is shown until you leave with Cancel.</translation>
    </message>
    <message id="help.selectDelete.row.byApp.desc">
        <source>help.selectDelete.row.byApp.desc</source>
        <translation>Adds all shown notifications of an app.</translation>
    </message>
    <message id="help.selectDelete.row.byApp.title">
        <source>help.selectDelete.row.byApp.title</source>
        <translation>App</translation>
    </message>
    <message id="help.selectDelete.row.byDate.desc">
        <source>help.selectDelete.row.byDate.desc</source>
        <translation>Adds all shown notifications of a range of dates. Several choices add up.</translation>
    </message>
    <message id="help.selectDelete.row.byDate.title">
        <source>help.selectDelete.row.byDate.title</source>
        <translation>Date</translation>
    </message>
    <message id="help.selectDelete.row.selectAll.desc">
        <source>help.selectDelete.row.selectAll.desc</source>
        <translation>Selects everything that the list shows. Pressed again, it selects nothing.</translation>
    </message>
    <message id="help.selectDelete.row.selectAll.title">
        <source>help.selectDelete.row.selectAll.title</source>
        <translation>Select All</translation>
    </message>
    <message id="help.selectDelete.row.tap.desc">
        <source>help.selectDelete.row.tap.desc</source>
        <translation>Selects it, or takes it out again.</translation>
    </message>
    <message id="help.selectDelete.row.tap.title">
        <source>help.selectDelete.row.tap.title</source>
        <translation>Click a row</translation>
    </message>
    <message id="help.selectDelete.title">
        <source>help.selectDelete.title</source>
        <translation>Select &amp; Delete</translation>
    </message>
    <message id="help.selectDelete.warning">
        <source>help.selectDelete.warning</source>
        <translation>Deleted notifications can’t be brought back.</translation>
    </message>
    <message id="help.tips.backup.desc">
        <source>help.tips.backup.desc</source>
        <translation>Create Backup in the diagnostics window writes a complete copy of the hoard.</translation>
    </message>
    <message id="help.tips.backup.title">
        <source>help.tips.backup.title</source>
        <translation>Make a backup</translation>
    </message>
    <message id="help.tips.byDate.desc">
        <source>help.tips.byDate.desc</source>
        <translation>In selection mode, Date selects the last month with two clicks.</translation>
    </message>
    <message id="help.tips.byDate.title">
        <source>help.tips.byDate.title</source>
        <translation>Tidy up by date</translation>
    </message>
    <message id="help.tips.csv.desc">
        <source>help.tips.csv.desc</source>
        <translation>Any program that reads tables can count and sort what you export.</translation>
    </message>
    <message id="help.tips.csv.title">
        <source>help.tips.csv.title</source>
        <translation>Look further with CSV</translation>
    </message>
    <message id="help.tips.diagnostics.desc">
        <source>help.tips.diagnostics.desc</source>
        <translation>The diagnostics window shows what is captured at the moment, and what stands in the way.</translation>
    </message>
    <message id="help.tips.diagnostics.title">
        <source>help.tips.diagnostics.title</source>
        <translation>When something is missing</translation>
    </message>
    <message id="help.tips.launchAtLogin.desc">
        <source>help.tips.launchAtLogin.desc</source>
        <translation>The surest way to miss little: Tessarine is there before the first notification.</translation>
    </message>
    <message id="help.tips.launchAtLogin.title">
        <source>help.tips.launchAtLogin.title</source>
        <translation>Launch at login</translation>
    </message>
    <message id="help.tips.mirroring.desc">
        <source>help.tips.mirroring.desc</source>
        <translation>With iPhone Mirroring its notifications come into the hoard too.</translation>
    </message>
    <message id="help.tips.mirroring.title">
        <source>help.tips.mirroring.title</source>
        <translation>Bring the iPhone in</translation>
    </message>
    <message id="help.tips.notifStyles.desc">
        <source>help.tips.notifStyles.desc</source>
        <translation>A banner is captured at once, and with no further permission.</translation>
    </message>
    <message id="help.tips.notifStyles.title">
        <source>help.tips.notifStyles.title</source>
        <translation>Let apps show banners</translation>
    </message>
    <message id="help.tips.retention.desc">
        <source>help.tips.retention.desc</source>
        <translation>Notifications are small. Short periods delete what you may look for later.</translation>
    </message>
    <message id="help.tips.retention.title">
        <source>help.tips.retention.title</source>
        <translation>Keep for ever</translation>
    </message>
    <message id="help.tips.title">
        <source>help.tips.title</source>
        <translation>Tips</translation>
    </message>
    <message id="help.tips.xlsx.desc">
        <source>help.tips.xlsx.desc</source>
        <translation>Choose the semicolon as the separator and UTF-8 as the encoding if you are asked.</translation>
    </message>
    <message id="help.tips.xlsx.title">
        <source>help.tips.xlsx.title</source>
        <translation>CSV in a spreadsheet</translation>
    </message>
    <message id="hoard.empty.noAccess">
        <source>hoard.empty.noAccess</source>
        <translation>Tessarine can’t see any: it has no access to the session bus, over which notifications come.</translation>
    </message>
    <message id="hoard.empty.noResults">
        <source>hoard.empty.noResults</source>
        <translation>No matches</translation>
    </message>
    <message id="hoard.empty.noResults.detail">
        <source>hoard.empty.noResults.detail</source>
        <translation>No loaded notification matches the search and the chosen app.</translation>
    </message>
    <message id="hoard.empty.noResults.older">
        <source>hoard.empty.noResults.older</source>
        <translation>No loaded notification matches the search and the chosen app. Load Older looks further back.</translation>
    </message>
    <message id="hoard.empty.notOpened">
        <source>hoard.empty.notOpened</source>
        <translation>The hoard can’t be opened, so nothing can be kept: %1</translation>
    </message>
    <message id="hoard.empty.waiting">
        <source>hoard.empty.waiting</source>
        <translation>No notifications yet</translation>
    </message>
    <message id="hoard.empty.waiting.detail">
        <source>hoard.empty.waiting.detail</source>
        <translation>What your apps announce will be kept here, for as long as you like.</translation>
    </message>
    <message id="hoard.list">
        <source>hoard.list</source>
        <translation>Notifications</translation>
    </message>
    <message id="hoard.loading">
        <source>hoard.loading</source>
        <translation>Opening the hoard…</translation>
    </message>
    <message id="launchAtLogin.btn.dontAsk">
        <source>launchAtLogin.btn.dontAsk</source>
        <translation>Don’t Ask Again</translation>
    </message>
    <message id="launchAtLogin.btn.enable">
        <source>launchAtLogin.btn.enable</source>
        <translation>Start at Login</translation>
    </message>
    <message id="launchAtLogin.btn.notNow">
        <source>launchAtLogin.btn.notNow</source>
        <translation>Not Now</translation>
    </message>
    <message id="launchAtLogin.info.changeLater">
        <source>launchAtLogin.info.changeLater</source>
        <translation>You can change this at any time in the menu of the bell.</translation>
    </message>
    <message id="launchAtLogin.info.missedNotifs">
        <source>launchAtLogin.info.missedNotifs</source>
        <translation>What comes before you start it may never reach your hoard.</translation>
    </message>
    <message id="launchAtLogin.info.silentStart">
        <source>launchAtLogin.info.silentStart</source>
        <translation>It starts without a window. You see nothing but its bell in the menu bar.</translation>
    </message>
    <message id="launchAtLogin.prompt.subtitle">
        <source>launchAtLogin.prompt.subtitle</source>
        <translation>It can keep only what comes while it runs.</translation>
    </message>
    <message id="launchAtLogin.prompt.title">
        <source>launchAtLogin.prompt.title</source>
        <translation>Start Tessarine when you log in?</translation>
    </message>
    <message id="menu.checkForUpdates">
        <source>menu.checkForUpdates</source>
        <translation>Check for Updates…</translation>
    </message>
    <message id="menu.fullDiskAccess">
        <source>menu.fullDiskAccess</source>
        <translation>Full Disk Access…</translation>
    </message>
    <message id="menu.help.title">
        <source>menu.help.title</source>
        <translation>Tessarine Help</translation>
    </message>
    <message id="menu.launchAtLogin">
        <source>menu.launchAtLogin</source>
        <translation>Launch at Login</translation>
    </message>
    <message id="menu.newNotifications" numerus="yes">
        <source>menu.newNotifications</source>
        <translation>
            <numerusform>%Ln new notification</numerusform>
            <numerusform>%Ln new notifications</numerusform>
        </translation>
    </message>
    <message id="menu.openHoard">
        <source>menu.openHoard</source>
        <translation>Open Hoard</translation>
    </message>
    <message id="menu.preferences.title">
        <source>menu.preferences.title</source>
        <translation>Preferences…</translation>
    </message>
    <message id="menu.quit">
        <source>menu.quit</source>
        <translation>Quit Tessarine</translation>
    </message>
    <message id="menu.welcome.title">
        <source>menu.welcome.title</source>
        <translation>Welcome Guide…</translation>
    </message>
    <message id="onboarding.ax.granted">
        <source>onboarding.ax.granted</source>
        <translation>Granted: Tessarine can see notifications as they come.</translation>
    </message>
    <message id="onboarding.ax.howToEnable">
        <source>onboarding.ax.howToEnable</source>
        <translation>Open the settings of the system, find Tessarine in the list, and switch it on.</translation>
    </message>
    <message id="onboarding.ax.noPermissionWarning">
        <source>onboarding.ax.noPermissionWarning</source>
        <translation>Without it, banners are not seen. Only what the system’s database holds can be kept, if Tessarine may read that.</translation>
    </message>
    <message id="onboarding.ax.notGranted">
        <source>onboarding.ax.notGranted</source>
        <translation>Not granted yet</translation>
    </message>
    <message id="onboarding.ax.openSettings">
        <source>onboarding.ax.openSettings</source>
        <translation>Open System Settings</translation>
    </message>
    <message id="onboarding.ax.openSettings.hint">
        <source>onboarding.ax.openSettings.hint</source>
        <translation>This page notices by itself when the permission is there.</translation>
    </message>
    <message id="onboarding.ax.subtitle">
        <source>onboarding.ax.subtitle</source>
        <translation>Tessarine reads banners through the Accessibility permission of macOS, at the moment they appear.</translation>
    </message>
    <message id="onboarding.ax.title">
        <source>onboarding.ax.title</source>
        <translation>Accessibility</translation>
    </message>
    <message id="onboarding.ax.whatItDoes.text">
        <source>onboarding.ax.whatItDoes.text</source>
        <translation>It reads the texts of the banners that Notification Center draws, and puts them into the hoard.</translation>
    </message>
    <message id="onboarding.ax.whatItDoes.title">
        <source>onboarding.ax.whatItDoes.title</source>
        <translation>What Tessarine does with it</translation>
    </message>
    <message id="onboarding.ax.whatItDoesNot.text">
        <source>onboarding.ax.whatItDoesNot.text</source>
        <translation>It doesn’t read other windows, doesn’t follow what you type, and doesn’t press anything for you.</translation>
    </message>
    <message id="onboarding.ax.whatItDoesNot.title">
        <source>onboarding.ax.whatItDoesNot.title</source>
        <translation>What it doesn’t do</translation>
    </message>
    <message id="onboarding.btn.agreeAndContinue">
        <source>onboarding.btn.agreeAndContinue</source>
        <translation>Agree and Continue</translation>
    </message>
    <message id="onboarding.btn.back">
        <source>onboarding.btn.back</source>
        <translation>Back</translation>
    </message>
    <message id="onboarding.btn.continue">
        <source>onboarding.btn.continue</source>
        <translation>Continue</translation>
    </message>
    <message id="onboarding.btn.continueWithout">
        <source>onboarding.btn.continueWithout</source>
        <translation>Continue Without</translation>
    </message>
    <message id="onboarding.btn.done">
        <source>onboarding.btn.done</source>
        <translation>Done</translation>
    </message>
    <message id="onboarding.btn.start">
        <source>onboarding.btn.start</source>
        <translation>Start Tessarine</translation>
    </message>
    <message id="onboarding.eula.agree">
        <source>onboarding.eula.agree</source>
        <translation>I have read the agreement and accept it</translation>
    </message>
    <message id="onboarding.eula.scrollHint">
        <source>onboarding.eula.scrollHint</source>
        <translation>Scroll to the end to go on.</translation>
    </message>
    <message id="onboarding.eula.subtitle">
        <source>onboarding.eula.subtitle</source>
        <translation>Please read it to the end. Nothing is recorded before you agree.</translation>
    </message>
    <message id="onboarding.eula.title">
        <source>onboarding.eula.title</source>
        <translation>The Agreement</translation>
    </message>
    <message id="onboarding.feature1.text">
        <source>onboarding.feature1.text</source>
        <translation>Tessarine keeps each notification when it comes, also those that you never saw.</translation>
    </message>
    <message id="onboarding.feature1.title">
        <source>onboarding.feature1.title</source>
        <translation>Nothing gets lost</translation>
    </message>
    <message id="onboarding.feature2.text">
        <source>onboarding.feature2.text</source>
        <translation>The hoard is one file in your home folder. There is no account and no server.</translation>
    </message>
    <message id="onboarding.feature2.title">
        <source>onboarding.feature2.title</source>
        <translation>All on this computer</translation>
    </message>
    <message id="onboarding.feature3.text">
        <source>onboarding.feature3.text</source>
        <translation>Search all texts, filter by app and by day, pin what matters, delete what doesn’t.</translation>
    </message>
    <message id="onboarding.feature3.title">
        <source>onboarding.feature3.title</source>
        <translation>Found in a moment</translation>
    </message>
    <message id="onboarding.feature4.text">
        <source>onboarding.feature4.text</source>
        <translation>Notifications that your iPhone passes on to this Mac are kept like all others.</translation>
    </message>
    <message id="onboarding.feature4.title">
        <source>onboarding.feature4.title</source>
        <translation>Your iPhone too</translation>
    </message>
    <message id="onboarding.privacy.reviewNote">
        <source>onboarding.privacy.reviewNote</source>
        <translation>You can read this again in the preferences, under Privacy.</translation>
    </message>
    <message id="onboarding.privacy.row1.text">
        <source>onboarding.privacy.row1.text</source>
        <translation>Everything is stored on this computer, readable by your account alone.</translation>
    </message>
    <message id="onboarding.privacy.row1.title">
        <source>onboarding.privacy.row1.title</source>
        <translation>It stays here</translation>
    </message>
    <message id="onboarding.privacy.row2.text">
        <source>onboarding.privacy.row2.text</source>
        <translation>Whoever can use your account or read your disk can read your notifications.</translation>
    </message>
    <message id="onboarding.privacy.row2.title">
        <source>onboarding.privacy.row2.title</source>
        <translation>It isn’t encrypted</translation>
    </message>
    <message id="onboarding.privacy.row3.text">
        <source>onboarding.privacy.row3.text</source>
        <translation>One-time codes are kept like all else. The preferences can delete them after some hours.</translation>
    </message>
    <message id="onboarding.privacy.row3.title">
        <source>onboarding.privacy.row3.title</source>
        <translation>It may hold codes</translation>
    </message>
    <message id="onboarding.privacy.row4.text">
        <source>onboarding.privacy.row4.text</source>
        <translation>One row, an app, a day, or everything, at any time.</translation>
    </message>
    <message id="onboarding.privacy.row4.title">
        <source>onboarding.privacy.row4.title</source>
        <translation>You can delete it</translation>
    </message>
    <message id="onboarding.privacy.subtitle">
        <source>onboarding.privacy.subtitle</source>
        <translation>What you should know about your hoard before it grows.</translation>
    </message>
    <message id="onboarding.privacy.title">
        <source>onboarding.privacy.title</source>
        <translation>Your Privacy</translation>
    </message>
    <message id="onboarding.welcome.subtitle">
        <source>onboarding.welcome.subtitle</source>
        <translation>Every notification your computer shows, kept and searchable.</translation>
    </message>
    <message id="onboarding.welcome.timeHint">
        <source>onboarding.welcome.timeHint</source>
        <translation>This takes about a minute.</translation>
    </message>
    <message id="onboarding.welcome.title">
        <source>onboarding.welcome.title</source>
        <translation>Welcome to Tessarine</translation>
    </message>
    <message id="onboarding.window.title">
        <source>onboarding.window.title</source>
        <translation>Welcome to Tessarine</translation>
    </message>
    <message id="pageDots.position">
        <source>pageDots.position</source>
        <translation>Step %1 of %2</translation>
    </message>
    <message id="perm.fda.benefits.header">
        <source>perm.fda.benefits.header</source>
        <translation>What you gain</translation>
    </message>
    <message id="perm.fda.enabled">
        <source>perm.fda.enabled</source>
        <translation>I Have Switched It On</translation>
    </message>
    <message id="perm.fda.howto.header">
        <source>perm.fda.howto.header</source>
        <translation>How to switch it on</translation>
    </message>
    <message id="perm.fda.laterHint">
        <source>perm.fda.laterHint</source>
        <translation>You can do this at any time later, from the menu of the bell.</translation>
    </message>
    <message id="perm.fda.notDetected">
        <source>perm.fda.notDetected</source>
        <translation>The database still can’t be read. Check the switch, or quit Tessarine and start it again.</translation>
    </message>
    <message id="perm.fda.openSettings">
        <source>perm.fda.openSettings</source>
        <translation>Open System Settings</translation>
    </message>
    <message id="perm.fda.picture">
        <source>perm.fda.picture</source>
        <translation>The list of programs under Full Disk Access, with the switch of Tessarine on</translation>
    </message>
    <message id="perm.fda.reason1">
        <source>perm.fda.reason1</source>
        <translation>Notifications that came while Tessarine was not running are recovered, as far as the system still has them.</translation>
    </message>
    <message id="perm.fda.reason2">
        <source>perm.fda.reason2</source>
        <translation>Notifications that come without a banner are kept too.</translation>
    </message>
    <message id="perm.fda.restartHint">
        <source>perm.fda.restartHint</source>
        <translation>The system may ask to quit Tessarine and open it again for the change to take effect.</translation>
    </message>
    <message id="perm.fda.skip">
        <source>perm.fda.skip</source>
        <translation>Skip</translation>
    </message>
    <message id="perm.fda.step1">
        <source>perm.fda.step1</source>
        <translation>Open System Settings.</translation>
    </message>
    <message id="perm.fda.step2">
        <source>perm.fda.step2</source>
        <translation>Go to Privacy &amp; Security.</translation>
    </message>
    <message id="perm.fda.step3">
        <source>perm.fda.step3</source>
        <translation>Choose Full Disk Access.</translation>
    </message>
    <message id="perm.fda.step4">
        <source>perm.fda.step4</source>
        <translation>Switch Tessarine on. If it isn’t in the list, add it with the + button.</translation>
    </message>
    <message id="perm.fda.step5">
        <source>perm.fda.step5</source>
        <translation>Come back to this window.</translation>
    </message>
    <message id="perm.fda.subtitle">
        <source>perm.fda.subtitle</source>
        <translation>With it, Tessarine can also read the system’s own database of notifications.</translation>
    </message>
    <message id="perm.fda.title">
        <source>perm.fda.title</source>
        <translation>Full Disk Access</translation>
    </message>
    <message id="perm.fda.without.header">
        <source>perm.fda.without.header</source>
        <translation>Without it</translation>
    </message>
    <message id="perm.fda.without.row1">
        <source>perm.fda.without.row1</source>
        <translation>Banners are kept as before.</translation>
    </message>
    <message id="perm.fda.without.row2">
        <source>perm.fda.without.row2</source>
        <translation>Silent notifications, and those from before the start, are missing.</translation>
    </message>
    <message id="prefs.general.appearance">
        <source>prefs.general.appearance</source>
        <translation>Look</translation>
    </message>
    <message id="prefs.general.appearance.auto">
        <source>prefs.general.appearance.auto</source>
        <translation>Automatic</translation>
    </message>
    <message id="prefs.general.appearance.dark">
        <source>prefs.general.appearance.dark</source>
        <translation>Dark</translation>
    </message>
    <message id="prefs.general.appearance.light">
        <source>prefs.general.appearance.light</source>
        <translation>Light</translation>
    </message>
    <message id="prefs.general.captureExplainer">
        <source>prefs.general.captureExplainer</source>
        <translation>Tessarine copies each notification into its hoard while it is shown. Where the system keeps a database of notifications, Tessarine reads it too, and so recovers much of what came while it was not running. Everything stays on this computer.</translation>
    </message>
    <message id="prefs.general.excludedApps">
        <source>prefs.general.excludedApps</source>
        <translation>Excluded apps</translation>
    </message>
    <message id="prefs.general.excludedApps.caption">
        <source>prefs.general.excludedApps.caption</source>
        <translation>Notifications of these apps are not kept.</translation>
    </message>
    <message id="prefs.general.excludedApps.count" numerus="yes">
        <source>prefs.general.excludedApps.count</source>
        <translation>
            <numerusform>%Ln app</numerusform>
            <numerusform>%Ln apps</numerusform>
        </translation>
    </message>
    <message id="prefs.general.excludedApps.manage">
        <source>prefs.general.excludedApps.manage</source>
        <translation>Manage…</translation>
    </message>
    <message id="prefs.general.launchAtLogin">
        <source>prefs.general.launchAtLogin</source>
        <translation>Launch at login</translation>
    </message>
    <message id="prefs.general.launchAtLogin.caption">
        <source>prefs.general.launchAtLogin.caption</source>
        <translation>Tessarine starts in the background when you log in.</translation>
    </message>
    <message id="prefs.general.launchAtLogin.warning">
        <source>prefs.general.launchAtLogin.warning</source>
        <translation>Notifications that come while Tessarine is not running may be missed.</translation>
    </message>
    <message id="prefs.general.section.appearance">
        <source>prefs.general.section.appearance</source>
        <translation>Appearance</translation>
    </message>
    <message id="prefs.general.section.capture">
        <source>prefs.general.section.capture</source>
        <translation>Capture</translation>
    </message>
    <message id="prefs.general.section.howCapture">
        <source>prefs.general.section.howCapture</source>
        <translation>How Capture Works</translation>
    </message>
    <message id="prefs.general.section.startup">
        <source>prefs.general.section.startup</source>
        <translation>Startup</translation>
    </message>
    <message id="prefs.privacy.hideContent">
        <source>prefs.privacy.hideContent</source>
        <translation>Hide content</translation>
    </message>
    <message id="prefs.privacy.hideContent.activeNote">
        <source>prefs.privacy.hideContent.activeNote</source>
        <translation>The content of all apps is hidden. It is stored all the same.</translation>
    </message>
    <message id="prefs.privacy.hideContent.caption">
        <source>prefs.privacy.hideContent.caption</source>
        <translation>Titles and texts are masked in the window and in exports.</translation>
    </message>
    <message id="prefs.privacy.otp.1h">
        <source>prefs.privacy.otp.1h</source>
        <translation>1 hour</translation>
    </message>
    <message id="prefs.privacy.otp.24h">
        <source>prefs.privacy.otp.24h</source>
        <translation>24 hours</translation>
    </message>
    <message id="prefs.privacy.otp.4h">
        <source>prefs.privacy.otp.4h</source>
        <translation>4 hours</translation>
    </message>
    <message id="prefs.privacy.otp.note1h">
        <source>prefs.privacy.otp.note1h</source>
        <translation>At each start, those older than an hour are deleted.</translation>
    </message>
    <message id="prefs.privacy.otp.note24h">
        <source>prefs.privacy.otp.note24h</source>
        <translation>At each start, those older than a day are deleted.</translation>
    </message>
    <message id="prefs.privacy.otp.note4h">
        <source>prefs.privacy.otp.note4h</source>
        <translation>At each start, those older than 4 hours are deleted.</translation>
    </message>
    <message id="prefs.privacy.otp.off">
        <source>prefs.privacy.otp.off</source>
        <translation>Off</translation>
    </message>
    <message id="prefs.privacy.otp.otherHours" numerus="yes">
        <source>prefs.privacy.otp.otherHours</source>
        <translation>
            <numerusform>%Ln hour</numerusform>
            <numerusform>%Ln hours</numerusform>
        </translation>
    </message>
    <message id="prefs.privacy.otpAutoDelete">
        <source>prefs.privacy.otpAutoDelete</source>
        <translation>Delete codes after</translation>
    </message>
    <message id="prefs.privacy.otpAutoDelete.caption">
        <source>prefs.privacy.otpAutoDelete.caption</source>
        <translation>Deletes notifications that may hold a one-time code: four digits in a row, or words that such messages use. Pinned ones go too.</translation>
    </message>
    <message id="prefs.privacy.privacyNotice">
        <source>prefs.privacy.privacyNotice</source>
        <translation>Privacy notice</translation>
    </message>
    <message id="prefs.privacy.privacyNotice.btn">
        <source>prefs.privacy.privacyNotice.btn</source>
        <translation>Read…</translation>
    </message>
    <message id="prefs.privacy.privacyNotice.caption">
        <source>prefs.privacy.privacyNotice.caption</source>
        <translation>What is stored, where, and who can read it.</translation>
    </message>
    <message id="prefs.privacy.section.documents">
        <source>prefs.privacy.section.documents</source>
        <translation>Documents</translation>
    </message>
    <message id="prefs.privacy.section.otpAutoDelete">
        <source>prefs.privacy.section.otpAutoDelete</source>
        <translation>One-Time Codes</translation>
    </message>
    <message id="prefs.privacy.section.privacyMode">
        <source>prefs.privacy.section.privacyMode</source>
        <translation>Privacy Mode</translation>
    </message>
    <message id="prefs.privacy.welcomeGuide">
        <source>prefs.privacy.welcomeGuide</source>
        <translation>Welcome guide</translation>
    </message>
    <message id="prefs.privacy.welcomeGuide.btn">
        <source>prefs.privacy.welcomeGuide.btn</source>
        <translation>Open…</translation>
    </message>
    <message id="prefs.privacy.welcomeGuide.caption">
        <source>prefs.privacy.welcomeGuide.caption</source>
        <translation>The pages that the first start showed.</translation>
    </message>
    <message id="prefs.saveProblem">
        <source>prefs.saveProblem</source>
        <translation>Your changes could not be saved to the settings file. They hold until Tessarine quits, and are saved with the next change once the file can be written.</translation>
    </message>
    <message id="prefs.storage.backup.alert.body">
        <source>prefs.storage.backup.alert.body</source>
        <translation>It holds the content of your notifications without encryption. The most recent ones may be missing from it.</translation>
    </message>
    <message id="prefs.storage.backup.alert.title">
        <source>prefs.storage.backup.alert.title</source>
        <translation>The backup can be read by anyone who has it.</translation>
    </message>
    <message id="prefs.storage.backup.error.title">
        <source>prefs.storage.backup.error.title</source>
        <translation>The backup could not be made.</translation>
    </message>
    <message id="prefs.storage.backup.panel.save">
        <source>prefs.storage.backup.panel.save</source>
        <translation>Save</translation>
    </message>
    <message id="prefs.storage.backup.panel.title">
        <source>prefs.storage.backup.panel.title</source>
        <translation>Back Up the Hoard</translation>
    </message>
    <message id="prefs.storage.dbSize">
        <source>prefs.storage.dbSize</source>
        <translation>Size on disk</translation>
    </message>
    <message id="prefs.storage.exportBackup">
        <source>prefs.storage.exportBackup</source>
        <translation>Back Up…</translation>
    </message>
    <message id="prefs.storage.exportBackup.help">
        <source>prefs.storage.exportBackup.help</source>
        <translation>Save a copy of the hoard's file</translation>
    </message>
    <message id="prefs.storage.keepFor">
        <source>prefs.storage.keepFor</source>
        <translation>Keep notifications</translation>
    </message>
    <message id="prefs.storage.retention.14days">
        <source>prefs.storage.retention.14days</source>
        <translation>14 days</translation>
    </message>
    <message id="prefs.storage.retention.1year">
        <source>prefs.storage.retention.1year</source>
        <translation>1 year</translation>
    </message>
    <message id="prefs.storage.retention.30days">
        <source>prefs.storage.retention.30days</source>
        <translation>30 days</translation>
    </message>
    <message id="prefs.storage.retention.60days">
        <source>prefs.storage.retention.60days</source>
        <translation>60 days</translation>
    </message>
    <message id="prefs.storage.retention.6months">
        <source>prefs.storage.retention.6months</source>
        <translation>6 months</translation>
    </message>
    <message id="prefs.storage.retention.7days">
        <source>prefs.storage.retention.7days</source>
        <translation>7 days</translation>
    </message>
    <message id="prefs.storage.retention.90days">
        <source>prefs.storage.retention.90days</source>
        <translation>90 days</translation>
    </message>
    <message id="prefs.storage.retention.daysNote" numerus="yes">
        <source>prefs.storage.retention.daysNote</source>
        <translation>
            <numerusform>At each start, notifications older than %Ln day are deleted, pinned ones too.</numerusform>
            <numerusform>At each start, notifications older than %Ln days are deleted, pinned ones too.</numerusform>
        </translation>
    </message>
    <message id="prefs.storage.retention.forever">
        <source>prefs.storage.retention.forever</source>
        <translation>Forever</translation>
    </message>
    <message id="prefs.storage.retention.foreverNote">
        <source>prefs.storage.retention.foreverNote</source>
        <translation>Nothing is ever deleted because of its age.</translation>
    </message>
    <message id="prefs.storage.retention.otherDays" numerus="yes">
        <source>prefs.storage.retention.otherDays</source>
        <translation>
            <numerusform>%Ln day</numerusform>
            <numerusform>%Ln days</numerusform>
        </translation>
    </message>
    <message id="prefs.storage.retention.shortWarning">
        <source>prefs.storage.retention.shortWarning</source>
        <translation>Notifications go after a short time, pinned ones too.</translation>
    </message>
    <message id="prefs.storage.section.hoard">
        <source>prefs.storage.section.hoard</source>
        <translation>Hoard</translation>
    </message>
    <message id="prefs.storage.section.retention">
        <source>prefs.storage.section.retention</source>
        <translation>Retention</translation>
    </message>
    <message id="prefs.storage.size.bytes" numerus="yes">
        <source>prefs.storage.size.bytes</source>
        <translation>
            <numerusform>%Ln byte</numerusform>
            <numerusform>%Ln bytes</numerusform>
        </translation>
    </message>
    <message id="prefs.storage.size.gigabytes">
        <source>prefs.storage.size.gigabytes</source>
        <translation>%1 GB</translation>
    </message>
    <message id="prefs.storage.size.kilobytes">
        <source>prefs.storage.size.kilobytes</source>
        <translation>%1 KB</translation>
    </message>
    <message id="prefs.storage.size.megabytes">
        <source>prefs.storage.size.megabytes</source>
        <translation>%1 MB</translation>
    </message>
    <message id="prefs.storage.size.terabytes">
        <source>prefs.storage.size.terabytes</source>
        <translation>%1 TB</translation>
    </message>
    <message id="prefs.storage.size.zero">
        <source>prefs.storage.size.zero</source>
        <translation>Zero KB</translation>
    </message>
    <message id="prefs.tab.general">
        <source>prefs.tab.general</source>
        <translation>General</translation>
    </message>
    <message id="prefs.tab.privacy">
        <source>prefs.tab.privacy</source>
        <translation>Privacy</translation>
    </message>
    <message id="prefs.tab.storage">
        <source>prefs.tab.storage</source>
        <translation>Storage</translation>
    </message>
    <message id="prefs.window.title">
        <source>prefs.window.title</source>
        <translation>Preferences</translation>
    </message>
    <message id="preview.copy">
        <source>preview.copy</source>
        <translation>Copy</translation>
    </message>
    <message id="preview.empty">
        <source>preview.empty</source>
        <translation>This notification has no text.</translation>
    </message>
    <message id="preview.open">
        <source>preview.open</source>
        <translation>Open %1</translation>
    </message>
    <message id="preview.title">
        <source>preview.title</source>
        <translation>Notification</translation>
    </message>
    <message id="privacy.block1.text">
        <source>privacy.block1.text</source>
        <translation>The hoard is one file in your home folder, readable by your user account alone. Nothing in it is sent anywhere.</translation>
    </message>
    <message id="privacy.block1.title">
        <source>privacy.block1.title</source>
        <translation>Stored on this computer</translation>
    </message>
    <message id="privacy.block2.text">
        <source>privacy.block2.text</source>
        <translation>Notifications hold what other people sent to you. Keep that in mind when you show, export or copy them.</translation>
    </message>
    <message id="privacy.block2.title">
        <source>privacy.block2.title</source>
        <translation>What other people wrote</translation>
    </message>
    <message id="privacy.block3.text">
        <source>privacy.block3.text</source>
        <translation>The file is plain. Whoever can use your account, or can read your disk, can read it. Encrypt your disk if that is a concern. Hiding contents changes what is shown and not what is stored.</translation>
    </message>
    <message id="privacy.block3.title">
        <source>privacy.block3.title</source>
        <translation>Not encrypted</translation>
    </message>
    <message id="privacy.block4.text">
        <source>privacy.block4.text</source>
        <translation>Files that you export, and backups that you make, are plain too, and stay until you delete them.</translation>
    </message>
    <message id="privacy.block4.title">
        <source>privacy.block4.title</source>
        <translation>Exports and backups</translation>
    </message>
    <message id="privacy.block5.text">
        <source>privacy.block5.text</source>
        <translation>You can exclude apps, delete rows, set how long they are kept, and have one-time codes deleted after some hours.</translation>
    </message>
    <message id="privacy.block5.title">
        <source>privacy.block5.title</source>
        <translation>You decide</translation>
    </message>
    <message id="privacy.notice.btn.understood">
        <source>privacy.notice.btn.understood</source>
        <translation>I Understand</translation>
    </message>
    <message id="privacy.notice.reviewNote">
        <source>privacy.notice.reviewNote</source>
        <translation>You can read this again in the preferences, under Privacy.</translation>
    </message>
    <message id="privacy.notice.subtitle">
        <source>privacy.notice.subtitle</source>
        <translation>What is stored, where, and who can read it.</translation>
    </message>
    <message id="privacy.notice.title">
        <source>privacy.notice.title</source>
        <translation>Tessarine and Your Privacy</translation>
    </message>
    <message id="progress.percent">
        <source>progress.percent</source>
        <translation>%1%</translation>
    </message>
    <message id="row.clickToReveal">
        <source>row.clickToReveal</source>
        <translation>Click to reveal</translation>
    </message>
    <message id="row.contentHidden">
        <source>row.contentHidden</source>
        <translation>Content hidden</translation>
    </message>
    <message id="row.deselect">
        <source>row.deselect</source>
        <translation>Deselect</translation>
    </message>
    <message id="row.pinned">
        <source>row.pinned</source>
        <translation>Pinned</translation>
    </message>
    <message id="row.select">
        <source>row.select</source>
        <translation>Select</translation>
    </message>
    <message id="row.singleClickToSelect">
        <source>row.singleClickToSelect</source>
        <translation>Click to select, double-click to open %1</translation>
    </message>
    <message id="scrollBar.horizontal">
        <source>scrollBar.horizontal</source>
        <translation>Horizontal scroll bar</translation>
    </message>
    <message id="scrollBar.vertical">
        <source>scrollBar.vertical</source>
        <translation>Vertical scroll bar</translation>
    </message>
    <message id="selection.byApp.help">
        <source>selection.byApp.help</source>
        <translation>Add all notifications of an app to the selection</translation>
    </message>
    <message id="selection.byDate.help">
        <source>selection.byDate.help</source>
        <translation>Add all notifications of some days to the selection</translation>
    </message>
    <message id="selection.cancel">
        <source>selection.cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="selection.confirmDelete.btn">
        <source>selection.confirmDelete.btn</source>
        <translation>Delete</translation>
    </message>
    <message id="selection.confirmDelete.title" numerus="yes">
        <source>selection.confirmDelete.title</source>
        <translation>
            <numerusform>Delete %Ln notification?</numerusform>
            <numerusform>Delete %Ln notifications?</numerusform>
        </translation>
    </message>
    <message id="selection.confirmDeleteAll.message">
        <source>selection.confirmDeleteAll.message</source>
        <translation>Everything in the hoard goes, pinned notifications and older ones that are not loaded too. This can’t be undone.</translation>
    </message>
    <message id="selection.confirmDeleteAll.title" numerus="yes">
        <source>selection.confirmDeleteAll.title</source>
        <translation>
            <numerusform>Delete all notifications? (%Ln loaded)</numerusform>
            <numerusform>Delete all notifications? (%Ln loaded)</numerusform>
        </translation>
    </message>
    <message id="selection.count" numerus="yes">
        <source>selection.count</source>
        <translation>
            <numerusform>%Ln selected</numerusform>
            <numerusform>%Ln selected</numerusform>
        </translation>
    </message>
    <message id="selection.deleteAll">
        <source>selection.deleteAll</source>
        <translation>Delete All</translation>
    </message>
    <message id="selection.deleteSelected">
        <source>selection.deleteSelected</source>
        <translation>Delete Selected…</translation>
    </message>
    <message id="selection.deselectAll">
        <source>selection.deselectAll</source>
        <translation>Deselect All</translation>
    </message>
    <message id="selection.noSelection">
        <source>selection.noSelection</source>
        <translation>Nothing selected</translation>
    </message>
    <message id="selection.selectAll">
        <source>selection.selectAll</source>
        <translation>Select All</translation>
    </message>
    <message id="toolbar.app.all">
        <source>toolbar.app.all</source>
        <translation>All Apps</translation>
    </message>
    <message id="toolbar.app.label">
        <source>toolbar.app.label</source>
        <translation>App</translation>
    </message>
    <message id="toolbar.delete.help">
        <source>toolbar.delete.help</source>
        <translation>Select and delete notifications</translation>
    </message>
    <message id="toolbar.export.help">
        <source>toolbar.export.help</source>
        <translation>Export notifications</translation>
    </message>
    <message id="toolbar.group.byApp">
        <source>toolbar.group.byApp</source>
        <translation>App</translation>
    </message>
    <message id="toolbar.group.byDate">
        <source>toolbar.group.byDate</source>
        <translation>Date</translation>
    </message>
    <message id="toolbar.group.label">
        <source>toolbar.group.label</source>
        <translation>Group</translation>
    </message>
    <message id="toolbar.group.none">
        <source>toolbar.group.none</source>
        <translation>None</translation>
    </message>
    <message id="toolbar.loadOlder">
        <source>toolbar.loadOlder</source>
        <translation>Load Older</translation>
    </message>
    <message id="toolbar.loadOlder.help">
        <source>toolbar.loadOlder.help</source>
        <translation>Load the next 500 notifications from the hoard</translation>
    </message>
    <message id="toolbar.notifCount" numerus="yes">
        <source>toolbar.notifCount</source>
        <translation>
            <numerusform>%Ln notification</numerusform>
            <numerusform>%Ln notifications</numerusform>
        </translation>
    </message>
    <message id="toolbar.notifCount.truncated">
        <source>toolbar.notifCount.truncated</source>
        <translation>%1 of %2</translation>
    </message>
    <message id="toolbar.search.clear">
        <source>toolbar.search.clear</source>
        <translation>Clear the search</translation>
    </message>
    <message id="toolbar.search.placeholder">
        <source>toolbar.search.placeholder</source>
        <translation>Search</translation>
    </message>
    <message id="toolbar.sort.appAZ">
        <source>toolbar.sort.appAZ</source>
        <translation>App A–Z</translation>
    </message>
    <message id="toolbar.sort.label">
        <source>toolbar.sort.label</source>
        <translation>Sort</translation>
    </message>
    <message id="toolbar.sort.newest">
        <source>toolbar.sort.newest</source>
        <translation>Newest First</translation>
    </message>
    <message id="toolbar.sort.oldest">
        <source>toolbar.sort.oldest</source>
        <translation>Oldest First</translation>
    </message>
    <message id="updates.howTheyCome">
        <source>updates.howTheyCome</source>
        <translation>This build of Tessarine doesn’t look for new versions: it was made without Sparkle, the library that does.</translation>
    </message>
    <message id="updates.version">
        <source>updates.version</source>
        <translation>Tessarine %1</translation>
    </message>
    <message id="updates.window.title">
        <source>updates.window.title</source>
        <translation>Tessarine Updates</translation>
    </message>
    <message id="window.title.fda">
        <source>window.title.fda</source>
        <translation>Full Disk Access</translation>
    </message>
    <message id="window.title.privacy">
        <source>window.title.privacy</source>
        <translation>Tessarine and Your Privacy</translation>
    </message>
</context>
</TS>
