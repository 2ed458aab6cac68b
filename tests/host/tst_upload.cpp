#include "upload/FolderLookup.h"
#include "upload/UploadRun.h"

#include "FolderFaults.h"
#include "SignalLog.h"
#include "UploadBench.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QPointer>
#include <QTimer>
#include <QtTest>

#include <algorithm>
#include <functional>

using Zavo::UploadJob;
using Zavo::UploadRun;
using Zavo::UploadTarget;
using ZavoTest::FaultyLine;
using ZavoTest::filesBelow;
using ZavoTest::RsyncDaemon;
using ZavoTest::SignalLog;
using ZavoTest::TemporaryDataFolder;
using State = Zavo::UploadJob::State;

namespace {
constexpr int megabyte = 1024 * 1024;
constexpr int longestUploadMs = 60000;

/// Waits until @p condition holds after a change of @p run: what passes quickly is not to be seen
/// by looking now and then.
bool comesToPass(const UploadRun *run, const std::function<bool()> &condition)
{
    QEventLoop loop;
    QObject::connect(run, &UploadRun::changed, &loop, [&] {
        if (condition())
            loop.exit(1);
    });
    QTimer::singleShot(longestUploadMs, &loop, &QEventLoop::quit);
    return condition() || loop.exec() == 1;
}
} // namespace

class tst_Upload : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_daemon.reset(); }
    void init();
    void cleanup();
    void bringsTheSet_data();
    void bringsTheSet();
    void replacesOnlyWhatItBrought_data();
    void replacesOnlyWhatItBrought();
    void sendsOnlyWhatIsNew();
    void keepsForeignFilesAside_data();
    void keepsForeignFilesAside();
    void servesSeveralTargetsAtOnce();
    void bringsHostileNames_data();
    void bringsHostileNames();
    void replacesNoLink();
    void tellsOfARefusal_data();
    void tellsOfARefusal();
    void fullTargetKeepsWhatItHad();
    void readOnlyTargetKeepsWhatItHad();
    void vanishingTargetKeepsWhatItHad();
    void cancelKeepsWhatWasThere();
    void cancelsBeforeItBegins();
    void placingIsNotLeftHalfDone();
    void diesInTheMiddle();
    void hearsOfAFolderBehindItsLookup();
    void refusesItsOwnDataFolder_data();
    void refusesItsOwnDataFolder();
    void nothingIsSentWithADamagedChannel();
    void savingMeanwhileChangesNothing();
    void asksNoQuestions();
    void tellsThatRsyncIsMissing();
    void writesALog();

private:
    /// An upload to the addresses, to its end.
    std::unique_ptr<UploadRun> upload(const QStringList &addresses);
    std::unique_ptr<UploadRun> begin(const QStringList &addresses);
    QString target() { return m_target->path(); }
    QMap<QString, QByteArray> expected() const;
    /// Uploads a first set, then changes all that is in it, with one large stage.
    void prepareSecondSet(const QString &address);

    std::unique_ptr<TemporaryDataFolder> m_folder;
    std::unique_ptr<QTemporaryDir> m_target;
    std::unique_ptr<RsyncDaemon> m_daemon;
};

void tst_Upload::initTestCase()
{
    m_daemon = std::make_unique<RsyncDaemon>();
    QVERIFY(m_daemon->isReady());
}

void tst_Upload::init()
{
    m_folder = std::make_unique<TemporaryDataFolder>();
    m_target = std::make_unique<QTemporaryDir>();
    m_folder->writeStage(QStringLiteral("a.xml"));
    m_folder->writeStage(QStringLiteral("sub/b.xml"));
    ZavoTest::writeChannel(*m_folder, 0, QStringLiteral("a.xml"));
    ZavoTest::writeChannel(*m_folder, 1, QStringLiteral("sub/b.xml"));
}

void tst_Upload::cleanup()
{
    m_folder.reset();
    m_target.reset();
    QDir(m_daemon->folder()).removeRecursively();
    QDir().mkpath(m_daemon->folder());
}

std::unique_ptr<UploadRun> tst_Upload::begin(const QStringList &addresses)
{
    QList<UploadTarget> targets;
    for (const QString &address : addresses)
        targets.append(UploadTarget(address));
    auto run = std::make_unique<UploadRun>(m_folder->path(),
                                           m_folder->filePath(QStringLiteral("Log/Editor")));
    run->start(targets);
    return run;
}

