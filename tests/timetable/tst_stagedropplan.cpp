#include "timetable/StageDropPlan.h"

#include "timetable/TimeAxis.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace Zavo;

Q_DECLARE_METATYPE(Zavo::StageDropPlan::Refusal)

namespace {

constexpr double stripTop = 10.0;
constexpr double stripBottom = 1450.0;

using Times = QList<ZvTime>;

QTime at(const char *text)
{
    const QString string = QString::fromLatin1(text);
    return string.size() > 8 ? QTime::fromString(string, QStringLiteral("hh:mm:ss.zzz"))
                             : QTime::fromString(string, QStringLiteral("hh:mm:ss"));
}

StageDropPlan::Span span(const char *start, const char *end)
{
    const QTime last = at(end);
    return {stripTop + TimeAxis::unitsOf(at(start)),
            TimeAxis::isEndOfDay(last) ? stripBottom : stripTop + TimeAxis::unitsOf(last)};
}

QStringList stages(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i)
        names.append(QStringLiteral("%1.xml").arg(i));
    return names;
}

StageDropPlan planFor(QTime start, int count, const QVector<StageDropPlan::Span> &bands)
{
    return StageDropPlan(start, stages(count), bands, stripTop, stripBottom);
}

} // namespace

Q_DECLARE_METATYPE(QVector<Zavo::StageDropPlan::Span>)

class tst_StageDropPlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void divides_data();
    void divides();
    void refuses_data();
    void refuses();
    void refusesLateBeforeOccupied();
    void noStages();
    void keepsNamesInOrder();
    void leavesAnEmptyLastBand();
    void stretchesOnlyBelowTheTailLimit_data();
    void stretchesOnlyBelowTheTailLimit();
    void endsAllWrappingBandsAtTheEndOfTheDay();
    void randomGapsAreFilledWithoutOverlap();
};

void tst_StageDropPlan::divides_data()
{
    using Bands = QVector<StageDropPlan::Span>;
    QTest::addColumn<QTime>("start");
    QTest::addColumn<Bands>("bands");
    // The starts of all bands and the end of the last, which adjoin.
    QTest::addColumn<QList<QTime>>("edges");

    QTest::newRow("one stage gets an hour")
        << at("08:00:00") << Bands() << QList<QTime>{at("08:00:00"), at("09:00:00")};
    QTest::newRow("three stages get an hour each")
        << at("08:00:00") << Bands()
        << QList<QTime>{at("08:00:00"), at("09:00:00"), at("10:00:00"), at("11:00:00")};
    QTest::newRow("three stages share the gap")
        << at("08:00:00") << Bands{span("09:30:00", "12:00:00")}
        << QList<QTime>{at("08:00:00"), at("08:30:00"), at("09:00:00"), at("09:30:00")};
    QTest::newRow("bands before do not matter")
        << at("08:00:00")
        << Bands{span("00:00:00", "01:00:00"), span("02:00:00", "07:59:59"),
                 span("08:30:00", "09:00:00")}
        << QList<QTime>{at("08:00:00"), at("08:30:00")};
    QTest::newRow("at the end of a band") << at("08:00:00") << Bands{span("07:00:00", "08:00:00")}
                                          << QList<QTime>{at("08:00:00"), at("09:00:00")};
    QTest::newRow("last hour of the day")
        << at("23:00:00") << Bands() << QList<QTime>{at("23:00:00"), at("23:59:59.999")};
    QTest::newRow("last six seconds of the day")
        << at("23:59:54") << Bands() << QList<QTime>{at("23:59:54"), at("23:59:59.999")};
    QTest::newRow("last millisecond that is early enough")
        << at("23:59:54.999") << Bands() << QList<QTime>{at("23:59:54.999"), at("23:59:59.999")};
    QTest::newRow("midnight") << at("00:00:00") << Bands()
                              << QList<QTime>{at("00:00:00"), at("01:00:00")};
    QTest::newRow("three seconds over an hour")
        << at("08:00:00") << Bands{span("09:00:03", "10:00:00")}
        << QList<QTime>{at("08:00:00"), at("09:00:03")};
    QTest::newRow("a gap of one second") << at("08:00:00") << Bands{span("08:00:01", "10:00:00")}
                                         << QList<QTime>{at("08:00:00"), at("08:00:01")};
    QTest::newRow("between two bands that are out of order")
        << at("08:00:00") << Bands{span("10:00:00", "11:00:00"), span("09:00:00", "10:00:00")}
        << QList<QTime>{at("08:00:00"), at("09:00:00")};
}

