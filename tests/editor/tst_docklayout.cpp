#include "DockHost.h"
#include "MessageBoxAnswer.h"

#include "ZvEditorConfig.h"
#include "ZvEditorUserConfig.h"

#include <QFile>
#include <QSettings>
#include <QSignalSpy>

using namespace Zavo;
using namespace ZavoTest;

namespace {

const QString PlaceKey = QStringLiteral("DockWidgets/SwitchScheuleDock/Area");

bool restoreSettings(const DockHost &host)
{
    return QMetaObject::invokeMethod(host.editor, "restoreDockWidgetSetting", Qt::DirectConnection,
                                     Q_ARG(bool, false));
}

} // namespace

class tst_DockLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void restart_data();
    void restart();
    void restartInAnotherRatio();
    void sizesSurvive();
    void longTitlesTakeNoRoom();
    void narrowWindowHasRoomForTheDocks();
    void damagedSettings_data();
    void damagedSettings();
    void settingsThatAreNoFile();
    void storedAfterThePrompt();
    void nothingIsStoredWithoutExec();
    void toDefaultStoresNothing();
    void kindOfScheduleIsRestored_data();
    void kindOfScheduleIsRestored();
    void defaultScheduleFirst();
    void docksGoInTheirOrder();
    void closedWhileSizing();
    void deletedWhileSizing();
    void windowDeletedWhileFloating();
};

namespace {

// What a person may have done to the docks.
void arrange(const DockHost &host, const QByteArray &way)
{
    if (way == "floating") {
        host.item()->setFloating(true);
        host.item()->setGeometry(120, 140, 260, 220);
    } else if (way == "all hidden") {
        for (QDockWidget *dock : host.docks())
            dock->hide();
    } else if (way == "list in front") {
        host.list()->show();
        host.list()->raise();
    } else if (way == "list behind") {
        host.list()->show();
        host.switcher()->raise();
    } else if (way == "other sides") {
        host.window->addDockWidget(Qt::RightDockWidgetArea, host.switcher());
        host.window->addDockWidget(Qt::LeftDockWidgetArea, host.item());
    } else if (way == "all tabs") {
        host.list()->show();
        host.window->tabifyDockWidget(host.switcher(), host.chooser());
        host.window->tabifyDockWidget(host.switcher(), host.item());
        host.chooser()->raise();
    } else if (way == "list beside") {
        host.list()->show();
        host.window->splitDockWidget(host.switcher(), host.list(), Qt::Vertical);
    } else if (way == "floating and hidden") {
        host.switcher()->setFloating(true);
        host.switcher()->hide();
    }
    host.settle();
}

} // namespace

void tst_DockLayout::restart_data()
{
    QTest::addColumn<QByteArray>("way");
    QTest::addColumn<double>("ratio");
    for (const char *way : {"default", "floating", "all hidden", "list in front", "list behind",
                            "other sides", "all tabs", "list beside", "floating and hidden"})
        QTest::newRow(way) << QByteArray(way) << 1.0;
    for (const char *way : {"floating", "all hidden", "all tabs"}) {
        for (const double ratio : {1.5, 2.0})
            QTest::addRow("%s, %.1f", way, ratio) << QByteArray(way) << ratio;
    }
}

void tst_DockLayout::restart()
{
    QFETCH(QByteArray, way);
    QFETCH(double, ratio);
    const QSize size(2000, 1000);
    DockHost host;
    ZvSystemInfo::setDpiRatioOverride(ratio);
    host.restart(size);
    QVERIFY(host.startSettled());
    const QString atStart = host.layoutText();
    arrange(host, way);
    const QString arranged = host.layoutText();
    QCOMPARE(arranged == atStart, way == "default");
    host.restart(size);
    QVERIFY(host.startSettled());
    QCOMPARE(host.layoutText(), arranged);
    for (QDockWidget *dock : host.docks())
        dock->show(); // the panel stays closed by default, if it was
    host.toDefault();
    QCOMPARE(host.layoutText(), atStart);
    QCOMPARE(host.switcher()->width(), static_cast<int>(330 * ratio));
    QCOMPARE(host.chooser()->width(), static_cast<int>(300 * ratio));
    QCOMPARE(host.item()->height(), 170);
}

