#include "DockHost.h"

#include "editor/ScheduleDocks.h"

#include <QSignalSpy>
#include <QSplitter>

using namespace Zavo;
using namespace ZavoTest;

namespace {

const QLatin1String FirstStyle("QDockWidget::title {height: 12pt;}"
                               "QDockWidget {titlebar-close-icon: url(:/images/close_black.svg);}");

QString styleFor(int size)
{
    return QStringLiteral("QDockWidget {icon-size: %1px; titlebar-close-icon: "
                          "url(:/images/close_black.svg); titlebar-normal-icon: "
                          "url(:/images/window_normal_black.svg);}"
                          "QDockWidget::float-button {right: %2px;}")
        .arg(size)
        .arg(size + 3);
}

// The sizes that are asked of the docks while these are being sized, in their order. They are
// limits that hold only until the layout has followed.
class AskedSizes final : public QObject
{
public:
    explicit AskedSizes(const DockHost &host)
        : m_docks(host.docks())
    {
        for (const QDockWidget *dock : qAsConst(m_docks))
            m_limits.append({dock->minimumSize(), dock->maximumSize()});
        startTimer(0);
    }

    QStringList texts() const { return m_texts; }

protected:
    void timerEvent(QTimerEvent * /*event*/) override
    {
        for (int i = 0; i < m_docks.size(); ++i) {
            const QDockWidget *dock = m_docks.at(i);
            const auto asked = [](int minimum, int maximum, int oldMinimum, int oldMaximum) {
                return minimum != oldMinimum ? minimum : maximum != oldMaximum ? maximum : 0;
            };
            const Limits &old = m_limits.at(i);
            const int width = asked(dock->minimumWidth(), dock->maximumWidth(), old.minimum.width(),
                                    old.maximum.width());
            const int height = asked(dock->minimumHeight(), dock->maximumHeight(),
                                     old.minimum.height(), old.maximum.height());
            const QString text =
                QStringLiteral("%1 %2x%3").arg(dock->objectName()).arg(width).arg(height);
            if ((width || height) && !m_texts.contains(text))
                m_texts.append(text);
        }
    }

private:
    struct Limits
    {
        QSize minimum;
        QSize maximum;
    };
    QList<QDockWidget *> m_docks;
    QList<Limits> m_limits;
    QStringList m_texts;
};

} // namespace

class tst_ScheduleDocks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void frames();
    void nothingIsPlacedBeforeExec();
    void firstStart_data();
    void firstStart();
    void askedSizes_data();
    void askedSizes();
    void changedSizeLeavesTheLimits_data();
    void changedSizeLeavesTheLimits();
    void changedSizeOfNothing();
    void toDefaultFromAnywhere();
    void toDefaultLeavesTheClosedPanelClosed();
    void toDefaultSizesThePreview();
    void toDefaultBeforeExecAndAfterClose();
    void hostIsNotAskedToPlaceDocks();
    void windowMenuShowsWhatIsSeen();
    void windowMenuRows_data();
    void windowMenuRows();
    void windowMenuBringsTabsToTheFront();
    void lookingAtTheMenuChangesNothing();
    void windowMenuOfAFloatingDock();
    void buttonsFollowTheScreen();
    void eventsAreNotConsumed();
    void dockTest();
};

void tst_ScheduleDocks::frames()
{
    QObject filter;
    ScheduleDocks docks(nullptr);
    const auto check = [&](ScheduleDocks::Which which, const char *title, const char *name) {
        QVERIFY(!docks.dock(which));
        const QDockWidget *dock = docks.create(which, &filter);
        QCOMPARE(docks.dock(which), dock);
        QVERIFY(!dock->parent());
        QCOMPARE(dock->windowTitle(), QLatin1String(title));
        QCOMPARE(dock->objectName(), QLatin1String(name));
        QCOMPARE(int(dock->allowedAreas()), int(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea));
        QCOMPARE(dock->styleSheet(), FirstStyle);
        QVERIFY(!dock->isVisible());
    };
    check(ScheduleDocks::SwitchSchedule, "Switch Schedule", "SwitchScheuleDock");
    check(ScheduleDocks::ChooseStage, "Choose Stage", "ChooseStageDock");
    check(ScheduleDocks::ItemProperty, "Asssigned Item Property", "ScheduleItemPropertyDock");
    check(ScheduleDocks::ScheduleList, "Schedule List", "ScheduleListDock");
    docks.attach();
    docks.setDefaultSizes();
    QVERIFY(!docks.isAttached());
    const QPointer<QDockWidget> list = docks.dock(ScheduleDocks::ScheduleList);
    docks.giveUp();
    QVERIFY(!docks.dock(ScheduleDocks::ScheduleList));
    QVERIFY(list);
    QTRY_VERIFY(!list);
}

