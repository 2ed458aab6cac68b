<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Zavo::BackupDialog</name>
    <message>
        <source>Safety Copies</source>
        <translation>Copies de sécurité</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canaux</translation>
    </message>
    <message>
        <source>States of the channel</source>
        <translation>États du canal</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>Change if restored</source>
        <translation>Changement en cas de restauration</translation>
    </message>
    <message>
        <source>The copies lie in &quot;%1&quot;.</source>
        <translation>Les copies se trouvent dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>&amp;Restore...</source>
        <translation>&amp;Restaurer...</translation>
    </message>
</context>
<context>
    <name>Zavo::BackupStore</name>
    <message>
        <source>The folder &quot;%1&quot; cannot be made.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» ne peut pas être créé.</translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelCalendar</name>
    <message numerus="yes">
        <source>There are more than %n bands in these dates. Choose fewer dates.</source>
        <translation>
            <numerusform>Ces dates contiennent plus de %n plage. Choisissez moins de dates.</numerusform>
            <numerusform>Ces dates contiennent plus de %n plages. Choisissez moins de dates.</numerusform>
        </translation>
    </message>
    <message>
        <source>The calendar cannot be made.</source>
        <translation>Le calendrier ne peut pas être créé.</translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelConfigurationDialog</name>
    <message>
        <source>Reading the channels...</source>
        <translation>Lecture des canaux...</translation>
    </message>
    <message>
        <source>Channel Configuration</source>
        <translation>Configuration des canaux</translation>
    </message>
    <message>
        <source>The settings cannot be written. Nothing has been changed.</source>
        <translation>Les réglages ne peuvent pas être enregistrés. Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>C&amp;hannels that are not checked stay here when the others are uploaded, and disappear from the targets.</source>
        <translation>Les &amp;canaux non cochés restent ici lors de l’envoi des autres et disparaissent des destinations.</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canaux</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Schedules</source>
        <translation>Grilles</translation>
    </message>
    <message>
        <source>Last saved</source>
        <translation>Dernier enregistrement</translation>
    </message>
    <message>
        <source>(cannot be read)</source>
        <translation>(illisible)</translation>
    </message>
    <message>
        <source>As long as this file cannot be read, nothing is uploaded.</source>
        <translation>Tant que ce fichier est illisible, rien n’est envoyé.</translation>
    </message>
    <message>
        <source>The basic channel is always uploaded.</source>
        <translation>Le canal de base est toujours envoyé.</translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelCreation</name>
    <message>
        <source>You can not add the new channel.
The number of channels has reached the maximum value.</source>
        <translation>Impossible d’ajouter le nouveau canal.
Le nombre maximal de canaux est atteint.</translation>
    </message>
    <message>
        <source>You can not add the new channel.
Unable to find a name for the new channel.</source>
        <translation>Impossible d’ajouter le nouveau canal.
Aucun nom n’a pu être trouvé pour le nouveau canal.</translation>
    </message>
    <message>
        <source>Ch.%1</source>
        <translation>Ch.%1</translation>
    </message>
    <message>
        <source>You can not add the new channel.
Failed to write new channel file. Please check whether it is possible to write to the channel folder.</source>
        <translation>Impossible d’ajouter le nouveau canal.
Le nouveau fichier de canal n’a pas pu être écrit. Vérifiez que le dossier des canaux est accessible en écriture.</translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelInspection</name>
    <message>
        <source>The file cannot be read; the editor passes over it in silence.</source>
        <translation>Le fichier ne peut pas être lu&#xa0;; l’éditeur l’ignore en silence.</translation>
    </message>
    <message>
        <source>The content is that of no channel; the editor passes over the file in silence.</source>
        <translation>Le contenu n’est pas celui d’un canal&#xa0;; l’éditeur ignore le fichier en silence.</translation>
    </message>
    <message>
        <source>There are two schedules for the same days; the editor passes over the file in silence.</source>
        <translation>Deux grilles couvrent les mêmes jours&#xa0;; l’éditeur ignore le fichier en silence.</translation>
    </message>
    <message>
        <source>There is no default schedule: nothing is shown on days that have no schedule of their own.</source>
        <translation>Il n’y a pas de grille par défaut&#xa0;: rien n’est affiché les jours sans grille propre.</translation>
    </message>
    <message>
        <source>Bands overlap: %1.</source>
        <translation>Des plages se chevauchent&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Bands without a stage or without duration: %1.</source>
        <translation>Plages sans scène ou sans durée&#xa0;: %1.</translation>
    </message>
    <message>
        <source>No stage is shown: %1.</source>
        <translation>Aucune scène n’est affichée&#xa0;: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n more, the last %1</source>
        <translation>
            <numerusform>%n autre, la dernière le %1</numerusform>
            <numerusform>%n autres, la dernière le %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The clean-up drops the schedules of old dates: %1.</source>
        <translation>Le nettoyage supprime les grilles de dates passées&#xa0;: %1.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n autre</numerusform>
            <numerusform>%n autres</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelListing</name>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be listed: %2.</source>
        <translation>Le contenu du dossier «&#xa0;%1&#xa0;» ne peut pas être lu&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelNaming</name>
    <message>
        <source>The following characters are not there not be able to use.

  &lt; &gt; : &quot; / \ | ? 

You have to specify another name.</source>
        <translation>Les caractères suivants ne peuvent pas être utilisés.

  &lt; &gt; : &quot; / \ | ? 

Indiquez un autre nom.</translation>
    </message>
    <message>
        <source>New name &quot;%1&quot; is already used by other channel.
You have to specify another name.</source>
        <translation>Le nouveau nom «&#xa0;%1&#xa0;» est déjà utilisé par un autre canal.
Indiquez un autre nom.</translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelPackage</name>
    <message>
        <source>The package cannot be made.</source>
        <translation>Le paquet ne peut pas être créé.</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; does not lie in the stage folder, so no package of the channel can be made.</source>
        <translation>La scène «&#xa0;%1&#xa0;» ne se trouve pas dans le dossier des scènes&#xa0;; aucun paquet du canal ne peut donc être créé.</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; does not exist.</source>
        <translation>La scène «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; is damaged.</source>
        <translation>La scène «&#xa0;%1&#xa0;» est endommagée.</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; of the stage &quot;%2&quot; does not exist.</source>
        <translation>L’image «&#xa0;%1&#xa0;» de la scène «&#xa0;%2&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The export was cancelled.</source>
        <translation>L’exportation a été annulée.</translation>
    </message>
    <message>
        <source>The stages of the channel are too large for a package.</source>
        <translation>Les scènes du canal sont trop volumineuses pour un paquet.</translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelReset</name>
    <message>
        <source>All channels and channel settings will be deleted.
This operation can not be undone.

Are you sure you want to delete all?</source>
        <translation>Tous les canaux et leurs réglages seront supprimés.
Cette opération est irréversible.

Voulez-vous vraiment tout supprimer&#xa0;?</translation>
    </message>
    <message>
        <source>Delete All Channels and Settings</source>
        <translation>Supprimer tous les canaux et réglages</translation>
    </message>
    <message>
        <source>The channel folder does not exist.</source>
        <translation>Le dossier des canaux n’existe pas.</translation>
    </message>
    <message>
        <source>Delete Completed.%1

Schedule Editor will be closed.</source>
        <translation>Suppression terminée.%1

L’éditeur de grilles va se fermer.</translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelSaver</name>
    <message>
        <source>Save Channel</source>
        <translation>Enregistrer le canal</translation>
    </message>
    <message>
        <source>The channel &quot;%1&quot; can not be saved.
Please check whether it is possible to write the file.</source>
        <translation>Le canal «&#xa0;%1&#xa0;» ne peut pas être enregistré.
Vérifiez que le fichier est accessible en écriture.</translation>
    </message>
</context>
<context>
    <name>Zavo::CheckCommand</name>
    <message>
        <source>%1 of %2 files checked</source>
        <translation>%1 fichiers vérifiés sur %2</translation>
    </message>
