<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name></name>
    <message id="help.about.sparkle.credit">
        <source>help.about.sparkle.credit</source>
        <translation>Sur macOS, Tessarine doit ses mises à jour à la bibliothèque libre Sparkle. Cette édition pour Linux ne la contient pas.</translation>
    </message>
    <message id="help.diagnostics.p.intro">
        <source>help.diagnostics.p.intro</source>
        <translation>Cette fenêtre montre Tessarine au travail. Cliquez sur la cloche avec le bouton du milieu de la souris pour l’ouvrir. Son contenu n’est qu’en mémoire et disparaît quand vous quittez Tessarine.</translation>
    </message>
    <message id="help.exporting.h.numbersExcel">
        <source>help.exporting.h.numbersExcel</source>
        <translation>LibreOffice et d’autres</translation>
    </message>
    <message id="help.exporting.p.numbers">
        <source>help.exporting.p.numbers</source>
        <translation>LibreOffice demande comment lire le fichier CSV : choisissez UTF-8 et le point-virgule comme seul séparateur.</translation>
    </message>
    <message id="help.hoard.h.clicking">
        <source>help.hoard.h.clicking</source>
        <translation>À quoi mène un double-clic, comme sur un Mac</translation>
    </message>
    <message id="help.hoard.p.interaction.cmdC">
        <source>help.hoard.p.interaction.cmdC</source>
        <translation>Ctrl-C : copie le titre et le texte de la notification marquée.</translation>
    </message>
    <message id="help.howItWorks.h.layersTogether">
        <source>help.howItWorks.h.layersTogether</source>
        <translation>Ce que chaque chemin capture sur un Mac</translation>
    </message>
    <message id="help.howItWorks.layer.ax.desc">
        <source>help.howItWorks.layer.ax.desc</source>
        <translation>Les apps annoncent leurs notifications sur le bus de session du bureau. Tessarine y écoute sans pouvoir répondre ni retarder personne, et prend le nom, le titre, le texte et l’heure tels que l’app les a envoyés, qu’une bannière apparaisse ou non. Aucune autorisation n’est nécessaire.</translation>
    </message>
    <message id="help.howItWorks.layer.ax.title">
        <source>help.howItWorks.layer.ax.title</source>
        <translation>Le bus de session</translation>
    </message>
    <message id="help.howItWorks.layer.legacy.desc">
        <source>help.howItWorks.layer.legacy.desc</source>
        <translation>De même pour un fichier dans ~/Library/Application Support/NotificationCenter, comme l’écrivaient les anciennes versions de macOS.</translation>
    </message>
    <message id="help.howItWorks.layer.legacy.title">
        <source>help.howItWorks.layer.legacy.title</source>
        <translation>Une base venue d’un Mac plus ancien</translation>
    </message>
    <message id="help.howItWorks.layer.usernoted.desc">
        <source>help.howItWorks.layer.usernoted.desc</source>
        <translation>Linux ne tient pas de telle base. S’il s’en trouve une, venue d’un Mac, à ~/Library/Group Containers/group.com.apple.usernoted/db2/db dans votre dossier personnel, Tessarine la lit à l’ouverture, à chaque écriture et toutes les 30 secondes.</translation>
    </message>
    <message id="help.howItWorks.layer.usernoted.title">
        <source>help.howItWorks.layer.usernoted.title</source>
        <translation>Une base venue d’un Mac</translation>
    </message>
    <message id="help.howItWorks.p.sleep">
        <source>help.howItWorks.p.sleep</source>
        <translation>Avant la mise en veille de l’ordinateur, Tessarine cesse de regarder les annonces. Deux secondes après le réveil il recommence et prend ce qui a été annoncé entre-temps.</translation>
    </message>
    <message id="help.howItWorks.p.storage">
        <source>help.howItWorks.p.storage</source>
        <translation>Tout est dans un seul fichier sur votre ordinateur, ~/.local/share/Tessarine/hoard.db, que seul votre compte peut lire. Tessarine n’a ni serveur ni compte et n’envoie vos notifications à personne.</translation>
    </message>
    <message id="help.howItWorks.p1">
        <source>help.howItWorks.p1</source>
        <translation>Le bureau oublie les notifications en quelques jours. Tessarine copie chacune dans une archive à lui, la réserve, où elle reste jusqu’à ce que vous la supprimiez. Il se tient dans la zone de notification, ou dans un petit panneau si le bureau n’en a pas, et travaille tant qu’il fonctionne.</translation>
    </message>
    <message id="help.iphone.h.howToEnable">
        <source>help.iphone.h.howToEnable</source>
        <translation>Sur l’iPhone, pour chaque app, avec un Mac</translation>
    </message>
    <message id="help.iphone.h.iphoneSettings">
        <source>help.iphone.h.iphoneSettings</source>
        <translation>Quand rien n’arrive sur le Mac</translation>
    </message>
    <message id="help.iphone.h.nativeMac">
        <source>help.iphone.h.nativeMac</source>
        <translation>Apps ici et sur un téléphone</translation>
    </message>
    <message id="help.iphone.h.requirements">
        <source>help.iphone.h.requirements</source>
        <translation>Ce que demande la Recopie de l’iPhone sur un Mac</translation>
    </message>
    <message id="help.iphone.h.solution">
        <source>help.iphone.h.solution</source>
        <translation>Programmes qui les amènent ici</translation>
    </message>
    <message id="help.iphone.p.nativeMac">
        <source>help.iphone.p.nativeMac</source>
        <translation>Tessarine voit ce qui est annoncé sur cet ordinateur. Une app qui tourne ici annonce ici, et elle est capturée.</translation>
    </message>
    <message id="help.iphone.p.nativeMac2">
        <source>help.iphone.p.nativeMac2</source>
        <translation>Ce que seul un téléphone montre n’atteint jamais l’ordinateur et ne peut pas être capturé.</translation>
    </message>
    <message id="help.iphone.p.routing">
        <source>help.iphone.p.routing</source>
        <translation>Une notification qu’un autre programme annonce pour un téléphone a le nom que ce programme lui donne. S’il n’y a ici aucune app de ce nom, un double-clic ne peut pas l’ouvrir et le dit.</translation>
    </message>
    <message id="help.iphone.p.solution">
        <source>help.iphone.p.solution</source>
        <translation>Un programme comme KDE Connect peut annoncer sur cet ordinateur les notifications d’un téléphone Android. Tessarine les capture alors comme toutes les autres. Linux n’a pas la Recopie de l’iPhone ; le reste de cette page parle d’un Mac.</translation>
    </message>
    <message id="help.iphone.title">
        <source>help.iphone.title</source>
        <translation>Téléphones</translation>
    </message>
    <message id="help.lim.30entries.desc">
        <source>help.lim.30entries.desc</source>
        <translation>La liste de notifications du bureau lui-même ne peut pas être lue. La réserve commence à la première ouverture de Tessarine.</translation>
    </message>
    <message id="help.lim.30entries.title">
        <source>help.lim.30entries.title</source>
        <translation>Rien d’avant</translation>
    </message>
    <message id="help.lim.30entries.workaround">
        <source>help.lim.30entries.workaround</source>
        <translation>Laissez Tessarine ouvert.</translation>
    </message>
    <message id="help.lim.appStore.desc">
        <source>help.lim.appStore.desc</source>
        <translation>Un bac à sable peut ne laisser les apps annoncer que par un portail. L’annonce du portail sur le bus de session est capturée, sous le nom qu’il donne.</translation>
    </message>
    <message id="help.lim.appStore.title">
        <source>help.lim.appStore.title</source>
        <translation>Apps dans un bac à sable</translation>
    </message>
    <message id="help.lim.appStore.workaround">
        <source>help.lim.appStore.workaround</source>
        <translation>Rien n’est nécessaire ; seul le nom peut différer.</translation>
    </message>
    <message id="help.lim.calendar.desc">
        <source>help.lim.calendar.desc</source>
        <translation>Le rappel d’un calendrier est à l’heure de son annonce, pas de l’événement.</translation>
    </message>
    <message id="help.lim.focus.desc">
        <source>help.lim.focus.desc</source>
        <translation>Certaines apps demandent au bureau et n’annoncent rien pendant « Ne pas déranger ».</translation>
    </message>
    <message id="help.lim.focus.title">
        <source>help.lim.focus.title</source>
        <translation>Ne pas déranger</translation>
    </message>
    <message id="help.lim.focus.workaround">
        <source>help.lim.focus.workaround</source>
        <translation>Regardez dans l’app elle-même.</translation>
    </message>
    <message id="help.lim.iphoneOff.desc">
        <source>help.lim.iphoneOff.desc</source>
        <translation>Rien ne vient d’un téléphone éteint ou éloigné.</translation>
    </message>
    <message id="help.lim.iphoneOff.title">
        <source>help.lim.iphoneOff.title</source>
        <translation>Le téléphone doit être allumé</translation>
    </message>
    <message id="help.lim.iphoneOff.workaround">
        <source>help.lim.iphoneOff.workaround</source>
        <translation>Gardez-le à portée, et chargé.</translation>
    </message>
    <message id="help.lim.mirroringSetup.desc">
        <source>help.lim.mirroringSetup.desc</source>
        <translation>Un programme qui amène les notifications d’un téléphone doit avoir le droit de les y lire.</translation>
    </message>
    <message id="help.lim.mirroringSetup.title">
        <source>help.lim.mirroringSetup.title</source>
        <translation>À régler sur le téléphone</translation>
    </message>
    <message id="help.lim.mirroringSetup.workaround">
        <source>help.lim.mirroringSetup.workaround</source>
        <translation>Suivez le guide de ce programme.</translation>
    </message>
    <message id="help.lim.nativeMacApp.desc">
        <source>help.lim.nativeMacApp.desc</source>
        <translation>Les notifications que seul un téléphone montre ne sont jamais capturées.</translation>
    </message>
    <message id="help.lim.nativeMacApp.title">
        <source>help.lim.nativeMacApp.title</source>
        <translation>Seulement ce qui atteint cet ordinateur</translation>
    </message>
    <message id="help.lim.nativeMacApp.workaround">
        <source>help.lim.nativeMacApp.workaround</source>
        <translation>Utilisez un programme qui les amène ici, ou la version de l’app pour le bureau.</translation>
    </message>
    <message id="help.lim.network.desc">
        <source>help.lim.network.desc</source>
        <translation>Sans réseau entre les deux, un téléphone ne transmet rien, et Tessarine ne peut pas savoir ce qui manque.</translation>
    </message>
    <message id="help.lim.network.title">
        <source>help.lim.network.title</source>
        <translation>Le réseau</translation>
    </message>
    <message id="help.lim.network.workaround">
        <source>help.lim.network.workaround</source>
        <translation>Gardez les deux sur le même réseau.</translation>
    </message>
    <message id="help.lim.notRunning.desc">
        <source>help.lim.notRunning.desc</source>
        <translation>Ce qui est annoncé pendant que Tessarine est fermé est perdu : Linux n’en garde pas trace.</translation>
    </message>
    <message id="help.lim.notRunning.workaround">
        <source>help.lim.notRunning.workaround</source>
        <translation>Ouvrez Tessarine avec la session.</translation>
    </message>
    <message id="help.lim.plaintext.workaround">
        <source>help.lim.plaintext.workaround</source>
        <translation>Chiffrez le disque ou votre dossier personnel.</translation>
    </message>
    <message id="help.lim.sameAppleId.desc">
        <source>help.lim.sameAppleId.desc</source>
        <translation>Apple ne l’offre qu’entre un iPhone et un Mac du même compte.</translation>
    </message>
    <message id="help.lim.sameAppleId.title">
        <source>help.lim.sameAppleId.title</source>
        <translation>Pas de Recopie de l’iPhone</translation>
    </message>
    <message id="help.lim.sameAppleId.workaround">
        <source>help.lim.sameAppleId.workaround</source>
        <translation>Utilisez la version de l’app pour le bureau, ou son site avec notifications.</translation>
    </message>
    <message id="help.lim.silent.desc">
        <source>help.lim.silent.desc</source>
        <translation>Une app qui ne fait que jouer un son ou marquer son icône n’annonce rien sur le bus.</translation>
    </message>
    <message id="help.lim.silent.title">
        <source>help.lim.silent.title</source>
        <translation>Apps silencieuses</translation>
    </message>
    <message id="help.lim.silent.workaround">
        <source>help.lim.silent.workaround</source>
        <translation>Activez les notifications dans les réglages de l’app.</translation>
    </message>
    <message id="help.lim.tahoe.desc">
        <source>help.lim.tahoe.desc</source>
        <translation>Un bus de session peut être réglé pour que personne ne puisse écouter. Tessarine ne voit alors rien, et le dit dans sa fenêtre.</translation>
    </message>
    <message id="help.lim.tahoe.title">
        <source>help.lim.tahoe.title</source>
        <translation>Bus de session stricts</translation>
    </message>
    <message id="help.lim.tahoe.workaround">
        <source>help.lim.tahoe.workaround</source>
        <translation>Regardez la fenêtre de diagnostic, et demandez à qui gère l’ordinateur.</translation>
    </message>
    <message id="help.lim.timestamps.desc">
        <source>help.lim.timestamps.desc</source>
        <translation>L’heure d’une ligne est celle de l’annonce, pas du message dont elle parle.</translation>
    </message>
    <message id="help.lim.timestamps.title">
        <source>help.lim.timestamps.title</source>
        <translation>Heures</translation>
    </message>
    <message id="help.lim.timestamps.workaround">
        <source>help.lim.timestamps.workaround</source>
        <translation>Regardez l’heure du message dans l’app.</translation>
    </message>
    <message id="help.lim.usernoted.desc">
        <source>help.lim.usernoted.desc</source>
        <translation>Une fenêtre qu’une app dessine elle-même pour ressembler à une notification n’est ni annoncée ni capturée.</translation>
    </message>
    <message id="help.lim.usernoted.title">
        <source>help.lim.usernoted.title</source>
        <translation>Seulement les annonces sur le bus</translation>
    </message>
    <message id="help.lim.usernoted.workaround">
        <source>help.lim.usernoted.workaround</source>
        <translation>Certaines apps peuvent être réglées sur les notifications du bureau.</translation>
    </message>
    <message id="help.limitations.h.iphone">
        <source>help.limitations.h.iphone</source>
        <translation>Téléphones</translation>
    </message>
    <message id="help.limitations.p.disclaimer">
        <source>help.limitations.p.disclaimer</source>
        <translation>Tessarine lit ce qui est annoncé sur le bus de session. Il ne peut pas promettre de saisir chaque notification.</translation>
    </message>
    <message id="help.macos.h.accessibility">
        <source>help.macos.h.accessibility</source>
        <translation>Autorisations</translation>
    </message>
    <message id="help.macos.h.alertStyle">
        <source>help.macos.h.alertStyle</source>
        <translation>Bannières</translation>
    </message>
    <message id="help.macos.h.focus">
        <source>help.macos.h.focus</source>
        <translation>Ne pas déranger</translation>
    </message>
    <message id="help.macos.h.timeMachine">
        <source>help.macos.h.timeMachine</source>
        <translation>Sauvegardes du dossier personnel</translation>
    </message>
    <message id="help.macos.p.accessibility">
        <source>help.macos.p.accessibility</source>
        <translation>Sous Linux, Tessarine n’a besoin d’aucune autorisation ; le bus de session doit le laisser écouter, ce que montre la fenêtre de diagnostic. Ces étapes sont pour un Mac :</translation>
    </message>
    <message id="help.macos.p.accessibility2">
        <source>help.macos.p.accessibility2</source>
        <translation>Sur un Mac, Tessarine s’en sert pour lire les bannières des notifications et pour rien d’autre.</translation>
    </message>
    <message id="help.macos.p.alertReco">
        <source>help.macos.p.alertReco</source>
        <translation>Il n’y a donc rien à régler dans les notifications du bureau pour Tessarine.</translation>
    </message>
    <message id="help.macos.p.alertStyle">
        <source>help.macos.p.alertStyle</source>
        <translation>Sous Linux, peu importe si le bureau montre une bannière : une annonce est capturée dès qu’une app la fait. Le tableau parle de macOS :</translation>
    </message>
    <message id="help.macos.p.focus">
        <source>help.macos.p.focus</source>
        <translation>« Ne pas déranger » tient les bannières loin de l’écran. La plupart des apps annoncent quand même, et Tessarine le capture.</translation>
    </message>
    <message id="help.macos.p.timeMachine">
        <source>help.macos.p.timeMachine</source>
        <translation>La réserve est dans votre dossier personnel, une sauvegarde de celui-ci la contient donc. Un fichier en usage peut être copié au milieu d’un changement ; une sauvegarde faite avec Tessarine est plus sûre.</translation>
    </message>
    <message id="help.macos.title">
        <source>help.macos.title</source>
        <translation>Réglages du système</translation>
    </message>
    <message id="help.menuBar.p.intro">
        <source>help.menuBar.p.intro</source>
        <translation>La cloche dans la zone de notification, ou dans un petit panneau si le bureau n’en a pas, est l’endroit où se trouve toujours Tessarine. Dans la zone, un clic ouvre la réserve et un clic droit le menu ; sur le panneau, tout clic ouvre le menu.</translation>
    </message>
    <message id="help.menuBar.p.optionClick">
        <source>help.menuBar.p.optionClick</source>
        <translation>Cliquez sur la cloche avec le bouton du milieu de la souris pour ouvrir la fenêtre de diagnostic. Sur le panneau, un clic avec Alt fait de même.</translation>
    </message>
    <message id="help.menuBar.row.checkUpdates.action">
        <source>help.menuBar.row.checkUpdates.action</source>
        <translation>Dit quelle version fonctionne et comment viennent les nouvelles.</translation>
    </message>
    <message id="help.menuBar.title">
        <source>help.menuBar.title</source>
        <translation>La cloche</translation>
    </message>
    <message id="help.prefs.p.excludedApps.note">
        <source>help.prefs.p.excludedApps.note</source>
        <translation>Une app est reconnue à son nom en minuscules, avec des points pour les espaces. Les apps du même nom sont exclues ensemble.</translation>
    </message>
    <message id="help.prefs.p.startup">
        <source>help.prefs.p.startup</source>
        <translation>« Ouvrir avec la session » ouvre Tessarine avec votre session, par une entrée dans votre dossier de démarrage automatique que les réglages du bureau montrent aussi. Il ne peut conserver que ce qui arrive pendant qu’il fonctionne.</translation>
    </message>
    <message id="help.prefs.p.startup3">
        <source>help.prefs.p.startup3</source>
        <translation>Il s’ouvre sans fenêtre. Vous ne voyez que sa cloche.</translation>
    </message>
    <message id="help.privacy.lim.noEncrypt.workaround">
        <source>help.privacy.lim.noEncrypt.workaround</source>
        <translation>Chiffrez le disque ou votre dossier personnel, et verrouillez l’écran quand vous partez.</translation>
    </message>
    <message id="help.privacy.lim.noPerApp.workaround">
        <source>help.privacy.lim.noPerApp.workaround</source>
        <translation>Mettez les identifiants des apps dans la liste privacyApps de ~/.config/com.zorvek.Tessarine.conf pendant que Tessarine est fermé.</translation>
    </message>
    <message id="help.privacy.protect.filevault.desc">
        <source>help.privacy.protect.filevault.desc</source>
        <translation>Un disque chiffré rend la réserve illisible tant que l’ordinateur est éteint.</translation>
    </message>
    <message id="help.tips.mirroring.desc">
        <source>help.tips.mirroring.desc</source>
        <translation>Ce qu’un programme comme KDE Connect annonce pour un téléphone arrive aussi dans la réserve.</translation>
    </message>
    <message id="help.tips.mirroring.title">
        <source>help.tips.mirroring.title</source>
        <translation>Faire venir le téléphone</translation>
    </message>
    <message id="help.tips.notifStyles.desc">
        <source>help.tips.notifStyles.desc</source>
        <translation>Une app qui n’annonce rien ne peut pas être capturée : activez les notifications dans ses réglages.</translation>
    </message>
    <message id="help.tips.notifStyles.title">
        <source>help.tips.notifStyles.title</source>
        <translation>Laisser les apps annoncer</translation>
    </message>
    <message id="launchAtLogin.info.silentStart">
        <source>launchAtLogin.info.silentStart</source>
        <translation>Il s’ouvre sans fenêtre. Vous ne voyez que sa cloche.</translation>
    </message>
    <message id="menu.fullDiskAccess">
        <source>menu.fullDiskAccess</source>
        <translation>Accès à une base…</translation>
    </message>
    <message id="onboarding.ax.granted">
        <source>onboarding.ax.granted</source>
        <translation>Accordé : le bus de session laisse Tessarine écouter.</translation>
    </message>
    <message id="onboarding.ax.howToEnable">
        <source>onboarding.ax.howToEnable</source>
        <translation>Ouvrez Tessarine depuis une session de bureau. Si vous l’avez fait, son bus interdit aux programmes d’écouter.</translation>
    </message>
    <message id="onboarding.ax.noPermissionWarning">
        <source>onboarding.ax.noPermissionWarning</source>
        <translation>Sans cet accès, aucune notification ne peut être conservée.</translation>
    </message>
    <message id="onboarding.ax.notGranted">
        <source>onboarding.ax.notGranted</source>
        <translation>Non accordé : le bus de session ne laisse pas Tessarine écouter, ou il n’y en a pas.</translation>
    </message>
    <message id="onboarding.ax.openSettings">
        <source>onboarding.ax.openSettings</source>
        <translation>Ouvrir les réglages</translation>
    </message>
    <message id="onboarding.ax.openSettings.hint">
        <source>onboarding.ax.openSettings.hint</source>
        <translation>Cette page s’aperçoit d’elle-même que le bus laisse Tessarine écouter.</translation>
    </message>
    <message id="onboarding.ax.subtitle">
        <source>onboarding.ax.subtitle</source>
        <translation>Tessarine écoute sur le bus de votre session, où les applications annoncent leurs notifications au bureau.</translation>
    </message>
    <message id="onboarding.ax.title">
        <source>onboarding.ax.title</source>
        <translation>Accès aux notifications</translation>
    </message>
    <message id="onboarding.ax.whatItDoes.text">
        <source>onboarding.ax.whatItDoes.text</source>
        <translation>Il prend le nom de l’application, le titre et le texte de chaque annonce, et les met dans la réserve.</translation>
    </message>
    <message id="onboarding.ax.whatItDoesNot.text">
        <source>onboarding.ax.whatItDoesNot.text</source>
        <translation>Il ne regarde pas vos fenêtres, ne suit pas ce que vous tapez, ne répond à personne et ne retarde personne.</translation>
    </message>
    <message id="onboarding.feature4.text">
        <source>onboarding.feature4.text</source>
        <translation>Le service de notifications de votre bureau n’a pas d’importance : Tessarine écoute sur le bus de session.</translation>
    </message>
    <message id="onboarding.feature4.title">
        <source>onboarding.feature4.title</source>
        <translation>Quel que soit le bureau</translation>
    </message>
    <message id="perm.fda.enabled">
        <source>perm.fda.enabled</source>
        <translation>Je l’ai autorisé</translation>
    </message>
    <message id="perm.fda.howto.header">
        <source>perm.fda.howto.header</source>
        <translation>Comment l’autoriser</translation>
    </message>
    <message id="perm.fda.notDetected">
        <source>perm.fda.notDetected</source>
        <translation>La base de données ne peut toujours pas être lue.</translation>
    </message>
    <message id="perm.fda.openSettings">
        <source>perm.fda.openSettings</source>
        <translation>Ouvrir les réglages</translation>
    </message>
    <message id="perm.fda.picture">
        <source>perm.fda.picture</source>
        <translation>Les propriétés d’un fichier, avec la lecture autorisée à son propriétaire</translation>
    </message>
    <message id="perm.fda.reason1">
        <source>perm.fda.reason1</source>
        <translation>Les notifications de cette base arrivent dans votre réserve.</translation>
    </message>
    <message id="perm.fda.reason2">
        <source>perm.fda.reason2</source>
        <translation>Ce qui sera écrit désormais dans cette base y arrive aussi.</translation>
    </message>
    <message id="perm.fda.restartHint">
        <source>perm.fda.restartHint</source>
        <translation>Si rien ne se passe, appuyez sur le bouton du bas.</translation>
    </message>
    <message id="perm.fda.step1">
        <source>perm.fda.step1</source>
        <translation>Ouvrez votre gestionnaire de fichiers.</translation>
    </message>
    <message id="perm.fda.step2">
        <source>perm.fda.step2</source>
        <translation>Allez dans Library/Group Containers/group.com.apple.usernoted/db2, dans votre dossier personnel.</translation>
    </message>
    <message id="perm.fda.step3">
        <source>perm.fda.step3</source>
        <translation>Ouvrez les propriétés du fichier « db ».</translation>
    </message>
    <message id="perm.fda.step4">
        <source>perm.fda.step4</source>
        <translation>Autorisez son propriétaire, c’est-à-dire vous, à le lire.</translation>
    </message>
    <message id="perm.fda.subtitle">
        <source>perm.fda.subtitle</source>
        <translation>Il y a dans votre dossier personnel une base de notifications que Tessarine ne peut pas lire.</translation>
    </message>
    <message id="perm.fda.title">
        <source>perm.fda.title</source>
        <translation>Accès à une base de notifications</translation>
    </message>
    <message id="perm.fda.without.row1">
        <source>perm.fda.without.row1</source>
        <translation>Les notifications de ce bureau sont conservées comme avant.</translation>
    </message>
    <message id="perm.fda.without.row2">
        <source>perm.fda.without.row2</source>
        <translation>Ce que contient cette base reste hors de la réserve.</translation>
    </message>
    <message id="updates.howTheyCome">
        <source>updates.howTheyCome</source>
        <translation>Les nouvelles versions arrivent avec les mises à jour de votre système, par le gestionnaire de paquets qui a installé Tessarine. Le programme lui-même ne se connecte jamais au réseau.</translation>
    </message>
    <message id="window.title.fda">
        <source>window.title.fda</source>
        <translation>Accès à une base de notifications</translation>
    </message>
</context>
</TS>
