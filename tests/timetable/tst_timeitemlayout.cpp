#include "TimeTableFixture.h"

#include <QPen>
#include <QtTest>

#include <cmath>

using namespace Zavo;
using ZavoTest::band;
using ZavoTest::indexLabelOf;
using ZavoTest::innerMarkOf;
using ZavoTest::markOf;
using ZavoTest::stageLabelOf;
using ZavoTest::TimeTableFixture;

/// Where the unscaled children of a band stand at the scales of the view.
class tst_TimeItemLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_table.reset(new TimeTableFixture); }
    void cleanup() { m_table.reset(); }

    void hasItsChildrenInOrder();
    void drawsItsMarkWithCosmeticPens();
    void marksItselfTwiceAtFirst();

    void centresTheStageName_data() { addScales(); }
    void centresTheStageName();
    void centresANewName();
    void nameSticksOutOfAShortBand();
    void marksTheScaledRectangle_data() { addScales(); }
    void marksTheScaledRectangle();
    void standsHandlesAtTheEdges_data() { addScales(); }
    void standsHandlesAtTheEdges();
    void layoutFollowsTheSize();
    void numberStaysInTheCorner();

    void handlesShrinkWithAShortBand_data();
    void handlesShrinkWithAShortBand();
    void handleHeightIgnoresTheScale();
    void handleHeightFollowsTheNextMove();
    void handlesAreAsWideAsTheBandAfterAMove();
    void shortBandCannotBeGrasped_data();
    void shortBandCannotBeGrasped();

    void newBandsTakeTheScales();
    void keepsStepWithTheView_data();
    void keepsStepWithTheView();

private:
    static void addScales();

    /// The rectangle of an unscaled child in pixels of the viewport.
    QRectF onScreen(const QGraphicsItem *child) const
    {
        return child->deviceTransform(m_table->view()->viewportTransform())
            .mapRect(child->boundingRect());
    }

    QScopedPointer<TimeTableFixture> m_table;
};

void tst_TimeItemLayout::addScales()
{
    QTest::addColumn<double>("vertical");
    QTest::addColumn<double>("horizontal");
    for (double scale : ZavoTest::timeTableScales) {
        QTest::addRow("%g by 1", scale) << scale << 1.0;
        QTest::addRow("%g by 1.7", scale) << scale << 1.7;
    }
}

void tst_TimeItemLayout::hasItsChildrenInOrder()
{
    const ZvTimeTableTimeItem item;
    const QList<QGraphicsItem *> children = item.childItems();
    QCOMPARE(children.size(), 5);
    QVERIFY(dynamic_cast<ZvTimeTableTimeItemLabel *>(children.at(0)));
    QCOMPARE(children.at(1), markOf(&item));
    QCOMPARE(children.at(2), item.topHandle());
    QCOMPARE(children.at(3), item.bottomHandle());
    QCOMPARE(children.at(4), indexLabelOf(&item));
    QVERIFY(innerMarkOf(&item));
    for (const QGraphicsItem *child : children)
        QVERIFY(child->flags() & QGraphicsItem::ItemIgnoresTransformations);
    QVERIFY(innerMarkOf(&item)->flags() & QGraphicsItem::ItemIgnoresTransformations);
}

void tst_TimeItemLayout::drawsItsMarkWithCosmeticPens()
{
    const ZvTimeTableTimeItem item;
    for (const QGraphicsRectItem *rect : {markOf(&item), innerMarkOf(&item)}) {
        const QPen pen = rect->pen();
        QVERIFY(pen.isCosmetic());
        QCOMPARE(pen.color(), QColor(Qt::blue));
        QCOMPARE(pen.widthF(), 1.0);
        QCOMPARE(pen.style(), Qt::SolidLine);
        QCOMPARE(pen.capStyle(), Qt::SquareCap);
        QCOMPARE(pen.joinStyle(), Qt::BevelJoin);
        QCOMPARE(rect->brush(), QBrush(Qt::NoBrush));
    }
}

void tst_TimeItemLayout::marksItselfTwiceAtFirst()
{
    const ZvTimeTableTimeItem item;
    QCOMPARE(markOf(&item)->rect(), QRectF(0.0, 0.0, 240.0, 60.0));
    QCOMPARE(innerMarkOf(&item)->rect(), QRectF(1.0, 1.0, 237.0, 57.0));
    QVERIFY(!markOf(&item)->isVisible());
}

