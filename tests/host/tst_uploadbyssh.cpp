#include "upload/UploadRun.h"

#include "FolderFaults.h"
#include "SignalLog.h"
#include "SshBench.h"

#include <QtTest>

using Zavo::UploadJob;
using Zavo::UploadRun;
using Zavo::UploadTarget;
using ZavoTest::FaultyLine;
using ZavoTest::filesBelow;
using ZavoTest::SignalLog;
using ZavoTest::SshServer;
using ZavoTest::TemporaryDataFolder;
using State = Zavo::UploadJob::State;

namespace {
constexpr int megabyte = 1024 * 1024;
constexpr int longestUploadMs = 60000;
} // namespace

/// Uploads to a machine that is reached by ssh: this one.
class tst_UploadBySsh : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void bringsTheSet();
    void bringsHostileNames();
    void tellsOfARefusal_data();
    void tellsOfARefusal();
    void fullTargetKeepsWhatItHad();
    void vanishingTargetKeepsWhatItHad();
    void cancelKeepsWhatWasThere();

private:
    std::unique_ptr<UploadRun> begin(const QString &address);
    /// An upload to its end.
    std::unique_ptr<UploadRun> upload(const QString &address);
    static QString message(const std::unique_ptr<UploadRun> &run);
    QString target() const { return m_target->path(); }
    QMap<QString, QByteArray> expected() const;
    /// Brings a first set to the target as to a folder, then changes all that is in it, with one
    /// large stage.
    void prepareSecondSet();

    std::unique_ptr<TemporaryDataFolder> m_folder;
    std::unique_ptr<QTemporaryDir> m_target;
    std::unique_ptr<SshServer> m_server;
};

void tst_UploadBySsh::init()
{
    if (!SshServer::isInstalled())
        QSKIP("this machine has no ssh server");
    m_folder = std::make_unique<TemporaryDataFolder>();
    m_target = std::make_unique<QTemporaryDir>();
    m_server = std::make_unique<SshServer>();
    QVERIFY(m_server->isReady());
    m_folder->writeStage(QStringLiteral("a.xml"));
    m_folder->writeStage(QStringLiteral("sub/b.xml"));
    ZavoTest::writeChannel(*m_folder, 0, QStringLiteral("a.xml"));
    ZavoTest::writeChannel(*m_folder, 1, QStringLiteral("sub/b.xml"));
}

void tst_UploadBySsh::cleanup()
{
    m_server.reset();
    m_target.reset();
    m_folder.reset();
}

std::unique_ptr<UploadRun> tst_UploadBySsh::begin(const QString &address)
{
    auto run = std::make_unique<UploadRun>(m_folder->path(),
                                           m_folder->filePath(QStringLiteral("Log/Editor")));
    run->start({UploadTarget(address)});
    return run;
}

std::unique_ptr<UploadRun> tst_UploadBySsh::upload(const QString &address)
{
    std::unique_ptr<UploadRun> run = begin(address);
    SignalLog log;
    log.watch(run.get(), SIGNAL(finished()));
    const bool isOver =
        QTest::qWaitFor([&] { return log.count(QStringLiteral("finished")) > 0; }, longestUploadMs);
    if (!isOver)
        QTest::qFail("the upload has not finished", __FILE__, __LINE__);
    return run;
}

QString tst_UploadBySsh::message(const std::unique_ptr<UploadRun> &run)
{
    const UploadJob *const job = run->jobs().first();
    return (QStringList(job->message()) + job->details()).join(QLatin1Char('\n'));
}

QMap<QString, QByteArray> tst_UploadBySsh::expected() const
{
    QMap<QString, QByteArray> files = filesBelow(m_folder->path());
    for (const QString &path : files.keys()) {
        if (!path.startsWith(QLatin1String("channel/")) &&
            !path.startsWith(QLatin1String("stage/")))
            files.remove(path);
    }
    return files;
}

void tst_UploadBySsh::prepareSecondSet()
{
    const auto first = upload(target());
    QCOMPARE(message(first), QStringLiteral("Complete."));
    m_folder->write(QStringLiteral("stage/large.zstg"), ZavoTest::noise(3 * megabyte));
    m_folder->writeStage(QStringLiteral("a.xml"), QStringLiteral("changed"));
    ZavoTest::writeChannel(*m_folder, 2, QStringLiteral("large.zstg"));
    QVERIFY(QFile::remove(m_folder->filePath(QStringLiteral("channel/channel1.xml"))));
    QVERIFY(QFile::remove(m_folder->filePath(QStringLiteral("stage/sub/b.xml"))));
}

