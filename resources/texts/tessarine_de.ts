<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message id="action.cancel">
        <source>action.cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message id="action.close">
        <source>action.close</source>
        <translation>Schließen</translation>
    </message>
    <message id="action.continue">
        <source>action.continue</source>
        <translation>Weiter</translation>
    </message>
    <message id="action.done">
        <source>action.done</source>
        <translation>Fertig</translation>
    </message>
    <message id="action.ok">
        <source>action.ok</source>
        <translation>OK</translation>
    </message>
    <message id="banner.deepLink.subtitle">
        <source>banner.deepLink.subtitle</source>
        <translation>Die App zeigt die Stelle, von der diese Benachrichtigung spricht.</translation>
    </message>
    <message id="banner.deepLink.title">
        <source>banner.deepLink.title</source>
        <translation>In %1 geöffnet</translation>
    </message>
    <message id="banner.notInstalled.subtitle">
        <source>banner.notInstalled.subtitle</source>
        <translation>Es wurde keine App namens %1 gefunden.</translation>
    </message>
    <message id="banner.notInstalled.title">
        <source>banner.notInstalled.title</source>
        <translation>%1 ist nicht auf diesem Computer</translation>
    </message>
    <message id="banner.notInstalled.unknownSubtitle">
        <source>banner.notInstalled.unknownSubtitle</source>
        <translation>Das System nennt sie nur %1.</translation>
    </message>
    <message id="banner.notInstalled.unknownTitle">
        <source>banner.notInstalled.unknownTitle</source>
        <translation>Unbekannte App</translation>
    </message>
    <message id="contextMenu.copyNotification">
        <source>contextMenu.copyNotification</source>
        <translation>Text kopieren</translation>
    </message>
    <message id="contextMenu.deleteAllCount" numerus="yes">
        <source>contextMenu.deleteAllCount</source>
        <translation>
            <numerusform>%Ln Benachrichtigung löschen</numerusform>
            <numerusform>Alle %Ln Benachrichtigungen löschen</numerusform>
        </translation>
    </message>
    <message id="contextMenu.deleteAllFrom">
        <source>contextMenu.deleteAllFrom</source>
        <translation>Alles von %1 löschen</translation>
    </message>
    <message id="contextMenu.deleteAllFromDate">
        <source>contextMenu.deleteAllFromDate</source>
        <translation>Alles vom %1 löschen</translation>
    </message>
    <message id="contextMenu.deleteThis">
        <source>contextMenu.deleteThis</source>
        <translation>Diese Benachrichtigung löschen</translation>
    </message>
    <message id="contextMenu.openInApp">
        <source>contextMenu.openInApp</source>
        <translation>%1 öffnen</translation>
    </message>
    <message id="contextMenu.pinNotification">
        <source>contextMenu.pinNotification</source>
        <translation>Anheften</translation>
    </message>
    <message id="contextMenu.unpinNotification">
        <source>contextMenu.unpinNotification</source>
        <translation>Lösen</translation>
    </message>
    <message id="datePopover.footer">
        <source>datePopover.footer</source>
        <translation>Du kannst mehreres wählen: Jede Wahl fügt ihre Benachrichtigungen der Auswahl hinzu.</translation>
    </message>
    <message id="datePopover.noData">
        <source>datePopover.noData</source>
        <translation>Noch keine Tage zur Wahl</translation>
    </message>
    <message id="datePopover.quickRanges">
        <source>datePopover.quickRanges</source>
        <translation>Zeiträume</translation>
    </message>
    <message id="datePopover.specificDays">
        <source>datePopover.specificDays</source>
        <translation>Tage</translation>
    </message>
    <message id="datePopover.title">
        <source>datePopover.title</source>
        <translation>Nach Datum auswählen</translation>
    </message>
    <message id="datePreset.last30days">
        <source>datePreset.last30days</source>
        <translation>Letzte 30 Tage</translation>
    </message>
    <message id="datePreset.last7days">
        <source>datePreset.last7days</source>
        <translation>Letzte 7 Tage</translation>
    </message>
    <message id="datePreset.lastMonth">
        <source>datePreset.lastMonth</source>
        <translation>Letzter Monat</translation>
    </message>
    <message id="datePreset.thisMonth">
        <source>datePreset.thisMonth</source>
        <translation>Dieser Monat</translation>
    </message>
    <message id="datePreset.thisYear">
        <source>datePreset.thisYear</source>
        <translation>Dieses Jahr</translation>
    </message>
    <message id="datePreset.today">
        <source>datePreset.today</source>
        <translation>Heute</translation>
    </message>
    <message id="datePreset.yesterday">
        <source>datePreset.yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message id="diag.busy">
        <source>diag.busy</source>
        <translation>In Arbeit</translation>
    </message>
    <message id="diag.db.apps">
        <source>diag.db.apps</source>
        <translation>Apps</translation>
    </message>
    <message id="diag.db.backup.fail">
        <source>diag.db.backup.fail</source>
        <translation>Backup fehlgeschlagen: %1</translation>
    </message>
    <message id="diag.db.backup.panelTitle">
        <source>diag.db.backup.panelTitle</source>
        <translation>Backup des Horts anlegen</translation>
    </message>
    <message id="diag.db.backup.saveBtn">
        <source>diag.db.backup.saveBtn</source>
        <translation>Sichern</translation>
    </message>
    <message id="diag.db.backup.success">
        <source>diag.db.backup.success</source>
        <translation>Backup gespeichert in %1</translation>
    </message>
    <message id="diag.db.createBackup">
        <source>diag.db.createBackup</source>
        <translation>Backup anlegen …</translation>
    </message>
    <message id="diag.db.first">
        <source>diag.db.first</source>
        <translation>Erste</translation>
    </message>
    <message id="diag.db.header">
        <source>diag.db.header</source>
        <translation>Hort</translation>
    </message>
    <message id="diag.db.integrity.fail">
        <source>diag.db.integrity.fail</source>
        <translation>Die Integritätsprüfung fand Fehler: %1</translation>
    </message>
    <message id="diag.db.integrity.pass">
        <source>diag.db.integrity.pass</source>
        <translation>Integritätsprüfung bestanden</translation>
    </message>
    <message id="diag.db.last">
        <source>diag.db.last</source>
        <translation>Letzte</translation>
    </message>
    <message id="diag.db.pinned">
        <source>diag.db.pinned</source>
        <translation>Angeheftet</translation>
    </message>
    <message id="diag.db.records">
        <source>diag.db.records</source>
        <translation>Einträge</translation>
    </message>
    <message id="diag.db.refresh.help">
        <source>diag.db.refresh.help</source>
        <translation>Den Hort neu zählen</translation>
    </message>
    <message id="diag.db.size">
        <source>diag.db.size</source>
        <translation>Größe</translation>
    </message>
    <message id="diag.db.verifyIntegrity">
        <source>diag.db.verifyIntegrity</source>
        <translation>Integrität prüfen</translation>
    </message>
    <message id="diag.export.data">
        <source>diag.export.data</source>
        <translation>Daten exportieren …</translation>
    </message>
    <message id="diag.level.activity">
        <source>diag.level.activity</source>
        <translation>Aktivität</translation>
    </message>
    <message id="diag.level.info">
        <source>diag.level.info</source>
        <translation>Information</translation>
    </message>
    <message id="diag.level.success">
        <source>diag.level.success</source>
        <translation>Erfolg</translation>
    </message>
    <message id="diag.level.warning">
        <source>diag.level.warning</source>
        <translation>Warnung</translation>
    </message>
    <message id="diag.log.clear">
        <source>diag.log.clear</source>
        <translation>Protokoll leeren</translation>
    </message>
    <message id="diag.log.clearFilter">
        <source>diag.log.clearFilter</source>
        <translation>Filter leeren</translation>
    </message>
    <message id="diag.log.filtered">
        <source>diag.log.filtered</source>
        <translation>Keine Zeile des Protokolls passt zum Filter.</translation>
    </message>
    <message id="diag.log.list">
        <source>diag.log.list</source>
        <translation>Protokoll</translation>
    </message>
    <message id="diag.log.only">
        <source>diag.log.only</source>
        <translation>Nur %1</translation>
    </message>
    <message id="diag.report.copied">
        <source>diag.report.copied</source>
        <translation>Bericht in die Zwischenablage kopiert</translation>
    </message>
    <message id="diag.report.copy">
        <source>diag.report.copy</source>
        <translation>Bericht kopieren</translation>
    </message>
    <message id="diag.report.export.fail">
        <source>diag.report.export.fail</source>
        <translation>Der Bericht ließ sich nicht exportieren: %1</translation>
    </message>
    <message id="diag.report.export.panelTitle">
        <source>diag.report.export.panelTitle</source>
        <translation>Diagnosebericht exportieren</translation>
    </message>
    <message id="diag.report.export.saveBtn">
        <source>diag.report.export.saveBtn</source>
        <translation>Exportieren</translation>
    </message>
    <message id="diag.report.exportReport">
        <source>diag.report.exportReport</source>
        <translation>Bericht exportieren …</translation>
    </message>
    <message id="diag.report.exported">
        <source>diag.report.exported</source>
        <translation>Bericht exportiert als %1</translation>
    </message>
    <message id="diag.report.includeContent">
        <source>diag.report.includeContent</source>
        <translation>Inhalt von Benachrichtigungen in exportierte Berichte einschließen</translation>
    </message>
    <message id="diag.report.safeNote">
        <source>diag.report.safeNote</source>
        <translation>Ist das aus, nennen Zeilen des Protokolls, die eine Benachrichtigung zitieren, nur deren App. Ein kopierter Bericht enthält das Protokoll, wie es ist.</translation>
    </message>
    <message id="excludedApps.confirm.excludeAndDelete">
        <source>excludedApps.confirm.excludeAndDelete</source>
        <translation>Ausschließen und löschen</translation>
    </message>
    <message id="excludedApps.confirm.excludeOnly">
        <source>excludedApps.confirm.excludeOnly</source>
        <translation>Nur ausschließen</translation>
    </message>
    <message id="excludedApps.confirm.message">
        <source>excludedApps.confirm.message</source>
        <translation>Neue Benachrichtigungen von %1 werden nicht aufbewahrt. Du kannst auch alles löschen, was der Hort unter diesem Namen hat.</translation>
    </message>
    <message id="excludedApps.confirm.title">
        <source>excludedApps.confirm.title</source>
        <translation>%1 ausschließen?</translation>
    </message>
    <message id="excludedApps.empty.subtitle">
        <source>excludedApps.empty.subtitle</source>
        <translation>Eine App steht hier, sobald eine ihrer Benachrichtigungen aufbewahrt wurde.</translation>
    </message>
    <message id="excludedApps.empty.title">
        <source>excludedApps.empty.title</source>
        <translation>Noch keine Apps</translation>
    </message>
    <message id="excludedApps.footer.count" numerus="yes">
        <source>excludedApps.footer.count</source>
        <translation>
            <numerusform>%Ln App ist ausgeschlossen</numerusform>
            <numerusform>%Ln Apps sind ausgeschlossen</numerusform>
        </translation>
    </message>
    <message id="excludedApps.subtitle">
        <source>excludedApps.subtitle</source>
        <translation>Schalte eine App ein, um ihre Benachrichtigungen nicht mehr aufzubewahren.</translation>
    </message>
    <message id="excludedApps.title">
        <source>excludedApps.title</source>
        <translation>Ausgeschlossene Apps</translation>
    </message>
    <message id="export.close">
        <source>export.close</source>
        <translation>Schließen</translation>
    </message>
    <message id="export.count" numerus="yes">
        <source>export.count</source>
        <translation>
            <numerusform>%n Benachrichtigung</numerusform>
            <numerusform>%n Benachrichtigungen</numerusform>
        </translation>
    </message>
    <message id="export.done">
        <source>export.done</source>
        <translation>Fertig. Hier kommt deine Datei.</translation>
    </message>
    <message id="export.exportAs">
        <source>export.exportAs</source>
        <translation>Als %1 exportieren</translation>
    </message>
    <message id="export.exporting">
        <source>export.exporting</source>
        <translation>Exportiere …</translation>
    </message>
    <message id="export.format.csv.desc">
        <source>export.format.csv.desc</source>
        <translation>Eine Zeile je Benachrichtigung, für Tabellenprogramme.</translation>
    </message>
    <message id="export.format.header">
        <source>export.format.header</source>
        <translation>Format</translation>
    </message>
    <message id="export.format.pdf.desc">
        <source>export.format.pdf.desc</source>
        <translation>Ein Bericht zum Drucken oder Weitergeben, mit einer Übersicht nach Apps.</translation>
    </message>
    <message id="export.format.txt.desc">
        <source>export.format.txt.desc</source>
        <translation>Ein einfacher Text zum Lesen, Tag für Tag.</translation>
    </message>
    <message id="export.plaintextWarning">
        <source>export.plaintextWarning</source>
        <translation>Wer die Datei öffnen kann, kann sie lesen. Bewahre sie sicher auf.</translation>
    </message>
    <message id="export.privacy.confirmMessage">
        <source>export.privacy.confirmMessage</source>
        <translation>Titel und Texte, die Tessarine verbirgt, werden in die Datei geschrieben, wie sie sind. Wer sie öffnet, kann sie lesen.</translation>
    </message>
    <message id="export.privacy.confirmTitle">
        <source>export.privacy.confirmTitle</source>
        <translation>Verborgene Inhalte einschließen?</translation>
    </message>
    <message id="export.privacy.header">
        <source>export.privacy.header</source>
        <translation>Datenschutz</translation>
    </message>
    <message id="export.privacy.includeHidden">
        <source>export.privacy.includeHidden</source>
        <translation>Verborgene Inhalte einschließen</translation>
    </message>
    <message id="export.privacy.includeHidden.caption">
        <source>export.privacy.includeHidden.caption</source>
        <translation>Sonst steht statt Titeln und Texten „[hidden]“.</translation>
    </message>
    <message id="export.privacy.includeHidden.warning">
        <source>export.privacy.includeHidden.warning</source>
        <translation>Die Datei wird alles zeigen, was Tessarine verbirgt.</translation>
    </message>
    <message id="export.privacy.includeReal">
        <source>export.privacy.includeReal</source>
        <translation>Einschließen</translation>
    </message>
    <message id="export.privacy.keepHidden">
        <source>export.privacy.keepHidden</source>
        <translation>Verborgen lassen</translation>
    </message>
    <message id="export.title">
        <source>export.title</source>
        <translation>Benachrichtigungen exportieren</translation>
    </message>
    <message id="group.collapse">
        <source>group.collapse</source>
        <translation>%1 verbergen</translation>
    </message>
    <message id="group.expand">
        <source>group.expand</source>
        <translation>%1 zeigen</translation>
    </message>
    <message id="help.about.eula.accepted">
        <source>help.about.eula.accepted</source>
        <translation>Du hast die Vereinbarung beim ersten Start angenommen.</translation>
    </message>
    <message id="help.about.eula.reviewBtn">
        <source>help.about.eula.reviewBtn</source>
        <translation>Vereinbarung lesen</translation>
    </message>
    <message id="help.about.h.acknowledgements">
        <source>help.about.h.acknowledgements</source>
        <translation>Danksagung</translation>
    </message>
    <message id="help.about.h.eula">
        <source>help.about.h.eula</source>
        <translation>Endbenutzervereinbarung</translation>
    </message>
    <message id="help.about.sparkle.credit">
        <source>help.about.sparkle.credit</source>
        <translation>Auf macOS bringt die freie Bibliothek Sparkle die Updates von Tessarine. Dank an ihre Autoren.</translation>
    </message>
    <message id="help.about.title">
        <source>help.about.title</source>
        <translation>Über Tessarine</translation>
    </message>
    <message id="help.diagnostics.h.clear">
        <source>help.diagnostics.h.clear</source>
        <translation>Leeren und berichten</translation>
    </message>
    <message id="help.diagnostics.h.filtering">
        <source>help.diagnostics.h.filtering</source>
        <translation>Filtern</translation>
    </message>
    <message id="help.diagnostics.h.liveLog">
        <source>help.diagnostics.h.liveLog</source>
        <translation>Laufendes Protokoll</translation>
    </message>
    <message id="help.diagnostics.h.statusCards">
        <source>help.diagnostics.h.statusCards</source>
        <translation>Status</translation>
    </message>
    <message id="help.diagnostics.p.clear">
        <source>help.diagnostics.p.clear</source>
        <translation>Der Papierkorb leert das Protokoll; der Hort bleibt unberührt. Ein Bericht über einen Fehler lässt sich kopieren oder sichern. Ein gesicherter nennt die App einer Benachrichtigung und lässt den Inhalt weg, wenn du ihn nicht einschaltest; ein kopierter enthält das Protokoll, wie es ist.</translation>
    </message>
    <message id="help.diagnostics.p.filtering">
        <source>help.diagnostics.p.filtering</source>
        <translation>Klicke auf den Namen eines Teils, um nur seine Zeilen zu sehen, und noch einmal für alle. Das Suchfeld sieht in die Meldungen und die Namen.</translation>
    </message>
    <message id="help.diagnostics.p.intro">
        <source>help.diagnostics.p.intro</source>
        <translation>Dieses Fenster zeigt Tessarine bei der Arbeit. Klicke mit gedrückter Wahltaste auf die Glocke, um es zu öffnen. Sein Inhalt ist nur im Speicher und verschwindet, wenn du Tessarine beendest.</translation>
    </message>
    <message id="help.diagnostics.p.liveLog">
        <source>help.diagnostics.p.liveLog</source>
        <translation>Jede Zeile hat eine Zeit, den Teil des Programms, der sie schrieb, ein Zeichen für ihre Wichtigkeit und das, was geschah. Die neueste steht oben; die letzten 200 bleiben.</translation>
    </message>
    <message id="help.diagnostics.title">
        <source>help.diagnostics.title</source>
        <translation>Diagnose</translation>
    </message>
    <message id="help.exporting.format.csv.desc">
        <source>help.exporting.format.csv.desc</source>
        <translation>Eine Zeile je Benachrichtigung: Datum, Zeit, App, Bundle-ID, Titel und Text. Trennzeichen ist das Semikolon, die Kodierung UTF-8.</translation>
    </message>
    <message id="help.exporting.format.csv.title">
        <source>help.exporting.format.csv.title</source>
        <translation>CSV</translation>
    </message>
    <message id="help.exporting.format.pdf.desc">
        <source>help.exporting.format.pdf.desc</source>
        <translation>Ein Bericht zum Drucken oder Weitergeben, mit einer Übersicht nach Apps.</translation>
    </message>
    <message id="help.exporting.format.pdf.title">
        <source>help.exporting.format.pdf.title</source>
        <translation>PDF Report</translation>
    </message>
    <message id="help.exporting.format.xlsx.desc">
        <source>help.exporting.format.xlsx.desc</source>
        <translation>Für sie gibt es kein eigenes Format: Tabellenprogramme öffnen die CSV-Datei. Eine Zelle enthält genau, was die Benachrichtigung sagte, auch wenn es wie eine Formel aussieht.</translation>
    </message>
    <message id="help.exporting.format.xlsx.title">
        <source>help.exporting.format.xlsx.title</source>
        <translation>Tabellenprogramme</translation>
    </message>
    <message id="help.exporting.h.formats">
        <source>help.exporting.h.formats</source>
        <translation>Formate</translation>
    </message>
    <message id="help.exporting.h.naming">
        <source>help.exporting.h.naming</source>
        <translation>Name und Ort</translation>
    </message>
    <message id="help.exporting.h.numbersExcel">
        <source>help.exporting.h.numbersExcel</source>
        <translation>Numbers und Excel</translation>
    </message>
    <message id="help.exporting.h.privacy">
        <source>help.exporting.h.privacy</source>
        <translation>Verborgene Inhalte</translation>
    </message>
    <message id="help.exporting.p.intro">
        <source>help.exporting.p.intro</source>
        <translation>Der Export-Knopf über der Liste schreibt in eine Datei, was geladen ist, in einem von drei Formaten: Text, CSV oder PDF Report. Suche, Filter und Auswahl spielen dabei keine Rolle. Aus dem Diagnosefenster enthält ein Export die ersten 500 Benachrichtigungen.</translation>
    </message>
    <message id="help.exporting.p.naming">
        <source>help.exporting.p.naming</source>
        <translation>Der vorgeschlagene Name ist Tessarine_ und das heutige Datum, zum Beispiel Tessarine_2026-03-03.csv. Den Ordner wählst du. Nur dein Benutzerkonto darf die Datei lesen.</translation>
    </message>
    <message id="help.exporting.p.numbers">
        <source>help.exporting.p.numbers</source>
        <translation>Numbers öffnet die CSV-Datei mit einem Doppelklick. Zeigt Excel alles in einer Spalte, importiere die Datei als Text und wähle das Semikolon als Trennzeichen.</translation>
    </message>
    <message id="help.exporting.p.privacy">
        <source>help.exporting.p.privacy</source>
        <translation>Titel und Texte, die Tessarine verbirgt, werden als „[hidden]“ geschrieben. Sind die Inhalte aller Apps verborgen, bietet ein Schalter an, sie einzuschließen, und fragt noch einmal.</translation>
    </message>
    <message id="help.exporting.title">
        <source>help.exporting.title</source>
        <translation>Exportieren</translation>
    </message>
    <message id="help.find.none">
        <source>help.find.none</source>
        <translation>Keine Treffer</translation>
    </message>
    <message id="help.find.none.detail">
        <source>help.find.none.detail</source>
        <translation>Kein Abschnitt der Hilfe enthält diese Wörter.</translation>
    </message>
    <message id="help.find.placeholder">
        <source>help.find.placeholder</source>
        <translation>Hilfe durchsuchen</translation>
    </message>
    <message id="help.hoard.contextMenu.0">
        <source>help.hoard.contextMenu.0</source>
        <translation>Text kopieren: legt Titel und Text in die Zwischenablage.</translation>
    </message>
    <message id="help.hoard.contextMenu.1">
        <source>help.hoard.contextMenu.1</source>
        <translation>Diese Benachrichtigung löschen: sofort, ohne Frage.</translation>
    </message>
    <message id="help.hoard.contextMenu.2">
        <source>help.hoard.contextMenu.2</source>
        <translation>Alles von dieser App löschen: jede Benachrichtigung mit demselben App-Namen, auch nicht geladene. Sofort.</translation>
    </message>
    <message id="help.hoard.contextMenu.3">
        <source>help.hoard.contextMenu.3</source>
        <translation>Alles von diesem Tag löschen: auch nicht geladene. Sofort.</translation>
    </message>
    <message id="help.hoard.contextMenu.openInApp">
        <source>help.hoard.contextMenu.openInApp</source>
        <translation>Öffnen: dasselbe wie ein Doppelklick.</translation>
    </message>
    <message id="help.hoard.contextMenu.pin">
        <source>help.hoard.contextMenu.pin</source>
        <translation>Anheften oder Lösen: Eine angeheftete Benachrichtigung ist immer geladen. Vor dem Löschen schützt das nicht.</translation>
    </message>
    <message id="help.hoard.h.clicking">
        <source>help.hoard.h.clicking</source>
        <translation>Wohin ein Doppelklick führt</translation>
    </message>
    <message id="help.hoard.h.contextMenu">
        <source>help.hoard.h.contextMenu</source>
        <translation>Das Menü einer Zeile</translation>
    </message>
    <message id="help.hoard.h.interactions">
        <source>help.hoard.h.interactions</source>
        <translation>Maus und Tastatur</translation>
    </message>
    <message id="help.hoard.h.rows">
        <source>help.hoard.h.rows</source>
        <translation>Was eine Zeile zeigt</translation>
    </message>
    <message id="help.hoard.p.interaction.click">
        <source>help.hoard.p.interaction.click</source>
        <translation>Klick: markiert die Zeile. Ist ihr Inhalt verborgen, zeigt ihn der erste Klick.</translation>
    </message>
    <message id="help.hoard.p.interaction.cmdC">
        <source>help.hoard.p.interaction.cmdC</source>
        <translation>Befehl-C: kopiert Titel und Text der markierten Benachrichtigung.</translation>
    </message>
    <message id="help.hoard.p.interaction.doubleClick">
        <source>help.hoard.p.interaction.doubleClick</source>
        <translation>Doppelklick: öffnet die App, die die Benachrichtigung geschickt hat.</translation>
    </message>
    <message id="help.hoard.p.interaction.esc">
        <source>help.hoard.p.interaction.esc</source>
        <translation>Escape: nimmt die Markierung weg.</translation>
    </message>
    <message id="help.hoard.p.interaction.space">
        <source>help.hoard.p.interaction.space</source>
        <translation>Leertaste: zeigt die markierte Benachrichtigung ganz und schließt diese Ansicht wieder.</translation>
    </message>
    <message id="help.hoard.p.rows">
        <source>help.hoard.p.rows</source>
        <translation>Jede Zeile hat Symbol und Namen der App, Titel, Text und Zeit einer Benachrichtigung. Eine Nadel zeigt eine angeheftete Zeile an, ein Schloss verborgenen Inhalt. Angeheftete Zeilen stehen zu ihrer Zeit unter den anderen; sie werden zuerst geladen, so alt sie auch sind.</translation>
    </message>
    <message id="help.hoard.title">
        <source>help.hoard.title</source>
        <translation>Der Hort</translation>
    </message>
    <message id="help.howItWorks.h.layersTogether">
        <source>help.howItWorks.h.layersTogether</source>
        <translation>Was jeder Weg erfasst</translation>
    </message>
    <message id="help.howItWorks.h.localStorage">
        <source>help.howItWorks.h.localStorage</source>
        <translation>Wo der Hort ist</translation>
    </message>
    <message id="help.howItWorks.h.sleepWake">
        <source>help.howItWorks.h.sleepWake</source>
        <translation>Ruhezustand und Aufwachen</translation>
    </message>
    <message id="help.howItWorks.h.threeLayers">
        <source>help.howItWorks.h.threeLayers</source>
        <translation>Drei Wege zu einer Benachrichtigung</translation>
    </message>
    <message id="help.howItWorks.layer.ax.desc">
        <source>help.howItWorks.layer.ax.desc</source>
        <translation>Über die Bedienungshilfen liest Tessarine jedes Banner vom Bildschirm ab, höchstens einmal in der Sekunde. Das ist der schnellste Weg, und er braucht keinen Zugriff auf Dateien.</translation>
    </message>
    <message id="help.howItWorks.layer.ax.title">
        <source>help.howItWorks.layer.ax.title</source>
        <translation>Banner</translation>
    </message>
    <message id="help.howItWorks.layer.legacy.desc">
        <source>help.howItWorks.layer.legacy.desc</source>
        <translation>Ältere Versionen von macOS hielten Benachrichtigungen in einer anderen Datei. Ist sie da und lesbar, liest Tessarine sie beim Start und bei jedem Schreiben.</translation>
    </message>
    <message id="help.howItWorks.layer.legacy.title">
        <source>help.howItWorks.layer.legacy.title</source>
        <translation>Die Datenbank älterer Systeme</translation>
    </message>
    <message id="help.howItWorks.layer.usernoted.desc">
        <source>help.howItWorks.layer.usernoted.desc</source>
        <translation>Mit Festplattenvollzugriff liest Tessarine die Datenbank, in der macOS neuere Benachrichtigungen hält: beim Start, bei jedem Schreiben und alle 30 Sekunden. So findet es auch, was nie als Banner erschien.</translation>
    </message>
    <message id="help.howItWorks.layer.usernoted.title">
        <source>help.howItWorks.layer.usernoted.title</source>
        <translation>Die Datenbank des Systems</translation>
    </message>
    <message id="help.howItWorks.p.sleep">
        <source>help.howItWorks.p.sleep</source>
        <translation>Bevor der Computer in den Ruhezustand geht, hört Tessarine auf, Banner zu beobachten. Zwei Sekunden nach dem Aufwachen beginnt es wieder, und der nächste Blick in die Datenbank bringt, was inzwischen kam.</translation>
    </message>
    <message id="help.howItWorks.p.storage">
        <source>help.howItWorks.p.storage</source>
        <translation>Alles ist in einer Datei auf deinem Mac, ~/Library/Application Support/Tessarine/hoard.db, die nur dein Benutzerkonto lesen darf. Tessarine hat keinen Server und kein Konto und schickt deine Benachrichtigungen niemandem.</translation>
    </message>
    <message id="help.howItWorks.p1">
        <source>help.howItWorks.p1</source>
        <translation>Das System vergisst Benachrichtigungen nach wenigen Tagen. Tessarine kopiert jede in ein eigenes Archiv, den Hort, wo sie bleibt, bis du sie löschst. Es sitzt in der Menüleiste und arbeitet, solange es läuft.</translation>
    </message>
    <message id="help.howItWorks.title">
        <source>help.howItWorks.title</source>
        <translation>So funktioniert es</translation>
    </message>
    <message id="help.iphone.h.howToEnable">
        <source>help.iphone.h.howToEnable</source>
        <translation>Auf dem iPhone, für jede App</translation>
    </message>
    <message id="help.iphone.h.iphoneSettings">
        <source>help.iphone.h.iphoneSettings</source>
        <translation>Wenn nichts kommt</translation>
    </message>
    <message id="help.iphone.h.nativeMac">
        <source>help.iphone.h.nativeMac</source>
        <translation>Apps auf dem Mac und auf dem iPhone</translation>
    </message>
    <message id="help.iphone.h.requirements">
        <source>help.iphone.h.requirements</source>
        <translation>Was sie braucht</translation>
    </message>
    <message id="help.iphone.h.routing">
        <source>help.iphone.h.routing</source>
        <translation>Woher sie kommen</translation>
    </message>
    <message id="help.iphone.h.solution">
        <source>help.iphone.h.solution</source>
        <translation>iPhone-Synchronisierung</translation>
    </message>
    <message id="help.iphone.p.nativeMac">
        <source>help.iphone.p.nativeMac</source>
        <translation>Tessarine sieht, was dieser Mac zeigt. Eine App, die auf dem Mac läuft, meldet hier und wird erfasst.</translation>
    </message>
    <message id="help.iphone.p.nativeMac2">
        <source>help.iphone.p.nativeMac2</source>
        <translation>Was nur das iPhone zeigt, erreicht den Mac nie und kann nicht erfasst werden.</translation>
    </message>
    <message id="help.iphone.p.routing">
        <source>help.iphone.p.routing</source>
        <translation>Eine gespiegelte Benachrichtigung hat den Namen der App auf dem iPhone. Ist diese App nicht auf dem Mac, kann ein Doppelklick sie nicht öffnen und sagt das.</translation>
    </message>
    <message id="help.iphone.p.solution">
        <source>help.iphone.p.solution</source>
        <translation>Mit der iPhone-Synchronisierung zeigt der Mac die Benachrichtigungen des iPhones wie eigene. Tessarine erfasst sie dann wie alle anderen.</translation>
    </message>
    <message id="help.iphone.req.appleId.desc">
        <source>help.iphone.req.appleId.desc</source>
        <translation>Mac und iPhone sind mit demselben Account angemeldet, mit Zwei-Faktor-Authentifizierung.</translation>
    </message>
    <message id="help.iphone.req.appleId.title">
        <source>help.iphone.req.appleId.title</source>
        <translation>Derselbe Apple Account</translation>
    </message>
    <message id="help.iphone.req.ios18.desc">
        <source>help.iphone.req.ios18.desc</source>
        <translation>Ältere Systeme haben keine iPhone-Synchronisierung.</translation>
    </message>
    <message id="help.iphone.req.ios18.title">
        <source>help.iphone.req.ios18.title</source>
        <translation>iOS 18 und macOS 15 oder neuer</translation>
    </message>
    <message id="help.iphone.req.notifs.desc">
        <source>help.iphone.req.notifs.desc</source>
        <translation>In Systemeinstellungen › Mitteilungen sind Mitteilungen vom iPhone erlaubt.</translation>
    </message>
    <message id="help.iphone.req.notifs.title">
        <source>help.iphone.req.notifs.title</source>
        <translation>Mitteilungen vom iPhone</translation>
    </message>
    <message id="help.iphone.req.wifi.desc">
        <source>help.iphone.req.wifi.desc</source>
        <translation>Beides ist auf beiden Geräten an, und die Geräte sind nah beieinander.</translation>
    </message>
    <message id="help.iphone.req.wifi.title">
        <source>help.iphone.req.wifi.title</source>
        <translation>WLAN und Bluetooth</translation>
    </message>
    <message id="help.iphone.title">
        <source>help.iphone.title</source>
        <translation>iPhone</translation>
    </message>
    <message id="help.iphone.walk.app.label">
        <source>help.iphone.walk.app.label</source>
        <translation>Tippe auf die App, deren Benachrichtigungen du willst.</translation>
    </message>
    <message id="help.iphone.walk.app.screen">
        <source>help.iphone.walk.app.screen</source>
        <translation>Die App</translation>
    </message>
    <message id="help.iphone.walk.hoard.label">
        <source>help.iphone.walk.hoard.label</source>
        <translation>Die nächste Benachrichtigung erscheint auf dem Mac und landet im Hort.</translation>
    </message>
    <message id="help.iphone.walk.hoard.screen">
        <source>help.iphone.walk.hoard.screen</source>
        <translation>Auf dem Mac</translation>
    </message>
    <message id="help.iphone.walk.next">
        <source>help.iphone.walk.next</source>
        <translation>Nächster Schritt</translation>
    </message>
    <message id="help.iphone.walk.notifications.label">
        <source>help.iphone.walk.notifications.label</source>
        <translation>Tippe auf Mitteilungen.</translation>
    </message>
    <message id="help.iphone.walk.notifications.screen">
        <source>help.iphone.walk.notifications.screen</source>
        <translation>Mitteilungen</translation>
    </message>
    <message id="help.iphone.walk.pause">
        <source>help.iphone.walk.pause</source>
        <translation>Anhalten</translation>
    </message>
    <message id="help.iphone.walk.play">
        <source>help.iphone.walk.play</source>
        <translation>Vom ersten Schritt an abspielen</translation>
    </message>
    <message id="help.iphone.walk.previous">
        <source>help.iphone.walk.previous</source>
        <translation>Voriger Schritt</translation>
    </message>
    <message id="help.iphone.walk.settings.label">
        <source>help.iphone.walk.settings.label</source>
        <translation>Öffne die Einstellungen auf dem iPhone.</translation>
    </message>
    <message id="help.iphone.walk.settings.screen">
        <source>help.iphone.walk.settings.screen</source>
        <translation>Einstellungen</translation>
    </message>
    <message id="help.iphone.walk.showOnMac.label">
        <source>help.iphone.walk.showOnMac.label</source>
        <translation>Schalte „Auf dem Mac anzeigen“ ein.</translation>
    </message>
    <message id="help.iphone.walk.showOnMac.screen">
        <source>help.iphone.walk.showOnMac.screen</source>
        <translation>Auf dem Mac anzeigen</translation>
    </message>
    <message id="help.lim.30entries.desc">
        <source>help.lim.30entries.desc</source>
        <translation>Beim Start nimmt Tessarine alles, was die Datenbank des Systems noch hat, beim ersten Start bis 30 Tage zurück. Das System selbst löscht früh; oft sind etwa 30 Einträge übrig.</translation>
    </message>
    <message id="help.lim.30entries.title">
        <source>help.lim.30entries.title</source>
        <translation>Das System behält wenig</translation>
    </message>
    <message id="help.lim.30entries.workaround">
        <source>help.lim.30entries.workaround</source>
        <translation>Lass Tessarine laufen.</translation>
    </message>
    <message id="help.lim.appStore.desc">
        <source>help.lim.appStore.desc</source>
        <translation>Apps aus dem App Store dürfen andere nicht über die Bedienungshilfen beobachten.</translation>
    </message>
    <message id="help.lim.appStore.title">
        <source>help.lim.appStore.title</source>
        <translation>Nicht im App Store</translation>
    </message>
    <message id="help.lim.appStore.workaround">
        <source>help.lim.appStore.workaround</source>
        <translation>Hol Tessarine und seine Updates bei denen, die es machen.</translation>
    </message>
    <message id="help.lim.calendar.desc">
        <source>help.lim.calendar.desc</source>
        <translation>Die Erinnerung eines Kalenders steht bei der Zeit ihres Banners, nicht des Termins. „Morgen um 9:30“ bleibt im Text.</translation>
    </message>
    <message id="help.lim.calendar.title">
        <source>help.lim.calendar.title</source>
        <translation>Zeiten von Terminen</translation>
    </message>
    <message id="help.lim.calendar.workaround">
        <source>help.lim.calendar.workaround</source>
        <translation>Suche im Text nach dem Tag oder dem Termin.</translation>
    </message>
    <message id="help.lim.exportPlain.desc">
        <source>help.lim.exportPlain.desc</source>
        <translation>Kein Export hat ein Passwort.</translation>
    </message>
    <message id="help.lim.exportPlain.title">
        <source>help.lim.exportPlain.title</source>
        <translation>Exporte sind offene Dateien</translation>
    </message>
    <message id="help.lim.exportPlain.workaround">
        <source>help.lim.exportPlain.workaround</source>
        <translation>Bewahre Exporte auf einer verschlüsselten Festplatte auf und lösche, was du nicht mehr brauchst.</translation>
    </message>
    <message id="help.lim.focus.desc">
        <source>help.lim.focus.desc</source>
        <translation>Hält ein Fokus Banner zurück, sieht der Weg über Banner nichts.</translation>
    </message>
    <message id="help.lim.focus.title">
        <source>help.lim.focus.title</source>
        <translation>Fokus</translation>
    </message>
    <message id="help.lim.focus.workaround">
        <source>help.lim.focus.workaround</source>
        <translation>Erteile Festplattenvollzugriff.</translation>
    </message>
    <message id="help.lim.iphoneOff.desc">
        <source>help.lim.iphoneOff.desc</source>
        <translation>Ein iPhone, das aus oder weit weg ist, spiegelt nichts.</translation>
    </message>
    <message id="help.lim.iphoneOff.title">
        <source>help.lim.iphoneOff.title</source>
        <translation>Das iPhone muss an sein</translation>
    </message>
    <message id="help.lim.iphoneOff.workaround">
        <source>help.lim.iphoneOff.workaround</source>
        <translation>Halte es in der Nähe des Macs und geladen.</translation>
    </message>
    <message id="help.lim.mirroringSetup.desc">
        <source>help.lim.mirroringSetup.desc</source>
        <translation>Eine App, deren Schalter „Auf dem Mac anzeigen“ aus ist, bleibt auf dem iPhone.</translation>
    </message>
    <message id="help.lim.mirroringSetup.title">
        <source>help.lim.mirroringSetup.title</source>
        <translation>Jede App ist einzeln einzurichten</translation>
    </message>
    <message id="help.lim.mirroringSetup.workaround">
        <source>help.lim.mirroringSetup.workaround</source>
        <translation>Schalte ihn in den Einstellungen des iPhones ein.</translation>
    </message>
    <message id="help.lim.nativeMacApp.desc">
        <source>help.lim.nativeMacApp.desc</source>
        <translation>Benachrichtigungen, die nur das iPhone zeigt, werden nie erfasst.</translation>
    </message>
    <message id="help.lim.nativeMacApp.title">
        <source>help.lim.nativeMacApp.title</source>
        <translation>Nur was den Mac erreicht</translation>
    </message>
    <message id="help.lim.nativeMacApp.workaround">
        <source>help.lim.nativeMacApp.workaround</source>
        <translation>Benutze die iPhone-Synchronisierung oder die Mac-Version der App.</translation>
    </message>
    <message id="help.lim.network.desc">
        <source>help.lim.network.desc</source>
        <translation>Ohne sie wird nichts gespiegelt, und Tessarine kann nicht wissen, was fehlt.</translation>
    </message>
    <message id="help.lim.network.title">
        <source>help.lim.network.title</source>
        <translation>WLAN und Bluetooth</translation>
    </message>
    <message id="help.lim.network.workaround">
        <source>help.lim.network.workaround</source>
        <translation>Lass beides auf beiden Geräten an.</translation>
    </message>
    <message id="help.lim.notRunning.desc">
        <source>help.lim.notRunning.desc</source>
        <translation>Was kommt, während Tessarine nicht läuft, lässt sich nur aus der Datenbank des Systems holen, und nur mit Festplattenvollzugriff.</translation>
    </message>
    <message id="help.lim.notRunning.title">
        <source>help.lim.notRunning.title</source>
        <translation>Läuft es nicht, sieht es nichts</translation>
    </message>
    <message id="help.lim.notRunning.workaround">
        <source>help.lim.notRunning.workaround</source>
        <translation>Starte Tessarine beim Anmelden und erteile Festplattenvollzugriff.</translation>
    </message>
    <message id="help.lim.otpForever.desc">
        <source>help.lim.otpForever.desc</source>
        <translation>Einmalcodes werden aufbewahrt wie alles andere, solange du nichts anderes wählst. Auch dann gehen sie nur bei einem Start.</translation>
    </message>
    <message id="help.lim.otpForever.title">
        <source>help.lim.otpForever.title</source>
        <translation>Codes bleiben</translation>
    </message>
    <message id="help.lim.otpForever.workaround">
        <source>help.lim.otpForever.workaround</source>
        <translation>Wähle unter Einstellungen › Datenschutz eine Zeit und starte Tessarine ab und zu neu.</translation>
    </message>
    <message id="help.lim.plaintext.desc">
        <source>help.lim.plaintext.desc</source>
        <translation>Benachrichtigungen werden gespeichert, wie sie kamen, ohne Verschlüsselung.</translation>
    </message>
    <message id="help.lim.plaintext.title">
        <source>help.lim.plaintext.title</source>
        <translation>Der Hort ist Klartext</translation>
    </message>
    <message id="help.lim.plaintext.workaround">
        <source>help.lim.plaintext.workaround</source>
        <translation>Schalte FileVault ein.</translation>
    </message>
    <message id="help.lim.privacyGlobal.desc">
        <source>help.lim.privacyGlobal.desc</source>
        <translation>Der Schalter für verborgene Inhalte gilt für alle Apps.</translation>
    </message>
    <message id="help.lim.privacyGlobal.title">
        <source>help.lim.privacyGlobal.title</source>
        <translation>Alles verborgen oder nichts</translation>
    </message>
    <message id="help.lim.privacyGlobal.workaround">
        <source>help.lim.privacyGlobal.workaround</source>
        <translation>Schließe eine App aus, deren Benachrichtigungen du gar nicht aufbewahren willst.</translation>
    </message>
    <message id="help.lim.python.desc">
        <source>help.lim.python.desc</source>
        <translation>Tessarine lässt sich nicht von Python oder anderen Skripten steuern.</translation>
    </message>
    <message id="help.lim.python.title">
        <source>help.lim.python.title</source>
        <translation>Keine Befehle für Skripte</translation>
    </message>
    <message id="help.lim.python.workaround">
        <source>help.lim.python.workaround</source>
        <translation>Lass Skripte eine exportierte CSV-Datei lesen oder ein Backup, das eine SQLite-Datenbank mit der Tabelle notifications ist.</translation>
    </message>
    <message id="help.lim.sameAppleId.desc">
        <source>help.lim.sameAppleId.desc</source>
        <translation>Mac und iPhone verschiedener Accounts lassen sich nicht verbinden.</translation>
    </message>
    <message id="help.lim.sameAppleId.title">
        <source>help.lim.sameAppleId.title</source>
        <translation>Ein Account</translation>
    </message>
    <message id="help.lim.sameAppleId.workaround">
        <source>help.lim.sameAppleId.workaround</source>
        <translation>Melde dich auf beiden mit demselben Apple Account an.</translation>
    </message>
    <message id="help.lim.silent.desc">
        <source>help.lim.silent.desc</source>
        <translation>Eine Benachrichtigung ohne Banner ist nur in der Datenbank des Systems.</translation>
    </message>
    <message id="help.lim.silent.title">
        <source>help.lim.silent.title</source>
        <translation>Stille Benachrichtigungen</translation>
    </message>
    <message id="help.lim.silent.workaround">
        <source>help.lim.silent.workaround</source>
        <translation>Erteile Festplattenvollzugriff oder wähle für die App den Hinweisstil Banner.</translation>
    </message>
    <message id="help.lim.tahoe.desc">
        <source>help.lim.tahoe.desc</source>
        <translation>Jedes macOS zeichnet Banner auf seine Art. Zeichnet eines sie anders, können Texte fehlen oder vertauscht sein.</translation>
    </message>
    <message id="help.lim.tahoe.title">
        <source>help.lim.tahoe.title</source>
        <translation>macOS 26 und neuer</translation>
    </message>
    <message id="help.lim.tahoe.workaround">
        <source>help.lim.tahoe.workaround</source>
        <translation>Sieh nach einem Update des Systems ins Diagnosefenster.</translation>
    </message>
    <message id="help.lim.timestamps.desc">
        <source>help.lim.timestamps.desc</source>
        <translation>Ein Banner zeigt ein Alter wie „5m ago“ oder nichts. Daraus wird die Zeit errechnet, die um eine Minute falsch sein kann. Auf einem Mac, der nicht auf Englisch steht, ist es die Zeit, zu der das Banner gesehen wurde.</translation>
    </message>
    <message id="help.lim.timestamps.title">
        <source>help.lim.timestamps.title</source>
        <translation>Zeiten von Bannern</translation>
    </message>
    <message id="help.lim.timestamps.workaround">
        <source>help.lim.timestamps.workaround</source>
        <translation>Mit Festplattenvollzugriff gibt es eine zweite Zeile mit der genauen Zeit.</translation>
    </message>
    <message id="help.lim.uiLimit.desc">
        <source>help.lim.uiLimit.desc</source>
        <translation>Suche, Filter und Auswahl sehen nur, was geladen ist. Nach jedem Erfassen zeigt die Liste wieder die neuesten 500.</translation>
    </message>
    <message id="help.lim.uiLimit.title">
        <source>help.lim.uiLimit.title</source>
        <translation>Die Liste beginnt mit 500</translation>
    </message>
    <message id="help.lim.uiLimit.workaround">
        <source>help.lim.uiLimit.workaround</source>
        <translation>Drücke „Ältere laden“, bis die Liste weit genug zurückreicht.</translation>
    </message>
    <message id="help.lim.usernoted.desc">
        <source>help.lim.usernoted.desc</source>
        <translation>Eine neue Version von macOS kann sie ändern. Dann findet dieser Weg nichts, bis Tessarine die neue Form kennt.</translation>
    </message>
    <message id="help.lim.usernoted.title">
        <source>help.lim.usernoted.title</source>
        <translation>Die Datenbank des Systems ist nicht dokumentiert</translation>
    </message>
    <message id="help.lim.usernoted.workaround">
        <source>help.lim.usernoted.workaround</source>
        <translation>Banner werden trotzdem erfasst.</translation>
    </message>
    <message id="help.lim.walBackup.desc">
        <source>help.lim.walBackup.desc</source>
        <translation>SQLite schreibt zuerst in hoard.db-wal neben dem Hort. Wer nur hoard.db kopiert, wie das Backup der Einstellungen, dem kann fehlen, was zuletzt kam.</translation>
    </message>
    <message id="help.lim.walBackup.title">
        <source>help.lim.walBackup.title</source>
        <translation>Einer kopierten Datei können die neuesten Zeilen fehlen</translation>
    </message>
    <message id="help.lim.walBackup.workaround">
        <source>help.lim.walBackup.workaround</source>
        <translation>Benutze das Backup im Diagnosefenster.</translation>
    </message>
    <message id="help.limitations.h.capture">
        <source>help.limitations.h.capture</source>
        <translation>Erfassen</translation>
    </message>
    <message id="help.limitations.h.hoard">
        <source>help.limitations.h.hoard</source>
        <translation>Hort</translation>
    </message>
    <message id="help.limitations.h.iphone">
        <source>help.limitations.h.iphone</source>
        <translation>iPhone</translation>
    </message>
    <message id="help.limitations.h.privacy">
        <source>help.limitations.h.privacy</source>
        <translation>Datenschutz</translation>
    </message>
    <message id="help.limitations.h.system">
        <source>help.limitations.h.system</source>
        <translation>System</translation>
    </message>
    <message id="help.limitations.p.disclaimer">
        <source>help.limitations.p.disclaimer</source>
        <translation>Tessarine liest, was das System zeigt und behält. Es kann nicht versprechen, jede Benachrichtigung zu erfassen.</translation>
    </message>
    <message id="help.limitations.p.eula">
        <source>help.limitations.p.eula</source>
        <translation>Verlass dich für Wichtiges nicht allein darauf. Die Vereinbarung sagt mehr dazu.</translation>
    </message>
    <message id="help.limitations.title">
        <source>help.limitations.title</source>
        <translation>Grenzen</translation>
    </message>
    <message id="help.macos.h.accessibility">
        <source>help.macos.h.accessibility</source>
        <translation>Bedienungshilfen</translation>
    </message>
    <message id="help.macos.h.alertStyle">
        <source>help.macos.h.alertStyle</source>
        <translation>Hinweisstil</translation>
    </message>
    <message id="help.macos.h.focus">
        <source>help.macos.h.focus</source>
        <translation>Fokus</translation>
    </message>
    <message id="help.macos.h.timeMachine">
        <source>help.macos.h.timeMachine</source>
        <translation>Time Machine</translation>
    </message>
    <message id="help.macos.p.accessibility">
        <source>help.macos.p.accessibility</source>
        <translation>Tessarine braucht diese Erlaubnis, um Banner vom Bildschirm abzulesen.</translation>
    </message>
    <message id="help.macos.p.accessibility2">
        <source>help.macos.p.accessibility2</source>
        <translation>Tessarine liest damit Banner von Benachrichtigungen und sonst nichts. Einmal erteilt, gilt sie ohne Neustart.</translation>
    </message>
    <message id="help.macos.p.alertReco">
        <source>help.macos.p.alertReco</source>
        <translation>Empfohlen: Banner oder Hinweise für jede App, die dir wichtig ist. Sie werden auch ohne Festplattenvollzugriff erfasst.</translation>
    </message>
    <message id="help.macos.p.alertStyle">
        <source>help.macos.p.alertStyle</source>
        <translation>Systemeinstellungen › Mitteilungen legt für jede App fest, wie sie meldet. Was das für das Erfassen bedeutet:</translation>
    </message>
    <message id="help.macos.p.focus">
        <source>help.macos.p.focus</source>
        <translation>Solange ein Fokus an ist, zeigt macOS vielleicht keine Banner. Was es zurückhält, ist dann nur in der Datenbank des Systems zu finden, die Festplattenvollzugriff braucht.</translation>
    </message>
    <message id="help.macos.p.timeMachine">
        <source>help.macos.p.timeMachine</source>
        <translation>Der Hort ist in deinem Ordner Library, also kopiert Time Machine ihn. Eine Datei in Gebrauch kann mitten in einer Änderung kopiert werden; ein Backup mit Tessarine ist sicherer.</translation>
    </message>
    <message id="help.macos.title">
        <source>help.macos.title</source>
        <translation>macOS-Einstellungen</translation>
    </message>
    <message id="help.menuBar.h.badge">
        <source>help.menuBar.h.badge</source>
        <translation>Die Zahl neben der Glocke</translation>
    </message>
    <message id="help.menuBar.h.leftClick">
        <source>help.menuBar.h.leftClick</source>
        <translation>Das Menü</translation>
    </message>
    <message id="help.menuBar.h.optionClick">
        <source>help.menuBar.h.optionClick</source>
        <translation>Diagnose</translation>
    </message>
    <message id="help.menuBar.p.badge">
        <source>help.menuBar.p.badge</source>
        <translation>Sie zählt, was kam, seit du den Hort zuletzt geöffnet hast, bis 99; darüber steht 99+. Gezählt wird in der Liste der neuesten 500, so dass die Zahl bei voller Liste zurückbleiben kann.</translation>
    </message>
    <message id="help.menuBar.p.intro">
        <source>help.menuBar.p.intro</source>
        <translation>An der Glocke in der Menüleiste ist Tessarine immer zu finden.</translation>
    </message>
    <message id="help.menuBar.p.optionClick">
        <source>help.menuBar.p.optionClick</source>
        <translation>Klicke mit gedrückter Wahltaste auf die Glocke, um das Diagnosefenster zu öffnen.</translation>
    </message>
    <message id="help.menuBar.row.checkUpdates">
        <source>help.menuBar.row.checkUpdates</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message id="help.menuBar.row.checkUpdates.action">
        <source>help.menuBar.row.checkUpdates.action</source>
        <translation>Sucht nach einer neueren Version.</translation>
    </message>
    <message id="help.menuBar.row.help">
        <source>help.menuBar.row.help</source>
        <translation>Tessarine-Hilfe</translation>
    </message>
    <message id="help.menuBar.row.help.action">
        <source>help.menuBar.row.help.action</source>
        <translation>Öffnet ein Fenster wie dieses.</translation>
    </message>
    <message id="help.menuBar.row.launchAtLogin">
        <source>help.menuBar.row.launchAtLogin</source>
        <translation>Beim Anmelden starten</translation>
    </message>
    <message id="help.menuBar.row.launchAtLogin.action">
        <source>help.menuBar.row.launchAtLogin.action</source>
        <translation>Schaltet das ein oder aus. Ein Häkchen zeigt, dass es an ist.</translation>
    </message>
    <message id="help.menuBar.row.openHoard">
        <source>help.menuBar.row.openHoard</source>
        <translation>Hort öffnen</translation>
    </message>
    <message id="help.menuBar.row.openHoard.action">
        <source>help.menuBar.row.openHoard.action</source>
        <translation>Zeigt das Fenster mit deinen Benachrichtigungen und löscht die Zahl.</translation>
    </message>
    <message id="help.menuBar.row.preferences">
        <source>help.menuBar.row.preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message id="help.menuBar.row.preferences.action">
        <source>help.menuBar.row.preferences.action</source>
        <translation>Öffnet die Einstellungen.</translation>
    </message>
    <message id="help.menuBar.row.quit">
        <source>help.menuBar.row.quit</source>
        <translation>Tessarine beenden</translation>
    </message>
    <message id="help.menuBar.row.quit.action">
        <source>help.menuBar.row.quit.action</source>
        <translation>Beendet das Programm und damit das Erfassen.</translation>
    </message>
    <message id="help.menuBar.row.welcomeGuide">
        <source>help.menuBar.row.welcomeGuide</source>
        <translation>Einführung</translation>
    </message>
    <message id="help.menuBar.row.welcomeGuide.action">
        <source>help.menuBar.row.welcomeGuide.action</source>
        <translation>Zeigt die Einführung des ersten Starts noch einmal.</translation>
    </message>
    <message id="help.menuBar.table.header.action">
        <source>help.menuBar.table.header.action</source>
        <translation>Was er tut</translation>
    </message>
    <message id="help.menuBar.table.header.item">
        <source>help.menuBar.table.header.item</source>
        <translation>Eintrag</translation>
    </message>
    <message id="help.menuBar.title">
        <source>help.menuBar.title</source>
        <translation>Menüleiste</translation>
    </message>
    <message id="help.page">
        <source>help.page</source>
        <translation>Seite</translation>
    </message>
    <message id="help.prefs.excludeDelete.desc">
        <source>help.prefs.excludeDelete.desc</source>
        <translation>Löscht auch, was der Hort unter dem Namen dieser App hat.</translation>
    </message>
    <message id="help.prefs.excludeDelete.title">
        <source>help.prefs.excludeDelete.title</source>
        <translation>Ausschließen und löschen</translation>
    </message>
    <message id="help.prefs.excludeOnly.desc">
        <source>help.prefs.excludeOnly.desc</source>
        <translation>Neue Benachrichtigungen werden nicht aufbewahrt; was im Hort ist, bleibt.</translation>
    </message>
    <message id="help.prefs.excludeOnly.title">
        <source>help.prefs.excludeOnly.title</source>
        <translation>Nur ausschließen</translation>
    </message>
    <message id="help.prefs.h.excludedApps">
        <source>help.prefs.h.excludedApps</source>
        <translation>Ausgeschlossene Apps</translation>
    </message>
    <message id="help.prefs.h.hoard">
        <source>help.prefs.h.hoard</source>
        <translation>Die Datei des Horts</translation>
    </message>
    <message id="help.prefs.h.privacy">
        <source>help.prefs.h.privacy</source>
        <translation>Datenschutz</translation>
    </message>
    <message id="help.prefs.h.retention">
        <source>help.prefs.h.retention</source>
        <translation>Wie lange aufbewahren</translation>
    </message>
    <message id="help.prefs.h.startup">
        <source>help.prefs.h.startup</source>
        <translation>Start</translation>
    </message>
    <message id="help.prefs.p.backup">
        <source>help.prefs.p.backup</source>
        <translation>Das Backup der Einstellungen kopiert die Datei an einen Ort deiner Wahl. Die neuesten Benachrichtigungen können in der Kopie fehlen, und sie ist nicht verschlüsselt. Das Backup im Diagnosefenster schreibt vorher alles in die Datei.</translation>
    </message>
    <message id="help.prefs.p.excludedApps.intro">
        <source>help.prefs.p.excludedApps.intro</source>
        <translation>Benachrichtigungen einer ausgeschlossenen App werden nicht aufbewahrt.</translation>
    </message>
    <message id="help.prefs.p.excludedApps.manage">
        <source>help.prefs.p.excludedApps.manage</source>
        <translation>Allgemein › Ausgeschlossene Apps › Verwalten nennt jede App, von der eine Benachrichtigung im Hort ist. Schaltest du eine ein, wirst du gefragt, was mit dem geschehen soll, was schon da ist:</translation>
    </message>
    <message id="help.prefs.p.excludedApps.note">
        <source>help.prefs.p.excludedApps.note</source>
        <translation>Eine App wird an ihrer Kennung erkannt. Der Weg über Banner kennt nur den Namen der App, deshalb kann eine App zweimal in der Liste stehen; schließe beide aus.</translation>
    </message>
    <message id="help.prefs.p.hoard">
        <source>help.prefs.p.hoard</source>
        <translation>Speicher zeigt, wie groß die Datei ist.</translation>
    </message>
    <message id="help.prefs.p.intro">
        <source>help.prefs.p.intro</source>
        <translation>Die Einstellungen sind im Menü der Glocke. Eine Änderung wird sofort gespeichert.</translation>
    </message>
    <message id="help.prefs.p.otp">
        <source>help.prefs.p.otp</source>
        <translation>Das Löschen von Codes nach 1, 4 oder 24 Stunden löscht bei jedem Start Benachrichtigungen, die einen Einmalcode enthalten können.</translation>
    </message>
    <message id="help.prefs.p.privacyHide">
        <source>help.prefs.p.privacyHide</source>
        <translation>„Inhalte verbergen“ maskiert Titel und Texte aller Apps im Fenster und in Exporten. Gespeichert werden sie trotzdem.</translation>
    </message>
    <message id="help.prefs.p.retention">
        <source>help.prefs.p.retention</source>
        <translation>Speicher › Benachrichtigungen aufbewahren. Was zu alt ist, wird beim nächsten Start von Tessarine gelöscht, auch angeheftete Benachrichtigungen.</translation>
    </message>
    <message id="help.prefs.p.startup">
        <source>help.prefs.p.startup</source>
        <translation>„Beim Anmelden starten“ startet Tessarine, wenn du dich anmeldest. Es kann nur aufbewahren, was kommt, während es läuft, oder was das System noch hat.</translation>
    </message>
    <message id="help.prefs.p.startup2">
        <source>help.prefs.p.startup2</source>
        <translation>Bis das eingeschaltet ist, fragt Tessarine nach seinem Start danach. „Nicht mehr fragen“ beendet das.</translation>
    </message>
    <message id="help.prefs.p.startup3">
        <source>help.prefs.p.startup3</source>
        <translation>Es startet ohne Fenster. Du siehst nur seine Glocke in der Menüleiste.</translation>
    </message>
    <message id="help.prefs.p.welcomeGuide">
        <source>help.prefs.p.welcomeGuide</source>
        <translation>Hier lassen sich der Datenschutzhinweis und die Einführung noch einmal lesen.</translation>
    </message>
    <message id="help.prefs.title">
        <source>help.prefs.title</source>
        <translation>Einstellungen</translation>
    </message>
    <message id="help.privacy.btn.reviewNotice">
        <source>help.privacy.btn.reviewNotice</source>
        <translation>Datenschutzhinweis lesen</translation>
    </message>
    <message id="help.privacy.h.displayFilter">
        <source>help.privacy.h.displayFilter</source>
        <translation>Eine Maske, kein Schloss</translation>
    </message>
    <message id="help.privacy.h.doesNotDo">
        <source>help.privacy.h.doesNotDo</source>
        <translation>Was es nicht tut</translation>
    </message>
    <message id="help.privacy.h.exports">
        <source>help.privacy.h.exports</source>
        <translation>Exporte</translation>
    </message>
    <message id="help.privacy.h.notice">
        <source>help.privacy.h.notice</source>
        <translation>Datenschutzhinweis</translation>
    </message>
    <message id="help.privacy.h.otp">
        <source>help.privacy.h.otp</source>
        <translation>Einmalcodes</translation>
    </message>
    <message id="help.privacy.h.protecting">
        <source>help.privacy.h.protecting</source>
        <translation>Den Hort schützen</translation>
    </message>
    <message id="help.privacy.lim.noEncrypt.desc">
        <source>help.privacy.lim.noEncrypt.desc</source>
        <translation>Wer die Dateien deines Benutzers lesen kann, kann den Hort lesen, mit Tessarine oder ohne.</translation>
    </message>
    <message id="help.privacy.lim.noEncrypt.title">
        <source>help.privacy.lim.noEncrypt.title</source>
        <translation>Der Hort ist nicht verschlüsselt</translation>
    </message>
    <message id="help.privacy.lim.noEncrypt.workaround">
        <source>help.privacy.lim.noEncrypt.workaround</source>
        <translation>Schalte FileVault ein und sperre den Bildschirm, wenn du weggehst.</translation>
    </message>
    <message id="help.privacy.lim.noPerApp.desc">
        <source>help.privacy.lim.noPerApp.desc</source>
        <translation>Die Einstellungen verbergen alle Apps oder keine.</translation>
    </message>
    <message id="help.privacy.lim.noPerApp.title">
        <source>help.privacy.lim.noPerApp.title</source>
        <translation>Kein Schalter für einzelne Apps</translation>
    </message>
    <message id="help.privacy.lim.noPerApp.workaround">
        <source>help.privacy.lim.noPerApp.workaround</source>
        <translation>Setze die Bundle-IDs der Apps in die Liste privacyApps der Domäne com.zorvek.Tessarine, während Tessarine nicht läuft.</translation>
    </message>
    <message id="help.privacy.p.displayFilter1">
        <source>help.privacy.p.displayFilter1</source>
        <translation>„Inhalte verbergen“ ist für Augen, die dir über die Schulter sehen. Zeilen zeigen Balken statt Wörter. Ein Klick deckt eine Zeile auf, bis sich die Liste ändert; Vorschau, Auswahlmodus und Suche sehen den echten Inhalt.</translation>
    </message>
    <message id="help.privacy.p.displayFilter2">
        <source>help.privacy.p.displayFilter2</source>
        <translation>So verbirgst du die Inhalte aller Apps:</translation>
    </message>
    <message id="help.privacy.p.exports">
        <source>help.privacy.p.exports</source>
        <translation>Was verborgen ist, ist es auch in Exporten, wenn du es für diesen Export nicht einschließt.</translation>
    </message>
    <message id="help.privacy.p.exports2">
        <source>help.privacy.p.exports2</source>
        <translation>Exportierte Dateien sind nicht verschlüsselt. Wer eine bekommt, kann sie lesen.</translation>
    </message>
    <message id="help.privacy.p.notice">
        <source>help.privacy.p.notice</source>
        <translation>Der Hinweis, den du beim ersten Start gesehen hast, sagt, was gespeichert wird und was nicht.</translation>
    </message>
    <message id="help.privacy.p.otp1">
        <source>help.privacy.p.otp1</source>
        <translation>Codes zum Anmelden kommen als Benachrichtigungen, und der Hort würde sie behalten. Wenn du willst, löscht Tessarine sie von selbst.</translation>
    </message>
    <message id="help.privacy.p.otp2">
        <source>help.privacy.p.otp2</source>
        <translation>Es löscht, was ein Code sein kann: vier Ziffern hintereinander oder Wörter, die solche Nachrichten auf Englisch, Italienisch, Deutsch oder Französisch benutzen. Das trifft auch Benachrichtigungen mit einer Jahreszahl oder einem Preis, und angeheftete.</translation>
    </message>
    <message id="help.privacy.p.otp3">
        <source>help.privacy.p.otp3</source>
        <translation>Das geschieht einmal, beim Start von Tessarine. Ein Code, der später kommt, bleibt bis zum nächsten Start.</translation>
    </message>
    <message id="help.privacy.protect.exports.desc">
        <source>help.privacy.protect.exports.desc</source>
        <translation>Eine exportierte Datei bleibt, bis du sie löschst.</translation>
    </message>
    <message id="help.privacy.protect.exports.title">
        <source>help.privacy.protect.exports.title</source>
        <translation>Exporte löschen</translation>
    </message>
    <message id="help.privacy.protect.filevault.desc">
        <source>help.privacy.protect.filevault.desc</source>
        <translation>FileVault hält den Hort unlesbar, solange der Mac aus ist.</translation>
    </message>
    <message id="help.privacy.protect.filevault.title">
        <source>help.privacy.protect.filevault.title</source>
        <translation>Festplatte verschlüsseln</translation>
    </message>
    <message id="help.privacy.protect.noCloud.desc">
        <source>help.privacy.protect.noCloud.desc</source>
        <translation>Lege Hort, Backups und Exporte nicht dorthin, wo ein Dienst sie kopiert.</translation>
    </message>
    <message id="help.privacy.protect.noCloud.title">
        <source>help.privacy.protect.noCloud.title</source>
        <translation>Kein Ordner in der Cloud</translation>
    </message>
    <message id="help.privacy.protect.retention.desc">
        <source>help.privacy.protect.retention.desc</source>
        <translation>Was nach einiger Zeit gelöscht wird, kann später niemand lesen.</translation>
    </message>
    <message id="help.privacy.protect.retention.title">
        <source>help.privacy.protect.retention.title</source>
        <translation>Weniger aufbewahren</translation>
    </message>
    <message id="help.privacy.step.1">
        <source>help.privacy.step.1</source>
        <translation>Öffne die Einstellungen im Menü der Glocke.</translation>
    </message>
    <message id="help.privacy.step.2">
        <source>help.privacy.step.2</source>
        <translation>Wähle Datenschutz.</translation>
    </message>
    <message id="help.privacy.step.3">
        <source>help.privacy.step.3</source>
        <translation>Schalte „Inhalte verbergen“ ein.</translation>
    </message>
    <message id="help.privacy.step.4">
        <source>help.privacy.step.4</source>
        <translation>Schließe das Fenster. Alle Zeilen sind sofort maskiert.</translation>
    </message>
    <message id="help.privacy.title">
        <source>help.privacy.title</source>
        <translation>Datenschutz</translation>
    </message>
    <message id="help.search.h.appFilter">
        <source>help.search.h.appFilter</source>
        <translation>App</translation>
    </message>
    <message id="help.search.h.groupModes">
        <source>help.search.h.groupModes</source>
        <translation>Gruppen</translation>
    </message>
    <message id="help.search.h.resultCount">
        <source>help.search.h.resultCount</source>
        <translation>Die Zahl an der Seite</translation>
    </message>
    <message id="help.search.h.searchBar">
        <source>help.search.h.searchBar</source>
        <translation>Suche</translation>
    </message>
    <message id="help.search.h.sortModes">
        <source>help.search.h.sortModes</source>
        <translation>Ordnung</translation>
    </message>
    <message id="help.search.p.appFilter">
        <source>help.search.p.appFilter</source>
        <translation>Das Menü App beschränkt die Liste auf eine App. Es bietet jede App an, von der eine Benachrichtigung geladen ist. Suche und Filter wirken zusammen.</translation>
    </message>
    <message id="help.search.p.groupCollapse">
        <source>help.search.p.groupCollapse</source>
        <translation>Klicke auf den Pfeil einer Gruppe, um sie zu schließen oder zu öffnen. Eine andere Gruppierung öffnet alle Gruppen wieder.</translation>
    </message>
    <message id="help.search.p.resultCount">
        <source>help.search.p.resultCount</source>
        <translation>Sie zählt die Benachrichtigungen, die die Liste zeigt. Hat der Hort mehr, als geladen ist, steht dort „gezeigte von allen“.</translation>
    </message>
    <message id="help.search.p.searchBar">
        <source>help.search.p.searchBar</source>
        <translation>Gib einen beliebigen Teil eines Titels, eines Textes oder eines App-Namens ein. Groß- und Kleinschreibung ist gleich, Akzente zählen. Gesucht wird in den geladenen Benachrichtigungen, zuerst den neuesten 500. „Ältere laden“ am Ende der Liste fügt 500 hinzu. Auch verborgene Inhalte werden durchsucht.</translation>
    </message>
    <message id="help.search.title">
        <source>help.search.title</source>
        <translation>Suchen und filtern</translation>
    </message>
    <message id="help.sections">
        <source>help.sections</source>
        <translation>Abschnitte</translation>
    </message>
    <message id="help.selectDelete.h.datePresets">
        <source>help.selectDelete.h.datePresets</source>
        <translation>Zeiträume</translation>
    </message>
    <message id="help.selectDelete.h.deleting">
        <source>help.selectDelete.h.deleting</source>
        <translation>Löschen</translation>
    </message>
    <message id="help.selectDelete.h.entering">
        <source>help.selectDelete.h.entering</source>
        <translation>Auswahlmodus</translation>
    </message>
    <message id="help.selectDelete.h.selecting">
        <source>help.selectDelete.h.selecting</source>
        <translation>Wege zur Auswahl</translation>
    </message>
    <message id="help.selectDelete.p.deleting">
        <source>help.selectDelete.p.deleting</source>
        <translation>„Auswahl löschen“ fragt vorher, „Alles löschen“ auch. „Alles löschen“ leert den ganzen Hort, auch angeheftete Benachrichtigungen und nicht geladene. Kommt eine neue Benachrichtigung, während du auswählst, geht die Auswahl verloren, und nichts wird gelöscht.</translation>
    </message>
    <message id="help.selectDelete.p.entering">
        <source>help.selectDelete.p.entering</source>
        <translation>Klicke auf den Papierkorb über der Liste. Jede Zeile zeigt dann einen Kreis, und verborgener Inhalt ist zu sehen, bis du mit Abbrechen aufhörst.</translation>
    </message>
    <message id="help.selectDelete.row.byApp.desc">
        <source>help.selectDelete.row.byApp.desc</source>
        <translation>Fügt alle gezeigten Benachrichtigungen einer App hinzu.</translation>
    </message>
    <message id="help.selectDelete.row.byApp.title">
        <source>help.selectDelete.row.byApp.title</source>
        <translation>App</translation>
    </message>
    <message id="help.selectDelete.row.byDate.desc">
        <source>help.selectDelete.row.byDate.desc</source>
        <translation>Fügt alle gezeigten Benachrichtigungen eines Zeitraums hinzu. Du kannst mehrere Zeiträume wählen.</translation>
    </message>
    <message id="help.selectDelete.row.byDate.title">
        <source>help.selectDelete.row.byDate.title</source>
        <translation>Datum</translation>
    </message>
    <message id="help.selectDelete.row.selectAll.desc">
        <source>help.selectDelete.row.selectAll.desc</source>
        <translation>Wählt alles aus, was die Liste zeigt. Noch einmal gedrückt, wählt es nichts aus.</translation>
    </message>
    <message id="help.selectDelete.row.selectAll.title">
        <source>help.selectDelete.row.selectAll.title</source>
        <translation>Alles auswählen</translation>
    </message>
    <message id="help.selectDelete.row.tap.desc">
        <source>help.selectDelete.row.tap.desc</source>
        <translation>Wählt sie aus oder wieder ab.</translation>
    </message>
    <message id="help.selectDelete.row.tap.title">
        <source>help.selectDelete.row.tap.title</source>
        <translation>Klick auf eine Zeile</translation>
    </message>
    <message id="help.selectDelete.title">
        <source>help.selectDelete.title</source>
        <translation>Auswählen und löschen</translation>
    </message>
    <message id="help.selectDelete.warning">
        <source>help.selectDelete.warning</source>
        <translation>Gelöschte Benachrichtigungen lassen sich nicht zurückholen.</translation>
    </message>
    <message id="help.tips.backup.desc">
        <source>help.tips.backup.desc</source>
        <translation>Das Backup im Diagnosefenster schreibt eine vollständige Kopie des Horts.</translation>
    </message>
    <message id="help.tips.backup.title">
        <source>help.tips.backup.title</source>
        <translation>Ein Backup anlegen</translation>
    </message>
    <message id="help.tips.byDate.desc">
        <source>help.tips.byDate.desc</source>
        <translation>Im Auswahlmodus wählt Datum mit zwei Klicks den letzten Monat aus.</translation>
    </message>
    <message id="help.tips.byDate.title">
        <source>help.tips.byDate.title</source>
        <translation>Nach Datum aufräumen</translation>
    </message>
    <message id="help.tips.csv.desc">
        <source>help.tips.csv.desc</source>
        <translation>Jedes Programm, das Tabellen liest, kann zählen und sortieren, was du exportierst.</translation>
    </message>
    <message id="help.tips.csv.title">
        <source>help.tips.csv.title</source>
        <translation>Mit CSV weiterarbeiten</translation>
    </message>
    <message id="help.tips.diagnostics.desc">
        <source>help.tips.diagnostics.desc</source>
        <translation>Das Diagnosefenster zeigt, was gerade erfasst wird und was im Weg steht.</translation>
    </message>
    <message id="help.tips.diagnostics.title">
        <source>help.tips.diagnostics.title</source>
        <translation>Wenn etwas fehlt</translation>
    </message>
    <message id="help.tips.launchAtLogin.desc">
        <source>help.tips.launchAtLogin.desc</source>
        <translation>So verpasst du am wenigsten: Tessarine ist vor der ersten Benachrichtigung da.</translation>
    </message>
    <message id="help.tips.launchAtLogin.title">
        <source>help.tips.launchAtLogin.title</source>
        <translation>Beim Anmelden starten</translation>
    </message>
    <message id="help.tips.mirroring.desc">
        <source>help.tips.mirroring.desc</source>
        <translation>Mit der iPhone-Synchronisierung kommen auch seine Benachrichtigungen in den Hort.</translation>
    </message>
    <message id="help.tips.mirroring.title">
        <source>help.tips.mirroring.title</source>
        <translation>Das iPhone dazuholen</translation>
    </message>
    <message id="help.tips.notifStyles.desc">
        <source>help.tips.notifStyles.desc</source>
        <translation>Ein Banner wird sofort erfasst, ohne weitere Erlaubnis.</translation>
    </message>
    <message id="help.tips.notifStyles.title">
        <source>help.tips.notifStyles.title</source>
        <translation>Apps Banner zeigen lassen</translation>
    </message>
    <message id="help.tips.retention.desc">
        <source>help.tips.retention.desc</source>
        <translation>Benachrichtigungen sind klein. Kurze Fristen löschen, was du später vielleicht suchst.</translation>
    </message>
    <message id="help.tips.retention.title">
        <source>help.tips.retention.title</source>
        <translation>Für immer aufbewahren</translation>
    </message>
    <message id="help.tips.title">
        <source>help.tips.title</source>
        <translation>Tipps</translation>
    </message>
    <message id="help.tips.xlsx.desc">
        <source>help.tips.xlsx.desc</source>
        <translation>Wähle das Semikolon als Trennzeichen und UTF-8 als Kodierung, wenn du gefragt wirst.</translation>
    </message>
    <message id="help.tips.xlsx.title">
        <source>help.tips.xlsx.title</source>
        <translation>CSV im Tabellenprogramm</translation>
    </message>
    <message id="hoard.empty.noAccess">
        <source>hoard.empty.noAccess</source>
        <translation>Tessarine kann keine sehen: Es hat keinen Zugang zum Sitzungsbus, über den Benachrichtigungen kommen.</translation>
    </message>
    <message id="hoard.empty.noResults">
        <source>hoard.empty.noResults</source>
        <translation>Keine Treffer</translation>
    </message>
    <message id="hoard.empty.noResults.detail">
        <source>hoard.empty.noResults.detail</source>
        <translation>Keine geladene Benachrichtigung passt zur Suche und zur gewählten App.</translation>
    </message>
    <message id="hoard.empty.noResults.older">
        <source>hoard.empty.noResults.older</source>
        <translation>Keine geladene Benachrichtigung passt zur Suche und zur gewählten App. „Ältere laden“ sucht weiter zurück.</translation>
    </message>
    <message id="hoard.empty.notOpened">
        <source>hoard.empty.notOpened</source>
        <translation>Der Hort lässt sich nicht öffnen, also kann nichts aufbewahrt werden: %1</translation>
    </message>
    <message id="hoard.empty.waiting">
        <source>hoard.empty.waiting</source>
        <translation>Noch keine Benachrichtigungen</translation>
    </message>
    <message id="hoard.empty.waiting.detail">
        <source>hoard.empty.waiting.detail</source>
        <translation>Was deine Apps melden, wird hier aufbewahrt, solange du willst.</translation>
    </message>
    <message id="hoard.list">
        <source>hoard.list</source>
        <translation>Benachrichtigungen</translation>
    </message>
    <message id="hoard.loading">
        <source>hoard.loading</source>
        <translation>Hort wird geöffnet …</translation>
    </message>
    <message id="launchAtLogin.btn.dontAsk">
        <source>launchAtLogin.btn.dontAsk</source>
        <translation>Nicht mehr fragen</translation>
    </message>
    <message id="launchAtLogin.btn.enable">
        <source>launchAtLogin.btn.enable</source>
        <translation>Beim Anmelden starten</translation>
    </message>
    <message id="launchAtLogin.btn.notNow">
        <source>launchAtLogin.btn.notNow</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message id="launchAtLogin.info.changeLater">
        <source>launchAtLogin.info.changeLater</source>
        <translation>Du kannst das jederzeit im Menü der Glocke ändern.</translation>
    </message>
    <message id="launchAtLogin.info.missedNotifs">
        <source>launchAtLogin.info.missedNotifs</source>
        <translation>Was kommt, bevor du es startest, gelangt vielleicht nie in den Hort.</translation>
    </message>
    <message id="launchAtLogin.info.silentStart">
        <source>launchAtLogin.info.silentStart</source>
        <translation>Es startet ohne Fenster. Du siehst nur seine Glocke in der Menüleiste.</translation>
    </message>
    <message id="launchAtLogin.prompt.subtitle">
        <source>launchAtLogin.prompt.subtitle</source>
        <translation>Es kann nur aufbewahren, was kommt, während es läuft.</translation>
    </message>
    <message id="launchAtLogin.prompt.title">
        <source>launchAtLogin.prompt.title</source>
        <translation>Tessarine beim Anmelden starten?</translation>
    </message>
    <message id="menu.checkForUpdates">
        <source>menu.checkForUpdates</source>
        <translation>Nach Updates suchen …</translation>
    </message>
    <message id="menu.fullDiskAccess">
        <source>menu.fullDiskAccess</source>
        <translation>Festplattenvollzugriff …</translation>
    </message>
    <message id="menu.help.title">
        <source>menu.help.title</source>
        <translation>Tessarine-Hilfe</translation>
    </message>
    <message id="menu.launchAtLogin">
        <source>menu.launchAtLogin</source>
        <translation>Beim Anmelden starten</translation>
    </message>
    <message id="menu.newNotifications" numerus="yes">
        <source>menu.newNotifications</source>
        <translation>
            <numerusform>%Ln neue Benachrichtigung</numerusform>
            <numerusform>%Ln neue Benachrichtigungen</numerusform>
        </translation>
    </message>
    <message id="menu.openHoard">
        <source>menu.openHoard</source>
        <translation>Hort öffnen</translation>
    </message>
    <message id="menu.preferences.title">
        <source>menu.preferences.title</source>
        <translation>Einstellungen …</translation>
    </message>
    <message id="menu.quit">
        <source>menu.quit</source>
        <translation>Tessarine beenden</translation>
    </message>
    <message id="menu.welcome.title">
        <source>menu.welcome.title</source>
        <translation>Einführung …</translation>
    </message>
    <message id="onboarding.ax.granted">
        <source>onboarding.ax.granted</source>
        <translation>Erteilt: Tessarine sieht Benachrichtigungen, wie sie kommen.</translation>
    </message>
    <message id="onboarding.ax.howToEnable">
        <source>onboarding.ax.howToEnable</source>
        <translation>Öffne die Systemeinstellungen, suche Tessarine in der Liste und schalte es ein.</translation>
    </message>
    <message id="onboarding.ax.noPermissionWarning">
        <source>onboarding.ax.noPermissionWarning</source>
        <translation>Ohne sie werden Banner nicht gesehen. Nur was die Datenbank des Systems enthält, kann aufbewahrt werden, wenn Tessarine sie lesen darf.</translation>
    </message>
    <message id="onboarding.ax.notGranted">
        <source>onboarding.ax.notGranted</source>
        <translation>Noch nicht erteilt</translation>
    </message>
    <message id="onboarding.ax.openSettings">
        <source>onboarding.ax.openSettings</source>
        <translation>Systemeinstellungen öffnen</translation>
    </message>
    <message id="onboarding.ax.openSettings.hint">
        <source>onboarding.ax.openSettings.hint</source>
        <translation>Diese Seite merkt von selbst, wenn die Erlaubnis da ist.</translation>
    </message>
    <message id="onboarding.ax.subtitle">
        <source>onboarding.ax.subtitle</source>
        <translation>Tessarine liest Banner mit der Erlaubnis für die Bedienungshilfen von macOS, in dem Moment, in dem sie erscheinen.</translation>
    </message>
    <message id="onboarding.ax.title">
        <source>onboarding.ax.title</source>
        <translation>Bedienungshilfen</translation>
    </message>
    <message id="onboarding.ax.whatItDoes.text">
        <source>onboarding.ax.whatItDoes.text</source>
        <translation>Es liest die Texte der Banner, die die Mitteilungszentrale zeichnet, und legt sie in den Hort.</translation>
    </message>
    <message id="onboarding.ax.whatItDoes.title">
        <source>onboarding.ax.whatItDoes.title</source>
        <translation>Was Tessarine damit tut</translation>
    </message>
    <message id="onboarding.ax.whatItDoesNot.text">
        <source>onboarding.ax.whatItDoesNot.text</source>
        <translation>Es liest keine anderen Fenster, verfolgt nicht, was du tippst, und drückt nichts für dich.</translation>
    </message>
    <message id="onboarding.ax.whatItDoesNot.title">
        <source>onboarding.ax.whatItDoesNot.title</source>
        <translation>Was es nicht tut</translation>
    </message>
    <message id="onboarding.btn.agreeAndContinue">
        <source>onboarding.btn.agreeAndContinue</source>
        <translation>Zustimmen und weiter</translation>
    </message>
    <message id="onboarding.btn.back">
        <source>onboarding.btn.back</source>
        <translation>Zurück</translation>
    </message>
    <message id="onboarding.btn.continue">
        <source>onboarding.btn.continue</source>
        <translation>Weiter</translation>
    </message>
    <message id="onboarding.btn.continueWithout">
        <source>onboarding.btn.continueWithout</source>
        <translation>Ohne Zugang fortfahren</translation>
    </message>
    <message id="onboarding.btn.done">
        <source>onboarding.btn.done</source>
        <translation>Fertig</translation>
    </message>
    <message id="onboarding.btn.start">
        <source>onboarding.btn.start</source>
        <translation>Tessarine starten</translation>
    </message>
    <message id="onboarding.eula.agree">
        <source>onboarding.eula.agree</source>
        <translation>Ich habe die Vereinbarung gelesen und nehme sie an</translation>
    </message>
    <message id="onboarding.eula.scrollHint">
        <source>onboarding.eula.scrollHint</source>
        <translation>Scrolle bis zum Ende, um weiterzugehen.</translation>
    </message>
    <message id="onboarding.eula.subtitle">
        <source>onboarding.eula.subtitle</source>
        <translation>Bitte lies sie bis zum Ende. Nichts wird aufgezeichnet, bevor du zustimmst.</translation>
    </message>
    <message id="onboarding.eula.title">
        <source>onboarding.eula.title</source>
        <translation>Die Vereinbarung</translation>
    </message>
    <message id="onboarding.feature1.text">
        <source>onboarding.feature1.text</source>
        <translation>Tessarine bewahrt jede Benachrichtigung auf, sobald sie kommt, auch solche, die du nie gesehen hast.</translation>
    </message>
    <message id="onboarding.feature1.title">
        <source>onboarding.feature1.title</source>
        <translation>Nichts geht verloren</translation>
    </message>
    <message id="onboarding.feature2.text">
        <source>onboarding.feature2.text</source>
        <translation>Der Hort ist eine Datei in deinem persönlichen Ordner. Es gibt kein Konto und keinen Server.</translation>
    </message>
    <message id="onboarding.feature2.title">
        <source>onboarding.feature2.title</source>
        <translation>Alles auf diesem Computer</translation>
    </message>
    <message id="onboarding.feature3.text">
        <source>onboarding.feature3.text</source>
        <translation>Durchsuche alle Texte, filtere nach App und nach Tag, hefte an, was zählt, lösche, was nicht zählt.</translation>
    </message>
    <message id="onboarding.feature3.title">
        <source>onboarding.feature3.title</source>
        <translation>Im Nu gefunden</translation>
    </message>
    <message id="onboarding.feature4.text">
        <source>onboarding.feature4.text</source>
        <translation>Benachrichtigungen, die dein iPhone an diesen Mac weitergibt, werden aufbewahrt wie alle anderen.</translation>
    </message>
    <message id="onboarding.feature4.title">
        <source>onboarding.feature4.title</source>
        <translation>Auch dein iPhone</translation>
    </message>
    <message id="onboarding.privacy.reviewNote">
        <source>onboarding.privacy.reviewNote</source>
        <translation>Du kannst das in den Einstellungen unter „Datenschutz“ noch einmal lesen.</translation>
    </message>
    <message id="onboarding.privacy.row1.text">
        <source>onboarding.privacy.row1.text</source>
        <translation>Alles wird auf diesem Computer gespeichert, lesbar nur für dein Benutzerkonto.</translation>
    </message>
    <message id="onboarding.privacy.row1.title">
        <source>onboarding.privacy.row1.title</source>
        <translation>Alles bleibt hier</translation>
    </message>
    <message id="onboarding.privacy.row2.text">
        <source>onboarding.privacy.row2.text</source>
        <translation>Wer dein Konto benutzen oder deine Festplatte lesen kann, kann deine Benachrichtigungen lesen.</translation>
    </message>
    <message id="onboarding.privacy.row2.title">
        <source>onboarding.privacy.row2.title</source>
        <translation>Er ist nicht verschlüsselt</translation>
    </message>
    <message id="onboarding.privacy.row3.text">
        <source>onboarding.privacy.row3.text</source>
        <translation>Einmalcodes werden aufbewahrt wie alles andere. Die Einstellungen können sie nach einigen Stunden löschen.</translation>
    </message>
    <message id="onboarding.privacy.row3.title">
        <source>onboarding.privacy.row3.title</source>
        <translation>Er kann Codes enthalten</translation>
    </message>
    <message id="onboarding.privacy.row4.text">
        <source>onboarding.privacy.row4.text</source>
        <translation>Eine Zeile, eine App, einen Tag oder alles, jederzeit.</translation>
    </message>
    <message id="onboarding.privacy.row4.title">
        <source>onboarding.privacy.row4.title</source>
        <translation>Du kannst löschen</translation>
    </message>
    <message id="onboarding.privacy.subtitle">
        <source>onboarding.privacy.subtitle</source>
        <translation>Was du über deinen Hort wissen solltest, bevor er wächst.</translation>
    </message>
    <message id="onboarding.privacy.title">
        <source>onboarding.privacy.title</source>
        <translation>Dein Datenschutz</translation>
    </message>
    <message id="onboarding.welcome.subtitle">
        <source>onboarding.welcome.subtitle</source>
        <translation>Jede Benachrichtigung, die dein Computer zeigt, aufbewahrt und durchsuchbar.</translation>
    </message>
    <message id="onboarding.welcome.timeHint">
        <source>onboarding.welcome.timeHint</source>
        <translation>Das dauert etwa eine Minute.</translation>
    </message>
    <message id="onboarding.welcome.title">
        <source>onboarding.welcome.title</source>
        <translation>Willkommen bei Tessarine</translation>
    </message>
    <message id="onboarding.window.title">
        <source>onboarding.window.title</source>
        <translation>Willkommen bei Tessarine</translation>
    </message>
    <message id="pageDots.position">
        <source>pageDots.position</source>
        <translation>Schritt %1 von %2</translation>
    </message>
    <message id="perm.fda.benefits.header">
        <source>perm.fda.benefits.header</source>
        <translation>Was du gewinnst</translation>
    </message>
    <message id="perm.fda.enabled">
        <source>perm.fda.enabled</source>
        <translation>Ist eingeschaltet</translation>
    </message>
    <message id="perm.fda.howto.header">
        <source>perm.fda.howto.header</source>
        <translation>So schaltest du ihn ein</translation>
    </message>
    <message id="perm.fda.laterHint">
        <source>perm.fda.laterHint</source>
        <translation>Du kannst das jederzeit später tun, im Menü der Glocke.</translation>
    </message>
    <message id="perm.fda.notDetected">
        <source>perm.fda.notDetected</source>
        <translation>Die Datenbank ist noch immer nicht lesbar. Sieh nach dem Schalter, oder beende Tessarine und starte es neu.</translation>
    </message>
    <message id="perm.fda.openSettings">
        <source>perm.fda.openSettings</source>
        <translation>Systemeinstellungen öffnen</translation>
    </message>
    <message id="perm.fda.picture">
        <source>perm.fda.picture</source>
        <translation>Die Liste der Programme unter „Festplattenvollzugriff“, mit eingeschaltetem Schalter von Tessarine</translation>
    </message>
    <message id="perm.fda.reason1">
        <source>perm.fda.reason1</source>
        <translation>Benachrichtigungen, die kamen, während Tessarine nicht lief, werden nachgeholt, soweit das System sie noch hat.</translation>
    </message>
    <message id="perm.fda.reason2">
        <source>perm.fda.reason2</source>
        <translation>Auch Benachrichtigungen, die ohne Banner kommen, werden aufbewahrt.</translation>
    </message>
    <message id="perm.fda.restartHint">
        <source>perm.fda.restartHint</source>
        <translation>Das System bittet vielleicht darum, Tessarine zu beenden und wieder zu öffnen, damit die Änderung wirkt.</translation>
    </message>
    <message id="perm.fda.skip">
        <source>perm.fda.skip</source>
        <translation>Überspringen</translation>
    </message>
    <message id="perm.fda.step1">
        <source>perm.fda.step1</source>
        <translation>Öffne die Systemeinstellungen.</translation>
    </message>
    <message id="perm.fda.step2">
        <source>perm.fda.step2</source>
        <translation>Gehe zu „Datenschutz &amp; Sicherheit“.</translation>
    </message>
    <message id="perm.fda.step3">
        <source>perm.fda.step3</source>
        <translation>Wähle „Festplattenvollzugriff“.</translation>
    </message>
    <message id="perm.fda.step4">
        <source>perm.fda.step4</source>
        <translation>Schalte Tessarine ein. Ist es nicht in der Liste, füge es mit dem Knopf + hinzu.</translation>
    </message>
    <message id="perm.fda.step5">
        <source>perm.fda.step5</source>
        <translation>Komm zu diesem Fenster zurück.</translation>
    </message>
    <message id="perm.fda.subtitle">
        <source>perm.fda.subtitle</source>
        <translation>Damit kann Tessarine auch die eigene Datenbank des Systems für Benachrichtigungen lesen.</translation>
    </message>
    <message id="perm.fda.title">
        <source>perm.fda.title</source>
        <translation>Festplattenvollzugriff</translation>
    </message>
    <message id="perm.fda.without.header">
        <source>perm.fda.without.header</source>
        <translation>Ohne ihn</translation>
    </message>
    <message id="perm.fda.without.row1">
        <source>perm.fda.without.row1</source>
        <translation>Banner werden aufbewahrt wie bisher.</translation>
    </message>
    <message id="perm.fda.without.row2">
        <source>perm.fda.without.row2</source>
        <translation>Stille Benachrichtigungen und solche aus der Zeit vor dem Start fehlen.</translation>
    </message>
    <message id="prefs.general.appearance">
        <source>prefs.general.appearance</source>
        <translation>Aussehen</translation>
    </message>
    <message id="prefs.general.appearance.auto">
        <source>prefs.general.appearance.auto</source>
        <translation>Automatisch</translation>
    </message>
    <message id="prefs.general.appearance.dark">
        <source>prefs.general.appearance.dark</source>
        <translation>Dunkel</translation>
    </message>
    <message id="prefs.general.appearance.light">
        <source>prefs.general.appearance.light</source>
        <translation>Hell</translation>
    </message>
    <message id="prefs.general.captureExplainer">
        <source>prefs.general.captureExplainer</source>
        <translation>Tessarine kopiert jede Benachrichtigung in seinen Hort, während sie gezeigt wird. Wo das System eine Datenbank der Benachrichtigungen hält, liest Tessarine auch sie und holt so vieles nach, was kam, während es nicht lief. Alles bleibt auf diesem Computer.</translation>
    </message>
    <message id="prefs.general.excludedApps">
        <source>prefs.general.excludedApps</source>
        <translation>Ausgeschlossene Apps</translation>
    </message>
    <message id="prefs.general.excludedApps.caption">
        <source>prefs.general.excludedApps.caption</source>
        <translation>Benachrichtigungen dieser Apps werden nicht aufbewahrt.</translation>
    </message>
    <message id="prefs.general.excludedApps.count" numerus="yes">
        <source>prefs.general.excludedApps.count</source>
        <translation>
            <numerusform>%Ln App</numerusform>
            <numerusform>%Ln Apps</numerusform>
        </translation>
    </message>
    <message id="prefs.general.excludedApps.manage">
        <source>prefs.general.excludedApps.manage</source>
        <translation>Verwalten …</translation>
    </message>
    <message id="prefs.general.launchAtLogin">
        <source>prefs.general.launchAtLogin</source>
        <translation>Beim Anmelden starten</translation>
    </message>
    <message id="prefs.general.launchAtLogin.caption">
        <source>prefs.general.launchAtLogin.caption</source>
        <translation>Tessarine startet im Hintergrund, wenn du dich anmeldest.</translation>
    </message>
    <message id="prefs.general.launchAtLogin.warning">
        <source>prefs.general.launchAtLogin.warning</source>
        <translation>Benachrichtigungen, die kommen, während Tessarine nicht läuft, können verpasst werden.</translation>
    </message>
    <message id="prefs.general.section.appearance">
        <source>prefs.general.section.appearance</source>
        <translation>Darstellung</translation>
    </message>
    <message id="prefs.general.section.capture">
        <source>prefs.general.section.capture</source>
        <translation>Erfassen</translation>
    </message>
    <message id="prefs.general.section.howCapture">
        <source>prefs.general.section.howCapture</source>
        <translation>So funktioniert das Erfassen</translation>
    </message>
    <message id="prefs.general.section.startup">
        <source>prefs.general.section.startup</source>
        <translation>Start</translation>
    </message>
    <message id="prefs.privacy.hideContent">
        <source>prefs.privacy.hideContent</source>
        <translation>Inhalte verbergen</translation>
    </message>
    <message id="prefs.privacy.hideContent.activeNote">
        <source>prefs.privacy.hideContent.activeNote</source>
        <translation>Die Inhalte aller Apps sind verborgen. Gespeichert werden sie trotzdem.</translation>
    </message>
    <message id="prefs.privacy.hideContent.caption">
        <source>prefs.privacy.hideContent.caption</source>
        <translation>Titel und Texte werden im Fenster und in Exporten maskiert.</translation>
    </message>
    <message id="prefs.privacy.otp.1h">
        <source>prefs.privacy.otp.1h</source>
        <translation>1 Stunde</translation>
    </message>
    <message id="prefs.privacy.otp.24h">
        <source>prefs.privacy.otp.24h</source>
        <translation>24 Stunden</translation>
    </message>
    <message id="prefs.privacy.otp.4h">
        <source>prefs.privacy.otp.4h</source>
        <translation>4 Stunden</translation>
    </message>
    <message id="prefs.privacy.otp.note1h">
        <source>prefs.privacy.otp.note1h</source>
        <translation>Bei jedem Start werden die gelöscht, die älter als eine Stunde sind.</translation>
    </message>
    <message id="prefs.privacy.otp.note24h">
        <source>prefs.privacy.otp.note24h</source>
        <translation>Bei jedem Start werden die gelöscht, die älter als ein Tag sind.</translation>
    </message>
    <message id="prefs.privacy.otp.note4h">
        <source>prefs.privacy.otp.note4h</source>
        <translation>Bei jedem Start werden die gelöscht, die älter als 4 Stunden sind.</translation>
    </message>
    <message id="prefs.privacy.otp.off">
        <source>prefs.privacy.otp.off</source>
        <translation>Aus</translation>
    </message>
    <message id="prefs.privacy.otp.otherHours" numerus="yes">
        <source>prefs.privacy.otp.otherHours</source>
        <translation>
            <numerusform>%Ln Stunde</numerusform>
            <numerusform>%Ln Stunden</numerusform>
        </translation>
    </message>
    <message id="prefs.privacy.otpAutoDelete">
        <source>prefs.privacy.otpAutoDelete</source>
        <translation>Codes löschen nach</translation>
    </message>
    <message id="prefs.privacy.otpAutoDelete.caption">
        <source>prefs.privacy.otpAutoDelete.caption</source>
        <translation>Löscht Benachrichtigungen, die einen Einmalcode enthalten können: vier Ziffern hintereinander oder Wörter, die solche Nachrichten benutzen. Auch angeheftete.</translation>
    </message>
    <message id="prefs.privacy.privacyNotice">
        <source>prefs.privacy.privacyNotice</source>
        <translation>Datenschutzhinweis</translation>
    </message>
    <message id="prefs.privacy.privacyNotice.btn">
        <source>prefs.privacy.privacyNotice.btn</source>
        <translation>Lesen …</translation>
    </message>
    <message id="prefs.privacy.privacyNotice.caption">
        <source>prefs.privacy.privacyNotice.caption</source>
        <translation>Was gespeichert wird, wo, und wer es lesen kann.</translation>
    </message>
    <message id="prefs.privacy.section.documents">
        <source>prefs.privacy.section.documents</source>
        <translation>Dokumente</translation>
    </message>
    <message id="prefs.privacy.section.otpAutoDelete">
        <source>prefs.privacy.section.otpAutoDelete</source>
        <translation>Einmalcodes</translation>
    </message>
    <message id="prefs.privacy.section.privacyMode">
        <source>prefs.privacy.section.privacyMode</source>
        <translation>Datenschutzmodus</translation>
    </message>
    <message id="prefs.privacy.welcomeGuide">
        <source>prefs.privacy.welcomeGuide</source>
        <translation>Einführung</translation>
    </message>
    <message id="prefs.privacy.welcomeGuide.btn">
        <source>prefs.privacy.welcomeGuide.btn</source>
        <translation>Öffnen …</translation>
    </message>
    <message id="prefs.privacy.welcomeGuide.caption">
        <source>prefs.privacy.welcomeGuide.caption</source>
        <translation>Die Seiten, die der erste Start gezeigt hat.</translation>
    </message>
    <message id="prefs.saveProblem">
        <source>prefs.saveProblem</source>
        <translation>Deine Änderungen ließen sich nicht in der Datei der Einstellungen speichern. Sie gelten, bis Tessarine beendet wird, und werden mit der nächsten Änderung gespeichert, sobald sich die Datei schreiben lässt.</translation>
    </message>
    <message id="prefs.storage.backup.alert.body">
        <source>prefs.storage.backup.alert.body</source>
        <translation>Es enthält den Inhalt deiner Benachrichtigungen ohne Verschlüsselung. Die neuesten können darin fehlen.</translation>
    </message>
    <message id="prefs.storage.backup.alert.title">
        <source>prefs.storage.backup.alert.title</source>
        <translation>Das Backup kann jeder lesen, der es hat.</translation>
    </message>
    <message id="prefs.storage.backup.error.title">
        <source>prefs.storage.backup.error.title</source>
        <translation>Das Backup ließ sich nicht anlegen.</translation>
    </message>
    <message id="prefs.storage.backup.panel.save">
        <source>prefs.storage.backup.panel.save</source>
        <translation>Speichern</translation>
    </message>
    <message id="prefs.storage.backup.panel.title">
        <source>prefs.storage.backup.panel.title</source>
        <translation>Backup des Horts anlegen</translation>
    </message>
    <message id="prefs.storage.dbSize">
        <source>prefs.storage.dbSize</source>
        <translation>Dateigröße</translation>
    </message>
    <message id="prefs.storage.exportBackup">
        <source>prefs.storage.exportBackup</source>
        <translation>Sichern …</translation>
    </message>
    <message id="prefs.storage.exportBackup.help">
        <source>prefs.storage.exportBackup.help</source>
        <translation>Eine Kopie der Datei des Horts speichern</translation>
    </message>
    <message id="prefs.storage.keepFor">
        <source>prefs.storage.keepFor</source>
        <translation>Benachrichtigungen aufbewahren</translation>
    </message>
    <message id="prefs.storage.retention.14days">
        <source>prefs.storage.retention.14days</source>
        <translation>14 Tage</translation>
    </message>
    <message id="prefs.storage.retention.1year">
        <source>prefs.storage.retention.1year</source>
        <translation>1 Jahr</translation>
    </message>
    <message id="prefs.storage.retention.30days">
        <source>prefs.storage.retention.30days</source>
        <translation>30 Tage</translation>
    </message>
    <message id="prefs.storage.retention.60days">
        <source>prefs.storage.retention.60days</source>
        <translation>60 Tage</translation>
    </message>
    <message id="prefs.storage.retention.6months">
        <source>prefs.storage.retention.6months</source>
        <translation>6 Monate</translation>
    </message>
    <message id="prefs.storage.retention.7days">
        <source>prefs.storage.retention.7days</source>
        <translation>7 Tage</translation>
    </message>
    <message id="prefs.storage.retention.90days">
        <source>prefs.storage.retention.90days</source>
        <translation>90 Tage</translation>
    </message>
    <message id="prefs.storage.retention.daysNote" numerus="yes">
        <source>prefs.storage.retention.daysNote</source>
        <translation>
            <numerusform>Bei jedem Start werden Benachrichtigungen gelöscht, die älter als %Ln Tag sind, auch angeheftete.</numerusform>
            <numerusform>Bei jedem Start werden Benachrichtigungen gelöscht, die älter als %Ln Tage sind, auch angeheftete.</numerusform>
        </translation>
    </message>
    <message id="prefs.storage.retention.forever">
        <source>prefs.storage.retention.forever</source>
        <translation>Für immer</translation>
    </message>
    <message id="prefs.storage.retention.foreverNote">
        <source>prefs.storage.retention.foreverNote</source>
        <translation>Nichts wird seines Alters wegen gelöscht.</translation>
    </message>
    <message id="prefs.storage.retention.otherDays" numerus="yes">
        <source>prefs.storage.retention.otherDays</source>
        <translation>
            <numerusform>%Ln Tag</numerusform>
            <numerusform>%Ln Tage</numerusform>
        </translation>
    </message>
    <message id="prefs.storage.retention.shortWarning">
        <source>prefs.storage.retention.shortWarning</source>
        <translation>Benachrichtigungen verschwinden nach kurzer Zeit, auch angeheftete.</translation>
    </message>
    <message id="prefs.storage.section.hoard">
        <source>prefs.storage.section.hoard</source>
        <translation>Hort</translation>
    </message>
    <message id="prefs.storage.section.retention">
        <source>prefs.storage.section.retention</source>
        <translation>Wie lange aufbewahren</translation>
    </message>
    <message id="prefs.storage.size.bytes" numerus="yes">
        <source>prefs.storage.size.bytes</source>
        <translation>
            <numerusform>%Ln Byte</numerusform>
            <numerusform>%Ln Byte</numerusform>
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
        <translation>Null KB</translation>
    </message>
    <message id="prefs.tab.general">
        <source>prefs.tab.general</source>
        <translation>Allgemein</translation>
    </message>
    <message id="prefs.tab.privacy">
        <source>prefs.tab.privacy</source>
        <translation>Datenschutz</translation>
    </message>
    <message id="prefs.tab.storage">
        <source>prefs.tab.storage</source>
        <translation>Speicher</translation>
    </message>
    <message id="prefs.window.title">
        <source>prefs.window.title</source>
        <translation>Einstellungen</translation>
    </message>
    <message id="preview.copy">
        <source>preview.copy</source>
        <translation>Kopieren</translation>
    </message>
    <message id="preview.empty">
        <source>preview.empty</source>
        <translation>Diese Benachrichtigung hat keinen Text.</translation>
    </message>
    <message id="preview.open">
        <source>preview.open</source>
        <translation>%1 öffnen</translation>
    </message>
    <message id="preview.title">
        <source>preview.title</source>
        <translation>Benachrichtigung</translation>
    </message>
    <message id="privacy.block1.text">
        <source>privacy.block1.text</source>
        <translation>Der Hort ist eine Datei in deinem persönlichen Ordner, lesbar nur für dein Benutzerkonto. Nichts daraus wird irgendwohin geschickt.</translation>
    </message>
    <message id="privacy.block1.title">
        <source>privacy.block1.title</source>
        <translation>Auf diesem Computer gespeichert</translation>
    </message>
    <message id="privacy.block2.text">
        <source>privacy.block2.text</source>
        <translation>Benachrichtigungen enthalten, was andere dir geschickt haben. Denk daran, wenn du sie zeigst, exportierst oder kopierst.</translation>
    </message>
    <message id="privacy.block2.title">
        <source>privacy.block2.title</source>
        <translation>Was andere geschrieben haben</translation>
    </message>
    <message id="privacy.block3.text">
        <source>privacy.block3.text</source>
        <translation>Die Datei ist Klartext. Wer dein Konto benutzen oder deine Festplatte lesen kann, kann sie lesen. Verschlüssele deine Festplatte, wenn dir das Sorgen macht. Inhalte zu verbergen ändert, was gezeigt wird, und nicht, was gespeichert ist.</translation>
    </message>
    <message id="privacy.block3.title">
        <source>privacy.block3.title</source>
        <translation>Nicht verschlüsselt</translation>
    </message>
    <message id="privacy.block4.text">
        <source>privacy.block4.text</source>
        <translation>Dateien, die du exportierst, und Backups, die du anlegst, sind ebenfalls Klartext und bleiben, bis du sie löschst.</translation>
    </message>
    <message id="privacy.block4.title">
        <source>privacy.block4.title</source>
        <translation>Exporte und Backups</translation>
    </message>
    <message id="privacy.block5.text">
        <source>privacy.block5.text</source>
        <translation>Du kannst Apps ausschließen, Zeilen löschen, festlegen, wie lange sie aufbewahrt werden, und Einmalcodes nach einigen Stunden löschen lassen.</translation>
    </message>
    <message id="privacy.block5.title">
        <source>privacy.block5.title</source>
        <translation>Du entscheidest</translation>
    </message>
    <message id="privacy.notice.btn.understood">
        <source>privacy.notice.btn.understood</source>
        <translation>Verstanden</translation>
    </message>
    <message id="privacy.notice.reviewNote">
        <source>privacy.notice.reviewNote</source>
        <translation>Du kannst das in den Einstellungen unter „Datenschutz“ noch einmal lesen.</translation>
    </message>
    <message id="privacy.notice.subtitle">
        <source>privacy.notice.subtitle</source>
        <translation>Was gespeichert wird, wo, und wer es lesen kann.</translation>
    </message>
    <message id="privacy.notice.title">
        <source>privacy.notice.title</source>
        <translation>Tessarine und dein Datenschutz</translation>
    </message>
    <message id="progress.percent">
        <source>progress.percent</source>
        <translation>%1 %</translation>
    </message>
    <message id="row.clickToReveal">
        <source>row.clickToReveal</source>
        <translation>Klicken zum Zeigen</translation>
    </message>
    <message id="row.contentHidden">
        <source>row.contentHidden</source>
        <translation>Inhalt verborgen</translation>
    </message>
    <message id="row.deselect">
        <source>row.deselect</source>
        <translation>Abwählen</translation>
    </message>
    <message id="row.pinned">
        <source>row.pinned</source>
        <translation>Angeheftet</translation>
    </message>
    <message id="row.select">
        <source>row.select</source>
        <translation>Auswählen</translation>
    </message>
    <message id="row.singleClickToSelect">
        <source>row.singleClickToSelect</source>
        <translation>Klick wählt aus, Doppelklick öffnet %1</translation>
    </message>
    <message id="scrollBar.horizontal">
        <source>scrollBar.horizontal</source>
        <translation>Waagrechter Rollbalken</translation>
    </message>
    <message id="scrollBar.vertical">
        <source>scrollBar.vertical</source>
        <translation>Senkrechter Rollbalken</translation>
    </message>
    <message id="selection.byApp.help">
        <source>selection.byApp.help</source>
        <translation>Alle Benachrichtigungen einer App zur Auswahl hinzufügen</translation>
    </message>
    <message id="selection.byDate.help">
        <source>selection.byDate.help</source>
        <translation>Alle Benachrichtigungen einiger Tage zur Auswahl hinzufügen</translation>
    </message>
    <message id="selection.cancel">
        <source>selection.cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message id="selection.confirmDelete.btn">
        <source>selection.confirmDelete.btn</source>
        <translation>Löschen</translation>
    </message>
    <message id="selection.confirmDelete.title" numerus="yes">
        <source>selection.confirmDelete.title</source>
        <translation>
            <numerusform>%Ln Benachrichtigung löschen?</numerusform>
            <numerusform>%Ln Benachrichtigungen löschen?</numerusform>
        </translation>
    </message>
    <message id="selection.confirmDeleteAll.message">
        <source>selection.confirmDeleteAll.message</source>
        <translation>Alles im Hort wird gelöscht, auch angeheftete Benachrichtigungen und ältere, die nicht geladen sind. Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message id="selection.confirmDeleteAll.title" numerus="yes">
        <source>selection.confirmDeleteAll.title</source>
        <translation>
            <numerusform>Alle Benachrichtigungen löschen? (%Ln geladen)</numerusform>
            <numerusform>Alle Benachrichtigungen löschen? (%Ln geladen)</numerusform>
        </translation>
    </message>
    <message id="selection.count" numerus="yes">
        <source>selection.count</source>
        <translation>
            <numerusform>%Ln ausgewählt</numerusform>
            <numerusform>%Ln ausgewählt</numerusform>
        </translation>
    </message>
    <message id="selection.deleteAll">
        <source>selection.deleteAll</source>
        <translation>Alles löschen</translation>
    </message>
    <message id="selection.deleteSelected">
        <source>selection.deleteSelected</source>
        <translation>Auswahl löschen …</translation>
    </message>
    <message id="selection.deselectAll">
        <source>selection.deselectAll</source>
        <translation>Nichts auswählen</translation>
    </message>
    <message id="selection.noSelection">
        <source>selection.noSelection</source>
        <translation>Nichts ausgewählt</translation>
    </message>
    <message id="selection.selectAll">
        <source>selection.selectAll</source>
        <translation>Alles auswählen</translation>
    </message>
    <message id="toolbar.app.all">
        <source>toolbar.app.all</source>
        <translation>Alle Apps</translation>
    </message>
    <message id="toolbar.app.label">
        <source>toolbar.app.label</source>
        <translation>App</translation>
    </message>
    <message id="toolbar.delete.help">
        <source>toolbar.delete.help</source>
        <translation>Benachrichtigungen auswählen und löschen</translation>
    </message>
    <message id="toolbar.export.help">
        <source>toolbar.export.help</source>
        <translation>Benachrichtigungen exportieren</translation>
    </message>
    <message id="toolbar.group.byApp">
        <source>toolbar.group.byApp</source>
        <translation>App</translation>
    </message>
    <message id="toolbar.group.byDate">
        <source>toolbar.group.byDate</source>
        <translation>Datum</translation>
    </message>
    <message id="toolbar.group.label">
        <source>toolbar.group.label</source>
        <translation>Gruppen</translation>
    </message>
    <message id="toolbar.group.none">
        <source>toolbar.group.none</source>
        <translation>Keine</translation>
    </message>
    <message id="toolbar.loadOlder">
        <source>toolbar.loadOlder</source>
        <translation>Ältere laden</translation>
    </message>
    <message id="toolbar.loadOlder.help">
        <source>toolbar.loadOlder.help</source>
        <translation>Die nächsten 500 Benachrichtigungen aus dem Hort laden</translation>
    </message>
    <message id="toolbar.notifCount" numerus="yes">
        <source>toolbar.notifCount</source>
        <translation>
            <numerusform>%Ln Eintrag</numerusform>
            <numerusform>%Ln Einträge</numerusform>
        </translation>
    </message>
    <message id="toolbar.notifCount.truncated">
        <source>toolbar.notifCount.truncated</source>
        <translation>%1 von %2</translation>
    </message>
    <message id="toolbar.search.clear">
        <source>toolbar.search.clear</source>
        <translation>Suche leeren</translation>
    </message>
    <message id="toolbar.search.placeholder">
        <source>toolbar.search.placeholder</source>
        <translation>Suchen</translation>
    </message>
    <message id="toolbar.sort.appAZ">
        <source>toolbar.sort.appAZ</source>
        <translation>App A–Z</translation>
    </message>
    <message id="toolbar.sort.label">
        <source>toolbar.sort.label</source>
        <translation>Ordnung</translation>
    </message>
    <message id="toolbar.sort.newest">
        <source>toolbar.sort.newest</source>
        <translation>Neueste</translation>
    </message>
    <message id="toolbar.sort.oldest">
        <source>toolbar.sort.oldest</source>
        <translation>Älteste</translation>
    </message>
    <message id="updates.howTheyCome">
        <source>updates.howTheyCome</source>
        <translation>Diese Ausgabe von Tessarine sucht nicht nach neuen Versionen: Sie wurde ohne Sparkle gebaut, die Bibliothek, die das tut.</translation>
    </message>
    <message id="updates.version">
        <source>updates.version</source>
        <translation>Tessarine %1</translation>
    </message>
    <message id="updates.window.title">
        <source>updates.window.title</source>
        <translation>Tessarine-Updates</translation>
    </message>
    <message id="window.title.fda">
        <source>window.title.fda</source>
        <translation>Festplattenvollzugriff</translation>
    </message>
    <message id="window.title.privacy">
        <source>window.title.privacy</source>
        <translation>Tessarine und dein Datenschutz</translation>
    </message>
</context>
</TS>
