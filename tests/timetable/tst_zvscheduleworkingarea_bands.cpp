#include "WorkingAreaFixture.h"

#include "DragGesture.h"
#include "SceneMouse.h"
#include "SignalLog.h"

#include <QLabel>
#include <QtTest>

using namespace Zavo;
using namespace ZavoTest;

namespace {

using Rects = QMap<int, QRectF>;

QRectF rectFrom(const char *start, double minutes)
{
    return {10.0, yOf(QString::fromLatin1(start)), 240.0, minutes};
}

const QList<ZvTime> threeBands{band("08:00:00", "09:00:00"), band("10:00:00", "11:00:00", "b.xml"),
                               band("12:00:00", "13:00:00", "c.xml")};

} // namespace

/// The bands of a page under a real mouse, real keys and real drags.
class tst_ZvScheduleWorkingAreaBands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void dropsStages();
    void refusesADropOnABand();
    void refusesADropWhileTheScheduleIsMissing();

    void dragsABand();
    void nextDragStartsWhereTheLastEnded();
    void dragsAllSelectedBands();
    void resizesABand();
    void keyMoveIsOneStep();
    void clickIsNoMove();
    void moveAndBackIsNoMove();
    void partOfAMoveIsNoStep();
    void selectionMustMatchTheKnownRectangles();
    void reportsTheMoveOfABandThatWasRenumbered();
    void reportsTheTimesSetByHand();

    void restoresGeometry();
    void restoresPastTheNeighbours();
    void restoreSelectsWhatItMoved();
    void restoreCanLeaveTheSelection();
    void restorePassesOverMissingBands();
    void moveAfterRestoreHasTheRightStart();

    void tellsWhatTheSelectionAllows();
    void deletesTheSelection();
    void walksTheBands();
    void findsBandsInARange();
    void selectsManyAtOnce();
    void pressActivatesThePage();

private:
    void fill(const QList<ZvTime> &times);
    DragGesture dragOf(const QStringList &stageNames);
    Rects after(int report) const { return m_log->arguments(report).at(0).value<Rects>(); }
    Rects before(int report) const { return m_log->arguments(report).at(1).value<Rects>(); }

    QScopedPointer<WorkingAreaFixture> m_page;
    ZvScheduleWorkingArea *m_area = nullptr;
    QScopedPointer<SignalLog> m_log;
};

void tst_ZvScheduleWorkingAreaBands::init()
{
    m_page.reset(new WorkingAreaFixture({scheduleOf(defaultInfo)}));
    m_area = m_page->area();
    m_area->switchToDefaultSchedule();
    m_page->look(QStringLiteral("10:00:00"));
    m_log.reset(new SignalLog);
    m_log->watch(m_area,
                 SIGNAL(timeTableTimeItemsMovingFinished(QMap<int,QRectF>,QMap<int,QRectF>)),
                        "finished");
}

void tst_ZvScheduleWorkingAreaBands::cleanup()
{
    m_log.reset();
    m_page.reset();
}

void tst_ZvScheduleWorkingAreaBands::fill(const QList<ZvTime> &times)
{
    m_area->insertTimeItems(times);
    m_page->select({});
}

DragGesture tst_ZvScheduleWorkingAreaBands::dragOf(const QStringList &stageNames)
{
    QStringList paths;
    for (const QString &name : stageNames)
        paths.append(m_page->folder().writeStage(name));
    return DragGesture(DragGesture::filesMimeData(paths));
}

void tst_ZvScheduleWorkingAreaBands::dropsStages()
{
    SignalLog log;
    log.watch(m_area, SIGNAL(timeItemInserted(QList<ZvTime>)), "inserted");
    log.watch(m_area, SIGNAL(scheduleStageCountChanged(ZvScheduleBasicInfo,int)), "count");
    const QStringList names{QStringLiteral("a.xml"), QStringLiteral("sub/b.xml")};
    DragGesture drag = dragOf(names);
    const QPointF place(180.0, yOf(QStringLiteral("08:00:00")));
    m_page->look(QStringLiteral("08:00:00"));
    QVERIFY(drag.enter(m_page->view(), QPointF(180.0, place.y() - 60.0)));
    QVERIFY(drag.move(place));
    QVERIFY(drag.drop());

    const QStringList texts{QStringLiteral("08:00:00.000-09:00:00.000 a.xml"),
                            QStringLiteral("09:00:00.000-10:00:00.000 sub/b.xml")};
    QCOMPARE(m_page->texts(), texts);
    QCOMPARE(m_area->selectedTimeItems().size(), 2);
    QCOMPARE(log.names(), QStringList({QStringLiteral("count"), QStringLiteral("count"),
                                       QStringLiteral("inserted")}));
    QCOMPARE(textOf(log.arguments(2).first().value<QList<ZvTime>>()), texts);
    QCOMPARE(m_page->storedTexts(defaultInfo), QStringList());
    m_area->storeCurrentSchedule();
    QCOMPARE(m_page->storedTexts(defaultInfo), texts);
}

