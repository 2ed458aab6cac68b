#include "ZvChannel.h"
#include "storage/ChannelFile.h"

#include "ChannelSamples.h"
#include "FailingCalls.h"

#include <QXmlStreamReader>
#include <QtTest>

#include <sys/stat.h>

using namespace ChannelSamples;
using namespace Zavo;

/// Channels on the disk: what is written, and that it comes back.
class tst_ZvChannelFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void roundTrip();
    void formatOfTheFile();
    void writesWhatItWouldWriteAgain();
    void readsWhatAnotherHandWrote();
    void namesComeBackToTheLetter_data();
    void namesComeBackToTheLetter();
    void everyCharacterComesBack();
    void numbersOfAnySize_data();
    void numbersOfAnySize();
    void digitsAreAsciiInEveryLocale();
    void schedulesAndBandsComeInOrder();
    void overlapsOfAnotherHandAreNone();
    void writerRefuses_data();
    void writerRefuses();
    void writerPutsALiveListInOrder();
    void failedReadChangesNothing_data();
    void failedReadChangesNothing();
    void failedWriteKeepsTheFile();
    void pipesAndFoldersAreNoChannels();
    void equalNamesShareTheirMemory();

private:
    QByteArray written(const ZvChannel &channel) const;
    bool reads(const QByteArray &bytes, ZvChannel *channel) const;
    ZvChannel readBack() const;

    QTemporaryDir m_dir;
    QString m_path;
};

void tst_ZvChannelFile::init()
{
    QVERIFY(m_dir.isValid());
    m_path = m_dir.filePath(QStringLiteral("channel3.xml"));
    QFile::remove(m_path);
}

QByteArray tst_ZvChannelFile::written(const ZvChannel &channel) const
{
    QFile file(m_path);
    if (!channel.writeToFile() || !file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll();
}

bool tst_ZvChannelFile::reads(const QByteArray &bytes, ZvChannel *channel) const
{
    QFile file(m_path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(m_path));
    file.close();
    return channel->readFile();
}

ZvChannel tst_ZvChannelFile::readBack() const
{
    ZvChannel channel(m_path);
    if (!channel.readFile())
        qWarning("the file that was written cannot be read");
    return channel;
}

void tst_ZvChannelFile::roundTrip()
{
    ZvChannel channel = channelOfDates(m_path, 30, 24);
    ZvSchedule filled =
        defaultSchedule({band({1, 2, 3, 4}, {5, 6, 7, 8}), band({5, 6, 7, 8}, {5, 6, 7, 8}),
                         band({23, 59, 59, 998}, {23, 59, 59, 999})});
    filled.setDefaultStage(QStringLiteral("common/logo.zstg"));
    channel.insertSchedule(filled);
    for (int day = 1; day <= 7; ++day)
        channel.insertSchedule(daySchedule(day));
    QVERIFY(channel.writeToFile());
    const ZvChannel back = readBack();
    QVERIFY(back.isMatch(channel, false, false));
    QCOMPARE(back.filePath(), m_path);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(bands(back).at(i).startTime(), bands(channel).at(i).startTime());
        QCOMPARE(bands(back).at(i).endTime(), bands(channel).at(i).endTime());
    }
}

