#include "ZvStage.h"

#include <QtTest>

#include <sys/stat.h>

using Zavo::ZvStage;
using Zavo::ZvStageItem;

class tst_ZvStage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void isEmptyUntilRead();
    void readsEveryKindOfItem();
    void passesOverWhatItDoesNotKnow();
    void refuses_data();
    void refuses();
    void keepsWhatItHasWhenAFileIsRefused();
    void missingFile();
    void folderAndPipeAreNoStages();
    void tooManyItems();

    void picture_data();
    void picture();
    void pictureByALinkInsideTheFolder();
    void pictureByALinkOutOfTheFolder();
    void pictureOfAnotherFormat();
    void pictureThatIsCutOff();
    void pictureBeyondTheLargestSize();
    void samePictureIsDecodedOnce();
    void picturesBeyondTheMemoryOfOneStage();

    void copiesShareAndStayApart();
    void crossesSignals();

private:
    QString write(const QString &name, const QByteArray &bytes) const;
    QString writePicture(const QString &name, const QSize &size, const char *format = "PNG") const;
    QString writeStage(const QByteArray &items) const;
    QImage onlyPicture(const QByteArray &source) const;

    QScopedPointer<QTemporaryDir> m_dir;
    QString m_folder;
};

void tst_ZvStage::init()
{
    m_dir.reset(new QTemporaryDir);
    QVERIFY(m_dir->isValid());
    m_folder = m_dir->filePath(QStringLiteral("stage"));
    QVERIFY(QDir().mkpath(m_folder + QStringLiteral("/pictures")));
}

void tst_ZvStage::cleanup()
{
    m_dir.reset();
}

QString tst_ZvStage::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(QDir(m_folder).filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
    return file.fileName();
}

QString tst_ZvStage::writePicture(const QString &name, const QSize &size, const char *format) const
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    const QString path = QDir(m_folder).filePath(name);
    if (!image.save(path, format))
        qFatal("cannot write %s", qPrintable(path));
    return path;
}

QString tst_ZvStage::writeStage(const QByteArray &items) const
{
    return write(QStringLiteral("a.xml"),
                 R"(<Stage version="1" width="100" height="50">)" + items + "</Stage>");
}

QImage tst_ZvStage::onlyPicture(const QByteArray &source) const
{
    ZvStage stage(
        writeStage(R"(<Picture x="0" y="0" width="1" height="1" source=")" + source + R"("/>)"));
    if (!stage.readFile() || stage.items().size() != 1)
        qFatal("the stage itself should be readable");
    return stage.items().constFirst().picture;
}

void tst_ZvStage::isEmptyUntilRead()
{
    const QString path = writeStage({});
    ZvStage stage(path);
    QCOMPARE(stage.filePath(), path);
    QVERIFY(stage.isEmpty());
    QVERIFY(stage.size().isEmpty());
    QVERIFY(stage.readFile());
    QVERIFY(!stage.isEmpty());
    QCOMPARE(stage.size(), QSize(100, 50));
    QCOMPARE(stage.background(), QColor(Qt::black));
    QVERIFY(stage.items().isEmpty());
    QVERIFY(!ZvStage().readFile());
}

