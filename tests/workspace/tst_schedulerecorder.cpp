#include "workspace/ScheduleRecorder.h"

#include "../services/TwoTabs.h"
#include "DragGesture.h"
#include "MessageBoxAnswer.h"
#include "SceneMouse.h"
#include "SignalLog.h"

#include "services/ZvScheduleClipboard.h"
#include "stages/ZvScheduleDefaultStageWidget.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

using namespace Zavo;
using namespace ZavoTest;

namespace {

const QList<ZvTime> dropped{band("12:00:00", "13:00:00", "x.xml")};

int stepsOf(const ZvScheduleWorkingArea *area)
{
    return area->undoStack()->count();
}

} // namespace

/// What becomes a step of undo, in which order it is told, and what is asked before.
class tst_ScheduleRecorder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingWithoutATab();
    void droppedStage();
    void droppedStageBetweenTheSeconds();
    void moveAtTheEndOfTheDay();
    void draggedBand();
    void keyMove();
    void partialMoveIsNoStep();
    void droppedDefaultStage();
    void clearedDefaultStage();
    void createButton();
    void createdSchedules();
    void createsNothingForAnEmptyList();
    void undoOfACreationLeavesWhatWasThere();
    void deletedAndCutBands();
    void nothingToDeleteOrCut();
    void copyChangesNothing();
    void pasteOverExisting();
    void pasteOverAnEmptyDefaultSchedule();
    void resetReadsWhatIsThere();
    void signalsOfEachCommand();
    void stackOfEachTab();
    void activeStack();
    void actionsFollowTheSchedule();
    void savedContentByUndo();
    void undoPastTheSave();
    void pageDiesWithItsStack();
};

void tst_ScheduleRecorder::nothingWithoutATab()
{
    const MessageBoxAnswer noBoxes;
    const MainWidgetFixture main;
    ZvScheduleMainWidget *widget = main.widget.get();
    widget->createScheduleByCurrentInfoWithUndo();
    widget->createScheduleWithUndo({mondayInfo});
    widget->removeScheduleByCurrentInfoWithUndo();
    widget->removeScheduleWithUndo({mondayInfo});
    widget->removeAndInsertScheduleWithUndo({mondayInfo}, {scheduleOf(mondayInfo)});
    widget->onResetTimeTable(QString(), dropped);
    widget->onTimeItemInserted(dropped);
    widget->onTimeItemPasted(dropped, dropped);
    widget->onTimeItemMovingFinished({{0, QRectF()}}, {{0, QRectF()}});
    widget->onDefaultStageNameChangedWithUndo(QString(), QStringLiteral("a.xml"));
    widget->deleteSelectedItems();
    widget->selectAllItems();
    widget->deselectAllItems();
    QVERIFY(!widget->cutSelectedItems());
    QVERIFY(!widget->copySelectedItems());
    QVERIFY(!widget->pasteItems());
    QVERIFY(!widget->isPastingPossible());
    QCOMPARE(widget->hasSelectedItems(), ZvScheduleCommonInterface::SelectedType());
    QVERIFY(!widget->undoGroup()->activeStack());
}

void tst_ScheduleRecorder::droppedStage()
{
    TwoTabs tabs;
    const QString path = tabs.main.data.writeStage(QStringLiteral("x.xml"));
    const QStringList before = tabs.state();
    tabs.view()->centerOn(QPointF(180.0, yOf("13:00:00")));
    DragGesture drag(DragGesture::filesMimeData({path}));
    QVERIFY(drag.enter(tabs.view(), QPointF(180.0, yOf("13:00:00"))));
    QVERIFY(drag.drop());
    QCOMPARE(stepsOf(tabs.first()), 1);
    QCOMPARE(tabs.first()->currentTimes().size(), 4);
    const QStringList after = tabs.state();
    tabs.group()->undo();
    QCOMPARE(tabs.state(), before);
    tabs.group()->redo();
    QCOMPARE(tabs.state(), after);
}