void tst_ZvScheduleWorkingAreaBands::refusesADropOnABand()
{
    fill(threeBands);
    SignalLog log;
    log.watch(m_area, SIGNAL(timeItemInserted(QList<ZvTime>)));
    m_page->boxes()
        .expect(QMessageBox::Ok)
        .title(QStringLiteral("Notice"))
        .text(QStringLiteral("You can not reassigned to the allocated time."))
        .icon(QMessageBox::Warning)
        .buttons(QMessageBox::Ok);
    DragGesture drag = dragOf({QStringLiteral("a.xml")});
    QVERIFY(drag.enter(m_page->view(), middleOf(m_page->item(1))));
    QVERIFY(drag.drop());
    QVERIFY(m_page->boxes().isDone());
    QCOMPARE(m_page->texts().size(), 3);
    QCOMPARE(log.names(), QStringList());
}

void tst_ZvScheduleWorkingAreaBands::refusesADropWhileTheScheduleIsMissing()
{
    m_area->switchToWeekDaySchedule(Qt::Monday);
    auto *overlay = m_page->view()->findChild<QLabel *>();
    QCOMPARE(overlay->size(), m_page->view()->viewport()->size());
    QCOMPARE(m_page->view()->childAt(m_page->view()->rect().center()), overlay);
    DragGesture drag = dragOf({QStringLiteral("a.xml")});
    QVERIFY(!drag.enter(overlay, overlay->rect().center()));
    QTest::mouseClick(overlay, Qt::LeftButton);
    QCOMPARE(m_page->texts(), QStringList());
}

void tst_ZvScheduleWorkingAreaBands::dragsABand()
{
    fill(threeBands);
    m_page->select({0});
    SceneMouse mouse(m_page->view());
    const QPointF from = middleOf(m_page->item(0));
    mouse.drag(from, from + QPointF(0.0, -30.0));
    QCOMPARE(m_log->names(), QStringList(QStringLiteral("finished")));
    QCOMPARE(before(0), Rects({{0, rectFrom("08:00:00", 60.0)}}));
    QCOMPARE(after(0), Rects({{0, rectFrom("07:30:00", 60.0)}}));
    QCOMPARE(m_page->texts().first(), QStringLiteral("07:30:00.000-08:30:00.000 a.xml"));
}

void tst_ZvScheduleWorkingAreaBands::nextDragStartsWhereTheLastEnded()
{
    fill(threeBands);
    m_page->select({0});
    SceneMouse mouse(m_page->view());
    for (int turn = 0; turn < 3; ++turn) {
        const QPointF from = middleOf(m_page->item(0));
        mouse.drag(from, from + QPointF(0.0, -20.0));
    }
    QCOMPARE(m_log->names().size(), 3);
    QCOMPARE(before(1), after(0));
    QCOMPARE(before(2), after(1));
    QCOMPARE(after(2), Rects({{0, rectFrom("07:00:00", 60.0)}}));
}

void tst_ZvScheduleWorkingAreaBands::dragsAllSelectedBands()
{
    fill(threeBands);
    m_page->select({0, 1, 2});
    SceneMouse mouse(m_page->view());
    const QPointF from = middleOf(m_page->item(1));
    mouse.drag(from, from + QPointF(0.0, 45.0));
    QCOMPARE(m_log->names().size(), 1);
    QCOMPARE(before(0).keys(), QList<int>({0, 1, 2}));
    QCOMPARE(after(0), Rects({{0, rectFrom("08:45:00", 60.0)},
                              {1, rectFrom("10:45:00", 60.0)},
                              {2, rectFrom("12:45:00", 60.0)}}));
}

void tst_ZvScheduleWorkingAreaBands::resizesABand()
{
    fill(threeBands);
    m_page->select({1});
    SceneMouse mouse(m_page->view());
    const QPointF handle(180.0, yOf(QStringLiteral("11:00:00")) - 2.0);
    mouse.drag(handle, handle + QPointF(0.0, 25.0));
    QCOMPARE(m_log->names().size(), 1);
    QCOMPARE(after(0), Rects({{1, rectFrom("10:00:00", 85.0)}}));
    QCOMPARE(m_page->texts().at(1), QStringLiteral("10:00:00.000-11:25:00.000 b.xml"));
}