std::unique_ptr<UploadRun> tst_Upload::upload(const QStringList &addresses)
{
    std::unique_ptr<UploadRun> run = begin(addresses);
    SignalLog log;
    log.watch(run.get(), SIGNAL(finished()));
    const bool isOver =
        QTest::qWaitFor([&] { return log.count(QStringLiteral("finished")) > 0; }, longestUploadMs);
    QTest::qWait(0);
    if (!isOver || log.count(QStringLiteral("finished")) != 1)
        QTest::qFail("the upload has not finished once", __FILE__, __LINE__);
    return run;
}

QMap<QString, QByteArray> tst_Upload::expected() const
{
    QMap<QString, QByteArray> files = filesBelow(m_folder->path());
    for (const QString &path : files.keys()) {
        if (!path.startsWith(QLatin1String("channel/")) &&
            !path.startsWith(QLatin1String("stage/")))
            files.remove(path);
    }
    return files;
}

void tst_Upload::prepareSecondSet(const QString &address)
{
    const auto first = upload({address});
    QCOMPARE(first->jobs().first()->message(), QStringLiteral("Complete."));
    m_folder->write(QStringLiteral("stage/large.zstg"), ZavoTest::noise(3 * megabyte));
    m_folder->writeStage(QStringLiteral("a.xml"), QStringLiteral("changed"));
    ZavoTest::writeChannel(*m_folder, 2, QStringLiteral("large.zstg"));
    QVERIFY(QFile::remove(m_folder->filePath(QStringLiteral("channel/channel1.xml"))));
}

void tst_Upload::bringsTheSet_data()
{
    QTest::addColumn<bool>("isDaemon");
    QTest::newRow("folder") << false;
    QTest::newRow("daemon") << true;
}

void tst_Upload::bringsTheSet()
{
    QFETCH(bool, isDaemon);
    const QString folder = isDaemon ? m_daemon->folder() : target();
    const auto run = upload({isDaemon ? m_daemon->address() : target()});
    const UploadJob *const job = run->jobs().first();
    QVERIFY2(job->state() == State::Done, qPrintable(job->message()));
    QCOMPARE(job->message(), QStringLiteral("Complete."));
    QCOMPARE(job->percent(), 100);
    QCOMPARE(filesBelow(folder), expected());
    QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList({QStringLiteral(".zavo-uploaded"), QStringLiteral("channel"),
                          QStringLiteral("stage")}));
    const auto mode = QFile::permissions(folder + QStringLiteral("/channel/channel0.xml"));
    QVERIFY(mode.testFlag(QFile::ReadOther));
}

void tst_Upload::replacesOnlyWhatItBrought_data()
{
    bringsTheSet_data();
}

void tst_Upload::replacesOnlyWhatItBrought()
{
    QFETCH(bool, isDaemon);
    const QString folder = isDaemon ? m_daemon->folder() : target();
    const QString address = isDaemon ? m_daemon->address() : target();
    ZavoTest::writeFile(folder + QStringLiteral("/config.ini"), "the player's");
    ZavoTest::writeFile(folder + QStringLiteral("/Log/x"), "the player's");
    prepareSecondSet(address);
    const auto run = upload({address});
    QVERIFY2(run->jobs().first()->state() == State::Done,
             qPrintable(run->jobs().first()->message()));
    auto there = filesBelow(folder);
    QCOMPARE(there.take(QStringLiteral("config.ini")), QByteArray("the player's"));
    QCOMPARE(there.take(QStringLiteral("Log/x")), QByteArray("the player's"));
    QVERIFY(!there.contains(QStringLiteral("channel/channel1.xml")));
    QVERIFY(!there.contains(QStringLiteral("stage/sub/b.xml")));
    auto wanted = expected();
    wanted.remove(QStringLiteral("stage/sub/b.xml"));
    QCOMPARE(there, wanted);
}

void tst_Upload::sendsOnlyWhatIsNew()
{
    prepareSecondSet(target());
    upload({target()});
    const QFileInfo large(target() + QStringLiteral("/stage/large.zstg"));
    const QDateTime before = large.lastModified();
    ZavoTest::writeFile(m_folder->filePath(QStringLiteral("stage/large.zstg")),
                        ZavoTest::noise(3 * megabyte));
    QTest::qWait(20);
    const auto run = upload({target()});
    QCOMPARE(run->count(State::Done), 1);
    QFileInfo after(large);
    after.refresh();
    QCOMPARE(after.lastModified(), before);
}

