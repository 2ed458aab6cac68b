#include "exporter/ExportJob.h"

#include "FolderFaults.h"
#include "TemporaryDataFolder.h"
#include "ZvChannel.h"
#include "exporter/ChannelCalendar.h"
#include "exporter/DayProgramme.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QtTest>

using Zavo::DayProgramme;
using Zavo::ExportJob;
using Zavo::ExportRequest;
using Zavo::ExportResult;
using Zavo::ZvChannel;
using Zavo::ZvSchedule;
using Zavo::ZvTime;
using ZavoTest::ReadOnlyFolder;
using ZavoTest::SmallDisk;
using ZavoTest::TemporaryDataFolder;

namespace {

const QDate monday(2026, 3, 9);
const QTime midnight(23, 59, 59, 999);

ZvSchedule scheduleOf(ZvSchedule::ScheduleTypes type, const QString &stage,
                      const QList<ZvTime> &bands = {})
{
    ZvSchedule schedule;
    schedule.setType(type);
    schedule.setDefaultStage(stage);
    schedule.setTimeList(bands);
    return schedule;
}

/// The language of the program, until this object goes.
class SpokenLanguage final
{
    Q_DISABLE_COPY(SpokenLanguage)

public:
    explicit SpokenLanguage(const QString &name) { QLocale::setDefault(QLocale(name)); }
    ~SpokenLanguage() { QLocale::setDefault(m_before); }

private:
    const QLocale m_before;
};

} // namespace

class tst_Exporter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void programmeFollowsThePrecedence_data();
    void programmeFollowsThePrecedence();
    void packageIsReadByAnother();
    void packageLeavesOutWhatIsMissing();
    void packageRefusesWaysOut_data();
    void packageRefusesWaysOut();
    void tableIsReadByAnother();
    void calendarIsReadByAnother();
    void calendarKeepsIdentities();
    void calendarHasAnEnd();
    void weekSheetIsReadByAnother_data();
    void weekSheetIsReadByAnother();
    void weekSheetNamesShortBandsInAList();
    void refusesTargets_data();
    void refusesTargets();
    void refusesDates();
    void refusesADamagedChannel();
    void tellsOfAFullDisk_data();
    void tellsOfAFullDisk();
    void tellsOfAReadOnlyFolder();
    void replacesAsAWhole();
    void canBeCancelled();

private:
    ExportRequest request(ExportRequest::Format format, const QString &name) const;
    static ExportResult run(const ExportRequest &request);
    QJsonDocument readBack(const QString &kind, const QString &file) const;
    QString text(const QString &file) const;
    void write(const ZvChannel &channel);
    QString out(const QString &name = QString()) const
    {
        return m_folder->filePath(QStringLiteral("out")) +
               (name.isEmpty() ? name : QLatin1Char('/') + name);
    }

    std::unique_ptr<TemporaryDataFolder> m_folder;
    std::unique_ptr<ZvChannel> m_channel;
};

void tst_Exporter::init()
{
    m_folder = std::make_unique<TemporaryDataFolder>();
    m_folder->makeFolder(QStringLiteral("out"));
    m_folder->makeFolder(QStringLiteral("channel"));
    m_folder->writeStage(QStringLiteral("a.xml"));
    m_folder->writeStage(QStringLiteral("sub/b.xml"));
    m_channel =
        std::make_unique<ZvChannel>(m_folder->filePath(QStringLiteral("channel/channel3.xml")));
    m_channel->setId(3);
    m_channel->setName(QString::fromUtf8("Lobby, \"süd\" \u6771"));
    m_channel->insertSchedule(
        scheduleOf(ZvSchedule::Default, QStringLiteral("a.xml"),
                   {{QTime(8, 0), QTime(12, 0), QStringLiteral("sub/b.xml")},
                    {QTime(12, 0, 0, 3), QTime(20, 0), QStringLiteral("a.xml")}}));
    ZvSchedule tuesday = scheduleOf(ZvSchedule::DayOfWeek, {},
                                    {{QTime(20, 0), midnight, QStringLiteral("sub/b.xml")}});
    tuesday.setDayOfWeek(Zavo::Weekday::Tuesday);
    m_channel->insertSchedule(tuesday);
    ZvSchedule date = scheduleOf(ZvSchedule::Date, QStringLiteral("a.xml"));
    date.setDate(monday.addDays(8)); // a Tuesday
    m_channel->insertSchedule(date);
    write(*m_channel);
}