void tst_TimeItemLayout::centresTheStageName()
{
    QFETCH(double, vertical);
    QFETCH(double, horizontal);
    QVERIFY(m_table->fill({band(QStringLiteral("01:00:00"), QStringLiteral("03:00:00"),
                                QStringLiteral("stage.xml"))}));
    ZvTimeTableTimeItem *item = m_table->item(0);
    item->setVerticalScale(vertical);
    item->setHorizontalScale(horizontal);
    const QSizeF size = stageLabelOf(item)->boundingRect().size();
    QCOMPARE(stageLabelOf(item)->x(), (240.0 * horizontal - size.width()) * 0.5 / horizontal);
    QCOMPARE(stageLabelOf(item)->y(), (120.0 * vertical - size.height()) * 0.5 / vertical);
}

void tst_TimeItemLayout::centresANewName()
{
    QVERIFY(m_table->fill(
        {band(QStringLiteral("01:00:00"), QStringLiteral("03:00:00"), QStringLiteral("a.xml"))}));
    const double before = stageLabelOf(m_table->item(0))->x();
    m_table->item(0)->setTimeInfo(band(QStringLiteral("01:00:00"), QStringLiteral("03:00:00"),
                                       QStringLiteral("a much longer name.xml")));
    const ZvTimeTableTimeItemLabel *label = stageLabelOf(m_table->item(0));
    QVERIFY(label->x() < before);
    QCOMPARE(label->x(), (240.0 - label->boundingRect().width()) * 0.5);
}

void tst_TimeItemLayout::nameSticksOutOfAShortBand()
{
    QVERIFY(m_table->fill({band(QStringLiteral("01:00:00"), QStringLiteral("01:02:00"))}));
    const ZvTimeTableTimeItemLabel *label = stageLabelOf(m_table->item(0));
    QVERIFY(label->y() < 0.0);
    QCOMPARE(label->y(), (2.0 - label->boundingRect().height()) * 0.5);
}

void tst_TimeItemLayout::marksTheScaledRectangle()
{
    QFETCH(double, vertical);
    QFETCH(double, horizontal);
    QVERIFY(m_table->fill({band(QStringLiteral("01:00:00"), QStringLiteral("03:00:00"))}));
    ZvTimeTableTimeItem *item = m_table->item(0);
    item->setVerticalScale(vertical);
    item->setHorizontalScale(horizontal);
    const QRectF rect(0.0, 0.0, 240.0 * horizontal, 120.0 * vertical);
    QCOMPARE(markOf(item)->rect(), rect);
    QCOMPARE(innerMarkOf(item)->rect(), rect.adjusted(1.0, 1.0, -1.0, -1.0));
    QCOMPARE(markOf(item)->pos(), QPointF(0.0, 0.0));
    QCOMPARE(innerMarkOf(item)->pos(), QPointF(0.0, 0.0));
}

void tst_TimeItemLayout::standsHandlesAtTheEdges()
{
    QFETCH(double, vertical);
    QFETCH(double, horizontal);
    QVERIFY(m_table->fill({band(QStringLiteral("01:00:00"), QStringLiteral("03:00:00"))}));
    ZvTimeTableTimeItem *item = m_table->item(0);
    item->setVerticalScale(vertical);
    item->setHorizontalScale(horizontal);
    QCOMPARE(item->topHandle()->pos(), QPointF(0.0, 0.0));
    QCOMPARE(item->topHandle()->handleWidth(), 240.0 * horizontal);
    QCOMPARE(item->topHandle()->handleHeight(), 5.0);
    QCOMPARE(item->bottomHandle()->x(), 0.0);
    QCOMPARE(item->bottomHandle()->y(), (120.0 * vertical - 5.0) / vertical);
    QCOMPARE(item->bottomHandle()->handleWidth(), 240.0 * horizontal);
    QCOMPARE(item->bottomHandle()->handleHeight(), 5.0);
}

void tst_TimeItemLayout::layoutFollowsTheSize()
{
    QVERIFY(m_table->fill({band(QStringLiteral("01:00:00"), QStringLiteral("03:00:00"))}));
    ZvTimeTableTimeItem *item = m_table->item(0);
    item->setVerticalScale(2.0);
    item->setItemHeight(40.0);
    item->setItemWidth(200.0);
    const QSizeF size = stageLabelOf(item)->boundingRect().size();
    QCOMPARE(item->boundingRect(), QRectF(0.0, 0.0, 200.0, 40.0));
    QCOMPARE(stageLabelOf(item)->pos(),
             QPointF((200.0 - size.width()) * 0.5, (80.0 - size.height()) * 0.5 / 2.0));
    QCOMPARE(markOf(item)->rect(), QRectF(0.0, 0.0, 200.0, 80.0));
    QCOMPARE(item->bottomHandle()->y(), (80.0 - 5.0) / 2.0);
    QCOMPARE(item->topHandle()->handleWidth(), 200.0);
    QCOMPARE(item->bottomHandle()->handleWidth(), 200.0);
}

