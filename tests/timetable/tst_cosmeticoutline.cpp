#include "timetable/CosmeticOutline.h"

#include <QImage>
#include <QPainter>
#include <QRandomGenerator>
#include <QtMath>
#include <QtTest>

#include <functional>

using namespace Zavo;

namespace {

constexpr int imageWidth = 160; // device-independent px
constexpr int imageHeight = 120;

/// A canvas of @p ratio whose painter is scaled and moved, painted on by @p draw.
QImage painted(double ratio, const QTransform &transform,
               const std::function<void(QPainter *)> &draw)
{
    QImage image(QSize(imageWidth, imageHeight) * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setTransform(transform);
    draw(&painter);
    return image;
}

QImage outlined(double ratio, const QTransform &transform, const QRectF &rect, const QColor &color)
{
    return painted(ratio, transform,
                   [&](QPainter *painter) { drawCosmeticOutline(painter, rect, color); });
}

QImage penned(double ratio, const QTransform &transform, const QRectF &rect, const QColor &color)
{
    return painted(ratio, transform, [&](QPainter *painter) {
        QPen pen(color);
        pen.setCosmetic(true);
        painter->setPen(pen);
        painter->drawRect(rect);
    });
}

QTransform placed(double xScale, double yScale, double dx = 0.0, double dy = 0.0)
{
    return QTransform(xScale, 0.0, 0.0, yScale, dx, dy);
}

QRectF onDevice(double ratio, const QTransform &transform, const QRectF &rect)
{
    return QTransform::fromScale(ratio, ratio).mapRect(transform.mapRect(rect));
}

/// The pixels that @p device starts and ends in, and those between along its edges.
QImage outlineOf(const QRectF &device, const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    const QRect outline(QPoint(qFloor(device.left()), qFloor(device.top())),
                        QPoint(qFloor(device.right()), qFloor(device.bottom())));
    const QRect inside = outline.adjusted(1, 1, -1, -1);
    QPainter painter(&image);
    painter.fillRect(outline, Qt::black);
    if (inside.isValid())
        painter.fillRect(inside, Qt::white);
    return image;
}

/// True if the pen draws the same pixels. Where it meets the edge of the canvas its stroker leaves
/// corners out, so these do not count.
bool coversThePen(const QImage &outline, const QImage &pen, const QRectF &device)
{
    if (QRectF(pen.rect()).adjusted(1.0, 1.0, -1.0, -1.0).contains(device))
        return outline == pen;
    if (outline == pen)
        return true;
    const auto isEnd = [](int pixel, double least, double most) {
        return pixel == qFloor(least) || pixel == qFloor(most);
    };
    for (int y = 0; y < pen.height(); ++y) {
        for (int x = 0; x < pen.width(); ++x) {
            const bool isCorner =
                isEnd(x, device.left(), device.right()) && isEnd(y, device.top(), device.bottom());
            if (!isCorner && outline.pixel(x, y) != pen.pixel(x, y))
                return false;
        }
    }
    return true;
}

/// Compares with the pen, but for what is less than a pixel high: there the pen slants.
bool isRight(double ratio, const QTransform &transform, const QRectF &rect)
{
    const QRectF device = onDevice(ratio, transform, rect);
    const QImage outline = outlined(ratio, transform, rect, Qt::black);
    return outline == outlineOf(device, outline.size()) &&
           (device.height() < 1.0 ||
            coversThePen(outline, penned(ratio, transform, rect, Qt::black), device));
}

QByteArray describe(double ratio, const QTransform &transform, const QRectF &rect)
{
    QString text;
    QDebug(&text) << "ratio" << ratio << transform << rect;
    return text.toUtf8();
}

} // namespace

class tst_CosmeticOutline : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void coversThePixelsOfAPen_data();
    void coversThePixelsOfAPen();
    void coversThePixelsOfAPenAnywhere_data();
    void coversThePixelsOfAPenAnywhere();
    void blendsEachPixelOnce();
    void drawsNothingInTransparent();
    void leavesThePainterAsItWas();
};

