#include "check/DataCheck.h"

#include "ChannelFiles.h"
#include "TemporaryDataFolder.h"
#include "check/BandInspection.h"
#include "check/CheckText.h"
#include "storage/ChannelFile.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QtTest>

#include <sys/stat.h>

using Zavo::BandInspection;
using Zavo::CheckFinding;
using Zavo::CheckReport;
using Zavo::CheckText;
using Zavo::DataCheck;
using Zavo::TimeSpan;
using Zavo::ZvSchedule;
using Zavo::ZvTime;
using ZavoTest::ChannelContent;
using ZavoTest::TemporaryDataFolder;

Q_DECLARE_METATYPE(QVector<TimeSpan>)

namespace {

const QDate today(2026, 3, 10);
constexpr int removingDays = 30;

QString fileOf(int number)
{
    return ZavoTest::channelFileName(number);
}

QByteArray channelXml(int id, int index, const QByteArray &schedules)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Channel version=\"1\" id=\"" +
           QByteArray::number(id) + "\" index=\"" + QByteArray::number(index) +
           "\" name=\"Lobby\">\n" + schedules + "</Channel>\n";
}

QByteArray defaultWith(const QByteArray &bands, const QByteArray &stage = QByteArray())
{
    return "<Schedule type=\"default\" defaultStage=\"" + stage + "\">" + bands + "</Schedule>\n";
}

QByteArray band(const char *start, const char *end, const char *stage = "a.xml")
{
    return QByteArray("<Time stage=\"") + stage + "\" start=\"" + start + "\" end=\"" + end +
           "\"/>";
}

const char wholeDay[] = "<Schedule type=\"default\" defaultStage=\"a.xml\"/>\n";

} // namespace

class tst_DataCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void findsNothingInSoundData();
    void inspectsBands_data();
    void inspectsBands();
    void findsWhatIsWrongWithSchedules_data();
    void findsWhatIsWrongWithSchedules();
    void findsFilesThatAreNotOpened_data();
    void findsFilesThatAreNotOpened();
    void readsAsItStands();
    void holdsTheBasicFileAgainstTheFirst();
    void findsSharedIds();
    void findsStages_data();
    void findsStages();
    void countsAStageOnce();
    void findsOldDates();
    void cannotCheck_data();
    void cannotCheck();
    void emptyFolderIsAFinding();
    void changesNothing();
    void canBeCancelled();
    void linesAreLines();

private:
    CheckReport check() const { return DataCheck(m_folder->path(), today, removingDays).run(); }
    QStringList lines() const;
    void writeChannel(const QString &name, const QByteArray &bytes);

    std::unique_ptr<TemporaryDataFolder> m_folder;
};

void tst_DataCheck::init()
{
    m_folder = std::make_unique<TemporaryDataFolder>();
    m_folder->writeStage(QStringLiteral("a.xml"));
}

QStringList tst_DataCheck::lines() const
{
    QStringList result;
    const CheckReport report = check();
    for (const CheckFinding &finding : report.findings)
        result.append(CheckText::line(finding));
    return result;
}

void tst_DataCheck::writeChannel(const QString &name, const QByteArray &bytes)
{
    m_folder->write(QStringLiteral("channel/") + name, bytes);
}

void tst_DataCheck::findsNothingInSoundData()
{
    m_folder->writeStage(QStringLiteral("sub/b.xml"));
    writeChannel(fileOf(0), channelXml(0, 0, wholeDay));
    writeChannel(QStringLiteral("channel.xml"), channelXml(0, 0, wholeDay));
    writeChannel(fileOf(7),
                 channelXml(7, 1,
                            defaultWith(band("00:00:00.000", "12:00:00.000") +
                                        band("12:00:00.000", "23:59:59.999", "sub/b.xml"))));
    m_folder->write(QStringLiteral("channel/notes.txt"), "no channel");
    m_folder->write(QStringLiteral("channel/.channel1.xml"), "hidden");
    const CheckReport report = check();
    QVERIFY(report.isComplete);
    QVERIFY2(report.findings.isEmpty(), qPrintable(lines().join(QLatin1Char('\n'))));
    QCOMPARE(report.problem, QString());
    QCOMPARE(report.channelCount, 2);
    QCOMPARE(report.stageCount, 2);
}

