#include "BandText.h"
#include "SceneMouse.h"
#include "SignalLog.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTimer>
#include <QWheelEvent>
#include <QtTest>

using namespace Zavo;
using ZavoTest::at;
using ZavoTest::band;
using ZavoTest::SceneMouse;
using ZavoTest::SignalLog;
using ZavoTest::TimeTableFixture;
using ZavoTest::yOf;

namespace {

constexpr double onStrip = 180.0; // scene x
constexpr int stepDelay = 100;    // ms from the last release of a key to the end of its step

QList<ZvTime> threeBands()
{
    return {band("08:00:00", "09:00:00", "A"), band("10:00:00", "11:00:00", "B"),
            band("13:00:00", "14:00:00", "C")};
}

QLabel *noticeOf(const ZvTimeTableView *view)
{
    return view->findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
}

/// A key that repeats: the platform sends a release before each further press.
void holdKey(QWidget *widget, int key, int presses)
{
    for (int i = 0; i < presses; ++i) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(), i > 0);
        QCoreApplication::sendEvent(widget, &press);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, QString(), i + 1 < presses);
        QCoreApplication::sendEvent(widget, &release);
    }
}

} // namespace

class tst_ZvTimeTableView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void construction();
    void otherScenes();
    void scalesKeepTheRestOfTheTransform();
    void widthSetsTheHorizontalScale_data();
    void widthSetsTheHorizontalScale();
    void noticeCoversTheView();
    void noticeLeavesTheScrollBarFreeFromRightToLeft();
    void keysMoveByOnePixel_data();
    void keysMoveByOnePixel();
    void keysMoveAGroup();
    void keysStopAtObstacles();
    void heldKeyIsOneStep();
    void twoKeyPressesApartAreTwoSteps();
    void keyMoveIsAStepBeforeWhatFollows();
    void pressHoldsTheStepOpen();
    void lostFocusClosesTheStep();
    void keysWithoutSelectionScroll();
    void otherKeysDoNotMove();
    void timeFollowsTheCursor();
    void timeIsReportedOnChangeOnly();
    void timeDuringADrag();
    void cursorShowsTheHandles();
    void lastReleaseIsKept();
    void contextMenuIsRequested();
    void contextMenuIsShown();
    void contextMenuDies();
    void ensureItemVisible();
    void ensureNothingVisible();
    void horizontalScrollingIsReported();
    void wheelScrolls();
};

void tst_ZvTimeTableView::initTestCase()
{
    qRegisterMetaType<QList<ZvTimeTableTimeItem *>>("QList<ZvTimeTableTimeItem*>");
}

void tst_ZvTimeTableView::construction()
{
    ZvTimeTableScene scene;
    const ZvTimeTableView view(&scene);
    QVERIFY(view.hasMouseTracking());
    QVERIFY(view.viewport()->hasMouseTracking());
    QCOMPARE(view.dragMode(), QGraphicsView::RubberBandDrag);
    QCOMPARE(view.focusPolicy(), Qt::StrongFocus);
    QCOMPARE(view.lastReleasePos(), QPoint(0, 0));

    const QLabel *notice = noticeOf(&view);
    QVERIFY(notice);
    QCOMPARE(notice->text(), QStringLiteral("This schedule does not exist."));
    QCOMPARE(notice->alignment(), Qt::Alignment(Qt::AlignCenter));
    QCOMPARE(notice->styleSheet(),
             QStringLiteral("background-color: rgba(0,0,0,128); color: white; font-weight: bold;"));
    QCOMPARE(notice->pos(), QPoint(0, 0));
}

