#include "timetable/KeptInk.h"

#include "timetable/TimeTableFont.h"
#include "timetable/TimeTableText.h"

#include <QBuffer>
#include <QGraphicsTextItem>
#include <QPainter>
#include <QPdfWriter>
#include <QStyleOptionGraphicsItem>
#include <QtTest>

#include <memory>
#include <vector>

using namespace Zavo;

namespace {

constexpr int pixelSize = 12;
constexpr QSize canvasSize(160, 60);

QImage newCanvas()
{
    QImage canvas(canvasSize, QImage::Format_RGB32);
    canvas.fill(QColor(QStringLiteral("lavender")));
    QPainter(&canvas).fillRect(40, 0, 30, canvas.height(), QColor(255, 255, 255, 128));
    return canvas;
}

/// What @p paint leaves of the canvas, with the origin at @p position and a scale of @p ratio.
template<typename Paint>
QImage painted(const QPointF &position, double ratio, const Paint &paint)
{
    QImage canvas = newCanvas();
    QPainter painter(&canvas);
    painter.translate(position);
    painter.scale(ratio, ratio);
    paint(&painter);
    return canvas;
}

} // namespace

class tst_KeptInk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paintsThePixelsOfADocument_data();
    void paintsThePixelsOfADocument();
    void followsAMoveOfPartsOfAPixel();
    void keepsToTheClip();
    void leavesTheTransformAsItWas();
    void staysTextInADocumentForPrint();
    void drawsMoreTextsThanAreKept();
};

void tst_KeptInk::paintsThePixelsOfADocument_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("ratio");
    for (const double ratio : {1.0, 2.0, 3.0}) {
        const QByteArray at = " at " + QByteArray::number(ratio);
        QTest::newRow(("number" + at).constData()) << QStringLiteral("#4319") << ratio;
        QTest::newRow(("stage" + at).constData()) << QStringLiteral("lobby/wel.xml") << ratio;
        QTest::newRow(("scripts" + at).constData()) << QString::fromUtf8("駅 – AT مغا") << ratio;
        QTest::newRow(("slanting" + at).constData()) << QStringLiteral("AVAWjf/Ty,") << ratio;
        QTest::newRow(("time" + at).constData()) << QStringLiteral("12:30") << ratio;
        QTest::newRow(("nothing" + at).constData()) << QString() << ratio;
        QTest::newRow(("blanks" + at).constData()) << QStringLiteral("   ") << ratio;
    }
}

void tst_KeptInk::paintsThePixelsOfADocument()
{
    QFETCH(QString, text);
    QFETCH(double, ratio);
    QGraphicsTextItem plain;
    plain.setFont(TimeTableFont::font(pixelSize));
    plain.setPlainText(text);
    TimeTableText kept(text, pixelSize);
    const auto paintKept = [&kept](QPainter *painter) { QVERIFY(kept.paint(painter)); };
    const auto paintPlain = [&plain](QPainter *painter) {
        QStyleOptionGraphicsItem option;
        option.exposedRect = plain.boundingRect();
        plain.paint(painter, &option, nullptr);
    };
    for (int part = 0; part < 64; ++part) {
        const QPointF position(-9.0 + part * 0.515625, -7.0 + part * 0.390625);
        const QImage expected = painted(position, ratio, paintPlain);
        const QImage fromGlyphs = painted(position, ratio, paintKept);
        const QImage copiedFirst = painted(position, ratio, paintKept);
        const QImage copied = painted(position, ratio, paintKept);
        QCOMPARE(fromGlyphs, expected);
        QCOMPARE(copiedFirst, expected);
        QCOMPARE(copied, expected);
    }
}

void tst_KeptInk::followsAMoveOfPartsOfAPixel()
{
    TimeTableText kept(QStringLiteral("stage"), pixelSize);
    const auto paintKept = [&kept](QPainter *painter) { QVERIFY(kept.paint(painter)); };
    for (int step = 0; step < 200; ++step) {
        // Never moved on: from its glyphs. Each place twice: by a copy.
        TimeTableText fresh(QStringLiteral("stage"), pixelSize);
        const QPointF position(3.0 + step * 0.015625, 3.0 + step * 0.015625);
        const QImage expected =
            painted(position, 1.0, [&fresh](QPainter *painter) { fresh.paint(painter); });
        QCOMPARE(painted(position, 1.0, paintKept), expected);
        QCOMPARE(painted(position, 1.0, paintKept), expected);
    }
}

void tst_KeptInk::keepsToTheClip()
{
    TimeTableText kept(QStringLiteral("stage"), pixelSize);
    const QRegion clip = QRegion(12, 8, 9, 5).united(QRect(25, 10, 4, 9));
    const auto paintKept = [&](QPainter *painter) {
        painter->setClipRegion(clip);
        kept.paint(painter);
    };
    const QImage fromGlyphs = painted(QPointF(2.0, 1.0), 1.0, paintKept);
    for (int time = 0; time < 3; ++time)
        QCOMPARE(painted(QPointF(2.0, 1.0), 1.0, paintKept), fromGlyphs);
    QVERIFY(fromGlyphs != newCanvas());
}

void tst_KeptInk::leavesTheTransformAsItWas()
{
    TimeTableText kept(QStringLiteral("stage"), pixelSize);
    for (int time = 0; time < 3; ++time) {
        QImage canvas = newCanvas();
        QPainter painter(&canvas);
        painter.translate(3.25, 4.5);
        painter.scale(2.0, 2.0);
        const QTransform before = painter.worldTransform();
        kept.paint(&painter);
        QCOMPARE(painter.worldTransform(), before);
    }
}

void tst_KeptInk::staysTextInADocumentForPrint()
{
    TimeTableText kept(QStringLiteral("stage"), pixelSize);
    const auto pages = [&kept] {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        QPainter painter(&writer);
        for (int time = 0; time < 3; ++time)
            kept.paint(&painter);
        painter.end();
        return bytes;
    };
    for (int time = 0; time < 3; ++time)
        QVERIFY(!pages().contains("/Subtype /Image"));
}

void tst_KeptInk::drawsMoreTextsThanAreKept()
{
    std::vector<std::unique_ptr<TimeTableText>> texts;
    for (int i = 0; i < 12000; ++i)
        texts.push_back(std::make_unique<TimeTableText>(QStringLiteral("#%1").arg(i), pixelSize));
    for (const auto &text : texts) {
        const auto paintKept = [&text](QPainter *painter) { text->paint(painter); };
        const QImage fromGlyphs = painted(QPointF(1.0, 1.0), 1.0, paintKept);
        for (int time = 0; time < 2; ++time)
            QCOMPARE(painted(QPointF(1.0, 1.0), 1.0, paintKept), fromGlyphs);
    }
}

QTEST_MAIN(tst_KeptInk)
#include "tst_keptink.moc"