// Sizes that were stored on a screen of another ratio would be wrong on this one.
void tst_DockLayout::restartInAnotherRatio()
{
    DockHost host;
    host.restart(QSize(2000, 1000));
    QVERIFY(host.startSettled());
    host.window->resizeDocks({host.switcher()}, {250}, Qt::Horizontal);
    host.settle();
    QCOMPARE(host.switcher()->width(), 250);
    host.editor->close();
    ZvSystemInfo::setDpiRatioOverride(2.0);
    host.restart(QSize(2000, 1000));
    QVERIFY(host.startSettled());
    QCOMPARE(host.switcher()->width(), 660);
    QCOMPARE(host.item()->height(), 170);
}

void tst_DockLayout::sizesSurvive()
{
    DockHost host;
    host.restart(QSize(1600, 1000));
    QVERIFY(host.startSettled());
    host.window->resizeDocks({host.switcher(), host.chooser()}, {410, 290}, Qt::Horizontal);
    host.settle();
    const int column = host.chooser()->height() + host.item()->height();
    host.window->resizeDocks({host.chooser(), host.item()}, {column - 260, 260}, Qt::Vertical);
    host.settle();
    host.restart(QSize(1600, 1000));
    QVERIFY(host.startSettled());
    QCOMPARE(host.switcher()->width(), 410);
    QCOMPARE(host.chooser()->width(), 290);
    QCOMPARE(host.item()->height(), 260);
    QCOMPARE(host.item()->minimumHeight(), 150);
    QVERIFY(host.switcher()->maximumWidth() > 10000);
}

void tst_DockLayout::longTitlesTakeNoRoom()
{
    DockHost host;
    host.restart(QSize(1280, 860));
    QVERIFY(host.startSettled());
    for (const QDate &date : {QDate(2031, 9, 24), QDate(2031, 11, 26)}) {
        host.main()->switchToDateSchedule(date);
        host.settle();
        QCOMPARE(host.switcher()->width(), 330);
        QCOMPARE(host.chooser()->width(), 300);
    }
}

// The page asks for no more room than what it shows, not even when it comes.
void tst_DockLayout::narrowWindowHasRoomForTheDocks()
{
    DockHost host({QStringLiteral("Alpha"), QStringLiteral("Beta")});
    for (int start = 0; start < 2; ++start) {
        host.restart(QSize(1050, 768));
        QVERIFY(host.startSettled());
        QTest::qWait(50);
        QCOMPARE(host.switcher()->width(), 330);
        QCOMPARE(host.chooser()->width(), 300);
        host.tabs()->setCurrentIndex(1);
        host.settle();
        QCOMPARE(host.switcher()->width(), 330);
        QCOMPARE(host.chooser()->width(), 300);
    }
}

void tst_DockLayout::damagedSettings_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("words") << QByteArray("nonsense");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("huge") << QByteArray("99999999999999999999");
    QTest::newRow("negative") << QByteArray("-1");
    QTest::newRow("far away") << QByteArray("@Rect(90000 90000 10 10)");
    QTest::newRow("list") << QByteArray("a, b, SwitchScheuleDock");
    QTest::newRow("broken variant") << QByteArray("@Variant(\\0\\0\\0)");
}