void tst_DataCheck::inspectsBands_data()
{
    QTest::addColumn<QByteArray>("bands");
    QTest::addColumn<QByteArray>("stage");
    QTest::addColumn<QString>("gaps");
    QTest::addColumn<QString>("overlaps");
    QTest::addColumn<QString>("empty");
    const auto row = [](const char *name, const QByteArray &bands, const char *gaps = "",
                        const char *overlaps = "", const char *empty = "", const char *stage = "") {
        QTest::newRow(name) << bands << QByteArray(stage) << QString::fromLatin1(gaps)
                            << QString::fromLatin1(overlaps) << QString::fromLatin1(empty);
    };
    row("no band", "", "0-86400000");
    row("no band, default stage", "", "", "", "", "a.xml");
    row("whole day", band("00:00:00.000", "23:59:59.999"));
    row("a second is missing", band("00:00:00.000", "23:59:59.000"), "86399000-86400000");
    row("times a little off",
        band("00:00:00.005", "12:00:00.000") + band("12:00:00.005", "23:59:59.995"));
    row("six milliseconds are a gap",
        band("00:00:00.000", "12:00:00.000") + band("12:00:00.006", "23:59:59.999"),
        "43200000-43200006");
    row("a gap that the default stage fills", band("01:00:00.000", "02:00:00.000"), "", "", "",
        "a.xml");
    row("overlap", band("00:00:00.000", "12:00:00.000") + band("11:00:00.000", "23:59:59.999"), "",
        "39600000-43200000");
    row("a band inside another",
        band("00:00:00.000", "23:59:59.999") + band("01:00:00.000", "02:00:00.000") +
            band("03:00:00.000", "04:00:00.000"),
        "", "3600000-7200000 10800000-14400000");
    row("out of order, but sound",
        band("12:00:00.000", "23:59:59.999") + band("00:00:00.000", "12:00:00.000"));
    row("overlap with a default stage",
        band("01:00:00.000", "03:00:00.000") + band("02:00:00.000", "04:00:00.000"), "",
        "7200000-10800000", "", "a.xml");
    row("no duration", band("00:00:00.000", "23:59:59.999") + band("08:00:00.000", "08:00:00.000"),
        "", "", "28800000-28800000");
    row("no stage covers nothing", band("00:00:00.000", "23:59:59.999", ""), "0-86400000", "",
        "0-86400000");
}

void tst_DataCheck::inspectsBands()
{
    QFETCH(QByteArray, bands);
    QFETCH(QByteArray, stage);
    Zavo::ChannelRecord record;
    QVERIFY(
        Zavo::ChannelFile::parseAsItStands(channelXml(0, 0, defaultWith(bands, stage)), &record));
    const BandInspection found = BandInspection::of(record.schedules.constFirst());
    const auto text = [](const QVector<TimeSpan> &spans) {
        QStringList texts;
        for (const TimeSpan &span : spans)
            texts.append(QStringLiteral("%1-%2").arg(span.fromMs).arg(span.toMs));
        return texts.join(QLatin1Char(' '));
    };
    QTEST(text(found.gaps), "gaps");
    QTEST(text(found.overlaps), "overlaps");
    QTEST(text(found.emptyBands), "empty");
}

