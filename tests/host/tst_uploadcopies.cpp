#include "safety/BackupDialog.h"
#include "safety/BackupStore.h"
#include "safety/SafetyDesk.h"
#include "upload/UploadNames.h"
#include "upload/UploadRun.h"

#include "FolderFaults.h"
#include "SignalLog.h"
#include "UploadBench.h"

#include <QListWidget>
#include <QPushButton>
#include <QStandardPaths>
#include <QTreeWidget>
#include <QtTest>

using Zavo::BackupDialog;
using Zavo::BackupState;
using Zavo::BackupStore;
using Zavo::SafetyDesk;
using Zavo::UploadRun;
using Zavo::UploadTarget;
using ZavoTest::filesBelow;
using ZavoTest::RsyncDaemon;
using ZavoTest::SignalLog;
using ZavoTest::TemporaryDataFolder;
using State = Zavo::UploadJob::State;

namespace {
constexpr int longestUploadMs = 60000;

/// While it lives, the run of rsync that fetches what is replaced meets a fault.
class FetchFault final
{
    Q_DISABLE_COPY(FetchFault)

public:
    /// @p command is of the shell.
    explicit FetchFault(const QByteArray &command)
        : m_path(qgetenv("PATH"))
    {
        const QByteArray rsync =
            QFile::encodeName(QStandardPaths::findExecutable(QStringLiteral("rsync")));
        const QString script = m_root.filePath(QStringLiteral("rsync"));
        ZavoTest::writeFile(script, "#!/bin/sh\ncase \"$*\" in *--compare-dest=*) touch '" +
                                        QFile::encodeName(mark()) + "'; " + command +
                                        ";; esac\nexec " + rsync + " \"$@\"\n");
        QFile::setPermissions(script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("PATH", QFile::encodeName(m_root.path()) + ':' + m_path);
    }
    ~FetchFault() { qputenv("PATH", m_path); }

    bool isMet() const { return QFile::exists(mark()); }

private:
    QString mark() const { return m_root.filePath(QStringLiteral("met")); }

    const QByteArray m_path;
    QTemporaryDir m_root;
};
} // namespace

/// The safety copies of what an upload replaces or removes at a target.
class tst_UploadCopies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void keepsWhatItReplaces_data();
    void keepsWhatItReplaces();
    void keepsOfAForeignTargetToo();
    void keepsNothingTwice();
    void keepsNothingOfItsOwn();
    void fetchesNothingButChannelFiles();
    void goesOnWithoutCopies();
    void goesOnIfSomeCannotBeRead();
    void touchesNothingIfTheLineBreaks();
    void cancelsWhileItFetches();
    void keepsTwentyStatesOfTargets();
    void showsStatesOfTargets();

private:
    std::unique_ptr<UploadRun> begin(const QStringList &addresses);
    /// An upload to its end.
    std::unique_ptr<UploadRun> upload(const QStringList &addresses);
    QString target(const QString &name = QStringLiteral("a"));
    /// What uploads put at a target before.
    static void fill(const QString &folder, const QMap<QString, QByteArray> &files);
    QList<QByteArray> kept(const QString &fileName, bool ofTargets = true) const;
    static QString message(const std::unique_ptr<UploadRun> &run, int index = 0);

    std::unique_ptr<TemporaryDataFolder> m_folder;
    std::unique_ptr<QTemporaryDir> m_targets;
};

void tst_UploadCopies::init()
{
    m_folder = std::make_unique<TemporaryDataFolder>();
    m_targets = std::make_unique<QTemporaryDir>();
    m_folder->writeStage(QStringLiteral("a.xml"));
    ZavoTest::writeChannel(*m_folder, 0, QStringLiteral("a.xml"));
    ZavoTest::writeChannel(*m_folder, 1, QStringLiteral("a.xml"));
}

void tst_UploadCopies::cleanup()
{
    m_targets.reset();
    m_folder.reset();
}

std::unique_ptr<UploadRun> tst_UploadCopies::begin(const QStringList &addresses)
{
    QList<UploadTarget> targets;
    for (const QString &address : addresses)
        targets.append(UploadTarget(address));
    auto run = std::make_unique<UploadRun>(m_folder->path(),
                                           m_folder->filePath(QStringLiteral("Log/Editor")));
    run->start(targets);
    return run;
}

