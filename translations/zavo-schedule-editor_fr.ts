<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Zavo::ActionHelp</name>
    <message>
        <source>Saves the channel of the current tab</source>
        <translation>Enregistre le canal de l’onglet actif</translation>
    </message>
    <message>
        <source>Writes the channel of the current tab to its file. The file is replaced in one step, so that it is never half-written.</source>
        <translation>Écrit le canal de l’onglet actif dans son fichier. Le fichier est remplacé en une seule étape&#xa0;: il n’est jamais à moitié écrit.</translation>
    </message>
    <message>
        <source>Saves the channels of all tabs</source>
        <translation>Enregistre les canaux de tous les onglets</translation>
    </message>
    <message>
        <source>Writes the channel of each tab to its file.</source>
        <translation>Écrit le canal de chaque onglet dans son fichier.</translation>
    </message>
    <message>
        <source>Closes the schedule editor and asks about unsaved channels</source>
        <translation>Ferme l’éditeur de grilles et signale les canaux non enregistrés</translation>
    </message>
    <message>
        <source>Closes the schedule editor. You are asked about each channel with changes that are not saved.</source>
        <translation>Ferme l’éditeur de grilles. Une question est posée pour chaque canal aux modifications non enregistrées.</translation>
    </message>
    <message>
        <source>Ends the program and asks about unsaved channels</source>
        <translation>Quitte le programme et signale les canaux non enregistrés</translation>
    </message>
    <message>
        <source>Ends the program. You are asked about each channel with changes that are not saved.</source>
        <translation>Quitte le programme. Une question est posée pour chaque canal aux modifications non enregistrées.</translation>
    </message>
    <message>
        <source>Takes back the last change of this channel</source>
        <translation>Annule la dernière modification de ce canal</translation>
    </message>
    <message>
        <source>Takes back the last change of the channel of the current tab, and shows the schedule that it was made in. Each channel has a history of its own.</source>
        <translation>Annule la dernière modification du canal de l’onglet actif et affiche la grille où elle a été faite. Chaque canal a son propre historique.</translation>
    </message>
    <message>
        <source>Makes the change again that was undone last</source>
        <translation>Refait la dernière modification annulée</translation>
    </message>
    <message>
        <source>Makes the change of this channel again that was undone last, and shows the schedule that it belongs to.</source>
        <translation>Refait la dernière modification annulée de ce canal et affiche la grille concernée.</translation>
    </message>
    <message>
        <source>Moves the selection to the clipboard</source>
        <translation>Déplace la sélection vers le presse-papiers</translation>
    </message>
    <message>
        <source>Moves what is selected to the clipboard: stages in the time table, dates or a day of the week in Switch Schedule, or the checked rows of the Schedule List. What you used last counts.</source>
        <translation>Déplace la sélection vers le presse-papiers&#xa0;: des scènes du tableau horaire, des dates ou un jour de semaine de «&#xa0;Changer de grille&#xa0;», ou les lignes cochées de la liste des grilles. C’est le dernier panneau utilisé qui compte.</translation>
    </message>
    <message>
        <source>Copies the selection to the clipboard</source>
        <translation>Copie la sélection dans le presse-papiers</translation>
    </message>
    <message>
        <source>Copies what is selected to the clipboard: stages in the time table, whole schedules in Switch Schedule, or the checked rows of the Schedule List. What you used last counts.</source>
        <translation>Copie la sélection dans le presse-papiers&#xa0;: des scènes du tableau horaire, des grilles entières de «&#xa0;Changer de grille&#xa0;», ou les lignes cochées de la liste des grilles. C’est le dernier panneau utilisé qui compte.</translation>
    </message>
    <message>
        <source>Inserts what is on the clipboard</source>
        <translation>Insère le contenu du presse-papiers</translation>
    </message>
    <message>
        <source>Inserts stages into the time table, or schedules at the selected date or day. You are asked before a schedule is replaced.</source>
        <translation>Insère des scènes dans le tableau horaire, ou des grilles à la date ou au jour sélectionné. Une question est posée avant de remplacer une grille.</translation>
    </message>
    <message>
        <source>Deletes the selection</source>
        <translation>Supprime la sélection</translation>
    </message>
    <message>
        <source>Deletes what is selected: stages in the time table, schedules in Switch Schedule, or the checked rows of the Schedule List. The default schedule cannot be deleted.</source>
        <translation>Supprime la sélection&#xa0;: des scènes du tableau horaire, des grilles de «&#xa0;Changer de grille&#xa0;», ou les lignes cochées de la liste des grilles. La grille par défaut ne peut pas être supprimée.</translation>
    </message>
    <message>
        <source>Selects everything in the time table or the Schedule List</source>
        <translation>Sélectionne tout dans le tableau horaire ou la liste des grilles</translation>
    </message>
    <message>
        <source>Selects all stages of the time table, or checks all rows of the Schedule List, whichever you used last.</source>
        <translation>Sélectionne toutes les scènes du tableau horaire ou coche toutes les lignes de la liste des grilles, selon ce que vous avez utilisé en dernier.</translation>
    </message>
    <message>
        <source>Selects nothing in the time table or the Schedule List</source>
        <translation>Désélectionne tout dans le tableau horaire ou la liste des grilles</translation>
    </message>
    <message>
        <source>Takes the selection off all stages of the time table, or the check marks off all rows of the Schedule List, whichever you used last.</source>
        <translation>Désélectionne toutes les scènes du tableau horaire ou décoche toutes les lignes de la liste des grilles, selon ce que vous avez utilisé en dernier.</translation>
    </message>
    <message>
        <source>Sends the channels and their stages to the displays</source>
        <translation>Envoie les canaux et leurs scènes aux écrans</translation>
    </message>
    <message>
        <source>Opens the upload manager, which sends the saved channels and the stages they use to the upload targets. You are asked about unsaved channels first.</source>
        <translation>Ouvre la fenêtre d’envoi, qui envoie les canaux enregistrés et leurs scènes aux destinations. Auparavant, les canaux non enregistrés vous sont signalés.</translation>
    </message>
    <message>
        <source>Exports the channel of the current tab to a file</source>
        <translation>Exporte le canal de l’onglet actif dans un fichier</translation>
    </message>
    <message>
        <source>Exports the channel of the current tab, as it was saved last, to a file that other programs can read.</source>
        <translation>Exporte le canal de l’onglet actif, tel qu’il a été enregistré en dernier, dans un fichier lisible par d’autres programmes.</translation>
    </message>
    <message>
        <source>Opens the log of the last upload</source>
        <translation>Ouvre le journal du dernier envoi</translation>
    </message>
    <message>
        <source>Opens the log that tells how the last upload went.</source>
        <translation>Ouvre le journal qui relate le dernier envoi.</translation>
    </message>
    <message>
        <source>Opens the folder with the logs of the uploads</source>
        <translation>Ouvre le dossier des journaux d’envoi</translation>
    </message>
    <message>
        <source>Opens the folder with the logs of the last upload and of those before.</source>
        <translation>Ouvre le dossier des journaux du dernier envoi et des précédents.</translation>
    </message>
    <message>
        <source>Creates the schedule that is chosen in Switch Schedule</source>
        <translation>Crée la grille choisie dans «&#xa0;Changer de grille&#xa0;»</translation>
    </message>
    <message>
        <source>Creates a schedule for the date or the day of the week that is chosen in Switch Schedule, if it has none. Stages can be dropped only on a schedule that exists.</source>
        <translation>Crée une grille pour la date ou le jour de semaine choisi dans «&#xa0;Changer de grille&#xa0;», s’il n’en a pas. On ne peut déposer des scènes que sur une grille existante.</translation>
    </message>
    <message>
        <source>Deletes the schedule that is shown</source>
        <translation>Supprime la grille affichée</translation>
    </message>
    <message>
        <source>Deletes the schedule in the time table with all its stages, after a question. The default schedule cannot be deleted.</source>
        <translation>Supprime, après confirmation, la grille du tableau horaire avec toutes ses scènes. La grille par défaut ne peut pas être supprimée.</translation>
    </message>
    <message>
        <source>Changes the name of the channel in its tab</source>
        <translation>Modifie le nom du canal dans son onglet</translation>
    </message>
    <message>
        <source>Opens the name in the current tab for editing. Enter takes the new name over. Two channels cannot have the same name.</source>
        <translation>Ouvre le nom dans l’onglet actif pour le modifier. Entrée valide le nouveau nom. Deux canaux ne peuvent pas porter le même nom.</translation>
    </message>
    <message>
        <source>Moves the tab of the channel to another place</source>
        <translation>Déplace l’onglet du canal à une autre place</translation>
    </message>
    <message>
        <source>Moves the current tab to the place of another one. The first channel keeps its place. This cannot be undone.</source>
        <translation>Déplace l’onglet actif à la place d’un autre. Le premier canal garde sa place. Cette opération est irréversible.</translation>
    </message>
    <message>
        <source>Adds a channel with an empty default schedule</source>
        <translation>Ajoute un canal avec une grille par défaut vide</translation>
    </message>
    <message>
        <source>Adds a channel with an empty default schedule behind the last tab. Its file is written at once.</source>
        <translation>Ajoute après le dernier onglet un canal avec une grille par défaut vide. Son fichier est écrit aussitôt.</translation>
    </message>
    <message>
        <source>Deletes the channel of the current tab with its file</source>
        <translation>Supprime le canal de l’onglet actif avec son fichier</translation>
    </message>
    <message>
        <source>Deletes the channel of the current tab with its file, after a question. The first channel cannot be deleted. This cannot be undone.</source>
        <translation>Supprime, après confirmation, le canal de l’onglet actif avec son fichier. Le premier canal ne peut pas être supprimé. Cette opération est irréversible.</translation>
    </message>
    <message>
        <source>Deletes all channels and closes the editor</source>
        <translation>Supprime tous les canaux et ferme l’éditeur</translation>
    </message>
    <message>
        <source>Deletes every channel file and the settings of the channels, after a question, and closes the editor. The next start begins with ten empty channels. This cannot be undone.</source>
        <translation>Supprime, après confirmation, tous les fichiers de canal et les réglages des canaux, puis ferme l’éditeur. Le prochain démarrage commence avec dix canaux vides. Cette opération est irréversible.</translation>
    </message>
    <message>
        <source>Shows the id, place and number of schedules of the channel</source>
        <translation>Affiche l’identifiant, la place et le nombre de grilles du canal</translation>
    </message>
    <message>
        <source>Shows the id, the name and the place of the current channel, and how many schedules of each kind it has.</source>
        <translation>Affiche l’identifiant, le nom et la place du canal actuel, et le nombre de grilles de chaque type.</translation>
    </message>
    <message>
        <source>Chooses which channels are uploaded</source>
        <translation>Choisit les canaux à envoyer</translation>
    </message>
    <message>
        <source>Lists the saved channels and chooses which of them are uploaded.</source>
        <translation>Liste les canaux enregistrés et permet de choisir ceux qui sont envoyés.</translation>
    </message>
    <message>
        <source>Shows or hides the panel for choosing a schedule</source>
        <translation>Affiche ou masque le panneau de choix de la grille</translation>
    </message>
    <message>
        <source>Shows or hides Switch Schedule, the panel where you choose which schedule is in the time table: that of a date, of a day of the week, or the default one.</source>
        <translation>Affiche ou masque «&#xa0;Changer de grille&#xa0;», le panneau où l’on choisit la grille du tableau horaire&#xa0;: celle d’une date, d’un jour de semaine, ou celle par défaut.</translation>
    </message>
    <message>
        <source>Shows or hides the list of all schedules</source>
        <translation>Affiche ou masque la liste de toutes les grilles</translation>
    </message>
    <message>
        <source>Shows or hides the Schedule List, with a row for each schedule of the channel.</source>
        <translation>Affiche ou masque la liste des grilles, avec une ligne pour chaque grille du canal.</translation>
    </message>
    <message>
        <source>Shows or hides the panel with the stages</source>
        <translation>Affiche ou masque le panneau des scènes</translation>
    </message>
    <message>
        <source>Shows or hides Choose Stage, the panel from which stages are dragged to the time table.</source>
        <translation>Affiche ou masque «&#xa0;Choisir une scène&#xa0;», le panneau d’où l’on fait glisser les scènes vers le tableau horaire.</translation>
    </message>
    <message>
        <source>Shows or hides the panel with the times of the selected stage</source>
        <translation>Affiche ou masque le panneau des heures de la scène sélectionnée</translation>
    </message>
    <message>
        <source>Shows or hides the panel in which the start and the end of the selected stage are typed to the second.</source>
        <translation>Affiche ou masque le panneau où le début et la fin de la scène sélectionnée se saisissent à la seconde.</translation>
    </message>
    <message>
        <source>Puts all panels back to their places</source>
        <translation>Remet tous les panneaux à leur place</translation>
    </message>
    <message>
        <source>Shows all panels at the places and in the sizes that they had at the first start.</source>
        <translation>Affiche tous les panneaux aux places et dans les tailles du premier démarrage.</translation>
    </message>
