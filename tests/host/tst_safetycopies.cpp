#include "safety/BackupStore.h"
#include "safety/ChannelGuard.h"
#include "safety/ChannelStates.h"
#include "safety/StateDifference.h"

#include "ChannelFiles.h"
#include "FolderFaults.h"
#include "TemporaryDataFolder.h"
#include "ZvChannel.h"
#include "ZvSchedule.h"
#include "storage/DurableFile.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>
#include <QtTest>

#include <atomic>
#include <cerrno>
#include <thread>

using Zavo::BackupState;
using Zavo::BackupStore;
using Zavo::ChannelGuard;
using Zavo::ChannelStates;
using Zavo::DurableFile;
using Zavo::StateDifference;
using Zavo::ZvChannel;
using Zavo::ZvSchedule;
using ZavoTest::ReadOnlyFolder;
using ZavoTest::TemporaryDataFolder;

/// The copies of channel files, and who notices that a file changed.
class tst_SafetyCopies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void keepsEachStateOnce();
    void keepsTheLastTwentyBesideThePresentOne();
    void takesAnOldStateForTheNewest();
    void standsAClockThatWasPutBack();
    void findsTheCopiesOfEveryHour();
    void copiesAndDoesNotLink();
    void keepsWhatIsRemoved();
    void keepsAgainWhatSomebodyCleared();
    void tellsWhyThereIsNoCopy();
    void passesOverWhatIsNoCopy();
    void ordersChannelsByNumber();
    void noticesWhatOthersChange();
    void takesNoTouchForAChange();
    void takesNoCopyOfTheBasicChannelForAChange();
    void noticesAFileThatWentAndCameBack();
    void waitsUntilTheOtherHasWritten();
    void knowsItsOwnSaves();
    void keepsBeforeASave();
    void asksBeforeItOverwritesAnother_data();
    void asksBeforeItOverwritesAnother();
    void noticesAtTheLastMoment();
    void asksNobodyBesideTheGuiThread();
    void leavesOtherFilesAlone();
    void knowsAFileBehindALink();
    void keepsThePermissions();
    void looksAtManyChannels();
    void savesAndLooksAtOnce();
    void sharesItsFolder();
    void tellsTheDifference();
    void tellsOfNameAndPlace();

private:
    QString channelPath(int number = 0) const;
    QString write(const QByteArray &content, int number = 0);
    QList<QByteArray> kept(int number = 0) const;

    std::unique_ptr<TemporaryDataFolder> m_folder;
    std::unique_ptr<BackupStore> m_store;
};

void tst_SafetyCopies::init()
{
    m_folder = std::make_unique<TemporaryDataFolder>();
    m_folder->makeFolder(QStringLiteral("channel"));
    m_store = std::make_unique<BackupStore>(m_folder->path());
}

void tst_SafetyCopies::cleanup()
{
    m_store.reset();
    m_folder.reset();
}

QString tst_SafetyCopies::channelPath(int number) const
{
    return m_folder->channelFolder() + QLatin1Char('/') + ZavoTest::channelFileName(number);
}

// As another program writes: into the file, in place.
QString tst_SafetyCopies::write(const QByteArray &content, int number)
{
    return m_folder->write(QStringLiteral("channel/") + ZavoTest::channelFileName(number), content);
}