void tst_Upload::keepsForeignFilesAside_data()
{
    bringsTheSet_data();
}

void tst_Upload::keepsForeignFilesAside()
{
    QFETCH(bool, isDaemon);
    const QString folder = isDaemon ? m_daemon->folder() : target();
    const QMap<QString, QByteArray> foreign{{QStringLiteral("channel/channel0.xml"), "old 0"},
                                            {QStringLiteral("channel/channel9.xml"), "old 9"},
                                            {QStringLiteral("stage/a.xml"), "old a"},
                                            {QStringLiteral("stage/other/x.xml"), "old x"}};
    for (auto each = foreign.begin(); each != foreign.end(); ++each)
        ZavoTest::writeFile(folder + QLatin1Char('/') + each.key(), each.value());
    const auto run = upload({isDaemon ? m_daemon->address() : target()});
    const UploadJob *const job = run->jobs().first();
    QVERIFY2(job->state() == State::Done, qPrintable(job->message()));
    const QStringList kept =
        QDir(folder).entryList({QStringLiteral("before-upload-*")}, QDir::Dirs);
    QCOMPARE(kept.size(), 1);
    QVERIFY(job->message().contains(kept.first()));
    QCOMPARE(filesBelow(folder + QLatin1Char('/') + kept.first()), foreign);
    auto there = filesBelow(folder);
    for (const QString &path : foreign.keys())
        there.remove(kept.first() + QLatin1Char('/') + path);
    QCOMPARE(there, expected());
    const auto second = upload({isDaemon ? m_daemon->address() : target()});
    QCOMPARE(second->jobs().first()->message(), QStringLiteral("Complete."));
    QCOMPARE(QDir(folder).entryList({QStringLiteral("before-upload-*")}, QDir::Dirs), kept);
}

void tst_Upload::servesSeveralTargetsAtOnce()
{
    QStringList addresses{m_daemon->address()};
    for (int i = 0; i < UploadRun::mostAtOnce + 2; ++i) {
        addresses.append(target() + QStringLiteral("/%1").arg(i));
        QDir().mkpath(addresses.last());
    }
    addresses.append(target() + QStringLiteral("/none"));
    const auto run = begin(addresses);
    int most = run->count(State::Running);
    QObject::connect(run.get(), &UploadRun::changed, this,
                     [&] { most = std::max(most, run->count(State::Running)); });
    SignalLog log;
    log.watch(run.get(), SIGNAL(finished()));
    QTRY_COMPARE_WITH_TIMEOUT(log.count(QStringLiteral("finished")), 1, longestUploadMs);
    QVERIFY2(most > 1 && most <= UploadRun::mostAtOnce, qPrintable(QString::number(most)));
    QCOMPARE(run->count(State::Done), addresses.size() - 1);
    QCOMPARE(run->jobs().last()->state(), State::Failed);
    QVERIFY(run->jobs().last()->message().startsWith(QStringLiteral("The target does not exist.")));
    QVERIFY(!QFileInfo::exists(addresses.last()));
    QCOMPARE(filesBelow(m_daemon->folder()), expected());
    for (const QString &folder : addresses.mid(1, UploadRun::mostAtOnce + 2))
        QCOMPARE(filesBelow(folder), expected());
}

void tst_Upload::bringsHostileNames_data()
{
    bringsTheSet_data();
}

void tst_Upload::bringsHostileNames()
{
    QFETCH(bool, isDaemon);
    const QStringList names{QStringLiteral("-e sh.xml"),      QStringLiteral("a;touch b.xml"),
                            QStringLiteral("two\nlines.xml"), QStringLiteral("画面 é.xml"),
                            QStringLiteral("*.xml"),          QStringLiteral("sub/$(id).xml"),
                            QStringLiteral("%1 100%.xml"),    QStringLiteral("a\\b.xml")};
    for (int i = 0; i < names.size(); ++i) {
        m_folder->writeStage(names.at(i));
        ZavoTest::writeChannel(*m_folder, 10 + i, names.at(i));
    }
    const QString odd = target() + QStringLiteral("/-x y:$(id)*");
    QDir().mkpath(odd);
    const auto run = upload({isDaemon ? m_daemon->address() : odd});
    QVERIFY2(run->count(State::Done) == 1, qPrintable(run->jobs().first()->message()));
    QCOMPARE(filesBelow(isDaemon ? m_daemon->folder() : odd), expected());
}

