#include "storage/DurableFile.h"

#include "FailingCalls.h"

#include <QtTest>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using Zavo::DurableFile;

class tst_DurableFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void createsAndReplaces_data();
    void createsAndReplaces();
    void everyFailureLeavesOneWholeFile_data();
    void everyFailureLeavesOneWholeFile();
    void interruptedCallsAreRepeated_data();
    void interruptedCallsAreRepeated();
    void shortWritesAreContinued();
    void theFileIsWholeAtEveryStep();
    void fileSystemWithoutLinks();
    void fileSystemWithoutFolderSync();
    void noWayBackIsNoSuccess();

    void newFileFollowsTheUmask();
    void existingFileKeepsItsPermissions();
    void aFileThatMayNotBeWrittenToIsRefused();
    void aReadOnlyFolderIsRefused();
    void aFullDiskIsRefused();
    void aMissingFolderIsRefused();
    void whatIsNoFileIsRefused();
    void linkIsFollowed();
    void linkToNowhereMakesItsTarget();
    void linksInACircleAreRefused();
    void namesOfAnyKind_data();
    void namesOfAnyKind();
    void leftoversOfAKilledProgramAreNoObstacle();

private:
    QByteArray content(const QString &path) const;
    QByteArray content() const { return content(m_path); }
    QStringList names() const;
    void makeOld() const;

    QScopedPointer<QTemporaryDir> m_dir;
    QString m_path;
};

namespace {
const QByteArray Old = QByteArray("old content\n").repeated(1000);
const QByteArray New = QByteArray("the new content\n").repeated(5000);
} // namespace

void tst_DurableFile::init()
{
    m_dir.reset(new QTemporaryDir);
    QVERIFY(m_dir->isValid());
    m_path = m_dir->filePath(QStringLiteral("channel0.xml"));
}

void tst_DurableFile::cleanup()
{
    m_dir.reset();
}

QByteArray tst_DurableFile::content(const QString &path) const
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList tst_DurableFile::names() const
{
    return QDir(m_dir->path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

void tst_DurableFile::makeOld() const
{
    QFile file(m_path);
    if (!file.open(QIODevice::WriteOnly) || file.write(Old) != Old.size())
        qFatal("cannot write %s", qPrintable(m_path));
}

void tst_DurableFile::createsAndReplaces_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("a byte") << QByteArray(1, '\0');
    QTest::newRow("much") << QByteArray(5000000, 'x');
}

void tst_DurableFile::createsAndReplaces()
{
    QFETCH(QByteArray, bytes);
    for (int i = 0; i < 2; ++i) {
        QVERIFY(DurableFile::write(m_path, bytes));
        QCOMPARE(content(), bytes);
        QCOMPARE(names(), QStringList{QStringLiteral("channel0.xml")});
    }
}

void tst_DurableFile::everyFailureLeavesOneWholeFile_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("error");
    QTest::addColumn<int>("successes");
    QTest::addColumn<bool>("written");
    const auto row = [](const char *name, FailingCalls::Kind kind, int error, int successes = 0,
                        bool written = false) {
        QTest::newRow(name) << int(kind) << error << successes << written;
    };
    row("stat", FailingCalls::Stat, EIO);
    row("stat denied", FailingCalls::Stat, EACCES);
    row("folder not opened", FailingCalls::Open, EACCES);
    row("no handles left", FailingCalls::Open, EMFILE);
    row("file not opened", FailingCalls::Open, EROFS, 1);
    row("no room for a file", FailingCalls::Open, ENOSPC, 1);
    row("first write", FailingCalls::Write, ENOSPC);
    row("second write", FailingCalls::Write, ENOSPC, 1);
    row("last write", FailingCalls::Write, EIO, 7);
    row("quota", FailingCalls::Write, EDQUOT, 3);
    row("permissions", FailingCalls::Fchmod, EPERM);
    row("sync of the file", FailingCalls::Fsync, EIO);
    row("sync without room", FailingCalls::Fsync, ENOSPC);
    row("close of the file", FailingCalls::Close, EIO);
    row("rename", FailingCalls::Rename, EIO);
    row("rename without room", FailingCalls::Rename, ENOSPC);
    row("sync of the folder", FailingCalls::Fsync, EIO, 1);
    row("owner", FailingCalls::Fchown, EPERM, 0, true);
    row("close of the folder", FailingCalls::Close, EIO, 1, true);
}

void tst_DurableFile::everyFailureLeavesOneWholeFile()
{
    QFETCH(int, kind);
    QFETCH(int, error);
    QFETCH(int, successes);
    QFETCH(bool, written);
    const auto failing = static_cast<FailingCalls::Kind>(kind);
    for (const bool exists : {true, false}) {
        // Of a file that is not there, there are no permissions to keep.
        if (!exists && (failing == FailingCalls::Fchmod || failing == FailingCalls::Fchown))
            continue;
        QFile::remove(m_path);
        if (exists)
            makeOld();
        FailingCalls calls;
        calls.setLongestWrite(size_t(New.size() / 8));
        calls.fail(failing, error, successes);
        QCOMPARE(DurableFile::write(m_path, New), written);
        QVERIFY(calls.count(failing) > successes);
        QCOMPARE(QFile::exists(m_path), exists || written);
        QCOMPARE(content(), written ? New : exists ? Old : QByteArray());
        QCOMPARE(names().size(), exists || written ? 1 : 0);
    }
}