std::unique_ptr<UploadRun> tst_UploadCopies::upload(const QStringList &addresses)
{
    std::unique_ptr<UploadRun> run = begin(addresses);
    SignalLog log;
    log.watch(run.get(), SIGNAL(finished()));
    const bool isOver =
        QTest::qWaitFor([&] { return log.count(QStringLiteral("finished")) > 0; }, longestUploadMs);
    if (!isOver)
        QTest::qFail("the upload has not finished", __FILE__, __LINE__);
    return run;
}

QString tst_UploadCopies::target(const QString &name)
{
    const QString path = m_targets->filePath(name);
    QDir().mkpath(path);
    return path;
}

void tst_UploadCopies::fill(const QString &folder, const QMap<QString, QByteArray> &files)
{
    for (auto each = files.begin(); each != files.end(); ++each)
        ZavoTest::writeFile(folder + QLatin1Char('/') + each.key(), each.value());
    ZavoTest::writeFile(folder + QLatin1Char('/') + QLatin1String(Zavo::UploadNames::markFile),
                        "before");
}

QList<QByteArray> tst_UploadCopies::kept(const QString &fileName, bool ofTargets) const
{
    QList<QByteArray> contents;
    const QList<BackupState> states = BackupStore(m_folder->path()).states(fileName);
    for (const BackupState &state : states) {
        QFile file(state.path);
        if (state.wasAtTarget == ofTargets && file.open(QIODevice::ReadOnly))
            contents.append(file.readAll());
    }
    return contents;
}

QString tst_UploadCopies::message(const std::unique_ptr<UploadRun> &run, int index)
{
    return run->jobs().at(index)->message();
}

void tst_UploadCopies::keepsWhatItReplaces_data()
{
    QTest::addColumn<bool>("isDaemon");
    QTest::newRow("folder") << false;
    QTest::newRow("daemon") << true;
}

void tst_UploadCopies::keepsWhatItReplaces()
{
    QFETCH(bool, isDaemon);
    std::unique_ptr<RsyncDaemon> daemon;
    if (isDaemon) {
        daemon = std::make_unique<RsyncDaemon>();
        QVERIFY(daemon->isReady());
    }
    const QString folder = daemon ? daemon->folder() : target();
    const QByteArray same = m_folder->read(QStringLiteral("channel/channel1.xml"));
    fill(folder, {{QStringLiteral("channel/channel0.xml"), "old 0"},
                  {QStringLiteral("channel/channel1.xml"), same},
                  {QStringLiteral("channel/channel9.xml"), "old 9"},
                  {QStringLiteral("stage/a.xml"), "old a"}});
    const QDateTime time(QDate(2020, 2, 3), QTime(4, 5, 6));
    {
        QFile old(folder + QStringLiteral("/channel/channel9.xml"));
        QVERIFY(old.open(QIODevice::ReadWrite));
        QVERIFY(old.setFileTime(time, QFileDevice::FileModificationTime));
    }
    const auto run = upload({daemon ? daemon->address() : folder});
    QCOMPARE(message(run), QStringLiteral("Complete."));
    QCOMPARE(run->jobs().first()->details(),
             QStringList(QStringLiteral("2 channel file(s) that were replaced or removed there are "
                                        "among the safety copies.")));
    QCOMPARE(kept(QStringLiteral("channel0.xml")), QList<QByteArray>({"old 0"}));
    QCOMPARE(kept(QStringLiteral("channel1.xml")), QList<QByteArray>());
    QCOMPARE(kept(QStringLiteral("channel9.xml")), QList<QByteArray>({"old 9"}));
    QCOMPARE(
        BackupStore(m_folder->path()).states(QStringLiteral("channel9.xml")).constFirst().modified,
        time);
    QVERIFY(!QFile::exists(folder + QStringLiteral("/channel/channel9.xml")));
    QVERIFY(
        m_folder->read(QStringLiteral("Log/Editor/UploadLog.txt")).contains("2 channel file(s)"));
}

void tst_UploadCopies::keepsOfAForeignTargetToo()
{
    fill(target(), {{QStringLiteral("channel/channel0.xml"), "foreign"}});
    QVERIFY(
        QFile::remove(target() + QLatin1Char('/') + QLatin1String(Zavo::UploadNames::markFile)));
    const auto run = upload({target()});
    QVERIFY2(message(run).contains(QStringLiteral("before-upload-")), qPrintable(message(run)));
    QCOMPARE(kept(QStringLiteral("channel0.xml")), QList<QByteArray>({"foreign"}));
}

