<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name></name>
    <message id="help.about.sparkle.credit">
        <source>help.about.sparkle.credit</source>
        <translation>Su macOS Tessarine deve i suoi aggiornamenti alla libreria open source Sparkle. Questa edizione per Linux non la contiene.</translation>
    </message>
    <message id="help.diagnostics.p.intro">
        <source>help.diagnostics.p.intro</source>
        <translation>Questa finestra mostra Tessarine al lavoro. Fai clic sulla campanella con il tasto centrale del mouse per aprirla. Il suo contenuto è solo in memoria e sparisce quando esci da Tessarine.</translation>
    </message>
    <message id="help.exporting.h.numbersExcel">
        <source>help.exporting.h.numbersExcel</source>
        <translation>LibreOffice e altri</translation>
    </message>
    <message id="help.exporting.p.numbers">
        <source>help.exporting.p.numbers</source>
        <translation>LibreOffice chiede come leggere il file CSV: scegli UTF-8 e il punto e virgola come unico separatore.</translation>
    </message>
    <message id="help.hoard.h.clicking">
        <source>help.hoard.h.clicking</source>
        <translation>A che cosa porta un doppio clic, come su un Mac</translation>
    </message>
    <message id="help.hoard.p.interaction.cmdC">
        <source>help.hoard.p.interaction.cmdC</source>
        <translation>Ctrl-C: copia titolo e testo della notifica evidenziata.</translation>
    </message>
    <message id="help.howItWorks.h.layersTogether">
        <source>help.howItWorks.h.layersTogether</source>
        <translation>Che cosa cattura ogni via su un Mac</translation>
    </message>
    <message id="help.howItWorks.layer.ax.desc">
        <source>help.howItWorks.layer.ax.desc</source>
        <translation>Le app annunciano le notifiche sul bus di sessione del desktop. Tessarine vi ascolta senza poter rispondere né ritardare nessuno, e prende nome, titolo, testo e ora come l’app li ha inviati, che appaia un banner o no. Non serve alcun permesso.</translation>
    </message>
    <message id="help.howItWorks.layer.ax.title">
        <source>help.howItWorks.layer.ax.title</source>
        <translation>Il bus di sessione</translation>
    </message>
    <message id="help.howItWorks.layer.legacy.desc">
        <source>help.howItWorks.layer.legacy.desc</source>
        <translation>Lo stesso per un file in ~/Library/Application Support/NotificationCenter, come lo scrivevano le versioni meno recenti di macOS.</translation>
    </message>
    <message id="help.howItWorks.layer.legacy.title">
        <source>help.howItWorks.layer.legacy.title</source>
        <translation>Un database da un Mac meno recente</translation>
    </message>
    <message id="help.howItWorks.layer.usernoted.desc">
        <source>help.howItWorks.layer.usernoted.desc</source>
        <translation>Linux non tiene un database simile. Se uno di un Mac si trova in ~/Library/Group Containers/group.com.apple.usernoted/db2/db nella tua cartella personale, Tessarine lo legge all’avvio, a ogni scrittura e ogni 30 secondi.</translation>
    </message>
    <message id="help.howItWorks.layer.usernoted.title">
        <source>help.howItWorks.layer.usernoted.title</source>
        <translation>Un database da un Mac</translation>
    </message>
    <message id="help.howItWorks.p.sleep">
        <source>help.howItWorks.p.sleep</source>
        <translation>Prima che il computer vada in sospensione, Tessarine smette di guardare gli annunci. Due secondi dopo il risveglio ricomincia e prende ciò che è stato annunciato nel frattempo.</translation>
    </message>
    <message id="help.howItWorks.p.storage">
        <source>help.howItWorks.p.storage</source>
        <translation>Tutto è in un solo file sul tuo computer, ~/.local/share/Tessarine/hoard.db, che solo il tuo account utente può leggere. Tessarine non ha né server né account e non invia le tue notifiche a nessuno.</translation>
    </message>
    <message id="help.howItWorks.p1">
        <source>help.howItWorks.p1</source>
        <translation>Il desktop dimentica le notifiche in pochi giorni. Tessarine copia ognuna in un archivio suo, la raccolta, dove resta finché non la elimini. Sta nell’area di notifica, o in un piccolo pannello dove il desktop non ne ha una, e lavora finché è in esecuzione.</translation>
    </message>
    <message id="help.iphone.h.howToEnable">
        <source>help.iphone.h.howToEnable</source>
        <translation>Sull’iPhone, per ogni app, con un Mac</translation>
    </message>
    <message id="help.iphone.h.iphoneSettings">
        <source>help.iphone.h.iphoneSettings</source>
        <translation>Quando sul Mac non arriva nulla</translation>
    </message>
    <message id="help.iphone.h.nativeMac">
        <source>help.iphone.h.nativeMac</source>
        <translation>App qui e su un telefono</translation>
    </message>
    <message id="help.iphone.h.requirements">
        <source>help.iphone.h.requirements</source>
        <translation>Che cosa occorre a Duplicazione iPhone su un Mac</translation>
    </message>
    <message id="help.iphone.h.solution">
        <source>help.iphone.h.solution</source>
        <translation>Programmi che le portano qui</translation>
    </message>
    <message id="help.iphone.p.nativeMac">
        <source>help.iphone.p.nativeMac</source>
        <translation>Tessarine vede ciò che viene annunciato su questo computer. Un’app in esecuzione qui annuncia qui, e viene catturata.</translation>
    </message>
    <message id="help.iphone.p.nativeMac2">
        <source>help.iphone.p.nativeMac2</source>
        <translation>Ciò che mostra solo un telefono non raggiunge mai il computer e non può essere catturato.</translation>
    </message>
    <message id="help.iphone.p.routing">
        <source>help.iphone.p.routing</source>
        <translation>Una notifica che un altro programma annuncia per un telefono ha il nome che quel programma le dà. Se qui non c’è un’app con quel nome, un doppio clic non può aprirla e lo dice.</translation>
    </message>
    <message id="help.iphone.p.solution">
        <source>help.iphone.p.solution</source>
        <translation>Un programma come KDE Connect può annunciare su questo computer le notifiche di un telefono Android. Tessarine le cattura allora come tutte le altre. Linux non ha Duplicazione iPhone; il resto di questa pagina riguarda un Mac.</translation>
    </message>
    <message id="help.iphone.title">
        <source>help.iphone.title</source>
        <translation>Telefoni</translation>
    </message>
    <message id="help.lim.30entries.desc">
        <source>help.lim.30entries.desc</source>
        <translation>L’elenco che il desktop tiene per sé non si può leggere. La raccolta comincia con il primo avvio di Tessarine.</translation>
    </message>
    <message id="help.lim.30entries.title">
        <source>help.lim.30entries.title</source>
        <translation>Nulla di prima</translation>
    </message>
    <message id="help.lim.30entries.workaround">
        <source>help.lim.30entries.workaround</source>
        <translation>Lascia Tessarine in esecuzione.</translation>
    </message>
    <message id="help.lim.appStore.desc">
        <source>help.lim.appStore.desc</source>
        <translation>Una sandbox può lasciare che le app annuncino solo tramite un portale. L’annuncio del portale sul bus di sessione viene catturato, sotto il nome che dà.</translation>
    </message>
    <message id="help.lim.appStore.title">
        <source>help.lim.appStore.title</source>
        <translation>App in una sandbox</translation>
    </message>
    <message id="help.lim.appStore.workaround">
        <source>help.lim.appStore.workaround</source>
        <translation>Non serve; solo il nome può essere diverso.</translation>
    </message>
    <message id="help.lim.calendar.desc">
        <source>help.lim.calendar.desc</source>
        <translation>Il promemoria di un calendario sta all’ora del suo annuncio, non dell’evento.</translation>
    </message>
    <message id="help.lim.focus.desc">
        <source>help.lim.focus.desc</source>
        <translation>Alcune app chiedono al desktop e non annunciano nulla mentre è attivo Non disturbare.</translation>
    </message>
    <message id="help.lim.focus.title">
        <source>help.lim.focus.title</source>
        <translation>Non disturbare</translation>
    </message>
    <message id="help.lim.focus.workaround">
        <source>help.lim.focus.workaround</source>
        <translation>Guarda nell’app stessa.</translation>
    </message>
    <message id="help.lim.iphoneOff.desc">
        <source>help.lim.iphoneOff.desc</source>
        <translation>Da un telefono spento o lontano non arriva nulla.</translation>
    </message>
    <message id="help.lim.iphoneOff.title">
        <source>help.lim.iphoneOff.title</source>
        <translation>Il telefono deve essere acceso</translation>
    </message>
    <message id="help.lim.iphoneOff.workaround">
        <source>help.lim.iphoneOff.workaround</source>
        <translation>Tienilo vicino, e carico.</translation>
    </message>
    <message id="help.lim.mirroringSetup.desc">
        <source>help.lim.mirroringSetup.desc</source>
        <translation>Un programma che porta qui le notifiche di un telefono deve avere sul telefono il permesso di leggerle.</translation>
    </message>
    <message id="help.lim.mirroringSetup.title">
        <source>help.lim.mirroringSetup.title</source>
        <translation>Da impostare sul telefono</translation>
    </message>
    <message id="help.lim.mirroringSetup.workaround">
        <source>help.lim.mirroringSetup.workaround</source>
        <translation>Segui la guida di quel programma.</translation>
    </message>
    <message id="help.lim.nativeMacApp.desc">
        <source>help.lim.nativeMacApp.desc</source>
        <translation>Le notifiche che mostra solo un telefono non vengono mai catturate.</translation>
    </message>
    <message id="help.lim.nativeMacApp.title">
        <source>help.lim.nativeMacApp.title</source>
        <translation>Solo ciò che raggiunge questo computer</translation>
    </message>
    <message id="help.lim.nativeMacApp.workaround">
        <source>help.lim.nativeMacApp.workaround</source>
        <translation>Usa un programma che le porta qui, o la versione dell’app per il desktop.</translation>
    </message>
    <message id="help.lim.network.desc">
        <source>help.lim.network.desc</source>
        <translation>Senza la rete tra loro un telefono non trasmette nulla, e Tessarine non può sapere che cosa manca.</translation>
    </message>
    <message id="help.lim.network.title">
        <source>help.lim.network.title</source>
        <translation>La rete</translation>
    </message>
    <message id="help.lim.network.workaround">
        <source>help.lim.network.workaround</source>
        <translation>Tieni entrambi nella stessa rete.</translation>
    </message>
    <message id="help.lim.notRunning.desc">
        <source>help.lim.notRunning.desc</source>
        <translation>Ciò che viene annunciato mentre Tessarine non è in esecuzione è perso: Linux non ne tiene traccia.</translation>
    </message>
    <message id="help.lim.notRunning.workaround">
        <source>help.lim.notRunning.workaround</source>
        <translation>Avvia Tessarine al login.</translation>
    </message>
    <message id="help.lim.plaintext.workaround">
        <source>help.lim.plaintext.workaround</source>
        <translation>Cifra il disco o la cartella personale.</translation>
    </message>
    <message id="help.lim.sameAppleId.desc">
        <source>help.lim.sameAppleId.desc</source>
        <translation>Apple la offre solo tra un iPhone e un Mac dello stesso account.</translation>
    </message>
    <message id="help.lim.sameAppleId.title">
        <source>help.lim.sameAppleId.title</source>
        <translation>Nessuna Duplicazione iPhone</translation>
    </message>
    <message id="help.lim.sameAppleId.workaround">
        <source>help.lim.sameAppleId.workaround</source>
        <translation>Usa la versione dell’app per il desktop, o il suo sito con le notifiche.</translation>
    </message>
    <message id="help.lim.silent.desc">
        <source>help.lim.silent.desc</source>
        <translation>Un’app che emette solo un suono o segna la sua icona non annuncia nulla sul bus.</translation>
    </message>
    <message id="help.lim.silent.title">
        <source>help.lim.silent.title</source>
        <translation>App silenziose</translation>
    </message>
    <message id="help.lim.silent.workaround">
        <source>help.lim.silent.workaround</source>
        <translation>Attiva le notifiche nelle impostazioni dell’app.</translation>
    </message>
    <message id="help.lim.tahoe.desc">
        <source>help.lim.tahoe.desc</source>
        <translation>Un bus di sessione può essere impostato in modo che nessuno possa ascoltare. Tessarine allora non vede nulla, e lo dice nella sua finestra.</translation>
    </message>
    <message id="help.lim.tahoe.title">
        <source>help.lim.tahoe.title</source>
        <translation>Bus di sessione severi</translation>
    </message>
    <message id="help.lim.tahoe.workaround">
        <source>help.lim.tahoe.workaround</source>
        <translation>Guarda nella finestra di diagnostica, e chiedi a chi gestisce il computer.</translation>
    </message>
    <message id="help.lim.timestamps.desc">
        <source>help.lim.timestamps.desc</source>
        <translation>L’ora di una riga è quella dell’annuncio, non del messaggio di cui parla.</translation>
    </message>
    <message id="help.lim.timestamps.title">
        <source>help.lim.timestamps.title</source>
        <translation>Ore</translation>
    </message>
    <message id="help.lim.timestamps.workaround">
        <source>help.lim.timestamps.workaround</source>
        <translation>Guarda nell’app l’ora del messaggio.</translation>
    </message>
    <message id="help.lim.usernoted.desc">
        <source>help.lim.usernoted.desc</source>
        <translation>Una finestra che un’app disegna da sé, perché somigli a una notifica, non è annunciata e non viene catturata.</translation>
    </message>
    <message id="help.lim.usernoted.title">
        <source>help.lim.usernoted.title</source>
        <translation>Solo annunci sul bus</translation>
    </message>
    <message id="help.lim.usernoted.workaround">
        <source>help.lim.usernoted.workaround</source>
        <translation>Alcune app si possono impostare per usare le notifiche del desktop.</translation>
    </message>
    <message id="help.limitations.h.iphone">
        <source>help.limitations.h.iphone</source>
        <translation>Telefoni</translation>
    </message>
    <message id="help.limitations.p.disclaimer">
        <source>help.limitations.p.disclaimer</source>
        <translation>Tessarine legge ciò che viene annunciato sul bus di sessione. Non può promettere di cogliere ogni notifica.</translation>
    </message>
    <message id="help.macos.h.accessibility">
        <source>help.macos.h.accessibility</source>
        <translation>Permessi</translation>
    </message>
    <message id="help.macos.h.alertStyle">
        <source>help.macos.h.alertStyle</source>
        <translation>Banner</translation>
    </message>
    <message id="help.macos.h.focus">
        <source>help.macos.h.focus</source>
        <translation>Non disturbare</translation>
    </message>
    <message id="help.macos.h.timeMachine">
        <source>help.macos.h.timeMachine</source>
        <translation>Backup della cartella personale</translation>
    </message>
    <message id="help.macos.p.accessibility">
        <source>help.macos.p.accessibility</source>
        <translation>Su Linux Tessarine non ha bisogno di permessi; il bus di sessione deve lasciarlo ascoltare, come mostra la finestra di diagnostica. Questi passi sono per un Mac:</translation>
    </message>
    <message id="help.macos.p.accessibility2">
        <source>help.macos.p.accessibility2</source>
        <translation>Su un Mac, Tessarine lo usa per leggere i banner delle notifiche e per nient’altro.</translation>
    </message>
    <message id="help.macos.p.alertReco">
        <source>help.macos.p.alertReco</source>
        <translation>Perciò nelle impostazioni delle notifiche del desktop non serve cambiare nulla per Tessarine.</translation>
    </message>
    <message id="help.macos.p.alertStyle">
        <source>help.macos.p.alertStyle</source>
        <translation>Su Linux non conta se il desktop mostra un banner: un annuncio viene catturato appena un’app lo fa. La tabella parla di macOS:</translation>
    </message>
    <message id="help.macos.p.focus">
        <source>help.macos.p.focus</source>
        <translation>Non disturbare tiene i banner lontani dallo schermo. La maggior parte delle app annuncia lo stesso, e Tessarine lo cattura.</translation>
    </message>
    <message id="help.macos.p.timeMachine">
        <source>help.macos.p.timeMachine</source>
        <translation>La raccolta è nella tua cartella personale, perciò un backup di questa la contiene. Un file in uso può essere copiato a metà di una modifica; un backup fatto con Tessarine è più sicuro.</translation>
    </message>
    <message id="help.macos.title">
        <source>help.macos.title</source>
        <translation>Impostazioni di sistema</translation>
    </message>
    <message id="help.menuBar.p.intro">
        <source>help.menuBar.p.intro</source>
        <translation>La campanella nell’area di notifica, o in un piccolo pannello dove il desktop non ne ha una, è il posto in cui trovi sempre Tessarine. Nell’area di notifica un clic apre la raccolta e un clic destro il menu; sul pannello ogni clic apre il menu.</translation>
    </message>
    <message id="help.menuBar.p.optionClick">
        <source>help.menuBar.p.optionClick</source>
        <translation>Fai clic sulla campanella con il tasto centrale del mouse per aprire la finestra di diagnostica. Sul pannello vale anche un clic tenendo premuto Alt.</translation>
    </message>
    <message id="help.menuBar.row.checkUpdates.action">
        <source>help.menuBar.row.checkUpdates.action</source>
        <translation>Dice quale versione è in uso e come arrivano le nuove.</translation>
    </message>
    <message id="help.menuBar.title">
        <source>help.menuBar.title</source>
        <translation>La campanella</translation>
    </message>
    <message id="help.prefs.p.excludedApps.note">
        <source>help.prefs.p.excludedApps.note</source>
        <translation>Un’app è riconosciuta dal suo nome in minuscolo, con punti al posto degli spazi. Le app con lo stesso nome vengono escluse insieme.</translation>
    </message>
    <message id="help.prefs.p.startup">
        <source>help.prefs.p.startup</source>
        <translation>“Avvia al login” avvia Tessarine quando accedi, con una voce nella tua cartella di avvio automatico che anche le impostazioni del desktop mostrano. Può conservare solo ciò che arriva mentre è in esecuzione.</translation>
    </message>
    <message id="help.prefs.p.startup3">
        <source>help.prefs.p.startup3</source>
        <translation>Si avvia senza finestre. Vedi solo la sua campanella.</translation>
    </message>
    <message id="help.privacy.lim.noEncrypt.workaround">
        <source>help.privacy.lim.noEncrypt.workaround</source>
        <translation>Cifra il disco o la cartella personale, e blocca lo schermo quando ti allontani.</translation>
    </message>
    <message id="help.privacy.lim.noPerApp.workaround">
        <source>help.privacy.lim.noPerApp.workaround</source>
        <translation>Metti gli identificativi delle app nell’elenco privacyApps in ~/.config/com.zorvek.Tessarine.conf mentre Tessarine non è in esecuzione.</translation>
    </message>
    <message id="help.privacy.protect.filevault.desc">
        <source>help.privacy.protect.filevault.desc</source>
        <translation>Un disco cifrato rende la raccolta illeggibile mentre il computer è spento.</translation>
    </message>
    <message id="help.tips.mirroring.desc">
        <source>help.tips.mirroring.desc</source>
        <translation>Anche ciò che un programma come KDE Connect annuncia per un telefono arriva nella raccolta.</translation>
    </message>
    <message id="help.tips.mirroring.title">
        <source>help.tips.mirroring.title</source>
        <translation>Anche dal telefono</translation>
    </message>
    <message id="help.tips.notifStyles.desc">
        <source>help.tips.notifStyles.desc</source>
        <translation>Un’app che non annuncia nulla non può essere catturata: attiva le notifiche nelle sue impostazioni.</translation>
    </message>
    <message id="help.tips.notifStyles.title">
        <source>help.tips.notifStyles.title</source>
        <translation>Lascia che le app annuncino</translation>
    </message>
    <message id="launchAtLogin.info.silentStart">
        <source>launchAtLogin.info.silentStart</source>
        <translation>Si avvia senza finestre. Vedi solo la sua campanella.</translation>
    </message>
    <message id="menu.fullDiskAccess">
        <source>menu.fullDiskAccess</source>
        <translation>Accesso a un database…</translation>
    </message>
    <message id="onboarding.ax.granted">
        <source>onboarding.ax.granted</source>
        <translation>Concesso: il bus di sessione lascia ascoltare Tessarine.</translation>
    </message>
    <message id="onboarding.ax.howToEnable">
        <source>onboarding.ax.howToEnable</source>
        <translation>Avvia Tessarine da una sessione desktop. Se l’hai fatto, il suo bus vieta ai programmi di ascoltare.</translation>
    </message>
    <message id="onboarding.ax.noPermissionWarning">
        <source>onboarding.ax.noPermissionWarning</source>
        <translation>Senza accesso, nessuna notifica può essere conservata.</translation>
    </message>
    <message id="onboarding.ax.notGranted">
        <source>onboarding.ax.notGranted</source>
        <translation>Non concesso: il bus di sessione non lascia ascoltare Tessarine, oppure non c’è.</translation>
    </message>
    <message id="onboarding.ax.openSettings">
        <source>onboarding.ax.openSettings</source>
        <translation>Apri Impostazioni</translation>
    </message>
    <message id="onboarding.ax.openSettings.hint">
        <source>onboarding.ax.openSettings.hint</source>
        <translation>Questa pagina si accorge da sé quando il bus lascia ascoltare Tessarine.</translation>
    </message>
    <message id="onboarding.ax.subtitle">
        <source>onboarding.ax.subtitle</source>
        <translation>Tessarine ascolta il bus della tua sessione, sul quale le applicazioni annunciano al desktop le loro notifiche.</translation>
    </message>
    <message id="onboarding.ax.title">
        <source>onboarding.ax.title</source>
        <translation>Accesso alle notifiche</translation>
    </message>
    <message id="onboarding.ax.whatItDoes.text">
        <source>onboarding.ax.whatItDoes.text</source>
        <translation>Prende il nome dell’applicazione, il titolo e il testo di ogni annuncio, e li mette nella raccolta.</translation>
    </message>
    <message id="onboarding.ax.whatItDoesNot.text">
        <source>onboarding.ax.whatItDoesNot.text</source>
        <translation>Non guarda le tue finestre, non segue ciò che scrivi, e non risponde a nessuno né fa attendere nessuno.</translation>
    </message>
    <message id="onboarding.feature4.text">
        <source>onboarding.feature4.text</source>
        <translation>Il servizio di notifica del tuo desktop non conta: Tessarine ascolta il bus di sessione.</translation>
    </message>
    <message id="onboarding.feature4.title">
        <source>onboarding.feature4.title</source>
        <translation>Chiunque le mostri</translation>
    </message>
    <message id="perm.fda.enabled">
        <source>perm.fda.enabled</source>
        <translation>L’ho consentito</translation>
    </message>
    <message id="perm.fda.howto.header">
        <source>perm.fda.howto.header</source>
        <translation>Come consentirlo</translation>
    </message>
    <message id="perm.fda.notDetected">
        <source>perm.fda.notDetected</source>
        <translation>Il database non si può ancora leggere.</translation>
    </message>
    <message id="perm.fda.openSettings">
        <source>perm.fda.openSettings</source>
        <translation>Apri Impostazioni</translation>
    </message>
    <message id="perm.fda.picture">
        <source>perm.fda.picture</source>
        <translation>Le proprietà di un file, con la lettura consentita al proprietario</translation>
    </message>
    <message id="perm.fda.reason1">
        <source>perm.fda.reason1</source>
        <translation>Le notifiche di quel database arrivano nella tua raccolta.</translation>
    </message>
    <message id="perm.fda.reason2">
        <source>perm.fda.reason2</source>
        <translation>Vi arriva anche ciò che d’ora in poi sarà scritto nel database.</translation>
    </message>
    <message id="perm.fda.restartHint">
        <source>perm.fda.restartHint</source>
        <translation>Se non accade nulla, premi il pulsante in basso.</translation>
    </message>
    <message id="perm.fda.step1">
        <source>perm.fda.step1</source>
        <translation>Apri il gestore di file.</translation>
    </message>
    <message id="perm.fda.step2">
        <source>perm.fda.step2</source>
        <translation>Vai a Library/Group Containers/group.com.apple.usernoted/db2 nella tua cartella personale.</translation>
    </message>
    <message id="perm.fda.step3">
        <source>perm.fda.step3</source>
        <translation>Apri le proprietà del file “db”.</translation>
    </message>
    <message id="perm.fda.step4">
        <source>perm.fda.step4</source>
        <translation>Consenti la lettura al proprietario, cioè a te.</translation>
    </message>
    <message id="perm.fda.subtitle">
        <source>perm.fda.subtitle</source>
        <translation>Nella tua cartella personale c’è un database di notifiche che Tessarine non può leggere.</translation>
    </message>
    <message id="perm.fda.title">
        <source>perm.fda.title</source>
        <translation>Accesso a un database di notifiche</translation>
    </message>
    <message id="perm.fda.without.row1">
        <source>perm.fda.without.row1</source>
        <translation>Le notifiche di questo desktop vengono conservate come prima.</translation>
    </message>
    <message id="perm.fda.without.row2">
        <source>perm.fda.without.row2</source>
        <translation>Ciò che è in quel database resta fuori dalla raccolta.</translation>
    </message>
    <message id="updates.howTheyCome">
        <source>updates.howTheyCome</source>
        <translation>Le nuove versioni arrivano con gli aggiornamenti del sistema, dal gestore di pacchetti che ha installato Tessarine. Il programma stesso non si collega mai alla rete.</translation>
    </message>
    <message id="window.title.fda">
        <source>window.title.fda</source>
        <translation>Accesso a un database di notifiche</translation>
    </message>
</context>
</TS>
