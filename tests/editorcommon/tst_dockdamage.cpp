#include "DockFixture.h"

#include "ZvSystemInfo.h"

#include <QRandomGenerator>
#include <QScreen>

#include <limits>

using Zavo::ZvEditorCommon;
using Zavo::ZvEditorUserConfig;

namespace {
const QString switcherGroup = QStringLiteral("DockWidgets/SwitchScheuleDock/");
const QString itemGroup = QStringLiteral("DockWidgets/ScheduleItemPropertyDock/");
const QString tabsGroup = QStringLiteral("DockTabs/ScheduleEditor/");

/// Stores an arrangement in which nothing is as by default.
void storeUnusual(SettingsFixture &settings)
{
    DockWindow window;
    window.addDockWidget(Qt::RightDockWidgetArea, window.switcher);
    window.addDockWidget(Qt::LeftDockWidgetArea, window.item);
    window.item->setFloating(true);
    window.item->setGeometry(100, 100, 250, 250);
    window.stages->hide();
    window.list->show();
    window.settle();
    window.store();
    settings.reopen();
}

/// What must hold whatever the settings said.
void verifySane(DockWindow &window)
{
    for (const QDockWidget *dock : window.docks()) {
        const Qt::DockWidgetArea area = window.dockWidgetArea(const_cast<QDockWidget *>(dock));
        QVERIFY(area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea);
        if (dock->isHidden())
            continue;
        QVERIFY(dock->width() > 0 && dock->height() > 0);
        QVERIFY(dock->width() <= 4096 && dock->height() <= 4096);
        if (!dock->isFloating() && !dock->visibleRegion().isEmpty())
            QVERIFY(window.rect().contains(dock->geometry()));
        if (dock->isFloating())
            QVERIFY(window.screen()->virtualGeometry().intersects(dock->geometry()));
    }
    QCOMPARE(window.size(), QSize(1200, 800));
}
} // namespace

class tst_DockDamage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void nullArgumentsDoNothing();
    void nullSettingsDoNothing();
    void docksWithoutNameAreNotKept();
    void namesOfAnyCharactersAreKeptApart();
    void damagedRecordLeavesTheDefault_data();
    void damagedRecordLeavesTheDefault();
    void missingKeyLeavesTheDefault_data();
    void missingKeyLeavesTheDefault();
    void otherScreenLeavesTheDefault();
    void otherRatioLeavesTheDefault();
    void floatingOffTheScreensLeavesTheDefault_data();
    void floatingOffTheScreensLeavesTheDefault();
    void forbiddenAreaLeavesTheDefault();
    void damagedTabsLeaveTheDefault_data();
    void damagedTabsLeaveTheDefault();
    void strangeTabsAreTakenAsFarAsTheyGo();
    void randomValuesDoNoHarm_data();
    void randomValuesDoNoHarm();
    void randomBytesInTheFileDoNoHarm();
};

void tst_DockDamage::cleanup()
{
    Zavo::ZvSystemInfo::setDpiRatioOverride(0);
}

void tst_DockDamage::nullArgumentsDoNothing()
{
    SettingsFixture settings;
    DockWindow window;
    const QString description = window.description();
    ZvEditorCommon::storeDockWidgetGeometry(nullptr, &window);
    ZvEditorCommon::storeDockWidgetGeometry(window.item, nullptr);
    ZvEditorCommon::storeTabifiedSettings(QStringLiteral("x"), nullptr);
    ZvEditorCommon::storeTabifiedSettings(QString(), &window);
    QVERIFY(settings->allKeys().isEmpty());
    window.store();
    ZvEditorCommon::restoreDockWidgetGeometry(nullptr, &window);
    ZvEditorCommon::restoreDockWidgetGeometry(window.item, nullptr);
    ZvEditorCommon::restoreTabifiedSettings(QStringLiteral("ScheduleEditor"), nullptr);
    ZvEditorCommon::restoreTabifiedSettings(QString(), &window);
    ZvEditorCommon::reorderDockWidgets({nullptr, nullptr}, &window);
    ZvEditorCommon::reorderDockWidgets(window.docks(), nullptr);
    ZvEditorCommon::reorderDockWidgets({}, &window);
    ZvEditorCommon::reorderDockWidgets({nullptr, window.item}, &window);
    window.settle();
    QCOMPARE(window.description(), description);
}

