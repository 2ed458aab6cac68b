#include <QDir>
#include <QFile>
#include <QHash>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QSet>
#include <QSvgRenderer>
#include <QXmlStreamReader>
#include <QtTest>

namespace {

const QStringList &imageNames()
{
    static const QStringList names{
        QStringLiteral("arrow_simple_down"),
        QStringLiteral("arrow_simple_left"),
        QStringLiteral("arrow_simple_right"),
        QStringLiteral("arrow_simple_up"),
        QStringLiteral("channel"),
        QStringLiteral("close_black"),
        QStringLiteral("create_channel"),
        QStringLiteral("create_schedule"),
        QStringLiteral("delete_channel"),
        QStringLiteral("delete_schedule"),
        QStringLiteral("menu_simple"),
        QStringLiteral("output_channel"),
        QStringLiteral("redo"),
        QStringLiteral("save"),
        QStringLiteral("save_all"),
        QStringLiteral("trash"),
        QStringLiteral("triangle_down"),
        QStringLiteral("triangle_down_hover"),
        QStringLiteral("triangle_right"),
        QStringLiteral("triangle_right_hover"),
        QStringLiteral("undo"),
        QStringLiteral("upload"),
        QStringLiteral("window_normal_black"),
    };
    return names;
}

QString imagePath(const QString &name)
{
    return QStringLiteral(":/images/%1.svg").arg(name);
}

QImage render(const QString &path, int size)
{
    QSvgRenderer renderer(path);
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

// The share of an image's area that is painted, from 0 to 1.
double coverage(const QImage &image)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            sum += qAlpha(image.pixel(x, y)) / 255.0;
    }
    return sum / (image.width() * image.height());
}

int differingPixels(const QImage &a, const QImage &b)
{
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            count += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
    }
    return count;
}

QByteArray source(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class tst_Images : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void prefixHoldsExactlyTheNamedImages();
    void loads_data();
    void loads();
    void paintsAPicture_data();
    void paintsAPicture();
    void staysInTheFamily_data();
    void staysInTheFamily();
    void noTwoAreAlike();
    void programIcon();
};

void tst_Images::prefixHoldsExactlyTheNamedImages()
{
    QStringList expected;
    for (const QString &name : imageNames())
        expected << name + QStringLiteral(".svg");
    expected.sort();
    QCOMPARE(QDir(QStringLiteral(":/images")).entryList(QDir::Files, QDir::Name), expected);
}

void tst_Images::loads_data()
{
    QTest::addColumn<QString>("path");
    for (const QString &name : imageNames())
        QTest::newRow(qPrintable(name)) << imagePath(name);
}

void tst_Images::loads()
{
    QFETCH(QString, path);
    QSvgRenderer renderer(path);
    QVERIFY(renderer.isValid());
    QVERIFY(!renderer.animated());
    QCOMPARE(renderer.defaultSize(), QSize(16, 16));
    QCOMPARE(renderer.viewBoxF(), QRectF(0, 0, 16, 16));
    const QIcon icon(path);
    QVERIFY(!icon.isNull());
    for (int size : {16, 24, 48}) {
        QCOMPARE(icon.actualSize(QSize(size, size)), QSize(size, size));
        QVERIFY(!icon.pixmap(size, size, QIcon::Disabled).isNull());
    }
}

void tst_Images::paintsAPicture_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("size");
    for (const QString &name : imageNames()) {
        for (int size : {16, 48}) {
            QTest::addRow("%s at %d", qPrintable(name), size) << imagePath(name) << size;
        }
    }
}

void tst_Images::paintsAPicture()
{
    QFETCH(QString, path);
    QFETCH(int, size);
    const QImage image = render(path, size);
    const double painted = coverage(image);
    QVERIFY2(painted > 0.04, qPrintable(QString::number(painted)));
    QVERIFY2(painted < 0.85, qPrintable(QString::number(painted)));
    for (const QPoint &corner : {QPoint(0, 0), QPoint(size - 1, 0), QPoint(0, size - 1)})
        QCOMPARE(qAlpha(image.pixel(corner)), 0);
    const QImage byIcon =
        QIcon(path).pixmap(size, size).toImage().convertToFormat(QImage::Format_ARGB32);
    QCOMPARE(byIcon.size(), QSize(size, size));
    QVERIFY(qAbs(coverage(byIcon) - painted) < 0.02);
}

void tst_Images::staysInTheFamily_data()
{
    loads_data();
}

// One stroke width and one palette, and none of what the renderer passes over in silence. The
// stroke is a little above 1 because the renderer's quick path for strokes up to one pixel draws
// the two diagonals of a cross or an arrow unlike.
void tst_Images::staysInTheFamily()
{
    QFETCH(QString, path);
    static const QSet<QString> palette{
        QStringLiteral("none"),    QStringLiteral("#686db8"), QStringLiteral("#ccccff"),
        QStringLiteral("#f8f8ff"), QStringLiteral("#2a9464"), QStringLiteral("#c8413c"),
        QStringLiteral("#ffffff"),
    };
    static const QSet<QString> elements{QStringLiteral("svg"), QStringLiteral("g"),
                                        QStringLiteral("path"), QStringLiteral("rect"),
                                        QStringLiteral("circle")};
    QXmlStreamReader reader(source(path));
    int strokeWidths = 0;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        QVERIFY2(elements.contains(reader.name().toString()), qPrintable(reader.name().toString()));
        for (const QXmlStreamAttribute &attribute : reader.attributes()) {
            const QString name = attribute.name().toString();
            const QString value = attribute.value().toString();
            if (name == QLatin1String("stroke-width")) {
                QCOMPARE(value, QStringLiteral("1.1"));
                ++strokeWidths;
            } else if (name == QLatin1String("fill") || name == QLatin1String("stroke")) {
                QVERIFY2(palette.contains(value), qPrintable(value));
            }
            QVERIFY(name != QLatin1String("style") && name != QLatin1String("class"));
        }
    }
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
    QCOMPARE(strokeWidths, 1);
}

void tst_Images::noTwoAreAlike()
{
    const int size = 16;
    const int leastDifference = 6;
    QHash<QString, QImage> images;
    for (const QString &name : imageNames())
        images.insert(name, render(imagePath(name), size));
    for (const QString &a : imageNames()) {
        for (const QString &b : imageNames()) {
            if (a >= b)
                continue;
            const int difference = differingPixels(images.value(a), images.value(b));
            QVERIFY2(difference >= leastDifference, qPrintable(a + QLatin1Char(' ') + b));
        }
    }
}

void tst_Images::programIcon()
{
    const QString path = QStringLiteral(":/icons/zavo-schedule-editor.svg");
    QSvgRenderer renderer(path);
    QVERIFY(renderer.isValid());
    QCOMPARE(renderer.defaultSize().width(), renderer.defaultSize().height());
    for (int size : {16, 32, 256}) {
        const double painted = coverage(render(path, size));
        QVERIFY(painted > 0.3 && painted < 0.9);
    }
}

QTEST_MAIN(tst_Images)
#include "tst_images.moc"
