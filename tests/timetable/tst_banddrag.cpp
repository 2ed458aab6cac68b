#include "BandText.h"
#include "SceneMouse.h"
#include "SignalLog.h"

#include <QtTest>

using namespace Zavo;
using ZavoTest::at;
using ZavoTest::band;
using ZavoTest::SceneMouse;
using ZavoTest::SignalLog;
using ZavoTest::TimeTableFixture;
using ZavoTest::yOf;

namespace {

constexpr double onStrip = 180.0;    // scene x
constexpr double besideStrip = 30.0; // scene x
constexpr double fiveSeconds = 0.08333333333333333;

QPointF point(const char *time, double dy = 0.0)
{
    return {onStrip, yOf(time) + dy};
}

QList<ZvTime> threeBands()
{
    return {band("08:00:00", "09:00:00", "A"), band("10:00:00", "11:00:00", "B"),
            band("13:00:00", "14:00:00", "C")};
}

} // namespace

/// Bands clicked, dragged and resized by a mouse over the view.
class tst_BandDrag : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TimeTableFixture> m_table;
    std::unique_ptr<SceneMouse> m_mouse;
    std::unique_ptr<SignalLog> m_log;

    ZvTimeTableTimeItem *item(int index) const { return m_table->item(index); }
    void start(const QList<ZvTime> &times, const char *middle, double scale = 1.0);
    QList<int> selected() const
    {
        QList<int> indices;
        const QList<ZvTimeTableTimeItem *> items = m_table->scene()->selectedTimeItems();
        for (const ZvTimeTableTimeItem *selectedItem : items)
            indices.append(selectedItem->index());
        return indices;
    }
    int count(const char *name) const { return m_log->count(QString::fromLatin1(name)); }

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void clickSelects();
    void clickBesideDeselects();
    void controlClickExtends();
    void firstDragOnlySelects();
    void dragMovesASelectedBand();
    void everyStepIsReported();
    void dragStopsAtNeighbours();
    void dragStopsAtTheDaysEdges();
    void dragDoesNotMoveSideways();
    void dragOfAGroupKeepsItsGaps();
    void dragOfAGroupWithABandBetween();
    void dragOverAGapBetweenSelectedBands();
    void handleResizesInsteadOfMoving();
    void topHandle();
    void bottomHandle();
    void fiveSecondsAreLeft_data();
    void fiveSecondsAreLeft();
    void resizeAtTheEndOfTheDay();
    void handlesOfAGroupMoveIt();
    void rubberBandSelects();
    void rubberBandMovesNothing();
    void releaseInPlace();
    void releaseAwayFromThePress();
    void rightButtonLeavesTheSelection();
    void rightButtonReportsNoMove();
    void rightClickFreesTheMouse();
    void rightPressDuringADrag();
    void doubleClickDragsNothing();
    void deletedWhileDragged();
};

void tst_BandDrag::initTestCase()
{
    qRegisterMetaType<QList<ZvTimeTableTimeItem *>>("QList<ZvTimeTableTimeItem*>");
}

void tst_BandDrag::start(const QList<ZvTime> &times, const char *middle, double scale)
{
    m_table = std::make_unique<TimeTableFixture>();
    QVERIFY(m_table->fill(times));
    m_table->setScale(scale);
    m_table->scrollTo(yOf(middle));
    m_mouse = std::make_unique<SceneMouse>(m_table->view());
    m_log = std::make_unique<SignalLog>();
    const ZvTimeTableScene *scene = m_table->scene();
    m_log->watch(scene, SIGNAL(timeTableTimeItemsMoved(QList<ZvTimeTableTimeItem *>)), "moved");
    m_log->watch(scene, SIGNAL(timeTableTimeItemHasNotSelected()), "none");
    m_log->watch(scene, SIGNAL(mousePressed()), "pressed");
    m_log->watch(scene, SIGNAL(mousePressingMoved()), "released");
}

void tst_BandDrag::cleanup()
{
    m_log.reset();
    m_mouse.reset();
    m_table.reset();
}