QList<QByteArray> tst_SafetyCopies::kept(int number) const
{
    QList<QByteArray> contents;
    const QList<BackupState> states = m_store->states(ZavoTest::channelFileName(number));
    for (const BackupState &state : states) {
        QFile file(state.path);
        contents.append(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable"));
    }
    return contents;
}

void tst_SafetyCopies::keepsEachStateOnce()
{
    QCOMPARE(m_store->keep(channelPath()), BackupStore::Result::Unchanged);
    QVERIFY(!QDir(m_store->folder()).exists());
    const QString path = write("one");
    QCOMPARE(m_store->keep(path), BackupStore::Result::Kept);
    QCOMPARE(m_store->keep(path), BackupStore::Result::Unchanged);
    write("two");
    QCOMPARE(m_store->keep(path), BackupStore::Result::Kept);
    QCOMPARE(kept(), QList<QByteArray>({"two", "one"}));
    const BackupState newest = m_store->states(QStringLiteral("channel0.xml")).constFirst();
    QCOMPARE(newest.modified, QFileInfo(path).lastModified());
    QVERIFY2(newest.path.startsWith(m_folder->filePath(QStringLiteral("backup/channel0.xml/2"))),
             qPrintable(newest.path));
    // A program that starts anew finds them.
    QCOMPARE(BackupStore(m_folder->path()).keep(path), BackupStore::Result::Unchanged);
    QCOMPARE(m_folder->names(QStringLiteral("backup/channel0.xml")).size(), 2);
}

void tst_SafetyCopies::keepsTheLastTwentyBesideThePresentOne()
{
    QList<QByteArray> expected;
    for (int number = 0; number < 30; ++number) {
        const QByteArray content = "state " + QByteArray::number(number);
        QCOMPARE(m_store->keep(write(content)), BackupStore::Result::Kept);
        expected.prepend(content);
    }
    QCOMPARE(kept(), expected.mid(0, 21));
}

void tst_SafetyCopies::takesAnOldStateForTheNewest()
{
    for (const char *content : {"one", "two", "six", "one"})
        QCOMPARE(m_store->keep(write(content)), BackupStore::Result::Kept);
    QCOMPARE(kept(), QList<QByteArray>({"one", "six", "two"}));
}

void tst_SafetyCopies::standsAClockThatWasPutBack()
{
    m_folder->write(QStringLiteral("backup/channel0.xml/2999-12-31T23-59-59.999Z.xml"), "future");
    for (const char *content : {"one", "two"})
        QCOMPARE(m_store->keep(write(content)), BackupStore::Result::Kept);
    QCOMPARE(kept(), QList<QByteArray>({"two", "one", "future"}));
}

// The names are in universal time, of which the local time leaves out an hour in spring.
void tst_SafetyCopies::findsTheCopiesOfEveryHour()
{
    const QByteArray zone = qgetenv("TZ");
    qputenv("TZ", "Europe/Berlin");
    for (const char *day : {"2026-03-29", "2026-10-25"}) {
        for (int hour = 0; hour < 8; ++hour)
            m_folder->write(QStringLiteral("backup/channel0.xml/%1T%2-30-00.125Z.xml")
                                .arg(QLatin1String(day))
                                .arg(hour, 2, 10, QLatin1Char('0')),
                            day);
    }
    const int found = m_store->states(ZavoTest::channelFileName(0)).size();
    if (zone.isNull())
        qunsetenv("TZ");
    else
        qputenv("TZ", zone);
    QCOMPARE(found, 16);
}

void tst_SafetyCopies::copiesAndDoesNotLink()
{
    const QString path = write("before");
    QCOMPARE(m_store->keep(path), BackupStore::Result::Kept);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QCOMPARE(file.write("AFTER."), 6);
    file.close();
    QCOMPARE(kept(), QList<QByteArray>({"before"}));
}

void tst_SafetyCopies::keepsWhatIsRemoved()
{
    ChannelStates states(m_folder->path(), m_store.get());
    for (int number = 0; number < 3; ++number)
        write("channel " + QByteArray::number(number), number);
    m_folder->write(QStringLiteral("channel/notes.txt"), "notes");
    states.look();
    QVERIFY(QDir(m_folder->channelFolder()).removeRecursively());
    QVERIFY(states.look().byOthers.isEmpty());
    for (int number = 0; number < 3; ++number)
        QCOMPARE(kept(number), QList<QByteArray>({"channel " + QByteArray::number(number)}));
    QVERIFY(m_store->fileNames().contains(QStringLiteral("notes.txt")));
}

void tst_SafetyCopies::keepsAgainWhatSomebodyCleared()
{
    const QString path = write("one");
    QCOMPARE(m_store->keep(path), BackupStore::Result::Kept);
    QVERIFY(QDir(m_store->folder()).removeRecursively());
    QCOMPARE(m_store->keep(path), BackupStore::Result::Kept);
    QCOMPARE(kept(), QList<QByteArray>({"one"}));
}

void tst_SafetyCopies::tellsWhyThereIsNoCopy()
{
    const QString path = write("one");
    QCOMPARE(m_store->keep(path), BackupStore::Result::Kept);
    write("two");
    {
        const ReadOnlyFolder readOnly(m_folder->filePath(QStringLiteral("backup/channel0.xml")));
        if (!readOnly.isEffective())
            QSKIP("this machine cannot make a folder read-only");
        QCOMPARE(m_store->keep(path), BackupStore::Result::Failed);
        QVERIFY2(m_store->lastError().contains(QStringLiteral("channel0.xml")),
                 qPrintable(m_store->lastError()));
        ChannelStates states(m_folder->path(), m_store.get());
        QVERIFY(states.look().copiesFailed);
    }
    QCOMPARE(m_store->keep(path), BackupStore::Result::Kept);
    QCOMPARE(kept(), QList<QByteArray>({"two", "one"}));
    m_folder->write(QStringLiteral("backup/channel1.xml"), "a file in the way");
    QCOMPARE(m_store->keep(write("x", 1)), BackupStore::Result::Failed);
}

void tst_SafetyCopies::passesOverWhatIsNoCopy()
{
    for (const auto *name : {"notes.txt", ".incoming", "2026-13-01T00-00-00.000Z.xml", "Z.xml",
                             "2026-01-01T00-00-00.000Z.xml.tmp"})
        m_folder->write(QStringLiteral("backup/channel0.xml/") + QLatin1String(name), "junk");
    m_folder->makeFolder(QStringLiteral("backup/channel0.xml/2026-01-01T00-00-00.000Z.xml"));
    QVERIFY(m_store->states(QStringLiteral("channel0.xml")).isEmpty());
    QCOMPARE(m_store->keep(write("one")), BackupStore::Result::Kept);
    QCOMPARE(kept(), QList<QByteArray>({"one"}));
    QCOMPARE(m_folder->read(QStringLiteral("backup/channel0.xml/notes.txt")), QByteArray("junk"));
}

void tst_SafetyCopies::ordersChannelsByNumber()
{
    for (int number : {10, 2, 1})
        m_store->keep(write("x", number));
    QCOMPARE(m_store->fileNames(),
             QStringList({QStringLiteral("channel1.xml"), QStringLiteral("channel2.xml"),
                          QStringLiteral("channel10.xml")}));
}

void tst_SafetyCopies::noticesWhatOthersChange()
{
    write("one");
    ChannelStates states(m_folder->path(), m_store.get());
    QVERIFY(states.look().byOthers.isEmpty());
    QVERIFY(states.look().byOthers.isEmpty());
    write("two!");
    QVERIFY(states.look().byOthers.isEmpty());
    QCOMPARE(states.look().byOthers, QStringList(QStringLiteral("channel0.xml")));
    QVERIFY(states.look().byOthers.isEmpty());
    QVERIFY(states.isChangedByOthers(channelPath()));
    QCOMPARE(kept(), QList<QByteArray>({"two!", "one"}));
    // A file that is new is nobody's change.
    write("new", 7);
    states.look();
    QVERIFY(states.look().byOthers.isEmpty());
    QVERIFY(!states.isChangedByOthers(channelPath(7)));
    QVERIFY(!states.isChangedByOthers(channelPath(8)));
}

void tst_SafetyCopies::takesNoTouchForAChange()
{
    write("one");
    ChannelStates states(m_folder->path(), m_store.get());
    states.look();
    QFile file(channelPath());
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addDays(-1),
                             QFileDevice::FileModificationTime));
    file.close();
    QVERIFY(!states.isChangedByOthers(channelPath()));
    states.look();
    QVERIFY(states.look().byOthers.isEmpty());
}