void tst_ScheduleDocks::nothingIsPlacedBeforeExec()
{
    const DockHost host;
    QVERIFY(host.window->findChildren<QDockWidget *>().isEmpty());
}

void tst_ScheduleDocks::firstStart_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<bool>("shownFirst");
    QTest::addColumn<int>("leftWidth");
    QTest::addColumn<int>("rightWidth");
    for (const bool shownFirst : {true, false}) {
        const char *when = shownFirst ? "shown before" : "shown after";
        QTest::addRow("1, %s", when) << 1.0 << shownFirst << 330 << 300;
        QTest::addRow("1.25, %s", when) << 1.25 << shownFirst << 412 << 375;
        QTest::addRow("1.5, %s", when) << 1.5 << shownFirst << 495 << 450;
        QTest::addRow("2, %s", when) << 2.0 << shownFirst << 660 << 600;
    }
}

void tst_ScheduleDocks::firstStart()
{
    QFETCH(double, ratio);
    QFETCH(bool, shownFirst);
    DockHost host;
    ZvSystemInfo::setDpiRatioOverride(ratio);
    host.restart(QSize(2000, 1000));
    if (!shownFirst)
        QVERIFY(host.editor->exec());
    QVERIFY(host.startSettled());
    QCOMPARE(host.window->tabPosition(Qt::LeftDockWidgetArea), QTabWidget::West);
    QCOMPARE(host.window->tabPosition(Qt::RightDockWidgetArea), QTabWidget::West);
    QCOMPARE(host.layoutText(),
             QStringLiteral("SwitchScheuleDock area=1 front tabs=ScheduleListDock\n"
                            "ScheduleListDock area=1 hidden tabs=\n"
                            "ChooseStageDock area=2 front tabs=\n"
                            "ScheduleItemPropertyDock area=2 front tabs=\n"));
    QTEST(host.switcher()->width(), "leftWidth");
    QTEST(host.chooser()->width(), "rightWidth");
    QTEST(host.item()->width(), "rightWidth");
    QCOMPARE(host.item()->height(), 170);
    QCOMPARE(host.item()->minimumHeight(), 150);
    QVERIFY(host.chooser()->geometry().bottom() < host.item()->geometry().top());
    QVERIFY(host.chooser()->height() >= 530);
    QVERIFY(host.switcher()->height() >= 700);
    QVERIFY(host.main()->isVisible());
}

void tst_ScheduleDocks::askedSizes_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<int>("height");
    QTest::addColumn<QStringList>("expected");
    const auto list = [](const char *left, const char *upper, const char *lower) {
        return QStringList{QStringLiteral("SwitchScheuleDock ") + QLatin1String(left),
                           QStringLiteral("ScheduleListDock ") + QLatin1String(left),
                           QStringLiteral("ChooseStageDock ") + QLatin1String(upper),
                           QStringLiteral("ScheduleItemPropertyDock ") + QLatin1String(lower)};
    };
    QTest::newRow("1") << 1.0 << 1000 << list("330x700", "300x530", "300x170");
    QTest::newRow("1.5") << 1.5 << 1000 << list("495x700", "450x530", "450x170");
    QTest::newRow("2") << 2.0 << 1000 << list("660x700", "600x530", "600x170");
    QTest::newRow("fractions") << 1.25 << 999 << list("412x699", "375x529", "375x170");
}

