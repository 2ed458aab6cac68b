#include "workspace/ScheduleRecorder.h"

#include "../services/TwoTabs.h"
#include "MessageBoxAnswer.h"
#include "SceneMouse.h"

#include <QSignalSpy>
#include <QtTest>

using namespace Zavo;
using namespace ZavoTest;

using Interruption = void (*)(const TwoTabs &);
Q_DECLARE_METATYPE(Interruption)

namespace {

/// As long as a move by keys may stay open, and longer.
void waitForKeyMove()
{
    QTest::qWait(150);
}

void showSecond(const TwoTabs &tabs)
{
    tabs.main.tabs()->setCurrentIndex(1);
}

void showDefaultSchedule(const TwoTabs &tabs)
{
    tabs.widget()->switchToDefaultSchedule();
}

void selectAll(const TwoTabs &tabs)
{
    tabs.widget()->selectAllItems();
}

void selectNext(const TwoTabs &tabs)
{
    tabs.first()->selectNextTimeItem();
}

void deselectAll(const TwoTabs &tabs)
{
    tabs.widget()->deselectAllItems();
}

void createTuesday(const TwoTabs &tabs)
{
    tabs.widget()->createScheduleWithUndo({tuesdayInfo});
}

void removeSchedule(const TwoTabs &tabs)
{
    tabs.widget()->removeScheduleWithUndo({mondayInfo}, false);
}

void changeDefaultStage(const TwoTabs &tabs)
{
    tabs.widget()->setDefaultStageToCurrentSchedule(QString());
}

void cut(const TwoTabs &tabs)
{
    tabs.widget()->cutSelectedItems();
}

void rename(const TwoTabs &tabs)
{
    tabs.widget()->changeChannelNameWithUndo(0, QStringLiteral("Third"));
}

} // namespace

/// A band is on its way, by a held key or button, when something else happens to its page. The move
/// is a step of undo of its own, before whatever comes.
class tst_InterruptedMove : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keys_data();
    void keys();
    void drag_data();
    void drag();
    void undoOfAMoveUnderWay_data();
    void undoOfAMoveUnderWay();
    void otherTabKeepsItsHistory();
    void pressWithoutAMoveIsNoStep();
    void mouseMovesNothingAfterTheInterruption();
    void lostRelease();
    void lostReleaseOfARubberBand();
    void rightClickDuringADrag();
    void backToTheStartPastAnObstacle_data();
    void backToTheStartPastAnObstacle();
    void rubberBandFromTheEdgeMovesNothing();
    void pageShowsAnotherScheduleByItself();

private:
    void interruptions();
};

void tst_InterruptedMove::interruptions()
{
    QTest::addColumn<Interruption>("interrupt");
    QTest::newRow("other tab") << Interruption(showSecond);
    QTest::newRow("other schedule") << Interruption(showDefaultSchedule);
    QTest::newRow("select all") << Interruption(selectAll);
    QTest::newRow("select next") << Interruption(selectNext);
    QTest::newRow("deselect all") << Interruption(deselectAll);
    QTest::newRow("create") << Interruption(createTuesday);
    QTest::newRow("remove") << Interruption(removeSchedule);
    QTest::newRow("default stage") << Interruption(changeDefaultStage);
    QTest::newRow("cut") << Interruption(cut);
    QTest::newRow("rename") << Interruption(rename);
}

void tst_InterruptedMove::keys_data()
{
    interruptions();
}

void tst_InterruptedMove::keys()
{
    QFETCH(Interruption, interrupt);
    const TwoTabs tabs;
    const QStringList before = tabs.state();
    QTest::keyPress(tabs.view(), Qt::Key_Down);
    const QList<ZvTime> moved = tabs.first()->currentTimes();
    QVERIFY(moved != mondayBands);
    interrupt(tabs);
    waitForKeyMove();
    QVERIFY(tabs.first()->undoStack()->count() > 0);
    QVERIFY(!tabs.second()->undoStack()->count());

    tabs.first()->undoStack()->setIndex(1);
    tabs.first()->switchToScheduleInfo(mondayInfo, false);
    QCOMPARE(tabs.first()->currentTimes(), moved);
    tabs.first()->undoStack()->undo();
    tabs.first()->setDefaultStageName(QStringLiteral("mon.xml"));
    QCOMPARE(tabs.state(), before);
}