void tst_ZvChannelFile::formatOfTheFile()
{
    ZvChannel channel(m_path);
    channel.setId(3);
    channel.setIndex(2);
    channel.setName(QStringLiteral("Foyer & \"Bar\""));
    ZvSchedule filled =
        defaultSchedule({band({5, 30}, {23, 59, 59, 999}, QStringLiteral("station/départs.xml"))});
    filled.setDefaultStage(QStringLiteral("common/logo.xml"));
    channel.insertSchedule(filled);
    channel.insertSchedule(daySchedule(6));
    channel.insertSchedule(dateSchedule({2026, 12, 24}));
    QCOMPARE(written(channel), QByteArray(R"(<?xml version="1.0" encoding="UTF-8"?>
<Channel version="1" id="3" index="2" name="Foyer &amp; &quot;Bar&quot;">
 <Schedule type="default" defaultStage="common/logo.xml">
  <Time stage="station/départs.xml" start="05:30:00.000" end="23:59:59.999"/>
 </Schedule>
 <Schedule type="day" day="6" defaultStage=""/>
 <Schedule type="date" date="2026-12-24" defaultStage=""/>
</Channel>
)"));
    QCOMPARE(written(ZvChannel(m_path)), QByteArray(R"(<?xml version="1.0" encoding="UTF-8"?>
<Channel version="1" id="0" index="0" name=""/>
)"));
}

void tst_ZvChannelFile::writesWhatItWouldWriteAgain()
{
    const ZvChannel channel = channelOfDates(m_path, 10, 288);
    const QByteArray first = written(channel);
    QVERIFY(!first.isEmpty());
    QCOMPARE(written(readBack()), first);
}

void tst_ZvChannelFile::readsWhatAnotherHandWrote()
{
    ZvChannel channel(m_path);
    QVERIFY(reads("\xef\xbb\xbf<?xml version='1.0' encoding='utf-8' standalone='yes' ?>\r\n"
                  "<!-- by hand --><?tool x?>"
                  "<Channel index='2' name='a\tb&#x41;&#10;' version='1' id='3' theme='dark'>"
                  "<Note kind='x'>any text <b>at all</b><Schedule/></Note>"
                  "<Schedule type='default' colour='red'>"
                  "<Time end='02:00:00.000' start='01:00:00.000' stage='&lt;a&gt;'><Fade/>x</Time>"
                  "<Sound/></Schedule\n>"
                  "</Channel > <!-- end -->\n",
                  &channel));
    QCOMPARE(channel.id(), 3);
    QCOMPARE(channel.index(), 2);
    QCOMPARE(channel.name(), QStringLiteral("a bA\n"));
    QCOMPARE(channel.scheduleList(),
             QList<ZvSchedule>{defaultSchedule({band({1, 0}, {2, 0}, QStringLiteral("<a>"))})});
}

void tst_ZvChannelFile::namesComeBackToTheLetter_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("nothing") << QString();
    QTest::newRow("blanks") << QStringLiteral("  a  b  ");
    QTest::newRow("tabs and line ends") << QStringLiteral("\ta\r\nb\n\nc\r");
    QTest::newRow("markup") << QStringLiteral("<a b='c' d=\"e\">&amp;&#65;]]></a>");
    QTest::newRow("backslashes") << QStringLiteral("\\ \\\\ \\u0041 \\x \\");
    QTest::newRow("null") << QString(QChar(QChar::Null)) + QStringLiteral("a");
    QTest::newRow("control characters") << QStringLiteral("\u0001\u001f\u007f\u0080\u009f");
    QTest::newRow("no characters") << QString(QChar(0xfffe)) + QChar(0xffff);
    QTest::newRow("byte order mark")
        << QString(QChar(0xfeff)) + QStringLiteral("a") + QChar(0xfeff);
    QTest::newRow("high surrogate alone") << QString(QChar(0xd83d));
    QTest::newRow("low surrogate alone") << QString(QChar(0xde00)) + QStringLiteral("a");
    QTest::newRow("surrogates the wrong way round") << QString(QChar(0xde00)) + QChar(0xd83d);
    QTest::newRow("beyond 16 bits") << QStringLiteral("\U0001F600\U0010FFFF");
    QTest::newRow("scripts") << QStringLiteral("Größe Ελλάδα Москва 東京 القاهرة");
    QTest::newRow("uncomposed") << QStringLiteral("e\u0301 \u00e9");
    QTest::newRow("separators") << QStringLiteral("\u2028\u2029\u00a0\u200b\u202e");
    QTest::newRow("long") << QString(60000, QLatin1Char('n'));
}

void tst_ZvChannelFile::namesComeBackToTheLetter()
{
    QFETCH(QString, name);
    ZvChannel channel(m_path);
    channel.setName(name);
    ZvSchedule schedule = defaultSchedule({band({1, 0}, {2, 0}, name)});
    schedule.setDefaultStage(name);
    channel.insertSchedule(schedule);
    const QByteArray bytes = written(channel);
    const ZvChannel back = readBack();
    QCOMPARE(back.name(), name);
    QCOMPARE(schedules(back).constFirst().defaultStage(), name);
    QCOMPARE(bands(back).constFirst().stageName(), name);
    // Any other reader takes it for XML, too.
    QXmlStreamReader other(bytes);
    while (!other.atEnd())
        other.readNext();
    QVERIFY2(!other.hasError(), qPrintable(other.errorString()));
}

void tst_ZvChannelFile::everyCharacterComesBack()
{
    ZvChannel channel(m_path);
    constexpr int CharactersPerName = 4096;
    for (uint first = 0; first < 0x10000; first += CharactersPerName) {
        QString name;
        for (uint c = first; c < first + CharactersPerName; ++c)
            name += QChar(c);
        channel.setName(name);
        QVERIFY(channel.writeToFile());
        QVERIFY(readBack().name() == name);
    }
}

void tst_ZvChannelFile::numbersOfAnySize_data()
{
    QTest::addColumn<int>("number");
    for (const int number : {0, 1, -1, 99999, 2147483647, -2147483647 - 1})
        QTest::newRow(QByteArray::number(number).constData()) << number;
}

void tst_ZvChannelFile::numbersOfAnySize()
{
    QFETCH(int, number);
    ZvChannel channel(m_path);
    channel.setId(number);
    channel.setIndex(number);
    QVERIFY(channel.writeToFile());
    QCOMPARE(readBack().id(), number);
    QCOMPARE(readBack().index(), number);
}

void tst_ZvChannelFile::digitsAreAsciiInEveryLocale()
{
    const ZvChannel channel = channelOfDates(m_path, 3, 24);
    const QByteArray expected = written(channel);
    const QLocale before;
    for (const QLocale::Language language : {QLocale::Arabic, QLocale::Persian, QLocale::German}) {
        QLocale::setDefault(language);
        const QByteArray now = written(channel);
        const bool readable = readBack().isMatch(channel, false, false);
        QLocale::setDefault(before);
        QCOMPARE(now, expected);
        QVERIFY(readable);
    }
}

void tst_ZvChannelFile::schedulesAndBandsComeInOrder()
{
    ZvChannel channel(m_path);
    QVERIFY(reads(R"(<Channel version="1" id="0" index="0" name="">
        <Schedule type="date" date="2027-02-01"/><Schedule type="day" day="7"/>
        <Schedule type="date" date="2027-01-01"/><Schedule type="day" day="1">
        <Time stage="b" start="03:00:00.000" end="04:00:00.000"/>
        <Time stage="a" start="01:00:00.000" end="02:00:00.000"/></Schedule>
        <Schedule type="default"/></Channel>)",
                  &channel));
    const QList<ZvSchedule> expected{defaultSchedule(),
                                     daySchedule(1, {band({1, 0}, {2, 0}, QStringLiteral("a")),
                                                     band({3, 0}, {4, 0}, QStringLiteral("b"))}),
                                     daySchedule(7), dateSchedule({2027, 1, 1}),
                                     dateSchedule({2027, 2, 1})};
    QCOMPARE(channel.scheduleList(), expected);
}