</context>
<context>
    <name>Zavo::CheckDialog</name>
    <message>
        <source>Check Data</source>
        <translation>Vérifier les données</translation>
    </message>
    <message>
        <source>The check was cancelled.</source>
        <translation>La vérification a été annulée.</translation>
    </message>
    <message>
        <source>The files of the data folder are checked. What is not saved yet is not.</source>
        <translation>Les fichiers du dossier de données sont vérifiés. Ce qui n’est pas encore enregistré ne l’est pas.</translation>
    </message>
    <message>
        <source>Progress of the check</source>
        <translation>Progression de la vérification</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Anomalies</translation>
    </message>
    <message>
        <source>Check &amp;Again</source>
        <translation>Vérifier à &amp;nouveau</translation>
    </message>
    <message>
        <source>Ca&amp;ncel Check</source>
        <translation>&amp;Annuler la vérification</translation>
    </message>
    <message>
        <source>&amp;Copy Findings</source>
        <translation>&amp;Copier les anomalies</translation>
    </message>
    <message>
        <source>Checking ...</source>
        <translation>Vérification en cours...</translation>
    </message>
</context>
<context>
    <name>Zavo::CheckFindingModel</name>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Anomalie</translation>
    </message>
</context>
<context>
    <name>Zavo::CheckText</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message numerus="yes">
        <source>%n channel file(s)</source>
        <translation>
            <numerusform>%n fichier de canal</numerusform>
            <numerusform>%n fichiers de canal</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stage(s)</source>
        <translation>
            <numerusform>%n scène</numerusform>
            <numerusform>%n scènes</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing found in %1.</source>
        <translation>Aucune anomalie dans %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n finding(s) in %1.</source>
        <translation>
            <numerusform>%n anomalie dans %1.</numerusform>
            <numerusform>%n anomalies dans %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zavo::CommandLine</name>
    <message>
        <source>Edits the daily programme of display channels.</source>
        <translation>Édite le programme quotidien de canaux d’affichage.</translation>
    </message>
    <message>
        <source>Opens this data folder.</source>
        <translation>Ouvre ce dossier de données.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>dossier</translation>
    </message>
    <message>
        <source>Speaks this language, for example de or ja.</source>
        <translation>Parle cette langue, par exemple de ou ja.</translation>
    </message>
    <message>
        <source>language</source>
        <translation>langue</translation>
    </message>
    <message>
        <source>Writes a picture of the window to this PNG file and ends.</source>
        <translation>Écrit une image de la fenêtre dans ce fichier PNG et se termine.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>fichier</translation>
    </message>
    <message>
        <source>Checks the channels and their stages instead of opening them. Ends with 0 if nothing was found, 1 with findings, 2 if it could not check.</source>
        <translation>Vérifie les canaux et leurs scènes au lieu de les ouvrir. Se termine avec 0 si rien n’a été trouvé, 1 en cas d’anomalies, 2 si la vérification était impossible.</translation>
    </message>
    <message>
        <source>Shows these options and ends.</source>
        <translation>Affiche ces options et se termine.</translation>
    </message>
    <message>
        <source>Shows the version and ends.</source>
        <translation>Affiche la version et se termine.</translation>
    </message>
    <message>
        <source>The option --%1 needs a value.</source>
        <translation>L’option --%1 exige une valeur.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no option.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une option.</translation>
    </message>
    <message>
        <source>The options --%1 and --%2 exclude each other.</source>
        <translation>Les options --%1 et --%2 s’excluent.</translation>
    </message>
</context>
<context>
    <name>Zavo::ConfigurationDialog</name>
    <message>
        <source>Configuration</source>
        <translation>Configuration</translation>
    </message>
    <message>
        <source>Choose Data Folder</source>
        <translation>Choisir le dossier de données</translation>
    </message>
    <message>
        <source>Data folder</source>
        <translation>Dossier de données</translation>
    </message>
    <message>
        <source>The usual folder of this user</source>
        <translation>Le dossier habituel de cet utilisateur</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>Channels and stages lie there. The program opens this folder from the next start on, unless it is started with another one. Now open: %1</source>
        <translation>Il contient les canaux et les scènes. Le programme ouvre ce dossier à partir du prochain démarrage, sauf s’il est lancé avec un autre. Actuellement ouvert&#xa0;: %1</translation>
    </message>
    <message>
        <source>Schedules</source>
        <translation>Grilles</translation>
    </message>
    <message>
        <source>These hold for everybody who uses the data folder that is open; they are kept in its file config.ini.</source>
        <translation>Ces réglages valent pour tous les utilisateurs du dossier de données ouvert&#xa0;; ils sont conservés dans son fichier config.ini.</translation>
    </message>
    <message>
        <source>Player and editor are &amp;one machine</source>
        <translation>Le lecteur et l’éditeur sont la même &amp;machine</translation>
    </message>
    <message>
        <source>Then there is nothing to upload, and the command is disabled. Takes effect at the next start.</source>
        <translation>Il n’y a alors rien à envoyer et la commande est désactivée. Prend effet au prochain démarrage.</translation>
    </message>
    <message>
        <source>Show the &amp;default schedule first</source>
        <translation>Afficher d’abord la grille par &amp;défaut</translation>
    </message>
    <message>
        <source>At a start the default schedule of a channel is shown, instead of the kind of schedule that was shown last.</source>
        <translation>Au démarrage, la grille par défaut d’un canal est affichée au lieu du type de grille affiché en dernier.</translation>
    </message>
    <message>
        <source> days</source>
        <translation> jours</translation>
    </message>
    <message>
        <source>&amp;Keep schedules of past dates for</source>
        <translation>&amp;Conserver les grilles de dates passées pendant</translation>
    </message>
    <message>
        <source>Schedules of dates that lie further back are removed when their channel is opened at the next start, and from its file when it is saved.</source>
        <translation>Les grilles de dates plus anciennes sont retirées à l’ouverture de leur canal au prochain démarrage, et de son fichier à l’enregistrement.</translation>
    </message>
    <message>
        <source>Days for which schedules of past dates are kept</source>
        <translation>Nombre de jours de conservation des grilles de dates passées</translation>
    </message>
    <message>
        <source>Upload targets</source>
        <translation>Destinations d’envoi</translation>
    </message>
    <message>
        <source>An upload is going on, so its targets cannot be changed now.</source>
        <translation>Un envoi est en cours, ses destinations ne peuvent donc pas être modifiées maintenant.</translation>
    </message>
    <message>
        <source>Folders and machines that get the channels with an upload. Those that are checked are offered first.</source>
        <translation>Dossiers et machines qui reçoivent les canaux lors d’un envoi. Ceux qui sont cochés sont proposés d’abord.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the full path of a folder.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas le chemin complet d’un dossier.</translation>
    </message>
    <message>
        <source>The configuration cannot be written to &quot;%1&quot;. Nothing has been changed.</source>
        <translation>La configuration ne peut pas être écrite dans «&#xa0;%1&#xa0;». Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>Takes effect at the next start.</source>
        <translation>Prend effet au prochain démarrage.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>As in the system</source>
        <translation>Comme dans le système</translation>
    </message>
