#include "ZvChannel.h"

#include "ChannelSamples.h"

#include <QtTest>

using namespace ChannelSamples;
using namespace Zavo;

/// What insertSchedule() makes of the bands.
class tst_ZvChannelStoring : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstStoringKeepsTheTimes();
    void overlaps_data();
    void overlaps();
    void unsortedBandsAreSorted();
    void bandsOfEqualStartKeepTheirOrder();
    void storingAgainKeepsTheStoredRecord();
    void storingAgainSnaps_data();
    void storingAgainSnaps();
    void timesNeverCreep();
    void aKeptRecordGivesWayToANewNeighbour();
    void aNewDefaultStageKeepsTheBandsShared();
    void aBandWithoutTimesIsNeitherMovedNorLost();
    void pilesOfBandsAtOneTimeAreStoredQuickly();

private:
    static QList<ZvTime> storedOver(const QList<ZvTime> &first, const QList<ZvTime> &second);
};

namespace {
/// To the millisecond, unlike operator==.
QStringList exact(const QList<ZvTime> &bands)
{
    QStringList result;
    for (const ZvTime &band : bands)
        result.append(QLocale::c().toString(band.startTime(), QStringLiteral("hh:mm:ss.zzz")) +
                      QLocale::c().toString(band.endTime(), QStringLiteral("-hh:mm:ss.zzz ")) +
                      band.stageName());
    return result;
}

QTime at(int hour, int minute = 0, int second = 0, int ms = 0)
{
    return {hour, minute, second, ms};
}
} // namespace

QList<ZvTime> tst_ZvChannelStoring::storedOver(const QList<ZvTime> &first,
                                               const QList<ZvTime> &second)
{
    ZvChannel channel{QString()};
    channel.insertSchedule(defaultSchedule(first));
    channel.insertSchedule(defaultSchedule(second));
    return bands(channel);
}

void tst_ZvChannelStoring::firstStoringKeepsTheTimes()
{
    const QList<ZvTime> given{band(at(1, 2, 3, 4), at(5, 6, 7, 8)),
                              band(at(23, 59, 59, 996), at(23, 59, 59, 999))};
    ZvChannel channel{QString()};
    channel.insertSchedule(defaultSchedule(given));
    QCOMPARE(exact(bands(channel)), exact(given));
}

void tst_ZvChannelStoring::overlaps_data()
{
    QTest::addColumn<QList<ZvTime>>("given");
    QTest::addColumn<QList<ZvTime>>("stored");
    const QString b = QStringLiteral("b.xml");
    QTest::newRow("none") << QList<ZvTime>{band(at(1), at(2)), band(at(2), at(3), b)}
                          << QList<ZvTime>{band(at(1), at(2)), band(at(2), at(3), b)};
    QTest::newRow("an hour") << QList<ZvTime>{band(at(1), at(3)), band(at(2), at(4), b)}
                             << QList<ZvTime>{band(at(1), at(2)), band(at(2), at(4), b)};
    QTest::newRow("a millisecond")
        << QList<ZvTime>{band(at(1), at(2, 0, 0, 1)), band(at(2), at(4), b)}
        << QList<ZvTime>{band(at(1), at(2)), band(at(2), at(4), b)};
    QTest::newRow("one inside another") << QList<ZvTime>{band(at(1), at(9)), band(at(2), at(3), b)}
                                        << QList<ZvTime>{band(at(1), at(2)), band(at(2), at(3), b)};
    QTest::newRow("equal start") << QList<ZvTime>{band(at(1), at(3)), band(at(1), at(2), b)}
                                 << QList<ZvTime>{band(at(1), at(1)), band(at(1), at(2), b)};
    QTest::newRow("end before start") << QList<ZvTime>{band(at(5), at(3)), band(at(6), at(7), b)}
                                      << QList<ZvTime>{band(at(5), at(5)), band(at(6), at(7), b)};
    QTest::newRow("no length") << QList<ZvTime>{band(at(5), at(5)), band(at(5), at(7), b)}
                               << QList<ZvTime>{band(at(5), at(5)), band(at(5), at(7), b)};
}