void tst_DockLayout::damagedSettings()
{
    QFETCH(QByteArray, value);
    DockHost host;
    host.restart();
    QVERIFY(host.startSettled());
    const QString atStart = host.layoutText();
    arrange(host, "other sides");
    host.editor->close();
    const QString file = host.data.settings()->fileName();
    host.data.settings()->setValue(QLatin1String(DockSettingsKey::LastSelectedType), 1);
    host.data.settings()->sync();
    QFile ini(file);
    QVERIFY(ini.open(QIODevice::ReadOnly));
    QByteArray damaged;
    for (QByteArray line = ini.readLine(); !line.isEmpty(); line = ini.readLine()) {
        const int mark = line.indexOf('=');
        damaged += mark < 0 ? line : line.left(mark + 1) + value + '\n';
    }
    ini.close();
    QVERIFY(damaged.contains("SwitchScheuleDock"));
    QSettings other(file + QStringLiteral(".damaged"), QSettings::IniFormat);
    QFile broken(other.fileName());
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write(damaged);
    broken.close();
    other.sync();
    ZvEditorUserConfig::setSettings(&other);
    host.restart();
    QVERIFY(host.startSettled());
    QCOMPARE(host.layoutText(), atStart);
    QCOMPARE(host.switcher()->width(), 330);
    QCOMPARE(host.tabs()->count(), 1);
    host.editor->close();
    ZvEditorUserConfig::setSettings(host.data.settings());
}

void tst_DockLayout::settingsThatAreNoFile()
{
    DockHost host;
    ZvEditorUserConfig::setSettings(nullptr);
    host.restart();
    QVERIFY(host.startSettled());
    QCOMPARE(host.switcher()->width(), 330);
    host.editor->close();
    ZvEditorUserConfig::setSettings(host.data.settings());
    QCOMPARE(host.data.settings()->allKeys(), QStringList());
}

void tst_DockLayout::storedAfterThePrompt()
{
    DockHost host;
    QVERIFY(host.startSettled());
    host.edit(0, QStringLiteral("x.xml"));
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::No).whileShown([&host](QMessageBox *) {
        QVERIFY(!host.data.settings()->contains(PlaceKey));
        host.switcher()->hide();
    });
    QSignalSpy closed(host.editor, SIGNAL(closed()));
    host.editor->getAction(QString())->trigger();
    QCOMPARE(closed.count(), 1);
    QVERIFY(host.data.settings()->contains(PlaceKey));
    QCOMPARE(host.data.settings()
                 ->value(QStringLiteral("DockWidgets/SwitchScheuleDock/Visible"))
                 .toBool(),
             false);
    // What was written is on the disk, not only in this program.
    const QSettings read(host.data.settings()->fileName(), QSettings::IniFormat);
    QVERIFY(read.contains(PlaceKey));
}

void tst_DockLayout::nothingIsStoredWithoutExec()
{
    DockHost host;
    host.editor->close();
    QCOMPARE(host.data.settings()->allKeys(), QStringList());
}

void tst_DockLayout::toDefaultStoresNothing()
{
    DockHost host;
    host.restart();
    QVERIFY(host.startSettled());
    arrange(host, "other sides");
    host.restart();
    QVERIFY(host.startSettled());
    const int stored = host.data.settings()->value(PlaceKey).toInt();
    QCOMPARE(stored, int(Qt::RightDockWidgetArea));
    host.toDefault();
    QCOMPARE(host.data.settings()->value(PlaceKey).toInt(), stored);
    host.editor->close();
    QCOMPARE(host.data.settings()->value(PlaceKey).toInt(), int(Qt::LeftDockWidgetArea));
}

void tst_DockLayout::kindOfScheduleIsRestored_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("type");
    QTest::newRow("default") << QVariant(1) << int(ZvSchedule::Default);
    QTest::newRow("date") << QVariant(2) << int(ZvSchedule::Date);
    QTest::newRow("day of week") << QVariant(3) << int(ZvSchedule::DayOfWeek);
    QTest::newRow("as text") << QVariant(QStringLiteral("2")) << int(ZvSchedule::Date);
    QTest::newRow("nothing") << QVariant() << int(ZvSchedule::Default);
    QTest::newRow("none") << QVariant(0) << int(ZvSchedule::Default);
    QTest::newRow("unknown") << QVariant(4) << int(ZvSchedule::Default);
    QTest::newRow("nonsense") << QVariant(QStringLiteral("x")) << int(ZvSchedule::Default);
}

