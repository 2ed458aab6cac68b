<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Zavo::ActionHelp</name>
    <message>
        <source>Saves the channel of the current tab</source>
        <translation>Speichert den Kanal des aktuellen Reiters</translation>
    </message>
    <message>
        <source>Writes the channel of the current tab to its file. The file is replaced in one step, so that it is never half-written.</source>
        <translation>Schreibt den Kanal des aktuellen Reiters in seine Datei. Die Datei wird in einem Schritt ersetzt und ist daher nie halb geschrieben.</translation>
    </message>
    <message>
        <source>Saves the channels of all tabs</source>
        <translation>Speichert die Kanäle aller Reiter</translation>
    </message>
    <message>
        <source>Writes the channel of each tab to its file.</source>
        <translation>Schreibt den Kanal jedes Reiters in seine Datei.</translation>
    </message>
    <message>
        <source>Closes the schedule editor and asks about unsaved channels</source>
        <translation>Schließt den Zeitplaneditor und fragt nach nicht gespeicherten Kanälen</translation>
    </message>
    <message>
        <source>Closes the schedule editor. You are asked about each channel with changes that are not saved.</source>
        <translation>Schließt den Zeitplaneditor. Sie werden nach jedem Kanal mit nicht gespeicherten Änderungen gefragt.</translation>
    </message>
    <message>
        <source>Ends the program and asks about unsaved channels</source>
        <translation>Beendet das Programm und fragt nach nicht gespeicherten Kanälen</translation>
    </message>
    <message>
        <source>Ends the program. You are asked about each channel with changes that are not saved.</source>
        <translation>Beendet das Programm. Sie werden nach jedem Kanal mit nicht gespeicherten Änderungen gefragt.</translation>
    </message>
    <message>
        <source>Takes back the last change of this channel</source>
        <translation>Nimmt die letzte Änderung dieses Kanals zurück</translation>
    </message>
    <message>
        <source>Takes back the last change of the channel of the current tab, and shows the schedule that it was made in. Each channel has a history of its own.</source>
        <translation>Nimmt die letzte Änderung am Kanal des aktuellen Reiters zurück und zeigt den Zeitplan, in dem sie erfolgte. Jeder Kanal hat seinen eigenen Verlauf.</translation>
    </message>
    <message>
        <source>Makes the change again that was undone last</source>
        <translation>Führt die zuletzt zurückgenommene Änderung wieder aus</translation>
    </message>
    <message>
        <source>Makes the change of this channel again that was undone last, and shows the schedule that it belongs to.</source>
        <translation>Führt die zuletzt zurückgenommene Änderung dieses Kanals wieder aus und zeigt den Zeitplan, zu dem sie gehört.</translation>
    </message>
    <message>
        <source>Moves the selection to the clipboard</source>
        <translation>Verschiebt die Auswahl in die Zwischenablage</translation>
    </message>
    <message>
        <source>Moves what is selected to the clipboard: stages in the time table, dates or a day of the week in Switch Schedule, or the checked rows of the Schedule List. What you used last counts.</source>
        <translation>Verschiebt die Auswahl in die Zwischenablage: Szenen der Zeittafel, Tage oder einen Wochentag in „Zeitplan wechseln“ oder die angehakten Zeilen der Zeitplanliste. Es zählt, was Sie zuletzt benutzt haben.</translation>
    </message>
    <message>
        <source>Copies the selection to the clipboard</source>
        <translation>Kopiert die Auswahl in die Zwischenablage</translation>
    </message>
    <message>
        <source>Copies what is selected to the clipboard: stages in the time table, whole schedules in Switch Schedule, or the checked rows of the Schedule List. What you used last counts.</source>
        <translation>Kopiert die Auswahl in die Zwischenablage: Szenen der Zeittafel, ganze Zeitpläne in „Zeitplan wechseln“ oder die angehakten Zeilen der Zeitplanliste. Es zählt, was Sie zuletzt benutzt haben.</translation>
    </message>
    <message>
        <source>Inserts what is on the clipboard</source>
        <translation>Fügt den Inhalt der Zwischenablage ein</translation>
    </message>
    <message>
        <source>Inserts stages into the time table, or schedules at the selected date or day. You are asked before a schedule is replaced.</source>
        <translation>Fügt Szenen in die Zeittafel ein oder Zeitpläne am gewählten Datum oder Wochentag. Sie werden gefragt, bevor ein Zeitplan ersetzt wird.</translation>
    </message>
    <message>
        <source>Deletes the selection</source>
        <translation>Löscht die Auswahl</translation>
    </message>
    <message>
        <source>Deletes what is selected: stages in the time table, schedules in Switch Schedule, or the checked rows of the Schedule List. The default schedule cannot be deleted.</source>
        <translation>Löscht die Auswahl: Szenen der Zeittafel, Zeitpläne in „Zeitplan wechseln“ oder die angehakten Zeilen der Zeitplanliste. Der Standardzeitplan kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Selects everything in the time table or the Schedule List</source>
        <translation>Wählt alles in der Zeittafel oder der Zeitplanliste aus</translation>
    </message>
    <message>
        <source>Selects all stages of the time table, or checks all rows of the Schedule List, whichever you used last.</source>
        <translation>Wählt alle Szenen der Zeittafel aus oder hakt alle Zeilen der Zeitplanliste an, je nachdem, was Sie zuletzt benutzt haben.</translation>
    </message>
    <message>
        <source>Selects nothing in the time table or the Schedule List</source>
        <translation>Hebt die Auswahl in der Zeittafel oder der Zeitplanliste auf</translation>
    </message>
    <message>
        <source>Takes the selection off all stages of the time table, or the check marks off all rows of the Schedule List, whichever you used last.</source>
        <translation>Hebt die Auswahl aller Szenen der Zeittafel auf oder entfernt die Häkchen aller Zeilen der Zeitplanliste, je nachdem, was Sie zuletzt benutzt haben.</translation>
    </message>
    <message>
        <source>Sends the channels and their stages to the displays</source>
        <translation>Sendet die Kanäle und ihre Szenen an die Anzeigen</translation>
    </message>
    <message>
        <source>Opens the upload manager, which sends the saved channels and the stages they use to the upload targets. You are asked about unsaved channels first.</source>
        <translation>Öffnet das Fenster zum Hochladen, das die gespeicherten Kanäle und ihre Szenen an die Ziele sendet. Zuvor werden Sie nach nicht gespeicherten Kanälen gefragt.</translation>
    </message>
    <message>
        <source>Exports the channel of the current tab to a file</source>
        <translation>Exportiert den Kanal des aktuellen Reiters in eine Datei</translation>
    </message>
    <message>
        <source>Exports the channel of the current tab, as it was saved last, to a file that other programs can read.</source>
        <translation>Exportiert den Kanal des aktuellen Reiters, wie er zuletzt gespeichert wurde, in eine Datei, die andere Programme lesen können.</translation>
    </message>
    <message>
        <source>Opens the log of the last upload</source>
        <translation>Öffnet das Protokoll des letzten Hochladens</translation>
    </message>
    <message>
        <source>Opens the log that tells how the last upload went.</source>
        <translation>Öffnet das Protokoll, das vom letzten Hochladen berichtet.</translation>
    </message>
    <message>
        <source>Opens the folder with the logs of the uploads</source>
        <translation>Öffnet den Ordner mit den Upload-Protokollen</translation>
    </message>
    <message>
        <source>Opens the folder with the logs of the last upload and of those before.</source>
        <translation>Öffnet den Ordner mit den Protokollen des letzten und der früheren Uploads.</translation>
    </message>
    <message>
        <source>Creates the schedule that is chosen in Switch Schedule</source>
        <translation>Legt den in „Zeitplan wechseln“ gewählten Zeitplan an</translation>
    </message>
    <message>
        <source>Creates a schedule for the date or the day of the week that is chosen in Switch Schedule, if it has none. Stages can be dropped only on a schedule that exists.</source>
        <translation>Legt für das in „Zeitplan wechseln“ gewählte Datum oder den Wochentag einen Zeitplan an, wenn es noch keinen gibt. Szenen können nur in einen vorhandenen Zeitplan gezogen werden.</translation>
    </message>
    <message>
        <source>Deletes the schedule that is shown</source>
        <translation>Löscht den angezeigten Zeitplan</translation>
    </message>
    <message>
        <source>Deletes the schedule in the time table with all its stages, after a question. The default schedule cannot be deleted.</source>
        <translation>Löscht nach einer Rückfrage den Zeitplan in der Zeittafel mit allen Szenen. Der Standardzeitplan kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Changes the name of the channel in its tab</source>
        <translation>Ändert den Namen des Kanals in seinem Reiter</translation>
    </message>
    <message>
        <source>Opens the name in the current tab for editing. Enter takes the new name over. Two channels cannot have the same name.</source>
        <translation>Öffnet den Namen im aktuellen Reiter zum Bearbeiten. Die Eingabetaste übernimmt den neuen Namen. Zwei Kanäle können nicht denselben Namen haben.</translation>
    </message>
    <message>
        <source>Moves the tab of the channel to another place</source>
        <translation>Verschiebt den Reiter des Kanals an einen anderen Platz</translation>
    </message>
    <message>
        <source>Moves the current tab to the place of another one. The first channel keeps its place. This cannot be undone.</source>
        <translation>Verschiebt den aktuellen Reiter an den Platz eines anderen. Der erste Kanal behält seinen Platz. Dies kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Adds a channel with an empty default schedule</source>
        <translation>Fügt einen Kanal mit leerem Standardzeitplan hinzu</translation>
    </message>
    <message>
        <source>Adds a channel with an empty default schedule behind the last tab. Its file is written at once.</source>
        <translation>Fügt hinter dem letzten Reiter einen Kanal mit leerem Standardzeitplan hinzu. Seine Datei wird sofort geschrieben.</translation>
    </message>
    <message>
        <source>Deletes the channel of the current tab with its file</source>
        <translation>Löscht den Kanal des aktuellen Reiters mit seiner Datei</translation>
    </message>
    <message>
        <source>Deletes the channel of the current tab with its file, after a question. The first channel cannot be deleted. This cannot be undone.</source>
        <translation>Löscht nach einer Rückfrage den Kanal des aktuellen Reiters mit seiner Datei. Der erste Kanal kann nicht gelöscht werden. Dies kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Deletes all channels and closes the editor</source>
        <translation>Löscht alle Kanäle und schließt den Editor</translation>
    </message>
    <message>
        <source>Deletes every channel file and the settings of the channels, after a question, and closes the editor. The next start begins with ten empty channels. This cannot be undone.</source>
        <translation>Löscht nach einer Rückfrage alle Kanaldateien und die Einstellungen der Kanäle und schließt den Editor. Der nächste Start beginnt mit zehn leeren Kanälen. Dies kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Shows the id, place and number of schedules of the channel</source>
        <translation>Zeigt ID, Platz und Anzahl der Zeitpläne des Kanals</translation>
    </message>
    <message>
        <source>Shows the id, the name and the place of the current channel, and how many schedules of each kind it has.</source>
        <translation>Zeigt ID, Namen und Platz des aktuellen Kanals und wie viele Zeitpläne jeder Art er hat.</translation>
    </message>
    <message>
        <source>Chooses which channels are uploaded</source>
        <translation>Wählt, welche Kanäle hochgeladen werden</translation>
    </message>
    <message>
        <source>Lists the saved channels and chooses which of them are uploaded.</source>
        <translation>Listet die gespeicherten Kanäle auf und legt fest, welche von ihnen hochgeladen werden.</translation>
    </message>
    <message>
        <source>Shows or hides the panel for choosing a schedule</source>
        <translation>Zeigt oder verbirgt das Feld zum Wählen eines Zeitplans</translation>
    </message>
    <message>
        <source>Shows or hides Switch Schedule, the panel where you choose which schedule is in the time table: that of a date, of a day of the week, or the default one.</source>
        <translation>Zeigt oder verbirgt „Zeitplan wechseln“; dort wählen Sie, welcher Zeitplan in der Zeittafel steht: der eines Datums, der eines Wochentags oder der Standardzeitplan.</translation>
    </message>
    <message>
        <source>Shows or hides the list of all schedules</source>
        <translation>Zeigt oder verbirgt die Liste aller Zeitpläne</translation>
    </message>
    <message>
        <source>Shows or hides the Schedule List, with a row for each schedule of the channel.</source>
        <translation>Zeigt oder verbirgt die Zeitplanliste mit einer Zeile für jeden Zeitplan des Kanals.</translation>
    </message>
    <message>
        <source>Shows or hides the panel with the stages</source>
        <translation>Zeigt oder verbirgt das Feld mit den Szenen</translation>
    </message>
    <message>
        <source>Shows or hides Choose Stage, the panel from which stages are dragged to the time table.</source>
        <translation>Zeigt oder verbirgt „Szene wählen“; von dort werden Szenen in die Zeittafel gezogen.</translation>
    </message>
    <message>
        <source>Shows or hides the panel with the times of the selected stage</source>
        <translation>Zeigt oder verbirgt das Feld mit den Zeiten der ausgewählten Szene</translation>
    </message>
    <message>
        <source>Shows or hides the panel in which the start and the end of the selected stage are typed to the second.</source>
        <translation>Zeigt oder verbirgt das Feld, in dem Beginn und Ende der ausgewählten Szene sekundengenau eingegeben werden.</translation>
    </message>
    <message>
        <source>Puts all panels back to their places</source>
        <translation>Bringt alle Felder an ihre Plätze zurück</translation>
    </message>
    <message>
        <source>Shows all panels at the places and in the sizes that they had at the first start.</source>
        <translation>Zeigt alle Felder an den Plätzen und in den Größen, die sie beim ersten Start hatten.</translation>
    </message>