void tst_BandDrag::clickSelects()
{
    start(threeBands(), "10:00:00");
    m_mouse->click(point("08:30:00"));
    QCOMPARE(selected(), QList<int>{0});
    m_mouse->click(point("10:30:00"));
    QCOMPARE(selected(), QList<int>{1});
    QCOMPARE(count("pressed"), 2);
    QCOMPARE(m_table->texts(), ZavoTest::textOf(threeBands()));
}

void tst_BandDrag::clickBesideDeselects()
{
    start(threeBands(), "10:00:00");
    m_mouse->click(point("08:30:00"));
    m_mouse->click(point("09:30:00"));
    QVERIFY(selected().isEmpty());
    QCOMPARE(m_log->names().last(), QStringLiteral("none"));
    m_mouse->click(point("08:30:00"));
    m_mouse->click({besideStrip, yOf("08:30:00")});
    QVERIFY(selected().isEmpty());
}

void tst_BandDrag::controlClickExtends()
{
    start(threeBands(), "11:00:00");
    m_mouse->click(point("13:30:00"));
    m_mouse->setModifiers(Qt::ControlModifier);
    m_mouse->click(point("08:30:00"));
    QCOMPARE(selected(), QList<int>({0, 2}));
    m_mouse->click(point("13:30:00"));
    QCOMPARE(selected(), QList<int>{0});
}

void tst_BandDrag::firstDragOnlySelects()
{
    start(threeBands(), "10:00:00");
    m_mouse->drag(point("10:30:00"), point("11:30:00"));
    QCOMPARE(selected(), QList<int>{1});
    QCOMPARE(m_table->texts(), ZavoTest::textOf(threeBands()));
    QCOMPARE(count("released"), 1);
    m_mouse->drag(point("10:30:00"), point("11:30:00"));
    QCOMPARE(item(1)->timeInfo(), band("11:00:00", "12:00:00", "B"));
}

void tst_BandDrag::dragMovesASelectedBand()
{
    start(threeBands(), "10:00:00");
    m_table->select({1});
    m_mouse->drag(point("10:30:00"), point("10:20:00"));
    QCOMPARE(item(1)->timeInfo(), band("09:50:00", "10:50:00", "B"));
    QCOMPARE(selected(), QList<int>{1});
    QCOMPARE(count("released"), 1);
}

void tst_BandDrag::everyStepIsReported()
{
    start(threeBands(), "10:00:00");
    m_table->select({1});
    m_log->clear();
    m_mouse->press(point("10:30:00"));
    m_mouse->moveTo(point("10:31:00"));
    m_mouse->moveTo(point("10:31:00"));
    m_mouse->moveTo(point("10:33:00"));
    QCOMPARE(count("moved"), 2);
    QCOMPARE(item(1)->startTime(), at("10:03:00"));
    QCOMPARE(count("released"), 0);
    m_mouse->release();
    const QStringList expected{QStringLiteral("pressed"), QStringLiteral("moved"),
                               QStringLiteral("moved"), QStringLiteral("released")};
    QCOMPARE(m_log->names(), expected);
}

void tst_BandDrag::dragStopsAtNeighbours()
{
    start(threeBands(), "11:00:00");
    m_table->select({1});
    m_mouse->drag(point("10:30:00"), point("08:00:00"));
    QCOMPARE(item(1)->timeInfo(), band("09:00:00", "10:00:00", "B"));
    m_mouse->drag(point("09:30:00"), point("15:00:00"));
    QCOMPARE(item(1)->timeInfo(), band("12:00:00", "13:00:00", "B"));
    QCOMPARE(item(2)->timeInfo(), threeBands().at(2));
}

void tst_BandDrag::dragStopsAtTheDaysEdges()
{
    start({band("22:00:00", "23:00:00")}, "23:00:00");
    m_table->select({0});
    m_mouse->drag(point("22:30:00"), point("23:59:00"));
    QCOMPARE(item(0)->startTime(), at("23:00:00"));
    QCOMPARE(item(0)->endTime(), at("23:59:59.999"));
    QCOMPARE(item(0)->y() + item(0)->itemHeight(), 1450.0);
    m_mouse->drag(point("23:30:00"), point("23:20:00"));
    QCOMPARE(item(0)->endTime(), at("23:50:00"));

    start({band("01:00:00", "02:00:00")}, "02:00:00");
    m_table->select({0});
    m_mouse->drag(point("01:30:00"), point("00:00:00"));
    QCOMPARE(item(0)->timeInfo(), band("00:00:00", "01:00:00"));
}

