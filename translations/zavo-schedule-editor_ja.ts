<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
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
        <source>&amp;Check Data...</source>
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
        <source>Shows earlier states of the channels and restores one.</source>
        <translation>チャンネルの以前の状態を表示し、復元します。</translation>
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
        <translation>今日へ移動(&amp;T)</translation>
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
</context>
<context>
    <name>Zavo::ZvScheduleSwitcherWidget</name>
    <message>
        <source>Schedule of days: None</source>
        <translation>スケジュールのある日: なし</translation>
    </message>
</context>
<context>
    <name>Zavo::ZvScheduleTabWidget</name>
    <message>
        <source>&lt;span style=&quot;font-weight:bold;&quot;&gt;You can not move the first tab.&lt;/span&gt;</source>
        <translation>&lt;span style=&quot;font-weight:bold;&quot;&gt;最初のタブは移動できません。&lt;/span&gt;</translation>
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
</context>
<context>
    <name>Zavo::ZvWeekWidget</name>
    <message>
        <source>Schedule for Each Day of Week</source>
        <translation>曜日ごとのスケジュール</translation>
    </message>
</context>
</TS>