void tst_ZvScheduleWorkingAreaBands::keyMoveIsOneStep()
{
    fill(threeBands);
    m_page->select({1});
    m_page->view()->setFocus();
    for (int press = 0; press < 4; ++press)
        QTest::keyClick(m_page->view(), Qt::Key_Down);
    QCOMPARE(m_log->names(), QStringList());
    QTRY_COMPARE(m_log->names().size(), 1);
    QCOMPARE(before(0), Rects({{1, rectFrom("10:00:00", 60.0)}}));
    QCOMPARE(after(0), Rects({{1, rectFrom("10:04:00", 60.0)}}));
    QTest::qWait(150);
    QCOMPARE(m_log->names().size(), 1);
}

void tst_ZvScheduleWorkingAreaBands::clickIsNoMove()
{
    fill(threeBands);
    SceneMouse mouse(m_page->view());
    mouse.click(middleOf(m_page->item(1)));
    mouse.click(middleOf(m_page->item(1)));
    mouse.drag(QPointF(180.0, yOf(QStringLiteral("09:30:00"))),
               QPointF(190.0, yOf(QStringLiteral("09:40:00"))));
    QCOMPARE(m_log->names(), QStringList());
}

void tst_ZvScheduleWorkingAreaBands::moveAndBackIsNoMove()
{
    fill(threeBands);
    m_page->select({1});
    SceneMouse mouse(m_page->view());
    const QPointF from = middleOf(m_page->item(1));
    mouse.press(from);
    mouse.moveTo(from + QPointF(0.0, 20.0));
    mouse.moveTo(from);
    mouse.moveTo(from + QPointF(15.0, 0.0));
    mouse.release();
    QCOMPARE(m_log->names(), QStringList());
    QCOMPARE(m_page->texts(), textOf(threeBands));
}

void tst_ZvScheduleWorkingAreaBands::partOfAMoveIsNoStep()
{
    fill(threeBands);
    m_page->select({0, 1});
    m_area->moveTimeItems({{0, rectFrom("08:10:00", 60.0)}}, false);
    m_area->onMousePressingMoved();
    QCOMPARE(m_log->names(), QStringList());
    m_area->moveTimeItems({{1, rectFrom("10:10:00", 60.0)}}, false);
    m_area->onMousePressingMoved();
    QCOMPARE(m_log->names().size(), 1);
    QCOMPARE(before(0), Rects({{0, rectFrom("08:00:00", 60.0)}, {1, rectFrom("10:00:00", 60.0)}}));
}

void tst_ZvScheduleWorkingAreaBands::selectionMustMatchTheKnownRectangles()
{
    fill(threeBands);
    m_area->onMousePressingMoved();
    m_page->select({0});
    m_page->scene()->setDisableSelectionChanged(true);
    m_page->item(1)->setSelected(true);
    m_area->onMousePressingMoved();
    m_page->scene()->setDisableSelectionChanged(false);
    QCOMPARE(m_log->names(), QStringList());
}

void tst_ZvScheduleWorkingAreaBands::reportsTheMoveOfABandThatWasRenumbered()
{
    fill(threeBands);
    m_page->select({2});
    m_area->removeTimeItems({threeBands.at(0)});
    QCOMPARE(m_area->selectedTimeItems().value(0)->index(), 1);
    SceneMouse mouse(m_page->view());
    const QPointF from = middleOf(m_page->item(1));
    mouse.drag(from, from + QPointF(0.0, 10.0));
    QCOMPARE(m_log->names().size(), 1);
    QCOMPARE(after(0), Rects({{1, rectFrom("12:10:00", 60.0)}}));
}

void tst_ZvScheduleWorkingAreaBands::reportsTheTimesSetByHand()
{
    fill(threeBands);
    m_page->select({1});
    const ZvTime time = band("10:15:30", "10:45:10", "b.xml");
    m_area->changeTimeItemTimes({{1, time}, {-1, time}, {99, time}});
    QCOMPARE(m_page->texts().at(1), textOf(time));
    m_area->onMousePressingMoved();
    QCOMPARE(m_log->names().size(), 1);
    QCOMPARE(before(0), Rects({{1, rectFrom("10:00:00", 60.0)}}));
}