</context>
<context>
    <name>Zavo::DataCheck</name>
    <message>
        <source>There are no channel files.</source>
        <translation>Il n’y a aucun fichier de canal.</translation>
    </message>
    <message>
        <source>The editor looks for the name &quot;channel&quot; with one to five characters and &quot;.xml&quot;; it passes over this file in silence.</source>
        <translation>L’éditeur cherche le nom «&#xa0;channel&#xa0;» suivi d’un à cinq caractères et de «&#xa0;.xml&#xa0;»&#xa0;; il ignore ce fichier en silence.</translation>
    </message>
    <message>
        <source>The name is that of a channel, but it is no file; the editor passes over it in silence.</source>
        <translation>Le nom est celui d’un canal, mais ce n’est pas un fichier&#xa0;; l’éditeur l’ignore en silence.</translation>
    </message>
    <message>
        <source>The file differs from &quot;%1&quot;, which the editor opens in its place; it passes over this file in silence.</source>
        <translation>Le fichier diffère de «&#xa0;%1&#xa0;», que l’éditeur ouvre à sa place&#xa0;; il ignore ce fichier en silence.</translation>
    </message>
    <message>
        <source>The channel has the id %1, as has the one of &quot;%2&quot;; only one of them is saved.</source>
        <translation>Le canal a l’identifiant %1, tout comme celui de «&#xa0;%2&#xa0;»&#xa0;; un seul d’entre eux est enregistré.</translation>
    </message>
    <message numerus="yes">
        <source>%1 %n schedule(s) use it.</source>
        <translation>
            <numerusform>%1 %n grille l’utilise.</numerusform>
            <numerusform>%1 %n grilles l’utilisent.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zavo::DataFolderCheck</name>
    <message>
        <source>&quot;%1&quot; is a link that leads nowhere.</source>
        <translation>«&#xa0;%1&#xa0;» est un lien qui ne mène nulle part.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a folder.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un dossier.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be reached: %2.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» est inaccessible&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be listed: %2.</source>
        <translation>Le contenu du dossier «&#xa0;%1&#xa0;» ne peut pas être lu&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>Zavo::ExportDialog</name>
    <message>
        <source>Export Channel</source>
        <translation>Exporter le canal</translation>
    </message>
    <message>
        <source>&amp;First date:</source>
        <translation>&amp;Première date&#xa0;:</translation>
    </message>
    <message>
        <source>A &amp;date of the week:</source>
        <translation>Un &amp;jour de la semaine&#xa0;:</translation>
    </message>
    <message>
        <source>Exporting ...</source>
        <translation>Exportation en cours...</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was written.</source>
        <translation>«&#xa0;%1&#xa0;» a été écrit.</translation>
    </message>
    <message numerus="yes">
        <source>%n more remark(s).</source>
        <translation>
            <numerusform>%n autre remarque.</numerusform>
            <numerusform>%n autres remarques.</numerusform>
        </translation>
    </message>
    <message>
        <source>Progress of the export</source>
        <translation>Progression de l’exportation</translation>
    </message>
    <message>
        <source>Result of the export</source>
        <translation>Résultat de l’exportation</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exporter</translation>
    </message>
    <message>
        <source>What is saved in this file is exported.</source>
        <translation>C’est le contenu enregistré dans ce fichier qui est exporté.</translation>
    </message>
    <message>
        <source>Channel file:</source>
        <translation>Fichier du canal&#xa0;:</translation>
    </message>
    <message>
        <source>Package with the stages</source>
        <translation>Paquet avec les scènes</translation>
    </message>
    <message>
        <source>Table of all schedules</source>
        <translation>Tableau de toutes les grilles</translation>
    </message>
    <message>
        <source>Calendar of a range of dates</source>
        <translation>Calendrier d’une période</translation>
    </message>
    <message>
        <source>Week sheet to print</source>
        <translation>Feuille de semaine à imprimer</translation>
    </message>
    <message>
        <source>E&amp;xport as:</source>
        <translation>Exporter c&amp;omme&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Last date:</source>
        <translation>&amp;Dernière date&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>&amp;To the file:</source>
        <translation>&amp;Vers le fichier&#xa0;:</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists. Replace it?</source>
        <translation>«&#xa0;%1&#xa0;» existe déjà. Le remplacer&#xa0;?</translation>
    </message>
</context>
<context>
    <name>Zavo::ExportJob</name>
    <message>
        <source>Choose the file to write.</source>
        <translation>Choisissez le fichier à écrire.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; goes out of a folder by &quot;..&quot;. Write where it leads to.</source>
        <translation>Le nom «&#xa0;%1&#xa0;» sort d’un dossier par «&#xa0;..&#xa0;». Indiquez où il mène.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole path of a file.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas le chemin complet d’un fichier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder.</source>
        <translation>«&#xa0;%1&#xa0;» est un dossier.</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; lies among the files that are exported. Choose another folder.</source>
        <translation>«&#xa0;%1&#xa0;» se trouve parmi les fichiers exportés. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>The last date is before the first.</source>
        <translation>La dernière date précède la première.</translation>
    </message>
    <message numerus="yes">
        <source>A calendar holds no more than %n day(s).</source>
        <translation>
            <numerusform>Un calendrier ne contient pas plus de %n jour.</numerusform>
            <numerusform>Un calendrier ne contient pas plus de %n jours.</numerusform>
        </translation>
    </message>
    <message>
        <source>The channel file &quot;%1&quot; cannot be read.</source>
        <translation>Le fichier de canal «&#xa0;%1&#xa0;» ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The export was cancelled.</source>
        <translation>L’exportation a été annulée.</translation>
    </message>
    <message>
        <source>The file cannot be made.</source>
        <translation>Le fichier ne peut pas être créé.</translation>
    </message>
    <message>
        <source>The file that is there stays as it was.</source>
        <translation>Le fichier existant reste inchangé.</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Rien n’a été écrit.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: the disk is read-only.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être écrit&#xa0;: le disque est en lecture seule.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: the disk is full.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être écrit&#xa0;: le disque est plein.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: you may not write there.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être écrit&#xa0;: vous n’avez pas le droit d’y écrire.</translation>
    </message>
</context>
<context>
    <name>Zavo::FolderInUseBox</name>
    <message>
        <source>Two programs on one data folder would overwrite each other&apos;s channels. Close the other program, or choose another folder.</source>
        <translation>Deux programmes sur un même dossier de données écraseraient mutuellement leurs canaux. Fermez l’autre programme ou choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>

If you are sure that the other program no longer runs, because its machine was switched off, the folder can be taken over.</source>
        <translation>

Si vous êtes sûr que l’autre programme ne fonctionne plus, parce que sa machine a été éteinte, vous pouvez reprendre le dossier.</translation>
    </message>
    <message>
        <source>Choose Another &amp;Folder...</source>
        <translation>Choisir un autre &amp;dossier...</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Take Over</source>
        <translation>&amp;Reprendre</translation>
    </message>
    <message>
        <source>The data folder &quot;%1&quot; is open in another program.</source>
        <translation>Le dossier de données «&#xa0;%1&#xa0;» est ouvert dans un autre programme.</translation>
    </message>
    <message>
        <source>The data folder &quot;%1&quot; is open in another program: %2 (process %3 on %4, since %5).</source>
        <translation>Le dossier de données «&#xa0;%1&#xa0;» est ouvert dans un autre programme&#xa0;: %2 (processus %3 sur %4, depuis %5).</translation>
    </message>
</context>
<context>
    <name>Zavo::HostWindow</name>
    <message>
        <source>%1 - Zavo Schedule Editor</source>
        <translation>%1 - Zavo Schedule Editor</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>&amp;Check Data...</source>
        <translation>&amp;Vérifier les données...</translation>
    </message>
    <message>
        <source>Looks for what is wrong in the saved channels and their stages</source>
        <translation>Recherche les anomalies dans les canaux enregistrés et leurs scènes</translation>
    </message>
    <message>
        <source>&amp;Configuration...</source>
        <translation>&amp;Configuration...</translation>
    </message>
    <message>
        <source>Changes the data folder, what its schedules are shown by, and the upload targets</source>
        <translation>Modifie le dossier de données, l’affichage de ses grilles et les destinations d’envoi</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;About Zavo Schedule Editor</source>
        <translation>À &amp;propos de Zavo Schedule Editor</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>À propos de &amp;Qt</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Envoi</translation>
    </message>
    <message>
        <source>An upload is going on. If the program ends now, the targets that are not complete keep what they had.

Do you want to cancel the upload and close?</source>
        <translation>Un envoi est en cours. Si le programme se termine maintenant, les destinations incomplètes gardent leur état précédent.

Voulez-vous annuler l’envoi et fermer&#xa0;?</translation>
    </message>
</context>
<context>
    <name>Zavo::NoticeBar</name>
    <message>
        <source>Notice</source>
        <translation>Avis</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>Zavo::Program</name>
    <message>
        <source>&quot;%1&quot; is the name of no language.</source>
        <translation>«&#xa0;%1&#xa0;» n’est le nom d’aucune langue.</translation>
    </message>
    <message>
        <source>Data Folder</source>
        <translation>Dossier de données</translation>
    </message>
    <message>
        <source>The channel file &quot;%1&quot; cannot be restored. It is as it was before.</source>
        <translation>Le fichier de canal «&#xa0;%1&#xa0;» ne peut pas être restauré. Il reste inchangé.</translation>
    </message>
