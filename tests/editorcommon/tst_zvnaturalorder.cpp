#include "ZvNaturalOrder.h"

#include <QRandomGenerator>
#include <QtTest>

using Zavo::ZvNaturalOrder;

class tst_ZvNaturalOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void compare_data();
    void compare();
    void isATotalOrder();
};

void tst_ZvNaturalOrder::compare_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::newRow("letters") << QStringLiteral("a.xml") << QStringLiteral("b.xml");
    QTest::newRow("case does not matter") << QStringLiteral("apple") << QStringLiteral("Banana");
    QTest::newRow("case decides between equals")
        << QStringLiteral("A.xml") << QStringLiteral("a.xml");
    QTest::newRow("numbers by value")
        << QStringLiteral("stage2.xml") << QStringLiteral("Stage10.xml");
    QTest::newRow("numbers within") << QStringLiteral("a2b9") << QStringLiteral("a10b1");
    QTest::newRow("second number") << QStringLiteral("1-2") << QStringLiteral("1-10");
    QTest::newRow("leading zeros") << QStringLiteral("a007") << QStringLiteral("a8");
    QTest::newRow("zeros decide between equals") << QStringLiteral("a01") << QStringLiteral("a1");
    QTest::newRow("beyond 64 bits")
        << QStringLiteral("99999999999999999999998") << QStringLiteral("99999999999999999999999");
    QTest::newRow("zero") << QStringLiteral("a0") << QStringLiteral("a1");
    QTest::newRow("prefix") << QStringLiteral("stage") << QStringLiteral("stage 2");
    QTest::newRow("empty") << QString() << QStringLiteral("0");
    QTest::newRow("number before letter") << QStringLiteral("9") << QStringLiteral("a");
    QTest::newRow("other scripts") << QStringLiteral("Ω1") << QStringLiteral("ω2");
}

void tst_ZvNaturalOrder::compare()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QVERIFY(ZvNaturalOrder::compare(first, second) < 0);
    QVERIFY(ZvNaturalOrder::compare(second, first) > 0);
    QCOMPARE(ZvNaturalOrder::compare(first, first), 0);
    QCOMPARE(ZvNaturalOrder::compare(second, second), 0);
}

void tst_ZvNaturalOrder::isATotalOrder()
{
    QRandomGenerator random(7);
    const QString alphabet = QStringLiteral("aAbB019é/駅");
    QStringList names;
    for (int i = 0; i < 60; ++i) {
        QString name;
        for (int length = random.bounded(5); length > 0; --length)
            name += alphabet.at(random.bounded(alphabet.size()));
        names << name;
    }
    for (const QString &a : std::as_const(names)) {
        for (const QString &b : std::as_const(names)) {
            const int ab = ZvNaturalOrder::compare(a, b);
            QCOMPARE(ab == 0, a == b);
            QCOMPARE(ZvNaturalOrder::compare(b, a) < 0, ab > 0);
            for (const QString &c : std::as_const(names)) {
                if (ab < 0 && ZvNaturalOrder::compare(b, c) < 0)
                    QVERIFY(ZvNaturalOrder::compare(a, c) < 0);
            }
        }
    }
}

QTEST_APPLESS_MAIN(tst_ZvNaturalOrder)
#include "tst_zvnaturalorder.moc"
