#include "TemporaryDataFolder.h"
#include "ZvChannel.h"
#include "ZvConfig.h"
#include "ZvStage.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QtTest>

#include <algorithm>

using Zavo::ZvChannel;
using Zavo::ZvConfig;
using Zavo::ZvSchedule;
using Zavo::ZvStage;
using Zavo::ZvStageItem;
using Zavo::ZvTime;

namespace {

constexpr int LeastChannels = 10;
constexpr int LeastStages = 20;
constexpr int BandsOfADenseDay = 288;
constexpr qint64 MostBytes = 6 * 1024 * 1024;

QString dataPath(const QString &relativePath)
{
    return QStringLiteral(ZAVO_EXAMPLE_DATA "/") + relativePath;
}

QByteArray bytesOf(const QString &filePath)
{
    QFile file(filePath);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Paths below a folder of the data, relative to that folder.
QStringList filesBelow(const QString &folder, const QStringList &filters)
{
    const QDir root(dataPath(folder));
    QStringList names;
    QDirIterator it(root.path(), filters, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext())
        names << root.relativeFilePath(it.next());
    names.sort();
    return names;
}

QStringList stageNames()
{
    return filesBelow(QStringLiteral("stage"), {QStringLiteral("*.xml"), QStringLiteral("*.zstg")});
}

QStringList namedStages(const ZvChannel &channel)
{
    QStringList names;
    const QList<ZvSchedule> &schedules = channel.scheduleList();
    for (const ZvSchedule &schedule : schedules) {
        names << schedule.defaultStage();
        const QList<ZvTime> &bands = schedule.timeList();
        for (const ZvTime &band : bands)
            names << band.stageName();
    }
    names.removeAll(QString());
    return names;
}

} // namespace

// The example data are what a new operator sees first: whole, plausible and written as the program
// writes them.
class tst_Examples : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void idsAndIndicesAreConsecutive();
    void basicFileIsChannelZero();
    void channelFilesAreAsTheProgramWritesThem();
    void everyKindOfSchedule();
    void denseDay();
    void datesOutliveTheCleanUp();
    void namesInSeveralScripts();

    void stagesOfBothSuffixes();
    void namedStagesExist();
    void stagesRead_data();
    void stagesRead();
    void noPictureIsLeftOver();

    void configuration();
    void folderIsSmall();

private:
    QList<ZvChannel> m_channels;
};

void tst_Examples::initTestCase()
{
    const int count = QDir(dataPath(QStringLiteral("channel"))).entryList(QDir::Files).size() - 1;
    QVERIFY(count >= LeastChannels);
    for (int number = 0; number < count; ++number) {
        ZvChannel channel(dataPath(QStringLiteral("channel/channel%1.xml").arg(number)));
        QVERIFY2(channel.readFile(), qPrintable(channel.filePath()));
        m_channels << channel;
    }
}

void tst_Examples::idsAndIndicesAreConsecutive()
{
    for (int i = 0; i < m_channels.size(); ++i) {
        QCOMPARE(m_channels.at(i).id(), i);
        QCOMPARE(m_channels.at(i).index(), i);
    }
}

void tst_Examples::basicFileIsChannelZero()
{
    const QByteArray basic = bytesOf(dataPath(QStringLiteral("channel/channel.xml")));
    QVERIFY(!basic.isEmpty());
    QCOMPARE(basic, bytesOf(m_channels.constFirst().filePath()));
}

void tst_Examples::channelFilesAreAsTheProgramWritesThem()
{
    ZavoTest::TemporaryDataFolder folder;
    for (ZvChannel channel : qAsConst(m_channels)) {
        const QByteArray before = bytesOf(channel.filePath());
        const QString copy = folder.filePath(QFileInfo(channel.filePath()).fileName());
        channel.setFilePath(copy);
        QVERIFY(channel.writeToFile());
        QCOMPARE(bytesOf(copy), before);
    }
}

void tst_Examples::everyKindOfSchedule()
{
    QSet<int> kinds;
    QSet<int> days;
    bool hasEmptySchedule = false;
    for (const ZvChannel &channel : qAsConst(m_channels)) {
        const QList<ZvSchedule> &schedules = channel.scheduleList();
        QVERIFY2(!schedules.isEmpty(), qPrintable(channel.name()));
        QCOMPARE(schedules.first().type(), ZvSchedule::Default);
        for (const ZvSchedule &schedule : schedules) {
            kinds << schedule.type();
            hasEmptySchedule |= schedule.timeList().isEmpty();
            if (schedule.type() == ZvSchedule::DayOfWeek)
                days << schedule.dayOfWeek();
        }
    }
    QCOMPARE(kinds.size(), 3);
    QCOMPARE(days.size(), 7);
    QVERIFY(hasEmptySchedule);
}