void tst_BandDrag::dragDoesNotMoveSideways()
{
    start(threeBands(), "10:00:00");
    m_table->select({1});
    m_mouse->drag(point("10:30:00"), {onStrip + 90.0, yOf("10:30:00")});
    QCOMPARE(item(1)->pos(), QPointF(10.0, yOf("10:00:00")));
    m_mouse->drag(point("10:30:00"), {onStrip - 90.0, yOf("10:40:00")});
    QCOMPARE(item(1)->pos(), QPointF(10.0, yOf("10:10:00")));
}

void tst_BandDrag::dragOfAGroupKeepsItsGaps()
{
    start(threeBands(), "11:00:00");
    m_table->select({0, 1});
    m_mouse->drag(point("08:30:00"), point("14:30:00"));
    QCOMPARE(item(0)->timeInfo(), band("10:00:00", "11:00:00", "A"));
    QCOMPARE(item(1)->timeInfo(), band("12:00:00", "13:00:00", "B"));
    QCOMPARE(item(2)->timeInfo(), threeBands().at(2));
    QCOMPARE(selected(), QList<int>({0, 1}));
}

void tst_BandDrag::dragOfAGroupWithABandBetween()
{
    start(threeBands(), "11:00:00");
    m_table->select({0, 2});
    m_mouse->drag(point("13:30:00"), point("15:30:00"));
    QCOMPARE(item(0)->timeInfo(), band("09:00:00", "10:00:00", "A"));
    QCOMPARE(item(1)->timeInfo(), threeBands().at(1));
    QCOMPARE(item(2)->timeInfo(), band("14:00:00", "15:00:00", "C"));
}

void tst_BandDrag::dragOverAGapBetweenSelectedBands()
{
    start(threeBands(), "11:00:00");
    m_table->select({0, 1});
    // The press is on no band, so it starts a rubber band, which drops the selection.
    m_mouse->drag({onStrip, yOf("09:30:00")}, {onStrip, yOf("09:40:00")});
    QVERIFY(selected().isEmpty());
    QCOMPARE(m_table->texts(), ZavoTest::textOf(threeBands()));
}

void tst_BandDrag::handleResizesInsteadOfMoving()
{
    start(threeBands(), "10:00:00");
    m_table->select({1});
    m_mouse->drag(point("10:00:00", 2.0), point("09:40:00", 2.0));
    QCOMPARE(item(1)->timeInfo(), band("09:40:00", "11:00:00", "B"));
    m_mouse->drag(point("11:00:00", -2.0), point("11:30:00", -2.0));
    QCOMPARE(item(1)->timeInfo(), band("09:40:00", "11:30:00", "B"));
    QCOMPARE(count("released"), 2);
    // Just below the handle the band is moved.
    m_mouse->drag(point("09:40:00", 8.0), point("09:50:00", 8.0));
    QCOMPARE(item(1)->timeInfo(), band("09:50:00", "11:40:00", "B"));
}

void tst_BandDrag::topHandle()
{
    start(threeBands(), "10:00:00");
    m_table->select({1});
    m_mouse->drag(point("10:00:00", 2.0), point("08:00:00", 2.0));
    QCOMPARE(item(1)->timeInfo(), band("09:00:00", "11:00:00", "B"));
    QCOMPARE(item(1)->itemHeight(), 120.0);
    m_mouse->drag(point("09:00:00", 2.0), point("10:15:00", 2.0));
    QCOMPARE(item(1)->timeInfo(), band("10:15:00", "11:00:00", "B"));

    start({band("00:30:00", "01:00:00")}, "01:00:00");
    m_table->select({0});
    m_mouse->drag(point("00:30:00", 2.0), {onStrip, -10.0});
    QCOMPARE(item(0)->timeInfo(), band("00:00:00", "01:00:00"));
}

