#include "stages/StageSwitching.h"

#include "MessageBoxAnswer.h"
#include "SignalLog.h"
#include "TemporaryDataFolder.h"
#include "WriteFailure.h"

#include "ZvEditorUserConfig.h"
#include "stages/GeneratedStage.h"
#include "stages/ZvScheduleStageListView.h"

#include <QDir>
#include <QPointer>
#include <QtTest>

#include <memory>

#include <sys/stat.h>
#include <unistd.h>

using namespace Zavo;
using ZavoTest::MessageBoxAnswer;
using ZavoTest::SignalLog;
using ZavoTest::TemporaryDataFolder;
using ZavoTest::WriteFailure;

namespace {

const QString stageName = QStringLiteral("s.xml");
const QTime endOfDay(23, 59, 59, 999);

const char *const notRemoved = "Failed to delete the file for automatic generation.\n"
                               "Processing was interrupted.";
const char *const notWritten = "Failed to create the file for automatic generation.\n"
                               "Processing was interrupted.";

QString textOf(const ZvTime &time)
{
    const QString format = QStringLiteral("hh:mm:ss.zzz");
    return QLocale::c().toString(time.startTime(), format) + QLatin1Char('-') +
           QLocale::c().toString(time.endTime(), format);
}

QStringList textOf(const QList<ZvTime> &times)
{
    QStringList texts;
    for (const ZvTime &time : times)
        texts.append(textOf(time));
    return texts;
}

/// While it lives, the process has no rights beyond those of a user without any.
class Unprivileged final
{
    Q_DISABLE_COPY(Unprivileged)

public:
    Unprivileged()
        : m_user(geteuid())
    {
        if (m_user == 0)
            m_changed = seteuid(65534) == 0;
    }
    ~Unprivileged()
    {
        if (m_changed && seteuid(m_user) != 0)
            qFatal("The rights of the process did not come back.");
    }

private:
    uid_t m_user;
    bool m_changed = false;
};

} // namespace

/// Schedules that switch: the bands, the copy of the stage, and the list that makes both.
class tst_StageSwitching : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TemporaryDataFolder> m_folder;

    QString path(const QString &name) const
    {
        return m_folder->filePath(QStringLiteral("stage/") + name);
    }
    QStringList files() const { return m_folder->names(QStringLiteral("stage")); }
    GeneratedStage::Result make(const QString &name) const
    {
        return GeneratedStage::write(m_folder->stageFolder(), name);
    }
    /// Lets the list make the schedule, with the message box that is to come.
    static void request(ZvScheduleStageListView *list)
    {
        QVERIFY(QMetaObject::invokeMethod(list, "autoSwitchStageRequested",
                                          Q_ARG(int, 43200),
                                                Q_ARG(QTime, QTime(0, 0)), Q_ARG(QTime, endOfDay)));
    }

private Q_SLOTS:
    void init() { m_folder = std::make_unique<TemporaryDataFolder>(); }
    void cleanup() { m_folder.reset(); }

    void timesOfSomeRanges_data();
    void timesOfSomeRanges();
    void everyIntervalSwitchesInTurn_data();
    void everyIntervalSwitchesInTurn();
    void nonsenseGivesNoBands();

    void namesTheCopy_data();
    void namesTheCopy();
    void knowsACopyByItsName();
    void copyIsTheStage();
    void copyReplacesAnEarlierOne();
    void copyOfALargeStageIsWhole();
    void copyReplacesALink();
    void copyCanNotTakeThePlaceOfAFolder();
    void copyNeedsASource_data();
    void copyNeedsASource();
    void fullDiskLeavesNothing();
    void readOnlyFolderStaysAsItWas();
    void tooLongANameIsNotWritten();

    void listTellsOfAGeneratedStage();
    void listTellsWhatFailed();
    void listTellsOfAFullDisk();
    void listRequestsTheSchedule();
    void listStandsItsDeathUnderTheMessage();
};