// Its geometry gives a time back a millisecond short, and one that is close to a second is stored
// on it: undo has to know the band all the same.
void tst_ScheduleRecorder::droppedStageBetweenTheSeconds()
{
    const TwoTabs tabs;
    const QStringList names{QStringLiteral("x.xml"), QStringLiteral("y.xml")};
    for (int second = 7; second < 3500; second += 61) {
        for (const int ms : {6, 7, 8, 992, 993, 994}) {
            // The first of the two ends half way to 23 o'clock, so many milliseconds after a
            // second.
            const int startMs = second * 1000 + (2 * ms) % 1000;
            const QTime start = QTime(22, 0).addMSecs(startMs);
            QCOMPARE(tabs.scene()->timeZoneItem()->insertStages(start, names).size(), 2);
            tabs.first()->switchToScheduleInfo(defaultInfo, false);
            tabs.first()->switchToScheduleInfo(mondayInfo, false);
            tabs.widget()->undo();
            QCOMPARE(tabs.first()->currentTimes(), mondayBands);
            tabs.first()->storeCurrentSchedule();
        }
    }
}

// Of several stages that are dropped on the last seconds all but the first have no length.
void tst_ScheduleRecorder::moveAtTheEndOfTheDay()
{
    const TwoTabs tabs;
    tabs.first()->switchToScheduleInfo(defaultInfo, false);
    const QString name = QStringLiteral("x.xml");
    const ZvTimeTableTimeZoneItem *strip = tabs.scene()->timeZoneItem();
    QCOMPARE(
        tabs.scene()->timeZoneItem()->insertStages(QTime(23, 59, 53), {name, name, name}).size(),
        3);
    QTest::keyClick(tabs.view(), Qt::Key_Up);
    tabs.view()->completeMove();
    // What is shown again stands on the second.
    tabs.first()->switchToScheduleInfo(mondayInfo, false);
    tabs.first()->switchToScheduleInfo(defaultInfo, false);
    tabs.select({2, 3, 4});
    QTest::keyClick(tabs.view(), Qt::Key_Down);
    tabs.view()->completeMove();
    QCOMPARE(disorderOf(strip), QString());
    const QList<ZvTime> times = tabs.first()->currentTimes();
    for (int i = 1; i < times.size(); ++i)
        QVERIFY(times.at(i).startTime() >= times.at(i - 1).startTime());
    while (tabs.first()->undoStack()->canUndo())
        tabs.widget()->undo();
    QCOMPARE(tabs.first()->currentTimes(), otherBands);
}

void tst_ScheduleRecorder::draggedBand()
{
    const TwoTabs tabs;
    const QStringList before = tabs.state();
    tabs.view()->centerOn(QPointF(180.0, yOf("10:30:00")));
    SceneMouse mouse(tabs.view());
    mouse.drag(QPointF(180.0, yOf("10:30:00")), QPointF(180.0, yOf("11:30:00")));
    QCOMPARE(stepsOf(tabs.first()), 1);
    const QStringList after = tabs.state();
    QVERIFY(after != before);
    tabs.group()->undo();
    QCOMPARE(tabs.state(), before);
    tabs.group()->redo();
    QCOMPARE(tabs.state(), after);
    // A click moves nothing.
    mouse.click(QPointF(180.0, yOf("11:30:00")));
    QCOMPARE(stepsOf(tabs.first()), 1);
}

void tst_ScheduleRecorder::keyMove()
{
    const TwoTabs tabs;
    const QStringList before = tabs.state();
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(tabs.view(), Qt::Key_Down);
    QCOMPARE(stepsOf(tabs.first()), 0);
    QTRY_COMPARE(stepsOf(tabs.first()), 1);
    QVERIFY(tabs.state() != before);
    tabs.group()->undo();
    QCOMPARE(tabs.state(), before);
}

