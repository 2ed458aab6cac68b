#include "TemporaryDataFolder.h"
#include "VirtualDisplay.h"

#include <QDir>
#include <QImage>
#include <QLockFile>
#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

using ZavoTest::TemporaryDataFolder;

namespace {

/// What one run of the program gave back.
struct Run
{
    int exitCode = -1;
    QString output;
    QString errors;
};

} // namespace

class tst_Program : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void printsHelpAndVersion_data();
    void printsHelpAndVersion();
    void speaksTheUsersLanguage_data();
    void speaksTheUsersLanguage();
    void speaksTheChosenLanguage();
    void countsAsTheLanguageDoes_data();
    void countsAsTheLanguageDoes();
    void refusesALineThatMakesNoSense_data();
    void refusesALineThatMakesNoSense();
    void writesAScreenshot_data();
    void writesAScreenshot();
    void screenshotFollowsTheRatio();
    void createsTheFirstChannels();
    void leavesTheExamplesAlone();
    void neverTakesATroubledFolderForAnEmptyOne_data();
    void neverTakesATroubledFolderForAnEmptyOne();
    void tellsOfAScreenshotThatCannotBeWritten();
    void needsADisplayForItsWindow();
    void leavesAFolderThatIsInUse();
    void asksAboutAFolderInUse();
    void endsProperly();
    void tellsOfASessionThatDidNotEnd();
    void checksWithoutADisplay_data();
    void checksWithoutADisplay();
    void standsAKill();

private:
    Run run(const QStringList &arguments,
            const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment());
    QString data() const { return m_folder->path(); }

    std::unique_ptr<TemporaryDataFolder> m_folder;
};

namespace {

QProcessEnvironment environmentWithoutDisplay()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const auto *variable : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        environment.remove(QLatin1String(variable));
    return environment;
}

} // namespace

void tst_Program::init()
{
    m_folder = std::make_unique<TemporaryDataFolder>();
}

Run tst_Program::run(const QStringList &arguments, const QProcessEnvironment &environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(ZAVO_PROGRAM), arguments);
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

void tst_Program::printsHelpAndVersion_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("printed");
    QTest::newRow("help") << "--help"
                          << "--data-dir <folder>";
    QTest::newRow("h") << "-h"
                       << "--screenshot <file>";
    QTest::newRow("version") << "--version"
                             << "zavo-schedule-editor " ZAVO_VERSION;
    QTest::newRow("v") << "-v"
                       << "zavo-schedule-editor " ZAVO_VERSION;
}

void tst_Program::printsHelpAndVersion()
{
    QFETCH(QString, option);
    QFETCH(QString, printed);
    const Run result = run({option}, environmentWithoutDisplay());
    QCOMPARE(result.exitCode, 0);
    QVERIFY2(result.output.contains(printed), qPrintable(result.output));
    QCOMPARE(result.errors, QString());
}

void tst_Program::speaksTheUsersLanguage_data()
{
    QTest::addColumn<QString>("languages");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("printed");
    const QString english = QStringLiteral("Opens this data folder.");
    const QString german = QStringLiteral("Öffnet diesen Datenordner.");
    const QString french = QStringLiteral("Ouvre ce dossier de données.");
    QTest::newRow("of the system") << QString() << "ja_JP.UTF-8"
                                   << "このデータフォルダーを開きます。";
    QTest::newRow("of another country") << QString() << "de_AT.UTF-8" << german;
    QTest::newRow("without a catalogue") << QString() << "es_ES.UTF-8" << english;
    QTest::newRow("first that is there") << "es:fr:de"
                                         << "de_DE.UTF-8" << french;
    QTest::newRow("English first") << "en_GB:de"
                                   << "de_DE.UTF-8" << english;
}

void tst_Program::speaksTheUsersLanguage()
{
    QFETCH(QString, languages);
    QFETCH(QString, locale);
    QFETCH(QString, printed);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("LC_ALL"));
    environment.insert(QStringLiteral("LC_CTYPE"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("LANG"), locale);
    environment.insert(QStringLiteral("LANGUAGE"), languages);
    const Run result = run({QStringLiteral("--help")}, environment);
    QVERIFY2(result.output.contains(printed), qPrintable(result.output));
}