void tst_UploadCopies::keepsNothingTwice()
{
    for (const auto *name : {"a", "b", "c"})
        fill(target(QLatin1String(name)), {{QStringLiteral("channel/channel0.xml"), "old"}});
    fill(target(QStringLiteral("d")), {{QStringLiteral("channel/channel0.xml"), "other"}});
    const auto run = upload({target(), target(QStringLiteral("b")), target(QStringLiteral("c")),
                             target(QStringLiteral("d"))});
    QCOMPARE(run->count(State::Done), 4);
    QList<QByteArray> states = kept(QStringLiteral("channel0.xml"));
    std::sort(states.begin(), states.end());
    QCOMPARE(states, QList<QByteArray>({"old", "other"}));
}

void tst_UploadCopies::keepsNothingOfItsOwn()
{
    BackupStore store(m_folder->path());
    upload({target()});
    // Saved, and kept by that.
    const QString path = m_folder->filePath(QStringLiteral("channel/channel0.xml"));
    const QByteArray first = m_folder->read(QStringLiteral("channel/channel0.xml"));
    QCOMPARE(store.keep(path), BackupStore::Result::Kept);
    ZavoTest::writeChannel(*m_folder, 0, QStringLiteral("other.xml"));
    QCOMPARE(store.keep(path), BackupStore::Result::Kept);
    const auto run = upload({target()});
    QCOMPARE(message(run), QStringLiteral("Complete."));
    QCOMPARE(kept(QStringLiteral("channel0.xml")), QList<QByteArray>());
    QCOMPARE(kept(QStringLiteral("channel0.xml"), false).last(), first);
    // Without a change there is nothing to tell either.
    QVERIFY(upload({target()})->jobs().first()->details().isEmpty());
}

void tst_UploadCopies::fetchesNothingButChannelFiles()
{
    m_targets->remove();
    m_targets = std::make_unique<QTemporaryDir>();
    ZavoTest::writeFile(m_targets->filePath(QStringLiteral("secret")), "secret");
    fill(target(), {{QStringLiteral("channel/notes.txt"), "notes"},
                    {QStringLiteral("channel/.channel3.xml"), "hidden"},
                    {QStringLiteral("channel/channel4.xml/channel5.xml"), "below a folder"},
                    {QStringLiteral("channel/channel6.xml"), "old 6"}});
    QVERIFY(QFile::link(m_targets->filePath(QStringLiteral("secret")),
                        target() + QStringLiteral("/channel/channel7.xml")));
    const auto run = upload({target()});
    QCOMPARE(message(run), QStringLiteral("Complete."));
    QCOMPARE(m_folder->names(QStringLiteral("backup")),
             QStringList(QStringLiteral("channel6.xml")));
    QCOMPARE(kept(QStringLiteral("channel6.xml")), QList<QByteArray>({"old 6"}));
}

void tst_UploadCopies::goesOnWithoutCopies()
{
    m_folder->write(QStringLiteral("backup"), "no folder");
    fill(target(), {{QStringLiteral("channel/channel0.xml"), "old"}});
    const auto run = upload({target()});
    QCOMPARE(run->count(State::Done), 1);
    QCOMPARE(message(run), QStringLiteral("Complete. No safety copy could be made of all that was "
                                          "replaced there."));
    QVERIFY(run->jobs().first()->details().last().contains(QStringLiteral("backup")));
    QCOMPARE(filesBelow(target()).value(QStringLiteral("channel/channel0.xml")),
             m_folder->read(QStringLiteral("channel/channel0.xml")));
    QCOMPARE(m_folder->read(QStringLiteral("backup")), QByteArray("no folder"));
}

void tst_UploadCopies::goesOnIfSomeCannotBeRead()
{
    fill(target(), {{QStringLiteral("channel/channel0.xml"), "old"}});
    const FetchFault fault("echo 'channel0.xml: Input/output error' >&2; exit 23");
    const auto run = upload({target()});
    QVERIFY(fault.isMet());
    QCOMPARE(message(run), QStringLiteral("Complete. No safety copy could be made of all that was "
                                          "replaced there."));
    QVERIFY(run->jobs().first()->details().contains(
        QStringLiteral("channel0.xml: Input/output error")));
}

