#include "TimeTableFixture.h"

#include <QImage>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QtTest>

#include <cmath>

using namespace Zavo;
using ZavoTest::band;
using ZavoTest::labelCarrierOf;
using ZavoTest::TimeTableFixture;

namespace {

constexpr int windowWidth = 340;  // px
constexpr int windowHeight = 240; // px, so that half of it is a whole number of units
const QColor scenery(250, 250, 250);
const QColor lavender(0xe6, 0xe6, 0xfa);

/// Counts of the colours in one row of an image.
struct RowColors
{
    int background = 0;
    int gray = 0;
    int blue = 0;
    int other = 0;
};

RowColors colorsOf(const QImage &image, int row, int from, int to)
{
    RowColors colors;
    for (int x = from; x < to; ++x) {
        const QColor color = image.pixelColor(x, row);
        if (color == scenery)
            ++colors.background;
        else if (color == QColor(Qt::gray))
            ++colors.gray;
        else if (color == QColor(Qt::blue))
            ++colors.blue;
        else
            ++colors.other;
    }
    return colors;
}

} // namespace

/// The pixels of the ruler and of bands, at the scales of the view and on screens of two ratios.
class tst_TimeTablePainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_table.reset(new TimeTableFixture); }
    void cleanup() { m_table.reset(); }

    void drawsTheRuler_data();
    void drawsTheRuler();
    void drawsItsDots();
    void fillsTheStripUnderTheRuler();
    void drawsTheSameInParts_data();
    void drawsTheSameInParts();
    void leavesNoPixelOfTheViewOut_data();
    void leavesNoPixelOfTheViewOut();
    void leavesThePainterAsItWas();
    void fillsAndOutlinesABand_data();
    void fillsAndOutlinesABand();
    void marksASelectedBand_data();
    void marksASelectedBand();

private:
    /// The scene around @p y, which comes to the middle row, on a screen of @p ratio.
    QImage window(double y, double scale, double ratio) const;
    void checkRuler(double centre, double scale, double ratio) const;

    QScopedPointer<TimeTableFixture> m_table;
};

QImage tst_TimeTablePainting::window(double y, double scale, double ratio) const
{
    QImage image(QSize(windowWidth, windowHeight) * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    const double half = windowHeight / 2.0 / scale;
    m_table->scene()->render(&painter, QRectF(0.0, 0.0, windowWidth, windowHeight),
                             QRectF(0.0, y - half, windowWidth, 2.0 * half), Qt::IgnoreAspectRatio);
    return image;
}

void tst_TimeTablePainting::drawsTheRuler_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<double>("ratio");
    for (double scale : ZavoTest::timeTableScales) {
        QTest::addRow("%g at 1", scale) << scale << 1.0;
        QTest::addRow("%g at 2", scale) << scale << 2.0;
    }
}

void tst_TimeTablePainting::drawsTheRuler()
{
    QFETCH(double, scale);
    QFETCH(double, ratio);
    m_table->setScale(scale);
    labelCarrierOf(m_table->base())->setVisible(false);
    m_table->strip()->setVisible(false);
    // Midnight, noon, two in the afternoon and 24 o'clock.
    for (double centre : {10.0, 730.0, 850.0, 1450.0})
        checkRuler(centre, scale, ratio);
}

