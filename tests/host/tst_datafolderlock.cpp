#include "safety/DataFolderLock.h"
#include "safety/FolderInUseBox.h"
#include "safety/Leftovers.h"
#include "safety/SessionRecord.h"

#include "TemporaryDataFolder.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QProcess>
#include <QSysInfo>
#include <QtTest>

#include <unistd.h>

using Zavo::DataFolderLock;
using Zavo::FolderInUseBox;
using Zavo::SessionRecord;
using ZavoTest::TemporaryDataFolder;
namespace Leftovers = Zavo::Leftovers;

/// What holds for a data folder as a whole, before a window is there.
class tst_DataFolderLock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void holdsTheFolder();
    void saysWhoHoldsIt();
    void outlivesAKilledProgram();
    void takesALockOfANumberThatRunsSomethingElse();
    void waitsForAnotherMachine();
    void takesNothingOverFromThisMachine();
    void needsAFolder();
    void offersWhatThereIsToDo_data();
    void offersWhatThereIsToDo();
    void sweepsWhatKilledSavesLeft();
    void leavesWhatIsNotItsOwn();
    void remembersASession();
    void standsADamagedRecord_data();
    void standsADamagedRecord();
    void tellsOfASession_data();
    void tellsOfASession();

private:
    void writeLock(qint64 processId, const QString &program, const QString &host);

    std::unique_ptr<TemporaryDataFolder> m_folder;
};

namespace {

/// A number that no process has: that of one that ended and was waited for.
qint64 deadProcessId()
{
    QProcess process;
    process.start(QStringLiteral("sh"), {QStringLiteral("-c"), QStringLiteral("echo $$")});
    return process.waitForFinished() ? process.readAll().trimmed().toLongLong() : 0;
}

QString hiddenName(qint64 processId, int number)
{
    return QStringLiteral(".zavo-%1-%2.tmp").arg(processId).arg(number);
}

} // namespace

void tst_DataFolderLock::init()
{
    m_folder = std::make_unique<TemporaryDataFolder>();
}

void tst_DataFolderLock::writeLock(qint64 processId, const QString &program, const QString &host)
{
    m_folder->write(DataFolderLock::fileName(),
                    QStringLiteral("%1\n%2\n%3\n").arg(processId).arg(program, host).toUtf8());
}

void tst_DataFolderLock::holdsTheFolder()
{
    DataFolderLock second(m_folder->path());
    {
        DataFolderLock first(m_folder->path());
        QCOMPARE(first.take(), DataFolderLock::Result::Taken);
        QCOMPARE(first.take(), DataFolderLock::Result::Taken);
        QCOMPARE(second.take(), DataFolderLock::Result::HeldByOther);
    }
    QCOMPARE(second.take(), DataFolderLock::Result::Taken);
    QVERIFY(m_folder->names().contains(DataFolderLock::fileName()));
}

void tst_DataFolderLock::saysWhoHoldsIt()
{
    DataFolderLock first(m_folder->path());
    QCOMPARE(first.take(), DataFolderLock::Result::Taken);
    DataFolderLock second(m_folder->path());
    QCOMPARE(second.take(), DataFolderLock::Result::HeldByOther);
    const DataFolderLock::Holder holder = second.holder();
    QCOMPARE(holder.processId, QCoreApplication::applicationPid());
    QCOMPARE(holder.host, QSysInfo::machineHostName());
    QVERIFY(!holder.program.isEmpty());
    QVERIFY(qAbs(holder.since.secsTo(QDateTime::currentDateTime())) < 60);
    QVERIFY(!second.isHolderElsewhere());
    const QString sentence = FolderInUseBox::sentence(m_folder->path(), second);
    for (const QString &part : {m_folder->path(), QString::number(holder.processId), holder.host})
        QVERIFY2(sentence.contains(part), qPrintable(sentence));
}

void tst_DataFolderLock::outlivesAKilledProgram()
{
    const qint64 dead = deadProcessId();
    QVERIFY(dead > 0);
    writeLock(dead, QStringLiteral("zavo-schedule-editor"), QSysInfo::machineHostName());
    DataFolderLock lock(m_folder->path());
    QCOMPARE(lock.take(), DataFolderLock::Result::Taken);
}

