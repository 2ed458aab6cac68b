#include "timetable/DrawnRange.h"

#include "TimeTableFixture.h"
#include "timetable/TimeItemRects.h"

#include <QImage>
#include <QPainter>
#include <QRandomGenerator>
#include <QScreen>
#include <QScrollBar>
#include <QWindow>
#include <QtTest>

using namespace Zavo;
using ZavoTest::band;
using ZavoTest::indexLabelOf;
using ZavoTest::innerMarkOf;
using ZavoTest::markOf;
using ZavoTest::rulerTextsOf;
using ZavoTest::stageLabelOf;
using ZavoTest::TimeTableFixture;
using ZavoTest::yOf;

namespace {

constexpr double seconds = 60.0; // the scale of 6000%
constexpr int minutesPerDay = 1440;

bool isDrawn(const QGraphicsItem *item)
{
    return !item->flags().testFlag(QGraphicsItem::ItemHasNoContents);
}

/// A band of a minute in every second minute of the day.
QList<ZvTime> bandsOfTheDay()
{
    QList<ZvTime> times;
    for (int minute = 0; minute + 1 < minutesPerDay; minute += 2) {
        const QTime start = QTime(0, 0).addSecs(minute * 60);
        times.append({start, start.addSecs(60), QStringLiteral("stage%1.xml").arg(minute % 7)});
    }
    return times;
}

/// What the screen shows of the table: every update that was left out shows in it.
QImage screenOf(const TimeTableFixture &table)
{
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    return table.view()->screen()->grabWindow(table.view()->winId()).toImage();
}

/// The same table with all its items drawn anew, wherever they are.
QImage drawnWhole(const TimeTableFixture &table)
{
    const QList<QGraphicsItem *> items = table.scene()->items();
    for (QGraphicsItem *item : items)
        setDrawn(item, true);
    table.view()->viewport()->repaint();
    return table.view()->grab().toImage();
}

} // namespace

/// On an enlarged table only what is near the part in sight is drawn, and nobody sees it.
class tst_DrawnRange : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_table.reset(new TimeTableFixture); }
    void cleanup() { m_table.reset(); }

    void knowsWhatItMeets();
    void holdsEverythingAtFirst();
    void drawsAllOfASmallTable();
    void drawsOnlyNearbyItemsOfAnEnlargedTable();
    void keepsEverythingElseAboutItems();
    void showsWhatIsScrolledTo_data();
    void showsWhatIsScrolledTo();
    void showsTheWholeDayAgain();
    void showsABandThatIsMovedIntoSight();
    void showsABandThatGrowsIntoSight();
    void showsABandThatIsGivenAnotherTime();
    void showsBandsThatAreNew();
    void showsALabelThatIsHandedOn();
    void drawsAllOfAPictureOfTheScene();
    void paintsAViewWithoutScene();

private:
    void enlarge(double y)
    {
        m_table->setScale(seconds);
        m_table->scrollTo(y);
    }

    QScopedPointer<TimeTableFixture> m_table;
};

void tst_DrawnRange::knowsWhatItMeets()
{
    const DrawnRange range{10.0, 20.0};
    QVERIFY(range.meets(12.0, 13.0));
    QVERIFY(range.meets(0.0, 10.0));
    QVERIFY(range.meets(20.0, 30.0));
    QVERIFY(range.meets(0.0, 30.0));
    QVERIFY(!range.meets(0.0, 9.9));
    QVERIFY(!range.meets(20.1, 30.0));
    QVERIFY(range.contains({10.0, 20.0}));
    QVERIFY(!range.contains(range.grownBy(0.1)));
    QVERIFY(range.grownBy(0.1).contains(range));
    QCOMPARE(range.grownBy(5.0).length(), 20.0);
}

void tst_DrawnRange::holdsEverythingAtFirst()
{
    const DrawnRange all;
    QVERIFY(all.meets(-1e300, -1e300));
    QVERIFY(all.contains({-1e300, 1e300}));
    QVERIFY(all == all.grownBy(1.0));
}

void tst_DrawnRange::drawsAllOfASmallTable()
{
    QVERIFY(m_table->fill(bandsOfTheDay()));
    for (double scale : {0.25, 1.0, 2.0}) {
        m_table->setScale(scale);
        m_table->scrollTo(yOf(QStringLiteral("12:00:00")));
        const QList<QGraphicsItem *> items = m_table->scene()->items();
        for (const QGraphicsItem *item : items) {
            if (!dynamic_cast<const ZvTimeTableTimeLabelItem *>(item))
                QVERIFY(isDrawn(item));
        }
    }
}

