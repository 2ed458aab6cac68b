#include "../editor/EditorFixture.h"
#include "EffortLimit.h"
#include "FolderFaults.h"
#include "MessageBoxAnswer.h"

#include "domain/ActionNames.h"

#include <QFile>
#include <QFileInfo>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Zavo;
using ZavoTest::EditorFixture;
using ZavoTest::EffortLimit;
using ZavoTest::MessageBoxAnswer;

/// What somebody may put into the folder of the channels to break the editor that starts on it.
class tst_HostileChannels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void fileGivesNoTab_data();
    void fileGivesNoTab();
    void whatIsNoFileGivesNoTab_data();
    void whatIsNoFileGivesNoTab();
    void fileThatIsNearlyTooMuchGivesItsTab_data();
    void fileThatIsNearlyTooMuchGivesItsTab();
    void linkToOutsideIsTheFileItself();
    void namesComeBackToTheLetter_data();
    void namesComeBackToTheLetter();
    void sharedIdsLoseNoFile();
    void sharedIndicesAreHealed();
    void basicFileIsNoChannel();

private:
    QString hostilePath() const
    {
        return m_host->data.filePath(QStringLiteral("channel/channel7.xml"));
    }
    void start();

    std::unique_ptr<MessageBoxAnswer> m_boxes;
    std::unique_ptr<EditorFixture> m_host;
};

namespace {

const QByteArray Head = R"(<Channel version="1" id="7" index="2" name="n">)";
const QByteArray Tail = "</Channel>";
constexpr int LargestFile = 64 * 1024 * 1024;

QByteArray withSchedule(const QByteArray &schedule)
{
    return Head + schedule + Tail;
}

QByteArray attributes(int count)
{
    QByteArray bytes;
    for (int number = 0; number < count; ++number)
        bytes += " a" + QByteArray::number(number) + "='1234'";
    return bytes;
}

QByteArray dates(int count, const QByteArray &content = "/>")
{
    QByteArray bytes;
    for (int number = 0; number < count; ++number)
        bytes += R"(<Schedule type="date" date=")" +
                 QDate(1990, 1, 1).addDays(number).toString(Qt::ISODate).toLatin1() + '"' + content;
    return bytes;
}

QByteArray laughs(int levels)
{
    QByteArray bytes = R"(<!DOCTYPE Channel [<!ENTITY l0 "lol">)";
    for (int level = 1; level <= levels; ++level) {
        const QByteArray below = "&l" + QByteArray::number(level - 1) + ';';
        bytes += "<!ENTITY l" + QByteArray::number(level) + " \"" + below.repeated(10) + "\">";
    }
    return bytes + "]>";
}

QByteArray nested(int depth)
{
    return QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth);
}

} // namespace

void tst_HostileChannels::init()
{
    m_boxes = std::make_unique<MessageBoxAnswer>();
    m_host = std::make_unique<EditorFixture>();
}

void tst_HostileChannels::cleanup()
{
    m_host.reset();
    m_boxes.reset();
}

void tst_HostileChannels::start()
{
    m_boxes->setWatchdogInterval(120000);
    QVERIFY(m_host->start());
}