void tst_DataCheck::findsWhatIsWrongWithSchedules_data()
{
    QTest::addColumn<QByteArray>("schedules");
    QTest::addColumn<QStringList>("expected");
    QByteArray week;
    for (int day = 1; day <= 7; ++day)
        week += "<Schedule type=\"day\" day=\"" + QByteArray::number(day) +
                "\" defaultStage=\"a.xml\"/>\n";
    QTest::newRow("no default schedule")
        << QByteArray()
        << QStringList{QStringLiteral("channel3.xml: Lobby: There is no default schedule: nothing "
                                      "is shown on days that have no schedule of their own.")};
    QTest::newRow("a whole week needs no default") << week << QStringList();
    QTest::newRow("an empty default that is never used") << week + "<Schedule type=\"default\"/>\n"
                                                         << QStringList();
    QTest::newRow("bands of an unused default")
        << week + defaultWith(band("02:00:00.000", "02:00:00.000"))
        << QStringList{
               QStringLiteral("channel3.xml: Lobby: Default schedule: Bands without a stage or "
                              "without duration: 02:00 to 02:00.")};
    QTest::newRow("many gaps")
        << defaultWith(band("01:00:00.000", "02:00:00.000") + band("03:00:00.000", "04:00:00.000") +
                       band("05:00:05.000", "06:00:00.000") + band("06:00:00.100", "07:00:00.000"))
        << QStringList{
               QStringLiteral("channel3.xml: Lobby: Default schedule: No stage is shown: 00:00 to "
                              "01:00, 02:00 to 03:00, 04:00 to 05:00:05, 2 more.")};
    QTest::newRow("day and date")
        << QByteArray(wholeDay) + "<Schedule type=\"day\" day=\"1\"/>" +
               "<Schedule type=\"date\" date=\"2026-04-01\" defaultStage=\"a.xml\">" +
               band("08:00:00.000", "10:00:00.000") + band("09:00:00.000", "11:00:00.000") +
               "</Schedule>"
        << QStringList{QStringLiteral("channel3.xml: Lobby: Monday: No stage is shown: 00:00 to "
                                      "24:00."),
                       QStringLiteral("channel3.xml: Lobby: 2026-04-01: Bands overlap: 09:00 to "
                                      "10:00.")};
    QTest::newRow("two for one date")
        << QByteArray(wholeDay) +
               "<Schedule type=\"date\" date=\"2026-04-01\" defaultStage=\"a.xml\"/>" +
               "<Schedule type=\"date\" date=\"2026-04-01\" defaultStage=\"a.xml\"/>"
        << QStringList{
               QStringLiteral("channel3.xml: Lobby: 2026-04-01: There are two schedules for "
                              "the same days; the editor passes over the file in "
                              "silence.")};
    QTest::newRow("two defaults")
        << QByteArray(wholeDay) + wholeDay
        << QStringList{
               QStringLiteral("channel3.xml: Lobby: Default schedule: There are two "
                              "schedules for the same days; the editor passes over the file "
                              "in silence.")};
}

void tst_DataCheck::findsWhatIsWrongWithSchedules()
{
    QFETCH(QByteArray, schedules);
    writeChannel(fileOf(3), channelXml(3, 0, schedules));
    QTEST(lines(), "expected");
}

void tst_DataCheck::findsFilesThatAreNotOpened_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    const QByteArray sound = channelXml(5, 5, wholeDay);
    QTest::newRow("six digits") << "channel100000.xml" << sound;
    QTest::newRow("a copy") << "channel5 (copy).xml" << sound;
    QTest::newRow("a name of its own") << "lobby.XML" << sound;
    QTest::newRow("no number") << "channels-.old.xml" << sound;
    QTest::newRow("cut off") << "channel5.xml" << sound.left(sound.size() / 2);
    QTest::newRow("empty") << "channel5.xml" << QByteArray();
    QTest::newRow("another version")
        << "channel5.xml" << QByteArray(sound).replace("version=\"1\" id", "version=\"2\" id");
    QTest::newRow("a band that ends before it starts")
        << "channel5.xml"
        << channelXml(5, 5, defaultWith(band("02:00:00.000", "01:00:00.000"), "a.xml"));
    QTest::newRow("damaged basic file") << "channel.xml" << QByteArray("<Channel");
    QTest::newRow("folder") << "channel5.xml/" << QByteArray();
    QTest::newRow("pipe") << "channel5.xml|" << QByteArray();
    QTest::newRow("link that leads nowhere") << "channel5.xml@" << QByteArray();
}