void tst_SafetyCopies::takesNoCopyOfTheBasicChannelForAChange()
{
    write("one");
    m_folder->write(QStringLiteral("channel/channel.xml"), "one");
    ChannelStates states(m_folder->path(), m_store.get());
    const ChannelGuard guard(&states, m_store.get());
    states.look();
    QVERIFY(DurableFile::write(channelPath(), "two"));
    const QString basic = m_folder->channelFolder() + QStringLiteral("/channel.xml");
    QVERIFY(QFile::remove(basic));
    QVERIFY(QFile::copy(channelPath(), basic));
    states.look();
    QVERIFY(states.look().byOthers.isEmpty());
    m_folder->write(QStringLiteral("channel/channel.xml"), "theirs");
    states.look();
    QCOMPARE(states.look().byOthers, QStringList(QStringLiteral("channel.xml")));
}

void tst_SafetyCopies::noticesAFileThatWentAndCameBack()
{
    write("one");
    ChannelStates states(m_folder->path(), m_store.get());
    states.look();
    QVERIFY(QFile::remove(channelPath()));
    states.look();
    states.look();
    write("theirs");
    states.look();
    QCOMPARE(states.look().byOthers, QStringList(QStringLiteral("channel0.xml")));
}

void tst_SafetyCopies::waitsUntilTheOtherHasWritten()
{
    write("one");
    ChannelStates states(m_folder->path(), m_store.get());
    states.look();
    QByteArray content;
    for (int step = 0; step < 5; ++step) {
        content += "more and ";
        write(content);
        QVERIFY(states.look().byOthers.isEmpty());
    }
    QCOMPARE(states.look().byOthers.size(), 1);
    QCOMPARE(kept(), QList<QByteArray>({content, "one"}));
}