void tst_Program::speaksTheChosenLanguage()
{
    m_folder->write(QStringLiteral("config/Zavo/ScheduleEditor.ini"), "[General]\nlanguage=fr\n");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"),
                       m_folder->filePath(QStringLiteral("config")));
    const QString help = QStringLiteral("--help");
    const Run french = run({help}, environment);
    QVERIFY2(french.output.contains(QStringLiteral("dossier")), qPrintable(french.output));
    const Run german = run({help, QStringLiteral("--language"), QStringLiteral("de")}, environment);
    QVERIFY2(german.output.contains(QStringLiteral("Datenordner")), qPrintable(german.output));
    m_folder->write(QStringLiteral("config/Zavo/ScheduleEditor.ini"),
                    "[General]\nlanguage=../nonsense\n");
    const Run none = run({help}, environment);
    QCOMPARE(none.exitCode, 0);
    QVERIFY2(none.output.contains(QStringLiteral("Opens this")), qPrintable(none.output));
}

void tst_Program::countsAsTheLanguageDoes_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("printed");
    QTest::newRow("English") << "en"
                             << "1 finding in 1 channel file, 0 stages.";
    QTest::newRow("German") << "de"
                            << "1 Befund: 1 Kanaldatei, 0 Szenen.";
    QTest::newRow("French") << "fr"
                            << QStringLiteral("1 anomalie dans 1 fichier de canal, 0 scène.");
    QTest::newRow("Japanese")
        << "ja"
        << "1 件の検出事項があります (チャンネルファイル 1 個、ステージ 0 個)。";
}

void tst_Program::countsAsTheLanguageDoes()
{
    QFETCH(QString, language);
    QFETCH(QString, printed);
    m_folder->write(QStringLiteral("channel/channel0.xml"), "half");
    const Run result = run({QStringLiteral("--check"), QStringLiteral("--data-dir"), data(),
                            QStringLiteral("--language"), language});
    QVERIFY2(result.output.endsWith(printed + QLatin1Char('\n')), qPrintable(result.output));
}

void tst_Program::refusesALineThatMakesNoSense_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QString>("named");
    QTest::newRow("option") << "--no-such-option"
                            << "no-such-option";
    QTest::newRow("word") << "word"
                          << "word";
    QTest::newRow("language") << "--language=nonsense"
                              << "nonsense";
}

void tst_Program::refusesALineThatMakesNoSense()
{
    QFETCH(QString, argument);
    QFETCH(QString, named);
    const Run result = run({argument});
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.errors.startsWith(QStringLiteral("zavo-schedule-editor: ")),
             qPrintable(result.errors));
    QVERIFY2(result.errors.contains(named), qPrintable(result.errors));
}

void tst_Program::writesAScreenshot_data()
{
    QTest::addColumn<bool>("display");
    QTest::newRow("offscreen platform chosen by the environment") << true;
    QTest::newRow("without a display") << false;
}

void tst_Program::writesAScreenshot()
{
    QFETCH(bool, display);
    m_folder->copyFrom(QStringLiteral(ZAVO_SOURCE_DIR "/examples/data"));
    const QString picture = m_folder->filePath(QStringLiteral("picture.png"));
    const Run result =
        run({QStringLiteral("--data-dir"), data(), QStringLiteral("--screenshot"), picture},
            display ? QProcessEnvironment::systemEnvironment() : environmentWithoutDisplay());
    QVERIFY2(result.exitCode == 0, qPrintable(result.errors));
    const QImage image(picture, "PNG");
    QCOMPARE(image.size(), QSize(1280, 860));
}

void tst_Program::screenshotFollowsTheRatio()
{
    m_folder->copyFrom(QStringLiteral(ZAVO_SOURCE_DIR "/examples/data"));
    const QString picture = m_folder->filePath(QStringLiteral("picture.png"));
    const QStringList arguments{QStringLiteral("--data-dir=") + data(),
                                QStringLiteral("--screenshot=") + picture};
    QCOMPARE(run(arguments).exitCode, 0);
    const QImage plain(picture, "PNG");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("ZAVO_DPI_RATIO"), QStringLiteral("2"));
    QCOMPARE(run(arguments, environment).exitCode, 0);
    const QImage scaled(picture, "PNG");
    QVERIFY(!plain.isNull());
    QVERIFY(!scaled.isNull());
    QVERIFY(plain != scaled);
}

