<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
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
    <message id="window.title.fda">
        <source>window.title.fda</source>
        <translation>Access to a Notification Database</translation>
    </message>
</context>
</TS>
