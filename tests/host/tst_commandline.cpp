#include "CommandLine.h"

#include <QDir>
#include <QtTest>

using Zavo::CommandLine;

class tst_CommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void understands_data();
    void understands();
    void dataDirIsAbsolute_data();
    void dataDirIsAbsolute();
    void saysWhatIsWrong_data();
    void saysWhatIsWrong();
    void aFailedCheckHasItsOwnCode();
    void helpNamesEveryOption();
    void versionIsOneLine();
    void knowsWhenNoWindowIsWanted_data();
    void knowsWhenNoWindowIsWanted();
};

Q_DECLARE_METATYPE(Zavo::CommandLine::Wish)

namespace {

QStringList arguments(const QString &words)
{
    return QStringList(QStringLiteral("zavo-schedule-editor")) +
           words.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

CommandLine parsed(const QString &words)
{
    return CommandLine(arguments(words));
}

} // namespace

void tst_CommandLine::initTestCase()
{
    QCoreApplication::setApplicationName(QStringLiteral("zavo-schedule-editor"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.2.3"));
}

void tst_CommandLine::understands_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<CommandLine::Wish>("wish");
    QTest::addColumn<QString>("dataDir");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("screenshotFile");
    const auto row = [](const char *words) -> QTestData & {
        return QTest::newRow(*words ? words : "nothing") << QString::fromLatin1(words);
    };
    const QString none;
    row("") << CommandLine::Wish::Edit << none << none << none;
    row("--data-dir /a/b") << CommandLine::Wish::Edit << "/a/b" << none << none;
    row("--data-dir=/a/b/") << CommandLine::Wish::Edit << "/a/b" << none << none;
    row("--data-dir /a --data-dir /b") << CommandLine::Wish::Edit << "/b" << none << none;
    row("--language pt_BR") << CommandLine::Wish::Edit << none << "pt_BR" << none;
    row("--language pt_BR --language=de") << CommandLine::Wish::Edit << none << "de" << none;
    row("--screenshot a.png --language ja") << CommandLine::Wish::Screenshot << none << "ja"
                                            << "a.png";
    row("--check") << CommandLine::Wish::Check << none << none << none;
    row("--check --data-dir /a --language de") << CommandLine::Wish::Check << "/a"
                                               << "de" << none;
    row("--help") << CommandLine::Wish::Help << none << none << none;
    row("-h") << CommandLine::Wish::Help << none << none << none;
    row("--version") << CommandLine::Wish::Version << none << none << none;
    row("-v") << CommandLine::Wish::Version << none << none << none;
    row("--help --no-such-option") << CommandLine::Wish::Help << none << none << none;
    row("--version --screenshot a.png") << CommandLine::Wish::Version << none << none << none;
}

void tst_CommandLine::understands()
{
    QFETCH(QString, words);
    const CommandLine line = parsed(words);
    QTEST(line.wish(), "wish");
    QTEST(line.dataDir(), "dataDir");
    QTEST(CommandLine::languageIn(arguments(words)), "language");
    QTEST(line.screenshotFile(), "screenshotFile");
    QCOMPARE(line.errorText(), QString());
}

void tst_CommandLine::dataDirIsAbsolute_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("expected");
    QTest::newRow("name") << "data" << QDir::current().filePath(QStringLiteral("data"));
    QTest::newRow("here") << "." << QDir::currentPath();
    QTest::newRow("dots") << "/a/../b/./c"
                          << "/b/c";
}

void tst_CommandLine::dataDirIsAbsolute()
{
    QFETCH(QString, written);
    QTEST(parsed(QStringLiteral("--data-dir ") + written).dataDir(), "expected");
}

void tst_CommandLine::saysWhatIsWrong_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("named");
    QTest::newRow("unknown option") << "--no-such-option"
                                    << "no-such-option";
    QTest::newRow("missing value") << "--data-dir"
                                   << "data-dir";
    QTest::newRow("empty value") << "--data-dir="
                                 << "data-dir";
    QTest::newRow("empty screenshot") << "--screenshot="
                                      << "screenshot";
    QTest::newRow("check with a picture") << "--check --screenshot a.png"
                                          << "screenshot";
    QTest::newRow("loose word") << "data"
                                << "data";
}

void tst_CommandLine::saysWhatIsWrong()
{
    QFETCH(QString, words);
    QFETCH(QString, named);
    const CommandLine line = parsed(words);
    QCOMPARE(line.wish(), CommandLine::Wish::Nothing);
    QVERIFY2(line.errorText().contains(named), qPrintable(line.errorText()));
}

void tst_CommandLine::aFailedCheckHasItsOwnCode()
{
    QCOMPARE(parsed(QStringLiteral("--no-such-option")).exitCodeOfFailure(), 1);
    QCOMPARE(parsed(QStringLiteral("--check --no-such-option")).exitCodeOfFailure(), 2);
    QCOMPARE(parsed(QStringLiteral("--no-such-option --check")).exitCodeOfFailure(), 2);
}

void tst_CommandLine::helpNamesEveryOption()
{
    const QString help = parsed(QString()).helpText();
    for (const auto *option :
         {"--data-dir", "--language", "--screenshot", "--check", "--help", "--version"})
        QVERIFY2(help.contains(QLatin1String(option)), option);
}

void tst_CommandLine::versionIsOneLine()
{
    QCOMPARE(parsed(QString()).versionText(), QStringLiteral("zavo-schedule-editor 1.2.3"));
}

void tst_CommandLine::knowsWhenNoWindowIsWanted_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<bool>("expected");
    const auto row = [](std::initializer_list<const char *> words, bool expected) {
        QStringList list;
        for (const char *word : words)
            list.append(QString::fromLatin1(word));
        QTest::newRow(qPrintable(QLatin1Char('[') + list.join(QLatin1Char(' '))))
            << list << expected;
    };
    row({}, false);
    row({"--data-dir", "/a"}, false);
    row({"--screenshot", "a.png"}, true);
    row({"--check", "--data-dir", "/a"}, true);
    row({"--screenshot=a.png"}, true);
    row({"--data-dir", "/a", "--help"}, true);
    row({"-v"}, true);
    row({"-version"}, false);
    row({"--screenshots"}, false);
}

void tst_CommandLine::knowsWhenNoWindowIsWanted()
{
    QFETCH(QStringList, words);
    QTEST(CommandLine::isWithoutWindow(words), "expected");
}

QTEST_GUILESS_MAIN(tst_CommandLine)
#include "tst_commandline.moc"