void tst_StageSwitching::timesOfSomeRanges_data()
{
    QTest::addColumn<int>("interval");
    QTest::addColumn<QTime>("from");
    QTest::addColumn<QTime>("to");
    QTest::addColumn<QStringList>("times");
    const auto texts = [](const char *text) {
        return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    };
    QTest::newRow("half a day") << 43200 << QTime(0, 0) << endOfDay
                                << texts("12:00:00.000-23:59:59.999");
    QTest::newRow("quarter of a day")
        << 21600 << QTime(0, 0) << endOfDay
        << texts("06:00:00.000-12:00:00.000 18:00:00.000-23:59:59.999");
    QTest::newRow("passes midnight at once") << 600 << QTime(23, 50) << endOfDay << QStringList();
    QTest::newRow("last band is shorter")
        << 600 << QTime(8, 0) << QTime(8, 15) << texts("08:10:00.000-08:15:00.000");
    QTest::newRow("last band ends with the range")
        << 600 << QTime(8, 0) << QTime(8, 20) << texts("08:10:00.000-08:20:00.000");
    QTest::newRow("last gap is shorter")
        << 600 << QTime(8, 0) << QTime(8, 25) << texts("08:10:00.000-08:20:00.000");
    QTest::newRow("a second of a band")
        << 600 << QTime(8, 0) << QTime(8, 30, 1)
        << texts("08:10:00.000-08:20:00.000 08:30:00.000-08:30:01.000");
    QTest::newRow("as long as the range") << 600 << QTime(8, 0) << QTime(8, 10) << QStringList();
    QTest::newRow("longer than the range") << 3600 << QTime(8, 0) << QTime(8, 10) << QStringList();
    QTest::newRow("empty range") << 10 << QTime(8, 0) << QTime(8, 0) << QStringList();
    QTest::newRow("range the wrong way") << 10 << QTime(9, 0) << QTime(8, 0) << QStringList();
    QTest::newRow("up to the last second")
        << 10 << QTime(23, 59, 30) << QTime(23, 59, 59) << texts("23:59:40.000-23:59:50.000");
    QTest::newRow("up to 24 o'clock")
        << 10 << QTime(23, 59, 30) << endOfDay << texts("23:59:40.000-23:59:50.000");
}

void tst_StageSwitching::timesOfSomeRanges()
{
    QFETCH(int, interval);
    QFETCH(QTime, from);
    QFETCH(QTime, to);
    const QList<ZvTime> times = switchingTimes(interval, from, to, stageName);
    QTEST(textOf(times), "times");
    for (const ZvTime &time : times)
        QCOMPARE(time.stageName(), stageName);
}

void tst_StageSwitching::everyIntervalSwitchesInTurn_data()
{
    QTest::addColumn<QTime>("from");
    QTest::addColumn<QTime>("to");
    QTest::newRow("whole day") << QTime(0, 0) << endOfDay;
    QTest::newRow("to the last second") << QTime(0, 0) << QTime(23, 59, 59);
    QTest::newRow("office hours") << QTime(8, 0) << QTime(18, 30);
    QTest::newRow("odd times") << QTime(7, 13, 29) << QTime(21, 47, 3);
    QTest::newRow("afternoon to 24 o'clock") << QTime(12, 0, 1) << endOfDay;
    QTest::newRow("a minute") << QTime(0, 0) << QTime(0, 1);
    QTest::newRow("last minutes") << QTime(23, 50) << endOfDay;
    QTest::newRow("latest start") << QTime(23, 59) << endOfDay;
}

