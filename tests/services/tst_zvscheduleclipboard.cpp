#include "services/ZvScheduleClipboard.h"

#include "ClipboardText.h"

#include "ZvEditorCommon.h"

#include <QSignalSpy>
#include <QtTest>

using namespace Zavo;
using namespace ZavoTest;

namespace {

const char emptySchedule[] = "type 0, day 8, date , default '', []";

ZvSchedule schedule(ZvSchedule::ScheduleTypes type, const QString &defaultStage = QString(),
                    const QList<ZvTime> &times = {})
{
    ZvSchedule schedule;
    schedule.setType(type);
    schedule.setDefaultStage(defaultStage);
    schedule.setTimeList(times);
    return schedule;
}

ZvSchedule dateSchedule(const QDate &date, const QString &defaultStage = QString(),
                        const QList<ZvTime> &times = {})
{
    ZvSchedule made = schedule(ZvSchedule::Date, defaultStage, times);
    made.setDate(date);
    return made;
}

ZvSchedule daySchedule(Weekday::Days day, const QString &defaultStage = QString(),
                       const QList<ZvTime> &times = {})
{
    ZvSchedule made = schedule(ZvSchedule::DayOfWeek, defaultStage, times);
    made.setDayOfWeek(day);
    return made;
}

const QList<ZvTime> twoBands{band("08:00:00", "09:30:15", "a.xml"),
                             band("23:00:00", "24:00:00", "sub/b.zstg")};
const QByteArray twoBandElements =
    QByteArrayLiteral("<Time Stage=\"a.xml\" Start=\"08:00:00\" End=\"09:30:15\"/>"
                      "<Time Stage=\"sub/b.zstg\" Start=\"23:00:00\" End=\"23:59:59\"/>");

QString timeFormat()
{
    return ZvEditorCommon::MIME_TYPE_TIME_DATA;
}

QString scheduleFormat()
{
    return ZvEditorCommon::MIME_TYPE_SCHEDULE_DATA;
}

} // namespace

/// The payloads byte for byte, their readers, and the clipboard itself.
class tst_ZvScheduleClipboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void writesTimes();
    void writesSchedules_data();
    void writesSchedules();
    void writesAsciiDigitsInEveryLocale();
    void timesRoundTrip();
    void schedulesRoundTrip();
    void namesRoundTrip_data();
    void namesRoundTrip();
    void oddNamesSpareTheirNeighbours();
    void readsTimes_data();
    void readsTimes();
    void readsSchedules_data();
    void readsSchedules();
    void formatsOfTheClipboard();
    void emptyListsLeaveTheClipboard();
    void emptyClipboard();
    void otherFormats();
    void formatWithoutContent();
    void largeListsRoundTrip();
};

void tst_ZvScheduleClipboard::init()
{
    QGuiApplication::clipboard()->clear();
}

void tst_ZvScheduleClipboard::writesTimes()
{
    QCOMPARE(ZvScheduleClipboard::timesToXml(twoBands),
             xmlHead + "<TimeData>" + twoBandElements + "</TimeData>\n");
    QCOMPARE(ZvScheduleClipboard::timesToXml({}), xmlHead + "<TimeData/>\n");
}

void tst_ZvScheduleClipboard::writesSchedules_data()
{
    QTest::addColumn<QList<ZvSchedule>>("schedules");
    QTest::addColumn<QByteArray>("content");
    const auto row = [](const char *name, const QList<ZvSchedule> &schedules,
                        const QByteArray &content) { QTest::newRow(name) << schedules << content; };
    const QString stage = QStringLiteral("d.xml");
    const QDate date(2026, 3, 9);
    row("none", {}, "<ScheduleList/>");
    row("default", {schedule(ZvSchedule::Default, stage, twoBands)},
        "<ScheduleList><Schedule Enabled=\"true\" Type=\"default\" "
        "DefaultStage=\"d.xml\"><TimeData>" +
            twoBandElements + "</TimeData></Schedule></ScheduleList>");
    row("empty default", {schedule(ZvSchedule::Default)},
        "<ScheduleList><Schedule Enabled=\"false\"/></ScheduleList>");
    row("date", {dateSchedule(date, QString(), twoBands)},
        "<ScheduleList><Schedule Enabled=\"true\" Type=\"2026-03-09\" "
        "DefaultStage=\"\"><TimeData>" +
            twoBandElements + "</TimeData></Schedule></ScheduleList>");
    row("date without bands", {dateSchedule(date, stage)},
        "<ScheduleList><Schedule Enabled=\"true\" Type=\"2026-03-09\" DefaultStage=\"d.xml\">"
        "<TimeData/></Schedule></ScheduleList>");
    row("day", {daySchedule(Weekday::Sunday)},
        "<ScheduleList><Schedule Enabled=\"true\" Type=\"7\" DefaultStage=\"\"><TimeData/>"
        "</Schedule></ScheduleList>");
    row("no type", {schedule(ZvSchedule::NoType, stage)},
        "<ScheduleList><Schedule Enabled=\"true\" Type=\"default\" DefaultStage=\"d.xml\">"
        "<TimeData/></Schedule></ScheduleList>");
    row("three days, the middle one without a schedule",
        {dateSchedule(date), ZvSchedule(), dateSchedule(date.addDays(2))},
        "<ScheduleList><Schedule Enabled=\"true\" Type=\"2026-03-09\" DefaultStage=\"\"><TimeData/>"
        "</Schedule><Schedule Enabled=\"false\"/>"
        "<Schedule Enabled=\"true\" Type=\"2026-03-11\" DefaultStage=\"\"><TimeData/></Schedule>"
        "</ScheduleList>");
}