</context>
<context>
    <name>Zavo::RsyncProcess</name>
    <message>
        <source>The target is full.</source>
        <translation>La destination est pleine.</translation>
    </message>
    <message>
        <source>The target is read-only.</source>
        <translation>La destination est en lecture seule.</translation>
    </message>
    <message>
        <source>The target refuses this user.</source>
        <translation>La destination refuse cet utilisateur.</translation>
    </message>
    <message>
        <source>The target refuses: permission denied.</source>
        <translation>La destination refuse l’accès&#xa0;: permission refusée.</translation>
    </message>
    <message>
        <source>The key of the host is not known to ssh.</source>
        <translation>La clé de l’hôte n’est pas connue de ssh.</translation>
    </message>
    <message>
        <source>The target has no such module.</source>
        <translation>La destination n’a pas ce module.</translation>
    </message>
    <message>
        <source>The target refuses.</source>
        <translation>La destination refuse la connexion.</translation>
    </message>
    <message>
        <source>The target cannot be reached: connection refused.</source>
        <translation>La destination est injoignable&#xa0;: connexion refusée.</translation>
    </message>
    <message>
        <source>There is no host of this name.</source>
        <translation>Aucun hôte ne porte ce nom.</translation>
    </message>
    <message>
        <source>The target does not exist.</source>
        <translation>La destination n’existe pas.</translation>
    </message>
    <message>
        <source>The target&apos;s rsync is too old or too new.</source>
        <translation>Le rsync de la destination est trop ancien ou trop récent.</translation>
    </message>
    <message>
        <source>The connection to the target is lost.</source>
        <translation>La connexion à la destination est perdue.</translation>
    </message>
    <message>
        <source>The target cannot be written to.</source>
        <translation>Impossible d’écrire sur la destination.</translation>
    </message>
    <message>
        <source>Some files could not be transferred.</source>
        <translation>Certains fichiers n’ont pas pu être transférés.</translation>
    </message>
    <message>
        <source>The target does not answer any more.</source>
        <translation>La destination ne répond plus.</translation>
    </message>
    <message>
        <source>The target does not answer.</source>
        <translation>La destination ne répond pas.</translation>
    </message>
    <message>
        <source>A program is missing at the target.</source>
        <translation>Il manque un programme sur la destination.</translation>
    </message>
    <message>
        <source>The target cannot be reached by ssh.</source>
        <translation>La destination est injoignable par ssh.</translation>
    </message>
    <message>
        <source>rsync failed with code %1.</source>
        <translation>rsync a échoué avec le code %1.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Annulé.</translation>
    </message>
    <message>
        <source>rsync was killed.</source>
        <translation>rsync a été tué.</translation>
    </message>
    <message>
        <source>The program rsync cannot be started.</source>
        <translation>Le programme rsync ne peut pas être lancé.</translation>
    </message>
    <message>
        <source>The program rsync is not installed.</source>
        <translation>Le programme rsync n’est pas installé.</translation>
    </message>
</context>
<context>
    <name>Zavo::SafetyDesk</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 autres</translation>
    </message>
    <message>
        <source>Another program changed %1. It is shown here as it was before.</source>
        <translation>Un autre programme a modifié %1. L’état précédent est affiché ici.</translation>
    </message>
    <message>
        <source>No safety copies can be made: %1</source>
        <translation>Impossible de créer des copies de sécurité&#xa0;: %1</translation>
    </message>
    <message>
        <source>Safety &amp;Copies...</source>
        <translation>Copies de &amp;sécurité...</translation>
    </message>
    <message>
        <source>Shows earlier states of the channels and restores one.</source>
        <translation>Affiche les états antérieurs des canaux et en restaure un.</translation>
    </message>
    <message>
        <source>Restore Channel</source>
        <translation>Restaurer le canal</translation>
    </message>
    <message>
        <source>Restore the channel &quot;%1&quot; to its state of %2?</source>
        <translation>Restaurer le canal «&#xa0;%1&#xa0;» dans son état du %2&#xa0;?</translation>
    </message>
    <message>
        <source>The window is closed and opened anew to show it. You are asked before about channels with edits that are not saved. The present state stays among the safety copies.</source>
        <translation>La fenêtre est fermée puis rouverte pour l’afficher. Auparavant, les canaux aux modifications non enregistrées vous sont signalés. L’état actuel reste parmi les copies de sécurité.</translation>
    </message>
    <message>
        <source>Save Channel</source>
        <translation>Enregistrer le canal</translation>
    </message>
    <message>
        <source>The channel file &quot;%1&quot; was changed by another program.</source>
        <translation>Le fichier de canal «&#xa0;%1&#xa0;» a été modifié par un autre programme.</translation>
    </message>
    <message>
        <source>Do you want to overwrite it? Whichever of the two states is not in the file afterwards stays among the safety copies.</source>
        <translation>Voulez-vous l’écraser&#xa0;? Celui des deux états qui n’est ensuite plus dans le fichier reste parmi les copies de sécurité.</translation>
    </message>
    <message>
        <source>The file &quot;channel.xml&quot; could not be renewed. The next start would show the first channel as it was before.</source>
        <translation>Le fichier «&#xa0;channel.xml&#xa0;» n’a pas pu être renouvelé. Au prochain démarrage, le premier canal s’afficherait tel qu’il était auparavant.</translation>
    </message>
</context>
<context>
    <name>Zavo::SavePrompt</name>
    <message>
        <source>Save Channel</source>
        <translation>Enregistrer le canal</translation>
    </message>
    <message>
        <source>Do you want to save your changes </source>
        <translation>Voulez-vous enregistrer vos modifications </translation>
    </message>
    <message>
        <source>before uploading?</source>
        <translation>avant l’envoi&#xa0;?</translation>
    </message>
    <message>
        <source>before closing?</source>
        <translation>avant de fermer&#xa0;?</translation>
    </message>
    <message>
        <source>The channel &quot;%1&quot; has been modified.</source>
        <translation>Le canal «&#xa0;%1&#xa0;» a été modifié.</translation>
    </message>
    <message>
        <source>
If you upload without saving, previously saved information will be uploaded.</source>
        <translation>
Si vous envoyez sans enregistrer, ce sont les données enregistrées précédemment qui sont envoyées.</translation>
    </message>
</context>
<context>
    <name>Zavo::ScheduleNames</name>
    <message>
        <source>Default schedule</source>
        <translation>Grille par défaut</translation>
    </message>
</context>
<context>
    <name>Zavo::ScheduleRecorder</name>
    <message>
        <source>the schedule of %1</source>
        <translation>la grille «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>the selected schedule</source>
        <translation>la grille sélectionnée</translation>
    </message>
    <message>
        <source>the selected schedules</source>
        <translation>les grilles sélectionnées</translation>
    </message>
    <message>
        <source>The following schedule will be deleted.

</source>
        <translation>Les grilles suivantes seront supprimées.

</translation>
    </message>
    <message>
        <source>Confirm Delete</source>
        <translation>Confirmer la suppression</translation>
    </message>
    <message>
        <source>Are you sure you want to delete %1?</source>
        <translation>Voulez-vous vraiment supprimer %1&#xa0;?</translation>
    </message>
</context>
<context>
    <name>Zavo::ScheduleToolBar</name>
    <message>
        <source>Close Stage Editor</source>
        <translation>Fermer l’éditeur de scènes</translation>
    </message>
    <message>
        <source>Close Schedule Editor</source>
        <translation>Fermer l’éditeur de grilles</translation>
    </message>
</context>
<context>
    <name>Zavo::ScreenshotTaker</name>
    <message>
        <source>No channel was shown, so there is no picture.</source>
        <translation>Aucun canal n’a été affiché, il n’y a donc pas d’image.</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; cannot be written: %2.</source>
        <translation>L’image «&#xa0;%1&#xa0;» ne peut pas être écrite&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>Zavo::SessionRecord</name>
    <message>
        <source>The last session, begun at %1, did not end properly.</source>
        <translation>La dernière session, commencée le %1, ne s’est pas terminée correctement.</translation>
    </message>
    <message>
        <source>The last session did not end properly.</source>
        <translation>La dernière session ne s’est pas terminée correctement.</translation>
    </message>
    <message>
        <source>It had no edits that were not saved.</source>
        <translation>Elle ne contenait aucune modification non enregistrée.</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>et %n autre</numerusform>
            <numerusform>et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>Edits since the last save were lost in: %1.
All that was saved before is in the channel files.</source>
        <translation>Les modifications faites depuis le dernier enregistrement sont perdues dans&#xa0;: %1.
