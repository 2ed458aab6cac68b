#include "ZvStagePreview.h"

#include <QElapsedTimer>
#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using Zavo::ZvStage;
using Zavo::ZvStagePreview;

namespace {
const QColor red(255, 0, 0);
const QColor green(0, 255, 0);
const QColor blue(0, 0, 255);
const QColor white(255, 255, 255);

/// What the widget paints, in device pixels.
QImage shot(QWidget &widget)
{
    QImage image = widget.grab().toImage();
    image.setDevicePixelRatio(1.0);
    return image;
}

template<typename Visit>
void visitPixels(const QImage &image, Visit visit)
{
    const QImage plain = image.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < plain.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(plain.constScanLine(y));
        for (int x = 0; x < plain.width(); ++x)
            visit(x, y, line[x]);
    }
}

/// The smallest rectangle that holds every pixel of this colour.
QRect extent(const QImage &image, const QColor &color)
{
    int left = image.width();
    int top = image.height();
    int right = -1;
    int bottom = -1;
    visitPixels(image, [&](int x, int y, QRgb pixel) {
        if (pixel != color.rgb())
            return;
        left = qMin(left, x);
        right = qMax(right, x);
        top = qMin(top, y);
        bottom = qMax(bottom, y);
    });
    return {QPoint(left, top), QPoint(right, bottom)};
}

int countOf(const QImage &image, const QColor &color)
{
    int count = 0;
    visitPixels(image, [&](int, int, QRgb pixel) { count += pixel == color.rgb(); });
    return count;
}

/// The smallest rectangle that holds what is light on a dark picture.
QRect lightExtent(const QImage &image)
{
    QImage mask(image.size(), QImage::Format_RGB32);
    mask.fill(Qt::black);
    visitPixels(image, [&](int x, int y, QRgb pixel) {
        if (qGray(pixel) > 100)
            mask.setPixel(x, y, white.rgb());
    });
    return extent(mask, white);
}
} // namespace

class tst_ZvStagePreview : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    void stageSelectionChanged(ZvStage stage);
    void clearDescription();

private Q_SLOTS:
    void emptyPreviewIsAFlatWell();
    void stageIsCentredWithItsAspectRatio_data();
    void stageIsCentredWithItsAspectRatio();
    void frameStaysVisible();
    void itemsArePaintedInTheirOrder();
    void adjoiningRectanglesLeaveNoSeam();
    void thinRectanglesDoNotVanish();
    void translucentColoursShowWhatIsBelow();
    void picturesFillTheirBox();
    void largePicturesAreAveraged();
    void pictureReachingOverTheEdge();
    void missingPictureLeavesTheRest();
    void textStandsWhereItIsAligned_data();
    void textStandsWhereItIsAligned();
    void boldTextIsBolder();
    void textIsCutOffAtItsBox();
    void linesBreakAlikeAtEverySize();
    void extremeStagesAreShown_data();
    void extremeStagesAreShown();
    void clearShowsNothing();
    void signalsReachTheSlotsAlsoQueued();
    void getImageGivesTheCallerAPicture();
    void repaintingTakesThePictureAtHand();
    void picturesFollowTheSize();
    void aTinyPreviewPaintsNothing();

private:
    ZvStage stage(const QString &attributes, const QString &items = QString());
    void writePicture(const QString &name, const QImage &picture);

    QTemporaryDir m_folder;
    int m_count = 0;
};

ZvStage tst_ZvStagePreview::stage(const QString &attributes, const QString &items)
{
    const QString path = m_folder.filePath(QStringLiteral("stage%1.xml").arg(++m_count));
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                  "<Stage version=\"1\" %1>\n%2</Stage>\n")
                       .arg(attributes, items)
                       .toUtf8());
        file.close();
    }
    ZvStage stage(path);
    if (!stage.readFile())
        QTest::qFail("stage cannot be read", __FILE__, __LINE__);
    return stage;
}

void tst_ZvStagePreview::writePicture(const QString &name, const QImage &picture)
{
    QVERIFY(picture.save(m_folder.filePath(name)));
}

void tst_ZvStagePreview::emptyPreviewIsAFlatWell()
{
    ZvStagePreview preview;
    preview.resize(240, 135);
    const QImage image = shot(preview);
    QCOMPARE(countOf(image, image.pixelColor(0, 0)), image.width() * image.height());
    QVERIFY(preview.stage().isEmpty());
    QVERIFY(preview.sizeHint().width() >= 240);
}