void tst_TimeTablePainting::checkRuler(double centre, double scale, double ratio) const
{
    // By rows of the image, what is to be found there; rows without a line are not in the map.
    QMap<int, TimeTableRulerLine::Kind> expected;
    const TimeTableRuler ruler(scale);
    for (const TimeTableRulerLine &line : ruler.lines()) {
        const double offset = (std::floor(line.y) - centre) * scale;
        const int row = qRound((windowHeight / 2.0 + offset) * ratio);
        if (row >= 0 && row < qRound(windowHeight * ratio))
            expected.insert(row, line.kind);
    }
    QVERIFY(!expected.isEmpty());

    const QImage image = window(centre, scale, ratio);
    const int left = 0;
    const int right = qRound(50 * ratio);
    for (int row = 0; row < image.height(); ++row) {
        const RowColors colors = colorsOf(image, row, left, right);
        const QByteArray where =
            QStringLiteral("y %1, row %2: %3 background, %4 gray, %5 blue, %6 other")
                .arg(centre)
                .arg(row)
                .arg(colors.background)
                .arg(colors.gray)
                .arg(colors.blue)
                .arg(colors.other)
                .toUtf8();
        const int width = right - left;
        if (!expected.contains(row)) {
            QVERIFY2(colors.background == width, where);
        } else if (expected.value(row) == TimeTableRulerLine::HalfDay) {
            QVERIFY2(colors.blue == width, where);
        } else if (expected.value(row) == TimeTableRulerLine::Hour) {
            QVERIFY2(colors.gray == width, where);
        } else {
            QVERIFY2(colors.gray > 0 && colors.background > colors.gray &&
                         colors.gray + colors.background == width,
                     where);
        }
    }
    // The lines run as far as the item, through the right margin.
    const QColor atTheEnd = image.pixelColor(qRound(329 * ratio), qRound(windowHeight / 2 * ratio));
    QVERIFY(atTheEnd ==
            QColor(expected.value(qRound(windowHeight / 2 * ratio)) == TimeTableRulerLine::HalfDay
                       ? Qt::blue
                       : Qt::gray));
    QCOMPARE(image.pixelColor(qRound(333 * ratio), qRound(windowHeight / 2 * ratio)), scenery);
}

void tst_TimeTablePainting::drawsItsDots()
{
    labelCarrierOf(m_table->base())->setVisible(false);
    m_table->strip()->setVisible(false);
    const QImage image = window(100.0, 1.0, 1.0);
    // 01:30 is in the middle; a dot and two gaps repeat.
    for (int x = 0; x < 45; ++x)
        QCOMPARE(image.pixelColor(x, 120) == QColor(Qt::gray),
                 image.pixelColor(x + 3, 120) == QColor(Qt::gray));
}

void tst_TimeTablePainting::fillsTheStripUnderTheRuler()
{
    const QImage image = window(70.0, 1.0, 1.0);
    // 01:00 is in the middle, 00:00 60 rows above it.
    QCOMPARE(image.pixelColor(180, 110), QColor(Qt::white));
    QCOMPARE(image.pixelColor(62, 65), QColor(Qt::white));
    QCOMPARE(image.pixelColor(298, 65), QColor(Qt::white));
    QCOMPARE(image.pixelColor(180, 120), QColor(Qt::gray));
    QCOMPARE(image.pixelColor(180, 60), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(180, 58), scenery);
    QCOMPARE(image.pixelColor(55, 110), scenery);
    QCOMPARE(image.pixelColor(305, 110), scenery);
    QCOMPARE(image.pixelColor(305, 120), QColor(Qt::gray));
}

void tst_TimeTablePainting::drawsTheSameInParts_data()
{
    QTest::addColumn<double>("scale");
    for (double scale : ZavoTest::timeTableScales)
        QTest::addRow("%g", scale) << scale;
}

void tst_TimeTablePainting::drawsTheSameInParts()
{
    QFETCH(double, scale);
    m_table->setScale(scale);
    m_table->scrollTo(735.0);
    QTest::qWait(30);
    QWidget *viewport = m_table->view()->viewport();
    const QSize size = viewport->size();
    QImage whole(size, QImage::Format_ARGB32_Premultiplied);
    QImage parts(size, QImage::Format_ARGB32_Premultiplied);
    viewport->render(&whole, QPoint(), QRect(QPoint(), size));
    constexpr int partHeight = 7;
    for (int top = 0; top < size.height(); top += partHeight) {
        const QRect part(0, top, size.width(), qMin(partHeight, size.height() - top));
        viewport->render(&parts, part.topLeft(), part);
    }
    QCOMPARE(parts, whole);
}

void tst_TimeTablePainting::leavesNoPixelOfTheViewOut_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("width");
    for (double scale : {0.25, 1.0, 6.0, 60.0}) {
        // From a width of 743 on the table grows with the view, by factors that are not whole.
        for (int width : {200, 420, 760, 801, 1003})
            QTest::addRow("%g, %d wide", scale, width) << scale << width;
    }
}

