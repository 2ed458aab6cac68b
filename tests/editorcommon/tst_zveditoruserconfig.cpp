#include "ZvEditorUserConfig.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using Zavo::ZvEditorUserConfig;

class tst_ZvEditorUserConfig : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void settingsAreTheUsersIniFile();
    void valueGivesWhatWasStored();
    void valueGivesTheDefault();
    void syncWritesTheFile();
    void nullSettingsReadDefaultsAndWriteNothing();
    void deadSettingsAreNull();
    void emptyKeyIsNoKey();
    void damagedFileGivesDefaults();
};

void tst_ZvEditorUserConfig::cleanup()
{
    ZvEditorUserConfig::resetSettings();
}

void tst_ZvEditorUserConfig::settingsAreTheUsersIniFile()
{
    QSettings *settings = ZvEditorUserConfig::settings();
    QVERIFY(settings);
    QCOMPARE(settings->format(), QSettings::IniFormat);
    QCOMPARE(settings->fileName(),
             qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/Zavo/ScheduleEditor.ini"));
    QCOMPARE(ZvEditorUserConfig::settings(), settings);
}

void tst_ZvEditorUserConfig::valueGivesWhatWasStored()
{
    QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("a.ini")), QSettings::IniFormat);
    ZvEditorUserConfig::setSettings(&settings);
    QCOMPARE(ZvEditorUserConfig::settings(), &settings);
    ZvEditorUserConfig::setValue(QStringLiteral("group/visible"), false);
    ZvEditorUserConfig::setValue(QStringLiteral("名前"), QStringLiteral("駅"));
    QCOMPARE(ZvEditorUserConfig::value(QStringLiteral("group/visible"), true), QVariant(false));
    QCOMPARE(ZvEditorUserConfig::value(QStringLiteral("名前")).toString(), QStringLiteral("駅"));
    QCOMPARE(settings.value(QStringLiteral("group/visible"), true).toBool(), false);
}

void tst_ZvEditorUserConfig::valueGivesTheDefault()
{
    QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("a.ini")), QSettings::IniFormat);
    ZvEditorUserConfig::setSettings(&settings);
    QCOMPARE(ZvEditorUserConfig::value(QStringLiteral("missing"), 7), QVariant(7));
    QVERIFY(!ZvEditorUserConfig::value(QStringLiteral("missing")).isValid());
}

void tst_ZvEditorUserConfig::syncWritesTheFile()
{
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("a.ini"));
    QSettings settings(file, QSettings::IniFormat);
    ZvEditorUserConfig::setSettings(&settings);
    ZvEditorUserConfig::setValue(QStringLiteral("schedule_last_selected_type"), 3);
    ZvEditorUserConfig::sync();
    QFile written(file);
    QVERIFY(written.open(QIODevice::ReadOnly));
    QVERIFY(written.readAll().contains("schedule_last_selected_type=3"));
}

void tst_ZvEditorUserConfig::nullSettingsReadDefaultsAndWriteNothing()
{
    ZvEditorUserConfig::setSettings(nullptr);
    QCOMPARE(ZvEditorUserConfig::settings(), nullptr);
    ZvEditorUserConfig::setValue(QStringLiteral("lost"), 1);
    ZvEditorUserConfig::sync();
    QCOMPARE(ZvEditorUserConfig::value(QStringLiteral("lost"), 2), QVariant(2));
    ZvEditorUserConfig::resetSettings();
    QVERIFY(!ZvEditorUserConfig::settings()->contains(QStringLiteral("lost")));
}

void tst_ZvEditorUserConfig::deadSettingsAreNull()
{
    QTemporaryDir folder;
    auto settings =
        std::make_unique<QSettings>(folder.filePath(QStringLiteral("a.ini")), QSettings::IniFormat);
    ZvEditorUserConfig::setSettings(settings.get());
    settings.reset();
    QCOMPARE(ZvEditorUserConfig::settings(), nullptr);
    QCOMPARE(ZvEditorUserConfig::value(QStringLiteral("a"), 5), QVariant(5));
}

void tst_ZvEditorUserConfig::emptyKeyIsNoKey()
{
    ZvEditorUserConfig::setValue(QString(), 1);
    QCOMPARE(ZvEditorUserConfig::value(QString(), 4), QVariant(4));
}

void tst_ZvEditorUserConfig::damagedFileGivesDefaults()
{
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("a.ini"));
    QFile damaged(file);
    QVERIFY(damaged.open(QIODevice::WriteOnly));
    damaged.write(QByteArrayLiteral("[General\n\0\xff=@Variant(\\0\\0\\0\x7f\n@@@=%%%\n"));
    damaged.close();
    QSettings settings(file, QSettings::IniFormat);
    ZvEditorUserConfig::setSettings(&settings);
    QCOMPARE(ZvEditorUserConfig::value(QStringLiteral("schedule_last_selected_type"), 1).toInt(),
             1);
}

QTEST_GUILESS_MAIN(tst_ZvEditorUserConfig)
#include "tst_zveditoruserconfig.moc"