void tst_SafetyCopies::knowsItsOwnSaves()
{
    write("one");
    ChannelStates states(m_folder->path(), m_store.get());
    const ChannelGuard guard(&states, m_store.get());
    states.look();
    for (const char *content : {"two", "six", "ten"}) {
        QVERIFY(DurableFile::write(channelPath(), content));
        QVERIFY(states.look().byOthers.isEmpty());
    }
    QVERIFY(states.look().byOthers.isEmpty());
    QVERIFY(!states.isChangedByOthers(channelPath()));
    QCOMPARE(kept(), QList<QByteArray>({"ten", "six", "two", "one"}));
}

void tst_SafetyCopies::keepsBeforeASave()
{
    write("one");
    ChannelStates states(m_folder->path(), m_store.get());
    const ChannelGuard guard(&states, m_store.get());
    // Nobody has looked yet.
    QVERIFY(DurableFile::write(channelPath(), "two"));
    QVERIFY(QFile::remove(channelPath()));
    QCOMPARE(kept(), QList<QByteArray>({"two", "one"}));
    // A first channel is no replacement, and is kept all the same.
    QVERIFY(DurableFile::write(channelPath(5), "new"));
    QCOMPARE(kept(5), QList<QByteArray>({"new"}));
}

void tst_SafetyCopies::asksBeforeItOverwritesAnother_data()
{
    QTest::addColumn<bool>("asked");
    QTest::addColumn<bool>("answer");
    QTest::addColumn<bool>("written");
    QTest::newRow("yes") << true << true << true;
    QTest::newRow("no") << true << false << false;
    QTest::newRow("nobody to ask") << false << false << false;
}

void tst_SafetyCopies::asksBeforeItOverwritesAnother()
{
    QFETCH(bool, asked);
    QFETCH(bool, answer);
    QFETCH(bool, written);
    write("one");
    ChannelStates states(m_folder->path(), m_store.get());
    ChannelGuard guard(&states, m_store.get());
    states.look();
    write("theirs");
    states.look();
    QCOMPARE(states.look().byOthers.size(), 1);
    QStringList questions;
    if (asked) {
        guard.setQuestion([&](const QString &path) {
            questions.append(path);
            return answer;
        });
    }
    errno = 0;
    QCOMPARE(DurableFile::write(channelPath(), "ours"), written);
    QCOMPARE(questions, asked ? QStringList(channelPath()) : QStringList());
    QFile file(channelPath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), written ? QByteArray("ours") : QByteArray("theirs"));
    QCOMPARE(kept(), written ? QList<QByteArray>({"ours", "theirs", "one"})
                             : QList<QByteArray>({"theirs", "ours", "one"}));
    QCOMPARE(m_folder->names(QStringLiteral("channel")).size(), 1);
    // The answer holds for this state of the file, not for the next.
    QCOMPARE(states.isChangedByOthers(channelPath()), !written);
    QCOMPARE(DurableFile::write(channelPath(), "again"), written);
    QCOMPARE(questions.size(), asked ? (written ? 1 : 2) : 0);
}