void tst_DurableFile::interruptedCallsAreRepeated_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("successes");
    QTest::newRow("open of the folder") << int(FailingCalls::Open) << 0;
    QTest::newRow("open of the file") << int(FailingCalls::Open) << 1;
    QTest::newRow("write") << int(FailingCalls::Write) << 0;
    QTest::newRow("sync of the file") << int(FailingCalls::Fsync) << 0;
    QTest::newRow("sync of the folder") << int(FailingCalls::Fsync) << 1;
    QTest::newRow("close") << int(FailingCalls::Close) << 0;
}

void tst_DurableFile::interruptedCallsAreRepeated()
{
    QFETCH(int, kind);
    QFETCH(int, successes);
    makeOld();
    FailingCalls calls;
    // A close is not repeated: its handle is gone and may be another's by now.
    const bool repeated = kind != FailingCalls::Close;
    calls.fail(static_cast<FailingCalls::Kind>(kind), EINTR, successes, repeated ? 3 : 1);
    QVERIFY(DurableFile::write(m_path, New));
    QCOMPARE(content(), New);
    QCOMPARE(names().size(), 1);
}

void tst_DurableFile::shortWritesAreContinued()
{
    FailingCalls calls;
    calls.setLongestWrite(7);
    QVERIFY(DurableFile::write(m_path, New));
    QCOMPARE(content(), New);
    QCOMPARE(calls.count(FailingCalls::Write), (New.size() + 6) / 7);
}

void tst_DurableFile::theFileIsWholeAtEveryStep()
{
    makeOld();
    FailingCalls calls;
    calls.setLongestWrite(1000);
    int steps = 0;
    bool seenNew = false;
    calls.setObserver([&] {
        ++steps;
        const QByteArray now = content();
        QVERIFY(now == Old || now == New);
        // Nobody looks for the new one among the channels before it is whole.
        QCOMPARE(QDir(m_dir->path()).entryList({QStringLiteral("channel*")}, QDir::Files).size(),
                 1);
        QVERIFY(!seenNew || now == New);
        seenNew = now == New;
    });
    QVERIFY(DurableFile::write(m_path, New));
    QVERIFY(seenNew);
    QVERIFY(steps > New.size() / 1000);
}

void tst_DurableFile::fileSystemWithoutLinks()
{
    makeOld();
    FailingCalls calls;
    calls.fail(FailingCalls::Link, EPERM);
    QVERIFY(DurableFile::write(m_path, New));
    QCOMPARE(content(), New);
    QCOMPARE(names().size(), 1);
}

void tst_DurableFile::fileSystemWithoutFolderSync()
{
    makeOld();
    FailingCalls calls;
    calls.fail(FailingCalls::Fsync, EINVAL, 1);
    QVERIFY(DurableFile::write(m_path, New));
    QCOMPARE(content(), New);
}

void tst_DurableFile::noWayBackIsNoSuccess()
{
    makeOld();
    FailingCalls calls;
    calls.fail(FailingCalls::Fsync, EIO, 1);
    calls.fail(FailingCalls::Link, EPERM);
    QVERIFY(!DurableFile::write(m_path, New));
    // Not surely on the disk, but whole.
    QCOMPARE(content(), New);
    QCOMPARE(names().size(), 1);
}

void tst_DurableFile::newFileFollowsTheUmask()
{
    const mode_t before = ::umask(027);
    const bool written = DurableFile::write(m_path, New);
    ::umask(before);
    QVERIFY(written);
    struct stat status = {};
    QCOMPARE(::stat(QFile::encodeName(m_path).constData(), &status), 0);
    QCOMPARE(int(status.st_mode & 07777), 0640);
}

void tst_DurableFile::existingFileKeepsItsPermissions()
{
    for (const mode_t mode : {mode_t(0600), mode_t(0664), mode_t(0777)}) {
        makeOld();
        QCOMPARE(::chmod(QFile::encodeName(m_path).constData(), mode), 0);
        QVERIFY(DurableFile::write(m_path, New));
        struct stat status = {};
        QCOMPARE(::stat(QFile::encodeName(m_path).constData(), &status), 0);
        QCOMPARE(int(status.st_mode & 07777), int(mode));
    }
}

void tst_DurableFile::aFileThatMayNotBeWrittenToIsRefused()
{
    makeOld();
    FailingCalls calls; // root may write to everything
    calls.fail(FailingCalls::Access, EACCES);
    QVERIFY(!DurableFile::write(m_path, New));
    QCOMPARE(content(), Old);
    QCOMPARE(names().size(), 1);
}