</context>
<context>
    <name>Zavo::BackupDialog</name>
    <message>
        <source>Safety Copies</source>
        <translation>Sicherungskopien</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>States of the channel</source>
        <translation>Stände des Kanals</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Change if restored</source>
        <translation>Änderung beim Wiederherstellen</translation>
    </message>
    <message>
        <source>The copies lie in &quot;%1&quot;.</source>
        <translation>Die Kopien liegen in „%1“.</translation>
    </message>
    <message>
        <source>&amp;Restore...</source>
        <translation>&amp;Wiederherstellen...</translation>
    </message>
    <message>
        <source>%1  at a target</source>
        <translation>%1  an einem Ziel</translation>
    </message>
</context>
<context>
    <name>Zavo::BackupStore</name>
    <message>
        <source>The folder &quot;%1&quot; cannot be made.</source>
        <translation>Der Ordner „%1“ kann nicht angelegt werden.</translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelCalendar</name>
    <message numerus="yes">
        <source>There are more than %n bands in these dates. Choose fewer dates.</source>
        <translation>
            <numerusform>In diesem Zeitraum liegt mehr als %n Block. Wählen Sie einen kürzeren.</numerusform>
            <numerusform>In diesem Zeitraum liegen mehr als %n Blöcke. Wählen Sie einen kürzeren.</numerusform>
        </translation>
    </message>
    <message>
        <source>The calendar cannot be made.</source>
        <translation>Der Kalender kann nicht erstellt werden.</translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelConfigurationDialog</name>
    <message>
        <source>Reading the channels...</source>
        <translation>Die Kanäle werden gelesen...</translation>
    </message>
    <message>
        <source>Channel Configuration</source>
        <translation>Kanalkonfiguration</translation>
    </message>
    <message>
        <source>The settings cannot be written. Nothing has been changed.</source>
        <translation>Die Einstellungen können nicht gespeichert werden. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>C&amp;hannels that are not checked stay here when the others are uploaded, and disappear from the targets.</source>
        <translation>&amp;Kanäle ohne Häkchen bleiben hier, wenn die anderen hochgeladen werden, und verschwinden von den Zielen.</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Schedules</source>
        <translation>Zeitpläne</translation>
    </message>
    <message>
        <source>Last saved</source>
        <translation>Zuletzt gespeichert</translation>
    </message>
    <message>
        <source>(cannot be read)</source>
        <translation>(nicht lesbar)</translation>
    </message>
    <message>
        <source>As long as this file cannot be read, nothing is uploaded.</source>
        <translation>Solange diese Datei nicht gelesen werden kann, wird nichts hochgeladen.</translation>
    </message>
    <message>
        <source>The basic channel is always uploaded.</source>
        <translation>Der Basiskanal wird immer hochgeladen.</translation>
    </message>
    <message>
        <source>Reading the channels: %1 of %2...</source>
        <translation>Die Kanäle werden gelesen: %1 von %2...</translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelCreation</name>
    <message>
        <source>You can not add the new channel.
The number of channels has reached the maximum value.</source>
        <translation>Der neue Kanal kann nicht hinzugefügt werden.
Die Höchstzahl der Kanäle ist erreicht.</translation>
    </message>
    <message>
        <source>You can not add the new channel.
Unable to find a name for the new channel.</source>
        <translation>Der neue Kanal kann nicht hinzugefügt werden.
Es findet sich kein Name für den neuen Kanal.</translation>
    </message>
    <message>
        <source>Ch.%1</source>
        <translation>Ch.%1</translation>
    </message>
    <message>
        <source>You can not add the new channel.
Failed to write new channel file. Please check whether it is possible to write to the channel folder.</source>
        <translation>Der neue Kanal kann nicht hinzugefügt werden.
Die neue Kanaldatei konnte nicht geschrieben werden. Bitte prüfen Sie, ob der Kanalordner beschreibbar ist.</translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelInspection</name>
    <message>
        <source>The file cannot be read; the editor passes over it in silence.</source>
        <translation>Die Datei kann nicht gelesen werden; der Editor übergeht sie stillschweigend.</translation>
    </message>
    <message>
        <source>The content is that of no channel; the editor passes over the file in silence.</source>
        <translation>Der Inhalt ist nicht der eines Kanals; der Editor übergeht die Datei stillschweigend.</translation>
    </message>
    <message>
        <source>There are two schedules for the same days; the editor passes over the file in silence.</source>
        <translation>Für dieselben Tage gibt es zwei Zeitpläne; der Editor übergeht die Datei stillschweigend.</translation>
    </message>
    <message>
        <source>There is no default schedule: nothing is shown on days that have no schedule of their own.</source>
        <translation>Es gibt keinen Standardzeitplan: An Tagen ohne eigenen Zeitplan wird nichts gezeigt.</translation>
    </message>
    <message>
        <source>Bands overlap: %1.</source>
        <translation>Zeitblöcke überschneiden sich: %1.</translation>
    </message>
    <message>
        <source>Bands without a stage or without duration: %1.</source>
        <translation>Zeitblöcke ohne Szene oder ohne Dauer: %1.</translation>
    </message>
    <message>
        <source>No stage is shown: %1.</source>
        <translation>Es wird keine Szene gezeigt: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n more, the last %1</source>
        <translation>
            <numerusform>%n weiterer, der letzte %1</numerusform>
            <numerusform>%n weitere, der letzte %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The clean-up drops the schedules of old dates: %1.</source>
        <translation>Beim Aufräumen entfallen die Zeitpläne vergangener Tage: %1.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n weiterer</numerusform>
            <numerusform>%n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelListing</name>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation>Den Ordner „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be listed: %2.</source>
        <translation>Der Inhalt des Ordners „%1“ kann nicht gelesen werden: %2.</translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelNaming</name>
    <message>
        <source>The following characters are not there not be able to use.

  &lt; &gt; : &quot; / \ | ? 

You have to specify another name.</source>
        <translation>Die folgenden Zeichen können nicht verwendet werden.

  &lt; &gt; : &quot; / \ | ? 

Bitte geben Sie einen anderen Namen an.</translation>
    </message>
    <message>
        <source>New name &quot;%1&quot; is already used by other channel.
You have to specify another name.</source>
        <translation>Der neue Name „%1“ wird bereits von einem anderen Kanal verwendet.
Bitte geben Sie einen anderen Namen an.</translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelPackage</name>
    <message>
        <source>The package cannot be made.</source>
        <translation>Das Paket kann nicht erstellt werden.</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; does not lie in the stage folder, so no package of the channel can be made.</source>
        <translation>Die Szene „%1“ liegt nicht im Szenenordner; daher kann kein Paket des Kanals erstellt werden.</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; does not exist.</source>
        <translation>Die Szene „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; is damaged.</source>
        <translation>Die Szene „%1“ ist beschädigt.</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; of the stage &quot;%2&quot; does not exist.</source>
        <translation>Das Bild „%1“ der Szene „%2“ gibt es nicht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>„%1“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The export was cancelled.</source>
        <translation>Der Export wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The stages of the channel are too large for a package.</source>
        <translation>Die Szenen des Kanals sind zu groß für ein Paket.</translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelReset</name>
    <message>
        <source>All channels and channel settings will be deleted.
This operation can not be undone.

Are you sure you want to delete all?</source>
        <translation>Alle Kanäle und Kanaleinstellungen werden gelöscht.
Dieser Vorgang kann nicht rückgängig gemacht werden.

Möchten Sie wirklich alles löschen?</translation>
    </message>
    <message>
        <source>Delete All Channels and Settings</source>
        <translation>Alle Kanäle und Einstellungen löschen</translation>
    </message>
    <message>
        <source>The channel folder does not exist.</source>
        <translation>Den Kanalordner gibt es nicht.</translation>
    </message>
    <message>
        <source>Delete Completed.%1

Schedule Editor will be closed.</source>
        <translation>Löschen abgeschlossen.%1

Der Zeitplaneditor wird geschlossen.</translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelSaver</name>
    <message>
        <source>Save Channel</source>
        <translation>Kanal speichern</translation>
    </message>
    <message>
        <source>The channel &quot;%1&quot; can not be saved.
Please check whether it is possible to write the file.</source>
        <translation>Der Kanal „%1“ kann nicht gespeichert werden.
Bitte prüfen Sie, ob die Datei geschrieben werden kann.</translation>
    </message>
</context>
<context>
    <name>Zavo::CheckCommand</name>
    <message>
        <source>%1 of %2 files checked</source>
        <translation>%1 von %2 Dateien geprüft</translation>
    </message>
</context>
<context>
    <name>Zavo::CheckDialog</name>
    <message>
        <source>Check Data</source>
        <translation>Daten prüfen</translation>
    </message>
    <message>
        <source>The check was cancelled.</source>
        <translation>Die Prüfung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The files of the data folder are checked. What is not saved yet is not.</source>
        <translation>Geprüft werden die Dateien des Datenordners, noch nicht Gespeichertes also nicht.</translation>
    </message>
    <message>
        <source>Progress of the check</source>
        <translation>Fortschritt der Prüfung</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Check &amp;Again</source>
        <translation>&amp;Erneut prüfen</translation>
    </message>
    <message>
        <source>Ca&amp;ncel Check</source>
        <translation>Prüfung &amp;abbrechen</translation>
    </message>
    <message>
        <source>&amp;Copy Findings</source>
        <translation>Befunde &amp;kopieren</translation>
    </message>
    <message>
        <source>Checking ...</source>
        <translation>Prüfung läuft ...</translation>
    </message>
</context>
<context>
    <name>Zavo::CheckFindingModel</name>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Zeitplan</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Befund</translation>
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
            <numerusform>%n Kanaldatei</numerusform>
            <numerusform>%n Kanaldateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stage(s)</source>
        <translation>
            <numerusform>%n Szene</numerusform>
            <numerusform>%n Szenen</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing found in %1.</source>
        <translation>Kein Befund: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n finding(s) in %1.</source>
        <translation>
            <numerusform>%n Befund: %1.</numerusform>
            <numerusform>%n Befunde: %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zavo::CommandLine</name>
    <message>
        <source>Edits the daily programme of display channels.</source>
        <translation>Bearbeitet das Tagesprogramm von Anzeigekanälen.</translation>
    </message>
    <message>
        <source>Opens this data folder.</source>
        <translation>Öffnet diesen Datenordner.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Speaks this language, for example de or ja.</source>
        <translation>Spricht diese Sprache, zum Beispiel de oder ja.</translation>
    </message>
    <message>
        <source>language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Writes a picture of the window to this PNG file and ends.</source>
        <translation>Schreibt ein Bild des Fensters in diese PNG-Datei und endet.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Checks the channels and their stages instead of opening them. Ends with 0 if nothing was found, 1 with findings, 2 if it could not check.</source>
        <translation>Prüft die Kanäle und ihre Szenen, statt sie zu öffnen. Endet mit 0, wenn nichts gefunden wurde, mit 1 bei Befunden, mit 2, wenn nicht geprüft werden konnte.</translation>
    </message>
    <message>
        <source>Shows these options and ends.</source>
        <translation>Zeigt diese Optionen und endet.</translation>
    </message>
    <message>
        <source>Shows the version and ends.</source>
        <translation>Zeigt die Version und endet.</translation>
    </message>
    <message>
        <source>The option --%1 needs a value.</source>
        <translation>Die Option --%1 braucht einen Wert.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no option.</source>
        <translation>„%1“ ist keine Option.</translation>
    </message>
    <message>
        <source>The options --%1 and --%2 exclude each other.</source>
        <translation>Die Optionen --%1 und --%2 schließen einander aus.</translation>
    </message>