void tst_Program::createsTheFirstChannels()
{
    const QString fresh = m_folder->filePath(QStringLiteral("fresh/folder"));
    const QString picture = m_folder->filePath(QStringLiteral("picture.png"));
    const Run result =
        run({QStringLiteral("--data-dir"), fresh, QStringLiteral("--screenshot"), picture});
    QVERIFY2(result.exitCode == 0, qPrintable(result.errors));
    QCOMPARE(QDir(fresh + QStringLiteral("/channel")).entryList(QDir::Files).size(), 11);
}

void tst_Program::leavesTheExamplesAlone()
{
    m_folder->copyFrom(QStringLiteral(ZAVO_SOURCE_DIR "/examples/data"));
    const QStringList names = m_folder->names(QStringLiteral("channel"));
    QVERIFY(names.size() >= 11);
    const QString picture = m_folder->filePath(QStringLiteral("picture.png"));
    QCOMPARE(run({QStringLiteral("--data-dir"), data(), QStringLiteral("--screenshot"), picture})
                 .exitCode,
             0);
    QCOMPARE(m_folder->names(QStringLiteral("channel")), names);
    for (const QString &name : names) {
        QFile original(QStringLiteral(ZAVO_SOURCE_DIR "/examples/data/channel/") + name);
        QVERIFY(original.open(QIODevice::ReadOnly));
        QCOMPARE(m_folder->read(QStringLiteral("channel/") + name), original.readAll());
    }
}

void tst_Program::neverTakesATroubledFolderForAnEmptyOne_data()
{
    QTest::addColumn<QString>("obstacle");
    QTest::newRow("data folder is a file") << "data";
    QTest::newRow("channel folder is a file") << "data/channel";
}

void tst_Program::neverTakesATroubledFolderForAnEmptyOne()
{
    QFETCH(QString, obstacle);
    m_folder->write(obstacle, "precious");
    const QString picture = m_folder->filePath(QStringLiteral("picture.png"));
    const Run result =
        run({QStringLiteral("--data-dir"), m_folder->filePath(QStringLiteral("data")),
             QStringLiteral("--screenshot"), picture});
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.errors.contains(m_folder->filePath(obstacle)), qPrintable(result.errors));
    QVERIFY2(result.errors.contains(QStringLiteral("is not a folder")), qPrintable(result.errors));
    QCOMPARE(m_folder->read(obstacle), QByteArray("precious"));
    QVERIFY(!QFile::exists(picture));
}

void tst_Program::tellsOfAScreenshotThatCannotBeWritten()
{
    const QString picture = m_folder->filePath(QStringLiteral("none/picture.png"));
    const Run result =
        run({QStringLiteral("--data-dir"), data(), QStringLiteral("--screenshot"), picture});
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.errors.contains(picture), qPrintable(result.errors));
}

void tst_Program::needsADisplayForItsWindow()
{
    const Run result = run({QStringLiteral("--data-dir"), data()}, environmentWithoutDisplay());
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.errors.contains(QStringLiteral("no display")), qPrintable(result.errors));
    QVERIFY(m_folder->names().isEmpty());
}

void tst_Program::leavesAFolderThatIsInUse()
{
    const QString picture = m_folder->filePath(QStringLiteral("picture.png"));
    const QStringList arguments{QStringLiteral("--data-dir"), data(),
                                QStringLiteral("--screenshot"), picture};
    {
        QLockFile lock(m_folder->filePath(QStringLiteral(".zavo-lock")));
        QVERIFY(lock.tryLock(0));
        const Run result = run(arguments);
        QCOMPARE(result.exitCode, 3);
        QVERIFY2(result.errors.contains(data()), qPrintable(result.errors));
        QVERIFY2(result.errors.contains(QString::number(QCoreApplication::applicationPid())),
                 qPrintable(result.errors));
        QVERIFY(!QFile::exists(picture));
        QCOMPARE(m_folder->names(), QStringList(QStringLiteral(".zavo-lock")));
    }
    QCOMPARE(run(arguments).exitCode, 0);
}

