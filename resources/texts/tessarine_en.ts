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
    <message id="menu.quit">
        <source>menu.quit</source>
        <translation>Quit Tessarine</translation>
    </message>
    <message id="pageDots.position">
        <source>pageDots.position</source>
        <translation>Step %1 of %2</translation>
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
</context>
</TS>
