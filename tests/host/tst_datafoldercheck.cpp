#include "DataFolderCheck.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

using Zavo::DataFolderCheck;

class tst_DataFolderCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void accepts_data();
    void accepts();
    void refuses_data();
    void refuses();
    void refusesWhatCannotBeListed_data();
    void refusesWhatCannotBeListed();
    void changesNothing();
    void listsForReal();

private:
    /// Carries out what a row asks for: "folder a; file a/b; link c a; fifo d".
    void prepare(const QString &steps);
    void prepareOne(const QStringList &words);

    std::unique_ptr<QTemporaryDir> m_root;
};

namespace {

int failsOnChannel(const QByteArray &folder)
{
    return folder.endsWith("/channel") ? EIO : 0;
}

int failsEverywhere(const QByteArray &)
{
    return EACCES;
}

} // namespace

void tst_DataFolderCheck::init()
{
    m_root = std::make_unique<QTemporaryDir>();
    QVERIFY(m_root->isValid());
}

void tst_DataFolderCheck::prepare(const QString &steps)
{
    for (const QString &step : steps.split(QStringLiteral("; "), Qt::SkipEmptyParts))
        prepareOne(step.split(QLatin1Char(' ')));
}

void tst_DataFolderCheck::prepareOne(const QStringList &words)
{
    const QString path = m_root->filePath(words.at(1));
    if (words.at(0) == QLatin1String("folder")) {
        QVERIFY(QDir().mkpath(path));
    } else if (words.at(0) == QLatin1String("file")) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
    } else if (words.at(0) == QLatin1String("link")) {
        QCOMPARE(symlink(qPrintable(words.at(2)), qPrintable(path)), 0);
    } else {
        QCOMPARE(words.at(0), QStringLiteral("fifo"));
        QCOMPARE(mkfifo(qPrintable(path), 0600), 0);
    }
}

void tst_DataFolderCheck::accepts_data()
{
    QTest::addColumn<QString>("steps");
    QTest::newRow("missing") << "";
    QTest::newRow("empty") << "folder data";
    QTest::newRow("empty channel folder") << "folder data/channel";
    QTest::newRow("with channels") << "folder data/channel; file data/channel/channel0.xml";
    QTest::newRow("links to folders")
        << "folder real; folder channels; link data real; link real/channel ../channels";
}

void tst_DataFolderCheck::accepts()
{
    QFETCH(QString, steps);
    prepare(steps);
    QCOMPARE(DataFolderCheck().problem(m_root->filePath(QStringLiteral("data"))), QString());
}

void tst_DataFolderCheck::refuses_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("named");
    QTest::newRow("a file") << "file data"
                            << "data"
                            << "data\" is not a folder";
    QTest::newRow("a pipe") << "fifo data"
                            << "data"
                            << "data\" is not a folder";
    QTest::newRow("channel is a file") << "folder data; file data/channel"
                                       << "data"
                                       << "channel\" is not a folder";
    QTest::newRow("dangling link") << "link data nowhere"
                                   << "data"
                                   << "leads nowhere";
    QTest::newRow("dangling channel link") << "folder data; link data/channel nowhere"
                                           << "data"
                                           << "leads nowhere";
    QTest::newRow("link to itself") << "link data data"
                                    << "data"
                                    << "cannot be reached: Too many levels";
    QTest::newRow("below a file") << "file data"
                                  << "data/inner"
                                  << "cannot be reached";
    QTest::newRow("name too long") << "" << QString(300, QLatin1Char('n')) << "cannot be reached";
}

void tst_DataFolderCheck::refuses()
{
    QFETCH(QString, steps);
    QFETCH(QString, path);
    QFETCH(QString, named);
    prepare(steps);
    const QString problem = DataFolderCheck().problem(m_root->filePath(path));
    QVERIFY2(problem.contains(named), qPrintable(problem));
}

void tst_DataFolderCheck::refusesWhatCannotBeListed_data()
{
    QTest::addColumn<bool>("onlyTheChannelFolder");
    QTest::addColumn<int>("error");
    QTest::newRow("channel folder, input error") << true << EIO;
    QTest::newRow("data folder, no permission") << false << EACCES;
}

void tst_DataFolderCheck::refusesWhatCannotBeListed()
{
    QFETCH(bool, onlyTheChannelFolder);
    QFETCH(int, error);
    prepare(QStringLiteral("folder data/channel"));
    const DataFolderCheck check(onlyTheChannelFolder ? failsOnChannel : failsEverywhere);
    const QString problem = check.problem(m_root->filePath(QStringLiteral("data")));
    QVERIFY2(problem.contains(QStringLiteral("cannot be listed")), qPrintable(problem));
    QVERIFY2(problem.contains(qt_error_string(error)), qPrintable(problem));
    QCOMPARE(problem.contains(QStringLiteral("channel")), onlyTheChannelFolder);
}

void tst_DataFolderCheck::changesNothing()
{
    DataFolderCheck().problem(m_root->filePath(QStringLiteral("data")));
    QVERIFY(!QFile::exists(m_root->filePath(QStringLiteral("data"))));
}

void tst_DataFolderCheck::listsForReal()
{
    prepare(QStringLiteral("folder data"));
    const QByteArray folder = QFile::encodeName(m_root->filePath(QStringLiteral("data")));
    QCOMPARE(DataFolderCheck::listWholeFolder(folder), 0);
    QCOMPARE(DataFolderCheck::listWholeFolder(folder + "/none"), ENOENT);
    prepare(QStringLiteral("file data/file"));
    QCOMPARE(DataFolderCheck::listWholeFolder(folder + "/file"), ENOTDIR);
    // The superuser may list anything.
    QCOMPARE(chmod(folder.constData(), 0), 0);
    const int expected = geteuid() == 0 ? 0 : EACCES;
    const int error = DataFolderCheck::listWholeFolder(folder);
    chmod(folder.constData(), 0700);
    QCOMPARE(error, expected);
}

QTEST_GUILESS_MAIN(tst_DataFolderCheck)
#include "tst_datafoldercheck.moc"
