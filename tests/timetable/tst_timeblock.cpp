#include "timetable/TimeBlock.h"

#include "BandText.h"

#include <QtTest>

using namespace Zavo;
using namespace ZavoTest;

Q_DECLARE_METATYPE(QList<Zavo::ZvTime>)

class tst_TimeBlock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fits_data();
    void fits();
    void fitsNowhere_data();
    void fitsNowhere();
    void moves_data();
    void moves();
    void copies_data();
    void copies();
};

void tst_TimeBlock::fits_data()
{
    QTest::addColumn<QList<ZvTime>>("times");
    QTest::addColumn<QTime>("target");
    QTest::addColumn<bool>("result");
    const QList<ZvTime> hour{band("10:00:00", "11:00:00")};
    QTest::newRow("first") << hour << at("00:00:00") << true;
    QTest::newRow("own place") << hour << at("10:00:00") << true;
    QTest::newRow("a millisecond before the end") << hour << at("22:59:59.999") << true;
    QTest::newRow("up to the end") << hour << at("23:00:00") << false;
    QTest::newRow("beyond the end") << hour << at("23:00:00.001") << false;
    QTest::newRow("last") << hour << at("24:00:00") << false;

    const QList<ZvTime> last{band("20:00:00", "21:00:00"), band("23:00:00", "24:00:00")};
    QTest::newRow("whole hours, up to the end") << last << at("20:00:00") << false;
    QTest::newRow("whole hours, a millisecond before") << last << at("19:59:59.999") << true;
    QTest::newRow("whole hours, behind") << last << at("20:00:00.001") << false;
    const QList<ZvTime> nearly{band("23:00:00", "23:59:59.998")};
    QTest::newRow("nearly the last, own place") << nearly << at("23:00:00") << true;
    QTest::newRow("nearly the last, up to the end") << nearly << at("23:00:00.002") << false;

    const QList<ZvTime> gap{band("10:00:00", "11:00:00"), band("14:00:00", "15:00:00")};
    QTest::newRow("gap, up to the end") << gap << at("19:00:00") << false;
    QTest::newRow("gap, before") << gap << at("18:59:59.999") << true;

    const QList<ZvTime> day{band("00:00:00", "24:00:00")};
    QTest::newRow("day, own place") << day << at("00:00:00") << true;
    QTest::newRow("day, behind") << day << at("00:00:00.001") << false;
    QTest::newRow("day, last") << day << at("24:00:00") << false;

    const QList<ZvTime> nothing{band("10:00:00", "10:00:00")};
    QTest::newRow("no length") << nothing << at("00:00:00") << true;
    QTest::newRow("no length, last") << nothing << at("24:00:00") << true;
}

void tst_TimeBlock::fits()
{
    QFETCH(QList<ZvTime>, times);
    QFETCH(QTime, target);
    QFETCH(bool, result);
    QCOMPARE(TimeBlock(times).fitsAt(target), result);
}

// No table gives such a block, but a clipboard can.
void tst_TimeBlock::fitsNowhere_data()
{
    QTest::addColumn<QList<ZvTime>>("times");
    const ZvTime middle = band("10:00:00", "11:00:00");
    QTest::newRow("backwards") << QList<ZvTime>{band("12:00:00", "13:00:00"), middle};
    QTest::newRow("one before the first")
        << QList<ZvTime>{middle, band("09:59:59.999", "10:30:00"), band("12:00:00", "13:00:00")};
    QTest::newRow("one behind the last")
        << QList<ZvTime>{middle, band("12:00:00", "13:00:00.001"), band("12:00:00", "13:00:00")};
    QTest::newRow("one that ends before it starts")
        << QList<ZvTime>{middle, band("12:00:00", "11:30:00"), band("12:00:00", "13:00:00")};
    QTest::newRow("alone and backwards") << QList<ZvTime>{band("12:00:00", "11:00:00")};
}

void tst_TimeBlock::fitsNowhere()
{
    QFETCH(QList<ZvTime>, times);
    for (int hour = 0; hour < 24; ++hour)
        QVERIFY(!TimeBlock(times).fitsAt(QTime(hour, 0)));
}

void tst_TimeBlock::moves_data()
{
    QTest::addColumn<QTime>("target");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("earlier") << at("00:00:00")
                             << QStringList{QStringLiteral("00:00:00.000-01:00:00.000 a.xml"),
                                            QStringLiteral("13:00:00.000-13:59:59.999 b.xml")};
    QTest::newRow("nowhere") << at("10:00:00")
                             << QStringList{QStringLiteral("10:00:00.000-11:00:00.000 a.xml"),
                                            QStringLiteral("23:00:00.000-23:59:59.999 b.xml")};
    QTest::newRow("a millisecond")
        << at("09:59:59.999")
        << QStringList{QStringLiteral("09:59:59.999-10:59:59.999 a.xml"),
                       QStringLiteral("22:59:59.999-23:59:59.998 b.xml")};
}

void tst_TimeBlock::moves()
{
    QFETCH(QTime, target);
    QFETCH(QStringList, texts);
    const TimeBlock block({band("10:00:00", "11:00:00"), band("23:00:00", "24:00:00", "b.xml")});
    QCOMPARE(textOf(block.movedTo(target)), texts);
}

void tst_TimeBlock::copies_data()
{
    QTest::addColumn<QTime>("time");
    QTest::addColumn<QTime>("copy");
    QTest::newRow("whole second") << at("08:00:00") << at("08:00:00");
    QTest::newRow("a millisecond short") << at("07:59:59.999") << at("08:00:00");
    QTest::newRow("as short as can be") << at("07:59:59.995") << at("08:00:00");
    QTest::newRow("shorter") << at("07:59:59.994") << at("07:59:59.994");
    QTest::newRow("a millisecond more") << at("08:00:00.001") << at("08:00:00.001");
    QTest::newRow("24 o'clock") << at("24:00:00") << at("24:00:00");
    QTest::newRow("nearly 24 o'clock") << at("23:59:59.996") << at("23:59:59.996");
    QTest::newRow("midnight") << at("00:00:00") << at("00:00:00");
}

void tst_TimeBlock::copies()
{
    QFETCH(QTime, time);
    QFETCH(QTime, copy);
    const QString stage = QStringLiteral("a.xml");
    QCOMPARE(textOf(TimeBlock::copyOf({ZvTime(time, time, stage)})),
             textOf(QList<ZvTime>{ZvTime(copy, copy, stage)}));
}

QTEST_MAIN(tst_TimeBlock)
#include "tst_timeblock.moc"