void tst_ZvScheduleClipboard::writesSchedules()
{
    QFETCH(QList<ZvSchedule>, schedules);
    QFETCH(QByteArray, content);
    QCOMPARE(ZvScheduleClipboard::schedulesToXml(schedules), xmlHead + content + "\n");
}

void tst_ZvScheduleClipboard::writesAsciiDigitsInEveryLocale()
{
    const QByteArray times = ZvScheduleClipboard::timesToXml(twoBands);
    const QList<ZvSchedule> days{dateSchedule(QDate(2026, 3, 9)), daySchedule(Weekday::Monday)};
    const QByteArray schedules = ZvScheduleClipboard::schedulesToXml(days);
    QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
    const QByteArray arabicTimes = ZvScheduleClipboard::timesToXml(twoBands);
    const QByteArray arabicSchedules = ZvScheduleClipboard::schedulesToXml(days);
    const QStringList read = textOf(ZvScheduleClipboard::xmlToTimes(times));
    QLocale::setDefault(QLocale::c());
    QCOMPARE(arabicTimes, times);
    QCOMPARE(arabicSchedules, schedules);
    QCOMPARE(read, textOf(ZvScheduleClipboard::xmlToTimes(times)));
}

void tst_ZvScheduleClipboard::timesRoundTrip()
{
    const QByteArray xml = ZvScheduleClipboard::timesToXml({band("00:00:00", "00:00:00"),
                                                            band("08:00:00.999", "09:30:15.001"),
                                                            band("23:00:00", "24:00:00", "b.xml")});
    QCOMPARE(textOf(ZvScheduleClipboard::xmlToTimes(xml)),
             QStringList({QStringLiteral("00:00:00.000-00:00:00.000 a.xml"),
                          QStringLiteral("08:00:00.000-09:30:15.000 a.xml"),
                          QStringLiteral("23:00:00.000-23:59:59.000 b.xml")}));
}

void tst_ZvScheduleClipboard::schedulesRoundTrip()
{
    const QByteArray xml = ZvScheduleClipboard::schedulesToXml(
        {schedule(ZvSchedule::Default, QStringLiteral("d.xml")), ZvSchedule(),
         dateSchedule(QDate(2026, 3, 9), QString(), {band("08:00:00", "09:00:00")}),
         daySchedule(Weekday::Saturday, QStringLiteral("e.xml"), {band("01:00:00", "02:00:00")})});
    QCOMPARE(textOf(ZvScheduleClipboard::xmlToSchedules(xml)),
             QStringList({QStringLiteral("type 1, day 1, date , default 'd.xml', []"),
                          QLatin1String(emptySchedule),
                          QStringLiteral("type 1, day 1, date 2026-03-09, default '', "
                                         "[08:00:00.000-09:00:00.000 a.xml]"),
                          QStringLiteral("type 1, day 6, date , default 'e.xml', "
                                         "[01:00:00.000-02:00:00.000 a.xml]")}));
}

