#include "timetable/TimeItemChain.h"

#include "timetable/ZvTimeTableTimeItem.h"

#include <QRandomGenerator>
#include <QtTest>

#include <memory>
#include <vector>

using namespace Zavo;

namespace {

constexpr int minute = 60000; // ms

QTime timeOf(int milliseconds)
{
    return QTime::fromMSecsSinceStartOfDay(milliseconds);
}

QTime at(const char *text)
{
    const QString string = QString::fromLatin1(text);
    return string.size() > 8 ? QTime::fromString(string, QStringLiteral("hh:mm:ss.zzz"))
                             : QTime::fromString(string, QStringLiteral("hh:mm:ss"));
}

ZvTime band(const char *start, const char *end, const char *stage = "a.xml")
{
    return ZvTime(at(start), at(end), QString::fromLatin1(stage));
}

/// What insertionIndex() has to answer, walking and with the tolerance written out.
int walkedIndex(const QList<ZvTimeTableTimeItem *> &items, QTime start, QTime end)
{
    const auto startsInTime = [end](const ZvTimeTableTimeItem *item) {
        return item->startTime().msecsTo(end) <= 5;
    };
    if (items.isEmpty() || startsInTime(items.first()))
        return 0;
    if (start.msecsTo(items.last()->endTime()) <= 5)
        return items.size();
    for (int i = 1; i < items.size(); ++i) {
        if (startsInTime(items.at(i)))
            return i;
    }
    return -1;
}

} // namespace

class tst_TimeItemChain : public QObject
{
    Q_OBJECT

private:
    std::vector<std::unique_ptr<ZvTimeTableTimeItem>> m_owned;

    ZvTimeTableTimeItem *create(const ZvTime &time)
    {
        m_owned.push_back(std::make_unique<ZvTimeTableTimeItem>());
        m_owned.back()->setTimeInfo(time);
        return m_owned.back().get();
    }
    void append(TimeItemChain &chain, const ZvTime &time)
    {
        chain.insert(chain.count(), create(time));
    }
    void release(ZvTimeTableTimeItem *item)
    {
        for (auto owned = m_owned.begin(); owned != m_owned.end(); ++owned) {
            if (owned->get() == item) {
                m_owned.erase(owned);
                return;
            }
        }
    }
    static QString disorder(const TimeItemChain &chain);

private Q_SLOTS:
    void cleanup() { m_owned.clear(); }

    void findsPlaces_data();
    void findsPlaces();
    void insertLinksAndNumbersTheItemAlone();
    void takesTheLastEqual();
    void takesOneForEachRecord();
    void takePassesOverUnknownRecords();
    void takeComparesWithTolerance_data();
    void takeComparesWithTolerance();
    void takeFindsInAnyOrder();
    void takeLastUnlinks();
    void containsAll();
    void binaryAndWalkingSearchAgree_data();
    void binaryAndWalkingSearchAgree();
    void orderIsLostAndFoundAgain();
};

QString tst_TimeItemChain::disorder(const TimeItemChain &chain)
{
    const QList<ZvTimeTableTimeItem *> &items = chain.items();
    for (int i = 0; i < items.size(); ++i) {
        if (items.at(i)->previousItem() != (i > 0 ? items.at(i - 1) : nullptr))
            return QStringLiteral("wrong previous item at %1").arg(i);
        if (items.at(i)->nextItem() != (i + 1 < items.size() ? items.at(i + 1) : nullptr))
            return QStringLiteral("wrong next item at %1").arg(i);
        if (items.at(i)->index() != i)
            return QStringLiteral("number %1 at %2").arg(items.at(i)->index()).arg(i);
    }
    return QString();
}