void tst_DataCheck::findsFilesThatAreNotOpened()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    writeChannel(fileOf(1), channelXml(1, 0, wholeDay));
    const QString plain = QString(name).remove(QRegularExpression(QStringLiteral("[/|@]$")));
    const QString path = m_folder->filePath(QStringLiteral("channel/") + plain);
    if (name.endsWith(QLatin1Char('/')))
        QVERIFY(QDir().mkpath(path));
    else if (name.endsWith(QLatin1Char('|')))
        QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    else if (name.endsWith(QLatin1Char('@')))
        QVERIFY(QFile::link(QStringLiteral("/nowhere/at/all"), path));
    else
        writeChannel(name, content);
    const CheckReport report = check();
    QVERIFY(report.isComplete);
    QCOMPARE(report.findings.size(), 1);
    QCOMPARE(report.findings.constFirst().kind, CheckFinding::Kind::PassedOver);
    QCOMPARE(report.findings.constFirst().file, plain);
    QVERIFY(report.findings.constFirst().text.contains(QLatin1String("in silence")));
}

void tst_DataCheck::readsAsItStands()
{
    const QByteArray bytes = channelXml(
        1, 0,
        defaultWith(band("05:00:00.000", "09:00:00.000") + band("01:00:00.000", "06:00:00.000")) +
            wholeDay);
    Zavo::ChannelRecord record;
    record.name = QStringLiteral("untouched");
    QVERIFY(!Zavo::ChannelFile::parse(bytes, &record));
    QCOMPARE(record.name, QStringLiteral("untouched"));
    QVERIFY(Zavo::ChannelFile::parseAsItStands(bytes, &record));
    QCOMPARE(record.schedules.size(), 2);
    QCOMPARE(record.schedules.constFirst().timeList().constFirst().startTime(), QTime(5, 0));
    QCOMPARE(record.schedules.constFirst().timeList().constLast().endTime(), QTime(6, 0));
    record.name = QStringLiteral("untouched");
    QVERIFY(!Zavo::ChannelFile::parseAsItStands(bytes.left(bytes.size() - 12), &record));
    QCOMPARE(record.name, QStringLiteral("untouched"));
}

void tst_DataCheck::holdsTheBasicFileAgainstTheFirst()
{
    const QByteArray gap = defaultWith(band("00:00:00.000", "12:00:00.000"));
    writeChannel(fileOf(0), channelXml(0, 4, gap));
    writeChannel(fileOf(1), channelXml(1, 5, wholeDay));
    // The copy has an id and an index that do not count.
    writeChannel(QStringLiteral("channel.xml"), channelXml(9, 9, gap));
    const QString gapText = QStringLiteral("Default schedule: No stage is shown: 12:00 to 24:00.");
    QCOMPARE(lines(), QStringList{QStringLiteral("channel0.xml: Lobby: ") + gapText});

    writeChannel(QStringLiteral("channel.xml"), channelXml(0, 0, wholeDay));
    QStringList found = lines();
    QCOMPARE(found.size(), 2);
    QVERIFY2(found.constFirst().startsWith(
                 QStringLiteral("channel0.xml: The file differs from \"channel.xml\"")),
             qPrintable(found.constFirst()));

    // Behind another channel, the basic file comes in front, with an id that is taken then.
    writeChannel(fileOf(1), channelXml(1, 3, wholeDay));
    found = lines();
    QCOMPARE(found.size(), 2);
    QVERIFY2(
        found.constFirst().contains(QLatin1String("the id 0, as has the one of \"channel.xml\"")),
        qPrintable(found.constFirst()));

    QVERIFY(QFile::remove(m_folder->filePath(QStringLiteral("channel/channel0.xml"))));
    QCOMPARE(lines(), QStringList());
}

void tst_DataCheck::findsSharedIds()
{
    for (const int number : {1, 2, 3, 4})
        writeChannel(fileOf(number), channelXml(number == 2 ? 2 : 7, number, wholeDay));
    const QStringList found = lines();
    QCOMPARE(found.size(), 2);
    QVERIFY(found.constFirst().startsWith(QStringLiteral("channel3.xml: Lobby: ")));
    QVERIFY(found.constLast().startsWith(QStringLiteral("channel4.xml: Lobby: ")));
    for (const QString &line : found)
        QVERIFY(line.contains(QLatin1String("the id 7, as has the one of \"channel1.xml\"")));
}