void tst_ZvStage::readsEveryKindOfItem()
{
    writePicture(QStringLiteral("pictures/p.png"), {4, 2});
    ZvStage stage(write(QStringLiteral("a.xml"), R"(<?xml version="1.0" encoding="UTF-8"?>
<Stage version="1" width="1920" height="1080" background="#102030">
 <!-- from back to front -->
 <Rectangle x="0" y="-9.5" width="1920" height="180" color="#80ffffff"/>
 <Text x="1" y="2" width="3" height="4" size="96" color="#ffffff" align="center">Gr&#xfc;&amp;
next <![CDATA[<&amp;>]]></Text>
 <Text x="1" y="2" width="3" height="4" size="5" color="#000000" align="right" bold="true"/>
 <Picture x="1" y="2" width="0" height="0" source="pictures/p.png"></Picture>
</Stage>
)"));
    QVERIFY(stage.readFile());
    QCOMPARE(stage.size(), QSize(1920, 1080));
    QCOMPARE(stage.background(), QColor(0x10, 0x20, 0x30));
    const QList<ZvStageItem> items = stage.items();
    QCOMPARE(items.size(), 4);
    QCOMPARE(items.at(0).kind, ZvStageItem::Rectangle);
    QCOMPARE(items.at(0).box, QRectF(0, -9.5, 1920, 180));
    QCOMPARE(items.at(0).color, QColor(255, 255, 255, 128));
    QCOMPARE(items.at(1).kind, ZvStageItem::Text);
    QCOMPARE(items.at(1).text, QStringLiteral("Gr\u00fc&\nnext <&amp;>"));
    QCOMPARE(items.at(1).textSize, 96);
    QCOMPARE(items.at(1).alignment, Qt::Alignment(Qt::AlignHCenter));
    QVERIFY(!items.at(1).bold);
    QCOMPARE(items.at(2).text, QString());
    QCOMPARE(items.at(2).alignment, Qt::Alignment(Qt::AlignRight));
    QVERIFY(items.at(2).bold);
    QCOMPARE(items.at(3).kind, ZvStageItem::Picture);
    QCOMPARE(items.at(3).picture.size(), QSize(4, 2));
    QCOMPARE(items.at(3).picture.pixelColor(0, 0), QColor(Qt::red));
}

void tst_ZvStage::passesOverWhatItDoesNotKnow()
{
    ZvStage stage(writeStage(R"(<Clock x="1"><Hand length="2"/>tick</Clock>
        <Rectangle x="1" y="2" width="3" height="4" color="#000000" glow="7"><Shadow/></Rectangle>)"));
    QVERIFY(stage.readFile());
    QCOMPARE(stage.items().size(), 1);
    QCOMPARE(stage.items().constFirst().box, QRectF(1, 2, 3, 4));
}

void tst_ZvStage::refuses_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto stage = [](const QByteArray &attributes, const QByteArray &items = {}) {
        return "<Stage " + attributes + ">" + items + "</Stage>";
    };
    const QByteArray good = R"(version="1" width="100" height="50")";
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("no XML") << QByteArray("stage");
    QTest::newRow("another root") << QByteArray(R"(<Scene version="1" width="1" height="1"/>)");
    QTest::newRow("no version") << stage(R"(width="100" height="50")");
    QTest::newRow("unknown version") << stage(R"(version="2" width="100" height="50")");
    QTest::newRow("no height") << stage(R"(version="1" width="100")");
    QTest::newRow("no width") << stage(R"(version="1" width="0" height="50")");
    QTest::newRow("negative width") << stage(R"(version="1" width="-1" height="50")");
    QTest::newRow("half a pixel") << stage(R"(version="1" width="1.5" height="50")");
    QTest::newRow("width that is none") << stage(R"(version="1" width="nan" height="50")");
    QTest::newRow("width beyond the largest") << stage(R"(version="1" width="8193" height="50")");
    QTest::newRow("height beyond the largest") << stage(R"(version="1" width="1" height="8193")");
    QTest::newRow("named background") << stage(good + R"( background="red")");
    QTest::newRow("background that is none") << stage(good + R"( background="#12345g")");
    QTest::newRow("declaration") << QByteArray("<!DOCTYPE Stage>" + stage(good));
    QTest::newRow("second root") << QByteArray(stage(good) + stage(good));
    QTest::newRow("cut off") << QByteArray("<Stage " + good + ">");
    QTest::newRow("stray text") << stage(good, "stray");
    const auto row = [&](const char *name, const QByteArray &item) {
        QTest::newRow(name) << stage(good, item);
    };
    row("rectangle without box", R"(<Rectangle color="#000000"/>)");
    row("rectangle without colour", R"(<Rectangle x="1" y="2" width="3" height="4"/>)");
    row("negative height", R"(<Rectangle x="1" y="2" width="3" height="-4" color="#000000"/>)");
    row("infinite", R"(<Rectangle x="inf" y="2" width="3" height="4" color="#000000"/>)");
    row("exponent", R"(<Rectangle x="1e3" y="2" width="3" height="4" color="#000000"/>)");
    row("comma", R"(<Rectangle x="1,5" y="2" width="3" height="4" color="#000000"/>)");
    row("two points", R"(<Rectangle x="1.5.5" y="2" width="3" height="4" color="#000000"/>)");
    row("endless number",
        R"(<Rectangle x="11111111111111111" y="2" width="3" height="4" color="#000000"/>)");
    row("text without size", R"(<Text x="1" y="2" width="3" height="4" color="#000000"/>)");
    row("text of no size", R"(<Text x="1" y="2" width="3" height="4" size="0" color="#000000"/>)");
    row("unknown alignment",
        R"(<Text x="1" y="2" width="3" height="4" size="9" color="#000000" align="top"/>)");
    row("half bold",
        R"(<Text x="1" y="2" width="3" height="4" size="9" color="#000000" bold="half"/>)");
    row("picture without source", R"(<Picture x="1" y="2" width="3" height="4"/>)");
}

void tst_ZvStage::refuses()
{
    QFETCH(QByteArray, bytes);
    ZvStage stage(write(QStringLiteral("a.xml"), bytes));
    QVERIFY(!stage.readFile());
    QVERIFY(stage.isEmpty());
}

void tst_ZvStage::keepsWhatItHasWhenAFileIsRefused()
{
    ZvStage stage(writeStage(R"(<Rectangle x="1" y="2" width="3" height="4" color="#000000"/>)"));
    QVERIFY(stage.readFile());
    write(QStringLiteral("a.xml"), "<Stage");
    QVERIFY(!stage.readFile());
    QCOMPARE(stage.size(), QSize(100, 50));
    QCOMPARE(stage.items().size(), 1);
}

void tst_ZvStage::missingFile()
{
    QVERIFY(!ZvStage(m_folder + QStringLiteral("/none.xml")).readFile());
}

void tst_ZvStage::folderAndPipeAreNoStages()
{
    QVERIFY(!ZvStage(m_folder).readFile());
    const QString pipe = m_folder + QStringLiteral("/pipe.xml");
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QVERIFY(!ZvStage(pipe).readFile());
}

void tst_ZvStage::tooManyItems()
{
    const QByteArray item = R"(<Rectangle x="1" y="2" width="3" height="4" color="#000000"/>)";
    ZvStage stage(writeStage(item.repeated(10000)));
    QVERIFY(stage.readFile());
    QCOMPARE(stage.items().size(), 10000);
    writeStage(item.repeated(10001));
    QVERIFY(!stage.readFile());
}

void tst_ZvStage::picture_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<bool>("loaded");
    QTest::newRow("beside") << QByteArray("p.png") << true;
    QTest::newRow("below") << QByteArray("pictures/p.png") << true;
    QTest::newRow("detour inside") << QByteArray("pictures/../p.png") << true;
    QTest::newRow("JPEG") << QByteArray("p.jpg") << true;
    QTest::newRow("none") << QByteArray() << false;
    QTest::newRow("missing") << QByteArray("none.png") << false;
    QTest::newRow("folder") << QByteArray("pictures") << false;
    QTest::newRow("the folder itself") << QByteArray(".") << false;
    QTest::newRow("above") << QByteArray("../outside.png") << false;
    QTest::newRow("beside a folder of the same beginning")
        << QByteArray("../stage2/p.png") << false;
    QTest::newRow("by a folder that is not there")
        << QByteArray("pictures/none/../../../outside.png") << false;
    QTest::newRow("absolute") << QByteArray("ABSOLUTE") << false;
    QTest::newRow("resource") << QByteArray(":/p.png") << false;
}

void tst_ZvStage::picture()
{
    QFETCH(QByteArray, source);
    QFETCH(bool, loaded);
    QVERIFY(QDir().mkpath(m_dir->filePath(QStringLiteral("stage2"))));
    for (const char *name : {"p.png", "pictures/p.png", "../outside.png", "../stage2/p.png"})
        writePicture(QString::fromLatin1(name), {3, 3});
    const QString jpeg = writePicture(QStringLiteral("p.jpg"), {3, 3}, "JPEG");
    if (source == "ABSOLUTE")
        source = QFile::encodeName(jpeg);
    QCOMPARE(onlyPicture(source).size(), loaded ? QSize(3, 3) : QSize(0, 0));
}

void tst_ZvStage::pictureByALinkInsideTheFolder()
{
    const QString target = writePicture(QStringLiteral("pictures/p.png"), {3, 3});
    QVERIFY(QFile::link(target, m_folder + QStringLiteral("/link.png")));
    QCOMPARE(onlyPicture("link.png").size(), QSize(3, 3));
}

void tst_ZvStage::pictureByALinkOutOfTheFolder()
{
    const QString target = writePicture(QStringLiteral("../outside.png"), {3, 3});
    QVERIFY(QFile::link(target, m_folder + QStringLiteral("/link.png")));
    QVERIFY(QFile::link(m_dir->path(), m_folder + QStringLiteral("/up")));
    QVERIFY(onlyPicture("link.png").isNull());
    QVERIFY(onlyPicture("up/outside.png").isNull());
}

void tst_ZvStage::pictureOfAnotherFormat()
{
    writePicture(QStringLiteral("p.bmp"), {3, 3}, "BMP");
    QVERIFY(onlyPicture("p.bmp").isNull());
    write(QStringLiteral("p.png"), R"(<svg xmlns="http://www.w3.org/2000/svg"/>)");
    QVERIFY(onlyPicture("p.png").isNull());
    write(QStringLiteral("text.png"), "no picture");
    QVERIFY(onlyPicture("text.png").isNull());
}

void tst_ZvStage::pictureThatIsCutOff()
{
    QFile whole(writePicture(QStringLiteral("p.png"), {300, 300}));
    QVERIFY(whole.open(QIODevice::ReadOnly));
    const QByteArray bytes = whole.readAll();
    whole.close();
    write(QStringLiteral("p.png"), bytes.left(bytes.size() / 2));
    QVERIFY(onlyPicture("p.png").isNull());
}

void tst_ZvStage::pictureBeyondTheLargestSize()
{
    writePicture(QStringLiteral("wide.png"), {8193, 1});
    QVERIFY(onlyPicture("wide.png").isNull());
    writePicture(QStringLiteral("widest.png"), {8192, 1});
    QCOMPARE(onlyPicture("widest.png").size(), QSize(8192, 1));
}

void tst_ZvStage::samePictureIsDecodedOnce()
{
    writePicture(QStringLiteral("p.png"), {3, 3});
    const QByteArray item = R"(<Picture x="0" y="0" width="1" height="1" source="p.png"/>)";
    ZvStage stage(writeStage(item + item));
    QVERIFY(stage.readFile());
    QCOMPARE(stage.items().at(0).picture.cacheKey(), stage.items().at(1).picture.cacheKey());
}

void tst_ZvStage::picturesBeyondTheMemoryOfOneStage()
{
    // Five pictures of 16 million pixels each: the memory is for four of them.
    QByteArray items;
    for (const char *name : {"1", "2", "3", "4", "5"}) {
        QImage image(4096, 4096, QImage::Format_Mono);
        image.fill(0);
        QVERIFY(image.save(m_folder + QLatin1Char('/') + QLatin1String(name), "PNG"));
        items +=
            QByteArray(R"(<Picture x="0" y="0" width="1" height="1" source=")") + name + R"("/>)";
    }
    ZvStage stage(writeStage(items));
    QVERIFY(stage.readFile());
    QVERIFY(!stage.items().at(3).picture.isNull());
    QVERIFY(stage.items().at(4).picture.isNull());
}

void tst_ZvStage::copiesShareAndStayApart()
{
    ZvStage first(writeStage({}));
    const ZvStage before = first;
    QVERIFY(first.readFile());
    QVERIFY(before.isEmpty());
    const ZvStage after = first;
    QCOMPARE(after.size(), first.size());
    first = before;
    QVERIFY(first.isEmpty());
    QVERIFY(!after.isEmpty());
}

void tst_ZvStage::crossesSignals()
{
    QVERIFY(QMetaType::type("ZvStage") != QMetaType::UnknownType);
    ZvStage stage(writeStage({}));
    QVERIFY(stage.readFile());
    const QVariant variant = QVariant::fromValue(stage);
    QCOMPARE(variant.value<ZvStage>().size(), QSize(100, 50));
}

QTEST_GUILESS_MAIN(tst_ZvStage)
#include "tst_zvstage.moc"
