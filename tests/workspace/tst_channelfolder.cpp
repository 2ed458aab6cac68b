#include "workspace/ChannelFolder.h"

#include "ChannelFiles.h"
#include "WriteFailure.h"

#include "ZvChannel.h"

#include <QDir>
#include <QFile>
#include <QtTest>

using namespace Zavo;
using namespace ZavoTest;

namespace {

constexpr int DefaultChannelCount = 10;

QString channelPath(const QString &fileName)
{
    return QStringLiteral("channel/") + fileName;
}

QStringList namesOf(const ChannelFolder::Channels &channels)
{
    QStringList names;
    for (const auto &channel : channels)
        names.append(channel->name());
    return names;
}

QList<int> indicesOf(const ChannelFolder::Channels &channels)
{
    QList<int> indices;
    for (const auto &channel : channels)
        indices.append(channel->index());
    return indices;
}

QList<int> idsOf(const ChannelFolder::Channels &channels)
{
    QList<int> ids;
    for (const auto &channel : channels)
        ids.append(channel->id());
    return ids;
}

const auto Loaded = ChannelFolder::LoadResult::Loaded;

} // namespace

class tst_ChannelFolder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstStart_data();
    void firstStart();
    void firstStartFromBasicFile_data();
    void firstStartFromBasicFile();
    void firstStartFromUnreadableBasicFile();
    void firstStartWritesOverNothing_data();
    void firstStartWritesOverNothing();
    void firstStartOnFullDisk();
    void folderCannotBeCreated();
    void numbersOfOneToFiveCharacters();
    void filesAreSortedByName();
    void equalIndices_data();
    void equalIndices();
    void corruptFileIsPassedOver();
    void onlyCorruptFiles();
    void basicFileOfTheSameContent();
    void basicFileWins();
    void basicFileBesideForeignFirstChannel();
    void unreadableBasicFile();
    void filesStayAsTheyAre();
    void basicFileIsReplaced();
    void channelInTheBasicFileLosesIt();
    void copyOfMissingFileLeavesNoBasicFile();
};

void tst_ChannelFolder::firstStart_data()
{
    QTest::addColumn<bool>("folderExists");
    QTest::newRow("empty folder") << true;
    QTest::newRow("no folder") << false;
}

void tst_ChannelFolder::firstStart()
{
    QFETCH(bool, folderExists);
    TemporaryDataFolder data;
    if (folderExists)
        data.makeFolder(QStringLiteral("channel"));

    ChannelFolder::Channels channels;
    QVERIFY(ChannelFolder(data.path()).load(&channels) == Loaded);

    QCOMPARE(int(channels.size()), DefaultChannelCount);
    for (int i = 0; i < DefaultChannelCount; ++i) {
        const ZvChannel &channel = *channels[std::size_t(i)];
        QCOMPARE(channel.id(), i);
        QCOMPARE(channel.index(), i);
        QCOMPARE(channel.name(), QStringLiteral("Ch.%1").arg(i));
        QCOMPARE(channel.filePath(), data.channelFolder() + QLatin1Char('/') + channelFileName(i));
        const QList<ZvSchedule> &schedules = channel.scheduleList();
        QCOMPARE(schedules.size(), 1);
        QCOMPARE(schedules.first().type(), ZvSchedule::Default);
        QVERIFY(schedules.first().isEmpty());
        QVERIFY(channel.isMatch(readChannelFile(channel.filePath()), false, false));
    }
    QCOMPARE(data.names(QStringLiteral("channel")).size(), DefaultChannelCount + 1);
    const QByteArray basic = data.read(QStringLiteral("channel/channel.xml"));
    QVERIFY(!basic.isEmpty());
    QCOMPARE(basic, data.read(QStringLiteral("channel/channel0.xml")));
}

void tst_ChannelFolder::firstStartFromBasicFile_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("expected");
    QTest::newRow("with a name") << QStringLiteral("Lobby") << QStringLiteral("Lobby");
    QTest::newRow("without a name") << QString() << QStringLiteral("Ch.0");
}