void tst_Exporter::write(const ZvChannel &channel)
{
    QVERIFY(channel.writeToFile());
}

ExportRequest tst_Exporter::request(ExportRequest::Format format, const QString &name) const
{
    return {format, m_folder->path(), m_channel->filePath(), out(name), monday, monday.addDays(8)};
}

ExportResult tst_Exporter::run(const ExportRequest &request)
{
    ExportJob job(request);
    job.start();
    job.wait();
    return job.result();
}

QJsonDocument tst_Exporter::readBack(const QString &kind, const QString &file) const
{
    QProcess reader;
    reader.start(QStringLiteral("python3"),
                 {QStringLiteral(ZAVO_SOURCE_DIR "/tests/host/read_export.py"), kind, out(file)});
    if (!reader.waitForFinished() || reader.exitCode() != 0)
        qWarning("%s", reader.readAllStandardError().constData());
    return QJsonDocument::fromJson(reader.readAllStandardOutput());
}

QString tst_Exporter::text(const QString &file) const
{
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"),
                 {QStringLiteral("-layout"), out(file), QStringLiteral("-")});
    reader.waitForFinished();
    return QString::fromUtf8(reader.readAllStandardOutput());
}

void tst_Exporter::programmeFollowsThePrecedence_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("expected");
    QTest::newRow("default") << monday
                             << "0-28800000 a.xml* 28800000-43200000 sub/b.xml "
                                "43200003-72000000 a.xml 72000000-86400000 a.xml*";
    QTest::newRow("day") << monday.addDays(1) << "72000000-86400000 sub/b.xml";
    QTest::newRow("date before day") << monday.addDays(8) << "0-86400000 a.xml*";
    QTest::newRow("day again") << monday.addDays(15) << "72000000-86400000 sub/b.xml";
}

void tst_Exporter::programmeFollowsThePrecedence()
{
    QFETCH(QDate, date);
    const DayProgramme day = DayProgramme::of(m_channel->scheduleList(), date);
    QStringList texts;
    for (const Zavo::ProgrammeSlot &slot : day.slotList)
        texts.append(QStringLiteral("%1-%2 %3%4")
                         .arg(slot.fromMs)
                         .arg(slot.toMs)
                         .arg(slot.stage, slot.isDefaultStage ? QStringLiteral("*") : QString()));
    QTEST(texts.join(QLatin1Char(' ')), "expected");
    QCOMPARE(day.date, date);
    QVERIFY(DayProgramme::of({}, date).slotList.isEmpty());
    QVERIFY(DayProgramme::of({}, date).schedule.isEmpty());
}

void tst_Exporter::packageIsReadByAnother()
{
    m_folder->write(QStringLiteral("stage/unused.xml"), "not in the package");
    m_folder->write(QStringLiteral("stage/sub/pictures/p.png"), "picture");
    m_folder->write(QStringLiteral("stage/sub/b.xml"),
                    "<Stage version=\"1\" width=\"100\" height=\"50\"><Picture x=\"0\" y=\"0\" "
                    "width=\"10\" height=\"10\" source=\"pictures/p.png\"/></Stage>");
    const ExportResult result = run(request(ExportRequest::Package, QStringLiteral("a.zip")));
    QCOMPARE(result.problem, QString());
    QCOMPARE(result.remarks, QStringList());
    const QJsonObject entries = readBack(QStringLiteral("zip"), QStringLiteral("a.zip")).object();
    QStringList names = entries.keys();
    names.sort();
    QCOMPARE(names, (QStringList{QStringLiteral("channel/channel3.xml"),
                                 QStringLiteral("stage/a.xml"), QStringLiteral("stage/sub/b.xml"),
                                 QStringLiteral("stage/sub/pictures/p.png")}));
    for (const QString &name : qAsConst(names))
        QCOMPARE(QByteArray::fromHex(entries.value(name).toString().toLatin1()),
                 m_folder->read(name));
}

