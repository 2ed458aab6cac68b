#include "../services/TwoTabs.h"
#include "MessageBoxAnswer.h"
#include "SceneMouse.h"
#include "SignalLog.h"

#include "services/ZvScheduleClipboard.h"

#include <QToolBar>
#include <QtTest>

#include <functional>

using namespace Zavo;
using namespace ZavoTest;

namespace {

const char *const HasNotSelected = SIGNAL(timeTableTimeItemHasNotSelected(ZvScheduleWorkingArea*));
const char *const ItemsMoved =
    SIGNAL(timeTableTimeItemsMoved(QList<ZvTimeTableTimeItem*>,ZvScheduleWorkingArea*));
const char *const InfoChanged = SIGNAL(currentScheduleInfoChanged(ZvScheduleBasicInfo));
const char *const CountChanged = SIGNAL(scheduleStageCountChanged(ZvScheduleBasicInfo,int));
const char *const Created = SIGNAL(scheduleCreated(QList<int>,ZvScheduleBasicInfo));
const char *const Removed = SIGNAL(scheduleRemoved(QList<ZvScheduleBasicInfo>,ZvScheduleBasicInfo));

using Items = QList<ZvTimeTableTimeItem *>;

/// What the main widget says about the bands of its pages.
class SelectionLog final
{
public:
    explicit SelectionLog(const TwoTabs *tabs)
        : m_first(tabs->main.area(0))
    {
        m_log.watch(tabs->widget(), HasNotSelected, "none");
        m_log.watch(tabs->widget(), ItemsMoved, "items");
    }

    /// Since the last call, as "first: none; first: 0 2".
    QString take()
    {
        QStringList texts;
        for (int i = 0; i < m_log.names().size(); ++i)
            texts.append(text(m_log.names().at(i), m_log.arguments(i)));
        m_log.clear();
        return texts.join(QStringLiteral("; "));
    }

private:
    QString text(const QString &name, const QVariantList &arguments) const
    {
        const auto *area = arguments.last().value<ZvScheduleWorkingArea *>();
        QStringList words{area == m_first ? QStringLiteral("first:") : QStringLiteral("second:")};
        if (name == QLatin1String("none"))
            words.append(name);
        else
            words += numbersOf(arguments.first().value<Items>());
        return words.join(QLatin1Char(' '));
    }

    static QStringList numbersOf(const Items &items)
    {
        QStringList numbers;
        for (const ZvTimeTableTimeItem *item : items)
            numbers.append(QString::number(item->index()));
        return numbers;
    }

    const ZvScheduleWorkingArea *m_first; ///< maybe dead; only compared
    SignalLog m_log;
};

} // namespace

/// Who hears of what, in which order, and what of it waits for the event loop.
class tst_SignalOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void relaysAreDirect();
    void reportsArePushedAtOnce();
    void answersOfPagesAreDirect();
    void selectionIsToldFromTheEventLoop();
    void bandsThatWentAreNotTold();
    void bandsThatCameBackAreTold();
    void deadPageIsSilent();
    void pageWithoutItsSceneIsSilent();
    void reportsOfTheTabThatWasLeft();
    void orderAtTheStart();
    void orderAtATabChange();
    void orderOfBandEdits();
    void orderOfAnUndoFromAnotherSchedule();
    void orderOfARename();
    void moveRequestIsNotHeard();
    void closeButtonIsQueued();
    void pageDiesBehindTheQuestion();
    void pageDiesBehindTheMessage();
};

