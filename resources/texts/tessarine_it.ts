<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name></name>
    <message id="action.cancel">
        <source>action.cancel</source>
        <translation>Annulla</translation>
    </message>
    <message id="action.close">
        <source>action.close</source>
        <translation>Chiudi</translation>
    </message>
    <message id="action.continue">
        <source>action.continue</source>
        <translation>Continua</translation>
    </message>
    <message id="action.done">
        <source>action.done</source>
        <translation>Fine</translation>
    </message>
    <message id="action.ok">
        <source>action.ok</source>
        <translation>OK</translation>
    </message>
    <message id="banner.deepLink.subtitle">
        <source>banner.deepLink.subtitle</source>
        <translation>L’app mostra il punto di cui parla questa notifica.</translation>
    </message>
    <message id="banner.deepLink.title">
        <source>banner.deepLink.title</source>
        <translation>Aperto in %1</translation>
    </message>
    <message id="banner.notInstalled.subtitle">
        <source>banner.notInstalled.subtitle</source>
        <translation>Non è stata trovata nessuna app di nome %1.</translation>
    </message>
    <message id="banner.notInstalled.title">
        <source>banner.notInstalled.title</source>
        <translation>%1 non è su questo computer</translation>
    </message>
    <message id="banner.notInstalled.unknownSubtitle">
        <source>banner.notInstalled.unknownSubtitle</source>
        <translation>Il sistema la chiama soltanto %1.</translation>
    </message>
    <message id="banner.notInstalled.unknownTitle">
        <source>banner.notInstalled.unknownTitle</source>
        <translation>App sconosciuta</translation>
    </message>
    <message id="contextMenu.copyNotification">
        <source>contextMenu.copyNotification</source>
        <translation>Copia testo</translation>
    </message>
    <message id="contextMenu.deleteAllCount" numerus="yes">
        <source>contextMenu.deleteAllCount</source>
        <translation>
            <numerusform>Elimina %Ln notifica</numerusform>
            <numerusform>Elimina tutte le %Ln notifiche</numerusform>
        </translation>
    </message>
    <message id="contextMenu.deleteAllFrom">
        <source>contextMenu.deleteAllFrom</source>
        <translation>Elimina tutto da %1</translation>
    </message>
    <message id="contextMenu.deleteAllFromDate">
        <source>contextMenu.deleteAllFromDate</source>
        <translation>Elimina tutto di %1</translation>
    </message>
    <message id="contextMenu.deleteThis">
        <source>contextMenu.deleteThis</source>
        <translation>Elimina questa notifica</translation>
    </message>
    <message id="contextMenu.openInApp">
        <source>contextMenu.openInApp</source>
        <translation>Apri %1</translation>
    </message>
    <message id="contextMenu.pinNotification">
        <source>contextMenu.pinNotification</source>
        <translation>Fissa</translation>
    </message>
    <message id="contextMenu.unpinNotification">
        <source>contextMenu.unpinNotification</source>
        <translation>Non fissare più</translation>
    </message>
    <message id="datePopover.footer">
        <source>datePopover.footer</source>
        <translation>Le scelte si sommano: ognuna aggiunge le sue notifiche alla selezione.</translation>
    </message>
    <message id="datePopover.noData">
        <source>datePopover.noData</source>
        <translation>Ancora nessun giorno da scegliere</translation>
    </message>
    <message id="datePopover.quickRanges">
        <source>datePopover.quickRanges</source>
        <translation>Periodi</translation>
    </message>
    <message id="datePopover.specificDays">
        <source>datePopover.specificDays</source>
        <translation>Giorni</translation>
    </message>
    <message id="datePopover.title">
        <source>datePopover.title</source>
        <translation>Seleziona per data</translation>
    </message>
    <message id="datePreset.last30days">
        <source>datePreset.last30days</source>
        <translation>Ultimi 30 giorni</translation>
    </message>
    <message id="datePreset.last7days">
        <source>datePreset.last7days</source>
        <translation>Ultimi 7 giorni</translation>
    </message>
    <message id="datePreset.lastMonth">
        <source>datePreset.lastMonth</source>
        <translation>Mese scorso</translation>
    </message>
    <message id="datePreset.thisMonth">
        <source>datePreset.thisMonth</source>
        <translation>Questo mese</translation>
    </message>
    <message id="datePreset.thisYear">
        <source>datePreset.thisYear</source>
        <translation>Quest’anno</translation>
    </message>
    <message id="datePreset.today">
        <source>datePreset.today</source>
        <translation>Oggi</translation>
    </message>
    <message id="datePreset.yesterday">
        <source>datePreset.yesterday</source>
        <translation>Ieri</translation>
    </message>
    <message id="diag.busy">
        <source>diag.busy</source>
        <translation>In corso</translation>
    </message>
    <message id="diag.db.apps">
        <source>diag.db.apps</source>
        <translation>App</translation>
    </message>
    <message id="diag.db.backup.fail">
        <source>diag.db.backup.fail</source>
        <translation>Backup non riuscito: %1</translation>
    </message>
    <message id="diag.db.backup.panelTitle">
        <source>diag.db.backup.panelTitle</source>
        <translation>Backup della raccolta</translation>
    </message>
    <message id="diag.db.backup.saveBtn">
        <source>diag.db.backup.saveBtn</source>
        <translation>Fai backup</translation>
    </message>
    <message id="diag.db.backup.success">
        <source>diag.db.backup.success</source>
        <translation>Backup salvato in %1</translation>
    </message>
    <message id="diag.db.createBackup">
        <source>diag.db.createBackup</source>
        <translation>Crea backup…</translation>
    </message>
    <message id="diag.db.first">
        <source>diag.db.first</source>
        <translation>Prima</translation>
    </message>
    <message id="diag.db.header">
        <source>diag.db.header</source>
        <translation>Raccolta</translation>
    </message>
    <message id="diag.db.integrity.fail">
        <source>diag.db.integrity.fail</source>
        <translation>La verifica dell’integrità ha trovato problemi: %1</translation>
    </message>
    <message id="diag.db.integrity.pass">
        <source>diag.db.integrity.pass</source>
        <translation>Verifica dell’integrità superata</translation>
    </message>
    <message id="diag.db.last">
        <source>diag.db.last</source>
        <translation>Ultima</translation>
    </message>
    <message id="diag.db.pinned">
        <source>diag.db.pinned</source>
        <translation>Fissate</translation>
    </message>
    <message id="diag.db.records">
        <source>diag.db.records</source>
        <translation>Voci</translation>
    </message>
    <message id="diag.db.refresh.help">
        <source>diag.db.refresh.help</source>
        <translation>Conta di nuovo la raccolta</translation>
    </message>
    <message id="diag.db.size">
        <source>diag.db.size</source>
        <translation>Spazio</translation>
    </message>
    <message id="diag.db.verifyIntegrity">
        <source>diag.db.verifyIntegrity</source>
        <translation>Verifica integrità</translation>
    </message>
    <message id="diag.export.data">
        <source>diag.export.data</source>
        <translation>Esporta dati…</translation>
    </message>
    <message id="diag.level.activity">
        <source>diag.level.activity</source>
        <translation>attività</translation>
    </message>
    <message id="diag.level.info">
        <source>diag.level.info</source>
        <translation>informazione</translation>
    </message>
    <message id="diag.level.success">
        <source>diag.level.success</source>
        <translation>successo</translation>
    </message>
    <message id="diag.level.warning">
        <source>diag.level.warning</source>
        <translation>avviso</translation>
    </message>
    <message id="diag.log.clear">
        <source>diag.log.clear</source>
        <translation>Svuota il registro</translation>
    </message>
    <message id="diag.log.clearFilter">
        <source>diag.log.clearFilter</source>
        <translation>Svuota il filtro</translation>
    </message>
    <message id="diag.log.filtered">
        <source>diag.log.filtered</source>
        <translation>Nessuna riga del registro supera il filtro.</translation>
    </message>
    <message id="diag.log.list">
        <source>diag.log.list</source>
        <translation>Registro</translation>
    </message>
    <message id="diag.log.only">
        <source>diag.log.only</source>
        <translation>Solo %1</translation>
    </message>
    <message id="diag.report.copied">
        <source>diag.report.copied</source>
        <translation>Rapporto copiato negli appunti</translation>
    </message>
    <message id="diag.report.copy">
        <source>diag.report.copy</source>
        <translation>Copia rapporto</translation>
    </message>
    <message id="diag.report.export.fail">
        <source>diag.report.export.fail</source>
        <translation>Non è stato possibile esportare il rapporto: %1</translation>
    </message>
    <message id="diag.report.export.panelTitle">
        <source>diag.report.export.panelTitle</source>
        <translation>Esporta rapporto di diagnostica</translation>
    </message>
    <message id="diag.report.export.saveBtn">
        <source>diag.report.export.saveBtn</source>
        <translation>Esporta</translation>
    </message>
    <message id="diag.report.exportReport">
        <source>diag.report.exportReport</source>
        <translation>Esporta rapporto…</translation>
    </message>
    <message id="diag.report.exported">
        <source>diag.report.exported</source>
        <translation>Rapporto esportato come %1</translation>
    </message>
    <message id="diag.report.includeContent">
        <source>diag.report.includeContent</source>
        <translation>Includi il contenuto delle notifiche nei rapporti esportati</translation>
    </message>
    <message id="diag.report.safeNote">
        <source>diag.report.safeNote</source>
        <translation>Se è disattivato, le righe del registro che citano una notifica ne nominano soltanto l’app. Un rapporto copiato contiene il registro così com’è.</translation>
    </message>
    <message id="excludedApps.confirm.excludeAndDelete">
        <source>excludedApps.confirm.excludeAndDelete</source>
        <translation>Escludi ed elimina</translation>
    </message>
    <message id="excludedApps.confirm.excludeOnly">
        <source>excludedApps.confirm.excludeOnly</source>
        <translation>Escludi soltanto</translation>
    </message>
    <message id="excludedApps.confirm.message">
        <source>excludedApps.confirm.message</source>
        <translation>Le nuove notifiche di %1 non verranno conservate. Puoi anche eliminare tutto ciò che la raccolta ha sotto questo nome.</translation>
    </message>
    <message id="excludedApps.confirm.title">
        <source>excludedApps.confirm.title</source>
        <translation>Escludere %1?</translation>
    </message>
    <message id="excludedApps.empty.subtitle">
        <source>excludedApps.empty.subtitle</source>
        <translation>Un’app compare qui quando è stata conservata una sua notifica.</translation>
    </message>
    <message id="excludedApps.empty.title">
        <source>excludedApps.empty.title</source>
        <translation>Ancora nessuna app</translation>
    </message>
    <message id="excludedApps.footer.count" numerus="yes">
        <source>excludedApps.footer.count</source>
        <translation>
            <numerusform>%Ln app è esclusa</numerusform>
            <numerusform>%Ln app sono escluse</numerusform>
        </translation>
    </message>
    <message id="excludedApps.subtitle">
        <source>excludedApps.subtitle</source>
        <translation>Attiva un’app per non conservare più le sue notifiche.</translation>
    </message>
    <message id="excludedApps.title">
        <source>excludedApps.title</source>
        <translation>App escluse</translation>
    </message>
    <message id="export.close">
        <source>export.close</source>
        <translation>Chiudi</translation>
    </message>
    <message id="export.count" numerus="yes">
        <source>export.count</source>
        <translation>
            <numerusform>%n notifica</numerusform>
            <numerusform>%n notifiche</numerusform>
        </translation>
    </message>
    <message id="export.done">
        <source>export.done</source>
        <translation>Fatto. Ecco il file.</translation>
    </message>
    <message id="export.exportAs">
        <source>export.exportAs</source>
        <translation>Esporta come %1</translation>
    </message>
    <message id="export.exporting">
        <source>export.exporting</source>
        <translation>Esportazione…</translation>
    </message>
    <message id="export.format.csv.desc">
        <source>export.format.csv.desc</source>
        <translation>Una riga per notifica, per i fogli di calcolo.</translation>
    </message>
    <message id="export.format.header">
        <source>export.format.header</source>
        <translation>Formato</translation>
    </message>
    <message id="export.format.pdf.desc">
        <source>export.format.pdf.desc</source>
        <translation>Un rapporto da stampare o inoltrare, con un riepilogo per app.</translation>
    </message>
    <message id="export.format.txt.desc">
        <source>export.format.txt.desc</source>
        <translation>Un testo semplice da leggere, giorno per giorno.</translation>
    </message>
    <message id="export.plaintextWarning">
        <source>export.plaintextWarning</source>
        <translation>Chiunque possa aprire il file può leggerlo. Conservalo in un luogo sicuro.</translation>
    </message>
    <message id="export.privacy.confirmMessage">
        <source>export.privacy.confirmMessage</source>
        <translation>I titoli e i testi che Tessarine nasconde saranno scritti nel file così come sono. Chiunque lo apra può leggerli.</translation>
    </message>
    <message id="export.privacy.confirmTitle">
        <source>export.privacy.confirmTitle</source>
        <translation>Includere i contenuti nascosti?</translation>
    </message>
    <message id="export.privacy.header">
        <source>export.privacy.header</source>
        <translation>Privacy</translation>
    </message>
    <message id="export.privacy.includeHidden">
        <source>export.privacy.includeHidden</source>
        <translation>Includi i contenuti nascosti</translation>
    </message>
    <message id="export.privacy.includeHidden.caption">
        <source>export.privacy.includeHidden.caption</source>
        <translation>Altrimenti titoli e testi diventano “[hidden]”.</translation>
    </message>
    <message id="export.privacy.includeHidden.warning">
        <source>export.privacy.includeHidden.warning</source>
        <translation>Il file mostrerà tutto ciò che Tessarine nasconde.</translation>
    </message>
    <message id="export.privacy.includeReal">
        <source>export.privacy.includeReal</source>
        <translation>Includi</translation>
    </message>
    <message id="export.privacy.keepHidden">
        <source>export.privacy.keepHidden</source>
        <translation>Lascia nascosti</translation>
    </message>
    <message id="export.title">
        <source>export.title</source>
        <translation>Esporta notifiche</translation>
    </message>
    <message id="group.collapse">
        <source>group.collapse</source>
        <translation>Nascondi %1</translation>
    </message>
    <message id="group.expand">
        <source>group.expand</source>
        <translation>Mostra %1</translation>
    </message>
    <message id="help.about.eula.accepted">
        <source>help.about.eula.accepted</source>
        <translation>Hai accettato il contratto al primo avvio.</translation>
    </message>
    <message id="help.about.eula.reviewBtn">
        <source>help.about.eula.reviewBtn</source>
        <translation>Rileggi il contratto</translation>
    </message>
    <message id="help.about.h.acknowledgements">
        <source>help.about.h.acknowledgements</source>
        <translation>Ringraziamenti</translation>
    </message>
    <message id="help.about.h.eula">
        <source>help.about.h.eula</source>
        <translation>Contratto di licenza</translation>
    </message>
    <message id="help.about.sparkle.credit">
        <source>help.about.sparkle.credit</source>
        <translation>Su macOS gli aggiornamenti di Tessarine arrivano con la libreria open source Sparkle. Grazie ai suoi autori.</translation>
    </message>
    <message id="help.about.title">
        <source>help.about.title</source>
        <translation>Informazioni</translation>
    </message>
    <message id="help.diagnostics.h.clear">
        <source>help.diagnostics.h.clear</source>
        <translation>Svuotare e fare rapporti</translation>
    </message>
    <message id="help.diagnostics.h.filtering">
        <source>help.diagnostics.h.filtering</source>
        <translation>Filtri</translation>
    </message>
    <message id="help.diagnostics.h.liveLog">
        <source>help.diagnostics.h.liveLog</source>
        <translation>Registro in tempo reale</translation>
    </message>
    <message id="help.diagnostics.h.statusCards">
        <source>help.diagnostics.h.statusCards</source>
        <translation>Stato</translation>
    </message>
    <message id="help.diagnostics.p.clear">
        <source>help.diagnostics.p.clear</source>
        <translation>Il cestino svuota il registro; la raccolta non viene toccata. Un rapporto per un errore si può copiare o salvare. Quello salvato nomina l’app di una notifica e ne omette il contenuto, se non lo attivi; quello copiato contiene il registro così com’è.</translation>
    </message>
    <message id="help.diagnostics.p.filtering">
        <source>help.diagnostics.p.filtering</source>
        <translation>Fai clic sul nome di una parte per vedere solo le sue righe, e di nuovo per vederle tutte. Il campo di ricerca guarda nei messaggi e nei nomi.</translation>
    </message>
    <message id="help.diagnostics.p.intro">
        <source>help.diagnostics.p.intro</source>
        <translation>Questa finestra mostra Tessarine al lavoro. Fai clic sulla campanella tenendo premuto Opzione per aprirla. Il suo contenuto è solo in memoria e sparisce quando esci da Tessarine.</translation>
    </message>
    <message id="help.diagnostics.p.liveLog">
        <source>help.diagnostics.p.liveLog</source>
        <translation>Ogni riga ha un’ora, la parte del programma che l’ha scritta, un segno per la sua importanza e ciò che è accaduto. La più recente è in alto; si conservano le ultime 200.</translation>
    </message>
    <message id="help.diagnostics.title">
        <source>help.diagnostics.title</source>
        <translation>Diagnostica</translation>
    </message>
    <message id="help.exporting.format.csv.desc">
        <source>help.exporting.format.csv.desc</source>
        <translation>Una riga per notifica: data, ora, app, ID bundle, titolo e testo. Il separatore è il punto e virgola, la codifica UTF-8.</translation>
    </message>
    <message id="help.exporting.format.csv.title">
        <source>help.exporting.format.csv.title</source>
        <translation>CSV</translation>
    </message>
    <message id="help.exporting.format.pdf.desc">
        <source>help.exporting.format.pdf.desc</source>
        <translation>Un rapporto da stampare o inoltrare, con un riepilogo per app.</translation>
    </message>
    <message id="help.exporting.format.pdf.title">
        <source>help.exporting.format.pdf.title</source>
        <translation>PDF Report</translation>
    </message>
    <message id="help.exporting.format.xlsx.desc">
        <source>help.exporting.format.xlsx.desc</source>
        <translation>Non c’è un formato apposito: i programmi di calcolo aprono il file CSV. Una cella contiene esattamente ciò che diceva la notifica, anche se somiglia a una formula.</translation>
    </message>
    <message id="help.exporting.format.xlsx.title">
        <source>help.exporting.format.xlsx.title</source>
        <translation>Fogli di calcolo</translation>
    </message>
    <message id="help.exporting.h.formats">
        <source>help.exporting.h.formats</source>
        <translation>Formati</translation>
    </message>
    <message id="help.exporting.h.naming">
        <source>help.exporting.h.naming</source>
        <translation>Nome e posizione</translation>
    </message>
    <message id="help.exporting.h.numbersExcel">
        <source>help.exporting.h.numbersExcel</source>
        <translation>Numbers ed Excel</translation>
    </message>
    <message id="help.exporting.h.privacy">
        <source>help.exporting.h.privacy</source>
        <translation>Contenuti nascosti</translation>
    </message>
    <message id="help.exporting.p.intro">
        <source>help.exporting.p.intro</source>
        <translation>Il pulsante di esportazione sopra l’elenco scrive in un file ciò che è caricato, in uno di tre formati: Text, CSV o PDF Report. Ricerca, filtro e selezione qui non contano. Dalla finestra di diagnostica un’esportazione contiene le prime 500 notifiche.</translation>
    </message>
    <message id="help.exporting.p.naming">
        <source>help.exporting.p.naming</source>
        <translation>Il nome proposto è Tessarine_ con la data di oggi, per esempio Tessarine_2026-03-03.csv. Scegli tu la cartella. Solo il tuo account utente può leggere il file.</translation>
    </message>
    <message id="help.exporting.p.numbers">
        <source>help.exporting.p.numbers</source>
        <translation>Numbers apre il file CSV con un doppio clic. Se Excel mostra tutto in una colonna, importa il file come testo e scegli il punto e virgola come separatore.</translation>
    </message>
    <message id="help.exporting.p.privacy">
        <source>help.exporting.p.privacy</source>
        <translation>I titoli e i testi che Tessarine nasconde sono scritti come “[hidden]”. Mentre i contenuti di tutte le app sono nascosti, un interruttore permette di includerli, e chiede conferma.</translation>
    </message>
    <message id="help.exporting.title">
        <source>help.exporting.title</source>
        <translation>Esportazione</translation>
    </message>
    <message id="help.find.none">
        <source>help.find.none</source>
        <translation>Nessun risultato</translation>
    </message>
    <message id="help.find.none.detail">
        <source>help.find.none.detail</source>
        <translation>Nessuna sezione dell’aiuto contiene queste parole.</translation>
    </message>
    <message id="help.find.placeholder">
        <source>help.find.placeholder</source>
        <translation>Cerca nell’aiuto</translation>
    </message>
    <message id="help.hoard.contextMenu.0">
        <source>help.hoard.contextMenu.0</source>
        <translation>Copia testo: mette titolo e testo negli appunti.</translation>
    </message>
    <message id="help.hoard.contextMenu.1">
        <source>help.hoard.contextMenu.1</source>
        <translation>Elimina questa notifica: subito, senza domande.</translation>
    </message>
    <message id="help.hoard.contextMenu.2">
        <source>help.hoard.contextMenu.2</source>
        <translation>Elimina tutto da questa app: ogni notifica con lo stesso nome di app, anche quelle non caricate. Subito.</translation>
    </message>
    <message id="help.hoard.contextMenu.3">
        <source>help.hoard.contextMenu.3</source>
        <translation>Elimina tutto di questo giorno: anche ciò che non è caricato. Subito.</translation>
    </message>
    <message id="help.hoard.contextMenu.openInApp">
        <source>help.hoard.contextMenu.openInApp</source>
        <translation>Apri: come un doppio clic.</translation>
    </message>
    <message id="help.hoard.contextMenu.pin">
        <source>help.hoard.contextMenu.pin</source>
        <translation>Fissa, o Non fissare più: una notifica fissata è sempre caricata. Questo non la protegge dall’eliminazione.</translation>
    </message>
    <message id="help.hoard.h.clicking">
        <source>help.hoard.h.clicking</source>
        <translation>A che cosa porta un doppio clic</translation>
    </message>
    <message id="help.hoard.h.contextMenu">
        <source>help.hoard.h.contextMenu</source>
        <translation>Il menu di una riga</translation>
    </message>
    <message id="help.hoard.h.interactions">
        <source>help.hoard.h.interactions</source>
        <translation>Mouse e tastiera</translation>
    </message>
    <message id="help.hoard.h.rows">
        <source>help.hoard.h.rows</source>
        <translation>Che cosa mostra una riga</translation>
    </message>
    <message id="help.hoard.p.interaction.click">
        <source>help.hoard.p.interaction.click</source>
        <translation>Clic: evidenzia la riga. Se il contenuto è nascosto, il primo clic lo mostra.</translation>
    </message>
    <message id="help.hoard.p.interaction.cmdC">
        <source>help.hoard.p.interaction.cmdC</source>
        <translation>Comando-C: copia titolo e testo della notifica evidenziata.</translation>
    </message>
    <message id="help.hoard.p.interaction.doubleClick">
        <source>help.hoard.p.interaction.doubleClick</source>
        <translation>Doppio clic: apre l’app che ha inviato la notifica.</translation>
    </message>
    <message id="help.hoard.p.interaction.esc">
        <source>help.hoard.p.interaction.esc</source>
        <translation>Esc: toglie l’evidenziazione.</translation>
    </message>
    <message id="help.hoard.p.interaction.space">
        <source>help.hoard.p.interaction.space</source>
        <translation>Spazio: mostra per intero la notifica evidenziata, e la richiude.</translation>
    </message>
    <message id="help.hoard.p.rows">
        <source>help.hoard.p.rows</source>
        <translation>Ogni riga ha l’icona e il nome dell’app, il titolo, il testo e l’ora di una notifica. Una puntina indica una riga fissata, un lucchetto un contenuto nascosto. Le righe fissate restano tra le altre, alla loro ora; vengono caricate per prime, per quanto vecchie siano.</translation>
    </message>
    <message id="help.hoard.title">
        <source>help.hoard.title</source>
        <translation>La raccolta</translation>
    </message>
    <message id="help.howItWorks.h.layersTogether">
        <source>help.howItWorks.h.layersTogether</source>
        <translation>Che cosa cattura ogni via</translation>
    </message>
    <message id="help.howItWorks.h.localStorage">
        <source>help.howItWorks.h.localStorage</source>
        <translation>Dov’è la raccolta</translation>
    </message>
    <message id="help.howItWorks.h.sleepWake">
        <source>help.howItWorks.h.sleepWake</source>
        <translation>Stop e riattivazione</translation>
    </message>
    <message id="help.howItWorks.h.threeLayers">
        <source>help.howItWorks.h.threeLayers</source>
        <translation>Tre vie per una notifica</translation>
    </message>
    <message id="help.howItWorks.layer.ax.desc">
        <source>help.howItWorks.layer.ax.desc</source>
        <translation>Tramite Accessibilità, Tessarine legge ogni banner dallo schermo, al massimo una volta al secondo. È la via più rapida e non richiede accesso a file.</translation>
    </message>
    <message id="help.howItWorks.layer.ax.title">
        <source>help.howItWorks.layer.ax.title</source>
        <translation>Banner</translation>
    </message>
    <message id="help.howItWorks.layer.legacy.desc">
        <source>help.howItWorks.layer.legacy.desc</source>
        <translation>Le versioni meno recenti di macOS tenevano le notifiche in un altro file. Se c’è ed è leggibile, Tessarine lo legge all’avvio e a ogni scrittura.</translation>
    </message>
    <message id="help.howItWorks.layer.legacy.title">
        <source>help.howItWorks.layer.legacy.title</source>
        <translation>Il database dei sistemi meno recenti</translation>
    </message>
    <message id="help.howItWorks.layer.usernoted.desc">
        <source>help.howItWorks.layer.usernoted.desc</source>
        <translation>Con Accesso completo al disco, Tessarine legge il database in cui macOS tiene le notifiche recenti: all’avvio, a ogni scrittura e ogni 30 secondi. Così trova anche ciò che non è mai apparso come banner.</translation>
    </message>
    <message id="help.howItWorks.layer.usernoted.title">
        <source>help.howItWorks.layer.usernoted.title</source>
        <translation>Il database del sistema</translation>
    </message>
    <message id="help.howItWorks.p.sleep">
        <source>help.howItWorks.p.sleep</source>
        <translation>Prima che il computer vada in stop, Tessarine smette di osservare i banner. Due secondi dopo la riattivazione ricomincia, e la lettura successiva del database porta ciò che è arrivato nel frattempo.</translation>
    </message>
    <message id="help.howItWorks.p.storage">
        <source>help.howItWorks.p.storage</source>
        <translation>Tutto è in un solo file sul tuo Mac, ~/Library/Application Support/Tessarine/hoard.db, che solo il tuo account utente può leggere. Tessarine non ha né server né account e non invia le tue notifiche a nessuno.</translation>
    </message>
    <message id="help.howItWorks.p1">
        <source>help.howItWorks.p1</source>
        <translation>Il sistema dimentica le notifiche in pochi giorni. Tessarine copia ognuna in un archivio suo, la raccolta, dove resta finché non la elimini. Sta nella barra dei menu e lavora finché è in esecuzione.</translation>
    </message>
    <message id="help.howItWorks.title">
        <source>help.howItWorks.title</source>
        <translation>Come funziona</translation>
    </message>
    <message id="help.iphone.h.howToEnable">
        <source>help.iphone.h.howToEnable</source>
        <translation>Sull’iPhone, per ogni app</translation>
    </message>
    <message id="help.iphone.h.iphoneSettings">
        <source>help.iphone.h.iphoneSettings</source>
        <translation>Quando non arriva nulla</translation>
    </message>
    <message id="help.iphone.h.nativeMac">
        <source>help.iphone.h.nativeMac</source>
        <translation>App sul Mac e sull’iPhone</translation>
    </message>
    <message id="help.iphone.h.requirements">
        <source>help.iphone.h.requirements</source>
        <translation>Che cosa occorre</translation>
    </message>
    <message id="help.iphone.h.routing">
        <source>help.iphone.h.routing</source>
        <translation>Da dove vengono</translation>
    </message>
    <message id="help.iphone.h.solution">
        <source>help.iphone.h.solution</source>
        <translation>Duplicazione iPhone</translation>
    </message>
    <message id="help.iphone.p.nativeMac">
        <source>help.iphone.p.nativeMac</source>
        <translation>Tessarine vede ciò che questo Mac mostra. Un’app in esecuzione sul Mac annuncia qui, e viene catturata.</translation>
    </message>
    <message id="help.iphone.p.nativeMac2">
        <source>help.iphone.p.nativeMac2</source>
        <translation>Ciò che mostra solo l’iPhone non raggiunge mai il Mac e non può essere catturato.</translation>
    </message>
    <message id="help.iphone.p.routing">
        <source>help.iphone.p.routing</source>
        <translation>Una notifica duplicata ha il nome dell’app dell’iPhone. Se quell’app non è sul Mac, un doppio clic non può aprirla e lo dice.</translation>
    </message>
    <message id="help.iphone.p.solution">
        <source>help.iphone.p.solution</source>
        <translation>Con Duplicazione iPhone il Mac mostra come proprie le notifiche dell’iPhone. Tessarine le cattura allora come tutte le altre.</translation>
    </message>
    <message id="help.iphone.req.appleId.desc">
        <source>help.iphone.req.appleId.desc</source>
        <translation>Mac e iPhone usano lo stesso account, con autenticazione a due fattori.</translation>
    </message>
    <message id="help.iphone.req.appleId.title">
        <source>help.iphone.req.appleId.title</source>
        <translation>Lo stesso account Apple</translation>
    </message>
    <message id="help.iphone.req.ios18.desc">
        <source>help.iphone.req.ios18.desc</source>
        <translation>I sistemi meno recenti non hanno Duplicazione iPhone.</translation>
    </message>
    <message id="help.iphone.req.ios18.title">
        <source>help.iphone.req.ios18.title</source>
        <translation>iOS 18 e macOS 15, o successivi</translation>
    </message>
    <message id="help.iphone.req.notifs.desc">
        <source>help.iphone.req.notifs.desc</source>
        <translation>In Impostazioni di Sistema › Notifiche sono consentite le notifiche da iPhone.</translation>
    </message>
    <message id="help.iphone.req.notifs.title">
        <source>help.iphone.req.notifs.title</source>
        <translation>Notifiche da iPhone</translation>
    </message>
    <message id="help.iphone.req.wifi.desc">
        <source>help.iphone.req.wifi.desc</source>
        <translation>Entrambi sono attivi, su entrambi i dispositivi, che sono vicini tra loro.</translation>
    </message>
    <message id="help.iphone.req.wifi.title">
        <source>help.iphone.req.wifi.title</source>
        <translation>Wi-Fi e Bluetooth</translation>
    </message>
    <message id="help.iphone.title">
        <source>help.iphone.title</source>
        <translation>iPhone</translation>
    </message>
    <message id="help.iphone.walk.app.label">
        <source>help.iphone.walk.app.label</source>
        <translation>Tocca l’app di cui vuoi le notifiche.</translation>
    </message>
    <message id="help.iphone.walk.app.screen">
        <source>help.iphone.walk.app.screen</source>
        <translation>L’app</translation>
    </message>
    <message id="help.iphone.walk.hoard.label">
        <source>help.iphone.walk.hoard.label</source>
        <translation>La prossima notifica appare sul Mac e arriva nella raccolta.</translation>
    </message>
    <message id="help.iphone.walk.hoard.screen">
        <source>help.iphone.walk.hoard.screen</source>
        <translation>Sul Mac</translation>
    </message>
    <message id="help.iphone.walk.next">
        <source>help.iphone.walk.next</source>
        <translation>Passo successivo</translation>
    </message>
    <message id="help.iphone.walk.notifications.label">
        <source>help.iphone.walk.notifications.label</source>
        <translation>Tocca Notifiche.</translation>
    </message>
    <message id="help.iphone.walk.notifications.screen">
        <source>help.iphone.walk.notifications.screen</source>
        <translation>Notifiche</translation>
    </message>
    <message id="help.iphone.walk.pause">
        <source>help.iphone.walk.pause</source>
        <translation>Pausa</translation>
    </message>
    <message id="help.iphone.walk.play">
        <source>help.iphone.walk.play</source>
        <translation>Riproduci dal primo passo</translation>
    </message>
    <message id="help.iphone.walk.previous">
        <source>help.iphone.walk.previous</source>
        <translation>Passo precedente</translation>
    </message>
    <message id="help.iphone.walk.settings.label">
        <source>help.iphone.walk.settings.label</source>
        <translation>Apri Impostazioni sull’iPhone.</translation>
    </message>
    <message id="help.iphone.walk.settings.screen">
        <source>help.iphone.walk.settings.screen</source>
        <translation>Impostazioni</translation>
    </message>
    <message id="help.iphone.walk.showOnMac.label">
        <source>help.iphone.walk.showOnMac.label</source>
        <translation>Attiva “Mostra sul Mac”.</translation>
    </message>
    <message id="help.iphone.walk.showOnMac.screen">
        <source>help.iphone.walk.showOnMac.screen</source>
        <translation>Mostra sul Mac</translation>
    </message>
    <message id="help.lim.30entries.desc">
        <source>help.lim.30entries.desc</source>
        <translation>All’avvio Tessarine prende tutto ciò che il database del sistema ha ancora, al primo avvio fino a 30 giorni indietro. Il sistema stesso elimina presto; spesso restano circa 30 voci.</translation>
    </message>
    <message id="help.lim.30entries.title">
        <source>help.lim.30entries.title</source>
        <translation>Il sistema conserva poco</translation>
    </message>
    <message id="help.lim.30entries.workaround">
        <source>help.lim.30entries.workaround</source>
        <translation>Lascia Tessarine in esecuzione.</translation>
    </message>
    <message id="help.lim.appStore.desc">
        <source>help.lim.appStore.desc</source>
        <translation>Le app dell’App Store non possono osservarne altre tramite Accessibilità.</translation>
    </message>
    <message id="help.lim.appStore.title">
        <source>help.lim.appStore.title</source>
        <translation>Non nell’App Store</translation>
    </message>
    <message id="help.lim.appStore.workaround">
        <source>help.lim.appStore.workaround</source>
        <translation>Prendi Tessarine e gli aggiornamenti da chi lo fa.</translation>
    </message>
    <message id="help.lim.calendar.desc">
        <source>help.lim.calendar.desc</source>
        <translation>Il promemoria di un calendario sta all’ora del suo banner, non dell’evento. “Domani alle 9:30” resta nel testo.</translation>
    </message>
    <message id="help.lim.calendar.title">
        <source>help.lim.calendar.title</source>
        <translation>Ore degli eventi</translation>
    </message>
    <message id="help.lim.calendar.workaround">
        <source>help.lim.calendar.workaround</source>
        <translation>Cerca il giorno o l’evento nel testo.</translation>
    </message>
    <message id="help.lim.exportPlain.desc">
        <source>help.lim.exportPlain.desc</source>
        <translation>Nessuna esportazione ha una password.</translation>
    </message>
    <message id="help.lim.exportPlain.title">
        <source>help.lim.exportPlain.title</source>
        <translation>Le esportazioni sono file in chiaro</translation>
    </message>
    <message id="help.lim.exportPlain.workaround">
        <source>help.lim.exportPlain.workaround</source>
        <translation>Tieni le esportazioni su un disco cifrato ed elimina quelle che non ti servono più.</translation>
    </message>
    <message id="help.lim.focus.desc">
        <source>help.lim.focus.desc</source>
        <translation>Mentre una full immersion trattiene i banner, la via dei banner non vede nulla.</translation>
    </message>
    <message id="help.lim.focus.title">
        <source>help.lim.focus.title</source>
        <translation>Full immersion</translation>
    </message>
    <message id="help.lim.focus.workaround">
        <source>help.lim.focus.workaround</source>
        <translation>Concedi Accesso completo al disco.</translation>
    </message>
    <message id="help.lim.iphoneOff.desc">
        <source>help.lim.iphoneOff.desc</source>
        <translation>Un iPhone spento o lontano non duplica nulla.</translation>
    </message>
    <message id="help.lim.iphoneOff.title">
        <source>help.lim.iphoneOff.title</source>
        <translation>L’iPhone deve essere acceso</translation>
    </message>
    <message id="help.lim.iphoneOff.workaround">
        <source>help.lim.iphoneOff.workaround</source>
        <translation>Tienilo vicino al Mac, e carico.</translation>
    </message>
    <message id="help.lim.mirroringSetup.desc">
        <source>help.lim.mirroringSetup.desc</source>
        <translation>Un’app con “Mostra sul Mac” disattivato resta sull’iPhone.</translation>
    </message>
    <message id="help.lim.mirroringSetup.title">
        <source>help.lim.mirroringSetup.title</source>
        <translation>La duplicazione si imposta app per app</translation>
    </message>
    <message id="help.lim.mirroringSetup.workaround">
        <source>help.lim.mirroringSetup.workaround</source>
        <translation>Attiva l’interruttore nelle impostazioni dell’iPhone.</translation>
    </message>
    <message id="help.lim.nativeMacApp.desc">
        <source>help.lim.nativeMacApp.desc</source>
        <translation>Le notifiche che mostra solo l’iPhone non vengono mai catturate.</translation>
    </message>
    <message id="help.lim.nativeMacApp.title">
        <source>help.lim.nativeMacApp.title</source>
        <translation>Solo ciò che raggiunge il Mac</translation>
    </message>
    <message id="help.lim.nativeMacApp.workaround">
        <source>help.lim.nativeMacApp.workaround</source>
        <translation>Usa Duplicazione iPhone, o la versione dell’app per Mac.</translation>
    </message>
    <message id="help.lim.network.desc">
        <source>help.lim.network.desc</source>
        <translation>Senza di essi nulla viene duplicato, e Tessarine non può sapere che cosa manca.</translation>
    </message>
    <message id="help.lim.network.title">
        <source>help.lim.network.title</source>
        <translation>Wi-Fi e Bluetooth</translation>
    </message>
    <message id="help.lim.network.workaround">
        <source>help.lim.network.workaround</source>
        <translation>Lasciali attivi entrambi, su entrambi i dispositivi.</translation>
    </message>
    <message id="help.lim.notRunning.desc">
        <source>help.lim.notRunning.desc</source>
        <translation>Ciò che arriva mentre Tessarine non è in esecuzione si può prendere solo dal database del sistema, e solo con Accesso completo al disco.</translation>
    </message>
    <message id="help.lim.notRunning.title">
        <source>help.lim.notRunning.title</source>
        <translation>Se non è in esecuzione non vede nulla</translation>
    </message>
    <message id="help.lim.notRunning.workaround">
        <source>help.lim.notRunning.workaround</source>
        <translation>Avvia Tessarine al login e concedi Accesso completo al disco.</translation>
    </message>
    <message id="help.lim.otpForever.desc">
        <source>help.lim.otpForever.desc</source>
        <translation>I codici monouso sono conservati come tutto il resto, se non scegli altrimenti. Anche allora spariscono solo a un avvio.</translation>
    </message>
    <message id="help.lim.otpForever.title">
        <source>help.lim.otpForever.title</source>
        <translation>I codici restano</translation>
    </message>
    <message id="help.lim.otpForever.workaround">
        <source>help.lim.otpForever.workaround</source>
        <translation>Scegli un tempo in Preferenze › Privacy, e ogni tanto riavvia Tessarine.</translation>
    </message>
    <message id="help.lim.plaintext.desc">
        <source>help.lim.plaintext.desc</source>
        <translation>Le notifiche sono conservate come sono arrivate, senza cifratura.</translation>
    </message>
    <message id="help.lim.plaintext.title">
        <source>help.lim.plaintext.title</source>
        <translation>La raccolta è testo in chiaro</translation>
    </message>
    <message id="help.lim.plaintext.workaround">
        <source>help.lim.plaintext.workaround</source>
        <translation>Attiva FileVault.</translation>
    </message>
    <message id="help.lim.privacyGlobal.desc">
        <source>help.lim.privacyGlobal.desc</source>
        <translation>L’interruttore per i contenuti nascosti vale per tutte le app.</translation>
    </message>
    <message id="help.lim.privacyGlobal.title">
        <source>help.lim.privacyGlobal.title</source>
        <translation>Nascosto tutto o nulla</translation>
    </message>
    <message id="help.lim.privacyGlobal.workaround">
        <source>help.lim.privacyGlobal.workaround</source>
        <translation>Escludi un’app le cui notifiche non vuoi affatto conservare.</translation>
    </message>
    <message id="help.lim.python.desc">
        <source>help.lim.python.desc</source>
        <translation>Tessarine non può essere comandato da Python o da altri script.</translation>
    </message>
    <message id="help.lim.python.title">
        <source>help.lim.python.title</source>
        <translation>Nessun comando per script</translation>
    </message>
    <message id="help.lim.python.workaround">
        <source>help.lim.python.workaround</source>
        <translation>Fai leggere agli script un file CSV esportato o un backup, che è un database SQLite con la tabella notifications.</translation>
    </message>
    <message id="help.lim.sameAppleId.desc">
        <source>help.lim.sameAppleId.desc</source>
        <translation>Mac e iPhone di account diversi non si possono collegare.</translation>
    </message>
    <message id="help.lim.sameAppleId.title">
        <source>help.lim.sameAppleId.title</source>
        <translation>Un solo account</translation>
    </message>
    <message id="help.lim.sameAppleId.workaround">
        <source>help.lim.sameAppleId.workaround</source>
        <translation>Accedi allo stesso account Apple su entrambi.</translation>
    </message>
    <message id="help.lim.silent.desc">
        <source>help.lim.silent.desc</source>
        <translation>Una notifica senza banner è solo nel database del sistema.</translation>
    </message>
    <message id="help.lim.silent.title">
        <source>help.lim.silent.title</source>
        <translation>Notifiche silenziose</translation>
    </message>
    <message id="help.lim.silent.workaround">
        <source>help.lim.silent.workaround</source>
        <translation>Concedi Accesso completo al disco, o imposta i banner per quell’app.</translation>
    </message>
    <message id="help.lim.tahoe.desc">
        <source>help.lim.tahoe.desc</source>
        <translation>Ogni macOS disegna i banner a modo suo. Se uno li disegna diversamente, i testi possono mancare o essere confusi.</translation>
    </message>
    <message id="help.lim.tahoe.title">
        <source>help.lim.tahoe.title</source>
        <translation>macOS 26 e successivi</translation>
    </message>
    <message id="help.lim.tahoe.workaround">
        <source>help.lim.tahoe.workaround</source>
        <translation>Dopo un aggiornamento del sistema guarda nella finestra di diagnostica.</translation>
    </message>
    <message id="help.lim.timestamps.desc">
        <source>help.lim.timestamps.desc</source>
        <translation>Un banner mostra un’età come “5m ago”, o nulla. L’ora ne viene dedotta e può sbagliare di un minuto. Su un Mac che non è in inglese è l’ora in cui il banner è stato visto.</translation>
    </message>
    <message id="help.lim.timestamps.title">
        <source>help.lim.timestamps.title</source>
        <translation>Ore dei banner</translation>
    </message>
    <message id="help.lim.timestamps.workaround">
        <source>help.lim.timestamps.workaround</source>
        <translation>Con Accesso completo al disco c’è una seconda riga con l’ora esatta.</translation>
    </message>
    <message id="help.lim.uiLimit.desc">
        <source>help.lim.uiLimit.desc</source>
        <translation>Ricerca, filtro e selezione vedono solo ciò che è caricato. Dopo ogni cattura l’elenco torna alle 500 più recenti.</translation>
    </message>
    <message id="help.lim.uiLimit.title">
        <source>help.lim.uiLimit.title</source>
        <translation>L’elenco comincia con 500</translation>
    </message>
    <message id="help.lim.uiLimit.workaround">
        <source>help.lim.uiLimit.workaround</source>
        <translation>Premi “Carica meno recenti” finché l’elenco va abbastanza indietro.</translation>
    </message>
    <message id="help.lim.usernoted.desc">
        <source>help.lim.usernoted.desc</source>
        <translation>Una nuova versione di macOS può cambiarlo. Allora questa via non trova nulla finché Tessarine non conosce la nuova forma.</translation>
    </message>
    <message id="help.lim.usernoted.title">
        <source>help.lim.usernoted.title</source>
        <translation>Il database del sistema non è documentato</translation>
    </message>
    <message id="help.lim.usernoted.workaround">
        <source>help.lim.usernoted.workaround</source>
        <translation>I banner vengono catturati lo stesso.</translation>
    </message>
    <message id="help.lim.walBackup.desc">
        <source>help.lim.walBackup.desc</source>
        <translation>SQLite scrive prima in hoard.db-wal, accanto alla raccolta. Chi copia il solo hoard.db, come fa il backup delle preferenze, può perdere ciò che è arrivato per ultimo.</translation>
    </message>
    <message id="help.lim.walBackup.title">
        <source>help.lim.walBackup.title</source>
        <translation>A un file copiato possono mancare le ultime righe</translation>
    </message>
    <message id="help.lim.walBackup.workaround">
        <source>help.lim.walBackup.workaround</source>
        <translation>Usa il backup della finestra di diagnostica.</translation>
    </message>
    <message id="help.limitations.h.capture">
        <source>help.limitations.h.capture</source>
        <translation>Cattura</translation>
    </message>
    <message id="help.limitations.h.hoard">
        <source>help.limitations.h.hoard</source>
        <translation>Raccolta</translation>
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
        <translation>Sistema</translation>
    </message>
    <message id="help.limitations.p.disclaimer">
        <source>help.limitations.p.disclaimer</source>
        <translation>Tessarine legge ciò che il sistema mostra e conserva. Non può promettere di cogliere ogni notifica.</translation>
    </message>
    <message id="help.limitations.p.eula">
        <source>help.limitations.p.eula</source>
        <translation>Non farne l’unica traccia di qualcosa di importante. Il contratto dice di più.</translation>
    </message>
    <message id="help.limitations.title">
        <source>help.limitations.title</source>
        <translation>Limiti</translation>
    </message>
    <message id="help.macos.h.accessibility">
        <source>help.macos.h.accessibility</source>
        <translation>Accessibilità</translation>
    </message>
    <message id="help.macos.h.alertStyle">
        <source>help.macos.h.alertStyle</source>
        <translation>Stile degli avvisi</translation>
    </message>
    <message id="help.macos.h.focus">
        <source>help.macos.h.focus</source>
        <translation>Full immersion</translation>
    </message>
    <message id="help.macos.h.timeMachine">
        <source>help.macos.h.timeMachine</source>
        <translation>Time Machine</translation>
    </message>
    <message id="help.macos.p.accessibility">
        <source>help.macos.p.accessibility</source>
        <translation>Tessarine ha bisogno di questo permesso per leggere i banner dallo schermo.</translation>
    </message>
    <message id="help.macos.p.accessibility2">
        <source>help.macos.p.accessibility2</source>
        <translation>Tessarine lo usa per leggere i banner delle notifiche e per nient’altro. Una volta concesso, vale senza riavvio.</translation>
    </message>
    <message id="help.macos.p.alertReco">
        <source>help.macos.p.alertReco</source>
        <translation>Consigliato: banner o avvisi per ogni app che ti importa. Vengono catturati anche senza Accesso completo al disco.</translation>
    </message>
    <message id="help.macos.p.alertStyle">
        <source>help.macos.p.alertStyle</source>
        <translation>Impostazioni di Sistema › Notifiche stabilisce per ogni app come annuncia. Che cosa significa per la cattura:</translation>
    </message>
    <message id="help.macos.p.focus">
        <source>help.macos.p.focus</source>
        <translation>Durante una full immersion macOS può non mostrare banner. Ciò che trattiene si trova allora solo nel database del sistema, che richiede Accesso completo al disco.</translation>
    </message>
    <message id="help.macos.p.timeMachine">
        <source>help.macos.p.timeMachine</source>
        <translation>La raccolta è nella tua cartella Libreria, perciò Time Machine la copia. Un file in uso può essere copiato a metà di una modifica; un backup fatto con Tessarine è più sicuro.</translation>
    </message>
    <message id="help.macos.title">
        <source>help.macos.title</source>
        <translation>Impostazioni di macOS</translation>
    </message>
    <message id="help.menuBar.h.badge">
        <source>help.menuBar.h.badge</source>
        <translation>Il numero accanto alla campanella</translation>
    </message>
    <message id="help.menuBar.h.leftClick">
        <source>help.menuBar.h.leftClick</source>
        <translation>Il menu</translation>
    </message>
    <message id="help.menuBar.h.optionClick">
        <source>help.menuBar.h.optionClick</source>
        <translation>Diagnostica</translation>
    </message>
    <message id="help.menuBar.p.badge">
        <source>help.menuBar.p.badge</source>
        <translation>Conta ciò che è arrivato da quando hai aperto la raccolta, fino a 99; oltre si legge 99+. Conta nell’elenco delle 500 più recenti, perciò con l’elenco pieno può restare indietro.</translation>
    </message>
    <message id="help.menuBar.p.intro">
        <source>help.menuBar.p.intro</source>
        <translation>La campanella nella barra dei menu è il posto in cui trovi sempre Tessarine.</translation>
    </message>
    <message id="help.menuBar.p.optionClick">
        <source>help.menuBar.p.optionClick</source>
        <translation>Fai clic sulla campanella tenendo premuto Opzione per aprire la finestra di diagnostica.</translation>
    </message>
    <message id="help.menuBar.row.checkUpdates">
        <source>help.menuBar.row.checkUpdates</source>
        <translation>Verifica aggiornamenti</translation>
    </message>
    <message id="help.menuBar.row.checkUpdates.action">
        <source>help.menuBar.row.checkUpdates.action</source>
        <translation>Cerca una versione più recente.</translation>
    </message>
    <message id="help.menuBar.row.help">
        <source>help.menuBar.row.help</source>
        <translation>Aiuto di Tessarine</translation>
    </message>
    <message id="help.menuBar.row.help.action">
        <source>help.menuBar.row.help.action</source>
        <translation>Apre una finestra come questa.</translation>
    </message>
    <message id="help.menuBar.row.launchAtLogin">
        <source>help.menuBar.row.launchAtLogin</source>
        <translation>Avvia al login</translation>
    </message>
    <message id="help.menuBar.row.launchAtLogin.action">
        <source>help.menuBar.row.launchAtLogin.action</source>
        <translation>Lo attiva o lo disattiva. Un segno di spunta mostra che è attivo.</translation>
    </message>
    <message id="help.menuBar.row.openHoard">
        <source>help.menuBar.row.openHoard</source>
        <translation>Apri la raccolta</translation>
    </message>
    <message id="help.menuBar.row.openHoard.action">
        <source>help.menuBar.row.openHoard.action</source>
        <translation>Mostra la finestra con le notifiche e azzera il numero.</translation>
    </message>
    <message id="help.menuBar.row.preferences">
        <source>help.menuBar.row.preferences</source>
        <translation>Preferenze</translation>
    </message>
    <message id="help.menuBar.row.preferences.action">
        <source>help.menuBar.row.preferences.action</source>
        <translation>Apre le impostazioni.</translation>
    </message>
    <message id="help.menuBar.row.quit">
        <source>help.menuBar.row.quit</source>
        <translation>Esci da Tessarine</translation>
    </message>
    <message id="help.menuBar.row.quit.action">
        <source>help.menuBar.row.quit.action</source>
        <translation>Chiude il programma, e con esso la cattura.</translation>
    </message>
    <message id="help.menuBar.row.welcomeGuide">
        <source>help.menuBar.row.welcomeGuide</source>
        <translation>Guida di benvenuto</translation>
    </message>
    <message id="help.menuBar.row.welcomeGuide.action">
        <source>help.menuBar.row.welcomeGuide.action</source>
        <translation>Mostra di nuovo la guida del primo avvio.</translation>
    </message>
    <message id="help.menuBar.table.header.action">
        <source>help.menuBar.table.header.action</source>
        <translation>Che cosa fa</translation>
    </message>
    <message id="help.menuBar.table.header.item">
        <source>help.menuBar.table.header.item</source>
        <translation>Voce</translation>
    </message>
    <message id="help.menuBar.title">
        <source>help.menuBar.title</source>
        <translation>Barra dei menu</translation>
    </message>
    <message id="help.page">
        <source>help.page</source>
        <translation>Pagina</translation>
    </message>
    <message id="help.prefs.excludeDelete.desc">
        <source>help.prefs.excludeDelete.desc</source>
        <translation>Elimina anche ciò che la raccolta ha sotto il nome di questa app.</translation>
    </message>
    <message id="help.prefs.excludeDelete.title">
        <source>help.prefs.excludeDelete.title</source>
        <translation>Escludi ed elimina</translation>
    </message>
    <message id="help.prefs.excludeOnly.desc">
        <source>help.prefs.excludeOnly.desc</source>
        <translation>Le nuove notifiche non vengono conservate; ciò che è nella raccolta resta.</translation>
    </message>
    <message id="help.prefs.excludeOnly.title">
        <source>help.prefs.excludeOnly.title</source>
        <translation>Escludi soltanto</translation>
    </message>
    <message id="help.prefs.h.excludedApps">
        <source>help.prefs.h.excludedApps</source>
        <translation>App escluse</translation>
    </message>
    <message id="help.prefs.h.hoard">
        <source>help.prefs.h.hoard</source>
        <translation>Il file della raccolta</translation>
    </message>
    <message id="help.prefs.h.privacy">
        <source>help.prefs.h.privacy</source>
        <translation>Privacy</translation>
    </message>
    <message id="help.prefs.h.retention">
        <source>help.prefs.h.retention</source>
        <translation>Per quanto tempo conservare</translation>
    </message>
    <message id="help.prefs.h.startup">
        <source>help.prefs.h.startup</source>
        <translation>Avvio</translation>
    </message>
    <message id="help.prefs.p.backup">
        <source>help.prefs.p.backup</source>
        <translation>Il backup delle preferenze copia il file dove vuoi. Nella copia possono mancare le notifiche più recenti, e non è cifrata. Il backup della finestra di diagnostica scrive prima tutto nel file.</translation>
    </message>
    <message id="help.prefs.p.excludedApps.intro">
        <source>help.prefs.p.excludedApps.intro</source>
        <translation>Le notifiche di un’app esclusa non vengono conservate.</translation>
    </message>
    <message id="help.prefs.p.excludedApps.manage">
        <source>help.prefs.p.excludedApps.manage</source>
        <translation>Generali › App escluse › Gestisci elenca ogni app che ha una notifica nella raccolta. Attivandone una, ti viene chiesto che cosa fare di ciò che c’è già:</translation>
    </message>
    <message id="help.prefs.p.excludedApps.note">
        <source>help.prefs.p.excludedApps.note</source>
        <translation>Un’app è riconosciuta dal suo identificativo. La via dei banner conosce solo il nome dell’app, perciò un’app può comparire due volte; escludile entrambe.</translation>
    </message>
    <message id="help.prefs.p.hoard">
        <source>help.prefs.p.hoard</source>
        <translation>Archiviazione mostra quanto è grande il file.</translation>
    </message>
    <message id="help.prefs.p.intro">
        <source>help.prefs.p.intro</source>
        <translation>Le preferenze sono nel menu della campanella. Ogni modifica viene salvata subito.</translation>
    </message>
    <message id="help.prefs.p.otp">
        <source>help.prefs.p.otp</source>
        <translation>L’eliminazione dei codici dopo 1, 4 o 24 ore elimina, a ogni avvio, le notifiche che possono contenere un codice monouso.</translation>
    </message>
    <message id="help.prefs.p.privacyHide">
        <source>help.prefs.p.privacyHide</source>
        <translation>“Nascondi contenuti” maschera titoli e testi di tutte le app nella finestra e nelle esportazioni. Vengono conservati lo stesso.</translation>
    </message>
    <message id="help.prefs.p.retention">
        <source>help.prefs.p.retention</source>
        <translation>Archiviazione › Conserva le notifiche. Ciò che è troppo vecchio viene eliminato al prossimo avvio di Tessarine, anche le notifiche fissate.</translation>
    </message>
    <message id="help.prefs.p.startup">
        <source>help.prefs.p.startup</source>
        <translation>“Avvia al login” avvia Tessarine quando accedi. Può conservare solo ciò che arriva mentre è in esecuzione, o ciò che il sistema ha ancora.</translation>
    </message>
    <message id="help.prefs.p.startup2">
        <source>help.prefs.p.startup2</source>
        <translation>Finché non è attivo, Tessarine lo chiede dopo l’avvio. “Non chiedere più” mette fine alla domanda.</translation>
    </message>
    <message id="help.prefs.p.startup3">
        <source>help.prefs.p.startup3</source>
        <translation>Si avvia senza finestre. Vedi solo la campanella nella barra dei menu.</translation>
    </message>
    <message id="help.prefs.p.welcomeGuide">
        <source>help.prefs.p.welcomeGuide</source>
        <translation>Qui puoi rileggere l’informativa sulla privacy e la guida di benvenuto.</translation>
    </message>
    <message id="help.prefs.title">
        <source>help.prefs.title</source>
        <translation>Preferenze</translation>
    </message>
    <message id="help.privacy.btn.reviewNotice">
        <source>help.privacy.btn.reviewNotice</source>
        <translation>Rileggi l’informativa</translation>
    </message>
    <message id="help.privacy.h.displayFilter">
        <source>help.privacy.h.displayFilter</source>
        <translation>Una maschera, non una serratura</translation>
    </message>
    <message id="help.privacy.h.doesNotDo">
        <source>help.privacy.h.doesNotDo</source>
        <translation>Che cosa non fa</translation>
    </message>
    <message id="help.privacy.h.exports">
        <source>help.privacy.h.exports</source>
        <translation>Esportazioni</translation>
    </message>
    <message id="help.privacy.h.notice">
        <source>help.privacy.h.notice</source>
        <translation>Informativa sulla privacy</translation>
    </message>
    <message id="help.privacy.h.otp">
        <source>help.privacy.h.otp</source>
        <translation>Codici monouso</translation>
    </message>
    <message id="help.privacy.h.protecting">
        <source>help.privacy.h.protecting</source>
        <translation>Proteggere la raccolta</translation>
    </message>
    <message id="help.privacy.lim.noEncrypt.desc">
        <source>help.privacy.lim.noEncrypt.desc</source>
        <translation>Chi può leggere i file del tuo utente può leggere la raccolta, con o senza Tessarine.</translation>
    </message>
    <message id="help.privacy.lim.noEncrypt.title">
        <source>help.privacy.lim.noEncrypt.title</source>
        <translation>La raccolta non è cifrata</translation>
    </message>
    <message id="help.privacy.lim.noEncrypt.workaround">
        <source>help.privacy.lim.noEncrypt.workaround</source>
        <translation>Attiva FileVault e blocca lo schermo quando ti allontani.</translation>
    </message>
    <message id="help.privacy.lim.noPerApp.desc">
        <source>help.privacy.lim.noPerApp.desc</source>
        <translation>Le preferenze nascondono tutte le app o nessuna.</translation>
    </message>
    <message id="help.privacy.lim.noPerApp.title">
        <source>help.privacy.lim.noPerApp.title</source>
        <translation>Nessun interruttore per singole app</translation>
    </message>
    <message id="help.privacy.lim.noPerApp.workaround">
        <source>help.privacy.lim.noPerApp.workaround</source>
        <translation>Metti gli ID bundle delle app nell’elenco privacyApps del dominio com.zorvek.Tessarine mentre Tessarine non è in esecuzione.</translation>
    </message>
    <message id="help.privacy.p.displayFilter1">
        <source>help.privacy.p.displayFilter1</source>
        <translation>“Nascondi contenuti” serve contro chi guarda da sopra la tua spalla. Le righe mostrano barre al posto delle parole. Un clic svela una riga finché l’elenco non cambia; l’anteprima, la modalità di selezione e la ricerca vedono il contenuto vero.</translation>
    </message>
    <message id="help.privacy.p.displayFilter2">
        <source>help.privacy.p.displayFilter2</source>
        <translation>Per nascondere i contenuti di tutte le app:</translation>
    </message>
    <message id="help.privacy.p.exports">
        <source>help.privacy.p.exports</source>
        <translation>Ciò che è nascosto lo è anche nelle esportazioni, se non lo includi in quella esportazione.</translation>
    </message>
    <message id="help.privacy.p.exports2">
        <source>help.privacy.p.exports2</source>
        <translation>I file esportati non sono cifrati. Chi ne riceve uno può leggerlo.</translation>
    </message>
    <message id="help.privacy.p.notice">
        <source>help.privacy.p.notice</source>
        <translation>L’informativa del primo avvio dice che cosa viene conservato e che cosa no.</translation>
    </message>
    <message id="help.privacy.p.otp1">
        <source>help.privacy.p.otp1</source>
        <translation>I codici di accesso arrivano come notifiche, e la raccolta li conserverebbe. Se vuoi, Tessarine li elimina da sé.</translation>
    </message>
    <message id="help.privacy.p.otp2">
        <source>help.privacy.p.otp2</source>
        <translation>Elimina ciò che può essere un codice: quattro cifre di fila, o parole che tali messaggi usano in inglese, italiano, tedesco o francese. Spariscono così anche notifiche con un anno o un prezzo, e quelle fissate.</translation>
    </message>
    <message id="help.privacy.p.otp3">
        <source>help.privacy.p.otp3</source>
        <translation>Accade una volta, all’avvio di Tessarine. Un codice che arriva dopo resta fino al prossimo avvio.</translation>
    </message>
    <message id="help.privacy.protect.exports.desc">
        <source>help.privacy.protect.exports.desc</source>
        <translation>Un file esportato resta finché non lo elimini.</translation>
    </message>
    <message id="help.privacy.protect.exports.title">
        <source>help.privacy.protect.exports.title</source>
        <translation>Elimina le esportazioni</translation>
    </message>
    <message id="help.privacy.protect.filevault.desc">
        <source>help.privacy.protect.filevault.desc</source>
        <translation>FileVault rende la raccolta illeggibile mentre il Mac è spento.</translation>
    </message>
    <message id="help.privacy.protect.filevault.title">
        <source>help.privacy.protect.filevault.title</source>
        <translation>Cifra il disco</translation>
    </message>
    <message id="help.privacy.protect.noCloud.desc">
        <source>help.privacy.protect.noCloud.desc</source>
        <translation>Non mettere la raccolta, i backup o le esportazioni dove un servizio li copia.</translation>
    </message>
    <message id="help.privacy.protect.noCloud.title">
        <source>help.privacy.protect.noCloud.title</source>
        <translation>Nessuna cartella nel cloud</translation>
    </message>
    <message id="help.privacy.protect.retention.desc">
        <source>help.privacy.protect.retention.desc</source>
        <translation>Ciò che viene eliminato dopo qualche tempo non può più leggerlo nessuno.</translation>
    </message>
    <message id="help.privacy.protect.retention.title">
        <source>help.privacy.protect.retention.title</source>
        <translation>Conserva meno</translation>
    </message>
    <message id="help.privacy.step.1">
        <source>help.privacy.step.1</source>
        <translation>Apri le preferenze dal menu della campanella.</translation>
    </message>
    <message id="help.privacy.step.2">
        <source>help.privacy.step.2</source>
        <translation>Scegli Privacy.</translation>
    </message>
    <message id="help.privacy.step.3">
        <source>help.privacy.step.3</source>
        <translation>Attiva “Nascondi contenuti”.</translation>
    </message>
    <message id="help.privacy.step.4">
        <source>help.privacy.step.4</source>
        <translation>Chiudi la finestra. Tutte le righe sono subito mascherate.</translation>
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
        <translation>Gruppi</translation>
    </message>
    <message id="help.search.h.resultCount">
        <source>help.search.h.resultCount</source>
        <translation>Il numero a lato</translation>
    </message>
    <message id="help.search.h.searchBar">
        <source>help.search.h.searchBar</source>
        <translation>Ricerca</translation>
    </message>
    <message id="help.search.h.sortModes">
        <source>help.search.h.sortModes</source>
        <translation>Ordine</translation>
    </message>
    <message id="help.search.p.appFilter">
        <source>help.search.p.appFilter</source>
        <translation>Il menu App limita l’elenco a un’app. Offre ogni app che ha una notifica caricata. Ricerca e filtro agiscono insieme.</translation>
    </message>
    <message id="help.search.p.groupCollapse">
        <source>help.search.p.groupCollapse</source>
        <translation>Fai clic sulla freccia di un gruppo per chiuderlo o aprirlo. Cambiando raggruppamento, tutti i gruppi si riaprono.</translation>
    </message>
    <message id="help.search.p.resultCount">
        <source>help.search.p.resultCount</source>
        <translation>Conta le notifiche che l’elenco mostra. Se la raccolta contiene più di quanto è caricato, si legge “mostrate di tutte”.</translation>
    </message>
    <message id="help.search.p.searchBar">
        <source>help.search.p.searchBar</source>
        <translation>Scrivi una parte qualsiasi di un titolo, di un testo o del nome di un’app. Maiuscole e minuscole sono uguali; gli accenti contano. La ricerca riguarda le notifiche caricate, all’inizio le 500 più recenti. “Carica meno recenti”, alla fine dell’elenco, ne aggiunge 500. Anche i contenuti nascosti vengono cercati.</translation>
    </message>
    <message id="help.search.title">
        <source>help.search.title</source>
        <translation>Ricerca e filtro</translation>
    </message>
    <message id="help.sections">
        <source>help.sections</source>
        <translation>Sezioni</translation>
    </message>
    <message id="help.selectDelete.h.datePresets">
        <source>help.selectDelete.h.datePresets</source>
        <translation>Periodi</translation>
    </message>
    <message id="help.selectDelete.h.deleting">
        <source>help.selectDelete.h.deleting</source>
        <translation>Eliminare</translation>
    </message>
    <message id="help.selectDelete.h.entering">
        <source>help.selectDelete.h.entering</source>
        <translation>Modalità di selezione</translation>
    </message>
    <message id="help.selectDelete.h.selecting">
        <source>help.selectDelete.h.selecting</source>
        <translation>Modi per selezionare</translation>
    </message>
    <message id="help.selectDelete.p.deleting">
        <source>help.selectDelete.p.deleting</source>
        <translation>“Elimina selezionate” chiede conferma, e così “Elimina tutto”. “Elimina tutto” svuota l’intera raccolta, anche le notifiche fissate e quelle non caricate. Se arriva una nuova notifica mentre selezioni, la selezione va persa e nulla viene eliminato.</translation>
    </message>
    <message id="help.selectDelete.p.entering">
        <source>help.selectDelete.p.entering</source>
        <translation>Fai clic sul cestino sopra l’elenco. Ogni riga mostra allora un cerchio, e i contenuti nascosti sono visibili finché non esci con Annulla.</translation>
    </message>
    <message id="help.selectDelete.row.byApp.desc">
        <source>help.selectDelete.row.byApp.desc</source>
        <translation>Aggiunge tutte le notifiche mostrate di un’app.</translation>
    </message>
    <message id="help.selectDelete.row.byApp.title">
        <source>help.selectDelete.row.byApp.title</source>
        <translation>App</translation>
    </message>
    <message id="help.selectDelete.row.byDate.desc">
        <source>help.selectDelete.row.byDate.desc</source>
        <translation>Aggiunge tutte le notifiche mostrate di un periodo. Più scelte si sommano.</translation>
    </message>
    <message id="help.selectDelete.row.byDate.title">
        <source>help.selectDelete.row.byDate.title</source>
        <translation>Data</translation>
    </message>
    <message id="help.selectDelete.row.selectAll.desc">
        <source>help.selectDelete.row.selectAll.desc</source>
        <translation>Seleziona tutto ciò che l’elenco mostra. Premuto di nuovo, toglie la selezione.</translation>
    </message>
    <message id="help.selectDelete.row.selectAll.title">
        <source>help.selectDelete.row.selectAll.title</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message id="help.selectDelete.row.tap.desc">
        <source>help.selectDelete.row.tap.desc</source>
        <translation>La seleziona, o la toglie.</translation>
    </message>
    <message id="help.selectDelete.row.tap.title">
        <source>help.selectDelete.row.tap.title</source>
        <translation>Clic su una riga</translation>
    </message>
    <message id="help.selectDelete.title">
        <source>help.selectDelete.title</source>
        <translation>Selezione ed eliminazione</translation>
    </message>
    <message id="help.selectDelete.warning">
        <source>help.selectDelete.warning</source>
        <translation>Le notifiche eliminate non si possono recuperare.</translation>
    </message>
    <message id="help.tips.backup.desc">
        <source>help.tips.backup.desc</source>
        <translation>Il backup della finestra di diagnostica scrive una copia completa della raccolta.</translation>
    </message>
    <message id="help.tips.backup.title">
        <source>help.tips.backup.title</source>
        <translation>Fai un backup</translation>
    </message>
    <message id="help.tips.byDate.desc">
        <source>help.tips.byDate.desc</source>
        <translation>Nella modalità di selezione, Data seleziona il mese scorso con due clic.</translation>
    </message>
    <message id="help.tips.byDate.title">
        <source>help.tips.byDate.title</source>
        <translation>Riordina per data</translation>
    </message>
    <message id="help.tips.csv.desc">
        <source>help.tips.csv.desc</source>
        <translation>Ogni programma che legge tabelle può contare e ordinare ciò che esporti.</translation>
    </message>
    <message id="help.tips.csv.title">
        <source>help.tips.csv.title</source>
        <translation>Vai oltre con CSV</translation>
    </message>
    <message id="help.tips.diagnostics.desc">
        <source>help.tips.diagnostics.desc</source>
        <translation>La finestra di diagnostica mostra che cosa viene catturato al momento e che cosa lo impedisce.</translation>
    </message>
    <message id="help.tips.diagnostics.title">
        <source>help.tips.diagnostics.title</source>
        <translation>Quando manca qualcosa</translation>
    </message>
    <message id="help.tips.launchAtLogin.desc">
        <source>help.tips.launchAtLogin.desc</source>
        <translation>Il modo più sicuro per perdere poco: Tessarine c’è prima della prima notifica.</translation>
    </message>
    <message id="help.tips.launchAtLogin.title">
        <source>help.tips.launchAtLogin.title</source>
        <translation>Avvia al login</translation>
    </message>
    <message id="help.tips.mirroring.desc">
        <source>help.tips.mirroring.desc</source>
        <translation>Con Duplicazione iPhone anche le sue notifiche arrivano nella raccolta.</translation>
    </message>
    <message id="help.tips.mirroring.title">
        <source>help.tips.mirroring.title</source>
        <translation>Porta dentro l’iPhone</translation>
    </message>
    <message id="help.tips.notifStyles.desc">
        <source>help.tips.notifStyles.desc</source>
        <translation>Un banner viene catturato subito, senza altri permessi.</translation>
    </message>
    <message id="help.tips.notifStyles.title">
        <source>help.tips.notifStyles.title</source>
        <translation>Lascia che le app mostrino banner</translation>
    </message>
    <message id="help.tips.retention.desc">
        <source>help.tips.retention.desc</source>
        <translation>Le notifiche sono piccole. I periodi brevi eliminano ciò che forse cercherai.</translation>
    </message>
    <message id="help.tips.retention.title">
        <source>help.tips.retention.title</source>
        <translation>Conserva per sempre</translation>
    </message>
    <message id="help.tips.title">
        <source>help.tips.title</source>
        <translation>Consigli</translation>
    </message>
    <message id="help.tips.xlsx.desc">
        <source>help.tips.xlsx.desc</source>
        <translation>Se ti viene chiesto, scegli il punto e virgola come separatore e UTF-8 come codifica.</translation>
    </message>
    <message id="help.tips.xlsx.title">
        <source>help.tips.xlsx.title</source>
        <translation>CSV in un foglio di calcolo</translation>
    </message>
    <message id="hoard.empty.noAccess">
        <source>hoard.empty.noAccess</source>
        <translation>Tessarine non può vederne: non ha accesso al bus di sessione, da cui arrivano le notifiche.</translation>
    </message>
    <message id="hoard.empty.noResults">
        <source>hoard.empty.noResults</source>
        <translation>Nessun risultato</translation>
    </message>
    <message id="hoard.empty.noResults.detail">
        <source>hoard.empty.noResults.detail</source>
        <translation>Nessuna notifica caricata corrisponde alla ricerca e all’app scelta.</translation>
    </message>
    <message id="hoard.empty.noResults.older">
        <source>hoard.empty.noResults.older</source>
        <translation>Nessuna notifica caricata corrisponde alla ricerca e all’app scelta. “Carica meno recenti” cerca più indietro.</translation>
    </message>
    <message id="hoard.empty.notOpened">
        <source>hoard.empty.notOpened</source>
        <translation>La raccolta non si apre, perciò nulla può essere conservato: %1</translation>
    </message>
    <message id="hoard.empty.waiting">
        <source>hoard.empty.waiting</source>
        <translation>Ancora nessuna notifica</translation>
    </message>
    <message id="hoard.empty.waiting.detail">
        <source>hoard.empty.waiting.detail</source>
        <translation>Ciò che le tue app annunciano sarà conservato qui finché vuoi.</translation>
    </message>
    <message id="hoard.list">
        <source>hoard.list</source>
        <translation>Notifiche</translation>
    </message>
    <message id="hoard.loading">
        <source>hoard.loading</source>
        <translation>Apertura della raccolta…</translation>
    </message>
    <message id="launchAtLogin.btn.dontAsk">
        <source>launchAtLogin.btn.dontAsk</source>
        <translation>Non chiedere più</translation>
    </message>
    <message id="launchAtLogin.btn.enable">
        <source>launchAtLogin.btn.enable</source>
        <translation>Avvia al login</translation>
    </message>
    <message id="launchAtLogin.btn.notNow">
        <source>launchAtLogin.btn.notNow</source>
        <translation>Non ora</translation>
    </message>
    <message id="launchAtLogin.info.changeLater">
        <source>launchAtLogin.info.changeLater</source>
        <translation>Puoi cambiarlo in ogni momento nel menu della campanella.</translation>
    </message>
    <message id="launchAtLogin.info.missedNotifs">
        <source>launchAtLogin.info.missedNotifs</source>
        <translation>Ciò che arriva prima dell’avvio può non finire mai nella raccolta.</translation>
    </message>
    <message id="launchAtLogin.info.silentStart">
        <source>launchAtLogin.info.silentStart</source>
        <translation>Si avvia senza finestre. Vedi solo la campanella nella barra dei menu.</translation>
    </message>
    <message id="launchAtLogin.prompt.subtitle">
        <source>launchAtLogin.prompt.subtitle</source>
        <translation>Può conservare solo ciò che arriva mentre è in esecuzione.</translation>
    </message>
    <message id="launchAtLogin.prompt.title">
        <source>launchAtLogin.prompt.title</source>
        <translation>Avviare Tessarine al login?</translation>
    </message>
    <message id="menu.checkForUpdates">
        <source>menu.checkForUpdates</source>
        <translation>Verifica aggiornamenti…</translation>
    </message>
    <message id="menu.fullDiskAccess">
        <source>menu.fullDiskAccess</source>
        <translation>Accesso completo al disco…</translation>
    </message>
    <message id="menu.help.title">
        <source>menu.help.title</source>
        <translation>Aiuto di Tessarine</translation>
    </message>
    <message id="menu.launchAtLogin">
        <source>menu.launchAtLogin</source>
        <translation>Avvia al login</translation>
    </message>
    <message id="menu.newNotifications" numerus="yes">
        <source>menu.newNotifications</source>
        <translation>
            <numerusform>%Ln nuova notifica</numerusform>
            <numerusform>%Ln nuove notifiche</numerusform>
        </translation>
    </message>
    <message id="menu.openHoard">
        <source>menu.openHoard</source>
        <translation>Apri la raccolta</translation>
    </message>
    <message id="menu.preferences.title">
        <source>menu.preferences.title</source>
        <translation>Preferenze…</translation>
    </message>
    <message id="menu.quit">
        <source>menu.quit</source>
        <translation>Esci da Tessarine</translation>
    </message>
    <message id="menu.welcome.title">
        <source>menu.welcome.title</source>
        <translation>Guida di benvenuto…</translation>
    </message>
    <message id="onboarding.ax.granted">
        <source>onboarding.ax.granted</source>
        <translation>Concesso: Tessarine può vedere le notifiche quando arrivano.</translation>
    </message>
    <message id="onboarding.ax.howToEnable">
        <source>onboarding.ax.howToEnable</source>
        <translation>Apri le impostazioni del sistema, trova Tessarine nell’elenco e attivalo.</translation>
    </message>
    <message id="onboarding.ax.noPermissionWarning">
        <source>onboarding.ax.noPermissionWarning</source>
        <translation>Senza, i banner non vengono visti. Si può conservare solo ciò che contiene il database del sistema, se Tessarine può leggerlo.</translation>
    </message>
    <message id="onboarding.ax.notGranted">
        <source>onboarding.ax.notGranted</source>
        <translation>Non ancora concesso</translation>
    </message>
    <message id="onboarding.ax.openSettings">
        <source>onboarding.ax.openSettings</source>
        <translation>Apri Impostazioni di Sistema</translation>
    </message>
    <message id="onboarding.ax.openSettings.hint">
        <source>onboarding.ax.openSettings.hint</source>
        <translation>Questa pagina si accorge da sé quando c’è il permesso.</translation>
    </message>
    <message id="onboarding.ax.subtitle">
        <source>onboarding.ax.subtitle</source>
        <translation>Tessarine legge i banner con il permesso Accessibilità di macOS, nel momento in cui appaiono.</translation>
    </message>
    <message id="onboarding.ax.title">
        <source>onboarding.ax.title</source>
        <translation>Accessibilità</translation>
    </message>
    <message id="onboarding.ax.whatItDoes.text">
        <source>onboarding.ax.whatItDoes.text</source>
        <translation>Legge i testi dei banner che Centro Notifiche mostra e li mette nella raccolta.</translation>
    </message>
    <message id="onboarding.ax.whatItDoes.title">
        <source>onboarding.ax.whatItDoes.title</source>
        <translation>Che cosa ne fa Tessarine</translation>
    </message>
    <message id="onboarding.ax.whatItDoesNot.text">
        <source>onboarding.ax.whatItDoesNot.text</source>
        <translation>Non legge altre finestre, non segue ciò che scrivi e non preme nulla al posto tuo.</translation>
    </message>
    <message id="onboarding.ax.whatItDoesNot.title">
        <source>onboarding.ax.whatItDoesNot.title</source>
        <translation>Che cosa non fa</translation>
    </message>
    <message id="onboarding.btn.agreeAndContinue">
        <source>onboarding.btn.agreeAndContinue</source>
        <translation>Accetta e continua</translation>
    </message>
    <message id="onboarding.btn.back">
        <source>onboarding.btn.back</source>
        <translation>Indietro</translation>
    </message>
    <message id="onboarding.btn.continue">
        <source>onboarding.btn.continue</source>
        <translation>Continua</translation>
    </message>
    <message id="onboarding.btn.continueWithout">
        <source>onboarding.btn.continueWithout</source>
        <translation>Continua senza accesso</translation>
    </message>
    <message id="onboarding.btn.done">
        <source>onboarding.btn.done</source>
        <translation>Fine</translation>
    </message>
    <message id="onboarding.btn.start">
        <source>onboarding.btn.start</source>
        <translation>Avvia Tessarine</translation>
    </message>
    <message id="onboarding.eula.agree">
        <source>onboarding.eula.agree</source>
        <translation>Ho letto il contratto e lo accetto</translation>
    </message>
    <message id="onboarding.eula.scrollHint">
        <source>onboarding.eula.scrollHint</source>
        <translation>Scorri fino in fondo per continuare.</translation>
    </message>
    <message id="onboarding.eula.subtitle">
        <source>onboarding.eula.subtitle</source>
        <translation>Leggilo fino in fondo. Nulla viene registrato prima che tu accetti.</translation>
    </message>
    <message id="onboarding.eula.title">
        <source>onboarding.eula.title</source>
        <translation>Il contratto</translation>
    </message>
    <message id="onboarding.feature1.text">
        <source>onboarding.feature1.text</source>
        <translation>Tessarine conserva ogni notifica quando arriva, anche quelle che non hai mai visto.</translation>
    </message>
    <message id="onboarding.feature1.title">
        <source>onboarding.feature1.title</source>
        <translation>Nulla va perso</translation>
    </message>
    <message id="onboarding.feature2.text">
        <source>onboarding.feature2.text</source>
        <translation>La raccolta è un solo file nella tua cartella personale. Non ci sono né account né server.</translation>
    </message>
    <message id="onboarding.feature2.title">
        <source>onboarding.feature2.title</source>
        <translation>Tutto su questo computer</translation>
    </message>
    <message id="onboarding.feature3.text">
        <source>onboarding.feature3.text</source>
        <translation>Cerca in tutti i testi, filtra per app e per giorno, fissa ciò che conta, elimina il resto.</translation>
    </message>
    <message id="onboarding.feature3.title">
        <source>onboarding.feature3.title</source>
        <translation>Trovata in un attimo</translation>
    </message>
    <message id="onboarding.feature4.text">
        <source>onboarding.feature4.text</source>
        <translation>Le notifiche che il tuo iPhone passa a questo Mac vengono conservate come tutte le altre.</translation>
    </message>
    <message id="onboarding.feature4.title">
        <source>onboarding.feature4.title</source>
        <translation>Anche il tuo iPhone</translation>
    </message>
    <message id="onboarding.privacy.reviewNote">
        <source>onboarding.privacy.reviewNote</source>
        <translation>Puoi rileggere questo testo nelle preferenze, in Privacy.</translation>
    </message>
    <message id="onboarding.privacy.row1.text">
        <source>onboarding.privacy.row1.text</source>
        <translation>Tutto è conservato su questo computer, e solo il tuo account può leggerlo.</translation>
    </message>
    <message id="onboarding.privacy.row1.title">
        <source>onboarding.privacy.row1.title</source>
        <translation>Resta qui</translation>
    </message>
    <message id="onboarding.privacy.row2.text">
        <source>onboarding.privacy.row2.text</source>
        <translation>Chi può usare il tuo account o leggere il tuo disco può leggere le tue notifiche.</translation>
    </message>
    <message id="onboarding.privacy.row2.title">
        <source>onboarding.privacy.row2.title</source>
        <translation>Non è cifrata</translation>
    </message>
    <message id="onboarding.privacy.row3.text">
        <source>onboarding.privacy.row3.text</source>
        <translation>I codici monouso sono conservati come tutto il resto. Le preferenze possono eliminarli dopo alcune ore.</translation>
    </message>
    <message id="onboarding.privacy.row3.title">
        <source>onboarding.privacy.row3.title</source>
        <translation>Può contenere codici</translation>
    </message>
    <message id="onboarding.privacy.row4.text">
        <source>onboarding.privacy.row4.text</source>
        <translation>Una riga, un’app, un giorno o tutto, in ogni momento.</translation>
    </message>
    <message id="onboarding.privacy.row4.title">
        <source>onboarding.privacy.row4.title</source>
        <translation>Puoi eliminarla</translation>
    </message>
    <message id="onboarding.privacy.subtitle">
        <source>onboarding.privacy.subtitle</source>
        <translation>Che cosa sapere della tua raccolta prima che cresca.</translation>
    </message>
    <message id="onboarding.privacy.title">
        <source>onboarding.privacy.title</source>
        <translation>La tua privacy</translation>
    </message>
    <message id="onboarding.welcome.subtitle">
        <source>onboarding.welcome.subtitle</source>
        <translation>Ogni notifica che il tuo computer mostra, conservata e facile da cercare.</translation>
    </message>
    <message id="onboarding.welcome.timeHint">
        <source>onboarding.welcome.timeHint</source>
        <translation>Ci vuole circa un minuto.</translation>
    </message>
    <message id="onboarding.welcome.title">
        <source>onboarding.welcome.title</source>
        <translation>Ti diamo il benvenuto in Tessarine</translation>
    </message>
    <message id="onboarding.window.title">
        <source>onboarding.window.title</source>
        <translation>Ti diamo il benvenuto in Tessarine</translation>
    </message>
    <message id="pageDots.position">
        <source>pageDots.position</source>
        <translation>Passo %1 di %2</translation>
    </message>
    <message id="perm.fda.benefits.header">
        <source>perm.fda.benefits.header</source>
        <translation>Che cosa ci guadagni</translation>
    </message>
    <message id="perm.fda.enabled">
        <source>perm.fda.enabled</source>
        <translation>L’ho attivato</translation>
    </message>
    <message id="perm.fda.howto.header">
        <source>perm.fda.howto.header</source>
        <translation>Come attivarlo</translation>
    </message>
    <message id="perm.fda.laterHint">
        <source>perm.fda.laterHint</source>
        <translation>Puoi farlo anche più tardi, in ogni momento, dal menu della campanella.</translation>
    </message>
    <message id="perm.fda.notDetected">
        <source>perm.fda.notDetected</source>
        <translation>Il database non si può ancora leggere. Controlla l’interruttore, oppure esci da Tessarine e riavvialo.</translation>
    </message>
    <message id="perm.fda.openSettings">
        <source>perm.fda.openSettings</source>
        <translation>Apri Impostazioni di Sistema</translation>
    </message>
    <message id="perm.fda.picture">
        <source>perm.fda.picture</source>
        <translation>L’elenco dei programmi in Accesso completo al disco, con l’interruttore di Tessarine attivo</translation>
    </message>
    <message id="perm.fda.reason1">
        <source>perm.fda.reason1</source>
        <translation>Le notifiche arrivate mentre Tessarine non era in esecuzione vengono recuperate, se il sistema le ha ancora.</translation>
    </message>
    <message id="perm.fda.reason2">
        <source>perm.fda.reason2</source>
        <translation>Vengono conservate anche le notifiche che arrivano senza banner.</translation>
    </message>
    <message id="perm.fda.restartHint">
        <source>perm.fda.restartHint</source>
        <translation>Il sistema può chiedere di uscire da Tessarine e riaprirlo perché la modifica abbia effetto.</translation>
    </message>
    <message id="perm.fda.skip">
        <source>perm.fda.skip</source>
        <translation>Salta</translation>
    </message>
    <message id="perm.fda.step1">
        <source>perm.fda.step1</source>
        <translation>Apri Impostazioni di Sistema.</translation>
    </message>
    <message id="perm.fda.step2">
        <source>perm.fda.step2</source>
        <translation>Vai a Privacy e sicurezza.</translation>
    </message>
    <message id="perm.fda.step3">
        <source>perm.fda.step3</source>
        <translation>Scegli Accesso completo al disco.</translation>
    </message>
    <message id="perm.fda.step4">
        <source>perm.fda.step4</source>
        <translation>Attiva Tessarine. Se non è nell’elenco, aggiungilo con il pulsante +.</translation>
    </message>
    <message id="perm.fda.step5">
        <source>perm.fda.step5</source>
        <translation>Torna a questa finestra.</translation>
    </message>
    <message id="perm.fda.subtitle">
        <source>perm.fda.subtitle</source>
        <translation>Così Tessarine può leggere anche il database delle notifiche del sistema.</translation>
    </message>
    <message id="perm.fda.title">
        <source>perm.fda.title</source>
        <translation>Accesso completo al disco</translation>
    </message>
    <message id="perm.fda.without.header">
        <source>perm.fda.without.header</source>
        <translation>Senza</translation>
    </message>
    <message id="perm.fda.without.row1">
        <source>perm.fda.without.row1</source>
        <translation>I banner vengono conservati come prima.</translation>
    </message>
    <message id="perm.fda.without.row2">
        <source>perm.fda.without.row2</source>
        <translation>Mancano le notifiche silenziose e quelle precedenti all’avvio.</translation>
    </message>
    <message id="prefs.general.appearance">
        <source>prefs.general.appearance</source>
        <translation>Tema</translation>
    </message>
    <message id="prefs.general.appearance.auto">
        <source>prefs.general.appearance.auto</source>
        <translation>Automatico</translation>
    </message>
    <message id="prefs.general.appearance.dark">
        <source>prefs.general.appearance.dark</source>
        <translation>Scuro</translation>
    </message>
    <message id="prefs.general.appearance.light">
        <source>prefs.general.appearance.light</source>
        <translation>Chiaro</translation>
    </message>
    <message id="prefs.general.captureExplainer">
        <source>prefs.general.captureExplainer</source>
        <translation>Tessarine copia ogni notifica nella sua raccolta mentre viene mostrata. Dove il sistema tiene un database delle notifiche, Tessarine legge anche quello, e recupera così molto di ciò che è arrivato mentre non era in esecuzione. Tutto resta su questo computer.</translation>
    </message>
    <message id="prefs.general.excludedApps">
        <source>prefs.general.excludedApps</source>
        <translation>App escluse</translation>
    </message>
    <message id="prefs.general.excludedApps.caption">
        <source>prefs.general.excludedApps.caption</source>
        <translation>Le notifiche di queste app non vengono conservate.</translation>
    </message>
    <message id="prefs.general.excludedApps.count" numerus="yes">
        <source>prefs.general.excludedApps.count</source>
        <translation>
            <numerusform>%Ln app</numerusform>
            <numerusform>%Ln app</numerusform>
        </translation>
    </message>
    <message id="prefs.general.excludedApps.manage">
        <source>prefs.general.excludedApps.manage</source>
        <translation>Gestisci…</translation>
    </message>
    <message id="prefs.general.launchAtLogin">
        <source>prefs.general.launchAtLogin</source>
        <translation>Avvia al login</translation>
    </message>
    <message id="prefs.general.launchAtLogin.caption">
        <source>prefs.general.launchAtLogin.caption</source>
        <translation>Tessarine si avvia in background quando accedi.</translation>
    </message>
    <message id="prefs.general.launchAtLogin.warning">
        <source>prefs.general.launchAtLogin.warning</source>
        <translation>Le notifiche che arrivano mentre Tessarine non è in esecuzione possono andare perse.</translation>
    </message>
    <message id="prefs.general.section.appearance">
        <source>prefs.general.section.appearance</source>
        <translation>Aspetto</translation>
    </message>
    <message id="prefs.general.section.capture">
        <source>prefs.general.section.capture</source>
        <translation>Cattura</translation>
    </message>
    <message id="prefs.general.section.howCapture">
        <source>prefs.general.section.howCapture</source>
        <translation>Come funziona la cattura</translation>
    </message>
    <message id="prefs.general.section.startup">
        <source>prefs.general.section.startup</source>
        <translation>Avvio</translation>
    </message>
    <message id="prefs.privacy.hideContent">
        <source>prefs.privacy.hideContent</source>
        <translation>Nascondi contenuti</translation>
    </message>
    <message id="prefs.privacy.hideContent.activeNote">
        <source>prefs.privacy.hideContent.activeNote</source>
        <translation>Il contenuto di tutte le app è nascosto. Viene conservato lo stesso.</translation>
    </message>
    <message id="prefs.privacy.hideContent.caption">
        <source>prefs.privacy.hideContent.caption</source>
        <translation>Titoli e testi sono mascherati nella finestra e nelle esportazioni.</translation>
    </message>
    <message id="prefs.privacy.otp.1h">
        <source>prefs.privacy.otp.1h</source>
        <translation>1 ora</translation>
    </message>
    <message id="prefs.privacy.otp.24h">
        <source>prefs.privacy.otp.24h</source>
        <translation>24 ore</translation>
    </message>
    <message id="prefs.privacy.otp.4h">
        <source>prefs.privacy.otp.4h</source>
        <translation>4 ore</translation>
    </message>
    <message id="prefs.privacy.otp.note1h">
        <source>prefs.privacy.otp.note1h</source>
        <translation>A ogni avvio vengono eliminati quelli più vecchi di un’ora.</translation>
    </message>
    <message id="prefs.privacy.otp.note24h">
        <source>prefs.privacy.otp.note24h</source>
        <translation>A ogni avvio vengono eliminati quelli più vecchi di un giorno.</translation>
    </message>
    <message id="prefs.privacy.otp.note4h">
        <source>prefs.privacy.otp.note4h</source>
        <translation>A ogni avvio vengono eliminati quelli più vecchi di 4 ore.</translation>
    </message>
    <message id="prefs.privacy.otp.off">
        <source>prefs.privacy.otp.off</source>
        <translation>Mai</translation>
    </message>
    <message id="prefs.privacy.otp.otherHours" numerus="yes">
        <source>prefs.privacy.otp.otherHours</source>
        <translation>
            <numerusform>%Ln ora</numerusform>
            <numerusform>%Ln ore</numerusform>
        </translation>
    </message>
    <message id="prefs.privacy.otpAutoDelete">
        <source>prefs.privacy.otpAutoDelete</source>
        <translation>Elimina i codici dopo</translation>
    </message>
    <message id="prefs.privacy.otpAutoDelete.caption">
        <source>prefs.privacy.otpAutoDelete.caption</source>
        <translation>Elimina le notifiche che possono contenere un codice monouso: quattro cifre di fila, o parole che tali messaggi usano. Anche quelle fissate.</translation>
    </message>
    <message id="prefs.privacy.privacyNotice">
        <source>prefs.privacy.privacyNotice</source>
        <translation>Informativa sulla privacy</translation>
    </message>
    <message id="prefs.privacy.privacyNotice.btn">
        <source>prefs.privacy.privacyNotice.btn</source>
        <translation>Leggi…</translation>
    </message>
    <message id="prefs.privacy.privacyNotice.caption">
        <source>prefs.privacy.privacyNotice.caption</source>
        <translation>Che cosa viene conservato, dove, e chi può leggerlo.</translation>
    </message>
    <message id="prefs.privacy.section.documents">
        <source>prefs.privacy.section.documents</source>
        <translation>Documenti</translation>
    </message>
    <message id="prefs.privacy.section.otpAutoDelete">
        <source>prefs.privacy.section.otpAutoDelete</source>
        <translation>Codici monouso</translation>
    </message>
    <message id="prefs.privacy.section.privacyMode">
        <source>prefs.privacy.section.privacyMode</source>
        <translation>Modalità privacy</translation>
    </message>
    <message id="prefs.privacy.welcomeGuide">
        <source>prefs.privacy.welcomeGuide</source>
        <translation>Guida di benvenuto</translation>
    </message>
    <message id="prefs.privacy.welcomeGuide.btn">
        <source>prefs.privacy.welcomeGuide.btn</source>
        <translation>Apri…</translation>
    </message>
    <message id="prefs.privacy.welcomeGuide.caption">
        <source>prefs.privacy.welcomeGuide.caption</source>
        <translation>Le pagine mostrate al primo avvio.</translation>
    </message>
    <message id="prefs.saveProblem">
        <source>prefs.saveProblem</source>
        <translation>Non è stato possibile salvare le modifiche nel file delle impostazioni. Valgono finché non esci da Tessarine, e vengono salvate con la prossima modifica quando il file si potrà scrivere.</translation>
    </message>
    <message id="prefs.storage.backup.alert.body">
        <source>prefs.storage.backup.alert.body</source>
        <translation>Contiene, senza cifratura, il contenuto delle tue notifiche. Possono mancare le più recenti.</translation>
    </message>
    <message id="prefs.storage.backup.alert.title">
        <source>prefs.storage.backup.alert.title</source>
        <translation>Chiunque abbia il backup può leggerlo.</translation>
    </message>
    <message id="prefs.storage.backup.error.title">
        <source>prefs.storage.backup.error.title</source>
        <translation>Non è stato possibile fare il backup.</translation>
    </message>
    <message id="prefs.storage.backup.panel.save">
        <source>prefs.storage.backup.panel.save</source>
        <translation>Salva</translation>
    </message>
    <message id="prefs.storage.backup.panel.title">
        <source>prefs.storage.backup.panel.title</source>
        <translation>Backup della raccolta</translation>
    </message>
    <message id="prefs.storage.dbSize">
        <source>prefs.storage.dbSize</source>
        <translation>Spazio su disco</translation>
    </message>
    <message id="prefs.storage.exportBackup">
        <source>prefs.storage.exportBackup</source>
        <translation>Fai backup…</translation>
    </message>
    <message id="prefs.storage.exportBackup.help">
        <source>prefs.storage.exportBackup.help</source>
        <translation>Salva una copia del file della raccolta</translation>
    </message>
    <message id="prefs.storage.keepFor">
        <source>prefs.storage.keepFor</source>
        <translation>Conserva le notifiche</translation>
    </message>
    <message id="prefs.storage.retention.14days">
        <source>prefs.storage.retention.14days</source>
        <translation>14 giorni</translation>
    </message>
    <message id="prefs.storage.retention.1year">
        <source>prefs.storage.retention.1year</source>
        <translation>1 anno</translation>
    </message>
    <message id="prefs.storage.retention.30days">
        <source>prefs.storage.retention.30days</source>
        <translation>30 giorni</translation>
    </message>
    <message id="prefs.storage.retention.60days">
        <source>prefs.storage.retention.60days</source>
        <translation>60 giorni</translation>
    </message>
    <message id="prefs.storage.retention.6months">
        <source>prefs.storage.retention.6months</source>
        <translation>6 mesi</translation>
    </message>
    <message id="prefs.storage.retention.7days">
        <source>prefs.storage.retention.7days</source>
        <translation>7 giorni</translation>
    </message>
    <message id="prefs.storage.retention.90days">
        <source>prefs.storage.retention.90days</source>
        <translation>90 giorni</translation>
    </message>
    <message id="prefs.storage.retention.daysNote" numerus="yes">
        <source>prefs.storage.retention.daysNote</source>
        <translation>
            <numerusform>A ogni avvio vengono eliminate le notifiche più vecchie di %Ln giorno, anche quelle fissate.</numerusform>
            <numerusform>A ogni avvio vengono eliminate le notifiche più vecchie di %Ln giorni, anche quelle fissate.</numerusform>
        </translation>
    </message>
    <message id="prefs.storage.retention.forever">
        <source>prefs.storage.retention.forever</source>
        <translation>Per sempre</translation>
    </message>
    <message id="prefs.storage.retention.foreverNote">
        <source>prefs.storage.retention.foreverNote</source>
        <translation>Nulla viene mai eliminato per la sua età.</translation>
    </message>
    <message id="prefs.storage.retention.otherDays" numerus="yes">
        <source>prefs.storage.retention.otherDays</source>
        <translation>
            <numerusform>%Ln giorno</numerusform>
            <numerusform>%Ln giorni</numerusform>
        </translation>
    </message>
    <message id="prefs.storage.retention.shortWarning">
        <source>prefs.storage.retention.shortWarning</source>
        <translation>Le notifiche spariscono dopo poco tempo, anche quelle fissate.</translation>
    </message>
    <message id="prefs.storage.section.hoard">
        <source>prefs.storage.section.hoard</source>
        <translation>Raccolta</translation>
    </message>
    <message id="prefs.storage.section.retention">
        <source>prefs.storage.section.retention</source>
        <translation>Per quanto tempo conservare</translation>
    </message>
    <message id="prefs.storage.size.bytes" numerus="yes">
        <source>prefs.storage.size.bytes</source>
        <translation>
            <numerusform>%Ln byte</numerusform>
            <numerusform>%Ln byte</numerusform>
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
        <translation>Generali</translation>
    </message>
    <message id="prefs.tab.privacy">
        <source>prefs.tab.privacy</source>
        <translation>Privacy</translation>
    </message>
    <message id="prefs.tab.storage">
        <source>prefs.tab.storage</source>
        <translation>Archiviazione</translation>
    </message>
    <message id="prefs.window.title">
        <source>prefs.window.title</source>
        <translation>Preferenze</translation>
    </message>
    <message id="preview.copy">
        <source>preview.copy</source>
        <translation>Copia</translation>
    </message>
    <message id="preview.empty">
        <source>preview.empty</source>
        <translation>Questa notifica non ha testo.</translation>
    </message>
    <message id="preview.open">
        <source>preview.open</source>
        <translation>Apri %1</translation>
    </message>
    <message id="preview.title">
        <source>preview.title</source>
        <translation>Notifica</translation>
    </message>
    <message id="privacy.block1.text">
        <source>privacy.block1.text</source>
        <translation>La raccolta è un solo file nella tua cartella personale, che solo il tuo account utente può leggere. Nulla di ciò che contiene viene inviato altrove.</translation>
    </message>
    <message id="privacy.block1.title">
        <source>privacy.block1.title</source>
        <translation>Conservata su questo computer</translation>
    </message>
    <message id="privacy.block2.text">
        <source>privacy.block2.text</source>
        <translation>Le notifiche contengono ciò che altre persone ti hanno inviato. Tienilo presente quando le mostri, le esporti o le copi.</translation>
    </message>
    <message id="privacy.block2.title">
        <source>privacy.block2.title</source>
        <translation>Ciò che hanno scritto altri</translation>
    </message>
    <message id="privacy.block3.text">
        <source>privacy.block3.text</source>
        <translation>Il file è in chiaro. Chi può usare il tuo account, o può leggere il tuo disco, può leggerlo. Se questo ti preoccupa, cifra il disco. Nascondere i contenuti cambia ciò che viene mostrato, non ciò che viene conservato.</translation>
    </message>
    <message id="privacy.block3.title">
        <source>privacy.block3.title</source>
        <translation>Non cifrata</translation>
    </message>
    <message id="privacy.block4.text">
        <source>privacy.block4.text</source>
        <translation>Anche i file che esporti e i backup che fai sono in chiaro, e restano finché non li elimini.</translation>
    </message>
    <message id="privacy.block4.title">
        <source>privacy.block4.title</source>
        <translation>Esportazioni e backup</translation>
    </message>
    <message id="privacy.block5.text">
        <source>privacy.block5.text</source>
        <translation>Puoi escludere app, eliminare righe, stabilire per quanto tempo conservarle e far eliminare i codici monouso dopo alcune ore.</translation>
    </message>
    <message id="privacy.block5.title">
        <source>privacy.block5.title</source>
        <translation>Decidi tu</translation>
    </message>
    <message id="privacy.notice.btn.understood">
        <source>privacy.notice.btn.understood</source>
        <translation>Ho capito</translation>
    </message>
    <message id="privacy.notice.reviewNote">
        <source>privacy.notice.reviewNote</source>
        <translation>Puoi rileggere questo testo nelle preferenze, in Privacy.</translation>
    </message>
    <message id="privacy.notice.subtitle">
        <source>privacy.notice.subtitle</source>
        <translation>Che cosa viene conservato, dove, e chi può leggerlo.</translation>
    </message>
    <message id="privacy.notice.title">
        <source>privacy.notice.title</source>
        <translation>Tessarine e la tua privacy</translation>
    </message>
    <message id="progress.percent">
        <source>progress.percent</source>
        <translation>%1%</translation>
    </message>
    <message id="row.clickToReveal">
        <source>row.clickToReveal</source>
        <translation>Clic per mostrare</translation>
    </message>
    <message id="row.contentHidden">
        <source>row.contentHidden</source>
        <translation>Contenuto nascosto</translation>
    </message>
    <message id="row.deselect">
        <source>row.deselect</source>
        <translation>Deseleziona</translation>
    </message>
    <message id="row.pinned">
        <source>row.pinned</source>
        <translation>Fissata</translation>
    </message>
    <message id="row.select">
        <source>row.select</source>
        <translation>Seleziona</translation>
    </message>
    <message id="row.singleClickToSelect">
        <source>row.singleClickToSelect</source>
        <translation>Clic per selezionare, doppio clic per aprire %1</translation>
    </message>
    <message id="scrollBar.horizontal">
        <source>scrollBar.horizontal</source>
        <translation>Barra di scorrimento orizzontale</translation>
    </message>
    <message id="scrollBar.vertical">
        <source>scrollBar.vertical</source>
        <translation>Barra di scorrimento verticale</translation>
    </message>
    <message id="selection.byApp.help">
        <source>selection.byApp.help</source>
        <translation>Aggiungi alla selezione tutte le notifiche di un’app</translation>
    </message>
    <message id="selection.byDate.help">
        <source>selection.byDate.help</source>
        <translation>Aggiungi alla selezione tutte le notifiche di alcuni giorni</translation>
    </message>
    <message id="selection.cancel">
        <source>selection.cancel</source>
        <translation>Annulla</translation>
    </message>
    <message id="selection.confirmDelete.btn">
        <source>selection.confirmDelete.btn</source>
        <translation>Elimina</translation>
    </message>
    <message id="selection.confirmDelete.title" numerus="yes">
        <source>selection.confirmDelete.title</source>
        <translation>
            <numerusform>Eliminare %Ln notifica?</numerusform>
            <numerusform>Eliminare %Ln notifiche?</numerusform>
        </translation>
    </message>
    <message id="selection.confirmDeleteAll.message">
        <source>selection.confirmDeleteAll.message</source>
        <translation>Viene eliminato tutto ciò che è nella raccolta, anche le notifiche fissate e quelle meno recenti non caricate. Non si può annullare.</translation>
    </message>
    <message id="selection.confirmDeleteAll.title" numerus="yes">
        <source>selection.confirmDeleteAll.title</source>
        <translation>
            <numerusform>Eliminare tutte le notifiche? (%Ln caricata)</numerusform>
            <numerusform>Eliminare tutte le notifiche? (%Ln caricate)</numerusform>
        </translation>
    </message>
    <message id="selection.count" numerus="yes">
        <source>selection.count</source>
        <translation>
            <numerusform>%Ln selezionata</numerusform>
            <numerusform>%Ln selezionate</numerusform>
        </translation>
    </message>
    <message id="selection.deleteAll">
        <source>selection.deleteAll</source>
        <translation>Elimina tutto</translation>
    </message>
    <message id="selection.deleteSelected">
        <source>selection.deleteSelected</source>
        <translation>Elimina selezionate…</translation>
    </message>
    <message id="selection.deselectAll">
        <source>selection.deselectAll</source>
        <translation>Deseleziona tutto</translation>
    </message>
    <message id="selection.noSelection">
        <source>selection.noSelection</source>
        <translation>Nessuna selezione</translation>
    </message>
    <message id="selection.selectAll">
        <source>selection.selectAll</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message id="toolbar.app.all">
        <source>toolbar.app.all</source>
        <translation>Tutte le app</translation>
    </message>
    <message id="toolbar.app.label">
        <source>toolbar.app.label</source>
        <translation>App</translation>
    </message>
    <message id="toolbar.delete.help">
        <source>toolbar.delete.help</source>
        <translation>Seleziona ed elimina notifiche</translation>
    </message>
    <message id="toolbar.export.help">
        <source>toolbar.export.help</source>
        <translation>Esporta notifiche</translation>
    </message>
    <message id="toolbar.group.byApp">
        <source>toolbar.group.byApp</source>
        <translation>App</translation>
    </message>
    <message id="toolbar.group.byDate">
        <source>toolbar.group.byDate</source>
        <translation>Data</translation>
    </message>
    <message id="toolbar.group.label">
        <source>toolbar.group.label</source>
        <translation>Gruppi</translation>
    </message>
    <message id="toolbar.group.none">
        <source>toolbar.group.none</source>
        <translation>Nessuno</translation>
    </message>
    <message id="toolbar.loadOlder">
        <source>toolbar.loadOlder</source>
        <translation>Carica meno recenti</translation>
    </message>
    <message id="toolbar.loadOlder.help">
        <source>toolbar.loadOlder.help</source>
        <translation>Carica dalla raccolta le prossime 500 notifiche</translation>
    </message>
    <message id="toolbar.notifCount" numerus="yes">
        <source>toolbar.notifCount</source>
        <translation>
            <numerusform>%Ln notifica</numerusform>
            <numerusform>%Ln notifiche</numerusform>
        </translation>
    </message>
    <message id="toolbar.notifCount.truncated">
        <source>toolbar.notifCount.truncated</source>
        <translation>%1 di %2</translation>
    </message>
    <message id="toolbar.search.clear">
        <source>toolbar.search.clear</source>
        <translation>Svuota la ricerca</translation>
    </message>
    <message id="toolbar.search.placeholder">
        <source>toolbar.search.placeholder</source>
        <translation>Cerca</translation>
    </message>
    <message id="toolbar.sort.appAZ">
        <source>toolbar.sort.appAZ</source>
        <translation>App A–Z</translation>
    </message>
    <message id="toolbar.sort.label">
        <source>toolbar.sort.label</source>
        <translation>Ordine</translation>
    </message>
    <message id="toolbar.sort.newest">
        <source>toolbar.sort.newest</source>
        <translation>Più recenti</translation>
    </message>
    <message id="toolbar.sort.oldest">
        <source>toolbar.sort.oldest</source>
        <translation>Meno recenti</translation>
    </message>
    <message id="updates.howTheyCome">
        <source>updates.howTheyCome</source>
        <translation>Questa edizione di Tessarine non cerca nuove versioni: è stata compilata senza Sparkle, la libreria che se ne occupa.</translation>
    </message>
    <message id="updates.version">
        <source>updates.version</source>
        <translation>Tessarine %1</translation>
    </message>
    <message id="updates.window.title">
        <source>updates.window.title</source>
        <translation>Aggiornamenti di Tessarine</translation>
    </message>
    <message id="window.title.fda">
        <source>window.title.fda</source>
        <translation>Accesso completo al disco</translation>
    </message>
    <message id="window.title.privacy">
        <source>window.title.privacy</source>
        <translation>Tessarine e la tua privacy</translation>
    </message>
</context>
</TS>
