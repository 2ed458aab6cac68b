#include "TimeTableFixture.h"
#include "timetable/MereNotice.h"

#include <QPaintEvent>
#include <QPen>
#include <QRegion>
#include <QtTest>

using namespace Zavo;
using ZavoTest::innerMarkOf;
using ZavoTest::markOf;
using ZavoTest::TimeTableFixture;

namespace {

constexpr int bandCount = 20;
constexpr int minutesApart = 60;

QList<ZvTime> manyBands()
{
    QList<ZvTime> times;
    for (int i = 0; i < bandCount; ++i) {
        const QTime start = QTime(0, 0).addSecs(i * minutesApart * 60);
        times.append({start, start.addSecs(600), QStringLiteral("a.xml")});
    }
    return times;
}

/// What a widget is asked to paint from now on.
class PaintedRegion final : public QObject
{
public:
    explicit PaintedRegion(QWidget *widget) { widget->installEventFilter(this); }

    QRegion region() const { return m_region; }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            m_region += static_cast<QPaintEvent *>(event)->region();
        return false;
    }

private:
    QRegion m_region;
};

} // namespace

/// What is spared where many bands come and go at once.
class tst_ManyBands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void repaintsTheTableOnceForMostOfItsBands_data();
    void repaintsTheTableOnceForMostOfItsBands();
    void repaintsTheTableOnceForASelectionOfAll();
    void repaintsTheTableOnceForAMoveOfMost_data();
    void repaintsTheTableOnceForAMoveOfMost();
    void sharesOnePenAmongAllMarks();
    void givesBackOnlyWhatIsRead_data();
    void givesBackOnlyWhatIsRead();
};

void tst_ManyBands::repaintsTheTableOnceForMostOfItsBands_data()
{
    QTest::addColumn<int>("removed");
    QTest::addColumn<bool>("asAWhole");
    QTest::newRow("one") << 1 << false;
    QTest::newRow("half") << bandCount / 2 << false;
    QTest::newRow("most") << bandCount / 2 + 1 << true;
    QTest::newRow("all") << bandCount << true;
}

void tst_ManyBands::repaintsTheTableOnceForMostOfItsBands()
{
    QFETCH(int, removed);
    QFETCH(bool, asAWhole);
    TimeTableFixture table;
    const QList<ZvTime> times = manyBands();
    QVERIFY(table.fill(times));
    table.paint();

    PaintedRegion painted(table.view()->viewport());
    table.scene()->removeTimeItems(times.mid(0, removed));
    QCOMPARE(table.count(), bandCount - removed);
    QCoreApplication::processEvents();
    QVERIFY(!painted.region().isEmpty());
    QCOMPARE(painted.region() == QRegion(table.view()->viewport()->rect()), asAWhole);
}

void tst_ManyBands::repaintsTheTableOnceForASelectionOfAll()
{
    TimeTableFixture table;
    QVERIFY(table.fill(manyBands()));
    table.strip()->clearSelection();
    table.paint();
    PaintedRegion painted(table.view()->viewport());
    table.strip()->selectAllTimeItems();
    QCoreApplication::processEvents();
    QCOMPARE(painted.region(), QRegion(table.view()->viewport()->rect()));
}

void tst_ManyBands::repaintsTheTableOnceForAMoveOfMost_data()
{
    QTest::addColumn<int>("moved");
    QTest::addColumn<bool>("asAWhole");
    QTest::newRow("one") << 1 << false;
    QTest::newRow("half") << bandCount / 2 << false;
    QTest::newRow("most") << bandCount / 2 + 1 << true;
}

void tst_ManyBands::repaintsTheTableOnceForAMoveOfMost()
{
    QFETCH(int, moved);
    QFETCH(bool, asAWhole);
    TimeTableFixture table;
    QVERIFY(table.fill(manyBands()));
    table.strip()->clearSelection();
    for (ZvTimeTableTimeItem *item : table.strip()->timeItems().mid(0, moved))
        item->setSelected(true);
    table.paint();
    const double before = table.strip()->timeItems().first()->y();
    PaintedRegion painted(table.view()->viewport());
    QVERIFY(table.scene()->moveSelectedTimeItems(QPointF(0.0, 5.0), QPointF()));
    QCoreApplication::processEvents();
    QCOMPARE(table.strip()->timeItems().first()->y(), before + 5.0);
    QVERIFY(!painted.region().isEmpty());
    QCOMPARE(painted.region() == QRegion(table.view()->viewport()->rect()), asAWhole);
}

void tst_ManyBands::sharesOnePenAmongAllMarks()
{
    const ZvTimeTableTimeItem band;
    const ZvTimeTableTimeItem other;
    QPen pen = markOf(&band)->pen();
    for (const QGraphicsRectItem *mark :
         {innerMarkOf(&band), markOf(&other), innerMarkOf(&other)}) {
        QPen same = mark->pen();
        QCOMPARE(same.data_ptr(), pen.data_ptr());
    }
}

void tst_ManyBands::givesBackOnlyWhatIsRead_data()
{
    QTest::addColumn<int>("change");
    QTest::addColumn<bool>("isNotice");
    QTest::newRow("child added") << int(QGraphicsItem::ItemChildAddedChange) << true;
    QTest::newRow("child removed") << int(QGraphicsItem::ItemChildRemovedChange) << true;
    QTest::newRow("parent has changed") << int(QGraphicsItem::ItemParentHasChanged) << true;
    QTest::newRow("scene has changed") << int(QGraphicsItem::ItemSceneHasChanged) << true;
    QTest::newRow("parent") << int(QGraphicsItem::ItemParentChange) << false;
    QTest::newRow("scene") << int(QGraphicsItem::ItemSceneChange) << false;
    QTest::newRow("position") << int(QGraphicsItem::ItemPositionChange) << false;
    QTest::newRow("selected") << int(QGraphicsItem::ItemSelectedChange) << false;
}

void tst_ManyBands::givesBackOnlyWhatIsRead()
{
    QFETCH(int, change);
    QFETCH(bool, isNotice);
    QCOMPARE(isMereNotice(static_cast<QGraphicsItem::GraphicsItemChange>(change)), isNotice);
}

QTEST_MAIN(tst_ManyBands)
#include "tst_manybands.moc"