void tst_CosmeticOutline::coversThePixelsOfAPen_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::newRow("band") << QRectF(0.0, 0.0, 100.0, 40.0);
    QTest::newRow("moved") << QRectF(12.0, 7.0, 100.0, 40.0);
    QTest::newRow("one unit high") << QRectF(5.0, 5.0, 100.0, 1.0);
    QTest::newRow("half a unit high") << QRectF(5.0, 5.0, 100.0, 0.5);
    QTest::newRow("five seconds high") << QRectF(5.0, 5.0, 100.0, 1.0 / 12.0);
    QTest::newRow("narrow") << QRectF(5.0, 5.0, 1.0, 30.0);
    QTest::newRow("beyond the canvas") << QRectF(-50.0, -50.0, 400.0, 90.0);
    QTest::newRow("around the canvas") << QRectF(-50.0, -50.0, 900.0, 900.0);
    QTest::newRow("out of the canvas") << QRectF(500.0, 500.0, 30.0, 30.0);
}

void tst_CosmeticOutline::coversThePixelsOfAPen()
{
    QFETCH(QRectF, rect);
    for (double ratio : {1.0, 2.0, 3.0}) {
        for (double yScale : {0.25, 0.5, 1.0, 2.0, 3.0, 6.0, 10.0, 15.0, 30.0, 60.0}) {
            for (double xScale : {1.0, 1.5}) {
                const QTransform transform = placed(xScale, yScale);
                QVERIFY2(isRight(ratio, transform, rect), describe(ratio, transform, rect));
            }
        }
    }
}

void tst_CosmeticOutline::coversThePixelsOfAPenAnywhere_data()
{
    QTest::addColumn<double>("ratio");
    QTest::newRow("1") << 1.0;
    QTest::newRow("2") << 2.0;
    QTest::newRow("3") << 3.0;
}

void tst_CosmeticOutline::coversThePixelsOfAPenAnywhere()
{
    QFETCH(double, ratio);
    QRandomGenerator random(1);
    const auto within = [&random](double least, double most) {
        return least + random.generateDouble() * (most - least);
    };
    for (int round = 0; round < 400; ++round) {
        const QTransform transform =
            placed(within(0.2, 3.0), within(0.2, 3.0), within(-50.0, 50.0), within(-50.0, 50.0));
        const QRectF rect(within(-30.0, 90.0), within(-30.0, 90.0), within(1.0, 80.0),
                          within(1.0, 80.0));
        QVERIFY2(isRight(ratio, transform, rect), describe(ratio, transform, rect));
    }
}

void tst_CosmeticOutline::blendsEachPixelOnce()
{
    const QColor half(0, 0, 0, 128);
    const QImage image = outlined(1.0, placed(1.0, 1.0), QRectF(10.0, 20.0, 50.0, 30.0), half);
    const QColor side = image.pixelColor(10, 35);
    QVERIFY(side != QColor(Qt::white));
    for (const QPoint &corner : {QPoint(10, 20), QPoint(60, 20), QPoint(10, 50), QPoint(60, 50)})
        QCOMPARE(image.pixelColor(corner), side);
}

void tst_CosmeticOutline::drawsNothingInTransparent()
{
    const QRectF rect(10.0, 20.0, 50.0, 30.0);
    QCOMPARE(outlined(1.0, placed(1.0, 1.0), rect, Qt::transparent),
             painted(1.0, placed(1.0, 1.0), [](QPainter *) {}));
}

void tst_CosmeticOutline::leavesThePainterAsItWas()
{
    painted(2.0, placed(1.5, 0.5, 3.0, 4.0), [](QPainter *painter) {
        painter->setPen(Qt::red);
        painter->setBrush(Qt::green);
        const QTransform before = painter->transform();
        drawCosmeticOutline(painter, QRectF(1.0, 2.0, 30.0, 40.0), Qt::black);
        QCOMPARE(painter->transform(), before);
        QCOMPARE(painter->pen(), QPen(Qt::red));
        QCOMPARE(painter->brush(), QBrush(Qt::green));
    });
}

QTEST_MAIN(tst_CosmeticOutline)
#include "tst_cosmeticoutline.moc"
