<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>Zavo::ActionHelp</name>
    <message>
        <source>Saves the channel of the current tab</source>
        <translation>現在のタブのチャンネルを保存します</translation>
    </message>
    <message>
        <source>Writes the channel of the current tab to its file. The file is replaced in one step, so that it is never half-written.</source>
        <translation>現在のタブのチャンネルをファイルに書き込みます。ファイルは一度に置き換えられるため、書きかけになることはありません。</translation>
    </message>
    <message>
        <source>Saves the channels of all tabs</source>
        <translation>すべてのタブのチャンネルを保存します</translation>
    </message>
    <message>
        <source>Writes the channel of each tab to its file.</source>
        <translation>各タブのチャンネルをそれぞれのファイルに書き込みます。</translation>
    </message>
    <message>
        <source>Closes the schedule editor and asks about unsaved channels</source>
        <translation>スケジュールエディターを閉じ、未保存のチャンネルについて確認します</translation>
    </message>
    <message>
        <source>Closes the schedule editor. You are asked about each channel with changes that are not saved.</source>
        <translation>スケジュールエディターを閉じます。未保存の変更があるチャンネルごとに確認します。</translation>
    </message>
    <message>
        <source>Ends the program and asks about unsaved channels</source>
        <translation>プログラムを終了し、未保存のチャンネルについて確認します</translation>
    </message>
    <message>
        <source>Ends the program. You are asked about each channel with changes that are not saved.</source>
        <translation>プログラムを終了します。未保存の変更があるチャンネルごとに確認します。</translation>
    </message>
    <message>
        <source>Takes back the last change of this channel</source>
        <translation>このチャンネルの最後の変更を元に戻します</translation>
    </message>
    <message>
        <source>Takes back the last change of the channel of the current tab, and shows the schedule that it was made in. Each channel has a history of its own.</source>
        <translation>現在のタブのチャンネルの最後の変更を元に戻し、変更したスケジュールを表示します。履歴はチャンネルごとにあります。</translation>
    </message>
    <message>
        <source>Makes the change again that was undone last</source>
        <translation>最後に元に戻した変更をやり直します</translation>
    </message>
    <message>
        <source>Makes the change of this channel again that was undone last, and shows the schedule that it belongs to.</source>
        <translation>このチャンネルで最後に元に戻した変更をやり直し、そのスケジュールを表示します。</translation>
    </message>
    <message>
        <source>Moves the selection to the clipboard</source>
        <translation>選択した項目をクリップボードに移動します</translation>
    </message>
    <message>
        <source>Moves what is selected to the clipboard: stages in the time table, dates or a day of the week in Switch Schedule, or the checked rows of the Schedule List. What you used last counts.</source>
        <translation>選択した項目をクリップボードに移動します。対象はタイムテーブルのステージ、「スケジュールの切り替え」の日付または曜日、スケジュール一覧のチェックした行のうち、最後に使用したものです。</translation>
    </message>
    <message>
        <source>Copies the selection to the clipboard</source>
        <translation>選択した項目をクリップボードにコピーします</translation>
    </message>
    <message>
        <source>Copies what is selected to the clipboard: stages in the time table, whole schedules in Switch Schedule, or the checked rows of the Schedule List. What you used last counts.</source>
        <translation>選択した項目をクリップボードにコピーします。対象はタイムテーブルのステージ、「スケジュールの切り替え」のスケジュール全体、スケジュール一覧のチェックした行のうち、最後に使用したものです。</translation>
    </message>
    <message>
        <source>Inserts what is on the clipboard</source>
        <translation>クリップボードの内容を貼り付けます</translation>
    </message>
    <message>
        <source>Inserts stages into the time table, or schedules at the selected date or day. You are asked before a schedule is replaced.</source>
        <translation>タイムテーブルにステージを、または選択した日付や曜日にスケジュールを貼り付けます。スケジュールを置き換える前に確認します。</translation>
    </message>
    <message>
        <source>Deletes the selection</source>
        <translation>選択した項目を削除します</translation>
    </message>
    <message>
        <source>Deletes what is selected: stages in the time table, schedules in Switch Schedule, or the checked rows of the Schedule List. The default schedule cannot be deleted.</source>
        <translation>選択した項目を削除します。対象はタイムテーブルのステージ、「スケジュールの切り替え」のスケジュール、スケジュール一覧のチェックした行です。デフォルトスケジュールは削除できません。</translation>
    </message>
    <message>
        <source>Selects everything in the time table or the Schedule List</source>
        <translation>タイムテーブルまたはスケジュール一覧のすべてを選択します</translation>
    </message>
    <message>
        <source>Selects all stages of the time table, or checks all rows of the Schedule List, whichever you used last.</source>
        <translation>最後に使用した方に応じて、タイムテーブルのすべてのステージを選択するか、スケジュール一覧のすべての行にチェックを付けます。</translation>
    </message>
    <message>
        <source>Selects nothing in the time table or the Schedule List</source>
        <translation>タイムテーブルまたはスケジュール一覧の選択を解除します</translation>
    </message>
    <message>
        <source>Takes the selection off all stages of the time table, or the check marks off all rows of the Schedule List, whichever you used last.</source>
        <translation>最後に使用した方に応じて、タイムテーブルのすべてのステージの選択を解除するか、スケジュール一覧のすべての行のチェックを外します。</translation>
    </message>
    <message>
        <source>Sends the channels and their stages to the displays</source>
        <translation>チャンネルとステージをディスプレイに送ります</translation>
    </message>
    <message>
        <source>Opens the upload manager, which sends the saved channels and the stages they use to the upload targets. You are asked about unsaved channels first.</source>
        <translation>保存済みのチャンネルと使用ステージをアップロード先に送るアップロード画面を開きます。先に未保存のチャンネルについて確認します。</translation>
    </message>
    <message>
        <source>Exports the channel of the current tab to a file</source>
        <translation>現在のタブのチャンネルをファイルにエクスポートします</translation>
    </message>
    <message>
        <source>Exports the channel of the current tab, as it was saved last, to a file that other programs can read.</source>
        <translation>現在のタブのチャンネルを、最後に保存した内容で、他のプログラムが読めるファイルにエクスポートします。</translation>
    </message>
    <message>
        <source>Opens the log of the last upload</source>
        <translation>前回のアップロードのログを開きます</translation>
    </message>
    <message>
        <source>Opens the log that tells how the last upload went.</source>
        <translation>前回のアップロードの結果が記録されたログを開きます。</translation>
    </message>
    <message>
        <source>Opens the folder with the logs of the uploads</source>
        <translation>アップロードログのフォルダーを開きます</translation>
    </message>
    <message>
        <source>Opens the folder with the logs of the last upload and of those before.</source>
        <translation>前回とそれ以前のアップロードのログがあるフォルダーを開きます。</translation>
    </message>
    <message>
        <source>Creates the schedule that is chosen in Switch Schedule</source>
        <translation>「スケジュールの切り替え」で選択したスケジュールを作成します</translation>
    </message>
    <message>
        <source>Creates a schedule for the date or the day of the week that is chosen in Switch Schedule, if it has none. Stages can be dropped only on a schedule that exists.</source>
        <translation>「スケジュールの切り替え」で選択した日付または曜日にスケジュールがなければ作成します。ステージは、作成済みのスケジュールにのみドロップできます。</translation>
    </message>
    <message>
        <source>Deletes the schedule that is shown</source>
        <translation>表示中のスケジュールを削除します</translation>
    </message>
    <message>
        <source>Deletes the schedule in the time table with all its stages, after a question. The default schedule cannot be deleted.</source>
        <translation>確認の後、タイムテーブルのスケジュールをすべてのステージとともに削除します。デフォルトスケジュールは削除できません。</translation>
    </message>
    <message>
        <source>Changes the name of the channel in its tab</source>
        <translation>タブのチャンネル名を変更します</translation>
    </message>
    <message>
        <source>Opens the name in the current tab for editing. Enter takes the new name over. Two channels cannot have the same name.</source>
        <translation>現在のタブの名前を編集します。Enter キーで新しい名前が確定します。2 つのチャンネルに同じ名前は付けられません。</translation>
    </message>
    <message>
        <source>Moves the tab of the channel to another place</source>
        <translation>チャンネルのタブを別の位置に移動します</translation>
    </message>
    <message>
        <source>Moves the current tab to the place of another one. The first channel keeps its place. This cannot be undone.</source>
        <translation>現在のタブを別のタブの位置に移動します。最初のチャンネルの位置は変わりません。この操作は元に戻せません。</translation>
    </message>
    <message>
        <source>Adds a channel with an empty default schedule</source>
        <translation>空のデフォルトスケジュールを持つチャンネルを追加します</translation>
    </message>
    <message>
        <source>Adds a channel with an empty default schedule behind the last tab. Its file is written at once.</source>
        <translation>最後のタブの後ろに、空のデフォルトスケジュールを持つチャンネルを追加します。ファイルはすぐに書き込まれます。</translation>
    </message>
    <message>
        <source>Deletes the channel of the current tab with its file</source>
        <translation>現在のタブのチャンネルをファイルとともに削除します</translation>
    </message>
    <message>
        <source>Deletes the channel of the current tab with its file, after a question. The first channel cannot be deleted. This cannot be undone.</source>
        <translation>確認の後、現在のタブのチャンネルをファイルとともに削除します。最初のチャンネルは削除できません。この操作は元に戻せません。</translation>
    </message>
    <message>
        <source>Deletes all channels and closes the editor</source>
        <translation>すべてのチャンネルを削除してエディターを閉じます</translation>
    </message>
    <message>
        <source>Deletes every channel file and the settings of the channels, after a question, and closes the editor. The next start begins with ten empty channels. This cannot be undone.</source>
        <translation>確認の後、すべてのチャンネルファイルとチャンネルの設定を削除してエディターを閉じます。次回は空の 10 チャンネルで起動します。この操作は元に戻せません。</translation>
    </message>
    <message>
        <source>Shows the id, place and number of schedules of the channel</source>
        <translation>チャンネルの ID、位置、スケジュール数を表示します</translation>
    </message>
    <message>
        <source>Shows the id, the name and the place of the current channel, and how many schedules of each kind it has.</source>
        <translation>現在のチャンネルの ID、名前、位置、種類ごとのスケジュール数を表示します。</translation>
    </message>
    <message>
        <source>Chooses which channels are uploaded</source>
        <translation>アップロードするチャンネルを選択します</translation>
    </message>
    <message>
        <source>Lists the saved channels and chooses which of them are uploaded.</source>
        <translation>保存済みのチャンネルを一覧表示し、アップロードするものを選択します。</translation>
    </message>
    <message>
        <source>Shows or hides the panel for choosing a schedule</source>
        <translation>スケジュールを選択するパネルの表示を切り替えます</translation>
    </message>
    <message>
        <source>Shows or hides Switch Schedule, the panel where you choose which schedule is in the time table: that of a date, of a day of the week, or the default one.</source>
        <translation>「スケジュールの切り替え」の表示を切り替えます。タイムテーブルに表示するスケジュール (日付、曜日、デフォルト) を選択するパネルです。</translation>
    </message>
    <message>
        <source>Shows or hides the list of all schedules</source>
        <translation>全スケジュールの一覧の表示を切り替えます</translation>
    </message>
    <message>
        <source>Shows or hides the Schedule List, with a row for each schedule of the channel.</source>
        <translation>チャンネルのスケジュールごとに 1 行ある、スケジュール一覧の表示を切り替えます。</translation>
    </message>
    <message>
        <source>Shows or hides the panel with the stages</source>
        <translation>ステージのパネルの表示を切り替えます</translation>
    </message>
    <message>
        <source>Shows or hides Choose Stage, the panel from which stages are dragged to the time table.</source>
        <translation>「ステージの選択」の表示を切り替えます。ここからステージをタイムテーブルにドラッグします。</translation>
    </message>
    <message>
        <source>Shows or hides the panel with the times of the selected stage</source>
        <translation>選択したステージの時刻のパネルの表示を切り替えます</translation>
    </message>
    <message>
        <source>Shows or hides the panel in which the start and the end of the selected stage are typed to the second.</source>
        <translation>選択したステージの開始と終了を秒単位で入力するパネルの表示を切り替えます。</translation>
    </message>
    <message>
        <source>Puts all panels back to their places</source>
        <translation>すべてのパネルを元の位置に戻します</translation>
    </message>
    <message>
        <source>Shows all panels at the places and in the sizes that they had at the first start.</source>
        <translation>すべてのパネルを、初回起動時の位置と大きさで表示します。</translation>
    </message>