void tst_ZvTimeTableView::otherScenes()
{
    // A scene without a base item: times are unknown, keys move nothing.
    ZvTimeTableScene scene;
    ZvTimeTableView view(&scene);
    view.show();
    SignalLog log;
    log.watch(&view, SIGNAL(timeStringChanged(QString)), "time");
    log.watch(&view, SIGNAL(keyReleasedWithItemMoved()), "moved");
    SceneMouse mouse(&view);
    mouse.click(QPointF(10.0, 10.0));
    QTest::keyClick(&view, Qt::Key_Down);
    view.changeScale(2.0);
    view.setHorizontalScale(2.0);

    view.setScene(nullptr);
    QMouseEvent move(QEvent::MouseMove, QPointF(5.0, 5.0), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(view.viewport(), &move);
    QTest::keyClick(&view, Qt::Key_Up);
    view.setHorizontalScale(1.5);
    view.resize(900, 300);
    QVERIFY(log.names().isEmpty());
}

void tst_ZvTimeTableView::scalesKeepTheRestOfTheTransform()
{
    TimeTableFixture table;
    ZvTimeTableView *view = table.view();
    view->setHorizontalScale(1.25);
    view->changeScale(6.0);
    QCOMPARE(view->transform(), QTransform(1.25, 0, 0, 0, 6.0, 0, 0, 0, 1));
    QCOMPARE(table.scene()->verticalScale(), 1.0);
    view->setTransform(QTransform(1, 0.5, 0, 0.25, 1, 0, 3, 4, 1));
    view->changeScale(2.0);
    view->setHorizontalScale(3.0);
    QCOMPARE(view->transform(), QTransform(3, 0.5, 0, 0.25, 2, 0, 3, 4, 1));
}

void tst_ZvTimeTableView::widthSetsTheHorizontalScale_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<double>("scale");
    QTest::newRow("narrow") << 200 << 1.0;
    QTest::newRow("70% just below 520") << 742 << 1.0;
    QTest::newRow("70% just above 520") << 743 << 743 * 0.7 / 520.0;
    QTest::newRow("wide") << 1600 << 1600 * 0.7 / 520.0;
}

void tst_ZvTimeTableView::widthSetsTheHorizontalScale()
{
    QFETCH(int, width);
    QFETCH(double, scale);
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    table.setScale(2.0);
    table.view()->setFrameShape(QFrame::NoFrame);
    table.view()->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table.view()->resize(width, 400);
    QCOMPARE(table.view()->viewport()->width(), width);
    QCOMPARE(table.view()->transform().m11(), scale);
    QCOMPARE(table.view()->transform().m22(), 2.0);
    // The bands follow.
    QCOMPARE(ZavoTest::markOf(table.item(0))->rect(), QRectF(0.0, 0.0, 240.0 * scale, 120.0));
}

void tst_ZvTimeTableView::noticeCoversTheView()
{
    TimeTableFixture table;
    const QLabel *notice = noticeOf(table.view());
    QVERIFY(!notice->isVisible());
    table.view()->setNoScheduleLabelVisible(true);
    QVERIFY(notice->isVisible());
    for (const QSize &size : {QSize(500, 300), QSize(900, 700)}) {
        table.view()->resize(size);
        QCOMPARE(notice->pos(), QPoint(0, 0));
        QCOMPARE(notice->size(), table.view()->viewport()->size());
    }
    // It darkens what it covers.
    const QImage covered = table.view()->grab().toImage();
    table.view()->setNoScheduleLabelVisible(false);
    const QImage open = table.view()->grab().toImage();
    QVERIFY(covered.pixelColor(20, 20).lightness() < open.pixelColor(20, 20).lightness() - 60);
}

void tst_ZvTimeTableView::noticeLeavesTheScrollBarFreeFromRightToLeft()
{
    TimeTableFixture table;
    const QWidget *viewport = table.view()->viewport();
    table.view()->setLayoutDirection(Qt::RightToLeft);
    table.view()->setNoScheduleLabelVisible(true);
    table.view()->resize(500, 300);
    QVERIFY(viewport->x() >= table.view()->verticalScrollBar()->width());
    QCOMPARE(noticeOf(table.view())->x(), viewport->x());
    QCOMPARE(noticeOf(table.view())->size(), viewport->size());
}

void tst_ZvTimeTableView::keysMoveByOnePixel_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("milliseconds");
    for (double scale : ZavoTest::timeTableScales)
        QTest::addRow("%g", scale) << scale << static_cast<int>(60000.0 / scale);
}

void tst_ZvTimeTableView::keysMoveByOnePixel()
{
    QFETCH(double, scale);
    QFETCH(int, milliseconds);
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    table.setScale(scale);
    table.select({1});
    const auto distance = [&table] { return at("10:00:00").msecsTo(table.item(1)->startTime()); };
    QTest::keyClick(table.view(), Qt::Key_Down);
    QVERIFY(qAbs(distance() - milliseconds) <= 1);
    holdKey(table.view(), Qt::Key_Down, 5);
    QVERIFY(qAbs(distance() - 6 * milliseconds) <= 1);
    holdKey(table.view(), Qt::Key_Up, 9);
    QVERIFY(qAbs(distance() + 3 * milliseconds) <= 1);
    QCOMPARE(table.item(1)->itemHeight(), 60.0);
}

