#include "timetable/ZvTimeTableBaseItem.h"

#include "TimeTableFixture.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QPointer>
#include <QScrollBar>
#include <QSet>
#include <QStyleOptionGraphicsItem>
#include <QtTest>

#include <limits>

using namespace Zavo;
using ZavoTest::labelCarrierOf;
using ZavoTest::rulerTextsOf;
using ZavoTest::TimeTableFixture;

namespace {

constexpr double metresPerInch = 0.0254;

/// Paints @p base on a device of @p dpi dots an inch.
void paintAtDpi(ZvTimeTableBaseItem *base, double dpi)
{
    QImage image(40, 40, QImage::Format_ARGB32_Premultiplied);
    image.setDotsPerMeterX(qRound(dpi / metresPerInch));
    image.setDotsPerMeterY(qRound(dpi / metresPerInch));
    QPainter painter(&image);
    QStyleOptionGraphicsItem option;
    option.exposedRect = base->boundingRect();
    base->paint(&painter, &option, nullptr);
}

QStringList plainTextsOf(const QList<QGraphicsTextItem *> &items)
{
    QStringList texts;
    for (const QGraphicsTextItem *item : items)
        texts.append(item->toPlainText());
    return texts;
}

} // namespace

class tst_ZvTimeTableBaseItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_table.reset(new TimeTableFixture); }
    void cleanup() { m_table.reset(); }

    void isBareAtFirst();
    void registersItsListType();
    void isLaidOutWithOneStrip();
    void selectsAStripThatIsThereAlready();
    void laysASecondStripBesideTheFirst();
    void standsANullStrip();

    void readsTheTimeAtAPosition_data();
    void readsTheTimeAtAPosition();
    void readsEverySecond();

    void carriesLabelsAboveAllBands();
    void carrierStartsAtItsPosition();
    void laysTextsOnTheirLines_data();
    void laysTextsOnTheirLines();
    void showsTheLabelsInSightAtOnce_data() { laysTextsOnTheirLines_data(); }
    void showsTheLabelsInSightAtOnce();
    void textsAreUnscaledAndNotSelectable();
    void keepsItsTextsFromPaintToPaint();
    void reusesTextsAndDropsTheRest();
    void placesTextsAnewAtAScaleOfAsManyLabels();
    void repaintsNothingByTheSetter();
    void followsTheDpiAfterAWhile_data();
    void followsTheDpiAfterAWhile();
    void newLabelsFollowTheDpiAtOnce();
    void standsItsDeathBeforeTheDpiIsFollowed();

    void keepsLabelsAtTheEdgeOfTheView();
    void keepsLabelsInPlaceWithoutAView();
    void leavesLabelsInPlaceWhenScrolled();

    void reportsItsPlaceAfterEveryPaint();
    void reportsItsPlaceBeforeTheLabels();
    void declaresTheSignalOfItsLabels();

private:
    QScopedPointer<TimeTableFixture> m_table;
};

void tst_ZvTimeTableBaseItem::isBareAtFirst()
{
    ZvTimeTableBaseItem base;
    QCOMPARE(base.pos(), QPointF(0.0, 0.0));
    QCOMPARE(base.boundingRect(), QRectF(0.0, 0.0, 420.0, 1460.0));
    QCOMPARE(base.itemHeight(), 1460.0);
    QCOMPARE(base.childItems().size(), 1);
    QVERIFY(labelCarrierOf(&base));
    QVERIFY(rulerTextsOf(&base).isEmpty());
}

void tst_ZvTimeTableBaseItem::registersItsListType()
{
    const int type = QMetaType::type("QList<ZvTimeTableTimeLabelInfo>");
    QVERIFY(type != QMetaType::UnknownType);
    QCOMPARE(QMetaType::sizeOf(type), int(sizeof(QList<ZvTimeTableTimeLabelInfo>)));
}

void tst_ZvTimeTableBaseItem::isLaidOutWithOneStrip()
{
    QCOMPARE(m_table->base()->pos(), QPointF(0.0, 0.0));
    QCOMPARE(m_table->base()->boundingRect(), QRectF(0.0, 0.0, 330.0, 1460.0));
    QCOMPARE(m_table->strip()->parentItem(), m_table->base());
    QCOMPARE(m_table->strip()->sceneBoundingRect(), QRectF(50.0, 0.0, 260.0, 1460.0));
    QCOMPARE(m_table->strip()->mapRectToScene(m_table->strip()->innerRect()),
             QRectF(60.0, 10.0, 240.0, 1440.0));
}