Tout ce qui avait été enregistré se trouve dans les fichiers de canal.</translation>
    </message>
</context>
<context>
    <name>Zavo::ShownUploadLog</name>
    <message>
        <source>Open Log Folder</source>
        <translation>Ouvrir le dossier du journal</translation>
    </message>
    <message>
        <source>The log folder does not exist.
</source>
        <translation>Le dossier du journal n’existe pas.
</translation>
    </message>
    <message>
        <source>The log folder can not be opened.
</source>
        <translation>Le dossier du journal ne peut pas être ouvert.
</translation>
    </message>
    <message>
        <source>Open Log File</source>
        <translation>Ouvrir le fichier journal</translation>
    </message>
    <message>
        <source>The log file can not be opened.
Please make sure that you have an application that is associated with the extension &quot;.txt&quot;.</source>
        <translation>Le fichier journal ne peut pas être ouvert.
Vérifiez qu’une application est associée à l’extension «&#xa0;.txt&#xa0;».</translation>
    </message>
    <message>
        <source>The log file does not exist.
Do you want to open the log folder?</source>
        <translation>Le fichier journal n’existe pas.
Voulez-vous ouvrir le dossier du journal&#xa0;?</translation>
    </message>
</context>
<context>
    <name>Zavo::StageInspection</name>
    <message>
        <source>The stage &quot;%1&quot; does not lie in the stage folder.</source>
        <translation>La scène «&#xa0;%1&#xa0;» ne se trouve pas dans le dossier des scènes.</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; is a link that leads nowhere.</source>
        <translation>La scène «&#xa0;%1&#xa0;» est un lien qui ne mène nulle part.</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; does not exist.</source>
        <translation>La scène «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; is not a file.</source>
        <translation>La scène «&#xa0;%1&#xa0;» n’est pas un fichier.</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; cannot be read.</source>
        <translation>La scène «&#xa0;%1&#xa0;» ne peut pas être lue.</translation>
    </message>
    <message numerus="yes">
        <source>The stage &quot;%1&quot; lacks %n of its pictures.</source>
        <translation>
            <numerusform>Il manque %n image à la scène «&#xa0;%1&#xa0;».</numerusform>
            <numerusform>Il manque %n images à la scène «&#xa0;%1&#xa0;».</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zavo::StateComparer</name>
    <message>
        <source>is no channel file</source>
        <translation>n’est pas un fichier de canal</translation>
    </message>
    <message>
        <source>replaces a file that cannot be read; schedules: %1</source>
        <translation>remplace un fichier illisible&#xa0;; grilles&#xa0;: %1</translation>
    </message>
    <message>
        <source>brings the file back; schedules: %1</source>
        <translation>rétablit le fichier&#xa0;; grilles&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>Zavo::StateDifference</name>
    <message>
        <source>as it is now</source>
        <translation>identique à l’état actuel</translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation>%1 en plus</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 en moins</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>%1 à modifier</translation>
    </message>
    <message>
        <source>schedules: %1</source>
        <translation>grilles&#xa0;: %1</translation>
    </message>
    <message>
        <source>name: &quot;%1&quot;</source>
        <translation>nom&#xa0;: «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>another place among the tabs</source>
        <translation>autre place parmi les onglets</translation>
    </message>
</context>
<context>
    <name>Zavo::TimeTablePage</name>
    <message>
        <source>Stopped</source>
        <translation>Interrompu</translation>
    </message>
    <message>
        <source>Can not paste.
There is not enough blank duration to paste in the time area.</source>
        <translation>Collage impossible.
Il n’y a pas assez de temps libre dans le tableau horaire.</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Avis</translation>
    </message>
    <message>
        <source>There is the assigned time band in target range.
Do you want to delete the assigned time band and to paste?</source>
        <translation>Une plage est déjà affectée à cet endroit.
Voulez-vous la supprimer et coller&#xa0;?</translation>
    </message>
    <message>
        <source>Schedule of Unknown</source>
        <translation>Grille inconnue</translation>
    </message>
    <message>
        <source>Schedule of %1</source>
        <translation>Grille&#xa0;: %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
</context>
<context>
    <name>Zavo::UploadCollection</name>
    <message>
        <source>No folder can be made in &quot;%1&quot;: %2.</source>
        <translation>Aucun dossier ne peut être créé dans «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>There are no channel files in &quot;%1&quot;.</source>
        <translation>Il n’y a aucun fichier de canal dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>No channel is meant to be uploaded.</source>
        <translation>Aucun canal n’est à envoyer.</translation>
    </message>
    <message>
        <source>The channel file &quot;%1&quot; is damaged.</source>
        <translation>Le fichier de canal «&#xa0;%1&#xa0;» est endommagé.</translation>
    </message>
    <message>
        <source>The channel &quot;%1&quot; stays here by the channel configuration.</source>
        <translation>Le canal «&#xa0;%1&#xa0;» reste ici selon la configuration des canaux.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be removed.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être supprimé.</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; of the channel &quot;%2&quot; is missing.</source>
        <translation>La scène «&#xa0;%1&#xa0;» du canal «&#xa0;%2&#xa0;» manque.</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; is damaged.</source>
        <translation>La scène «&#xa0;%1&#xa0;» est endommagée.</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; of the stage &quot;%2&quot; is missing.</source>
        <translation>L’image «&#xa0;%1&#xa0;» de la scène «&#xa0;%2&#xa0;» manque.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être écrit&#xa0;: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être lu&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Annulé.</translation>
    </message>
</context>
<context>
    <name>Zavo::UploadDialog</name>
    <message>
        <source>Progress of the upload to %1</source>
        <translation>Progression de l’envoi vers %1</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Envoi</translation>
    </message>
    <message>
        <source>The saved channels and the stages they use go to every &amp;target that is checked.</source>
        <translation>Les canaux enregistrés et leurs scènes vont à chaque &amp;destination cochée.</translation>
    </message>
    <message>
        <source>%1 complete, %2 failed, %3 cancelled.</source>
        <translation>%1 complets, %2 échoués, %3 annulés.</translation>
    </message>
    <message numerus="yes">
        <source>%n thing(s) to note; the log names them.</source>
        <translation>
            <numerusform>%n point à noter&#xa0;; le journal le précise.</numerusform>
            <numerusform>%n points à noter&#xa0;; le journal les précise.</numerusform>
        </translation>
    </message>
    <message>
        <source>The log cannot be written: &quot;%1&quot;.</source>
        <translation>Le journal ne peut pas être écrit&#xa0;: «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Show &amp;Log</source>
        <translation>Afficher le &amp;journal</translation>
    </message>
    <message>
        <source>Open the log of the last upload</source>
        <translation>Ouvre le journal du dernier envoi</translation>
    </message>
    <message>
        <source>&amp;Upload</source>
        <translation>&amp;Envoyer</translation>
    </message>
    <message>
        <source>Upload to all targets that are checked</source>
        <translation>Envoie à toutes les destinations cochées</translation>
    </message>
    <message>
        <source>Retry &amp;Failed</source>
        <translation>&amp;Réessayer les échecs</translation>
    </message>
    <message>
        <source>Upload again to the targets that did not get everything</source>
        <translation>Envoie de nouveau aux destinations qui n’ont pas tout reçu</translation>
    </message>
    <message>
        <source>&amp;Cancel Upload</source>
        <translation>&amp;Annuler l’envoi</translation>
    </message>
    <message>
        <source>Break the upload off; the targets keep what they had</source>
        <translation>Interrompt l’envoi&#xa0;; les destinations gardent leur état précédent</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Close this window; an upload goes on</source>
        <translation>Ferme cette fenêtre&#xa0;; un envoi continue</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Envoi en cours...</translation>
    </message>