void tst_Upload::replacesNoLink()
{
    const QTemporaryDir elsewhere;
    QVERIFY(QFile::link(elsewhere.path(), target() + QStringLiteral("/stage")));
    const auto run = upload({target()});
    QCOMPARE(run->count(State::Failed), 1);
    QCOMPARE(run->jobs().first()->message(),
             QStringLiteral("The folder \"stage\" of the target is a link. "
                            "The target keeps what it had."));
    QVERIFY(QFileInfo(target() + QStringLiteral("/stage")).isSymLink());
    QVERIFY(filesBelow(target()).isEmpty());
    QVERIFY(filesBelow(elsewhere.path()).isEmpty());
}

void tst_Upload::tellsOfARefusal_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("message");
    RsyncDaemon *daemon = m_daemon.get();
    QTcpServer closed;
    closed.listen(QHostAddress::LocalHost);
    QTest::newRow("read only module")
        << daemon->address(QStringLiteral("readonly")) << "The target is read-only.";
    QTest::newRow("password") << daemon->address(QStringLiteral("secret"))
                              << "The target refuses this user.";
    QTest::newRow("no module") << daemon->address(QStringLiteral("none"))
                               << "The target has no such module.";
    QTest::newRow("no folder") << daemon->address(QStringLiteral("play/none"))
                               << "The target does not exist.";
    QTest::newRow("nobody listens")
        << QStringLiteral("rsync://127.0.0.1:%1/play").arg(closed.serverPort())
        << "The target cannot be reached: connection refused.";
    QTest::newRow("no share") << "/nonexistent/share"
                              << "The target does not exist.";
}

void tst_Upload::tellsOfARefusal()
{
    QFETCH(QString, address);
    QFETCH(QString, message);
    const auto run = upload({address});
    const UploadJob *const job = run->jobs().first();
    QCOMPARE(job->state(), State::Failed);
    QCOMPARE(job->message(), message + QStringLiteral(" The target keeps what it had."));
    QVERIFY(!job->details().isEmpty());
    QVERIFY(filesBelow(m_daemon->folder()).isEmpty());
}

void tst_Upload::fullTargetKeepsWhatItHad()
{
    ZavoTest::SmallDisk disk(target());
    prepareSecondSet(target());
    const auto before = filesBelow(target());
    const auto run = upload({target()});
    const UploadJob *const job = run->jobs().first();
    QCOMPARE(job->state(), State::Failed);
    QCOMPARE(job->message(), QStringLiteral("The target is full. The target keeps what it had."));
    QCOMPARE(filesBelow(target()), before);
    QVERIFY(before.contains(QStringLiteral("channel/channel1.xml")));
}

void tst_Upload::readOnlyTargetKeepsWhatItHad()
{
    prepareSecondSet(target());
    const auto before = filesBelow(target());
    const ZavoTest::ReadOnlyFolder readOnly(target());
    if (!readOnly.isEffective())
        QSKIP("this machine cannot make a folder read-only");
    const auto run = upload({target()});
    QCOMPARE(run->jobs().first()->state(), State::Failed);
    QVERIFY2(
        run->jobs().first()->message().endsWith(QStringLiteral("The target keeps what it had.")),
        qPrintable(run->jobs().first()->message()));
    QCOMPARE(filesBelow(target()), before);
}

void tst_Upload::vanishingTargetKeepsWhatItHad()
{
    prepareSecondSet(m_daemon->address());
    const auto before = filesBelow(m_daemon->folder());
    FaultyLine line(m_daemon->port(), megabyte, FaultyLine::Fault::Breaks);
    const QString address = m_daemon->address(QStringLiteral("play"), line.port());
    {
        const auto run = upload({address});
        QVERIFY(line.isFaulty());
        QCOMPARE(run->jobs().first()->state(), State::Failed);
        QCOMPARE(
            run->jobs().first()->message(),
            QStringLiteral("The connection to the target is lost. The target keeps what it had."));
        QCOMPARE(filesBelow(m_daemon->folder()), before);
    }
    line.mend();
    const auto again = upload({address});
    QCOMPARE(again->jobs().first()->message(), QStringLiteral("Complete."));
    auto wanted = expected();
    wanted.remove(QStringLiteral("stage/sub/b.xml"));
    QCOMPARE(filesBelow(m_daemon->folder()), wanted);
}