void tst_ScheduleDocks::askedSizes()
{
    QFETCH(double, ratio);
    QFETCH(int, height);
    DockHost host;
    QVERIFY(host.startSettled());
    host.window->resize(2000, height);
    host.settle();
    ZvSystemInfo::setDpiRatioOverride(ratio);
    const AskedSizes asked(host);
    host.toDefault();
    QTEST(asked.texts(), "expected");
}

void tst_ScheduleDocks::changedSizeLeavesTheLimits_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("after");
    QTest::newRow("narrower") << 500 << 330 << 330;
    QTest::newRow("wider") << 200 << 330 << 330;
    QTest::newRow("equal") << 330 << 330 << 330;
    QTest::newRow("left alone by zero") << 250 << 0 << 250;
    QTest::newRow("left alone by less") << 250 << -4 << 250;
}

void tst_ScheduleDocks::changedSizeLeavesTheLimits()
{
    QFETCH(int, before);
    QFETCH(int, width);
    DockHost host;
    host.restart(QSize(1600, 800));
    QVERIFY(host.startSettled());
    QDockWidget *dock = host.switcher();
    host.window->resizeDocks({dock}, {before}, Qt::Horizontal);
    host.settle();
    QCOMPARE(dock->width(), before);
    dock->setMinimumSize(111, 122);
    dock->setMaximumSize(888, 999);
    ScheduleDocks::changeDockWidgetSize(dock, width, 0);
    QCOMPARE(dock->minimumSize(), QSize(111, 122));
    QCOMPARE(dock->maximumSize(), QSize(888, 999));
    host.settle();
    QTEST(dock->width(), "after");
}

void tst_ScheduleDocks::changedSizeOfNothing()
{
    ScheduleDocks::changeDockWidgetSize(nullptr, 100, 100);
    auto *dock = new QDockWidget;
    QTimer::singleShot(0, dock, [dock] { delete dock; });
    ScheduleDocks::changeDockWidgetSize(dock, 100, 100);
}

void tst_ScheduleDocks::toDefaultFromAnywhere()
{
    DockHost host;
    host.restart(QSize(1400, 800));
    QVERIFY(host.startSettled());
    const QString atStart = host.layoutText();
    const QSize chooserSize = host.chooser()->size();
    for (int way = 0; way < 4; ++way) {
        switch (way) {
        case 0:
            for (QDockWidget *dock : host.docks())
                dock->setFloating(true);
            break;
        case 1:
            for (QDockWidget *dock : {host.switcher(), host.list(), host.chooser()})
                dock->hide();
            break;
        case 2:
            host.list()->show();
            host.window->tabifyDockWidget(host.chooser(), host.item());
            host.window->tabifyDockWidget(host.item(), host.switcher());
            break;
        default:
            host.window->addDockWidget(Qt::RightDockWidgetArea, host.switcher());
            host.window->addDockWidget(Qt::LeftDockWidgetArea, host.item());
            host.window->resizeDocks({host.item(), host.switcher()}, {90, 500}, Qt::Horizontal);
            host.list()->setFloating(true);
            host.list()->show();
            break;
        }
        host.settle();
        QVERIFY(host.layoutText() != atStart);
        host.toDefault();
        QCOMPARE(host.layoutText(), atStart);
        QCOMPARE(host.switcher()->width(), 330);
        QCOMPARE(host.chooser()->size(), chooserSize);
        QCOMPARE(host.item()->size(), QSize(300, 170));
    }
}

void tst_ScheduleDocks::toDefaultLeavesTheClosedPanelClosed()
{
    DockHost host;
    QVERIFY(host.startSettled());
    host.item()->close();
    host.toDefault();
    QVERIFY(host.item()->isHidden());
    host.item()->show();
    host.settle();
    QCOMPARE(host.window->dockWidgetArea(host.item()), Qt::RightDockWidgetArea);
}

