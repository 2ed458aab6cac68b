#include "Bench.h"
#include "ZvChannel.h"
#include "storage/ChannelFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

using namespace Zavo;

namespace {
constexpr int Schedules = 1000;
constexpr int BandsPerSchedule = 24;
constexpr double FileGoal = 1.4;
constexpr double MatchGoal = 0.1;

ZvSchedule scheduleOf(int number)
{
    ZvSchedule schedule;
    schedule.setType(ZvSchedule::Date);
    schedule.setDate(QDate(2027, 1, 1).addDays(number));
    schedule.setDefaultStage(QStringLiteral("common/logo.xml"));
    QList<ZvTime> bands;
    for (int hour = 0; hour < BandsPerSchedule; ++hour) {
        const QTime end =
            hour == BandsPerSchedule - 1 ? QTime(23, 59, 59, 999) : QTime(hour + 1, 0);
        bands.append(ZvTime(QTime(hour, 0), end,
                            QStringLiteral("station/departures-%1.xml").arg((number + hour) % 40)));
    }
    schedule.setTimeList(bands);
    return schedule;
}

ZvChannel channelOf(const QString &filePath)
{
    ZvChannel channel(filePath);
    channel.setName(QStringLiteral("Station concourse"));
    for (int i = 0; i < Schedules; ++i)
        channel.insertSchedule(scheduleOf(i));
    return channel;
}

/// What the bare writer writes, ready made, so that nothing but writing is measured.
struct Element
{
    int depth = 0;
    QString name;
    QXmlStreamAttributes attributes;
};

QVector<Element> elementsOf(const QByteArray &bytes)
{
    QVector<Element> elements;
    QXmlStreamReader xml(bytes);
    int depth = 0;
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        if (token == QXmlStreamReader::StartElement)
            elements.append({depth++, xml.name().toString(), xml.attributes()});
        else if (token == QXmlStreamReader::EndElement)
            --depth;
    }
    return elements;
}

QByteArray writeBare(const QVector<Element> &elements)
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(1);
    xml.writeStartDocument();
    int open = 0;
    for (const Element &element : elements) {
        for (; open > element.depth; --open)
            xml.writeEndElement();
        xml.writeStartElement(element.name);
        xml.writeAttributes(element.attributes);
        ++open;
    }
    xml.writeEndDocument();
    return bytes;
}

void writePlainly(const QString &filePath, const QByteArray &bytes)
{
    QFile file(filePath);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(filePath));
}

QByteArray readPlainly(const QString &filePath)
{
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(filePath));
    return file.readAll();
}

void require(bool ok)
{
    if (!ok)
        qFatal("an operation failed that should not");
}

/// Every band of both, whatever they share.
bool isDeeplyEqual(const ZvChannel &a, const ZvChannel &b)
{
    const QList<ZvSchedule> &listA = a.scheduleList();
    const QList<ZvSchedule> &listB = b.scheduleList();
    return std::equal(listA.cbegin(), listA.cend(), listB.cbegin(), listB.cend(),
                      [](const ZvSchedule &x, const ZvSchedule &y) {
                          const QList<ZvTime> &bandsX = x.timeList();
                          const QList<ZvTime> &bandsY = y.timeList();
                          return x.hasSameKey(y) && x.defaultStage() == y.defaultStage() &&
                                 std::equal(bandsX.cbegin(), bandsX.cend(), bandsY.cbegin(),
                                            bandsY.cend());
                      });
}

void benchFiles(Bench::Table *table, const QString &folder)
{
    const ZvChannel channel = channelOf(folder + QStringLiteral("/ours.xml"));
    require(channel.writeToFile());
    const QByteArray bytes = readPlainly(channel.filePath());
    const QVector<Element> elements = elementsOf(bytes);
    const QString barePath = folder + QStringLiteral("/bare.xml");
    require(writeBare(elements) == bytes);
    table->add(
        {QStringLiteral("channel write / bare stream writer"), Schedules, FileGoal},
        [&] { writePlainly(barePath, writeBare(elements)); },
        [&] { require(channel.writeToFile()); });
    table->add(
        {QStringLiteral("channel read / bare stream reader"), Schedules, FileGoal},
        [&] {
            const QByteArray read = readPlainly(barePath);
            QXmlStreamReader xml(read);
            while (!xml.atEnd())
                xml.readNext();
            require(!xml.hasError());
        },
        [&] {
            ZvChannel read(channel.filePath());
            require(read.readFile());
        });
}

void benchMatch(Bench::Table *table)
{
    ZvChannel channel = channelOf({});
    const ZvChannel saved = channel;
    ZvSchedule touched = scheduleOf(Schedules - 1);
    touched.setDefaultStage(QStringLiteral("touched.xml"));
    channel.insertSchedule(touched);
    constexpr int Repetitions = 100;
    table->add(
        {QStringLiteral("isMatch, one touched / deep comparison"), Schedules, MatchGoal},
        [&] {
            for (int i = 0; i < Repetitions; ++i)
                require(!isDeeplyEqual(channel, saved));
        },
        [&] {
            for (int i = 0; i < Repetitions; ++i)
                require(!channel.isMatch(saved, false, false));
        });
    table->add(
        {QStringLiteral("isMatch, untouched / deep comparison"), Schedules, MatchGoal},
        [&] {
            for (int i = 0; i < Repetitions; ++i)
                require(isDeeplyEqual(saved, saved));
        },
        [&] {
            for (int i = 0; i < Repetitions; ++i)
                require(saved.isMatch(saved, false, false));
        });
}
} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    Bench::Table table(QCoreApplication::arguments());
    benchFiles(&table, folder.path());
    benchMatch(&table);
    return table.finish();
}