void tst_Upload::cancelKeepsWhatWasThere()
{
    prepareSecondSet(m_daemon->address());
    const auto before = filesBelow(m_daemon->folder());
    FaultyLine line(m_daemon->port(), megabyte, FaultyLine::Fault::GoesSilent);
    const auto run = begin({m_daemon->address(QStringLiteral("play"), line.port())});
    SignalLog log;
    log.watch(run.get(), SIGNAL(finished()));
    QTRY_VERIFY_WITH_TIMEOUT(line.isFaulty(), longestUploadMs);
    run->cancel();
    QVERIFY2(log.count(QStringLiteral("finished")) == 0, "the window would be blocked");
    QTRY_COMPARE_WITH_TIMEOUT(log.count(QStringLiteral("finished")), 1, longestUploadMs);
    QCOMPARE(run->jobs().first()->state(), State::Cancelled);
    QCOMPARE(run->jobs().first()->message(),
             QStringLiteral("Cancelled. The target keeps what it had."));
    QCOMPARE(filesBelow(m_daemon->folder()), before);
    run->cancel();
    QCOMPARE(run->jobs().first()->state(), State::Cancelled);
}

void tst_Upload::cancelsBeforeItBegins()
{
    const auto run = begin({target(), m_daemon->address()});
    SignalLog log;
    log.watch(run.get(), SIGNAL(finished()));
    run->cancel();
    QCOMPARE(run->count(State::Cancelled), 2);
    QTRY_COMPARE(log.count(QStringLiteral("finished")), 1);
    QVERIFY(filesBelow(target()).isEmpty());
    QVERIFY(filesBelow(m_daemon->folder()).isEmpty());
}

void tst_Upload::placingIsNotLeftHalfDone()
{
    prepareSecondSet(target());
    auto run = begin({target()});
    const UploadJob *const job = run->jobs().first();
    QVERIFY(comesToPass(run.get(),
                        [job] { return job->message() == QStringLiteral("Putting in place"); }));
    run->cancel();
    QCOMPARE(job->state(), State::Running);
    run.reset();
    auto wanted = expected();
    wanted.remove(QStringLiteral("stage/sub/b.xml"));
    QCOMPARE(filesBelow(target()), wanted);
}

void tst_Upload::diesInTheMiddle()
{
    prepareSecondSet(m_daemon->address());
    const auto before = filesBelow(m_daemon->folder());
    FaultyLine line(m_daemon->port(), megabyte, FaultyLine::Fault::GoesSilent);
    auto run = begin({m_daemon->address(QStringLiteral("play"), line.port())});
    QTRY_VERIFY_WITH_TIMEOUT(line.isFaulty(), longestUploadMs);
    run.reset();
    QCOMPARE(filesBelow(m_daemon->folder()), before);
}

// Which of the two comes first is up to the scheduler of the system.
void tst_Upload::hearsOfAFolderBehindItsLookup()
{
    QPointer<Zavo::FolderLookup> lookup(new Zavo::FolderLookup(target()));
    QStringList heard;
    connect(
        lookup, &Zavo::FolderLookup::found, this,
        [&heard](const QString &path) { heard.append(path); }, Qt::QueuedConnection);
    lookup->start();
    QVERIFY(lookup->wait());
    QCoreApplication::sendPostedEvents(lookup, QEvent::MetaCall);
    QCoreApplication::sendPostedEvents(lookup, QEvent::DeferredDelete);
    QVERIFY(!lookup);
    QCOMPARE(heard, QStringList());
    QCoreApplication::processEvents();
    QCOMPARE(heard, QStringList(QFileInfo(target()).canonicalFilePath()));
}

void tst_Upload::refusesItsOwnDataFolder_data()
{
    QTest::addColumn<QString>("below");
    QTest::newRow("itself") << "";
    QTest::newRow("below") << "/stage";
    QTest::newRow("above") << "/..";
    QTest::newRow("by a link") << "link";
}

