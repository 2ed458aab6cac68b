#include "Catalogues.h"
#include "LanguageChoice.h"

#include <QFile>
#include <QLocale>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using Zavo::Catalogues;

class tst_Catalogues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void loadsQtsOwn();
    void speaksOneLanguage();
    void namesLanguages();
    void loadsOurs_data();
    void loadsOurs();
    void firstFolderWins();
    void endsWithTheObject();
    void refusesWhatIsNoLanguage();
    void standsForTheSystem();
    void namesDaysInTheLanguage_data();
    void namesDaysInTheLanguage();
    void callsLanguagesByTheirNames();

private:
    static void release(const QString &folder, const QString &language, const QString &text);

    QTemporaryDir m_folder;
    QTemporaryDir m_otherFolder;
};

namespace {

QString channelInForce()
{
    return QCoreApplication::translate("Test", "Channel");
}

} // namespace

void tst_Catalogues::initTestCase()
{
    release(m_folder.path(), QStringLiteral("de"), QStringLiteral("Kanal"));
    release(m_folder.path(), QStringLiteral("pt_BR"), QStringLiteral("Canal"));
    release(m_otherFolder.path(), QStringLiteral("de"), QStringLiteral("Anderer Kanal"));
}

void tst_Catalogues::cleanup()
{
    QLocale::setDefault(QLocale::c());
}

void tst_Catalogues::release(const QString &folder, const QString &language, const QString &text)
{
    const QString source = folder + QStringLiteral("/zavo-schedule-editor_%1.ts").arg(language);
    QFile file(source);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QStringLiteral("<?xml version=\"1.0\" encoding=\"utf-8\"?><!DOCTYPE TS>"
                              "<TS version=\"2.1\" language=\"%1\"><context><name>Test</name>"
                              "<message><source>Channel</source>"
                              "<translation>%2</translation></message></context></TS>")
                   .arg(language, text)
                   .toUtf8());
    file.close();
    QCOMPARE(QProcess::execute(QStringLiteral(ZAVO_LRELEASE), {QStringLiteral("-silent"), source}),
             0);
}

void tst_Catalogues::loadsQtsOwn()
{
    Catalogues catalogues({m_folder.path()});
    QVERIFY(catalogues.load(QStringLiteral("de")));
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Abbrechen"));
    QCOMPARE(QLocale().language(), QLocale::German);
}

void tst_Catalogues::speaksOneLanguage()
{
    Catalogues catalogues({m_otherFolder.path()});
    QVERIFY(catalogues.load(QStringLiteral("fr")));
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Cancel"));
}

void tst_Catalogues::namesLanguages()
{
    QCOMPARE(Catalogues::languages({m_folder.path(), m_otherFolder.path()}),
             (QStringList{QStringLiteral("de"), QStringLiteral("pt_BR")}));
    QCOMPARE(Catalogues::languages({m_folder.filePath(QStringLiteral("none"))}), QStringList());
}

void tst_Catalogues::loadsOurs_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("expected");
    QTest::newRow("language") << "de"
                              << "Kanal";
    QTest::newRow("with a country") << "de_AT"
                                    << "Kanal";
    QTest::newRow("with a hyphen") << "de-CH"
                                   << "Kanal";
    QTest::newRow("of a country") << "pt_BR"
                                  << "Canal";
    QTest::newRow("without a catalogue") << "fr"
                                         << "Channel";
    QTest::newRow("English") << "en"
                             << "Channel";
}

void tst_Catalogues::loadsOurs()
{
    QFETCH(QString, language);
    Catalogues catalogues({m_folder.path()});
    QVERIFY(catalogues.load(language));
    QTEST(channelInForce(), "expected");
}

void tst_Catalogues::firstFolderWins()
{
    const QString empty = m_folder.filePath(QStringLiteral("none"));
    Catalogues catalogues({empty, m_otherFolder.path(), m_folder.path()});
    QVERIFY(catalogues.load(QStringLiteral("de")));
    QCOMPARE(channelInForce(), QStringLiteral("Anderer Kanal"));
}

void tst_Catalogues::endsWithTheObject()
{
    {
        Catalogues catalogues({m_folder.path()});
        QVERIFY(catalogues.load(QStringLiteral("de")));
        QCOMPARE(channelInForce(), QStringLiteral("Kanal"));
    }
    QCOMPARE(channelInForce(), QStringLiteral("Channel"));
}

void tst_Catalogues::refusesWhatIsNoLanguage()
{
    Catalogues catalogues({m_folder.path()});
    QVERIFY(!catalogues.load(QStringLiteral("no such language")));
    QVERIFY(!catalogues.load(QStringLiteral("../../etc")));
    QCOMPARE(channelInForce(), QStringLiteral("Channel"));
}

void tst_Catalogues::standsForTheSystem()
{
    Catalogues catalogues({m_folder.path()});
    QVERIFY(catalogues.load(QString()));
    QCOMPARE(channelInForce(), QStringLiteral("Channel"));
}

void tst_Catalogues::namesDaysInTheLanguage_data()
{
    QTest::addColumn<QByteArray>("everything");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QByteArray>("files");
    QTest::addColumn<QByteArray>("dates");
    const QByteArray none;
    QTest::newRow("another") << none << "ja" << none << QByteArray("ja_JP.UTF-8");
    QTest::newRow("another than that of everything")
        << QByteArray("de_AT.UTF-8") << "fr" << QByteArray("de_AT.UTF-8")
        << QByteArray("fr_FR.UTF-8");
    QTest::newRow("the same") << QByteArray("de_AT.UTF-8") << "de" << none << none;
    QTest::newRow("none") << none << QString() << none << none;
    QTest::newRow("no language") << none << "../nonsense" << none << none;
}

void tst_Catalogues::namesDaysInTheLanguage()
{
    QFETCH(QByteArray, everything);
    QFETCH(QString, language);
    const QByteArray before = qgetenv("LC_ALL");
    for (const auto *variable : {"LC_ALL", "LC_CTYPE", "LC_TIME"})
        qunsetenv(variable);
    if (!everything.isEmpty())
        qputenv("LC_ALL", everything);
    Zavo::LanguageChoice::applyToDates(language);
    const QByteArray files = qgetenv("LC_CTYPE");
    const QByteArray dates = qgetenv("LC_TIME");
    const QByteArray after = qgetenv("LC_ALL");
    qputenv("LC_ALL", before);
    QTEST(files, "files");
    QTEST(dates, "dates");
    QCOMPARE(after, dates.isEmpty() ? everything : QByteArray());
}

void tst_Catalogues::callsLanguagesByTheirNames()
{
    using Zavo::LanguageChoice::nameOf;
    QCOMPARE(nameOf(QStringLiteral("de")), QStringLiteral("Deutsch"));
    QCOMPARE(nameOf(QStringLiteral("fr")), QStringLiteral("Français"));
    QCOMPARE(nameOf(QStringLiteral("ja")), QStringLiteral("日本語"));
    QCOMPARE(nameOf(QStringLiteral("en")), QStringLiteral("English"));
}

QTEST_GUILESS_MAIN(tst_Catalogues)
#include "tst_catalogues.moc"