void tst_StageDropPlan::divides()
{
    QFETCH(QTime, start);
    QFETCH(QVector<StageDropPlan::Span>, bands);
    QFETCH(QList<QTime>, edges);
    const int count = edges.size() - 1;
    const StageDropPlan plan = planFor(start, count, bands);
    QCOMPARE(plan.refusal(), StageDropPlan::NotRefused);
    QCOMPARE(plan.times().size(), count);
    for (int i = 0; i < count; ++i) {
        const ZvTime expected(edges.at(i), edges.at(i + 1), stages(count).at(i));
        QCOMPARE(plan.times().at(i), expected);
    }
    QCOMPARE(plan.times().first().startTime(), edges.first());
    if (edges.last() == TimeAxis::endOfDay())
        QCOMPARE(plan.times().last().endTime(), edges.last());
}

void tst_StageDropPlan::refuses_data()
{
    using Bands = QVector<StageDropPlan::Span>;
    QTest::addColumn<QTime>("start");
    QTest::addColumn<int>("count");
    QTest::addColumn<Bands>("bands");
    QTest::addColumn<StageDropPlan::Refusal>("refusal");
    const Bands morning{span("08:00:00", "09:00:00")};

    QTest::newRow("five seconds before midnight")
        << at("23:59:55") << 1 << Bands() << StageDropPlan::TooLate;
    QTest::newRow("end of the day") << at("23:59:59.999") << 1 << Bands() << StageDropPlan::TooLate;
    QTest::newRow("inside a band") << at("08:30:00") << 1 << morning << StageDropPlan::Occupied;
    QTest::newRow("a millisecond after a start")
        << at("08:00:00.001") << 1 << morning << StageDropPlan::Occupied;
    QTest::newRow("a millisecond before an end")
        << at("08:59:59.999") << 1 << morning << StageDropPlan::Occupied;
    QTest::newRow("at a start") << at("08:00:00") << 1 << morning << StageDropPlan::TooNarrow;
    QTest::newRow("between adjoining bands")
        << at("09:00:00") << 1 << Bands{morning.first(), span("09:00:00", "10:00:00")}
        << StageDropPlan::TooNarrow;
    QTest::newRow("less than 0.2 seconds")
        << at("07:59:59.801") << 1 << morning << StageDropPlan::TooNarrow;
    QTest::newRow("one second for six")
        << at("07:59:59") << 6 << morning << StageDropPlan::TooNarrow;
    QTest::newRow("0.3 seconds") << at("07:59:59.700") << 1 << morning << StageDropPlan::NotRefused;
    QTest::newRow("one second for four")
        << at("07:59:59") << 4 << morning << StageDropPlan::NotRefused;
}

void tst_StageDropPlan::refuses()
{
    QFETCH(QTime, start);
    QFETCH(int, count);
    QFETCH(QVector<StageDropPlan::Span>, bands);
    QFETCH(StageDropPlan::Refusal, refusal);
    const StageDropPlan plan = planFor(start, count, bands);
    QCOMPARE(plan.refusal(), refusal);
    QCOMPARE(plan.times().size(), refusal == StageDropPlan::NotRefused ? count : 0);
}

void tst_StageDropPlan::refusesLateBeforeOccupied()
{
    const QVector<StageDropPlan::Span> evening{span("20:00:00", "23:59:59.999")};
    QCOMPARE(planFor(at("23:59:57"), 1, evening).refusal(), StageDropPlan::TooLate);
    QCOMPARE(planFor(at("23:59:54"), 1, evening).refusal(), StageDropPlan::Occupied);
}

void tst_StageDropPlan::noStages()
{
    const QVector<StageDropPlan::Span> bands{span("08:00:00", "09:00:00")};
    QCOMPARE(planFor(at("07:00:00"), 0, bands).refusal(), StageDropPlan::NotRefused);
    QVERIFY(planFor(at("07:00:00"), 0, bands).times().isEmpty());
    QCOMPARE(planFor(at("08:00:00"), 0, bands).refusal(), StageDropPlan::NotRefused);
    QCOMPARE(planFor(at("08:30:00"), 0, bands).refusal(), StageDropPlan::Occupied);
    QCOMPARE(planFor(at("23:59:55"), 0, bands).refusal(), StageDropPlan::TooLate);
}

