#include "ZvChannel.h"
#include "storage/DurableFile.h"

#include "ChannelSamples.h"
#include "FailingCalls.h"

#include <QtTest>

#include <csignal>

#include <sys/wait.h>
#include <unistd.h>

using namespace Zavo;

/// Programs that are killed while they save.
class tst_DurableFileKill : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void killedAtEveryCall();
    void killedAtAnyTime();

private:
    template<typename Work>
    static pid_t startChild(Work work);
};

namespace {
QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
} // namespace

template<typename Work>
pid_t tst_DurableFileKill::startChild(Work work)
{
    const pid_t child = ::fork();
    if (child == 0) {
        work();
        ::_exit(0);
    }
    return child;
}

void tst_DurableFileKill::killedAtEveryCall()
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("channel0.xml"));
    const QByteArray oldBytes(30000, 'o');
    const QByteArray newBytes(50000, 'n');
    bool finished = false;
    int kills = 0;
    for (int calls = 0; !finished; ++calls) {
        QVERIFY(DurableFile::write(path, oldBytes));
        const pid_t child = startChild([&] {
            FailingCalls failing;
            failing.setLongestWrite(10000);
            int left = calls;
            failing.setObserver([&left] {
                if (left-- == 0)
                    ::kill(::getpid(), SIGKILL);
            });
            DurableFile::write(path, newBytes);
        });
        QVERIFY(child > 0);
        int status = 0;
        QCOMPARE(::waitpid(child, &status, 0), child);
        finished = WIFEXITED(status);
        kills += finished ? 0 : 1;
        const QByteArray now = content(path);
        QVERIFY(now == oldBytes || now == newBytes);
        QVERIFY(!finished || now == newBytes);
    }
    // stat, access, two opens, five writes, owner, mode, syncs, closes, link, rename, unlink
    QVERIFY2(kills >= 15, qPrintable(QString::number(kills)));
}

void tst_DurableFileKill::killedAtAnyTime()
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("channel0.xml"));
    ZvChannel first = ChannelSamples::channelOfDates(path, 100, 48);
    ZvChannel second = first;
    second.setName(QStringLiteral("second"));
    second.removeSchedule(ChannelSamples::dateSchedule({2027, 1, 1}));
    QVERIFY(first.writeToFile());
    std::mt19937 random(11);
    for (int round = 0; round < 25; ++round) {
        const pid_t child = startChild([&] {
            while (true) {
                first.writeToFile();
                second.writeToFile();
            }
        });
        QVERIFY(child > 0);
        QTest::qSleep(5 + int(random() % 40));
        QCOMPARE(::kill(child, SIGKILL), 0);
        QCOMPARE(::waitpid(child, nullptr, 0), child);
        ZvChannel read(path);
        QVERIFY(read.readFile());
        QVERIFY(read.isMatch(first, false, false) || read.isMatch(second, false, false));
    }
}

QTEST_APPLESS_MAIN(tst_DurableFileKill)
#include "tst_durablefilekill.moc"