void tst_ZvStagePreview::stageIsCentredWithItsAspectRatio_data()
{
    QTest::addColumn<QSize>("widget");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("exact") << QSize(320, 180) << QRect(0, 0, 320, 180);
    QTest::newRow("too high") << QSize(320, 380) << QRect(0, 100, 320, 180);
    QTest::newRow("too wide") << QSize(520, 180) << QRect(100, 0, 320, 180);
    QTest::newRow("larger than the stage") << QSize(2560, 1440) << QRect(0, 0, 2560, 1440);
}

void tst_ZvStagePreview::stageIsCentredWithItsAspectRatio()
{
    QFETCH(QSize, widget);
    QFETCH(QRect, expected);
    ZvStagePreview preview;
    preview.resize(widget);
    preview.setStage(stage(QStringLiteral("width=\"1600\" height=\"900\" background=\"#ff0000\"")));
    const int ratio = qRound(preview.devicePixelRatioF());
    const QImage image = shot(preview);
    QCOMPARE(image.size(), widget * ratio);
    QCOMPARE(extent(image, red), QRect(expected.topLeft() * ratio, expected.size() * ratio));
    QCOMPARE(countOf(image, red), expected.width() * expected.height() * ratio * ratio);
}

void tst_ZvStagePreview::frameStaysVisible()
{
    ZvStagePreview preview;
    preview.setFrameStyle(QFrame::Box | QFrame::Plain);
    preview.setLineWidth(3);
    preview.resize(326, 186);
    preview.setStage(stage(QStringLiteral("width=\"1600\" height=\"900\" background=\"#ff0000\"")));
    const int ratio = qRound(preview.devicePixelRatioF());
    QCOMPARE(extent(shot(preview), red), QRect(3 * ratio, 3 * ratio, 320 * ratio, 180 * ratio));
}

void tst_ZvStagePreview::itemsArePaintedInTheirOrder()
{
    ZvStagePreview preview;
    preview.resize(100, 100);
    preview.setStage(
        stage(QStringLiteral("width=\"1000\" height=\"1000\" background=\"#ff0000\""),
              QStringLiteral("<Rectangle x=\"200\" y=\"200\" width=\"600\" height=\"600\" "
                             "color=\"#00ff00\"/>\n"
                             "<Rectangle x=\"500\" y=\"0\" width=\"500\" height=\"1000\" "
                             "color=\"#0000ff\"/>\n")));
    const int ratio = qRound(preview.devicePixelRatioF());
    const QImage image = shot(preview);
    QCOMPARE(extent(image, green), QRect(20 * ratio, 20 * ratio, 30 * ratio, 60 * ratio));
    QCOMPARE(extent(image, blue), QRect(50 * ratio, 0, 50 * ratio, 100 * ratio));
}

void tst_ZvStagePreview::adjoiningRectanglesLeaveNoSeam()
{
    QString items;
    for (int i = 0; i < 97; ++i)
        items += QStringLiteral("<Rectangle x=\"%1\" y=\"0\" width=\"11\" height=\"600\" "
                                "color=\"#00ff00\"/>\n")
                     .arg(i * 11);
    ZvStagePreview preview;
    preview.resize(311, 175);
    preview.setStage(
        stage(QStringLiteral("width=\"1067\" height=\"600\" background=\"#ff0000\""), items));
    const QImage image = shot(preview);
    QCOMPARE(countOf(image, red), 0);
    QVERIFY(countOf(image, green) > 311 * 170);
}

void tst_ZvStagePreview::thinRectanglesDoNotVanish()
{
    ZvStagePreview preview;
    preview.resize(100, 100);
    preview.setStage(stage(QStringLiteral("width=\"2000\" height=\"2000\" background=\"#000000\""),
                           QStringLiteral("<Rectangle x=\"0\" y=\"1000\" width=\"2000\" "
                                          "height=\"2\" color=\"#00ff00\"/>\n")));
    const int ratio = qRound(preview.devicePixelRatioF());
    QCOMPARE(countOf(shot(preview), green), 100 * ratio);
}

void tst_ZvStagePreview::translucentColoursShowWhatIsBelow()
{
    ZvStagePreview preview;
    preview.resize(100, 100);
    preview.setStage(stage(QStringLiteral("width=\"100\" height=\"100\" background=\"#80ff0000\""),
                           QStringLiteral("<Rectangle x=\"50\" y=\"0\" width=\"50\" "
                                          "height=\"100\" color=\"#800000ff\"/>\n")));
    const QImage image = shot(preview);
    const QColor left = image.pixelColor(image.width() / 4, image.height() / 2);
    const QColor right = image.pixelColor(image.width() * 3 / 4, image.height() / 2);
    QVERIFY(qAbs(left.red() - 128) <= 2 && left.blue() == 0);
    QVERIFY(qAbs(right.red() - 64) <= 2 && qAbs(right.blue() - 128) <= 2);
}