void tst_SignalOrder::relaysAreDirect()
{
    const TwoTabs tabs;
    ZvScheduleWorkingArea *area = tabs.first();
    SignalLog log;
    for (const char *signal :
         {HasNotSelected, ItemsMoved, Created, Removed, CountChanged, InfoChanged,
          SIGNAL(activated(QWidget*)), SIGNAL(graphicsScenePurged(QGraphicsScene*))})
        log.watch(tabs.widget(), signal);
    const auto last = [&log](int argument) { return log.arguments(0).value(argument); };
    const auto heard = [&log](const char *name) {
        return log.names() == QStringList{QLatin1String(name)};
    };
    Q_EMIT area->timeTableTimeItemHasNotSelected(area);
    QVERIFY(heard("timeTableTimeItemHasNotSelected"));
    QCOMPARE(last(0).value<ZvScheduleWorkingArea *>(), area);
    log.clear();
    const Items items = tabs.scene()->timeZoneItem()->timeItems();
    Q_EMIT area->timeTableTimeItemsMoved(items, area);
    QVERIFY(heard("timeTableTimeItemsMoved"));
    QCOMPARE(last(0).value<Items>(), items);
    log.clear();
    Q_EMIT area->scheduleCreated({3, 1}, tuesdayInfo);
    QVERIFY(heard("scheduleCreated"));
    QCOMPARE(last(0).value<QList<int>>(), (QList<int>{3, 1}));
    QCOMPARE(last(1).value<ZvScheduleBasicInfo>(), tuesdayInfo);
    log.clear();
    Q_EMIT area->scheduleRemoved({sundayInfo, tuesdayInfo}, mondayInfo);
    QVERIFY(heard("scheduleRemoved"));
    QCOMPARE(last(0).value<QList<ZvScheduleBasicInfo>>(),
             (QList<ZvScheduleBasicInfo>{sundayInfo, tuesdayInfo}));
    log.clear();
    Q_EMIT area->scheduleStageCountChanged(tuesdayInfo, 17);
    QVERIFY(heard("scheduleStageCountChanged"));
    QCOMPARE(last(1).toInt(), 17);
    log.clear();
    Q_EMIT area->currentScheduleInfoChanged(dateInfo());
    QVERIFY(heard("currentScheduleInfoChanged"));
    QCOMPARE(last(0).value<ZvScheduleBasicInfo>(), dateInfo());
    log.clear();
    Q_EMIT area->activated();
    QVERIFY(heard("activated"));
    QCOMPARE(last(0).value<QWidget *>(), static_cast<QWidget *>(tabs.widget()));
    log.clear();
    Q_EMIT area->graphicsScenePurged(nullptr);
    QVERIFY(heard("graphicsScenePurged"));
}

void tst_SignalOrder::reportsArePushedAtOnce()
{
    const TwoTabs tabs;
    ZvScheduleWorkingArea *area = tabs.first();
    const QUndoStack *stack = area->undoStack();
    Q_EMIT area->timeItemInserted(otherBands);
    QCOMPARE(stack->count(), 1);
    Q_EMIT area->timeTableTimeItemsMovingFinished({{0, QRectF(0, 0, 1, 1)}}, {{0, QRectF()}});
    QCOMPARE(stack->count(), 2);
    Q_EMIT area->defaultStageNameChangedWithUndo(QString(), QStringLiteral("a.xml"));
    QCOMPARE(stack->count(), 3);
    Q_EMIT area->timeItemPasted({}, otherBands);
    QCOMPARE(stack->count(), 4);
    area->switchToScheduleInfo(sundayInfo, false);
    Q_EMIT area->requestCreateCurrentSchedule();
    QCOMPARE(stack->count(), 5);
    QVERIFY(area->hasSchedule(sundayInfo));
}

void tst_SignalOrder::answersOfPagesAreDirect()
{
    const TwoTabs tabs;
    Q_EMIT tabs.first()->currentScheuleEnabledChanged(false);
    QVERIFY(tabs.action(ActionName::CreateSchedule)->isEnabled());
    Q_EMIT tabs.second()->requestActiveWidget(tabs.second());
    QCOMPARE(tabs.main.tabs()->currentIndex(), 1);
    Q_EMIT tabs.first()->channelNameChanged(QStringLiteral("New"), tabs.first());
    QCOMPARE(tabs.main.tabs()->tabText(0), QStringLiteral("New"));
    QCOMPARE(tabs.main.tabs()->currentIndex(), 0);
}

void tst_SignalOrder::selectionIsToldFromTheEventLoop()
{
    const TwoTabs tabs;
    SelectionLog log(&tabs);
    tabs.select({0, 2});
    QCOMPARE(log.take(), QString());
    QCoreApplication::processEvents();
    QCOMPARE(log.take(), QStringLiteral("first: none; first: 0; first: 0 2"));
    tabs.widget()->selectAllItems();
    QCoreApplication::processEvents();
    QCOMPARE(log.take(), QStringLiteral("first: 0 1 2"));
    tabs.widget()->deselectAllItems();
    QCOMPARE(log.take(), QString());
    QCoreApplication::processEvents();
    QCOMPARE(log.take(), QStringLiteral("first: none"));
}

