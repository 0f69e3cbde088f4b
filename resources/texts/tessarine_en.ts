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
    <message id="updates.packageManager">
        <source>updates.packageManager</source>
        <translation>New versions come with your system’s updates, through the package manager that installed Tessarine. The program itself never asks the network.</translation>
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