void tst_SafetyCopies::noticesAtTheLastMoment()
{
    write("one");
    ChannelStates states(m_folder->path(), m_store.get());
    ChannelGuard guard(&states, m_store.get());
    states.look();
    write("theirs");
    int questions = 0;
    guard.setQuestion([&](const QString &) {
        ++questions;
        // It goes on while the question is open.
        write("theirs, later");
        return true;
    });
    QVERIFY(DurableFile::write(channelPath(), "ours"));
    QCOMPARE(questions, 1);
    QCOMPARE(kept(), QList<QByteArray>({"ours", "theirs, later", "theirs", "one"}));
}

void tst_SafetyCopies::asksNobodyBesideTheGuiThread()
{
    write("one");
    ChannelStates states(m_folder->path(), m_store.get());
    ChannelGuard guard(&states, m_store.get());
    states.look();
    write("theirs");
    bool asked = false;
    guard.setQuestion([&](const QString &) { return asked = true; });
    bool written = true;
    std::thread([&] { written = DurableFile::write(channelPath(), "ours"); }).join();
    QVERIFY(!written);
    QVERIFY(!asked);
    QVERIFY(kept().contains("ours"));
}

void tst_SafetyCopies::leavesOtherFilesAlone()
{
    ChannelStates states(m_folder->path(), m_store.get());
    const ChannelGuard guard(&states, m_store.get());
    m_folder->makeFolder(QStringLiteral("channel/below"));
    for (const auto *name : {"config.ini", "channel/below/channel0.xml", "channel/.hidden"})
        QVERIFY(DurableFile::write(m_folder->filePath(QLatin1String(name)), "x"));
    states.look();
    QVERIFY(m_store->fileNames().isEmpty());
}

void tst_SafetyCopies::knowsAFileBehindALink()
{
    const QString target = m_folder->write(QStringLiteral("elsewhere/lobby.xml"), "one");
    QVERIFY(QFile::link(target, channelPath()));
    ChannelStates states(m_folder->path(), m_store.get());
    const ChannelGuard guard(&states, m_store.get());
    states.look();
    QVERIFY(DurableFile::write(channelPath(), "two"));
    QCOMPARE(m_folder->read(QStringLiteral("elsewhere/lobby.xml")), QByteArray("two"));
    states.look();
    QVERIFY(states.look().byOthers.isEmpty());
    QCOMPARE(kept(), QList<QByteArray>({"two", "one"}));
    m_folder->write(QStringLiteral("elsewhere/lobby.xml"), "theirs");
    QVERIFY(!DurableFile::write(channelPath(), "ours"));
    QCOMPARE(m_folder->read(QStringLiteral("elsewhere/lobby.xml")), QByteArray("theirs"));
    // A link that leads nowhere is no channel.
    QVERIFY(QFile::link(m_folder->filePath(QStringLiteral("none.xml")), channelPath(1)));
    states.look();
    QVERIFY(kept(1).isEmpty());
}

void tst_SafetyCopies::keepsThePermissions()
{
    const QFile::Permissions secret = QFile::ReadOwner | QFile::WriteOwner;
    QVERIFY(QFile::setPermissions(write("one"), secret));
    m_store->keep(channelPath());
    const QString copy = m_store->states(QStringLiteral("channel0.xml")).constFirst().path;
    const QFile::Permissions others = QFile::ReadGroup | QFile::ReadOther | QFile::WriteOther;
    QVERIFY(!(QFile::permissions(copy) & others));
}

void tst_SafetyCopies::looksAtManyChannels()
{
    constexpr int count = 300;
    for (int number = 0; number < count; ++number)
        write("channel " + QByteArray::number(number), number);
    QElapsedTimer timer;
    timer.start();
    ChannelStates states(m_folder->path(), m_store.get());
    // The one step that is taken on the GUI thread; a loaded machine may take some of it.
    QVERIFY2(timer.restart() < 250, "too slow to begin");
    states.look();
    const qint64 first = timer.restart();
    QCOMPARE(m_store->fileNames().size(), count);
    QVERIFY(states.look().byOthers.isEmpty());
    QVERIFY2(timer.elapsed() < qMax<qint64>(first, 250), "a look at what has not changed is slow");
}