void tst_ZvScheduleWorkingAreaBands::restoresGeometry()
{
    fill(threeBands);
    const QStringList texts = m_page->texts();
    m_page->select({0, 2});
    SceneMouse mouse(m_page->view());
    const QPointF from = middleOf(m_page->item(2));
    mouse.drag(from, from + QPointF(0.0, 30.0));
    const QStringList moved = m_page->texts();
    QVERIFY(moved != texts);
    const Rects beforeMove = before(0);
    const Rects afterMove = after(0);
    m_area->moveTimeItems(beforeMove, true);
    QCOMPARE(m_page->texts(), texts);
    m_area->moveTimeItems(afterMove, true);
    QCOMPARE(m_page->texts(), moved);
    QCOMPARE(m_log->names().size(), 1);
}

void tst_ZvScheduleWorkingAreaBands::restoresPastTheNeighbours()
{
    fill({band("08:00:00", "09:00:00"), band("09:00:00", "10:00:00", "b.xml"),
          band("10:00:00", "24:00:00", "c.xml")});
    m_area->moveTimeItems({{0, rectFrom("00:00:00", 120.0)},
                           {1, rectFrom("02:00:00", 60.0)},
                           {2, rectFrom("22:00:00", 120.0)}});
    QCOMPARE(m_page->texts(), QStringList({QStringLiteral("00:00:00.000-02:00:00.000 a.xml"),
                                           QStringLiteral("02:00:00.000-03:00:00.000 b.xml"),
                                           QStringLiteral("22:00:00.000-23:59:59.999 c.xml")}));
}

void tst_ZvScheduleWorkingAreaBands::restoreSelectsWhatItMoved()
{
    fill(threeBands);
    m_page->select({0});
    SignalLog log;
    log.watch(m_area, SIGNAL(timeTableTimeItemHasNotSelected(ZvScheduleWorkingArea*)), "none");
    log.watch(m_area,
              SIGNAL(timeTableTimeItemsMoved(QList<ZvTimeTableTimeItem*>,ZvScheduleWorkingArea*)),
                     "moved");
    m_area->moveTimeItems({{1, rectFrom("10:30:00", 60.0)}, {2, rectFrom("14:00:00", 60.0)}});
    QCOMPARE(log.names(), QStringList());
    WorkingAreaFixture::settle();
    const QList<ZvTimeTableTimeItem *> moved{m_page->item(1), m_page->item(2)};
    QCOMPARE(m_area->selectedTimeItems(), moved);
    QCOMPARE(log.count(QStringLiteral("moved")), 1);
    QCOMPARE(log.names().last(), QStringLiteral("moved"));
    const QVariantList report = log.arguments(log.names().size() - 1);
    QCOMPARE(report.at(0).value<QList<ZvTimeTableTimeItem *>>(), moved);
    QCOMPARE(report.at(1).value<ZvScheduleWorkingArea *>(), m_area);
}

void tst_ZvScheduleWorkingAreaBands::restoreCanLeaveTheSelection()
{
    fill(threeBands);
    m_page->select({0});
    m_area->moveTimeItems({{2, rectFrom("14:00:00", 60.0)}}, false);
    QCOMPARE(m_area->selectedTimeItems(), QList<ZvTimeTableTimeItem *>{m_page->item(0)});
    QCOMPARE(m_page->texts().at(2), QStringLiteral("14:00:00.000-15:00:00.000 c.xml"));
}

void tst_ZvScheduleWorkingAreaBands::restorePassesOverMissingBands()
{
    fill(threeBands);
    const QRectF rect = rectFrom("20:00:00", 60.0);
    m_area->moveTimeItems({{-1, rect}, {2, rect}, {3, rect}, {1000, rect}});
    QCOMPARE(m_page->texts().mid(0, 2), textOf(threeBands.mid(0, 2)));
    QCOMPARE(m_page->texts().at(2), QStringLiteral("20:00:00.000-21:00:00.000 c.xml"));
    QCOMPARE(m_area->selectedTimeItems(), QList<ZvTimeTableTimeItem *>{m_page->item(2)});
    m_area->removeTimeItems(m_area->currentTimes());
    m_area->moveTimeItems({{0, rect}});
    QCOMPARE(m_page->texts(), QStringList());
}

void tst_ZvScheduleWorkingAreaBands::moveAfterRestoreHasTheRightStart()
{
    fill(threeBands);
    m_area->moveTimeItems({{0, rectFrom("06:00:00", 60.0)}, {1, rectFrom("09:00:00", 30.0)}});
    m_page->view()->setFocus();
    QTest::keyClick(m_page->view(), Qt::Key_Up);
    QTRY_COMPARE(m_log->names().size(), 1);
    QCOMPARE(before(0), Rects({{0, rectFrom("06:00:00", 60.0)}, {1, rectFrom("09:00:00", 30.0)}}));
    QCOMPARE(after(0), Rects({{0, rectFrom("05:59:00", 60.0)}, {1, rectFrom("08:59:00", 30.0)}}));
}

