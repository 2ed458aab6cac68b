#include "timetable/ZvTimeTableTimeItemLabel.h"

#include "TimeTableFixture.h"

#include <QFontInfo>
#include <QImage>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QTextDocument>
#include <QtTest>

using namespace Zavo;
using ZavoTest::band;
using ZavoTest::TimeTableFixture;

namespace {

constexpr double metresPerInch = 0.0254;
constexpr QRgb canvasColor = 0xff0000ff;

/// A canvas whose fonts have @p dpi dots an inch.
QImage canvas(double dpi = 96.0)
{
    QImage image(200, 60, QImage::Format_ARGB32_Premultiplied);
    image.setDotsPerMeterX(qRound(dpi / metresPerInch));
    image.setDotsPerMeterY(qRound(dpi / metresPerInch));
    image.fill(canvasColor);
    return image;
}

void paintOn(QImage *image, ZvTimeTableTimeItemLabel *label)
{
    QPainter painter(image);
    QStyleOptionGraphicsItem option;
    option.exposedRect = label->boundingRect();
    label->paint(&painter, &option, nullptr);
}

} // namespace

class tst_ZvTimeTableTimeItemLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isSmallAndUnscaled();
    void fillsItsBackground_data();
    void fillsItsBackground();
    void takesTheSizeOfTheDevice_data();
    void takesTheSizeOfTheDevice();
    void keepsItsTextWhenTheSizeChanges();
    void comesBackToTheSizeOfTheScreen();
    void doesNotResizeOthersOfTheSameText();
    void showsTextAsItStands_data();
    void showsTextAsItStands();
    void drawsThePixelsOfAPlainText_data();
    void drawsThePixelsOfAPlainText();
    void outlivesAnotherOfTheSameText();
    void letsTheMouseThrough();
};

void tst_ZvTimeTableTimeItemLabel::isSmallAndUnscaled()
{
    const ZvTimeTableTimeItemLabel label;
    QCOMPARE(label.font().family(), QStringLiteral("Yu Gothic UI"));
    QCOMPARE(label.font().pixelSize(), 12);
    QVERIFY(label.flags() & QGraphicsItem::ItemIgnoresTransformations);
    QVERIFY(!(label.flags() & QGraphicsItem::ItemIsSelectable));
    QCOMPARE(label.textInteractionFlags(), Qt::TextInteractionFlags(Qt::NoTextInteraction));
    QCOMPARE(label.toPlainText(), QString());
}

void tst_ZvTimeTableTimeItemLabel::fillsItsBackground_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QColor>("seen");
    // Half of white over blue.
    QTest::newRow("at first") << QColor() << QColor(128, 128, 255);
    QTest::newRow("opaque") << QColor(Qt::red) << QColor(Qt::red);
    QTest::newRow("transparent") << QColor(Qt::transparent) << QColor(Qt::blue);
}

void tst_ZvTimeTableTimeItemLabel::fillsItsBackground()
{
    QFETCH(QColor, color);
    QFETCH(QColor, seen);
    ZvTimeTableTimeItemLabel label;
    label.setLabel(QStringLiteral("stage"));
    if (color.isValid())
        label.setBackgroundColor(color);
    QImage image = canvas();
    paintOn(&image, &label);

    const QRect rect = label.boundingRect().toAlignedRect();
    QVERIFY(rect.width() > 20 && rect.height() > 12);
    for (const QPoint &corner :
         {rect.topLeft(), rect.topRight() - QPoint(1, 0), rect.bottomLeft() - QPoint(0, 1)}) {
        const QColor found = image.pixelColor(corner);
        QVERIFY(qAbs(found.red() - seen.red()) <= 1 && qAbs(found.green() - seen.green()) <= 1 &&
                qAbs(found.blue() - seen.blue()) <= 1);
    }
    QCOMPARE(image.pixel(rect.right() + 3, 2), canvasColor);
    QCOMPARE(image.pixel(2, rect.bottom() + 3), canvasColor);
}

