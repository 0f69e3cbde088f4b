<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message id="help.about.sparkle.credit">
        <source>help.about.sparkle.credit</source>
        <translation>Auf macOS verdankt Tessarine seine Updates der freien Bibliothek Sparkle. Diese Ausgabe für Linux enthält sie nicht.</translation>
    </message>
    <message id="help.diagnostics.p.intro">
        <source>help.diagnostics.p.intro</source>
        <translation>Dieses Fenster zeigt Tessarine bei der Arbeit. Klicke mit der mittleren Maustaste auf die Glocke, um es zu öffnen. Sein Inhalt ist nur im Speicher und verschwindet, wenn du Tessarine beendest.</translation>
    </message>
    <message id="help.exporting.h.numbersExcel">
        <source>help.exporting.h.numbersExcel</source>
        <translation>LibreOffice und andere</translation>
    </message>
    <message id="help.exporting.p.numbers">
        <source>help.exporting.p.numbers</source>
        <translation>LibreOffice fragt, wie es die CSV-Datei lesen soll: Wähle UTF-8 und das Semikolon als einziges Trennzeichen.</translation>
    </message>
    <message id="help.hoard.h.clicking">
        <source>help.hoard.h.clicking</source>
        <translation>Wohin ein Doppelklick führt, wie auf einem Mac</translation>
    </message>
    <message id="help.hoard.p.interaction.cmdC">
        <source>help.hoard.p.interaction.cmdC</source>
        <translation>Strg-C: kopiert Titel und Text der markierten Benachrichtigung.</translation>
    </message>
    <message id="help.howItWorks.h.layersTogether">
        <source>help.howItWorks.h.layersTogether</source>
        <translation>Was jeder Weg auf einem Mac erfasst</translation>
    </message>
    <message id="help.howItWorks.layer.ax.desc">
        <source>help.howItWorks.layer.ax.desc</source>
        <translation>Apps melden Benachrichtigungen über den Sitzungsbus des Desktops. Tessarine hört dort zu, ohne antworten oder jemanden aufhalten zu können, und nimmt Namen, Titel, Text und Zeit, wie die App sie geschickt hat, ob ein Banner erscheint oder nicht. Eine Erlaubnis braucht es nicht.</translation>
    </message>
    <message id="help.howItWorks.layer.ax.title">
        <source>help.howItWorks.layer.ax.title</source>
        <translation>Der Sitzungsbus</translation>
    </message>
    <message id="help.howItWorks.layer.legacy.desc">
        <source>help.howItWorks.layer.legacy.desc</source>
        <translation>Dasselbe für eine Datei in ~/Library/Application Support/NotificationCenter, wie ältere Versionen von macOS sie schrieben.</translation>
    </message>
    <message id="help.howItWorks.layer.legacy.title">
        <source>help.howItWorks.layer.legacy.title</source>
        <translation>Eine Datenbank von einem älteren Mac</translation>
    </message>
    <message id="help.howItWorks.layer.usernoted.desc">
        <source>help.howItWorks.layer.usernoted.desc</source>
        <translation>Linux führt keine solche Datenbank. Liegt eine von einem Mac unter ~/Library/Group Containers/group.com.apple.usernoted/db2/db in deinem persönlichen Ordner, liest Tessarine sie beim Start, bei jedem Schreiben und alle 30 Sekunden.</translation>
    </message>
    <message id="help.howItWorks.layer.usernoted.title">
        <source>help.howItWorks.layer.usernoted.title</source>
        <translation>Eine Datenbank von einem Mac</translation>
    </message>
    <message id="help.howItWorks.p.sleep">
        <source>help.howItWorks.p.sleep</source>
        <translation>Bevor der Computer in den Ruhezustand geht, hört Tessarine auf, nach Meldungen zu sehen. Zwei Sekunden nach dem Aufwachen beginnt es wieder und nimmt, was inzwischen gemeldet wurde.</translation>
    </message>
    <message id="help.howItWorks.p.storage">
        <source>help.howItWorks.p.storage</source>
        <translation>Alles ist in einer Datei auf deinem Computer, ~/.local/share/Tessarine/hoard.db, die nur dein Benutzerkonto lesen darf. Tessarine hat keinen Server und kein Konto und schickt deine Benachrichtigungen niemandem.</translation>
    </message>
    <message id="help.howItWorks.p1">
        <source>help.howItWorks.p1</source>
        <translation>Der Desktop vergisst Benachrichtigungen nach wenigen Tagen. Tessarine kopiert jede in ein eigenes Archiv, den Hort, wo sie bleibt, bis du sie löschst. Es sitzt im Infobereich, oder in einem kleinen Feld, wo der Desktop keinen hat, und arbeitet, solange es läuft.</translation>
    </message>
    <message id="help.iphone.h.howToEnable">
        <source>help.iphone.h.howToEnable</source>
        <translation>Auf dem iPhone, für jede App, mit einem Mac</translation>
    </message>
    <message id="help.iphone.h.iphoneSettings">
        <source>help.iphone.h.iphoneSettings</source>
        <translation>Wenn auf dem Mac nichts kommt</translation>
    </message>
    <message id="help.iphone.h.nativeMac">
        <source>help.iphone.h.nativeMac</source>
        <translation>Apps hier und auf einem Telefon</translation>
    </message>
    <message id="help.iphone.h.requirements">
        <source>help.iphone.h.requirements</source>
        <translation>Was die iPhone-Synchronisierung auf einem Mac braucht</translation>
    </message>
    <message id="help.iphone.h.solution">
        <source>help.iphone.h.solution</source>
        <translation>Programme, die sie herbringen</translation>
    </message>
    <message id="help.iphone.p.nativeMac">
        <source>help.iphone.p.nativeMac</source>
        <translation>Tessarine sieht, was auf diesem Computer gemeldet wird. Eine App, die hier läuft, meldet hier und wird erfasst.</translation>
    </message>
    <message id="help.iphone.p.nativeMac2">
        <source>help.iphone.p.nativeMac2</source>
        <translation>Was nur ein Telefon zeigt, erreicht den Computer nie und kann nicht erfasst werden.</translation>
    </message>
    <message id="help.iphone.p.routing">
        <source>help.iphone.p.routing</source>
        <translation>Eine Benachrichtigung, die ein anderes Programm für ein Telefon meldet, hat den Namen, den dieses Programm ihr gibt. Ist hier keine App dieses Namens, kann ein Doppelklick sie nicht öffnen und sagt das.</translation>
    </message>
    <message id="help.iphone.p.solution">
        <source>help.iphone.p.solution</source>
        <translation>Ein Programm wie KDE Connect kann die Benachrichtigungen eines Android-Telefons auf diesem Computer melden. Tessarine erfasst sie dann wie alle anderen. Linux hat keine iPhone-Synchronisierung; der Rest dieser Seite handelt von einem Mac.</translation>
    </message>
    <message id="help.iphone.title">
        <source>help.iphone.title</source>
        <translation>Telefone</translation>
    </message>
    <message id="help.lim.30entries.desc">
        <source>help.lim.30entries.desc</source>
        <translation>Die Liste der Benachrichtigungen des Desktops selbst ist nicht lesbar. Der Hort beginnt mit dem ersten Start von Tessarine.</translation>
    </message>
    <message id="help.lim.30entries.title">
        <source>help.lim.30entries.title</source>
        <translation>Nichts von vorher</translation>
    </message>
    <message id="help.lim.30entries.workaround">
        <source>help.lim.30entries.workaround</source>
        <translation>Lass Tessarine laufen.</translation>
    </message>
    <message id="help.lim.appStore.desc">
        <source>help.lim.appStore.desc</source>
        <translation>Eine Sandbox lässt Apps vielleicht nur durch ein Portal melden. Die Meldung des Portals auf dem Sitzungsbus wird erfasst, unter dem Namen, den es nennt.</translation>
    </message>
    <message id="help.lim.appStore.title">
        <source>help.lim.appStore.title</source>
        <translation>Apps in einer Sandbox</translation>
    </message>
    <message id="help.lim.appStore.workaround">
        <source>help.lim.appStore.workaround</source>
        <translation>Keiner nötig; nur der Name kann anders sein.</translation>
    </message>
    <message id="help.lim.calendar.desc">
        <source>help.lim.calendar.desc</source>
        <translation>Die Erinnerung eines Kalenders steht bei der Zeit ihrer Meldung, nicht des Termins.</translation>
    </message>
    <message id="help.lim.focus.desc">
        <source>help.lim.focus.desc</source>
        <translation>Manche Apps fragen den Desktop und melden nichts, solange „Nicht stören“ an ist.</translation>
    </message>
    <message id="help.lim.focus.title">
        <source>help.lim.focus.title</source>
        <translation>Nicht stören</translation>
    </message>
    <message id="help.lim.focus.workaround">
        <source>help.lim.focus.workaround</source>
        <translation>Sieh in der App selbst nach.</translation>
    </message>
    <message id="help.lim.iphoneOff.desc">
        <source>help.lim.iphoneOff.desc</source>
        <translation>Von einem Telefon, das aus oder weit weg ist, kommt nichts.</translation>
    </message>
    <message id="help.lim.iphoneOff.title">
        <source>help.lim.iphoneOff.title</source>
        <translation>Das Telefon muss an sein</translation>
    </message>
    <message id="help.lim.iphoneOff.workaround">
        <source>help.lim.iphoneOff.workaround</source>
        <translation>Halte es in der Nähe und geladen.</translation>
    </message>
    <message id="help.lim.mirroringSetup.desc">
        <source>help.lim.mirroringSetup.desc</source>
        <translation>Ein Programm, das Benachrichtigungen eines Telefons herbringt, muss sie auf dem Telefon lesen dürfen.</translation>
    </message>
    <message id="help.lim.mirroringSetup.title">
        <source>help.lim.mirroringSetup.title</source>
        <translation>Auf dem Telefon einzurichten</translation>
    </message>
    <message id="help.lim.mirroringSetup.workaround">
        <source>help.lim.mirroringSetup.workaround</source>
        <translation>Folge der Anleitung dieses Programms.</translation>
    </message>
    <message id="help.lim.nativeMacApp.desc">
        <source>help.lim.nativeMacApp.desc</source>
        <translation>Benachrichtigungen, die nur ein Telefon zeigt, werden nie erfasst.</translation>
    </message>
    <message id="help.lim.nativeMacApp.title">
        <source>help.lim.nativeMacApp.title</source>
        <translation>Nur was diesen Computer erreicht</translation>
    </message>
    <message id="help.lim.nativeMacApp.workaround">
        <source>help.lim.nativeMacApp.workaround</source>
        <translation>Benutze ein Programm, das sie herbringt, oder die Desktop-Version der App.</translation>
    </message>
    <message id="help.lim.network.desc">
        <source>help.lim.network.desc</source>
        <translation>Ohne Netz zwischen beiden gibt ein Telefon nichts weiter, und Tessarine kann nicht wissen, was fehlt.</translation>
    </message>
    <message id="help.lim.network.title">
        <source>help.lim.network.title</source>
        <translation>Das Netz</translation>
    </message>
    <message id="help.lim.network.workaround">
        <source>help.lim.network.workaround</source>
        <translation>Halte beide im selben Netz.</translation>
    </message>
    <message id="help.lim.notRunning.desc">
        <source>help.lim.notRunning.desc</source>
        <translation>Was gemeldet wird, während Tessarine nicht läuft, ist verloren: Linux führt kein Buch darüber.</translation>
    </message>
    <message id="help.lim.notRunning.workaround">
        <source>help.lim.notRunning.workaround</source>
        <translation>Starte Tessarine beim Anmelden.</translation>
    </message>
    <message id="help.lim.plaintext.workaround">
        <source>help.lim.plaintext.workaround</source>
        <translation>Verschlüssele die Festplatte oder deinen persönlichen Ordner.</translation>
    </message>
    <message id="help.lim.sameAppleId.desc">
        <source>help.lim.sameAppleId.desc</source>
        <translation>Apple bietet sie nur zwischen einem iPhone und einem Mac desselben Accounts an.</translation>
    </message>
    <message id="help.lim.sameAppleId.title">
        <source>help.lim.sameAppleId.title</source>
        <translation>Keine iPhone-Synchronisierung</translation>
    </message>
    <message id="help.lim.sameAppleId.workaround">
        <source>help.lim.sameAppleId.workaround</source>
        <translation>Benutze die Desktop-Version der App oder ihre Website mit Benachrichtigungen.</translation>
    </message>
    <message id="help.lim.silent.desc">
        <source>help.lim.silent.desc</source>
        <translation>Eine App, die nur einen Ton spielt oder ihr Symbol markiert, meldet nichts auf dem Bus.</translation>
    </message>
    <message id="help.lim.silent.title">
        <source>help.lim.silent.title</source>
        <translation>Stille Apps</translation>
    </message>
    <message id="help.lim.silent.workaround">
        <source>help.lim.silent.workaround</source>
        <translation>Schalte Benachrichtigungen in den Einstellungen der App ein.</translation>
    </message>
    <message id="help.lim.tahoe.desc">
        <source>help.lim.tahoe.desc</source>
        <translation>Ein Sitzungsbus kann so eingerichtet sein, dass niemand zuhören darf. Dann sieht Tessarine nichts und sagt das in seinem Fenster.</translation>
    </message>
    <message id="help.lim.tahoe.title">
        <source>help.lim.tahoe.title</source>
        <translation>Strenge Sitzungsbusse</translation>
    </message>
    <message id="help.lim.tahoe.workaround">
        <source>help.lim.tahoe.workaround</source>
        <translation>Sieh ins Diagnosefenster und frage, wer den Computer verwaltet.</translation>
    </message>
    <message id="help.lim.timestamps.desc">
        <source>help.lim.timestamps.desc</source>
        <translation>Die Zeit einer Zeile ist die der Meldung, nicht der Nachricht, von der sie spricht.</translation>
    </message>
    <message id="help.lim.timestamps.title">
        <source>help.lim.timestamps.title</source>
        <translation>Zeiten</translation>
    </message>
    <message id="help.lim.timestamps.workaround">
        <source>help.lim.timestamps.workaround</source>
        <translation>Sieh in der App nach der Zeit der Nachricht.</translation>
    </message>
    <message id="help.lim.usernoted.desc">
        <source>help.lim.usernoted.desc</source>
        <translation>Ein Fenster, das eine App selbst so zeichnet, dass es einer Benachrichtigung gleicht, wird nicht gemeldet und nicht erfasst.</translation>
    </message>
    <message id="help.lim.usernoted.title">
        <source>help.lim.usernoted.title</source>
        <translation>Nur Meldungen auf dem Bus</translation>
    </message>
    <message id="help.lim.usernoted.workaround">
        <source>help.lim.usernoted.workaround</source>
        <translation>Manche Apps lassen sich auf die Benachrichtigungen des Desktops umstellen.</translation>
    </message>
    <message id="help.limitations.h.iphone">
        <source>help.limitations.h.iphone</source>
        <translation>Telefone</translation>
    </message>
    <message id="help.limitations.p.disclaimer">
        <source>help.limitations.p.disclaimer</source>
        <translation>Tessarine liest, was auf dem Sitzungsbus gemeldet wird. Es kann nicht versprechen, jede Benachrichtigung zu erfassen.</translation>
    </message>
    <message id="help.macos.h.accessibility">
        <source>help.macos.h.accessibility</source>
        <translation>Erlaubnisse</translation>
    </message>
    <message id="help.macos.h.alertStyle">
        <source>help.macos.h.alertStyle</source>
        <translation>Banner</translation>
    </message>
    <message id="help.macos.h.focus">
        <source>help.macos.h.focus</source>
        <translation>Nicht stören</translation>
    </message>
    <message id="help.macos.h.timeMachine">
        <source>help.macos.h.timeMachine</source>
        <translation>Backups des persönlichen Ordners</translation>
    </message>
    <message id="help.macos.p.accessibility">
        <source>help.macos.p.accessibility</source>
        <translation>Unter Linux braucht Tessarine keine Erlaubnis; der Sitzungsbus muss es zuhören lassen, was das Diagnosefenster zeigt. Diese Schritte sind für einen Mac:</translation>
    </message>
    <message id="help.macos.p.accessibility2">
        <source>help.macos.p.accessibility2</source>
        <translation>Auf einem Mac liest Tessarine damit Banner von Benachrichtigungen und sonst nichts.</translation>
    </message>
    <message id="help.macos.p.alertReco">
        <source>help.macos.p.alertReco</source>
        <translation>In den Benachrichtigungseinstellungen des Desktops ist für Tessarine also nichts einzustellen.</translation>
    </message>
    <message id="help.macos.p.alertStyle">
        <source>help.macos.p.alertStyle</source>
        <translation>Unter Linux ist es gleich, ob der Desktop ein Banner zeigt: Eine Meldung wird erfasst, sobald eine App sie macht. Die Tabelle spricht von macOS:</translation>
    </message>
    <message id="help.macos.p.focus">
        <source>help.macos.p.focus</source>
        <translation>„Nicht stören“ hält Banner vom Bildschirm fern. Die meisten Apps melden trotzdem, und Tessarine erfasst es.</translation>
    </message>
    <message id="help.macos.p.timeMachine">
        <source>help.macos.p.timeMachine</source>
        <translation>Der Hort ist in deinem persönlichen Ordner, also enthält ihn ein Backup davon. Eine Datei in Gebrauch kann mitten in einer Änderung kopiert werden; ein Backup mit Tessarine ist sicherer.</translation>
    </message>
    <message id="help.macos.title">
        <source>help.macos.title</source>
        <translation>Systemeinstellungen</translation>
    </message>
    <message id="help.menuBar.p.intro">
        <source>help.menuBar.p.intro</source>
        <translation>An der Glocke im Infobereich, oder in einem kleinen Feld, wo der Desktop keinen hat, ist Tessarine immer zu finden. Im Infobereich öffnet ein Klick den Hort und ein Rechtsklick das Menü; auf dem Feld öffnet jeder Klick das Menü.</translation>
    </message>
    <message id="help.menuBar.p.optionClick">
        <source>help.menuBar.p.optionClick</source>
        <translation>Klicke mit der mittleren Maustaste auf die Glocke, um das Diagnosefenster zu öffnen. Auf dem Feld tut ein Klick mit gedrückter Alt-Taste dasselbe.</translation>
    </message>
    <message id="help.menuBar.row.checkUpdates.action">
        <source>help.menuBar.row.checkUpdates.action</source>
        <translation>Sagt, welche Version läuft und wie neue kommen.</translation>
    </message>
    <message id="help.menuBar.title">
        <source>help.menuBar.title</source>
        <translation>Die Glocke</translation>
    </message>
    <message id="help.prefs.p.excludedApps.note">
        <source>help.prefs.p.excludedApps.note</source>
        <translation>Eine App wird an ihrem Namen in Kleinbuchstaben erkannt, mit Punkten statt Leerzeichen. Apps gleichen Namens werden zusammen ausgeschlossen.</translation>
    </message>
    <message id="help.prefs.p.startup">
        <source>help.prefs.p.startup</source>
        <translation>„Beim Anmelden starten“ startet Tessarine, wenn du dich anmeldest, durch einen Eintrag in deinem Autostart-Ordner, den auch die Einstellungen des Desktops zeigen. Es kann nur aufbewahren, was kommt, während es läuft.</translation>
    </message>
    <message id="help.prefs.p.startup3">
        <source>help.prefs.p.startup3</source>
        <translation>Es startet ohne Fenster. Du siehst nur seine Glocke.</translation>
    </message>
    <message id="help.privacy.lim.noEncrypt.workaround">
        <source>help.privacy.lim.noEncrypt.workaround</source>
        <translation>Verschlüssele die Festplatte oder deinen persönlichen Ordner und sperre den Bildschirm, wenn du weggehst.</translation>
    </message>
    <message id="help.privacy.lim.noPerApp.workaround">
        <source>help.privacy.lim.noPerApp.workaround</source>
        <translation>Setze die Kennungen der Apps in die Liste privacyApps in ~/.config/com.zorvek.Tessarine.conf, während Tessarine nicht läuft.</translation>
    </message>
    <message id="help.privacy.protect.filevault.desc">
        <source>help.privacy.protect.filevault.desc</source>
        <translation>Eine verschlüsselte Festplatte hält den Hort unlesbar, solange der Computer aus ist.</translation>
    </message>
    <message id="help.tips.mirroring.desc">
        <source>help.tips.mirroring.desc</source>
        <translation>Was ein Programm wie KDE Connect für ein Telefon meldet, kommt auch in den Hort.</translation>
    </message>
    <message id="help.tips.mirroring.title">
        <source>help.tips.mirroring.title</source>
        <translation>Das Telefon dazuholen</translation>
    </message>
    <message id="help.tips.notifStyles.desc">
        <source>help.tips.notifStyles.desc</source>
        <translation>Eine App, die nichts meldet, lässt sich nicht erfassen: Schalte Benachrichtigungen in ihren Einstellungen ein.</translation>
    </message>
    <message id="help.tips.notifStyles.title">
        <source>help.tips.notifStyles.title</source>
        <translation>Apps melden lassen</translation>
    </message>
    <message id="launchAtLogin.info.silentStart">
        <source>launchAtLogin.info.silentStart</source>
        <translation>Es startet ohne Fenster. Du siehst nur seine Glocke.</translation>
    </message>
    <message id="menu.fullDiskAccess">
        <source>menu.fullDiskAccess</source>
        <translation>Zugang zu einer Datenbank …</translation>
    </message>
    <message id="onboarding.ax.granted">
        <source>onboarding.ax.granted</source>
        <translation>Erteilt: Der Sitzungsbus lässt Tessarine zuhören.</translation>
    </message>
    <message id="onboarding.ax.howToEnable">
        <source>onboarding.ax.howToEnable</source>
        <translation>Starte Tessarine aus einer Sitzung am Desktop heraus. Hast du das getan, verbietet ihr Bus Programmen das Zuhören.</translation>
    </message>
    <message id="onboarding.ax.noPermissionWarning">
        <source>onboarding.ax.noPermissionWarning</source>
        <translation>Ohne ihn kann keine Benachrichtigung aufbewahrt werden.</translation>
    </message>
    <message id="onboarding.ax.notGranted">
        <source>onboarding.ax.notGranted</source>
        <translation>Nicht erteilt: Der Sitzungsbus lässt Tessarine nicht zuhören, oder es gibt keinen.</translation>
    </message>
    <message id="onboarding.ax.openSettings">
        <source>onboarding.ax.openSettings</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message id="onboarding.ax.openSettings.hint">
        <source>onboarding.ax.openSettings.hint</source>
        <translation>Diese Seite merkt von selbst, wenn der Bus Tessarine zuhören lässt.</translation>
    </message>
    <message id="onboarding.ax.subtitle">
        <source>onboarding.ax.subtitle</source>
        <translation>Tessarine hört am Bus deiner Sitzung zu, auf dem Anwendungen dem Desktop ihre Benachrichtigungen melden.</translation>
    </message>
    <message id="onboarding.ax.title">
        <source>onboarding.ax.title</source>
        <translation>Zugang zu Benachrichtigungen</translation>
    </message>
    <message id="onboarding.ax.whatItDoes.text">
        <source>onboarding.ax.whatItDoes.text</source>
        <translation>Es nimmt den Namen der Anwendung, den Titel und den Text jeder Meldung und legt sie in den Hort.</translation>
    </message>
    <message id="onboarding.ax.whatItDoesNot.text">
        <source>onboarding.ax.whatItDoesNot.text</source>
        <translation>Es sieht nicht in deine Fenster, verfolgt nicht, was du tippst, und antwortet niemandem und hält niemanden auf.</translation>
    </message>
    <message id="onboarding.feature4.text">
        <source>onboarding.feature4.text</source>
        <translation>Welcher Dienst deines Desktops Benachrichtigungen zeigt, spielt keine Rolle: Tessarine hört am Sitzungsbus zu.</translation>
    </message>
    <message id="onboarding.feature4.title">
        <source>onboarding.feature4.title</source>
        <translation>Gleich, wer sie zeigt</translation>
    </message>
    <message id="perm.fda.enabled">
        <source>perm.fda.enabled</source>
        <translation>Ich habe ihn erlaubt</translation>
    </message>
    <message id="perm.fda.howto.header">
        <source>perm.fda.howto.header</source>
        <translation>So erlaubst du ihn</translation>
    </message>
    <message id="perm.fda.notDetected">
        <source>perm.fda.notDetected</source>
        <translation>Die Datenbank ist noch immer nicht lesbar.</translation>
    </message>
    <message id="perm.fda.openSettings">
        <source>perm.fda.openSettings</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message id="perm.fda.picture">
        <source>perm.fda.picture</source>
        <translation>Die Eigenschaften einer Datei, deren Eigentümer sie lesen darf</translation>
    </message>
    <message id="perm.fda.reason1">
        <source>perm.fda.reason1</source>
        <translation>Die Benachrichtigungen in dieser Datenbank kommen in deinen Hort.</translation>
    </message>
    <message id="perm.fda.reason2">
        <source>perm.fda.reason2</source>
        <translation>Auch was von jetzt an in sie geschrieben wird, kommt dorthin.</translation>
    </message>
    <message id="perm.fda.restartHint">
        <source>perm.fda.restartHint</source>
        <translation>Wenn nichts geschieht, drücke den Knopf unten.</translation>
    </message>
    <message id="perm.fda.step1">
        <source>perm.fda.step1</source>
        <translation>Öffne deine Dateiverwaltung.</translation>
    </message>
    <message id="perm.fda.step2">
        <source>perm.fda.step2</source>
        <translation>Gehe in deinem persönlichen Ordner zu Library/Group Containers/group.com.apple.usernoted/db2.</translation>
    </message>
    <message id="perm.fda.step3">
        <source>perm.fda.step3</source>
        <translation>Öffne die Eigenschaften der Datei „db“.</translation>
    </message>
    <message id="perm.fda.step4">
        <source>perm.fda.step4</source>
        <translation>Erlaube ihrem Eigentümer, also dir, sie zu lesen.</translation>
    </message>
    <message id="perm.fda.subtitle">
        <source>perm.fda.subtitle</source>
        <translation>In deinem persönlichen Ordner ist eine Datenbank mit Benachrichtigungen, die Tessarine nicht lesen kann.</translation>
    </message>
    <message id="perm.fda.title">
        <source>perm.fda.title</source>
        <translation>Zugang zu einer Benachrichtigungsdatenbank</translation>
    </message>
    <message id="perm.fda.without.row1">
        <source>perm.fda.without.row1</source>
        <translation>Die Benachrichtigungen dieses Desktops werden aufbewahrt wie bisher.</translation>
    </message>
    <message id="perm.fda.without.row2">
        <source>perm.fda.without.row2</source>
        <translation>Was in dieser Datenbank ist, kommt nicht in den Hort.</translation>
    </message>
    <message id="updates.howTheyCome">
        <source>updates.howTheyCome</source>
        <translation>Neue Versionen kommen mit den Aktualisierungen deines Systems, über die Paketverwaltung, die Tessarine installiert hat. Das Programm selbst greift nie auf das Netz zu.</translation>
    </message>
    <message id="window.title.fda">
        <source>window.title.fda</source>
        <translation>Zugang zu einer Benachrichtigungsdatenbank</translation>
    </message>
</context>
</TS>
