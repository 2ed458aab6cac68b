#include "BandText.h"
#include "NaiveStrip.h"

#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>

using namespace Zavo;
using ZavoTest::disorderOf;
using ZavoTest::NaiveStrip;
using ZavoTest::textOf;
using ZavoTest::TimeTableFixture;

namespace {

constexpr int day = 86400000; // ms
constexpr int rounds = 1000;
constexpr int mostBands = 60;

QTime timeOf(int milliseconds)
{
    return QTime::fromMSecsSinceStartOfDay(qBound(0, milliseconds, day - 1));
}

} // namespace

/// Thousands of random changes of a strip, each compared with the same change of a naive model.
class tst_StripRandom : public QObject
{
    Q_OBJECT

private:
    QRandomGenerator m_random;
    NaiveStrip m_naive;
    std::unique_ptr<TimeTableFixture> m_table;
    bool m_tidy = true;

    int below(int bound) { return m_random.bounded(bound); }
    ZvTimeTableTimeZoneItem *strip() const { return m_table->strip(); }
    QString stageName() { return QStringLiteral("%1.xml").arg(below(3)); }
    QTime randomTime();
    ZvTime randomBand();
    bool insert();
    bool drop();
    bool remove();
    bool set();
    bool change();
    QString difference() const;

private Q_SLOTS:
    void staysAsTheModel_data();
    void staysAsTheModel();
};

/// A whole second, any millisecond, or one near the edge of a band.
QTime tst_StripRandom::randomTime()
{
    const QList<ZvTime> times = m_naive.times();
    if (!times.isEmpty() && below(2)) {
        const ZvTime &near = times.at(below(times.size()));
        const QTime edge = below(2) ? near.startTime() : near.endTime();
        return timeOf(edge.msecsSinceStartOfDay() + below(14) - 7);
    }
    return below(2) ? timeOf(below(86400) * 1000) : timeOf(below(day));
}

ZvTime tst_StripRandom::randomBand()
{
    const QTime start = randomTime();
    QTime end = below(3) ? timeOf(start.msecsSinceStartOfDay() + below(3600000)) : randomTime();
    if (end < start)
        end = start;
    return ZvTime(start, end, stageName());
}

bool tst_StripRandom::insert()
{
    QList<ZvTime> times;
    NaiveStrip tried = m_naive;
    for (int i = below(4); i >= 0; --i) {
        const ZvTime time = randomBand();
        const bool isLong = time.startTime().msecsTo(time.endTime()) >= 1000;
        if (m_tidy && !(isLong && tried.isFree(time.startTime(), time.endTime())))
            continue;
        tried.insert({time});
        times.append(time);
    }
    const bool expected = m_naive.insert(times);
    return strip()->insertTimeItems(times) == expected;
}

bool tst_StripRandom::drop()
{
    const QTime start = randomTime();
    QStringList names;
    for (int i = below(5); i >= 0; --i)
        names.append(stageName());
    const QList<ZvTime> expected = m_naive.drop(start, names);
    return textOf(strip()->insertStages(start, names)) == textOf(expected);
}

bool tst_StripRandom::remove()
{
    QList<ZvTime> records;
    const QList<ZvTime> times = m_naive.times();
    for (int i = below(6); i >= 0 && !times.isEmpty(); --i) {
        ZvTime record = times.at(below(times.size()));
        if (below(2)) {
            record.setStartTime(timeOf(record.startTime().msecsSinceStartOfDay() + below(14) - 7));
            record.setEndTime(timeOf(record.endTime().msecsSinceStartOfDay() + below(14) - 7));
        }
        records.append(record);
    }
    m_naive.remove(records);
    strip()->removeTimeItems(records);
    return true;
}

bool tst_StripRandom::set()
{
    const int count = m_naive.times().size();
    if (count == 0)
        return true;
    const int index = below(count);
    const ZvTime time = randomBand();
    m_naive.set(index, time);
    strip()->setTimeItemTimes({{index, time}});
    return true;
}

bool tst_StripRandom::change()
{
    if (m_naive.times().size() > mostBands) {
        m_naive.clear();
        strip()->removeAllTimeItems();
        return true;
    }
    switch (below(m_tidy ? 5 : 6)) {
    case 0:
    case 1:
        return insert();
    case 2:
    case 3:
        return drop();
    case 4:
        return remove();
    default:
        return set();
    }
}

QString tst_StripRandom::difference() const
{
    const QStringList actual = m_table->texts();
    const QStringList expected = textOf(m_naive.times());
    if (actual != expected) {
        return QStringLiteral("strip:\n%1\nmodel:\n%2")
            .arg(actual.join(QLatin1Char('\n')), expected.join(QLatin1Char('\n')));
    }
    const QList<ZvTime> times = strip()->times();
    for (int i = 1; m_tidy && i < times.size(); ++i) {
        if (times.at(i).startTime().msecsTo(times.at(i - 1).startTime()) > ZvTime::ToleranceMs)
            return QStringLiteral("out of order at %1").arg(i);
        if (times.at(i).startTime().msecsTo(times.at(i - 1).endTime()) > ZvTime::ToleranceMs)
            return QStringLiteral("overlap at %1").arg(i);
    }
    return disorderOf(strip());
}

void tst_StripRandom::staysAsTheModel_data()
{
    QTest::addColumn<bool>("tidy");
    QTest::addColumn<uint>("seed");
    for (uint seed = 1; seed <= 2; ++seed) {
        QTest::addRow("into free gaps, seed %u", seed) << true << seed;
        QTest::addRow("anywhere, seed %u", seed) << false << seed;
    }
}

void tst_StripRandom::staysAsTheModel()
{
    QFETCH(bool, tidy);
    QFETCH(uint, seed);
    m_tidy = tidy;
    m_random.seed(seed);
    m_naive.clear();
    m_table = std::make_unique<TimeTableFixture>();
    for (int round = 0; round < rounds; ++round) {
        QVERIFY2(change(), qPrintable(QStringLiteral("round %1").arg(round)));
        const QString problem = difference();
        QVERIFY2(problem.isEmpty(),
                 qPrintable(QStringLiteral("round %1: %2").arg(round).arg(problem)));
    }
    m_table.reset();
}

QTEST_MAIN(tst_StripRandom)
#include "tst_striprandom.moc"