</context>
<context>
    <name>Zavo::ConfigurationDialog</name>
    <message>
        <source>Configuration</source>
        <translation>Konfiguration</translation>
    </message>
    <message>
        <source>Choose Data Folder</source>
        <translation>Datenordner wählen</translation>
    </message>
    <message>
        <source>Data folder</source>
        <translation>Datenordner</translation>
    </message>
    <message>
        <source>The usual folder of this user</source>
        <translation>Der übliche Ordner dieses Benutzers</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>Channels and stages lie there. The program opens this folder from the next start on, unless it is started with another one. Now open: %1</source>
        <translation>Dort liegen Kanäle und Szenen. Das Programm öffnet diesen Ordner ab dem nächsten Start, sofern es nicht mit einem anderen gestartet wird. Jetzt geöffnet: %1</translation>
    </message>
    <message>
        <source>Schedules</source>
        <translation>Zeitpläne</translation>
    </message>
    <message>
        <source>These hold for everybody who uses the data folder that is open; they are kept in its file config.ini.</source>
        <translation>Dies gilt für alle, die den geöffneten Datenordner verwenden; es steht in dessen Datei config.ini.</translation>
    </message>
    <message>
        <source>Player and editor are &amp;one machine</source>
        <translation>Player und Editor sind eine &amp;Maschine</translation>
    </message>
    <message>
        <source>Then there is nothing to upload, and the command is disabled. Takes effect at the next start.</source>
        <translation>Dann gibt es nichts hochzuladen, und der Befehl ist abgeschaltet. Wirkt ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>Show the &amp;default schedule first</source>
        <translation>&amp;Standardzeitplan zuerst zeigen</translation>
    </message>
    <message>
        <source>At a start the default schedule of a channel is shown, instead of the kind of schedule that was shown last.</source>
        <translation>Beim Start wird der Standardzeitplan eines Kanals gezeigt statt der Art von Zeitplan, die zuletzt gezeigt wurde.</translation>
    </message>
    <message>
        <source> days</source>
        <translation> Tage</translation>
    </message>
    <message>
        <source>&amp;Keep schedules of past dates for</source>
        <translation>&amp;Zeitpläne vergangener Tage behalten für</translation>
    </message>
    <message>
        <source>Schedules of dates that lie further back are removed when their channel is opened at the next start, and from its file when it is saved.</source>
        <translation>Zeitpläne weiter zurückliegender Tage werden entfernt, wenn ihr Kanal beim nächsten Start geöffnet wird, und aus seiner Datei, wenn er gespeichert wird.</translation>
    </message>
    <message>
        <source>Days for which schedules of past dates are kept</source>
        <translation>Tage, für die Zeitpläne vergangener Tage behalten werden</translation>
    </message>
    <message>
        <source>Upload targets</source>
        <translation>Ziele für das Hochladen</translation>
    </message>
    <message>
        <source>An upload is going on, so its targets cannot be changed now.</source>
        <translation>Ein Hochladen läuft, daher können seine Ziele jetzt nicht geändert werden.</translation>
    </message>
    <message>
        <source>Folders and machines that get the channels with an upload. Those that are checked are offered first.</source>
        <translation>Ordner und Maschinen, die beim Hochladen die Kanäle erhalten. Die mit Häkchen sind vorausgewählt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the full path of a folder.</source>
        <translation>„%1“ ist nicht der vollständige Pfad eines Ordners.</translation>
    </message>
    <message>
        <source>The configuration cannot be written to &quot;%1&quot;. Nothing has been changed.</source>
        <translation>Die Konfiguration kann nicht in „%1“ geschrieben werden. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>Takes effect at the next start.</source>
        <translation>Wirkt ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>As in the system</source>
        <translation>Wie im System</translation>
    </message>
</context>
<context>
    <name>Zavo::DataCheck</name>
    <message>
        <source>There are no channel files.</source>
        <translation>Es gibt keine Kanaldateien.</translation>
    </message>
    <message>
        <source>The editor looks for the name &quot;channel&quot; with one to five characters and &quot;.xml&quot;; it passes over this file in silence.</source>
        <translation>Der Editor sucht den Namen „channel“ mit einem bis fünf Zeichen und „.xml“; er übergeht diese Datei stillschweigend.</translation>
    </message>
    <message>
        <source>The name is that of a channel, but it is no file; the editor passes over it in silence.</source>
        <translation>Der Name ist der eines Kanals, aber es ist keine Datei; der Editor übergeht sie stillschweigend.</translation>
    </message>
    <message>
        <source>The file differs from &quot;%1&quot;, which the editor opens in its place; it passes over this file in silence.</source>
        <translation>Die Datei unterscheidet sich von „%1“, die der Editor statt ihrer öffnet; er übergeht diese Datei stillschweigend.</translation>
    </message>
    <message>
        <source>The channel has the id %1, as has the one of &quot;%2&quot;; only one of them is saved.</source>
        <translation>Der Kanal hat die ID %1, ebenso der von „%2“; nur einer von ihnen wird gespeichert.</translation>
    </message>
    <message numerus="yes">
        <source>%1 %n schedule(s) use it.</source>
        <translation>
            <numerusform>%1 %n Zeitplan verwendet sie.</numerusform>
            <numerusform>%1 %n Zeitpläne verwenden sie.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zavo::DataFolderCheck</name>
    <message>
        <source>&quot;%1&quot; is a link that leads nowhere.</source>
        <translation>„%1“ ist eine Verknüpfung, die ins Leere führt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a folder.</source>
        <translation>„%1“ ist kein Ordner.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be reached: %2.</source>
        <translation>Der Ordner „%1“ ist nicht erreichbar: %2.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be listed: %2.</source>
        <translation>Der Inhalt des Ordners „%1“ kann nicht gelesen werden: %2.</translation>
    </message>
</context>
<context>
    <name>Zavo::ExportDialog</name>
    <message>
        <source>Export Channel</source>
        <translation>Kanal exportieren</translation>
    </message>
    <message>
        <source>&amp;First date:</source>
        <translation>&amp;Erster Tag:</translation>
    </message>
    <message>
        <source>A &amp;date of the week:</source>
        <translation>Ein &amp;Tag der Woche:</translation>
    </message>
    <message>
        <source>Exporting ...</source>
        <translation>Export läuft ...</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was written.</source>
        <translation>„%1“ wurde geschrieben.</translation>
    </message>
    <message numerus="yes">
        <source>%n more remark(s).</source>
        <translation>
            <numerusform>%n weiterer Hinweis.</numerusform>
            <numerusform>%n weitere Hinweise.</numerusform>
        </translation>
    </message>
    <message>
        <source>Progress of the export</source>
        <translation>Fortschritt des Exports</translation>
    </message>
    <message>
        <source>Result of the export</source>
        <translation>Ergebnis des Exports</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>E&amp;xportieren</translation>
    </message>
    <message>
        <source>What is saved in this file is exported.</source>
        <translation>Exportiert wird, was in dieser Datei gespeichert ist.</translation>
    </message>
    <message>
        <source>Channel file:</source>
        <translation>Kanaldatei:</translation>
    </message>
    <message>
        <source>Package with the stages</source>
        <translation>Paket mit den Szenen</translation>
    </message>
    <message>
        <source>Table of all schedules</source>
        <translation>Tabelle aller Zeitpläne</translation>
    </message>
    <message>
        <source>Calendar of a range of dates</source>
        <translation>Kalender eines Zeitraums</translation>
    </message>
    <message>
        <source>Week sheet to print</source>
        <translation>Wochenblatt zum Drucken</translation>
    </message>
    <message>
        <source>E&amp;xport as:</source>
        <translation>Exportieren &amp;als:</translation>
    </message>
    <message>
        <source>&amp;Last date:</source>
        <translation>&amp;Letzter Tag:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>&amp;To the file:</source>
        <translation>&amp;In die Datei:</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists. Replace it?</source>
        <translation>„%1“ gibt es schon. Ersetzen?</translation>
    </message>
</context>
<context>
    <name>Zavo::ExportJob</name>
    <message>
        <source>Choose the file to write.</source>
        <translation>Wählen Sie die Datei, die geschrieben werden soll.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; goes out of a folder by &quot;..&quot;. Write where it leads to.</source>
        <translation>Der Name „%1“ verlässt mit „..“ einen Ordner. Schreiben Sie, wohin er führt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole path of a file.</source>
        <translation>„%1“ ist kein vollständiger Pfad einer Datei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder.</source>
        <translation>„%1“ ist ein Ordner.</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation>Den Ordner „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; lies among the files that are exported. Choose another folder.</source>
        <translation>„%1“ liegt zwischen den Dateien, die exportiert werden. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>The last date is before the first.</source>
        <translation>Der letzte Tag liegt vor dem ersten.</translation>
    </message>
    <message numerus="yes">
        <source>A calendar holds no more than %n day(s).</source>
        <translation>
            <numerusform>Ein Kalender umfasst höchstens %n Tag.</numerusform>
            <numerusform>Ein Kalender umfasst höchstens %n Tage.</numerusform>
        </translation>
    </message>
    <message>
        <source>The channel file &quot;%1&quot; cannot be read.</source>
        <translation>Die Kanaldatei „%1“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The export was cancelled.</source>
        <translation>Der Export wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The file cannot be made.</source>
        <translation>Die Datei kann nicht erstellt werden.</translation>
    </message>
    <message>
        <source>The file that is there stays as it was.</source>
        <translation>Die vorhandene Datei ist unverändert.</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written.</source>
        <translation>„%1“ kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: the disk is read-only.</source>
        <translation>„%1“ kann nicht geschrieben werden: Der Datenträger ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: the disk is full.</source>
        <translation>„%1“ kann nicht geschrieben werden: Der Datenträger ist voll.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: you may not write there.</source>
        <translation>„%1“ kann nicht geschrieben werden: Ihnen fehlt dort das Schreibrecht.</translation>
    </message>
</context>
<context>
    <name>Zavo::FolderInUseBox</name>
    <message>
        <source>Two programs on one data folder would overwrite each other&apos;s channels. Close the other program, or choose another folder.</source>
        <translation>Zwei Programme auf einem Datenordner würden einander die Kanäle überschreiben. Schließen Sie das andere Programm, oder wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>

If you are sure that the other program no longer runs, because its machine was switched off, the folder can be taken over.</source>
        <translation>

Wenn Sie sicher sind, dass das andere Programm nicht mehr läuft, weil seine Maschine ausgeschaltet wurde, kann der Ordner übernommen werden.</translation>
    </message>
    <message>
        <source>Choose Another &amp;Folder...</source>
        <translation>&amp;Anderen Ordner wählen...</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Take Over</source>
        <translation>&amp;Übernehmen</translation>
    </message>
    <message>
        <source>The data folder &quot;%1&quot; is open in another program.</source>
        <translation>Der Datenordner „%1“ ist in einem anderen Programm geöffnet.</translation>
    </message>
    <message>
        <source>The data folder &quot;%1&quot; is open in another program: %2 (process %3 on %4, since %5).</source>
        <translation>Der Datenordner „%1“ ist in einem anderen Programm geöffnet: %2 (Prozess %3 auf %4, seit %5).</translation>
    </message>
</context>
<context>
    <name>Zavo::GuideDialog</name>
    <message>
        <source>User&apos;s Guide</source>
        <translation>Benutzerhandbuch</translation>
    </message>
    <message>
        <source>Page of the guide</source>
        <translation>Seite des Handbuchs</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Vor</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>Find in the page</source>
        <translation>In der Seite suchen</translation>
    </message>
    <message>
        <source>It is not in this page.</source>
        <translation>Das steht nicht auf dieser Seite.</translation>
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
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>Check &amp;Data...</source>
        <translation>Daten &amp;prüfen...</translation>
    </message>
    <message>
        <source>Looks for what is wrong in the saved channels and their stages</source>
        <translation>Sucht Fehler in den gespeicherten Kanälen und ihren Szenen</translation>
    </message>
    <message>
        <source>&amp;Configuration...</source>
        <translation>&amp;Konfiguration...</translation>
    </message>
    <message>
        <source>Changes the data folder, what its schedules are shown by, and the upload targets</source>
        <translation>Ändert den Datenordner, die Anzeige seiner Zeitpläne und die Ziele für das Hochladen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About Zavo Schedule Editor</source>
        <translation>&amp;Über Zavo Schedule Editor</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>Über &amp;Qt</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Hochladen</translation>
    </message>
    <message>
        <source>An upload is going on. If the program ends now, the targets that are not complete keep what they had.

