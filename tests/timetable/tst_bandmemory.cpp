#include "TimeTableFixture.h"
#include "timetable/BandMemory.h"

#include <QSet>
#include <QtTest>

using namespace Zavo;
using namespace ZavoTest;

#if defined(__SANITIZE_ADDRESS__)
#define SKIP_UNDER_SANITIZERS QSKIP("nothing is used again under the sanitizers")
#else
#define SKIP_UNDER_SANITIZERS
#endif

namespace {

constexpr std::size_t BlockSize = sizeof(ZvTimeTableTimeItem);

QList<ZvTime> minutesFrom(int firstMinute, int count)
{
    QList<ZvTime> times;
    for (int minute = firstMinute; minute < firstMinute + count; ++minute)
        times.append({QTime(0, 0).addSecs(60 * minute), QTime(0, 0).addSecs(60 * minute + 60),
                      QStringLiteral("a.xml")});
    return times;
}

QList<const void *> addressesOf(const TimeTableFixture &table)
{
    QList<const void *> addresses;
    for (const ZvTimeTableTimeItem *item : table.strip()->timeItems())
        addresses.append(item);
    return addresses;
}

bool sharesAny(const QList<const void *> &one, const QList<const void *> &other)
{
    return QSet<const void *>(one.cbegin(), one.cend())
        .intersects(QSet<const void *>(other.cbegin(), other.cend()));
}

void deliverEverything()
{
    for (int round = 0; round < 3; ++round)
        QCoreApplication::sendPostedEvents();
}

} // namespace

/// A receiver that tells dead bands by their address must never meet a new band at one of them.
class tst_BandMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void restsUntilWhatWasQueuedIsDelivered();
    void comesBackTheLastFirst();
    void restsAnewWhatWentWhileOthersRested();
    void keepsNewBandsApartFromThoseOfAQueuedReport();
    void isUsedAgainByLaterTables();
    void survivesTablesOfAnySize();
};

void tst_BandMemory::init()
{
    deliverEverything();
}

void tst_BandMemory::restsUntilWhatWasQueuedIsDelivered()
{
    void *first = BandMemory::take(BlockSize);
    BandMemory::give(first);
    void *second = BandMemory::take(BlockSize);
    QVERIFY(second != first);
    BandMemory::give(second);
    BandMemory::give(nullptr);
}

void tst_BandMemory::comesBackTheLastFirst()
{
    SKIP_UNDER_SANITIZERS;
    QList<void *> blocks;
    for (int i = 0; i < 5; ++i)
        blocks.append(BandMemory::take(BlockSize));
    for (void *block : qAsConst(blocks))
        BandMemory::give(block);
    deliverEverything();
    for (int i = 4; i >= 0; --i)
        QCOMPARE(BandMemory::take(BlockSize), blocks.at(i));
    for (void *block : qAsConst(blocks))
        BandMemory::give(block);
}

// A report may have been queued between the two.
void tst_BandMemory::restsAnewWhatWentWhileOthersRested()
{
    SKIP_UNDER_SANITIZERS;
    void *early = BandMemory::take(BlockSize);
    void *late = BandMemory::take(BlockSize);
    BandMemory::give(early);
    QList<void *> taken;
    QTimer::singleShot(0, this, [] {});
    QMetaObject::invokeMethod(
        this,
        [&taken] {
            taken = {BandMemory::take(BlockSize), BandMemory::take(BlockSize)};
        },
        Qt::QueuedConnection);
    BandMemory::give(late);
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    QCOMPARE(taken.size(), 2);
    QVERIFY(!taken.contains(late));
    QVERIFY(!taken.contains(early));
    deliverEverything();
    QCOMPARE(BandMemory::take(BlockSize), late);
    QCOMPARE(BandMemory::take(BlockSize), early);
    for (void *block : {early, late, taken.at(0), taken.at(1)})
        BandMemory::give(block);
}

void tst_BandMemory::keepsNewBandsApartFromThoseOfAQueuedReport()
{
    TimeTableFixture table;
    for (int round = 0; round < 5; ++round) {
        QVERIFY(table.fill(minutesFrom(0, 100)));
        deliverEverything();
        const QList<const void *> dead = addressesOf(table);
        bool delivered = false;
        const auto deliver = [&] {
            delivered = true;
            QVERIFY(!sharesAny(addressesOf(table), dead));
        };
        QMetaObject::invokeMethod(this, deliver, Qt::QueuedConnection);
        QVERIFY(table.fill(minutesFrom(200, 100)));
        QVERIFY(!sharesAny(addressesOf(table), dead));
        QVERIFY(table.fill(minutesFrom(400, 100)));
        QCoreApplication::sendPostedEvents();
        QVERIFY(delivered);
    }
}

void tst_BandMemory::isUsedAgainByLaterTables()
{
    SKIP_UNDER_SANITIZERS;
    TimeTableFixture table;
    QVERIFY(table.fill(minutesFrom(0, 100)));
    const QList<const void *> first = addressesOf(table);
    QVERIFY(table.fill(minutesFrom(0, 100)));
    deliverEverything();
    QVERIFY(table.fill(minutesFrom(0, 100)));
    QCOMPARE(addressesOf(table), first);
}

void tst_BandMemory::survivesTablesOfAnySize()
{
    TimeTableFixture table;
    for (const int count : {1, 1439, 0, 3, 1000, 1439, 2}) {
        QVERIFY(table.fill(minutesFrom(0, count)));
        QCOMPARE(table.count(), count);
        if (count % 2 == 0)
            deliverEverything();
    }
}

QTEST_MAIN(tst_BandMemory)

#include "tst_bandmemory.moc"