void tst_ZvScheduleClipboard::namesRoundTrip_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("markup") << QStringLiteral("<a b='c' d=\"e\">&amp;]]></a>.xml");
    QTest::newRow("blanks") << QStringLiteral("  a \t b\n c\r d  .xml");
    QTest::newRow("letters") << QString::fromUtf8(
        "\xC3\xBC\xE6\x97\xA5\xE6\x9C\xAC\xF0\x9F\x8E\xAC.xml");
    QTest::newRow("right to left") << QString::fromUtf8("\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D.xml");
    QTest::newRow("long") << QString(60000, QLatin1Char('x'));
    // What a file may be called, but XML cannot hold.
    const auto with = [](ushort unit) { return QStringLiteral("a%1b\\c.xml").arg(QChar(unit)); };
    QTest::newRow("control character") << with(0x1);
    QTest::newRow("form feed") << with(0xc);
    QTest::newRow("unit separator") << with(0x1f);
    QTest::newRow("delete") << with(0x7f);
    QTest::newRow("high control character") << with(0x85);
    QTest::newRow("byte order mark") << with(0xfeff);
    QTest::newRow("no character") << with(0xfffe);
    QTest::newRow("last unit") << with(0xffff);
    QTest::newRow("high surrogate alone") << with(0xd83c);
    QTest::newRow("low surrogate alone") << with(0xdfac);
    QTest::newRow("surrogates in the wrong order")
        << QString(QChar(0xdfac)) + QChar(0xd83c) + QStringLiteral(".xml");
    QTest::newRow("surrogate at the end") << QStringLiteral("a") + QChar(0xd83c);
    QTest::newRow("no character of another plane") << QString::fromUtf8("\xF0\x9F\xBF\xBE.xml");
    QTest::newRow("backslashes") << QStringLiteral("a\\u0001\\\\b.xml");
}

void tst_ZvScheduleClipboard::namesRoundTrip()
{
    QFETCH(QString, name);
    const ZvTime time(QTime(8, 0), QTime(9, 0), name);
    const QList<ZvTime> times =
        ZvScheduleClipboard::xmlToTimes(ZvScheduleClipboard::timesToXml({time}));
    QCOMPARE(times, QList<ZvTime>{time});
    const QList<ZvSchedule> schedules = ZvScheduleClipboard::xmlToSchedules(
        ZvScheduleClipboard::schedulesToXml({schedule(ZvSchedule::Default, name, {time})}));
    QCOMPARE(schedules.size(), 1);
    QCOMPARE(schedules.first().defaultStage(), name);
    QCOMPARE(schedules.first().timeList(), QList<ZvTime>{time});
}

// Whatever a stage is called, the bands beside it arrive, and names that XML can hold stand in the
// payload as they are.
void tst_ZvScheduleClipboard::oddNamesSpareTheirNeighbours()
{
    const QString odd = QStringLiteral("a\\") + QChar(0x1) + QChar(0xd83c);
    const QList<ZvTime> times{band("08:00:00", "09:00:00", "a\\u0001.xml"),
                              ZvTime(QTime(9, 0), QTime(10, 0), odd),
                              band("10:00:00", "11:00:00", "c.xml")};
    const QByteArray bands =
        QByteArrayLiteral("<TimeData><Time Stage=\"a\\u0001.xml\" Start=\"08:00:00\" "
                          "End=\"09:00:00\"/><Time Stage=\"a\\\\\\u0001\\ud83c\" "
                          "Start=\"09:00:00\" End=\"10:00:00\" Escaped=\"true\"/>"
                          "<Time Stage=\"c.xml\" Start=\"10:00:00\" End=\"11:00:00\"/></TimeData>");
    QCOMPARE(ZvScheduleClipboard::timesToXml(times), xmlHead + bands + "\n");
    QCOMPARE(ZvScheduleClipboard::xmlToTimes(xmlHead + bands), times);

    const QList<ZvSchedule> schedules{schedule(ZvSchedule::Default, odd, times),
                                      daySchedule(Weekday::Friday, QStringLiteral("d.xml"), times)};
    const QByteArray xml = ZvScheduleClipboard::schedulesToXml(schedules);
    QVERIFY(xml.contains("DefaultStage=\"a\\\\\\u0001\\ud83c\" Escaped=\"true\"><TimeData>"));
    QVERIFY(xml.contains("DefaultStage=\"d.xml\"><TimeData>"));
    const QList<ZvSchedule> read = ZvScheduleClipboard::xmlToSchedules(xml);
    QCOMPARE(read.size(), 2);
    QCOMPARE(read.at(0).defaultStage(), odd);
    QCOMPARE(read.at(0).timeList(), times);
    QCOMPARE(read.at(1).timeList(), times);
    // An escape that is none is the name itself.
    const QByteArray broken = "<TimeData><Time Stage=\"a\\x\" Start=\"08:00:00\" End=\"09:00:00\" "
                              "Escaped=\"true\"/></TimeData>";
    QCOMPARE(ZvScheduleClipboard::xmlToTimes(broken).value(0).stageName(), QStringLiteral("a\\x"));
}