void tst_UploadBySsh::bringsTheSet()
{
    ZavoTest::writeFile(target() + QStringLiteral("/config.ini"), "the player's");
    prepareSecondSet();
    const QByteArray removed = filesBelow(target()).value(QStringLiteral("channel/channel1.xml"));
    QVERIFY(!removed.isEmpty());
    const auto run = upload(m_server->address(target()));
    QVERIFY2(run->count(State::Done) == 1, qPrintable(message(run)));
    auto there = filesBelow(target());
    QCOMPARE(there.take(QStringLiteral("config.ini")), QByteArray("the player's"));
    QCOMPARE(there, expected());
    QCOMPARE(QDir(target()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList({QStringLiteral(".zavo-uploaded"), QStringLiteral("channel"),
                          QStringLiteral("config.ini"), QStringLiteral("stage")}));
    const QString copies = QStringLiteral("backup/channel1.xml");
    QCOMPARE(m_folder->names(copies).size(), 1);
    QCOMPARE(m_folder->read(copies + QLatin1Char('/') + m_folder->names(copies).constFirst()),
             removed);
}

void tst_UploadBySsh::bringsHostileNames()
{
    const QStringList names{QStringLiteral("-e sh.xml"), QStringLiteral("a;touch b.xml"),
                            QStringLiteral("画面 é.xml"), QStringLiteral("sub/$(id).xml"),
                            QStringLiteral("'\"`.xml")};
    for (int i = 0; i < names.size(); ++i) {
        m_folder->writeStage(names.at(i));
        ZavoTest::writeChannel(*m_folder, 10 + i, names.at(i));
    }
    const QString odd = target() + QStringLiteral("/x y;$(touch z)'\"");
    QDir().mkpath(odd);
    const auto run = upload(m_server->address(odd));
    QVERIFY2(run->count(State::Done) == 1, qPrintable(message(run)));
    QCOMPARE(filesBelow(odd), expected());
    QCOMPARE(QDir(target()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1);
}

void tst_UploadBySsh::tellsOfARefusal_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("message");
    QTest::newRow("key of the user") << "user"
                                     << "The target refuses: permission denied.";
    QTest::newRow("key of the host") << "host"
                                     << "The key of the host is not known to ssh.";
    QTest::newRow("folder") << "folder"
                            << "The target does not exist.";
    QTest::newRow("nobody listens") << "port"
                                    << "The target cannot be reached: connection refused.";
    QTest::newRow("no rsync there") << "rsync"
                                    << "A program is missing at the target.";
}

void tst_UploadBySsh::tellsOfARefusal()
{
    QFETCH(QString, fault);
    QFETCH(QString, message);
    QTcpServer closed;
    closed.listen(QHostAddress::LocalHost);
    const quint16 closedPort = closed.serverPort();
    closed.close();
    QString address = m_server->address(target());
    if (fault == QLatin1String("user")) {
        m_server->forgetTheUser();
    } else if (fault == QLatin1String("host")) {
        m_server->forgetTheHost();
    } else if (fault == QLatin1String("folder")) {
        address = m_server->address(target() + QStringLiteral("/none"));
    } else if (fault == QLatin1String("port")) {
        address = m_server->address(target(), closedPort);
    } else {
        m_server.reset();
        m_server = std::make_unique<SshServer>(QStringLiteral("SetEnv PATH=/nonexistent"));
        QVERIFY(m_server->isReady());
        address = m_server->address(target());
    }
    const auto run = upload(address);
    const UploadJob *const job = run->jobs().first();
    QCOMPARE(job->state(), State::Failed);
    QCOMPARE(job->message(), message + QStringLiteral(" The target keeps what it had."));
    QVERIFY(!job->details().isEmpty());
    QVERIFY(filesBelow(target()).isEmpty());
}

void tst_UploadBySsh::fullTargetKeepsWhatItHad()
{
    // The server has to see the disk, so it begins behind it.
    m_server.reset();
    const ZavoTest::SmallDisk disk(target());
    m_server = std::make_unique<SshServer>();
    QVERIFY(m_server->isReady());
    prepareSecondSet();
    const auto before = filesBelow(target());
    const auto run = upload(m_server->address(target()));
    QCOMPARE(run->jobs().first()->state(), State::Failed);
    QCOMPARE(run->jobs().first()->message(),
             QStringLiteral("The target is full. The target keeps what it had."));
    QCOMPARE(filesBelow(target()), before);
    QVERIFY(before.contains(QStringLiteral("channel/channel1.xml")));
    m_server.reset();
}

void tst_UploadBySsh::vanishingTargetKeepsWhatItHad()
{
    prepareSecondSet();
    const auto before = filesBelow(target());
    FaultyLine line(m_server->port(), megabyte, FaultyLine::Fault::Breaks);
    const QString address = m_server->address(target(), line.port());
    const auto run = upload(address);
    QVERIFY(line.isFaulty());
    QCOMPARE(run->jobs().first()->state(), State::Failed);
    QVERIFY2(
        run->jobs().first()->message().endsWith(QStringLiteral("The target keeps what it had.")),
        qPrintable(message(run)));
    QCOMPARE(filesBelow(target()), before);
    line.mend();
    const auto again = upload(address);
    QCOMPARE(again->jobs().first()->message(), QStringLiteral("Complete."));
    QCOMPARE(filesBelow(target()), expected());
}

void tst_UploadBySsh::cancelKeepsWhatWasThere()
{
    prepareSecondSet();
    const auto before = filesBelow(target());
    FaultyLine line(m_server->port(), megabyte, FaultyLine::Fault::GoesSilent);
    const auto run = begin(m_server->address(target(), line.port()));
    SignalLog log;
    log.watch(run.get(), SIGNAL(finished()));
    QTRY_VERIFY_WITH_TIMEOUT(line.isFaulty(), longestUploadMs);
    run->cancel();
    QTRY_COMPARE_WITH_TIMEOUT(log.count(QStringLiteral("finished")), 1, longestUploadMs);
    QCOMPARE(run->jobs().first()->message(),
             QStringLiteral("Cancelled. The target keeps what it had."));
    QCOMPARE(filesBelow(target()), before);
}

QTEST_GUILESS_MAIN(tst_UploadBySsh)
#include "tst_uploadbyssh.moc"