void tst_DataCheck::findsStages_data()
{
    QTest::addColumn<QString>("stage");
    QTest::addColumn<QString>("text");
    QTest::newRow("missing") << "gone.xml"
                             << "does not exist";
    QTest::newRow("missing below a folder") << "sub/gone.xml"
                                            << "does not exist";
    QTest::newRow("damaged") << "damaged.xml"
                             << "cannot be read";
    QTest::newRow("damaged package") << "damaged.zstg"
                                     << "cannot be read";
    QTest::newRow("folder") << "sub"
                            << "is not a file";
    QTest::newRow("link that leads nowhere") << "link.xml"
                                             << "leads nowhere";
    QTest::newRow("outside") << "../outside.xml"
                             << "does not lie in the stage folder";
    QTest::newRow("outside by a detour") << "sub/../../outside.xml"
                                         << "does not lie in the stage folder";
    QTest::newRow("picture missing") << "picture.xml"
                                     << "lacks 1 of its pictures";
    QTest::newRow("sound") << "sub/../a.xml" << QString();
}

void tst_DataCheck::findsStages()
{
    QFETCH(QString, stage);
    QFETCH(QString, text);
    m_folder->makeFolder(QStringLiteral("stage/sub"));
    m_folder->write(QStringLiteral("stage/damaged.xml"), "<Stage");
    m_folder->write(QStringLiteral("stage/damaged.zstg"), "PK");
    m_folder->write(QStringLiteral("outside.xml"), m_folder->read(QStringLiteral("stage/a.xml")));
    m_folder->write(QStringLiteral("stage/picture.xml"),
                    "<Stage version=\"1\" width=\"100\" height=\"50\"><Picture x=\"0\" y=\"0\" "
                    "width=\"10\" height=\"10\" source=\"none.png\"/></Stage>");
    QVERIFY(QFile::link(QStringLiteral("/nowhere"),
                        m_folder->filePath(QStringLiteral("stage/link.xml"))));
    const QByteArray name = stage.toUtf8();
    writeChannel(
        fileOf(1),
        channelXml(1, 0,
                   defaultWith(band("01:00:00.000", "02:00:00.000", name.constData()), "a.xml")));
    const CheckReport report = check();
    QVERIFY(report.isComplete);
    if (text.isEmpty()) {
        QCOMPARE(report.findings.size(), 0);
        return;
    }
    QCOMPARE(report.findings.size(), 1);
    const CheckFinding finding = report.findings.constFirst();
    QCOMPARE(finding.kind, CheckFinding::Kind::Stage);
    QCOMPARE(finding.schedule, QStringLiteral("Default schedule"));
    QVERIFY2(finding.text.contains(text), qPrintable(finding.text));
    QVERIFY2(finding.text.contains(stage), qPrintable(finding.text));
}

void tst_DataCheck::countsAStageOnce()
{
    QByteArray schedules = defaultWith(band("01:00:00.000", "02:00:00.000", "gone.xml") +
                                           band("03:00:00.000", "04:00:00.000", "a.xml") +
                                           band("05:00:00.000", "06:00:00.000", "gone.xml"),
                                       "gone.xml");
    for (int day = 1; day <= 3; ++day)
        schedules += "<Schedule type=\"day\" day=\"" + QByteArray::number(day) +
                     "\" defaultStage=\"gone.xml\"/>\n";
    writeChannel(fileOf(1), channelXml(1, 0, schedules));
    writeChannel(fileOf(2), channelXml(2, 1, schedules));
    const CheckReport report = check();
    QCOMPARE(report.findings.size(), 2);
    QCOMPARE(report.stageCount, 2);
    QCOMPARE(report.findings.constFirst().text,
             QStringLiteral("The stage \"gone.xml\" does not exist. 4 schedule(s) use it."));
}