void tst_ScheduleDocks::toDefaultSizesThePreview()
{
    DockHost host;
    QVERIFY(host.startSettled());
    auto *splitter = host.chooser()->findChild<QSplitter *>();
    const QList<int> atStart = splitter->sizes();
    splitter->setSizes({atStart.at(0) / 2, atStart.at(1) + atStart.at(0) / 2});
    host.settle();
    QVERIFY(splitter->sizes() != atStart);
    host.toDefault();
    QTRY_COMPARE(splitter->sizes(), atStart);
}

void tst_ScheduleDocks::hostIsNotAskedToPlaceDocks()
{
    DockHost host;
    QSignalSpy asked(host.editor, SIGNAL(requestRestoreDockWidgetSetting(bool)));
    QSignalSpy askedBriefly(host.editor, SIGNAL(requestRestoreDockWidgetSetting()));
    QVERIFY(asked.isValid());
    QVERIFY(askedBriefly.isValid());
    QVERIFY(host.startSettled());
    host.toDefault();
    host.editor->close();
    QCOMPARE(asked.count() + askedBriefly.count(), 0);
}

void tst_ScheduleDocks::toDefaultBeforeExecAndAfterClose()
{
    DockHost host;
    host.action(ActionName::WindowToDefaultPosition)->trigger();
    QVERIFY(host.startSettled());
    host.editor->close();
    host.action(ActionName::WindowToDefaultPosition)->trigger();
    QVERIFY(host.window->findChildren<QDockWidget *>().isEmpty());
    for (const char *name :
         {ActionName::SetVisibleSwitchSchedule, ActionName::SetVisibleScheduleList,
          ActionName::SetVisibleChooseStage, ActionName::SetVisibleItemProperty})
        host.action(name)->toggle();
    QVERIFY(QMetaObject::invokeMethod(host.editor, "onMenuWindowAboutToShow"));
    QVERIFY(!host.action(ActionName::SetVisibleChooseStage)->isChecked());
    QVERIFY(!host.window->centralWidget());
}

namespace {

void openWindowMenu(const DockHost &host)
{
    QMenu *menu = host.editor->getMenu(QLatin1String(MenuName::Window));
    menu->popup(QPoint());
    menu->close();
    QCoreApplication::processEvents();
}

QString checkMarks(const DockHost &host)
{
    openWindowMenu(host);
    QString marks;
    for (const char *name :
         {ActionName::SetVisibleSwitchSchedule, ActionName::SetVisibleScheduleList,
          ActionName::SetVisibleChooseStage, ActionName::SetVisibleItemProperty})
        marks += host.action(name)->isChecked() ? QLatin1Char('x') : QLatin1Char('-');
    return marks;
}

} // namespace

void tst_ScheduleDocks::windowMenuShowsWhatIsSeen()
{
    DockHost host;
    QVERIFY(host.startSettled());
    QCOMPARE(checkMarks(host), QStringLiteral("x-xx"));
    host.chooser()->close();
    QCOMPARE(checkMarks(host), QStringLiteral("x--x"));
    host.item()->close();
    host.switcher()->close();
    QCOMPARE(checkMarks(host), QStringLiteral("----"));
    host.chooser()->show();
    QCOMPARE(checkMarks(host), QStringLiteral("--x-"));
}

void tst_ScheduleDocks::windowMenuRows_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("dock");
    const auto row = [](const char *name, const char *dock) {
        QTest::newRow(dock) << QByteArray(name) << QByteArray(dock);
    };
    row("Action_Set_Visible_Switch_Schedule", "SwitchScheuleDock");
    row("Action_Set_Visible_Schedule_List", "ScheduleListDock");
    row("Action_Set_Visible_Choose_Stage", "ChooseStageDock");
    row("Action_Set_Visible_Item_Property", "ScheduleItemPropertyDock");
}

void tst_ScheduleDocks::windowMenuRows()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, dock);
    DockHost host;
    QVERIFY(host.startSettled());
    QAction *action = host.action(name.constData());
    const QDockWidget *shown = host.dock(dock.constData());
    for (int round = 0; round < 2; ++round) {
        for (const bool visible : {true, false}) {
            openWindowMenu(host);
            if (action->isChecked() != visible)
                action->trigger();
            host.settle();
            QCOMPARE(shown->isVisible(), visible);
            QCOMPARE(host.isInFront(shown), visible);
        }
    }
}