void tst_BandDrag::bottomHandle()
{
    start(threeBands(), "11:00:00");
    m_table->select({1});
    m_mouse->drag(point("11:00:00", -2.0), point("14:00:00", -2.0));
    QCOMPARE(item(1)->timeInfo(), band("10:00:00", "13:00:00", "B"));
    m_mouse->drag(point("13:00:00", -2.0), point("10:30:00", -2.0));
    QCOMPARE(item(1)->timeInfo(), band("10:00:00", "10:30:00", "B"));
    QCOMPARE(item(2)->timeInfo(), threeBands().at(2));
}

void tst_BandDrag::fiveSecondsAreLeft_data()
{
    QTest::addColumn<bool>("top");
    QTest::addColumn<double>("scale");
    for (double scale : {1.0, 6.0, 60.0}) {
        QTest::addRow("top at %g", scale) << true << scale;
        QTest::addRow("bottom at %g", scale) << false << scale;
    }
}

void tst_BandDrag::fiveSecondsAreLeft()
{
    QFETCH(bool, top);
    QFETCH(double, scale);
    start({band("10:00:00", "10:04:00", "B")}, "10:02:00", scale);
    m_table->select({0});
    const double pixel = 1.0 / scale;
    if (top)
        m_mouse->drag(point("10:00:00", pixel), point("10:04:00", 2.0 * pixel));
    else
        m_mouse->drag(point("10:04:00", -pixel), point("10:00:00", -2.0 * pixel));
    QCOMPARE(item(0)->itemHeight(), fiveSeconds);
    const ZvTime expected =
        top ? band("10:03:55", "10:04:00", "B") : band("10:00:00", "10:00:05", "B");
    QCOMPARE(item(0)->timeInfo(), expected);
    QVERIFY(item(0)->startTime().msecsTo(item(0)->endTime()) >= 4999);
}

void tst_BandDrag::resizeAtTheEndOfTheDay()
{
    start({band("22:00:00", "23:00:00")}, "23:00:00");
    m_table->select({0});
    m_mouse->drag(point("23:00:00", -2.0), {onStrip, 1460.0});
    QCOMPARE(item(0)->startTime(), at("22:00:00"));
    QCOMPARE(item(0)->endTime(), at("23:59:59.999"));
    QCOMPARE(item(0)->itemHeight(), 120.0);
    m_mouse->drag({onStrip, 1448.0}, {onStrip, 1438.0});
    QCOMPARE(item(0)->endTime(), at("23:50:00"));
}

void tst_BandDrag::handlesOfAGroupMoveIt()
{
    start(threeBands(), "10:00:00");
    m_table->select({0, 1});
    m_mouse->drag(point("10:00:00", 2.0), point("10:10:00", 2.0));
    QCOMPARE(item(0)->timeInfo(), band("08:10:00", "09:10:00", "A"));
    QCOMPARE(item(1)->timeInfo(), band("10:10:00", "11:10:00", "B"));
}

void tst_BandDrag::rubberBandSelects()
{
    start(threeBands(), "11:00:00");
    m_mouse->drag({besideStrip, yOf("09:30:00")}, {onStrip, yOf("13:10:00")});
    QCOMPARE(selected(), QList<int>({1, 2}));
    m_mouse->drag({besideStrip, yOf("09:30:00")}, {onStrip, yOf("08:10:00")});
    QCOMPARE(selected(), QList<int>{0});
    QVERIFY(item(0)->topHandle()->isVisible());
}

void tst_BandDrag::rubberBandMovesNothing()
{
    start(threeBands(), "11:00:00");
    m_mouse->press({besideStrip, yOf("09:30:00")});
    for (const char *time : {"09:50:00", "10:20:00", "10:40:00", "13:20:00", "09:40:00"})
        m_mouse->moveTo(point(time));
    m_mouse->release();
    QVERIFY(selected().isEmpty());
    QCOMPARE(m_table->texts(), ZavoTest::textOf(threeBands()));
}

void tst_BandDrag::releaseInPlace()
{
    start(threeBands(), "10:00:00");
    m_mouse->click({besideStrip, yOf("10:00:00")});
    QCOMPARE(count("released"), 0);
}

void tst_BandDrag::releaseAwayFromThePress()
{
    start(threeBands(), "10:00:00");
    m_mouse->drag({besideStrip, yOf("09:30:00")}, {besideStrip, yOf("09:40:00")});
    QCOMPARE(count("released"), 1);
    m_mouse->drag({besideStrip, yOf("09:30:00")}, {besideStrip, yOf("09:40:00")}, Qt::MiddleButton);
    QCOMPARE(count("released"), 2);
    QCOMPARE(m_table->texts(), ZavoTest::textOf(threeBands()));
}