void tst_ZvStagePreview::picturesFillTheirBox()
{
    QImage halves(2, 1, QImage::Format_RGB32);
    halves.setPixelColor(0, 0, green);
    halves.setPixelColor(1, 0, blue);
    writePicture(QStringLiteral("halves.png"), halves.scaled(200, 100));
    ZvStagePreview preview;
    preview.resize(100, 100);
    preview.setStage(stage(QStringLiteral("width=\"400\" height=\"400\" background=\"#ff0000\""),
                           QStringLiteral("<Picture x=\"80\" y=\"40\" width=\"160\" "
                                          "height=\"320\" source=\"halves.png\"/>\n")));
    const int ratio = qRound(preview.devicePixelRatioF());
    const QImage image = shot(preview);
    QCOMPARE(extent(image, green), QRect(20 * ratio, 10 * ratio, 20 * ratio, 80 * ratio));
    QCOMPARE(extent(image, blue), QRect(40 * ratio, 10 * ratio, 20 * ratio, 80 * ratio));
}

void tst_ZvStagePreview::largePicturesAreAveraged()
{
    QImage stripes(1600, 900, QImage::Format_RGB32);
    for (int x = 0; x < stripes.width(); ++x) {
        for (int y = 0; y < stripes.height(); ++y)
            stripes.setPixelColor(x, y, x % 16 == 0 ? white : QColor(Qt::black));
    }
    writePicture(QStringLiteral("stripes.png"), stripes);
    ZvStagePreview preview;
    preview.resize(100, 56);
    preview.setStage(stage(QStringLiteral("width=\"1600\" height=\"900\" background=\"#ff0000\""),
                           QStringLiteral("<Picture x=\"0\" y=\"0\" width=\"1600\" height=\"900\" "
                                          "source=\"stripes.png\"/>\n")));
    const QImage image = shot(preview);
    const int middle = image.height() / 2;
    int sum = 0;
    for (int x = 0; x < image.width(); ++x)
        sum += image.pixelColor(x, middle).lightness();
    const double mean = double(sum) / image.width();
    QVERIFY2(mean > 10 && mean < 24, qPrintable(QString::number(mean)));
}

void tst_ZvStagePreview::pictureReachingOverTheEdge()
{
    QImage plain(10, 10, QImage::Format_RGB32);
    plain.fill(green);
    writePicture(QStringLiteral("plain.png"), plain);
    ZvStagePreview preview;
    preview.resize(100, 100);
    preview.setStage(stage(QStringLiteral("width=\"100\" height=\"100\" background=\"#ff0000\""),
                           QStringLiteral("<Picture x=\"50\" y=\"50\" width=\"8000\" "
                                          "height=\"8000\" source=\"plain.png\"/>\n")));
    const int ratio = qRound(preview.devicePixelRatioF());
    QCOMPARE(extent(shot(preview), green), QRect(50 * ratio, 50 * ratio, 50 * ratio, 50 * ratio));
}

void tst_ZvStagePreview::missingPictureLeavesTheRest()
{
    ZvStagePreview preview;
    preview.resize(100, 100);
    preview.setStage(stage(QStringLiteral("width=\"100\" height=\"100\" background=\"#ff0000\""),
                           QStringLiteral("<Picture x=\"0\" y=\"0\" width=\"100\" height=\"100\" "
                                          "source=\"missing.png\"/>\n")));
    const QImage image = shot(preview);
    QCOMPARE(countOf(image, red), image.width() * image.height());
}

void tst_ZvStagePreview::textStandsWhereItIsAligned_data()
{
    QTest::addColumn<QString>("align");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("third");
    QTest::newRow("left") << QStringLiteral("left") << QStringLiteral("Hi") << 0;
    QTest::newRow("center") << QStringLiteral("center") << QStringLiteral("Hi") << 1;
    QTest::newRow("right") << QStringLiteral("right") << QStringLiteral("Hi") << 2;
    QTest::newRow("left, written from the right")
        << QStringLiteral("left") << QStringLiteral("\u05d0\u05d1") << 0;
    QTest::newRow("right, written from the right")
        << QStringLiteral("right") << QStringLiteral("\u05d0\u05d1") << 2;
}

