#include "stages/ZvScheduleStageListView.h"

#include "TemporaryDataFolder.h"
#include "ZvEditorCommon.h"

#include <QtTest>

using namespace Zavo;
using ZavoTest::TemporaryDataFolder;

class tst_ZvScheduleStageListView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void hasTwoSuffixes();
    void encodesAsPercentText();
    void decodesWhatWasEncoded_data();
    void decodesWhatWasEncoded();
    void decodesAnything_data();
    void decodesAnything();

    void readsTheUrisOfADrag_data();
    void readsTheUrisOfADrag();
    void keepsTheOrderOfManyFiles();
    void refusesALinkOutOfTheFolder();
    void followsALinkedStageFolder();
    void readsNamesWithoutAStageFolder();

    void keepsNamesInTheDrag();
    void keepsNothingOfOtherDrags();
    void standsNull();

private:
    QByteArray uriOf(const QString &relativePath) const;

    QScopedPointer<TemporaryDataFolder> m_folder;
};

void tst_ZvScheduleStageListView::init()
{
    m_folder.reset(new TemporaryDataFolder);
    m_folder->makeFolder(QStringLiteral("stage"));
}

void tst_ZvScheduleStageListView::cleanup()
{
    m_folder.reset();
}

QByteArray tst_ZvScheduleStageListView::uriOf(const QString &relativePath) const
{
    return QUrl::fromLocalFile(m_folder->path() + QLatin1Char('/') + relativePath).toEncoded();
}

void tst_ZvScheduleStageListView::hasTwoSuffixes()
{
    QCOMPARE(ZvScheduleStageListView::stageSuffixes(),
             QStringList({QStringLiteral("xml"), QStringLiteral("zstg")}));
}

void tst_ZvScheduleStageListView::encodesAsPercentText()
{
    QCOMPARE(ZvScheduleStageListView::encodeStageNames({QStringLiteral("a b/c.xml")}),
             QByteArray("a%20b%2Fc.xml%0D%0A"));
    QCOMPARE(ZvScheduleStageListView::encodeStageNames(
                 {QStringLiteral("a.xml"), QStringLiteral("b.zstg")}),
             QByteArray("a.xml%0D%0Ab.zstg%0D%0A"));
    QCOMPARE(ZvScheduleStageListView::encodeStageNames({}), QByteArray());
}

void tst_ZvScheduleStageListView::decodesWhatWasEncoded_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("decoded");
    const auto same = [](const char *tag, const QStringList &names) {
        QTest::newRow(tag) << names << names;
    };
    same("none", {});
    same("one", {QStringLiteral("a.xml")});
    same("sub-folder, blanks", {QStringLiteral("a b/c d.zstg"), QStringLiteral("e.xml")});
    same("scripts", {QString::fromUtf8("駅/案内.xml"), QString::fromUtf8("ёлка 🎄.zstg")});
    same("percent and hash", {QStringLiteral("50%.xml"), QStringLiteral("%41#2?.xml")});
    same("line feed alone", {QStringLiteral("a\nb.xml")});
    same("twice the same", {QStringLiteral("a.xml"), QStringLiteral("a.xml")});
    QTest::newRow("empty names go")
        << QStringList({QString(), QStringLiteral("a.xml"), QString(), QStringLiteral("b.xml")})
        << QStringList({QStringLiteral("a.xml"), QStringLiteral("b.xml")});
}

void tst_ZvScheduleStageListView::decodesWhatWasEncoded()
{
    QFETCH(QStringList, names);
    QTEST(
        ZvScheduleStageListView::decodeStageNames(ZvScheduleStageListView::encodeStageNames(names)),
        "decoded");
}

void tst_ZvScheduleStageListView::decodesAnything_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("nothing") << QByteArray() << QStringList();
    QTest::newRow("breaks alone") << QByteArray("%0D%0A\r\n%0D%0A") << QStringList();
    QTest::newRow("no break at the end")
        << QByteArray("a.xml") << QStringList(QStringLiteral("a.xml"));
    QTest::newRow("breaks unencoded")
        << QByteArray("a.xml\r\nb.xml")
        << QStringList({QStringLiteral("a.xml"), QStringLiteral("b.xml")});
}