void tst_ZvScheduleClipboard::readsTimes_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QStringList>("texts");
    const auto row = [](const char *name, const QByteArray &xml, const QStringList &texts) {
        QTest::newRow(name) << xml << texts;
    };
    const QString one = QStringLiteral("08:00:00.000-09:00:00.000 a.xml");
    const QByteArray element("<Time Stage=\"a.xml\" Start=\"08:00:00\" End=\"09:00:00\"/>");
    row("plain", "<TimeData>" + element + "</TimeData>", {one});
    row("any root", "<What><Ever>" + element + "</Ever></What>", {one});
    row("root of schedules", "<ScheduleList><Schedule>" + element + "</Schedule></ScheduleList>",
        {one});
    row("the root itself", element, {one});
    row("a band in a band", "<TimeData><Time>" + element + "</Time>" + element + "</TimeData>",
        {one, one});
    row("strangers between",
        "<TimeData><!-- x --><A/>" + element + "text<?pi x?><B>" + element + "</B></TimeData>",
        {one, one});
    row("order and strange attributes",
        "<TimeData><Time X=\"1\" End=\"09:00:00\" Start=\"08:00:00\" Stage=\"a.xml\"/></TimeData>",
        {one});
    row("other case",
        "<TimeData><time Stage=\"a.xml\" Start=\"08:00:00\" End=\"09:00:00\"/></TimeData>", {});
    row("a name space", "<TimeData xmlns=\"urn:x\">" + element + "</TimeData>", {one});
    row("a prefix",
        "<p:TimeData xmlns:p=\"urn:x\"><p:Time Stage=\"a.xml\" Start=\"08:00:00\" "
        "End=\"09:00:00\"/></p:TimeData>",
        {one});
    const auto timed = [](const char *start, const char *end) {
        return QByteArray("<TimeData><Time Stage=\"a.xml\" Start=\"") + start + "\" End=\"" + end +
               "\"/></TimeData>";
    };
    row("milliseconds", timed("08:00:00.250", "23:59:59.999"),
        {QStringLiteral("08:00:00.250-23:59:59.999 a.xml")});
    row("minutes", timed("08:00", "09:00"), {one});
    row("equal", timed("08:00:00", "08:00:00"),
        {QStringLiteral("08:00:00.000-08:00:00.000 a.xml")});
    row("end before start", timed("09:00:00", "08:00:00"), {});
    row("24 o'clock", timed("08:00:00", "24:00:00"), {});
    row("60 seconds", timed("08:00:60", "09:00:00"), {});
    row("no time", timed("soon", "later"), {});
    row("negative", timed("-8:00:00", "09:00:00"), {});
    row("empty", timed("", ""), {});
    row("no stage", "<TimeData><Time Stage=\"\" Start=\"08:00:00\" End=\"09:00:00\"/></TimeData>",
        {});
    row("no attributes", "<TimeData><Time/></TimeData>", {});
    row("attribute missing", "<TimeData><Time Stage=\"a.xml\" Start=\"08:00:00\"/></TimeData>", {});
    row("bad among good", "<TimeData>" + element + "<Time/>" + element + "</TimeData>", {one, one});
}

void tst_ZvScheduleClipboard::readsTimes()
{
    QFETCH(QByteArray, xml);
    QFETCH(QStringList, texts);
    QCOMPARE(textOf(ZvScheduleClipboard::xmlToTimes(xml)), texts);
    QCOMPARE(textOf(ZvScheduleClipboard::xmlToTimes(xmlHead + xml + "\n")), texts);
}