</context>
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
    <message>
        <source>%1  at a target</source>
        <translation>%1  à une destination</translation>
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
    <message>
        <source>Reading the channels: %1 of %2...</source>
        <translation>Lecture des canaux&#xa0;: %1 sur %2...</translation>
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
        <translation>Le lecteur et l’éditeur sont &amp;la même machine</translation>
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
        <translation>Premiè&amp;re date&#xa0;:</translation>
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
    <name>Zavo::GuideDialog</name>
    <message>
        <source>User&apos;s Guide</source>
        <translation>Guide de l’utilisateur</translation>
    </message>
    <message>
        <source>Page of the guide</source>
        <translation>Page du guide</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Retour</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>Re&amp;chercher&#xa0;:</translation>
    </message>
    <message>
        <source>Find in the page</source>
        <translation>Rechercher dans la page</translation>
    </message>
    <message>
        <source>It is not in this page.</source>
        <translation>Introuvable dans cette page.</translation>
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
        <source>Check &amp;Data...</source>
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
    <message>
        <source>Reads all channel files and the stages they use and lists what is wrong: stages that are missing, time without a stage, bands that overlap, files that are passed over.</source>
        <translation>Lit tous les fichiers de canal et leurs scènes et liste les anomalies&#xa0;: scènes manquantes, temps sans scène, plages qui se chevauchent, fichiers ignorés.</translation>
    </message>
    <message>
        <source>Shows the data folder, the settings of its schedules and the upload targets, each with an explanation, to be changed.</source>
        <translation>Affiche, avec une explication, le dossier de données, les réglages de ses grilles et les destinations d’envoi, pour les modifier.</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts...</source>
        <translation>&amp;Raccourcis clavier...</translation>
    </message>
    <message>
        <source>Shows and changes the keys of all commands</source>
        <translation>Affiche et modifie les touches de toutes les commandes</translation>
    </message>
    <message>
        <source>Lists all commands with their keys. Other keys can be given to each of them; what is already in use is told.</source>
        <translation>Liste toutes les commandes avec leurs touches. On peut en attribuer d’autres à chacune&#xa0;; celles qui sont déjà prises sont signalées.</translation>
    </message>
    <message>
        <source>&amp;What&apos;s This?</source>
        <translation>Qu’&amp;est-ce que c’est&#xa0;?</translation>
    </message>
    <message>
        <source>Explains what you click next</source>
        <translation>Explique ce sur quoi vous cliquez ensuite</translation>
    </message>
    <message>
        <source>Click a command or a part of the window after this, and it is explained. Esc ends it.</source>
        <translation>Cliquez ensuite sur une commande ou une partie de la fenêtre pour obtenir son explication. Échap met fin à ce mode.</translation>
    </message>
    <message>
        <source>Shows the version of the program and where its data are</source>
        <translation>Affiche la version du programme et l’emplacement de ses données</translation>
    </message>
    <message>
        <source>Shows the version of the program, of the library it is built on, and the data folder that is open.</source>
        <translation>Affiche la version du programme, celle de la bibliothèque sur laquelle il repose et le dossier de données ouvert.</translation>
    </message>
    <message>
        <source>Shows the version of the library that the program is built on</source>
        <translation>Affiche la version de la bibliothèque sur laquelle repose le programme</translation>
    </message>
    <message>
        <source>Tells about Qt, the library that the program is built on.</source>
        <translation>Informe sur Qt, la bibliothèque sur laquelle repose le programme.</translation>
    </message>
    <message>
        <source>User&apos;s &amp;Guide</source>
        <translation>&amp;Guide de l’utilisateur</translation>
    </message>
    <message>
        <source>Leads through the first hour and explains every message</source>
        <translation>Accompagne la première heure et explique chaque message (en anglais)</translation>
    </message>
    <message>
        <source>Opens the guide in a window of its own, which can stay open beside the work.</source>
        <translation>Ouvre le guide, en anglais, dans une fenêtre à part, qui peut rester ouverte pendant le travail.</translation>
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
    <message>
        <source>Hides this notice</source>
        <translation>Masque cet avis</translation>
    </message>
    <message>
        <source>Hides this notice until there is another one.</source>
        <translation>Masque cet avis jusqu’au prochain.</translation>
    </message>
    <message>
        <source>More commands</source>
        <translation>Autres commandes</translation>
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
    <name>Zavo::ReservedKeys</name>
    <message>
        <source>%1 moves what is selected in the time table.</source>
        <translation>%1 déplace la sélection dans le tableau horaire.</translation>
    </message>
    <message>
        <source>%1 goes through texts, lists, the calendar and the time table.</source>
        <translation>%1 parcourt les textes, les listes, le calendrier et le tableau horaire.</translation>
    </message>
    <message>
        <source>%1 goes from one control to the next.</source>
        <translation>%1 passe d’un élément au suivant.</translation>
    </message>
    <message>
        <source>%1 presses buttons and checks rows.</source>
        <translation>%1 actionne les boutons et coche les lignes.</translation>
    </message>
    <message>
        <source>%1 closes menus and dialogs.</source>
        <translation>%1 ferme les menus et les dialogues.</translation>
    </message>
    <message>
        <source>%1 is needed to type texts.</source>
        <translation>%1 est nécessaire pour saisir du texte.</translation>
    </message>
    <message>
        <source>%1 opens the menu &quot;%2&quot;.</source>
        <translation>%1 ouvre le menu «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>%1 edits the name of a channel or a target.</source>
        <translation>%1 modifie le nom d’un canal ou une destination.</translation>
    </message>
    <message>
        <source>These are no keys that can be struck.</source>
        <translation>Ces touches ne peuvent pas être frappées.</translation>
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
    <message>
        <source>Shows earlier states of the channels and restores one</source>
        <translation>Affiche les états antérieurs des canaux et en restaure un</translation>
    </message>
    <message>
        <source>Lists the states that each channel file had before it was replaced or removed, with what differs, and brings one back.</source>
        <translation>Liste les états de chaque fichier de canal avant son remplacement ou sa suppression, avec leurs différences, et en rétablit un.</translation>
    </message>
    <message>
        <source>The first channel was opened from &quot;channel.xml&quot;, a file that goes when it is saved. What was saved is among the safety copies; restore it from there.</source>
        <translation>Le premier canal était ouvert depuis «&#xa0;channel.xml&#xa0;», un fichier qui disparaît à l’enregistrement. Ce qui a été enregistré se trouve parmi les copies de sécurité&#xa0;; restaurez-le à partir de là.</translation>
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
    <message>
        <source>Closes the schedule editor and asks about unsaved channels</source>
        <translation>Ferme l’éditeur de grilles et signale les canaux non enregistrés</translation>
    </message>
    <message>
        <source>Closes the schedule editor. You are asked about each channel with changes that are not saved.</source>
        <translation>Ferme l’éditeur de grilles. Une question est posée pour chaque canal aux modifications non enregistrées.</translation>
    </message>
    <message>
        <source>More commands</source>
        <translation>Autres commandes</translation>
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
    <name>Zavo::ShortcutDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Find a command or a key</source>
        <translation>Rechercher une commande ou une touche</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>&amp;No Keys</source>
        <translation>Aucune &amp;touche</translation>
    </message>
    <message>
        <source>&amp;Default</source>
        <translation>Par &amp;défaut</translation>
    </message>
    <message>
        <source>&amp;Take It Away</source>
        <translation>Reti&amp;rer</translation>
    </message>
    <message>
        <source>&amp;All to Default</source>
        <translation>T&amp;out par défaut</translation>
    </message>
    <message>
        <source>&amp;Press the keys for &quot;%1&quot;:</source>
        <translation>A&amp;ppuyez sur les touches de «&#xa0;%1&#xa0;»&#xa0;:</translation>
    </message>
    <message>
        <source>Choose a command, then press its keys.</source>
        <translation>Choisissez une commande, puis appuyez sur ses touches.</translation>
    </message>