void tst_ZvScheduleStageListView::decodesAnything()
{
    QFETCH(QByteArray, data);
    QTEST(ZvScheduleStageListView::decodeStageNames(data), "names");
}

void tst_ZvScheduleStageListView::readsTheUrisOfADrag_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isInside");
    const auto inside = [](const char *tag, const char *file, const char *name) {
        QTest::newRow(tag) << QString::fromUtf8(file) << QString::fromUtf8(name) << true;
    };
    const auto outside = [](const char *tag, const char *file) {
        QTest::newRow(tag) << QString::fromUtf8(file) << QString() << false;
    };
    inside("in the folder", "stage/a.xml", "a.xml");
    inside("package", "stage/a.zstg", "a.zstg");
    inside("sub-folders", "stage/b/c d/e.xml", "b/c d/e.xml");
    inside("scripts", "stage/駅/案内.xml", "駅/案内.xml");
    inside("folder in other case", "STAGE/a.xml", "a.xml");
    inside("dots that stay inside", "stage/b/../a.xml", "a.xml");
    inside("last suffix counts", "stage/a.zip.xml", "a.zip.xml");
    outside("beside the folder", "a.xml");
    outside("folder with the same beginning", "stage2/a.xml");
    outside("dots that leave", "stage/../a.xml");
    outside("dots that leave and hide", "stage/b/../../stage2/a.xml");
    QTest::newRow("other suffix") << QStringLiteral("stage/a.png") << QString() << true;
    QTest::newRow("suffix in other case") << QStringLiteral("stage/a.XML") << QString() << true;
    QTest::newRow("suffix in mixed case") << QStringLiteral("stage/a.Zstg") << QString() << true;
    QTest::newRow("no suffix") << QStringLiteral("stage/xml") << QString() << true;
    QTest::newRow("suffix not last") << QStringLiteral("stage/a.xml.bak") << QString() << true;
    QTest::newRow("the folder itself") << QStringLiteral("stage") << QString() << true;
}

void tst_ZvScheduleStageListView::readsTheUrisOfADrag()
{
    QFETCH(QString, file);
    QFETCH(QString, name);
    QFETCH(bool, isInside);
    const QByteArray data = uriOf(file) + "\r\n";
    const QStringList names = name.isEmpty() ? QStringList() : QStringList(name);
    QCOMPARE(ZvScheduleStageListView::stageNamesFromUriList(data, true), names);
    const QString path = QDir::cleanPath(m_folder->path() + QLatin1Char('/') + file);
    QCOMPARE(ZvScheduleStageListView::stageNamesFromUriList(data, false),
             isInside ? names : QStringList(path));
}

void tst_ZvScheduleStageListView::keepsTheOrderOfManyFiles()
{
    const QByteArray data = uriOf(QStringLiteral("stage/b.xml")) + "\r\n\r\n" +
                            uriOf(QStringLiteral("elsewhere.xml")) + "\r\n" +
                            uriOf(QStringLiteral("stage/a.txt")) + "\r\n" +
                            "https://example.org/stage/c.xml\r\n" + "not a uri\r\n" +
                            uriOf(QStringLiteral("stage/a.zstg"));
    QCOMPARE(ZvScheduleStageListView::stageNamesFromUriList(data, true),
             QStringList({QStringLiteral("b.xml"), QStringLiteral("a.zstg")}));
    QCOMPARE(
        ZvScheduleStageListView::stageNamesFromUriList(data, false),
        QStringList({QStringLiteral("b.xml"), m_folder->path() + QStringLiteral("/elsewhere.xml"),
                     QStringLiteral("a.zstg")}));
    QCOMPARE(ZvScheduleStageListView::stageNamesFromUriList(QByteArray(), false), QStringList());
}