void tst_ZvTimeTableView::keysMoveAGroup()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    table.select({0, 2});
    SignalLog log;
    log.watch(table.scene(), SIGNAL(timeTableTimeItemsMoved(QList<ZvTimeTableTimeItem *>)),
                                    "moved");
    holdKey(table.view(), Qt::Key_Down, 10);
    QCOMPARE(log.count(QStringLiteral("moved")), 10);
    QCOMPARE(table.item(0)->timeInfo(), band("08:10:00", "09:10:00", "A"));
    QCOMPARE(table.item(1)->timeInfo(), threeBands().at(1));
    QCOMPARE(table.item(2)->timeInfo(), band("13:10:00", "14:10:00", "C"));
}

void tst_ZvTimeTableView::keysStopAtObstacles()
{
    TimeTableFixture table;
    QVERIFY(table.fill({band("00:02:00", "01:00:00", "A"), band("01:03:00", "02:00:00", "B")}));
    table.select({0});
    holdKey(table.view(), Qt::Key_Up, 5);
    QCOMPARE(table.item(0)->timeInfo(), band("00:00:00", "00:58:00", "A"));
    holdKey(table.view(), Qt::Key_Down, 20);
    QCOMPARE(table.item(0)->timeInfo(), band("00:05:00", "01:03:00", "A"));
}

void tst_ZvTimeTableView::heldKeyIsOneStep()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    table.select({1});
    const QSignalSpy spy(table.view(), SIGNAL(keyReleasedWithItemMoved()));
    holdKey(table.view(), Qt::Key_Down, 30);
    QCOMPARE(spy.count(), 0);
    QTRY_COMPARE(spy.count(), 1);
    QTest::qWait(2 * stepDelay);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(table.item(1)->startTime(), at("10:30:00"));
}

void tst_ZvTimeTableView::keyMoveIsAStepBeforeWhatFollows()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    table.select({1});
    const QSignalSpy spy(table.view(), SIGNAL(keyReleasedWithItemMoved()));
    QTest::keyClick(table.view(), Qt::Key_Down);
    QCOMPARE(spy.count(), 0);
    QTest::mouseClick(table.view()->viewport(), Qt::LeftButton);
    QCOMPARE(spy.count(), 1);

    table.select({1});
    QTest::keyClick(table.view(), Qt::Key_Down);
    QTest::keyClick(table.view(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(spy.count(), 2);
    QTest::qWait(2 * stepDelay);
    QCOMPARE(spy.count(), 2);
}

void tst_ZvTimeTableView::twoKeyPressesApartAreTwoSteps()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    table.select({1});
    QSignalSpy spy(table.view(), SIGNAL(keyReleasedWithItemMoved()));
    QTest::keyClick(table.view(), Qt::Key_Down);
    QVERIFY(spy.wait());
    QTest::keyClick(table.view(), Qt::Key_Down);
    QVERIFY(spy.wait());
    QCOMPARE(spy.count(), 2);
}

void tst_ZvTimeTableView::lostFocusClosesTheStep()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    table.select({1});
    const QSignalSpy spy(table.view(), SIGNAL(keyReleasedWithItemMoved()));
    QFocusEvent focusOut(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(table.view(), &focusOut);
    QTest::qWait(2 * stepDelay);
    QCOMPARE(spy.count(), 0);

    QTest::keyPress(table.view(), Qt::Key_Up);
    QCoreApplication::sendEvent(table.view(), &focusOut);
    QTRY_COMPARE(spy.count(), 1);
    QTest::qWait(2 * stepDelay);
    QCOMPARE(spy.count(), 1);
}

void tst_ZvTimeTableView::pressHoldsTheStepOpen()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    table.select({1});
    const QSignalSpy spy(table.view(), SIGNAL(keyReleasedWithItemMoved()));
    QTest::keyClick(table.view(), Qt::Key_Down);
    QTest::keyPress(table.view(), Qt::Key_Up);
    QTest::qWait(3 * stepDelay);
    QCOMPARE(spy.count(), 0);
    QElapsedTimer elapsed;
    elapsed.start();
    QTest::keyRelease(table.view(), Qt::Key_Up);
    QTRY_COMPARE(spy.count(), 1);
    QVERIFY(elapsed.elapsed() >= stepDelay - 10);
}

void tst_ZvTimeTableView::keysWithoutSelectionScroll()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    table.scrollTo(700.0);
    const QSignalSpy spy(table.view(), SIGNAL(keyReleasedWithItemMoved()));
    const int before = table.view()->verticalScrollBar()->value();
    QTest::keyClick(table.view(), Qt::Key_Down);
    QVERIFY(table.view()->verticalScrollBar()->value() > before);
    QTest::qWait(2 * stepDelay);
    QCOMPARE(spy.count(), 0);
    QCOMPARE(table.texts(), ZavoTest::textOf(threeBands()));

    table.select({1});
    const int selected = table.view()->verticalScrollBar()->value();
    QTest::keyClick(table.view(), Qt::Key_Down);
    QCOMPARE(table.view()->verticalScrollBar()->value(), selected);
}