void tst_Program::asksAboutAFolderInUse()
{
    for (const auto *program : {"Xvfb", "xdotool"}) {
        if (QStandardPaths::findExecutable(QLatin1String(program)).isEmpty())
            QSKIP("this machine has no display to show the program on");
    }
    const ZavoTest::VirtualDisplay display;
    QVERIFY(!display.name().isEmpty());
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.insert(QStringLiteral("DISPLAY"), display.name());
    // The bus that a display brings along is never given back whole.
    environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
    const auto press = [&environment](const QString &window, const QString &key) {
        QProcess keyboard;
        keyboard.setProcessEnvironment(environment);
        keyboard.start(QStringLiteral("xdotool"),
                       {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                        QStringLiteral("--name"), window, QStringLiteral("windowfocus"),
                        QStringLiteral("key"), key});
        return keyboard.waitForFinished(60000) && keyboard.exitCode() == 0;
    };
    m_folder->copyFrom(QStringLiteral(ZAVO_SOURCE_DIR "/examples/data"));
    QLockFile other(m_folder->filePath(QStringLiteral(".zavo-lock")));
    other.setStaleLockTime(0);
    QVERIFY(other.lock());
    const QString box = QStringLiteral("^Zavo Schedule Editor$");
    QProcess program;
    program.setProcessEnvironment(environment);
    const auto start = [&] {
        program.start(QStringLiteral(ZAVO_PROGRAM), {QStringLiteral("--data-dir"), data()});
    };
    const auto hasEnded = [&program] { return program.state() == QProcess::NotRunning; };
    // Nobody else's folder is touched by one who leaves.
    const QStringList before = m_folder->names();
    start();
    QTRY_VERIFY_WITH_TIMEOUT((press(box, QStringLiteral("Escape")), hasEnded()), 60000);
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 3);
    QCOMPARE(m_folder->names(), before);

    // Once the other has gone, it opens.
    start();
    QTRY_VERIFY_WITH_TIMEOUT(press(box, QStringLiteral("Shift_L")), 60000);
    other.unlock();
    const QString window = QStringLiteral(". - Zavo Schedule Editor$");
    QTRY_VERIFY_WITH_TIMEOUT(
        (press(box, QStringLiteral("Return")), press(window, QStringLiteral("Shift_L"))), 60000);
    QTRY_VERIFY_WITH_TIMEOUT((press(window, QStringLiteral("ctrl+q")), hasEnded()), 60000);
    QCOMPARE(program.exitCode(), 0);
    QVERIFY(!m_folder->names().contains(QStringLiteral(".zavo-lock")));
}

void tst_Program::endsProperly()
{
    QProcess dead;
    dead.start(QStringLiteral("sh"), {QStringLiteral("-c"), QStringLiteral("echo $$")});
    QVERIFY(dead.waitForFinished());
    const QString number = QString::fromLatin1(dead.readAll().trimmed());
    m_folder->copyFrom(QStringLiteral(ZAVO_SOURCE_DIR "/examples/data"));
    m_folder->write(QStringLiteral("channel/.zavo-%1-0.tmp").arg(number), "half");
    const QStringList before = m_folder->names();
    const Run result = run({QStringLiteral("--data-dir"), data(), QStringLiteral("--screenshot"),
                            m_folder->filePath(QStringLiteral("picture.png"))});
    QVERIFY2(result.exitCode == 0, qPrintable(result.errors));
    QVERIFY2(!result.errors.contains(QStringLiteral("session")), qPrintable(result.errors));
    QStringList after = m_folder->names();
    QVERIFY(after.removeOne(QStringLiteral("backup")));
    QVERIFY(after.removeOne(QStringLiteral("picture.png")));
    QCOMPARE(after, before);
    const QStringList channels = m_folder->names(QStringLiteral("channel"));
    QCOMPARE(m_folder->names(QStringLiteral("backup")), channels);
}