// In whole milliseconds of the day: band number n begins after 2n+1 intervals.
void tst_StageSwitching::everyIntervalSwitchesInTurn()
{
    QFETCH(QTime, from);
    QFETCH(QTime, to);
    const qint64 first = from.msecsSinceStartOfDay();
    const qint64 last = to.msecsSinceStartOfDay();
    for (int interval = 10; interval <= 43200; ++interval) {
        const QList<ZvTime> times = switchingTimes(interval, from, to, stageName);
        const qint64 step = interval * qint64(1000);
        const qint64 count = last > first + step ? (last - first - step - 1) / (2 * step) + 1 : 0;
        if (times.size() != count)
            QFAIL(qPrintable(QStringLiteral("%1 s: %2 bands, not %3")
                                 .arg(QString::number(interval), QString::number(times.size()),
                                      QString::number(count))));
        for (int i = 0; i < times.size(); ++i) {
            const qint64 start = first + (2 * i + 1) * step;
            const bool isRight =
                times.at(i).startTime().msecsSinceStartOfDay() == start &&
                times.at(i).endTime().msecsSinceStartOfDay() == qMin(start + step, last);
            if (!isRight)
                QFAIL(qPrintable(
                    QStringLiteral("%1 s: band %2 is %3")
                        .arg(QString::number(interval), QString::number(i), textOf(times.at(i)))));
        }
    }
}

void tst_StageSwitching::nonsenseGivesNoBands()
{
    QCOMPARE(switchingTimes(0, QTime(0, 0), endOfDay, stageName), QList<ZvTime>());
    QCOMPARE(switchingTimes(-10, QTime(8, 0), endOfDay, stageName), QList<ZvTime>());
    QCOMPARE(switchingTimes(86400, QTime(8, 0), endOfDay, stageName), QList<ZvTime>());
    QCOMPARE(switchingTimes(60, QTime(), endOfDay, stageName), QList<ZvTime>());
    QCOMPARE(switchingTimes(60, QTime(8, 0), QTime(), stageName), QList<ZvTime>());
}

void tst_StageSwitching::namesTheCopy_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("copy");
    const auto row = [](const char *name, const char *copy) {
        QTest::newRow(name) << QString::fromUtf8(name) << QString::fromUtf8(copy);
    };
    row("a.xml", "a._d_.xml");
    row("a.zstg", "a._d_.zstg");
    row("a.b.c.xml", "a._d_.b.c.xml");
    row("a..xml", "a._d_..xml");
    row("a b (1).xml", "a b (1)._d_.xml");
    row("駅 案内.xml", "駅 案内._d_.xml");
    row("_d_.xml", "_d_._d_.xml");
}

void tst_StageSwitching::namesTheCopy()
{
    QFETCH(QString, name);
    QFETCH(QString, copy);
    QCOMPARE(GeneratedStage::nameFor(name), copy);
    QVERIFY(!GeneratedStage::isGenerated(name));
    QVERIFY(GeneratedStage::isGenerated(copy));
    const QRegularExpression pattern(
        QRegularExpression::anchoredPattern(GeneratedStage::namePattern()));
    QVERIFY(pattern.match(copy).hasMatch());
    QVERIFY(!pattern.match(name).hasMatch());
    m_folder->writeStage(QStringLiteral("other.xml"));
    m_folder->write(QStringLiteral("stage/") + name, "content");
    QCOMPARE(make(name), GeneratedStage::Written);
    QCOMPARE(m_folder->read(QStringLiteral("stage/") + copy), QByteArray("content"));
}

void tst_StageSwitching::knowsACopyByItsName()
{
    for (const char *name : {"a._d_.xml", "a.b._d_.xml", "a._d_.b.xml", "a.b_d_.xml"})
        QVERIFY2(GeneratedStage::isGenerated(QLatin1String(name)), name);
    for (const char *name : {"a.xml", "a_d_.xml", "a._D_.xml", "a._d_xml", "_d_.xml", ""})
        QVERIFY2(!GeneratedStage::isGenerated(QLatin1String(name)), name);
}