void tst_DataFolderLock::takesALockOfANumberThatRunsSomethingElse()
{
    writeLock(QCoreApplication::applicationPid(), QStringLiteral("no-such-program"),
              QSysInfo::machineHostName());
    DataFolderLock lock(m_folder->path());
    QCOMPARE(lock.take(), DataFolderLock::Result::Taken);
}

void tst_DataFolderLock::waitsForAnotherMachine()
{
    writeLock(1, QStringLiteral("zavo-schedule-editor"), QStringLiteral("elsewhere"));
    DataFolderLock lock(m_folder->path());
    QCOMPARE(lock.take(), DataFolderLock::Result::HeldByOther);
    QVERIFY(lock.isHolderElsewhere());
    QCOMPARE(lock.holder().host, QStringLiteral("elsewhere"));
    QCOMPARE(lock.takeOver(), DataFolderLock::Result::Taken);
    QCOMPARE(lock.holder().host, QSysInfo::machineHostName());
}

void tst_DataFolderLock::takesNothingOverFromThisMachine()
{
    DataFolderLock first(m_folder->path());
    QCOMPARE(first.take(), DataFolderLock::Result::Taken);
    DataFolderLock second(m_folder->path());
    QCOMPARE(second.takeOver(), DataFolderLock::Result::HeldByOther);
}

void tst_DataFolderLock::needsAFolder()
{
    DataFolderLock lock(m_folder->filePath(QStringLiteral("none")));
    QCOMPARE(lock.take(), DataFolderLock::Result::NotPossible);
    QCOMPARE(lock.holder().processId, 0);
}

void tst_DataFolderLock::offersWhatThereIsToDo_data()
{
    QTest::addColumn<QString>("host");
    QTest::addColumn<bool>("takeOver");
    QTest::newRow("here") << QSysInfo::machineHostName() << false;
    QTest::newRow("elsewhere") << "elsewhere" << true;
}

void tst_DataFolderLock::offersWhatThereIsToDo()
{
    QFETCH(QString, host);
    QFETCH(bool, takeOver);
    writeLock(QCoreApplication::applicationPid(), QCoreApplication::applicationName(), host);
    const DataFolderLock lock(m_folder->path());
    const FolderInUseBox box(m_folder->path(), lock);
    QVERIFY(box.text().contains(m_folder->path()));
    QVERIFY(box.button(FolderInUseBox::TryAgain));
    QVERIFY(box.button(FolderInUseBox::ChooseAnother));
    QCOMPARE(box.button(FolderInUseBox::TakeOver) != nullptr, takeOver);
    QCOMPARE(box.escapeButton(), box.button(FolderInUseBox::Leave));
    QCOMPARE(box.button(FolderInUseBox::Leave)->text(), QStringLiteral("&Exit"));
}

void tst_DataFolderLock::sweepsWhatKilledSavesLeft()
{
    const qint64 dead = deadProcessId();
    const QString nestedStage = QStringLiteral("stage/a/b/") + hiddenName(dead, 12);
    const QStringList leftovers{hiddenName(dead, 0),
                                QStringLiteral("channel/") + hiddenName(dead, 1),
                                QStringLiteral("stage/") + hiddenName(dead, 2), nestedStage,
                                QStringLiteral("backup/channel0.xml/") + hiddenName(dead, 3)};
    for (const QString &name : leftovers)
        m_folder->write(name, "half");
    m_folder->write(QStringLiteral("channel/channel0.xml"), "whole");
    QCOMPARE(Leftovers::sweep(m_folder->path()).size(), leftovers.size());
    for (const QString &name : leftovers)
        QVERIFY2(!QFile::exists(m_folder->filePath(name)), qPrintable(name));
    QCOMPARE(m_folder->read(QStringLiteral("channel/channel0.xml")), QByteArray("whole"));
}