void tst_ScheduleRecorder::partialMoveIsNoStep()
{
    const TwoTabs tabs;
    tabs.select({0, 1});
    ZvTimeTableTimeItem *item = tabs.scene()->timeZoneItem()->timeItems().at(1);
    item->setY(item->y() + 10.0);
    item->updateTimeInfo();
    tabs.widget()->onItemPropertyChangedByPropertyWidget();
    QCOMPARE(stepsOf(tabs.first()), 0);
}

void tst_ScheduleRecorder::droppedDefaultStage()
{
    TwoTabs tabs;
    const QString path = tabs.main.data.writeStage(QStringLiteral("x.xml"));
    auto *box = tabs.first()->findChild<ZvScheduleDefaultStageWidget *>()->findChild<QLabel *>();
    const QStringList before = tabs.state();
    DragGesture drag(DragGesture::filesMimeData({path}));
    QVERIFY(drag.enter(box, box->rect().center()));
    QVERIFY(drag.drop());
    QCOMPARE(tabs.first()->defaultStageName(), QStringLiteral("x.xml"));
    QCOMPARE(stepsOf(tabs.first()), 1);
    tabs.group()->undo();
    QCOMPARE(tabs.state(), before);
    tabs.group()->redo();
    QCOMPARE(tabs.first()->defaultStageName(), QStringLiteral("x.xml"));
    QCOMPARE(stepsOf(tabs.first()), 1);
}

void tst_ScheduleRecorder::clearedDefaultStage()
{
    const TwoTabs tabs;
    auto *box = tabs.first()->findChild<ZvScheduleDefaultStageWidget *>();
    const QStringList before = tabs.state();
    box->setStageNameWithUndo(QString());
    QCOMPARE(stepsOf(tabs.first()), 1);
    QVERIFY(tabs.state() != before);
    tabs.group()->undo();
    QCOMPARE(tabs.state(), before);
}

void tst_ScheduleRecorder::createButton()
{
    const TwoTabs tabs;
    tabs.widget()->switchToDayOfWeekSchedule(Qt::Sunday);
    QAbstractButton *button = nullptr;
    const QList<QAbstractButton *> buttons = tabs.first()->findChildren<QAbstractButton *>();
    for (QAbstractButton *candidate : buttons) {
        if (candidate->text() == QLatin1String("You can create this schedule."))
            button = candidate;
    }
    QVERIFY(button && button->isVisible());
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(tabs.first()->isCurrentScheduleEnabled());
    QCOMPARE(stepsOf(tabs.first()), 1);
    tabs.group()->undo();
    QVERIFY(!tabs.first()->hasSchedule(sundayInfo));
    QVERIFY(!tabs.first()->isCurrentScheduleEnabled());
}

void tst_ScheduleRecorder::createdSchedules()
{
    const TwoTabs tabs;
    tabs.widget()->createScheduleWithUndo({tuesdayInfo, ZvScheduleBasicInfo(), dateInfo(1)});
    QVERIFY(tabs.first()->hasSchedule(tuesdayInfo));
    QVERIFY(tabs.first()->hasSchedule(dateInfo(1)));
    QCOMPARE(tabs.first()->channel()->scheduleList().size(), 5);
    QCOMPARE(stepsOf(tabs.first()), 1);
    QCOMPARE(tabs.first()->currentScheduleInfo(), mondayInfo);
}

void tst_ScheduleRecorder::createsNothingForAnEmptyList()
{
    const TwoTabs tabs;
    tabs.widget()->createScheduleWithUndo({});
    QCOMPARE(stepsOf(tabs.first()), 0);
}

void tst_ScheduleRecorder::undoOfACreationLeavesWhatWasThere()
{
    const TwoTabs tabs;
    tabs.widget()->createScheduleWithUndo({mondayInfo, tuesdayInfo});
    tabs.group()->undo();
    QVERIFY(tabs.first()->hasSchedule(mondayInfo));
    QVERIFY(!tabs.first()->hasSchedule(tuesdayInfo));
    QCOMPARE(bandTexts(tabs.first()->currentTimes()), bandTexts(mondayBands));
    tabs.widget()->createScheduleWithUndo({mondayInfo, defaultInfo});
    QCOMPARE(stepsOf(tabs.first()), 1);
}