Do you want to cancel the upload and close?</source>
        <translation>Ein Hochladen läuft. Endet das Programm jetzt, behalten unvollständige Ziele ihren bisherigen Stand.

Möchten Sie das Hochladen abbrechen und schließen?</translation>
    </message>
    <message>
        <source>Reads all channel files and the stages they use and lists what is wrong: stages that are missing, time without a stage, bands that overlap, files that are passed over.</source>
        <translation>Liest alle Kanaldateien und ihre Szenen und listet Fehler auf: fehlende Szenen, Zeit ohne Szene, Zeitblöcke, die sich überschneiden, und übergangene Dateien.</translation>
    </message>
    <message>
        <source>Shows the data folder, the settings of its schedules and the upload targets, each with an explanation, to be changed.</source>
        <translation>Zeigt den Datenordner, die Einstellungen seiner Zeitpläne und die Ziele für das Hochladen, jeweils mit einer Erklärung, zum Ändern.</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts...</source>
        <translation>&amp;Tastenkürzel...</translation>
    </message>
    <message>
        <source>Shows and changes the keys of all commands</source>
        <translation>Zeigt und ändert die Tasten aller Befehle</translation>
    </message>
    <message>
        <source>Lists all commands with their keys. Other keys can be given to each of them; what is already in use is told.</source>
        <translation>Listet alle Befehle mit ihren Tasten auf. Jedem können andere Tasten gegeben werden; was schon belegt ist, wird gemeldet.</translation>
    </message>
    <message>
        <source>&amp;What&apos;s This?</source>
        <translation>&amp;Was ist das?</translation>
    </message>
    <message>
        <source>Explains what you click next</source>
        <translation>Erklärt, was Sie als Nächstes anklicken</translation>
    </message>
    <message>
        <source>Click a command or a part of the window after this, and it is explained. Esc ends it.</source>
        <translation>Klicken Sie danach auf einen Befehl oder einen Teil des Fensters, und er wird erklärt. Esc bricht ab.</translation>
    </message>
    <message>
        <source>Shows the version of the program and where its data are</source>
        <translation>Zeigt die Version des Programms und wo seine Daten liegen</translation>
    </message>
    <message>
        <source>Shows the version of the program, of the library it is built on, and the data folder that is open.</source>
        <translation>Zeigt die Version des Programms, die der Bibliothek, auf der es beruht, und den geöffneten Datenordner.</translation>
    </message>
    <message>
        <source>Shows the version of the library that the program is built on</source>
        <translation>Zeigt die Version der Bibliothek, auf der das Programm beruht</translation>
    </message>
    <message>
        <source>Tells about Qt, the library that the program is built on.</source>
        <translation>Informiert über Qt, die Bibliothek, auf der das Programm beruht.</translation>
    </message>
    <message>
        <source>User&apos;s &amp;Guide</source>
        <translation>&amp;Benutzerhandbuch</translation>
    </message>
    <message>
        <source>Leads through the first hour and explains every message</source>
        <translation>Führt durch die erste Stunde und erklärt jede Meldung (englisch)</translation>
    </message>
    <message>
        <source>Opens the guide in a window of its own, which can stay open beside the work.</source>
        <translation>Öffnet das englische Handbuch in einem eigenen Fenster, das neben der Arbeit offen bleiben kann.</translation>
    </message>
</context>
<context>
    <name>Zavo::NoticeBar</name>
    <message>
        <source>Notice</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Hides this notice</source>
        <translation>Verbirgt diesen Hinweis</translation>
    </message>
    <message>
        <source>Hides this notice until there is another one.</source>
        <translation>Verbirgt diesen Hinweis, bis es einen neuen gibt.</translation>
    </message>
    <message>
        <source>More commands</source>
        <translation>Weitere Befehle</translation>
    </message>
</context>
<context>
    <name>Zavo::Program</name>
    <message>
        <source>&quot;%1&quot; is the name of no language.</source>
        <translation>„%1“ ist nicht der Name einer Sprache.</translation>
    </message>
    <message>
        <source>Data Folder</source>
        <translation>Datenordner</translation>
    </message>
    <message>
        <source>The channel file &quot;%1&quot; cannot be restored. It is as it was before.</source>
        <translation>Die Kanaldatei „%1“ kann nicht wiederhergestellt werden. Sie ist unverändert.</translation>
    </message>
</context>
<context>
    <name>Zavo::ReservedKeys</name>
    <message>
        <source>%1 moves what is selected in the time table.</source>
        <translation>%1 verschiebt die Auswahl in der Zeittafel.</translation>
    </message>
    <message>
        <source>%1 goes through texts, lists, the calendar and the time table.</source>
        <translation>%1 bewegt sich durch Texte, Listen, den Kalender und die Zeittafel.</translation>
    </message>
    <message>
        <source>%1 goes from one control to the next.</source>
        <translation>%1 geht von einem Bedienelement zum nächsten.</translation>
    </message>
    <message>
        <source>%1 presses buttons and checks rows.</source>
        <translation>%1 drückt Schaltflächen und hakt Zeilen an.</translation>
    </message>
    <message>
        <source>%1 closes menus and dialogs.</source>
        <translation>%1 schließt Menüs und Dialoge.</translation>
    </message>
    <message>
        <source>%1 is needed to type texts.</source>
        <translation>%1 wird zum Eingeben von Texten gebraucht.</translation>
    </message>
    <message>
        <source>%1 opens the menu &quot;%2&quot;.</source>
        <translation>%1 öffnet das Menü „%2“.</translation>
    </message>
    <message>
        <source>%1 edits the name of a channel or a target.</source>
        <translation>%1 bearbeitet den Namen eines Kanals oder ein Ziel.</translation>
    </message>
    <message>
        <source>These are no keys that can be struck.</source>
        <translation>Diese Tasten können nicht gedrückt werden.</translation>
    </message>
</context>
<context>
    <name>Zavo::RsyncProcess</name>
    <message>
        <source>The target is full.</source>
        <translation>Das Ziel ist voll.</translation>
    </message>
    <message>
        <source>The target is read-only.</source>
        <translation>Das Ziel ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>The target refuses this user.</source>
        <translation>Das Ziel weist diesen Benutzer ab.</translation>
    </message>
    <message>
        <source>The target refuses: permission denied.</source>
        <translation>Das Ziel verweigert den Zugriff: keine Berechtigung.</translation>
    </message>
    <message>
        <source>The key of the host is not known to ssh.</source>
        <translation>Der Schlüssel des Rechners ist ssh nicht bekannt.</translation>
    </message>
    <message>
        <source>The target has no such module.</source>
        <translation>Das Ziel hat kein solches Modul.</translation>
    </message>
    <message>
        <source>The target refuses.</source>
        <translation>Das Ziel weist die Verbindung ab.</translation>
    </message>
    <message>
        <source>The target cannot be reached: connection refused.</source>
        <translation>Das Ziel ist nicht erreichbar: Verbindung abgelehnt.</translation>
    </message>
    <message>
        <source>There is no host of this name.</source>
        <translation>Es gibt keinen Rechner dieses Namens.</translation>
    </message>
    <message>
        <source>The target does not exist.</source>
        <translation>Das Ziel gibt es nicht.</translation>
    </message>
    <message>
        <source>The target&apos;s rsync is too old or too new.</source>
        <translation>Das rsync des Ziels ist zu alt oder zu neu.</translation>
    </message>
    <message>
        <source>The connection to the target is lost.</source>
        <translation>Die Verbindung zum Ziel ist abgerissen.</translation>
    </message>
    <message>
        <source>The target cannot be written to.</source>
        <translation>Auf das Ziel kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Some files could not be transferred.</source>
        <translation>Einige Dateien konnten nicht übertragen werden.</translation>
    </message>
    <message>
        <source>The target does not answer any more.</source>
        <translation>Das Ziel antwortet nicht mehr.</translation>
    </message>
    <message>
        <source>The target does not answer.</source>
        <translation>Das Ziel antwortet nicht.</translation>
    </message>
    <message>
        <source>A program is missing at the target.</source>
        <translation>Am Ziel fehlt ein Programm.</translation>
    </message>
    <message>
        <source>The target cannot be reached by ssh.</source>
        <translation>Das Ziel ist über ssh nicht erreichbar.</translation>
    </message>
    <message>
        <source>rsync failed with code %1.</source>
        <translation>rsync ist mit Code %1 gescheitert.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>rsync was killed.</source>
        <translation>rsync wurde abgeschossen.</translation>
    </message>
    <message>
        <source>The program rsync cannot be started.</source>
        <translation>Das Programm rsync kann nicht gestartet werden.</translation>
    </message>
    <message>
        <source>The program rsync is not installed.</source>
        <translation>Das Programm rsync ist nicht installiert.</translation>
    </message>
</context>
<context>
    <name>Zavo::SafetyDesk</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>Another program changed %1. It is shown here as it was before.</source>
        <translation>Ein anderes Programm hat geändert: %1. Hier wird der vorherige Stand gezeigt.</translation>
    </message>
    <message>
        <source>No safety copies can be made: %1</source>
        <translation>Es können keine Sicherungskopien angelegt werden: %1</translation>
    </message>
    <message>
        <source>Safety &amp;Copies...</source>
        <translation>Sicherungs&amp;kopien...</translation>
    </message>
    <message>
        <source>Restore Channel</source>
        <translation>Kanal wiederherstellen</translation>
    </message>
    <message>
        <source>Restore the channel &quot;%1&quot; to its state of %2?</source>
        <translation>Den Kanal „%1“ auf den Stand von %2 zurücksetzen?</translation>
    </message>
    <message>
        <source>The window is closed and opened anew to show it. You are asked before about channels with edits that are not saved. The present state stays among the safety copies.</source>
        <translation>Das Fenster wird dazu geschlossen und neu geöffnet. Zuvor werden Sie nach Kanälen mit nicht gespeicherten Änderungen gefragt. Der jetzige Stand bleibt unter den Sicherungskopien.</translation>
    </message>
    <message>
        <source>Save Channel</source>
        <translation>Kanal speichern</translation>
    </message>
    <message>
        <source>The channel file &quot;%1&quot; was changed by another program.</source>
        <translation>Die Kanaldatei „%1“ wurde von einem anderen Programm geändert.</translation>
    </message>
    <message>
        <source>Do you want to overwrite it? Whichever of the two states is not in the file afterwards stays among the safety copies.</source>
        <translation>Möchten Sie sie überschreiben? Derjenige der beiden Stände, der danach nicht in der Datei steht, bleibt unter den Sicherungskopien.</translation>
    </message>
    <message>
        <source>The file &quot;channel.xml&quot; could not be renewed. The next start would show the first channel as it was before.</source>
        <translation>Die Datei „channel.xml“ konnte nicht erneuert werden. Beim nächsten Start würde der erste Kanal so gezeigt, wie er vorher war.</translation>
    </message>
    <message>
        <source>Shows earlier states of the channels and restores one</source>
        <translation>Zeigt frühere Stände der Kanäle und stellt einen davon wieder her</translation>
    </message>
    <message>
        <source>Lists the states that each channel file had before it was replaced or removed, with what differs, and brings one back.</source>
        <translation>Listet die Stände auf, die jede Kanaldatei hatte, bevor sie ersetzt oder entfernt wurde, mit den Unterschieden, und holt einen zurück.</translation>
    </message>
    <message>
        <source>The first channel was opened from &quot;channel.xml&quot;, a file that goes when it is saved. What was saved is among the safety copies; restore it from there.</source>
        <translation>Der erste Kanal war aus „channel.xml“ geöffnet, einer Datei, die beim Speichern verschwindet. Was gespeichert wurde, liegt bei den Sicherungskopien; stellen Sie es von dort wieder her.</translation>
    </message>
</context>
<context>
    <name>Zavo::SavePrompt</name>
    <message>
        <source>Save Channel</source>
        <translation>Kanal speichern</translation>
    </message>
    <message>
        <source>Do you want to save your changes </source>
        <translation>Möchten Sie Ihre Änderungen speichern, </translation>
    </message>
    <message>
        <source>before uploading?</source>
        <translation>bevor Sie hochladen?</translation>
    </message>
    <message>
        <source>before closing?</source>
        <translation>bevor Sie schließen?</translation>
    </message>
    <message>
        <source>The channel &quot;%1&quot; has been modified.</source>
        <translation>Der Kanal „%1“ wurde geändert.</translation>
    </message>
    <message>
        <source>