void tst_DataFolderLock::leavesWhatIsNotItsOwn()
{
    const qint64 dead = deadProcessId();
    const QStringList others{
        hiddenName(::getpid(), 0),
        hiddenName(1, 0),
        QStringLiteral(".zavo-%1.tmp").arg(dead),
        QStringLiteral(".zavo-%1-x.tmp").arg(dead),
        QStringLiteral(".zavo--1-0.tmp"),
        QStringLiteral(".zavo-0-0.tmp"),
        QStringLiteral("zavo-%1-0.tmp").arg(dead),
        QStringLiteral("precious.tmp"),
    };
    for (const QString &name : others)
        m_folder->write(QStringLiteral("channel/") + name, "theirs");
    m_folder->makeFolder(QStringLiteral("channel/") + hiddenName(dead, 3));
    m_folder->write(QStringLiteral("other/") + hiddenName(dead, 4), "theirs");
    QCOMPARE(Leftovers::sweep(m_folder->path()), QStringList());
    QCOMPARE(m_folder->names(QStringLiteral("channel")).size(), others.size() + 1);
    QCOMPARE(m_folder->names(QStringLiteral("other")).size(), 1);
}

void tst_DataFolderLock::remembersASession()
{
    const SessionRecord record(m_folder->path());
    QVERIFY(!record.read());
    const QDateTime started(QDate(2026, 11, 21), QTime(4, 5));
    QVERIFY(record.write({started, {QStringLiteral("Lobby"), QString::fromUtf8("Fo\"yer\nä")}}));
    const auto session = record.read();
    QVERIFY(session);
    QCOMPARE(session->started, started);
    QCOMPARE(session->unsavedChannels,
             QStringList({QStringLiteral("Lobby"), QString::fromUtf8("Fo\"yer\nä")}));
    record.remove();
    QVERIFY(!record.read());
    QVERIFY(!SessionRecord(m_folder->filePath(QStringLiteral("none"))).write({}));
}

void tst_DataFolderLock::standsADamagedRecord_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("cut") << QByteArray("{\"started\": \"2026");
    QTest::newRow("list") << QByteArray("[1, 2]");
    QTest::newRow("numbers") << QByteArray("{\"started\": 5, \"unsavedChannels\": 6}");
    QTest::newRow("zeros") << QByteArray(4096, '\0');
    QTest::newRow("too long") << QByteArray(5 * 1024 * 1024, '[');
}

void tst_DataFolderLock::standsADamagedRecord()
{
    QFETCH(QByteArray, bytes);
    const SessionRecord record(m_folder->path());
    m_folder->write(QFileInfo(record.filePath()).fileName(), bytes);
    const auto session = record.read();
    QVERIFY(session);
    QVERIFY(!session->started.isValid());
    QVERIFY(session->unsavedChannels.isEmpty());
    QVERIFY(SessionRecord::sentence(*session).contains(QStringLiteral("did not end properly")));
}

void tst_DataFolderLock::tellsOfASession_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("expected");
    QTest::newRow("nothing lost") << QStringList() << "no edits that were not saved";
    QTest::newRow("lost") << QStringList({QStringLiteral("Lobby"), QStringLiteral("Foyer")})
                          << "lost in: Lobby, Foyer.";
    QStringList many;
    for (int number = 0; number < 1000; ++number)
        many.append(QStringLiteral("Ch.%1").arg(number));
    QTest::newRow("many") << many << "Ch.9, and 990 more";
}

void tst_DataFolderLock::tellsOfASession()
{
    QFETCH(QStringList, names);
    QFETCH(QString, expected);
    const QString sentence =
        SessionRecord::sentence({QDateTime(QDate(2026, 11, 21), QTime(4, 5)), names});
    QVERIFY2(sentence.contains(expected), qPrintable(sentence));
    QVERIFY2(sentence.contains(QStringLiteral("21 Nov 2026")) ||
                 sentence.contains(QStringLiteral("11/21/26")),
             qPrintable(sentence));
}

QTEST_MAIN(tst_DataFolderLock)
#include "tst_datafolderlock.moc"