void tst_ZvChannelFile::overlapsOfAnotherHandAreNone()
{
    ZvChannel channel(m_path);
    QVERIFY(reads(R"(<Channel version="1" id="0" index="0" name=""><Schedule type="default">
        <Time stage="a" start="01:00:00.003" end="04:00:00.000"/>
        <Time stage="b" start="02:00:00.000" end="05:00:00.000"/></Schedule></Channel>)",
                  &channel));
    QCOMPARE(bands(channel).at(0).startTime(), QTime(1, 0, 0, 3));
    QCOMPARE(bands(channel).at(0).endTime(), QTime(2, 0));
    QCOMPARE(bands(channel).at(1).endTime(), QTime(5, 0));
}

void tst_ZvChannelFile::writerRefuses_data()
{
    QTest::addColumn<ZvSchedule>("schedule");
    QTest::newRow("no type") << ZvSchedule();
    QTest::newRow("unknown type") << [] {
        ZvSchedule schedule = defaultSchedule();
        schedule.setType(ZvSchedule::ScheduleTypes(9));
        return schedule;
    }();
    QTest::newRow("date without date") << dateSchedule({});
    QTest::newRow("day 8") << daySchedule(8);
    QTest::newRow("year of five digits") << dateSchedule({10000, 1, 1});
    QTest::newRow("year before the first") << dateSchedule({-1, 1, 1});
    QTest::newRow("the same key again") << daySchedule(1);
    QTest::newRow("band without start") << defaultSchedule({band({}, {1, 0})});
    QTest::newRow("band without end") << defaultSchedule({band({1, 0}, {})});
    QTest::newRow("too many bands") << defaultSchedule(bandsOfADay(20001));
    QTest::newRow("stage beyond a tag")
        << defaultSchedule({band({1, 0}, {2, 0}, QString(70000, QLatin1Char('n')))});
    ZvSchedule endless = defaultSchedule();
    endless.setDefaultStage(QString(10000000, QLatin1Char('n')));
    QTest::newRow("default stage far beyond a tag") << endless;
    QList<ZvTime> bands = bandsOfADay(1200);
    for (ZvTime &each : bands)
        each.setStageName(QString(60000, QLatin1Char('n')));
    QTest::newRow("beyond a file") << defaultSchedule(bands);
}