void tst_ZvTimeTableTimeItemLabel::takesTheSizeOfTheDevice_data()
{
    QTest::addColumn<double>("dpi");
    QTest::addColumn<int>("pixelSize");
    QTest::newRow("96") << 96.0 << 12;
    QTest::newRow("100, cut") << 100.0 << 12;
    QTest::newRow("103, cut") << 103.0 << 12;
    QTest::newRow("104") << 104.0 << 13;
    QTest::newRow("120") << 120.0 << 15;
    QTest::newRow("144") << 144.0 << 18;
    QTest::newRow("192") << 192.0 << 24;
    QTest::newRow("72") << 72.0 << 9;
}

void tst_ZvTimeTableTimeItemLabel::takesTheSizeOfTheDevice()
{
    QFETCH(double, dpi);
    QFETCH(int, pixelSize);
    ZvTimeTableTimeItemLabel label;
    label.setLabel(QStringLiteral("stage"));
    QImage image = canvas(dpi);
    QCOMPARE(image.logicalDpiY(), qRound(dpi));
    paintOn(&image, &label);
    QCOMPARE(label.font().pixelSize(), pixelSize);
    QCOMPARE(label.font().family(), QStringLiteral("Yu Gothic UI"));
}

void tst_ZvTimeTableTimeItemLabel::keepsItsTextWhenTheSizeChanges()
{
    ZvTimeTableTimeItemLabel label;
    label.setLabel(QStringLiteral("folder/<b>&amp;  stage"));
    const double height = label.boundingRect().height();
    QImage image = canvas(192.0);
    paintOn(&image, &label);
    QCOMPARE(label.toPlainText(), QStringLiteral("folder/<b>&amp;  stage"));
    QVERIFY(label.boundingRect().height() > 1.5 * height);

    // And a new text has the size that the old one had got.
    label.setLabel(QStringLiteral("other"));
    QCOMPARE(label.font().pixelSize(), 24);
}

void tst_ZvTimeTableTimeItemLabel::comesBackToTheSizeOfTheScreen()
{
    ZvTimeTableTimeItemLabel label;
    label.setLabel(QStringLiteral("stage"));
    const QRectF before = label.boundingRect();
    QImage fine = canvas(192.0);
    paintOn(&fine, &label);
    QImage coarse = canvas(96.0);
    paintOn(&coarse, &label);
    QCOMPARE(label.font().pixelSize(), 12);
    QCOMPARE(label.boundingRect(), before);
}

void tst_ZvTimeTableTimeItemLabel::doesNotResizeOthersOfTheSameText()
{
    ZvTimeTableTimeItemLabel label;
    ZvTimeTableTimeItemLabel other;
    label.setLabel(QStringLiteral("stage"));
    other.setLabel(QStringLiteral("stage"));
    QImage image = canvas(192.0);
    paintOn(&image, &label);
    QCOMPARE(label.font().pixelSize(), 24);
    QCOMPARE(other.font().pixelSize(), 12);
}

void tst_ZvTimeTableTimeItemLabel::showsTextAsItStands_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << QString();
    QTest::newRow("markup") << QStringLiteral("<h1>big</h1>");
    QTest::newRow("ampersand") << QStringLiteral("A&B &amp; C");
    QTest::newRow("place holder") << QStringLiteral("%1 %n");
    QTest::newRow("Japanese") << QString::fromUtf8("\xe3\x83\x86\xe3\x82\xb9\xe3\x83\x88.xml");
    QTest::newRow("right to left") << QString::fromUtf8("\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d");
    QTest::newRow("spaces") << QStringLiteral("  a  b  ");
    QTest::newRow("long") << QString(5000, QLatin1Char('x'));
}

void tst_ZvTimeTableTimeItemLabel::showsTextAsItStands()
{
    QFETCH(QString, text);
    ZvTimeTableTimeItemLabel label;
    label.setLabel(text);
    QCOMPARE(label.toPlainText(), text);
    QCOMPARE(label.document()->blockCount(), 1);
    QImage image = canvas();
    paintOn(&image, &label);
    QCOMPARE(label.toPlainText(), text);
}