void tst_Exporter::packageLeavesOutWhatIsMissing()
{
    QVERIFY(QFile::remove(m_folder->filePath(QStringLiteral("stage/sub/b.xml"))));
    m_folder->write(QStringLiteral("stage/a.xml"), "damaged");
    const ExportResult result = run(request(ExportRequest::Package, QStringLiteral("a.zip")));
    QCOMPARE(result.problem, QString());
    QCOMPARE(result.remarks,
             (QStringList{QStringLiteral("The stage \"a.xml\" is damaged."),
                          QStringLiteral("The stage \"sub/b.xml\" does not exist.")}));
    // What is damaged here may be read elsewhere.
    const QStringList names{QStringLiteral("channel/channel3.xml"), QStringLiteral("stage/a.xml")};
    QCOMPARE(readBack(QStringLiteral("zip"), QStringLiteral("a.zip")).object().keys(), names);

    m_folder->write(QStringLiteral("outside.png"), "secret");
    m_folder->write(QStringLiteral("stage/a.xml"),
                    "<Stage version=\"1\" width=\"100\" height=\"50\"><Picture x=\"0\" y=\"0\" "
                    "width=\"10\" height=\"10\" source=\"../outside.png\"/></Stage>");
    QCOMPARE(
        run(request(ExportRequest::Package, QStringLiteral("a.zip"))).remarks.constFirst(),
        QStringLiteral("The picture \"../outside.png\" of the stage \"a.xml\" does not exist."));
    QCOMPARE(readBack(QStringLiteral("zip"), QStringLiteral("a.zip")).object().keys(), names);
}

void tst_Exporter::packageRefusesWaysOut_data()
{
    QTest::addColumn<QString>("stage");
    QTest::newRow("up") << "../outside.xml";
    QTest::newRow("up and back") << "sub/../../stage/a.xml";
    QTest::newRow("detour inside") << "sub/../a.xml";
    QTest::newRow("absolute") << "/etc/hostname";
}

void tst_Exporter::packageRefusesWaysOut()
{
    QFETCH(QString, stage);
    m_folder->write(QStringLiteral("outside.xml"), "secret");
    m_channel->insertSchedule(scheduleOf(ZvSchedule::Default, stage));
    write(*m_channel);
    const ExportResult result = run(request(ExportRequest::Package, QStringLiteral("a.zip")));
    QVERIFY2(result.problem.contains(stage), qPrintable(result.problem));
    QVERIFY(m_folder->names(QStringLiteral("out")).isEmpty());
    // A link is a way out, too.
    m_channel->insertSchedule(scheduleOf(ZvSchedule::Default, QStringLiteral("link.xml")));
    write(*m_channel);
    QVERIFY(QFile::link(m_folder->filePath(QStringLiteral("outside.xml")),
                        m_folder->filePath(QStringLiteral("stage/link.xml"))));
    QCOMPARE(run(request(ExportRequest::Package, QStringLiteral("a.zip"))).remarks,
             QStringList{QStringLiteral("The stage \"link.xml\" does not exist.")});
}

void tst_Exporter::tableIsReadByAnother()
{
    const ExportResult result = run(request(ExportRequest::Table, QStringLiteral("a.csv")));
    QCOMPARE(result.problem, QString());
    const QJsonArray rows = readBack(QStringLiteral("csv"), QStringLiteral("a.csv")).array();
    const QStringList columns{QStringLiteral("schedule"), QStringLiteral("day"),
                              QStringLiteral("date"),     QStringLiteral("start"),
                              QStringLiteral("end"),      QStringLiteral("stage")};
    QStringList lines;
    for (const auto &row : rows) {
        QStringList fields;
        for (const QString &column : columns)
            fields.append(row.toObject().value(column).toString());
        lines.append(fields.join(QLatin1Char('|')));
        QCOMPARE(row.toObject().value(QStringLiteral("channel")).toString(), m_channel->name());
        QCOMPARE(row.toObject().size(), columns.size() + 1);
    }
    QCOMPARE(lines, (QStringList{QStringLiteral("default|||||a.xml"),
                                 QStringLiteral("default|||08:00:00.000|12:00:00.000|sub/b.xml"),
                                 QStringLiteral("default|||12:00:00.003|20:00:00.000|a.xml"),
                                 QStringLiteral("day|Tuesday||20:00:00.000|24:00:00.000|sub/b.xml"),
                                 QStringLiteral("date||2026-03-17|||a.xml")}));
}

