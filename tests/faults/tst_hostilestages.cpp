#include "../editor/EditorFixture.h"
#include "DragGesture.h"
#include "EffortLimit.h"
#include "MessageBoxAnswer.h"

#include "ZvStagePreview.h"
#include "stages/ZvScheduleDefaultStageWidget.h"
#include "stages/ZvScheduleStageListView.h"
#include "timetable/ZvTimeTableView.h"

#include <QDir>
#include <QLoggingCategory>
#include <QProcess>
#include <QtEndian>
#include <QtTest>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Zavo;
using ZavoTest::DragGesture;
using ZavoTest::EditorFixture;
using ZavoTest::EffortLimit;
using ZavoTest::MessageBoxAnswer;

/// What somebody may put into the folder of the stages, or drag over the window, to break the
/// editor.
class tst_HostileStages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void sceneIsNoStage_data();
    void sceneIsNoStage();
    void whatIsNoFileIsNoStage_data();
    void whatIsNoFileIsNoStage();
    void linkToOutsideIsAStageWithoutItsPictures();
    void pictureIsNotLoaded_data();
    void pictureIsNotLoaded();
    void package_data();
    void package();
    void draggedNameIsRefused_data();
    void draggedNameIsRefused();
    void draggedNamesInNumber();
    void namesOfFiles_data();
    void namesOfFiles();

private:
    ZvScheduleStageListView *list() const
    {
        return m_host->window->findChild<ZvScheduleStageListView *>();
    }
    ZvStagePreview *preview() const { return m_host->window->findChild<ZvStagePreview *>(); }
    QString stagePath(const QString &name) const
    {
        return m_host->data.filePath(QStringLiteral("stage/") + name);
    }
    QModelIndex indexOf(const QString &name) const;
    bool select(const QString &name) const;
    QStringList bands() const;
    QStringList allFiles() const;

    std::unique_ptr<MessageBoxAnswer> m_boxes;
    std::unique_ptr<EditorFixture> m_host;
};

namespace {

constexpr int LargestFile = 64 * 1024 * 1024;
const QString Good = QStringLiteral("good.xml");
const QString Bad = QStringLiteral("bad.xml");

QByteArray scene(const QByteArray &items)
{
    return R"(<Stage version="1" width="64" height="48">)" + items + "</Stage>";
}

QByteArray sceneWithPicture(const QByteArray &source)
{
    return scene(R"(<Picture x="0" y="0" width="9" height="9" source=")" + source + R"("/>)");
}

QByteArray chunk(const QByteArray &type, const QByteArray &data)
{
    quint32 crc = 0xffffffff;
    const QByteArray all = type + data;
    for (const char byte : all) {
        crc ^= static_cast<uchar>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 1) ? (crc >> 1) ^ 0xedb88320 : crc >> 1;
    }
    QByteArray bytes(4, '\0');
    qToBigEndian(quint32(data.size()), bytes.data());
    bytes += all;
    QByteArray end(4, '\0');
    qToBigEndian(crc ^ 0xffffffff, end.data());
    return bytes + end;
}

/// A picture of that size, sound to the last byte, whose rows are missing.
QByteArray pngOf(quint32 width, quint32 height)
{
    QByteArray head(8, '\0');
    qToBigEndian(width, head.data());
    qToBigEndian(height, head.data() + 4);
    head += QByteArray("\x08\x02\x00\x00\x00", 5);
    return "\x89PNG\r\n\x1a\n" + chunk("IHDR", head) +
           chunk("IDAT", qCompress(QByteArray(1000, '\0')).mid(4)) + chunk("IEND", {});
}

long peakKibibytes()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

} // namespace

void tst_HostileStages::init()
{
    // The archive library says on its own log what it does not like.
    QLoggingCategory::setFilterRules(QStringLiteral("kf.archive*=false"));
    m_boxes = std::make_unique<MessageBoxAnswer>();
    m_boxes->setWatchdogInterval(120000);
    m_host = std::make_unique<EditorFixture>(QStringList(QStringLiteral("Alpha")));
    m_host->data.writeStage(Good);
    QVERIFY(m_host->start());
    m_host->window->resize(1200, 800);
    QTRY_COMPARE(list()->model()->rowCount(list()->rootIndex()), 1);
}

void tst_HostileStages::cleanup()
{
    m_host.reset();
    m_boxes.reset();
}