void tst_ZvScheduleClipboard::readsSchedules_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("texts");
    const QString empty = QLatin1String(emptySchedule);
    const auto row = [](const char *name, const QByteArray &content, const QStringList &texts) {
        QTest::newRow(name) << content << texts;
    };
    // A schedule with the attributes, and all that it is expected to hold but its bands.
    const auto typed = [&row](const char *name, const QByteArray &attributes, int day,
                              const char *date = "") {
        row(name, "<Schedule Enabled=\"true\" " + attributes + "/>",
            {QStringLiteral("type 1, day %1, date %2, default '', []")
                 .arg(day)
                 .arg(QLatin1String(date))});
    };
    typed("default", "Type=\"default\"", 1);
    typed("no type", "", 1);
    typed("date", "Type=\"2026-02-28\"", 1, "2026-02-28");
    typed("date that is none", "Type=\"2026-02-30\"", 1);
    typed("date of another form", "Type=\"28.02.2026\"", 1);
    typed("day", "Type=\"7\"", 7);
    typed("day 0", "Type=\"0\"", 0);
    typed("no day", "Type=\"8\"", 8);
    typed("day out of range", "Type=\"-12345\"", -12345);
    typed("number too large", "Type=\"99999999999\"", 1);
    typed("neither date nor number", "Type=\"3x\"", 1);
    typed("other base", "Type=\"0x3\"", 1);
    typed("other case", "Type=\"Default\"", 1);

    row("not enabled", "<Schedule Enabled=\"false\" Type=\"7\" DefaultStage=\"d.xml\"/>", {empty});
    row("enabled in another case", "<Schedule Enabled=\"True\" DefaultStage=\"d.xml\"/>", {empty});
    row("enabled by number", "<Schedule Enabled=\"1\" DefaultStage=\"d.xml\"/>", {empty});
    row("no attributes", "<Schedule/>", {empty});
    row("default stage", "<Schedule Enabled=\"true\" DefaultStage=\" d.xml\"/>",
        {QStringLiteral("type 1, day 1, date , default ' d.xml', []")});

    const QByteArray open("<Schedule Enabled=\"true\">");
    const QByteArray element("<Time Stage=\"a.xml\" Start=\"08:00:00\" End=\"09:00:00\"/>");
    const QString one = QStringLiteral("08:00:00.000-09:00:00.000 a.xml");
    const QString bare = QStringLiteral("type 1, day 1, date , default '', [%1]");
    row("bands", open + "<TimeData>" + element + element + "</TimeData></Schedule>",
        {bare.arg(one + QStringLiteral("; ") + one)});
    row("bands without a TimeData", open + element + "</Schedule>", {bare.arg(one)});
    row("a second TimeData is passed over",
        open + "<TimeData>" + element + "</TimeData><TimeData>" + element +
            "</TimeData></Schedule>",
        {bare.arg(one)});
    row("an empty TimeData before",
        open + "<TimeData/><TimeData>" + element + "</TimeData></Schedule>", {bare.arg(one)});
    row("a stranger ends the bands",
        open + "<TimeData>" + element + "<A/>" + element + "</TimeData></Schedule>",
        {bare.arg(one)});
    row("bad bands", open + "<TimeData><Time/><Time Stage=\"a\"/></TimeData></Schedule>",
        {bare.arg(QString())});
    row("bands of a schedule that is not enabled",
        "<Schedule>" + element + "</Schedule>" + open + element + "</Schedule>",
        {empty, bare.arg(one)});
    row("strangers between", "<A/>" + open + "</Schedule><B><Schedule/></B>text<Time/>",
        {bare.arg(QString()), empty});
}

void tst_ZvScheduleClipboard::readsSchedules()
{
    QFETCH(QByteArray, content);
    QFETCH(QStringList, texts);
    const QByteArray list = "<ScheduleList>" + content + "</ScheduleList>";
    QCOMPARE(textOf(ZvScheduleClipboard::xmlToSchedules(list)), texts);
    QCOMPARE(textOf(ZvScheduleClipboard::xmlToSchedules(xmlHead + list)), texts);
    // The list is found wherever it stands, and nothing behind it counts.
    QCOMPARE(
        textOf(ZvScheduleClipboard::xmlToSchedules("<A><B/><C>" + list + "</C>" + list + "</A>")),
        texts);
    QCOMPARE(textOf(ZvScheduleClipboard::xmlToSchedules("<List>" + content + "</List>")),
             QStringList());
}