</context>
<context>
    <name>Zavo::UploadJob</name>
    <message>
        <source>Waiting</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Annulé.</translation>
    </message>
    <message>
        <source>Cancelled. The target keeps what it had.</source>
        <translation>Annulé. La destination garde son état précédent.</translation>
    </message>
    <message>
        <source>%1 It broke off while the files were put in place, so the target may hold a mixture. Please upload again.</source>
        <translation>%1 L’interruption est survenue pendant la mise en place des fichiers&#xa0;; la destination peut contenir un mélange. Recommencez l’envoi.</translation>
    </message>
    <message>
        <source>%1 The target keeps what it had.</source>
        <translation>%1 La destination garde son état précédent.</translation>
    </message>
    <message>
        <source>This is where the data folder of the editor lies.</source>
        <translation>C’est là que se trouve le dossier de données de l’éditeur.</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Transferring</source>
        <translation>Transfert</translation>
    </message>
    <message>
        <source>Putting in place</source>
        <translation>Mise en place</translation>
    </message>
    <message>
        <source>Tidying up</source>
        <translation>Nettoyage</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; of the target is a link. The target keeps what it had.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» de la destination est un lien. La destination garde son état précédent.</translation>
    </message>
    <message>
        <source>Complete.</source>
        <translation>Complet.</translation>
    </message>
    <message>
        <source>Complete. What was there before is in the folder &quot;%1&quot;.</source>
        <translation>Complet. Ce qui s’y trouvait avant est dans le dossier «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>Zavo::UploadRun</name>
    <message numerus="yes">
        <source>Upload of %1 to %n target(s), from &quot;%2&quot;</source>
        <translation>
            <numerusform>Envoi du %1 à %n destination, depuis «&#xa0;%2&#xa0;»</numerusform>
            <numerusform>Envoi du %1 à %n destinations, depuis «&#xa0;%2&#xa0;»</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 complete, %2 failed, %3 cancelled</source>
        <translation>%1 complets, %2 échoués, %3 annulés</translation>
    </message>
    <message>
        <source>%1: begins</source>
        <translation>%1&#xa0;: début</translation>
    </message>
    <message>
        <source>%1 channel files, %2 stages, %3 pictures, %4</source>
        <translation>%1 fichiers de canal, %2 scènes, %3 images, %4</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>Zavo::UploadTarget</name>
    <message>
        <source>The address is empty.</source>
        <translation>L’adresse est vide.</translation>
    </message>
    <message>
        <source>The address is too long.</source>
        <translation>L’adresse est trop longue.</translation>
    </message>
    <message>
        <source>An address is a single line without control characters.</source>
        <translation>Une adresse est une seule ligne sans caractères de contrôle.</translation>
    </message>
    <message>
        <source>The path of a folder must not contain &quot;..&quot;.</source>
        <translation>Le chemin d’un dossier ne doit pas contenir «&#xa0;..&#xa0;».</translation>
    </message>
    <message>
        <source>The root folder is no target.</source>
        <translation>Le dossier racine n’est pas une destination.</translation>
    </message>
    <message>
        <source>Such an address reads rsync://host/module or rsync://user@host:port/module/folder. It holds no password.</source>
        <translation>Une telle adresse s’écrit rsync://host/module ou rsync://user@host:port/module/folder. Elle ne contient pas de mot de passe.</translation>
    </message>
    <message>
        <source>The name of a module is missing behind the host.</source>
        <translation>Le nom d’un module manque après l’hôte.</translation>
    </message>
    <message>
        <source>A target is the full path of a folder, rsync://host/module, ssh://user@host/folder or user@host:folder.</source>
        <translation>Une destination est le chemin complet d’un dossier, rsync://host/module, ssh://user@host/folder ou user@host:folder.</translation>
    </message>
    <message>
        <source>A folder on another machine must not contain any of * ? [ ] \.</source>
        <translation>Un dossier d’une autre machine ne doit contenir aucun des caractères * ? [ ] \.</translation>
    </message>
</context>
<context>
    <name>Zavo::UploadTargetDialog</name>
    <message>
        <source>Add Target</source>
        <translation>Ajouter une destination</translation>
    </message>
    <message>
        <source>Change Target</source>
        <translation>Modifier la destination</translation>
    </message>
    <message>
        <source>&amp;Address of the target:</source>
        <translation>&amp;Adresse de la destination&#xa0;:</translation>
    </message>
    <message>
        <source>A folder, such as a mounted share:</source>
        <translation>Un dossier, comme un partage monté&#xa0;:</translation>
    </message>
    <message>
        <source>An rsync daemon:</source>
        <translation>Un service rsync&#xa0;:</translation>
    </message>
    <message>
        <source>A machine reached by ssh:</source>
        <translation>Une machine accessible par ssh&#xa0;:</translation>
    </message>
    <message>
        <source>Address of the target</source>
        <translation>Adresse de la destination</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>Choose a folder of this machine</source>
        <translation>Choisit un dossier de cette machine</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>Choisir un dossier</translation>
    </message>
</context>
<context>
    <name>Zavo::UploadTargetList</name>
    <message>
        <source>Targets of uploads</source>
        <translation>Destinations d’envoi</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>A&amp;jouter...</translation>
    </message>
    <message>
        <source>Enter a new target</source>
        <translation>Saisit une nouvelle destination</translation>
    </message>
    <message>
        <source>C&amp;hange...</source>
        <translation>&amp;Modifier...</translation>
    </message>
    <message>
        <source>Change the address of the chosen target</source>
        <translation>Modifie l’adresse de la destination choisie</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Take the chosen target from the list; what lies there stays</source>
        <translation>Retire la destination choisie de la liste&#xa0;; son contenu reste en place</translation>
    </message>
    <message>
        <source>The target &quot;%1&quot; is in the list already.</source>
        <translation>La destination «&#xa0;%1&#xa0;» est déjà dans la liste.</translation>
    </message>
</context>
<context>
    <name>Zavo::VersionBox</name>
    <message>
        <source>About Zavo Schedule Editor</source>
        <translation>À propos de Zavo Schedule Editor</translation>
    </message>
    <message>
        <source>Zavo Schedule Editor %1</source>
        <translation>Zavo Schedule Editor %1</translation>
    </message>
    <message>
        <source>Edits the daily programme of display channels.

Qt %1
Data folder: %2</source>
        <translation>Édite le programme quotidien de canaux d’affichage.

Qt %1
Dossier de données&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>Zavo::WeekSheet</name>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1&#xa0;: %2 à %3</translation>
    </message>
    <message>
        <source>No schedule</source>
        <translation>Aucune grille</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n autre</numerusform>
            <numerusform>%n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>Too short to be named in the week</source>
        <translation>Trop court pour être nommé dans la semaine</translation>
    </message>
</context>
<context>
    <name>Zavo::WorkingAreaHeader</name>
    <message>
        <source>Schedule of ...</source>
        <translation>Grille&#xa0;: ...</translation>
    </message>
    <message>
        <source>You can create this schedule.</source>
        <translation>Vous pouvez créer cette grille.</translation>
    </message>
    <message>
        <source> - None. </source>
        <translation> - aucune. </translation>
    </message>
</context>
<context>
    <name>Zavo::WorkingAreaStatusBar</name>
    <message>
        <source>Scale</source>
        <translation>Échelle</translation>
    </message>
    <message>
        <source>Cursor Position Time:</source>
        <translation>Heure au curseur&#xa0;:</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvCalendarWidget</name>
    <message>
        <source>Mon</source>
        <translation>Lun</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Mar</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Mer</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Jeu</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Ven</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sam</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Dim</translation>
    </message>
    <message>
        <source>&amp;First Day of Week</source>
        <translation>&amp;Premier jour de la semaine</translation>
    </message>
    <message>
        <source>C&amp;alendar</source>
        <translation>C&amp;alendrier</translation>
    </message>
    <message>
        <source>Move to &amp;Today</source>
        <translation>&amp;Aller à aujourd’hui</translation>
    </message>
    <message>
        <source>Select &amp;Week</source>
        <translation>Sélectionner la &amp;semaine</translation>
    </message>
    <message>
        <source>Select &amp;Month</source>
        <translation>Sélectionner le &amp;mois</translation>
    </message>
    <message>
        <source>Clear &amp;Selections</source>
        <translation>&amp;Effacer la sélection</translation>
    </message>
    <message>
        <source>Show Week &amp;Number</source>
        <translation>Afficher les &amp;numéros de semaine</translation>
    </message>
    <message>
        <source>None</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 jour</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 jours</translation>
    </message>
    <message>
        <source>Schedule of days: </source>
        <translation>Jours avec grille&#xa0;: </translation>
    </message>