void tst_TimeItemLayout::numberStaysInTheCorner()
{
    QVERIFY(m_table->fill({band(QStringLiteral("01:00:00"), QStringLiteral("03:00:00"))}));
    for (double scale : ZavoTest::timeTableScales) {
        m_table->setScale(scale);
        QCOMPARE(indexLabelOf(m_table->item(0))->pos(), QPointF(0.0, 0.0));
    }
}

void tst_TimeItemLayout::handlesShrinkWithAShortBand_data()
{
    QTest::addColumn<int>("seconds");
    QTest::addColumn<double>("height");
    QTest::addColumn<double>("grasped");
    QTest::newRow("five seconds") << 5 << 5.0 / 120.0 << 0.0;
    QTest::newRow("a minute") << 60 << 0.5 << 0.0;
    QTest::newRow("just below two minutes") << 119 << 119.0 / 120.0 << 0.0;
    QTest::newRow("two minutes") << 120 << 1.0 << 1.0;
    QTest::newRow("five minutes") << 300 << 2.5 << 2.0;
    QTest::newRow("ten minutes") << 600 << 5.0 << 5.0;
    QTest::newRow("an hour") << 3600 << 5.0 << 5.0;
}

void tst_TimeItemLayout::handlesShrinkWithAShortBand()
{
    QFETCH(int, seconds);
    QFETCH(double, height);
    QFETCH(double, grasped);
    const QTime start(8, 0);
    QVERIFY(m_table->fill({{start, start.addSecs(seconds), QStringLiteral("a.xml")}}));
    for (const ZvTimeTableTimeItemResizeHandle *handle :
         {m_table->item(0)->topHandle(), m_table->item(0)->bottomHandle()}) {
        QVERIFY(qAbs(handle->handleHeight() - height) < 1e-9);
        QCOMPARE(handle->boundingRect().height(), grasped);
    }
}

void tst_TimeItemLayout::handleHeightIgnoresTheScale()
{
    QVERIFY(m_table->fill({band(QStringLiteral("01:00:00"), QStringLiteral("01:04:00"))}));
    for (double scale : ZavoTest::timeTableScales) {
        m_table->setScale(scale);
        QCOMPARE(m_table->item(0)->topHandle()->handleHeight(), 2.0);
        QCOMPARE(m_table->item(0)->bottomHandle()->y(), (4.0 * scale - 2.0) / scale);
    }
}

void tst_TimeItemLayout::handleHeightFollowsTheNextMove()
{
    QVERIFY(m_table->fill({band(QStringLiteral("01:00:00"), QStringLiteral("02:00:00"))}));
    ZvTimeTableTimeItem *item = m_table->item(0);
    item->setItemHeight(4.0);
    QCOMPARE(item->topHandle()->handleHeight(), 5.0);
    item->setY(item->y() + 1.0);
    QCOMPARE(item->topHandle()->handleHeight(), 2.0);
    QCOMPARE(item->bottomHandle()->handleHeight(), 2.0);
    QCOMPARE(item->bottomHandle()->y(), 2.0);
}

void tst_TimeItemLayout::handlesAreAsWideAsTheBandAfterAMove()
{
    QVERIFY(m_table->fill({band(QStringLiteral("01:00:00"), QStringLiteral("02:00:00"))}));
    ZvTimeTableTimeItem *item = m_table->item(0);
    item->setVerticalScale(2.0);
    item->setHorizontalScale(1.5);
    QCOMPARE(item->topHandle()->handleWidth(), 360.0);
    item->setY(item->y() + 1.0);
    // A move lays the handles in units, the next change of scale or size in pixels again.
    QCOMPARE(item->topHandle()->handleWidth(), 240.0);
    QCOMPARE(item->bottomHandle()->handleWidth(), 240.0);
    QCOMPARE(item->bottomHandle()->pos(), QPointF(0.0, (60.0 * 2.0 - 5.0) / 2.0));
    item->setHorizontalScale(2.0);
    QCOMPARE(item->topHandle()->handleWidth(), 480.0);
    QCOMPARE(item->bottomHandle()->handleWidth(), 480.0);
}