void tst_TimeItemChain::findsPlaces_data()
{
    QTest::addColumn<QList<ZvTime>>("bands");
    QTest::addColumn<ZvTime>("time");
    QTest::addColumn<int>("index");
    const QList<ZvTime> none;
    const QList<ZvTime> one{band("08:00:00", "09:00:00")};
    const QList<ZvTime> three{band("08:00:00", "09:00:00"), band("10:00:00", "11:00:00"),
                              band("13:00:00", "14:00:00")};

    QTest::newRow("empty table") << none << band("08:00:00", "09:00:00") << 0;
    QTest::newRow("before the first") << one << band("06:00:00", "07:00:00") << 0;
    QTest::newRow("up to the first") << one << band("07:00:00", "08:00:00") << 0;
    QTest::newRow("5 ms into the first") << one << band("07:00:00", "08:00:00.005") << 0;
    QTest::newRow("6 ms into the first") << one << band("07:00:00", "08:00:00.006") << -1;
    QTest::newRow("after the last") << one << band("10:00:00", "11:00:00") << 1;
    QTest::newRow("from the last on") << one << band("09:00:00", "11:00:00") << 1;
    QTest::newRow("5 ms before the last ends") << one << band("08:59:59.995", "11:00:00") << 1;
    QTest::newRow("6 ms before the last ends") << one << band("08:59:59.994", "11:00:00") << -1;
    QTest::newRow("over the only one") << one << band("07:00:00", "10:00:00") << -1;
    QTest::newRow("the same once more") << one << band("08:00:00", "09:00:00") << -1;
    QTest::newRow("without length at a start") << one << band("08:00:00", "08:00:00") << 0;
    QTest::newRow("without length at an end") << one << band("09:00:00", "09:00:00") << 1;
    QTest::newRow("into a gap") << three << band("09:00:00", "10:00:00") << 1;
    QTest::newRow("into a part of a gap") << three << band("11:30:00", "12:00:00") << 2;
    QTest::newRow("5 ms over a gap's end") << three << band("09:00:00", "10:00:00.005") << 1;
    QTest::newRow("6 ms over a gap's end") << three << band("09:00:00", "10:00:00.006") << 2;
    QTest::newRow("start inside an earlier band") << three << band("10:30:00", "12:00:00") << 2;
    QTest::newRow("over a whole band") << three << band("09:00:00", "12:00:00") << 2;
    QTest::newRow("into the last") << three << band("12:00:00", "13:30:00") << -1;
    QTest::newRow("to the end of the day") << three << band("14:00:00", "23:59:59.999") << 3;
    QTest::newRow("over all to the end of the day")
        << three << band("00:00:00", "23:59:59.999") << -1;
}

void tst_TimeItemChain::findsPlaces()
{
    QFETCH(QList<ZvTime>, bands);
    QFETCH(ZvTime, time);
    QFETCH(int, index);
    TimeItemChain chain;
    for (const ZvTime &existing : qAsConst(bands))
        append(chain, existing);
    QCOMPARE(chain.insertionIndex(time.startTime(), time.endTime()), index);
    QCOMPARE(walkedIndex(chain.items(), time.startTime(), time.endTime()), index);
}

void tst_TimeItemChain::insertLinksAndNumbersTheItemAlone()
{
    TimeItemChain chain;
    append(chain, band("08:00:00", "09:00:00"));
    append(chain, band("10:00:00", "11:00:00"));
    ZvTimeTableTimeItem *first = create(band("01:00:00", "02:00:00"));
    chain.insert(0, first);
    QCOMPARE(first->index(), 0);
    QVERIFY(!first->previousItem());
    QCOMPARE(first->nextItem(), chain.items().at(1));
    QCOMPARE(chain.items().at(1)->previousItem(), first);
    QCOMPARE(chain.items().at(1)->index(), 0);

    ZvTimeTableTimeItem *middle = create(band("09:00:00", "10:00:00"));
    chain.insert(2, middle);
    QCOMPARE(middle->index(), 2);
    chain.renumber();
    QCOMPARE(disorder(chain), QString());
    QCOMPARE(chain.count(), 4);
}