void tst_Exporter::calendarIsReadByAnother()
{
    const ExportResult result = run(request(ExportRequest::Calendar, QStringLiteral("a.ics")));
    QCOMPARE(result.problem, QString());
    const QJsonArray events = readBack(QStringLiteral("ics"), QStringLiteral("a.ics")).array();
    // Four on each of seven days of the default schedule, one on each Tuesday.
    QCOMPARE(events.size(), 4 * 7 + 1 + 1);
    const auto line = [&events](int place) {
        const QJsonObject event = events.at(place).toObject();
        return QStringLiteral("%1 %2 %3 %4")
            .arg(event.value(QStringLiteral("DTSTART")).toString(),
                 event.value(QStringLiteral("DTEND")).toString(),
                 event.value(QStringLiteral("SUMMARY")).toString(),
                 event.value(QStringLiteral("DESCRIPTION")).toString());
    };
    QCOMPARE(line(0),
             QStringLiteral("2026-03-09T00:00:00 2026-03-09T08:00:00 a.xml Default schedule"));
    QCOMPARE(line(1),
             QStringLiteral("2026-03-09T08:00:00 2026-03-09T12:00:00 sub/b.xml Default schedule"));
    QCOMPARE(line(3),
             QStringLiteral("2026-03-09T20:00:00 2026-03-10T00:00:00 a.xml Default schedule"));
    QCOMPARE(line(4), QStringLiteral("2026-03-10T20:00:00 2026-03-11T00:00:00 sub/b.xml ") +
                          QLocale().standaloneDayName(Qt::Tuesday));
    QCOMPARE(line(events.size() - 1),
             QStringLiteral("2026-03-17T00:00:00 2026-03-18T00:00:00 a.xml 2026-03-17"));
    QCOMPARE(events.at(0).toObject().value(QStringLiteral("LOCATION")).toString(),
             m_channel->name());
}

void tst_Exporter::calendarKeepsIdentities()
{
    const auto uids = [this] {
        QStringList result;
        const QJsonArray events = readBack(QStringLiteral("ics"), QStringLiteral("a.ics")).array();
        for (const auto &event : events)
            result.append(event.toObject().value(QStringLiteral("UID")).toString());
        return result;
    };
    const ExportRequest wanted = request(ExportRequest::Calendar, QStringLiteral("a.ics"));
    QCOMPARE(run(wanted).problem, QString());
    const QStringList before = uids();
    QCOMPARE(run(wanted).problem, QString());
    QCOMPARE(uids(), before);
    QVERIFY(!before.isEmpty());
}

void tst_Exporter::calendarHasAnEnd()
{
    QList<ZvTime> bands;
    for (int i = 0; i < 1440; ++i)
        bands.append({QTime(0, 0).addSecs(60 * i), QTime(0, 0).addSecs(60 * i + 30),
                      QStringLiteral("a.xml")});
    ZvChannel channel(m_channel->filePath());
    channel.insertSchedule(scheduleOf(ZvSchedule::Default, {}, bands));
    const auto content = Zavo::ChannelCalendar::of(channel, monday, monday.addDays(365));
    QVERIFY2(content.problem.contains(QLatin1String("fewer dates")), qPrintable(content.problem));
    QVERIFY(content.bytes.isEmpty());
}

