#include "WorkingAreaFixture.h"

#include "SceneMouse.h"
#include "SignalLog.h"
#include "ZvEditorCommon.h"
#include "services/ZvScheduleClipboard.h"

#include <QClipboard>
#include <QCursor>
#include <QGuiApplication>
#include <QMimeData>
#include <QtTest>

using namespace Zavo;
using namespace ZavoTest;

namespace {

using Flag = ZvScheduleCommonInterface;

const QList<ZvTime> threeBands{band("08:00:00", "09:00:00", "a.xml"),
                               band("10:00:00", "11:00:00", "b.xml"),
                               band("14:00:00", "15:00:00", "c.xml")};

/// One payload with the times as they are; our own writer leaves out the milliseconds.
void putTimes(const QList<ZvTime> &times)
{
    QByteArray xml("<TimeData>");
    const QString format = QStringLiteral("hh:mm:ss.zzz");
    for (const ZvTime &time : times) {
        xml += QStringLiteral("<Time Stage=\"%1\" Start=\"%2\" End=\"%3\"/>")
                   .arg(time.stageName(), QLocale::c().toString(time.startTime(), format),
                        QLocale::c().toString(time.endTime(), format))
                   .toUtf8();
    }
    auto *data = new QMimeData;
    data->setData(ZvEditorCommon::MIME_TYPE_TIME_DATA, xml + "</TimeData>");
    QGuiApplication::clipboard()->setMimeData(data);
}

/// Clicks the strip at @p time and returns the time that the click stands for.
QTime clickAt(const WorkingAreaFixture &page, const QString &time)
{
    page.look(time);
    SceneMouse(page.view()).click(QPointF(180.0, yOf(time)));
    const QPointF scenePos = page.view()->mapToScene(page.view()->lastReleasePos());
    return page.strip()->timeAtY(page.strip()->mapFromScene(scenePos).y());
}

void expectQuestion(WorkingAreaFixture &page, QMessageBox::StandardButton reply)
{
    page.boxes()
        .expect(reply)
        .title(QStringLiteral("Notice"))
        .text(QStringLiteral("There is the assigned time band in target range.\nDo you want to "
                             "delete the assigned time band and to paste?"))
        .icon(QMessageBox::Warning)
        .buttons(QMessageBox::Yes | QMessageBox::No);
}

void expectNoRoom(WorkingAreaFixture &page)
{
    page.boxes()
        .expect(QMessageBox::Ok)
        .title(QStringLiteral("Stopped"))
        .text(QStringLiteral("Can not paste.\nThere is not enough blank duration to paste in the "
                             "time area."))
        .icon(QMessageBox::Critical);
}

std::unique_ptr<WorkingAreaFixture> shownPage(const QList<ZvTime> &bands = threeBands)
{
    auto page =
        std::make_unique<WorkingAreaFixture>(QList<ZvSchedule>{scheduleOf(defaultInfo, bands)});
    page->area()->switchToDefaultSchedule();
    page->select({});
    return page;
}

} // namespace

/// Copy, cut and paste of bands with a real mouse and the real clipboard.
class tst_TimeTableClipboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void possibleCommands();
    void copies();
    void copiesNothing();
    void cuts();
    void cutsNothing();
    void cutsAndPastesInPlace();
    void pastingIsPossibleUnderTheMouse();
    void pastingIsPossibleAtTheLastClick();
    void pastingIsImpossible();
    void pastesAtTheClick();
    void pastedBandsKeepTheirDistances();
    void pastesNothing();
    void pastesNothingBesideTheStrip();
    void pastesNothingBeforeAClick();
    void pasteUpToTheEndIsRefused();
    void pasteAtItsOwnPlaceUpToTheEndIsRefused();
    void pasteAMillisecondBeforeTheEnd();
    void refusedAndAcceptedQuestion();
    void bandInAGapOfTheBlock();
    void adjoiningBandsAreNotInTheWay();
    void bandThatCannotBePlaced();
    void disorderedBlockIsRefused();
    void twoTabsOneClipboard();
    void withoutAScene();
    void thousandsOfBands();
};

void tst_TimeTableClipboard::init()
{
    QGuiApplication::clipboard()->clear();
    QCursor::setPos(0, 0);
}