void tst_ScheduleRecorder::deletedAndCutBands()
{
    const MessageBoxAnswer noBoxes;
    const TwoTabs tabs;
    QGuiApplication::clipboard()->clear();
    tabs.widget()->removeSelectedItems();
    QCOMPARE(tabs.first()->currentTimes().size(), 2);
    QCOMPARE(stepsOf(tabs.first()), 1);
    QVERIFY(!ZvScheduleClipboard::hasTimeData());
    tabs.select({0, 1});
    QVERIFY(tabs.widget()->cutSelectedItems());
    QVERIFY(tabs.first()->currentTimes().isEmpty());
    QCOMPARE(bandTexts(ZvScheduleClipboard::readTimesFromClipboard()),
             bandTexts({mondayBands.at(0), band("23:00:00", "23:59:59", "c.xml")}));
    QCOMPARE(stepsOf(tabs.first()), 2);
    tabs.group()->undo();
    tabs.group()->undo();
    QCOMPARE(bandTexts(tabs.first()->currentTimes()), bandTexts(mondayBands));
}

void tst_ScheduleRecorder::nothingToDeleteOrCut()
{
    const TwoTabs tabs;
    QGuiApplication::clipboard()->setText(QStringLiteral("mine"));
    tabs.widget()->deselectAllItems();
    tabs.widget()->deleteSelectedItems();
    QVERIFY(!tabs.widget()->cutSelectedItems());
    QVERIFY(!tabs.widget()->copySelectedItems());
    QCOMPARE(stepsOf(tabs.first()), 0);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("mine"));
    tabs.widget()->selectAllItems();
    tabs.first()->switchToScheduleInfo(sundayInfo, false);
    QVERIFY(!tabs.widget()->cutSelectedItems());
    QVERIFY(!tabs.widget()->copySelectedItems());
    QCOMPARE(stepsOf(tabs.first()), 0);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("mine"));
}

void tst_ScheduleRecorder::copyChangesNothing()
{
    const TwoTabs tabs;
    const QStringList before = tabs.state();
    QVERIFY(tabs.widget()->copySelectedItems());
    QCOMPARE(tabs.state(), before);
    QCOMPARE(tabs.selection(), QStringLiteral("1"));
    QCOMPARE(stepsOf(tabs.first()), 0);
}

void tst_ScheduleRecorder::pasteOverExisting()
{
    const MessageBoxAnswer noBoxes;
    const TwoTabs tabs;
    const QStringList before = tabs.state();
    tabs.widget()->removeAndInsertScheduleWithUndo(
        {dateInfo(), mondayInfo},
        {scheduleOf(mondayInfo, QStringLiteral("p.xml"), dropped), scheduleOf(sundayInfo)});
    QCOMPARE(bandTexts(tabs.first()->currentTimes()), bandTexts(dropped));
    QCOMPARE(tabs.first()->defaultStageName(), QStringLiteral("p.xml"));
    QVERIFY(!tabs.first()->hasSchedule(dateInfo()));
    QVERIFY(tabs.first()->hasSchedule(sundayInfo));
    QCOMPARE(stepsOf(tabs.first()), 1);
    tabs.group()->undo();
    QCOMPARE(tabs.state(), before);
    SignalLog log;
    log.watch(tabs.first(),
              SIGNAL(scheduleRemoved(QList<ZvScheduleBasicInfo>,ZvScheduleBasicInfo)));
    log.watch(tabs.first(), SIGNAL(scheduleCreated(QList<int>,ZvScheduleBasicInfo)));
    tabs.widget()->removeAndInsertScheduleWithUndo({}, {});
    QCOMPARE(log.names(), QStringList());
    QCOMPARE(tabs.state(), before);
}