void tst_ZvChannelFile::writerRefuses()
{
    QFETCH(ZvSchedule, schedule);
    ZvChannel channel(m_path);
    channel.insertSchedule(daySchedule(1));
    const QByteArray before = written(channel);
    QVERIFY(!before.isEmpty());
    // Past insertSchedule(), which would refuse some of them.
    channel.scheduleList().append(schedule);
    QVERIFY(!channel.writeToFile());
    ZvChannel unchanged(m_path);
    QVERIFY(unchanged.readFile());
    QCOMPARE(unchanged.scheduleList(), QList<ZvSchedule>{daySchedule(1)});
    QCOMPARE(QDir(m_dir.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{QStringLiteral("channel3.xml")});
}

void tst_ZvChannelFile::writerPutsALiveListInOrder()
{
    ZvChannel channel(m_path);
    channel.scheduleList() = {daySchedule(2), defaultSchedule({band({3, 0}, {4, 0})})};
    channel.scheduleList()[1].timeList().append(band({1, 0}, {9, 0}));
    QVERIFY(channel.writeToFile());
    const ZvChannel back = readBack();
    const QList<ZvSchedule> expected{defaultSchedule({band({1, 0}, {3, 0}), band({3, 0}, {4, 0})}),
                                     daySchedule(2)};
    QCOMPARE(back.scheduleList(), expected);
}

void tst_ZvChannelFile::failedReadChangesNothing_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray head = R"(<Channel version="1" id="9" index="9" name="other">)";
    QTest::newRow("cut off behind the head") << head;
    QTest::newRow("cut off behind a schedule")
        << QByteArray(head + R"(<Schedule type="default"/>)");
    QTest::newRow("bad schedule behind a good one")
        << QByteArray(head + R"(<Schedule type="default"/><Schedule type="date"/></Channel>)");
    QTest::newRow("empty") << QByteArray();
}

void tst_ZvChannelFile::failedReadChangesNothing()
{
    QFETCH(QByteArray, bytes);
    ZvChannel channel = channelOfDates(m_path, 3, 3);
    const ZvChannel before = channel;
    QVERIFY(!reads(bytes, &channel));
    QVERIFY(channel.isMatch(before, false, false));
    QCOMPARE(channel.filePath(), m_path);
}

void tst_ZvChannelFile::failedWriteKeepsTheFile()
{
    ZvChannel channel = channelOfDates(m_path, 3, 3);
    QVERIFY(channel.writeToFile());
    const ZvChannel saved = channel;
    channel.setName(QStringLiteral("changed"));
    for (const auto kind :
         {FailingCalls::Open, FailingCalls::Write, FailingCalls::Fsync, FailingCalls::Rename}) {
        FailingCalls calls;
        calls.fail(kind, ENOSPC, 0, FailingCalls::ForEver);
        QVERIFY(!channel.writeToFile());
    }
    QVERIFY(readBack().isMatch(saved, false, false));
    QVERIFY(channel.writeToFile());
    QVERIFY(readBack().isMatch(channel, false, false));
}

void tst_ZvChannelFile::pipesAndFoldersAreNoChannels()
{
    ZvChannel folder(m_dir.path());
    QVERIFY(!folder.readFile());
    QVERIFY(!folder.writeToFile());
    QCOMPARE(::mkfifo(QFile::encodeName(m_path).constData(), 0600), 0);
    ZvChannel pipe(m_path);
    QVERIFY(!pipe.readFile());
    QVERIFY(!pipe.writeToFile());
    ZvChannel nowhere{QString()};
    QVERIFY(!nowhere.readFile());
    QVERIFY(!nowhere.writeToFile());
}

void tst_ZvChannelFile::equalNamesShareTheirMemory()
{
    ZvChannel channel(m_path);
    channel.insertSchedule(defaultSchedule({band({1, 0}, {2, 0}), band({2, 0}, {3, 0})}));
    channel.insertSchedule(daySchedule(1, {band({1, 0}, {2, 0})}));
    QVERIFY(channel.writeToFile());
    const ZvChannel back = readBack();
    const QString first = bands(back).at(0).stageName();
    const QString second = bands(back).at(1).stageName();
    const QString third = bands(back, 1).at(0).stageName();
    QCOMPARE(first.constData(), second.constData());
    QCOMPARE(first.constData(), third.constData());
}

QTEST_APPLESS_MAIN(tst_ZvChannelFile)
#include "tst_zvchannelfile.moc"