void tst_UploadCopies::touchesNothingIfTheLineBreaks()
{
    fill(target(), {{QStringLiteral("channel/channel0.xml"), "old"}});
    const auto before = filesBelow(target());
    const FetchFault fault("exit 12");
    const auto run = upload({target()});
    QVERIFY(fault.isMet());
    QCOMPARE(message(run), QStringLiteral("The connection to the target is lost. The target keeps "
                                          "what it had."));
    QCOMPARE(filesBelow(target()), before);
}

void tst_UploadCopies::cancelsWhileItFetches()
{
    fill(target(), {{QStringLiteral("channel/channel0.xml"), "old"}});
    const auto before = filesBelow(target());
    const FetchFault fault("exec sleep 60");
    const auto run = begin({target()});
    QTRY_VERIFY_WITH_TIMEOUT(fault.isMet(), longestUploadMs);
    run->cancel();
    QTRY_VERIFY_WITH_TIMEOUT(run->isOver(), longestUploadMs);
    QCOMPARE(message(run), QStringLiteral("Cancelled. The target keeps what it had."));
    QCOMPARE(filesBelow(target()), before);
}

void tst_UploadCopies::keepsTwentyStatesOfTargets()
{
    BackupStore store(m_folder->path());
    const QString name = QStringLiteral("channel0.xml");
    const QString path = m_folder->filePath(QStringLiteral("channel/channel0.xml"));
    const QByteArray present = m_folder->read(QStringLiteral("channel/channel0.xml"));
    QCOMPARE(store.keep(path), BackupStore::Result::Kept);
    QList<QByteArray> expected;
    for (int number = 0; number < 30; ++number) {
        const QByteArray content = "state " + QByteArray::number(number);
        QCOMPARE(store.keepFromTarget(name, content, QDateTime::currentDateTime()),
                 BackupStore::Result::Kept);
        expected.prepend(content);
    }
    QCOMPARE(kept(name), expected.mid(0, BackupStore::MaximumTargetStates));
    QCOMPARE(kept(name, false), QList<QByteArray>({present}));
    QCOMPARE(store.keepFromTarget(name, present, {}), BackupStore::Result::Unchanged);
    // Neither do the channel's own states push out those.
    for (int number = 0; number < 30; ++number) {
        ZavoTest::writeFile(path, "own " + QByteArray::number(number));
        QCOMPARE(store.keep(path), BackupStore::Result::Kept);
    }
    QCOMPARE(kept(name), expected.mid(0, BackupStore::MaximumTargetStates));
    QCOMPARE(kept(name, false).size(), BackupStore::MaximumEarlierStates + 1);
}

void tst_UploadCopies::showsStatesOfTargets()
{
    const QByteArray there = m_folder->read(QStringLiteral("channel/channel0.xml"));
    fill(target(), {{QStringLiteral("channel/channel0.xml"), there}});
    BackupStore store(m_folder->path());
    const QString path = m_folder->filePath(QStringLiteral("channel/channel0.xml"));
    ZavoTest::writeChannel(*m_folder, 0, QStringLiteral("other.xml"));
    QCOMPARE(store.keep(path), BackupStore::Result::Kept);
    upload({target()});
    BackupDialog dialog(m_folder->path(), &store);
    dialog.show();
    auto *const tree = dialog.findChild<QTreeWidget *>();
    QCOMPARE(dialog.findChild<QListWidget *>()->count(), 1);
    QCOMPARE(tree->topLevelItemCount(), 2);
    QVERIFY(tree->topLevelItem(0)->text(0).endsWith(QStringLiteral("at a target")));
    QVERIFY(!tree->topLevelItem(1)->text(0).contains(QStringLiteral("target")));
    tree->setCurrentItem(tree->topLevelItem(0));
    QTRY_VERIFY(dialog.chosenState().has_value());
    QVERIFY(SafetyDesk::restore(m_folder->path(), *dialog.chosenState()));
    QCOMPARE(m_folder->read(QStringLiteral("channel/channel0.xml")), there);
}

QTEST_MAIN(tst_UploadCopies)
#include "tst_uploadcopies.moc"