void tst_DrawnRange::drawsOnlyNearbyItemsOfAnEnlargedTable()
{
    QVERIFY(m_table->fill(bandsOfTheDay()));
    enlarge(yOf(QStringLiteral("12:00:30")));
    QTRY_COMPARE(rulerTextsOf(m_table->base()).size(), minutesPerDay + 1);
    const auto items = m_table->strip()->timeItems();
    const auto drawnBands = std::count_if(items.cbegin(), items.cend(), isDrawn);
    const QList<QGraphicsTextItem *> texts = rulerTextsOf(m_table->base());
    const auto drawnTexts = std::count_if(texts.cbegin(), texts.cend(), isDrawn);
    // Ten minutes are in sight, and as many on both sides are drawn.
    QVERIFY2(drawnBands >= 5 && drawnBands < 40, QByteArray::number(int(drawnBands)));
    QVERIFY2(drawnTexts >= 10 && drawnTexts < 80, QByteArray::number(int(drawnTexts)));
    const ZvTimeTableTimeItem *far = m_table->item(0);
    for (const QGraphicsItem *item : std::initializer_list<const QGraphicsItem *>{
             far, stageLabelOf(far), indexLabelOf(far), markOf(far), innerMarkOf(far)})
        QVERIFY(!isDrawn(item));
    QVERIFY(isDrawn(m_table->item(360)));
    QVERIFY(isDrawn(stageLabelOf(m_table->item(360))));
}

void tst_DrawnRange::keepsEverythingElseAboutItems()
{
    QVERIFY(m_table->fill(bandsOfTheDay()));
    const QRectF rect = m_table->item(0)->sceneBoundingRect();
    enlarge(yOf(QStringLiteral("12:00:30")));
    ZvTimeTableTimeItem *far = m_table->item(0);
    QVERIFY(!isDrawn(far));
    QVERIFY(far->isVisible());
    QCOMPARE(far->opacity(), 1.0);
    QCOMPARE(far->sceneBoundingRect(), rect);
    QVERIFY(m_table->scene()->items(rect.center()).contains(far));
    QVERIFY(rulerTextsOf(m_table->base()).first()->isVisible());
    far->setSelected(true);
    QCOMPARE(m_table->scene()->selectedTimeItems(), QList<ZvTimeTableTimeItem *>{far});
    QVERIFY(markOf(far)->isVisible());
}

void tst_DrawnRange::showsWhatIsScrolledTo_data()
{
    QTest::addColumn<double>("scale");
    for (double scale : {3.0, 6.0, 15.0, 60.0})
        QTest::addRow("%g", scale) << scale;
}

void tst_DrawnRange::showsWhatIsScrolledTo()
{
    QFETCH(double, scale);
    QVERIFY(m_table->fill(bandsOfTheDay()));
    m_table->setScale(scale);
    // Steps of all lengths, there and back, with bands changing between them.
    QRandomGenerator random(7);
    QScrollBar *bar = m_table->view()->verticalScrollBar();
    for (int step = 0; step < 60; ++step) {
        const int most = step % 3 == 0 ? 4000 : 200;
        bar->setValue(bar->value() + random.bounded(-most, most + most / 2));
        if (step % 4 == 0)
            m_table->select({random.bounded(m_table->count())});
        QCoreApplication::processEvents();
    }
    const QImage seen = screenOf(*m_table);
    QCOMPARE(seen, drawnWhole(*m_table));
}

void tst_DrawnRange::showsTheWholeDayAgain()
{
    QVERIFY(m_table->fill(bandsOfTheDay()));
    enlarge(yOf(QStringLiteral("03:00:00")));
    QVERIFY(!isDrawn(m_table->item(700)));
    m_table->setScale(0.25);
    for (int i = 0; i < m_table->count(); ++i)
        QVERIFY(isDrawn(m_table->item(i)));
    const QImage seen = screenOf(*m_table);
    QCOMPARE(seen, drawnWhole(*m_table));
}