void tst_TimeTableClipboard::possibleCommands()
{
    const auto page = shownPage();
    const Flag::SelectedType none = Flag::SelectedSelectAll;
    const Flag::SelectedType all =
        Flag::SelectedCopy | Flag::SelectedCut | Flag::SelectedDelete | Flag::SelectedDeselectAll;
    QCOMPARE(page->area()->hasSelectedItems(), none);
    page->select({1});
    QCOMPARE(page->area()->hasSelectedItems(), all | Flag::SelectedSelectAll);
    page->area()->selectAllItems();
    QCOMPARE(page->area()->hasSelectedItems(), all);
    page->area()->deselectAllItems();
    QCOMPARE(page->area()->hasSelectedItems(), none);
    page->area()->selectAllItems();
    page->area()->deleteSelectedItems();
    QCOMPARE(page->area()->hasSelectedItems(), none);
}

void tst_TimeTableClipboard::copies()
{
    const auto page = shownPage();
    page->select({2, 0});
    const QStringList before = page->texts();
    QVERIFY(page->area()->copySelectedItems());
    QCOMPARE(page->texts(), before);
    QCOMPARE(page->area()->selectedTimeItems().size(), 2);
    QCOMPARE(ZvScheduleClipboard::readTimesFromClipboard(),
             QList<ZvTime>({threeBands.at(0), threeBands.at(2)}));
}

void tst_TimeTableClipboard::copiesNothing()
{
    const auto page = shownPage();
    QGuiApplication::clipboard()->setText(QStringLiteral("mine"));
    QVERIFY(!page->area()->copySelectedItems());
    page->select({0});
    page->area()->switchToWeekDaySchedule(Qt::Monday);
    QVERIFY(!page->area()->isCurrentScheduleEnabled());
    QVERIFY(!page->area()->copySelectedItems());
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("mine"));
}

void tst_TimeTableClipboard::cuts()
{
    const auto page = shownPage();
    page->select({0, 2});
    const QList<ZvTime> ends{threeBands.at(0), threeBands.at(2)};
    QCOMPARE(page->area()->cutSelectedItems(), ends);
    QCOMPARE(page->area()->currentTimes(), QList<ZvTime>{threeBands.at(1)});
    QCOMPARE(ZvScheduleClipboard::readTimesFromClipboard(), ends);
}

void tst_TimeTableClipboard::cutsNothing()
{
    const auto page = shownPage();
    QGuiApplication::clipboard()->setText(QStringLiteral("mine"));
    QCOMPARE(page->area()->cutSelectedItems(), QList<ZvTime>());
    QCOMPARE(page->area()->currentTimes(), threeBands);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("mine"));
}

void tst_TimeTableClipboard::cutsAndPastesInPlace()
{
    const auto page = shownPage();
    const QTime click = clickAt(*page, QStringLiteral("10:30:00"));
    QCOMPARE(page->area()->selectedTimeItems(), QList<ZvTimeTableTimeItem *>{page->item(1)});
    page->area()->cutSelectedItems();
    QVERIFY(page->area()->pasteItems());
    QCOMPARE(page->area()->currentTimes().at(1),
             ZvTime(click, click.addSecs(3600), QStringLiteral("b.xml")));
}

void tst_TimeTableClipboard::pastingIsPossibleUnderTheMouse()
{
    const auto page = shownPage();
    putTimes({threeBands.at(0)});
    page->look(QStringLiteral("12:00:00"));
    QWidget *viewport = page->view()->viewport();
    const QPoint inside =
        page->view()->mapFromScene(QPointF(180.0, yOf(QStringLiteral("12:00:00"))));
    QCursor::setPos(viewport->mapToGlobal(QPoint(2, inside.y())));
    QVERIFY(!page->area()->isPastingPossible());
    QCursor::setPos(viewport->mapToGlobal(inside));
    QVERIFY(page->area()->isPastingPossible());
    // What is under the mouse is not where it would land.
    QVERIFY(!page->area()->pasteItems());
}

void tst_TimeTableClipboard::pastingIsPossibleAtTheLastClick()
{
    const auto page = shownPage();
    putTimes({threeBands.at(0)});
    clickAt(*page, QStringLiteral("12:00:00"));
    QCursor::setPos(0, 0);
    QVERIFY(page->area()->isPastingPossible());
    SceneMouse(page->view()).click(QPointF(2.0, yOf(QStringLiteral("12:00:00"))));
    QVERIFY(!page->area()->isPastingPossible());
}

void tst_TimeTableClipboard::pastingIsImpossible()
{
    const auto page = shownPage();
    clickAt(*page, QStringLiteral("12:00:00"));
    QVERIFY(!page->area()->isPastingPossible());
    QGuiApplication::clipboard()->setText(QStringLiteral("08:00"));
    QVERIFY(!page->area()->isPastingPossible());
    putTimes({threeBands.at(0)});
    QVERIFY(page->area()->isPastingPossible());
    page->area()->switchToWeekDaySchedule(Qt::Monday);
    QVERIFY(!page->area()->isPastingPossible());
    QVERIFY(!page->area()->pasteItems());
}