void tst_DataCheck::findsOldDates()
{
    const auto dates = [](int count) {
        QByteArray schedules(wholeDay);
        for (int i = 0; i < count; ++i) {
            // The first is the limit itself, which stays.
            const QDate date = today.addDays(-removingDays - i);
            schedules += "<Schedule type=\"date\" date=\"" + date.toString(Qt::ISODate).toLatin1() +
                         "\" defaultStage=\"a.xml\"/>\n";
        }
        return schedules;
    };
    writeChannel(fileOf(1), channelXml(1, 0, dates(1)));
    QCOMPARE(lines(), QStringList());
    writeChannel(fileOf(1), channelXml(1, 0, dates(3)));
    QCOMPARE(lines(), QStringList{QStringLiteral(
                          "channel1.xml: Lobby: The clean-up drops the schedules of old dates: "
                          "2026-02-06, 2026-02-07.")});
    writeChannel(fileOf(1), channelXml(1, 0, dates(11)));
    QCOMPARE(lines(), QStringList{QStringLiteral(
                          "channel1.xml: Lobby: The clean-up drops the schedules of old dates: "
                          "2026-01-29, 2026-01-30, 2026-01-31, 7 more, the last 2026-02-07.")});
}

void tst_DataCheck::cannotCheck_data()
{
    QTest::addColumn<QString>("obstacle");
    QTest::addColumn<QString>("text");
    QTest::newRow("no channel folder") << QString() << "There is no folder";
    QTest::newRow("a file in its place") << "channel"
                                         << "There is no folder";
}

void tst_DataCheck::cannotCheck()
{
    QFETCH(QString, obstacle);
    QFETCH(QString, text);
    if (!obstacle.isEmpty())
        m_folder->write(obstacle, "precious");
    const CheckReport report = check();
    QVERIFY(!report.isComplete);
    QVERIFY2(report.problem.contains(text), qPrintable(report.problem));
    QVERIFY(report.problem.contains(m_folder->channelFolder()));
    QVERIFY(report.findings.isEmpty());
}

void tst_DataCheck::emptyFolderIsAFinding()
{
    m_folder->makeFolder(QStringLiteral("channel"));
    const CheckReport report = check();
    QVERIFY(report.isComplete);
    QCOMPARE(report.findings.size(), 1);
    QCOMPARE(report.findings.constFirst().kind, CheckFinding::Kind::NoChannel);
}

void tst_DataCheck::changesNothing()
{
    const QByteArray bytes = channelXml(
        1, 3,
        defaultWith(band("05:00:00.000", "09:00:00.000") + band("01:00:00.000", "06:00:00.000")));
    writeChannel(fileOf(1), bytes);
    QVERIFY(!lines().isEmpty());
    QCOMPARE(m_folder->names(QStringLiteral("channel")), QStringList{fileOf(1)});
    QCOMPARE(m_folder->read(QStringLiteral("channel/channel1.xml")), bytes);
    QCOMPARE(m_folder->names(), (QStringList{QStringLiteral("channel"), QStringLiteral("stage")}));
}

void tst_DataCheck::canBeCancelled()
{
    for (int number = 0; number < 20; ++number)
        writeChannel(fileOf(number), channelXml(number, number, QByteArray()));
    DataCheck check(m_folder->path(), today, removingDays);
    check.cancel();
    const CheckReport report = check.run();
    QVERIFY(!report.isComplete);
    QCOMPARE(report.problem, QString());
    QVERIFY(report.findings.isEmpty());
    QCOMPARE(check.done(), 0);
    DataCheck whole(m_folder->path(), today, removingDays);
    QVERIFY(whole.run().isComplete);
    QCOMPARE(whole.done(), 20);
    QCOMPARE(whole.total(), 20);
}

void tst_DataCheck::linesAreLines()
{
    const CheckFinding finding{CheckFinding::Kind::Stage, QStringLiteral("a\nb.xml"),
                               QStringLiteral("\x1b[31mRed"), QString(), QStringLiteral("Text.")};
    const QString line = CheckText::line(finding);
    QCOMPARE(line, QString::fromUtf8("a\u25a1b.xml: \u25a1[31mRed: Text."));
}

QTEST_GUILESS_MAIN(tst_DataCheck)
#include "tst_datacheck.moc"
