#include "Path.h"

#include <QtTest>

class tst_Path : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void combine_data();
    void combine();
};

void tst_Path::combine_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    QTest::newRow("plain") << QStringLiteral("/data") << QStringLiteral("channel")
                           << QStringLiteral("/data/channel");
    QTest::newRow("folder ends with a separator")
        << QStringLiteral("/data/") << QStringLiteral("channel") << QStringLiteral("/data/channel");
    QTest::newRow("name begins with a separator")
        << QStringLiteral("/data") << QStringLiteral("/channel") << QStringLiteral("/data/channel");
    QTest::newRow("both") << QStringLiteral("/data/") << QStringLiteral("/channel")
                          << QStringLiteral("/data/channel");
    QTest::newRow("root") << QStringLiteral("/") << QStringLiteral("channel")
                          << QStringLiteral("/channel");
    QTest::newRow("no folder") << QString() << QStringLiteral("channel")
                               << QStringLiteral("channel");
    QTest::newRow("no name") << QStringLiteral("/data") << QString() << QStringLiteral("/data");
}

void tst_Path::combine()
{
    QFETCH(QString, folder);
    QFETCH(QString, name);
    QTEST(Zavo::Path::combine(folder, name), "expected");
}

QTEST_GUILESS_MAIN(tst_Path)
#include "tst_path.moc"