void tst_TimeTableClipboard::pastesAtTheClick()
{
    const auto page = shownPage();
    putTimes({band("01:00:00", "01:30:00", "p.xml")});
    SignalLog log;
    log.watch(page->area(), SIGNAL(timeItemPasted(QList<ZvTime>,QList<ZvTime>)));
    const QTime click = clickAt(*page, QStringLiteral("12:00:00"));
    // Where the mouse is by now does not matter.
    QCursor::setPos(0, 0);
    const QList<ZvTime> pasted{{click, click.addSecs(1800), QStringLiteral("p.xml")}};
    QVERIFY(page->area()->pasteItems());
    QCOMPARE(page->area()->currentTimes(),
             QList<ZvTime>({threeBands.at(0), threeBands.at(1), pasted.at(0), threeBands.at(2)}));
    QCOMPARE(page->area()->selectedTimeItems(), QList<ZvTimeTableTimeItem *>{page->item(2)});
    QCOMPARE(log.names().size(), 1);
    QCOMPARE(log.arguments(0).at(0).value<QList<ZvTime>>(), QList<ZvTime>());
    QCOMPARE(log.arguments(0).at(1).value<QList<ZvTime>>(), pasted);
    QVERIFY(ZvScheduleClipboard::hasTimeData());
}

void tst_TimeTableClipboard::pastedBandsKeepTheirDistances()
{
    const auto page = shownPage({});
    putTimes({band("20:00:00", "20:10:00", "p.xml"), band("20:10:00", "20:20:00.500", "q.xml"),
              band("21:00:00", "24:00:00", "r.xml")});
    const QTime click = clickAt(*page, QStringLiteral("03:00:00"));
    QVERIFY(page->area()->pasteItems());
    const QList<ZvTime> times = page->area()->currentTimes();
    QCOMPARE(times,
             QList<ZvTime>({{click, click.addSecs(600), QStringLiteral("p.xml")},
                            {click.addSecs(600), click.addMSecs(1200500), QStringLiteral("q.xml")},
                            {click.addSecs(3600), click.addMSecs(14400 * 1000 - 1),
                             QStringLiteral("r.xml")}}));
    QCOMPARE(page->area()->selectedTimeItems().size(), 3);
}

void tst_TimeTableClipboard::pastesNothing()
{
    const auto page = shownPage();
    clickAt(*page, QStringLiteral("12:00:00"));
    SignalLog log;
    log.watch(page->area(), SIGNAL(timeItemPasted(QList<ZvTime>,QList<ZvTime>)));
    QVERIFY(!page->area()->pasteItems());
    putTimes({});
    QVERIFY(!page->area()->pasteItems());
    putTimes({band("09:00:00", "08:00:00")});
    QVERIFY(!page->area()->pasteItems());
    ZvScheduleClipboard::writeSchedulesToClipboard({scheduleOf(defaultInfo, threeBands)});
    QVERIFY(!page->area()->pasteItems());
    QCOMPARE(log.names(), QStringList());
    QCOMPARE(page->area()->currentTimes(), threeBands);
}

void tst_TimeTableClipboard::pastesNothingBesideTheStrip()
{
    const auto page = shownPage();
    putTimes({threeBands.at(0)});
    clickAt(*page, QStringLiteral("12:00:00"));
    SceneMouse(page->view()).click(QPointF(2.0, yOf(QStringLiteral("12:00:00"))));
    QVERIFY(!page->area()->pasteItems());
    QCOMPARE(page->area()->currentTimes(), threeBands);
}

void tst_TimeTableClipboard::pastesNothingBeforeAClick()
{
    const auto page = shownPage();
    putTimes({threeBands.at(0)});
    QVERIFY(!page->area()->pasteItems());
    QCOMPARE(page->area()->currentTimes(), threeBands);
}