void tst_HostileChannels::fileGivesNoTab_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char *name, const QByteArray &bytes) {
        QTest::newRow(name) << bytes;
    };
    row("tag of 1 MB with 100,000 attributes", withSchedule("<a" + attributes(100000) + "/>"));
    row("channel with 100,000 attributes",
        R"(<Channel version="1" id="7" index="2" name="n")" + attributes(100000) + "/>");
    row("one attribute of 1 MB", withSchedule("<a b='" + QByteArray(1000000, 'x') + "'/>"));
    row("name of 1 MB",
        R"(<Channel version="1" id="7" index="2" name=")" + QByteArray(1000000, 'x') + R"("/>)");
    row("a million schedules",
        Head + QByteArray(R"(<Schedule type="day" day="1"/>)").repeated(1000000) + Tail);
    row("a schedule too many", Head + dates(50001) + Tail);
    row("a million bands",
        withSchedule(R"(<Schedule type="default">)" +
                     QByteArray(R"(<Time stage="a" start="01:00:00.000" end="01:00:00.000"/>)")
                         .repeated(1000000) +
                     "</Schedule>"));
    row("a million elements in one another", withSchedule(nested(1000000)));
    row("a million open elements", Head + QByteArray("<a>").repeated(1000000));
    row("64 MiB of blanks", QByteArray(LargestFile, ' '));
    row("64 MiB of zeros", QByteArray(LargestFile, '\0'));
    row("64 MiB of opening brackets", QByteArray(LargestFile, '<'));
    row("more than 64 MiB", Head + QByteArray(LargestFile, ' ') + Tail);
    row("entities in one another", laughs(20) + withSchedule("&l20;"));
    row("entity of a file",
        R"(<!DOCTYPE Channel [<!ENTITY e SYSTEM "file:///etc/passwd">]>)" +
            QByteArray(R"(<Channel version="1" id="7" index="2" name="&e;"/>)"));
    row("entity of another machine",
        R"(<!DOCTYPE Channel SYSTEM "http://192.0.2.1/channel.dtd">)" + Head + Tail);
    row("unknown entity", R"(<Channel version="1" id="7" index="2" name="&nbsp;"/>)");
    row("entity of no character", R"(<Channel version="1" id="7" index="2" name="&#0;"/>)");
    row("entity of half a character", R"(<Channel version="1" id="7" index="2" name="&#xd800;"/>)");
    row("NUL in the name",
        QByteArray(R"(<Channel version="1" id="7" index="2" name="a)") + '\0' + R"(b"/>)");
    row("control character in the name",
        "<Channel version=\"1\" id=\"7\" index=\"2\" name=\"a\x1b[2Jb\"/>");
    row("half a character in the name",
        "<Channel version=\"1\" id=\"7\" index=\"2\" name=\"a\xed\xa0\x80z\"/>");
    row("overlong character in the name",
        "<Channel version=\"1\" id=\"7\" index=\"2\" name=\"a\xc0\xafz\"/>");
    row("year 10000", withSchedule(R"(<Schedule type="date" date="10000-01-01"/>)"));
    row("year 0", withSchedule(R"(<Schedule type="date" date="0000-12-31"/>)"));
    row("a date twice",
        Head + QByteArray(R"(<Schedule type="date" date="2027-01-01"/>)").repeated(2) + Tail);
    row("the default schedule twice",
        Head + QByteArray(R"(<Schedule type="default"/>)").repeated(2) + Tail);
    row("hour 25", withSchedule(R"(<Schedule type="default"><Time stage="a" start="01:00:00.000")"
                                R"( end="25:00:00.000"/></Schedule>)"));
    row("cut off in the middle", Head + R"(<Schedule type="default"><Time stage="a" sta)");
}

// Nothing is said of it, nothing is done to it, and its name stays taken.
void tst_HostileChannels::fileGivesNoTab()
{
    QFETCH(QByteArray, bytes);
    m_host->data.write(QStringLiteral("channel/channel7.xml"), bytes);
    const EffortLimit limit;
    start();
    QVERIFY(limit.isKept(bytes.size()));
    QCOMPARE(m_host->tabs()->count(), 3);
    m_host->action(ActionName::SaveAllChannel)->trigger();
    m_host->action(ActionName::CreateChannel)->trigger();
    QCOMPARE(m_host->tabs()->count(), 4);
    QCOMPARE(m_host->area(3)->channel()->id(), 3);
    QCOMPARE(QFileInfo(hostilePath()).size(), bytes.size());
    QVERIFY(m_host->data.read(QStringLiteral("channel/channel7.xml")) == bytes);
}

void tst_HostileChannels::whatIsNoFileGivesNoTab_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind :
         {"pipe", "link to a pipe", "link to endless bytes", "link to a terminal",
          "link in a circle", "link to nowhere", "link to a folder", "folder", "socket"})
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

void tst_HostileChannels::whatIsNoFileGivesNoTab()
{
    QFETCH(QString, kind);
    const QByteArray path = QFile::encodeName(hostilePath());
    const QByteArray other = path + ".other";
    const auto linkTo = [&](const QByteArray &target) {
        return ::symlink(target.constData(), path.constData()) == 0;
    };
    if (kind == QLatin1String("pipe"))
        QCOMPARE(::mkfifo(path.constData(), 0600), 0);
    else if (kind == QLatin1String("link to a pipe"))
        QVERIFY(::mkfifo(other.constData(), 0600) == 0 && linkTo(other));
    else if (kind == QLatin1String("link to endless bytes"))
        QVERIFY(linkTo("/dev/zero"));
    else if (kind == QLatin1String("link to a terminal"))
        QVERIFY(linkTo("/dev/tty"));
    else if (kind == QLatin1String("link in a circle"))
        QVERIFY(linkTo(path));
    else if (kind == QLatin1String("link to nowhere"))
        QVERIFY(linkTo(other));
    else if (kind == QLatin1String("link to a folder"))
        QVERIFY(linkTo("/"));
    else if (kind == QLatin1String("folder"))
        QCOMPARE(::mkdir(path.constData(), 0700), 0);
    else
        QCOMPARE(::mknod(path.constData(), S_IFSOCK | 0600, 0), 0);
    const EffortLimit limit;
    start();
    QVERIFY(limit.isKept(0));
    QCOMPARE(m_host->tabs()->count(), 3);
    // A new channel of that number finds its name taken.
    m_host->main()->findChild<QTabWidget *>();
    for (int id = 3; id <= 7; ++id)
        m_host->action(ActionName::CreateChannel)->trigger();
    QCOMPARE(m_host->area(7)->channel()->id(), 7);
    QVERIFY(m_host->area(7)->channel()->filePath() != hostilePath());
    struct stat status = {};
    QCOMPARE(::lstat(path.constData(), &status), 0);
    QVERIFY(!S_ISREG(status.st_mode));
}

void tst_HostileChannels::fileThatIsNearlyTooMuchGivesItsTab_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("a tag of 6,000 attributes") << withSchedule("<a" + attributes(3800) + "/>");
    QTest::newRow("50,000 schedules in the years 1990 to 2126") << Head + dates(50000) + Tail;
    QTest::newRow("16 MiB of comments")
        << withSchedule(QByteArray("<!--a-->").repeated(2 * 1024 * 1024));
    QTest::newRow("16 MiB of unknown elements")
        << withSchedule(QByteArray("<a b='c'/>").repeated(1600000));
    QTest::newRow("the year 9999") << withSchedule(R"(<Schedule type="date" date="9999-12-31"/>)");
    QTest::newRow("14 elements in one another") << withSchedule(nested(14));
}

void tst_HostileChannels::fileThatIsNearlyTooMuchGivesItsTab()
{
    QFETCH(QByteArray, bytes);
    m_host->data.write(QStringLiteral("channel/channel7.xml"), bytes);
    const EffortLimit limit;
    start();
    QCOMPARE(m_host->tabs()->count(), 4);
    m_host->tabs()->setCurrentIndex(3);
    m_host->edit(3, QStringLiteral("a.xml"));
    m_host->action(ActionName::SaveChannel)->trigger();
    QVERIFY(limit.isKept(3 * bytes.size()));
    const ZvChannel saved = ZavoTest::readChannelFile(hostilePath());
    QVERIFY(saved.isMatch(*m_host->area(3)->channel(), false, false));
}

void tst_HostileChannels::linkToOutsideIsTheFileItself()
{
    const QString outside = m_host->data.write(QStringLiteral("elsewhere.xml"), Head + Tail);
    QVERIFY(QFile::link(outside, hostilePath()));
    start();
    QCOMPARE(m_host->tabs()->count(), 4);
    m_host->edit(3, QStringLiteral("a.xml"));
    m_host->action(ActionName::SaveChannel)->trigger();
    QVERIFY(QFileInfo(hostilePath()).isSymLink());
    const ZvChannel saved = ZavoTest::readChannelFile(outside);
    QVERIFY(saved.isMatch(*m_host->area(3)->channel(), false, false));
    // Deleting the channel takes the link away and not what it leads to.
    m_boxes->expect(QMessageBox::Yes);
    m_host->action(ActionName::DeleteChannel)->trigger();
    QVERIFY(!QFileInfo(hostilePath()).isSymLink());
    QVERIFY(QFile::exists(outside));
}

void tst_HostileChannels::namesComeBackToTheLetter_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("NUL") << QStringLiteral("a") + QChar(0) + QStringLiteral("b");
    QTest::newRow("control characters") << QStringLiteral("\x01\x07\x1b[31m\x7f\t\n\r");
    QTest::newRow("lone high surrogate") << QStringLiteral("a") + QChar(0xd83d) + QLatin1Char('b');
    QTest::newRow("lone low surrogate") << QString(QChar(0xdc00));
    QTest::newRow("noncharacters") << QString(QChar(0xfffe)) + QChar(0xffff);
    QTest::newRow("turned direction") << QString(QChar(0x202e)) + QStringLiteral("lmx.a");
    QTest::newRow("markup") << QStringLiteral("<b>&amp;%1\"'</b>]]>");
    QTest::newRow("10,000 combining marks") << QLatin1Char('e') + QString(10000, QChar(0x0301));
    QTest::newRow("10,000 letters") << QString(10000, QLatin1Char('W'));
}