// Each save of the one thread is seen whole by the other, and is never taken for a stranger's.
void tst_SafetyCopies::savesAndLooksAtOnce()
{
    write("one");
    ChannelStates states(m_folder->path(), m_store.get());
    ChannelGuard guard(&states, m_store.get());
    guard.setQuestion([](const QString &) { return false; });
    std::atomic<bool> isDone{false};
    int strange = 0;
    std::thread looker([&] {
        while (!isDone)
            strange += states.look().byOthers.size();
    });
    int written = 0;
    for (int number = 0; number < 100; ++number)
        written += DurableFile::write(channelPath(), QByteArray(number + 1, 'x')) ? 1 : 0;
    isDone = true;
    looker.join();
    QCOMPARE(written, 100);
    QCOMPARE(strange, 0);
    const QList<QByteArray> contents = kept();
    QCOMPARE(contents.size(), 21);
    for (int index = 0; index < contents.size(); ++index)
        QCOMPARE(contents.at(index).size(), 100 - index);
}

namespace {

ZvSchedule dateSchedule(int day, const QString &stage)
{
    ZvSchedule schedule;
    schedule.setType(ZvSchedule::Date);
    schedule.setDate(QDate(2026, 11, day));
    schedule.setDefaultStage(stage);
    return schedule;
}

} // namespace

// Two programs that know nothing of each other copy at the same moments.
void tst_SafetyCopies::sharesItsFolder()
{
    constexpr int states = 10;
    std::atomic<int> failures{0};
    const auto keepStates = [&](char program) {
        BackupStore store(m_folder->path());
        for (int number = 0; number < states; ++number) {
            const QByteArray content = QByteArray(1, program) + QByteArray::number(number);
            if (store.keepBytes(QStringLiteral("channel0.xml"), content) !=
                BackupStore::Result::Kept)
                ++failures;
        }
    };
    std::thread one(keepStates, 'a');
    std::thread other(keepStates, 'b');
    one.join();
    other.join();
    QCOMPARE(failures.load(), 0);
    const QList<QByteArray> contents = kept();
    QCOMPARE(contents.size(), 2 * states);
    for (int number = 0; number < states; ++number) {
        QVERIFY(contents.contains("a" + QByteArray::number(number)));
        QVERIFY(contents.contains("b" + QByteArray::number(number)));
    }
}

void tst_SafetyCopies::tellsTheDifference()
{
    ZvChannel present{QString()};
    ZvChannel state{QString()};
    QVERIFY(StateDifference(present, state).isNone());
    QCOMPARE(StateDifference(present, state).text(), QStringLiteral("as it is now"));
    for (int day = 1; day <= 10; ++day)
        present.insertSchedule(dateSchedule(day, QStringLiteral("a")));
    for (int day = 4; day <= 12; ++day)
        state.insertSchedule(dateSchedule(day, QLatin1String(day < 8 ? "a" : "b")));
    for (int day = Zavo::Weekday::Monday; day <= Zavo::Weekday::Sunday; ++day) {
        ZvSchedule schedule;
        schedule.setType(ZvSchedule::DayOfWeek);
        schedule.setDayOfWeek(static_cast<Zavo::Weekday::Days>(day));
        state.insertSchedule(schedule);
    }
    const StateDifference difference(present, state);
    QCOMPARE(difference.addedSchedules(), 2 + 7);
    QCOMPARE(difference.removedSchedules(), 3);
    QCOMPARE(difference.changedSchedules(), 3);
    QVERIFY(!difference.isNone());
    QCOMPARE(difference.text(), QStringLiteral("schedules: 9 added, 3 removed, 3 changed"));
}

void tst_SafetyCopies::tellsOfNameAndPlace()
{
    ZvChannel present{QString()};
    ZvChannel state{QString()};
    state.setName(QStringLiteral("Lobby"));
    QCOMPARE(StateDifference(present, state).text(), QStringLiteral("name: \"Lobby\""));
    state.setIndex(4);
    QCOMPARE(StateDifference(present, state).text(),
             QStringLiteral("name: \"Lobby\"; another place among the tabs"));
}

QTEST_MAIN(tst_SafetyCopies)
#include "tst_safetycopies.moc"
