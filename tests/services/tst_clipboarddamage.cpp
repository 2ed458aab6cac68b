#include "services/ZvScheduleClipboard.h"

#include "ClipboardText.h"

#include "ZvEditorCommon.h"

#include <QtTest>

#include <ctime>

using namespace Zavo;
using namespace ZavoTest;

namespace {

const QByteArray element = QByteArrayLiteral("<Time Stage=\"a\" Start=\"08:00\" End=\"09:00\"/>");
const QByteArray enabled = QByteArrayLiteral("<Schedule Enabled=\"true\" DefaultStage=\"d\"/>");
constexpr int mebibyte = 1024 * 1024;

/// How much larger the larger of two payloads is, and how many times longer than that it may take:
/// more than chance adds, and far less than a walk over all pairs would.
constexpr int growth = 8;
constexpr int patience = 3;

QByteArray timeData(const QByteArray &content)
{
    return "<TimeData>" + content + "</TimeData>";
}

QByteArray scheduleList(const QByteArray &content)
{
    return "<ScheduleList>" + content + "</ScheduleList>";
}

QByteArray attributes(int count)
{
    QByteArray text;
    for (int i = 0; i < count; ++i)
        text += " a" + QByteArray::number(i) + "=''";
    return text;
}

} // namespace

/// Payloads that nobody of ours wrote, or that did not arrive whole.
class tst_ClipboardDamage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void truncatedAtEveryByte();
    void truncatedSchedulesAtEveryByte();
    void everyByteDamaged();
    void keepsWhatCameBefore_data();
    void keepsWhatCameBefore();
    void schedulesKeepWhatCameBefore_data();
    void schedulesKeepWhatCameBefore();
    void deepNesting();
    void bandsAtTheLimit();
    void bandsOfAScheduleAtTheLimit();
    void schedulesAtTheLimit();
    void sizeAtTheLimit();
    void linearInItsSize_data();
    void linearInItsSize();
    void damageOnTheClipboard();
};

void tst_ClipboardDamage::truncatedAtEveryByte()
{
    const QList<ZvTime> times{band("08:00:00", "09:00:00", "a<b.xml"),
                              band("10:00:00", "11:00:00", "b.xml"),
                              band("12:00:00", "13:00:00", "c.xml")};
    const QByteArray xml = ZvScheduleClipboard::timesToXml(times);
    int last = 0;
    for (int size = 0; size <= xml.size(); ++size) {
        const QList<ZvTime> read = ZvScheduleClipboard::xmlToTimes(xml.left(size));
        // Whole bands from the front, and the more the longer.
        QCOMPARE(read, times.mid(0, read.size()));
        QVERIFY2(read.size() >= last, QByteArray::number(size).constData());
        last = read.size();
    }
    QCOMPARE(last, 3);
}

void tst_ClipboardDamage::truncatedSchedulesAtEveryByte()
{
    ZvSchedule schedule;
    schedule.setType(ZvSchedule::Default);
    schedule.setDefaultStage(QStringLiteral("d.xml"));
    schedule.setTimeList({band("08:00:00", "09:00:00"), band("10:00:00", "11:00:00", "b.xml")});
    const QByteArray xml = ZvScheduleClipboard::schedulesToXml({schedule, ZvSchedule(), schedule});
    int last = 0;
    for (int size = 0; size <= xml.size(); ++size) {
        const QList<ZvSchedule> read = ZvScheduleClipboard::xmlToSchedules(xml.left(size));
        QVERIFY2(read.size() >= last, QByteArray::number(size).constData());
        last = read.size();
        for (int i = 0; i < read.size(); ++i) {
            QCOMPARE(read.at(i).isEmpty(), i == 1);
            QCOMPARE(read.at(i).defaultStage(), i == 1 ? QString() : QStringLiteral("d.xml"));
            const QList<ZvTime> &bands = read.at(i).timeList();
            QCOMPARE(bands, schedule.timeList().mid(0, bands.size()));
        }
    }
    QCOMPARE(last, 3);
}

void tst_ClipboardDamage::everyByteDamaged()
{
    const QByteArray xml = ZvScheduleClipboard::timesToXml({band("08:00:00", "09:00:00", "a.xml")});
    for (int i = 0; i < xml.size(); ++i) {
        for (const char byte : {'\0', '<', '>', '&', '"', '\x80', '\xff'}) {
            QByteArray damaged = xml;
            damaged[i] = byte;
            QVERIFY(ZvScheduleClipboard::xmlToTimes(damaged).size() <= 1);
            QVERIFY(ZvScheduleClipboard::xmlToSchedules(damaged).isEmpty());
        }
    }
}