void tst_HostileChannels::namesComeBackToTheLetter()
{
    QFETCH(QString, name);
    ZavoTest::writeChannelFile(m_host->data, QStringLiteral("channel7.xml"),
                               {7, 3, name, {{QTime(1, 0), QTime(2, 0), name}}, true});
    const EffortLimit limit;
    start();
    QCOMPARE(m_host->area(3)->channelName(), name);
    QCOMPARE(m_host->tabs()->tabText(3), name);
    m_host->tabs()->setCurrentIndex(3);
    QVERIFY(!m_host->window->grab().isNull());
    m_host->edit(3, name);
    m_host->action(ActionName::SaveChannel)->trigger();
    QVERIFY(limit.isKept(10 * name.size()));
    const ZvChannel saved = ZavoTest::readChannelFile(hostilePath());
    QCOMPARE(saved.name(), name);
    const QList<ZvSchedule> &schedules = saved.scheduleList();
    QCOMPARE(schedules.size(), 1);
    QCOMPARE(schedules.first().defaultStage(), name);
    const QList<ZvTime> &times = schedules.first().timeList();
    QCOMPARE(times.size(), 1);
    QCOMPARE(times.first().stageName(), name);
}

// Both have a tab. The map of areas knows the last of them, and saving the other is what its own
// tab is for.
void tst_HostileChannels::sharedIdsLoseNoFile()
{
    for (int number = 7; number < 10; ++number)
        ZavoTest::writeChannelFile(m_host->data, ZavoTest::channelFileName(number),
                                   {1, number, QStringLiteral("Twin %1").arg(number)});
    start();
    QCOMPARE(m_host->tabs()->count(), 6);
    for (int tab = 0; tab < 6; ++tab) {
        m_host->edit(tab, QStringLiteral("a.xml"));
        m_host->action(ActionName::SaveChannel)->trigger();
    }
    for (int tab = 0; tab < 6; ++tab) {
        const ZvChannel *channel = m_host->area(tab)->channel();
        const ZvChannel saved = ZavoTest::readChannelFile(channel->filePath());
        QVERIFY2(saved.isMatch(*channel, false, false), qPrintable(channel->name()));
    }
    // One that is deleted does not take another's entry with it.
    m_host->tabs()->setCurrentIndex(5);
    m_boxes->expect(QMessageBox::Yes);
    m_host->action(ActionName::DeleteChannel)->trigger();
    QCOMPARE(m_host->tabs()->count(), 5);
    QVERIFY(QFile::exists(m_host->area(4)->channel()->filePath()));
}

