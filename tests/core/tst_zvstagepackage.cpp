#include "ZvStage.h"

#include <KZip>

#include <QBuffer>
#include <QLoggingCategory>
#include <QtTest>

#include <random>

using Zavo::ZvStage;

/// Stages that are packages of a scene and its pictures.
class tst_ZvStagePackage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void readsSceneAndPictures();
    void suffixInCapitals();
    void readsUncompressedEntries();
    void refuses_data();
    void refuses();
    void pictures_data();
    void pictures();
    void linkInThePackageIsNotFollowed();
    void tooManyEntries();
    void aBombIsNotUnpacked();
    void everyCutIsStood();
    void damagedBytesAreStood();

private:
    using Entries = QVector<QPair<QString, QByteArray>>;
    void write(const Entries &entries,
               KZip::Compression compression = KZip::DeflateCompression) const;
    void writeBytes(const QByteArray &bytes) const;
    QByteArray content() const;

    QTemporaryDir m_dir;
    QString m_path;
};

namespace {
const QString Scene = QStringLiteral("stage.xml");

QByteArray png(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

QByteArray sceneWith(const QByteArray &source)
{
    return R"(<Stage version="1" width="64" height="48">
        <Picture x="0" y="0" width="9" height="9" source=")" +
           source + R"("/></Stage>)";
}
} // namespace

void tst_ZvStagePackage::initTestCase()
{
    // What the archive library says about a broken package is its own business.
    QLoggingCategory::setFilterRules(QStringLiteral("kf.archive*=false"));
    QVERIFY(m_dir.isValid());
    init(); // rows of data are made before the first test
}

void tst_ZvStagePackage::init()
{
    m_path = m_dir.filePath(QStringLiteral("a.zstg"));
}

void tst_ZvStagePackage::write(const Entries &entries, KZip::Compression compression) const
{
    KZip package(m_path);
    package.setCompression(compression);
    if (!package.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(m_path));
    for (const auto &entry : entries) {
        if (!package.writeFile(entry.first, entry.second))
            qFatal("cannot write %s", qPrintable(entry.first));
    }
    package.close();
}

void tst_ZvStagePackage::writeBytes(const QByteArray &bytes) const
{
    QFile file(m_path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(m_path));
}