If you upload without saving, previously saved information will be uploaded.</source>
        <translation>
Wenn Sie hochladen, ohne zu speichern, wird der zuletzt gespeicherte Stand hochgeladen.</translation>
    </message>
</context>
<context>
    <name>Zavo::ScheduleNames</name>
    <message>
        <source>Default schedule</source>
        <translation>Standardzeitplan</translation>
    </message>
</context>
<context>
    <name>Zavo::ScheduleRecorder</name>
    <message>
        <source>the schedule of %1</source>
        <translation>den Zeitplan „%1“</translation>
    </message>
    <message>
        <source>the selected schedule</source>
        <translation>den ausgewählten Zeitplan</translation>
    </message>
    <message>
        <source>the selected schedules</source>
        <translation>die ausgewählten Zeitpläne</translation>
    </message>
    <message>
        <source>The following schedule will be deleted.

</source>
        <translation>Folgende Zeitpläne werden gelöscht.

</translation>
    </message>
    <message>
        <source>Confirm Delete</source>
        <translation>Löschen bestätigen</translation>
    </message>
    <message>
        <source>Are you sure you want to delete %1?</source>
        <translation>Möchten Sie %1 wirklich löschen?</translation>
    </message>
</context>
<context>
    <name>Zavo::ScheduleToolBar</name>
    <message>
        <source>Close Stage Editor</source>
        <translation>Szeneneditor schließen</translation>
    </message>
    <message>
        <source>Close Schedule Editor</source>
        <translation>Zeitplaneditor schließen</translation>
    </message>
    <message>
        <source>Closes the schedule editor and asks about unsaved channels</source>
        <translation>Schließt den Zeitplaneditor und fragt nach nicht gespeicherten Kanälen</translation>
    </message>
    <message>
        <source>Closes the schedule editor. You are asked about each channel with changes that are not saved.</source>
        <translation>Schließt den Zeitplaneditor. Sie werden nach jedem Kanal mit nicht gespeicherten Änderungen gefragt.</translation>
    </message>
    <message>
        <source>More commands</source>
        <translation>Weitere Befehle</translation>
    </message>
</context>
<context>
    <name>Zavo::ScreenshotTaker</name>
    <message>
        <source>No channel was shown, so there is no picture.</source>
        <translation>Es wurde kein Kanal gezeigt, daher gibt es kein Bild.</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; cannot be written: %2.</source>
        <translation>Das Bild „%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
</context>
<context>
    <name>Zavo::SessionRecord</name>
    <message>
        <source>The last session, begun at %1, did not end properly.</source>
        <translation>Die letzte Sitzung, begonnen am %1, wurde nicht ordnungsgemäß beendet.</translation>
    </message>
    <message>
        <source>The last session did not end properly.</source>
        <translation>Die letzte Sitzung wurde nicht ordnungsgemäß beendet.</translation>
    </message>
    <message>
        <source>It had no edits that were not saved.</source>
        <translation>Sie enthielt keine nicht gespeicherten Änderungen.</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiterer</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Edits since the last save were lost in: %1.
All that was saved before is in the channel files.</source>
        <translation>Die Änderungen seit dem letzten Speichern gingen verloren in: %1.
Alles, was zuvor gespeichert wurde, steht in den Kanaldateien.</translation>
    </message>
</context>
<context>
    <name>Zavo::ShortcutDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Find a command or a key</source>
        <translation>Befehl oder Taste suchen</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>&amp;No Keys</source>
        <translation>K&amp;eine Tasten</translation>
    </message>
    <message>
        <source>&amp;Default</source>
        <translation>&amp;Vorgabe</translation>
    </message>
    <message>
        <source>&amp;Take It Away</source>
        <translation>&amp;Wegnehmen</translation>
    </message>
    <message>
        <source>&amp;All to Default</source>
        <translation>A&amp;lle auf Vorgabe</translation>
    </message>
    <message>
        <source>&amp;Press the keys for &quot;%1&quot;:</source>
        <translation>&amp;Drücken Sie die Tasten für „%1“:</translation>
    </message>
    <message>
        <source>Choose a command, then press its keys.</source>
        <translation>Wählen Sie einen Befehl und drücken Sie dann seine Tasten.</translation>
    </message>
</context>
<context>
    <name>Zavo::Shortcuts</name>
    <message>
        <source>%1 is the key of &quot;%2&quot; (%3).</source>
        <translation>%1 ist die Taste von „%2“ (%3).</translation>
    </message>
</context>
<context>
    <name>Zavo::ShownUploadLog</name>
    <message>
        <source>Open Log Folder</source>
        <translation>Protokollordner öffnen</translation>
    </message>
    <message>
        <source>The log folder does not exist.
</source>
        <translation>Den Protokollordner gibt es nicht.
</translation>
    </message>
    <message>
        <source>The log folder can not be opened.
</source>
        <translation>Der Protokollordner kann nicht geöffnet werden.
</translation>
    </message>
    <message>
        <source>Open Log File</source>
        <translation>Protokolldatei öffnen</translation>
    </message>
    <message>
        <source>The log file can not be opened.
Please make sure that you have an application that is associated with the extension &quot;.txt&quot;.</source>
        <translation>Die Protokolldatei kann nicht geöffnet werden.
Bitte prüfen Sie, ob der Endung „.txt“ ein Programm zugeordnet ist.</translation>
    </message>
    <message>
        <source>The log file does not exist.
Do you want to open the log folder?</source>
        <translation>Die Protokolldatei gibt es nicht.
Möchten Sie den Protokollordner öffnen?</translation>
    </message>
</context>
<context>
    <name>Zavo::StageInspection</name>
    <message>
        <source>The stage &quot;%1&quot; does not lie in the stage folder.</source>
        <translation>Die Szene „%1“ liegt nicht im Szenenordner.</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; is a link that leads nowhere.</source>
        <translation>Die Szene „%1“ ist eine Verknüpfung, die ins Leere führt.</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; does not exist.</source>
        <translation>Die Szene „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; is not a file.</source>
        <translation>Die Szene „%1“ ist keine Datei.</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; cannot be read.</source>
        <translation>Die Szene „%1“ kann nicht gelesen werden.</translation>
    </message>
    <message numerus="yes">
        <source>The stage &quot;%1&quot; lacks %n of its pictures.</source>
        <translation>
            <numerusform>Der Szene „%1“ fehlt %n ihrer Bilder.</numerusform>
            <numerusform>Der Szene „%1“ fehlen %n ihrer Bilder.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zavo::StateComparer</name>
    <message>
        <source>is no channel file</source>
        <translation>ist keine Kanaldatei</translation>
    </message>
    <message>
        <source>replaces a file that cannot be read; schedules: %1</source>
        <translation>ersetzt eine nicht lesbare Datei; Zeitpläne: %1</translation>
    </message>
    <message>
        <source>brings the file back; schedules: %1</source>
        <translation>bringt die Datei zurück; Zeitpläne: %1</translation>
    </message>
</context>
<context>
    <name>Zavo::StateDifference</name>
    <message>
        <source>as it is now</source>
        <translation>wie jetzt</translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation>%1 hinzugefügt</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 entfernt</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>%1 geändert</translation>
    </message>
    <message>
        <source>schedules: %1</source>
        <translation>Zeitpläne: %1</translation>
    </message>
    <message>
        <source>name: &quot;%1&quot;</source>
        <translation>Name: „%1“</translation>
    </message>
    <message>
        <source>another place among the tabs</source>
        <translation>anderer Platz unter den Reitern</translation>
    </message>
</context>
<context>
    <name>Zavo::TargetKeeper</name>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>„%1“ kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>Zavo::TimeTablePage</name>
    <message>
        <source>Stopped</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Can not paste.
There is not enough blank duration to paste in the time area.</source>
        <translation>Einfügen nicht möglich.
In der Zeittafel ist nicht genug freie Zeit, um einzufügen.</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>There is the assigned time band in target range.
Do you want to delete the assigned time band and to paste?</source>
        <translation>Im Zielbereich liegt ein belegter Zeitblock.
Möchten Sie diesen löschen und einfügen?</translation>
    </message>
    <message>
        <source>Schedule of Unknown</source>
        <translation>Zeitplan: unbekannt</translation>
    </message>
    <message>
        <source>Schedule of %1</source>
        <translation>Zeitplan: %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Schedule of the channel</source>
        <translation>Zeitplan des Kanals</translation>
    </message>
</context>
<context>
    <name>Zavo::UploadCollection</name>
    <message>
        <source>No folder can be made in &quot;%1&quot;: %2.</source>
        <translation>In „%1“ kann kein Ordner angelegt werden: %2.</translation>
    </message>
    <message>
        <source>There are no channel files in &quot;%1&quot;.</source>
        <translation>In „%1“ gibt es keine Kanaldateien.</translation>
    </message>
    <message>
        <source>No channel is meant to be uploaded.</source>
        <translation>Kein Kanal ist zum Hochladen vorgesehen.</translation>
    </message>
    <message>
        <source>The channel file &quot;%1&quot; is damaged.</source>
        <translation>Die Kanaldatei „%1“ ist beschädigt.</translation>
    </message>
    <message>
        <source>The channel &quot;%1&quot; stays here by the channel configuration.</source>
        <translation>Der Kanal „%1“ bleibt nach der Kanalkonfiguration hier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be removed.</source>
        <translation>„%1“ kann nicht entfernt werden.</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; of the channel &quot;%2&quot; is missing.</source>
        <translation>Die Szene „%1“ des Kanals „%2“ fehlt.</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; is damaged.</source>
        <translation>Die Szene „%1“ ist beschädigt.</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; of the stage &quot;%2&quot; is missing.</source>
        <translation>Das Bild „%1“ der Szene „%2“ fehlt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>„%1“ kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
</context>
<context>
    <name>Zavo::UploadDialog</name>
    <message>
        <source>Progress of the upload to %1</source>
        <translation>Fortschritt des Hochladens nach %1</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Hochladen</translation>
    </message>
    <message>
        <source>The saved channels and the stages they use go to every &amp;target that is checked.</source>
        <translation>Die gespeicherten Kanäle und ihre Szenen gehen an jedes &amp;Ziel mit Häkchen.</translation>
    </message>
    <message>
        <source>%1 complete, %2 failed, %3 cancelled.</source>
        <translation>%1 vollständig, %2 gescheitert, %3 abgebrochen.</translation>
    </message>
    <message numerus="yes">
        <source>%n thing(s) to note; the log names them.</source>
        <translation>
            <numerusform>%n Anmerkung; sie steht im Protokoll.</numerusform>
            <numerusform>%n Anmerkungen; sie stehen im Protokoll.</numerusform>
        </translation>
    </message>
    <message>
        <source>The log cannot be written: &quot;%1&quot;.</source>
        <translation>Das Protokoll kann nicht geschrieben werden: „%1“.</translation>
    </message>
    <message>
        <source>Show &amp;Log</source>
        <translation>&amp;Protokoll zeigen</translation>
    </message>
    <message>
        <source>Open the log of the last upload</source>
        <translation>Öffnet das Protokoll des letzten Hochladens</translation>
    </message>
    <message>
        <source>&amp;Upload</source>
        <translation>&amp;Hochladen</translation>
    </message>
    <message>
        <source>Upload to all targets that are checked</source>
        <translation>Lädt auf alle Ziele mit Häkchen hoch</translation>
    </message>
    <message>
        <source>Retry &amp;Failed</source>
        <translation>&amp;Gescheiterte wiederholen</translation>
    </message>
    <message>
        <source>Upload again to the targets that did not get everything</source>
        <translation>Lädt erneut auf die Ziele hoch, die nicht alles erhalten haben</translation>
    </message>
    <message>
        <source>&amp;Cancel Upload</source>
        <translation>Hochladen &amp;abbrechen</translation>
    </message>
    <message>
        <source>Break the upload off; the targets keep what they had</source>
        <translation>Bricht das Hochladen ab; die Ziele behalten ihren bisherigen Stand</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close this window; an upload goes on</source>
        <translation>Schließt dieses Fenster; ein Hochladen läuft weiter</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Wird hochgeladen...</translation>
    </message>
    <message>
        <source>Checking the data: %1 of %2 files...</source>
        <translation>Die Daten werden geprüft: %1 von %2 Dateien...</translation>
    </message>
    <message>
        <source>Cancelled before anything was sent.</source>
        <translation>Abgebrochen, bevor etwas gesendet wurde.</translation>
    </message>
    <message>
        <source>Nothing was uploaded.</source>
        <translation>Es wurde nichts hochgeladen.</translation>
    </message>
    <message>
        <source>Checking the data...</source>
        <translation>Die Daten werden geprüft...</translation>
    </message>
