#include "services/ZvScheduleClipboard.h"

#include "ZvChannel.h"
#include "ZvConfig.h"
#include "ZvStage.h"
#include "stages/ZvScheduleStageListView.h"
#include "timetable/TimeTableRuler.h"
#include "timetable/ZvTimeTableBaseItem.h"

#include <QProcess>
#include <QRect>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <cstdio>

using namespace Zavo;

namespace {

constexpr char PrintVariable[] = "ZAVO_TEST_PRINT_BYTES";

// Days that some zones do not have, or that begin later than at midnight there.
const QDate DayWithoutMidnight(2018, 11, 4);
const QDate DayLeftOut(2011, 12, 30);

QList<ZvTime> bands()
{
    return {{QTime(0, 0), QTime(2, 30, 5), QStringLiteral("ı İ.xml")},
            {QTime(2, 30, 5), QTime(12, 0, 0, 250), QStringLiteral("صالة ١٢.xml")},
            {QTime(13, 4, 59), QTime(23, 59, 59, 999), QStringLiteral("ようこそ.zstg")}};
}

ZvSchedule scheduleOf(ZvSchedule::ScheduleTypes type, const QDate &date = QDate())
{
    ZvSchedule schedule;
    schedule.setType(type);
    schedule.setDayOfWeek(type == ZvSchedule::DayOfWeek ? Weekday::Sunday : Weekday::NoDay);
    schedule.setDate(date);
    schedule.setDefaultStage(QStringLiteral("I.XML"));
    schedule.setTimeList(bands());
    return schedule;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

QByteArray textOf(const QList<ZvTime> &times)
{
    QByteArray text;
    for (const ZvTime &time : times)
        text += QByteArray::number(time.startTime().msecsSinceStartOfDay()) + '-' +
                QByteArray::number(time.endTime().msecsSinceStartOfDay()) + ' ' +
                time.stageName().toUtf8() + '\n';
    return text;
}

QByteArray textOf(const QList<ZvSchedule> &schedules)
{
    QByteArray text;
    for (const ZvSchedule &schedule : schedules)
        text += QByteArray::number(schedule.type()) + ' ' +
                QByteArray::number(static_cast<int>(schedule.dayOfWeek())) + ' ' +
                QByteArray::number(schedule.date().toJulianDay()) + ' ' +
                schedule.defaultStage().toUtf8() + '\n' + textOf(schedule.timeList());
    return text;
}

/// A channel file, and what is read of it again.
QByteArray channelBytes(const QString &folder)
{
    const QString path = folder + QStringLiteral("/channel12.xml");
    ZvChannel channel(path);
    channel.setId(12);
    channel.setIndex(1234567);
    channel.setName(QStringLiteral("Kapı Iıİi ١٢٣"));
    channel.insertSchedule(scheduleOf(ZvSchedule::Default));
    channel.insertSchedule(scheduleOf(ZvSchedule::DayOfWeek));
    channel.insertSchedule(scheduleOf(ZvSchedule::Date, DayWithoutMidnight));
    channel.insertSchedule(scheduleOf(ZvSchedule::Date, DayLeftOut));
    ZvChannel back(path);
    const bool isKept = channel.writeToFile() && back.readFile();
    return isKept ? contentOf(path) + textOf(back.scheduleList()) : QByteArray("not kept");
}

/// Both payloads, and what is read of them again.
QByteArray clipboardBytes()
{
    const QByteArray times = ZvScheduleClipboard::timesToXml(bands());
    const QByteArray schedules = ZvScheduleClipboard::schedulesToXml(
        {scheduleOf(ZvSchedule::Date, DayWithoutMidnight), scheduleOf(ZvSchedule::Date, DayLeftOut),
         scheduleOf(ZvSchedule::DayOfWeek)});
    return times + textOf(ZvScheduleClipboard::xmlToTimes(times)) + schedules +
           textOf(ZvScheduleClipboard::xmlToSchedules(schedules));
}

/// The configuration and the user's settings.
QByteArray settingsBytes(const QString &folder)
{
    ZvConfig config(folder + QStringLiteral("/config.ini"));
    config.setRemovingDuration(1234567);
    config.setAllInOne(true);
    if (!config.write())
        return "not written";
    QSettings settings(folder + QStringLiteral("/user.ini"), QSettings::IniFormat);
    settings.setValue(QStringLiteral("Dock/DpiRatio"), 1.25);
    settings.setValue(QStringLiteral("Dock/Geometry"), QRect(-12, 34, 5678, 90));
    settings.setValue(QStringLiteral("Dock/Order"), 12);
    settings.setValue(QStringLiteral("Stages/FromTime"), QTime(12, 34, 56));
    settings.sync();
    return contentOf(config.filePath()) + contentOf(settings.fileName());
}

/// The numbers of a stage file as they are read.
QByteArray stageBytes(const QString &folder)
{
    const QString path = folder + QStringLiteral("/a.xml");
    QFile file(path);
    const QByteArray scene = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                             "<Stage version=\"1\" width=\"1920\" height=\"1080\">"
                             "<Rectangle x=\"1.5\" y=\"-2.25\" width=\"1000.125\" height=\"300\""
                             " color=\"#80ff0001\"/></Stage>\n";
    if (!file.open(QIODevice::WriteOnly) || file.write(scene) != scene.size() || !file.flush())
        return "not written";
    ZvStage stage(path);
    if (!stage.readFile())
        return "not read";
    const QRectF box = stage.items().value(0).box;
    return QByteArray::number(box.x(), 'f', 3) + ' ' + QByteArray::number(box.y(), 'f', 3) + ' ' +
           QByteArray::number(box.width(), 'f', 3) + ' ' +
           QByteArray::number(box.height(), 'f', 3) + '\n';
}

QByteArray timeTableTexts()
{
    const ZvTimeTableBaseItem base;
    QString text;
    for (const double y : {10.0, 100.5, 1450.0, 1451.0})
        text += base.timeStringAt(QPointF(0.0, y)) + QLatin1Char(' ');
    const TimeTableRuler ruler(2.0);
    for (const ZvTimeTableTimeLabelInfo &label : ruler.labels())
        text += label.text() + QLatin1Char('\n');
    return text.toUtf8();
}

QByteArray allBytes()
{
    const QTemporaryDir folder;
    if (!folder.isValid())
        return "no folder";
    const QByteArray names = ZvScheduleStageListView::encodeStageNames(
        {QStringLiteral("Iıİi 12.xml"), QStringLiteral("١٢.zstg")});
    return channelBytes(folder.path()) + clipboardBytes() + settingsBytes(folder.path()) +
           stageBytes(folder.path()) + names + timeTableTexts();
}

const char *const Locales[] = {"C",     "de_DE", "tr_TR", "ja_JP", "zh_CN",
                               "th_TH", "ar_EG", "fa_IR", "mr_IN"};
const char *const Zones[] = {"UTC", "Europe/Berlin", "America/Sao_Paulo", "Asia/Kathmandu",
                             "Pacific/Apia"};

} // namespace

/// Whatever language and time zone a machine is set to, the same comes into files and on the
/// clipboard, the same is read, and the time table has the same digits.
class tst_Surroundings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void bytesAreTheseLetterForLetter();
    void languageOfTheProgram_data();
    void languageOfTheProgram();
    void environment_data();
    void environment();

private:
    QByteArray m_expected;
};