// An empty default schedule is there all the same, so an undo brings it back.
void tst_ScheduleRecorder::pasteOverAnEmptyDefaultSchedule()
{
    const TwoTabs tabs;
    tabs.widget()->switchToDefaultSchedule();
    tabs.widget()->onResetTimeTable(QString(), {});
    const QStringList before = tabs.state();
    QVERIFY(tabs.first()->defaultSchedule().isEmpty());
    tabs.widget()->removeAndInsertScheduleWithUndo({defaultInfo, sundayInfo}, {});
    QVERIFY(!tabs.first()->hasSchedule(defaultInfo));
    QVERIFY(!tabs.first()->isCurrentScheduleEnabled());
    tabs.group()->undo();
    QCOMPARE(tabs.state(), before);
    QVERIFY(!tabs.first()->hasSchedule(sundayInfo));
}

void tst_ScheduleRecorder::resetReadsWhatIsThere()
{
    const TwoTabs tabs;
    const QStringList before = tabs.state();
    tabs.widget()->onResetTimeTable(QStringLiteral("r.xml"), dropped);
    QCOMPARE(tabs.first()->defaultStageName(), QStringLiteral("r.xml"));
    QCOMPARE(bandTexts(tabs.first()->currentTimes()), bandTexts(dropped));
    tabs.group()->undo();
    QCOMPARE(tabs.state(), before);
}

void tst_ScheduleRecorder::signalsOfEachCommand()
{
    const TwoTabs tabs;
    SignalLog log;
    const ZvScheduleMainWidget *widget = tabs.widget();
    log.watch(widget, SIGNAL(scheduleCreated(QList<int>,ZvScheduleBasicInfo)), "created");
    log.watch(widget, SIGNAL(scheduleRemoved(QList<ZvScheduleBasicInfo>,ZvScheduleBasicInfo)),
                             "removed");
    log.watch(widget, SIGNAL(currentScheduleInfoChanged(ZvScheduleBasicInfo)), "info");
    log.watch(tabs.first()->undoStack(), SIGNAL(indexChanged(int)), "pushed");
    const auto takeNames = [&log] {
        const QString names = log.names().join(QLatin1Char(' '));
        log.clear();
        return names;
    };
    tabs.widget()->createScheduleWithUndo({tuesdayInfo});
    QCOMPARE(takeNames(), QStringLiteral("created pushed"));
    tabs.widget()->removeScheduleWithUndo({tuesdayInfo}, false);
    QCOMPARE(takeNames(), QStringLiteral("removed pushed"));
    tabs.widget()->removeScheduleWithUndo({mondayInfo}, false);
    QCOMPARE(takeNames(), QStringLiteral("info removed pushed"));
    tabs.widget()->createScheduleByCurrentInfoWithUndo();
    QCOMPARE(takeNames(), QStringLiteral("info created pushed"));
    tabs.widget()->removeAndInsertScheduleWithUndo({mondayInfo}, {scheduleOf(mondayInfo)});
    QCOMPARE(takeNames(), QStringLiteral("info removed info created pushed"));
    tabs.widget()->switchToDefaultSchedule();
    log.clear();
    tabs.group()->undo();
    QCOMPARE(takeNames(), QStringLiteral("info info removed info created pushed"));
}

void tst_ScheduleRecorder::stackOfEachTab()
{
    TwoTabs tabs;
    tabs.widget()->deleteSelectedItems();
    const QStringList first = tabs.state();
    tabs.main.tabs()->setCurrentIndex(1);
    QVERIFY(!tabs.group()->canUndo());
    tabs.group()->undo();
    QCOMPARE(tabs.state(), first);
    QCOMPARE(stepsOf(tabs.first()), 1);
    tabs.widget()->createScheduleWithUndo({sundayInfo});
    QCOMPARE(stepsOf(tabs.first()), 1);
    QCOMPARE(stepsOf(tabs.second()), 1);
    QVERIFY(!tabs.first()->hasSchedule(sundayInfo));
    tabs.main.tabs()->setCurrentIndex(0);
    tabs.group()->undo();
    QCOMPARE(bandTexts(tabs.first()->currentTimes()), bandTexts(mondayBands));
    QVERIFY(!tabs.group()->canUndo());
    QVERIFY(tabs.group()->canRedo());
    tabs.main.tabs()->setCurrentIndex(1);
    QVERIFY(tabs.group()->canUndo());
    QVERIFY(!tabs.group()->canRedo());
    QVERIFY(tabs.second()->hasSchedule(sundayInfo));
}