void tst_InterruptedMove::drag_data()
{
    interruptions();
}

void tst_InterruptedMove::drag()
{
    QFETCH(Interruption, interrupt);
    const TwoTabs tabs;
    const QStringList before = tabs.state();
    tabs.view()->centerOn(QPointF(180.0, yOf("10:30:00")));
    SceneMouse mouse(tabs.view());
    mouse.press(QPointF(180.0, yOf("10:30:00")));
    mouse.moveTo(QPointF(180.0, yOf("11:30:00")));
    const QList<ZvTime> moved = tabs.first()->currentTimes();
    QVERIFY(moved != mondayBands);
    interrupt(tabs);
    mouse.moveTo(QPointF(180.0, yOf("12:30:00")));
    mouse.release();
    QVERIFY(tabs.first()->undoStack()->count() > 0);
    QVERIFY(!tabs.second()->undoStack()->count());

    tabs.first()->undoStack()->setIndex(1);
    tabs.first()->switchToScheduleInfo(mondayInfo, false);
    QCOMPARE(tabs.first()->currentTimes(), moved);
    tabs.first()->undoStack()->undo();
    tabs.first()->setDefaultStageName(QStringLiteral("mon.xml"));
    QCOMPARE(tabs.state(), before);
}

void tst_InterruptedMove::undoOfAMoveUnderWay_data()
{
    QTest::addColumn<bool>("byMouse");
    QTest::newRow("key") << false;
    QTest::newRow("mouse") << true;
}

void tst_InterruptedMove::undoOfAMoveUnderWay()
{
    QFETCH(bool, byMouse);
    const TwoTabs tabs;
    tabs.select({0});
    tabs.widget()->deleteSelectedItems();
    const QStringList deleted = tabs.state();
    tabs.select({0});
    SceneMouse mouse(tabs.view());
    if (byMouse) {
        tabs.view()->centerOn(QPointF(180.0, yOf("10:30:00")));
        mouse.press(QPointF(180.0, yOf("10:30:00")));
        mouse.moveTo(QPointF(180.0, yOf("09:00:00")));
    } else {
        QTest::keyPress(tabs.view(), Qt::Key_Up);
    }
    const QStringList moved = tabs.state();
    QVERIFY(moved != deleted);
    tabs.widget()->undo();
    QCOMPARE(tabs.state(), deleted);
    tabs.widget()->redo();
    QCOMPARE(tabs.state(), moved);
    tabs.widget()->undo();
    tabs.widget()->undo();
    QCOMPARE(tabs.first()->currentTimes(), mondayBands);
    QCOMPARE(tabs.first()->undoStack()->count(), 2);
}

// Both channels have a band in the place of the one that moves: what is recorded for the first must
// not come over the second.
void tst_InterruptedMove::otherTabKeepsItsHistory()
{
    const TwoTabs tabs;
    tabs.second()->insertSchedule({scheduleOf(mondayInfo, QString(), otherBands)});
    tabs.first()->undoStack()->clear();
    QTest::keyPress(tabs.view(), Qt::Key_Down);
    QTest::keyRelease(tabs.view(), Qt::Key_Down);
    showSecond(tabs);
    waitForKeyMove();
    QCOMPARE(tabs.second()->currentTimes(), otherBands);
    QCOMPARE(tabs.second()->undoStack()->count(), 0);
    QCOMPARE(tabs.first()->undoStack()->count(), 1);
    tabs.widget()->undo();
    QCOMPARE(tabs.second()->currentTimes(), otherBands);
    tabs.main.tabs()->setCurrentIndex(0);
    tabs.widget()->undo();
    QCOMPARE(tabs.first()->currentTimes(), mondayBands);
}