void tst_ZvScheduleStageListView::refusesALinkOutOfTheFolder()
{
    const QString outside = m_folder->write(QStringLiteral("secret/a.xml"), QByteArray("<x/>"));
    const QString stage = m_folder->stageFolder();
    m_folder->write(QStringLiteral("stage/real.xml"), QByteArray("<x/>"));
    QVERIFY(QFile::link(outside, stage + QStringLiteral("/file.xml")));
    QVERIFY(QFile::link(m_folder->filePath(QStringLiteral("secret")),
                        stage + QStringLiteral("/folder")));
    QVERIFY(QFile::link(QStringLiteral("/nowhere/a.xml"), stage + QStringLiteral("/broken.xml")));
    QVERIFY(QFile::link(stage + QStringLiteral("/real.xml"), stage + QStringLiteral("/inner.xml")));

    const auto names = [this](const char *file, bool stageFolderOnly) {
        return ZvScheduleStageListView::stageNamesFromUriList(
            uriOf(QStringLiteral("stage/") + QLatin1String(file)), stageFolderOnly);
    };
    for (const char *file : {"file.xml", "folder/a.xml", "folder/missing.xml", "broken.xml"}) {
        QCOMPARE(names(file, true), QStringList());
        QCOMPARE(names(file, false), QStringList(stage + QLatin1Char('/') + QLatin1String(file)));
    }
    QCOMPARE(names("inner.xml", true), QStringList(QStringLiteral("inner.xml")));
}

void tst_ZvScheduleStageListView::followsALinkedStageFolder()
{
    m_folder->write(QStringLiteral("elsewhere/a.xml"), QByteArray("<x/>"));
    QVERIFY(QDir(m_folder->path()).rmdir(QStringLiteral("stage")));
    QVERIFY(QFile::link(m_folder->filePath(QStringLiteral("elsewhere")), m_folder->stageFolder()));
    QCOMPARE(
        ZvScheduleStageListView::stageNamesFromUriList(uriOf(QStringLiteral("stage/a.xml")), true),
        QStringList(QStringLiteral("a.xml")));
}

void tst_ZvScheduleStageListView::readsNamesWithoutAStageFolder()
{
    QVERIFY(QDir(m_folder->path()).rmdir(QStringLiteral("stage")));
    QCOMPARE(ZvScheduleStageListView::stageNamesFromUriList(uriOf(QStringLiteral("stage/b/a.xml")),
                                                            true),
             QStringList(QStringLiteral("b/a.xml")));
}

void tst_ZvScheduleStageListView::keepsNamesInTheDrag()
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(m_folder->filePath(QStringLiteral("stage/b/a.xml"))),
                  QUrl::fromLocalFile(m_folder->filePath(QStringLiteral("stage/c.zstg")))});
    QVERIFY(ZvScheduleStageListView::keepStageNames(&data));
    const QStringList names{QStringLiteral("b/a.xml"), QStringLiteral("c.zstg")};
    QCOMPARE(data.data(ZvEditorCommon::MIME_TYPE_STAGE_NAME),
             ZvScheduleStageListView::encodeStageNames(names));
    QCOMPARE(ZvScheduleStageListView::keptStageNames(&data), names);
    QCOMPARE(data.urls().size(), 2);
}

void tst_ZvScheduleStageListView::keepsNothingOfOtherDrags()
{
    QMimeData text;
    text.setText(QStringLiteral("a.xml"));
    QVERIFY(!ZvScheduleStageListView::keepStageNames(&text));
    QVERIFY(!text.hasFormat(ZvEditorCommon::MIME_TYPE_STAGE_NAME));
    QCOMPARE(ZvScheduleStageListView::keptStageNames(&text), QStringList());

    QMimeData outside;
    outside.setUrls({QUrl::fromLocalFile(m_folder->filePath(QStringLiteral("a.xml")))});
    QVERIFY(!ZvScheduleStageListView::keepStageNames(&outside));
    QVERIFY(!outside.hasFormat(ZvEditorCommon::MIME_TYPE_STAGE_NAME));
}

void tst_ZvScheduleStageListView::standsNull()
{
    QVERIFY(!ZvScheduleStageListView::keepStageNames(nullptr));
    QCOMPARE(ZvScheduleStageListView::keptStageNames(nullptr), QStringList());
}

QTEST_GUILESS_MAIN(tst_ZvScheduleStageListView)
#include "tst_zvschedulestagelistview.moc"
