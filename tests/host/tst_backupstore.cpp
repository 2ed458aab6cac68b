#include "safety/ChannelStates.h"

#include "FolderFaults.h"
#include "SafetyBench.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <atomic>
#include <thread>

using Zavo::BackupState;
using Zavo::BackupStore;
using Zavo::ChannelStates;
using ZavoTest::ReadOnlyFolder;

/// The copies of channel files.
class tst_BackupStore : public ZavoTest::SafetyBench
{
    Q_OBJECT

private Q_SLOTS:
    void keepsEachStateOnce();
    void keepsTheLastTwentyBesideThePresentOne();
    void takesAnOldStateForTheNewest();
    void standsAClockThatWasPutBack();
    void findsTheCopiesOfEveryHour();
    void copiesAndDoesNotLink();
    void keepsAgainWhatSomebodyCleared();
    void tellsWhyThereIsNoCopy();
    void passesOverWhatIsNoCopy();
    void ordersChannelsByNumber();
    void keepsThePermissions();
    void sharesItsFolder();
};

void tst_BackupStore::keepsEachStateOnce()
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

void tst_BackupStore::keepsTheLastTwentyBesideThePresentOne()
{
    QList<QByteArray> expected;
    for (int number = 0; number < 30; ++number) {
        const QByteArray content = "state " + QByteArray::number(number);
        QCOMPARE(m_store->keep(write(content)), BackupStore::Result::Kept);
        expected.prepend(content);
    }
    QCOMPARE(kept(), expected.mid(0, 21));
}

void tst_BackupStore::takesAnOldStateForTheNewest()
{
    for (const char *content : {"one", "two", "six", "one"})
        QCOMPARE(m_store->keep(write(content)), BackupStore::Result::Kept);
    QCOMPARE(kept(), QList<QByteArray>({"one", "six", "two"}));
}

void tst_BackupStore::standsAClockThatWasPutBack()
{
    m_folder->write(QStringLiteral("backup/channel0.xml/2999-12-31T23-59-59.999Z.xml"), "future");
    for (const char *content : {"one", "two"})
        QCOMPARE(m_store->keep(write(content)), BackupStore::Result::Kept);
    QCOMPARE(kept(), QList<QByteArray>({"two", "one", "future"}));
}

// The names are in universal time, of which the local time leaves out an hour in spring.
void tst_BackupStore::findsTheCopiesOfEveryHour()
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

void tst_BackupStore::copiesAndDoesNotLink()
{
    const QString path = write("before");
    QCOMPARE(m_store->keep(path), BackupStore::Result::Kept);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QCOMPARE(file.write("AFTER."), 6);
    file.close();
    QCOMPARE(kept(), QList<QByteArray>({"before"}));
}

void tst_BackupStore::keepsAgainWhatSomebodyCleared()
{
    const QString path = write("one");
    QCOMPARE(m_store->keep(path), BackupStore::Result::Kept);
    QVERIFY(QDir(m_store->folder()).removeRecursively());
    QCOMPARE(m_store->keep(path), BackupStore::Result::Kept);
    QCOMPARE(kept(), QList<QByteArray>({"one"}));
}

void tst_BackupStore::tellsWhyThereIsNoCopy()
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

void tst_BackupStore::passesOverWhatIsNoCopy()
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

void tst_BackupStore::ordersChannelsByNumber()
{
    for (int number : {10, 2, 1})
        m_store->keep(write("x", number));
    QCOMPARE(m_store->fileNames(),
             QStringList({QStringLiteral("channel1.xml"), QStringLiteral("channel2.xml"),
                          QStringLiteral("channel10.xml")}));
}

void tst_BackupStore::keepsThePermissions()
{
    const QFile::Permissions secret = QFile::ReadOwner | QFile::WriteOwner;
    QVERIFY(QFile::setPermissions(write("one"), secret));
    m_store->keep(channelPath());
    const QString copy = m_store->states(QStringLiteral("channel0.xml")).constFirst().path;
    const QFile::Permissions others = QFile::ReadGroup | QFile::ReadOther | QFile::WriteOther;
    QVERIFY(!(QFile::permissions(copy) & others));
}

// Two programs that know nothing of each other copy at the same moments.
void tst_BackupStore::sharesItsFolder()
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

QTEST_MAIN(tst_BackupStore)
#include "tst_backupstore.moc"