void tst_ZvStagePreview::textStandsWhereItIsAligned()
{
    QFETCH(QString, align);
    QFETCH(QString, text);
    QFETCH(int, third);
    ZvStagePreview preview;
    preview.resize(300, 100);
    preview.setStage(stage(QStringLiteral("width=\"1500\" height=\"500\" background=\"#000000\""),
                           QStringLiteral("<Text x=\"0\" y=\"0\" width=\"1500\" height=\"500\" "
                                          "size=\"200\" color=\"#ffffff\" align=\"%1\" "
                                          "bold=\"true\">%2</Text>\n")
                               .arg(align, text)));
    const QImage image = shot(preview);
    const QRect ink = lightExtent(image);
    QVERIFY(!ink.isEmpty());
    QCOMPARE(ink.center().x() * 3 / image.width(), third);
    QCOMPARE(ink.center().y() * 3 / image.height(), 1);
    QVERIFY(ink.height() > image.height() / 5);
    QVERIFY(ink.height() < image.height() / 2);
}

void tst_ZvStagePreview::boldTextIsBolder()
{
    const auto inkOf = [this](const QString &bold) {
        ZvStagePreview preview;
        preview.resize(300, 100);
        preview.setStage(
            stage(QStringLiteral("width=\"1500\" height=\"500\" background=\"#000000\""),
                  QStringLiteral("<Text x=\"0\" y=\"0\" width=\"1500\" height=\"500\" "
                                 "size=\"200\" color=\"#ffffff\" bold=\"%1\">Hall</Text>\n")
                      .arg(bold)));
        qint64 sum = 0;
        visitPixels(shot(preview), [&sum](int, int, QRgb pixel) { sum += qGray(pixel); });
        return sum;
    };
    const qint64 plain = inkOf(QStringLiteral("false"));
    const qint64 bold = inkOf(QStringLiteral("true"));
    QVERIFY(plain > 0);
    QVERIFY(bold > plain * 11 / 10);
    QVERIFY(bold < plain * 3);
}

void tst_ZvStagePreview::textIsCutOffAtItsBox()
{
    ZvStagePreview preview;
    preview.resize(100, 100);
    preview.setStage(stage(QStringLiteral("width=\"100\" height=\"100\" background=\"#000000\""),
                           QStringLiteral("<Text x=\"30\" y=\"40\" width=\"40\" height=\"20\" "
                                          "size=\"60\" color=\"#ffffff\">%1</Text>\n")
                               .arg(QStringLiteral("MWMW MWMW\nMW").repeated(20))));
    const int ratio = qRound(preview.devicePixelRatioF());
    const QRect ink = lightExtent(shot(preview));
    QVERIFY(ink.isValid());
    QVERIFY(QRect(30 * ratio, 40 * ratio, 40 * ratio, 20 * ratio).contains(ink));
}

void tst_ZvStagePreview::linesBreakAlikeAtEverySize()
{
    const QString text = QStringLiteral("one two three four five six seven eight nine ten");
    const ZvStage shown =
        stage(QStringLiteral("width=\"1600\" height=\"1600\" background=\"#000000\""),
              QStringLiteral("<Text x=\"0\" y=\"0\" width=\"1600\" height=\"1600\" "
                             "size=\"200\" color=\"#ffffff\">%1</Text>\n")
                  .arg(text));
    QRectF reference;
    for (const int width : {1600, 801, 399, 203, 160}) {
        ZvStagePreview preview;
        preview.resize(width, width);
        preview.setStage(shown);
        const QImage image = shot(preview);
        const QRect ink = lightExtent(image);
        const double scale = 1600.0 / image.width();
        const QRectF normal(ink.x() * scale, ink.y() * scale, ink.width() * scale,
                            ink.height() * scale);
        if (reference.isNull())
            reference = normal;
        const double tolerance = 3 * scale;
        QVERIFY(qAbs(normal.width() - reference.width()) <= tolerance);
        QVERIFY(qAbs(normal.top() - reference.top()) <= tolerance);
        QVERIFY(qAbs(normal.height() - reference.height()) <= tolerance);
    }
}

void tst_ZvStagePreview::extremeStagesAreShown_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::newRow("line") << QStringLiteral("width=\"8192\" height=\"1\" background=\"#ff0000\"");
    QTest::newRow("column") << QStringLiteral("width=\"1\" height=\"8192\" background=\"#ff0000\"");
    QTest::newRow("point") << QStringLiteral("width=\"1\" height=\"1\" background=\"#ff0000\"");
    QTest::newRow("largest") << QStringLiteral(
        "width=\"8192\" height=\"8192\" background=\"#ff0000\"");
}

void tst_ZvStagePreview::extremeStagesAreShown()
{
    QFETCH(QString, attributes);
    ZvStagePreview preview;
    preview.resize(240, 135);
    preview.setStage(stage(attributes));
    QVERIFY(countOf(shot(preview), red) > 0);
}

