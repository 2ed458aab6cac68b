#include "EditorFixture.h"

#include "domain/ActionNames.h"

#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

using namespace Zavo;
using namespace ZavoTest;

namespace {

// The entries of a menu and its submenus.
QList<QAction *> entriesOf(const QMenu *menu)
{
    QList<QAction *> entries;
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions) {
        if (!action->isSeparator())
            entries.append(action);
        if (action->menu())
            entries.append(entriesOf(action->menu()));
    }
    return entries;
}

QString helpProblem(const QAction *action)
{
    constexpr int lineLength = 80;
    const QString tip = action->statusTip();
    const QString explanation = action->whatsThis();
    if (tip.isEmpty() || explanation.isEmpty())
        return QStringLiteral("no help: ") + action->text();
    if (tip.size() > lineLength || tip.endsWith(QLatin1Char('.')))
        return QStringLiteral("no line of a status bar: ") + tip;
    if (!explanation.endsWith(QLatin1Char('.')) || explanation.size() < tip.size() / 2)
        return QStringLiteral("no sentence: ") + explanation;
    return {};
}

QString helpProblem(const QMenu *menu)
{
    const QList<QAction *> entries = entriesOf(menu);
    for (const QAction *action : entries) {
        const QString problem = helpProblem(action);
        if (!problem.isEmpty())
            return problem;
    }
    return entries.isEmpty() ? QStringLiteral("an empty menu") : QString();
}

} // namespace

class tst_ActionHelp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entriesOfMenusExplainThemselves();
    void entriesOfContextMenusExplainThemselves();
    void menuOfATabExplainsItself();
    void buttonsOfTheToolBarExplainThemselves();
    void helpOfTwoEntriesDiffers();
    void statusTipOfAnEntry();
    void statusTipOfAButton();
    void whatsThisOfPanels();
};

void tst_ActionHelp::entriesOfMenusExplainThemselves()
{
    const EditorFixture host;
    const QList<QMenu *> menus = host.editor->menu();
    QCOMPARE(menus.size(), 5);
    for (const QMenu *menu : menus)
        QCOMPARE(helpProblem(menu), QString());
}

void tst_ActionHelp::entriesOfContextMenusExplainThemselves()
{
    EditorFixture host;
    QVERIFY(host.start());
    int menuCount = 0;
    const QList<QMenu *> menus = host.window->findChildren<QMenu *>();
    for (const QMenu *menu : menus) {
        // The months of the calendar and what a bar has no room for are Qt's.
        if (menu->actions().isEmpty() || qobject_cast<const QToolButton *>(menu->parentWidget()) ||
            menu->actions().constFirst()->menu())
            continue;
        ++menuCount;
        QCOMPARE(helpProblem(menu), QString());
    }
    QVERIFY2(menuCount >= 4, qPrintable(QString::number(menuCount)));
}

void tst_ActionHelp::menuOfATabExplainsItself()
{
    EditorFixture host;
    QVERIFY(host.start());
    QString problem = QStringLiteral("no menu");
    QTimer::singleShot(0, host.window.get(), [&problem] {
        auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (!menu)
            return;
        problem = helpProblem(menu);
        menu->close();
    });
    const QPoint centre = host.tabs()->currentTabRect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, centre, host.tabs()->mapToGlobal(centre));
    QApplication::sendEvent(host.tabs(), &event);
    QCOMPARE(problem, QString());
}

void tst_ActionHelp::buttonsOfTheToolBarExplainThemselves()
{
    const EditorFixture host;
    const auto *const bar = host.main() ? host.main()->findChild<QToolBar *>() : nullptr;
    QVERIFY(!bar); // not before the editor is in its window
    EditorFixture started;
    QVERIFY(started.start());
    const QList<QAction *> actions = started.main()->findChild<QToolBar *>()->actions();
    int count = 0;
    for (const QAction *action : actions) {
        if (action->isSeparator() || action->text().isEmpty())
            continue;
        QCOMPARE(helpProblem(action), QString());
        ++count;
    }
    QCOMPARE(count, 9);
}

void tst_ActionHelp::helpOfTwoEntriesDiffers()
{
    const EditorFixture host;
    QStringList explanations;
    const QList<QMenu *> menus = host.editor->menu();
    for (const QMenu *menu : menus) {
        const QList<QAction *> entries = entriesOf(menu);
        for (const QAction *action : entries) {
            if (!action->objectName().startsWith(QStringLiteral("Action_FirstDayOfWeek_")))
                explanations.append(action->statusTip());
        }
    }
    QVERIFY(explanations.size() > 30);
    QCOMPARE(explanations.removeDuplicates(), 0);
}

void tst_ActionHelp::statusTipOfAnEntry()
{
    EditorFixture host;
    QStatusBar *const bar = host.window->statusBar();
    QVERIFY(host.start());
    host.window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(host.window.get()));
    QMenu *const menu = host.editor->getMenu(QLatin1String(MenuName::Channel));
    host.window->menuBar()->setActiveAction(menu->menuAction());
    QVERIFY(QTest::qWaitForWindowExposed(menu));
    QTest::keyClick(menu, Qt::Key_Up);
    QCOMPARE(menu->activeAction(), host.action(ActionName::ChannelConfiguration));
    QCOMPARE(bar->currentMessage(), menu->activeAction()->statusTip());
    menu->close();
    QTRY_COMPARE(bar->currentMessage(), QString());
}

void tst_ActionHelp::statusTipOfAButton()
{
    EditorFixture host;
    const QStatusBar *const bar = host.window->statusBar();
    QVERIFY(host.start());
    QAction *const save = host.action(ActionName::SaveChannel);
    const QWidget *const button = host.main()->findChild<QToolBar *>()->widgetForAction(save);
    QWindow *const window = host.window->windowHandle();
    QTest::mouseMove(window, host.window->rect().center());
    QTest::mouseMove(window, button->mapTo(host.window.get(), button->rect().center()));
    QTRY_COMPARE(bar->currentMessage(), save->statusTip());
    QTest::mouseMove(window, host.window->rect().center());
    QTRY_COMPARE(bar->currentMessage(), QString());
}

void tst_ActionHelp::whatsThisOfPanels()
{
    EditorFixture host;
    QVERIFY(host.start());
    QStringList missing{
        QStringLiteral("ZvScheduleSwitcherWidget"),
        QStringLiteral("ZvCalendarWidget"),
        QStringLiteral("ZvWeekWidget"),
        QStringLiteral("ZvTodayWidget"),
        QStringLiteral("ZvScheduleDefaultWidget"),
        QStringLiteral("ZvScheduleListWidget"),
        QStringLiteral("ZvScheduledToBeExecutedWidget"),
        QStringLiteral("ZvTimeTableView"),
        QStringLiteral("ZvScheduleStageChooserWidget"),
        QStringLiteral("ZvScheduleItemPropertyWidget"),
        QStringLiteral("ZvScheduleDefaultStageWidget"),
    };
    const QList<QWidget *> widgets = host.window->findChildren<QWidget *>();
    for (QWidget *panel : widgets) {
        const QString name = QString::fromLatin1(panel->metaObject()->className());
        const QPoint centre = panel->rect().center();
        QHelpEvent question(QEvent::QueryWhatsThis, centre, panel->mapToGlobal(centre));
        QCoreApplication::sendEvent(panel, &question);
        if (question.isAccepted() && panel->whatsThis().endsWith(QLatin1Char('.')))
            missing.removeOne(name.mid(int(qstrlen("Zavo::"))));
    }
    QCOMPARE(missing, QStringList());
}

QTEST_MAIN(tst_ActionHelp)

#include "tst_actionhelp.moc"