// The week begins where the language has it begin.
void tst_Exporter::weekSheetIsReadByAnother_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QDate>("first");
    QTest::addColumn<QString>("tuesday");
    QTest::newRow("none") << "C" << monday << "Tuesday";
    QTest::newRow("German") << "de_DE" << monday << "Dienstag";
    QTest::newRow("American") << "en_US" << monday.addDays(-1) << "Tuesday";
    // Joined letters come out of the file in another form.
    QTest::newRow("Egyptian") << "ar_EG" << monday.addDays(-2) << "";
}

void tst_Exporter::weekSheetIsReadByAnother()
{
    QFETCH(QString, language);
    QFETCH(QDate, first);
    QFETCH(QString, tuesday);
    const SpokenLanguage spoken(language);
    ExportRequest wanted = request(ExportRequest::WeekSheet, QStringLiteral("a.pdf"));
    wanted.from = monday.addDays(3);
    QCOMPARE(run(wanted).problem, QString());
    const QByteArray bytes = m_folder->read(QStringLiteral("out/a.pdf"));
    QVERIFY(bytes.startsWith("%PDF-"));
    const QString sheet = text(QStringLiteral("a.pdf"));
    for (int day = 0; day < 7; ++day)
        QVERIFY2(sheet.contains(first.addDays(day).toString(Qt::ISODate)), qPrintable(sheet));
    const QString title = first.toString(Qt::ISODate) + QStringLiteral(" to ") +
                          first.addDays(6).toString(Qt::ISODate);
    for (const QString &words : {QStringLiteral("Lobby"), title, QStringLiteral("Default schedule"),
                                 tuesday, QStringLiteral("24:00")})
        QVERIFY2(sheet.contains(words), qPrintable(sheet));
    QCOMPARE(sheet.count(QString::fromUtf8("08:00\u201312:00")), 6);
    QCOMPARE(sheet.count(QString::fromUtf8("20:00\u201324:00")), 7);
    QCOMPARE(sheet.count(QChar::FormFeed), 1);
}

void tst_Exporter::weekSheetNamesShortBandsInAList()
{
    m_channel->insertSchedule(scheduleOf(
        ZvSchedule::Default, {}, {{QTime(8, 0), QTime(8, 1), QStringLiteral("sub/b.xml")}}));
    write(*m_channel);
    QCOMPARE(run(request(ExportRequest::WeekSheet, QStringLiteral("a.pdf"))).problem, QString());
    const QString sheet = text(QStringLiteral("a.pdf"));
    QCOMPARE(sheet.count(QChar::FormFeed), 2);
    QCOMPARE(sheet.count(QString::fromUtf8("08:00\u201308:01")), 6);
    QVERIFY2(sheet.contains(QLatin1String("Too short")), qPrintable(sheet));
}

void tst_Exporter::refusesTargets_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("named");
    QTest::newRow("none") << QString() << "Choose the file";
    QTest::newRow("up") << "out/../up.zip"
                        << "\"..\"";
    QTest::newRow("folder") << "out"
                            << "is a folder";
    QTest::newRow("no such folder") << "none/a.zip"
                                    << "There is no folder";
    QTest::newRow("a channel") << "channel/channel3.xml"
                               << "among the files";
    QTest::newRow("among the stages") << "stage/sub/a.zip"
                                      << "among the files";
}

void tst_Exporter::refusesTargets()
{
    QFETCH(QString, target);
    QFETCH(QString, named);
    ExportRequest wanted = request(ExportRequest::Package, QString());
    wanted.target = target.isEmpty() ? target : m_folder->path() + QLatin1Char('/') + target;
    const QByteArray before = m_folder->read(QStringLiteral("channel/channel3.xml"));
    QVERIFY2(ExportJob::problemOf(wanted).contains(named), qPrintable(run(wanted).problem));
    QCOMPARE(run(wanted).problem, ExportJob::problemOf(wanted));
    QCOMPARE(m_folder->read(QStringLiteral("channel/channel3.xml")), before);
    QVERIFY(m_folder->names(QStringLiteral("out")).isEmpty());
    wanted.target = QStringLiteral("relative.zip");
    QVERIFY(run(wanted).problem.contains(QLatin1String("no whole path")));
}