void tst_ZvChannelStoring::overlaps()
{
    QFETCH(QList<ZvTime>, given);
    QFETCH(QList<ZvTime>, stored);
    ZvChannel channel{QString()};
    channel.insertSchedule(defaultSchedule(given));
    QCOMPARE(exact(bands(channel)), exact(stored));
    channel.insertSchedule(defaultSchedule());
    channel.insertSchedule(defaultSchedule(given));
    QCOMPARE(exact(bands(channel)), exact(stored));
}

void tst_ZvChannelStoring::unsortedBandsAreSorted()
{
    QList<ZvTime> given = bandsOfADay(200);
    const QList<ZvTime> sorted = given;
    std::shuffle(given.begin(), given.end(), std::mt19937(3));
    ZvChannel channel{QString()};
    channel.insertSchedule(defaultSchedule(given));
    QCOMPARE(exact(bands(channel)), exact(sorted));
    channel.insertSchedule(defaultSchedule(given));
    QCOMPARE(exact(bands(channel)), exact(sorted));
}

void tst_ZvChannelStoring::bandsOfEqualStartKeepTheirOrder()
{
    QList<ZvTime> given;
    for (int i = 0; i < 20; ++i)
        given.append(band(at(1), at(1), QString::number(i)));
    given.prepend(band(at(2), at(3)));
    ZvChannel channel{QString()};
    channel.insertSchedule(defaultSchedule(given));
    given.append(given.takeFirst());
    QCOMPARE(exact(bands(channel)), exact(given));
}

void tst_ZvChannelStoring::storingAgainKeepsTheStoredRecord()
{
    const QList<ZvTime> stored{band(at(1, 0, 0, 123), at(2, 0, 0, 456)),
                               band(at(2, 0, 0, 456), at(3, 0, 0, 789)),
                               band(at(4), at(23, 59, 59, 999))};
    QList<ZvTime> shown = stored;
    for (ZvTime &each : shown) {
        each.setStartTime(each.startTime().addMSecs(-5));
        each.setEndTime(each.endTime().addMSecs(-5));
    }
    QCOMPARE(exact(storedOver(stored, shown)), exact(stored));
    // Also when one of them is gone and another has come.
    shown.removeFirst();
    shown.append(band(at(23, 59, 59, 994), at(23, 59, 59, 999), QStringLiteral("b.xml")));
    const QStringList kept = exact(storedOver(stored, shown));
    QCOMPARE(kept.at(0), exact(stored).at(1));
    QCOMPARE(kept.at(1), QStringLiteral("04:00:00.000-23:59:59.999 a.xml"));
    QCOMPARE(kept.at(2), QStringLiteral("23:59:59.999-23:59:59.999 b.xml"));
}

void tst_ZvChannelStoring::storingAgainSnaps_data()
{
    QTest::addColumn<QTime>("given");
    QTest::addColumn<QTime>("stored");
    QTest::newRow("whole second") << at(9, 8, 7) << at(9, 8, 7);
    QTest::newRow("1 ms short") << at(9, 8, 6, 999) << at(9, 8, 7);
    QTest::newRow("5 ms short") << at(9, 8, 6, 995) << at(9, 8, 7);
    QTest::newRow("6 ms short") << at(9, 8, 6, 994) << at(9, 8, 6, 994);
    QTest::newRow("5 ms over") << at(9, 8, 7, 5) << at(9, 8, 7);
    QTest::newRow("6 ms over") << at(9, 8, 7, 6) << at(9, 8, 7, 6);
    QTest::newRow("half a second") << at(9, 8, 7, 500) << at(9, 8, 7, 500);
    QTest::newRow("midnight") << at(0, 0, 0, 3) << at(0);
    QTest::newRow("24 o'clock") << at(23, 59, 59, 999) << at(23, 59, 59, 999);
    QTest::newRow("short of 24 o'clock") << at(23, 59, 59, 994) << at(23, 59, 59, 999);
    QTest::newRow("before 24 o'clock") << at(23, 59, 59, 993) << at(23, 59, 59, 993);
}

