#include "DockFixture.h"

#include <functional>

using Zavo::ZvEditorCommon;
using Zavo::ZvEditorUserConfig;

using Arrange = std::function<void(DockWindow &)>;
Q_DECLARE_METATYPE(Arrange)

class tst_DockGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void arrangementComesBack_data();
    void arrangementComesBack();
    void arrangementComesBackBeforeTheWindowIsShown_data();
    void arrangementComesBackBeforeTheWindowIsShown();
    void sizesComeBackInAWindowShownLater();
    void storedAgainIsTheSame();
    void sizesAreClampedByASmallerWindow();
    void hiddenDockGetsItsSizeWhenShown();
    void sizeOfAHiddenDockIsKeptUnseen();
    void hiddenDockDoesNotDisturbWhatTheUserChangedSince();
    void returnToTheDefaultForgetsTheHiddenSize();
    void floatingDockKeepsItsPlace();
    void otherDocksOfTheWindowStay();
    void nothingStoredLeavesTheDefault();
};

void tst_DockGeometry::arrangementComesBack_data()
{
    QTest::addColumn<Arrange>("arrange");
    const auto row = [](const char *tag, const Arrange &arrange) { QTest::newRow(tag) << arrange; };
    row("default", [](DockWindow &) {});
    row("list shown in front", [](DockWindow &w) {
        w.list->show();
        w.list->raise();
    });
    row("list shown behind", [](DockWindow &w) {
        w.list->show();
        w.list->raise();
        w.switcher->raise();
    });
    row("tabs the other way round", [](DockWindow &w) {
        w.addDockWidget(Qt::LeftDockWidgetArea, w.switcher);
        w.tabifyDockWidget(w.list, w.switcher);
        w.list->show();
        w.list->raise();
    });
    row("tabs the other way round, one hidden", [](DockWindow &w) {
        w.addDockWidget(Qt::LeftDockWidgetArea, w.switcher);
        w.tabifyDockWidget(w.list, w.switcher);
    });
    row("list below the switcher", [](DockWindow &w) {
        w.addDockWidget(Qt::LeftDockWidgetArea, w.list);
        w.list->show();
        w.resizeDocks({w.switcher, w.list}, {250, 500}, Qt::Vertical);
    });
    row("list above the switcher", [](DockWindow &w) {
        w.addDockWidget(Qt::LeftDockWidgetArea, w.list);
        w.addDockWidget(Qt::LeftDockWidgetArea, w.switcher);
        w.list->show();
    });
    row("list to the right, alone", [](DockWindow &w) {
        w.addDockWidget(Qt::RightDockWidgetArea, w.list);
        w.list->show();
    });
    row("left and right changed", [](DockWindow &w) {
        w.addDockWidget(Qt::RightDockWidgetArea, w.switcher);
        w.addDockWidget(Qt::RightDockWidgetArea, w.list);
        w.tabifyDockWidget(w.switcher, w.list);
        w.list->show();
        w.addDockWidget(Qt::LeftDockWidgetArea, w.stages);
        w.addDockWidget(Qt::LeftDockWidgetArea, w.item);
        w.resizeDocks({w.stages, w.switcher}, {410, 290}, Qt::Horizontal);
    });
    row("all four as tabs", [](DockWindow &w) {
        w.list->show();
        w.tabifyDockWidget(w.item, w.switcher);
        w.tabifyDockWidget(w.item, w.stages);
        w.tabifyDockWidget(w.item, w.list);
        w.stages->raise();
    });
    row("two groups", [](DockWindow &w) {
        w.list->show();
        w.tabifyDockWidget(w.stages, w.item);
        w.item->raise();
        w.switcher->raise();
    });
    row("right side upside down", [](DockWindow &w) {
        w.addDockWidget(Qt::RightDockWidgetArea, w.stages);
        w.resizeDocks({w.item, w.stages}, {400, 300}, Qt::Vertical);
    });
    row("other sizes", [](DockWindow &w) {
        w.resizeDocks({w.switcher, w.stages}, {222, 444}, Qt::Horizontal);
        w.resizeDocks({w.stages, w.item}, {301, 470}, Qt::Vertical);
    });
    row("all hidden", [](DockWindow &w) {
        for (QDockWidget *dock : w.docks())
            dock->hide();
    });
    row("one floating", [](DockWindow &w) {
        w.item->setFloating(true);
        w.item->setGeometry(200, 150, 260, 333);
    });
    row("one floating and hidden", [](DockWindow &w) {
        w.stages->setFloating(true);
        w.stages->setGeometry(120, 90, 311, 201);
        w.stages->hide();
    });
    row("one of a tab group floating", [](DockWindow &w) {
        w.list->show();
        w.list->setFloating(true);
        w.list->setGeometry(50, 60, 300, 400);
    });
}

