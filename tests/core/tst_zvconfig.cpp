#include "ZvConfig.h"

#include "FailingCalls.h"

#include <QSettings>
#include <QtTest>

using Zavo::ZvConfig;

class tst_ZvConfig : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void missingFileGivesDefaults();
    void reads_data();
    void reads();
    void nonsenseWarnsAndGivesDefaults_data();
    void nonsenseWarnsAndGivesDefaults();
    void setters();
    void writeCreatesAndComesBack();
    void writeLeavesTheRestAlone_data();
    void writeLeavesTheRestAlone();
    void otherProgramsReadIt();
    void failedWriteKeepsTheFile();
    void unreadableFileIsNotWrittenOver();

private:
    void write(const QByteArray &bytes) const;
    QByteArray content() const;

    QTemporaryDir m_dir;
    QString m_path;
};

void tst_ZvConfig::init()
{
    QVERIFY(m_dir.isValid());
    m_path = m_dir.filePath(QStringLiteral("config.ini"));
    QFile::remove(m_path);
}

void tst_ZvConfig::write(const QByteArray &bytes) const
{
    QFile file(m_path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(m_path));
}

QByteArray tst_ZvConfig::content() const
{
    QFile file(m_path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_ZvConfig::missingFileGivesDefaults()
{
    const ZvConfig config(m_path);
    QCOMPARE(config.filePath(), m_path);
    QVERIFY(!config.allInOne());
    QVERIFY(!config.defaultScheduleUsedFirst());
    QCOMPARE(config.removingDuration(), 365);
    QVERIFY(!QFile::exists(m_path));
}

void tst_ZvConfig::reads_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("allInOne");
    QTest::addColumn<int>("days");
    QTest::newRow("empty") << QByteArray() << false << 365;
    QTest::newRow("group") << QByteArray("[General]\nAllInOne=true\nRemovingDuration=30\n") << true
                           << 30;
    QTest::newRow("no group") << QByteArray("AllInOne=true\nRemovingDuration=0") << true << 0;
    QTest::newRow("line ends of another system")
        << QByteArray("[General]\r\nAllInOne=1\r\nRemovingDuration=7\r\n") << true << 7;
    QTest::newRow("blanks and quotes")
        << QByteArray("[General]\n  AllInOne = TRUE \n RemovingDuration = \"90\"\n") << true << 90;
    QTest::newRow("another group")
        << QByteArray("[Player]\nAllInOne=true\nRemovingDuration=1\n") << false << 365;
    QTest::newRow("comments") << QByteArray("; AllInOne=true\n#RemovingDuration=1\n") << false
                              << 365;
    QTest::newRow("small letters") << QByteArray("[General]\nallinone=true\n") << false << 365;
    QTest::newRow("twice") << QByteArray("[General]\nRemovingDuration=1\nRemovingDuration=2\n")
                           << false << 2;
    QTest::newRow("very long") << QByteArray("[General]\nRemovingDuration=2147483647\n") << false
                               << 2147483647;
}

void tst_ZvConfig::reads()
{
    QFETCH(QByteArray, bytes);
    write(bytes);
    const ZvConfig config(m_path);
    QTEST(config.allInOne(), "allInOne");
    QTEST(config.removingDuration(), "days");
    QVERIFY(!config.defaultScheduleUsedFirst());
}

void tst_ZvConfig::nonsenseWarnsAndGivesDefaults_data()
{
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QByteArray>("value");
    for (const char *value : {"yes", "2", "", "truefalse"}) {
        QTest::newRow(QByteArray("AllInOne " + QByteArray(value)).constData())
            << QByteArray("AllInOne") << QByteArray(value);
        QTest::newRow(QByteArray("DefaultScheduleUsedFirst " + QByteArray(value)).constData())
            << QByteArray("DefaultScheduleUsedFirst") << QByteArray(value);
    }
    for (const char *value : {"-1", "", "a year", "365.5", "0x10", "2147483648"})
        QTest::newRow(QByteArray("RemovingDuration " + QByteArray(value)).constData())
            << QByteArray("RemovingDuration") << QByteArray(value);
}

void tst_ZvConfig::nonsenseWarnsAndGivesDefaults()
{
    QFETCH(QByteArray, key);
    QFETCH(QByteArray, value);
    write("[General]\n" + key + '=' + value + '\n');
    QTest::ignoreMessage(QtWarningMsg, "config.ini: \"" + value + "\" is no value for " + key);
    const ZvConfig config(m_path);
    QVERIFY(!config.allInOne());
    QVERIFY(!config.defaultScheduleUsedFirst());
    QCOMPARE(config.removingDuration(), 365);
}

void tst_ZvConfig::setters()
{
    ZvConfig config(m_path);
    config.setAllInOne(true);
    config.setDefaultScheduleUsedFirst(true);
    config.setRemovingDuration(12);
    QVERIFY(config.allInOne());
    QVERIFY(config.defaultScheduleUsedFirst());
    QCOMPARE(config.removingDuration(), 12);
    config.setRemovingDuration(-12);
    QCOMPARE(config.removingDuration(), 0);
    QVERIFY(!QFile::exists(m_path));
}

void tst_ZvConfig::writeCreatesAndComesBack()
{
    ZvConfig config(m_path);
    config.setDefaultScheduleUsedFirst(true);
    config.setRemovingDuration(12);
    QVERIFY(config.write());
    QCOMPARE(content(), QByteArray("[General]\nAllInOne=false\nDefaultScheduleUsedFirst=true\n"
                                   "RemovingDuration=12\n"));
    const ZvConfig back(m_path);
    QVERIFY(!back.allInOne());
    QVERIFY(back.defaultScheduleUsedFirst());
    QCOMPARE(back.removingDuration(), 12);
}

void tst_ZvConfig::writeLeavesTheRestAlone_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    const QByteArray keys = "AllInOne=true\nDefaultScheduleUsedFirst=false\nRemovingDuration=365\n";
    QTest::newRow("comments and other keys")
        << QByteArray("; note\n\n[General]\nTheme=dark\nAllInOne=0\n\n[Player]\nAllInOne=false\n")
        << QByteArray(
               "; note\n\n[General]\nTheme=dark\nAllInOne=true\nDefaultScheduleUsedFirst=false\n"
               "RemovingDuration=365\n\n[Player]\nAllInOne=false\n");
    QTest::newRow("no group") << QByteArray("Theme=dark") << QByteArray("Theme=dark\n" + keys);
    QTest::newRow("only another group")
        << QByteArray("[Player]\nAllInOne=false\n")
        << QByteArray("[General]\n" + keys + "[Player]\nAllInOne=false\n");
    QTest::newRow("an empty line") << QByteArray("\n") << QByteArray("[General]\n" + keys + "\n");
}