void tst_ScheduleDocks::windowMenuBringsTabsToTheFront()
{
    DockHost host;
    QVERIFY(host.startSettled());
    QCOMPARE(checkMarks(host), QStringLiteral("x-xx"));
    host.action(ActionName::SetVisibleScheduleList)->trigger();
    host.settle();
    QVERIFY(host.isInFront(host.list()));
    QVERIFY(!host.isInFront(host.switcher()));
    QVERIFY(!host.switcher()->isHidden());
    QCOMPARE(checkMarks(host), QStringLiteral("-xxx"));
    host.action(ActionName::SetVisibleSwitchSchedule)->trigger();
    host.settle();
    QVERIFY(host.isInFront(host.switcher()));
    QVERIFY(!host.list()->isHidden());
    QCOMPARE(checkMarks(host), QStringLiteral("x-xx"));
}

void tst_ScheduleDocks::lookingAtTheMenuChangesNothing()
{
    DockHost host;
    QVERIFY(host.startSettled());
    host.action(ActionName::SetVisibleScheduleList)->trigger();
    host.settle();
    const QString before = host.layoutText();
    for (int i = 0; i < 3; ++i)
        openWindowMenu(host);
    host.settle();
    QCOMPARE(host.layoutText(), before);
    host.window->hide();
    QVERIFY(QMetaObject::invokeMethod(host.editor, "onMenuWindowAboutToShow"));
    host.window->show();
    host.settle();
    QCOMPARE(host.layoutText(), before);
}

void tst_ScheduleDocks::windowMenuOfAFloatingDock()
{
    DockHost host;
    QVERIFY(host.startSettled());
    host.chooser()->setFloating(true);
    host.chooser()->move(5000, 5000);
    QCOMPARE(checkMarks(host), QStringLiteral("x-xx"));
    host.action(ActionName::SetVisibleChooseStage)->trigger();
    QVERIFY(host.chooser()->isHidden());
    QCOMPARE(checkMarks(host), QStringLiteral("x--x"));
    host.action(ActionName::SetVisibleChooseStage)->trigger();
    QVERIFY(host.chooser()->isVisible());
    QVERIFY(host.chooser()->isFloating());
}

void tst_ScheduleDocks::buttonsFollowTheScreen()
{
    DockHost host;
    ZvSystemInfo::setDpiRatioOverride(1.0);
    QVERIFY(host.startSettled());
    QCOMPARE(host.switcher()->styleSheet(), styleFor(16));
    for (const auto &[ratio, size] : {std::pair(1.25, 20), {1.5, 24}, {1.7, 27}, {2.0, 32}}) {
        ZvSystemInfo::setDpiRatioOverride(ratio);
        host.window->resize(host.window->size() + QSize(10, 10));
        host.settle();
        QCOMPARE(host.switcher()->styleSheet(), styleFor(size));
        host.item()->hide();
        host.item()->show();
        QCOMPARE(host.item()->styleSheet(), styleFor(size));
    }
}

void tst_ScheduleDocks::eventsAreNotConsumed()
{
    DockHost host;
    QVERIFY(host.startSettled());
    for (const QEvent::Type type : {QEvent::ShowToParent, QEvent::Resize, QEvent::Close}) {
        QEvent event(type);
        QVERIFY(!host.editor->eventFilter(host.switcher(), &event));
        QVERIFY(!host.editor->eventFilter(host.main(), &event));
    }
    QVERIFY(host.main()->styleSheet().isEmpty());
}

void tst_ScheduleDocks::dockTest()
{
    DockHost host;
    QVERIFY(host.startSettled());
    host.window->resize(1000, 700);
    host.settle();
    for (QDockWidget *dock : host.docks()) {
        QString line;
        QDebug(&line) << dock << dock->geometry();
        QTest::ignoreMessage(QtDebugMsg, qPrintable(line.trimmed()));
    }
    host.editor->action_dock_test();
}

QTEST_MAIN(tst_ScheduleDocks)
#include "tst_scheduledocks.moc"