void tst_DockGeometry::arrangementComesBack()
{
    QFETCH(Arrange, arrange);
    SettingsFixture settings;
    DockWindow before;
    QVERIFY(before.isExposed());
    arrange(before);
    before.settle();
    before.store();
    settings.reopen();
    DockWindow after;
    after.restore();
    QCOMPARE(after.description(), before.description());
    for (int i = 0; i < 4; ++i) {
        const QDockWidget *old = before.docks().at(i);
        const QDockWidget *now = after.docks().at(i);
        if (old->isFloating())
            QCOMPARE(now->geometry(), old->geometry());
        if (old->visibleRegion().isEmpty())
            continue;
        QVERIFY2(qAbs(now->width() - old->width()) <= 2, qPrintable(old->objectName()));
        QVERIFY2(qAbs(now->height() - old->height()) <= 2, qPrintable(old->objectName()));
        QVERIFY(!now->visibleRegion().isEmpty());
    }
}

void tst_DockGeometry::arrangementComesBackBeforeTheWindowIsShown_data()
{
    arrangementComesBack_data();
}

void tst_DockGeometry::arrangementComesBackBeforeTheWindowIsShown()
{
    QFETCH(Arrange, arrange);
    SettingsFixture settings;
    DockWindow before;
    arrange(before);
    before.settle();
    before.store();
    settings.reopen();
    DockWindow after(before.size(), false);
    after.restore();
    after.show();
    QVERIFY(QTest::qWaitForWindowExposed(&after));
    after.settle();
    QCOMPARE(after.description(), before.description());
    for (int i = 0; i < 4; ++i) {
        const QDockWidget *old = before.docks().at(i);
        if (old->visibleRegion().isEmpty())
            continue;
        const QSize difference = after.docks().at(i)->size() - old->size();
        QVERIFY2(qAbs(difference.width()) <= 2, qPrintable(old->objectName()));
        QVERIFY2(qAbs(difference.height()) <= 2, qPrintable(old->objectName()));
    }
}

void tst_DockGeometry::sizesComeBackInAWindowShownLater()
{
    SettingsFixture settings;
    DockWindow before;
    before.resizeDocks({before.switcher, before.stages}, {280, 390}, Qt::Horizontal);
    before.settle();
    before.store();
    DockWindow after;
    after.hide();
    after.restore();
    QTest::qWait(20);
    after.show();
    QTRY_COMPARE(after.switcher->width(), before.switcher->width());
    QCOMPARE(after.stages->width(), before.stages->width());
    QCOMPARE(after.item->height(), before.item->height());
}

void tst_DockGeometry::storedAgainIsTheSame()
{
    SettingsFixture settings;
    DockWindow first;
    first.list->show();
    first.tabifyDockWidget(first.stages, first.item);
    first.settle();
    first.store();
    const auto content = [&settings] {
        QVariantMap map;
        for (const QString &key : settings->allKeys())
            map.insert(key, settings->value(key));
        return map;
    };
    const QVariantMap stored = content();
    for (int round = 0; round < 3; ++round) {
        settings.reopen();
        DockWindow next;
        next.restore();
        next.store();
        QVariantMap again = content();
        for (const QString &key : stored.keys()) {
            if (key.endsWith(QLatin1String("Geometry")))
                QCOMPARE(again[key].toRect().size(), stored[key].toRect().size());
            else
                QCOMPARE(again[key], stored[key]);
        }
        QCOMPARE(again.keys(), stored.keys());
    }
}

void tst_DockGeometry::sizesAreClampedByASmallerWindow()
{
    SettingsFixture settings;
    DockWindow before;
    before.resizeDocks({before.switcher, before.stages}, {500, 500}, Qt::Horizontal);
    before.settle();
    before.store();
    DockWindow after(QSize(700, 400));
    after.restore();
    QCOMPARE(after.size(), QSize(700, 400));
    QCOMPARE(after.description(), before.description());
    QVERIFY(after.rect().contains(after.switcher->geometry()));
    QVERIFY(after.rect().contains(after.stages->geometry()));
    QVERIFY(after.rect().contains(after.item->geometry()));
}