void tst_ScheduleRecorder::activeStack()
{
    const TwoTabs tabs;
    QCOMPARE(tabs.group()->stacks().size(), 2);
    for (const int index : {1, 0, 1}) {
        tabs.main.tabs()->setCurrentIndex(index);
        QCOMPARE(tabs.group()->activeStack(), tabs.main.area(index)->undoStack());
    }
}

void tst_ScheduleRecorder::actionsFollowTheSchedule()
{
    const TwoTabs tabs;
    const QAction *create = tabs.action(ActionName::CreateSchedule);
    const QAction *remove = tabs.action(ActionName::DeleteSchedule);
    QVERIFY(!create->isEnabled());
    QVERIFY(remove->isEnabled());
    // The default schedule cannot be deleted, enabled or not.
    tabs.widget()->switchToDefaultSchedule();
    QVERIFY(!create->isEnabled());
    QVERIFY(!remove->isEnabled());
    tabs.widget()->switchToDateSchedule(dateInfo(3).date());
    QVERIFY(create->isEnabled());
    QVERIFY(!remove->isEnabled());
    tabs.widget()->createScheduleByCurrentInfoWithUndo();
    QVERIFY(!create->isEnabled());
    QVERIFY(remove->isEnabled());
    tabs.group()->undo();
    QVERIFY(create->isEnabled());
    QVERIFY(!remove->isEnabled());
    tabs.widget()->removeScheduleWithUndo({defaultInfo}, false);
    tabs.widget()->switchToDefaultSchedule();
    QVERIFY(create->isEnabled());
    QVERIFY(!remove->isEnabled());
}

void tst_ScheduleRecorder::savedContentByUndo()
{
    const MessageBoxAnswer noBoxes;
    const TwoTabs tabs;
    tabs.widget()->deleteSelectedItems();
    tabs.group()->undo();
    tabs.widget()->createScheduleWithUndo({sundayInfo});
    tabs.group()->undo();
    QVERIFY(tabs.widget()->confirmSaveChannels(1));
}

void tst_ScheduleRecorder::undoPastTheSave()
{
    const TwoTabs tabs;
    tabs.widget()->deleteSelectedItems();
    tabs.widget()->saveCurrentChannel();
    QVERIFY(!tabs.first()->isChannelChanged());
    QVERIFY(tabs.group()->canUndo());
    {
        const MessageBoxAnswer noBoxes;
        QVERIFY(tabs.widget()->confirmSaveChannels(1));
    }
    tabs.group()->undo();
    MessageBoxAnswer boxes;
    boxes.expect(QMessageBox::No);
    QVERIFY(tabs.widget()->confirmSaveChannels(1));
    QVERIFY(boxes.isDone());
    QCOMPARE(tabs.main.stored(0).scheduleList().at(1).timeList().size(), 2);
}

void tst_ScheduleRecorder::pageDiesWithItsStack()
{
    const TwoTabs tabs;
    tabs.widget()->deleteSelectedItems();
    delete tabs.first();
    QCOMPARE(tabs.group()->stacks().size(), 1);
    QCOMPARE(tabs.group()->activeStack(), tabs.main.area(0)->undoStack());
    QVERIFY(!tabs.group()->canUndo());
    tabs.group()->undo();
}

QTEST_MAIN(tst_ScheduleRecorder)
#include "tst_schedulerecorder.moc"