void tst_StageSwitching::copyIsTheStage()
{
    const QString source = m_folder->writeStage(stageName, QStringLiteral("Welcome"));
    QVERIFY(QFile::setPermissions(source, QFile::ReadOwner | QFile::WriteOwner));
    const QByteArray content = m_folder->read(QStringLiteral("stage/s.xml"));
    QVERIFY(!content.isEmpty());
    QCOMPARE(make(stageName), GeneratedStage::Written);
    QCOMPARE(m_folder->read(QStringLiteral("stage/s._d_.xml")), content);
    QCOMPARE(m_folder->read(QStringLiteral("stage/s.xml")), content);
    QCOMPARE(files(), QStringList({QStringLiteral("s._d_.xml"), stageName}));
    QCOMPARE(QFile::permissions(path(QStringLiteral("s._d_.xml"))), QFile::permissions(source));
}

void tst_StageSwitching::copyReplacesAnEarlierOne()
{
    m_folder->write(QStringLiteral("stage/s.xml"), "new");
    const QString old = m_folder->write(QStringLiteral("stage/s._d_.xml"), "an older, longer one");
    QVERIFY(QFile::setPermissions(old, QFile::ReadOwner));
    QCOMPARE(make(stageName), GeneratedStage::Written);
    QCOMPARE(m_folder->read(QStringLiteral("stage/s._d_.xml")), QByteArray("new"));
    QCOMPARE(files().size(), 2);
}

void tst_StageSwitching::copyOfALargeStageIsWhole()
{
    QByteArray content(20 * 1024 * 1024, '\0');
    for (int i = 0; i < content.size(); i += 4097)
        content[i] = static_cast<char>(i);
    m_folder->write(QStringLiteral("stage/big.zstg"), content);
    QCOMPARE(make(QStringLiteral("big.zstg")), GeneratedStage::Written);
    QVERIFY(m_folder->read(QStringLiteral("stage/big._d_.zstg")) == content);
}

// What the link points to is somebody else's.
void tst_StageSwitching::copyReplacesALink()
{
    m_folder->write(QStringLiteral("stage/s.xml"), "stage");
    const QString other = m_folder->write(QStringLiteral("other.xml"), "other");
    for (const QString &target : {other, QStringLiteral("/nowhere/at.all")}) {
        QFile::remove(path(QStringLiteral("s._d_.xml")));
        QVERIFY(QFile::link(target, path(QStringLiteral("s._d_.xml"))));
        QCOMPARE(make(stageName), GeneratedStage::Written);
        QVERIFY(!QFileInfo(path(QStringLiteral("s._d_.xml"))).isSymLink());
        QCOMPARE(m_folder->read(QStringLiteral("stage/s._d_.xml")), QByteArray("stage"));
        QCOMPARE(m_folder->read(QStringLiteral("other.xml")), QByteArray("other"));
    }
}

void tst_StageSwitching::copyCanNotTakeThePlaceOfAFolder()
{
    m_folder->write(QStringLiteral("stage/s.xml"), "stage");
    m_folder->write(QStringLiteral("stage/s._d_.xml/inside.txt"), "x");
    QCOMPARE(make(stageName), GeneratedStage::OldNotRemoved);
    QCOMPARE(m_folder->read(QStringLiteral("stage/s._d_.xml/inside.txt")), QByteArray("x"));
}

void tst_StageSwitching::copyNeedsASource_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"none", "folder", "pipe", "broken link", "no stage folder", "no name"})
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

void tst_StageSwitching::copyNeedsASource()
{
    QFETCH(QString, kind);
    m_folder->write(QStringLiteral("stage/s._d_.xml"), "old");
    QString name = stageName;
    if (kind == QLatin1String("folder"))
        m_folder->makeFolder(QStringLiteral("stage/s.xml"));
    else if (kind == QLatin1String("pipe"))
        QCOMPARE(::mkfifo(QFile::encodeName(path(stageName)).constData(), 0600), 0);
    else if (kind == QLatin1String("broken link"))
        QVERIFY(QFile::link(QStringLiteral("/nowhere/at.all"), path(stageName)));
    else if (kind == QLatin1String("no stage folder"))
        QVERIFY(QDir(m_folder->stageFolder()).removeRecursively());
    else if (kind == QLatin1String("no name"))
        name.clear();
    QCOMPARE(make(name), GeneratedStage::NotWritten);
    // After a copy that failed the old one is gone.
    QCOMPARE(QFile::exists(path(QStringLiteral("s._d_.xml"))), name.isEmpty());
}