void tst_DockDamage::nullSettingsDoNothing()
{
    ZvEditorUserConfig::setSettings(nullptr);
    DockWindow window;
    const QString description = window.description();
    window.store();
    window.restore();
    QCOMPARE(window.description(), description);
    ZvEditorUserConfig::resetSettings();
}

void tst_DockDamage::docksWithoutNameAreNotKept()
{
    SettingsFixture settings;
    DockWindow window;
    window.item->setObjectName(QString());
    ZvEditorCommon::storeDockWidgetGeometry(window.item, &window);
    QVERIFY(settings->allKeys().isEmpty());
    ZvEditorCommon::restoreDockWidgetGeometry(window.item, &window);
    ZvEditorCommon::reorderDockWidgets({window.item}, &window);
    QVERIFY(window.item->isVisible());
}

void tst_DockDamage::namesOfAnyCharactersAreKeptApart()
{
    SettingsFixture settings;
    const QString first = QStringLiteral("a/b\\c=駅%\n ");
    const QString second = QStringLiteral("a/b\\c=駅%\n  ");
    const auto rename = [&](DockWindow &window) {
        window.stages->setObjectName(first);
        window.item->setObjectName(second);
    };
    DockWindow before;
    rename(before);
    before.stages->hide();
    before.store();
    settings.reopen();
    DockWindow after;
    rename(after);
    after.restore();
    QVERIFY(after.stages->isHidden());
    QVERIFY(after.item->isVisible());
}

void tst_DockDamage::damagedRecordLeavesTheDefault_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char *tag, const char *key, const QVariant &value) {
        QTest::newRow(tag) << QString::fromLatin1(key) << value;
    };
    constexpr int largest = std::numeric_limits<int>::max();
    constexpr int smallest = std::numeric_limits<int>::min();
    row("no area", "Area", 0);
    row("all areas", "Area", 15);
    row("area beyond", "Area", largest);
    row("negative area", "Area", -1);
    row("area in words", "Area", QStringLiteral("left"));
    row("area as bytes", "Area", QByteArray("\0\1\2", 3));
    row("floating in words", "Floating", QStringLiteral("perhaps"));
    row("visible as a number", "Visible", 7);
    row("geometry in words", "Geometry", QStringLiteral("10 10 10 10"));
    row("geometry as truncated bytes", "Geometry", QByteArray("@Rect(1 2", 9));
    row("geometry truncated", "Geometry", QStringLiteral("@Rect(1 2"));
    row("geometry without height", "Geometry", QRect(0, 0, 100, 0));
    row("geometry with negative size", "Geometry", QRect(0, 0, -100, -100));
    row("geometry that is huge", "Geometry", QRect(0, 0, 30000, 30000));
    row("geometry beyond reckoning", "Geometry",
        QRect(QPoint(smallest, smallest), QPoint(largest, largest)));
    row("geometry as a list", "Geometry", QStringList{QStringLiteral("1"), QStringLiteral("2")});
    row("order in words", "Order", QStringLiteral("first"));
    row("order beyond", "Order", 1e300);
    row("screen in words", "Screen", QStringLiteral("big"));
    row("screen beyond reckoning", "Screen",
        QRect(QPoint(smallest, largest), QPoint(largest, smallest)));
    row("ratio that is none", "DpiRatio", QStringLiteral("nan"));
    row("infinite ratio", "DpiRatio", QStringLiteral("inf"));
    row("ratio in words", "DpiRatio", QStringLiteral("two"));
    row("ratio zero", "DpiRatio", 0.0);
}

void tst_DockDamage::damagedRecordLeavesTheDefault()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    SettingsFixture settings;
    storeUnusual(settings);
    settings->setValue(switcherGroup + key, value);
    settings.reopen();
    DockWindow window;
    const int width = window.switcher->width();
    window.restore();
    QCOMPARE(window.dockWidgetArea(window.switcher), Qt::LeftDockWidgetArea);
    QVERIFY(window.switcher->isVisible());
    QVERIFY(!window.switcher->isFloating());
    QVERIFY(qAbs(window.switcher->width() - width) <= 40);
    // The others are not drawn into it.
    QVERIFY(window.item->isFloating());
    QVERIFY(window.stages->isHidden());
    verifySane(window);
}

void tst_DockDamage::missingKeyLeavesTheDefault_data()
{
    QTest::addColumn<QString>("key");
    for (const char *key :
         {"Area", "Floating", "Visible", "Geometry", "Order", "Screen", "DpiRatio"})
        QTest::newRow(key) << QString::fromLatin1(key);
}