void tst_ClipboardDamage::keepsWhatCameBefore_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<int>("count");
    const auto row = [](const char *name, const QByteArray &xml, int count) {
        QTest::newRow(name) << xml << count;
    };
    const auto between = [](const QByteArray &damage) {
        return timeData(element + damage + element);
    };
    row("nothing", QByteArray(), 0);
    row("blanks", " \n ", 0);
    row("text", "08:00 - 09:00 a.xml", 0);
    row("binary", QByteArray(1000, '\xfe'), 0);
    row("zeros", QByteArray(1000, '\0'), 0);
    row("NUL between", between(QByteArray(1, '\0')), 1);
    row("NUL in a value", between(QByteArray("<Time Stage=\"\0\"/>", 17)), 1);
    // Decoding comes before parsing, so nothing is kept.
    row("invalid UTF-8 between", xmlHead + between("\xc3\x28"), 0);
    row("invalid UTF-8 in a value", xmlHead + between("<Time Stage=\"\xff\"/>"), 0);
    row("wrong end", timeData(element + "</Other>" + element), 1);
    row("second root", timeData(element) + timeData(element), 1);
    row("same attribute twice", between("<Time Stage=\"a\" Stage=\"b\"/>"), 1);
    row("unknown entity", between("&unknown;"), 1);
    row("unknown entity in a value", between("<Time Stage=\"&unknown;\"/>"), 1);
    row("character that cannot be", between("&#0;"), 1);
    row("DTD", "<!DOCTYPE TimeData>" + timeData(element), 0);
    row("entities",
        "<!DOCTYPE T [<!ENTITY a \"" + QByteArray(1000, 'x') +
            "\"><!ENTITY b "
            "\"&a;&a;&a;&a;&a;&a;&a;&a;\">]><T>&b;" +
            element + "</T>",
        0);
    row("entity for a file",
        "<!DOCTYPE T [<!ENTITY f SYSTEM \"file:///etc/passwd\">]><T>&f;" + element + "</T>", 0);
    row("unknown encoding", "<?xml version=\"1.0\" encoding=\"moon\"?>" + timeData(element), 0);
    row("unknown version", "<?xml version=\"7.0\"?>" + timeData(element), 0);
}

void tst_ClipboardDamage::keepsWhatCameBefore()
{
    QFETCH(QByteArray, xml);
    QFETCH(int, count);
    QCOMPARE(ZvScheduleClipboard::xmlToTimes(xml).size(), count);
    QCOMPARE(ZvScheduleClipboard::xmlToSchedules(xml).size(), 0);
}

void tst_ClipboardDamage::schedulesKeepWhatCameBefore_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<int>("count");
    const auto row = [](const char *name, const QByteArray &xml, int count) {
        QTest::newRow(name) << xml << count;
    };
    row("NUL between", scheduleList(enabled + QByteArray(1, '\0') + enabled), 1);
    row("invalid UTF-8", xmlHead + scheduleList(enabled + "\xff" + enabled), 0);
    row("wrong end", scheduleList(enabled + "</Schedule>" + enabled), 1);
    row("end of the list", scheduleList(enabled) + scheduleList(enabled), 1);
    row("broken within a schedule",
        scheduleList(enabled + "<Schedule Enabled=\"true\"><TimeData>" + element + "<"), 2);
    row("DTD", "<!DOCTYPE ScheduleList>" + scheduleList(enabled), 0);
    row("root of bands", timeData(enabled), 0);
    row("other root", "<schedulelist>" + enabled + "</schedulelist>", 0);
}

void tst_ClipboardDamage::schedulesKeepWhatCameBefore()
{
    QFETCH(QByteArray, xml);
    QFETCH(int, count);
    QCOMPARE(ZvScheduleClipboard::xmlToSchedules(xml).size(), count);
}

void tst_ClipboardDamage::deepNesting()
{
    for (const int depth : {20, 1000, 1000000}) {
        const QByteArray inside = timeData(element + QByteArray("<a>").repeated(depth) + element);
        QCOMPARE(ZvScheduleClipboard::xmlToTimes(inside).size(), 1);
        const QByteArray schedules =
            scheduleList(enabled + QByteArray("<Schedule>").repeated(depth) + enabled);
        QVERIFY(ZvScheduleClipboard::xmlToSchedules(schedules).size() < 20);
        QVERIFY(ZvScheduleClipboard::xmlToSchedules(QByteArray("<a>").repeated(depth) +
                                                    scheduleList(enabled))
                    .isEmpty());
    }
}

void tst_ClipboardDamage::bandsAtTheLimit()
{
    const int limit = ZvScheduleClipboard::MaximumTimeCount;
    QCOMPARE(ZvScheduleClipboard::xmlToTimes(timeData(element.repeated(limit))).size(), limit);
    QCOMPARE(ZvScheduleClipboard::xmlToTimes(timeData(element.repeated(limit + 1))).size(), 0);
}

void tst_ClipboardDamage::bandsOfAScheduleAtTheLimit()
{
    const int limit = ZvScheduleClipboard::MaximumTimeCount;
    const auto xml = [](int count) {
        return scheduleList(enabled + "<Schedule Enabled=\"true\">" +
                            timeData(element.repeated(count)) + "</Schedule>" + enabled);
    };
    const QList<ZvSchedule> schedules = ZvScheduleClipboard::xmlToSchedules(xml(limit));
    QCOMPARE(schedules.size(), 3);
    QCOMPARE(schedules.at(1).timeList().size(), limit);
    QCOMPARE(ZvScheduleClipboard::xmlToSchedules(xml(limit + 1)), QList<ZvSchedule>());
}