</context>
<context>
    <name>Zavo::UploadFindingsDialog</name>
    <message>
        <source>Check Before Upload</source>
        <translation>Prüfung vor dem Hochladen</translation>
    </message>
    <message>
        <source>%1 Upload all the same?</source>
        <translation>%1 Trotzdem hochladen?</translation>
    </message>
    <message>
        <source>&amp;Upload All the Same</source>
        <translation>&amp;Trotzdem hochladen</translation>
    </message>
    <message>
        <source>&amp;Do Not Upload</source>
        <translation>&amp;Nicht hochladen</translation>
    </message>
</context>
<context>
    <name>Zavo::UploadJob</name>
    <message>
        <source>Waiting</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>Cancelled. The target keeps what it had.</source>
        <translation>Abgebrochen. Das Ziel behält seinen bisherigen Stand.</translation>
    </message>
    <message>
        <source>%1 It broke off while the files were put in place, so the target may hold a mixture. Please upload again.</source>
        <translation>%1 Der Abbruch geschah, während die Dateien eingesetzt wurden; das Ziel kann daher eine Mischung enthalten. Bitte laden Sie erneut hoch.</translation>
    </message>
    <message>
        <source>%1 The target keeps what it had.</source>
        <translation>%1 Das Ziel behält seinen bisherigen Stand.</translation>
    </message>
    <message>
        <source>This is where the data folder of the editor lies.</source>
        <translation>Hier liegt der Datenordner des Editors.</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Transferring</source>
        <translation>Übertragen</translation>
    </message>
    <message>
        <source>Putting in place</source>
        <translation>Einsetzen</translation>
    </message>
    <message>
        <source>Tidying up</source>
        <translation>Aufräumen</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; of the target is a link. The target keeps what it had.</source>
        <translation>Der Ordner „%1“ des Ziels ist eine Verknüpfung. Das Ziel behält seinen bisherigen Stand.</translation>
    </message>
    <message>
        <source>Complete.</source>
        <translation>Vollständig.</translation>
    </message>
    <message>
        <source>Complete. What was there before is in the folder &quot;%1&quot;.</source>
        <translation>Vollständig. Was vorher dort war, liegt im Ordner „%1“.</translation>
    </message>
    <message>
        <source>Keeping what is replaced</source>
        <translation>Ersetztes sichern</translation>
    </message>
    <message>
        <source>There is no room to keep what is replaced. The target keeps what it had.</source>
        <translation>Es ist kein Platz, um zu sichern, was ersetzt wird. Das Ziel behält seinen bisherigen Stand.</translation>
    </message>
    <message numerus="yes">
        <source>%n channel file(s) that were replaced or removed there are among the safety copies.</source>
        <translation>
            <numerusform>%n Kanaldatei, die dort ersetzt oder entfernt wurde, ist unter den Sicherungskopien.</numerusform>
            <numerusform>%n Kanaldateien, die dort ersetzt oder entfernt wurden, sind unter den Sicherungskopien.</numerusform>
        </translation>
    </message>
    <message>
        <source>Complete. No safety copy could be made of all that was replaced there.</source>
        <translation>Vollständig. Nicht von allem, was dort ersetzt wurde, konnte eine Sicherungskopie angelegt werden.</translation>
    </message>
</context>
<context>
    <name>Zavo::UploadRun</name>
    <message numerus="yes">
        <source>Upload of %1 to %n target(s), from &quot;%2&quot;</source>
        <translation>
            <numerusform>Hochladen am %1 auf %n Ziel, aus „%2“</numerusform>
            <numerusform>Hochladen am %1 auf %n Ziele, aus „%2“</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 complete, %2 failed, %3 cancelled</source>
        <translation>%1 vollständig, %2 gescheitert, %3 abgebrochen</translation>
    </message>
    <message>
        <source>%1: begins</source>
        <translation>%1: beginnt</translation>
    </message>
    <message>
        <source>%1 channel files, %2 stages, %3 pictures, %4</source>
        <translation>%1 Kanaldateien, %2 Szenen, %3 Bilder, %4</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>The check found %n thing(s):</source>
        <translation>
            <numerusform>Die Prüfung ergab %n Befund:</numerusform>
            <numerusform>Die Prüfung ergab %n Befunde:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zavo::UploadTarget</name>
    <message>
        <source>The address is empty.</source>
        <translation>Die Adresse ist leer.</translation>
    </message>
    <message>
        <source>The address is too long.</source>
        <translation>Die Adresse ist zu lang.</translation>
    </message>
    <message>
        <source>An address is a single line without control characters.</source>
        <translation>Eine Adresse ist eine einzelne Zeile ohne Steuerzeichen.</translation>
    </message>
    <message>
        <source>The path of a folder must not contain &quot;..&quot;.</source>
        <translation>Der Pfad eines Ordners darf kein „..“ enthalten.</translation>
    </message>
    <message>
        <source>The root folder is no target.</source>
        <translation>Der Wurzelordner ist kein Ziel.</translation>
    </message>
    <message>
        <source>Such an address reads rsync://host/module or rsync://user@host:port/module/folder. It holds no password.</source>
        <translation>Eine solche Adresse lautet rsync://host/module oder rsync://user@host:port/module/folder. Sie enthält kein Passwort.</translation>
    </message>
    <message>
        <source>The name of a module is missing behind the host.</source>
        <translation>Hinter dem Rechner fehlt der Name eines Moduls.</translation>
    </message>
    <message>
        <source>A target is the full path of a folder, rsync://host/module, ssh://user@host/folder or user@host:folder.</source>
        <translation>Ein Ziel ist der vollständige Pfad eines Ordners, rsync://host/module, ssh://user@host/folder oder user@host:folder.</translation>
    </message>
    <message>
        <source>A folder on another machine must not contain any of * ? [ ] \.</source>
        <translation>Ein Ordner auf einer anderen Maschine darf keines der Zeichen * ? [ ] \ enthalten.</translation>
    </message>
</context>
<context>
    <name>Zavo::UploadTargetDialog</name>
    <message>
        <source>Add Target</source>
        <translation>Ziel hinzufügen</translation>
    </message>
    <message>
        <source>Change Target</source>
        <translation>Ziel ändern</translation>
    </message>
    <message>
        <source>&amp;Address of the target:</source>
        <translation>&amp;Adresse des Ziels:</translation>
    </message>
    <message>
        <source>A folder, such as a mounted share:</source>
        <translation>Ein Ordner, etwa eine eingehängte Freigabe:</translation>
    </message>
    <message>
        <source>An rsync daemon:</source>
        <translation>Ein rsync-Dienst:</translation>
    </message>
    <message>
        <source>A machine reached by ssh:</source>
        <translation>Eine über ssh erreichbare Maschine:</translation>
    </message>
    <message>
        <source>Address of the target</source>
        <translation>Adresse des Ziels</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>Choose a folder of this machine</source>
        <translation>Wählt einen Ordner dieser Maschine</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>Ordner wählen</translation>
    </message>
</context>
<context>
    <name>Zavo::UploadTargetList</name>
    <message>
        <source>Targets of uploads</source>
        <translation>Ziele für das Hochladen</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Neu...</translation>
    </message>
    <message>
        <source>Enter a new target</source>
        <translation>Trägt ein neues Ziel ein</translation>
    </message>
    <message>
        <source>C&amp;hange...</source>
        <translation>Ände&amp;rn...</translation>
    </message>
    <message>
        <source>Change the address of the chosen target</source>
        <translation>Ändert die Adresse des gewählten Ziels</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Take the chosen target from the list; what lies there stays</source>
        <translation>Nimmt das gewählte Ziel aus der Liste; was dort liegt, bleibt</translation>
    </message>
    <message>
        <source>The target &quot;%1&quot; is in the list already.</source>
        <translation>Das Ziel „%1“ steht schon in der Liste.</translation>
    </message>
</context>
<context>
    <name>Zavo::VersionBox</name>
    <message>
        <source>About Zavo Schedule Editor</source>
        <translation>Über Zavo Schedule Editor</translation>
    </message>
    <message>
        <source>Zavo Schedule Editor %1</source>
        <translation>Zavo Schedule Editor %1</translation>
    </message>
    <message>
        <source>Edits the daily programme of display channels.

Qt %1
Data folder: %2</source>
        <translation>Bearbeitet das Tagesprogramm von Anzeigekanälen.

Qt %1
Datenordner: %2</translation>
    </message>
</context>
<context>
    <name>Zavo::WeekSheet</name>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1: %2 bis %3</translation>
    </message>
    <message>
        <source>No schedule</source>
        <translation>Kein Zeitplan</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n weiterer</numerusform>
            <numerusform>%n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Too short to be named in the week</source>
        <translation>Zu kurz, um in der Woche genannt zu werden</translation>
    </message>
</context>
<context>
    <name>Zavo::WorkingAreaHeader</name>
    <message>
        <source>Schedule of ...</source>
        <translation>Zeitplan: ...</translation>
    </message>
    <message>
        <source>You can create this schedule.</source>
        <translation>Sie können diesen Zeitplan anlegen.</translation>
    </message>
    <message>
        <source> - None. </source>
        <translation> - keiner. </translation>
    </message>
    <message>
        <source>The chosen date or day has no schedule of its own. Click here to create it; only then can stages be dropped.</source>
        <translation>Das gewählte Datum oder der Wochentag hat keinen eigenen Zeitplan. Klicken Sie hier, um ihn anzulegen; erst dann können Szenen hineingezogen werden.</translation>
    </message>
</context>
<context>
    <name>Zavo::WorkingAreaStatusBar</name>
    <message>
        <source>Scale</source>
        <translation>Maßstab</translation>
    </message>
    <message>
        <source>Cursor Position Time:</source>
        <translation>Zeit am Mauszeiger:</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvCalendarWidget</name>
    <message>
        <source>Mon</source>
        <translation>Mo</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Di</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Mi</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Fr</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sa</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>So</translation>
    </message>
    <message>
        <source>&amp;First Day of Week</source>
        <translation>Ers&amp;ter Tag der Woche</translation>
    </message>
    <message>
        <source>C&amp;alendar</source>
        <translation>Ka&amp;lender</translation>
    </message>
    <message>
        <source>Move to &amp;Today</source>
        <translation>Zu &amp;heute wechseln</translation>
    </message>
    <message>
        <source>Select &amp;Week</source>
        <translation>Wo&amp;che auswählen</translation>
    </message>
    <message>
        <source>Select &amp;Month</source>
        <translation>&amp;Monat auswählen</translation>
    </message>
    <message>
        <source>Clear &amp;Selections</source>
        <translation>Auswahl aufhe&amp;ben</translation>
    </message>
    <message>
        <source>Show Week &amp;Number</source>
        <translation>Wochen&amp;nummern anzeigen</translation>
    </message>
    <message>
        <source>None</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 Tag</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 Tage</translation>
    </message>
    <message>
        <source>Schedule of days: </source>
        <translation>Tage mit Zeitplan: </translation>
    </message>
    <message>
        <source>Shows today&apos;s schedule</source>
        <translation>Zeigt den heutigen Zeitplan</translation>
    </message>
    <message>
        <source>Turns the calendar to the present month and shows the schedule of today&apos;s date.</source>
        <translation>Blättert den Kalender zum laufenden Monat und zeigt den Zeitplan des heutigen Datums.</translation>
    </message>
    <message>
        <source>Selects the whole week of the selected date</source>
        <translation>Wählt die ganze Woche des gewählten Datums aus</translation>
    </message>
    <message>
        <source>Selects the seven days of the week of the selected date. Cut, copy, paste and delete then act on all of them.</source>
        <translation>Wählt die sieben Tage der Woche des gewählten Datums aus. Ausschneiden, Kopieren, Einfügen und Löschen wirken dann auf alle.</translation>
    </message>
    <message>
        <source>Selects the whole month of the selected date</source>
        <translation>Wählt den ganzen Monat des gewählten Datums aus</translation>
    </message>
    <message>
        <source>Selects all days of the month of the selected date. Cut, copy, paste and delete then act on all of them.</source>
        <translation>Wählt alle Tage des Monats des gewählten Datums aus. Ausschneiden, Kopieren, Einfügen und Löschen wirken dann auf alle.</translation>
    </message>
    <message>
        <source>Leaves only one date selected</source>
        <translation>Lässt nur ein Datum ausgewählt</translation>
    </message>
    <message>
        <source>Takes the selection off all dates but the one whose schedule is shown.</source>
        <translation>Hebt die Auswahl aller Tage auf bis auf den, dessen Zeitplan gezeigt wird.</translation>
    </message>
    <message>
        <source>Chooses the day with which the weeks begin</source>
        <translation>Wählt den Tag, mit dem die Wochen beginnen</translation>
    </message>
    <message>
        <source>Chooses the day that stands first in the rows of the calendar.</source>
        <translation>Wählt den Tag, der in den Zeilen des Kalenders vorn steht.</translation>
    </message>
    <message>
        <source>Begins the weeks of the calendar with this day</source>
        <translation>Lässt die Wochen des Kalenders mit diesem Tag beginnen</translation>
    </message>
    <message>
        <source>Begins the weeks of the calendar with this day, until the editor is closed.</source>
        <translation>Lässt die Wochen des Kalenders mit diesem Tag beginnen, bis der Editor geschlossen wird.</translation>
    </message>
    <message>
        <source>Shows or hides the numbers of the weeks</source>
        <translation>Zeigt oder verbirgt die Wochennummern</translation>
    </message>
    <message>
        <source>Shows or hides the numbers of the weeks beside the calendar.</source>
        <translation>Zeigt oder verbirgt die Wochennummern neben dem Kalender.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Voriger Monat</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Nächster Monat</translation>
    </message>
    <message>
        <source>Menu of the calendar</source>
        <translation>Menü des Kalenders</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Click a date to edit its schedule. Ctrl and Shift select several dates for the commands of the edit menu. A frame marks the dates that have a schedule, and green is today.</source>
        <translation>Klicken Sie auf ein Datum, um dessen Zeitplan zu bearbeiten. Mit Strg und Umschalt wählen Sie mehrere Tage für die Befehle des Menüs „Bearbeiten“ aus. Ein Rahmen kennzeichnet Tage mit Zeitplan, Grün den heutigen.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>%1, has a schedule</source>
        <translation>%1, mit Zeitplan</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvChannelInformationWidget</name>
    <message>
        <source>Channel Information</source>
        <translation>Kanalinformationen</translation>
    </message>
    <message>
        <source>ID:</source>
        <translation>ID:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Order#:</source>
        <translation>Nr. in der Reihenfolge:</translation>
    </message>
    <message>
        <source>Default Schedule:</source>
        <translation>Standardzeitplan:</translation>
    </message>
    <message>
        <source>Day of Week Schedule:</source>
        <translation>Wochentagszeitpläne:</translation>
    </message>
    <message>
        <source>Date Schedule:</source>
        <translation>Datumszeitpläne:</translation>
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
        <translation>%1, mit Zeitplan</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Geändert am</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleAutoStageSwichSettingWidget</name>
    <message>
        <source>24 o&apos;clock</source>
        <translation>24 Uhr</translation>
    </message>
    <message>
        <source>You can set the schedule to switch the default stage at regular time intervals.
