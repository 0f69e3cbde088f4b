<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="help.about.sparkle.credit">
        <source>help.about.sparkle.credit</source>
        <translation>Tessarine on macOS thanks the open-source library Sparkle for its updates. This edition for Linux doesn’t contain it.</translation>
    </message>
    <message id="help.diagnostics.p.intro">
        <source>help.diagnostics.p.intro</source>
        <translation>This window shows Tessarine at work. Click the bell with the middle mouse button to open it. Its content is in memory only and is gone when Tessarine quits.</translation>
    </message>
    <message id="help.exporting.h.numbersExcel">
        <source>help.exporting.h.numbersExcel</source>
        <translation>LibreOffice and others</translation>
    </message>
    <message id="help.exporting.p.numbers">
        <source>help.exporting.p.numbers</source>
        <translation>LibreOffice asks how to read the CSV file: choose UTF-8 and the semicolon as the only separator.</translation>
    </message>
    <message id="help.hoard.h.clicking">
        <source>help.hoard.h.clicking</source>
        <translation>What a double-click leads to, as on a Mac</translation>
    </message>
    <message id="help.hoard.p.interaction.cmdC">
        <source>help.hoard.p.interaction.cmdC</source>
        <translation>Control-C: copies title and text of the marked notification.</translation>
    </message>
    <message id="help.howItWorks.h.layersTogether">
        <source>help.howItWorks.h.layersTogether</source>
        <translation>What each way catches on a Mac</translation>
    </message>
    <message id="help.howItWorks.layer.ax.desc">
        <source>help.howItWorks.layer.ax.desc</source>
        <translation>Apps announce notifications over the desktop’s session bus. Tessarine listens there without being able to answer or delay anybody, and takes name, title, text and time as the app sent them, whether or not a banner is shown. No permission is needed.</translation>
    </message>
    <message id="help.howItWorks.layer.ax.title">
        <source>help.howItWorks.layer.ax.title</source>
        <translation>The session bus</translation>
    </message>
    <message id="help.howItWorks.layer.legacy.desc">
        <source>help.howItWorks.layer.legacy.desc</source>
        <translation>The same for a file in ~/Library/Application Support/NotificationCenter, as older versions of macOS wrote it.</translation>
    </message>
    <message id="help.howItWorks.layer.legacy.title">
        <source>help.howItWorks.layer.legacy.title</source>
        <translation>A database from an older Mac</translation>
    </message>
    <message id="help.howItWorks.layer.usernoted.desc">
        <source>help.howItWorks.layer.usernoted.desc</source>
        <translation>Linux keeps no such database. If one from a Mac lies at ~/Library/Group Containers/group.com.apple.usernoted/db2/db in your home folder, Tessarine reads it at start, whenever it is written, and every 30 seconds.</translation>
    </message>
    <message id="help.howItWorks.layer.usernoted.title">
        <source>help.howItWorks.layer.usernoted.title</source>
        <translation>A database from a Mac</translation>
    </message>
    <message id="help.howItWorks.p.sleep">
        <source>help.howItWorks.p.sleep</source>
        <translation>Before the computer sleeps, Tessarine stops looking at announcements. Two seconds after it wakes, it begins again and takes what was announced meanwhile.</translation>
    </message>
    <message id="help.howItWorks.p.storage">
        <source>help.howItWorks.p.storage</source>
        <translation>Everything is in one file on your computer, ~/.local/share/Tessarine/hoard.db, which only your user account may read. Tessarine has no server and no account and sends your notifications to nobody.</translation>
    </message>
    <message id="help.howItWorks.p1">
        <source>help.howItWorks.p1</source>
        <translation>The desktop forgets notifications within days. Tessarine copies each one into an archive of its own, the hoard, where it stays until you delete it. It sits in the tray, or in a small panel where the desktop has no tray, and works for as long as it runs.</translation>
    </message>
    <message id="help.iphone.h.howToEnable">
        <source>help.iphone.h.howToEnable</source>
        <translation>On the iPhone, for each app, with a Mac</translation>
    </message>
    <message id="help.iphone.h.iphoneSettings">
        <source>help.iphone.h.iphoneSettings</source>
        <translation>When nothing comes to the Mac</translation>
    </message>
    <message id="help.iphone.h.nativeMac">
        <source>help.iphone.h.nativeMac</source>
        <translation>Apps here and on a phone</translation>
    </message>
    <message id="help.iphone.h.requirements">
        <source>help.iphone.h.requirements</source>
        <translation>What iPhone Mirroring needs on a Mac</translation>
    </message>
    <message id="help.iphone.h.solution">
        <source>help.iphone.h.solution</source>
        <translation>Programs that bring them here</translation>
    </message>
    <message id="help.iphone.p.nativeMac">
        <source>help.iphone.p.nativeMac</source>
        <translation>Tessarine sees what is announced on this computer. An app that runs here announces here, and is captured.</translation>
    </message>
    <message id="help.iphone.p.nativeMac2">
        <source>help.iphone.p.nativeMac2</source>
        <translation>What only a phone shows never reaches the computer and can’t be captured.</translation>
    </message>
    <message id="help.iphone.p.routing">
        <source>help.iphone.p.routing</source>
        <translation>A notification that another program announces for a phone has the name that this program gives it. If no app of that name is here, a double-click can’t open it and says so.</translation>
    </message>
    <message id="help.iphone.p.solution">
        <source>help.iphone.p.solution</source>
        <translation>A program such as KDE Connect can announce the notifications of an Android phone on this computer. Tessarine then captures them like all others. Linux has no iPhone Mirroring; the rest of this page is about a Mac.</translation>
    </message>
    <message id="help.iphone.title">
        <source>help.iphone.title</source>
        <translation>Phones</translation>
    </message>
    <message id="help.lim.30entries.desc">
        <source>help.lim.30entries.desc</source>
        <translation>The desktop’s own list of notifications can’t be read. The hoard begins with Tessarine’s first start.</translation>
    </message>
    <message id="help.lim.30entries.title">
        <source>help.lim.30entries.title</source>
        <translation>Nothing from before</translation>
    </message>
    <message id="help.lim.30entries.workaround">
        <source>help.lim.30entries.workaround</source>
        <translation>Leave Tessarine running.</translation>
    </message>
    <message id="help.lim.appStore.desc">
        <source>help.lim.appStore.desc</source>
        <translation>A sandbox may let apps announce only through a portal. The portal’s announcement on the session bus is captured, under the name that it gives.</translation>
    </message>
    <message id="help.lim.appStore.title">
        <source>help.lim.appStore.title</source>
        <translation>Apps in a sandbox</translation>
    </message>
    <message id="help.lim.appStore.workaround">
        <source>help.lim.appStore.workaround</source>
        <translation>None is needed; only the name may differ.</translation>
    </message>
    <message id="help.lim.calendar.desc">
        <source>help.lim.calendar.desc</source>
        <translation>A reminder of a calendar stands at the time of its announcement, not of the event.</translation>
    </message>
    <message id="help.lim.focus.desc">
        <source>help.lim.focus.desc</source>
        <translation>Some apps ask the desktop and announce nothing while Do Not Disturb is on.</translation>
    </message>
    <message id="help.lim.focus.title">
        <source>help.lim.focus.title</source>
        <translation>Do Not Disturb</translation>
    </message>
    <message id="help.lim.focus.workaround">
        <source>help.lim.focus.workaround</source>
        <translation>Look into the app itself.</translation>
    </message>
    <message id="help.lim.iphoneOff.desc">
        <source>help.lim.iphoneOff.desc</source>
        <translation>From a phone that is off or far away nothing comes.</translation>
    </message>
    <message id="help.lim.iphoneOff.title">
        <source>help.lim.iphoneOff.title</source>
        <translation>The phone must be on</translation>
    </message>
    <message id="help.lim.iphoneOff.workaround">
        <source>help.lim.iphoneOff.workaround</source>
        <translation>Keep it near, and charged.</translation>
    </message>
    <message id="help.lim.mirroringSetup.desc">
        <source>help.lim.mirroringSetup.desc</source>
        <translation>A program that brings notifications from a phone needs leave on the phone to read them.</translation>
    </message>
    <message id="help.lim.mirroringSetup.title">
        <source>help.lim.mirroringSetup.title</source>
        <translation>Set up on the phone</translation>
    </message>
    <message id="help.lim.mirroringSetup.workaround">
        <source>help.lim.mirroringSetup.workaround</source>
        <translation>Follow that program’s own guide.</translation>
    </message>
    <message id="help.lim.nativeMacApp.desc">
        <source>help.lim.nativeMacApp.desc</source>
        <translation>Notifications that only a phone shows are never captured.</translation>
    </message>
    <message id="help.lim.nativeMacApp.title">
        <source>help.lim.nativeMacApp.title</source>
        <translation>Only what reaches this computer</translation>
    </message>
    <message id="help.lim.nativeMacApp.workaround">
        <source>help.lim.nativeMacApp.workaround</source>
        <translation>Use a program that brings them here, or the app’s version for the desktop.</translation>
    </message>
    <message id="help.lim.network.desc">
        <source>help.lim.network.desc</source>
        <translation>Without the network between them a phone passes nothing on, and Tessarine can’t know what is missing.</translation>
    </message>
    <message id="help.lim.network.title">
        <source>help.lim.network.title</source>
        <translation>The network</translation>
    </message>
    <message id="help.lim.network.workaround">
        <source>help.lim.network.workaround</source>
        <translation>Keep both in the same network.</translation>
    </message>
    <message id="help.lim.notRunning.desc">
        <source>help.lim.notRunning.desc</source>
        <translation>What is announced while Tessarine is not running is lost: Linux keeps no record of it.</translation>
    </message>
    <message id="help.lim.notRunning.workaround">
        <source>help.lim.notRunning.workaround</source>
        <translation>Launch Tessarine at login.</translation>
    </message>
    <message id="help.lim.plaintext.workaround">
        <source>help.lim.plaintext.workaround</source>
        <translation>Encrypt the disk or your home folder.</translation>
    </message>
    <message id="help.lim.sameAppleId.desc">
        <source>help.lim.sameAppleId.desc</source>
        <translation>Apple offers it between an iPhone and a Mac of the same account only.</translation>
    </message>
    <message id="help.lim.sameAppleId.title">
        <source>help.lim.sameAppleId.title</source>
        <translation>No iPhone Mirroring</translation>
    </message>
    <message id="help.lim.sameAppleId.workaround">
        <source>help.lim.sameAppleId.workaround</source>
        <translation>Use the app’s version for the desktop, or its website with notifications.</translation>
    </message>
    <message id="help.lim.silent.desc">
        <source>help.lim.silent.desc</source>
        <translation>An app that only plays a sound or marks its icon announces nothing on the bus.</translation>
    </message>
    <message id="help.lim.silent.title">
        <source>help.lim.silent.title</source>
        <translation>Silent apps</translation>
    </message>
    <message id="help.lim.silent.workaround">
        <source>help.lim.silent.workaround</source>
        <translation>Switch notifications on in the app’s own settings.</translation>
    </message>
    <message id="help.lim.tahoe.desc">
        <source>help.lim.tahoe.desc</source>
        <translation>A session bus may be set up so that nobody can listen. Tessarine then sees nothing, and says so in its window.</translation>
    </message>
    <message id="help.lim.tahoe.title">
        <source>help.lim.tahoe.title</source>
        <translation>Strict session buses</translation>
    </message>
    <message id="help.lim.tahoe.workaround">
        <source>help.lim.tahoe.workaround</source>
        <translation>Look into the diagnostics window, and ask whoever runs the computer.</translation>
    </message>
    <message id="help.lim.timestamps.desc">
        <source>help.lim.timestamps.desc</source>
        <translation>The time of a row is that of the announcement, not of the message that it tells of.</translation>
    </message>
    <message id="help.lim.timestamps.title">
        <source>help.lim.timestamps.title</source>
        <translation>Times</translation>
    </message>
    <message id="help.lim.timestamps.workaround">
        <source>help.lim.timestamps.workaround</source>
        <translation>Look into the app for the time of the message.</translation>
    </message>
    <message id="help.lim.usernoted.desc">
        <source>help.lim.usernoted.desc</source>
        <translation>A window that an app draws by itself, to look like a notification, is not announced and not captured.</translation>
    </message>
    <message id="help.lim.usernoted.title">
        <source>help.lim.usernoted.title</source>
        <translation>Only announcements on the bus</translation>
    </message>
    <message id="help.lim.usernoted.workaround">
        <source>help.lim.usernoted.workaround</source>
        <translation>Some apps can be set to use the desktop’s notifications.</translation>
    </message>
    <message id="help.limitations.h.iphone">
        <source>help.limitations.h.iphone</source>
        <translation>Phones</translation>
    </message>
    <message id="help.limitations.p.disclaimer">
        <source>help.limitations.p.disclaimer</source>
        <translation>Tessarine reads what is announced on the session bus. It can’t promise to catch every notification.</translation>
    </message>
    <message id="help.macos.h.accessibility">
        <source>help.macos.h.accessibility</source>
        <translation>Permissions</translation>
    </message>
    <message id="help.macos.h.alertStyle">
        <source>help.macos.h.alertStyle</source>
        <translation>Banners</translation>
    </message>
    <message id="help.macos.h.focus">
        <source>help.macos.h.focus</source>
        <translation>Do Not Disturb</translation>
    </message>
    <message id="help.macos.h.timeMachine">
        <source>help.macos.h.timeMachine</source>
        <translation>Backups of your home folder</translation>
    </message>
    <message id="help.macos.p.accessibility">
        <source>help.macos.p.accessibility</source>
        <translation>On Linux Tessarine needs no permission; the session bus must let it listen, which the diagnostics window shows. These steps are for a Mac:</translation>
    </message>
    <message id="help.macos.p.accessibility2">
        <source>help.macos.p.accessibility2</source>
        <translation>On a Mac, Tessarine uses this to read notification banners and for nothing else.</translation>
    </message>
    <message id="help.macos.p.alertReco">
        <source>help.macos.p.alertReco</source>
        <translation>So nothing has to be set in the desktop’s notification settings for Tessarine’s sake.</translation>
    </message>
    <message id="help.macos.p.alertStyle">
        <source>help.macos.p.alertStyle</source>
        <translation>On Linux it doesn’t matter whether the desktop shows a banner: an announcement is captured as soon as an app makes it. The table tells of macOS:</translation>
    </message>
    <message id="help.macos.p.focus">
        <source>help.macos.p.focus</source>
        <translation>Do Not Disturb keeps banners off the screen. Most apps announce all the same, and Tessarine captures it.</translation>
    </message>
    <message id="help.macos.p.timeMachine">
        <source>help.macos.p.timeMachine</source>
        <translation>The hoard is in your home folder, so a backup of it holds the hoard. A file that is in use may be copied in the middle of a change; a backup made with Tessarine is safer.</translation>
    </message>
    <message id="help.macos.title">
        <source>help.macos.title</source>
        <translation>System Settings</translation>
    </message>
    <message id="help.menuBar.p.intro">
        <source>help.menuBar.p.intro</source>
        <translation>The bell in the tray, or in a small panel where the desktop has no tray, is where Tessarine can always be found. In a tray a click opens the hoard, and a right click the menu; on the panel any click opens the menu.</translation>
    </message>
    <message id="help.menuBar.p.optionClick">
        <source>help.menuBar.p.optionClick</source>
        <translation>Click the bell with the middle mouse button to open the diagnostics window. On the panel, a click with Alt held does the same.</translation>
    </message>
    <message id="help.menuBar.row.checkUpdates.action">
        <source>help.menuBar.row.checkUpdates.action</source>
        <translation>Says which version runs and how new ones come.</translation>
    </message>
    <message id="help.menuBar.title">
        <source>help.menuBar.title</source>
        <translation>The Bell</translation>
    </message>
    <message id="help.prefs.p.excludedApps.note">
        <source>help.prefs.p.excludedApps.note</source>
        <translation>An app is known by its name in lower case, with dots for blanks. Apps of the same name are excluded together.</translation>
    </message>
    <message id="help.prefs.p.startup">
        <source>help.prefs.p.startup</source>
        <translation>Launch at login starts Tessarine when you log in, by an entry in your autostart folder that the desktop’s own settings show too. It can keep only what comes while it runs.</translation>
    </message>
    <message id="help.prefs.p.startup3">
        <source>help.prefs.p.startup3</source>
        <translation>It starts without a window. You see nothing but its bell.</translation>
    </message>
    <message id="help.privacy.lim.noEncrypt.workaround">
        <source>help.privacy.lim.noEncrypt.workaround</source>
        <translation>Encrypt the disk or your home folder, and lock the screen when you leave.</translation>
    </message>
    <message id="help.privacy.lim.noPerApp.workaround">
        <source>help.privacy.lim.noPerApp.workaround</source>
        <translation>Put the identifiers of the apps into the list privacyApps in ~/.config/com.zorvek.Tessarine.conf while Tessarine is not running.</translation>
    </message>
    <message id="help.privacy.protect.filevault.desc">
        <source>help.privacy.protect.filevault.desc</source>
        <translation>An encrypted disk keeps the hoard unreadable while the computer is off.</translation>
    </message>
    <message id="help.tips.mirroring.desc">
        <source>help.tips.mirroring.desc</source>
        <translation>What a program such as KDE Connect announces for a phone comes into the hoard too.</translation>
    </message>
    <message id="help.tips.mirroring.title">
        <source>help.tips.mirroring.title</source>
        <translation>Bring the phone in</translation>
    </message>
    <message id="help.tips.notifStyles.desc">
        <source>help.tips.notifStyles.desc</source>
        <translation>An app that announces nothing can’t be captured: switch notifications on in its own settings.</translation>
    </message>
    <message id="help.tips.notifStyles.title">
        <source>help.tips.notifStyles.title</source>
        <translation>Let apps announce</translation>
    </message>
    <message id="launchAtLogin.info.silentStart">
        <source>launchAtLogin.info.silentStart</source>
        <translation>It starts without a window. You see nothing but its bell.</translation>
    </message>
    <message id="menu.fullDiskAccess">
        <source>menu.fullDiskAccess</source>
        <translation>Access to a Database…</translation>
    </message>
    <message id="onboarding.ax.granted">
        <source>onboarding.ax.granted</source>
        <translation>Granted: the session bus lets Tessarine listen.</translation>
    </message>
    <message id="onboarding.ax.howToEnable">
        <source>onboarding.ax.howToEnable</source>
        <translation>Start Tessarine from within a desktop session. If you did, its bus forbids programs to listen.</translation>
    </message>
    <message id="onboarding.ax.noPermissionWarning">
        <source>onboarding.ax.noPermissionWarning</source>
        <translation>Without it, no notification can be kept.</translation>
    </message>
    <message id="onboarding.ax.notGranted">
        <source>onboarding.ax.notGranted</source>
        <translation>Not granted: the session bus doesn’t let Tessarine listen, or there is none.</translation>
    </message>
    <message id="onboarding.ax.openSettings">
        <source>onboarding.ax.openSettings</source>
        <translation>Open Settings</translation>
    </message>
    <message id="onboarding.ax.openSettings.hint">
        <source>onboarding.ax.openSettings.hint</source>
        <translation>This page notices by itself when the bus lets Tessarine listen.</translation>
    </message>
    <message id="onboarding.ax.subtitle">
        <source>onboarding.ax.subtitle</source>
        <translation>Tessarine listens on the bus of your session, on which applications announce their notifications to the desktop.</translation>
    </message>
    <message id="onboarding.ax.title">
        <source>onboarding.ax.title</source>
        <translation>Access to Notifications</translation>
    </message>
    <message id="onboarding.ax.whatItDoes.text">
        <source>onboarding.ax.whatItDoes.text</source>
        <translation>It takes the name of the application, the title and the text of each announcement, and puts them into the hoard.</translation>
    </message>
    <message id="onboarding.ax.whatItDoesNot.text">
        <source>onboarding.ax.whatItDoesNot.text</source>
        <translation>It doesn’t look at your windows, doesn’t follow what you type, and neither answers nor delays anybody.</translation>
    </message>
    <message id="onboarding.feature4.text">
        <source>onboarding.feature4.text</source>
        <translation>The notification service of your desktop doesn’t matter: Tessarine listens on the session bus.</translation>
    </message>
    <message id="onboarding.feature4.title">
        <source>onboarding.feature4.title</source>
        <translation>Whatever draws it</translation>
    </message>
    <message id="perm.fda.enabled">
        <source>perm.fda.enabled</source>
        <translation>I Have Allowed It</translation>
    </message>
    <message id="perm.fda.howto.header">
        <source>perm.fda.howto.header</source>
        <translation>How to allow it</translation>
    </message>
    <message id="perm.fda.notDetected">
        <source>perm.fda.notDetected</source>
        <translation>The database still can’t be read.</translation>
    </message>
    <message id="perm.fda.openSettings">
        <source>perm.fda.openSettings</source>
        <translation>Open Settings</translation>
    </message>
    <message id="perm.fda.picture">
        <source>perm.fda.picture</source>
        <translation>The properties of a file, with reading allowed to its owner</translation>
    </message>
    <message id="perm.fda.reason1">
        <source>perm.fda.reason1</source>
        <translation>The notifications in that database come into your hoard.</translation>
    </message>
    <message id="perm.fda.reason2">
        <source>perm.fda.reason2</source>
        <translation>What is written to it from now on comes there too.</translation>
    </message>
    <message id="perm.fda.restartHint">
        <source>perm.fda.restartHint</source>
        <translation>If nothing happens, press the button at the bottom.</translation>
    </message>
    <message id="perm.fda.step1">
        <source>perm.fda.step1</source>
        <translation>Open your file manager.</translation>
    </message>
    <message id="perm.fda.step2">
        <source>perm.fda.step2</source>
        <translation>Go to Library/Group Containers/group.com.apple.usernoted/db2 in your home folder.</translation>
    </message>
    <message id="perm.fda.step3">
        <source>perm.fda.step3</source>
        <translation>Open the properties of the file “db”.</translation>
    </message>
    <message id="perm.fda.step4">
        <source>perm.fda.step4</source>
        <translation>Let its owner, which is you, read it.</translation>
    </message>
    <message id="perm.fda.subtitle">
        <source>perm.fda.subtitle</source>
        <translation>There is a database of notifications in your home folder that Tessarine can’t read.</translation>
    </message>
    <message id="perm.fda.title">
        <source>perm.fda.title</source>
        <translation>Access to a Notification Database</translation>
    </message>
    <message id="perm.fda.without.row1">
        <source>perm.fda.without.row1</source>
        <translation>The notifications of this desktop are kept as before.</translation>
    </message>
    <message id="perm.fda.without.row2">
        <source>perm.fda.without.row2</source>
        <translation>What is in that database stays out of the hoard.</translation>
    </message>
    <message id="updates.howTheyCome">
        <source>updates.howTheyCome</source>
        <translation>New versions come with your system’s updates, through the package manager that installed Tessarine. The program itself never asks the network.</translation>
    </message>
    <message id="window.title.fda">
        <source>window.title.fda</source>
        <translation>Access to a Notification Database</translation>
    </message>
</context>
</TS>