QByteArray tst_ZvStagePackage::content() const
{
    QFile file(m_path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_ZvStagePackage::readsSceneAndPictures()
{
    write({{Scene, sceneWith("pictures/p.png")}, {QStringLiteral("pictures/p.png"), png({5, 4})}});
    ZvStage stage(m_path);
    QVERIFY(stage.readFile());
    QCOMPARE(stage.size(), QSize(64, 48));
    QCOMPARE(stage.items().constFirst().picture.size(), QSize(5, 4));
    QCOMPARE(stage.items().constFirst().picture.pixelColor(4, 3), QColor(Qt::blue));
}

void tst_ZvStagePackage::suffixInCapitals()
{
    m_path = m_dir.filePath(QStringLiteral("A.ZSTG"));
    write({{Scene, sceneWith("p.png")}, {QStringLiteral("p.png"), png({5, 4})}});
    ZvStage stage(m_path);
    QVERIFY(stage.readFile());
    QVERIFY(!stage.items().constFirst().picture.isNull());
}

void tst_ZvStagePackage::readsUncompressedEntries()
{
    write({{Scene, sceneWith("p.png")}, {QStringLiteral("p.png"), png({5, 4})}},
          KZip::NoCompression);
    ZvStage stage(m_path);
    QVERIFY(stage.readFile());
    QVERIFY(!stage.items().constFirst().picture.isNull());
}

void tst_ZvStagePackage::refuses_data()
{
    QTest::addColumn<QByteArray>("bytes");
    write({{QStringLiteral("other.xml"), sceneWith("p.png")}});
    QTest::newRow("no scene") << content();
    write({{QStringLiteral("below/stage.xml"), sceneWith("p.png")}});
    QTest::newRow("scene below") << content();
    write({{Scene, "<Stage/>"}});
    QTest::newRow("bad scene") << content();
    write({{QStringLiteral("stage.xml/a"), sceneWith("p.png")}});
    QTest::newRow("scene that is a folder") << content();
    write({});
    QTest::newRow("no entries") << content();
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("a scene and no package") << sceneWith("p.png");
    QTest::newRow("zeros") << QByteArray(100000, '\0');
}

void tst_ZvStagePackage::refuses()
{
    QFETCH(QByteArray, bytes);
    writeBytes(bytes);
    ZvStage stage(m_path);
    QVERIFY(!stage.readFile());
    QVERIFY(stage.isEmpty());
}

void tst_ZvStagePackage::pictures_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<bool>("loaded");
    QTest::newRow("beside") << QByteArray("p.png") << true;
    QTest::newRow("detour") << QByteArray("below/../p.png") << true;
    QTest::newRow("folder") << QByteArray("below") << false;
    QTest::newRow("missing") << QByteArray("none.png") << false;
    QTest::newRow("none") << QByteArray() << false;
    QTest::newRow("above") << QByteArray("../outside.png") << false;
    QTest::newRow("absolute") << QByteArray("/p.png") << false;
    QTest::newRow("no picture") << QByteArray("stage.xml") << false;
    QTest::newRow("too large") << QByteArray("below/wide.png") << false;
}

void tst_ZvStagePackage::pictures()
{
    QFETCH(QByteArray, source);
    QFETCH(bool, loaded);
    write({{Scene, sceneWith(source)},
           {QStringLiteral("p.png"), png({5, 4})},
           {QStringLiteral("below/wide.png"), png({8193, 1})}});
    ZvStage stage(m_path);
    QVERIFY(stage.readFile());
    QCOMPARE(!stage.items().constFirst().picture.isNull(), loaded);
}

void tst_ZvStagePackage::linkInThePackageIsNotFollowed()
{
    QImage(QSize(3, 3), QImage::Format_Mono).save(m_dir.filePath(QStringLiteral("out.png")), "PNG");
    {
        KZip package(m_path);
        QVERIFY(package.open(QIODevice::WriteOnly));
        QVERIFY(package.writeFile(Scene, sceneWith("link.png")));
        QVERIFY(package.writeSymLink(QStringLiteral("link.png"), QStringLiteral("out.png")));
        QVERIFY(package.close());
    }
    ZvStage stage(m_path);
    QVERIFY(stage.readFile());
    QVERIFY(stage.items().constFirst().picture.isNull());
}

void tst_ZvStagePackage::tooManyEntries()
{
    Entries entries{{Scene, sceneWith("p.png")}};
    while (entries.size() < 4096)
        entries.append({QStringLiteral("e%1").arg(entries.size()), "x"});
    write(entries);
    QVERIFY(ZvStage(m_path).readFile());
    entries.append({QStringLiteral("one more"), "x"});
    write(entries);
    QVERIFY(!ZvStage(m_path).readFile());
}

void tst_ZvStagePackage::aBombIsNotUnpacked()
{
    // 80 MiB of blanks are a few KiB in the package.
    const QByteArray blanks(80 * 1024 * 1024, ' ');
    write({{Scene, blanks}});
    QVERIFY(!ZvStage(m_path).readFile());
    write({{Scene, sceneWith("p.png")}, {QStringLiteral("p.png"), png({5, 4}) + blanks}});
    ZvStage stage(m_path);
    QVERIFY(stage.readFile());
    QVERIFY(stage.items().constFirst().picture.isNull());
}

void tst_ZvStagePackage::everyCutIsStood()
{
    write({{Scene, sceneWith("p.png")}, {QStringLiteral("p.png"), png({5, 4})}});
    const QByteArray bytes = content();
    for (int length = 0; length < bytes.size(); ++length) {
        writeBytes(bytes.left(length));
        ZvStage stage(m_path);
        // Whole or not at all: there are no stages without size.
        const bool read = stage.readFile();
        QCOMPARE(stage.size(), read ? QSize(64, 48) : QSize());
    }
}

void tst_ZvStagePackage::damagedBytesAreStood()
{
    write({{Scene, sceneWith("p.png")}, {QStringLiteral("p.png"), "no picture"}},
          KZip::NoCompression);
    const QByteArray bytes = content();
    std::mt19937 random(5);
    for (int round = 0; round < 400; ++round) {
        QByteArray damaged = bytes;
        for (unsigned i = 0; i < 1 + random() % 4; ++i)
            damaged[int(random() % unsigned(damaged.size()))] = char(random());
        writeBytes(damaged);
        ZvStage stage(m_path);
        const bool read = stage.readFile();
        QCOMPARE(stage.isEmpty(), !read);
    }
}

QTEST_GUILESS_MAIN(tst_ZvStagePackage)
#include "tst_zvstagepackage.moc"