void tst_Program::tellsOfASessionThatDidNotEnd()
{
    m_folder->write(QStringLiteral(".zavo-session"),
                    R"({"started": "2026-11-21T04:05:00", "unsavedChannels": ["Lobby"]})");
    const QStringList arguments{QStringLiteral("--data-dir"), data(),
                                QStringLiteral("--screenshot"),
                                m_folder->filePath(QStringLiteral("picture.png"))};
    const Run result = run(arguments);
    QCOMPARE(result.exitCode, 0);
    QVERIFY2(result.errors.contains(QStringLiteral("lost in: Lobby.")), qPrintable(result.errors));
    QVERIFY(!run(arguments).errors.contains(QStringLiteral("session")));
}

void tst_Program::checksWithoutADisplay_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("printed");
    const QByteArray sound = "<Channel version=\"1\" id=\"0\" index=\"0\" name=\"Hall\">"
                             "<Schedule type=\"default\" defaultStage=\"a.xml\"/></Channel>";
    const QStringList none;
    QTest::newRow("sound") << sound << none << 0
                           << "Nothing found in 1 channel file(s), 1 stage(s).\n";
    QTest::newRow("damaged") << sound.left(20) << none << 1 << "channel0.xml: ";
    QTest::newRow("findings") << QByteArray(sound).replace("a.xml", "b.xml") << none << 1
                              << "channel0.xml: Hall: Default schedule: The stage \"b.xml\" does "
                                 "not exist.\n1 finding(s) in 1 channel file(s), 1 stage(s).\n";
    QTest::newRow("no data") << QByteArray() << none << 2 << QString();
    QTest::newRow("nonsense") << sound << QStringList{QStringLiteral("--nonsense")} << 2
                              << QString();
    QTest::newRow("no such language")
        << sound << QStringList{QStringLiteral("--language=nonsense")} << 2 << QString();
}

void tst_Program::checksWithoutADisplay()
{
    QFETCH(QByteArray, content);
    QFETCH(QStringList, options);
    QFETCH(QString, printed);
    m_folder->writeStage(QStringLiteral("a.xml"));
    if (!content.isEmpty())
        m_folder->write(QStringLiteral("channel/channel0.xml"), content);
    const QStringList names = m_folder->names();
    const Run result =
        run(QStringList{QStringLiteral("--check"), QStringLiteral("--data-dir"), data()} + options,
            environmentWithoutDisplay());
    QTEST(result.exitCode, "exitCode");
    QVERIFY2(result.output.contains(printed), qPrintable(result.output));
    QCOMPARE(result.errors.isEmpty(), result.exitCode != 2);
    QCOMPARE(result.output.isEmpty(), result.exitCode == 2);
    QCOMPARE(m_folder->names(), names);
}

void tst_Program::standsAKill()
{
    QProcess first;
    first.start(QStringLiteral(ZAVO_PROGRAM), {QStringLiteral("--data-dir"), data()});
    QVERIFY(first.waitForStarted());
    QTRY_COMPARE_WITH_TIMEOUT(m_folder->names(QStringLiteral("channel")).size(), 11, 60000);
    QTRY_VERIFY(m_folder->names().contains(QStringLiteral(".zavo-session")));
    const QStringList arguments{QStringLiteral("--data-dir"), data(),
                                QStringLiteral("--screenshot"),
                                m_folder->filePath(QStringLiteral("picture.png"))};
    const Run second = run(arguments);
    QCOMPARE(second.exitCode, 3);
    QVERIFY2(second.errors.contains(QString::number(first.processId())), qPrintable(second.errors));
    first.kill();
    QVERIFY(first.waitForFinished());
    const Run third = run(arguments);
    QCOMPARE(third.exitCode, 0);
    QVERIFY2(third.errors.contains(QStringLiteral("did not end properly")),
             qPrintable(third.errors));
    QVERIFY2(third.errors.contains(QStringLiteral("no edits that were not saved")),
             qPrintable(third.errors));
}

QTEST_GUILESS_MAIN(tst_Program)
#include "tst_program.moc"