The same content as the selected stage will be created with a different name.</source>
        <translation>Sie können festlegen, dass der Zeitplan in regelmäßigen Abständen zur Standardszene umschaltet.
Der Inhalt der gewählten Szene wird dazu unter einem weiteren Namen angelegt.</translation>
    </message>
    <message>
        <source>Note: All stages already set to the timetable will be deleted.</source>
        <translation>Hinweis: Alle in der Zeittafel bereits gesetzten Szenen werden gelöscht.</translation>
    </message>
    <message>
        <source>Switching Interval</source>
        <translation>Umschaltintervall</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Time Range</source>
        <translation>Zeitbereich</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source> To</source>
        <translation> bis</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>Ausführen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleChangeChannelOrderDialog</name>
    <message>
        <source>Change Channel Order</source>
        <translation>Kanalreihenfolge ändern</translation>
    </message>
    <message>
        <source>*This operation can not be undone.</source>
        <translation>*Dieser Vorgang kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>You can change the channel order.</source>
        <translation>Sie können die Reihenfolge der Kanäle ändern.</translation>
    </message>
    <message>
        <source>Move To</source>
        <translation>Verschieben nach</translation>
    </message>
    <message>
        <source>ID: %1  Name: %2  Order: #%3</source>
        <translation>ID: %1  Name: %2  Reihenfolge: #%3</translation>
    </message>
    <message>
        <source>#%1: %2</source>
        <translation>#%1: %2</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleCommon</name>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Paste Schedule</source>
        <translation>Zeitplan einfügen</translation>
    </message>
    <message>
        <source>The paste destinations is different from the schedules in clipboard in number.
Do you want to continue the Paste?</source>
        <translation>Die Anzahl der Einfügeziele weicht von der Anzahl der Zeitpläne in der Zwischenablage ab.
Möchten Sie mit dem Einfügen fortfahren?</translation>
    </message>
    <message>
        <source>Cannot Paste</source>
        <translation>Einfügen nicht möglich</translation>
    </message>
    <message>
        <source>It is not possible to paste multiple schedules.</source>
        <translation>Mehrere Zeitpläne können nicht eingefügt werden.</translation>
    </message>
    <message>
        <source>removed or </source>
        <translation>entfernt oder </translation>
    </message>
    <message>
        <source>The following schedule will be %1replaced.

</source>
        <translation>Der folgende Zeitplan wird %1ersetzt.

</translation>
    </message>
    <message>
        <source>The schedule exists in paste destination. The schedule will be %1replaced.
Do you want to continue?</source>
        <translation>Am Einfügeziel gibt es bereits einen Zeitplan. Er wird %1ersetzt.
Möchten Sie fortfahren?</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleDefaultStageWidget</name>
    <message>
        <source>Default Stage</source>
        <translation>Standardszene</translation>
    </message>
    <message>
        <source>None - Drop stage here...</source>
        <translation>Keine - Szene hierher ziehen...</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>If you set Default Stage, drop the stage into the right box, or select the stage and from the context menu, choose Set As Default Stage.</source>
        <translation>Um die Standardszene festzulegen, ziehen Sie die Szene in das rechte Feld, oder wählen Sie die Szene aus und im Kontextmenü „Als Standardszene festlegen“.</translation>
    </message>
    <message>
        <source>The stage that is shown whenever no other one is scheduled. Drop a stage on the box to choose it; the check mark takes it away.</source>
        <translation>Die Szene, die gezeigt wird, wenn keine andere geplant ist. Ziehen Sie eine Szene in das Feld, um sie festzulegen; über das Häkchen wird sie entfernt.</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleDefaultWidget</name>
    <message>
        <source>Schedule of Default</source>
        <translation>Standardzeitplan</translation>
    </message>
    <message>
        <source>Assigned Stage: None</source>
        <translation>Zugewiesene Szenen: keine</translation>
    </message>
    <message>
        <source>None</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>%1 stage</source>
        <translation>%1 Szene</translation>
    </message>
    <message>
        <source>s</source>
        <translation>n</translation>
    </message>
    <message>
        <source>Assigned Stage: </source>
        <translation>Zugewiesene Szenen: </translation>
    </message>
    <message>
        <source>Click here to edit the default schedule. It is used on each day for which neither its date nor its day of the week has a schedule.</source>
        <translation>Klicken Sie hier, um den Standardzeitplan zu bearbeiten. Er gilt an jedem Tag, für den weder sein Datum noch sein Wochentag einen Zeitplan hat.</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleEditor</name>
    <message>
        <source>&amp;Save Channel</source>
        <translation>Kanal &amp;speichern</translation>
    </message>
    <message>
        <source>Save &amp;All Channels</source>
        <translation>&amp;Alle Kanäle speichern</translation>
    </message>
    <message>
        <source>&amp;Close Schedule Editor</source>
        <translation>&amp;Zeitplaneditor schließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Cut</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Alle&amp;s auswählen</translation>
    </message>
    <message>
        <source>Deselect A&amp;ll</source>
        <translation>Auswahl au&amp;fheben</translation>
    </message>
    <message>
        <source>&amp;Upload...</source>
        <translation>&amp;Hochladen...</translation>
    </message>
    <message>
        <source>&amp;Output Channel Data...</source>
        <translation>Kanaldaten &amp;ausgeben...</translation>
    </message>
    <message>
        <source>S&amp;how Upload Log...</source>
        <translation>Upload-&amp;Protokoll anzeigen...</translation>
    </message>
    <message>
        <source>Open Upload Log &amp;Folder...</source>
        <translation>&amp;Ordner des Upload-Protokolls öffnen...</translation>
    </message>
    <message>
        <source>&amp;New Schedule</source>
        <translation>&amp;Neuer Zeitplan</translation>
    </message>
    <message>
        <source>&amp;Delete Schedule...</source>
        <translation>&amp;Zeitplan löschen...</translation>
    </message>
    <message>
        <source>&amp;Rename Channel</source>
        <translation>Kanal &amp;umbenennen</translation>
    </message>
    <message>
        <source>Chan&amp;ge Channel Order...</source>
        <translation>Kanal&amp;reihenfolge ändern...</translation>
    </message>
    <message>
        <source>&amp;Add Channel...</source>
        <translation>Kanal h&amp;inzufügen...</translation>
    </message>
    <message>
        <source>D&amp;elete Channel...</source>
        <translation>Kanal &amp;löschen...</translation>
    </message>
    <message>
        <source>Delete All Channels and &amp;Settings...</source>
        <translation>Alle Kanäle und &amp;Einstellungen löschen...</translation>
    </message>
    <message>
        <source>Show Channel &amp;Information...</source>
        <translation>Kanalinfor&amp;mationen anzeigen...</translation>
    </message>
    <message>
        <source>Channel Configura&amp;tion...</source>
        <translation>&amp;Kanalkonfiguration...</translation>
    </message>
    <message>
        <source>&amp;Switch Schedule</source>
        <translation>Zeitplan &amp;wechseln</translation>
    </message>
    <message>
        <source>Schedule &amp;List</source>
        <translation>Zeitplan&amp;liste</translation>
    </message>
    <message>
        <source>&amp;Choose Stage</source>
        <translation>&amp;Szene wählen</translation>
    </message>
    <message>
        <source>&amp;Assigned Item Property</source>
        <translation>&amp;Eigenschaften des Eintrags</translation>
    </message>
    <message>
        <source>To &amp;Default Position</source>
        <translation>In &amp;Grundstellung bringen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Channel</source>
        <translation>&amp;Kanal</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>Switch Schedule</source>
        <translation>Zeitplan wechseln</translation>
    </message>
    <message>
        <source>Schedule List</source>
        <translation>Zeitplanliste</translation>
    </message>
    <message>
        <source>Choose Stage</source>
        <translation>Szene wählen</translation>
    </message>
    <message>
        <source>MainWindow does not exist.</source>
        <translation>Das Hauptfenster gibt es nicht.</translation>
    </message>
    <message>
        <source>The schedule editor has been closed.</source>
        <translation>Der Zeitplaneditor wurde geschlossen.</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleItemPropertyWidget</name>
    <message>
        <source>Selected Stage</source>
        <translation>Ausgewählte Szene</translation>
    </message>
    <message>
        <source>Previous Stage</source>
        <translation>Vorherige Szene</translation>
    </message>
    <message>
        <source>Next Stage</source>
        <translation>Nächste Szene</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Assigned Item Property</source>
        <translation>Eigenschaften des Eintrags</translation>
    </message>
    <message>
        <source>The stage that is selected in the time table, and when it starts and ends. Type a time or step it; the neighbours set the limits.</source>
        <translation>Die in der Zeittafel ausgewählte Szene mit Beginn und Ende. Geben Sie eine Zeit ein oder ändern Sie sie schrittweise; die Nachbarn setzen die Grenzen.</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleListWidget</name>
    <message>
        <source>default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>day of week</source>
        <translation>Wochentag</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Zeitplan</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Stages</source>
        <translation>Szenen</translation>
    </message>
    <message>
        <source>Channel: None</source>
        <translation>Kanal: keiner</translation>
    </message>
    <message>
        <source>Schedule List</source>
        <translation>Zeitplanliste</translation>
    </message>
    <message>
        <source>&amp;New Schedule...</source>
        <translation>&amp;Neuer Zeitplan...</translation>
    </message>
    <message>
        <source>Channel: %1</source>
        <translation>Kanal: %1</translation>
    </message>
    <message>
        <source>The schedules of the channel. The selected row is the schedule in the time table. The commands of the edit menu act on the checked rows.</source>
        <translation>Die Zeitpläne des Kanals. Die ausgewählte Zeile ist der Zeitplan in der Zeittafel. Die Befehle des Menüs „Bearbeiten“ wirken auf die angehakten Zeilen.</translation>
    </message>
    <message>
        <source>Creates a schedule for a date or a day of the week</source>
        <translation>Legt einen Zeitplan eines Datums oder einen Wochentag an</translation>
    </message>
    <message>
        <source>Asks for a date or a day of the week, creates a schedule for it and shows it. A date or day that has none yet is proposed.</source>
        <translation>Fragt nach einem Datum oder Wochentag, legt dafür einen Zeitplan an und zeigt ihn. Vorgeschlagen wird einer, der noch keinen hat.</translation>
    </message>
    <message>
        <source>Menu of the schedule list</source>
        <translation>Menü der Zeitplanliste</translation>
    </message>
    <message>
        <source>Schedules of the channel</source>
        <translation>Zeitpläne des Kanals</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleMainWidget</name>
    <message>
        <source>Critical Error</source>
        <translation>Schwerer Fehler</translation>
    </message>
    <message>
        <source>Channel Folder cannot be created. 