</context>
<context>
    <name>Zavo::ZvChannelInformationWidget</name>
    <message>
        <source>Channel Information</source>
        <translation>Informations du canal</translation>
    </message>
    <message>
        <source>ID:</source>
        <translation>ID&#xa0;:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <source>Order#:</source>
        <translation>Nº d’ordre&#xa0;:</translation>
    </message>
    <message>
        <source>Default Schedule:</source>
        <translation>Grille par défaut&#xa0;:</translation>
    </message>
    <message>
        <source>Day of Week Schedule:</source>
        <translation>Grilles de jour de semaine&#xa0;:</translation>
    </message>
    <message>
        <source>Date Schedule:</source>
        <translation>Grilles de date&#xa0;:</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvDayOfWeekWidget</name>
    <message>
        <source>NON</source>
        <translation>–</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Modifié le</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleAutoStageSwichSettingWidget</name>
    <message>
        <source>24 o&apos;clock</source>
        <translation>24 heures</translation>
    </message>
    <message>
        <source>You can set the schedule to switch the default stage at regular time intervals.
The same content as the selected stage will be created with a different name.</source>
        <translation>Vous pouvez définir que la grille passe à la scène par défaut à intervalles réguliers.
Le même contenu que la scène sélectionnée sera créé sous un autre nom.</translation>
    </message>
    <message>
        <source>Note: All stages already set to the timetable will be deleted.</source>
        <translation>Note&#xa0;: toutes les scènes déjà placées dans le tableau horaire seront supprimées.</translation>
    </message>
    <message>
        <source>Switching Interval</source>
        <translation>Intervalle de commutation</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>secondes</translation>
    </message>
    <message>
        <source>Time Range</source>
        <translation>Plage de temps</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source> To</source>
        <translation> à</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>Exécuter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleChangeChannelOrderDialog</name>
    <message>
        <source>Change Channel Order</source>
        <translation>Modifier l’ordre des canaux</translation>
    </message>
    <message>
        <source>*This operation can not be undone.</source>
        <translation>*Cette opération est irréversible.</translation>
    </message>
    <message>
        <source>You can change the channel order.</source>
        <translation>Vous pouvez modifier l’ordre des canaux.</translation>
    </message>
    <message>
        <source>Move To</source>
        <translation>Déplacer vers</translation>
    </message>
    <message>
        <source>ID: %1  Name: %2  Order: #%3</source>
        <translation>ID&#xa0;: %1  Nom&#xa0;: %2  Ordre&#xa0;: #%3</translation>
    </message>
    <message>
        <source>#%1: %2</source>
        <translation>#%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleCommon</name>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Paste Schedule</source>
        <translation>Coller la grille</translation>
    </message>
    <message>
        <source>The paste destinations is different from the schedules in clipboard in number.
Do you want to continue the Paste?</source>
        <translation>Le nombre de destinations diffère du nombre de grilles dans le presse-papiers.
Voulez-vous poursuivre le collage&#xa0;?</translation>
    </message>
    <message>
        <source>Cannot Paste</source>
        <translation>Collage impossible</translation>
    </message>
    <message>
        <source>It is not possible to paste multiple schedules.</source>
        <translation>Il n’est pas possible de coller plusieurs grilles.</translation>
    </message>
    <message>
        <source>removed or </source>
        <translation>supprimée ou </translation>
    </message>
    <message>
        <source>The following schedule will be %1replaced.

</source>
        <translation>La grille suivante sera %1remplacée.

</translation>
    </message>
    <message>
        <source>The schedule exists in paste destination. The schedule will be %1replaced.
Do you want to continue?</source>
        <translation>Une grille existe déjà à l’endroit du collage. Elle sera %1remplacée.
Voulez-vous continuer&#xa0;?</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleDefaultStageWidget</name>
    <message>
        <source>Default Stage</source>
        <translation>Scène par défaut</translation>
    </message>
    <message>
        <source>None - Drop stage here...</source>
        <translation>Aucune - déposez une scène ici...</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>If you set Default Stage, drop the stage into the right box, or select the stage and from the context menu, choose Set As Default Stage.</source>
        <translation>Pour définir la scène par défaut, déposez la scène dans la case de droite, ou sélectionnez-la et choisissez «&#xa0;Définir comme scène par défaut&#xa0;» dans le menu contextuel.</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleDefaultWidget</name>
    <message>
        <source>Schedule of Default</source>
        <translation>Grille par défaut</translation>
    </message>
    <message>
        <source>Assigned Stage: None</source>
        <translation>Scènes affectées&#xa0;: aucune</translation>
    </message>
    <message>
        <source>None</source>
        <translation>aucune</translation>
    </message>
    <message>
        <source>%1 stage</source>
        <translation>%1 scène</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Assigned Stage: </source>
        <translation>Scènes affectées&#xa0;: </translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleEditor</name>
    <message>
        <source>&amp;Save Channel</source>
        <translation>&amp;Enregistrer le canal</translation>
    </message>
    <message>
        <source>Save &amp;All Channels</source>
        <translation>Enregistrer &amp;tous les canaux</translation>
    </message>
    <message>
        <source>&amp;Close Schedule Editor</source>
        <translation>&amp;Fermer l’éditeur de grilles</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Cut</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Deselect A&amp;ll</source>
        <translation>Tout &amp;désélectionner</translation>
    </message>
    <message>
        <source>&amp;Upload...</source>
        <translation>&amp;Envoyer...</translation>
    </message>
    <message>
        <source>&amp;Output Channel Data...</source>
        <translation>E&amp;xporter les données du canal...</translation>
    </message>
    <message>
        <source>S&amp;how Upload Log...</source>
        <translation>Afficher le &amp;journal d’envoi...</translation>
    </message>
    <message>
        <source>Open Upload Log &amp;Folder...</source>
        <translation>Ouvrir le &amp;dossier du journal d’envoi...</translation>
    </message>
    <message>
        <source>&amp;New Schedule</source>
        <translation>&amp;Nouvelle grille</translation>
    </message>
    <message>
        <source>&amp;Delete Schedule...</source>
        <translation>Supprimer la &amp;grille...</translation>
    </message>
    <message>
        <source>&amp;Rename Channel</source>
        <translation>&amp;Renommer le canal</translation>
    </message>
    <message>
        <source>Chan&amp;ge Channel Order...</source>
        <translation>Modifier l’&amp;ordre des canaux...</translation>
    </message>
    <message>
        <source>&amp;Add Channel...</source>
        <translation>&amp;Ajouter un canal...</translation>
    </message>
    <message>
        <source>D&amp;elete Channel...</source>
        <translation>&amp;Supprimer le canal...</translation>
    </message>
    <message>
        <source>Delete All Channels and &amp;Settings...</source>
        <translation>Supprimer &amp;tous les canaux et réglages...</translation>
    </message>
    <message>
        <source>Show Channel &amp;Information...</source>
        <translation>Afficher les &amp;informations du canal...</translation>
    </message>
    <message>
        <source>Channel Configura&amp;tion...</source>
        <translation>&amp;Configuration des canaux...</translation>
    </message>
    <message>
        <source>&amp;Switch Schedule</source>
        <translation>Changer de &amp;grille</translation>
    </message>
    <message>
        <source>Schedule &amp;List</source>
        <translation>&amp;Liste des grilles</translation>
    </message>
    <message>
        <source>&amp;Choose Stage</source>
        <translation>&amp;Choisir une scène</translation>
    </message>
    <message>
        <source>&amp;Assigned Item Property</source>
        <translation>&amp;Propriétés de l’élément</translation>
    </message>
    <message>
        <source>To &amp;Default Position</source>
        <translation>Disposition par &amp;défaut</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;Channel</source>
        <translation>&amp;Canal</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>Fe&amp;nêtre</translation>
    </message>
    <message>
        <source>Switch Schedule</source>
        <translation>Changer de grille</translation>
    </message>
    <message>
        <source>Schedule List</source>
        <translation>Liste des grilles</translation>
    </message>
    <message>
        <source>Choose Stage</source>
        <translation>Choisir une scène</translation>
    </message>
    <message>
        <source>MainWindow does not exist.</source>
        <translation>La fenêtre principale n’existe pas.</translation>
    </message>
    <message>
        <source>The schedule editor has been closed.</source>
        <translation>L’éditeur de grilles a été fermé.</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleItemPropertyWidget</name>
    <message>
        <source>Selected Stage</source>
        <translation>Scène sélectionnée</translation>
    </message>
    <message>
        <source>Previous Stage</source>
        <translation>Scène précédente</translation>
    </message>
    <message>
        <source>Next Stage</source>
        <translation>Scène suivante</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Fin</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleListWidget</name>
    <message>
        <source>default</source>
        <translation>par défaut</translation>
    </message>
    <message>
        <source>date</source>
        <translation>date</translation>
    </message>
    <message>
        <source>day of week</source>
        <translation>jour de semaine</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Stages</source>
        <translation>Scènes</translation>
    </message>
    <message>
        <source>Channel: None</source>
        <translation>Canal&#xa0;: aucun</translation>
    </message>
    <message>
        <source>Schedule List</source>
        <translation>Liste des grilles</translation>
    </message>
    <message>
        <source>&amp;New Schedule...</source>
        <translation>&amp;Nouvelle grille...</translation>
    </message>
    <message>
        <source>Channel: %1</source>
        <translation>Canal&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleMainWidget</name>
    <message>
        <source>Critical Error</source>
        <translation>Erreur critique</translation>
    </message>
    <message>
        <source>Channel Folder cannot be created. 