</context>
<context>
    <name>Zavo::Shortcuts</name>
    <message>
        <source>%1 is the key of &quot;%2&quot; (%3).</source>
        <translation>%1 est la touche de «&#xa0;%2&#xa0;» (%3).</translation>
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
    <name>Zavo::TargetKeeper</name>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être lu.</translation>
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
    <message>
        <source>Schedule of the channel</source>
        <translation>Grille du canal</translation>
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
    <message>
        <source>Checking the data: %1 of %2 files...</source>
        <translation>Vérification des données&#xa0;: %1 fichiers sur %2...</translation>
    </message>
    <message>
        <source>Cancelled before anything was sent.</source>
        <translation>Annulé avant tout envoi.</translation>
    </message>
    <message>
        <source>Nothing was uploaded.</source>
        <translation>Rien n’a été envoyé.</translation>
    </message>
    <message>
        <source>Checking the data...</source>
        <translation>Vérification des données...</translation>
    </message>
</context>
<context>
    <name>Zavo::UploadFindingsDialog</name>
    <message>
        <source>Check Before Upload</source>
        <translation>Vérification avant l’envoi</translation>
    </message>
    <message>
        <source>%1 Upload all the same?</source>
        <translation>%1 Envoyer quand même&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Upload All the Same</source>
        <translation>&amp;Envoyer quand même</translation>
    </message>
    <message>
        <source>&amp;Do Not Upload</source>
        <translation>&amp;Ne pas envoyer</translation>
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
    <message>
        <source>Keeping what is replaced</source>
        <translation>Conservation du remplacé</translation>
    </message>
    <message>
        <source>There is no room to keep what is replaced. The target keeps what it had.</source>
        <translation>Il n’y a pas de place pour conserver ce qui est remplacé. La destination garde son état précédent.</translation>
    </message>
    <message numerus="yes">
        <source>%n channel file(s) that were replaced or removed there are among the safety copies.</source>
        <translation>
            <numerusform>%n fichier de canal qui y a été remplacé ou supprimé est parmi les copies de sécurité.</numerusform>
            <numerusform>%n fichiers de canal qui y ont été remplacés ou supprimés sont parmi les copies de sécurité.</numerusform>
        </translation>
    </message>
    <message>
        <source>Complete. No safety copy could be made of all that was replaced there.</source>
        <translation>Complet. Tout ce qui y a été remplacé n’a pas pu être mis parmi les copies de sécurité.</translation>
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
    <message numerus="yes">
        <source>The check found %n thing(s):</source>
        <translation>
            <numerusform>La vérification a trouvé %n anomalie&#xa0;:</numerusform>
            <numerusform>La vérification a trouvé %n anomalies&#xa0;:</numerusform>
        </translation>
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
        <translation>Ajou&amp;ter...</translation>
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
    <message>
        <source>The chosen date or day has no schedule of its own. Click here to create it; only then can stages be dropped.</source>
        <translation>La date ou le jour choisi n’a pas de grille propre. Cliquez ici pour la créer&#xa0;; alors seulement on peut y déposer des scènes.</translation>
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
        <translation>Ca&amp;lendrier</translation>
    </message>
    <message>
        <source>Move to &amp;Today</source>
        <translation>Aller à au&amp;jourd’hui</translation>
    </message>
    <message>
        <source>Select &amp;Week</source>
        <translation>Sélectionner la s&amp;emaine</translation>
    </message>
    <message>
        <source>Select &amp;Month</source>
        <translation>Sélectionner le &amp;mois</translation>
    </message>
    <message>
        <source>Clear &amp;Selections</source>
        <translation>E&amp;ffacer la sélection</translation>
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
    <message>
        <source>Shows today&apos;s schedule</source>
        <translation>Affiche la grille d’aujourd’hui</translation>
    </message>
    <message>
        <source>Turns the calendar to the present month and shows the schedule of today&apos;s date.</source>
        <translation>Ramène le calendrier au mois en cours et affiche la grille d’aujourd’hui.</translation>
    </message>
    <message>
        <source>Selects the whole week of the selected date</source>
        <translation>Sélectionne toute la semaine de la date sélectionnée</translation>
    </message>
    <message>
        <source>Selects the seven days of the week of the selected date. Cut, copy, paste and delete then act on all of them.</source>
        <translation>Sélectionne les sept jours de la semaine de la date sélectionnée. Couper, copier, coller et supprimer agissent alors sur tous.</translation>
    </message>
    <message>
        <source>Selects the whole month of the selected date</source>
        <translation>Sélectionne tout le mois de la date sélectionnée</translation>
    </message>
    <message>
        <source>Selects all days of the month of the selected date. Cut, copy, paste and delete then act on all of them.</source>
        <translation>Sélectionne tous les jours du mois de la date sélectionnée. Couper, copier, coller et supprimer agissent alors sur tous.</translation>
    </message>
    <message>
        <source>Leaves only one date selected</source>
        <translation>Ne laisse qu’une date sélectionnée</translation>
    </message>
    <message>
        <source>Takes the selection off all dates but the one whose schedule is shown.</source>
        <translation>Désélectionne toutes les dates sauf celle dont la grille est affichée.</translation>
    </message>
    <message>
        <source>Chooses the day with which the weeks begin</source>
        <translation>Choisit le jour qui commence les semaines</translation>
    </message>
    <message>
        <source>Chooses the day that stands first in the rows of the calendar.</source>
        <translation>Choisit le jour placé en tête des lignes du calendrier.</translation>
    </message>
    <message>
        <source>Begins the weeks of the calendar with this day</source>
        <translation>Commence les semaines du calendrier par ce jour</translation>
    </message>
    <message>
        <source>Begins the weeks of the calendar with this day, until the editor is closed.</source>
        <translation>Commence les semaines du calendrier par ce jour, jusqu’à la fermeture de l’éditeur.</translation>
    </message>
    <message>
        <source>Shows or hides the numbers of the weeks</source>
        <translation>Affiche ou masque les numéros de semaine</translation>
    </message>
    <message>
        <source>Shows or hides the numbers of the weeks beside the calendar.</source>
        <translation>Affiche ou masque les numéros de semaine à côté du calendrier.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Mois précédent</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mois suivant</translation>
    </message>
    <message>
        <source>Menu of the calendar</source>
        <translation>Menu du calendrier</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>Click a date to edit its schedule. Ctrl and Shift select several dates for the commands of the edit menu. A frame marks the dates that have a schedule, and green is today.</source>
        <translation>Cliquez sur une date pour modifier sa grille. Ctrl et Maj sélectionnent plusieurs dates pour les commandes du menu Édition. Un cadre marque les dates qui ont une grille, le vert marque aujourd’hui.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendrier</translation>
    </message>
    <message>
        <source>%1, has a schedule</source>
        <translation>%1, avec une grille</translation>
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
    <message>
        <source>%1, has a schedule</source>
        <translation>%1, avec une grille</translation>
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
    <message>
        <source>The stage that is shown whenever no other one is scheduled. Drop a stage on the box to choose it; the check mark takes it away.</source>
        <translation>La scène affichée quand aucune autre n’est planifiée. Déposez une scène sur la case pour la choisir&#xa0;; la coche la retire.</translation>
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
    <message>
        <source>Click here to edit the default schedule. It is used on each day for which neither its date nor its day of the week has a schedule.</source>
        <translation>Cliquez ici pour modifier la grille par défaut. Elle vaut chaque jour pour lequel ni la date ni le jour de semaine n’a de grille.</translation>
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
    <message>
        <source>Assigned Item Property</source>
        <translation>Propriétés de l’élément</translation>
    </message>
    <message>
        <source>The stage that is selected in the time table, and when it starts and ends. Type a time or step it; the neighbours set the limits.</source>
        <translation>La scène sélectionnée dans le tableau horaire, avec son début et sa fin. Saisissez une heure ou modifiez-la pas à pas&#xa0;; les voisines fixent les limites.</translation>
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
    <message>
        <source>The schedules of the channel. The selected row is the schedule in the time table. The commands of the edit menu act on the checked rows.</source>
        <translation>Les grilles du canal. La ligne sélectionnée est la grille du tableau horaire. Les commandes du menu Édition agissent sur les lignes cochées.</translation>
    </message>
    <message>
        <source>Creates a schedule for a date or a day of the week</source>
        <translation>Crée une grille pour une date ou un jour de semaine</translation>
    </message>
    <message>
        <source>Asks for a date or a day of the week, creates a schedule for it and shows it. A date or day that has none yet is proposed.</source>
        <translation>Demande une date ou un jour de semaine, crée sa grille et l’affiche. Une date ou un jour sans grille est proposé.</translation>
    </message>
    <message>
        <source>Menu of the schedule list</source>
        <translation>Menu de la liste des grilles</translation>
    </message>
    <message>
        <source>Schedules of the channel</source>
        <translation>Grilles du canal</translation>
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
    <message>
        <source>Channels</source>
        <translation>Canaux</translation>
    </message>
    <message>
        <source>Changes the name of the channel in its tab</source>
        <translation>Modifie le nom du canal dans son onglet</translation>
    </message>
    <message>
        <source>Opens the name in the tab for editing. Enter takes the new name over. Two channels cannot have the same name.</source>
        <translation>Ouvre le nom dans l’onglet pour le modifier. Entrée valide le nouveau nom. Deux canaux ne peuvent pas porter le même nom.</translation>
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
    <message>
        <source>Choose Stage</source>
        <translation>Choisir une scène</translation>
    </message>
    <message>
        <source>The stages of the data folder. Drag one or several to the time table, or one to the box of the default stage above it.</source>
        <translation>Les scènes du dossier de données. Faites-en glisser une ou plusieurs vers le tableau horaire, ou une vers la case de la scène par défaut au-dessus.</translation>
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
    <message>
        <source>Shows this stage whenever no other one is scheduled</source>
        <translation>Affiche cette scène quand aucune autre n’est planifiée</translation>
    </message>
    <message>
        <source>Makes the selected stage the default stage of the schedule in the time table. It fills all time without a stage.</source>
        <translation>Fait de la scène sélectionnée la scène par défaut de la grille du tableau horaire. Elle remplit tout le temps sans scène.</translation>
    </message>
    <message>
        <source>Shows this stage anew at a regular interval</source>
        <translation>Affiche de nouveau cette scène à intervalles réguliers</translation>
    </message>
    <message>
        <source>Asks for an interval and fills the schedule in the time table so that the selected stage takes turns with a copy of itself. The stages that were there are replaced.</source>
        <translation>Demande un intervalle et remplit la grille du tableau horaire de sorte que la scène sélectionnée alterne avec une copie d’elle-même. Les scènes présentes sont remplacées.</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleSwitcherWidget</name>
    <message>
        <source>Schedule of days: None</source>
        <translation>Jours avec grille&#xa0;: aucun</translation>
    </message>
    <message>
        <source>Switch Schedule</source>
        <translation>Changer de grille</translation>
    </message>
    <message>
        <source>Chooses the schedule in the time table: that of a date in the calendar, that of a day of the week, or the default one. The bar at the left edge marks the chosen kind.</source>
        <translation>Choisit la grille du tableau horaire&#xa0;: celle d’une date du calendrier, celle d’un jour de semaine, ou celle par défaut. La barre du bord gauche marque le type choisi.</translation>
    </message>
    <message>
        <source>Schedule of a date</source>
        <translation>Grille d’une date</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleTabWidget</name>
    <message>
        <source>&lt;span style=&quot;font-weight:bold;&quot;&gt;You can not move the first tab.&lt;/span&gt;</source>
        <translation>&lt;span style=&quot;font-weight:bold;&quot;&gt;Le premier onglet ne peut pas être déplacé.&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Name of the channel</source>
        <translation>Nom du canal</translation>
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
    <message>
        <source>Tells which schedule is used on the selected date: that of the date itself, else that of its day of the week, else the default schedule.</source>
        <translation>Indique la grille utilisée à la date sélectionnée&#xa0;: celle de la date, sinon celle de son jour de semaine, sinon la grille par défaut.</translation>
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
    <message>
        <source>%1, hours</source>
        <translation>%1, heures</translation>
    </message>
    <message>
        <source>%1, minutes</source>
        <translation>%1, minutes</translation>
    </message>
    <message>
        <source>%1, seconds</source>
        <translation>%1, secondes</translation>
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
    <message>
        <source>Time table</source>
        <translation>Tableau horaire</translation>
    </message>
    <message>
        <source>The day of the schedule, from 0 to 24 o&apos;clock. Stages are dropped here, dragged, and made longer or shorter at their edges. Ctrl adds to the selection, and the arrow keys move what is selected.</source>
        <translation>La journée de la grille, de 0 à 24 heures. On y dépose les scènes, on les déplace, on les allonge ou raccourcit par leurs bords. Ctrl ajoute à la sélection et les flèches la déplacent.</translation>
    </message>
    <message>
        <source>%1, %2 to %3</source>
        <translation>%1, de %2 à %3</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvTodayWidget</name>
    <message>
        <source>Today:</source>
        <translation>Auj.&#xa0;:</translation>
    </message>
    <message>
        <source>Move to Today</source>
        <translation>Aller à aujourd’hui</translation>
    </message>
    <message>
        <source>Today&apos;s date. Click it to turn the calendar to today and show the schedule of that date.</source>
        <translation>La date du jour. Un clic ramène le calendrier à aujourd’hui et affiche la grille de cette date.</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvWeekWidget</name>
    <message>
        <source>Schedule for Each Day of Week</source>
        <translation>Grilles des jours de semaine</translation>
    </message>
    <message>
        <source>Click a day to edit the schedule that is used on that day of every week. A frame marks the days that have one. A schedule of a date goes before it.</source>
        <translation>Cliquez sur un jour pour modifier la grille de ce jour de chaque semaine. Un cadre marque les jours qui en ont une. La grille d’une date est prioritaire.</translation>
    </message>
</context>
</TS>