void tst_ZvScheduleWorkingAreaBands::tellsWhatTheSelectionAllows()
{
    QCOMPARE(int(m_area->hasSelectedItems()), 8);
    fill(threeBands);
    QCOMPARE(int(m_area->hasSelectedItems()), 8);
    m_page->select({1});
    QCOMPARE(int(m_area->hasSelectedItems()), 31);
    m_area->selectAllItems();
    QCOMPARE(int(m_area->hasSelectedItems()), 23);
    m_area->deselectAllItems();
    QCOMPARE(int(m_area->hasSelectedItems()), 8);
    m_page->select({0});
    m_area->removeTimeItems({threeBands.at(1), threeBands.at(2)});
    QCOMPARE(int(m_area->hasSelectedItems()), 23);
}

void tst_ZvScheduleWorkingAreaBands::deletesTheSelection()
{
    fill(threeBands);
    QCOMPARE(m_area->deleteSelectedItems(), QList<ZvTime>());
    m_page->select({2, 0});
    QCOMPARE(m_area->deleteSelectedItems(), QList<ZvTime>({threeBands.at(0), threeBands.at(2)}));
    QCOMPARE(m_page->texts(), QStringList(textOf(threeBands.at(1))));
    QCOMPARE(m_area->selectedTimeItems().size(), 0);
}

void tst_ZvScheduleWorkingAreaBands::walksTheBands()
{
    m_area->selectNextTimeItem();
    m_area->selectPreviousTimeItem();
    fill(threeBands);
    const auto selected = [this] { return m_area->selectedTimeItems().value(0)->index(); };
    m_area->selectPreviousTimeItem();
    QCOMPARE(selected(), 2);
    m_area->selectNextTimeItem();
    QCOMPARE(selected(), 0);
    m_area->selectNextTimeItem();
    QCOMPARE(selected(), 1);
    m_area->selectPreviousTimeItem();
    QCOMPARE(selected(), 0);
    QCOMPARE(m_area->selectedTimeItems().size(), 1);
}

void tst_ZvScheduleWorkingAreaBands::findsBandsInARange()
{
    fill(threeBands);
    QCOMPARE(m_area->timeItemsInRange(QTime(9, 0), QTime(10, 0)), QList<ZvTime>());
    QCOMPARE(m_area->timeItemsInRange(QTime(8, 59), QTime(10, 1)), threeBands.mid(0, 2));
    QCOMPARE(m_area->timeItemsInRange(QTime(0, 0), QTime(23, 59)), threeBands);
}

void tst_ZvScheduleWorkingAreaBands::selectsManyAtOnce()
{
    QList<ZvTime> dense;
    for (int minute = 5; minute < 1435; minute += 5)
        dense.append(ZvTime(QTime(0, 0).addSecs(minute * 60),
                            QTime(0, 0).addSecs((minute + 5) * 60), QStringLiteral("a.xml")));
    fill(dense);
    SignalLog log;
    log.watch(m_area,
              SIGNAL(timeTableTimeItemsMoved(QList<ZvTimeTableTimeItem*>,ZvScheduleWorkingArea*)),
                     "moved");
    m_area->selectAllItems();
    WorkingAreaFixture::settle();
    QCOMPARE(log.count(QStringLiteral("moved")), 1);
    m_page->view()->setFocus();
    QTest::keyClick(m_page->view(), Qt::Key_Up);
    QTRY_COMPARE(m_log->names().size(), 1);
    QCOMPARE(before(0).size(), dense.size());
    for (int index = 0; index < dense.size(); ++index)
        QCOMPARE(after(0).value(index), before(0).value(index).translated(0.0, -1.0));
}

void tst_ZvScheduleWorkingAreaBands::pressActivatesThePage()
{
    SignalLog log;
    log.watch(m_area, SIGNAL(activated()));
    SceneMouse mouse(m_page->view());
    mouse.click(QPointF(180.0, yOf(QStringLiteral("09:00:00"))));
    mouse.click(QPointF(180.0, yOf(QStringLiteral("09:00:00"))), Qt::RightButton);
    QCOMPARE(log.names().size(), 2);
}

QTEST_MAIN(tst_ZvScheduleWorkingAreaBands)
#include "tst_zvscheduleworkingarea_bands.moc"