void tst_DurableFile::aReadOnlyFolderIsRefused()
{
    makeOld();
    {
        FailingCalls calls;
        calls.fail(FailingCalls::Open, EACCES, 1, FailingCalls::ForEver);
        QVERIFY(!DurableFile::write(m_path, New));
    }
    if (::geteuid() != 0) {
        const QByteArray folder = QFile::encodeName(m_dir->path());
        QCOMPARE(::chmod(folder.constData(), 0500), 0);
        const bool written = DurableFile::write(m_path, New);
        QCOMPARE(::chmod(folder.constData(), 0700), 0);
        QVERIFY(!written);
    }
    QCOMPARE(content(), Old);
    QCOMPARE(names().size(), 1);
}

void tst_DurableFile::aFullDiskIsRefused()
{
    // The system itself ends each file at 20,000 bytes: a short write, then none.
    makeOld();
    struct rlimit before = {};
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &before), 0);
    struct rlimit small = before;
    small.rlim_cur = 20000;
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const bool written = DurableFile::write(m_path, New);
    ::setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    QVERIFY(!written);
    QCOMPARE(content(), Old);
    QCOMPARE(names().size(), 1);
}

void tst_DurableFile::aMissingFolderIsRefused()
{
    QVERIFY(!DurableFile::write(m_dir->filePath(QStringLiteral("none/a.xml")), New));
    QVERIFY(names().isEmpty());
    makeOld();
    QVERIFY(!DurableFile::write(m_path + QStringLiteral("/a.xml"), New));
    QCOMPARE(content(), Old);
}

void tst_DurableFile::whatIsNoFileIsRefused()
{
    QVERIFY(!DurableFile::write(m_dir->path(), New));
    const QString pipe = m_dir->filePath(QStringLiteral("pipe"));
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QVERIFY(!DurableFile::write(pipe, New));
    QVERIFY(!DurableFile::write(QStringLiteral("/dev/null"), New));
    QVERIFY(!DurableFile::write({}, New));
    QVERIFY(!DurableFile::write(m_path + QChar(QChar::Null) + QStringLiteral("x"), New));
    QCOMPARE(names(), QStringList{QStringLiteral("pipe")});
}

void tst_DurableFile::linkIsFollowed()
{
    makeOld();
    QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("links")));
    const QString link = m_dir->filePath(QStringLiteral("links/link.xml"));
    const QString second = m_dir->filePath(QStringLiteral("links/second.xml"));
    QVERIFY(QFile::link(QStringLiteral("../channel0.xml"), link));
    QVERIFY(QFile::link(QStringLiteral("link.xml"), second));
    QVERIFY(DurableFile::write(second, New));
    QCOMPARE(content(), New);
    QVERIFY(QFileInfo(link).isSymLink());
    QVERIFY(QFileInfo(second).isSymLink());
    QCOMPARE(QDir(m_dir->filePath(QStringLiteral("links"))).entryList(QDir::Files).size(), 2);
}

void tst_DurableFile::linkToNowhereMakesItsTarget()
{
    const QString link = m_dir->filePath(QStringLiteral("link.xml"));
    QVERIFY(QFile::link(m_path, link));
    QVERIFY(DurableFile::write(link, New));
    QCOMPARE(content(), New);
    QVERIFY(QFileInfo(link).isSymLink());
}

void tst_DurableFile::linksInACircleAreRefused()
{
    const QString other = m_dir->filePath(QStringLiteral("other.xml"));
    QVERIFY(QFile::link(other, m_path));
    QVERIFY(QFile::link(m_path, other));
    QVERIFY(!DurableFile::write(m_path, New));
    QCOMPARE(names().size(), 2);
}

void tst_DurableFile::namesOfAnyKind_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blank") << QStringLiteral(" ");
    QTest::newRow("line end") << QStringLiteral("a\nb.xml");
    QTest::newRow("other script") << QStringLiteral("チャンネル.xml");
    QTest::newRow("as long as may be") << QString(255, QLatin1Char('n'));
    QTest::newRow("percent") << QStringLiteral("%s%n.xml");
}

void tst_DurableFile::namesOfAnyKind()
{
    QFETCH(QString, name);
    const QString path = m_dir->filePath(name);
    QVERIFY(DurableFile::write(path, Old));
    QVERIFY(DurableFile::write(path, New));
    QCOMPARE(content(path), New);
    QCOMPARE(names(), QStringList{name});
}

void tst_DurableFile::leftoversOfAKilledProgramAreNoObstacle()
{
    makeOld();
    FailingCalls calls;
    calls.fail(FailingCalls::Open, EEXIST, 1, 5);
    calls.fail(FailingCalls::Link, EEXIST, 0, 5);
    QVERIFY(DurableFile::write(m_path, New));
    QCOMPARE(content(), New);
    QCOMPARE(calls.count(FailingCalls::Link), 6);
    QCOMPARE(names().size(), 1);
}

QTEST_APPLESS_MAIN(tst_DurableFile)
#include "tst_durablefile.moc"