Please check the data folder write permission.</source>
        <translation>Der Kanalordner kann nicht angelegt werden. 
Bitte prüfen Sie die Schreibrechte des Datenordners.</translation>
    </message>
    <message>
        <source>Create Channel</source>
        <translation>Kanal anlegen</translation>
    </message>
    <message>
        <source>The channel file can not be created. 
Please make sure that channel folder is writable.</source>
        <translation>Die Kanaldatei kann nicht angelegt werden. 
Bitte prüfen Sie, ob der Kanalordner beschreibbar ist.</translation>
    </message>
    <message>
        <source>Add New Channel</source>
        <translation>Neuen Kanal hinzufügen</translation>
    </message>
    <message>
        <source>The channel &quot;%1&quot; will be deleted.
After it has been deleted, it can not be undone.

Are you sure that you want to delete this channel?</source>
        <translation>Der Kanal „%1“ wird gelöscht.
Dies kann danach nicht rückgängig gemacht werden.

Möchten Sie diesen Kanal wirklich löschen?</translation>
    </message>
    <message>
        <source>Delete Channel</source>
        <translation>Kanal löschen</translation>
    </message>
    <message>
        <source>The channel file can not be deleted.
Please check whether it is possible to delete the file.</source>
        <translation>Die Kanaldatei kann nicht gelöscht werden.
Bitte prüfen Sie, ob die Datei gelöscht werden kann.</translation>
    </message>
    <message>
        <source>Change Channel Name</source>
        <translation>Kanalnamen ändern</translation>
    </message>
    <message>
        <source>Change Channel &amp;Name...</source>
        <translation>Kanal&amp;namen ändern...</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>Changes the name of the channel in its tab</source>
        <translation>Ändert den Namen des Kanals in seinem Reiter</translation>
    </message>
    <message>
        <source>Opens the name in the tab for editing. Enter takes the new name over. Two channels cannot have the same name.</source>
        <translation>Öffnet den Namen im Reiter zum Bearbeiten. Die Eingabetaste übernimmt den neuen Namen. Zwei Kanäle können nicht denselben Namen haben.</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleSpecifyScheduleDialog</name>
    <message>
        <source>Create Schedule</source>
        <translation>Zeitplan anlegen</translation>
    </message>
    <message>
        <source>The new schedule will be created. 
You have to select Schedule Type and specify a day of week, or a date.</source>
        <translation>Ein neuer Zeitplan wird angelegt. 
Wählen Sie die Art des Zeitplans und einen Wochentag oder ein Datum.</translation>
    </message>
    <message>
        <source>Paste Schedule</source>
        <translation>Zeitplan einfügen</translation>
    </message>
    <message>
        <source>The schedule will be pasted from a clipboard. 
You have to specify a destination of pasting.</source>
        <translation>Der Zeitplan wird aus der Zwischenablage eingefügt. 
Geben Sie an, wohin er eingefügt werden soll.</translation>
    </message>
    <message>
        <source>Jump To Schedule</source>
        <translation>Zu Zeitplan springen</translation>
    </message>
    <message>
        <source>Specify the schedule you want to jump.</source>
        <translation>Geben Sie den Zeitplan an, zu dem Sie springen möchten.</translation>
    </message>
    <message>
        <source>Schedule Type</source>
        <translation>Art des Zeitplans</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Day of Week</source>
        <translation>Wochentag</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Repeat the paste when there are the multiple schedules on the clipboard.</source>
        <translation>Einfügen wiederholen, wenn mehrere Zeitpläne in der Zwischenablage liegen.</translation>
    </message>
    <message>
        <source> yyyy - MM - dd </source>
        <translation> dd.MM.yyyy </translation>
    </message>
    <message>
        <source>New Schedule</source>
        <translation>Neuer Zeitplan</translation>
    </message>
    <message>
        <source>The schedule of %1 has already existed.
You have to specify another date.</source>
        <translation>Den Zeitplan „%1“ gibt es bereits.
Bitte geben Sie ein anderes Datum an.</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleStageChooserWidget</name>
    <message>
        <source>Thumbnail of Stage</source>
        <translation>Vorschaubild der Szene</translation>
    </message>
    <message>
        <source>Stage List</source>
        <translation>Szenenliste</translation>
    </message>
    <message>
        <source>Choose Stage</source>
        <translation>Szene wählen</translation>
    </message>
    <message>
        <source>The stages of the data folder. Drag one or several to the time table, or one to the box of the default stage above it.</source>
        <translation>Die Szenen des Datenordners. Ziehen Sie eine oder mehrere in die Zeittafel oder eine in das Feld der Standardszene darüber.</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleStageListView</name>
    <message>
        <source>Set As Default Stage</source>
        <translation>Als Standardszene festlegen</translation>
    </message>
    <message>
        <source>Set the switching interval as Default Stage...</source>
        <translation>Umschaltintervall als Standardszene festlegen...</translation>
    </message>
    <message>
        <source>Set the switching interval as Default Stage</source>
        <translation>Umschaltintervall als Standardszene festlegen</translation>
    </message>
    <message>
        <source>Caution</source>
        <translation>Achtung</translation>
    </message>
    <message>
        <source>The selected stage was automatically generated.
Please select a stage which name does not include &quot;_ d _&quot;.</source>
        <translation>Die ausgewählte Szene wurde automatisch erzeugt.
Bitte wählen Sie eine Szene, deren Name „_ d _“ nicht enthält.</translation>
    </message>
    <message>
        <source>Failed to delete the file for automatic generation.
Processing was interrupted.</source>
        <translation>Die Datei für die automatische Erzeugung konnte nicht gelöscht werden.
Der Vorgang wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Failed to create the file for automatic generation.
Processing was interrupted.</source>
        <translation>Die Datei für die automatische Erzeugung konnte nicht angelegt werden.
Der Vorgang wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Shows this stage whenever no other one is scheduled</source>
        <translation>Zeigt diese Szene, wenn keine andere geplant ist</translation>
    </message>
    <message>
        <source>Makes the selected stage the default stage of the schedule in the time table. It fills all time without a stage.</source>
        <translation>Macht die ausgewählte Szene zur Standardszene des Zeitplans in der Zeittafel. Sie füllt alle Zeit ohne Szene.</translation>
    </message>
    <message>
        <source>Shows this stage anew at a regular interval</source>
        <translation>Zeigt diese Szene in regelmäßigen Abständen neu</translation>
    </message>
    <message>
        <source>Asks for an interval and fills the schedule in the time table so that the selected stage takes turns with a copy of itself. The stages that were there are replaced.</source>
        <translation>Fragt nach einem Intervall und füllt den Zeitplan in der Zeittafel so, dass sich die ausgewählte Szene mit einer Kopie ihrer selbst abwechselt. Die bisherigen Szenen werden ersetzt.</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleSwitcherWidget</name>
    <message>
        <source>Schedule of days: None</source>
        <translation>Tage mit Zeitplan: keine</translation>
    </message>
    <message>
        <source>Switch Schedule</source>
        <translation>Zeitplan wechseln</translation>
    </message>
    <message>
        <source>Chooses the schedule in the time table: that of a date in the calendar, that of a day of the week, or the default one. The bar at the left edge marks the chosen kind.</source>
        <translation>Wählt den Zeitplan in der Zeittafel: den eines Datums im Kalender, den eines Wochentags oder den Standardzeitplan. Der Balken am linken Rand kennzeichnet die gewählte Art.</translation>
    </message>
    <message>
        <source>Schedule of a date</source>
        <translation>Zeitplan eines Datums</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleTabWidget</name>
    <message>
        <source>&lt;span style=&quot;font-weight:bold;&quot;&gt;You can not move the first tab.&lt;/span&gt;</source>
        <translation>&lt;span style=&quot;font-weight:bold;&quot;&gt;Der erste Reiter kann nicht verschoben werden.&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Name of the channel</source>
        <translation>Name des Kanals</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleWorkingArea</name>
    <message>
        <source>Unknown</source>
        <translation>unbekannt</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduledToBeExecutedWidget</name>
    <message>
        <source>Scheduled to be executed on</source>
        <translation>Ausführung geplant am</translation>
    </message>
    <message>
        <source>Schedule:</source>
        <translation>Zeitplan:</translation>
    </message>
    <message>
        <source>DEFAULT</source>
        <translation>STANDARD</translation>
    </message>
    <message>
        <source>Scheduled to be executed on %1 (%2)</source>
        <translation>Ausführung geplant am %1 (%2)</translation>
    </message>
    <message>
        <source>Tells which schedule is used on the selected date: that of the date itself, else that of its day of the week, else the default schedule.</source>
        <translation>Sagt, welcher Zeitplan am gewählten Datum gilt: der des Datums selbst, sonst der seines Wochentags, sonst der Standardzeitplan.</translation>
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
        <translation>%1, Stunden</translation>
    </message>
    <message>
        <source>%1, minutes</source>
        <translation>%1, Minuten</translation>
    </message>
    <message>
        <source>%1, seconds</source>
        <translation>%1, Sekunden</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvTimeTableTimeZoneItem</name>
    <message>
        <source>Failed to assign &quot;%1&quot;.</source>
        <translation>„%1“ konnte nicht zugewiesen werden.</translation>
    </message>
    <message>
        <source>There is not enough unallocated time in order to assign stage. The start time must be earlier than 23:59:55.</source>
        <translation>Es ist nicht genug freie Zeit, um eine Szene zuzuweisen. Der Beginn muss vor 23:59:55 liegen.</translation>
    </message>
    <message>
        <source>You can not reassigned to the allocated time.</source>
        <translation>Eine bereits belegte Zeit kann nicht erneut zugewiesen werden.</translation>
    </message>
    <message>
        <source>There is not enough unallocated time in order to assign stages. Unassigned time of 5 seconds or more per one stage is required.</source>
        <translation>Es ist nicht genug freie Zeit, um die Szenen zuzuweisen. Jede Szene braucht mindestens 5 Sekunden freie Zeit.</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvTimeTableView</name>
    <message>
        <source>This schedule does not exist.</source>
        <translation>Diesen Zeitplan gibt es nicht.</translation>
    </message>
    <message>
        <source>Time table</source>
        <translation>Zeittafel</translation>
    </message>
    <message>
        <source>The day of the schedule, from 0 to 24 o&apos;clock. Stages are dropped here, dragged, and made longer or shorter at their edges. Ctrl adds to the selection, and the arrow keys move what is selected.</source>
        <translation>Der Tag des Zeitplans, von 0 bis 24 Uhr. Szenen werden hier abgelegt, verschoben und an ihren Rändern verlängert oder verkürzt. Strg erweitert die Auswahl, und die Pfeiltasten verschieben sie.</translation>
    </message>
    <message>
        <source>%1, %2 to %3</source>
        <translation>%1, %2 bis %3</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvTodayWidget</name>
    <message>
        <source>Today:</source>
        <translation>Heute:</translation>
    </message>
    <message>
        <source>Move to Today</source>
        <translation>Zu heute wechseln</translation>
    </message>
    <message>
        <source>Today&apos;s date. Click it to turn the calendar to today and show the schedule of that date.</source>
        <translation>Das heutige Datum. Ein Klick blättert den Kalender zu heute und zeigt den Zeitplan dieses Datums.</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvWeekWidget</name>
    <message>
        <source>Schedule for Each Day of Week</source>
        <translation>Zeitpläne der Wochentage</translation>
    </message>
    <message>
        <source>Click a day to edit the schedule that is used on that day of every week. A frame marks the days that have one. A schedule of a date goes before it.</source>
        <translation>Klicken Sie auf einen Tag, um den Zeitplan zu bearbeiten, der jede Woche an diesem Tag gilt. Ein Rahmen kennzeichnet die Tage, die einen haben. Der Zeitplan eines Datums geht vor.</translation>
    </message>
</context>
</TS>