void tst_ClipboardDamage::schedulesAtTheLimit()
{
    const int limit = ZvScheduleClipboard::MaximumScheduleCount;
    for (const QByteArray &schedule : {enabled, QByteArray("<Schedule/>")}) {
        QCOMPARE(ZvScheduleClipboard::xmlToSchedules(scheduleList(schedule.repeated(limit))).size(),
                 limit);
        QCOMPARE(
            ZvScheduleClipboard::xmlToSchedules(scheduleList(schedule.repeated(limit + 1))).size(),
            0);
    }
}

void tst_ClipboardDamage::sizeAtTheLimit()
{
    const QByteArray times = timeData(element);
    const QByteArray schedules = scheduleList(enabled);
    const auto filled = [](const QByteArray &xml, int size) {
        QByteArray comment(size - xml.size(), 'x');
        comment.replace(0, 4, "<!--").replace(comment.size() - 3, 3, "-->");
        for (int i = 1024; i + 1024 < comment.size(); i += 1024)
            comment[i] = '<';
        return xml + comment;
    };
    const int limit = 64 * mebibyte;
    QCOMPARE(ZvScheduleClipboard::xmlToTimes(filled(times, limit)).size(), 1);
    QCOMPARE(ZvScheduleClipboard::xmlToTimes(filled(times, limit + 1)).size(), 0);
    QCOMPARE(ZvScheduleClipboard::xmlToSchedules(filled(schedules, limit)).size(), 1);
    QCOMPARE(ZvScheduleClipboard::xmlToSchedules(filled(schedules, limit + 1)).size(), 0);
}

void tst_ClipboardDamage::linearInItsSize_data()
{
    // What comes first, and what is repeated behind it.
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<QByteArray>("piece");
    QTest::addColumn<int>("size");
    const auto row = [](const char *name, const QByteArray &piece, const QByteArray &head = {},
                        int size = 8) { QTest::newRow(name) << head << piece << size * mebibyte; };
    row("bands that are none", "<Time/>", {}, 50);
    row("strangers", "<a>text</a>");
    row("open elements", "<a>");
    row("comments", "<!-- -->");
    row("instructions", "<?x?>");
    row("text", "text ");
    row("tags", "<");
    row("ends", "</a>");
    row("references", "&amp;");
    row("one value", "x", "<a b=\"", 50);
    row("one name", "x", "<");
    row("100,000 attributes", " ", "<a" + attributes(100000) + "/>");
    row("some attributes on each of many", "<a" + attributes(16) + "/>");
    row("many attributes on each of many", "<a" + attributes(7500) + "/>");
    QByteArray declarations;
    for (int depth = 10; depth < 20; ++depth) {
        declarations += "<x" +
                        attributes(16)
                            .replace(" a", " xmlns:a" + QByteArray::number(depth))
                            .replace("''", "'u'") +
                        ">";
    }
    row("a search among many prefixes", "<a100:a/>", declarations);
}

void tst_ClipboardDamage::linearInItsSize()
{
    QFETCH(QByteArray, head);
    QFETCH(QByteArray, piece);
    QFETCH(int, size);
    const auto processorTime = [&](int bytes) {
        const QByteArray content = head + piece.repeated(bytes / piece.size());
        const std::clock_t start = std::clock();
        [&] {
            QVERIFY(ZvScheduleClipboard::xmlToTimes(timeData(element + content)).size() <= 1);
            QVERIFY(ZvScheduleClipboard::xmlToSchedules(scheduleList(enabled + content)).size() <=
                    1);
        }();
        return std::clock() - start;
    };
    const std::clock_t part = processorTime(size / growth);
    const std::clock_t whole = processorTime(size);
    // The clock of what is read in no time is a coarse one.
    const std::clock_t most = patience * growth * part + CLOCKS_PER_SEC;
    QVERIFY2(whole <= most, qPrintable(QStringLiteral("%1 after %2").arg(whole).arg(part)));
}

void tst_ClipboardDamage::damageOnTheClipboard()
{
    putOnClipboard(ZvEditorCommon::MIME_TYPE_TIME_DATA,
                   "<TimeData>" + element + "<Time Stage=\"b\" Start=\"10:0");
    QVERIFY(ZvScheduleClipboard::hasTimeData());
    QCOMPARE(ZvScheduleClipboard::readTimesFromClipboard().size(), 1);
    putOnClipboard(ZvEditorCommon::MIME_TYPE_SCHEDULE_DATA, QByteArray(65 * mebibyte, '<'));
    QVERIFY(ZvScheduleClipboard::hasScheduleData());
    QCOMPARE(ZvScheduleClipboard::readSchedulesFromClipboard(), QList<ZvSchedule>());
}

QTEST_MAIN(tst_ClipboardDamage)
#include "tst_clipboarddamage.moc"
