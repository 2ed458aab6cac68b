#include "safety/ChannelGuard.h"
#include "safety/ChannelStates.h"

#include "BytesRead.h"
#include "SafetyBench.h"
#include "storage/DurableFile.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <atomic>
#include <cerrno>
#include <thread>

using Zavo::BackupStore;
using Zavo::ChannelGuard;
using Zavo::ChannelStates;
using Zavo::DurableFile;
using ZavoTest::bytesRead;

/// Who notices that a channel file changed, and asks before it is overwritten.
class tst_ChannelStates : public ZavoTest::SafetyBench
{
    Q_OBJECT

private Q_SLOTS:
    void keepsWhatIsRemoved();
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
    void looksAtManyChannels();
    void savesAndLooksAtOnce();
};

void tst_ChannelStates::keepsWhatIsRemoved()
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

void tst_ChannelStates::noticesWhatOthersChange()
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

void tst_ChannelStates::takesNoTouchForAChange()
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

void tst_ChannelStates::takesNoCopyOfTheBasicChannelForAChange()
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

void tst_ChannelStates::noticesAFileThatWentAndCameBack()
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

void tst_ChannelStates::waitsUntilTheOtherHasWritten()
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

void tst_ChannelStates::knowsItsOwnSaves()
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

void tst_ChannelStates::keepsBeforeASave()
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

void tst_ChannelStates::asksBeforeItOverwritesAnother_data()
{
    QTest::addColumn<bool>("asked");
    QTest::addColumn<bool>("answer");
    QTest::addColumn<bool>("written");
    QTest::newRow("yes") << true << true << true;
    QTest::newRow("no") << true << false << false;
    QTest::newRow("nobody to ask") << false << false << false;
}

void tst_ChannelStates::asksBeforeItOverwritesAnother()
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

void tst_ChannelStates::noticesAtTheLastMoment()
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

void tst_ChannelStates::asksNobodyBesideTheGuiThread()
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

void tst_ChannelStates::leavesOtherFilesAlone()
{
    ChannelStates states(m_folder->path(), m_store.get());
    const ChannelGuard guard(&states, m_store.get());
    m_folder->makeFolder(QStringLiteral("channel/below"));
    for (const auto *name : {"config.ini", "channel/below/channel0.xml", "channel/.hidden"})
        QVERIFY(DurableFile::write(m_folder->filePath(QLatin1String(name)), "x"));
    states.look();
    QVERIFY(m_store->fileNames().isEmpty());
}

void tst_ChannelStates::knowsAFileBehindALink()
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

void tst_ChannelStates::looksAtManyChannels()
{
    constexpr int count = 300;
    constexpr int channelBytes = 10000;
    for (int number = 0; number < count; ++number)
        write(QByteArray(channelBytes, 'x') + QByteArray::number(number), number);
    const qint64 atFirst = bytesRead();
    if (atFirst < 0)
        QSKIP("this machine does not tell what a process reads");
    // The one step that is taken on the GUI thread.
    ChannelStates states(m_folder->path(), m_store.get());
    const qint64 made = bytesRead();
    QVERIFY2(made - atFirst < channelBytes, qPrintable(QString::number(made - atFirst)));
    states.look();
    const qint64 looked = bytesRead();
    QCOMPARE(m_store->fileNames().size(), count);
    QVERIFY2(looked - made >= count * channelBytes, qPrintable(QString::number(looked - made)));
    QVERIFY(states.look().byOthers.isEmpty());
    // What has not changed is not read again.
    const qint64 lookedAgain = bytesRead() - looked;
    QVERIFY2(lookedAgain < channelBytes, qPrintable(QString::number(lookedAgain)));
}

// Each save of the one thread is seen whole by the other, and is never taken for a stranger's.
void tst_ChannelStates::savesAndLooksAtOnce()
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

QTEST_MAIN(tst_ChannelStates)
#include "tst_channelstates.moc"