void tst_DockDamage::missingKeyLeavesTheDefault()
{
    QFETCH(QString, key);
    SettingsFixture settings;
    storeUnusual(settings);
    QVERIFY(settings->contains(itemGroup + key));
    settings->remove(itemGroup + key);
    DockWindow window;
    window.restore();
    QVERIFY(!window.item->isFloating());
    QCOMPARE(window.dockWidgetArea(window.item), Qt::RightDockWidgetArea);
    QVERIFY(window.item->isVisible());
    verifySane(window);
}

void tst_DockDamage::otherScreenLeavesTheDefault()
{
    SettingsFixture settings;
    storeUnusual(settings);
    for (const QString &key : settings->allKeys()) {
        if (key.endsWith(QLatin1String("/Screen")))
            settings->setValue(key, QRect(0, 0, 5120, 2880));
    }
    DockWindow window;
    const QString description = window.description();
    const QRect switcher = window.switcher->geometry();
    window.restore();
    QCOMPARE(window.description(), description);
    QCOMPARE(window.switcher->geometry(), switcher);
}

void tst_DockDamage::otherRatioLeavesTheDefault()
{
    SettingsFixture settings;
    storeUnusual(settings);
    Zavo::ZvSystemInfo::setDpiRatioOverride(1.5);
    DockWindow window;
    const QString description = window.description();
    window.restore();
    QCOMPARE(window.description(), description);
    Zavo::ZvSystemInfo::setDpiRatioOverride(0);
    window.restore();
    QVERIFY(window.description() != description);
}

void tst_DockDamage::floatingOffTheScreensLeavesTheDefault_data()
{
    QTest::addColumn<QRect>("geometry");
    QTest::addColumn<bool>("reachable");
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QTest::newRow("within") << QRect(50, 50, 200, 200) << true;
    QTest::newRow("half out to the right") << QRect(screen.right() - 90, 50, 200, 200) << true;
    QTest::newRow("half out at the bottom") << QRect(50, screen.bottom() - 90, 200, 200) << true;
    QTest::newRow("out to the left") << QRect(-500, 50, 200, 200) << false;
    QTest::newRow("title above the screen") << QRect(50, -100, 200, 200) << false;
    QTest::newRow("a corner is left") << QRect(screen.right() - 5, 50, 200, 200) << false;
    QTest::newRow("below") << QRect(50, screen.bottom() + 1, 200, 200) << false;
    QTest::newRow("far away") << QRect(30000, 30000, 200, 200) << false;
}

void tst_DockDamage::floatingOffTheScreensLeavesTheDefault()
{
    QFETCH(QRect, geometry);
    QFETCH(bool, reachable);
    SettingsFixture settings;
    storeUnusual(settings);
    settings->setValue(itemGroup + QStringLiteral("Geometry"), geometry);
    DockWindow window;
    window.restore();
    QCOMPARE(window.item->isFloating(), reachable);
    if (reachable)
        QCOMPARE(window.item->geometry(), geometry);
    else
        QCOMPARE(window.dockWidgetArea(window.item), Qt::RightDockWidgetArea);
}

void tst_DockDamage::forbiddenAreaLeavesTheDefault()
{
    SettingsFixture settings;
    storeUnusual(settings);
    for (const Qt::DockWidgetArea area : {Qt::TopDockWidgetArea, Qt::BottomDockWidgetArea}) {
        settings->setValue(switcherGroup + QStringLiteral("Area"), int(area));
        settings->setValue(itemGroup + QStringLiteral("Area"), int(area));
        DockWindow window;
        window.restore();
        QCOMPARE(window.dockWidgetArea(window.switcher), Qt::LeftDockWidgetArea);
        QCOMPARE(window.dockWidgetArea(window.item), Qt::RightDockWidgetArea);
        QVERIFY(!window.item->isFloating());
    }
}

void tst_DockDamage::damagedTabsLeaveTheDefault_data()
{
    QTest::addColumn<QVariant>("count");
    QTest::newRow("missing") << QVariant();
    QTest::newRow("words") << QVariant(QStringLiteral("some"));
    QTest::newRow("negative") << QVariant(-1);
    QTest::newRow("more than docks") << QVariant(5);
    QTest::newRow("huge") << QVariant(std::numeric_limits<int>::max());
    QTest::newRow("beyond") << QVariant(QStringLiteral("99999999999999999999"));
}