void tst_StageSwitching::fullDiskLeavesNothing()
{
    m_folder->writeStage(stageName);
    m_folder->write(QStringLiteral("stage/s._d_.xml"), "old");
    GeneratedStage::Result result = GeneratedStage::Written;
    {
        const WriteFailure full;
        result = make(stageName);
    }
    QCOMPARE(result, GeneratedStage::NotWritten);
    QCOMPARE(files(), QStringList(stageName));
}

void tst_StageSwitching::readOnlyFolderStaysAsItWas()
{
    m_folder->writeStage(stageName);
    m_folder->writeStage(QStringLiteral("t.xml"));
    m_folder->write(QStringLiteral("stage/s._d_.xml"), "old");
    const QFile::Permissions all = QFile::permissions(m_folder->stageFolder());
    const QFile::Permissions readable =
        QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther;
    for (QString above = m_folder->path(); above != QDir::tempPath();
         above = QFileInfo(above).path())
        QVERIFY(QFile::setPermissions(above, readable | QFile::WriteOwner));
    QVERIFY(QFile::setPermissions(m_folder->stageFolder(), readable));
    GeneratedStage::Result replaced = GeneratedStage::Written;
    GeneratedStage::Result written = GeneratedStage::Written;
    {
        const Unprivileged user;
        replaced = make(stageName);
        written = make(QStringLiteral("t.xml"));
    }
    QVERIFY(QFile::setPermissions(m_folder->stageFolder(), all));
    QCOMPARE(replaced, GeneratedStage::OldNotRemoved);
    QCOMPARE(written, GeneratedStage::NotWritten);
    QCOMPARE(files(),
             QStringList({QStringLiteral("s._d_.xml"), stageName, QStringLiteral("t.xml")}));
    QCOMPARE(m_folder->read(QStringLiteral("stage/s._d_.xml")), QByteArray("old"));
}

void tst_StageSwitching::tooLongANameIsNotWritten()
{
    const QString name = QString(251, QLatin1Char('n')) + QStringLiteral(".xml");
    m_folder->write(QStringLiteral("stage/") + name, "x");
    QCOMPARE(make(name), GeneratedStage::NotWritten);
    QCOMPARE(files(), QStringList(name));
}

void tst_StageSwitching::listTellsOfAGeneratedStage()
{
    // Not hidden by its name, and yet taken for a copy.
    const QString name = QStringLiteral("a.b_d_.xml");
    m_folder->writeStage(name);
    ZvScheduleStageListView list;
    SignalLog log;
    log.watch(&list, SIGNAL(requestResetTimeTable(QString,QList<ZvTime>)));
    list.setCurrentIndex(list.model()->index(0, 0, list.rootIndex()));
    QCOMPARE(list.currentIndex().data().toString(), name);
    MessageBoxAnswer boxes;
    boxes.expect(QMessageBox::Ok)
        .title(QStringLiteral("Caution"))
        .text(QStringLiteral("The selected stage was automatically generated.\nPlease select a "
                             "stage which name does not include \"_ d _\"."))
        .icon(QMessageBox::Warning)
        .buttons(QMessageBox::Ok);
    request(&list);
    QVERIFY(boxes.isDone());
    QCOMPARE(log.names(), QStringList());
    QCOMPARE(files(), QStringList(name));
}