void tst_ZvStagePreview::clearShowsNothing()
{
    ZvStagePreview preview;
    preview.resize(160, 90);
    preview.setStage(stage(QStringLiteral("width=\"1600\" height=\"900\" background=\"#ff0000\"")));
    QVERIFY(countOf(shot(preview), red) > 0);
    preview.clear();
    QCOMPARE(countOf(shot(preview), red), 0);
    QVERIFY(preview.stage().isEmpty());
    preview.setStage(ZvStage(QStringLiteral("/never/read.xml")));
    QCOMPARE(countOf(shot(preview), red), 0);
}

void tst_ZvStagePreview::signalsReachTheSlotsAlsoQueued()
{
    ZvStagePreview preview;
    connect(this, SIGNAL(stageSelectionChanged(ZvStage)), &preview,
                         SLOT(setStage(ZvStage)), Qt::QueuedConnection);
    connect(this, SIGNAL(clearDescription()), &preview, SLOT(clear()));
    const ZvStage shown =
        stage(QStringLiteral("width=\"1600\" height=\"900\" background=\"#ff0000\""));
    Q_EMIT stageSelectionChanged(shown);
    QVERIFY(preview.stage().isEmpty());
    QTRY_COMPARE(preview.stage().filePath(), shown.filePath());
    Q_EMIT clearDescription();
    QVERIFY(preview.stage().isEmpty());
}

void tst_ZvStagePreview::getImageGivesTheCallerAPicture()
{
    ZvStagePreview preview;
    preview.resize(160, 90);
    QImage *image = reinterpret_cast<QImage *>(&preview);
    preview.getImage(&image);
    QCOMPARE(image, nullptr);
    preview.getImage(nullptr);
    preview.setStage(stage(QStringLiteral("width=\"1600\" height=\"900\" background=\"#ff0000\"")));
    preview.getImage(&image);
    QVERIFY(image);
    const std::unique_ptr<QImage> owner(image);
    QCOMPARE(image->size(), QSize(160, 90) * qRound(preview.devicePixelRatioF()));
    QCOMPARE(countOf(*image, red), image->width() * image->height());
    preview.clear();
    QCOMPARE(countOf(*image, red), image->width() * image->height());
}

void tst_ZvStagePreview::repaintingTakesThePictureAtHand()
{
    QString items;
    for (int i = 0; i < 200; ++i)
        items += QStringLiteral("<Text x=\"0\" y=\"0\" width=\"1600\" height=\"900\" size=\"60\" "
                                "color=\"#ffffff\">Welcome to line %1</Text>\n")
                     .arg(i);
    ZvStagePreview preview;
    preview.resize(160, 90);
    preview.setStage(
        stage(QStringLiteral("width=\"1600\" height=\"900\" background=\"#ff0000\""), items));
    QElapsedTimer timer;
    timer.start();
    const QImage first = shot(preview);
    const qint64 firstTime = timer.nsecsElapsed();
    qint64 laterTime = firstTime;
    for (int i = 0; i < 5; ++i) {
        timer.restart();
        QCOMPARE(shot(preview), first);
        laterTime = qMin(laterTime, timer.nsecsElapsed());
    }
    QVERIFY2(laterTime * 10 < firstTime,
             qPrintable(QStringLiteral("%1 ns after %2 ns").arg(laterTime).arg(firstTime)));
}

void tst_ZvStagePreview::picturesFollowTheSize()
{
    ZvStagePreview preview;
    preview.setStage(stage(QStringLiteral("width=\"1600\" height=\"900\" background=\"#ff0000\"")));
    const int ratio = qRound(preview.devicePixelRatioF());
    for (const int width : {160, 320, 80}) {
        preview.resize(width, width * 9 / 16);
        const QImage image = shot(preview);
        QCOMPARE(extent(image, red).size(), QSize(width, width * 9 / 16) * ratio);
    }
}

void tst_ZvStagePreview::aTinyPreviewPaintsNothing()
{
    ZvStagePreview preview;
    preview.setFrameStyle(QFrame::StyledPanel);
    preview.setStage(stage(QStringLiteral("width=\"1600\" height=\"900\" background=\"#ff0000\"")));
    preview.resize(1, 1);
    QCOMPARE(countOf(shot(preview), red), 0);
    QImage *image = nullptr;
    preview.getImage(&image);
    QCOMPARE(image, nullptr);
}

QTEST_MAIN(tst_ZvStagePreview)
#include "tst_zvstagepreview.moc"