void tst_InterruptedMove::pressWithoutAMoveIsNoStep()
{
    const TwoTabs tabs;
    tabs.view()->centerOn(QPointF(180.0, yOf("10:30:00")));
    SceneMouse mouse(tabs.view());
    mouse.press(QPointF(180.0, yOf("10:30:00")));
    tabs.widget()->copySelectedItems();
    showDefaultSchedule(tabs);
    mouse.release();
    QCOMPARE(tabs.first()->undoStack()->count(), 0);
}

void tst_InterruptedMove::mouseMovesNothingAfterTheInterruption()
{
    const TwoTabs tabs;
    tabs.view()->centerOn(QPointF(180.0, yOf("10:30:00")));
    SceneMouse mouse(tabs.view());
    mouse.press(QPointF(180.0, yOf("10:30:00")));
    mouse.moveTo(QPointF(180.0, yOf("11:30:00")));
    tabs.widget()->undo();
    mouse.moveTo(QPointF(180.0, yOf("12:30:00")));
    QCOMPARE(tabs.first()->currentTimes(), mondayBands);
    mouse.release();
    QCOMPARE(tabs.first()->undoStack()->count(), 1);
    mouse.drag(QPointF(180.0, yOf("10:30:00")), QPointF(180.0, yOf("11:30:00")));
    QVERIFY(tabs.first()->currentTimes() != mondayBands);
    QCOMPARE(tabs.first()->undoStack()->count(), 1);
}

// A menu or another window can take the release of the button.
void tst_InterruptedMove::lostRelease()
{
    const TwoTabs tabs;
    tabs.view()->centerOn(QPointF(180.0, yOf("10:30:00")));
    SceneMouse lost(tabs.view());
    lost.press(QPointF(180.0, yOf("10:30:00")));
    lost.moveTo(QPointF(180.0, yOf("12:30:00")));
    const QStringList moved = tabs.state();
    SceneMouse next(tabs.view());
    next.click(QPointF(180.0, yOf("08:30:00")));
    QCOMPARE(tabs.first()->undoStack()->count(), 1);
    QCOMPARE(tabs.state(), moved);
    tabs.widget()->undo();
    QCOMPARE(tabs.first()->currentTimes(), mondayBands);
}

void tst_InterruptedMove::lostReleaseOfARubberBand()
{
    const TwoTabs tabs;
    tabs.view()->centerOn(QPointF(180.0, yOf("10:30:00")));
    SceneMouse lost(tabs.view());
    lost.press(QPointF(20.0, yOf("09:50:00")));
    lost.moveTo(QPointF(60.0, yOf("09:55:00")));
    QVERIFY(!tabs.view()->rubberBandRect().isNull());
    tabs.widget()->selectAllItems();

    // No move without a button tells the view in between.
    lost.press(QPointF(180.0, yOf("10:30:00")));
    lost.moveTo(QPointF(180.0, yOf("10:15:00")));
    lost.moveTo(QPointF(180.0, yOf("10:00:00")));
    QVERIFY(tabs.view()->rubberBandRect().isNull());
}

// A click of the right button ends a drag, of which nobody has heard yet.
void tst_InterruptedMove::rightClickDuringADrag()
{
    const TwoTabs tabs;
    tabs.view()->centerOn(QPointF(180.0, yOf("10:30:00")));
    SceneMouse mouse(tabs.view());
    mouse.press(QPointF(180.0, yOf("10:30:00")));
    mouse.moveTo(QPointF(180.0, yOf("11:30:00")));
    mouse.press(QPointF(180.0, yOf("11:30:00")), Qt::RightButton);
    mouse.release(Qt::RightButton);
    const QStringList moved = tabs.state();
    tabs.widget()->selectAllItems();
    QCOMPARE(tabs.first()->undoStack()->count(), 1);
    mouse.release();
    QCOMPARE(tabs.state(), moved);
    QCOMPARE(tabs.first()->undoStack()->count(), 1);
    tabs.widget()->undo();
    QCOMPARE(tabs.first()->currentTimes(), mondayBands);
}