void tst_TimeTableClipboard::pasteUpToTheEndIsRefused()
{
    const auto page = shownPage();
    const QTime click = clickAt(*page, QStringLiteral("20:00:00"));
    const int toTheEnd = TimeAxis::millisecondsPerDay - click.msecsSinceStartOfDay();
    expectNoRoom(*page);
    putTimes({ZvTime(QTime(1, 0), QTime(1, 0).addMSecs(toTheEnd), QStringLiteral("p.xml"))});
    QVERIFY(!page->area()->pasteItems());
    QVERIFY(page->boxes().isDone());
    QCOMPARE(page->area()->currentTimes(), threeBands);
    putTimes({ZvTime(QTime(1, 0), QTime(1, 0).addMSecs(toTheEnd - 1), QStringLiteral("p.xml"))});
    QVERIFY(page->area()->pasteItems());
    QCOMPARE(page->area()->currentTimes().last(),
             ZvTime(click, TimeAxis::endOfDay(), QStringLiteral("p.xml")));
}

void tst_TimeTableClipboard::pasteAtItsOwnPlaceUpToTheEndIsRefused()
{
    const auto page = shownPage();
    const QTime click = clickAt(*page, QStringLiteral("20:00:00"));
    putTimes({ZvTime(click, TimeAxis::endOfDay(), QStringLiteral("p.xml"))});
    expectNoRoom(*page);
    QVERIFY(!page->area()->pasteItems());
    QVERIFY(page->boxes().isDone());
    QCOMPARE(page->area()->currentTimes(), threeBands);
}

void tst_TimeTableClipboard::pasteAMillisecondBeforeTheEnd()
{
    const auto page = shownPage();
    SignalLog log;
    log.watch(page->area(), SIGNAL(timeItemPasted(QList<ZvTime>,QList<ZvTime>)));
    const QTime click = clickAt(*page, QStringLiteral("20:00:00"));
    putTimes({ZvTime(click.addMSecs(1), TimeAxis::endOfDay(), QStringLiteral("p.xml"))});
    QVERIFY(page->area()->pasteItems());
    const QList<ZvTime> pasted = log.arguments(0).at(1).value<QList<ZvTime>>();
    QCOMPARE(pasted.size(), 1);
    QCOMPARE(pasted.first().startTime(), click);
    QCOMPARE(pasted.first().endTime(), QTime(23, 59, 59, 998));
}

void tst_TimeTableClipboard::refusedAndAcceptedQuestion()
{
    const auto page = shownPage();
    SignalLog log;
    log.watch(page->area(), SIGNAL(timeItemPasted(QList<ZvTime>,QList<ZvTime>)));
    const QTime click = clickAt(*page, QStringLiteral("10:30:00"));
    putTimes({band("01:00:00", "05:00:00", "p.xml")});
    const QStringList before = page->texts();
    for (const QMessageBox::StandardButton reply : {QMessageBox::No, QMessageBox::NoButton}) {
        expectQuestion(*page, reply);
        QVERIFY(!page->area()->pasteItems());
        QCOMPARE(page->texts(), before);
        QCOMPARE(log.names(), QStringList());
        QCOMPARE(page->area()->selectedTimeItems(), QList<ZvTimeTableTimeItem *>{page->item(1)});
    }
    expectQuestion(*page, QMessageBox::Yes);
    QVERIFY(page->area()->pasteItems());
    QVERIFY(page->boxes().isDone());
    // What is in the way goes as a whole.
    const ZvTime pasted(click, click.addSecs(4 * 3600), QStringLiteral("p.xml"));
    QCOMPARE(page->area()->currentTimes(), QList<ZvTime>({threeBands.at(0), pasted}));
    QCOMPARE(log.arguments(0).at(0).value<QList<ZvTime>>(), threeBands.mid(1));
    QCOMPARE(log.arguments(0).at(1).value<QList<ZvTime>>(), QList<ZvTime>{pasted});
}

void tst_TimeTableClipboard::bandInAGapOfTheBlock()
{
    const auto page = shownPage();
    const QTime click = clickAt(*page, QStringLiteral("09:30:00"));
    putTimes({band("00:00:00", "00:05:00", "p.xml"), band("03:00:00", "03:05:00", "q.xml")});
    expectQuestion(*page, QMessageBox::Yes);
    QVERIFY(page->area()->pasteItems());
    QVERIFY(page->boxes().isDone());
    QCOMPARE(page->area()->currentTimes(),
             QList<ZvTime>({threeBands.at(0),
                            {click, click.addSecs(300), QStringLiteral("p.xml")},
                            {click.addSecs(10800), click.addSecs(11100), QStringLiteral("q.xml")},
                            threeBands.at(2)}));
}