QModelIndex tst_HostileStages::indexOf(const QString &name) const
{
    const QAbstractItemModel *model = list()->model();
    return model
        ->match(model->index(0, 0, list()->rootIndex()), Qt::DisplayRole, name, 1,
                Qt::MatchExactly | Qt::MatchCaseSensitive)
        .value(0);
}

/// Shows the stage of that name in the preview; true if there is one then.
bool tst_HostileStages::select(const QString &name) const
{
    list()->setCurrentIndex(indexOf(Good));
    list()->setCurrentIndex(indexOf(name));
    preview()->grab();
    return !preview()->stage().isEmpty();
}

QStringList tst_HostileStages::bands() const
{
    QStringList names;
    const QList<ZvTime> times = m_host->area(0)->currentTimes();
    for (const ZvTime &time : times)
        names.append(time.stageName());
    return names;
}

QStringList tst_HostileStages::allFiles() const
{
    QStringList names;
    QDirIterator files(QFileInfo(m_host->data.path()).path(), QDir::Files | QDir::Hidden,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        names.append(files.next());
    names.sort();
    return names;
}

void tst_HostileStages::sceneIsNoStage_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char *name, const QByteArray &bytes) {
        QTest::newRow(name) << bytes;
    };
    QByteArray attributes;
    for (int number = 0; number < 100000; ++number)
        attributes += " a" + QByteArray::number(number) + "='1234'";
    const QByteArray box = R"(<Rectangle x="0" y="0" width="9" height="9" color="#ff0000"/>)";
    row("tag of 1 MB with 100,000 attributes", scene("<a" + attributes + "/>"));
    row("text of 64 MiB",
        scene(R"(<Text x="0" y="0" width="9" height="9" color="#ff0000" size="9">)" +
              QByteArray(LargestFile, 'x') + "</Text>"));
    row("a million rectangles", scene(box.repeated(1000000)));
    row("64 MiB of blanks", QByteArray(LargestFile, ' '));
    row("a million elements in one another", scene(QByteArray("<a>").repeated(1000000)));
    row("type declaration",
        R"(<!DOCTYPE Stage [<!ENTITY e SYSTEM "file:///etc/passwd">]>)" + scene("&e;"));
    row("canvas of 100,000 by 100,000", R"(<Stage version="1" width="100000" height="100000"/>)");
    row("canvas of no size", R"(<Stage version="1" width="0" height="48"/>)");
    row("canvas of a huge number",
        R"(<Stage version="1" width="1)" + QByteArray(1000, '0') + R"(" height="48"/>)");
    row("box of no number",
        scene(R"(<Rectangle x="nan" y="0" width="9" height="9" color="#ff0000"/>)"));
    row("box without end",
        scene(R"(<Rectangle x="1e308" y="0" width="inf" height="9" color="#ff0000"/>)"));
    row("NUL", scene(QByteArray(1, '\0')));
}

void tst_HostileStages::sceneIsNoStage()
{
    QFETCH(QByteArray, bytes);
    m_host->data.write(QStringLiteral("stage/bad.xml"), bytes);
    QTRY_VERIFY(indexOf(Bad).isValid());
    const EffortLimit limit;
    QVERIFY(!select(Bad));
    QVERIFY(limit.isKept(bytes.size()));
    QVERIFY(select(Good));
}

void tst_HostileStages::whatIsNoFileIsNoStage_data()
{
    QTest::addColumn<QByteArray>("target");
    QTest::newRow("pipe") << QByteArray();
    QTest::newRow("link to endless bytes") << QByteArray("/dev/zero");
    QTest::newRow("link to nowhere") << QByteArray("none.xml");
    QTest::newRow("link in a circle") << QByteArray("bad.xml");
    QTest::newRow("link to a folder") << QByteArray("/");
}

// It is not opened, so nothing waits for a pipe that nobody fills.
void tst_HostileStages::whatIsNoFileIsNoStage()
{
    QFETCH(QByteArray, target);
    const QByteArray path = QFile::encodeName(stagePath(Bad));
    if (target.isEmpty())
        QCOMPARE(::mkfifo(path.constData(), 0600), 0);
    else
        QCOMPARE(::symlink(target.constData(), path.constData()), 0);
    m_host->data.writeStage(QStringLiteral("later.xml"));
    QTRY_VERIFY(indexOf(QStringLiteral("later.xml")).isValid());
    const EffortLimit limit;
    if (indexOf(Bad).isValid())
        QVERIFY(!select(Bad));
    QVERIFY(!ZvStage(stagePath(Bad)).readFile());
    QVERIFY(limit.isKept(0));
}

// Whoever may make a link may make a copy; but what a link leads to is not dragged into a schedule.
void tst_HostileStages::linkToOutsideIsAStageWithoutItsPictures()
{
    const QString outside =
        m_host->data.write(QStringLiteral("elsewhere/a.xml"), sceneWithPicture("p.png"));
    QImage picture(4, 4, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(picture.save(m_host->data.filePath(QStringLiteral("elsewhere/p.png"))));
    QVERIFY(QFile::link(outside, stagePath(Bad)));
    QTRY_VERIFY(indexOf(Bad).isValid());
    QVERIFY(select(Bad));
    QVERIFY(preview()->stage().items().first().picture.isNull());
    DragGesture drag(DragGesture::filesMimeData({stagePath(Bad)}));
    auto *const view = m_host->area(0)->findChild<ZvTimeTableView *>();
    QVERIFY(!drag.enter(view, view->mapToScene(view->viewport()->rect().center())));
}

void tst_HostileStages::pictureIsNotLoaded_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("100,000 by 100,000") << QByteArray("p.png") << pngOf(100000, 100000);
    QTest::newRow("1 by 4,294,967,295") << QByteArray("p.png") << pngOf(1, 0xffffffff);
    QTest::newRow("8,193 by 1") << QByteArray("p.png") << pngOf(8193, 1);
    QTest::newRow("rows that are missing") << QByteArray("p.png") << pngOf(8192, 8192);
    QTest::newRow("64 MiB of zeros") << QByteArray("p.png") << QByteArray(LargestFile, '\0');
    QTest::newRow("absolute path") << QByteArray("/etc/passwd") << QByteArray();
    QTest::newRow("above") << QByteArray("../../../../etc/passwd") << QByteArray();
    QTest::newRow("above in percents") << QByteArray("%2e%2e/p.png") << QByteArray();
    QTest::newRow("address") << QByteArray("file:///etc/passwd") << QByteArray();
    QTest::newRow("another machine") << QByteArray("http://192.0.2.1/p.png") << QByteArray();
}

// The rest of the stage is shown.
void tst_HostileStages::pictureIsNotLoaded()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, bytes);
    m_host->data.write(QStringLiteral("stage/p.png"), bytes);
    m_host->data.write(QStringLiteral("stage/bad.xml"), sceneWithPicture(source));
    QTRY_VERIFY(indexOf(Bad).isValid());
    const EffortLimit limit;
    QVERIFY(select(Bad));
    QVERIFY(limit.isKept(bytes.size()));
    QVERIFY(preview()->stage().items().first().picture.isNull());
}

void tst_HostileStages::package_data()
{
    QTest::addColumn<bool>("isStage");
    QTest::newRow("picture of 10 GiB that says so") << true;
    QTest::newRow("picture of 10 GiB that says 1,000 bytes") << true;
    QTest::newRow("scene of 10 GiB that says so") << false;
    QTest::newRow("scene of 10 GiB that says 1,000 bytes") << false;
    QTest::newRow("entries above the folder") << true;
    QTest::newRow("entry of no name") << false;
    QTest::newRow("scene twice") << true;
}

// Nothing is unpacked to the disk, and no more than a picture may be to memory.
void tst_HostileStages::package()
{
    QFETCH(bool, isStage);
    const auto name = QStringLiteral("bad.zstg");
    QProcess maker;
    maker.start(QStringLiteral("python3"),
                {QStringLiteral(ZAVO_MAKE_PACKAGE), QLatin1String(QTest::currentDataTag()),
                 stagePath(name)});
    QVERIFY(maker.waitForFinished(60000));
    QVERIFY2(maker.exitCode() == 0, maker.readAllStandardError().constData());
    QTRY_VERIFY(indexOf(name).isValid());
    const QStringList files = allFiles();
    const EffortLimit limit;
    const long peak = peakKibibytes();
    QCOMPARE(select(name), isStage);
    QVERIFY(limit.isKept(QFileInfo(stagePath(name)).size()));
    QVERIFY2(peakKibibytes() - peak < 512 * 1024,
             qPrintable(QString::number(peakKibibytes() - peak)));
    if (isStage)
        QVERIFY(preview()->stage().items().first().picture.isNull());
    QCOMPARE(allFiles(), files);
    QVERIFY(!QFile::exists(QStringLiteral("/tmp/zavo-evil.xml")));
}

void tst_HostileStages::draggedNameIsRefused_data()
{
    QTest::addColumn<QByteArray>("address");
    const auto row = [](const char *name, const char *address) {
        QTest::newRow(name) << QByteArray(address);
    };
    row("above", "file://STAGE/../a.xml");
    row("above in percents", "file://STAGE/%2e%2e/a.xml");
    row("above in percents of percents", "file://STAGE/%252e%252e/a.xml");
    row("above in capitals", "file://STAGE/%2E%2E%2Fa.xml");
    row("absolute path", "file:///etc/a.xml");
    row("folder that begins alike", "file://STAGE2/a.xml");
    row("folder that begins alike, in other letters", "file://STAGEX/../stage2/a.xml");
    row("folder itself", "file://STAGE");
    row("folder with a suffix", "file://STAGE/.xml/..");
    row("another machine", "http://192.0.2.1/stage/a.xml");
    row("share", "file://192.0.2.1/stage/a.xml");
    row("no address", "a.xml");
    row("NUL", "file://STAGE/a.xml%00.png");
}

void tst_HostileStages::draggedNameIsRefused()
{
    QFETCH(QByteArray, address);
    m_host->data.write(QStringLiteral("stage2/a.xml"), scene({}));
    m_host->data.write(QStringLiteral("a.xml"), scene({}));
    const QByteArray root = QFile::encodeName(m_host->data.stageFolder());
    address.replace("STAGE", root);
    auto mimeData = std::make_unique<QMimeData>();
    mimeData->setData(QStringLiteral("text/uri-list"), address + "\r\n");
    DragGesture drag(std::move(mimeData));
    auto *const view = m_host->area(0)->findChild<ZvTimeTableView *>();
    QVERIFY(!drag.enter(view, view->mapToScene(view->viewport()->rect().center())));
    QVERIFY(bands().isEmpty());
}

void tst_HostileStages::draggedNamesInNumber()
{
    constexpr int Names = 10000;
    const QByteArray one =
        "file://" + QFile::encodeName(m_host->data.stageFolder()) + "/good.xml\r\n";
    auto mimeData = std::make_unique<QMimeData>();
    const QByteArray all = one.repeated(Names);
    mimeData->setData(QStringLiteral("text/uri-list"), all);
    const EffortLimit limit;
    DragGesture drag(std::move(mimeData));
    auto *const view = m_host->area(0)->findChild<ZvTimeTableView *>();
    drag.enter(view, view->mapToScene(view->viewport()->rect().center()));
    drag.drop();
    QVERIFY(limit.isKept(all.size()));
    QCOMPARE(bands(), QStringList(QVector<QString>(Names, Good).toList()));
}

void tst_HostileStages::namesOfFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("percents") << QStringLiteral("%2e%2e%2fa.xml");
    QTest::newRow("dots") << QStringLiteral("a.._...xml");
    QTest::newRow("line break") << QStringLiteral("a\r\nb.xml");
    QTest::newRow("control characters") << QStringLiteral("\x01\x1b[2J\x7f.xml");
    QTest::newRow("turned direction") << QString(QChar(0x202e)) + QStringLiteral("gpj.xml");
    QTest::newRow("markup") << QStringLiteral("<img src=x>&amp;.xml");
    QTest::newRow("places") << QStringLiteral("%1%2%n.xml");
    QTest::newRow("255 bytes") << QString(251, QLatin1Char('a')) + QStringLiteral(".xml");
}

// A file of any name can be shown; as the default stage it has the name that it has.
void tst_HostileStages::namesOfFiles()
{
    QFETCH(QString, name);
    m_host->data.write(QStringLiteral("stage/") + name, scene({}));
    QTRY_COMPARE(list()->model()->rowCount(list()->rootIndex()), 2);
    QVERIFY(indexOf(name).isValid());
    QVERIFY(select(name));
    QVERIFY(!m_host->window->grab().isNull());
    QMetaObject::invokeMethod(list(), "setSelectedItemToDefaultStage");
    QCOMPARE(m_host->area(0)->defaultStageName(), name);
}

QTEST_MAIN(tst_HostileStages)
#include "tst_hostilestages.moc"
