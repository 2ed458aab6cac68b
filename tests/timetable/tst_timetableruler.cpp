#include "timetable/TimeTableRuler.h"

#include "TimeTableFixture.h"

#include <QtTest>

using namespace Zavo;

Q_DECLARE_METATYPE(Zavo::TimeTableRulerLine::Kind)

namespace {

/// What the ruler shows at the time @p seconds after midnight, worked out from the time alone.
TimeTableRulerLine::Kind kindAt(int seconds)
{
    const int minuteOfDay = seconds / 60;
    if (minuteOfDay % 60 != 0)
        return TimeTableRulerLine::Part;
    return minuteOfDay % (12 * 60) == 0 ? TimeTableRulerLine::HalfDay : TimeTableRulerLine::Hour;
}

QString textAt(int seconds)
{
    const int minuteOfDay = seconds / 60;
    return QStringLiteral("%1:%2")
        .arg(minuteOfDay / 60, 2, 10, QLatin1Char('0'))
        .arg(minuteOfDay % 60, 2, 10, QLatin1Char('0'));
}

QStringList textsOf(const QList<ZvTimeTableTimeLabelInfo> &labels)
{
    QStringList texts;
    for (const ZvTimeTableTimeLabelInfo &label : labels)
        texts.append(label.text());
    return texts;
}

const ZvTimeTableTimeLabelInfo *labelOf(const TimeTableRuler &ruler, const QString &text)
{
    const auto found = std::find_if(
        ruler.labels().cbegin(), ruler.labels().cend(),
        [&text](const ZvTimeTableTimeLabelInfo &label) { return label.text() == text; });
    return found == ruler.labels().cend() ? nullptr : &*found;
}

const TimeTableRulerLine *lineOf(const TimeTableRuler &ruler, QTime time)
{
    const auto found =
        std::find_if(ruler.lines().cbegin(), ruler.lines().cend(),
                     [time](const TimeTableRulerLine &line) { return line.time == time; });
    return found == ruler.lines().cend() ? nullptr : &*found;
}

} // namespace

class tst_TimeTableRuler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void standsEveryThirtyPixels_data() { addScales(); }
    void standsEveryThirtyPixels();
    void labelsWhatThereIsRoomFor_data() { addScales(); }
    void labelsWhatThereIsRoomFor();
    void endsWithTwentyFour_data() { addScales(); }
    void endsWithTwentyFour();
    void twoHoursApartAtAQuarter();
    void halfHoursWithoutLabelsAtOne();
    void quarterHoursWithLabelsAtTwo();
    void oneTextAMinuteAtSixty();
    void labelsPartsFromTwoOn_data();
    void labelsPartsFromTwoOn();
    void cutsTheStepToSeconds();
    void standsScalesWithoutLines_data();
    void standsScalesWithoutLines();

private:
    static void addScales();
};

void tst_TimeTableRuler::addScales()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("stepSeconds");
    QTest::newRow("25%") << 0.25 << 120 * 60;
    QTest::newRow("50%") << 0.5 << 60 * 60;
    QTest::newRow("100%") << 1.0 << 30 * 60;
    QTest::newRow("200%") << 2.0 << 15 * 60;
    QTest::newRow("300%") << 3.0 << 10 * 60;
    QTest::newRow("600%") << 6.0 << 5 * 60;
    QTest::newRow("1000%") << 10.0 << 3 * 60;
    QTest::newRow("1500%") << 15.0 << 2 * 60;
    QTest::newRow("3000%") << 30.0 << 60;
    QTest::newRow("6000%") << 60.0 << 30;
}

void tst_TimeTableRuler::standsEveryThirtyPixels()
{
    QFETCH(double, scale);
    QFETCH(int, stepSeconds);
    const TimeTableRuler ruler(scale);
    QCOMPARE(ruler.verticalScale(), scale);
    QCOMPARE(ruler.lines().size(), 86400 / stepSeconds + 1);
    for (int i = 0; i < ruler.lines().size(); ++i) {
        const TimeTableRulerLine &line = ruler.lines().at(i);
        const int seconds = i * stepSeconds;
        QVERIFY2(line.y == 10.0 + seconds / 60.0, qPrintable(textAt(seconds)));
        QCOMPARE(line.time, QTime(0, 0).addSecs(seconds));
        QCOMPARE(line.kind, kindAt(seconds));
        QCOMPARE(line.isLast, seconds == 86400);
    }
}

void tst_TimeTableRuler::labelsWhatThereIsRoomFor()
{
    QFETCH(double, scale);
    QFETCH(int, stepSeconds);
    QList<ZvTimeTableTimeLabelInfo> expected;
    for (int seconds = 0; seconds <= 86400; seconds += stepSeconds) {
        const bool onTheHour = seconds % 3600 == 0;
        if (seconds % 60 == 0 && (onTheHour || scale >= 2.0))
            expected.append(
                {QPointF(onTheHour ? 0.0 : 1.0, 10.0 + seconds / 60.0), textAt(seconds)});
    }
    const TimeTableRuler ruler(scale);
    QCOMPARE(textsOf(ruler.labels()), textsOf(expected));
    for (int i = 0; i < expected.size(); ++i) {
        QVERIFY2(ruler.labels().at(i).pos().x() == expected.at(i).pos().x() &&
                     ruler.labels().at(i).pos().y() == expected.at(i).pos().y(),
                 qPrintable(expected.at(i).text()));
    }
}