</context>
<context>
    <name>Zavo::BackupDialog</name>
    <message>
        <source>Safety Copies</source>
        <translation>バックアップコピー</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>States of the channel</source>
        <translation>チャンネルの状態</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>保存日時</translation>
    </message>
    <message>
        <source>Change if restored</source>
        <translation>復元した場合の変更</translation>
    </message>
    <message>
        <source>The copies lie in &quot;%1&quot;.</source>
        <translation>コピーの保存場所: 「%1」</translation>
    </message>
    <message>
        <source>&amp;Restore...</source>
        <translation>復元(&amp;R)...</translation>
    </message>
    <message>
        <source>%1  at a target</source>
        <translation>%1  (アップロード先)</translation>
    </message>
</context>
<context>
    <name>Zavo::BackupStore</name>
    <message>
        <source>The folder &quot;%1&quot; cannot be made.</source>
        <translation>フォルダー「%1」を作成できません。</translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelCalendar</name>
    <message numerus="yes">
        <source>There are more than %n bands in these dates. Choose fewer dates.</source>
        <translation>
            <numerusform>この期間には時間枠が %n 個より多くあります。期間を短くしてください。</numerusform>
        </translation>
    </message>
    <message>
        <source>The calendar cannot be made.</source>
        <translation>カレンダーを作成できません。</translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelConfigurationDialog</name>
    <message>
        <source>Reading the channels...</source>
        <translation>チャンネルを読み込んでいます...</translation>
    </message>
    <message>
        <source>Channel Configuration</source>
        <translation>チャンネル設定</translation>
    </message>
    <message>
        <source>The settings cannot be written. Nothing has been changed.</source>
        <translation>設定を書き込めません。何も変更されていません。</translation>
    </message>
    <message>
        <source>C&amp;hannels that are not checked stay here when the others are uploaded, and disappear from the targets.</source>
        <translation>チェックのないチャンネルは他のチャンネルのアップロード時にも送られず、アップロード先から消えます(&amp;H)。</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Schedules</source>
        <translation>スケジュール</translation>
    </message>
    <message>
        <source>Last saved</source>
        <translation>最終保存</translation>
    </message>
    <message>
        <source>(cannot be read)</source>
        <translation>(読み込めません)</translation>
    </message>
    <message>
        <source>As long as this file cannot be read, nothing is uploaded.</source>
        <translation>このファイルを読み込めない間は、何もアップロードされません。</translation>
    </message>
    <message>
        <source>The basic channel is always uploaded.</source>
        <translation>基本チャンネルは常にアップロードされます。</translation>
    </message>
    <message>
        <source>Reading the channels: %1 of %2...</source>
        <translation>チャンネルを読み込んでいます: %1 / %2...</translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelCreation</name>
    <message>
        <source>You can not add the new channel.
The number of channels has reached the maximum value.</source>
        <translation>新しいチャンネルを追加できません。
チャンネル数が上限に達しています。</translation>
    </message>
    <message>
        <source>You can not add the new channel.
Unable to find a name for the new channel.</source>
        <translation>新しいチャンネルを追加できません。
新しいチャンネルの名前が見つかりません。</translation>
    </message>
    <message>
        <source>Ch.%1</source>
        <translation>Ch.%1</translation>
    </message>
    <message>
        <source>You can not add the new channel.
Failed to write new channel file. Please check whether it is possible to write to the channel folder.</source>
        <translation>新しいチャンネルを追加できません。
新しいチャンネルファイルを書き込めませんでした。チャンネルフォルダーに書き込めるか確認してください。</translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelInspection</name>
    <message>
        <source>The file cannot be read; the editor passes over it in silence.</source>
        <translation>ファイルを読み込めません。エディターはこのファイルを通知なしに無視します。</translation>
    </message>
    <message>
        <source>The content is that of no channel; the editor passes over the file in silence.</source>
        <translation>内容がチャンネルではありません。エディターはこのファイルを通知なしに無視します。</translation>
    </message>
    <message>
        <source>There are two schedules for the same days; the editor passes over the file in silence.</source>
        <translation>同じ日に 2 つのスケジュールがあります。エディターはこのファイルを通知なしに無視します。</translation>
    </message>
    <message>
        <source>There is no default schedule: nothing is shown on days that have no schedule of their own.</source>
        <translation>デフォルトスケジュールがありません。専用のスケジュールがない日は何も表示されません。</translation>
    </message>
    <message>
        <source>Bands overlap: %1.</source>
        <translation>時間枠が重なっています: %1</translation>
    </message>
    <message>
        <source>Bands without a stage or without duration: %1.</source>
        <translation>ステージまたは長さのない時間枠: %1</translation>
    </message>
    <message>
        <source>No stage is shown: %1.</source>
        <translation>ステージが表示されない時間: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n more, the last %1</source>
        <translation>
            <numerusform>他 %n 件、最後は %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The clean-up drops the schedules of old dates: %1.</source>
        <translation>整理時に過去の日付のスケジュールが削除されます: %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1～%2</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>他 %n 件</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelListing</name>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation>フォルダー「%1」がありません。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be listed: %2.</source>
        <translation>フォルダー「%1」の一覧を取得できません: %2</translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelNaming</name>
    <message>
        <source>The following characters are not there not be able to use.

  &lt; &gt; : &quot; / \ | ? 

You have to specify another name.</source>
        <translation>次の文字は使用できません。

  &lt; &gt; : &quot; / \ | ? 

別の名前を指定してください。</translation>
    </message>
    <message>
        <source>New name &quot;%1&quot; is already used by other channel.
You have to specify another name.</source>
        <translation>新しい名前「%1」は別のチャンネルで使用されています。
別の名前を指定してください。</translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelPackage</name>
    <message>
        <source>The package cannot be made.</source>
        <translation>パッケージを作成できません。</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; does not lie in the stage folder, so no package of the channel can be made.</source>
        <translation>ステージ「%1」がステージフォルダーにないため、チャンネルのパッケージを作成できません。</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; does not exist.</source>
        <translation>ステージ「%1」がありません。</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; is damaged.</source>
        <translation>ステージ「%1」は壊れています。</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; of the stage &quot;%2&quot; does not exist.</source>
        <translation>画像「%1」(ステージ「%2」) がありません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>「%1」を読み込めません。</translation>
    </message>
    <message>
        <source>The export was cancelled.</source>
        <translation>エクスポートはキャンセルされました。</translation>
    </message>
    <message>
        <source>The stages of the channel are too large for a package.</source>
        <translation>チャンネルのステージが大きすぎてパッケージに入りません。</translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelReset</name>
    <message>
        <source>All channels and channel settings will be deleted.
This operation can not be undone.

Are you sure you want to delete all?</source>
        <translation>すべてのチャンネルとチャンネル設定が削除されます。
この操作は元に戻せません。

すべて削除してもよろしいですか?</translation>
    </message>
    <message>
        <source>Delete All Channels and Settings</source>
        <translation>すべてのチャンネルと設定の削除</translation>
    </message>
    <message>
        <source>The channel folder does not exist.</source>
        <translation>チャンネルフォルダーがありません。</translation>
    </message>
    <message>
        <source>Delete Completed.%1

Schedule Editor will be closed.</source>
        <translation>削除が完了しました。%1

スケジュールエディターを終了します。</translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelSaver</name>
    <message>
        <source>Save Channel</source>
        <translation>チャンネルの保存</translation>
    </message>
    <message>
        <source>The channel &quot;%1&quot; can not be saved.
Please check whether it is possible to write the file.</source>
        <translation>チャンネル「%1」を保存できません。
ファイルに書き込めるか確認してください。</translation>
    </message>
</context>
<context>
    <name>Zavo::CheckCommand</name>
    <message>
        <source>%1 of %2 files checked</source>
        <translation>%1 / %2 ファイルを検査しました</translation>
    </message>