void tst_DockDamage::damagedTabsLeaveTheDefault()
{
    QFETCH(QVariant, count);
    SettingsFixture settings;
    {
        DockWindow before;
        before.list->show();
        before.addDockWidget(Qt::LeftDockWidgetArea, before.list);
        before.settle();
        before.store();
    }
    if (count.isValid())
        settings->setValue(tabsGroup + QStringLiteral("Count"), count);
    else
        settings->remove(tabsGroup + QStringLiteral("Count"));
    DockWindow window;
    window.restore();
    QCOMPARE(window.tabifiedDockWidgets(window.switcher), QList<QDockWidget *>{window.list});
    verifySane(window);
}

void tst_DockDamage::strangeTabsAreTakenAsFarAsTheyGo()
{
    SettingsFixture settings;
    {
        DockWindow before;
        before.list->show();
        before.settle();
        before.store();
    }
    settings->setValue(tabsGroup + QStringLiteral("Count"), 3);
    settings->setValue(tabsGroup + QStringLiteral("1/Docks"),
                       QStringList{QStringLiteral("nobody"), QStringLiteral("ScheduleListDock"),
                                   QStringLiteral("ScheduleListDock"), QString(),
                                   QStringLiteral("SwitchScheuleDock"),
                                   QStringLiteral("ChooseStageDock")});
    settings->setValue(tabsGroup + QStringLiteral("1/Front"), QStringLiteral("nobody"));
    settings->setValue(
        tabsGroup + QStringLiteral("2/Docks"),
        QStringList{QStringLiteral("ScheduleListDock"), QStringLiteral("ChooseStageDock")});
    settings->setValue(tabsGroup + QStringLiteral("2/Front"), 12);
    settings->setValue(tabsGroup + QStringLiteral("3/Docks"), QRect(1, 2, 3, 4));
    DockWindow window;
    window.restore();
    QCOMPARE(window.tabifiedDockWidgets(window.switcher), QList<QDockWidget *>{window.list});
    QVERIFY(window.tabifiedDockWidgets(window.stages).isEmpty());
    QCOMPARE(window.dockWidgetArea(window.stages), Qt::RightDockWidgetArea);
    verifySane(window);
}

void tst_DockDamage::randomValuesDoNoHarm_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 25; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_DockDamage::randomValuesDoNoHarm()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    SettingsFixture settings;
    storeUnusual(settings);
    const auto number = [&random] {
        static const QVector<int> special{0,
                                          1,
                                          2,
                                          -1,
                                          300,
                                          65536,
                                          std::numeric_limits<int>::max(),
                                          std::numeric_limits<int>::min()};
        return special.at(random.bounded(special.size()));
    };
    const QStringList names{QStringLiteral("SwitchScheuleDock"), QStringLiteral("ChooseStageDock"),
                            QStringLiteral("ScheduleItemPropertyDock"), QStringLiteral("x")};
    const QStringList keys = settings->allKeys();
    for (int i = 0; i < 12; ++i) {
        const QString key = keys.at(random.bounded(keys.size()));
        const QVector<QVariant> values{
            number(),
            QRect(QPoint(number(), number()), QPoint(number(), number())),
            double(number()) * 1e9,
            bool(random.bounded(2)),
            names.at(random.bounded(names.size())),
            names,
            QByteArray(random.bounded(40), char(random.bounded(256))),
            QVariant()};
        settings->setValue(key, values.at(random.bounded(values.size())));
    }
    settings.reopen();
    DockWindow window;
    window.restore();
    verifySane(window);
    window.store();
    DockWindow again;
    again.restore();
    verifySane(again);
}

void tst_DockDamage::randomBytesInTheFileDoNoHarm()
{
    QRandomGenerator random(99);
    for (int round = 0; round < 20; ++round) {
        SettingsFixture settings;
        storeUnusual(settings);
        const QString path = settings->fileName();
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QByteArray content = file.readAll();
        for (int i = 0; i < 30; ++i)
            content[random.bounded(content.size())] = char(random.bounded(256));
        if (round % 3 == 0)
            content.truncate(random.bounded(content.size()));
        QVERIFY(file.resize(0) && file.seek(0));
        file.write(content);
        file.close();
        QSettings damaged(path, QSettings::IniFormat);
        ZvEditorUserConfig::setSettings(&damaged);
        DockWindow window;
        window.restore();
        verifySane(window);
    }
}

QTEST_MAIN(tst_DockDamage)
#include "tst_dockdamage.moc"