void tst_ZvTimeTableView::otherKeysDoNotMove()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    table.select({1});
    const QSignalSpy spy(table.view(), SIGNAL(keyReleasedWithItemMoved()));
    for (int key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_A})
        QTest::keyClick(table.view(), static_cast<Qt::Key>(key));
    QTest::qWait(2 * stepDelay);
    QCOMPARE(spy.count(), 0);
    QCOMPARE(table.texts(), ZavoTest::textOf(threeBands()));
}

void tst_ZvTimeTableView::timeFollowsTheCursor()
{
    TimeTableFixture table;
    table.scrollTo(0.0);
    QSignalSpy spy(table.view(), SIGNAL(timeStringChanged(QString)));
    SceneMouse mouse(table.view());
    const auto timeAt = [&](double x, double y) {
        mouse.moveTo({x, y});
        return spy.isEmpty() ? QString() : spy.takeLast().first().toString();
    };
    QCOMPARE(timeAt(onStrip, 70.0), QStringLiteral("01:00:00"));
    QCOMPARE(timeAt(20.0, 130.0), QStringLiteral("02:00:00"));
    QCOMPARE(timeAt(onStrip, 5.0), QStringLiteral("--:--:--"));
    table.scrollTo(1450.0);
    QCOMPARE(timeAt(onStrip, 1450.0), QStringLiteral("24:00:00"));
    QCOMPARE(timeAt(onStrip, 1449.0), QStringLiteral("23:59:00"));
    QCOMPARE(timeAt(onStrip, 1455.0), QStringLiteral("--:--:--"));
}

void tst_ZvTimeTableView::timeIsReportedOnChangeOnly()
{
    TimeTableFixture table;
    table.scrollTo(0.0);
    const QSignalSpy spy(table.view(), SIGNAL(timeStringChanged(QString)));
    SceneMouse mouse(table.view());
    // It starts as unknown, so that is no change.
    mouse.moveTo({onStrip, 5.0});
    QCOMPARE(spy.count(), 0);
    mouse.moveTo({onStrip, 70.0});
    mouse.moveTo({onStrip + 20.0, 70.0});
    mouse.moveTo({onStrip - 20.0, 70.0});
    QCOMPARE(spy.count(), 1);
}

void tst_ZvTimeTableView::timeDuringADrag()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    table.select({1});
    table.scrollTo(yOf("10:30:00"));
    SceneMouse mouse(table.view());
    mouse.press({onStrip, yOf("10:30:00")});
    const QSignalSpy spy(table.view(), SIGNAL(timeStringChanged(QString)));
    mouse.moveTo({onStrip, yOf("10:45:00")});
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().toString(), QStringLiteral("10:45:00"));
    QCOMPARE(table.item(1)->startTime(), at("10:15:00"));
}

void tst_ZvTimeTableView::cursorShowsTheHandles()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeBands()));
    table.scrollTo(yOf("10:30:00"));
    SceneMouse mouse(table.view());
    const auto shapeAt = [&](double y) {
        mouse.moveTo({onStrip, y});
        return table.view()->cursor().shape();
    };
    QCOMPARE(shapeAt(yOf("10:00:00") + 2.0), Qt::ArrowCursor);
    table.select({1});
    QCOMPARE(shapeAt(yOf("10:00:00") + 2.0), Qt::SizeVerCursor);
    QCOMPARE(shapeAt(yOf("10:30:00")), Qt::ArrowCursor);
    QCOMPARE(shapeAt(yOf("11:00:00") - 2.0), Qt::SizeVerCursor);
    QCOMPARE(shapeAt(yOf("11:30:00")), Qt::ArrowCursor);
    table.select({0, 1});
    QCOMPARE(shapeAt(yOf("10:00:00") + 2.0), Qt::ArrowCursor);
}

void tst_ZvTimeTableView::lastReleaseIsKept()
{
    TimeTableFixture table;
    QTest::mouseClick(table.view()->viewport(), Qt::LeftButton, {}, QPoint(31, 47));
    QCOMPARE(table.view()->lastReleasePos(), QPoint(31, 47));
    QTest::mousePress(table.view()->viewport(), Qt::RightButton, {}, QPoint(90, 60));
    QCOMPARE(table.view()->lastReleasePos(), QPoint(31, 47));
    QTest::mouseRelease(table.view()->viewport(), Qt::RightButton, {}, QPoint(95, 61));
    QCOMPARE(table.view()->lastReleasePos(), QPoint(95, 61));
}