void tst_ZvTimeTableBaseItem::selectsAStripThatIsThereAlready()
{
    // The strip of the table cannot be selected, so that one shows only that nothing else happens.
    m_table->base()->addTimeZone(m_table->strip());
    QCOMPARE(m_table->base()->boundingRect(), QRectF(0.0, 0.0, 330.0, 1460.0));
    QVERIFY(!m_table->strip()->isSelected());

    m_table->strip()->setFlag(QGraphicsItem::ItemIsSelectable);
    m_table->base()->addTimeZone(m_table->strip());
    QVERIFY(m_table->strip()->isSelected());
    QCOMPARE(m_table->strip()->sceneBoundingRect(), QRectF(50.0, 0.0, 260.0, 1460.0));
}

void tst_ZvTimeTableBaseItem::laysASecondStripBesideTheFirst()
{
    auto *second = new ZvTimeTableTimeZoneItem;
    m_table->base()->addTimeZone(second);
    QCOMPARE(second->parentItem(), m_table->base());
    // The first strip ends at 300; two margins of 10 lie between.
    QCOMPARE(second->mapRectToScene(second->innerRect()), QRectF(320.0, 10.0, 240.0, 1440.0));
    QCOMPARE(m_table->base()->boundingRect(), QRectF(0.0, 0.0, 590.0, 1460.0));
    QCOMPARE(m_table->strip()->sceneBoundingRect(), QRectF(50.0, 0.0, 260.0, 1460.0));
}

void tst_ZvTimeTableBaseItem::standsANullStrip()
{
    m_table->base()->addTimeZone(nullptr);
    QCOMPARE(m_table->base()->boundingRect(), QRectF(0.0, 0.0, 330.0, 1460.0));
}

void tst_ZvTimeTableBaseItem::readsTheTimeAtAPosition_data()
{
    QTest::addColumn<double>("y");
    QTest::addColumn<QString>("text");
    const QString none = QStringLiteral("--:--:--");
    const auto second = [](double count) { return 10.0 + count * 0.016666666666666666; };
    QTest::newRow("00:00:00") << 10.0 << QStringLiteral("00:00:00");
    QTest::newRow("24 o'clock") << 1450.0 << QStringLiteral("24:00:00");
    QTest::newRow("below the day") << 1450.1 << none;
    QTest::newRow("above the day") << 9.9 << none;
    QTest::newRow("a hair above the day") << 9.995 << QStringLiteral("00:00:00");
    QTest::newRow("top of the item") << 0.0 << none;
    QTest::newRow("bottom of the item") << 1460.0 << none;
    QTest::newRow("noon") << 730.0 << QStringLiteral("12:00:00");
    QTest::newRow("rounded down") << second(100.49) << QStringLiteral("00:01:40");
    QTest::newRow("rounded up") << second(100.51) << QStringLiteral("00:01:41");
    QTest::newRow("last second") << second(86399.0) << QStringLiteral("23:59:59");
    QTest::newRow("last half second") << second(86399.6) << QStringLiteral("24:00:00");
    QTest::newRow("less than half a second below") << second(86400.4) << QStringLiteral("24:00:00");
    QTest::newRow("more than half a second below") << second(86400.6) << none;
    QTest::newRow("more than half a second above") << second(-0.6) << none;
    QTest::newRow("a whole second above") << second(-1.0) << none;
    QTest::newRow("far below") << 1e300 << none;
    QTest::newRow("far above") << -1e300 << none;
    QTest::newRow("nowhere") << std::numeric_limits<double>::quiet_NaN() << none;
}

void tst_ZvTimeTableBaseItem::readsTheTimeAtAPosition()
{
    QFETCH(double, y);
    QFETCH(QString, text);
    for (double x : {-100.0, 0.0, 1000.0})
        QCOMPARE(m_table->base()->timeStringAt(QPointF(x, y)), text);
}

void tst_ZvTimeTableBaseItem::readsEverySecond()
{
    for (int second = 0; second < 86400; ++second) {
        const QString text =
            QLocale::c().toString(QTime(0, 0).addSecs(second), QStringLiteral("hh:mm:ss"));
        QCOMPARE(m_table->base()->timeStringAt(QPointF(0.0, 10.0 + second / 60.0)), text);
    }
}