void tst_Surroundings::initTestCase()
{
    m_expected = allBytes();
}

void tst_Surroundings::bytesAreTheseLetterForLetter()
{
    QVERIFY2(m_expected.contains("<Channel version=\"1\" id=\"12\" index=\"1234567\""
                                 " name=\"Kapı Iıİi ١٢٣\">"),
             m_expected);
    for (const char *text :
         {"<Schedule type=\"date\" date=\"2018-11-04\" defaultStage=\"I.XML\">",
          "<Schedule type=\"date\" date=\"2011-12-30\" defaultStage=\"I.XML\">",
          "<Time stage=\"صالة ١٢.xml\" start=\"02:30:05.000\" end=\"12:00:00.250\"/>",
          "<Time Stage=\"صالة ١٢.xml\" Start=\"02:30:05\" End=\"12:00:00\"/>",
          "Type=\"2018-11-04\"", "Type=\"2011-12-30\"", "RemovingDuration=1234567", "DpiRatio=1.25",
          "Geometry=@Rect(-12 34 5678 90)", "\n1.500 -2.250 1000.125 300.000\n",
          "47099000-86399999 ようこそ.zstg\n", "00:00:00 01:30:30 24:00:00 --:--:-- 00:00\n00:15\n",
          "\n23:45\n24:00\n"}) {
        QVERIFY2(m_expected.contains(text), text);
    }
    for (const char *failure : {"unreadable", "not kept", "not written", "not read", "no folder"})
        QVERIFY2(!m_expected.contains(failure), failure);
}

void tst_Surroundings::languageOfTheProgram_data()
{
    QTest::addColumn<QString>("locale");
    for (const char *locale : Locales)
        QTest::newRow(locale) << QString::fromLatin1(locale);
}

void tst_Surroundings::languageOfTheProgram()
{
    QFETCH(QString, locale);
    const QLocale before;
    QLocale::setDefault(QLocale(locale));
    const QByteArray bytes = allBytes();
    QLocale::setDefault(before);
    QCOMPARE(bytes, m_expected);
}

void tst_Surroundings::environment_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("zone");
    for (const char *locale : Locales) {
        for (const char *zone : Zones)
            QTest::addRow("%s in %s", locale, zone)
                << QString::fromLatin1(locale) << QString::fromLatin1(zone);
    }
}

void tst_Surroundings::environment()
{
    QFETCH(QString, locale);
    QFETCH(QString, zone);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), locale + QStringLiteral(".UTF-8"));
    environment.insert(QStringLiteral("TZ"), zone);
    environment.insert(QLatin1String(PrintVariable), QStringLiteral("1"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), QStringList());
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(process.readAllStandardOutput(), m_expected);
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (qEnvironmentVariableIsSet(PrintVariable)) {
        const QByteArray bytes = allBytes();
        const auto size = static_cast<size_t>(bytes.size());
        return std::fwrite(bytes.constData(), 1, size, stdout) == size ? 0 : 1;
    }
    tst_Surroundings test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_surroundings.moc"