void tst_ZvConfig::writeLeavesTheRestAlone()
{
    QFETCH(QByteArray, before);
    write(before);
    ZvConfig config(m_path);
    config.setAllInOne(true);
    QVERIFY(config.write());
    QTEST(content(), "after");
    QVERIFY(ZvConfig(m_path).allInOne());
    // A second time changes nothing.
    QVERIFY(config.write());
    QTEST(content(), "after");
}

void tst_ZvConfig::otherProgramsReadIt()
{
    ZvConfig config(m_path);
    config.setAllInOne(true);
    QVERIFY(config.write());
    QSettings settings(m_path, QSettings::IniFormat);
    QCOMPARE(settings.value(QStringLiteral("AllInOne")).toBool(), true);
    QCOMPARE(settings.value(QStringLiteral("RemovingDuration")).toInt(), 365);
    settings.setValue(QStringLiteral("RemovingDuration"), 14);
    settings.sync();
    QCOMPARE(ZvConfig(m_path).removingDuration(), 14);
}

void tst_ZvConfig::failedWriteKeepsTheFile()
{
    const QByteArray before("[General]\nRemovingDuration=14\n");
    write(before);
    ZvConfig config(m_path);
    config.setRemovingDuration(15);
    for (const auto kind : {FailingCalls::Write, FailingCalls::Fsync, FailingCalls::Rename}) {
        FailingCalls calls;
        calls.fail(kind, ENOSPC);
        QVERIFY(!config.write());
        QCOMPARE(content(), before);
    }
    QVERIFY(!ZvConfig(m_dir.filePath(QStringLiteral("none/config.ini"))).write());
}

void tst_ZvConfig::unreadableFileIsNotWrittenOver()
{
    const QByteArray before("[General]\nTheme=dark\n");
    write(before);
    const ZvConfig config(m_path);
    FailingCalls calls;
    calls.fail(FailingCalls::Read, EIO);
    QVERIFY(!config.write());
    QCOMPARE(content(), before);
}

QTEST_APPLESS_MAIN(tst_ZvConfig)
#include "tst_zvconfig.moc"
