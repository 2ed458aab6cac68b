<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Zavo::ChannelCalendar</name>
    <message numerus="yes">
        <source>There are more than %n bands in these dates. Choose fewer dates.</source>
        <translation>
            <numerusform>There is more than %n band in these dates. Choose fewer dates.</numerusform>
            <numerusform>There are more than %n bands in these dates. Choose fewer dates.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zavo::ChannelInspection</name>
    <message numerus="yes">
        <source>%n more, the last %1</source>
        <translation>
            <numerusform>%n more, the last %1</numerusform>
            <numerusform>%n more, the last %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n more</numerusform>
            <numerusform>%n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zavo::CheckText</name>
    <message numerus="yes">
        <source>%n channel file(s)</source>
        <translation>
            <numerusform>%n channel file</numerusform>
            <numerusform>%n channel files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stage(s)</source>
        <translation>
            <numerusform>%n stage</numerusform>
            <numerusform>%n stages</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n finding(s) in %1.</source>
        <translation>
            <numerusform>%n finding in %1.</numerusform>
            <numerusform>%n findings in %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zavo::DataCheck</name>
    <message numerus="yes">
        <source>%1 %n schedule(s) use it.</source>
        <translation>
            <numerusform>%1 %n schedule uses it.</numerusform>
            <numerusform>%1 %n schedules use it.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zavo::ExportDialog</name>
    <message numerus="yes">
        <source>%n more remark(s).</source>
        <translation>
            <numerusform>%n more remark.</numerusform>
            <numerusform>%n more remarks.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zavo::ExportJob</name>
    <message numerus="yes">
        <source>A calendar holds no more than %n day(s).</source>
        <translation>
            <numerusform>A calendar holds no more than %n day.</numerusform>
            <numerusform>A calendar holds no more than %n days.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zavo::SessionRecord</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zavo::StageInspection</name>
    <message numerus="yes">
        <source>The stage &quot;%1&quot; lacks %n of its pictures.</source>
        <translation>
            <numerusform>The stage &quot;%1&quot; lacks %n of its pictures.</numerusform>
            <numerusform>The stage &quot;%1&quot; lacks %n of its pictures.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zavo::UploadDialog</name>
    <message numerus="yes">
        <source>%n thing(s) to note; the log names them.</source>
        <translation>
            <numerusform>%n thing to note; the log names it.</numerusform>
            <numerusform>%n things to note; the log names them.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zavo::UploadJob</name>
    <message numerus="yes">
        <source>%n channel file(s) that were replaced or removed there are among the safety copies.</source>
        <translation>
            <numerusform>%n channel file that was replaced or removed there is among the safety copies.</numerusform>
            <numerusform>%n channel files that were replaced or removed there are among the safety copies.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zavo::UploadRun</name>
    <message numerus="yes">
        <source>Upload of %1 to %n target(s), from &quot;%2&quot;</source>
        <translation>
            <numerusform>Upload of %1 to %n target, from &quot;%2&quot;</numerusform>
            <numerusform>Upload of %1 to %n targets, from &quot;%2&quot;</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The check found %n thing(s):</source>
        <translation>
            <numerusform>The check found %n thing:</numerusform>
            <numerusform>The check found %n things:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zavo::WeekSheet</name>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n more</numerusform>
            <numerusform>%n more</numerusform>
        </translation>
    </message>
</context>
</TS>