void tst_ZvTimeTableView::contextMenuIsRequested()
{
    TimeTableFixture table;
    const QSignalSpy spy(table.view(), SIGNAL(requestContextMenu(QPoint)));
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(40, 50),
                            table.view()->viewport()->mapToGlobal(QPoint(40, 50)));
    event.ignore();
    QCoreApplication::sendEvent(table.view()->viewport(), &event);
    QVERIFY(event.isAccepted());
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().toPoint(), QPoint(40, 50));
}

void tst_ZvTimeTableView::contextMenuIsShown()
{
    TimeTableFixture table;
    QMenu menu;
    QAction *action = menu.addAction(QStringLiteral("Copy"));
    table.view()->setContextMenu(&menu);
    const QSignalSpy triggered(action, SIGNAL(triggered(bool)));
    QPoint shownAt;
    QTimer::singleShot(0, &menu, [&] {
        shownAt = menu.pos();
        QTest::keyClick(&menu, Qt::Key_Down);
        QTest::keyClick(&menu, Qt::Key_Return);
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(40, 50), QPoint());
    QCoreApplication::sendEvent(table.view()->viewport(), &event);
    QCOMPARE(triggered.count(), 1);
    QCOMPARE(shownAt, table.view()->mapToGlobal(QPoint(40, 50)));
    QVERIFY(!menu.isVisible());
}

void tst_ZvTimeTableView::contextMenuDies()
{
    TimeTableFixture table;
    auto menu = std::make_unique<QMenu>();
    table.view()->setContextMenu(menu.get());
    menu.reset();
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(40, 50), QPoint());
    QCoreApplication::sendEvent(table.view()->viewport(), &event);
    QVERIFY(event.isAccepted());
}

void tst_ZvTimeTableView::ensureItemVisible()
{
    TimeTableFixture table;
    QVERIFY(table.fill({band("00:30:00", "01:00:00"), band("12:00:00", "13:00:00")}));
    table.scrollTo(0.0);
    const QScrollBar *bar = table.view()->verticalScrollBar();
    const int top = bar->value();
    table.view()->ensureItemVisible(table.item(0));
    QCOMPARE(bar->value(), top);
    table.view()->ensureItemVisible(table.item(1));
    const QRectF visible =
        table.view()->mapToScene(table.view()->viewport()->rect()).boundingRect();
    QVERIFY(qAbs(visible.center().y() - yOf("12:30:00")) < 2.0);

    // In sight by its half only: it is centred as well.
    table.view()->centerOn(QPointF(onStrip, yOf("12:00:00") - 290.0));
    const int half = bar->value();
    table.view()->ensureItemVisible(table.item(1));
    QVERIFY(bar->value() > half);
}

void tst_ZvTimeTableView::ensureNothingVisible()
{
    TimeTableFixture table;
    table.scrollTo(700.0);
    const int before = table.view()->verticalScrollBar()->value();
    table.view()->ensureItemVisible(nullptr);
    QCOMPARE(table.view()->verticalScrollBar()->value(), before);
}

void tst_ZvTimeTableView::horizontalScrollingIsReported()
{
    TimeTableFixture table;
    table.view()->resize(150, 300);
    QScrollBar *bar = table.view()->horizontalScrollBar();
    QVERIFY(bar->maximum() > bar->minimum());
    bar->setValue(bar->minimum());
    const QSignalSpy spy(table.view(), SIGNAL(horizontalScrollBarValueChanged()));
    bar->setValue(bar->maximum());
    QCOMPARE(spy.count(), 1);
    bar->setValue(bar->maximum());
    QCOMPARE(spy.count(), 1);
    table.view()->verticalScrollBar()->setValue(50);
    QCOMPARE(spy.count(), 1);
}

void tst_ZvTimeTableView::wheelScrolls()
{
    TimeTableFixture table;
    table.scrollTo(700.0);
    const int before = table.view()->verticalScrollBar()->value();
    for (Qt::KeyboardModifiers modifiers :
         {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::ControlModifier)}) {
        QWheelEvent event(QPointF(100.0, 100.0), QPointF(100.0, 100.0), QPoint(), QPoint(0, -120),
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(table.view()->viewport(), &event);
        QVERIFY(table.view()->verticalScrollBar()->value() > before);
        QCOMPARE(table.view()->transform().m22(), 1.0);
    }
}

QTEST_MAIN(tst_ZvTimeTableView)
#include "tst_zvtimetableview.moc"