Please check the data folder write permission.</source>
        <translation>Le dossier des canaux ne peut pas être créé. 
Vérifiez les droits d’écriture du dossier de données.</translation>
    </message>
    <message>
        <source>Create Channel</source>
        <translation>Créer un canal</translation>
    </message>
    <message>
        <source>The channel file can not be created. 
Please make sure that channel folder is writable.</source>
        <translation>Le fichier de canal ne peut pas être créé. 
Vérifiez que le dossier des canaux est accessible en écriture.</translation>
    </message>
    <message>
        <source>Add New Channel</source>
        <translation>Ajouter un nouveau canal</translation>
    </message>
    <message>
        <source>The channel &quot;%1&quot; will be deleted.
After it has been deleted, it can not be undone.

Are you sure that you want to delete this channel?</source>
        <translation>Le canal «&#xa0;%1&#xa0;» sera supprimé.
Cette suppression est irréversible.

Voulez-vous vraiment supprimer ce canal&#xa0;?</translation>
    </message>
    <message>
        <source>Delete Channel</source>
        <translation>Supprimer le canal</translation>
    </message>
    <message>
        <source>The channel file can not be deleted.
Please check whether it is possible to delete the file.</source>
        <translation>Le fichier de canal ne peut pas être supprimé.
Vérifiez qu’il est possible de supprimer le fichier.</translation>
    </message>
    <message>
        <source>Change Channel Name</source>
        <translation>Modifier le nom du canal</translation>
    </message>
    <message>
        <source>Change Channel &amp;Name...</source>
        <translation>Modifier le &amp;nom du canal...</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleSpecifyScheduleDialog</name>
    <message>
        <source>Create Schedule</source>
        <translation>Créer une grille</translation>
    </message>
    <message>
        <source>The new schedule will be created. 
You have to select Schedule Type and specify a day of week, or a date.</source>
        <translation>Une nouvelle grille va être créée. 
Choisissez le type de grille et indiquez un jour de semaine ou une date.</translation>
    </message>
    <message>
        <source>Paste Schedule</source>
        <translation>Coller la grille</translation>
    </message>
    <message>
        <source>The schedule will be pasted from a clipboard. 
You have to specify a destination of pasting.</source>
        <translation>La grille va être collée depuis le presse-papiers. 
Indiquez où la coller.</translation>
    </message>
    <message>
        <source>Jump To Schedule</source>
        <translation>Aller à la grille</translation>
    </message>
    <message>
        <source>Specify the schedule you want to jump.</source>
        <translation>Indiquez la grille à atteindre.</translation>
    </message>
    <message>
        <source>Schedule Type</source>
        <translation>Type de grille</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Day of Week</source>
        <translation>Jour de semaine</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Repeat the paste when there are the multiple schedules on the clipboard.</source>
        <translation>Répéter le collage s’il y a plusieurs grilles dans le presse-papiers.</translation>
    </message>
    <message>
        <source> yyyy - MM - dd </source>
        <translation> dd/MM/yyyy </translation>
    </message>
    <message>
        <source>New Schedule</source>
        <translation>Nouvelle grille</translation>
    </message>
    <message>
        <source>The schedule of %1 has already existed.
You have to specify another date.</source>
        <translation>La grille du %1 existe déjà.
Indiquez une autre date.</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleStageChooserWidget</name>
    <message>
        <source>Thumbnail of Stage</source>
        <translation>Miniature de la scène</translation>
    </message>
    <message>
        <source>Stage List</source>
        <translation>Liste des scènes</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleStageListView</name>
    <message>
        <source>Set As Default Stage</source>
        <translation>Définir comme scène par défaut</translation>
    </message>
    <message>
        <source>Set the switching interval as Default Stage...</source>
        <translation>Définir l’intervalle de commutation comme scène par défaut...</translation>
    </message>
    <message>
        <source>Set the switching interval as Default Stage</source>
        <translation>Définir l’intervalle de commutation comme scène par défaut</translation>
    </message>
    <message>
        <source>Caution</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>The selected stage was automatically generated.
Please select a stage which name does not include &quot;_ d _&quot;.</source>
        <translation>La scène sélectionnée a été générée automatiquement.
Choisissez une scène dont le nom ne contient pas «&#xa0;_ d _&#xa0;».</translation>
    </message>
    <message>
        <source>Failed to delete the file for automatic generation.
Processing was interrupted.</source>
        <translation>Le fichier de génération automatique n’a pas pu être supprimé.
Le traitement a été interrompu.</translation>
    </message>
    <message>
        <source>Failed to create the file for automatic generation.
Processing was interrupted.</source>
        <translation>Le fichier de génération automatique n’a pas pu être créé.
Le traitement a été interrompu.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleSwitcherWidget</name>
    <message>
        <source>Schedule of days: None</source>
        <translation>Jours avec grille&#xa0;: aucun</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleTabWidget</name>
    <message>
        <source>&lt;span style=&quot;font-weight:bold;&quot;&gt;You can not move the first tab.&lt;/span&gt;</source>
        <translation>&lt;span style=&quot;font-weight:bold;&quot;&gt;Le premier onglet ne peut pas être déplacé.&lt;/span&gt;</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleWorkingArea</name>
    <message>
        <source>Unknown</source>
        <translation>inconnue</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduledToBeExecutedWidget</name>
    <message>
        <source>Scheduled to be executed on</source>
        <translation>Exécution prévue le</translation>
    </message>
    <message>
        <source>Schedule:</source>
        <translation>Grille&#xa0;:</translation>
    </message>
    <message>
        <source>DEFAULT</source>
        <translation>PAR DÉFAUT</translation>
    </message>
    <message>
        <source>Scheduled to be executed on %1 (%2)</source>
        <translation>Exécution prévue le %1 (%2)</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvTimeSpinWidget</name>
    <message>
        <source>h</source>
        <translation>h</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvTimeTableTimeZoneItem</name>
    <message>
        <source>Failed to assign &quot;%1&quot;.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être affecté.</translation>
    </message>
    <message>
        <source>There is not enough unallocated time in order to assign stage. The start time must be earlier than 23:59:55.</source>
        <translation>Il n’y a pas assez de temps libre pour affecter la scène. L’heure de début doit être antérieure à 23:59:55.</translation>
    </message>
    <message>
        <source>You can not reassigned to the allocated time.</source>
        <translation>Un temps déjà affecté ne peut pas l’être de nouveau.</translation>
    </message>
    <message>
        <source>There is not enough unallocated time in order to assign stages. Unassigned time of 5 seconds or more per one stage is required.</source>
        <translation>Il n’y a pas assez de temps libre pour affecter les scènes. Il faut au moins 5 secondes libres par scène.</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvTimeTableView</name>
    <message>
        <source>This schedule does not exist.</source>
        <translation>Cette grille n’existe pas.</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvTodayWidget</name>
    <message>
        <source>Today:</source>
        <translation>Aujourd’hui&#xa0;:</translation>
    </message>
    <message>
        <source>Move to Today</source>
        <translation>Aller à aujourd’hui</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvWeekWidget</name>
    <message>
        <source>Schedule for Each Day of Week</source>
        <translation>Grilles des jours de semaine</translation>
    </message>
</context>
</TS>