void tst_TimeItemChain::takesTheLastEqual()
{
    TimeItemChain chain;
    append(chain, band("08:00:00", "08:00:00"));
    append(chain, band("08:00:00", "08:00:00"));
    append(chain, band("08:00:00", "09:00:00"));
    ZvTimeTableTimeItem *second = chain.items().at(1);
    const QList<ZvTimeTableTimeItem *> taken = chain.take({band("08:00:00", "08:00:00")});
    QCOMPARE(taken, QList<ZvTimeTableTimeItem *>{second});
    QVERIFY(!second->previousItem());
    QVERIFY(!second->nextItem());
    chain.renumber();
    QCOMPARE(disorder(chain), QString());
    QCOMPARE(chain.count(), 2);
}

void tst_TimeItemChain::takesOneForEachRecord()
{
    TimeItemChain chain;
    for (int i = 0; i < 3; ++i)
        append(chain, band("08:00:00", "08:00:00"));
    const ZvTime record = band("08:00:00", "08:00:00");
    QCOMPARE(chain.take({record, record}).size(), 2);
    QCOMPARE(chain.count(), 1);
    QCOMPARE(chain.take({record, record}).size(), 1);
    QVERIFY(chain.isEmpty());
    QVERIFY(chain.take({record}).isEmpty());
}

void tst_TimeItemChain::takePassesOverUnknownRecords()
{
    TimeItemChain chain;
    append(chain, band("08:00:00", "09:00:00"));
    append(chain, band("10:00:00", "11:00:00"));
    QVERIFY(chain.take({}).isEmpty());
    QVERIFY(chain
                .take({ZvTime(), band("08:00:00", "09:00:00", "b.xml"),
                       band("08:00:00", "09:01:00"), band("07:00:00", "09:00:00")})
                .isEmpty());
    const QList<ZvTimeTableTimeItem *> taken =
        chain.take({band("10:00:00", "11:00:00"), ZvTime(), band("08:00:00", "09:00:00")});
    QCOMPARE(taken.size(), 2);
    QCOMPARE(taken.first()->startTime(), at("08:00:00"));
    QVERIFY(chain.isEmpty());
}

void tst_TimeItemChain::takeComparesWithTolerance_data()
{
    QTest::addColumn<ZvTime>("record");
    QTest::addColumn<int>("count");
    QTest::newRow("5 ms earlier") << band("07:59:59.995", "08:59:59.995") << 1;
    QTest::newRow("5 ms later") << band("08:00:00.005", "09:00:00.005") << 1;
    QTest::newRow("start 6 ms earlier") << band("07:59:59.994", "09:00:00") << 0;
    QTest::newRow("start 6 ms later") << band("08:00:00.006", "09:00:00") << 0;
    QTest::newRow("end 6 ms later") << band("08:00:00", "09:00:00.006") << 0;
}

void tst_TimeItemChain::takeComparesWithTolerance()
{
    QFETCH(ZvTime, record);
    QFETCH(int, count);
    TimeItemChain chain;
    append(chain, band("07:00:00", "08:00:00"));
    append(chain, band("08:00:00", "09:00:00"));
    append(chain, band("09:00:00", "10:00:00"));
    QCOMPARE(chain.take({record}).size(), count);
}

void tst_TimeItemChain::takeFindsInAnyOrder()
{
    TimeItemChain chain;
    append(chain, band("12:00:00", "13:00:00"));
    append(chain, band("08:00:00", "09:00:00"));
    append(chain, band("20:00:00", "21:00:00"));
    append(chain, band("01:00:00", "02:00:00"));
    QCOMPARE(chain.take({band("01:00:00", "02:00:00"), band("12:00:00", "13:00:00")}).size(), 2);
    QCOMPARE(chain.count(), 2);
    chain.renumber();
    QCOMPARE(disorder(chain), QString());
}

void tst_TimeItemChain::takeLastUnlinks()
{
    TimeItemChain chain;
    append(chain, band("08:00:00", "09:00:00"));
    append(chain, band("10:00:00", "11:00:00"));
    ZvTimeTableTimeItem *last = chain.items().last();
    QCOMPARE(chain.takeLast(), last);
    QVERIFY(!last->previousItem());
    QCOMPARE(disorder(chain), QString());
    chain.takeLast();
    QVERIFY(chain.isEmpty());
}

