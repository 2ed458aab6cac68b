#include "timetable/ZvTimeTableTimeItemResizeHandle.h"

#include "TimeTableFixture.h"

#include <QImage>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QtTest>

using namespace Zavo;
using Handle = ZvTimeTableTimeItemResizeHandle;

namespace {

constexpr int margin = 10; // px around the handle on the canvas

QImage painted(Handle *handle)
{
    QImage image(handle->boundingRect().size().toSize() + QSize(2 * margin, 2 * margin),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.translate(margin, margin);
    const QStyleOptionGraphicsItem option;
    handle->paint(&painter, &option, nullptr);
    return image;
}

/// The colour of a pixel that lies at (@p x, @p y) in the handle's coordinates.
QColor at(const QImage &image, int x, int y)
{
    return image.pixelColor(margin + x, margin + y);
}

/// How many pixels of a row of the handle, less its ends, have @p color.
int countInRow(const QImage &image, int y, const QColor &color)
{
    int count = 0;
    for (int x = 4; x < image.width() - 2 * margin - 4; ++x)
        count += at(image, x, y) == color ? 1 : 0;
    return count;
}

} // namespace

class tst_ZvTimeTableTimeItemResizeHandle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isABarAtFirst();
    void typesAreBitFlags();
    void cutsItsRectangle_data();
    void cutsItsRectangle();
    void announcesItsGrowth();
    void isNotScaledWithTheView();
    void topHandleHasItsLineAtTheTop();
    void bottomHandleHasItsLineAtTheBottom();
    void handleWithoutTypeHasNoLine();
    void standsWithoutHeight();
};

void tst_ZvTimeTableTimeItemResizeHandle::isABarAtFirst()
{
    const Handle handle(Handle::TopHandle);
    QCOMPARE(handle.handleWidth(), 240.0);
    QCOMPARE(handle.handleHeight(), 5.0);
    QCOMPARE(handle.maximumHeight(), 5.0);
    QCOMPARE(handle.boundingRect(), QRectF(0.0, 0.0, 240.0, 5.0));
    QVERIFY(handle.flags() & QGraphicsItem::ItemIgnoresTransformations);
    QVERIFY(!(handle.flags() & QGraphicsItem::ItemIsSelectable));
    QVERIFY(!(handle.flags() & QGraphicsItem::ItemIsMovable));
}

void tst_ZvTimeTableTimeItemResizeHandle::typesAreBitFlags()
{
    QCOMPARE(int(Handle::NoHandle), 0);
    QCOMPARE(int(Handle::TopHandle), 1);
    QCOMPARE(int(Handle::BottomHandle), 2);
    QCOMPARE(Handle(Handle::TopHandle).handleType(), Handle::TopHandle);
    QCOMPARE(Handle(Handle::BottomHandle).handleType(), Handle::BottomHandle);
}

void tst_ZvTimeTableTimeItemResizeHandle::cutsItsRectangle_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("height");
    QTest::addColumn<QRectF>("rect");
    QTest::newRow("whole") << 100.0 << 3.0 << QRectF(0.0, 0.0, 100.0, 3.0);
    QTest::newRow("fractions") << 100.9 << 4.99 << QRectF(0.0, 0.0, 100.0, 4.0);
    QTest::newRow("just a pixel") << 100.0 << 1.0 << QRectF(0.0, 0.0, 100.0, 1.0);
    QTest::newRow("less than a pixel") << 100.0 << 0.999 << QRectF(0.0, 0.0, 100.0, 0.0);
}

void tst_ZvTimeTableTimeItemResizeHandle::cutsItsRectangle()
{
    QFETCH(double, width);
    QFETCH(double, height);
    QFETCH(QRectF, rect);
    Handle handle(Handle::BottomHandle);
    handle.setHandleWidth(width);
    handle.setHandleHeight(height);
    QCOMPARE(handle.handleWidth(), width);
    QCOMPARE(handle.handleHeight(), height);
    QCOMPARE(handle.boundingRect(), rect);
}

void tst_ZvTimeTableTimeItemResizeHandle::announcesItsGrowth()
{
    QGraphicsScene scene;
    auto *handle = new Handle(Handle::TopHandle);
    scene.addItem(handle);
    const QPointF beyond(400.0, 2.0);
    const QPointF below(2.0, 30.0);
    QVERIFY(scene.items(beyond).isEmpty() && scene.items(below).isEmpty());
    handle->setHandleWidth(500.0);
    QCOMPARE(scene.items(beyond), QList<QGraphicsItem *>{handle});
    handle->setHandleHeight(40.0);
    QCOMPARE(scene.items(below), QList<QGraphicsItem *>{handle});
    handle->setHandleWidth(100.0);
    QVERIFY(scene.items(beyond).isEmpty());
}