</context>
<context>
    <name>Zavo::CheckDialog</name>
    <message>
        <source>Check Data</source>
        <translation>データの検査</translation>
    </message>
    <message>
        <source>The check was cancelled.</source>
        <translation>検査はキャンセルされました。</translation>
    </message>
    <message>
        <source>The files of the data folder are checked. What is not saved yet is not.</source>
        <translation>データフォルダーのファイルを検査します。まだ保存されていない内容は検査されません。</translation>
    </message>
    <message>
        <source>Progress of the check</source>
        <translation>検査の進行状況</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>検出事項</translation>
    </message>
    <message>
        <source>Check &amp;Again</source>
        <translation>再検査(&amp;A)</translation>
    </message>
    <message>
        <source>Ca&amp;ncel Check</source>
        <translation>検査をキャンセル(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Copy Findings</source>
        <translation>検出事項をコピー(&amp;C)</translation>
    </message>
    <message>
        <source>Checking ...</source>
        <translation>検査しています ...</translation>
    </message>
</context>
<context>
    <name>Zavo::CheckFindingModel</name>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>スケジュール</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>検出事項</translation>
    </message>
</context>
<context>
    <name>Zavo::CheckText</name>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message numerus="yes">
        <source>%n channel file(s)</source>
        <translation>
            <numerusform>チャンネルファイル %n 個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stage(s)</source>
        <translation>
            <numerusform>ステージ %n 個</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing found in %1.</source>
        <translation>問題は見つかりませんでした (%1)。</translation>
    </message>
    <message numerus="yes">
        <source>%n finding(s) in %1.</source>
        <translation>
            <numerusform>%n 件の検出事項があります (%1)。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zavo::CommandLine</name>
    <message>
        <source>Edits the daily programme of display channels.</source>
        <translation>表示チャンネルの 1 日の番組を編集します。</translation>
    </message>
    <message>
        <source>Opens this data folder.</source>
        <translation>このデータフォルダーを開きます。</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Speaks this language, for example de or ja.</source>
        <translation>この言語で表示します (例: de、ja)。</translation>
    </message>
    <message>
        <source>language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Writes a picture of the window to this PNG file and ends.</source>
        <translation>ウィンドウの画像をこの PNG ファイルに書き込んで終了します。</translation>
    </message>
    <message>
        <source>file</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Checks the channels and their stages instead of opening them. Ends with 0 if nothing was found, 1 with findings, 2 if it could not check.</source>
        <translation>チャンネルとステージを開かずに検査します。問題がなければ 0、検出事項があれば 1、検査できなければ 2 で終了します。</translation>
    </message>
    <message>
        <source>Shows these options and ends.</source>
        <translation>オプションの一覧を表示して終了します。</translation>
    </message>
    <message>
        <source>Shows the version and ends.</source>
        <translation>バージョンを表示して終了します。</translation>
    </message>
    <message>
        <source>The option --%1 needs a value.</source>
        <translation>オプション --%1 には値が必要です。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no option.</source>
        <translation>「%1」はオプションではありません。</translation>
    </message>
    <message>
        <source>The options --%1 and --%2 exclude each other.</source>
        <translation>オプション --%1 と --%2 は同時に指定できません。</translation>
    </message>
</context>
<context>
    <name>Zavo::ConfigurationDialog</name>
    <message>
        <source>Configuration</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Choose Data Folder</source>
        <translation>データフォルダーの選択</translation>
    </message>
    <message>
        <source>Data folder</source>
        <translation>データフォルダー</translation>
    </message>
    <message>
        <source>The usual folder of this user</source>
        <translation>このユーザーの標準フォルダー</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>参照(&amp;B)...</translation>
    </message>
    <message>
        <source>Channels and stages lie there. The program opens this folder from the next start on, unless it is started with another one. Now open: %1</source>
        <translation>チャンネルとステージの保存場所です。別のフォルダーを指定して起動しない限り、次回の起動からこのフォルダーが開きます。現在のフォルダー: %1</translation>
    </message>
    <message>
        <source>Schedules</source>
        <translation>スケジュール</translation>
    </message>
    <message>
        <source>These hold for everybody who uses the data folder that is open; they are kept in its file config.ini.</source>
        <translation>これらは開いているデータフォルダーを使うすべての人に適用され、その config.ini ファイルに保存されます。</translation>
    </message>
    <message>
        <source>Player and editor are &amp;one machine</source>
        <translation>プレーヤーとエディターが同じマシン(&amp;O)</translation>
    </message>
    <message>
        <source>Then there is nothing to upload, and the command is disabled. Takes effect at the next start.</source>
        <translation>この場合アップロードの必要はなく、コマンドは無効になります。次回の起動から有効です。</translation>
    </message>
    <message>
        <source>Show the &amp;default schedule first</source>
        <translation>デフォルトスケジュールを最初に表示(&amp;D)</translation>
    </message>
    <message>
        <source>At a start the default schedule of a channel is shown, instead of the kind of schedule that was shown last.</source>
        <translation>起動時に、前回表示した種類のスケジュールではなく、チャンネルのデフォルトスケジュールを表示します。</translation>
    </message>
    <message>
        <source> days</source>
        <translation> 日</translation>
    </message>
    <message>
        <source>&amp;Keep schedules of past dates for</source>
        <translation>過去の日付のスケジュールを保持する期間(&amp;K)</translation>
    </message>
    <message>
        <source>Schedules of dates that lie further back are removed when their channel is opened at the next start, and from its file when it is saved.</source>
        <translation>それより古い日付のスケジュールは、次回の起動でチャンネルを開いたときに取り除かれ、保存時にファイルからも削除されます。</translation>
    </message>
    <message>
        <source>Days for which schedules of past dates are kept</source>
        <translation>過去の日付のスケジュールを保持する日数</translation>
    </message>
    <message>
        <source>Upload targets</source>
        <translation>アップロード先</translation>
    </message>
    <message>
        <source>An upload is going on, so its targets cannot be changed now.</source>
        <translation>アップロード中のため、今はアップロード先を変更できません。</translation>
    </message>
    <message>
        <source>Folders and machines that get the channels with an upload. Those that are checked are offered first.</source>
        <translation>アップロード時にチャンネルを受け取るフォルダーとマシンです。チェックしたものが最初から選択されます。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the full path of a folder.</source>
        <translation>「%1」はフォルダーの絶対パスではありません。</translation>
    </message>
    <message>
        <source>The configuration cannot be written to &quot;%1&quot;. Nothing has been changed.</source>
        <translation>設定を「%1」に書き込めません。何も変更されていません。</translation>
    </message>
    <message>
        <source>Takes effect at the next start.</source>
        <translation>次回の起動から有効です。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>As in the system</source>
        <translation>システムに合わせる</translation>
    </message>
</context>
<context>
    <name>Zavo::DataCheck</name>
    <message>
        <source>There are no channel files.</source>
        <translation>チャンネルファイルがありません。</translation>
    </message>
    <message>
        <source>The editor looks for the name &quot;channel&quot; with one to five characters and &quot;.xml&quot;; it passes over this file in silence.</source>
        <translation>エディターが探すのは「channel」に 1～5 文字と「.xml」が続く名前です。このファイルは通知なしに無視されます。</translation>
    </message>
    <message>
        <source>The name is that of a channel, but it is no file; the editor passes over it in silence.</source>
        <translation>名前はチャンネルのものですが、ファイルではありません。エディターは通知なしに無視します。</translation>
    </message>
    <message>
        <source>The file differs from &quot;%1&quot;, which the editor opens in its place; it passes over this file in silence.</source>
        <translation>このファイルは、エディターが代わりに開く「%1」と異なります。このファイルは通知なしに無視されます。</translation>
    </message>
    <message>
        <source>The channel has the id %1, as has the one of &quot;%2&quot;; only one of them is saved.</source>
        <translation>このチャンネルの ID %1 は「%2」のチャンネルと同じです。どちらか一方だけが保存されます。</translation>
    </message>
    <message numerus="yes">
        <source>%1 %n schedule(s) use it.</source>
        <translation>
            <numerusform>%1 %n 件のスケジュールが使用しています。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zavo::DataFolderCheck</name>
    <message>
        <source>&quot;%1&quot; is a link that leads nowhere.</source>
        <translation>「%1」はリンク先のないリンクです。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a folder.</source>
        <translation>「%1」はフォルダーではありません。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be reached: %2.</source>
        <translation>フォルダー「%1」にアクセスできません: %2</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be listed: %2.</source>
        <translation>フォルダー「%1」の一覧を取得できません: %2</translation>
    </message>
</context>
<context>
    <name>Zavo::ExportDialog</name>
    <message>
        <source>Export Channel</source>
        <translation>チャンネルのエクスポート</translation>
    </message>
    <message>
        <source>&amp;First date:</source>
        <translation>開始日(&amp;F):</translation>
    </message>
    <message>
        <source>A &amp;date of the week:</source>
        <translation>週に含まれる日(&amp;D):</translation>
    </message>
    <message>
        <source>Exporting ...</source>
        <translation>エクスポートしています ...</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was written.</source>
        <translation>「%1」を書き込みました。</translation>
    </message>
    <message numerus="yes">
        <source>%n more remark(s).</source>
        <translation>
            <numerusform>他に %n 件の注意があります。</numerusform>
        </translation>
    </message>
    <message>
        <source>Progress of the export</source>
        <translation>エクスポートの進行状況</translation>
    </message>
    <message>
        <source>Result of the export</source>
        <translation>エクスポートの結果</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>エクスポート(&amp;E)</translation>
    </message>
    <message>
        <source>What is saved in this file is exported.</source>
        <translation>このファイルに保存されている内容がエクスポートされます。</translation>
    </message>
    <message>
        <source>Channel file:</source>
        <translation>チャンネルファイル:</translation>
    </message>
    <message>
        <source>Package with the stages</source>
        <translation>ステージを含むパッケージ</translation>
    </message>
    <message>
        <source>Table of all schedules</source>
        <translation>全スケジュールの一覧表</translation>
    </message>
    <message>
        <source>Calendar of a range of dates</source>
        <translation>期間のカレンダー</translation>
    </message>
    <message>
        <source>Week sheet to print</source>
        <translation>印刷用の週間表</translation>
    </message>
    <message>
        <source>E&amp;xport as:</source>
        <translation>形式(&amp;X):</translation>
    </message>
    <message>
        <source>&amp;Last date:</source>
        <translation>終了日(&amp;L):</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>参照(&amp;B)...</translation>
    </message>
    <message>
        <source>&amp;To the file:</source>
        <translation>保存先(&amp;T):</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists. Replace it?</source>
        <translation>「%1」は既に存在します。置き換えますか?</translation>
    </message>
</context>
<context>
    <name>Zavo::ExportJob</name>
    <message>
        <source>Choose the file to write.</source>
        <translation>書き込むファイルを選択してください。</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; goes out of a folder by &quot;..&quot;. Write where it leads to.</source>
        <translation>名前「%1」は「..」でフォルダーの外を指しています。実際の場所を入力してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole path of a file.</source>
        <translation>「%1」はファイルの絶対パスではありません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder.</source>
        <translation>「%1」はフォルダーです。</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation>フォルダー「%1」がありません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; lies among the files that are exported. Choose another folder.</source>
        <translation>「%1」はエクスポートされるファイルの中にあります。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>The last date is before the first.</source>
        <translation>終了日が開始日より前です。</translation>
    </message>
    <message numerus="yes">
        <source>A calendar holds no more than %n day(s).</source>
        <translation>
            <numerusform>カレンダーに入るのは %n 日までです。</numerusform>
        </translation>
    </message>
    <message>
        <source>The channel file &quot;%1&quot; cannot be read.</source>
        <translation>チャンネルファイル「%1」を読み込めません。</translation>
    </message>
    <message>
        <source>The export was cancelled.</source>
        <translation>エクスポートはキャンセルされました。</translation>
    </message>
    <message>
        <source>The file cannot be made.</source>
        <translation>ファイルを作成できません。</translation>
    </message>
    <message>
        <source>The file that is there stays as it was.</source>
        <translation>既存のファイルは変更されていません。</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>何も書き込まれませんでした。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written.</source>
        <translation>「%1」に書き込めません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: the disk is read-only.</source>
        <translation>「%1」に書き込めません: ディスクは読み取り専用です。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: the disk is full.</source>
        <translation>「%1」に書き込めません: ディスクに空きがありません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: you may not write there.</source>
        <translation>「%1」に書き込めません: 書き込み権限がありません。</translation>
    </message>
</context>
<context>
    <name>Zavo::FolderInUseBox</name>
    <message>
        <source>Two programs on one data folder would overwrite each other&apos;s channels. Close the other program, or choose another folder.</source>
        <translation>2 つのプログラムが同じデータフォルダーを使うと、互いのチャンネルを上書きしてしまいます。もう一方のプログラムを終了するか、別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>

If you are sure that the other program no longer runs, because its machine was switched off, the folder can be taken over.</source>
        <translation>

マシンの電源が切れたなどの理由でもう一方のプログラムが動作していないことが確かな場合は、フォルダーを引き継ぐことができます。</translation>
    </message>
    <message>
        <source>Choose Another &amp;Folder...</source>
        <translation>別のフォルダーを選択(&amp;F)...</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>終了(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Take Over</source>
        <translation>引き継ぐ(&amp;T)</translation>
    </message>
    <message>
        <source>The data folder &quot;%1&quot; is open in another program.</source>
        <translation>データフォルダー「%1」は別のプログラムで開かれています。</translation>
    </message>
    <message>
        <source>The data folder &quot;%1&quot; is open in another program: %2 (process %3 on %4, since %5).</source>
        <translation>データフォルダー「%1」は別のプログラムで開かれています: %2 (プロセス %3、%4、%5 から)。</translation>
    </message>
</context>
<context>
    <name>Zavo::GuideDialog</name>
    <message>
        <source>User&apos;s Guide</source>
        <translation>ユーザーガイド</translation>
    </message>
    <message>
        <source>Page of the guide</source>
        <translation>ガイドのページ</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>戻る(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>進む(&amp;F)</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>検索(&amp;I):</translation>
    </message>
    <message>
        <source>Find in the page</source>
        <translation>ページ内を検索</translation>
    </message>
    <message>
        <source>It is not in this page.</source>
        <translation>このページにはありません。</translation>
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
        <translation>ツール(&amp;T)</translation>
    </message>
    <message>
        <source>Check &amp;Data...</source>
        <translation>データの検査(&amp;C)...</translation>
    </message>
    <message>
        <source>Looks for what is wrong in the saved channels and their stages</source>
        <translation>保存されたチャンネルとステージの問題を調べます</translation>
    </message>
    <message>
        <source>&amp;Configuration...</source>
        <translation>設定(&amp;O)...</translation>
    </message>
    <message>
        <source>Changes the data folder, what its schedules are shown by, and the upload targets</source>
        <translation>データフォルダー、スケジュールの表示方法、アップロード先を変更します</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About Zavo Schedule Editor</source>
        <translation>Zavo Schedule Editor について(&amp;A)</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>Qt について(&amp;Q)</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>アップロード</translation>
    </message>
    <message>
        <source>An upload is going on. If the program ends now, the targets that are not complete keep what they had.

Do you want to cancel the upload and close?</source>
        <translation>アップロード中です。今プログラムを終了すると、完了していないアップロード先は元のままになります。

アップロードをキャンセルして閉じますか?</translation>
    </message>
    <message>
        <source>Reads all channel files and the stages they use and lists what is wrong: stages that are missing, time without a stage, bands that overlap, files that are passed over.</source>
        <translation>すべてのチャンネルファイルと使用ステージを読み込み、問題 (足りないステージ、ステージのない時間、重なった時間枠、無視されるファイル) を一覧表示します。</translation>
    </message>
    <message>
        <source>Shows the data folder, the settings of its schedules and the upload targets, each with an explanation, to be changed.</source>
        <translation>データフォルダー、スケジュールの設定、アップロード先を説明付きで表示し、変更できるようにします。</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts...</source>
        <translation>キーボードショートカット(&amp;K)...</translation>
    </message>
    <message>
        <source>Shows and changes the keys of all commands</source>
        <translation>すべてのコマンドのキーを表示し、変更します</translation>
    </message>
    <message>
        <source>Lists all commands with their keys. Other keys can be given to each of them; what is already in use is told.</source>
        <translation>すべてのコマンドとそのキーを一覧表示します。キーは変更でき、使用中のキーは通知されます。</translation>
    </message>
    <message>
        <source>&amp;What&apos;s This?</source>
        <translation>ヘルプモード(&amp;W)</translation>
    </message>
    <message>
        <source>Explains what you click next</source>
        <translation>次にクリックしたものを説明します</translation>
    </message>
    <message>
        <source>Click a command or a part of the window after this, and it is explained. Esc ends it.</source>
        <translation>この後にコマンドやウィンドウの一部をクリックすると、説明が表示されます。Esc で終了します。</translation>
    </message>
    <message>
        <source>Shows the version of the program and where its data are</source>
        <translation>プログラムのバージョンとデータの場所を表示します</translation>
    </message>
    <message>
        <source>Shows the version of the program, of the library it is built on, and the data folder that is open.</source>
        <translation>プログラムのバージョン、基盤となるライブラリのバージョン、開いているデータフォルダーを表示します。</translation>
    </message>
    <message>
        <source>Shows the version of the library that the program is built on</source>
        <translation>プログラムの基盤となるライブラリのバージョンを表示します</translation>
    </message>
    <message>
        <source>Tells about Qt, the library that the program is built on.</source>
        <translation>プログラムの基盤となるライブラリ Qt について説明します。</translation>
    </message>
    <message>
        <source>User&apos;s &amp;Guide</source>
        <translation>ユーザーガイド(&amp;G)</translation>
    </message>
    <message>
        <source>Leads through the first hour and explains every message</source>
        <translation>最初の 1 時間の操作とすべてのメッセージを説明します (英語)</translation>
    </message>
    <message>
        <source>Opens the guide in a window of its own, which can stay open beside the work.</source>
        <translation>作業中も開いたままにできる別のウィンドウに、英語のガイドを開きます。</translation>
    </message>
</context>
<context>
    <name>Zavo::NoticeBar</name>
    <message>
        <source>Notice</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Hides this notice</source>
        <translation>このお知らせを閉じます</translation>
    </message>
    <message>
        <source>Hides this notice until there is another one.</source>
        <translation>次のお知らせがあるまで、このお知らせを閉じます。</translation>
    </message>
    <message>
        <source>More commands</source>
        <translation>その他のコマンド</translation>
    </message>
</context>
<context>
    <name>Zavo::Program</name>
    <message>
        <source>&quot;%1&quot; is the name of no language.</source>
        <translation>「%1」は言語の名前ではありません。</translation>
    </message>
    <message>
        <source>Data Folder</source>
        <translation>データフォルダー</translation>
    </message>
    <message>
        <source>The channel file &quot;%1&quot; cannot be restored. It is as it was before.</source>
        <translation>チャンネルファイル「%1」を復元できません。ファイルは元のままです。</translation>
    </message>
</context>
<context>
    <name>Zavo::ReservedKeys</name>
    <message>
        <source>%1 moves what is selected in the time table.</source>
        <translation>%1 はタイムテーブルで選択したものの移動に使われます。</translation>
    </message>
    <message>
        <source>%1 goes through texts, lists, the calendar and the time table.</source>
        <translation>%1 はテキスト、一覧、カレンダー、タイムテーブル内の移動に使われます。</translation>
    </message>
    <message>
        <source>%1 goes from one control to the next.</source>
        <translation>%1 は次の項目への移動に使われます。</translation>
    </message>
    <message>
        <source>%1 presses buttons and checks rows.</source>
        <translation>%1 はボタンを押したり行にチェックを付けたりするのに使われます。</translation>
    </message>
    <message>
        <source>%1 closes menus and dialogs.</source>
        <translation>%1 はメニューやダイアログを閉じるのに使われます。</translation>
    </message>
    <message>
        <source>%1 is needed to type texts.</source>
        <translation>%1 は文字の入力に必要です。</translation>
    </message>
    <message>
        <source>%1 opens the menu &quot;%2&quot;.</source>
        <translation>%1 はメニュー「%2」を開くのに使われます。</translation>
    </message>
    <message>
        <source>%1 edits the name of a channel or a target.</source>
        <translation>%1 はチャンネル名またはアップロード先の編集に使われます。</translation>
    </message>
    <message>
        <source>These are no keys that can be struck.</source>
        <translation>押すことのできないキーです。</translation>
    </message>
</context>
<context>
    <name>Zavo::RsyncProcess</name>
    <message>
        <source>The target is full.</source>
        <translation>アップロード先に空きがありません。</translation>
    </message>
    <message>
        <source>The target is read-only.</source>
        <translation>アップロード先は読み取り専用です。</translation>
    </message>
    <message>
        <source>The target refuses this user.</source>
        <translation>アップロード先がこのユーザーを拒否しました。</translation>
    </message>
    <message>
        <source>The target refuses: permission denied.</source>
        <translation>アップロード先が拒否しました: 権限がありません。</translation>
    </message>
    <message>
        <source>The key of the host is not known to ssh.</source>
        <translation>ホストの鍵が ssh に登録されていません。</translation>
    </message>
    <message>
        <source>The target has no such module.</source>
        <translation>アップロード先にそのモジュールはありません。</translation>
    </message>
    <message>
        <source>The target refuses.</source>
        <translation>アップロード先が拒否しました。</translation>
    </message>
    <message>
        <source>The target cannot be reached: connection refused.</source>
        <translation>アップロード先に接続できません: 接続が拒否されました。</translation>
    </message>
    <message>
        <source>There is no host of this name.</source>
        <translation>この名前のホストはありません。</translation>
    </message>
    <message>
        <source>The target does not exist.</source>
        <translation>アップロード先がありません。</translation>
    </message>
    <message>
        <source>The target&apos;s rsync is too old or too new.</source>
        <translation>アップロード先の rsync が古すぎるか新しすぎます。</translation>
    </message>
    <message>
        <source>The connection to the target is lost.</source>
        <translation>アップロード先との接続が切れました。</translation>
    </message>
    <message>
        <source>The target cannot be written to.</source>
        <translation>アップロード先に書き込めません。</translation>
    </message>
    <message>
        <source>Some files could not be transferred.</source>
        <translation>一部のファイルを転送できませんでした。</translation>
    </message>
    <message>
        <source>The target does not answer any more.</source>
        <translation>アップロード先が応答しなくなりました。</translation>
    </message>
    <message>
        <source>The target does not answer.</source>
        <translation>アップロード先が応答しません。</translation>
    </message>
    <message>
        <source>A program is missing at the target.</source>
        <translation>アップロード先に必要なプログラムがありません。</translation>
    </message>
    <message>
        <source>The target cannot be reached by ssh.</source>
        <translation>ssh でアップロード先に接続できません。</translation>
    </message>
    <message>
        <source>rsync failed with code %1.</source>
        <translation>rsync がコード %1 で失敗しました。</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>キャンセルされました。</translation>
    </message>
    <message>
        <source>rsync was killed.</source>
        <translation>rsync が強制終了されました。</translation>
    </message>
    <message>
        <source>The program rsync cannot be started.</source>
        <translation>プログラム rsync を起動できません。</translation>
    </message>
    <message>
        <source>The program rsync is not installed.</source>
        <translation>プログラム rsync がインストールされていません。</translation>
    </message>
</context>
<context>
    <name>Zavo::SafetyDesk</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 他 %2 件</translation>
    </message>
    <message>
        <source>Another program changed %1. It is shown here as it was before.</source>
        <translation>別のプログラムが %1 を変更しました。ここには変更前の状態が表示されています。</translation>
    </message>
    <message>
        <source>No safety copies can be made: %1</source>
        <translation>バックアップコピーを作成できません: %1</translation>
    </message>
    <message>
        <source>Safety &amp;Copies...</source>
        <translation>バックアップコピー(&amp;C)...</translation>
    </message>
    <message>
        <source>Restore Channel</source>
        <translation>チャンネルの復元</translation>
    </message>
    <message>
        <source>Restore the channel &quot;%1&quot; to its state of %2?</source>
        <translation>チャンネル「%1」を %2 の状態に復元しますか?</translation>
    </message>
    <message>
        <source>The window is closed and opened anew to show it. You are asked before about channels with edits that are not saved. The present state stays among the safety copies.</source>
        <translation>復元した状態を表示するため、ウィンドウをいったん閉じて開き直します。未保存の編集があるチャンネルについては事前に確認します。現在の状態はバックアップコピーに残ります。</translation>
    </message>
    <message>
        <source>Save Channel</source>
        <translation>チャンネルの保存</translation>
    </message>
    <message>
        <source>The channel file &quot;%1&quot; was changed by another program.</source>
        <translation>チャンネルファイル「%1」が別のプログラムによって変更されました。</translation>
    </message>
    <message>
        <source>Do you want to overwrite it? Whichever of the two states is not in the file afterwards stays among the safety copies.</source>
        <translation>上書きしますか? 2 つの状態のうちファイルに残らない方は、バックアップコピーに残ります。</translation>
    </message>
    <message>
        <source>The file &quot;channel.xml&quot; could not be renewed. The next start would show the first channel as it was before.</source>
        <translation>ファイル「channel.xml」を更新できませんでした。次回の起動時には、最初のチャンネルが以前の状態で表示されます。</translation>
    </message>
    <message>
        <source>Shows earlier states of the channels and restores one</source>
        <translation>チャンネルの以前の状態を表示し、復元します</translation>
    </message>
    <message>
        <source>Lists the states that each channel file had before it was replaced or removed, with what differs, and brings one back.</source>
        <translation>置き換えまたは削除される前の各チャンネルファイルの状態を違いとともに一覧表示し、元に戻します。</translation>
    </message>
    <message>
        <source>The first channel was opened from &quot;channel.xml&quot;, a file that goes when it is saved. What was saved is among the safety copies; restore it from there.</source>
        <translation>最初のチャンネルは「channel.xml」から開かれていました。このファイルは保存すると無くなります。保存した内容はバックアップコピーにあります。そこから復元してください。</translation>
    </message>
</context>
<context>
    <name>Zavo::SavePrompt</name>
    <message>
        <source>Save Channel</source>
        <translation>チャンネルの保存</translation>
    </message>
    <message>
        <source>Do you want to save your changes </source>
        <translation>変更を保存しますか? </translation>
    </message>
    <message>
        <source>before uploading?</source>
        <translation>(アップロードの前)</translation>
    </message>
    <message>
        <source>before closing?</source>
        <translation>(閉じる前)</translation>
    </message>
    <message>
        <source>The channel &quot;%1&quot; has been modified.</source>
        <translation>チャンネル「%1」は変更されています。</translation>
    </message>
    <message>
        <source>
If you upload without saving, previously saved information will be uploaded.</source>
        <translation>
保存せずにアップロードすると、前回保存した内容がアップロードされます。</translation>
    </message>
</context>
<context>
    <name>Zavo::ScheduleNames</name>
    <message>
        <source>Default schedule</source>
        <translation>デフォルトスケジュール</translation>
    </message>
</context>
<context>
    <name>Zavo::ScheduleRecorder</name>
    <message>
        <source>the schedule of %1</source>
        <translation>「%1」のスケジュール</translation>
    </message>
    <message>
        <source>the selected schedule</source>
        <translation>選択したスケジュール</translation>
    </message>
    <message>
        <source>the selected schedules</source>
        <translation>選択した複数のスケジュール</translation>
    </message>
    <message>
        <source>The following schedule will be deleted.

</source>
        <translation>次のスケジュールが削除されます。

</translation>
    </message>
    <message>
        <source>Confirm Delete</source>
        <translation>削除の確認</translation>
    </message>
    <message>
        <source>Are you sure you want to delete %1?</source>
        <translation>%1を削除してもよろしいですか?</translation>
    </message>
</context>
<context>
    <name>Zavo::ScheduleToolBar</name>
    <message>
        <source>Close Stage Editor</source>
        <translation>ステージエディターを閉じる</translation>
    </message>
    <message>
        <source>Close Schedule Editor</source>
        <translation>スケジュールエディターを閉じる</translation>
    </message>
    <message>
        <source>Closes the schedule editor and asks about unsaved channels</source>
        <translation>スケジュールエディターを閉じ、未保存のチャンネルについて確認します</translation>
    </message>
    <message>
        <source>Closes the schedule editor. You are asked about each channel with changes that are not saved.</source>
        <translation>スケジュールエディターを閉じます。未保存の変更があるチャンネルごとに確認します。</translation>
    </message>
    <message>
        <source>More commands</source>
        <translation>その他のコマンド</translation>
    </message>
</context>
<context>
    <name>Zavo::ScreenshotTaker</name>
    <message>
        <source>No channel was shown, so there is no picture.</source>
        <translation>チャンネルが表示されなかったため、画像はありません。</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; cannot be written: %2.</source>
        <translation>画像「%1」を書き込めません: %2</translation>
    </message>
</context>
<context>
    <name>Zavo::SessionRecord</name>
    <message>
        <source>The last session, begun at %1, did not end properly.</source>
        <translation>%1 に開始した前回のセッションは正常に終了しませんでした。</translation>
    </message>
    <message>
        <source>The last session did not end properly.</source>
        <translation>前回のセッションは正常に終了しませんでした。</translation>
    </message>
    <message>
        <source>It had no edits that were not saved.</source>
        <translation>未保存の編集はありませんでした。</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>他 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Edits since the last save were lost in: %1.
All that was saved before is in the channel files.</source>
        <translation>前回の保存以降の編集が失われました: %1
それ以前に保存した内容はすべてチャンネルファイルに残っています。</translation>
    </message>
</context>
<context>
    <name>Zavo::ShortcutDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>Find a command or a key</source>
        <translation>コマンドまたはキーを検索</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>既定</translation>
    </message>
    <message>
        <source>&amp;No Keys</source>
        <translation>キーなし(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Default</source>
        <translation>既定(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Take It Away</source>
        <translation>取り上げる(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;All to Default</source>
        <translation>すべて既定に戻す(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Press the keys for &quot;%1&quot;:</source>
        <translation>「%1」のキーを押してください(&amp;P):</translation>
    </message>
    <message>
        <source>Choose a command, then press its keys.</source>
        <translation>コマンドを選択し、キーを押してください。</translation>
    </message>
</context>
<context>
    <name>Zavo::Shortcuts</name>
    <message>
        <source>%1 is the key of &quot;%2&quot; (%3).</source>
        <translation>%1 は「%2」(%3) のキーです。</translation>
    </message>
</context>
<context>
    <name>Zavo::ShownUploadLog</name>
    <message>
        <source>Open Log Folder</source>
        <translation>ログフォルダーを開く</translation>
    </message>
    <message>
        <source>The log folder does not exist.
</source>
        <translation>ログフォルダーがありません。
</translation>
    </message>
    <message>
        <source>The log folder can not be opened.
</source>
        <translation>ログフォルダーを開けません。
</translation>
    </message>
    <message>
        <source>Open Log File</source>
        <translation>ログファイルを開く</translation>
    </message>
    <message>
        <source>The log file can not be opened.
Please make sure that you have an application that is associated with the extension &quot;.txt&quot;.</source>
        <translation>ログファイルを開けません。
拡張子「.txt」に関連付けられたアプリケーションがあるか確認してください。</translation>
    </message>
    <message>
        <source>The log file does not exist.
Do you want to open the log folder?</source>
        <translation>ログファイルがありません。
ログフォルダーを開きますか?</translation>
    </message>
</context>
<context>
    <name>Zavo::StageInspection</name>
    <message>
        <source>The stage &quot;%1&quot; does not lie in the stage folder.</source>
        <translation>ステージ「%1」がステージフォルダーにありません。</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; is a link that leads nowhere.</source>
        <translation>ステージ「%1」はリンク先のないリンクです。</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; does not exist.</source>
        <translation>ステージ「%1」がありません。</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; is not a file.</source>
        <translation>ステージ「%1」はファイルではありません。</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; cannot be read.</source>
        <translation>ステージ「%1」を読み込めません。</translation>
    </message>
    <message numerus="yes">
        <source>The stage &quot;%1&quot; lacks %n of its pictures.</source>
        <translation>
            <numerusform>ステージ「%1」の画像が %n 個足りません。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zavo::StateComparer</name>
    <message>
        <source>is no channel file</source>
        <translation>チャンネルファイルではありません</translation>
    </message>
    <message>
        <source>replaces a file that cannot be read; schedules: %1</source>
        <translation>読み込めないファイルを置き換えます、スケジュール: %1</translation>
    </message>
    <message>
        <source>brings the file back; schedules: %1</source>
        <translation>ファイルを元に戻します、スケジュール: %1</translation>
    </message>
</context>
<context>
    <name>Zavo::StateDifference</name>
    <message>
        <source>as it is now</source>
        <translation>現在と同じ</translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation>%1 件追加</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 件削除</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>%1 件変更</translation>
    </message>
    <message>
        <source>schedules: %1</source>
        <translation>スケジュール: %1</translation>
    </message>
    <message>
        <source>name: &quot;%1&quot;</source>
        <translation>名前: 「%1」</translation>
    </message>
    <message>
        <source>another place among the tabs</source>
        <translation>タブの位置が異なる</translation>
    </message>
</context>
<context>
    <name>Zavo::TargetKeeper</name>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>「%1」を読み込めません。</translation>
    </message>
</context>
<context>
    <name>Zavo::TimeTablePage</name>
    <message>
        <source>Stopped</source>
        <translation>中止しました</translation>
    </message>
    <message>
        <source>Can not paste.
There is not enough blank duration to paste in the time area.</source>
        <translation>貼り付けできません。
タイムテーブルに貼り付けるだけの空き時間がありません。</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>確認</translation>
    </message>
    <message>
        <source>There is the assigned time band in target range.
Do you want to delete the assigned time band and to paste?</source>
        <translation>貼り付け先に割り当て済みの時間枠があります。
その時間枠を削除して貼り付けますか?</translation>
    </message>
    <message>
        <source>Schedule of Unknown</source>
        <translation>不明なスケジュール</translation>
    </message>
    <message>
        <source>Schedule of %1</source>
        <translation>スケジュール: %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Schedule of the channel</source>
        <translation>チャンネルのスケジュール</translation>
    </message>
</context>
<context>
    <name>Zavo::UploadCollection</name>
    <message>
        <source>No folder can be made in &quot;%1&quot;: %2.</source>
        <translation>「%1」にフォルダーを作成できません: %2</translation>
    </message>
    <message>
        <source>There are no channel files in &quot;%1&quot;.</source>
        <translation>「%1」にチャンネルファイルがありません。</translation>
    </message>
    <message>
        <source>No channel is meant to be uploaded.</source>
        <translation>アップロード対象のチャンネルがありません。</translation>
    </message>
    <message>
        <source>The channel file &quot;%1&quot; is damaged.</source>
        <translation>チャンネルファイル「%1」は壊れています。</translation>
    </message>
    <message>
        <source>The channel &quot;%1&quot; stays here by the channel configuration.</source>
        <translation>チャンネル「%1」はチャンネル設定によりアップロードされません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be removed.</source>
        <translation>「%1」を削除できません。</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; of the channel &quot;%2&quot; is missing.</source>
        <translation>ステージ「%1」(チャンネル「%2」) がありません。</translation>
    </message>
    <message>
        <source>The stage &quot;%1&quot; is damaged.</source>
        <translation>ステージ「%1」は壊れています。</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; of the stage &quot;%2&quot; is missing.</source>
        <translation>画像「%1」(ステージ「%2」) がありません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2.</source>
        <translation>「%1」に書き込めません: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>「%1」を読み込めません: %2</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>キャンセルされました。</translation>
    </message>
</context>
<context>
    <name>Zavo::UploadDialog</name>
    <message>
        <source>Progress of the upload to %1</source>
        <translation>%1 へのアップロードの進行状況</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>アップロード</translation>
    </message>
    <message>
        <source>The saved channels and the stages they use go to every &amp;target that is checked.</source>
        <translation>保存済みのチャンネルと使用ステージを、チェックしたすべてのアップロード先に送ります(&amp;T)。</translation>
    </message>
    <message>
        <source>%1 complete, %2 failed, %3 cancelled.</source>
        <translation>完了 %1、失敗 %2、キャンセル %3</translation>
    </message>
    <message numerus="yes">
        <source>%n thing(s) to note; the log names them.</source>
        <translation>
            <numerusform>%n 件の注意があります。詳細はログにあります。</numerusform>
        </translation>
    </message>
    <message>
        <source>The log cannot be written: &quot;%1&quot;.</source>
        <translation>ログに書き込めません: 「%1」</translation>
    </message>
    <message>
        <source>Show &amp;Log</source>
        <translation>ログを表示(&amp;L)</translation>
    </message>
    <message>
        <source>Open the log of the last upload</source>
        <translation>前回のアップロードのログを開きます</translation>
    </message>
    <message>
        <source>&amp;Upload</source>
        <translation>アップロード(&amp;U)</translation>
    </message>
    <message>
        <source>Upload to all targets that are checked</source>
        <translation>チェックしたすべてのアップロード先にアップロードします</translation>
    </message>
    <message>
        <source>Retry &amp;Failed</source>
        <translation>失敗分を再試行(&amp;F)</translation>
    </message>
    <message>
        <source>Upload again to the targets that did not get everything</source>
        <translation>すべてを受け取れなかったアップロード先に再度アップロードします</translation>
    </message>
    <message>
        <source>&amp;Cancel Upload</source>
        <translation>アップロードをキャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Break the upload off; the targets keep what they had</source>
        <translation>アップロードを中断します。アップロード先は元のままです</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Close this window; an upload goes on</source>
        <translation>このウィンドウを閉じます。アップロードは続行されます</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>アップロードしています...</translation>
    </message>
    <message>
        <source>Checking the data: %1 of %2 files...</source>
        <translation>データを検査しています: %1 / %2 ファイル...</translation>
    </message>
    <message>
        <source>Cancelled before anything was sent.</source>
        <translation>送信を始める前にキャンセルされました。</translation>
    </message>
    <message>
        <source>Nothing was uploaded.</source>
        <translation>何もアップロードされていません。</translation>
    </message>
    <message>
        <source>Checking the data...</source>
        <translation>データを検査しています...</translation>
    </message>
</context>
<context>
    <name>Zavo::UploadFindingsDialog</name>
    <message>
        <source>Check Before Upload</source>
        <translation>アップロード前の検査</translation>
    </message>
    <message>
        <source>%1 Upload all the same?</source>
        <translation>%1 それでもアップロードしますか?</translation>
    </message>
    <message>
        <source>&amp;Upload All the Same</source>
        <translation>それでもアップロードする(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Do Not Upload</source>
        <translation>アップロードしない(&amp;D)</translation>
    </message>
</context>
<context>
    <name>Zavo::UploadJob</name>
    <message>
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>キャンセルされました。</translation>
    </message>
    <message>
        <source>Cancelled. The target keeps what it had.</source>
        <translation>キャンセルされました。アップロード先は元のままです。</translation>
    </message>
    <message>
        <source>%1 It broke off while the files were put in place, so the target may hold a mixture. Please upload again.</source>
        <translation>%1 ファイルの配置中に中断されたため、アップロード先に新旧のファイルが混在している可能性があります。もう一度アップロードしてください。</translation>
    </message>
    <message>
        <source>%1 The target keeps what it had.</source>
        <translation>%1 アップロード先は元のままです。</translation>
    </message>
    <message>
        <source>This is where the data folder of the editor lies.</source>
        <translation>ここはエディターのデータフォルダーの場所です。</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>接続中</translation>
    </message>
    <message>
        <source>Transferring</source>
        <translation>転送中</translation>
    </message>
    <message>
        <source>Putting in place</source>
        <translation>配置中</translation>
    </message>
    <message>
        <source>Tidying up</source>
        <translation>後処理中</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; of the target is a link. The target keeps what it had.</source>
        <translation>アップロード先のフォルダー「%1」はリンクです。アップロード先は元のままです。</translation>
    </message>
    <message>
        <source>Complete.</source>
        <translation>完了しました。</translation>
    </message>
    <message>
        <source>Complete. What was there before is in the folder &quot;%1&quot;.</source>
        <translation>完了しました。以前の内容はフォルダー「%1」にあります。</translation>
    </message>
    <message>
        <source>Keeping what is replaced</source>
        <translation>置き換え分を保存中</translation>
    </message>
    <message>
        <source>There is no room to keep what is replaced. The target keeps what it had.</source>
        <translation>置き換えられるものを保存する空きがありません。アップロード先は元のままです。</translation>
    </message>
    <message numerus="yes">
        <source>%n channel file(s) that were replaced or removed there are among the safety copies.</source>
        <translation>
            <numerusform>アップロード先で置き換えられた、または削除された %n 個のチャンネルファイルはバックアップコピーの中にあります。</numerusform>
        </translation>
    </message>
    <message>
        <source>Complete. No safety copy could be made of all that was replaced there.</source>
        <translation>完了しました。アップロード先で置き換えられたもののすべてのバックアップコピーは作成できませんでした。</translation>
    </message>
</context>
<context>
    <name>Zavo::UploadRun</name>
    <message numerus="yes">
        <source>Upload of %1 to %n target(s), from &quot;%2&quot;</source>
        <translation>
            <numerusform>%1 のアップロード、アップロード先 %n 件、「%2」から</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 complete, %2 failed, %3 cancelled</source>
        <translation>完了 %1、失敗 %2、キャンセル %3</translation>
    </message>
    <message>
        <source>%1: begins</source>
        <translation>%1: 開始</translation>
    </message>
    <message>
        <source>%1 channel files, %2 stages, %3 pictures, %4</source>
        <translation>チャンネルファイル %1、ステージ %2、画像 %3、%4</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>The check found %n thing(s):</source>
        <translation>
            <numerusform>検査で %n 件見つかりました:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zavo::UploadTarget</name>
    <message>
        <source>The address is empty.</source>
        <translation>アドレスが空です。</translation>
    </message>
    <message>
        <source>The address is too long.</source>
        <translation>アドレスが長すぎます。</translation>
    </message>
    <message>
        <source>An address is a single line without control characters.</source>
        <translation>アドレスは制御文字を含まない 1 行で入力してください。</translation>
    </message>
    <message>
        <source>The path of a folder must not contain &quot;..&quot;.</source>
        <translation>フォルダーのパスに「..」は使用できません。</translation>
    </message>
    <message>
        <source>The root folder is no target.</source>
        <translation>ルートフォルダーはアップロード先にできません。</translation>
    </message>
    <message>
        <source>Such an address reads rsync://host/module or rsync://user@host:port/module/folder. It holds no password.</source>
        <translation>このアドレスは rsync://host/module または rsync://user@host:port/module/folder の形式です。パスワードは含めません。</translation>
    </message>
    <message>
        <source>The name of a module is missing behind the host.</source>
        <translation>ホストの後にモジュール名がありません。</translation>
    </message>
    <message>
        <source>A target is the full path of a folder, rsync://host/module, ssh://user@host/folder or user@host:folder.</source>
        <translation>アップロード先はフォルダーの絶対パス、rsync://host/module、ssh://user@host/folder、user@host:folder のいずれかです。</translation>
    </message>
    <message>
        <source>A folder on another machine must not contain any of * ? [ ] \.</source>
        <translation>別のマシンのフォルダーに * ? [ ] \ は使用できません。</translation>
    </message>
</context>
<context>
    <name>Zavo::UploadTargetDialog</name>
    <message>
        <source>Add Target</source>
        <translation>アップロード先の追加</translation>
    </message>
    <message>
        <source>Change Target</source>
        <translation>アップロード先の変更</translation>
    </message>
    <message>
        <source>&amp;Address of the target:</source>
        <translation>アップロード先のアドレス(&amp;A):</translation>
    </message>
    <message>
        <source>A folder, such as a mounted share:</source>
        <translation>フォルダー (マウントした共有など):</translation>
    </message>
    <message>
        <source>An rsync daemon:</source>
        <translation>rsync デーモン:</translation>
    </message>
    <message>
        <source>A machine reached by ssh:</source>
        <translation>ssh で接続するマシン:</translation>
    </message>
    <message>
        <source>Address of the target</source>
        <translation>アップロード先のアドレス</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>参照(&amp;B)...</translation>
    </message>
    <message>
        <source>Choose a folder of this machine</source>
        <translation>このマシンのフォルダーを選択します</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>フォルダーの選択</translation>
    </message>
</context>
<context>
    <name>Zavo::UploadTargetList</name>
    <message>
        <source>Targets of uploads</source>
        <translation>アップロード先</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>アップロード先</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>追加(&amp;A)...</translation>
    </message>
    <message>
        <source>Enter a new target</source>
        <translation>新しいアップロード先を入力します</translation>
    </message>
    <message>
        <source>C&amp;hange...</source>
        <translation>変更(&amp;H)...</translation>
    </message>
    <message>
        <source>Change the address of the chosen target</source>
        <translation>選択したアップロード先のアドレスを変更します</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>Take the chosen target from the list; what lies there stays</source>
        <translation>選択したアップロード先を一覧から外します。そこにあるファイルは残ります</translation>
    </message>
    <message>
        <source>The target &quot;%1&quot; is in the list already.</source>
        <translation>アップロード先「%1」は既に一覧にあります。</translation>
    </message>
</context>
<context>
    <name>Zavo::VersionBox</name>
    <message>
        <source>About Zavo Schedule Editor</source>
        <translation>Zavo Schedule Editor について</translation>
    </message>
    <message>
        <source>Zavo Schedule Editor %1</source>
        <translation>Zavo Schedule Editor %1</translation>
    </message>
    <message>
        <source>Edits the daily programme of display channels.

Qt %1
Data folder: %2</source>
        <translation>表示チャンネルの 1 日の番組を編集します。

Qt %1
データフォルダー: %2</translation>
    </message>
</context>
<context>
    <name>Zavo::WeekSheet</name>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1: %2～%3</translation>
    </message>
    <message>
        <source>No schedule</source>
        <translation>スケジュールなし</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>他 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Too short to be named in the week</source>
        <translation>短すぎて週間表に名前を表示できないもの</translation>
    </message>
</context>
<context>
    <name>Zavo::WorkingAreaHeader</name>
    <message>
        <source>Schedule of ...</source>
        <translation>スケジュール: ...</translation>
    </message>
    <message>
        <source>You can create this schedule.</source>
        <translation>このスケジュールを作成できます。</translation>
    </message>
    <message>
        <source> - None. </source>
        <translation> - なし </translation>
    </message>
    <message>
        <source>The chosen date or day has no schedule of its own. Click here to create it; only then can stages be dropped.</source>
        <translation>選択した日付または曜日には専用のスケジュールがありません。ここをクリックして作成すると、ステージをドロップできるようになります。</translation>
    </message>
</context>
<context>
    <name>Zavo::WorkingAreaStatusBar</name>
    <message>
        <source>Scale</source>
        <translation>倍率</translation>
    </message>
    <message>
        <source>Cursor Position Time:</source>
        <translation>カーソル位置の時刻:</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvCalendarWidget</name>
    <message>
        <source>Mon</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>火</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>水</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>木</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>金</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>土</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>日</translation>
    </message>
    <message>
        <source>&amp;First Day of Week</source>
        <translation>週の最初の曜日(&amp;F)</translation>
    </message>
    <message>
        <source>C&amp;alendar</source>
        <translation>カレンダー(&amp;A)</translation>
    </message>
    <message>
        <source>Move to &amp;Today</source>
        <translation>今日へ移動(&amp;Y)</translation>
    </message>
    <message>
        <source>Select &amp;Week</source>
        <translation>週を選択(&amp;W)</translation>
    </message>
    <message>
        <source>Select &amp;Month</source>
        <translation>月を選択(&amp;M)</translation>
    </message>
    <message>
        <source>Clear &amp;Selections</source>
        <translation>選択を解除(&amp;S)</translation>
    </message>
    <message>
        <source>Show Week &amp;Number</source>
        <translation>週番号を表示(&amp;N)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 日</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 日</translation>
    </message>
    <message>
        <source>Schedule of days: </source>
        <translation>スケジュールのある日: </translation>
    </message>
    <message>
        <source>Shows today&apos;s schedule</source>
        <translation>今日のスケジュールを表示します</translation>
    </message>
    <message>
        <source>Turns the calendar to the present month and shows the schedule of today&apos;s date.</source>
        <translation>カレンダーを今月に切り替え、今日の日付のスケジュールを表示します。</translation>
    </message>
    <message>
        <source>Selects the whole week of the selected date</source>
        <translation>選択した日付の週全体を選択します</translation>
    </message>
    <message>
        <source>Selects the seven days of the week of the selected date. Cut, copy, paste and delete then act on all of them.</source>
        <translation>選択した日付を含む週の 7 日を選択します。切り取り、コピー、貼り付け、削除はそのすべてに適用されます。</translation>
    </message>
    <message>
        <source>Selects the whole month of the selected date</source>
        <translation>選択した日付の月全体を選択します</translation>
    </message>
    <message>
        <source>Selects all days of the month of the selected date. Cut, copy, paste and delete then act on all of them.</source>
        <translation>選択した日付を含む月のすべての日を選択します。切り取り、コピー、貼り付け、削除はそのすべてに適用されます。</translation>
    </message>
    <message>
        <source>Leaves only one date selected</source>
        <translation>1 つの日付だけを選択した状態にします</translation>
    </message>
    <message>
        <source>Takes the selection off all dates but the one whose schedule is shown.</source>
        <translation>スケジュールを表示している日付以外の選択を解除します。</translation>
    </message>
    <message>
        <source>Chooses the day with which the weeks begin</source>
        <translation>週の最初の曜日を選択します</translation>
    </message>
    <message>
        <source>Chooses the day that stands first in the rows of the calendar.</source>
        <translation>カレンダーの各行の先頭に置く曜日を選択します。</translation>
    </message>
    <message>
        <source>Begins the weeks of the calendar with this day</source>
        <translation>カレンダーの週をこの曜日から始めます</translation>
    </message>
    <message>
        <source>Begins the weeks of the calendar with this day, until the editor is closed.</source>
        <translation>エディターを閉じるまで、カレンダーの週をこの曜日から始めます。</translation>
    </message>
    <message>
        <source>Shows or hides the numbers of the weeks</source>
        <translation>週番号の表示を切り替えます</translation>
    </message>
    <message>
        <source>Shows or hides the numbers of the weeks beside the calendar.</source>
        <translation>カレンダーの横の週番号の表示を切り替えます。</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>前の月</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>次の月</translation>
    </message>
    <message>
        <source>Menu of the calendar</source>
        <translation>カレンダーのメニュー</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
    <message>
        <source>Click a date to edit its schedule. Ctrl and Shift select several dates for the commands of the edit menu. A frame marks the dates that have a schedule, and green is today.</source>
        <translation>日付をクリックするとそのスケジュールを編集できます。Ctrl と Shift で編集メニューの対象となる日付を複数選択できます。枠はスケジュールのある日、緑は今日を示します。</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <source>%1, has a schedule</source>
        <translation>%1、スケジュールあり</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvChannelInformationWidget</name>
    <message>
        <source>Channel Information</source>
        <translation>チャンネル情報</translation>
    </message>
    <message>
        <source>ID:</source>
        <translation>ID:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名前:</translation>
    </message>
    <message>
        <source>Order#:</source>
        <translation>順序番号:</translation>
    </message>
    <message>
        <source>Default Schedule:</source>
        <translation>デフォルトスケジュール:</translation>
    </message>
    <message>
        <source>Day of Week Schedule:</source>
        <translation>曜日スケジュール:</translation>
    </message>
    <message>
        <source>Date Schedule:</source>
        <translation>日付スケジュール:</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvDayOfWeekWidget</name>
    <message>
        <source>NON</source>
        <translation>－</translation>
    </message>
    <message>
        <source>%1, has a schedule</source>
        <translation>%1、スケジュールあり</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>更新日時</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleAutoStageSwichSettingWidget</name>
    <message>
        <source>24 o&apos;clock</source>
        <translation>24 時</translation>
    </message>
    <message>
        <source>You can set the schedule to switch the default stage at regular time intervals.
The same content as the selected stage will be created with a different name.</source>
        <translation>デフォルトステージを一定間隔で切り替えるようにスケジュールを設定できます。
選択したステージと同じ内容が別の名前で作成されます。</translation>
    </message>
    <message>
        <source>Note: All stages already set to the timetable will be deleted.</source>
        <translation>注意: タイムテーブルに設定済みのステージはすべて削除されます。</translation>
    </message>
    <message>
        <source>Switching Interval</source>
        <translation>切り替え間隔</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Time Range</source>
        <translation>時間範囲</translation>
    </message>
    <message>
        <source>From</source>
        <translation>開始</translation>
    </message>
    <message>
        <source> To</source>
        <translation> 終了</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>実行</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleChangeChannelOrderDialog</name>
    <message>
        <source>Change Channel Order</source>
        <translation>チャンネルの順序の変更</translation>
    </message>
    <message>
        <source>*This operation can not be undone.</source>
        <translation>*この操作は元に戻せません。</translation>
    </message>
    <message>
        <source>You can change the channel order.</source>
        <translation>チャンネルの順序を変更できます。</translation>
    </message>
    <message>
        <source>Move To</source>
        <translation>移動先</translation>
    </message>
    <message>
        <source>ID: %1  Name: %2  Order: #%3</source>
        <translation>ID: %1  名前: %2  順序: #%3</translation>
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
        <translation>デフォルト</translation>
    </message>
    <message>
        <source>Paste Schedule</source>
        <translation>スケジュールの貼り付け</translation>
    </message>
    <message>
        <source>The paste destinations is different from the schedules in clipboard in number.
Do you want to continue the Paste?</source>
        <translation>貼り付け先の数がクリップボードのスケジュールの数と異なります。
貼り付けを続けますか?</translation>
    </message>
    <message>
        <source>Cannot Paste</source>
        <translation>貼り付け不可</translation>
    </message>
    <message>
        <source>It is not possible to paste multiple schedules.</source>
        <translation>複数のスケジュールを貼り付けることはできません。</translation>
    </message>
    <message>
        <source>removed or </source>
        <translation>削除または</translation>
    </message>
    <message>
        <source>The following schedule will be %1replaced.

</source>
        <translation>次のスケジュールが%1置き換えられます。

</translation>
    </message>
    <message>
        <source>The schedule exists in paste destination. The schedule will be %1replaced.
Do you want to continue?</source>
        <translation>貼り付け先に既にスケジュールがあります。このスケジュールは%1置き換えられます。
続けますか?</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleDefaultStageWidget</name>
    <message>
        <source>Default Stage</source>
        <translation>デフォルトステージ</translation>
    </message>
    <message>
        <source>None - Drop stage here...</source>
        <translation>なし - ここにステージをドロップ...</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>If you set Default Stage, drop the stage into the right box, or select the stage and from the context menu, choose Set As Default Stage.</source>
        <translation>デフォルトステージを設定するには、右のボックスにステージをドロップするか、ステージを選択してコンテキストメニューから「デフォルトステージに設定」を選択してください。</translation>
    </message>
    <message>
        <source>The stage that is shown whenever no other one is scheduled. Drop a stage on the box to choose it; the check mark takes it away.</source>
        <translation>他に予定されたステージがないときに表示されるステージです。ボックスにステージをドロップして設定し、チェックを外すと解除されます。</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleDefaultWidget</name>
    <message>
        <source>Schedule of Default</source>
        <translation>デフォルトスケジュール</translation>
    </message>
    <message>
        <source>Assigned Stage: None</source>
        <translation>割り当てステージ: なし</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>%1 stage</source>
        <translation>%1 ステージ</translation>
    </message>
    <message>
        <source>s</source>
        <translation>​</translation>
    </message>
    <message>
        <source>Assigned Stage: </source>
        <translation>割り当てステージ: </translation>
    </message>
    <message>
        <source>Click here to edit the default schedule. It is used on each day for which neither its date nor its day of the week has a schedule.</source>
        <translation>クリックするとデフォルトスケジュールを編集できます。日付にも曜日にもスケジュールがない日に使われます。</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleEditor</name>
    <message>
        <source>&amp;Save Channel</source>
        <translation>チャンネルを保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;All Channels</source>
        <translation>すべてのチャンネルを保存(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Close Schedule Editor</source>
        <translation>スケジュールエディターを閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直し(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Cut</source>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>Deselect A&amp;ll</source>
        <translation>選択を解除(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Upload...</source>
        <translation>アップロード(&amp;U)...</translation>
    </message>
    <message>
        <source>&amp;Output Channel Data...</source>
        <translation>チャンネルデータの出力(&amp;O)...</translation>
    </message>
    <message>
        <source>S&amp;how Upload Log...</source>
        <translation>アップロードログを表示(&amp;H)...</translation>
    </message>
    <message>
        <source>Open Upload Log &amp;Folder...</source>
        <translation>アップロードログのフォルダーを開く(&amp;F)...</translation>
    </message>
    <message>
        <source>&amp;New Schedule</source>
        <translation>新しいスケジュール(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Delete Schedule...</source>
        <translation>スケジュールの削除(&amp;D)...</translation>
    </message>
    <message>
        <source>&amp;Rename Channel</source>
        <translation>チャンネル名の変更(&amp;R)</translation>
    </message>
    <message>
        <source>Chan&amp;ge Channel Order...</source>
        <translation>チャンネルの順序の変更(&amp;G)...</translation>
    </message>
    <message>
        <source>&amp;Add Channel...</source>
        <translation>チャンネルの追加(&amp;A)...</translation>
    </message>
    <message>
        <source>D&amp;elete Channel...</source>
        <translation>チャンネルの削除(&amp;E)...</translation>
    </message>
    <message>
        <source>Delete All Channels and &amp;Settings...</source>
        <translation>すべてのチャンネルと設定の削除(&amp;S)...</translation>
    </message>
    <message>
        <source>Show Channel &amp;Information...</source>
        <translation>チャンネル情報の表示(&amp;I)...</translation>
    </message>
    <message>
        <source>Channel Configura&amp;tion...</source>
        <translation>チャンネル設定(&amp;T)...</translation>
    </message>
    <message>
        <source>&amp;Switch Schedule</source>
        <translation>スケジュールの切り替え(&amp;S)</translation>
    </message>
    <message>
        <source>Schedule &amp;List</source>
        <translation>スケジュール一覧(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Choose Stage</source>
        <translation>ステージの選択(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Assigned Item Property</source>
        <translation>割り当て項目のプロパティ(&amp;A)</translation>
    </message>
    <message>
        <source>To &amp;Default Position</source>
        <translation>既定の位置に戻す(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Channel</source>
        <translation>チャンネル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>ウィンドウ(&amp;W)</translation>
    </message>
    <message>
        <source>Switch Schedule</source>
        <translation>スケジュールの切り替え</translation>
    </message>
    <message>
        <source>Schedule List</source>
        <translation>スケジュール一覧</translation>
    </message>
    <message>
        <source>Choose Stage</source>
        <translation>ステージの選択</translation>
    </message>
    <message>
        <source>MainWindow does not exist.</source>
        <translation>メインウィンドウがありません。</translation>
    </message>
    <message>
        <source>The schedule editor has been closed.</source>
        <translation>スケジュールエディターは終了しています。</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleItemPropertyWidget</name>
    <message>
        <source>Selected Stage</source>
        <translation>選択中のステージ</translation>
    </message>
    <message>
        <source>Previous Stage</source>
        <translation>前のステージ</translation>
    </message>
    <message>
        <source>Next Stage</source>
        <translation>次のステージ</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>開始時刻</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>終了時刻</translation>
    </message>
    <message>
        <source>Assigned Item Property</source>
        <translation>割り当て項目のプロパティ</translation>
    </message>
    <message>
        <source>The stage that is selected in the time table, and when it starts and ends. Type a time or step it; the neighbours set the limits.</source>
        <translation>タイムテーブルで選択したステージとその開始・終了時刻です。時刻は入力または増減できます。前後のステージが限度になります。</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleListWidget</name>
    <message>
        <source>default</source>
        <translation>デフォルト</translation>
    </message>
    <message>
        <source>date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>day of week</source>
        <translation>曜日</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>スケジュール</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Stages</source>
        <translation>ステージ</translation>
    </message>
    <message>
        <source>Channel: None</source>
        <translation>チャンネル: なし</translation>
    </message>
    <message>
        <source>Schedule List</source>
        <translation>スケジュール一覧</translation>
    </message>
    <message>
        <source>&amp;New Schedule...</source>
        <translation>新しいスケジュール(&amp;N)...</translation>
    </message>
    <message>
        <source>Channel: %1</source>
        <translation>チャンネル: %1</translation>
    </message>
    <message>
        <source>The schedules of the channel. The selected row is the schedule in the time table. The commands of the edit menu act on the checked rows.</source>
        <translation>チャンネルのスケジュールです。選択した行がタイムテーブルに表示されます。編集メニューのコマンドはチェックした行に適用されます。</translation>
    </message>
    <message>
        <source>Creates a schedule for a date or a day of the week</source>
        <translation>日付または曜日のスケジュールを作成します</translation>
    </message>
    <message>
        <source>Asks for a date or a day of the week, creates a schedule for it and shows it. A date or day that has none yet is proposed.</source>
        <translation>日付または曜日を指定してスケジュールを作成し、表示します。まだスケジュールのない日付または曜日が候補になります。</translation>
    </message>
    <message>
        <source>Menu of the schedule list</source>
        <translation>スケジュール一覧のメニュー</translation>
    </message>
    <message>
        <source>Schedules of the channel</source>
        <translation>チャンネルのスケジュール</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleMainWidget</name>
    <message>
        <source>Critical Error</source>
        <translation>重大なエラー</translation>
    </message>
    <message>
        <source>Channel Folder cannot be created. 
Please check the data folder write permission.</source>
        <translation>チャンネルフォルダーを作成できません。
データフォルダーの書き込み権限を確認してください。</translation>
    </message>
    <message>
        <source>Create Channel</source>
        <translation>チャンネルの作成</translation>
    </message>
    <message>
        <source>The channel file can not be created. 
Please make sure that channel folder is writable.</source>
        <translation>チャンネルファイルを作成できません。
チャンネルフォルダーに書き込めるか確認してください。</translation>
    </message>
    <message>
        <source>Add New Channel</source>
        <translation>新しいチャンネルの追加</translation>
    </message>
    <message>
        <source>The channel &quot;%1&quot; will be deleted.
After it has been deleted, it can not be undone.

Are you sure that you want to delete this channel?</source>
        <translation>チャンネル「%1」を削除します。
削除後は元に戻せません。

このチャンネルを削除してもよろしいですか?</translation>
    </message>
    <message>
        <source>Delete Channel</source>
        <translation>チャンネルの削除</translation>
    </message>
    <message>
        <source>The channel file can not be deleted.
Please check whether it is possible to delete the file.</source>
        <translation>チャンネルファイルを削除できません。
ファイルを削除できるか確認してください。</translation>
    </message>
    <message>
        <source>Change Channel Name</source>
        <translation>チャンネル名の変更</translation>
    </message>
    <message>
        <source>Change Channel &amp;Name...</source>
        <translation>チャンネル名の変更(&amp;N)...</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>Changes the name of the channel in its tab</source>
        <translation>タブのチャンネル名を変更します</translation>
    </message>
    <message>
        <source>Opens the name in the tab for editing. Enter takes the new name over. Two channels cannot have the same name.</source>
        <translation>タブの名前を編集します。Enter キーで新しい名前が確定します。2 つのチャンネルに同じ名前は付けられません。</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleSpecifyScheduleDialog</name>
    <message>
        <source>Create Schedule</source>
        <translation>スケジュールの作成</translation>
    </message>
    <message>
        <source>The new schedule will be created. 
You have to select Schedule Type and specify a day of week, or a date.</source>
        <translation>新しいスケジュールを作成します。
スケジュールの種類を選択し、曜日または日付を指定してください。</translation>
    </message>
    <message>
        <source>Paste Schedule</source>
        <translation>スケジュールの貼り付け</translation>
    </message>
    <message>
        <source>The schedule will be pasted from a clipboard. 
You have to specify a destination of pasting.</source>
        <translation>クリップボードからスケジュールを貼り付けます。
貼り付け先を指定してください。</translation>
    </message>
    <message>
        <source>Jump To Schedule</source>
        <translation>スケジュールへ移動</translation>
    </message>
    <message>
        <source>Specify the schedule you want to jump.</source>
        <translation>移動先のスケジュールを指定してください。</translation>
    </message>
    <message>
        <source>Schedule Type</source>
        <translation>スケジュールの種類</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>デフォルト</translation>
    </message>
    <message>
        <source>Day of Week</source>
        <translation>曜日</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Repeat the paste when there are the multiple schedules on the clipboard.</source>
        <translation>クリップボードに複数のスケジュールがある場合は貼り付けを繰り返す</translation>
    </message>
    <message>
        <source> yyyy - MM - dd </source>
        <translation> yyyy/MM/dd </translation>
    </message>
    <message>
        <source>New Schedule</source>
        <translation>新しいスケジュール</translation>
    </message>
    <message>
        <source>The schedule of %1 has already existed.
You have to specify another date.</source>
        <translation>%1のスケジュールは既に存在します。
別の日付を指定してください。</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleStageChooserWidget</name>
    <message>
        <source>Thumbnail of Stage</source>
        <translation>ステージのサムネイル</translation>
    </message>
    <message>
        <source>Stage List</source>
        <translation>ステージ一覧</translation>
    </message>
    <message>
        <source>Choose Stage</source>
        <translation>ステージの選択</translation>
    </message>
    <message>
        <source>The stages of the data folder. Drag one or several to the time table, or one to the box of the default stage above it.</source>
        <translation>データフォルダーのステージです。タイムテーブルに 1 つまたは複数を、その上のデフォルトステージのボックスに 1 つをドラッグできます。</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleStageListView</name>
    <message>
        <source>Set As Default Stage</source>
        <translation>デフォルトステージに設定</translation>
    </message>
    <message>
        <source>Set the switching interval as Default Stage...</source>
        <translation>切り替え間隔をデフォルトステージに設定...</translation>
    </message>
    <message>
        <source>Set the switching interval as Default Stage</source>
        <translation>切り替え間隔をデフォルトステージに設定</translation>
    </message>
    <message>
        <source>Caution</source>
        <translation>注意</translation>
    </message>
    <message>
        <source>The selected stage was automatically generated.
Please select a stage which name does not include &quot;_ d _&quot;.</source>
        <translation>選択したステージは自動生成されたものです。
名前に「_ d _」を含まないステージを選択してください。</translation>
    </message>
    <message>
        <source>Failed to delete the file for automatic generation.
Processing was interrupted.</source>
        <translation>自動生成用のファイルを削除できませんでした。
処理を中断しました。</translation>
    </message>
    <message>
        <source>Failed to create the file for automatic generation.
Processing was interrupted.</source>
        <translation>自動生成用のファイルを作成できませんでした。
処理を中断しました。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Shows this stage whenever no other one is scheduled</source>
        <translation>他に予定されたステージがないときにこのステージを表示します</translation>
    </message>
    <message>
        <source>Makes the selected stage the default stage of the schedule in the time table. It fills all time without a stage.</source>
        <translation>選択したステージを、タイムテーブルのスケジュールのデフォルトステージにします。ステージのない時間はすべてこのステージになります。</translation>
    </message>
    <message>
        <source>Shows this stage anew at a regular interval</source>
        <translation>このステージを一定間隔で表示し直します</translation>
    </message>
    <message>
        <source>Asks for an interval and fills the schedule in the time table so that the selected stage takes turns with a copy of itself. The stages that were there are replaced.</source>
        <translation>間隔を指定し、選択したステージとその複製が交互に表示されるようにタイムテーブルのスケジュールを埋めます。それまでのステージは置き換えられます。</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleSwitcherWidget</name>
    <message>
        <source>Schedule of days: None</source>
        <translation>スケジュールのある日: なし</translation>
    </message>
    <message>
        <source>Switch Schedule</source>
        <translation>スケジュールの切り替え</translation>
    </message>
    <message>
        <source>Chooses the schedule in the time table: that of a date in the calendar, that of a day of the week, or the default one. The bar at the left edge marks the chosen kind.</source>
        <translation>タイムテーブルに表示するスケジュールを、カレンダーの日付、曜日、デフォルトから選択します。左端のバーが選択中の種類を示します。</translation>
    </message>
    <message>
        <source>Schedule of a date</source>
        <translation>日付のスケジュール</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleTabWidget</name>
    <message>
        <source>&lt;span style=&quot;font-weight:bold;&quot;&gt;You can not move the first tab.&lt;/span&gt;</source>
        <translation>&lt;span style=&quot;font-weight:bold;&quot;&gt;最初のタブは移動できません。&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Name of the channel</source>
        <translation>チャンネル名</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleWorkingArea</name>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduledToBeExecutedWidget</name>
    <message>
        <source>Scheduled to be executed on</source>
        <translation>実行予定日</translation>
    </message>
    <message>
        <source>Schedule:</source>
        <translation>スケジュール:</translation>
    </message>
    <message>
        <source>DEFAULT</source>
        <translation>デフォルト</translation>
    </message>
    <message>
        <source>Scheduled to be executed on %1 (%2)</source>
        <translation>実行予定日 %1 (%2)</translation>
    </message>
    <message>
        <source>Tells which schedule is used on the selected date: that of the date itself, else that of its day of the week, else the default schedule.</source>
        <translation>選択した日付に使われるスケジュールを示します。日付のスケジュール、なければ曜日のスケジュール、それもなければデフォルトスケジュールです。</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvTimeSpinWidget</name>
    <message>
        <source>h</source>
        <translation>時</translation>
    </message>
    <message>
        <source>m</source>
        <translation>分</translation>
    </message>
    <message>
        <source>s</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>%1, hours</source>
        <translation>%1、時</translation>
    </message>
    <message>
        <source>%1, minutes</source>
        <translation>%1、分</translation>
    </message>
    <message>
        <source>%1, seconds</source>
        <translation>%1、秒</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvTimeTableTimeZoneItem</name>
    <message>
        <source>Failed to assign &quot;%1&quot;.</source>
        <translation>「%1」を割り当てられませんでした。</translation>
    </message>
    <message>
        <source>There is not enough unallocated time in order to assign stage. The start time must be earlier than 23:59:55.</source>
        <translation>ステージを割り当てるだけの空き時間がありません。開始時刻は 23:59:55 より前でなければなりません。</translation>
    </message>
    <message>
        <source>You can not reassigned to the allocated time.</source>
        <translation>割り当て済みの時間に再度割り当てることはできません。</translation>
    </message>
    <message>
        <source>There is not enough unallocated time in order to assign stages. Unassigned time of 5 seconds or more per one stage is required.</source>
        <translation>ステージを割り当てるだけの空き時間がありません。1 ステージにつき 5 秒以上の空き時間が必要です。</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvTimeTableView</name>
    <message>
        <source>This schedule does not exist.</source>
        <translation>このスケジュールはありません。</translation>
    </message>
    <message>
        <source>Time table</source>
        <translation>タイムテーブル</translation>
    </message>
    <message>
        <source>The day of the schedule, from 0 to 24 o&apos;clock. Stages are dropped here, dragged, and made longer or shorter at their edges. Ctrl adds to the selection, and the arrow keys move what is selected.</source>
        <translation>スケジュールの 0 時から 24 時までの 1 日です。ここにステージをドロップし、ドラッグして移動し、端で長さを変えます。Ctrl で選択に追加し、矢印キーで選択したものを移動します。</translation>
    </message>
    <message>
        <source>%1, %2 to %3</source>
        <translation>%1、%2～%3</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvTodayWidget</name>
    <message>
        <source>Today:</source>
        <translation>今日:</translation>
    </message>
    <message>
        <source>Move to Today</source>
        <translation>今日へ移動</translation>
    </message>
    <message>
        <source>Today&apos;s date. Click it to turn the calendar to today and show the schedule of that date.</source>
        <translation>今日の日付です。クリックするとカレンダーが今日に移動し、そのスケジュールが表示されます。</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvWeekWidget</name>
    <message>
        <source>Schedule for Each Day of Week</source>
        <translation>曜日ごとのスケジュール</translation>
    </message>
    <message>
        <source>Click a day to edit the schedule that is used on that day of every week. A frame marks the days that have one. A schedule of a date goes before it.</source>
        <translation>曜日をクリックすると、毎週その曜日に使われるスケジュールを編集できます。枠はスケジュールのある曜日を示します。日付のスケジュールが優先されます。</translation>
    </message>
</context>
</TS>