void tst_TimeItemChain::containsAll()
{
    TimeItemChain chain;
    QVERIFY(chain.containsAll({}));
    append(chain, band("08:00:00", "09:00:00"));
    append(chain, band("10:00:00", "11:00:00"));
    append(chain, band("12:00:00", "13:00:00"));
    const QList<ZvTimeTableTimeItem *> items = chain.items();
    QVERIFY(chain.containsAll({}));
    QVERIFY(chain.containsAll(items));
    QVERIFY(chain.containsAll({items.at(0), items.at(2)}));
    QVERIFY(chain.containsAll({items.at(2), items.at(0)}));
    QVERIFY(!chain.containsAll({nullptr}));

    ZvTimeTableTimeItem *foreign = create(band("08:00:00", "09:00:00"));
    QVERIFY(!chain.containsAll({items.at(0), foreign}));
    release(foreign);
    QVERIFY(!chain.containsAll({foreign, items.at(0)}));
}

void tst_TimeItemChain::binaryAndWalkingSearchAgree_data()
{
    QTest::addColumn<bool>("sorted");
    QTest::newRow("in order") << true;
    QTest::newRow("out of order") << false;
}

void tst_TimeItemChain::binaryAndWalkingSearchAgree()
{
    QFETCH(bool, sorted);
    QRandomGenerator random(sorted ? 1 : 2);
    TimeItemChain chain;
    int start = 0;
    while (start < 1300 * minute) {
        const int length = random.bounded(20 * minute);
        append(chain, ZvTime(timeOf(start), timeOf(start + length), QStringLiteral("a.xml")));
        start += length + (random.bounded(2) ? random.bounded(20 * minute) : 0);
    }
    if (!sorted) {
        for (int i = 0; i < chain.count(); i += 7) {
            const int moved = random.bounded(1400 * minute);
            chain.items().at(i)->setTimeInfo(
                ZvTime(timeOf(moved), timeOf(moved + minute), QStringLiteral("a.xml")));
        }
    }
    chain.checkOrder();
    for (int round = 0; round < 20000; ++round) {
        // Half of them at the edges of bands, where the tolerance decides.
        const ZvTimeTableTimeItem *near = chain.items().at(random.bounded(chain.count()));
        const int from =
            random.bounded(2)
                ? random.bounded(1400 * minute)
                : qMax(0, near->endTime().msecsSinceStartOfDay() + random.bounded(-8, 8));
        const int to =
            random.bounded(2)
                ? from + random.bounded(30 * minute)
                : qMax(from, near->startTime().msecsSinceStartOfDay() + random.bounded(-8, 8));
        QCOMPARE(chain.insertionIndex(timeOf(from), timeOf(to)),
                 walkedIndex(chain.items(), timeOf(from), timeOf(to)));
    }
}

void tst_TimeItemChain::orderIsLostAndFoundAgain()
{
    TimeItemChain chain;
    append(chain, band("08:00:00", "09:00:00"));
    append(chain, band("10:00:00", "11:00:00"));
    append(chain, band("12:00:00", "13:00:00"));
    append(chain, band("14:00:00", "15:00:00"));
    chain.items().at(1)->setTimeInfo(band("20:00:00", "21:00:00"));
    chain.checkOrder();
    // The walk stops at the first band that starts late enough, in the order of the list.
    QCOMPARE(chain.insertionIndex(at("11:00:00"), at("12:00:00")), 1);
    chain.items().at(1)->setTimeInfo(band("10:00:00", "11:00:00"));
    chain.checkOrder();
    QCOMPARE(chain.insertionIndex(at("11:00:00"), at("12:00:00")), 2);
    // Inserting out of order is noticed without a check.
    chain.insert(1, create(band("20:00:00", "21:00:00")));
    QCOMPARE(chain.insertionIndex(at("11:00:00"), at("12:00:00")), 1);
}

QTEST_MAIN(tst_TimeItemChain)
#include "tst_timeitemchain.moc"
