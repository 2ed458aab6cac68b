#include "storage/BoundedFile.h"

#include "FailingCalls.h"

#include <QtTest>

#include <sys/stat.h>

using Zavo::BoundedFile;

class tst_BoundedFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void readsUpToTheLimit_data();
    void readsUpToTheLimit();
    void readsFilesOfUnknownLength();
    void aFileThatGrowsWhileReadIsRefused();
    void aFileThatShrinksWhileReadIsReadAsItIs();
    void failures_data();
    void failures();
    void interruptedReadIsRepeated();
    void onlyRegularFiles();
    void linkIsFollowed();

private:
    void write(int bytes) const;

    QTemporaryDir m_dir;
    QString m_path;
};

void tst_BoundedFile::init()
{
    QVERIFY(m_dir.isValid());
    m_path = m_dir.filePath(QStringLiteral("a.xml"));
    QFile::remove(m_path);
}

void tst_BoundedFile::write(int bytes) const
{
    QFile file(m_path);
    if (!file.open(QIODevice::WriteOnly) || file.write(QByteArray(bytes, 'x')) != bytes)
        qFatal("cannot write %s", qPrintable(m_path));
}

void tst_BoundedFile::readsUpToTheLimit_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("ok");
    QTest::newRow("nothing") << 0 << true;
    QTest::newRow("a byte") << 1 << true;
    QTest::newRow("a chunk") << 4096 << true;
    QTest::newRow("the limit") << 100000 << true;
    QTest::newRow("a byte more") << 100001 << false;
}

void tst_BoundedFile::readsUpToTheLimit()
{
    QFETCH(int, size);
    QFETCH(bool, ok);
    write(size);
    QByteArray bytes("before");
    QCOMPARE(BoundedFile::read(m_path, 100000, &bytes), ok);
    QCOMPARE(bytes, ok ? QByteArray(size, 'x') : QByteArray("before"));
}

void tst_BoundedFile::readsFilesOfUnknownLength()
{
    // Files of the system say that they are empty.
    QByteArray bytes;
    QVERIFY(BoundedFile::read(QStringLiteral("/proc/self/mountinfo"), 10000000, &bytes));
    QVERIFY(bytes.size() > 100);
    QVERIFY(!BoundedFile::read(QStringLiteral("/proc/self/mountinfo"), 50, &bytes));
}

void tst_BoundedFile::aFileThatGrowsWhileReadIsRefused()
{
    write(90000);
    FailingCalls calls;
    calls.setObserver([&] {
        if (calls.count(FailingCalls::Read) == 1)
            write(200000);
    });
    QByteArray bytes;
    QVERIFY(!BoundedFile::read(m_path, 100000, &bytes));
    QVERIFY(calls.count(FailingCalls::Read) > 1);
}

void tst_BoundedFile::aFileThatShrinksWhileReadIsReadAsItIs()
{
    write(90000);
    FailingCalls calls;
    calls.setObserver([&] {
        if (calls.count(FailingCalls::Fstat) == 1 && calls.count(FailingCalls::Read) == 0)
            write(10);
    });
    QByteArray bytes;
    QVERIFY(BoundedFile::read(m_path, 100000, &bytes));
    QCOMPARE(bytes, QByteArray(10, 'x'));
}

void tst_BoundedFile::failures_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("successes");
    QTest::newRow("open") << int(FailingCalls::Open) << 0;
    QTest::newRow("length") << int(FailingCalls::Fstat) << 0;
    QTest::newRow("first read") << int(FailingCalls::Read) << 0;
    QTest::newRow("second read") << int(FailingCalls::Read) << 1;
}

void tst_BoundedFile::failures()
{
    QFETCH(int, kind);
    QFETCH(int, successes);
    write(1000);
    FailingCalls calls;
    calls.fail(static_cast<FailingCalls::Kind>(kind), EIO, successes);
    QByteArray bytes("before");
    QVERIFY(!BoundedFile::read(m_path, 100000, &bytes));
    QCOMPARE(bytes, QByteArray("before"));
    QCOMPARE(calls.count(FailingCalls::Close), kind == FailingCalls::Open ? 0 : 1);
}

void tst_BoundedFile::interruptedReadIsRepeated()
{
    write(1000);
    FailingCalls calls;
    calls.fail(FailingCalls::Read, EINTR, 0, 4);
    QByteArray bytes;
    QVERIFY(BoundedFile::read(m_path, 100000, &bytes));
    QCOMPARE(bytes.size(), 1000);
}

void tst_BoundedFile::onlyRegularFiles()
{
    QByteArray bytes;
    QVERIFY(!BoundedFile::read({}, 1000, &bytes));
    QVERIFY(!BoundedFile::read(m_path, 1000, &bytes));
    QVERIFY(!BoundedFile::read(m_dir.path(), 1000, &bytes));
    QVERIFY(!BoundedFile::read(QStringLiteral("/dev/zero"), 1000, &bytes));
    QVERIFY(!BoundedFile::read(QStringLiteral("/dev/null"), 1000, &bytes));
    QCOMPARE(::mkfifo(QFile::encodeName(m_path).constData(), 0600), 0);
    QVERIFY(!BoundedFile::read(m_path, 1000, &bytes));
    QVERIFY(!BoundedFile::read(m_path + QChar(QChar::Null), 1000, &bytes));
}

void tst_BoundedFile::linkIsFollowed()
{
    write(10);
    const QString link = m_dir.filePath(QStringLiteral("link"));
    QVERIFY(QFile::link(m_path, link));
    QByteArray bytes;
    QVERIFY(BoundedFile::read(link, 1000, &bytes));
    QCOMPARE(bytes.size(), 10);
}

QTEST_APPLESS_MAIN(tst_BoundedFile)
#include "tst_boundedfile.moc"