void tst_BandDrag::rightButtonLeavesTheSelection()
{
    start(threeBands(), "11:00:00");
    m_table->select({0, 2});
    m_mouse->click(point("10:30:00"), Qt::RightButton);
    QCOMPARE(selected(), QList<int>({0, 2}));
    m_mouse->click(point("13:30:00"), Qt::RightButton);
    QCOMPARE(selected(), QList<int>({0, 2}));
    QCOMPARE(count("pressed"), 2);
}

void tst_BandDrag::rightButtonReportsNoMove()
{
    start(threeBands(), "10:00:00");
    m_table->select({1});
    m_log->clear();
    m_mouse->drag(point("10:30:00"), point("11:30:00"), Qt::RightButton);
    QCOMPARE(m_log->names(), QStringList{QStringLiteral("pressed")});
    QCOMPARE(m_table->texts(), ZavoTest::textOf(threeBands()));
}

void tst_BandDrag::rightClickFreesTheMouse()
{
    start(threeBands(), "11:00:00");
    m_mouse->click(point("08:30:00"), Qt::RightButton);
    QVERIFY(!m_table->scene()->mouseGrabberItem());
    m_mouse->click(point("10:30:00"));
    QCOMPARE(selected(), QList<int>{1});

    // A menu takes the release away, and the next press comes without a move before it.
    m_mouse->press(point("08:30:00"), Qt::RightButton);
    QVERIFY(!m_table->scene()->mouseGrabberItem());
    QWidget *viewport = m_table->view()->viewport();
    const QPoint below = m_table->view()->mapFromScene(point("13:30:00"));
    QTest::mousePress(viewport, Qt::LeftButton, {}, below);
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, below);
    QCOMPARE(selected(), QList<int>{2});
}

void tst_BandDrag::rightPressDuringADrag()
{
    start(threeBands(), "10:00:00");
    m_table->select({1});
    m_mouse->press(point("10:30:00"));
    m_mouse->moveTo(point("10:40:00"));
    m_log->clear();
    m_mouse->press(point("10:40:00"), Qt::RightButton);
    m_mouse->release(Qt::RightButton);
    QCOMPARE(count("released"), 0);
    m_mouse->moveTo(point("11:00:00"));
    // The left release still closes the drag.
    m_mouse->release();
    QCOMPARE(count("released"), 1);
    QCOMPARE(item(1)->timeInfo(), band("10:10:00", "11:10:00", "B"));
    m_mouse->click(point("08:30:00"));
    QCOMPARE(selected(), QList<int>{0});

    m_mouse->press(point("08:30:00"));
    m_mouse->press(point("08:30:00"), Qt::RightButton);
    m_mouse->release();
    m_mouse->release(Qt::RightButton);
    m_mouse->click(point("10:30:00"));
    QCOMPARE(selected(), QList<int>{1});
}

void tst_BandDrag::doubleClickDragsNothing()
{
    start(threeBands(), "10:00:00");
    m_table->select({1});
    m_mouse->doubleClick(point("10:30:00"));
    m_mouse->moveTo(point("11:30:00"));
    QCOMPARE(m_table->texts(), ZavoTest::textOf(threeBands()));
    QCOMPARE(selected(), QList<int>{1});
}

void tst_BandDrag::deletedWhileDragged()
{
    start(threeBands(), "10:00:00");
    m_table->select({1});
    m_mouse->press(point("10:30:00"));
    m_mouse->moveTo(point("10:40:00"));
    m_table->scene()->removeAllTimeItems();
    m_mouse->moveTo(point("10:50:00"));
    m_mouse->release();
    QCOMPARE(m_table->count(), 0);
    QVERIFY(m_table->fill(threeBands()));
    m_mouse->moveTo(point("11:00:00"));
    QCOMPARE(m_table->texts(), ZavoTest::textOf(threeBands()));
}

QTEST_MAIN(tst_BandDrag)
#include "tst_banddrag.moc"
