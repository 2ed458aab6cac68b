#include "ZvSystemInfo.h"

#include <QScreen>
#include <QWidget>
#include <QtTest>

#include <cmath>
#include <limits>

using Zavo::ZvSystemInfo;

class tst_ZvSystemInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void ratioOfTheScreen();
    void withoutAWidget();
    void overrideReplaces();
    void overrideOfNoUse_data();
    void overrideOfNoUse();
    void environmentReplaces();
    void environmentOfNoUse_data();
    void environmentOfNoUse();
    void overrideComesBeforeTheEnvironment();
};

namespace {
const char *const Variable = "ZAVO_DPI_RATIO";

double expected(const QWidget &widget)
{
    const QScreen *screen = widget.screen();
    return screen->devicePixelRatio() * std::round(screen->logicalDotsPerInch() / 96.0 * 4.0) / 4.0;
}
} // namespace

void tst_ZvSystemInfo::cleanup()
{
    ZvSystemInfo::setDpiRatioOverride(0);
    qunsetenv(Variable);
}

void tst_ZvSystemInfo::ratioOfTheScreen()
{
    QWidget widget;
    QVERIFY(widget.screen());
    QCOMPARE(ZvSystemInfo::getDpiRatio(&widget), expected(widget));
    QWidget child(&widget);
    QCOMPARE(ZvSystemInfo::getDpiRatio(&child), expected(widget));
    QVERIFY(expected(widget) >= 0.25);
}

void tst_ZvSystemInfo::withoutAWidget()
{
    QCOMPARE(ZvSystemInfo::getDpiRatio(nullptr), 1.0);
}

void tst_ZvSystemInfo::overrideReplaces()
{
    QWidget widget;
    for (const double ratio : {0.25, 1.5, 2.0, 16.0}) {
        ZvSystemInfo::setDpiRatioOverride(ratio);
        QCOMPARE(ZvSystemInfo::getDpiRatio(&widget), ratio);
        QCOMPARE(ZvSystemInfo::getDpiRatio(nullptr), ratio);
    }
    ZvSystemInfo::setDpiRatioOverride(0);
    QCOMPARE(ZvSystemInfo::getDpiRatio(&widget), expected(widget));
}

void tst_ZvSystemInfo::overrideOfNoUse_data()
{
    QTest::addColumn<double>("ratio");
    QTest::newRow("negative") << -2.0;
    QTest::newRow("tiny") << 0.1;
    QTest::newRow("huge") << 1e9;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity();
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN();
}

void tst_ZvSystemInfo::overrideOfNoUse()
{
    QFETCH(double, ratio);
    QWidget widget;
    ZvSystemInfo::setDpiRatioOverride(3.0);
    ZvSystemInfo::setDpiRatioOverride(ratio);
    QCOMPARE(ZvSystemInfo::getDpiRatio(&widget), expected(widget));
}

void tst_ZvSystemInfo::environmentReplaces()
{
    QWidget widget;
    qputenv(Variable, "1.75");
    QCOMPARE(ZvSystemInfo::getDpiRatio(&widget), 1.75);
    qputenv(Variable, "2");
    QCOMPARE(ZvSystemInfo::getDpiRatio(&widget), 2.0);
}

void tst_ZvSystemInfo::environmentOfNoUse_data()
{
    QTest::addColumn<QByteArray>("value");
    for (const char *value : {"", "two", "1,5", "0", "-1", "nan", "inf", "1e300", "2x"})
        QTest::newRow(value) << QByteArray(value);
}

void tst_ZvSystemInfo::environmentOfNoUse()
{
    QFETCH(QByteArray, value);
    QWidget widget;
    qputenv(Variable, value);
    QCOMPARE(ZvSystemInfo::getDpiRatio(&widget), expected(widget));
}

void tst_ZvSystemInfo::overrideComesBeforeTheEnvironment()
{
    qputenv(Variable, "3");
    ZvSystemInfo::setDpiRatioOverride(2);
    QCOMPARE(ZvSystemInfo::getDpiRatio(nullptr), 2.0);
    ZvSystemInfo::setDpiRatioOverride(0);
    QCOMPARE(ZvSystemInfo::getDpiRatio(nullptr), 3.0);
}

QTEST_MAIN(tst_ZvSystemInfo)
#include "tst_zvsysteminfo.moc"