void tst_ZvTimeTableTimeItemLabel::drawsThePixelsOfAPlainText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("name") << QStringLiteral("folder/stage 1.xml");
    QTest::newRow("number") << QStringLiteral("#10");
    QTest::newRow("markup") << QStringLiteral("<b>AV</b> &amp;");
    QTest::newRow("Japanese") << QString::fromUtf8("\xe3\x83\x86\xe3\x82\xb9\xe3\x83\x88.xml");
    QTest::newRow("right to left") << QString::fromUtf8("\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d.xml");
    QTest::newRow("combining") << QString::fromUtf8("a\xcc\x81o\xcc\x88.xml");
    QTest::newRow("beyond the first plane") << QString::fromUtf8("\xf0\x9f\x8e\xac.xml");
    QTest::newRow("spaces") << QStringLiteral("  a   b  ");
    QTest::newRow("tab") << QStringLiteral("a\tb");
    QTest::newRow("line break") << QStringLiteral("a\nb");
}

void tst_ZvTimeTableTimeItemLabel::drawsThePixelsOfAPlainText()
{
    QFETCH(QString, text);
    ZvTimeTableTimeItemLabel label;
    label.setLabel(text);
    label.setBackgroundColor(Qt::transparent);
    QGraphicsTextItem plain;
    plain.setFont(label.font());
    plain.setPlainText(text);
    QCOMPARE(label.boundingRect(), plain.boundingRect());
    for (double ratio : {1.0, 1.25, 2.0}) {
        for (const QPointF &place : {QPointF(10.0, 10.0), QPointF(10.5, 10.5),
                                     QPointF(10.25, 10.75), QPointF(-30.0, -3.0)}) {
            const auto painted = [ratio, place](QGraphicsItem *item) {
                QImage image(QSize(200, 60) * ratio, QImage::Format_ARGB32_Premultiplied);
                image.setDevicePixelRatio(ratio);
                image.setDotsPerMeterX(3780);
                image.setDotsPerMeterY(3780);
                image.fill(Qt::white);
                QPainter painter(&image);
                painter.translate(place);
                QStyleOptionGraphicsItem option;
                option.exposedRect = item->boundingRect();
                item->paint(&painter, &option, nullptr);
                return image;
            };
            QVERIFY2(painted(&label) == painted(&plain),
                     qPrintable(QStringLiteral("ratio %1 at %2").arg(ratio).arg(place.x())));
        }
    }
}

void tst_ZvTimeTableTimeItemLabel::outlivesAnotherOfTheSameText()
{
    ZvTimeTableTimeItemLabel label;
    QImage alone = canvas();
    {
        ZvTimeTableTimeItemLabel other;
        label.setLabel(QStringLiteral("stage"));
        other.setLabel(QStringLiteral("stage"));
        paintOn(&alone, &label);
    }
    QImage after = canvas();
    paintOn(&after, &label);
    QCOMPARE(label.toPlainText(), QStringLiteral("stage"));
    QCOMPARE(after, alone);
}

void tst_ZvTimeTableTimeItemLabel::letsTheMouseThrough()
{
    TimeTableFixture table;
    QVERIFY(table.fill({band(QStringLiteral("01:00:00"), QStringLiteral("03:00:00"))}));
    table.scrollTo(130.0);
    const ZvTimeTableTimeItemLabel *label = ZavoTest::stageLabelOf(table.item(0));
    QVERIFY(!label->acceptHoverEvents());
    QVERIFY(!label->acceptDrops());
    const QPoint onLabel = table.view()->mapFromScene(label->mapToScene(QPointF(5.0, 5.0)));
    QTest::mouseClick(table.view()->viewport(), Qt::LeftButton, Qt::NoModifier, onLabel);
    QVERIFY(table.item(0)->isSelected());
}

QTEST_MAIN(tst_ZvTimeTableTimeItemLabel)
#include "tst_zvtimetabletimeitemlabel.moc"