void tst_StageDropPlan::keepsNamesInOrder()
{
    const QStringList names{QStringLiteral("z.xml"), QStringLiteral("sub/a.zstg"),
                            QStringLiteral("z.xml")};
    const StageDropPlan plan(at("08:00:00"), names, {}, stripTop, stripBottom);
    QStringList planned;
    for (const ZvTime &time : plan.times())
        planned.append(time.stageName());
    QCOMPARE(planned, names);
}

void tst_StageDropPlan::leavesAnEmptyLastBand()
{
    const StageDropPlan plan = planFor(at("08:00:00"), 3, {span("08:00:12", "09:00:00")});
    QCOMPARE(plan.times().size(), 3);
    QCOMPARE(plan.times().at(0), ZvTime(at("08:00:00"), at("08:00:04"), QStringLiteral("0.xml")));
    QCOMPARE(plan.times().at(1), ZvTime(at("08:00:04"), at("08:00:12"), QStringLiteral("1.xml")));
    QCOMPARE(plan.times().at(2), ZvTime(at("08:00:12"), at("08:00:12"), QStringLiteral("2.xml")));
    QCOMPARE(plan.times().at(2).startTime(), plan.times().at(2).endTime());
}

void tst_StageDropPlan::stretchesOnlyBelowTheTailLimit_data()
{
    QTest::addColumn<QTime>("nextStart");
    QTest::addColumn<QTime>("end");
    QTest::newRow("nothing left") << at("09:00:00") << at("09:00:00");
    QTest::newRow("three seconds left") << at("09:00:03") << at("09:00:03");
    QTest::newRow("4.9 seconds left") << at("09:00:04.900") << at("09:00:04.900");
    QTest::newRow("5.1 seconds left") << at("09:00:05.100") << at("09:00:00");
    QTest::newRow("a minute left") << at("09:01:00") << at("09:00:00");
}

void tst_StageDropPlan::stretchesOnlyBelowTheTailLimit()
{
    QFETCH(QTime, nextStart);
    QFETCH(QTime, end);
    const double top = stripTop + TimeAxis::unitsOf(nextStart);
    const StageDropPlan plan = planFor(at("08:00:00"), 1, {{top, top + 60.0}});
    QCOMPARE(plan.times(), Times{ZvTime(at("08:00:00"), end, QStringLiteral("0.xml"))});
}

void tst_StageDropPlan::endsAllWrappingBandsAtTheEndOfTheDay()
{
    const StageDropPlan plan = planFor(at("23:59:48"), 3, {});
    QCOMPARE(plan.times().size(), 3);
    QCOMPARE(plan.times().at(0), ZvTime(at("23:59:48"), at("23:59:52"), QStringLiteral("0.xml")));
    QCOMPARE(plan.times().at(1).endTime(), at("23:59:59.999"));
    QCOMPARE(plan.times().at(2).startTime(), at("23:59:59.999"));
    QCOMPARE(plan.times().at(2).endTime(), at("23:59:59.999"));
}

void tst_StageDropPlan::randomGapsAreFilledWithoutOverlap()
{
    QRandomGenerator random(4711);
    for (int round = 0; round < 5000; ++round) {
        const int startMs = random.bounded(TimeAxis::millisecondsPerDay - 5000);
        const int gapEndMs =
            qMin(startMs + random.bounded(1, 20000000), TimeAxis::millisecondsPerDay);
        const int count = random.bounded(1, 40);
        const QTime start = QTime::fromMSecsSinceStartOfDay(startMs);
        QVector<StageDropPlan::Span> bands;
        if (gapEndMs < TimeAxis::millisecondsPerDay)
            bands.append({stripTop + gapEndMs / 60000.0, stripBottom});
        const StageDropPlan plan = planFor(start, count, bands);
        if (plan.refusal() == StageDropPlan::TooNarrow) {
            QVERIFY((gapEndMs - startMs) / count <= 200);
            continue;
        }
        QCOMPARE(plan.times().size(), count);
        QTime previousEnd = start;
        for (const ZvTime &time : plan.times()) {
            QCOMPARE(time.startTime(), previousEnd);
            QVERIFY(time.endTime() >= time.startTime());
            QVERIFY(time.startTime().msecsTo(time.endTime()) <= 3600000 + 5000);
            QVERIFY(time.endTime().msecsSinceStartOfDay() <= gapEndMs);
            previousEnd = time.endTime();
        }
    }
}

QTEST_MAIN(tst_StageDropPlan)
#include "tst_stagedropplan.moc"