void tst_Examples::denseDay()
{
    int bandsOfTheFullest = 0;
    bool reachesMidnight = false;
    for (const ZvChannel &channel : qAsConst(m_channels)) {
        const QList<ZvSchedule> &schedules = channel.scheduleList();
        for (const ZvSchedule &schedule : schedules) {
            const QList<ZvTime> &bands = schedule.timeList();
            bandsOfTheFullest = qMax(bandsOfTheFullest, bands.size());
            reachesMidnight |= !bands.isEmpty() && bands.last().endTime() == QTime(23, 59, 59, 999);
            const auto overlap = std::adjacent_find(
                bands.cbegin(), bands.cend(),
                [](const ZvTime &a, const ZvTime &b) { return a.endTime() > b.startTime(); });
            QVERIFY2(overlap == bands.cend(), qPrintable(channel.name()));
        }
    }
    QVERIFY(bandsOfTheFullest >= BandsOfADenseDay);
    QVERIFY(reachesMidnight);
}

void tst_Examples::datesOutliveTheCleanUp()
{
    const QDate earliest(2026, 12, 1);
    for (const ZvChannel &channel : qAsConst(m_channels)) {
        const QList<ZvSchedule> &schedules = channel.scheduleList();
        for (const ZvSchedule &schedule : schedules)
            QVERIFY(schedule.type() != ZvSchedule::Date || schedule.date() >= earliest);
    }
}

void tst_Examples::namesInSeveralScripts()
{
    QSet<int> scripts;
    QSet<QString> names;
    for (const ZvChannel &channel : qAsConst(m_channels)) {
        names << channel.name();
        for (const QChar character : channel.name())
            scripts << character.script();
    }
    QCOMPARE(names.size(), m_channels.size());
    for (int script : {QChar::Script_Latin, QChar::Script_Greek, QChar::Script_Cyrillic,
                       QChar::Script_Arabic, QChar::Script_Han, QChar::Script_Katakana})
        QVERIFY2(scripts.contains(script), qPrintable(QString::number(script)));
}

void tst_Examples::stagesOfBothSuffixes()
{
    const QStringList names = stageNames();
    QVERIFY(names.size() >= LeastStages);
    const auto has = [&names](const QString &suffix, bool inSubFolder) {
        return std::any_of(names.cbegin(), names.cend(), [&](const QString &name) {
            return name.endsWith(suffix) && name.contains(QLatin1Char('/')) == inSubFolder;
        });
    };
    for (const QString &suffix : {QStringLiteral(".xml"), QStringLiteral(".zstg")}) {
        QVERIFY2(has(suffix, false), qPrintable(suffix));
        QVERIFY2(has(suffix, true), qPrintable(suffix));
    }
}

void tst_Examples::namedStagesExist()
{
    const QStringList names = stageNames();
    for (const ZvChannel &channel : qAsConst(m_channels)) {
        for (const QString &name : namedStages(channel))
            QVERIFY2(names.contains(name), qPrintable(channel.name() + QLatin1Char(' ') + name));
    }
}

void tst_Examples::stagesRead_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : stageNames())
        QTest::newRow(qUtf8Printable(name)) << name;
}

void tst_Examples::stagesRead()
{
    QFETCH(QString, name);
    ZvStage stage(dataPath(QStringLiteral("stage/") + name));
    QVERIFY(stage.readFile());
    QVERIFY(stage.size() == QSize(1920, 1080) || stage.size() == QSize(1080, 1920));
    const QRectF canvas(QPointF(), stage.size());
    bool hasText = false;
    for (const ZvStageItem &item : stage.items()) {
        QVERIFY(canvas.contains(item.box));
        QVERIFY(item.kind != ZvStageItem::Picture || !item.picture.isNull());
        hasText |= item.kind == ZvStageItem::Text && !item.text.trimmed().isEmpty();
    }
    QVERIFY(hasText);
}

void tst_Examples::noPictureIsLeftOver()
{
    QByteArray scenes;
    for (const QString &name : stageNames())
        scenes += bytesOf(dataPath(QStringLiteral("stage/") + name));
    const QStringList pictures =
        filesBelow(QStringLiteral("stage"), {QStringLiteral("*.png"), QStringLiteral("*.jpg")});
    QVERIFY(!pictures.isEmpty());
    for (const QString &picture : pictures) {
        const QString source = QStringLiteral("pictures/") + QFileInfo(picture).fileName();
        QVERIFY2(scenes.contains(source.toUtf8()), qPrintable(picture));
    }
}

void tst_Examples::configuration()
{
    const QByteArray before = bytesOf(dataPath(QStringLiteral("config.ini")));
    ZavoTest::TemporaryDataFolder folder;
    const ZvConfig config(folder.write(QStringLiteral("config.ini"), before));
    QVERIFY(!config.allInOne());
    QVERIFY(!config.defaultScheduleUsedFirst());
    QCOMPARE(config.removingDuration(), 365);
    QVERIFY(config.write());
    QCOMPARE(folder.read(QStringLiteral("config.ini")), before);
}

void tst_Examples::folderIsSmall()
{
    qint64 bytes = 0;
    QDirIterator it(dataPath(QString()), QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        it.next();
        bytes += it.fileInfo().size();
    }
    QVERIFY2(bytes < MostBytes, qPrintable(QString::number(bytes)));
}

QTEST_GUILESS_MAIN(tst_Examples)
#include "tst_examples.moc"