void tst_TimeItemLayout::shortBandCannotBeGrasped_data()
{
    QTest::addColumn<double>("scale");
    for (double scale : ZavoTest::timeTableScales)
        QTest::addRow("%g", scale) << scale;
}

void tst_TimeItemLayout::shortBandCannotBeGrasped()
{
    QFETCH(double, scale);
    m_table->setScale(scale);
    const auto graspedNear = [this](double y) {
        for (double offset = -0.5; offset <= 0.5; offset += 1.0 / 128.0) {
            if (m_table->scene()->resizeHandleAt(QPointF(180.0, y + offset)) !=
                ZvTimeTableScene::NoDrag)
                return true;
        }
        return false;
    };
    QVERIFY(m_table->fill({band(QStringLiteral("01:00:00"), QStringLiteral("01:01:59"))}));
    m_table->select({0});
    QVERIFY(!graspedNear(70.0));
    QVERIFY(!graspedNear(70.0 + 119.0 / 60.0));

    QVERIFY(m_table->fill({band(QStringLiteral("01:00:00"), QStringLiteral("01:02:00"))}));
    m_table->select({0});
    QVERIFY(graspedNear(70.0));
    QVERIFY(graspedNear(72.0));
}

void tst_TimeItemLayout::newBandsTakeTheScales()
{
    m_table->setScale(6.0);
    m_table->view()->setHorizontalScale(1.5);
    QVERIFY(m_table->fill({band(QStringLiteral("01:00:00"), QStringLiteral("02:00:00"))}));
    ZvTimeTableTimeItem *item = m_table->item(0);
    QCOMPARE(item->itemWidth(), 240.0);
    QCOMPARE(item->x(), 10.0);
    QCOMPARE(markOf(item)->rect(), QRectF(0.0, 0.0, 360.0, 360.0));
    const QSizeF size = stageLabelOf(item)->boundingRect().size();
    QCOMPARE(stageLabelOf(item)->pos(),
             QPointF((360.0 - size.width()) * 0.5 / 1.5, (360.0 - size.height()) * 0.5 / 6.0));
}

void tst_TimeItemLayout::keepsStepWithTheView_data()
{
    QTest::addColumn<double>("vertical");
    QTest::addColumn<int>("width");
    for (double scale : ZavoTest::timeTableScales) {
        QTest::addRow("%g, narrow", scale) << scale << 420;
        QTest::addRow("%g, wide", scale) << scale << 1300;
    }
}

void tst_TimeItemLayout::keepsStepWithTheView()
{
    QFETCH(double, vertical);
    QFETCH(int, width);
    QVERIFY(m_table->fill({band(QStringLiteral("01:00:00"), QStringLiteral("03:00:00"))}));
    m_table->setScale(vertical);
    m_table->view()->resize(width, 600);
    m_table->paint();
    const double horizontal = m_table->view()->transform().m11();
    QCOMPARE(horizontal > 1.0, width > 1000);
    m_table->select({0});
    const ZvTimeTableTimeItem *item = m_table->item(0);
    const QRectF bandRect =
        item->deviceTransform(m_table->view()->viewportTransform()).mapRect(item->boundingRect());
    QCOMPARE(bandRect.size(), QSizeF(240.0 * horizontal, 120.0 * vertical));

    const auto isClose = [](double a, double b) { return qAbs(a - b) < 1e-6; };
    const QRectF name = onScreen(stageLabelOf(item));
    QVERIFY(isClose(name.center().x(), bandRect.center().x()));
    QVERIFY(isClose(name.center().y(), bandRect.center().y()));
    const QRectF mark = markOf(item)
                            ->deviceTransform(m_table->view()->viewportTransform())
                            .mapRect(markOf(item)->rect());
    QVERIFY(isClose(mark.left(), bandRect.left()) && isClose(mark.right(), bandRect.right()));
    QVERIFY(isClose(mark.top(), bandRect.top()) && isClose(mark.bottom(), bandRect.bottom()));
    QVERIFY(isClose(onScreen(item->topHandle()).top(), bandRect.top()));
    QVERIFY(isClose(onScreen(item->bottomHandle()).bottom(), bandRect.bottom()));
    QVERIFY(isClose(onScreen(item->bottomHandle()).width(), std::floor(240.0 * horizontal)));
}

QTEST_MAIN(tst_TimeItemLayout)
#include "tst_timeitemlayout.moc"
