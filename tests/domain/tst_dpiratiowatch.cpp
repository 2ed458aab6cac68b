#include "domain/DpiRatioWatch.h"

#include "ZvSystemInfo.h"

#include <QtTest>

using namespace Zavo;

class tst_DpiRatioWatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { ZvSystemInfo::setDpiRatioOverride(0); }
    void looksAtResizeAndShowToParentAlone();
    void tellsEachChangeOnce();
};

void tst_DpiRatioWatch::looksAtResizeAndShowToParentAlone()
{
    ZvSystemInfo::setDpiRatioOverride(2.0);
    QWidget widget;
    DpiRatioWatch watch;
    const QEvent move(QEvent::Move);
    const QEvent show(QEvent::Show);
    QVERIFY(!watch.hasChanged(&widget, &move));
    QVERIFY(!watch.hasChanged(&widget, &show));
    QCOMPARE(watch.ratio(), 1.0);
    const QEvent showToParent(QEvent::ShowToParent);
    QVERIFY(watch.hasChanged(&widget, &showToParent));
    QCOMPARE(watch.ratio(), 2.0);
}

void tst_DpiRatioWatch::tellsEachChangeOnce()
{
    QWidget widget;
    DpiRatioWatch watch;
    const QResizeEvent resize(QSize(2, 2), QSize(1, 1));
    ZvSystemInfo::setDpiRatioOverride(1.0);
    QVERIFY(!watch.hasChanged(&widget, &resize));
    ZvSystemInfo::setDpiRatioOverride(1.25);
    QVERIFY(watch.hasChanged(&widget, &resize));
    QVERIFY(!watch.hasChanged(&widget, &resize));
    ZvSystemInfo::setDpiRatioOverride(1.0);
    QVERIFY(watch.hasChanged(&widget, &resize));
    QCOMPARE(watch.ratio(), 1.0);
}

QTEST_MAIN(tst_DpiRatioWatch)
#include "tst_dpiratiowatch.moc"