// Of the reports that wait, those with a dead band are dropped, and only those.
void tst_SignalOrder::bandsThatWentAreNotTold()
{
    const TwoTabs tabs;
    SelectionLog log(&tabs);
    tabs.select({0, 1});
    tabs.first()->removeTimeItems({mondayBands.at(1)});
    QCoreApplication::processEvents();
    QCOMPARE(log.take(), QStringLiteral("first: none; first: 0"));
    tabs.select({1});
    tabs.widget()->deleteSelectedItems();
    QCoreApplication::processEvents();
    QCOMPARE(log.take(), QStringLiteral("first: none; first: none"));
}

void tst_SignalOrder::bandsThatCameBackAreTold()
{
    const TwoTabs tabs;
    Items told;
    const QObject context;
    connect(tabs.widget(), &ScheduleRouter::timeTableTimeItemsMoved, &context,
            [&](const Items &items, const ZvScheduleWorkingArea *area) {
                const Items live = tabs.scene()->timeZoneItem()->timeItems();
                for (ZvTimeTableTimeItem *item : items)
                    QVERIFY(live.contains(item));
                QCOMPARE(area, tabs.first());
                told = items;
            });
    for (int i = 0; i < 50; ++i) {
        tabs.select({i % 3});
        tabs.widget()->deleteSelectedItems();
        tabs.group()->undo();
    }
    QVERIFY(told.isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(told, tabs.first()->selectedTimeItems());
    QCOMPARE(told.size(), 1);
}

void tst_SignalOrder::deadPageIsSilent()
{
    const TwoTabs tabs;
    SelectionLog log(&tabs);
    tabs.select({0, 1});
    delete tabs.first();
    QCoreApplication::processEvents();
    QCOMPARE(log.take(), QStringLiteral("second:; second: none"));
    QCOMPARE(tabs.main.purgedScenes.size(), size_t(1));
}

void tst_SignalOrder::pageWithoutItsSceneIsSilent()
{
    const TwoTabs tabs;
    SelectionLog log(&tabs);
    tabs.select({0});
    const auto scenes = tabs.widget()->takeGraphicsScenes();
    QCoreApplication::processEvents();
    QCOMPARE(log.take(), QString());
    scenes.first()->clearSelection();
    QCoreApplication::processEvents();
    QCOMPARE(log.take(), QString());
    qDeleteAll(scenes);
}

void tst_SignalOrder::reportsOfTheTabThatWasLeft()
{
    const TwoTabs tabs;
    SelectionLog log(&tabs);
    tabs.select({2});
    tabs.main.tabs()->setCurrentIndex(1);
    // The new tab tells of itself at once; what waits still bears the name of its own page.
    QCOMPARE(log.take(), QStringLiteral("second:"));
    QCoreApplication::processEvents();
    QVERIFY(log.take().startsWith(QStringLiteral("first: none; first: 2")));
    tabs.main.tabs()->setCurrentIndex(0);
    QCOMPARE(log.take(), QStringLiteral("first: 2"));
}

// The first tab becomes current while the tabs are made, and only that one.
void tst_SignalOrder::orderAtTheStart()
{
    MainWidgetFixture main;
    SignalLog log;
    log.watch(main.widget->undoGroup(), SIGNAL(activeStackChanged(QUndoStack*)), "stack");
    log.watch(main.widget.get(), ItemsMoved, "items");
    log.watch(main.widget.get(), SIGNAL(requestCurrentScheduleType(ZvScheduleBasicInfo*)), "which");
    log.watch(main.widget.get(), InfoChanged, "info");
    log.watch(main.widget.get(), SIGNAL(currentChannelChanged(const ZvChannel*)), "channel");
    log.watch(main.widget.get(), SIGNAL(tabsCreated(QList<ZvChannel*>)), "created");
    main.createTabs({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    QCOMPARE(log.names().join(QLatin1Char(' ')),
             QStringLiteral("stack items which info channel created"));
    QCOMPARE(main.widget->undoGroup()->stacks().size(), 3);
    QCOMPARE(main.widget->undoGroup()->activeStack(), main.area(0)->undoStack());
    QCOMPARE(log.arguments(4).first().value<const ZvChannel *>(), main.area(0)->channel());
}

// At each of these moments the new page is current and its stack is the active one.
void tst_SignalOrder::orderAtATabChange()
{
    const TwoTabs tabs;
    QStringList order;
    const auto note = [&](const char *name) {
        order.append(QLatin1String(name));
        QCOMPARE(tabs.widget()->currentWorkingArea(), tabs.second());
        QCOMPARE(tabs.group()->activeStack(), tabs.second()->undoStack());
    };
    const ZvScheduleMainWidget *widget = tabs.widget();
    const QObject context; // gone before the tabs
    connect(tabs.group(), &QUndoGroup::activeStackChanged, &context, [&note] { note("stack"); });
    connect(widget, &ScheduleRouter::timeTableTimeItemsMoved, &context, [&note] { note("items"); });
    connect(widget, &ScheduleRouter::requestCurrentScheduleType, &context,
            [&](const ZvScheduleBasicInfo *info) {
                note("which");
                QCOMPARE(*info, mondayInfo); // the fixture has answered
                QCOMPARE(tabs.second()->currentScheduleInfo(), ZvScheduleBasicInfo());
            });
    connect(widget, &ScheduleRouter::currentScheduleInfoChanged, &context,
            [&note] { note("info"); });
    connect(widget, &ZvScheduleMainWidget::currentChannelChanged, &context,
            [&](const ZvChannel *channel) {
                note("channel");
                QCOMPARE(channel, tabs.second()->channel());
                QCOMPARE(tabs.second()->currentScheduleInfo(), mondayInfo);
            });
    tabs.main.tabs()->setCurrentIndex(1);
    QCOMPARE(order.join(QLatin1Char(' ')), QStringLiteral("stack items which info channel"));
}

// The page has changed and told so before the step is on its stack.
void tst_SignalOrder::orderOfBandEdits()
{
    const TwoTabs tabs;
    SignalLog log;
    log.watch(tabs.widget(), CountChanged, "count");
    log.watch(tabs.widget(), InfoChanged, "info");
    log.watch(tabs.group(), SIGNAL(indexChanged(int)), "step");
    const auto after = [&log](const std::function<void()> &edit) {
        log.clear();
        edit();
        return log.names().join(QLatin1Char(' '));
    };
    QCOMPARE(after([&] { tabs.widget()->deleteSelectedItems(); }), QStringLiteral("count step"));
    QCOMPARE(after([&] { tabs.group()->undo(); }), QStringLiteral("count step"));
    QCOMPARE(after([&] { tabs.group()->redo(); }), QStringLiteral("count step"));
    tabs.select({0});
    QCOMPARE(after([&] { tabs.widget()->cutSelectedItems(); }), QStringLiteral("count step"));
    QCOMPARE(after([&] {
                 tabs.scene()->timeZoneItem()->insertStages(QTime(4, 0), {QStringLiteral("x.xml")});
             }),
             QStringLiteral("count step"));
    const auto move = [&tabs] {
        ZvTimeTableTimeItem *item = tabs.first()->selectedTimeItems().value(0);
        item->setY(item->y() + 5.0);
        item->updateTimeInfo();
        tabs.widget()->onItemPropertyChangedByPropertyWidget();
    };
    QCOMPARE(after(move), QStringLiteral("step"));
    // A reset is carried out by the push.
    QCOMPARE(after([&] { tabs.widget()->onResetTimeTable(QStringLiteral("r.xml"), otherBands); }),
             QStringLiteral("count count count count step"));
}

// First the schedule, then the change in it, then the stack.
void tst_SignalOrder::orderOfAnUndoFromAnotherSchedule()
{
    const TwoTabs tabs;
    tabs.widget()->deleteSelectedItems();
    tabs.widget()->switchToDefaultSchedule();
    QStringList order;
    const QObject context;
    connect(tabs.widget(), &ScheduleRouter::currentScheduleInfoChanged, &context,
            [&](const ZvScheduleBasicInfo &info) {
                order.append(QStringLiteral("info"));
                QCOMPARE(info, mondayInfo);
                QCOMPARE(tabs.first()->currentTimes().size(), 2);
                // What was on show is stored by now.
                QCOMPARE(tabs.first()->defaultSchedule().timeList().size(), 2);
            });
    connect(tabs.group(), &QUndoGroup::indexChanged, &context, [&](int index) {
        order.append(QStringLiteral("step"));
        QCOMPARE(index, 0);
        QCOMPARE(tabs.first()->currentTimes().size(), 3);
    });
    tabs.group()->undo();
    QCOMPARE(order.join(QLatin1Char(' ')), QStringLiteral("info step"));
}

void tst_SignalOrder::orderOfARename()
{
    const TwoTabs tabs;
    SignalLog log;
    log.watch(tabs.group(), SIGNAL(activeStackChanged(QUndoStack*)), "stack");
    log.watch(tabs.second(), SIGNAL(channelNameChanged(QString,ZvScheduleWorkingArea*)), "name");
    log.watch(tabs.second()->undoStack(), SIGNAL(indexChanged(int)), "step");
    // The tab comes to the front first, so the step lands on its own stack.
    tabs.widget()->changeChannelNameWithUndo(1, QStringLiteral("New"));
    QCOMPARE(log.names().join(QLatin1Char(' ')), QStringLiteral("stack name step"));
    QCOMPARE(tabs.first()->undoStack()->count(), 0);
    tabs.main.tabs()->setCurrentIndex(0);
    log.clear();
    tabs.second()->undoStack()->undo();
    QCOMPARE(log.names().join(QLatin1Char(' ')), QStringLiteral("stack name step"));
}

void tst_SignalOrder::moveRequestIsNotHeard()
{
    const TwoTabs tabs;
    tabs.first()->moveTabTo(1);
    QCoreApplication::processEvents();
    QCOMPARE(tabs.main.tabTexts(),
             (QStringList{QStringLiteral("First"), QStringLiteral("Second")}));
}

void tst_SignalOrder::closeButtonIsQueued()
{
    const TwoTabs tabs;
    SignalLog log;
    log.watch(tabs.widget(), SIGNAL(requestClose()));
    tabs.main.toolBar()->actions().last()->trigger();
    QVERIFY(log.names().isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(log.names(), QStringList{QStringLiteral("requestClose")});
}

void tst_SignalOrder::pageDiesBehindTheQuestion()
{
    for (const bool ofCurrent : {true, false}) {
        const TwoTabs tabs;
        MessageBoxAnswer boxes;
        boxes.expect(QMessageBox::Yes).whileShown([&tabs](QMessageBox *) { delete tabs.first(); });
        if (ofCurrent)
            tabs.widget()->removeScheduleByCurrentInfoWithUndo();
        else
            tabs.widget()->removeScheduleWithUndo({mondayInfo});
        QVERIFY(boxes.isDone());
        QCOMPARE(tabs.main.tabs()->count(), 1);
        QCOMPARE(tabs.first()->undoStack()->count(), 0);
        QCOMPARE(tabs.first()->channelName(), QStringLiteral("Second"));
    }
}

// A band of a foreign payload that cannot be placed is told while the others are being placed.
void tst_SignalOrder::pageDiesBehindTheMessage()
{
    TwoTabs tabs;
    tabs.first()->removeTimeItems(mondayBands);
    tabs.view()->centerOn(QPointF(180.0, yOf("15:00:00")));
    SceneMouse(tabs.view()).click(QPointF(180.0, yOf("15:00:00")));
    const QList<ZvTime> overlapping{band("01:00:00", "02:00:00"), band("01:10:00", "01:20:00"),
                                    band("01:30:00", "01:40:00"), band("01:50:00", "02:10:00")};
    ZvScheduleClipboard::writeTimesToClipboard(overlapping);
    MessageBoxAnswer boxes;
    boxes.expect(QMessageBox::Ok).whileShown([&tabs](QMessageBox *) {
        delete tabs.first();
        tabs.main.purgedScenes.clear();
    });
    QVERIFY(!tabs.widget()->pasteItems());
    QVERIFY(boxes.isDone());
    QCOMPARE(tabs.main.tabs()->count(), 1);
    QCOMPARE(tabs.first()->undoStack()->count(), 0);
}

QTEST_MAIN(tst_SignalOrder)
#include "tst_signalorder.moc"