void tst_Exporter::refusesDates()
{
    ExportRequest wanted = request(ExportRequest::Calendar, QStringLiteral("a.ics"));
    wanted.to = wanted.from.addDays(-1);
    QVERIFY(run(wanted).problem.contains(QLatin1String("before the first")));
    wanted.to = wanted.from.addDays(366);
    QVERIFY(run(wanted).problem.contains(QLatin1String("366")));
    wanted.to = wanted.from.addDays(365);
    QCOMPARE(run(wanted).problem, QString());
}

void tst_Exporter::refusesADamagedChannel()
{
    m_folder->write(QStringLiteral("channel/channel3.xml"), "<Channel");
    for (const auto format : {ExportRequest::Package, ExportRequest::Table, ExportRequest::Calendar,
                              ExportRequest::WeekSheet})
        QVERIFY(run(request(format, QStringLiteral("a")))
                    .problem.contains(QLatin1String("cannot be read")));
    QVERIFY(m_folder->names(QStringLiteral("out")).isEmpty());
}

void tst_Exporter::tellsOfAFullDisk_data()
{
    QTest::addColumn<int>("format");
    QTest::newRow("package") << int(ExportRequest::Package);
    QTest::newRow("table") << int(ExportRequest::Table);
    QTest::newRow("calendar") << int(ExportRequest::Calendar);
    QTest::newRow("week sheet") << int(ExportRequest::WeekSheet);
}

void tst_Exporter::tellsOfAFullDisk()
{
    QFETCH(int, format);
    const auto wanted = request(static_cast<ExportRequest::Format>(format), QStringLiteral("a"));
    {
        SmallDisk disk(out());
        disk.fill();
        const QStringList before = m_folder->names(QStringLiteral("out"));
        const QString problem = run(wanted).problem;
        const QStringList after = m_folder->names(QStringLiteral("out"));
        disk.makeRoom();
        QVERIFY2(problem.contains(QLatin1String("cannot be written")), qPrintable(problem));
        QVERIFY2(problem.contains(QLatin1String("Nothing was written.")), qPrintable(problem));
        QCOMPARE(after, before);
    }
    QCOMPARE(run(wanted).problem, QString());
}

void tst_Exporter::tellsOfAReadOnlyFolder()
{
    m_folder->write(QStringLiteral("out/a.csv"), "old");
    {
        const ReadOnlyFolder folder(out());
        if (!folder.isEffective())
            QSKIP("No folder can be made read-only here.");
        const QString problem = run(request(ExportRequest::Table, QStringLiteral("a.csv"))).problem;
        QVERIFY2(problem.contains(QLatin1String("cannot be written")), qPrintable(problem));
        QVERIFY2(problem.contains(QLatin1String("stays as it was")), qPrintable(problem));
    }
    QCOMPARE(m_folder->names(QStringLiteral("out")), QStringList{QStringLiteral("a.csv")});
    QCOMPARE(m_folder->read(QStringLiteral("out/a.csv")), QByteArray("old"));
}

void tst_Exporter::replacesAsAWhole()
{
    m_folder->write(QStringLiteral("out/a.zip"), QByteArray(100000, 'x'));
    QCOMPARE(run(request(ExportRequest::Package, QStringLiteral("a.zip"))).problem, QString());
    QCOMPARE(m_folder->names(QStringLiteral("out")), QStringList{QStringLiteral("a.zip")});
    QCOMPARE(readBack(QStringLiteral("zip"), QStringLiteral("a.zip")).object().size(), 3);
}

void tst_Exporter::canBeCancelled()
{
    ExportJob job(request(ExportRequest::Package, QStringLiteral("a.zip")));
    job.cancel();
    job.start();
    job.wait();
    QCOMPARE(job.result().problem, QStringLiteral("The export was cancelled."));
    QVERIFY(m_folder->names(QStringLiteral("out")).isEmpty());
}

QTEST_MAIN(tst_Exporter)
#include "tst_exporter.moc"