void tst_TimeTableClipboard::adjoiningBandsAreNotInTheWay()
{
    const auto page = shownPage({});
    const QTime click = clickAt(*page, QStringLiteral("12:00:00"));
    const QTime end = click.addSecs(3600);
    page->area()->insertTimeItems({ZvTime(click.addSecs(-600), click, QStringLiteral("a.xml")),
                                   ZvTime(end, end.addSecs(600), QStringLiteral("b.xml"))});
    putTimes({band("01:00:00", "02:00:00", "p.xml")});
    QVERIFY(page->area()->pasteItems());
    QCOMPARE(page->area()->currentTimes().size(), 3);
    QCOMPARE(page->area()->currentTimes().at(1), ZvTime(click, end, QStringLiteral("p.xml")));
}

void tst_TimeTableClipboard::bandThatCannotBePlaced()
{
    const auto page = shownPage({});
    SignalLog log;
    log.watch(page->area(), SIGNAL(timeItemPasted(QList<ZvTime>,QList<ZvTime>)));
    clickAt(*page, QStringLiteral("12:00:00"));
    putTimes({band("01:00:00", "02:00:00", "p.xml"), band("01:10:00", "01:20:00", "q.xml"),
              band("03:00:00", "04:00:00", "r.xml")});
    page->boxes()
        .expect(QMessageBox::Ok)
        .title(QStringLiteral("Error"))
        .text(QStringLiteral("Failed to assign \"q.xml\"."))
        .icon(QMessageBox::Critical);
    QVERIFY(page->area()->pasteItems());
    QVERIFY(page->boxes().isDone());
    QCOMPARE(page->area()->currentTimes().size(), 2);
    QCOMPARE(log.arguments(0).at(1).value<QList<ZvTime>>().size(), 3);
}

void tst_TimeTableClipboard::disorderedBlockIsRefused()
{
    const auto page = shownPage();
    clickAt(*page, QStringLiteral("12:00:00"));
    putTimes({band("05:00:00", "06:00:00"), band("01:00:00", "02:00:00")});
    expectNoRoom(*page);
    QVERIFY(!page->area()->pasteItems());
    QVERIFY(page->boxes().isDone());
    QCOMPARE(page->area()->currentTimes(), threeBands);
}

void tst_TimeTableClipboard::twoTabsOneClipboard()
{
    const auto source = shownPage();
    const auto target = shownPage({});
    source->select({0, 1});
    QVERIFY(source->area()->copySelectedItems());
    const QTime click = clickAt(*target, QStringLiteral("06:00:00"));
    QVERIFY(target->area()->pasteItems());
    QCOMPARE(target->area()->currentTimes(),
             QList<ZvTime>({{click, click.addSecs(3600), QStringLiteral("a.xml")},
                            {click.addSecs(7200), click.addSecs(10800), QStringLiteral("b.xml")}}));
}

void tst_TimeTableClipboard::withoutAScene()
{
    const auto page = shownPage();
    clickAt(*page, QStringLiteral("12:00:00"));
    putTimes({threeBands.at(0)});
    const std::unique_ptr<QGraphicsScene> scene(page->area()->takeScene());
    QCOMPARE(page->area()->hasSelectedItems(), Flag::SelectedType());
    QVERIFY(!page->area()->copySelectedItems());
    QCOMPARE(page->area()->cutSelectedItems(), QList<ZvTime>());
    QCOMPARE(page->area()->deleteSelectedItems(), QList<ZvTime>());
    QVERIFY(!page->area()->isPastingPossible());
    QVERIFY(!page->area()->pasteItems());
}

void tst_TimeTableClipboard::thousandsOfBands()
{
    constexpr int count = 4320;
    constexpr int length = 10;
    QList<ZvTime> bands;
    for (int i = 0; i < count; ++i) {
        const QTime start = QTime(0, 0).addSecs(length * i);
        bands.append(ZvTime(start, start.addSecs(length), QStringLiteral("a.xml")));
    }
    const auto page = shownPage(bands);
    page->area()->selectAllItems();
    QCOMPARE(page->area()->cutSelectedItems(), bands);
    QCOMPARE(page->area()->currentTimes(), QList<ZvTime>());
    const QTime click = clickAt(*page, QStringLiteral("06:00:00"));
    QVERIFY(page->area()->pasteItems());
    const QList<ZvTime> pasted = page->area()->currentTimes();
    QCOMPARE(pasted.size(), count);
    for (int i = 0; i < count; ++i)
        QCOMPARE(pasted.at(i), ZvTime(click.addSecs(length * i), click.addSecs(length * (i + 1)),
                                      QStringLiteral("a.xml")));
}

QTEST_MAIN(tst_TimeTableClipboard)
#include "tst_timetableclipboard.moc"
