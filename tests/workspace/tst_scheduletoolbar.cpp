#include "workspace/ScheduleToolBar.h"

#include "MainWidgetFixture.h"

#include "ZvSystemInfo.h"

#include <QToolButton>
#include <QtTest>

using namespace Zavo;
using namespace ZavoTest;

namespace {

const QStringList AllActions = {
    QStringLiteral("Action_Save_Channel"),        QStringLiteral("Action_Save_All_Channel"),
    QStringLiteral("Action_Create_Schedule"),     QStringLiteral("Action_Delete_Schedule"),
    QStringLiteral("Action_Create_Channel"),      QStringLiteral("Action_Delete_Channel"),
    QStringLiteral("Action_Output_Channel_Data"), QStringLiteral("Action_Upload")};

// Object names of the actions; "|" for a separator, "_" for a blank.
QStringList layoutOf(QToolBar *toolBar)
{
    QStringList layout;
    const QList<QAction *> actions = toolBar->actions();
    for (QAction *action : actions) {
        if (action->isSeparator())
            layout.append(QStringLiteral("|"));
        else if (qobject_cast<QToolButton *>(toolBar->widgetForAction(action)))
            layout.append(action->objectName());
        else
            layout.append(QStringLiteral("_"));
    }
    return layout;
}

class RatioOverride final
{
    Q_DISABLE_COPY(RatioOverride)

public:
    explicit RatioOverride(double ratio) { ZvSystemInfo::setDpiRatioOverride(ratio); }
    ~RatioOverride() { ZvSystemInfo::setDpiRatioOverride(0.0); }
};

} // namespace

class tst_ScheduleToolBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void order();
    void missingActionsAreLeftOut();
    void anotherOne();
    void sharesTheActions();
    void blanks();
    void closeButton();
    void buttonSize_data();
    void buttonSize();
    void sharedActionsOutliveIt();
    void actionsMayDieFirst();
    void findActions();
};

void tst_ScheduleToolBar::order()
{
    const MainWidgetFixture main(AllActions);
    const QString separator = QStringLiteral("|");
    const QString blank = QStringLiteral("_");
    QCOMPARE(layoutOf(main.toolBar()),
             (QStringList{AllActions[0], AllActions[1], separator, AllActions[2], AllActions[3],
                          separator, AllActions[4], AllActions[5], separator, AllActions[6], blank,
                          AllActions[7], blank, QStringLiteral("Action_Close_Stage")}));
}

void tst_ScheduleToolBar::missingActionsAreLeftOut()
{
    const MainWidgetFixture main({AllActions[0], AllActions[4]});
    QCOMPARE(layoutOf(main.toolBar()),
             (QStringList{AllActions[0], QStringLiteral("|"), QStringLiteral("|"), AllActions[4],
                          QStringLiteral("|"), QStringLiteral("_"), QStringLiteral("_"),
                          QStringLiteral("Action_Close_Stage")}));
}

void tst_ScheduleToolBar::anotherOne()
{
    const MainWidgetFixture main(AllActions);
    const QPointer<QToolBar> toolBar = main.widget->createToolBar();
    QCOMPARE(layoutOf(toolBar), layoutOf(main.toolBar()));
    QCOMPARE(toolBar->objectName(), QStringLiteral("ScheduleToolBar"));
    QCOMPARE(toolBar->parent(), main.widget.get());
    toolBar->resize(400, 40);
    toolBar->show();
    main.widget->show();
    QCOMPARE(toolBar->styleSheet(), QStringLiteral("QToolButton {width: 16px; height: 16px;}"));
    QSignalSpy closing(main.widget.get(), SIGNAL(requestClose()));
    toolBar->actions().last()->trigger();
    QCOMPARE(closing.count(), 0);
    QTRY_COMPARE(closing.count(), 1);
}