void tst_ZvChannelStoring::storingAgainSnaps()
{
    QFETCH(QTime, given);
    QFETCH(QTime, stored);
    const QList<ZvTime> asEnd = storedOver({}, {band(at(0), given)});
    QCOMPARE(asEnd.constFirst().endTime(), stored);
    const QList<ZvTime> asStart = storedOver({}, {band(given, at(23, 59, 59, 999))});
    QCOMPARE(asStart.constFirst().startTime(), stored);
}

void tst_ZvChannelStoring::timesNeverCreep()
{
    ZvChannel channel{QString()};
    channel.insertSchedule(defaultSchedule(bandsOfADay(288)));
    const QStringList before = exact(bands(channel));
    for (int round = 0; round < 50; ++round) {
        QList<ZvTime> shown = bands(channel);
        for (ZvTime &each : shown) {
            if (each.startTime() > at(0))
                each.setStartTime(each.startTime().addMSecs(-1));
            each.setEndTime(each.endTime().addMSecs(-1));
        }
        channel.insertSchedule(defaultSchedule(shown));
    }
    QCOMPARE(exact(bands(channel)), before);
}

void tst_ZvChannelStoring::aKeptRecordGivesWayToANewNeighbour()
{
    const QList<ZvTime> stored{band(at(1), at(2, 0, 0, 4))};
    const QList<ZvTime> kept = storedOver(
        stored, {stored.constFirst(), band(at(2, 0, 0, 4), at(3), QStringLiteral("b.xml"))});
    QCOMPARE(exact(kept), QStringList({QStringLiteral("01:00:00.000-02:00:00.000 a.xml"),
                                       QStringLiteral("02:00:00.000-03:00:00.000 b.xml")}));
}

void tst_ZvChannelStoring::aNewDefaultStageKeepsTheBandsShared()
{
    ZvChannel channel{QString()};
    channel.insertSchedule(defaultSchedule(bandsOfADay(24)));
    const ZvChannel saved = channel;
    ZvSchedule staged = defaultSchedule(bandsOfADay(24));
    staged.setDefaultStage(QStringLiteral("d.xml"));
    channel.insertSchedule(staged);
    QVERIFY(!channel.isMatch(saved, false, false));
    QVERIFY(bands(channel).isSharedWith(bands(saved)));
    QCOMPARE(schedules(channel).constFirst().defaultStage(), QStringLiteral("d.xml"));
}

void tst_ZvChannelStoring::aBandWithoutTimesIsNeitherMovedNorLost()
{
    const QList<ZvTime> given{band(QTime(), QTime()), band(at(1), QTime()), band(at(2), at(3))};
    ZvChannel channel{QString()};
    channel.insertSchedule(defaultSchedule(given));
    QCOMPARE(exact(bands(channel)), exact(given));
    channel.insertSchedule(defaultSchedule(given));
    QCOMPARE(exact(bands(channel)), exact(given));
}

void tst_ZvChannelStoring::pilesOfBandsAtOneTimeAreStoredQuickly()
{
    QList<ZvTime> pile;
    for (int i = 0; i < 20000; ++i)
        pile.append(band(at(12), at(12), QStringLiteral("a%1.xml").arg(i)));
    ZvChannel channel{QString()};
    channel.insertSchedule(defaultSchedule(pile));
    std::reverse(pile.begin(), pile.end());
    QElapsedTimer timer;
    timer.start();
    channel.insertSchedule(defaultSchedule(pile));
    QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(bands(channel).size(), 20000);
}

QTEST_APPLESS_MAIN(tst_ZvChannelStoring)
#include "tst_zvchannelstoring.moc"
