#include "ZvEditorConfig.h"

#include "ZvConfig.h"

#include <QTemporaryDir>
#include <QtTest>

using Zavo::ZvConfig;
using Zavo::ZvEditorConfig;

namespace {
void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}
} // namespace

class tst_ZvEditorConfig : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void dataDirComesFromTheEnvironment();
    void dataDirFallsBackToTheUsersFolder();
    void setDataDirReplacesAndIsTakenBack();
    void configOfAFolderWithoutFileHasDefaults();
    void configIsReadOnceAndReloaded();
    void configFollowsTheDataDir();
};

void tst_ZvEditorConfig::cleanup()
{
    ZvEditorConfig::setDataDir(QString());
}

void tst_ZvEditorConfig::dataDirComesFromTheEnvironment()
{
    QCOMPARE(ZvEditorConfig::dataDir(), qEnvironmentVariable("ZAVO_DATA_DIR"));
    QVERIFY(!ZvEditorConfig::dataDir().isEmpty());
}

void tst_ZvEditorConfig::dataDirFallsBackToTheUsersFolder()
{
    const QByteArray before = qgetenv("ZAVO_DATA_DIR");
    qunsetenv("ZAVO_DATA_DIR");
    const QString dataDir = ZvEditorConfig::dataDir();
    qputenv("ZAVO_DATA_DIR", before);
    QCOMPARE(dataDir, qEnvironmentVariable("XDG_DATA_HOME") + QStringLiteral("/zavo"));
}

void tst_ZvEditorConfig::setDataDirReplacesAndIsTakenBack()
{
    ZvEditorConfig::setDataDir(QStringLiteral("/somewhere/else"));
    QCOMPARE(ZvEditorConfig::dataDir(), QStringLiteral("/somewhere/else"));
    ZvEditorConfig::setDataDir(QString());
    QCOMPARE(ZvEditorConfig::dataDir(), qEnvironmentVariable("ZAVO_DATA_DIR"));
}

void tst_ZvEditorConfig::configOfAFolderWithoutFileHasDefaults()
{
    ZvEditorConfig::setDataDir(QStringLiteral("/no/such/folder"));
    ZvConfig *config = ZvEditorConfig::getConfig();
    QVERIFY(config);
    QCOMPARE(config->allInOne(), false);
    QCOMPARE(config->defaultScheduleUsedFirst(), false);
    QCOMPARE(config->removingDuration(), 365);
}

void tst_ZvEditorConfig::configIsReadOnceAndReloaded()
{
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("config.ini"));
    write(file, "AllInOne=true\nRemovingDuration=30\n");
    ZvEditorConfig::setDataDir(folder.path());
    const ZvConfig *config = ZvEditorConfig::getConfig();
    QCOMPARE(config->allInOne(), true);
    QCOMPARE(config->removingDuration(), 30);

    write(file, "AllInOne=false\nRemovingDuration=31\n");
    QCOMPARE(ZvEditorConfig::getConfig()->removingDuration(), 30);
    ZvEditorConfig::reload();
    QCOMPARE(ZvEditorConfig::getConfig(), config);
    QCOMPARE(config->allInOne(), false);
    QCOMPARE(config->removingDuration(), 31);
}

void tst_ZvEditorConfig::configFollowsTheDataDir()
{
    QTemporaryDir first;
    QTemporaryDir second;
    write(first.filePath(QStringLiteral("config.ini")), "DefaultScheduleUsedFirst=true\n");
    ZvEditorConfig::setDataDir(first.path());
    const ZvConfig *config = ZvEditorConfig::getConfig();
    QVERIFY(config->defaultScheduleUsedFirst());
    ZvEditorConfig::setDataDir(second.path());
    QCOMPARE(ZvEditorConfig::getConfig(), config);
    QVERIFY(!config->defaultScheduleUsedFirst());
}

QTEST_GUILESS_MAIN(tst_ZvEditorConfig)
#include "tst_zveditorconfig.moc"