void tst_TimeTableRuler::endsWithTwentyFour()
{
    QFETCH(double, scale);
    const TimeTableRuler ruler(scale);
    QVERIFY(ruler.lines().last().isLast);
    QCOMPARE(ruler.lines().last().y, 1450.0);
    QCOMPARE(ruler.lines().last().kind, TimeTableRulerLine::HalfDay);
    QCOMPARE(ruler.labels().last().text(), QStringLiteral("24:00"));
    QCOMPARE(ruler.labels().last().pos(), QPointF(0.0, 1450.0));
}

void tst_TimeTableRuler::twoHoursApartAtAQuarter()
{
    const TimeTableRuler ruler(0.25);
    QCOMPARE(textsOf(ruler.labels()).join(QLatin1Char(' ')),
             QStringLiteral("00:00 02:00 04:00 06:00 08:00 10:00 12:00 14:00 16:00 18:00 20:00 "
                            "22:00 24:00"));
    QCOMPARE(ruler.lines().size(), 13);
    QVERIFY(!lineOf(ruler, QTime(1, 0)));
}

void tst_TimeTableRuler::halfHoursWithoutLabelsAtOne()
{
    const TimeTableRuler ruler(1.0);
    const TimeTableRulerLine *halfHour = lineOf(ruler, QTime(9, 30));
    QVERIFY(halfHour);
    QCOMPARE(halfHour->kind, TimeTableRulerLine::Part);
    QVERIFY(!labelOf(ruler, QStringLiteral("09:30")));
    QVERIFY(labelOf(ruler, QStringLiteral("09:00")));
    QCOMPARE(ruler.labels().size(), 25);
}

void tst_TimeTableRuler::quarterHoursWithLabelsAtTwo()
{
    const TimeTableRuler ruler(2.0);
    const ZvTimeTableTimeLabelInfo *label = labelOf(ruler, QStringLiteral("00:15"));
    QVERIFY(label);
    QCOMPARE(label->pos(), QPointF(1.0, 25.0));
    QCOMPARE(lineOf(ruler, QTime(0, 15))->kind, TimeTableRulerLine::Part);
}

void tst_TimeTableRuler::oneTextAMinuteAtSixty()
{
    const TimeTableRuler ruler(60.0);
    QCOMPARE(ruler.lines().size(), 2881);
    QCOMPARE(ruler.labels().size(), 1441);
    QCOMPARE(ruler.lines().at(1).time, QTime(0, 0, 30));
    QCOMPARE(ruler.lines().at(1).y, 10.5);
    QCOMPARE(ruler.lines().at(2).time, QTime(0, 1));
    QCOMPARE(ruler.labels().at(1).text(), QStringLiteral("00:01"));
    QCOMPARE(ruler.labels().at(1).pos(), QPointF(1.0, ruler.lines().at(2).y));

    // Its minute is 0, so it is a line of the hour.
    const TimeTableRulerLine *afterOne = lineOf(ruler, QTime(1, 0, 30));
    QVERIFY(afterOne);
    QCOMPARE(afterOne->kind, TimeTableRulerLine::Hour);
    QCOMPARE(afterOne->y, 70.5);
    QCOMPARE(lineOf(ruler, QTime(1, 1))->kind, TimeTableRulerLine::Part);
}

void tst_TimeTableRuler::labelsPartsFromTwoOn_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<bool>("labelled");
    QTest::newRow("1.0") << 1.0 << false;
    QTest::newRow("1.5") << 1.5 << false;
    QTest::newRow("just below 2") << 1.999 << false;
    QTest::newRow("2.0") << 2.0 << true;
}

void tst_TimeTableRuler::labelsPartsFromTwoOn()
{
    QFETCH(double, scale);
    QFETCH(bool, labelled);
    const TimeTableRuler ruler(scale);
    int parts = 0;
    for (const ZvTimeTableTimeLabelInfo &label : ruler.labels())
        parts += label.pos().x() == 1.0 ? 1 : 0;
    QCOMPARE(parts > 0, labelled);
}

void tst_TimeTableRuler::cutsTheStepToSeconds()
{
    // Lines 30 / 7 units apart, times 257 seconds apart.
    const TimeTableRuler ruler(7.0);
    double y = 10.0;
    for (int i = 0; i < ruler.lines().size(); ++i, y += 30.0 / 7.0) {
        QCOMPARE(ruler.lines().at(i).time, QTime(0, 0).addSecs(i * 257));
        QVERIFY(ruler.lines().at(i).y == y);
    }
    // 336 steps of 257 seconds do not fill the day, so nothing wraps.
    QCOMPARE(ruler.lines().size(), 337);
    QVERIFY(!ruler.lines().last().isLast);
    QVERIFY(!labelOf(ruler, QStringLiteral("24:00")));
}

void tst_TimeTableRuler::standsScalesWithoutLines_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("lineCount");
    QTest::newRow("a line every second") << 1800.0 << 86401;
    QTest::newRow("steps below a second") << 1801.0 << 0;
    QTest::newRow("one line for all the day") << 0.01 << 1;
}

void tst_TimeTableRuler::standsScalesWithoutLines()
{
    QFETCH(double, scale);
    QFETCH(int, lineCount);
    const TimeTableRuler ruler(scale);
    // Adding up a sixtieth leaves the last line a hair above or below the end of the day.
    QVERIFY(qAbs(ruler.lines().size() - lineCount) <= (lineCount > 1 ? 1 : 0));
}

QTEST_APPLESS_MAIN(tst_TimeTableRuler)
#include "tst_timetableruler.moc"
