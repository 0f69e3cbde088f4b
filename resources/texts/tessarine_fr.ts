<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name></name>
    <message id="action.cancel">
        <source>action.cancel</source>
        <translation>Annuler</translation>
    </message>
    <message id="action.close">
        <source>action.close</source>
        <translation>Fermer</translation>
    </message>
    <message id="action.continue">
        <source>action.continue</source>
        <translation>Continuer</translation>
    </message>
    <message id="action.done">
        <source>action.done</source>
        <translation>Terminé</translation>
    </message>
    <message id="action.ok">
        <source>action.ok</source>
        <translation>OK</translation>
    </message>
    <message id="banner.deepLink.subtitle">
        <source>banner.deepLink.subtitle</source>
        <translation>L’app montre l’endroit dont parle cette notification.</translation>
    </message>
    <message id="banner.deepLink.title">
        <source>banner.deepLink.title</source>
        <translation>Ouvert dans %1</translation>
    </message>
    <message id="banner.notInstalled.subtitle">
        <source>banner.notInstalled.subtitle</source>
        <translation>Aucune app nommée %1 n’a été trouvée.</translation>
    </message>
    <message id="banner.notInstalled.title">
        <source>banner.notInstalled.title</source>
        <translation>%1 n’est pas sur cet ordinateur</translation>
    </message>
    <message id="banner.notInstalled.unknownSubtitle">
        <source>banner.notInstalled.unknownSubtitle</source>
        <translation>Le système ne la nomme que %1.</translation>
    </message>
    <message id="banner.notInstalled.unknownTitle">
        <source>banner.notInstalled.unknownTitle</source>
        <translation>App inconnue</translation>
    </message>
    <message id="contextMenu.copyNotification">
        <source>contextMenu.copyNotification</source>
        <translation>Copier le texte</translation>
    </message>
    <message id="contextMenu.deleteAllCount" numerus="yes">
        <source>contextMenu.deleteAllCount</source>
        <translation>
            <numerusform>Supprimer %Ln notification</numerusform>
            <numerusform>Supprimer les %Ln notifications</numerusform>
        </translation>
    </message>
    <message id="contextMenu.deleteAllFrom">
        <source>contextMenu.deleteAllFrom</source>
        <translation>Tout supprimer de %1</translation>
    </message>
    <message id="contextMenu.deleteAllFromDate">
        <source>contextMenu.deleteAllFromDate</source>
        <translation>Tout supprimer du %1</translation>
    </message>
    <message id="contextMenu.deleteThis">
        <source>contextMenu.deleteThis</source>
        <translation>Supprimer cette notification</translation>
    </message>
    <message id="contextMenu.openInApp">
        <source>contextMenu.openInApp</source>
        <translation>Ouvrir %1</translation>
    </message>
    <message id="contextMenu.pinNotification">
        <source>contextMenu.pinNotification</source>
        <translation>Épingler</translation>
    </message>
    <message id="contextMenu.unpinNotification">
        <source>contextMenu.unpinNotification</source>
        <translation>Ne plus épingler</translation>
    </message>
    <message id="datePopover.footer">
        <source>datePopover.footer</source>
        <translation>Les choix s’additionnent : chacun ajoute ses notifications à la sélection.</translation>
    </message>
    <message id="datePopover.noData">
        <source>datePopover.noData</source>
        <translation>Pas encore de jour à choisir</translation>
    </message>
    <message id="datePopover.quickRanges">
        <source>datePopover.quickRanges</source>
        <translation>Périodes</translation>
    </message>
    <message id="datePopover.specificDays">
        <source>datePopover.specificDays</source>
        <translation>Jours</translation>
    </message>
    <message id="datePopover.title">
        <source>datePopover.title</source>
        <translation>Sélectionner par date</translation>
    </message>
    <message id="datePreset.last30days">
        <source>datePreset.last30days</source>
        <translation>30 derniers jours</translation>
    </message>
    <message id="datePreset.last7days">
        <source>datePreset.last7days</source>
        <translation>7 derniers jours</translation>
    </message>
    <message id="datePreset.lastMonth">
        <source>datePreset.lastMonth</source>
        <translation>Mois dernier</translation>
    </message>
    <message id="datePreset.thisMonth">
        <source>datePreset.thisMonth</source>
        <translation>Ce mois-ci</translation>
    </message>
    <message id="datePreset.thisYear">
        <source>datePreset.thisYear</source>
        <translation>Cette année</translation>
    </message>
    <message id="datePreset.today">
        <source>datePreset.today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message id="datePreset.yesterday">
        <source>datePreset.yesterday</source>
        <translation>Hier</translation>
    </message>
    <message id="diag.busy">
        <source>diag.busy</source>
        <translation>En cours</translation>
    </message>
    <message id="diag.db.apps">
        <source>diag.db.apps</source>
        <translation>Apps</translation>
    </message>
    <message id="diag.db.backup.fail">
        <source>diag.db.backup.fail</source>
        <translation>Échec de la sauvegarde : %1</translation>
    </message>
    <message id="diag.db.backup.panelTitle">
        <source>diag.db.backup.panelTitle</source>
        <translation>Sauvegarder la réserve</translation>
    </message>
    <message id="diag.db.backup.saveBtn">
        <source>diag.db.backup.saveBtn</source>
        <translation>Sauvegarder</translation>
    </message>
    <message id="diag.db.backup.success">
        <source>diag.db.backup.success</source>
        <translation>Sauvegarde enregistrée dans %1</translation>
    </message>
    <message id="diag.db.createBackup">
        <source>diag.db.createBackup</source>
        <translation>Sauvegarder…</translation>
    </message>
    <message id="diag.db.first">
        <source>diag.db.first</source>
        <translation>Première</translation>
    </message>
    <message id="diag.db.header">
        <source>diag.db.header</source>
        <translation>Réserve</translation>
    </message>
    <message id="diag.db.integrity.fail">
        <source>diag.db.integrity.fail</source>
        <translation>La vérification a trouvé des problèmes : %1</translation>
    </message>
    <message id="diag.db.integrity.pass">
        <source>diag.db.integrity.pass</source>
        <translation>La vérification n’a trouvé aucun problème</translation>
    </message>
    <message id="diag.db.last">
        <source>diag.db.last</source>
        <translation>Dernière</translation>
    </message>
    <message id="diag.db.pinned">
        <source>diag.db.pinned</source>
        <translation>Épinglées</translation>
    </message>
    <message id="diag.db.records">
        <source>diag.db.records</source>
        <translation>Entrées</translation>
    </message>
    <message id="diag.db.refresh.help">
        <source>diag.db.refresh.help</source>
        <translation>Compter de nouveau la réserve</translation>
    </message>
    <message id="diag.db.size">
        <source>diag.db.size</source>
        <translation>Taille</translation>
    </message>
    <message id="diag.db.verifyIntegrity">
        <source>diag.db.verifyIntegrity</source>
        <translation>Vérifier l’intégrité</translation>
    </message>
    <message id="diag.export.data">
        <source>diag.export.data</source>
        <translation>Exporter…</translation>
    </message>
    <message id="diag.level.activity">
        <source>diag.level.activity</source>
        <translation>activité</translation>
    </message>
    <message id="diag.level.info">
        <source>diag.level.info</source>
        <translation>information</translation>
    </message>
    <message id="diag.level.success">
        <source>diag.level.success</source>
        <translation>succès</translation>
    </message>
    <message id="diag.level.warning">
        <source>diag.level.warning</source>
        <translation>avertissement</translation>
    </message>
    <message id="diag.log.clear">
        <source>diag.log.clear</source>
        <translation>Vider le journal</translation>
    </message>
    <message id="diag.log.clearFilter">
        <source>diag.log.clearFilter</source>
        <translation>Effacer le filtre</translation>
    </message>
    <message id="diag.log.filtered">
        <source>diag.log.filtered</source>
        <translation>Aucune ligne du journal ne passe le filtre.</translation>
    </message>
    <message id="diag.log.list">
        <source>diag.log.list</source>
        <translation>Journal</translation>
    </message>
    <message id="diag.log.only">
        <source>diag.log.only</source>
        <translation>%1 seulement</translation>
    </message>
    <message id="diag.report.copied">
        <source>diag.report.copied</source>
        <translation>Rapport copié dans le presse-papiers</translation>
    </message>
    <message id="diag.report.copy">
        <source>diag.report.copy</source>
        <translation>Copier le rapport</translation>
    </message>
    <message id="diag.report.export.fail">
        <source>diag.report.export.fail</source>
        <translation>Le rapport n’a pas pu être exporté : %1</translation>
    </message>
    <message id="diag.report.export.panelTitle">
        <source>diag.report.export.panelTitle</source>
        <translation>Exporter le rapport de diagnostic</translation>
    </message>
    <message id="diag.report.export.saveBtn">
        <source>diag.report.export.saveBtn</source>
        <translation>Exporter</translation>
    </message>
    <message id="diag.report.exportReport">
        <source>diag.report.exportReport</source>
        <translation>Exporter le rapport…</translation>
    </message>
    <message id="diag.report.exported">
        <source>diag.report.exported</source>
        <translation>Rapport exporté sous %1</translation>
    </message>
    <message id="diag.report.includeContent">
        <source>diag.report.includeContent</source>
        <translation>Inclure le contenu des notifications dans les rapports exportés</translation>
    </message>
    <message id="diag.report.safeNote">
        <source>diag.report.safeNote</source>
        <translation>Sinon, les lignes du journal qui citent une notification ne nomment que son app. Un rapport copié contient le journal tel quel.</translation>
    </message>
    <message id="excludedApps.confirm.excludeAndDelete">
        <source>excludedApps.confirm.excludeAndDelete</source>
        <translation>Exclure et supprimer</translation>
    </message>
    <message id="excludedApps.confirm.excludeOnly">
        <source>excludedApps.confirm.excludeOnly</source>
        <translation>Exclure seulement</translation>
    </message>
    <message id="excludedApps.confirm.message">
        <source>excludedApps.confirm.message</source>
        <translation>Les nouvelles notifications de %1 ne seront pas conservées. Vous pouvez aussi supprimer tout ce que la réserve contient sous ce nom.</translation>
    </message>
    <message id="excludedApps.confirm.title">
        <source>excludedApps.confirm.title</source>
        <translation>Exclure %1 ?</translation>
    </message>
    <message id="excludedApps.empty.subtitle">
        <source>excludedApps.empty.subtitle</source>
        <translation>Une app figure ici dès qu’une de ses notifications a été conservée.</translation>
    </message>
    <message id="excludedApps.empty.title">
        <source>excludedApps.empty.title</source>
        <translation>Pas encore d’app</translation>
    </message>
    <message id="excludedApps.footer.count" numerus="yes">
        <source>excludedApps.footer.count</source>
        <translation>
            <numerusform>%Ln app est exclue</numerusform>
            <numerusform>%Ln apps sont exclues</numerusform>
        </translation>
    </message>
    <message id="excludedApps.subtitle">
        <source>excludedApps.subtitle</source>
        <translation>Activez une app pour ne plus conserver ses notifications.</translation>
    </message>
    <message id="excludedApps.title">
        <source>excludedApps.title</source>
        <translation>Apps exclues</translation>
    </message>
    <message id="export.close">
        <source>export.close</source>
        <translation>Fermer</translation>
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
        <translation>Terminé. Voici votre fichier.</translation>
    </message>
    <message id="export.exportAs">
        <source>export.exportAs</source>
        <translation>Exporter en %1</translation>
    </message>
    <message id="export.exporting">
        <source>export.exporting</source>
        <translation>Exportation…</translation>
    </message>
    <message id="export.format.csv.desc">
        <source>export.format.csv.desc</source>
        <translation>Une ligne par notification, pour les tableurs.</translation>
    </message>
    <message id="export.format.header">
        <source>export.format.header</source>
        <translation>Format</translation>
    </message>
    <message id="export.format.pdf.desc">
        <source>export.format.pdf.desc</source>
        <translation>Un rapport à imprimer ou à transmettre, avec un résumé par app.</translation>
    </message>
    <message id="export.format.txt.desc">
        <source>export.format.txt.desc</source>
        <translation>Un texte simple à lire, jour par jour.</translation>
    </message>
    <message id="export.plaintextWarning">
        <source>export.plaintextWarning</source>
        <translation>Quiconque peut ouvrir le fichier peut le lire. Gardez-le en lieu sûr.</translation>
    </message>
    <message id="export.privacy.confirmMessage">
        <source>export.privacy.confirmMessage</source>
        <translation>Les titres et les textes que Tessarine masque seront écrits dans le fichier tels quels. Quiconque l’ouvre peut les lire.</translation>
    </message>
    <message id="export.privacy.confirmTitle">
        <source>export.privacy.confirmTitle</source>
        <translation>Inclure le contenu masqué ?</translation>
    </message>
    <message id="export.privacy.header">
        <source>export.privacy.header</source>
        <translation>Confidentialité</translation>
    </message>
    <message id="export.privacy.includeHidden">
        <source>export.privacy.includeHidden</source>
        <translation>Inclure le contenu masqué</translation>
    </message>
    <message id="export.privacy.includeHidden.caption">
        <source>export.privacy.includeHidden.caption</source>
        <translation>Sinon, titres et textes deviennent « [hidden] ».</translation>
    </message>
    <message id="export.privacy.includeHidden.warning">
        <source>export.privacy.includeHidden.warning</source>
        <translation>Le fichier montrera tout ce que Tessarine masque.</translation>
    </message>
    <message id="export.privacy.includeReal">
        <source>export.privacy.includeReal</source>
        <translation>Inclure</translation>
    </message>
    <message id="export.privacy.keepHidden">
        <source>export.privacy.keepHidden</source>
        <translation>Laisser masqué</translation>
    </message>
    <message id="export.title">
        <source>export.title</source>
        <translation>Exporter les notifications</translation>
    </message>
    <message id="group.collapse">
        <source>group.collapse</source>
        <translation>Masquer %1</translation>
    </message>
    <message id="group.expand">
        <source>group.expand</source>
        <translation>Afficher %1</translation>
    </message>
    <message id="help.about.eula.accepted">
        <source>help.about.eula.accepted</source>
        <translation>Vous avez accepté le contrat à la première ouverture.</translation>
    </message>
    <message id="help.about.eula.reviewBtn">
        <source>help.about.eula.reviewBtn</source>
        <translation>Relire le contrat</translation>
    </message>
    <message id="help.about.h.acknowledgements">
        <source>help.about.h.acknowledgements</source>
        <translation>Remerciements</translation>
    </message>
    <message id="help.about.h.eula">
        <source>help.about.h.eula</source>
        <translation>Contrat de licence</translation>
    </message>
    <message id="help.about.sparkle.credit">
        <source>help.about.sparkle.credit</source>
        <translation>Sur macOS, la bibliothèque libre Sparkle apporte les mises à jour de Tessarine. Merci à ses auteurs.</translation>
    </message>
    <message id="help.about.title">
        <source>help.about.title</source>
        <translation>À propos</translation>
    </message>
    <message id="help.diagnostics.h.clear">
        <source>help.diagnostics.h.clear</source>
        <translation>Effacer, faire un rapport</translation>
    </message>
    <message id="help.diagnostics.h.filtering">
        <source>help.diagnostics.h.filtering</source>
        <translation>Filtrer</translation>
    </message>
    <message id="help.diagnostics.h.liveLog">
        <source>help.diagnostics.h.liveLog</source>
        <translation>Journal en direct</translation>
    </message>
    <message id="help.diagnostics.h.statusCards">
        <source>help.diagnostics.h.statusCards</source>
        <translation>État</translation>
    </message>
    <message id="help.diagnostics.p.clear">
        <source>help.diagnostics.p.clear</source>
        <translation>La corbeille vide le journal ; la réserve n’est pas touchée. Un rapport pour une erreur peut être copié ou enregistré. Celui qui est enregistré nomme l’app d’une notification et omet son contenu, sauf si vous l’activez ; celui qui est copié contient le journal tel quel.</translation>
    </message>
    <message id="help.diagnostics.p.filtering">
        <source>help.diagnostics.p.filtering</source>
        <translation>Cliquez sur le nom d’une partie pour ne voir que ses lignes, et de nouveau pour toutes. Le champ de recherche regarde dans les messages et les noms.</translation>
    </message>
    <message id="help.diagnostics.p.intro">
        <source>help.diagnostics.p.intro</source>
        <translation>Cette fenêtre montre Tessarine au travail. Cliquez sur la cloche en maintenant Option pour l’ouvrir. Son contenu n’est qu’en mémoire et disparaît quand vous quittez Tessarine.</translation>
    </message>
    <message id="help.diagnostics.p.liveLog">
        <source>help.diagnostics.p.liveLog</source>
        <translation>Chaque ligne a une heure, la partie du programme qui l’a écrite, un signe pour son importance et ce qui s’est passé. La plus récente est en haut ; les 200 dernières restent.</translation>
    </message>
    <message id="help.diagnostics.title">
        <source>help.diagnostics.title</source>
        <translation>Diagnostic</translation>
    </message>
    <message id="help.exporting.format.csv.desc">
        <source>help.exporting.format.csv.desc</source>
        <translation>Une ligne par notification : date, heure, app, identifiant de bundle, titre et texte. Le séparateur est le point-virgule, le codage UTF-8.</translation>
    </message>
    <message id="help.exporting.format.csv.title">
        <source>help.exporting.format.csv.title</source>
        <translation>CSV</translation>
    </message>
    <message id="help.exporting.format.pdf.desc">
        <source>help.exporting.format.pdf.desc</source>
        <translation>Un rapport à imprimer ou à transmettre, avec un résumé par app.</translation>
    </message>
    <message id="help.exporting.format.pdf.title">
        <source>help.exporting.format.pdf.title</source>
        <translation>PDF Report</translation>
    </message>
    <message id="help.exporting.format.xlsx.desc">
        <source>help.exporting.format.xlsx.desc</source>
        <translation>Il n’y a pas de format à part : les tableurs ouvrent le fichier CSV. Une cellule contient exactement ce que disait la notification, même si cela ressemble à une formule.</translation>
    </message>
    <message id="help.exporting.format.xlsx.title">
        <source>help.exporting.format.xlsx.title</source>
        <translation>Tableurs</translation>
    </message>
    <message id="help.exporting.h.formats">
        <source>help.exporting.h.formats</source>
        <translation>Formats</translation>
    </message>
    <message id="help.exporting.h.naming">
        <source>help.exporting.h.naming</source>
        <translation>Nom et emplacement</translation>
    </message>
    <message id="help.exporting.h.numbersExcel">
        <source>help.exporting.h.numbersExcel</source>
        <translation>Numbers et Excel</translation>
    </message>
    <message id="help.exporting.h.privacy">
        <source>help.exporting.h.privacy</source>
        <translation>Contenu masqué</translation>
    </message>
    <message id="help.exporting.p.intro">
        <source>help.exporting.p.intro</source>
        <translation>Le bouton d’exportation au-dessus de la liste écrit dans un fichier ce qui est chargé, dans un de trois formats : Text, CSV ou PDF Report. Recherche, filtre et sélection n’y changent rien. Depuis la fenêtre de diagnostic, une exportation contient les 500 premières notifications.</translation>
    </message>
    <message id="help.exporting.p.naming">
        <source>help.exporting.p.naming</source>
        <translation>Le nom proposé est Tessarine_ suivi de la date du jour, par exemple Tessarine_2026-03-03.csv. Vous choisissez le dossier. Seul votre compte peut lire le fichier.</translation>
    </message>
    <message id="help.exporting.p.numbers">
        <source>help.exporting.p.numbers</source>
        <translation>Numbers ouvre le fichier CSV d’un double-clic. Si Excel montre tout dans une colonne, importez le fichier comme texte et choisissez le point-virgule comme séparateur.</translation>
    </message>
    <message id="help.exporting.p.privacy">
        <source>help.exporting.p.privacy</source>
        <translation>Les titres et textes que Tessarine masque sont écrits « [hidden] ». Quand le contenu de toutes les apps est masqué, un interrupteur propose de l’inclure, et demande confirmation.</translation>
    </message>
    <message id="help.exporting.title">
        <source>help.exporting.title</source>
        <translation>Exportation</translation>
    </message>
    <message id="help.find.none">
        <source>help.find.none</source>
        <translation>Aucun résultat</translation>
    </message>
    <message id="help.find.none.detail">
        <source>help.find.none.detail</source>
        <translation>Aucune section de l’aide ne contient ces mots.</translation>
    </message>
    <message id="help.find.placeholder">
        <source>help.find.placeholder</source>
        <translation>Rechercher dans l’aide</translation>
    </message>
    <message id="help.hoard.contextMenu.0">
        <source>help.hoard.contextMenu.0</source>
        <translation>Copier le texte : met le titre et le texte dans le presse-papiers.</translation>
    </message>
    <message id="help.hoard.contextMenu.1">
        <source>help.hoard.contextMenu.1</source>
        <translation>Supprimer cette notification : tout de suite, sans question.</translation>
    </message>
    <message id="help.hoard.contextMenu.2">
        <source>help.hoard.contextMenu.2</source>
        <translation>Tout supprimer de cette app : chaque notification du même nom d’app, même non chargée. Tout de suite.</translation>
    </message>
    <message id="help.hoard.contextMenu.3">
        <source>help.hoard.contextMenu.3</source>
        <translation>Tout supprimer de ce jour : même ce qui n’est pas chargé. Tout de suite.</translation>
    </message>
    <message id="help.hoard.contextMenu.openInApp">
        <source>help.hoard.contextMenu.openInApp</source>
        <translation>Ouvrir : comme un double-clic.</translation>
    </message>
    <message id="help.hoard.contextMenu.pin">
        <source>help.hoard.contextMenu.pin</source>
        <translation>Épingler, ou Ne plus épingler : une notification épinglée est toujours chargée. Cela ne la protège pas de la suppression.</translation>
    </message>
    <message id="help.hoard.h.clicking">
        <source>help.hoard.h.clicking</source>
        <translation>À quoi mène un double-clic</translation>
    </message>
    <message id="help.hoard.h.contextMenu">
        <source>help.hoard.h.contextMenu</source>
        <translation>Le menu d’une ligne</translation>
    </message>
    <message id="help.hoard.h.interactions">
        <source>help.hoard.h.interactions</source>
        <translation>Souris et clavier</translation>
    </message>
    <message id="help.hoard.h.rows">
        <source>help.hoard.h.rows</source>
        <translation>Ce que montre une ligne</translation>
    </message>
    <message id="help.hoard.p.interaction.click">
        <source>help.hoard.p.interaction.click</source>
        <translation>Clic : marque la ligne. Si son contenu est masqué, le premier clic le montre.</translation>
    </message>
    <message id="help.hoard.p.interaction.cmdC">
        <source>help.hoard.p.interaction.cmdC</source>
        <translation>Commande-C : copie le titre et le texte de la notification marquée.</translation>
    </message>
    <message id="help.hoard.p.interaction.doubleClick">
        <source>help.hoard.p.interaction.doubleClick</source>
        <translation>Double-clic : ouvre l’app qui a envoyé la notification.</translation>
    </message>
    <message id="help.hoard.p.interaction.esc">
        <source>help.hoard.p.interaction.esc</source>
        <translation>Échap : enlève la marque.</translation>
    </message>
    <message id="help.hoard.p.interaction.space">
        <source>help.hoard.p.interaction.space</source>
        <translation>Espace : montre en entier la notification marquée, et la referme.</translation>
    </message>
    <message id="help.hoard.p.rows">
        <source>help.hoard.p.rows</source>
        <translation>Chaque ligne a l’icône et le nom de l’app, le titre, le texte et l’heure d’une notification. Une épingle marque une ligne épinglée, un cadenas un contenu masqué. Les lignes épinglées restent parmi les autres, à leur heure ; elles sont chargées d’abord, si anciennes soient-elles.</translation>
    </message>
    <message id="help.hoard.title">
        <source>help.hoard.title</source>
        <translation>La réserve</translation>
    </message>
    <message id="help.howItWorks.h.layersTogether">
        <source>help.howItWorks.h.layersTogether</source>
        <translation>Ce que chaque chemin capture</translation>
    </message>
    <message id="help.howItWorks.h.localStorage">
        <source>help.howItWorks.h.localStorage</source>
        <translation>Où se trouve la réserve</translation>
    </message>
    <message id="help.howItWorks.h.sleepWake">
        <source>help.howItWorks.h.sleepWake</source>
        <translation>Veille et réveil</translation>
    </message>
    <message id="help.howItWorks.h.threeLayers">
        <source>help.howItWorks.h.threeLayers</source>
        <translation>Trois chemins vers une notification</translation>
    </message>
    <message id="help.howItWorks.layer.ax.desc">
        <source>help.howItWorks.layer.ax.desc</source>
        <translation>Par Accessibilité, Tessarine lit chaque bannière à l’écran, au plus une fois par seconde. C’est le chemin le plus rapide, et il ne demande aucun accès aux fichiers.</translation>
    </message>
    <message id="help.howItWorks.layer.ax.title">
        <source>help.howItWorks.layer.ax.title</source>
        <translation>Bannières</translation>
    </message>
    <message id="help.howItWorks.layer.legacy.desc">
        <source>help.howItWorks.layer.legacy.desc</source>
        <translation>Les anciennes versions de macOS gardaient les notifications dans un autre fichier. S’il est là et lisible, Tessarine le lit à l’ouverture et à chaque écriture.</translation>
    </message>
    <message id="help.howItWorks.layer.legacy.title">
        <source>help.howItWorks.layer.legacy.title</source>
        <translation>La base des anciens systèmes</translation>
    </message>
    <message id="help.howItWorks.layer.usernoted.desc">
        <source>help.howItWorks.layer.usernoted.desc</source>
        <translation>Avec Accès complet au disque, Tessarine lit la base où macOS garde les notifications récentes : à l’ouverture, à chaque écriture et toutes les 30 secondes. Il trouve ainsi aussi ce qui n’est jamais apparu en bannière.</translation>
    </message>
    <message id="help.howItWorks.layer.usernoted.title">
        <source>help.howItWorks.layer.usernoted.title</source>
        <translation>La base de données du système</translation>
    </message>
    <message id="help.howItWorks.p.sleep">
        <source>help.howItWorks.p.sleep</source>
        <translation>Avant la mise en veille de l’ordinateur, Tessarine cesse d’observer les bannières. Deux secondes après le réveil il recommence, et la lecture suivante de la base apporte ce qui est arrivé entre-temps.</translation>
    </message>
    <message id="help.howItWorks.p.storage">
        <source>help.howItWorks.p.storage</source>
        <translation>Tout est dans un seul fichier sur votre Mac, ~/Library/Application Support/Tessarine/hoard.db, que seul votre compte peut lire. Tessarine n’a ni serveur ni compte et n’envoie vos notifications à personne.</translation>
    </message>
    <message id="help.howItWorks.p1">
        <source>help.howItWorks.p1</source>
        <translation>Le système oublie les notifications en quelques jours. Tessarine copie chacune dans une archive à lui, la réserve, où elle reste jusqu’à ce que vous la supprimiez. Il se tient dans la barre des menus et travaille tant qu’il fonctionne.</translation>
    </message>
    <message id="help.howItWorks.title">
        <source>help.howItWorks.title</source>
        <translation>Fonctionnement</translation>
    </message>
    <message id="help.iphone.h.howToEnable">
        <source>help.iphone.h.howToEnable</source>
        <translation>Sur l’iPhone, pour chaque app</translation>
    </message>
    <message id="help.iphone.h.iphoneSettings">
        <source>help.iphone.h.iphoneSettings</source>
        <translation>Quand rien n’arrive</translation>
    </message>
    <message id="help.iphone.h.nativeMac">
        <source>help.iphone.h.nativeMac</source>
        <translation>Apps sur le Mac et sur l’iPhone</translation>
    </message>
    <message id="help.iphone.h.requirements">
        <source>help.iphone.h.requirements</source>
        <translation>Ce qu’il faut</translation>
    </message>
    <message id="help.iphone.h.routing">
        <source>help.iphone.h.routing</source>
        <translation>D’où elles viennent</translation>
    </message>
    <message id="help.iphone.h.solution">
        <source>help.iphone.h.solution</source>
        <translation>Recopie de l’iPhone</translation>
    </message>
    <message id="help.iphone.p.nativeMac">
        <source>help.iphone.p.nativeMac</source>
        <translation>Tessarine voit ce que ce Mac montre. Une app qui tourne sur le Mac annonce ici, et elle est capturée.</translation>
    </message>
    <message id="help.iphone.p.nativeMac2">
        <source>help.iphone.p.nativeMac2</source>
        <translation>Ce que seul l’iPhone montre n’atteint jamais le Mac et ne peut pas être capturé.</translation>
    </message>
    <message id="help.iphone.p.routing">
        <source>help.iphone.p.routing</source>
        <translation>Une notification recopiée a le nom de l’app de l’iPhone. Si cette app n’est pas sur le Mac, un double-clic ne peut pas l’ouvrir et le dit.</translation>
    </message>
    <message id="help.iphone.p.solution">
        <source>help.iphone.p.solution</source>
        <translation>Avec Recopie de l’iPhone, le Mac montre les notifications de l’iPhone comme les siennes. Tessarine les capture alors comme toutes les autres.</translation>
    </message>
    <message id="help.iphone.req.appleId.desc">
        <source>help.iphone.req.appleId.desc</source>
        <translation>Mac et iPhone sont connectés au même compte, avec l’identification à deux facteurs.</translation>
    </message>
    <message id="help.iphone.req.appleId.title">
        <source>help.iphone.req.appleId.title</source>
        <translation>Le même compte Apple</translation>
    </message>
    <message id="help.iphone.req.ios18.desc">
        <source>help.iphone.req.ios18.desc</source>
        <translation>Les systèmes plus anciens n’ont pas la Recopie de l’iPhone.</translation>
    </message>
    <message id="help.iphone.req.ios18.title">
        <source>help.iphone.req.ios18.title</source>
        <translation>iOS 18 et macOS 15, ou plus récents</translation>
    </message>
    <message id="help.iphone.req.notifs.desc">
        <source>help.iphone.req.notifs.desc</source>
        <translation>Dans Réglages Système › Notifications, les notifications depuis l’iPhone sont autorisées.</translation>
    </message>
    <message id="help.iphone.req.notifs.title">
        <source>help.iphone.req.notifs.title</source>
        <translation>Notifications depuis l’iPhone</translation>
    </message>
    <message id="help.iphone.req.wifi.desc">
        <source>help.iphone.req.wifi.desc</source>
        <translation>Les deux sont activés, sur les deux appareils, proches l’un de l’autre.</translation>
    </message>
    <message id="help.iphone.req.wifi.title">
        <source>help.iphone.req.wifi.title</source>
        <translation>Wi-Fi et Bluetooth</translation>
    </message>
    <message id="help.iphone.title">
        <source>help.iphone.title</source>
        <translation>iPhone</translation>
    </message>
    <message id="help.iphone.walk.app.label">
        <source>help.iphone.walk.app.label</source>
        <translation>Touchez l’app dont vous voulez les notifications.</translation>
    </message>
    <message id="help.iphone.walk.app.screen">
        <source>help.iphone.walk.app.screen</source>
        <translation>L’app</translation>
    </message>
    <message id="help.iphone.walk.hoard.label">
        <source>help.iphone.walk.hoard.label</source>
        <translation>La prochaine notification apparaît sur le Mac et arrive dans la réserve.</translation>
    </message>
    <message id="help.iphone.walk.hoard.screen">
        <source>help.iphone.walk.hoard.screen</source>
        <translation>Sur le Mac</translation>
    </message>
    <message id="help.iphone.walk.next">
        <source>help.iphone.walk.next</source>
        <translation>Étape suivante</translation>
    </message>
    <message id="help.iphone.walk.notifications.label">
        <source>help.iphone.walk.notifications.label</source>
        <translation>Touchez Notifications.</translation>
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
        <translation>Lire depuis la première étape</translation>
    </message>
    <message id="help.iphone.walk.previous">
        <source>help.iphone.walk.previous</source>
        <translation>Étape précédente</translation>
    </message>
    <message id="help.iphone.walk.settings.label">
        <source>help.iphone.walk.settings.label</source>
        <translation>Ouvrez Réglages sur l’iPhone.</translation>
    </message>
    <message id="help.iphone.walk.settings.screen">
        <source>help.iphone.walk.settings.screen</source>
        <translation>Réglages</translation>
    </message>
    <message id="help.iphone.walk.showOnMac.label">
        <source>help.iphone.walk.showOnMac.label</source>
        <translation>Activez « Afficher sur le Mac ».</translation>
    </message>
    <message id="help.iphone.walk.showOnMac.screen">
        <source>help.iphone.walk.showOnMac.screen</source>
        <translation>Afficher sur le Mac</translation>
    </message>
    <message id="help.lim.30entries.desc">
        <source>help.lim.30entries.desc</source>
        <translation>À l’ouverture, Tessarine prend tout ce que la base du système a encore, jusqu’à 30 jours en arrière la première fois. Le système lui-même supprime tôt ; souvent il reste environ 30 entrées.</translation>
    </message>
    <message id="help.lim.30entries.title">
        <source>help.lim.30entries.title</source>
        <translation>Le système garde peu</translation>
    </message>
    <message id="help.lim.30entries.workaround">
        <source>help.lim.30entries.workaround</source>
        <translation>Laissez Tessarine ouvert.</translation>
    </message>
    <message id="help.lim.appStore.desc">
        <source>help.lim.appStore.desc</source>
        <translation>Les apps de l’App Store n’ont pas le droit d’en observer d’autres par Accessibilité.</translation>
    </message>
    <message id="help.lim.appStore.title">
        <source>help.lim.appStore.title</source>
        <translation>Pas dans l’App Store</translation>
    </message>
    <message id="help.lim.appStore.workaround">
        <source>help.lim.appStore.workaround</source>
        <translation>Prenez Tessarine et ses mises à jour chez ses auteurs.</translation>
    </message>
    <message id="help.lim.calendar.desc">
        <source>help.lim.calendar.desc</source>
        <translation>Le rappel d’un calendrier est à l’heure de sa bannière, pas de l’événement. « Demain à 9:30 » reste dans son texte.</translation>
    </message>
    <message id="help.lim.calendar.title">
        <source>help.lim.calendar.title</source>
        <translation>Heures des événements</translation>
    </message>
    <message id="help.lim.calendar.workaround">
        <source>help.lim.calendar.workaround</source>
        <translation>Cherchez le jour ou l’événement dans le texte.</translation>
    </message>
    <message id="help.lim.exportPlain.desc">
        <source>help.lim.exportPlain.desc</source>
        <translation>Aucune exportation n’a de mot de passe.</translation>
    </message>
    <message id="help.lim.exportPlain.title">
        <source>help.lim.exportPlain.title</source>
        <translation>Les exportations sont en clair</translation>
    </message>
    <message id="help.lim.exportPlain.workaround">
        <source>help.lim.exportPlain.workaround</source>
        <translation>Gardez les exportations sur un disque chiffré, et supprimez celles qui ne servent plus.</translation>
    </message>
    <message id="help.lim.focus.desc">
        <source>help.lim.focus.desc</source>
        <translation>Quand une concentration retient les bannières, le chemin des bannières ne voit rien.</translation>
    </message>
    <message id="help.lim.focus.title">
        <source>help.lim.focus.title</source>
        <translation>Concentration</translation>
    </message>
    <message id="help.lim.focus.workaround">
        <source>help.lim.focus.workaround</source>
        <translation>Accordez Accès complet au disque.</translation>
    </message>
    <message id="help.lim.iphoneOff.desc">
        <source>help.lim.iphoneOff.desc</source>
        <translation>Un iPhone éteint ou éloigné ne recopie rien.</translation>
    </message>
    <message id="help.lim.iphoneOff.title">
        <source>help.lim.iphoneOff.title</source>
        <translation>L’iPhone doit être allumé</translation>
    </message>
    <message id="help.lim.iphoneOff.workaround">
        <source>help.lim.iphoneOff.workaround</source>
        <translation>Gardez-le près du Mac, et chargé.</translation>
    </message>
    <message id="help.lim.mirroringSetup.desc">
        <source>help.lim.mirroringSetup.desc</source>
        <translation>Une app dont l’interrupteur « Afficher sur le Mac » est désactivé reste sur l’iPhone.</translation>
    </message>
    <message id="help.lim.mirroringSetup.title">
        <source>help.lim.mirroringSetup.title</source>
        <translation>La recopie se règle app par app</translation>
    </message>
    <message id="help.lim.mirroringSetup.workaround">
        <source>help.lim.mirroringSetup.workaround</source>
        <translation>Activez-le dans les réglages de l’iPhone.</translation>
    </message>
    <message id="help.lim.nativeMacApp.desc">
        <source>help.lim.nativeMacApp.desc</source>
        <translation>Les notifications que seul l’iPhone montre ne sont jamais capturées.</translation>
    </message>
    <message id="help.lim.nativeMacApp.title">
        <source>help.lim.nativeMacApp.title</source>
        <translation>Seulement ce qui atteint le Mac</translation>
    </message>
    <message id="help.lim.nativeMacApp.workaround">
        <source>help.lim.nativeMacApp.workaround</source>
        <translation>Utilisez Recopie de l’iPhone, ou la version de l’app pour Mac.</translation>
    </message>
    <message id="help.lim.network.desc">
        <source>help.lim.network.desc</source>
        <translation>Sans eux, rien n’est recopié, et Tessarine ne peut pas savoir ce qui manque.</translation>
    </message>
    <message id="help.lim.network.title">
        <source>help.lim.network.title</source>
        <translation>Wi-Fi et Bluetooth</translation>
    </message>
    <message id="help.lim.network.workaround">
        <source>help.lim.network.workaround</source>
        <translation>Laissez les deux activés, sur les deux appareils.</translation>
    </message>
    <message id="help.lim.notRunning.desc">
        <source>help.lim.notRunning.desc</source>
        <translation>Ce qui arrive pendant que Tessarine est fermé ne peut venir que de la base du système, et seulement avec Accès complet au disque.</translation>
    </message>
    <message id="help.lim.notRunning.title">
        <source>help.lim.notRunning.title</source>
        <translation>Fermé, il ne voit rien</translation>
    </message>
    <message id="help.lim.notRunning.workaround">
        <source>help.lim.notRunning.workaround</source>
        <translation>Ouvrez Tessarine avec la session et accordez Accès complet au disque.</translation>
    </message>
    <message id="help.lim.otpForever.desc">
        <source>help.lim.otpForever.desc</source>
        <translation>Les codes à usage unique sont conservés comme tout le reste, sauf si vous choisissez autre chose. Même alors, ils ne sont supprimés qu’à une ouverture.</translation>
    </message>
    <message id="help.lim.otpForever.title">
        <source>help.lim.otpForever.title</source>
        <translation>Les codes restent</translation>
    </message>
    <message id="help.lim.otpForever.workaround">
        <source>help.lim.otpForever.workaround</source>
        <translation>Choisissez une durée dans Préférences › Confidentialité, et rouvrez Tessarine de temps en temps.</translation>
    </message>
    <message id="help.lim.plaintext.desc">
        <source>help.lim.plaintext.desc</source>
        <translation>Les notifications sont conservées comme elles sont venues, sans chiffrement.</translation>
    </message>
    <message id="help.lim.plaintext.title">
        <source>help.lim.plaintext.title</source>
        <translation>La réserve est en clair</translation>
    </message>
    <message id="help.lim.plaintext.workaround">
        <source>help.lim.plaintext.workaround</source>
        <translation>Activez FileVault.</translation>
    </message>
    <message id="help.lim.privacyGlobal.desc">
        <source>help.lim.privacyGlobal.desc</source>
        <translation>L’interrupteur du contenu masqué vaut pour toutes les apps.</translation>
    </message>
    <message id="help.lim.privacyGlobal.title">
        <source>help.lim.privacyGlobal.title</source>
        <translation>Tout masqué ou rien</translation>
    </message>
    <message id="help.lim.privacyGlobal.workaround">
        <source>help.lim.privacyGlobal.workaround</source>
        <translation>Excluez une app dont vous ne voulez pas du tout conserver les notifications.</translation>
    </message>
    <message id="help.lim.python.desc">
        <source>help.lim.python.desc</source>
        <translation>Tessarine ne peut pas être commandé par Python ou d’autres scripts.</translation>
    </message>
    <message id="help.lim.python.title">
        <source>help.lim.python.title</source>
        <translation>Pas de commandes pour les scripts</translation>
    </message>
    <message id="help.lim.python.workaround">
        <source>help.lim.python.workaround</source>
        <translation>Faites lire aux scripts un fichier CSV exporté, ou une sauvegarde, qui est une base SQLite avec la table notifications.</translation>
    </message>
    <message id="help.lim.sameAppleId.desc">
        <source>help.lim.sameAppleId.desc</source>
        <translation>Mac et iPhone de comptes différents ne peuvent pas être reliés.</translation>
    </message>
    <message id="help.lim.sameAppleId.title">
        <source>help.lim.sameAppleId.title</source>
        <translation>Un seul compte</translation>
    </message>
    <message id="help.lim.sameAppleId.workaround">
        <source>help.lim.sameAppleId.workaround</source>
        <translation>Connectez-vous au même compte Apple sur les deux.</translation>
    </message>
    <message id="help.lim.silent.desc">
        <source>help.lim.silent.desc</source>
        <translation>Une notification sans bannière n’est que dans la base du système.</translation>
    </message>
    <message id="help.lim.silent.title">
        <source>help.lim.silent.title</source>
        <translation>Notifications silencieuses</translation>
    </message>
    <message id="help.lim.silent.workaround">
        <source>help.lim.silent.workaround</source>
        <translation>Accordez Accès complet au disque, ou réglez l’app sur Bannières.</translation>
    </message>
    <message id="help.lim.tahoe.desc">
        <source>help.lim.tahoe.desc</source>
        <translation>Chaque macOS dessine les bannières à sa façon. Si l’un les dessine autrement, des textes peuvent manquer ou être mêlés.</translation>
    </message>
    <message id="help.lim.tahoe.title">
        <source>help.lim.tahoe.title</source>
        <translation>macOS 26 et plus récents</translation>
    </message>
    <message id="help.lim.tahoe.workaround">
        <source>help.lim.tahoe.workaround</source>
        <translation>Regardez la fenêtre de diagnostic après une mise à jour du système.</translation>
    </message>
    <message id="help.lim.timestamps.desc">
        <source>help.lim.timestamps.desc</source>
        <translation>Une bannière montre un âge comme « 5m ago », ou rien. L’heure en est déduite et peut être fausse d’une minute. Sur un Mac qui n’est pas en anglais, c’est l’heure où la bannière a été vue.</translation>
    </message>
    <message id="help.lim.timestamps.title">
        <source>help.lim.timestamps.title</source>
        <translation>Heures des bannières</translation>
    </message>
    <message id="help.lim.timestamps.workaround">
        <source>help.lim.timestamps.workaround</source>
        <translation>Avec Accès complet au disque, il y a une seconde ligne avec l’heure exacte.</translation>
    </message>
    <message id="help.lim.uiLimit.desc">
        <source>help.lim.uiLimit.desc</source>
        <translation>Recherche, filtre et sélection ne voient que ce qui est chargé. Après chaque capture, la liste revient aux 500 plus récentes.</translation>
    </message>
    <message id="help.lim.uiLimit.title">
        <source>help.lim.uiLimit.title</source>
        <translation>La liste commence par 500</translation>
    </message>
    <message id="help.lim.uiLimit.workaround">
        <source>help.lim.uiLimit.workaround</source>
        <translation>Cliquez sur « Charger plus anciennes » jusqu’à ce que la liste remonte assez loin.</translation>
    </message>
    <message id="help.lim.usernoted.desc">
        <source>help.lim.usernoted.desc</source>
        <translation>Une nouvelle version de macOS peut la changer. Ce chemin ne trouve alors rien jusqu’à ce que Tessarine connaisse la nouvelle forme.</translation>
    </message>
    <message id="help.lim.usernoted.title">
        <source>help.lim.usernoted.title</source>
        <translation>La base du système n’est pas documentée</translation>
    </message>
    <message id="help.lim.usernoted.workaround">
        <source>help.lim.usernoted.workaround</source>
        <translation>Les bannières sont capturées quand même.</translation>
    </message>
    <message id="help.lim.walBackup.desc">
        <source>help.lim.walBackup.desc</source>
        <translation>SQLite écrit d’abord dans hoard.db-wal, à côté de la réserve. Copier hoard.db seul, comme le fait la sauvegarde des préférences, peut omettre ce qui est arrivé en dernier.</translation>
    </message>
    <message id="help.lim.walBackup.title">
        <source>help.lim.walBackup.title</source>
        <translation>Les dernières lignes peuvent manquer dans un fichier copié</translation>
    </message>
    <message id="help.lim.walBackup.workaround">
        <source>help.lim.walBackup.workaround</source>
        <translation>Utilisez la sauvegarde de la fenêtre de diagnostic.</translation>
    </message>
    <message id="help.limitations.h.capture">
        <source>help.limitations.h.capture</source>
        <translation>Capture</translation>
    </message>
    <message id="help.limitations.h.hoard">
        <source>help.limitations.h.hoard</source>
        <translation>Réserve</translation>
    </message>
    <message id="help.limitations.h.iphone">
        <source>help.limitations.h.iphone</source>
        <translation>iPhone</translation>
    </message>
    <message id="help.limitations.h.privacy">
        <source>help.limitations.h.privacy</source>
        <translation>Confidentialité</translation>
    </message>
    <message id="help.limitations.h.system">
        <source>help.limitations.h.system</source>
        <translation>Système</translation>
    </message>
    <message id="help.limitations.p.disclaimer">
        <source>help.limitations.p.disclaimer</source>
        <translation>Tessarine lit ce que le système montre et garde. Il ne peut pas promettre de saisir chaque notification.</translation>
    </message>
    <message id="help.limitations.p.eula">
        <source>help.limitations.p.eula</source>
        <translation>N’en faites pas la seule trace de quelque chose d’important. Le contrat en dit plus.</translation>
    </message>
    <message id="help.limitations.title">
        <source>help.limitations.title</source>
        <translation>Limites</translation>
    </message>
    <message id="help.macos.h.accessibility">
        <source>help.macos.h.accessibility</source>
        <translation>Accessibilité</translation>
    </message>
    <message id="help.macos.h.alertStyle">
        <source>help.macos.h.alertStyle</source>
        <translation>Style d’alerte</translation>
    </message>
    <message id="help.macos.h.focus">
        <source>help.macos.h.focus</source>
        <translation>Concentration</translation>
    </message>
    <message id="help.macos.h.timeMachine">
        <source>help.macos.h.timeMachine</source>
        <translation>Time Machine</translation>
    </message>
    <message id="help.macos.p.accessibility">
        <source>help.macos.p.accessibility</source>
        <translation>Tessarine a besoin de cette autorisation pour lire les bannières à l’écran.</translation>
    </message>
    <message id="help.macos.p.accessibility2">
        <source>help.macos.p.accessibility2</source>
        <translation>Tessarine s’en sert pour lire les bannières des notifications et pour rien d’autre. Une fois accordée, elle vaut sans redémarrage.</translation>
    </message>
    <message id="help.macos.p.alertReco">
        <source>help.macos.p.alertReco</source>
        <translation>Conseillé : bannières ou alertes pour chaque app qui compte pour vous. Elles sont capturées même sans Accès complet au disque.</translation>
    </message>
    <message id="help.macos.p.alertStyle">
        <source>help.macos.p.alertStyle</source>
        <translation>Réglages Système › Notifications fixe pour chaque app comment elle annonce. Ce que cela veut dire pour la capture :</translation>
    </message>
    <message id="help.macos.p.focus">
        <source>help.macos.p.focus</source>
        <translation>Pendant une concentration, macOS peut ne montrer aucune bannière. Ce qu’il retient ne se trouve alors que dans la base du système, qui demande Accès complet au disque.</translation>
    </message>
    <message id="help.macos.p.timeMachine">
        <source>help.macos.p.timeMachine</source>
        <translation>La réserve est dans votre dossier Bibliothèque, Time Machine la copie donc. Un fichier en usage peut être copié au milieu d’un changement ; une sauvegarde faite avec Tessarine est plus sûre.</translation>
    </message>
    <message id="help.macos.title">
        <source>help.macos.title</source>
        <translation>Réglages de macOS</translation>
    </message>
    <message id="help.menuBar.h.badge">
        <source>help.menuBar.h.badge</source>
        <translation>Le nombre à côté de la cloche</translation>
    </message>
    <message id="help.menuBar.h.leftClick">
        <source>help.menuBar.h.leftClick</source>
        <translation>Le menu</translation>
    </message>
    <message id="help.menuBar.h.optionClick">
        <source>help.menuBar.h.optionClick</source>
        <translation>Diagnostic</translation>
    </message>
    <message id="help.menuBar.p.badge">
        <source>help.menuBar.p.badge</source>
        <translation>Il compte ce qui est arrivé depuis que vous avez ouvert la réserve, jusqu’à 99 ; au-delà on lit 99+. Il compte dans la liste des 500 plus récentes et peut donc rester en arrière quand elle est pleine.</translation>
    </message>
    <message id="help.menuBar.p.intro">
        <source>help.menuBar.p.intro</source>
        <translation>La cloche dans la barre des menus est l’endroit où se trouve toujours Tessarine.</translation>
    </message>
    <message id="help.menuBar.p.optionClick">
        <source>help.menuBar.p.optionClick</source>
        <translation>Cliquez sur la cloche en maintenant Option pour ouvrir la fenêtre de diagnostic.</translation>
    </message>
    <message id="help.menuBar.row.checkUpdates">
        <source>help.menuBar.row.checkUpdates</source>
        <translation>Rechercher des mises à jour</translation>
    </message>
    <message id="help.menuBar.row.checkUpdates.action">
        <source>help.menuBar.row.checkUpdates.action</source>
        <translation>Cherche une version plus récente.</translation>
    </message>
    <message id="help.menuBar.row.help">
        <source>help.menuBar.row.help</source>
        <translation>Aide Tessarine</translation>
    </message>
    <message id="help.menuBar.row.help.action">
        <source>help.menuBar.row.help.action</source>
        <translation>Ouvre une fenêtre comme celle-ci.</translation>
    </message>
    <message id="help.menuBar.row.launchAtLogin">
        <source>help.menuBar.row.launchAtLogin</source>
        <translation>Ouvrir avec la session</translation>
    </message>
    <message id="help.menuBar.row.launchAtLogin.action">
        <source>help.menuBar.row.launchAtLogin.action</source>
        <translation>L’active ou le désactive. Une coche montre que c’est activé.</translation>
    </message>
    <message id="help.menuBar.row.openHoard">
        <source>help.menuBar.row.openHoard</source>
        <translation>Ouvrir la réserve</translation>
    </message>
    <message id="help.menuBar.row.openHoard.action">
        <source>help.menuBar.row.openHoard.action</source>
        <translation>Montre la fenêtre avec vos notifications et efface le nombre.</translation>
    </message>
    <message id="help.menuBar.row.preferences">
        <source>help.menuBar.row.preferences</source>
        <translation>Préférences</translation>
    </message>
    <message id="help.menuBar.row.preferences.action">
        <source>help.menuBar.row.preferences.action</source>
        <translation>Ouvre les réglages.</translation>
    </message>
    <message id="help.menuBar.row.quit">
        <source>help.menuBar.row.quit</source>
        <translation>Quitter Tessarine</translation>
    </message>
    <message id="help.menuBar.row.quit.action">
        <source>help.menuBar.row.quit.action</source>
        <translation>Ferme le programme, et avec lui la capture.</translation>
    </message>
    <message id="help.menuBar.row.welcomeGuide">
        <source>help.menuBar.row.welcomeGuide</source>
        <translation>Guide de bienvenue</translation>
    </message>
    <message id="help.menuBar.row.welcomeGuide.action">
        <source>help.menuBar.row.welcomeGuide.action</source>
        <translation>Montre de nouveau le guide de la première ouverture.</translation>
    </message>
    <message id="help.menuBar.table.header.action">
        <source>help.menuBar.table.header.action</source>
        <translation>Ce qu’il fait</translation>
    </message>
    <message id="help.menuBar.table.header.item">
        <source>help.menuBar.table.header.item</source>
        <translation>Commande</translation>
    </message>
    <message id="help.menuBar.title">
        <source>help.menuBar.title</source>
        <translation>Barre des menus</translation>
    </message>
    <message id="help.page">
        <source>help.page</source>
        <translation>Page</translation>
    </message>
    <message id="help.prefs.excludeDelete.desc">
        <source>help.prefs.excludeDelete.desc</source>
        <translation>Supprime aussi ce que la réserve contient sous le nom de cette app.</translation>
    </message>
    <message id="help.prefs.excludeDelete.title">
        <source>help.prefs.excludeDelete.title</source>
        <translation>Exclure et supprimer</translation>
    </message>
    <message id="help.prefs.excludeOnly.desc">
        <source>help.prefs.excludeOnly.desc</source>
        <translation>Les nouvelles notifications ne sont pas conservées ; ce qui est dans la réserve reste.</translation>
    </message>
    <message id="help.prefs.excludeOnly.title">
        <source>help.prefs.excludeOnly.title</source>
        <translation>Exclure seulement</translation>
    </message>
    <message id="help.prefs.h.excludedApps">
        <source>help.prefs.h.excludedApps</source>
        <translation>Apps exclues</translation>
    </message>
    <message id="help.prefs.h.hoard">
        <source>help.prefs.h.hoard</source>
        <translation>Le fichier de la réserve</translation>
    </message>
    <message id="help.prefs.h.privacy">
        <source>help.prefs.h.privacy</source>
        <translation>Confidentialité</translation>
    </message>
    <message id="help.prefs.h.retention">
        <source>help.prefs.h.retention</source>
        <translation>Durée de conservation</translation>
    </message>
    <message id="help.prefs.h.startup">
        <source>help.prefs.h.startup</source>
        <translation>Ouverture</translation>
    </message>
    <message id="help.prefs.p.backup">
        <source>help.prefs.p.backup</source>
        <translation>La sauvegarde des préférences copie le fichier où vous voulez. Les notifications les plus récentes peuvent manquer dans la copie, et elle n’est pas chiffrée. La sauvegarde de la fenêtre de diagnostic écrit d’abord tout dans le fichier.</translation>
    </message>
    <message id="help.prefs.p.excludedApps.intro">
        <source>help.prefs.p.excludedApps.intro</source>
        <translation>Les notifications d’une app exclue ne sont pas conservées.</translation>
    </message>
    <message id="help.prefs.p.excludedApps.manage">
        <source>help.prefs.p.excludedApps.manage</source>
        <translation>Général › Apps exclues › Gérer montre chaque app qui a une notification dans la réserve. En activer une demande que faire de ce qui est déjà là :</translation>
    </message>
    <message id="help.prefs.p.excludedApps.note">
        <source>help.prefs.p.excludedApps.note</source>
        <translation>Une app est reconnue à son identifiant. Le chemin des bannières ne connaît que le nom de l’app, une app peut donc figurer deux fois ; excluez les deux.</translation>
    </message>
    <message id="help.prefs.p.hoard">
        <source>help.prefs.p.hoard</source>
        <translation>Stockage montre la taille du fichier.</translation>
    </message>
    <message id="help.prefs.p.intro">
        <source>help.prefs.p.intro</source>
        <translation>Les préférences sont dans le menu de la cloche. Un changement est enregistré tout de suite.</translation>
    </message>
    <message id="help.prefs.p.otp">
        <source>help.prefs.p.otp</source>
        <translation>La suppression des codes après 1, 4 ou 24 heures supprime, à chaque ouverture, les notifications qui peuvent contenir un code à usage unique.</translation>
    </message>
    <message id="help.prefs.p.privacyHide">
        <source>help.prefs.p.privacyHide</source>
        <translation>« Masquer le contenu » masque les titres et textes de toutes les apps dans la fenêtre et dans les exportations. Ils sont conservés quand même.</translation>
    </message>
    <message id="help.prefs.p.retention">
        <source>help.prefs.p.retention</source>
        <translation>Stockage › Conserver les notifications. Ce qui est trop ancien est supprimé à la prochaine ouverture de Tessarine, même les notifications épinglées.</translation>
    </message>
    <message id="help.prefs.p.startup">
        <source>help.prefs.p.startup</source>
        <translation>« Ouvrir avec la session » ouvre Tessarine quand vous ouvrez votre session. Il ne peut conserver que ce qui arrive pendant qu’il fonctionne, ou ce que le système a encore.</translation>
    </message>
    <message id="help.prefs.p.startup2">
        <source>help.prefs.p.startup2</source>
        <translation>Tant que ce n’est pas activé, Tessarine le demande après son ouverture. « Ne plus demander » y met fin.</translation>
    </message>
    <message id="help.prefs.p.startup3">
        <source>help.prefs.p.startup3</source>
        <translation>Il s’ouvre sans fenêtre. Vous ne voyez que sa cloche dans la barre des menus.</translation>
    </message>
    <message id="help.prefs.p.welcomeGuide">
        <source>help.prefs.p.welcomeGuide</source>
        <translation>L’avis de confidentialité et le guide de bienvenue peuvent être relus ici.</translation>
    </message>
    <message id="help.prefs.title">
        <source>help.prefs.title</source>
        <translation>Préférences</translation>
    </message>
    <message id="help.privacy.btn.reviewNotice">
        <source>help.privacy.btn.reviewNotice</source>
        <translation>Relire l’avis</translation>
    </message>
    <message id="help.privacy.h.displayFilter">
        <source>help.privacy.h.displayFilter</source>
        <translation>Un masque, pas un verrou</translation>
    </message>
    <message id="help.privacy.h.doesNotDo">
        <source>help.privacy.h.doesNotDo</source>
        <translation>Ce qu’il ne fait pas</translation>
    </message>
    <message id="help.privacy.h.exports">
        <source>help.privacy.h.exports</source>
        <translation>Exportations</translation>
    </message>
    <message id="help.privacy.h.notice">
        <source>help.privacy.h.notice</source>
        <translation>Avis de confidentialité</translation>
    </message>
    <message id="help.privacy.h.otp">
        <source>help.privacy.h.otp</source>
        <translation>Codes à usage unique</translation>
    </message>
    <message id="help.privacy.h.protecting">
        <source>help.privacy.h.protecting</source>
        <translation>Protéger la réserve</translation>
    </message>
    <message id="help.privacy.lim.noEncrypt.desc">
        <source>help.privacy.lim.noEncrypt.desc</source>
        <translation>Quiconque peut lire les fichiers de votre compte peut lire la réserve, avec ou sans Tessarine.</translation>
    </message>
    <message id="help.privacy.lim.noEncrypt.title">
        <source>help.privacy.lim.noEncrypt.title</source>
        <translation>La réserve n’est pas chiffrée</translation>
    </message>
    <message id="help.privacy.lim.noEncrypt.workaround">
        <source>help.privacy.lim.noEncrypt.workaround</source>
        <translation>Activez FileVault et verrouillez l’écran quand vous partez.</translation>
    </message>
    <message id="help.privacy.lim.noPerApp.desc">
        <source>help.privacy.lim.noPerApp.desc</source>
        <translation>Les préférences masquent toutes les apps ou aucune.</translation>
    </message>
    <message id="help.privacy.lim.noPerApp.title">
        <source>help.privacy.lim.noPerApp.title</source>
        <translation>Pas d’interrupteur par app</translation>
    </message>
    <message id="help.privacy.lim.noPerApp.workaround">
        <source>help.privacy.lim.noPerApp.workaround</source>
        <translation>Mettez les identifiants de bundle des apps dans la liste privacyApps du domaine com.zorvek.Tessarine pendant que Tessarine est fermé.</translation>
    </message>
    <message id="help.privacy.p.displayFilter1">
        <source>help.privacy.p.displayFilter1</source>
        <translation>« Masquer le contenu » protège des regards par-dessus votre épaule. Les lignes montrent des barres au lieu de mots. Un clic dévoile une ligne jusqu’à ce que la liste change ; l’aperçu, le mode de sélection et la recherche voient le vrai contenu.</translation>
    </message>
    <message id="help.privacy.p.displayFilter2">
        <source>help.privacy.p.displayFilter2</source>
        <translation>Pour masquer le contenu de toutes les apps :</translation>
    </message>
    <message id="help.privacy.p.exports">
        <source>help.privacy.p.exports</source>
        <translation>Ce qui est masqué l’est aussi dans les exportations, sauf si vous l’incluez pour cette exportation.</translation>
    </message>
    <message id="help.privacy.p.exports2">
        <source>help.privacy.p.exports2</source>
        <translation>Les fichiers exportés ne sont pas chiffrés. Quiconque en reçoit un peut le lire.</translation>
    </message>
    <message id="help.privacy.p.notice">
        <source>help.privacy.p.notice</source>
        <translation>L’avis que vous avez vu à la première ouverture dit ce qui est conservé et ce qui ne l’est pas.</translation>
    </message>
    <message id="help.privacy.p.otp1">
        <source>help.privacy.p.otp1</source>
        <translation>Les codes de connexion arrivent comme notifications, et la réserve les garderait. Si vous voulez, Tessarine les supprime de lui-même.</translation>
    </message>
    <message id="help.privacy.p.otp2">
        <source>help.privacy.p.otp2</source>
        <translation>Il supprime ce qui peut être un code : quatre chiffres de suite, ou des mots que ces messages emploient en anglais, italien, allemand ou français. Cela emporte aussi des notifications avec une année ou un prix, et celles qui sont épinglées.</translation>
    </message>
    <message id="help.privacy.p.otp3">
        <source>help.privacy.p.otp3</source>
        <translation>Cela arrive une fois, à l’ouverture de Tessarine. Un code qui vient après reste jusqu’à la prochaine ouverture.</translation>
    </message>
    <message id="help.privacy.protect.exports.desc">
        <source>help.privacy.protect.exports.desc</source>
        <translation>Un fichier exporté reste jusqu’à ce que vous le supprimiez.</translation>
    </message>
    <message id="help.privacy.protect.exports.title">
        <source>help.privacy.protect.exports.title</source>
        <translation>Supprimez les exportations</translation>
    </message>
    <message id="help.privacy.protect.filevault.desc">
        <source>help.privacy.protect.filevault.desc</source>
        <translation>FileVault rend la réserve illisible tant que le Mac est éteint.</translation>
    </message>
    <message id="help.privacy.protect.filevault.title">
        <source>help.privacy.protect.filevault.title</source>
        <translation>Chiffrez le disque</translation>
    </message>
    <message id="help.privacy.protect.noCloud.desc">
        <source>help.privacy.protect.noCloud.desc</source>
        <translation>Ne mettez pas la réserve, ses sauvegardes ou des exportations là où un service les copie.</translation>
    </message>
    <message id="help.privacy.protect.noCloud.title">
        <source>help.privacy.protect.noCloud.title</source>
        <translation>Pas de dossier en ligne</translation>
    </message>
    <message id="help.privacy.protect.retention.desc">
        <source>help.privacy.protect.retention.desc</source>
        <translation>Ce qui est supprimé au bout d’un certain temps, personne ne peut plus le lire.</translation>
    </message>
    <message id="help.privacy.protect.retention.title">
        <source>help.privacy.protect.retention.title</source>
        <translation>Conservez moins</translation>
    </message>
    <message id="help.privacy.step.1">
        <source>help.privacy.step.1</source>
        <translation>Ouvrez les préférences par le menu de la cloche.</translation>
    </message>
    <message id="help.privacy.step.2">
        <source>help.privacy.step.2</source>
        <translation>Choisissez Confidentialité.</translation>
    </message>
    <message id="help.privacy.step.3">
        <source>help.privacy.step.3</source>
        <translation>Activez « Masquer le contenu ».</translation>
    </message>
    <message id="help.privacy.step.4">
        <source>help.privacy.step.4</source>
        <translation>Fermez la fenêtre. Toutes les lignes sont masquées aussitôt.</translation>
    </message>
    <message id="help.privacy.title">
        <source>help.privacy.title</source>
        <translation>Confidentialité</translation>
    </message>
    <message id="help.search.h.appFilter">
        <source>help.search.h.appFilter</source>
        <translation>App</translation>
    </message>
    <message id="help.search.h.groupModes">
        <source>help.search.h.groupModes</source>
        <translation>Groupes</translation>
    </message>
    <message id="help.search.h.resultCount">
        <source>help.search.h.resultCount</source>
        <translation>Le nombre sur le côté</translation>
    </message>
    <message id="help.search.h.searchBar">
        <source>help.search.h.searchBar</source>
        <translation>Recherche</translation>
    </message>
    <message id="help.search.h.sortModes">
        <source>help.search.h.sortModes</source>
        <translation>Ordre</translation>
    </message>
    <message id="help.search.p.appFilter">
        <source>help.search.p.appFilter</source>
        <translation>Le menu App limite la liste à une app. Il propose chaque app dont une notification est chargée. Recherche et filtre agissent ensemble.</translation>
    </message>
    <message id="help.search.p.groupCollapse">
        <source>help.search.p.groupCollapse</source>
        <translation>Cliquez sur la flèche d’un groupe pour le fermer ou l’ouvrir. Un autre regroupement rouvre tous les groupes.</translation>
    </message>
    <message id="help.search.p.resultCount">
        <source>help.search.p.resultCount</source>
        <translation>Il compte les notifications que la liste montre. Si la réserve en contient plus qu’il n’est chargé, on lit « montrées sur toutes ».</translation>
    </message>
    <message id="help.search.p.searchBar">
        <source>help.search.p.searchBar</source>
        <translation>Tapez une partie d’un titre, d’un texte ou d’un nom d’app. Majuscules et minuscules se valent ; les accents comptent. La recherche porte sur les notifications chargées, d’abord les 500 plus récentes. « Charger plus anciennes », à la fin de la liste, en ajoute 500. Le contenu masqué est cherché aussi.</translation>
    </message>
    <message id="help.search.title">
        <source>help.search.title</source>
        <translation>Recherche et filtre</translation>
    </message>
    <message id="help.sections">
        <source>help.sections</source>
        <translation>Sections</translation>
    </message>
    <message id="help.selectDelete.h.datePresets">
        <source>help.selectDelete.h.datePresets</source>
        <translation>Périodes</translation>
    </message>
    <message id="help.selectDelete.h.deleting">
        <source>help.selectDelete.h.deleting</source>
        <translation>Supprimer</translation>
    </message>
    <message id="help.selectDelete.h.entering">
        <source>help.selectDelete.h.entering</source>
        <translation>Mode de sélection</translation>
    </message>
    <message id="help.selectDelete.h.selecting">
        <source>help.selectDelete.h.selecting</source>
        <translation>Façons de sélectionner</translation>
    </message>
    <message id="help.selectDelete.p.deleting">
        <source>help.selectDelete.p.deleting</source>
        <translation>« Supprimer… » demande d’abord, « Tout supprimer » aussi. « Tout supprimer » vide toute la réserve, même les notifications épinglées et non chargées. Si une notification arrive pendant que vous sélectionnez, la sélection est perdue et rien n’est supprimé.</translation>
    </message>
    <message id="help.selectDelete.p.entering">
        <source>help.selectDelete.p.entering</source>
        <translation>Cliquez sur la corbeille au-dessus de la liste. Chaque ligne montre alors un cercle, et le contenu masqué est visible jusqu’à ce que vous sortiez par Annuler.</translation>
    </message>
    <message id="help.selectDelete.row.byApp.desc">
        <source>help.selectDelete.row.byApp.desc</source>
        <translation>Ajoute toutes les notifications montrées d’une app.</translation>
    </message>
    <message id="help.selectDelete.row.byApp.title">
        <source>help.selectDelete.row.byApp.title</source>
        <translation>App</translation>
    </message>
    <message id="help.selectDelete.row.byDate.desc">
        <source>help.selectDelete.row.byDate.desc</source>
        <translation>Ajoute toutes les notifications montrées d’une période. Plusieurs choix s’additionnent.</translation>
    </message>
    <message id="help.selectDelete.row.byDate.title">
        <source>help.selectDelete.row.byDate.title</source>
        <translation>Date</translation>
    </message>
    <message id="help.selectDelete.row.selectAll.desc">
        <source>help.selectDelete.row.selectAll.desc</source>
        <translation>Sélectionne tout ce que la liste montre. Un second clic retire la sélection.</translation>
    </message>
    <message id="help.selectDelete.row.selectAll.title">
        <source>help.selectDelete.row.selectAll.title</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message id="help.selectDelete.row.tap.desc">
        <source>help.selectDelete.row.tap.desc</source>
        <translation>La sélectionne, ou la retire.</translation>
    </message>
    <message id="help.selectDelete.row.tap.title">
        <source>help.selectDelete.row.tap.title</source>
        <translation>Clic sur une ligne</translation>
    </message>
    <message id="help.selectDelete.title">
        <source>help.selectDelete.title</source>
        <translation>Sélection, suppression</translation>
    </message>
    <message id="help.selectDelete.warning">
        <source>help.selectDelete.warning</source>
        <translation>Les notifications supprimées ne peuvent pas être retrouvées.</translation>
    </message>
    <message id="help.tips.backup.desc">
        <source>help.tips.backup.desc</source>
        <translation>La sauvegarde de la fenêtre de diagnostic écrit une copie complète de la réserve.</translation>
    </message>
    <message id="help.tips.backup.title">
        <source>help.tips.backup.title</source>
        <translation>Faire une sauvegarde</translation>
    </message>
    <message id="help.tips.byDate.desc">
        <source>help.tips.byDate.desc</source>
        <translation>En mode de sélection, Date sélectionne le mois dernier en deux clics.</translation>
    </message>
    <message id="help.tips.byDate.title">
        <source>help.tips.byDate.title</source>
        <translation>Ranger par date</translation>
    </message>
    <message id="help.tips.csv.desc">
        <source>help.tips.csv.desc</source>
        <translation>Tout programme qui lit des tableaux peut compter et trier ce que vous exportez.</translation>
    </message>
    <message id="help.tips.csv.title">
        <source>help.tips.csv.title</source>
        <translation>Voir plus loin avec CSV</translation>
    </message>
    <message id="help.tips.diagnostics.desc">
        <source>help.tips.diagnostics.desc</source>
        <translation>La fenêtre de diagnostic montre ce qui est capturé en ce moment, et ce qui l’empêche.</translation>
    </message>
    <message id="help.tips.diagnostics.title">
        <source>help.tips.diagnostics.title</source>
        <translation>Quand il manque quelque chose</translation>
    </message>
    <message id="help.tips.launchAtLogin.desc">
        <source>help.tips.launchAtLogin.desc</source>
        <translation>Le plus sûr pour ne presque rien manquer : Tessarine est là avant la première notification.</translation>
    </message>
    <message id="help.tips.launchAtLogin.title">
        <source>help.tips.launchAtLogin.title</source>
        <translation>Ouvrir avec la session</translation>
    </message>
    <message id="help.tips.mirroring.desc">
        <source>help.tips.mirroring.desc</source>
        <translation>Avec Recopie de l’iPhone, ses notifications arrivent aussi dans la réserve.</translation>
    </message>
    <message id="help.tips.mirroring.title">
        <source>help.tips.mirroring.title</source>
        <translation>Faire venir l’iPhone</translation>
    </message>
    <message id="help.tips.notifStyles.desc">
        <source>help.tips.notifStyles.desc</source>
        <translation>Une bannière est capturée aussitôt, sans autre autorisation.</translation>
    </message>
    <message id="help.tips.notifStyles.title">
        <source>help.tips.notifStyles.title</source>
        <translation>Laisser les apps montrer des bannières</translation>
    </message>
    <message id="help.tips.retention.desc">
        <source>help.tips.retention.desc</source>
        <translation>Les notifications sont petites. Les durées courtes suppriment ce que vous chercherez peut-être.</translation>
    </message>
    <message id="help.tips.retention.title">
        <source>help.tips.retention.title</source>
        <translation>Conserver pour toujours</translation>
    </message>
    <message id="help.tips.title">
        <source>help.tips.title</source>
        <translation>Conseils</translation>
    </message>
    <message id="help.tips.xlsx.desc">
        <source>help.tips.xlsx.desc</source>
        <translation>Choisissez le point-virgule comme séparateur et UTF-8 comme codage si on vous le demande.</translation>
    </message>
    <message id="help.tips.xlsx.title">
        <source>help.tips.xlsx.title</source>
        <translation>CSV dans un tableur</translation>
    </message>
    <message id="hoard.empty.noAccess">
        <source>hoard.empty.noAccess</source>
        <translation>Tessarine ne peut en voir aucune : il n’a pas accès au bus de session, par lequel arrivent les notifications.</translation>
    </message>
    <message id="hoard.empty.noResults">
        <source>hoard.empty.noResults</source>
        <translation>Aucun résultat</translation>
    </message>
    <message id="hoard.empty.noResults.detail">
        <source>hoard.empty.noResults.detail</source>
        <translation>Aucune notification chargée ne répond à la recherche et à l’app choisie.</translation>
    </message>
    <message id="hoard.empty.noResults.older">
        <source>hoard.empty.noResults.older</source>
        <translation>Aucune notification chargée ne répond à la recherche et à l’app choisie. « Charger plus anciennes » cherche plus loin.</translation>
    </message>
    <message id="hoard.empty.notOpened">
        <source>hoard.empty.notOpened</source>
        <translation>La réserve ne peut pas être ouverte, rien ne peut donc être conservé : %1</translation>
    </message>
    <message id="hoard.empty.waiting">
        <source>hoard.empty.waiting</source>
        <translation>Pas encore de notification</translation>
    </message>
    <message id="hoard.empty.waiting.detail">
        <source>hoard.empty.waiting.detail</source>
        <translation>Ce que vos apps annoncent sera conservé ici, aussi longtemps que vous voulez.</translation>
    </message>
    <message id="hoard.list">
        <source>hoard.list</source>
        <translation>Notifications</translation>
    </message>
    <message id="hoard.loading">
        <source>hoard.loading</source>
        <translation>Ouverture de la réserve…</translation>
    </message>
    <message id="launchAtLogin.btn.dontAsk">
        <source>launchAtLogin.btn.dontAsk</source>
        <translation>Ne plus demander</translation>
    </message>
    <message id="launchAtLogin.btn.enable">
        <source>launchAtLogin.btn.enable</source>
        <translation>Ouvrir avec la session</translation>
    </message>
    <message id="launchAtLogin.btn.notNow">
        <source>launchAtLogin.btn.notNow</source>
        <translation>Pas maintenant</translation>
    </message>
    <message id="launchAtLogin.info.changeLater">
        <source>launchAtLogin.info.changeLater</source>
        <translation>Vous pouvez changer cela à tout moment dans le menu de la cloche.</translation>
    </message>
    <message id="launchAtLogin.info.missedNotifs">
        <source>launchAtLogin.info.missedNotifs</source>
        <translation>Ce qui arrive avant l’ouverture peut ne jamais atteindre votre réserve.</translation>
    </message>
    <message id="launchAtLogin.info.silentStart">
        <source>launchAtLogin.info.silentStart</source>
        <translation>Il s’ouvre sans fenêtre. Vous ne voyez que sa cloche dans la barre des menus.</translation>
    </message>
    <message id="launchAtLogin.prompt.subtitle">
        <source>launchAtLogin.prompt.subtitle</source>
        <translation>Il ne peut conserver que ce qui arrive pendant qu’il fonctionne.</translation>
    </message>
    <message id="launchAtLogin.prompt.title">
        <source>launchAtLogin.prompt.title</source>
        <translation>Ouvrir Tessarine avec la session ?</translation>
    </message>
    <message id="menu.checkForUpdates">
        <source>menu.checkForUpdates</source>
        <translation>Rechercher des mises à jour…</translation>
    </message>
    <message id="menu.fullDiskAccess">
        <source>menu.fullDiskAccess</source>
        <translation>Accès complet au disque…</translation>
    </message>
    <message id="menu.help.title">
        <source>menu.help.title</source>
        <translation>Aide Tessarine</translation>
    </message>
    <message id="menu.launchAtLogin">
        <source>menu.launchAtLogin</source>
        <translation>Ouvrir avec la session</translation>
    </message>
    <message id="menu.newNotifications" numerus="yes">
        <source>menu.newNotifications</source>
        <translation>
            <numerusform>%Ln nouvelle notification</numerusform>
            <numerusform>%Ln nouvelles notifications</numerusform>
        </translation>
    </message>
    <message id="menu.openHoard">
        <source>menu.openHoard</source>
        <translation>Ouvrir la réserve</translation>
    </message>
    <message id="menu.preferences.title">
        <source>menu.preferences.title</source>
        <translation>Préférences…</translation>
    </message>
    <message id="menu.quit">
        <source>menu.quit</source>
        <translation>Quitter Tessarine</translation>
    </message>
    <message id="menu.welcome.title">
        <source>menu.welcome.title</source>
        <translation>Guide de bienvenue…</translation>
    </message>
    <message id="onboarding.ax.granted">
        <source>onboarding.ax.granted</source>
        <translation>Accordée : Tessarine peut voir les notifications quand elles arrivent.</translation>
    </message>
    <message id="onboarding.ax.howToEnable">
        <source>onboarding.ax.howToEnable</source>
        <translation>Ouvrez les réglages du système, trouvez Tessarine dans la liste et activez-le.</translation>
    </message>
    <message id="onboarding.ax.noPermissionWarning">
        <source>onboarding.ax.noPermissionWarning</source>
        <translation>Sans elle, les bannières ne sont pas vues. Seul ce que contient la base de données du système peut être conservé, si Tessarine a le droit de la lire.</translation>
    </message>
    <message id="onboarding.ax.notGranted">
        <source>onboarding.ax.notGranted</source>
        <translation>Pas encore accordée</translation>
    </message>
    <message id="onboarding.ax.openSettings">
        <source>onboarding.ax.openSettings</source>
        <translation>Ouvrir Réglages Système</translation>
    </message>
    <message id="onboarding.ax.openSettings.hint">
        <source>onboarding.ax.openSettings.hint</source>
        <translation>Cette page s’aperçoit d’elle-même que l’autorisation est là.</translation>
    </message>
    <message id="onboarding.ax.subtitle">
        <source>onboarding.ax.subtitle</source>
        <translation>Tessarine lit les bannières grâce à l’autorisation Accessibilité de macOS, au moment où elles apparaissent.</translation>
    </message>
    <message id="onboarding.ax.title">
        <source>onboarding.ax.title</source>
        <translation>Accessibilité</translation>
    </message>
    <message id="onboarding.ax.whatItDoes.text">
        <source>onboarding.ax.whatItDoes.text</source>
        <translation>Il lit les textes des bannières que dessine le Centre de notifications, et les met dans la réserve.</translation>
    </message>
    <message id="onboarding.ax.whatItDoes.title">
        <source>onboarding.ax.whatItDoes.title</source>
        <translation>Ce que Tessarine en fait</translation>
    </message>
    <message id="onboarding.ax.whatItDoesNot.text">
        <source>onboarding.ax.whatItDoesNot.text</source>
        <translation>Il ne lit pas d’autres fenêtres, ne suit pas ce que vous tapez et n’appuie sur rien à votre place.</translation>
    </message>
    <message id="onboarding.ax.whatItDoesNot.title">
        <source>onboarding.ax.whatItDoesNot.title</source>
        <translation>Ce qu’il ne fait pas</translation>
    </message>
    <message id="onboarding.btn.agreeAndContinue">
        <source>onboarding.btn.agreeAndContinue</source>
        <translation>Accepter et continuer</translation>
    </message>
    <message id="onboarding.btn.back">
        <source>onboarding.btn.back</source>
        <translation>Retour</translation>
    </message>
    <message id="onboarding.btn.continue">
        <source>onboarding.btn.continue</source>
        <translation>Continuer</translation>
    </message>
    <message id="onboarding.btn.continueWithout">
        <source>onboarding.btn.continueWithout</source>
        <translation>Continuer sans accès</translation>
    </message>
    <message id="onboarding.btn.done">
        <source>onboarding.btn.done</source>
        <translation>Terminé</translation>
    </message>
    <message id="onboarding.btn.start">
        <source>onboarding.btn.start</source>
        <translation>Lancer Tessarine</translation>
    </message>
    <message id="onboarding.eula.agree">
        <source>onboarding.eula.agree</source>
        <translation>J’ai lu le contrat et je l’accepte</translation>
    </message>
    <message id="onboarding.eula.scrollHint">
        <source>onboarding.eula.scrollHint</source>
        <translation>Faites défiler jusqu’à la fin pour continuer.</translation>
    </message>
    <message id="onboarding.eula.subtitle">
        <source>onboarding.eula.subtitle</source>
        <translation>Veuillez le lire jusqu’à la fin. Rien n’est enregistré avant votre accord.</translation>
    </message>
    <message id="onboarding.eula.title">
        <source>onboarding.eula.title</source>
        <translation>Le contrat</translation>
    </message>
    <message id="onboarding.feature1.text">
        <source>onboarding.feature1.text</source>
        <translation>Tessarine conserve chaque notification quand elle arrive, même celles que vous n’avez jamais vues.</translation>
    </message>
    <message id="onboarding.feature1.title">
        <source>onboarding.feature1.title</source>
        <translation>Rien ne se perd</translation>
    </message>
    <message id="onboarding.feature2.text">
        <source>onboarding.feature2.text</source>
        <translation>La réserve est un seul fichier dans votre dossier personnel. Il n’y a ni compte ni serveur.</translation>
    </message>
    <message id="onboarding.feature2.title">
        <source>onboarding.feature2.title</source>
        <translation>Tout sur cet ordinateur</translation>
    </message>
    <message id="onboarding.feature3.text">
        <source>onboarding.feature3.text</source>
        <translation>Cherchez dans tous les textes, filtrez par app et par jour, épinglez ce qui compte, supprimez le reste.</translation>
    </message>
    <message id="onboarding.feature3.title">
        <source>onboarding.feature3.title</source>
        <translation>Trouvé en un instant</translation>
    </message>
    <message id="onboarding.feature4.text">
        <source>onboarding.feature4.text</source>
        <translation>Les notifications que votre iPhone transmet à ce Mac sont conservées comme toutes les autres.</translation>
    </message>
    <message id="onboarding.feature4.title">
        <source>onboarding.feature4.title</source>
        <translation>Votre iPhone aussi</translation>
    </message>
    <message id="onboarding.privacy.reviewNote">
        <source>onboarding.privacy.reviewNote</source>
        <translation>Vous pouvez relire ceci dans les préférences, sous Confidentialité.</translation>
    </message>
    <message id="onboarding.privacy.row1.text">
        <source>onboarding.privacy.row1.text</source>
        <translation>Tout est conservé sur cet ordinateur, et seul votre compte peut le lire.</translation>
    </message>
    <message id="onboarding.privacy.row1.title">
        <source>onboarding.privacy.row1.title</source>
        <translation>Elle reste ici</translation>
    </message>
    <message id="onboarding.privacy.row2.text">
        <source>onboarding.privacy.row2.text</source>
        <translation>Quiconque peut utiliser votre compte ou lire votre disque peut lire vos notifications.</translation>
    </message>
    <message id="onboarding.privacy.row2.title">
        <source>onboarding.privacy.row2.title</source>
        <translation>Elle n’est pas chiffrée</translation>
    </message>
    <message id="onboarding.privacy.row3.text">
        <source>onboarding.privacy.row3.text</source>
        <translation>Les codes à usage unique sont conservés comme tout le reste. Les préférences peuvent les supprimer après quelques heures.</translation>
    </message>
    <message id="onboarding.privacy.row3.title">
        <source>onboarding.privacy.row3.title</source>
        <translation>Elle peut contenir des codes</translation>
    </message>
    <message id="onboarding.privacy.row4.text">
        <source>onboarding.privacy.row4.text</source>
        <translation>Une ligne, une app, un jour ou tout, à tout moment.</translation>
    </message>
    <message id="onboarding.privacy.row4.title">
        <source>onboarding.privacy.row4.title</source>
        <translation>Vous pouvez la supprimer</translation>
    </message>
    <message id="onboarding.privacy.subtitle">
        <source>onboarding.privacy.subtitle</source>
        <translation>Ce qu’il faut savoir de votre réserve avant qu’elle grandisse.</translation>
    </message>
    <message id="onboarding.privacy.title">
        <source>onboarding.privacy.title</source>
        <translation>Votre confidentialité</translation>
    </message>
    <message id="onboarding.welcome.subtitle">
        <source>onboarding.welcome.subtitle</source>
        <translation>Chaque notification que montre votre ordinateur, conservée et facile à retrouver.</translation>
    </message>
    <message id="onboarding.welcome.timeHint">
        <source>onboarding.welcome.timeHint</source>
        <translation>Cela prend environ une minute.</translation>
    </message>
    <message id="onboarding.welcome.title">
        <source>onboarding.welcome.title</source>
        <translation>Bienvenue dans Tessarine</translation>
    </message>
    <message id="onboarding.window.title">
        <source>onboarding.window.title</source>
        <translation>Bienvenue dans Tessarine</translation>
    </message>
    <message id="pageDots.position">
        <source>pageDots.position</source>
        <translation>Étape %1 sur %2</translation>
    </message>
    <message id="perm.fda.benefits.header">
        <source>perm.fda.benefits.header</source>
        <translation>Ce que vous y gagnez</translation>
    </message>
    <message id="perm.fda.enabled">
        <source>perm.fda.enabled</source>
        <translation>C’est activé</translation>
    </message>
    <message id="perm.fda.howto.header">
        <source>perm.fda.howto.header</source>
        <translation>Comment l’activer</translation>
    </message>
    <message id="perm.fda.laterHint">
        <source>perm.fda.laterHint</source>
        <translation>Vous pouvez le faire plus tard, à tout moment, dans le menu de la cloche.</translation>
    </message>
    <message id="perm.fda.notDetected">
        <source>perm.fda.notDetected</source>
        <translation>La base de données ne peut toujours pas être lue. Vérifiez l’interrupteur, ou quittez Tessarine et rouvrez-le.</translation>
    </message>
    <message id="perm.fda.openSettings">
        <source>perm.fda.openSettings</source>
        <translation>Ouvrir Réglages Système</translation>
    </message>
    <message id="perm.fda.picture">
        <source>perm.fda.picture</source>
        <translation>La liste des programmes sous Accès complet au disque, avec l’interrupteur de Tessarine activé</translation>
    </message>
    <message id="perm.fda.reason1">
        <source>perm.fda.reason1</source>
        <translation>Les notifications arrivées pendant que Tessarine était fermé sont récupérées, pour autant que le système les ait encore.</translation>
    </message>
    <message id="perm.fda.reason2">
        <source>perm.fda.reason2</source>
        <translation>Les notifications qui arrivent sans bannière sont conservées aussi.</translation>
    </message>
    <message id="perm.fda.restartHint">
        <source>perm.fda.restartHint</source>
        <translation>Le système peut demander de quitter Tessarine et de le rouvrir pour que le changement prenne effet.</translation>
    </message>
    <message id="perm.fda.skip">
        <source>perm.fda.skip</source>
        <translation>Passer</translation>
    </message>
    <message id="perm.fda.step1">
        <source>perm.fda.step1</source>
        <translation>Ouvrez Réglages Système.</translation>
    </message>
    <message id="perm.fda.step2">
        <source>perm.fda.step2</source>
        <translation>Allez dans Confidentialité et sécurité.</translation>
    </message>
    <message id="perm.fda.step3">
        <source>perm.fda.step3</source>
        <translation>Choisissez Accès complet au disque.</translation>
    </message>
    <message id="perm.fda.step4">
        <source>perm.fda.step4</source>
        <translation>Activez Tessarine. S’il n’est pas dans la liste, ajoutez-le avec le bouton +.</translation>
    </message>
    <message id="perm.fda.step5">
        <source>perm.fda.step5</source>
        <translation>Revenez à cette fenêtre.</translation>
    </message>
    <message id="perm.fda.subtitle">
        <source>perm.fda.subtitle</source>
        <translation>Avec cet accès, Tessarine peut lire aussi la base de données des notifications du système.</translation>
    </message>
    <message id="perm.fda.title">
        <source>perm.fda.title</source>
        <translation>Accès complet au disque</translation>
    </message>
    <message id="perm.fda.without.header">
        <source>perm.fda.without.header</source>
        <translation>Sans cet accès</translation>
    </message>
    <message id="perm.fda.without.row1">
        <source>perm.fda.without.row1</source>
        <translation>Les bannières sont conservées comme avant.</translation>
    </message>
    <message id="perm.fda.without.row2">
        <source>perm.fda.without.row2</source>
        <translation>Les notifications silencieuses, et celles d’avant l’ouverture, manquent.</translation>
    </message>
    <message id="prefs.general.appearance">
        <source>prefs.general.appearance</source>
        <translation>Aspect</translation>
    </message>
    <message id="prefs.general.appearance.auto">
        <source>prefs.general.appearance.auto</source>
        <translation>Automatique</translation>
    </message>
    <message id="prefs.general.appearance.dark">
        <source>prefs.general.appearance.dark</source>
        <translation>Sombre</translation>
    </message>
    <message id="prefs.general.appearance.light">
        <source>prefs.general.appearance.light</source>
        <translation>Clair</translation>
    </message>
    <message id="prefs.general.captureExplainer">
        <source>prefs.general.captureExplainer</source>
        <translation>Tessarine copie chaque notification dans sa réserve pendant qu’elle est montrée. Là où le système tient une base de données des notifications, Tessarine la lit aussi, et récupère ainsi une bonne part de ce qui est arrivé pendant qu’il était fermé. Tout reste sur cet ordinateur.</translation>
    </message>
    <message id="prefs.general.excludedApps">
        <source>prefs.general.excludedApps</source>
        <translation>Apps exclues</translation>
    </message>
    <message id="prefs.general.excludedApps.caption">
        <source>prefs.general.excludedApps.caption</source>
        <translation>Les notifications de ces apps ne sont pas conservées.</translation>
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
        <translation>Gérer…</translation>
    </message>
    <message id="prefs.general.launchAtLogin">
        <source>prefs.general.launchAtLogin</source>
        <translation>Ouvrir avec la session</translation>
    </message>
    <message id="prefs.general.launchAtLogin.caption">
        <source>prefs.general.launchAtLogin.caption</source>
        <translation>Tessarine s’ouvre en arrière-plan quand vous ouvrez votre session.</translation>
    </message>
    <message id="prefs.general.launchAtLogin.warning">
        <source>prefs.general.launchAtLogin.warning</source>
        <translation>Les notifications qui arrivent pendant que Tessarine est fermé peuvent être manquées.</translation>
    </message>
    <message id="prefs.general.section.appearance">
        <source>prefs.general.section.appearance</source>
        <translation>Apparence</translation>
    </message>
    <message id="prefs.general.section.capture">
        <source>prefs.general.section.capture</source>
        <translation>Capture</translation>
    </message>
    <message id="prefs.general.section.howCapture">
        <source>prefs.general.section.howCapture</source>
        <translation>Comment marche la capture</translation>
    </message>
    <message id="prefs.general.section.startup">
        <source>prefs.general.section.startup</source>
        <translation>Ouverture</translation>
    </message>
    <message id="prefs.privacy.hideContent">
        <source>prefs.privacy.hideContent</source>
        <translation>Masquer le contenu</translation>
    </message>
    <message id="prefs.privacy.hideContent.activeNote">
        <source>prefs.privacy.hideContent.activeNote</source>
        <translation>Le contenu de toutes les apps est masqué. Il est conservé quand même.</translation>
    </message>
    <message id="prefs.privacy.hideContent.caption">
        <source>prefs.privacy.hideContent.caption</source>
        <translation>Les titres et les textes sont masqués dans la fenêtre et dans les exportations.</translation>
    </message>
    <message id="prefs.privacy.otp.1h">
        <source>prefs.privacy.otp.1h</source>
        <translation>1 heure</translation>
    </message>
    <message id="prefs.privacy.otp.24h">
        <source>prefs.privacy.otp.24h</source>
        <translation>24 heures</translation>
    </message>
    <message id="prefs.privacy.otp.4h">
        <source>prefs.privacy.otp.4h</source>
        <translation>4 heures</translation>
    </message>
    <message id="prefs.privacy.otp.note1h">
        <source>prefs.privacy.otp.note1h</source>
        <translation>À chaque ouverture, ceux de plus d’une heure sont supprimés.</translation>
    </message>
    <message id="prefs.privacy.otp.note24h">
        <source>prefs.privacy.otp.note24h</source>
        <translation>À chaque ouverture, ceux de plus d’un jour sont supprimés.</translation>
    </message>
    <message id="prefs.privacy.otp.note4h">
        <source>prefs.privacy.otp.note4h</source>
        <translation>À chaque ouverture, ceux de plus de 4 heures sont supprimés.</translation>
    </message>
    <message id="prefs.privacy.otp.off">
        <source>prefs.privacy.otp.off</source>
        <translation>Désactivé</translation>
    </message>
    <message id="prefs.privacy.otp.otherHours" numerus="yes">
        <source>prefs.privacy.otp.otherHours</source>
        <translation>
            <numerusform>%Ln heure</numerusform>
            <numerusform>%Ln heures</numerusform>
        </translation>
    </message>
    <message id="prefs.privacy.otpAutoDelete">
        <source>prefs.privacy.otpAutoDelete</source>
        <translation>Supprimer les codes après</translation>
    </message>
    <message id="prefs.privacy.otpAutoDelete.caption">
        <source>prefs.privacy.otpAutoDelete.caption</source>
        <translation>Supprime les notifications qui peuvent contenir un code à usage unique : quatre chiffres de suite, ou des mots que ces messages emploient. Même celles qui sont épinglées.</translation>
    </message>
    <message id="prefs.privacy.privacyNotice">
        <source>prefs.privacy.privacyNotice</source>
        <translation>Avis de confidentialité</translation>
    </message>
    <message id="prefs.privacy.privacyNotice.btn">
        <source>prefs.privacy.privacyNotice.btn</source>
        <translation>Lire…</translation>
    </message>
    <message id="prefs.privacy.privacyNotice.caption">
        <source>prefs.privacy.privacyNotice.caption</source>
        <translation>Ce qui est conservé, où, et qui peut le lire.</translation>
    </message>
    <message id="prefs.privacy.section.documents">
        <source>prefs.privacy.section.documents</source>
        <translation>Documents</translation>
    </message>
    <message id="prefs.privacy.section.otpAutoDelete">
        <source>prefs.privacy.section.otpAutoDelete</source>
        <translation>Codes à usage unique</translation>
    </message>
    <message id="prefs.privacy.section.privacyMode">
        <source>prefs.privacy.section.privacyMode</source>
        <translation>Mode confidentiel</translation>
    </message>
    <message id="prefs.privacy.welcomeGuide">
        <source>prefs.privacy.welcomeGuide</source>
        <translation>Guide de bienvenue</translation>
    </message>
    <message id="prefs.privacy.welcomeGuide.btn">
        <source>prefs.privacy.welcomeGuide.btn</source>
        <translation>Ouvrir…</translation>
    </message>
    <message id="prefs.privacy.welcomeGuide.caption">
        <source>prefs.privacy.welcomeGuide.caption</source>
        <translation>Les pages montrées à la première ouverture.</translation>
    </message>
    <message id="prefs.saveProblem">
        <source>prefs.saveProblem</source>
        <translation>Vos changements n’ont pas pu être enregistrés dans le fichier des réglages. Ils valent jusqu’à ce que vous quittiez Tessarine, et seront enregistrés avec le prochain changement dès que le fichier pourra être écrit.</translation>
    </message>
    <message id="prefs.storage.backup.alert.body">
        <source>prefs.storage.backup.alert.body</source>
        <translation>Elle contient vos notifications sans chiffrement. Les plus récentes peuvent y manquer.</translation>
    </message>
    <message id="prefs.storage.backup.alert.title">
        <source>prefs.storage.backup.alert.title</source>
        <translation>Quiconque a la sauvegarde peut la lire.</translation>
    </message>
    <message id="prefs.storage.backup.error.title">
        <source>prefs.storage.backup.error.title</source>
        <translation>La sauvegarde n’a pas pu être faite.</translation>
    </message>
    <message id="prefs.storage.backup.panel.save">
        <source>prefs.storage.backup.panel.save</source>
        <translation>Enregistrer</translation>
    </message>
    <message id="prefs.storage.backup.panel.title">
        <source>prefs.storage.backup.panel.title</source>
        <translation>Sauvegarder la réserve</translation>
    </message>
    <message id="prefs.storage.dbSize">
        <source>prefs.storage.dbSize</source>
        <translation>Taille sur le disque</translation>
    </message>
    <message id="prefs.storage.exportBackup">
        <source>prefs.storage.exportBackup</source>
        <translation>Sauvegarder…</translation>
    </message>
    <message id="prefs.storage.exportBackup.help">
        <source>prefs.storage.exportBackup.help</source>
        <translation>Enregistrer une copie du fichier de la réserve</translation>
    </message>
    <message id="prefs.storage.keepFor">
        <source>prefs.storage.keepFor</source>
        <translation>Conserver les notifications</translation>
    </message>
    <message id="prefs.storage.retention.14days">
        <source>prefs.storage.retention.14days</source>
        <translation>14 jours</translation>
    </message>
    <message id="prefs.storage.retention.1year">
        <source>prefs.storage.retention.1year</source>
        <translation>1 an</translation>
    </message>
    <message id="prefs.storage.retention.30days">
        <source>prefs.storage.retention.30days</source>
        <translation>30 jours</translation>
    </message>
    <message id="prefs.storage.retention.60days">
        <source>prefs.storage.retention.60days</source>
        <translation>60 jours</translation>
    </message>
    <message id="prefs.storage.retention.6months">
        <source>prefs.storage.retention.6months</source>
        <translation>6 mois</translation>
    </message>
    <message id="prefs.storage.retention.7days">
        <source>prefs.storage.retention.7days</source>
        <translation>7 jours</translation>
    </message>
    <message id="prefs.storage.retention.90days">
        <source>prefs.storage.retention.90days</source>
        <translation>90 jours</translation>
    </message>
    <message id="prefs.storage.retention.daysNote" numerus="yes">
        <source>prefs.storage.retention.daysNote</source>
        <translation>
            <numerusform>À chaque ouverture, les notifications de plus de %Ln jour sont supprimées, même épinglées.</numerusform>
            <numerusform>À chaque ouverture, les notifications de plus de %Ln jours sont supprimées, même épinglées.</numerusform>
        </translation>
    </message>
    <message id="prefs.storage.retention.forever">
        <source>prefs.storage.retention.forever</source>
        <translation>Pour toujours</translation>
    </message>
    <message id="prefs.storage.retention.foreverNote">
        <source>prefs.storage.retention.foreverNote</source>
        <translation>Rien n’est jamais supprimé en raison de son ancienneté.</translation>
    </message>
    <message id="prefs.storage.retention.otherDays" numerus="yes">
        <source>prefs.storage.retention.otherDays</source>
        <translation>
            <numerusform>%Ln jour</numerusform>
            <numerusform>%Ln jours</numerusform>
        </translation>
    </message>
    <message id="prefs.storage.retention.shortWarning">
        <source>prefs.storage.retention.shortWarning</source>
        <translation>Les notifications disparaissent après peu de temps, même épinglées.</translation>
    </message>
    <message id="prefs.storage.section.hoard">
        <source>prefs.storage.section.hoard</source>
        <translation>Réserve</translation>
    </message>
    <message id="prefs.storage.section.retention">
        <source>prefs.storage.section.retention</source>
        <translation>Durée de conservation</translation>
    </message>
    <message id="prefs.storage.size.bytes" numerus="yes">
        <source>prefs.storage.size.bytes</source>
        <translation>
            <numerusform>%Ln octet</numerusform>
            <numerusform>%Ln octets</numerusform>
        </translation>
    </message>
    <message id="prefs.storage.size.gigabytes">
        <source>prefs.storage.size.gigabytes</source>
        <translation>%1 Go</translation>
    </message>
    <message id="prefs.storage.size.kilobytes">
        <source>prefs.storage.size.kilobytes</source>
        <translation>%1 Ko</translation>
    </message>
    <message id="prefs.storage.size.megabytes">
        <source>prefs.storage.size.megabytes</source>
        <translation>%1 Mo</translation>
    </message>
    <message id="prefs.storage.size.terabytes">
        <source>prefs.storage.size.terabytes</source>
        <translation>%1 To</translation>
    </message>
    <message id="prefs.storage.size.zero">
        <source>prefs.storage.size.zero</source>
        <translation>Zéro Ko</translation>
    </message>
    <message id="prefs.tab.general">
        <source>prefs.tab.general</source>
        <translation>Général</translation>
    </message>
    <message id="prefs.tab.privacy">
        <source>prefs.tab.privacy</source>
        <translation>Confidentialité</translation>
    </message>
    <message id="prefs.tab.storage">
        <source>prefs.tab.storage</source>
        <translation>Stockage</translation>
    </message>
    <message id="prefs.window.title">
        <source>prefs.window.title</source>
        <translation>Préférences</translation>
    </message>
    <message id="preview.copy">
        <source>preview.copy</source>
        <translation>Copier</translation>
    </message>
    <message id="preview.empty">
        <source>preview.empty</source>
        <translation>Cette notification n’a pas de texte.</translation>
    </message>
    <message id="preview.open">
        <source>preview.open</source>
        <translation>Ouvrir %1</translation>
    </message>
    <message id="preview.title">
        <source>preview.title</source>
        <translation>Notification</translation>
    </message>
    <message id="privacy.block1.text">
        <source>privacy.block1.text</source>
        <translation>La réserve est un seul fichier dans votre dossier personnel, que seul votre compte peut lire. Rien de ce qu’elle contient n’est envoyé où que ce soit.</translation>
    </message>
    <message id="privacy.block1.title">
        <source>privacy.block1.title</source>
        <translation>Conservée sur cet ordinateur</translation>
    </message>
    <message id="privacy.block2.text">
        <source>privacy.block2.text</source>
        <translation>Les notifications contiennent ce que d’autres vous ont envoyé. Pensez-y quand vous les montrez, les exportez ou les copiez.</translation>
    </message>
    <message id="privacy.block2.title">
        <source>privacy.block2.title</source>
        <translation>Ce que d’autres ont écrit</translation>
    </message>
    <message id="privacy.block3.text">
        <source>privacy.block3.text</source>
        <translation>Le fichier est en clair. Quiconque peut utiliser votre compte, ou lire votre disque, peut le lire. Chiffrez votre disque si cela vous préoccupe. Masquer le contenu change ce qui est montré, non ce qui est conservé.</translation>
    </message>
    <message id="privacy.block3.title">
        <source>privacy.block3.title</source>
        <translation>Non chiffrée</translation>
    </message>
    <message id="privacy.block4.text">
        <source>privacy.block4.text</source>
        <translation>Les fichiers que vous exportez et les sauvegardes que vous faites sont en clair aussi, et restent jusqu’à ce que vous les supprimiez.</translation>
    </message>
    <message id="privacy.block4.title">
        <source>privacy.block4.title</source>
        <translation>Exportations et sauvegardes</translation>
    </message>
    <message id="privacy.block5.text">
        <source>privacy.block5.text</source>
        <translation>Vous pouvez exclure des apps, supprimer des lignes, fixer leur durée de conservation, et faire supprimer les codes à usage unique après quelques heures.</translation>
    </message>
    <message id="privacy.block5.title">
        <source>privacy.block5.title</source>
        <translation>C’est vous qui décidez</translation>
    </message>
    <message id="privacy.notice.btn.understood">
        <source>privacy.notice.btn.understood</source>
        <translation>J’ai compris</translation>
    </message>
    <message id="privacy.notice.reviewNote">
        <source>privacy.notice.reviewNote</source>
        <translation>Vous pouvez relire ceci dans les préférences, sous Confidentialité.</translation>
    </message>
    <message id="privacy.notice.subtitle">
        <source>privacy.notice.subtitle</source>
        <translation>Ce qui est conservé, où, et qui peut le lire.</translation>
    </message>
    <message id="privacy.notice.title">
        <source>privacy.notice.title</source>
        <translation>Tessarine et votre confidentialité</translation>
    </message>
    <message id="progress.percent">
        <source>progress.percent</source>
        <translation>%1 %</translation>
    </message>
    <message id="row.clickToReveal">
        <source>row.clickToReveal</source>
        <translation>Cliquer pour voir</translation>
    </message>
    <message id="row.contentHidden">
        <source>row.contentHidden</source>
        <translation>Contenu masqué</translation>
    </message>
    <message id="row.deselect">
        <source>row.deselect</source>
        <translation>Désélectionner</translation>
    </message>
    <message id="row.pinned">
        <source>row.pinned</source>
        <translation>Épinglée</translation>
    </message>
    <message id="row.select">
        <source>row.select</source>
        <translation>Sélectionner</translation>
    </message>
    <message id="row.singleClickToSelect">
        <source>row.singleClickToSelect</source>
        <translation>Clic pour sélectionner, double-clic pour ouvrir %1</translation>
    </message>
    <message id="scrollBar.horizontal">
        <source>scrollBar.horizontal</source>
        <translation>Barre de défilement horizontale</translation>
    </message>
    <message id="scrollBar.vertical">
        <source>scrollBar.vertical</source>
        <translation>Barre de défilement verticale</translation>
    </message>
    <message id="selection.byApp.help">
        <source>selection.byApp.help</source>
        <translation>Ajouter à la sélection toutes les notifications d’une app</translation>
    </message>
    <message id="selection.byDate.help">
        <source>selection.byDate.help</source>
        <translation>Ajouter à la sélection toutes les notifications de certains jours</translation>
    </message>
    <message id="selection.cancel">
        <source>selection.cancel</source>
        <translation>Annuler</translation>
    </message>
    <message id="selection.confirmDelete.btn">
        <source>selection.confirmDelete.btn</source>
        <translation>Supprimer</translation>
    </message>
    <message id="selection.confirmDelete.title" numerus="yes">
        <source>selection.confirmDelete.title</source>
        <translation>
            <numerusform>Supprimer %Ln notification ?</numerusform>
            <numerusform>Supprimer %Ln notifications ?</numerusform>
        </translation>
    </message>
    <message id="selection.confirmDeleteAll.message">
        <source>selection.confirmDeleteAll.message</source>
        <translation>Tout ce qui est dans la réserve est supprimé, même les notifications épinglées et les plus anciennes qui ne sont pas chargées. C’est irréversible.</translation>
    </message>
    <message id="selection.confirmDeleteAll.title" numerus="yes">
        <source>selection.confirmDeleteAll.title</source>
        <translation>
            <numerusform>Supprimer toutes les notifications ? (%Ln chargée)</numerusform>
            <numerusform>Supprimer toutes les notifications ? (%Ln chargées)</numerusform>
        </translation>
    </message>
    <message id="selection.count" numerus="yes">
        <source>selection.count</source>
        <translation>
            <numerusform>%Ln sélectionnée</numerusform>
            <numerusform>%Ln sélectionnées</numerusform>
        </translation>
    </message>
    <message id="selection.deleteAll">
        <source>selection.deleteAll</source>
        <translation>Tout supprimer</translation>
    </message>
    <message id="selection.deleteSelected">
        <source>selection.deleteSelected</source>
        <translation>Supprimer…</translation>
    </message>
    <message id="selection.deselectAll">
        <source>selection.deselectAll</source>
        <translation>Tout désélectionner</translation>
    </message>
    <message id="selection.noSelection">
        <source>selection.noSelection</source>
        <translation>Rien de sélectionné</translation>
    </message>
    <message id="selection.selectAll">
        <source>selection.selectAll</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message id="toolbar.app.all">
        <source>toolbar.app.all</source>
        <translation>Toutes les apps</translation>
    </message>
    <message id="toolbar.app.label">
        <source>toolbar.app.label</source>
        <translation>App</translation>
    </message>
    <message id="toolbar.delete.help">
        <source>toolbar.delete.help</source>
        <translation>Sélectionner et supprimer des notifications</translation>
    </message>
    <message id="toolbar.export.help">
        <source>toolbar.export.help</source>
        <translation>Exporter les notifications</translation>
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
        <translation>Groupes</translation>
    </message>
    <message id="toolbar.group.none">
        <source>toolbar.group.none</source>
        <translation>Aucun</translation>
    </message>
    <message id="toolbar.loadOlder">
        <source>toolbar.loadOlder</source>
        <translation>Charger plus anciennes</translation>
    </message>
    <message id="toolbar.loadOlder.help">
        <source>toolbar.loadOlder.help</source>
        <translation>Charger les 500 notifications suivantes de la réserve</translation>
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
        <translation>%1 sur %2</translation>
    </message>
    <message id="toolbar.search.clear">
        <source>toolbar.search.clear</source>
        <translation>Effacer la recherche</translation>
    </message>
    <message id="toolbar.search.placeholder">
        <source>toolbar.search.placeholder</source>
        <translation>Rechercher</translation>
    </message>
    <message id="toolbar.sort.appAZ">
        <source>toolbar.sort.appAZ</source>
        <translation>App A–Z</translation>
    </message>
    <message id="toolbar.sort.label">
        <source>toolbar.sort.label</source>
        <translation>Ordre</translation>
    </message>
    <message id="toolbar.sort.newest">
        <source>toolbar.sort.newest</source>
        <translation>Plus récentes</translation>
    </message>
    <message id="toolbar.sort.oldest">
        <source>toolbar.sort.oldest</source>
        <translation>Plus anciennes</translation>
    </message>
    <message id="updates.howTheyCome">
        <source>updates.howTheyCome</source>
        <translation>Cette édition de Tessarine ne cherche pas de nouvelles versions : elle a été compilée sans Sparkle, la bibliothèque qui s’en charge.</translation>
    </message>
    <message id="updates.version">
        <source>updates.version</source>
        <translation>Tessarine %1</translation>
    </message>
    <message id="updates.window.title">
        <source>updates.window.title</source>
        <translation>Mises à jour de Tessarine</translation>
    </message>
    <message id="window.title.fda">
        <source>window.title.fda</source>
        <translation>Accès complet au disque</translation>
    </message>
    <message id="window.title.privacy">
        <source>window.title.privacy</source>
        <translation>Tessarine et votre confidentialité</translation>
    </message>
</context>
</TS>