void tst_ChannelFolder::firstStartFromBasicFile()
{
    QFETCH(QString, stored);
    QFETCH(QString, expected);
    TemporaryDataFolder data;
    const ZvTime band(QTime(8, 0), QTime(9, 0), QStringLiteral("news.xml"));
    writeChannelFile(data, QStringLiteral("channel.xml"), {7, 5, stored, {band}});

    ChannelFolder::Channels channels;
    QVERIFY(ChannelFolder(data.path()).load(&channels) == Loaded);

    QCOMPARE(int(channels.size()), DefaultChannelCount);
    QCOMPARE(idsOf(channels), (QList<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
    QCOMPARE(indicesOf(channels), (QList<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
    const ZvChannel &first = *channels.front();
    QCOMPARE(first.name(), expected);
    QCOMPARE(first.filePath(), data.channelFolder() + QStringLiteral("/channel0.xml"));
    const QList<ZvSchedule> &schedules = first.scheduleList();
    const QList<ZvTime> &times = schedules.first().timeList();
    QCOMPARE(times.size(), 1);
    QCOMPARE(times.first(), band);
    QCOMPARE(data.read(QStringLiteral("channel/channel.xml")),
             data.read(QStringLiteral("channel/channel0.xml")));
}

void tst_ChannelFolder::firstStartFromUnreadableBasicFile()
{
    TemporaryDataFolder data;
    data.write(QStringLiteral("channel/channel.xml"), "<channel");

    ChannelFolder::Channels channels;
    QVERIFY(ChannelFolder(data.path()).load(&channels) == Loaded);

    QCOMPARE(int(channels.size()), DefaultChannelCount);
    QCOMPARE(channels.front()->name(), QStringLiteral("Ch.0"));
    QCOMPARE(channels.front()->id(), 0);
    QCOMPARE(readChannelFile(data.filePath(QStringLiteral("channel/channel0.xml"))).id(), 0);
}

void tst_ChannelFolder::firstStartWritesOverNothing_data()
{
    QTest::addColumn<bool>("asLink");
    QTest::addColumn<int>("number");
    QTest::newRow("a folder of a channel's name") << false << 3;
    QTest::newRow("a link to a drive that is away") << true << 0;
    QTest::newRow("the last one a link") << true << 9;
}

void tst_ChannelFolder::firstStartWritesOverNothing()
{
    QFETCH(bool, asLink);
    QFETCH(int, number);
    TemporaryDataFolder data;
    const QString folder = data.makeFolder(QStringLiteral("channel"));
    const QString path = folder + QLatin1Char('/') + channelFileName(number);
    if (asLink)
        QVERIFY(QFile::link(QStringLiteral("/away/channel.xml"), path));
    else
        QVERIFY(QDir().mkdir(path));

    ChannelFolder::Channels channels;
    QVERIFY(ChannelFolder(data.path()).load(&channels) ==
            ChannelFolder::LoadResult::ChannelNotWritten);
    QVERIFY(channels.empty());
    QVERIFY(asLink ? QFileInfo(path).isSymLink() : QFileInfo(path).isDir());
    QVERIFY(!QFileInfo::exists(folder + QLatin1Char('/') + channelFileName(number + 1)));
}

void tst_ChannelFolder::firstStartOnFullDisk()
{
    TemporaryDataFolder data;
    data.makeFolder(QStringLiteral("channel"));
    ChannelFolder::Channels channels;
    auto result = Loaded;
    {
        const WriteFailure fullDisk;
        result = ChannelFolder(data.path()).load(&channels);
    }
    QVERIFY(result == ChannelFolder::LoadResult::ChannelNotWritten);
    QVERIFY(channels.empty());
    QCOMPARE(data.names(QStringLiteral("channel")), QStringList());
}

void tst_ChannelFolder::folderCannotBeCreated()
{
    TemporaryDataFolder data;
    data.write(QStringLiteral("channel"), "a file in the place of the folder");
    ChannelFolder::Channels channels;
    QVERIFY(ChannelFolder(data.path()).load(&channels) ==
            ChannelFolder::LoadResult::FolderNotCreated);
    QVERIFY(channels.empty());
    QCOMPARE(data.read(QStringLiteral("channel")), QByteArray("a file in the place of the folder"));
}

void tst_ChannelFolder::numbersOfOneToFiveCharacters()
{
    TemporaryDataFolder data;
    const QStringList shown = {QStringLiteral("channel7.xml"), QStringLiteral("channel42.xml"),
                               QStringLiteral("channel99999.xml"), QStringLiteral("channelx.xml")};
    int index = 0;
    for (const QString &name : shown)
        writeChannelFile(data, name, {index + 1, index, name}), ++index;
    const QStringList passedOver = {QStringLiteral("channel123456.xml"),
                                    QStringLiteral("channel1.xml.bak"),
                                    QStringLiteral("mychannel1.xml")};
    for (const QString &name : passedOver)
        writeChannelFile(data, name, {50, 50, name});

    ChannelFolder::Channels channels;
    QVERIFY(ChannelFolder(data.path()).load(&channels) == Loaded);
    QCOMPARE(namesOf(channels), shown);
}

void tst_ChannelFolder::filesAreSortedByName()
{
    TemporaryDataFolder data;
    for (int number : {2, 10, 1, 100})
        writeChannelFile(data, channelFileName(number), {number, 0, QString::number(number)});
    QCOMPARE(ChannelFolder(data.path()).channelFileNames(),
             (QStringList{QStringLiteral("channel1.xml"), QStringLiteral("channel10.xml"),
                          QStringLiteral("channel100.xml"), QStringLiteral("channel2.xml")}));
}

void tst_ChannelFolder::equalIndices_data()
{
    QTest::addColumn<QList<int>>("stored");
    QTest::addColumn<QStringList>("expected");
    const auto names = [](const char *letters) {
        QStringList list;
        for (const char *letter = letters; *letter; ++letter)
            list.append(QString(QLatin1Char(*letter)));
        return list;
    };
    QTest::newRow("in order") << QList<int>{0, 1, 2} << names("abc");
    QTest::newRow("reversed") << QList<int>{2, 1, 0} << names("cba");
    QTest::newRow("holes") << QList<int>{40, -3, 7} << names("bca");
    QTest::newRow("all equal") << QList<int>{5, 5, 5} << names("abc");
    QTest::newRow("file name decides") << QList<int>{0, 1, 1, 2} << names("abcd");
    // a(2) changes places with c(1), so that b(2) comes before a.
    QTest::newRow("a swap moved one") << QList<int>{2, 2, 1} << names("cba");
    QTest::newRow("swaps within one walk") << QList<int>{3, 3, 2, 1} << names("dcab");
    QTest::newRow("one") << QList<int>{9} << names("a");
}

void tst_ChannelFolder::equalIndices()
{
    QFETCH(QList<int>, stored);
    QFETCH(QStringList, expected);
    TemporaryDataFolder data;
    for (int i = 0; i < stored.size(); ++i) {
        const QString name(QLatin1Char(char('a' + i)));
        writeChannelFile(data, channelFileName(i), {i, stored.at(i), name});
    }
    ChannelFolder::Channels channels;
    QVERIFY(ChannelFolder(data.path()).load(&channels) == Loaded);
    QCOMPARE(namesOf(channels), expected);
    for (int i = 0; i < stored.size(); ++i)
        QCOMPARE(channels[std::size_t(i)]->index(), i);
}

void tst_ChannelFolder::corruptFileIsPassedOver()
{
    TemporaryDataFolder data;
    for (int i : {0, 1, 3})
        writeChannelFile(data, channelFileName(i), {i, i, QStringLiteral("Ch.%1").arg(i)});
    data.write(QStringLiteral("channel/channel2.xml"), "<channel id=\"2\"");

    ChannelFolder::Channels channels;
    QVERIFY(ChannelFolder(data.path()).load(&channels) == Loaded);
    QCOMPARE(idsOf(channels), (QList<int>{0, 1, 3}));
    QCOMPARE(indicesOf(channels), (QList<int>{0, 1, 2}));
    QCOMPARE(data.read(QStringLiteral("channel/channel2.xml")), QByteArray("<channel id=\"2\""));
}

void tst_ChannelFolder::onlyCorruptFiles()
{
    TemporaryDataFolder data;
    data.write(QStringLiteral("channel/channel0.xml"), "no channel");
    data.write(QStringLiteral("channel/channel1.xml"), QByteArray());
    ChannelFolder::Channels channels;
    QVERIFY(ChannelFolder(data.path()).load(&channels) == Loaded);
    QVERIFY(channels.empty());
    QCOMPARE(data.names(QStringLiteral("channel")),
             (QStringList{QStringLiteral("channel0.xml"), QStringLiteral("channel1.xml")}));

    writeChannelFile(data, QStringLiteral("channel.xml"), {3, 3, QStringLiteral("Basic")});
    QVERIFY(ChannelFolder(data.path()).load(&channels) == Loaded);
    QCOMPARE(namesOf(channels), QStringList{QStringLiteral("Basic")});
    QCOMPARE(idsOf(channels), QList<int>{0});
    QCOMPARE(indicesOf(channels), QList<int>{0});
}

void tst_ChannelFolder::basicFileOfTheSameContent()
{
    TemporaryDataFolder data;
    writeChannelFile(data, QStringLiteral("channel0.xml"), {0, 0, QStringLiteral("Lobby")});
    writeChannelFile(data, QStringLiteral("channel.xml"), {0, 0, QStringLiteral("Lobby")});
    ChannelFolder::Channels channels;
    QVERIFY(ChannelFolder(data.path()).load(&channels) == Loaded);
    QCOMPARE(int(channels.size()), 1);
    QCOMPARE(channels.front()->filePath(), data.filePath(channelPath(channelFileName(0))));
}

void tst_ChannelFolder::basicFileWins()
{
    TemporaryDataFolder data;
    writeChannelFile(data, QStringLiteral("channel0.xml"), {0, 0, QStringLiteral("Number")});
    writeChannelFile(data, QStringLiteral("channel1.xml"), {1, 1, QStringLiteral("Other")});
    writeChannelFile(data, QStringLiteral("channel.xml"), {0, 4, QStringLiteral("Basic")});
    ChannelFolder::Channels channels;
    QVERIFY(ChannelFolder(data.path()).load(&channels) == Loaded);
    QCOMPARE(namesOf(channels), (QStringList{QStringLiteral("Basic"), QStringLiteral("Other")}));
    QCOMPARE(indicesOf(channels), (QList<int>{0, 1}));
    QCOMPARE(channels.front()->filePath(), data.filePath(QStringLiteral("channel/channel.xml")));
}

void tst_ChannelFolder::basicFileBesideForeignFirstChannel()
{
    TemporaryDataFolder data;
    writeChannelFile(data, QStringLiteral("channel4.xml"), {4, 0, QStringLiteral("Four")});
    writeChannelFile(data, QStringLiteral("channel.xml"), {4, 0, QStringLiteral("Basic")});
    ChannelFolder::Channels channels;
    QVERIFY(ChannelFolder(data.path()).load(&channels) == Loaded);
    QCOMPARE(namesOf(channels), (QStringList{QStringLiteral("Basic"), QStringLiteral("Four")}));
    QCOMPARE(idsOf(channels), (QList<int>{0, 4}));
}

void tst_ChannelFolder::unreadableBasicFile()
{
    TemporaryDataFolder data;
    writeChannelFile(data, QStringLiteral("channel0.xml"), {0, 0, QStringLiteral("Number")});
    data.write(QStringLiteral("channel/channel.xml"), "broken");
    ChannelFolder::Channels channels;
    QVERIFY(ChannelFolder(data.path()).load(&channels) == Loaded);
    QCOMPARE(namesOf(channels), QStringList{QStringLiteral("Number")});
    QCOMPARE(data.read(QStringLiteral("channel/channel.xml")), QByteArray("broken"));
}

void tst_ChannelFolder::filesStayAsTheyAre()
{
    TemporaryDataFolder data;
    for (int i = 0; i < 4; ++i)
        writeChannelFile(data, channelFileName(i), {i, 7 - i, QStringLiteral("Ch.%1").arg(i)});
    QList<QByteArray> before;
    for (int i = 0; i < 4; ++i)
        before.append(data.read(channelPath(channelFileName(i))));
    ChannelFolder::Channels channels;
    QVERIFY(ChannelFolder(data.path()).load(&channels) == Loaded);
    QCOMPARE(idsOf(channels), (QList<int>{3, 2, 1, 0}));
    for (int i = 0; i < 4; ++i)
        QCOMPARE(data.read(channelPath(channelFileName(i))), before.at(i));
    QVERIFY(!QFile::exists(data.filePath(QStringLiteral("channel/channel.xml"))));
}

void tst_ChannelFolder::basicFileIsReplaced()
{
    TemporaryDataFolder data;
    writeChannelFile(data, QStringLiteral("channel.xml"), {0, 0, QStringLiteral("Old")});
    const QString path =
        writeChannelFile(data, QStringLiteral("channel0.xml"), {0, 0, QStringLiteral("New")});
    ChannelFolder::copyToBasicFile(readChannelFile(path));
    QCOMPARE(data.read(QStringLiteral("channel/channel.xml")),
             data.read(QStringLiteral("channel/channel0.xml")));
}

void tst_ChannelFolder::channelInTheBasicFileLosesIt()
{
    TemporaryDataFolder data;
    const QString path =
        writeChannelFile(data, QStringLiteral("channel.xml"), {0, 0, QStringLiteral("Basic")});
    ChannelFolder::copyToBasicFile(readChannelFile(path));
    QCOMPARE(data.names(QStringLiteral("channel")), QStringList());
}

void tst_ChannelFolder::copyOfMissingFileLeavesNoBasicFile()
{
    TemporaryDataFolder data;
    writeChannelFile(data, QStringLiteral("channel.xml"), {0, 0, QStringLiteral("Basic")});
    ChannelFolder::copyToBasicFile(
        ZvChannel(data.filePath(QStringLiteral("channel/channel0.xml"))));
    QCOMPARE(data.names(QStringLiteral("channel")), QStringList());
}

QTEST_GUILESS_MAIN(tst_ChannelFolder)
#include "tst_channelfolder.moc"