void tst_InterruptedMove::backToTheStartPastAnObstacle_data()
{
    QTest::addColumn<QList<int>>("selected");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("one") << QList<int>{1} << Qt::KeyboardModifiers(Qt::NoModifier);
    // The release in place takes the band out of the selection.
    QTest::newRow("one with Ctrl") << QList<int>{1} << Qt::KeyboardModifiers(Qt::ControlModifier);
    // The release in place leaves the band under it as the only one.
    QTest::newRow("two") << QList<int>{0, 1} << Qt::KeyboardModifiers(Qt::NoModifier);
}

// The pointer returns to where it was pressed, but the band has stopped on the way.
void tst_InterruptedMove::backToTheStartPastAnObstacle()
{
    QFETCH(QList<int>, selected);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    const TwoTabs tabs;
    tabs.select(selected);
    tabs.view()->centerOn(QPointF(180.0, yOf("10:00:00")));
    SceneMouse mouse(tabs.view());
    mouse.setModifiers(modifiers);
    mouse.press(QPointF(180.0, yOf("10:30:00")));
    mouse.moveTo(QPointF(180.0, yOf("00:15:00")));
    mouse.moveTo(QPointF(180.0, yOf("10:30:00")));
    mouse.release();
    const QList<ZvTime> moved = tabs.first()->currentTimes();
    QVERIFY(moved != mondayBands);
    QCOMPARE(tabs.first()->undoStack()->count(), 1);
    tabs.widget()->undo();
    QCOMPARE(tabs.first()->currentTimes(), mondayBands);
    tabs.widget()->redo();
    QCOMPARE(tabs.first()->currentTimes(), moved);
}

// Pressed on the pixel at the end of the band, which is no part of it any more.
void tst_InterruptedMove::rubberBandFromTheEdgeMovesNothing()
{
    const TwoTabs tabs;
    tabs.view()->centerOn(QPointF(180.0, yOf("11:00:00")));
    SceneMouse mouse(tabs.view());
    mouse.press(QPointF(180.0, yOf("11:00:00")));
    mouse.moveTo(QPointF(200.0, yOf("10:50:00")));
    mouse.moveTo(QPointF(210.0, yOf("10:20:00")));
    mouse.moveTo(QPointF(220.0, yOf("11:40:00")));
    mouse.moveTo(QPointF(230.0, yOf("11:50:00")));
    mouse.release();
    QCOMPARE(tabs.first()->currentTimes(), mondayBands);
    QCOMPARE(tabs.first()->undoStack()->count(), 0);
}

void tst_InterruptedMove::pageShowsAnotherScheduleByItself()
{
    const TwoTabs tabs;
    tabs.view()->centerOn(QPointF(180.0, yOf("11:00:00")));
    const double handle = yOf("11:00:00") - 1.0;
    SceneMouse mouse(tabs.view());
    mouse.press(QPointF(180.0, handle));
    mouse.moveTo(QPointF(180.0, handle + 60.0));
    QVERIFY(tabs.first()->currentTimes() != mondayBands);
    tabs.first()->switchToScheduleInfo(defaultInfo, false);
    mouse.moveTo(QPointF(180.0, handle + 90.0));
    mouse.release();
    QCOMPARE(tabs.first()->currentTimes(), otherBands);
    QCOMPARE(tabs.first()->undoStack()->count(), 1);
    tabs.widget()->undo();
    QCOMPARE(tabs.first()->currentScheduleInfo(), mondayInfo);
    QCOMPARE(tabs.first()->currentTimes(), mondayBands);
}

QTEST_MAIN(tst_InterruptedMove)
#include "tst_interruptedmove.moc"