void tst_ZvScheduleClipboard::formatsOfTheClipboard()
{
    const QList<ZvSchedule> schedules{schedule(ZvSchedule::Default, QString(), twoBands)};
    QSignalSpy changes(QGuiApplication::clipboard(), SIGNAL(dataChanged()));
    ZvScheduleClipboard::writeTimesToClipboard(twoBands);
    QCOMPARE(changes.count(), 1);
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    QCOMPARE(data->formats(), QStringList{timeFormat()});
    QCOMPARE(data->data(timeFormat()), ZvScheduleClipboard::timesToXml(twoBands));
    QVERIFY(ZvScheduleClipboard::hasTimeData());
    QVERIFY(!ZvScheduleClipboard::hasScheduleData());
    QCOMPARE(ZvScheduleClipboard::readTimesFromClipboard().size(), 2);
    QCOMPARE(ZvScheduleClipboard::readSchedulesFromClipboard(), QList<ZvSchedule>());

    ZvScheduleClipboard::writeSchedulesToClipboard(schedules);
    QCOMPARE(changes.count(), 2);
    data = QGuiApplication::clipboard()->mimeData();
    QCOMPARE(data->formats(), QStringList{scheduleFormat()});
    QCOMPARE(data->data(scheduleFormat()), ZvScheduleClipboard::schedulesToXml(schedules));
    QVERIFY(!ZvScheduleClipboard::hasTimeData());
    QVERIFY(ZvScheduleClipboard::hasScheduleData());
    QCOMPARE(ZvScheduleClipboard::readSchedulesFromClipboard().size(), 1);
    QCOMPARE(ZvScheduleClipboard::readTimesFromClipboard(), QList<ZvTime>());
}

void tst_ZvScheduleClipboard::emptyListsLeaveTheClipboard()
{
    QGuiApplication::clipboard()->setText(QStringLiteral("mine"));
    QSignalSpy changes(QGuiApplication::clipboard(), SIGNAL(dataChanged()));
    ZvScheduleClipboard::writeTimesToClipboard({});
    ZvScheduleClipboard::writeSchedulesToClipboard({});
    QCOMPARE(changes.count(), 0);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("mine"));
}

void tst_ZvScheduleClipboard::emptyClipboard()
{
    QVERIFY(!ZvScheduleClipboard::hasTimeData());
    QVERIFY(!ZvScheduleClipboard::hasScheduleData());
    QCOMPARE(ZvScheduleClipboard::readTimesFromClipboard(), QList<ZvTime>());
    QCOMPARE(ZvScheduleClipboard::readSchedulesFromClipboard(), QList<ZvSchedule>());
}

void tst_ZvScheduleClipboard::otherFormats()
{
    const QByteArray xml = ZvScheduleClipboard::timesToXml(twoBands);
    for (const char *format : {"text/plain", "text/xml", "application/octet-stream"}) {
        putOnClipboard(QLatin1String(format), xml);
        QVERIFY(!ZvScheduleClipboard::hasTimeData());
        QVERIFY(!ZvScheduleClipboard::hasScheduleData());
        QCOMPARE(ZvScheduleClipboard::readTimesFromClipboard(), QList<ZvTime>());
    }
}

void tst_ZvScheduleClipboard::formatWithoutContent()
{
    putOnClipboard(timeFormat(), "nothing of ours");
    QVERIFY(ZvScheduleClipboard::hasTimeData());
    QCOMPARE(ZvScheduleClipboard::readTimesFromClipboard(), QList<ZvTime>());
    putOnClipboard(scheduleFormat(), ZvScheduleClipboard::timesToXml(twoBands));
    QVERIFY(ZvScheduleClipboard::hasScheduleData());
    QCOMPARE(ZvScheduleClipboard::readSchedulesFromClipboard(), QList<ZvSchedule>());
}

void tst_ZvScheduleClipboard::largeListsRoundTrip()
{
    QList<ZvTime> times;
    for (int second = 0; second < ZvScheduleClipboard::MaximumTimeCount; ++second) {
        times.append(ZvTime(QTime::fromMSecsSinceStartOfDay(second * 4000),
                            QTime::fromMSecsSinceStartOfDay(second * 4000 + 4000),
                            QStringLiteral("a.xml")));
    }
    QCOMPARE(ZvScheduleClipboard::xmlToTimes(ZvScheduleClipboard::timesToXml(times)), times);
    QList<ZvSchedule> schedules;
    for (int day = 0; day < 1000; ++day)
        schedules.append(dateSchedule(QDate(2026, 1, 1).addDays(day), QStringLiteral("d.xml"),
                                      times.mid(day, 20)));
    const QList<ZvSchedule> read =
        ZvScheduleClipboard::xmlToSchedules(ZvScheduleClipboard::schedulesToXml(schedules));
    QCOMPARE(read.size(), schedules.size());
    for (int day = 0; day < schedules.size(); ++day) {
        QCOMPARE(read.at(day).date(), schedules.at(day).date());
        QCOMPARE(read.at(day).timeList(), schedules.at(day).timeList());
    }
}

QTEST_MAIN(tst_ZvScheduleClipboard)
#include "tst_zvscheduleclipboard.moc"