void tst_ZvTimeTableBaseItem::carriesLabelsAboveAllBands()
{
    const ZvTimeTableTimeLabelItem *carrier = labelCarrierOf(m_table->base());
    QCOMPARE(carrier->zValue(), std::numeric_limits<double>::max());
    QCOMPARE(carrier->pos(), QPointF(0.0, 0.0));
    QCOMPARE(carrier->boundingRect(), QRectF(0.0, 0.0, 100.0, 1460.0));
    QVERIFY(!(carrier->flags() & QGraphicsItem::ItemIsSelectable));
}

void tst_ZvTimeTableBaseItem::carrierStartsAtItsPosition()
{
    ZvTimeTableTimeLabelItem carrier;
    QCOMPARE(carrier.boundingRect(), QRectF(0.0, 0.0, 100.0, 100.0));
    carrier.setWidth(50.0);
    carrier.setHeight(30.0);
    carrier.setPos(7.0, 8.0);
    QCOMPARE(carrier.boundingRect(), QRectF(7.0, 8.0, 50.0, 30.0));

    QImage image(100, 100, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    const QImage before = image;
    {
        QPainter painter(&image);
        const QStyleOptionGraphicsItem option;
        carrier.paint(&painter, &option, nullptr);
    }
    QCOMPARE(image, before);
}

void tst_ZvTimeTableBaseItem::laysTextsOnTheirLines_data()
{
    QTest::addColumn<double>("scale");
    for (double scale : ZavoTest::timeTableScales)
        QTest::addRow("%g", scale) << scale;
}

void tst_ZvTimeTableBaseItem::laysTextsOnTheirLines()
{
    QFETCH(double, scale);
    m_table->setScale(scale);
    const QList<ZvTimeTableTimeLabelInfo> labels = TimeTableRuler(scale).labels();
    QTRY_COMPARE(rulerTextsOf(m_table->base()).size(), labels.size());
    const QList<QGraphicsTextItem *> texts = rulerTextsOf(m_table->base());
    for (int i = 0; i < labels.size(); ++i) {
        const QGraphicsTextItem *text = texts.at(i);
        const double rise =
            text->boundingRect().height() - (QFontMetricsF(text->font()).descent() + 3.0);
        QCOMPARE(text->toPlainText(), labels.at(i).text());
        QCOMPARE(text->x(), labels.at(i).pos().x());
        QCOMPARE(text->y(), labels.at(i).pos().y() - rise / scale);
    }
    // On the screen, the line runs as far below the letters' descent at every scale.
    const QTransform view = m_table->view()->viewportTransform();
    const QGraphicsTextItem *last = texts.last();
    const double bottom = last->deviceTransform(view).mapRect(last->boundingRect()).bottom();
    const double line = view.map(QPointF(0.0, 1450.0)).y();
    QVERIFY(qAbs(bottom - line - (QFontMetricsF(last->font()).descent() + 3.0)) < 1e-6);
}

void tst_ZvTimeTableBaseItem::showsTheLabelsInSightAtOnce()
{
    QFETCH(double, scale);
    m_table->scene()->setVerticalScale(scale);
    m_table->view()->changeScale(scale);
    m_table->view()->centerOn(QPointF(0.0, 735.0));
    m_table->view()->viewport()->repaint();
    QSet<QString> made;
    for (const QGraphicsTextItem *text : rulerTextsOf(m_table->base()))
        made.insert(text->toPlainText());
    const QRectF sight =
        m_table->view()->mapToScene(m_table->view()->viewport()->rect()).boundingRect();
    int inSight = 0;
    const TimeTableRuler ruler(scale);
    for (const ZvTimeTableTimeLabelInfo &label : ruler.labels()) {
        if (label.pos().y() < sight.top() || label.pos().y() > sight.bottom())
            continue;
        QVERIFY2(made.contains(label.text()), qPrintable(label.text()));
        ++inSight;
    }
    QVERIFY(inSight > 5);
}

void tst_ZvTimeTableBaseItem::textsAreUnscaledAndNotSelectable()
{
    const QList<QGraphicsTextItem *> texts = rulerTextsOf(m_table->base());
    QCOMPARE(texts.size(), 25);
    for (const QGraphicsTextItem *text : texts) {
        QVERIFY(text->flags() & QGraphicsItem::ItemIgnoresTransformations);
        QVERIFY(!(text->flags() & QGraphicsItem::ItemIsSelectable));
        QCOMPARE(text->font().family(), QStringLiteral("Yu Gothic UI"));
        QCOMPARE(text->font().pixelSize(), 12);
        QCOMPARE(text->defaultTextColor(), QGraphicsTextItem().defaultTextColor());
    }
}

void tst_ZvTimeTableBaseItem::keepsItsTextsFromPaintToPaint()
{
    // The first paint learns the DPI of the screen and labels a second time for it.
    QTest::qWait(30);
    const QList<QGraphicsTextItem *> before = rulerTextsOf(m_table->base());
    before.first()->setPos(123.0, -56.0);
    m_table->base()->update();
    m_table->paint();
    QCOMPARE(rulerTextsOf(m_table->base()), before);
    // Not even looked at: neither the labels nor the scale have changed.
    QCOMPARE(before.first()->pos(), QPointF(123.0, -56.0));
}

void tst_ZvTimeTableBaseItem::reusesTextsAndDropsTheRest()
{
    QList<QGraphicsTextItem *> atOne = rulerTextsOf(m_table->base());
    m_table->setScale(2.0);
    const QList<QGraphicsTextItem *> atTwo = rulerTextsOf(m_table->base());
    QCOMPARE(atTwo.size(), 97);
    QCOMPARE(atTwo.mid(0, 25), atOne);
    QCOMPARE(
        plainTextsOf(atTwo.mid(0, 3)),
        QStringList({QStringLiteral("00:00"), QStringLiteral("00:15"), QStringLiteral("00:30")}));

    const QPointer<QGraphicsTextItem> dropped(atTwo.last());
    const QPointer<QGraphicsTextItem> firstDropped(atTwo.at(13));
    m_table->setScale(0.25);
    QCOMPARE(rulerTextsOf(m_table->base()), atTwo.mid(0, 13));
    QCOMPARE(plainTextsOf(atTwo.mid(0, 13)).last(), QStringLiteral("24:00"));
    QVERIFY(!dropped && !firstDropped);
}

void tst_ZvTimeTableBaseItem::placesTextsAnewAtAScaleOfAsManyLabels()
{
    // 50% and 100% have the same labels at the same lines.
    const QList<QGraphicsTextItem *> texts = rulerTextsOf(m_table->base());
    const double atOne = texts.at(5)->y();
    m_table->setScale(0.5);
    QCOMPARE(rulerTextsOf(m_table->base()), texts);
    const double line = 10.0 + 5 * 60.0;
    QVERIFY(qAbs((line - texts.at(5)->y()) - 2.0 * (line - atOne)) < 1e-6);
}

void tst_ZvTimeTableBaseItem::repaintsNothingByTheSetter()
{
    QTest::qWait(30);
    QSignalSpy painted(m_table->base(), SIGNAL(timeTablePosUpdated(QPointF)));
    m_table->base()->setVerticalScale(2.0);
    m_table->base()->setHorizontalScale(1.5);
    QTest::qWait(30);
    QCOMPARE(painted.size(), 0);
    QCOMPARE(rulerTextsOf(m_table->base()).size(), 25);
    m_table->base()->update();
    QTRY_COMPARE(rulerTextsOf(m_table->base()).size(), 97);
}

void tst_ZvTimeTableBaseItem::followsTheDpiAfterAWhile_data()
{
    QTest::addColumn<double>("dpi");
    QTest::addColumn<int>("pixelSize");
    QTest::newRow("120") << 120.0 << 15;
    QTest::newRow("192") << 192.0 << 24;
    QTest::newRow("fraction, cut") << 140.0 << 17;
}

void tst_ZvTimeTableBaseItem::followsTheDpiAfterAWhile()
{
    QFETCH(double, dpi);
    QFETCH(int, pixelSize);
    m_table->view()->hide();
    const QList<QGraphicsTextItem *> texts = rulerTextsOf(m_table->base());
    const double top = texts.at(5)->y();
    paintAtDpi(m_table->base(), dpi);
    QCOMPARE(texts.at(5)->font().pixelSize(), 12);
    QCOMPARE(texts.at(5)->y(), top);

    QTRY_COMPARE(texts.at(5)->font().pixelSize(), pixelSize);
    QCOMPARE(rulerTextsOf(m_table->base()), texts);
    const double rise =
        texts.at(5)->boundingRect().height() - (QFontMetricsF(texts.at(5)->font()).descent() + 3.0);
    QCOMPARE(texts.at(5)->y(), 310.0 - rise);
    QVERIFY(texts.at(5)->y() < top);
}

void tst_ZvTimeTableBaseItem::newLabelsFollowTheDpiAtOnce()
{
    m_table->view()->hide();
    m_table->base()->setVerticalScale(2.0);
    paintAtDpi(m_table->base(), 192.0);
    const QList<QGraphicsTextItem *> texts = rulerTextsOf(m_table->base());
    QCOMPARE(texts.size(), 97);
    for (const QGraphicsTextItem *text : texts)
        QCOMPARE(text->font().pixelSize(), 24);
    const double rise =
        texts.at(4)->boundingRect().height() - (QFontMetricsF(texts.at(4)->font()).descent() + 3.0);
    QCOMPARE(texts.at(4)->y(), 70.0 - rise / 2.0);
}

void tst_ZvTimeTableBaseItem::standsItsDeathBeforeTheDpiIsFollowed()
{
    auto *base = new ZvTimeTableBaseItem;
    paintAtDpi(base, 192.0);
    delete base;
    QTest::qWait(30);
}

void tst_ZvTimeTableBaseItem::keepsLabelsAtTheEdgeOfTheView()
{
    ZvTimeTableTimeLabelItem *carrier = labelCarrierOf(m_table->base());
    carrier->setY(5.0);
    // Wider than the view, so that it can be scrolled sideways.
    m_table->view()->setSceneRect(-300.0, -20.0, 2000.0, 1520.0);
    m_table->view()->horizontalScrollBar()->setValue(120);
    const double left = m_table->view()->mapToScene(QPoint(0, 0)).x();
    QVERIFY(left > 0.0);
    m_table->base()->correctLabelAreaPos();
    QCOMPARE(carrier->pos(), QPointF(left, 5.0));

    m_table->view()->horizontalScrollBar()->setValue(-200);
    QVERIFY(m_table->view()->mapToScene(QPoint(0, 0)).x() < 0.0);
    m_table->base()->correctLabelAreaPos();
    QCOMPARE(carrier->pos(), QPointF(0.0, 5.0));
}

void tst_ZvTimeTableBaseItem::keepsLabelsInPlaceWithoutAView()
{
    ZvTimeTableBaseItem alone;
    labelCarrierOf(&alone)->setX(7.0);
    alone.correctLabelAreaPos();
    QCOMPARE(labelCarrierOf(&alone)->x(), 7.0);

    ZvTimeTableScene scene;
    auto *base = new ZvTimeTableBaseItem;
    scene.setBaseItem(base);
    base->correctLabelAreaPos();
    QCOMPARE(labelCarrierOf(base)->x(), 0.0);
}

void tst_ZvTimeTableBaseItem::leavesLabelsInPlaceWhenScrolled()
{
    m_table->view()->setSceneRect(-300.0, -20.0, 2000.0, 1520.0);
    m_table->view()->horizontalScrollBar()->setValue(120);
    m_table->paint();
    QCOMPARE(labelCarrierOf(m_table->base())->x(), 0.0);
}

void tst_ZvTimeTableBaseItem::reportsItsPlaceAfterEveryPaint()
{
    QTest::qWait(30);
    QSignalSpy painted(m_table->base(), SIGNAL(timeTablePosUpdated(QPointF)));
    m_table->base()->update();
    QTRY_COMPARE(painted.size(), 1);
    QTest::qWait(30);
    QCOMPARE(painted.size(), 1);
    QCOMPARE(painted.takeFirst().at(0).toPointF(), QPointF(0.0, 0.0));

    m_table->base()->setPos(3.0, 4.0);
    QTRY_VERIFY(!painted.isEmpty());
    QCOMPARE(painted.last().at(0).toPointF(), QPointF(3.0, 4.0));
}

void tst_ZvTimeTableBaseItem::reportsItsPlaceBeforeTheLabels()
{
    int textsWhenPainted = -1;
    const ZvTimeTableBaseItem *base = m_table->base();
    connect(base, &ZvTimeTableBaseItem::timeTablePosUpdated, this, [&textsWhenPainted, base] {
        if (textsWhenPainted < 0)
            textsWhenPainted = rulerTextsOf(base).size();
    });
    m_table->setScale(2.0);
    QCOMPARE(textsWhenPainted, 25);
    QCOMPARE(rulerTextsOf(base).size(), 97);
}

void tst_ZvTimeTableBaseItem::declaresTheSignalOfItsLabels()
{
    QSignalSpy labels(m_table->base(),
                      SIGNAL(timeTableLabelUpdated(QList<ZvTimeTableTimeLabelInfo>)));
    QVERIFY(labels.isValid());
    for (double scale : ZavoTest::timeTableScales)
        m_table->setScale(scale);
    QCOMPARE(labels.size(), 0);
}

QTEST_MAIN(tst_ZvTimeTableBaseItem)
#include "tst_zvtimetablebaseitem.moc"