void tst_DrawnRange::showsABandThatIsMovedIntoSight()
{
    QVERIFY(m_table->fill({band(QStringLiteral("00:00:00"), QStringLiteral("00:01:00"))}));
    enlarge(yOf(QStringLiteral("12:00:00")));
    const QImage empty = screenOf(*m_table);
    QVERIFY(!isDrawn(m_table->item(0)));
    const QRectF target(10.0, yOf(QStringLiteral("12:00:00")), 240.0, 1.0);
    applyRects(m_table->scene(), {{0, target}}, false);
    const QImage seen = screenOf(*m_table);
    QVERIFY(seen != empty);
    QCOMPARE(seen, drawnWhole(*m_table));
}

void tst_DrawnRange::showsABandThatGrowsIntoSight()
{
    QVERIFY(m_table->fill({band(QStringLiteral("00:00:00"), QStringLiteral("00:01:00"))}));
    enlarge(yOf(QStringLiteral("12:00:00")));
    const QImage empty = screenOf(*m_table);
    QVERIFY(!isDrawn(m_table->item(0)));
    m_table->item(0)->setItemHeight(minutesPerDay / 2.0);
    const QImage seen = screenOf(*m_table);
    QVERIFY(seen != empty);
    QCOMPARE(seen, drawnWhole(*m_table));
}

void tst_DrawnRange::showsABandThatIsGivenAnotherTime()
{
    QVERIFY(m_table->fill({band(QStringLiteral("00:00:00"), QStringLiteral("00:01:00"))}));
    enlarge(yOf(QStringLiteral("12:00:00")));
    const QImage empty = screenOf(*m_table);
    m_table->strip()->setTimeItemTimes(
        {{0, band(QStringLiteral("11:59:00"), QStringLiteral("12:01:00"))}});
    const QImage seen = screenOf(*m_table);
    QVERIFY(seen != empty);
    QCOMPARE(seen, drawnWhole(*m_table));
}

void tst_DrawnRange::showsBandsThatAreNew()
{
    enlarge(yOf(QStringLiteral("12:00:00")));
    const QImage empty = screenOf(*m_table);
    QVERIFY(m_table->fill(bandsOfTheDay()));
    const QImage seen = screenOf(*m_table);
    QVERIFY(seen != empty);
    QVERIFY(!isDrawn(m_table->item(0)));
    QCOMPARE(seen, drawnWhole(*m_table));
}

void tst_DrawnRange::showsALabelThatIsHandedOn()
{
    // The labels of numbers go from band to band when one in front is removed.
    QVERIFY(m_table->fill(bandsOfTheDay()));
    enlarge(yOf(QStringLiteral("12:00:00")));
    m_table->scene()->removeTimeItems({m_table->item(3)->timeInfo()});
    for (int index : {0, 358, 359, 360, 600}) {
        const ZvTimeTableTimeItem *item = m_table->item(index);
        QCOMPARE(isDrawn(indexLabelOf(item)), isDrawn(item));
        QCOMPARE(indexLabelOf(item)->toPlainText(), QStringLiteral("#%1").arg(index));
    }
    const QImage seen = screenOf(*m_table);
    QCOMPARE(seen, drawnWhole(*m_table));
}

void tst_DrawnRange::drawsAllOfAPictureOfTheScene()
{
    QVERIFY(m_table->fill(bandsOfTheDay()));
    enlarge(yOf(QStringLiteral("12:00:00")));
    const auto picture = [this] {
        QImage image(330, 1460, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::magenta);
        QPainter painter(&image);
        m_table->scene()->render(&painter, QRectF(), QRectF(0.0, 0.0, 330.0, 1460.0));
        return image;
    };
    const QImage seen = picture();
    drawnWhole(*m_table);
    QCOMPARE(seen, picture());
    // The range is that of the view again.
    m_table->paint();
    m_table->scrollTo(yOf(QStringLiteral("06:00:00")));
    const QImage screen = screenOf(*m_table);
    QCOMPARE(screen, drawnWhole(*m_table));
}

void tst_DrawnRange::paintsAViewWithoutScene()
{
    m_table->view()->setScene(nullptr);
    m_table->view()->viewport()->repaint();
    const QImage seen = screenOf(*m_table);
    QCOMPARE(seen.pixelColor(seen.rect().center()),
             m_table->view()->viewport()->palette().color(QPalette::Base));
}

QTEST_MAIN(tst_DrawnRange)
#include "tst_drawnrange.moc"