void tst_TimeTablePainting::leavesNoPixelOfTheViewOut()
{
    QFETCH(double, scale);
    QFETCH(int, width);
    m_table->setScale(scale);
    m_table->view()->resize(width, 300);
    for (double y : {0.0, 100.0, 735.0, 1460.0}) {
        m_table->scrollTo(y);
        QWidget *viewport = m_table->view()->viewport();
        QImage onBlack(viewport->size(), QImage::Format_RGB32);
        onBlack.fill(Qt::black);
        QImage onGreen = onBlack;
        onGreen.fill(Qt::green);
        viewport->render(&onBlack, QPoint(), QRegion(), QWidget::RenderFlags());
        viewport->render(&onGreen, QPoint(), QRegion(), QWidget::RenderFlags());
        QCOMPARE(onBlack, onGreen);
    }
}

void tst_TimeTablePainting::leavesThePainterAsItWas()
{
    QImage image(100, 100, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setPen(QPen(Qt::red, 3.0));
    painter.setRenderHint(QPainter::Antialiasing, true);
    QStyleOptionGraphicsItem option;
    option.exposedRect = m_table->base()->boundingRect();
    m_table->base()->paint(&painter, &option, nullptr);
    QCOMPARE(painter.pen().color(), QColor(Qt::red));
    QVERIFY(painter.testRenderHint(QPainter::Antialiasing));
}

void tst_TimeTablePainting::fillsAndOutlinesABand_data()
{
    QTest::addColumn<double>("ratio");
    QTest::newRow("1") << 1.0;
    QTest::newRow("2") << 2.0;
}

void tst_TimeTablePainting::fillsAndOutlinesABand()
{
    QFETCH(double, ratio);
    QVERIFY(m_table->fill({band(QStringLiteral("01:00:00"), QStringLiteral("02:30:00"))}));
    const QImage image = window(115.0, 1.0, ratio);
    const int left = qRound(60 * ratio);
    const int right = qRound(300 * ratio);
    const int top = qRound((70.0 + 5.0) * ratio);
    const int bottom = qRound((160.0 + 5.0) * ratio);
    for (int x : {left, qRound(100 * ratio), right}) {
        QCOMPARE(image.pixelColor(x, top), QColor(Qt::black));
        QCOMPARE(image.pixelColor(x, bottom), QColor(Qt::black));
    }
    for (int y : {top + 1, bottom - 1}) {
        QCOMPARE(image.pixelColor(left, y), QColor(Qt::black));
        QCOMPARE(image.pixelColor(right, y), QColor(Qt::black));
        QCOMPARE(image.pixelColor(left + 1, y), lavender);
        QCOMPARE(image.pixelColor(right - 1, y), lavender);
        QCOMPARE(image.pixelColor(qRound(100 * ratio), y), lavender);
    }
    // It covers the ruler line of 02:00.
    QCOMPARE(image.pixelColor(qRound(100 * ratio), qRound(135 * ratio)), lavender);
}

void tst_TimeTablePainting::marksASelectedBand_data()
{
    fillsAndOutlinesABand_data();
}

void tst_TimeTablePainting::marksASelectedBand()
{
    QFETCH(double, ratio);
    QVERIFY(m_table->fill({band(QStringLiteral("01:00:00"), QStringLiteral("01:40:00")),
                           band(QStringLiteral("02:00:00"), QStringLiteral("02:40:00"))}));
    // Two, so that no handles are drawn.
    m_table->select({0, 1});
    const QImage image = window(115.0, 1.0, ratio);
    const int middle = qRound(200 * ratio);
    const int top = qRound((70.0 + 5.0) * ratio);
    const int bottom = qRound((110.0 + 5.0) * ratio);
    QCOMPARE(image.pixelColor(middle, top), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(middle, qRound(top + ratio)), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(middle, qRound(top + 2 * ratio)), lavender);
    QCOMPARE(image.pixelColor(middle, bottom), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(middle, qRound(bottom - ratio)), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(middle, qRound(bottom - 2 * ratio)), lavender);
    for (int x = 0; x < image.width(); ++x)
        QVERIFY(image.pixelColor(x, top) != QColor(Qt::black));
}

QTEST_MAIN(tst_TimeTablePainting)
#include "tst_timetablepainting.moc"