void tst_DockLayout::kindOfScheduleIsRestored()
{
    QFETCH(QVariant, stored);
    DockHost host;
    host.useDefaultScheduleFirst(false);
    QVERIFY(host.startSettled());
    const QDate today = QDate::currentDate();
    const QString key = QLatin1String(DockSettingsKey::LastSelectedType);
    host.data.settings()->remove(key);
    if (stored.isValid())
        host.data.settings()->setValue(key, stored);
    host.main()->switchToDateSchedule(today.addDays(40));
    QVERIFY(restoreSettings(host));
    const ZvScheduleBasicInfo info = host.area(0)->currentScheduleInfo();
    QTEST(int(info.type()), "type");
    if (info.type() == ZvSchedule::Date)
        QCOMPARE(info.date(), today);
    if (info.type() == ZvSchedule::DayOfWeek)
        QCOMPARE(int(info.dayOfWeek()), today.dayOfWeek());
}

void tst_DockLayout::defaultScheduleFirst()
{
    DockHost host;
    host.data.write(QStringLiteral("config.ini"), "[General]\nDefaultScheduleUsedFirst=true\n");
    ZvEditorConfig::reload();
    QVERIFY(host.startSettled());
    const QDate date = QDate::currentDate().addDays(40);
    host.data.settings()->setValue(QLatin1String(DockSettingsKey::LastSelectedType), 3);
    host.main()->switchToDateSchedule(date);
    QVERIFY(restoreSettings(host));
    QCOMPARE(host.area(0)->currentScheduleInfo().date(), date);
}

void tst_DockLayout::docksGoInTheirOrder()
{
    DockHost host;
    QVERIFY(host.startSettled());
    QStringList gone;
    for (QObject *dock : host.docks())
        connect(dock, &QObject::destroyed, this,
                [&gone](QObject *object) { gone.append(object->objectName()); });
    connect(host.main(), &QObject::destroyed, this,
            [&gone] { gone.append(QStringLiteral("main")); });
    connect(host.editor, &ZvScheduleEditor::closed, this,
            [&gone] { gone.append(QStringLiteral("closed")); });
    const QList<QDockWidget *> docks = host.docks();
    host.editor->close();
    for (const QDockWidget *dock : docks)
        QVERIFY(!dock->parent());
    QTRY_COMPARE(gone.size(), 6);
    QCOMPARE(gone,
             (QStringList{QStringLiteral("closed"), QStringLiteral("main"),
                          QStringLiteral("SwitchScheuleDock"), QStringLiteral("ScheduleListDock"),
                          QStringLiteral("ChooseStageDock"),
                          QStringLiteral("ScheduleItemPropertyDock")}));
}

void tst_DockLayout::closedWhileSizing()
{
    DockHost host;
    host.window->show();
    QSignalSpy closed(host.editor, SIGNAL(closed()));
    QTimer::singleShot(0, host.editor, SLOT(close()));
    QVERIFY(host.editor->exec());
    QCOMPARE(closed.count(), 1);
    QTest::qWait(10);
    QVERIFY(host.window->findChildren<QDockWidget *>().isEmpty());
    QVERIFY(!host.window->centralWidget());
}

void tst_DockLayout::deletedWhileSizing()
{
    for (const bool withTheWindow : {false, true}) {
        DockHost host;
        host.window->show();
        QTimer::singleShot(0, host.editor, [&host, withTheWindow] {
            if (withTheWindow)
                host.window.reset();
            else
                delete host.editor;
        });
        host.editor->exec();
        QVERIFY(!host.editor);
    }
}

void tst_DockLayout::windowDeletedWhileFloating()
{
    DockHost host;
    QVERIFY(host.startSettled());
    const QPointer<QDockWidget> dock = host.chooser();
    dock->setFloating(true);
    host.list()->setFloating(true);
    host.window.reset();
    QVERIFY(!dock);
}

QTEST_MAIN(tst_DockLayout)
#include "tst_docklayout.moc"