void tst_DockGeometry::hiddenDockGetsItsSizeWhenShown()
{
    SettingsFixture settings;
    DockWindow before;
    before.switcher->hide();
    before.list->show();
    before.resizeDocks({before.list}, {455}, Qt::Horizontal);
    before.settle();
    QVERIFY(qAbs(before.list->width() - 455) <= 2);
    const int width = before.list->width();
    before.list->hide();
    before.settle();
    before.store();
    DockWindow after;
    after.restore();
    QVERIFY(after.list->isHidden());
    after.list->show();
    QTRY_VERIFY(qAbs(after.list->width() - width) <= 2);
}

void tst_DockGeometry::sizeOfAHiddenDockIsKeptUnseen()
{
    SettingsFixture settings;
    DockWindow before;
    before.resizeDocks({before.switcher}, {466}, Qt::Horizontal);
    before.settle();
    const int width = before.switcher->width();
    before.switcher->hide();
    before.settle();
    before.store();
    for (int round = 0; round < 2; ++round) {
        settings.reopen();
        DockWindow unseen;
        unseen.restore();
        unseen.store();
    }
    DockWindow after;
    after.restore();
    after.switcher->show();
    QTRY_VERIFY(qAbs(after.switcher->width() - width) <= 2);
}

void tst_DockGeometry::hiddenDockDoesNotDisturbWhatTheUserChangedSince()
{
    SettingsFixture settings;
    DockWindow before;
    before.item->hide();
    before.settle();
    before.store();
    DockWindow after;
    after.restore();
    after.resizeDocks({after.switcher, after.stages}, {260, 400}, Qt::Horizontal);
    after.settle();
    const int left = after.switcher->width();
    const int right = after.stages->width();
    after.list->show();
    after.item->show();
    after.settle();
    QCOMPARE(after.stages->width(), right);
    after.switcher->raise();
    after.settle();
    // Beside the tabs, which take their room when there are two.
    QVERIFY(after.switcher->width() <= left && after.switcher->width() > left - 40);
}

void tst_DockGeometry::returnToTheDefaultForgetsTheHiddenSize()
{
    SettingsFixture settings;
    DockWindow before;
    before.resizeDocks({before.stages}, {600}, Qt::Horizontal);
    before.settle();
    before.stages->hide();
    before.item->hide();
    before.settle();
    before.store();
    DockWindow after;
    after.restore();
    after.addDockWidget(Qt::RightDockWidgetArea, after.stages);
    after.stages->show();
    after.resizeDocks({after.stages}, {300}, Qt::Horizontal);
    after.settle();
    QTest::qWait(10);
    QCOMPARE(after.stages->width(), 300);
}

void tst_DockGeometry::floatingDockKeepsItsPlace()
{
    SettingsFixture settings;
    DockWindow before;
    before.stages->setFloating(true);
    before.stages->setGeometry(300, 200, 321, 234);
    before.settle();
    before.store();
    DockWindow after;
    after.restore();
    QVERIFY(after.stages->isFloating());
    QVERIFY(after.stages->isVisible());
    QCOMPARE(after.stages->geometry(), QRect(300, 200, 321, 234));
    after.stages->setFloating(false);
    after.settle();
    QCOMPARE(after.dockWidgetArea(after.stages), Qt::RightDockWidgetArea);
    QVERIFY(after.rect().contains(after.stages->geometry()));
}

void tst_DockGeometry::otherDocksOfTheWindowStay()
{
    SettingsFixture settings;
    const auto addForeign = [](DockWindow &window) {
        auto *dock = new QDockWidget(QStringLiteral("Foreign"), &window);
        dock->setWidget(new QLabel);
        window.addDockWidget(Qt::RightDockWidgetArea, dock);
        window.settle();
        return dock;
    };
    DockWindow before;
    addForeign(before);
    before.addDockWidget(Qt::RightDockWidgetArea, before.stages);
    before.settle();
    before.store();
    QVERIFY(before.item->y() < before.stages->y());
    DockWindow after;
    const QDockWidget *foreign = addForeign(after);
    after.restore();
    QVERIFY(foreign->isVisible());
    QVERIFY(!foreign->isFloating());
    QVERIFY(after.item->y() < after.stages->y());
    QVERIFY(after.rect().contains(foreign->geometry()));
}

void tst_DockGeometry::nothingStoredLeavesTheDefault()
{
    SettingsFixture settings;
    DockWindow window;
    const QString description = window.description();
    const QRect item = window.item->geometry();
    int moved = 0;
    connect(window.item, &QDockWidget::dockLocationChanged, this, [&moved] { ++moved; });
    window.restore();
    QCOMPARE(window.description(), description);
    QCOMPARE(window.item->geometry(), item);
    QCOMPARE(moved, 0);
    QVERIFY(settings->allKeys().isEmpty());
}

QTEST_MAIN(tst_DockGeometry)
#include "tst_dockgeometry.moc"
