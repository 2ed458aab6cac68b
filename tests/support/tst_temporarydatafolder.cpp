#include "TemporaryDataFolder.h"

#include "ZvEditorConfig.h"
#include "ZvEditorUserConfig.h"

#include <QFileInfo>
#include <QSettings>
#include <QtTest>

using Zavo::ZvEditorConfig;
using Zavo::ZvEditorUserConfig;
using ZavoTest::TemporaryDataFolder;

class tst_TemporaryDataFolder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isTheDataFolderWhileItLives();
    void holdsTheUserSettings();
    void writesAndReads();
    void copies();
};

void tst_TemporaryDataFolder::isTheDataFolderWhileItLives()
{
    const QString before = ZvEditorConfig::dataDir();
    QString path;
    {
        TemporaryDataFolder folder;
        path = folder.path();
        QCOMPARE(ZvEditorConfig::dataDir(), path);
        QVERIFY(QFileInfo(path).isDir());
    }
    QCOMPARE(ZvEditorConfig::dataDir(), before);
    QVERIFY(!QFileInfo::exists(path));
}

void tst_TemporaryDataFolder::holdsTheUserSettings()
{
    const QSettings *const before = ZvEditorUserConfig::settings();
    {
        TemporaryDataFolder folder;
        QCOMPARE(ZvEditorUserConfig::settings(), folder.settings());
        ZvEditorUserConfig::setValue(QStringLiteral("key"), 3);
        QCOMPARE(folder.settings()->value(QStringLiteral("key")).toInt(), 3);
        QVERIFY(folder.names().isEmpty());
    }
    QCOMPARE(ZvEditorUserConfig::settings(), before);
    QVERIFY(!ZvEditorUserConfig::value(QStringLiteral("key")).isValid());
}

void tst_TemporaryDataFolder::writesAndReads()
{
    TemporaryDataFolder folder;
    const QString path = folder.write(QStringLiteral("channel/channel0.xml"), "bytes");
    QCOMPARE(path, folder.channelFolder() + QStringLiteral("/channel0.xml"));
    QCOMPARE(folder.read(QStringLiteral("channel/channel0.xml")), QByteArray("bytes"));
    QCOMPARE(folder.names(QStringLiteral("channel")), QStringList(QStringLiteral("channel0.xml")));
    folder.writeStage(QStringLiteral("a/b.xml"), QStringLiteral("<&>"));
    QVERIFY(folder.read(QStringLiteral("stage/a/b.xml")).contains("&lt;&amp;&gt;"));
    QCOMPARE(folder.makeFolder(QStringLiteral("Log")), folder.filePath(QStringLiteral("Log")));
}

void tst_TemporaryDataFolder::copies()
{
    TemporaryDataFolder source;
    source.write(QStringLiteral("channel/channel.xml"), "a");
    source.write(QStringLiteral("config.ini"), "b");
    TemporaryDataFolder target;
    target.copyFrom(source.path());
    QCOMPARE(target.read(QStringLiteral("channel/channel.xml")), QByteArray("a"));
    QCOMPARE(target.read(QStringLiteral("config.ini")), QByteArray("b"));
}

QTEST_MAIN(tst_TemporaryDataFolder)
#include "tst_temporarydatafolder.moc"