void tst_ZvTimeTableTimeItemResizeHandle::isNotScaledWithTheView()
{
    QGraphicsScene scene;
    auto *handle = new Handle(Handle::TopHandle);
    scene.addItem(handle);
    const QTransform view = QTransform::fromScale(3.0, 60.0);
    QCOMPARE(handle->deviceTransform(view).mapRect(handle->boundingRect()).size(),
             QSizeF(240.0, 5.0));
}

void tst_ZvTimeTableTimeItemResizeHandle::topHandleHasItsLineAtTheTop()
{
    Handle handle(Handle::TopHandle);
    const QImage image = painted(&handle);
    // The bar is from x 2 to 239 and y 1 to 6; its line is two pixels wide, on the bar's top edge.
    const int width = 240 - 8;
    QCOMPARE(countInRow(image, -1, Qt::white), width);
    QCOMPARE(countInRow(image, 0, Qt::blue), width);
    QCOMPARE(countInRow(image, 1, Qt::blue), width);
    int dots = 0;
    for (int y : {2, 3, 4, 5}) {
        QCOMPARE(countInRow(image, y, Qt::blue), 0);
        dots += countInRow(image, y, Qt::gray);
        QVERIFY(countInRow(image, y, Qt::white) > width / 2);
    }
    QVERIFY(dots > 0);
    QCOMPARE(countInRow(image, 6, Qt::white), width);
    QCOMPARE(at(image, 0, 1), QColor(Qt::white));
    QCOMPARE(at(image, 2, 1), QColor(Qt::blue));
    QCOMPARE(at(image, 237, 1), QColor(Qt::blue));
    QCOMPARE(at(image, 241, 1), QColor(Qt::white));
}

void tst_ZvTimeTableTimeItemResizeHandle::bottomHandleHasItsLineAtTheBottom()
{
    Handle handle(Handle::BottomHandle);
    const QImage image = painted(&handle);
    const int width = 240 - 8;
    QCOMPARE(countInRow(image, -1, Qt::white), width);
    for (int y : {0, 1, 2, 3}) {
        QCOMPARE(countInRow(image, y, Qt::blue), 0);
        QVERIFY(countInRow(image, y, Qt::white) > width / 2);
    }
    QVERIFY(countInRow(image, 0, Qt::gray) + countInRow(image, 1, Qt::gray) > 0);
    QCOMPARE(countInRow(image, 4, Qt::blue), width);
    QCOMPARE(countInRow(image, 5, Qt::blue), width);
    QCOMPARE(countInRow(image, 6, Qt::white), width);
}

void tst_ZvTimeTableTimeItemResizeHandle::handleWithoutTypeHasNoLine()
{
    Handle handle(Handle::NoHandle);
    const QImage image = painted(&handle);
    for (int y = -1; y <= 6; ++y)
        QCOMPARE(countInRow(image, y, Qt::blue), 0);
    QVERIFY(countInRow(image, 0, Qt::gray) + countInRow(image, 1, Qt::gray) > 0);
    // Neither moved down nor to the right.
    QCOMPARE(countInRow(image, 5, Qt::gray), 0);
    bool grayAtTheLeft = false;
    for (int y = 0; y < 5; ++y)
        grayAtTheLeft = grayAtTheLeft || at(image, 0, y) == QColor(Qt::gray) ||
                        at(image, 1, y) == QColor(Qt::gray);
    QVERIFY(grayAtTheLeft);
}

void tst_ZvTimeTableTimeItemResizeHandle::standsWithoutHeight()
{
    for (Handle::HandleType type : {Handle::TopHandle, Handle::BottomHandle}) {
        Handle handle(type);
        handle.setHandleHeight(0.5);
        const QImage image = painted(&handle);
        for (int y : {3, 4, 5})
            QCOMPARE(countInRow(image, y, Qt::white), 240 - 8);
    }
}

QTEST_MAIN(tst_ZvTimeTableTimeItemResizeHandle)
#include "tst_zvtimetabletimeitemresizehandle.moc"