void tst_StageSwitching::listTellsWhatFailed()
{
    m_folder->writeStage(stageName);
    m_folder->makeFolder(QStringLiteral("stage/s._d_.xml"));
    ZvScheduleStageListView list;
    SignalLog log;
    log.watch(&list, SIGNAL(requestResetTimeTable(QString,QList<ZvTime>)));
    list.setCurrentIndex(list.model()->index(0, 0, list.rootIndex()));
    MessageBoxAnswer boxes;
    const auto expectError = [&boxes](const char *text) {
        boxes.expect(QMessageBox::Ok)
            .title(QStringLiteral("Error"))
            .text(QString::fromLatin1(text))
            .icon(QMessageBox::Critical)
            .buttons(QMessageBox::Ok);
    };
    expectError(notRemoved);
    request(&list);
    QVERIFY(QDir().rmdir(path(QStringLiteral("s._d_.xml"))));
    QVERIFY(QFile::remove(path(stageName)));
    expectError(notWritten);
    request(&list);
    QVERIFY(boxes.isDone());
    QCOMPARE(log.names(), QStringList());
}

void tst_StageSwitching::listTellsOfAFullDisk()
{
    m_folder->writeStage(stageName);
    ZvScheduleStageListView list;
    list.setCurrentIndex(list.model()->index(0, 0, list.rootIndex()));
    SignalLog log;
    log.watch(&list, SIGNAL(requestResetTimeTable(QString,QList<ZvTime>)));
    MessageBoxAnswer boxes;
    auto full = std::make_unique<WriteFailure>();
    boxes.expect(QMessageBox::Ok).text(QString::fromLatin1(notWritten)).whileShown([&full](auto *) {
        full.reset();
    });
    QMetaObject::invokeMethod(&list, "autoSwitchStageRequested",
                              Q_ARG(int, 600), Q_ARG(QTime, QTime(0, 0)), Q_ARG(QTime, endOfDay));
    full.reset();
    QVERIFY(boxes.isDone());
    QCOMPARE(log.names(), QStringList());
    QCOMPARE(files(), QStringList(stageName));
}

void tst_StageSwitching::listRequestsTheSchedule()
{
    m_folder->writeStage(stageName);
    ZvScheduleStageListView list;
    list.setCurrentIndex(list.model()->index(0, 0, list.rootIndex()));
    SignalLog log;
    log.watch(&list, SIGNAL(requestResetTimeTable(QString,QList<ZvTime>)));
    const MessageBoxAnswer noBox;
    request(&list);
    QCOMPARE(log.count(QStringLiteral("requestResetTimeTable")), 1);
    QCOMPARE(log.arguments(0).at(0).toString(), stageName);
    const QList<ZvTime> expected{ZvTime(QTime(12, 0), endOfDay, QStringLiteral("s._d_.xml"))};
    QCOMPARE(log.arguments(0).at(1).value<QList<ZvTime>>(), expected);
    // A range without bands empties the table all the same.
    QFile::remove(path(QStringLiteral("s._d_.xml")));
    QMetaObject::invokeMethod(&list, "autoSwitchStageRequested",
                              Q_ARG(int, 3600),
                                    Q_ARG(QTime, QTime(8, 0)), Q_ARG(QTime, QTime(8, 30)));
    QCOMPARE(log.count(QStringLiteral("requestResetTimeTable")), 2);
    QCOMPARE(log.arguments(1).at(0).toString(), stageName);
    QVERIFY(log.arguments(1).at(1).value<QList<ZvTime>>().isEmpty());
    QVERIFY(files().contains(QStringLiteral("s._d_.xml")));
}

void tst_StageSwitching::listStandsItsDeathUnderTheMessage()
{
    m_folder->makeFolder(QStringLiteral("stage"));
    MessageBoxAnswer boxes;
    QPointer<ZvScheduleStageListView> list = new ZvScheduleStageListView;
    QTimer::singleShot(0, list, [&list] { delete list; });
    QMetaObject::invokeMethod(list, "autoSwitchStageRequested",
                              Q_ARG(int, 3600),
                                    Q_ARG(QTime, QTime(8, 0)), Q_ARG(QTime, QTime(8, 30)));
    QVERIFY(!list);
}

QTEST_MAIN(tst_StageSwitching)
#include "tst_stageswitching.moc"