void tst_HostileChannels::sharedIndicesAreHealed()
{
    for (int number = 7; number < 12; ++number)
        ZavoTest::writeChannelFile(m_host->data, ZavoTest::channelFileName(number),
                                   {number, number % 2 ? -2147483647 - 1 : 2147483647,
                                    QStringLiteral("Ch.%1").arg(number)});
    start();
    QCOMPARE(m_host->tabs()->count(), 8);
    QSet<int> ids;
    for (int tab = 0; tab < 8; ++tab) {
        QCOMPARE(m_host->area(tab)->channel()->index(), tab);
        ids.insert(m_host->area(tab)->channel()->id());
    }
    QCOMPARE(ids.size(), 8);
    m_host->action(ActionName::SaveAllChannel)->trigger();
    for (int tab = 0; tab < 8; ++tab) {
        const ZvChannel saved = ZavoTest::readChannelFile(m_host->area(tab)->channel()->filePath());
        QCOMPARE(saved.index(), tab);
    }
}

// What stands in the place of the basic file and is none changes nothing of the first channel.
void tst_HostileChannels::basicFileIsNoChannel()
{
    m_host->data.write(QStringLiteral("channel/channel.xml"), QByteArray(LargestFile + 1, '<'));
    const EffortLimit limit;
    start();
    QCOMPARE(m_host->tabs()->count(), 3);
    QCOMPARE(m_host->tabs()->tabText(0), QStringLiteral("Alpha"));
    QVERIFY(limit.isKept(LargestFile));
}

QTEST_MAIN(tst_HostileChannels)
#include "tst_hostilechannels.moc"