void tst_ScheduleToolBar::sharesTheActions()
{
    const MainWidgetFixture main(AllActions);
    main.actions[7]->setEnabled(false);
    const QList<QAction *> shown = main.toolBar()->actions();
    for (const auto &action : main.actions)
        QVERIFY(shown.contains(action.get()));
    QVERIFY(!main.toolBar()->widgetForAction(main.actions[7].get())->isEnabled());
    QVERIFY(main.toolBar()->widgetForAction(main.actions[6].get())->isEnabled());
}

void tst_ScheduleToolBar::blanks()
{
    const MainWidgetFixture main(AllActions);
    const QList<QAction *> actions = main.toolBar()->actions();
    const QWidget *first = main.toolBar()->widgetForAction(actions.at(10));
    QCOMPARE(first->minimumSize(), QSize(24, 24));
    QCOMPARE(first->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum));
    const QWidget *second = main.toolBar()->widgetForAction(actions.at(12));
    QCOMPARE(second->minimumSize(), QSize(16, 16));
    QCOMPARE(second->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum));

    main.widget->resize(900, 500);
    main.widget->show();
    const QWidget *close = main.toolBar()->widgetForAction(actions.last());
    QVERIFY(close->geometry().right() > 850);
}

void tst_ScheduleToolBar::closeButton()
{
    const MainWidgetFixture main;
    const QAction *close = main.toolBar()->actions().last();
    QCOMPARE(close->objectName(), QStringLiteral("Action_Close_Stage"));
    QCOMPARE(close->text(), QStringLiteral("Close Stage Editor"));
    QCOMPARE(close->toolTip(), QStringLiteral("Close Schedule Editor"));
    QVERIFY(!close->icon().isNull());
}

void tst_ScheduleToolBar::buttonSize_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QString>("sheet");
    const QString format = QStringLiteral("QToolButton {width: %1px; height: %1px;}");
    QTest::newRow("1") << 1.0 << format.arg(QStringLiteral("16"));
    QTest::newRow("1.25") << 1.25 << format.arg(QStringLiteral("20"));
    QTest::newRow("1.3 keeps its fraction") << 1.3 << format.arg(QStringLiteral("20.8"));
    QTest::newRow("3") << 3.0 << format.arg(QStringLiteral("48"));
}

void tst_ScheduleToolBar::buttonSize()
{
    QFETCH(double, ratio);
    QFETCH(QString, sheet);
    const MainWidgetFixture main(AllActions);
    QCOMPARE(main.toolBar()->styleSheet(), QString());
    const RatioOverride override(ratio);
    main.widget->resize(900, 500);
    main.widget->show();
    QCOMPARE(main.toolBar()->styleSheet(), sheet);
    const RatioOverride other(2.0);
    main.widget->resize(700, 500);
    QTRY_COMPARE(main.toolBar()->styleSheet(),
                 QStringLiteral("QToolButton {width: 32px; height: 32px;}"));
}

void tst_ScheduleToolBar::sharedActionsOutliveIt()
{
    MainWidgetFixture main(AllActions);
    QPointer<QAction> close = main.toolBar()->actions().last();
    main.widget.reset();
    QVERIFY(!close);
    for (const auto &action : main.actions)
        QVERIFY(action->associatedWidgets().isEmpty());
}

void tst_ScheduleToolBar::actionsMayDieFirst()
{
    MainWidgetFixture main(AllActions);
    main.createTabs({QStringLiteral("a"), QStringLiteral("b")});
    main.actions.erase(main.actions.begin(), main.actions.begin() + 5);
    main.tabs()->setCurrentIndex(1);
    QCOMPARE(main.widget->findActions(AllActions).size(), 3);
    main.widget.reset();
    QCOMPARE(int(main.actions.size()), 3);
}

void tst_ScheduleToolBar::findActions()
{
    const MainWidgetFixture main(AllActions);
    const QList<QAction *> found = main.widget->findActions(
        {AllActions[7], QStringLiteral("action_upload"), AllActions[0], AllActions[7]});
    QCOMPARE(found, (QList<QAction *>{main.actions[7].get(), main.actions[0].get(),
                                      main.actions[7].get()}));
}

QTEST_MAIN(tst_ScheduleToolBar)
#include "tst_scheduletoolbar.moc"