void tst_Upload::refusesItsOwnDataFolder()
{
    QFETCH(QString, below);
    const auto before = filesBelow(m_folder->path());
    QString address = QDir::cleanPath(m_folder->path() + below);
    if (below == QLatin1String("link")) {
        address = target() + QStringLiteral("/link");
        QVERIFY(QFile::link(m_folder->path(), address));
    }
    const auto run = upload({address});
    QCOMPARE(run->jobs().first()->state(), State::Failed);
    QCOMPARE(run->jobs().first()->message(),
             QStringLiteral("This is where the data folder of the editor lies."));
    auto after = filesBelow(m_folder->path());
    after.remove(QStringLiteral("Log/Editor/UploadLog.txt"));
    QCOMPARE(after, before);
}

void tst_Upload::nothingIsSentWithADamagedChannel()
{
    prepareSecondSet(target());
    const auto before = filesBelow(target());
    m_folder->write(QStringLiteral("channel/channel0.xml"), "<Channel");
    const auto run = upload({target(), m_daemon->address()});
    QCOMPARE(run->count(State::Failed), 2);
    QCOMPARE(run->jobs().first()->message(),
             QStringLiteral("The channel file \"channel0.xml\" is damaged."));
    QCOMPARE(filesBelow(target()), before);
    QVERIFY(filesBelow(m_daemon->folder()).isEmpty());
}

void tst_Upload::savingMeanwhileChangesNothing()
{
    m_folder->write(QStringLiteral("stage/large.zstg"), ZavoTest::noise(3 * megabyte));
    ZavoTest::writeChannel(*m_folder, 2, QStringLiteral("large.zstg"));
    const auto wanted = expected();
    const auto run = begin({m_daemon->address()});
    QVERIFY(
        comesToPass(run.get(), [&run] { return run->jobs().first()->state() == State::Running; }));
    ZavoTest::writeChannel(*m_folder, 0, QStringLiteral("other.xml"));
    QVERIFY(QFile::remove(m_folder->filePath(QStringLiteral("stage/large.zstg"))));
    QTRY_VERIFY_WITH_TIMEOUT(run->isOver(), longestUploadMs);
    QCOMPARE(run->count(State::Done), 1);
    QCOMPARE(filesBelow(m_daemon->folder()), wanted);
}

void tst_Upload::asksNoQuestions()
{
    // A host that does not know this machine's key, or that is none, must not wait for an answer.
    QElapsedTimer clock;
    clock.start();
    const auto run = upload({QStringLiteral("nobody@127.0.0.1:/srv/none")});
    QCOMPARE(run->jobs().first()->state(), State::Failed);
    QVERIFY(
        run->jobs().first()->message().endsWith(QStringLiteral("The target keeps what it had.")));
    QVERIFY(clock.elapsed() < 30000);
}

void tst_Upload::tellsThatRsyncIsMissing()
{
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", "/nonexistent");
    const auto run = upload({target()});
    qputenv("PATH", path);
    QCOMPARE(run->jobs().first()->message(),
             QStringLiteral("The program rsync is not installed. The target keeps what it had."));
}

void tst_Upload::writesALog()
{
    ZavoTest::writeChannel(*m_folder, 5, QStringLiteral("gone.xml"));
    upload({target(), QStringLiteral("/nonexistent/share")});
    const QStringList lines =
        QString::fromUtf8(m_folder->read(QStringLiteral("Log/Editor/UploadLog.txt")))
            .split(QLatin1Char('\n'));
    const auto has = [&lines](const QString &part) {
        return std::any_of(lines.begin(), lines.end(),
                           [&part](const QString &line) { return line.contains(part); });
    };
    QVERIFY(lines.first().contains(m_folder->path()));
    QVERIFY(has(QStringLiteral("3 channel files, 2 stages, 0 pictures")));
    QVERIFY(has(QStringLiteral("The stage \"gone.xml\" of the channel \"Ch.5\" is missing.")));
    QVERIFY(has(target() + QStringLiteral(": begins")));
    QVERIFY(has(target() + QStringLiteral(": Complete.")));
    QVERIFY(has(QStringLiteral("/nonexistent/share: The target does not exist.")));
    QVERIFY(has(QStringLiteral("No such file or directory")));
    QVERIFY(has(QStringLiteral("1 complete, 1 failed, 0 cancelled")));
    QCOMPARE(lines.last(), QString());
}

QTEST_GUILESS_MAIN(tst_Upload)
#include "tst_upload.moc"
