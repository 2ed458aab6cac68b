#include "check/DataCheck.h"

#include "Path.h"
#include "ZvChannel.h"
#include "check/ChannelListing.h"
#include "check/ParallelLoop.h"
#include "check/StageInspection.h"

#include <algorithm>

namespace Zavo {

namespace {
constexpr int basicChannelId = 0;
} // namespace

DataCheck::DataCheck(const QString &dataDir, const QDate &today, int removingDurationDays)
    : m_channelFolder(Path::combine(dataDir, QStringLiteral("channel")))
    , m_stageFolder(Path::combine(dataDir, QStringLiteral("stage")))
    , m_oldDateLimit(today.addDays(-removingDurationDays))
{
}

CheckReport DataCheck::run()
{
    const ChannelListing listing = ChannelListing::of(m_channelFolder);
    m_report.problem = listing.problem;
    if (!m_report.problem.isEmpty())
        return m_report;
    inspectChannels(listing);
    inspectStages();
    if (m_cancelled)
        return {};
    judgeListing(listing);
    judgeBasicFile(listing);
    judgeIds();
    for (const InspectedChannel &channel : qAsConst(m_channels))
        m_report.findings += channel.findings;
    addStageFindings();
    m_report.channelCount = m_channels.size();
    m_report.stageCount = m_stageProblems.size();
    m_report.isComplete = true;
    return m_report;
}

void DataCheck::inspectChannels(const ChannelListing &listing)
{
    m_fileNames = listing.channels;
    if (listing.hasBasicFile)
        m_fileNames.prepend(basicChannelFileName());
    m_channels.resize(m_fileNames.size());
    m_total = m_fileNames.size();
    InspectedChannel *const channels = m_channels.data();
    runInParallel(
        m_channels.size(),
        [&](int place) {
            channels[place] =
                ChannelInspection(channelPath(m_fileNames.at(place)), m_oldDateLimit).run();
            ++m_done;
        },
        [this] { return m_cancelled.load(); });
}

void DataCheck::inspectStages()
{
    for (const InspectedChannel &channel : qAsConst(m_channels)) {
        for (auto use = channel.stages.cbegin(); use != channel.stages.cend(); ++use)
            m_stageProblems.insert(use.key(), QString());
    }
    const QStringList names = m_stageProblems.keys();
    QVector<QString> problems(names.size());
    m_total += names.size();
    QString *const places = problems.data();
    runInParallel(
        names.size(),
        [&](int place) {
            places[place] = StageInspection::problem(m_stageFolder, names.at(place));
            ++m_done;
        },
        [this] { return m_cancelled.load(); });
    for (int i = 0; i < names.size(); ++i)
        m_stageProblems[names.at(i)] = problems.at(i);
}

void DataCheck::judgeListing(const ChannelListing &listing)
{
    if (m_fileNames.isEmpty())
        m_report.findings.append(
            {CheckFinding::Kind::NoChannel, {}, {}, {}, tr("There are no channel files.")});
    for (const QString &name : listing.foreignNames)
        addFile(name,
                tr("The editor looks for the name \"channel\" with one to five characters and "
                   "\".xml\"; it passes over this file in silence."));
    for (const QString &name : listing.noFiles)
        addFile(name, tr("The name is that of a channel, but it is no file; the editor passes over "
                         "it in silence."));
}

// The basic file is a copy of the channel of id 0. Where the two differ, the editor opens the copy.
void DataCheck::judgeBasicFile(const ChannelListing &listing)
{
    if (!listing.hasBasicFile || !m_channels.constFirst().isOpened)
        return;
    int first = -1;
    for (int i = 1; i < m_channels.size(); ++i) {
        if (m_channels.at(i).isOpened &&
            (first < 0 || m_channels.at(i).index < m_channels.at(first).index))
            first = i;
    }
    m_channels.first().id = basicChannelId;
    if (first < 0 || m_channels.at(first).id != basicChannelId)
        return;
    ZvChannel basic(channelPath(basicChannelFileName()));
    ZvChannel other(channelPath(m_fileNames.at(first)));
    if (!basic.readFile() || !other.readFile())
        return;
    basic.setId(basicChannelId);
    if (basic.isMatch(other, true, false)) {
        // One channel in two files: what is to be said of it is said once.
        m_channels.removeFirst();
        m_fileNames.removeFirst();
        return;
    }
    addFile(m_fileNames.at(first),
            tr("The file differs from \"%1\", which the editor opens in its place; it passes over "
               "this file in silence.")
                .arg(basicChannelFileName()));
    m_channels[first].isOpened = false;
}

void DataCheck::judgeIds()
{
    QMap<int, QVector<int>> placesOfIds;
    for (int i = 0; i < m_channels.size(); ++i) {
        if (m_channels.at(i).isOpened)
            placesOfIds[m_channels.at(i).id].append(i);
    }
    for (auto id = placesOfIds.cbegin(); id != placesOfIds.cend(); ++id) {
        for (int i = 1; i < id.value().size(); ++i) {
            const int place = id.value().at(i);
            m_report.findings.append(
                {CheckFinding::Kind::SharedId,
                 m_fileNames.at(place),
                 m_channels.at(place).name,
                 {},
                 tr("The channel has the id %1, as has the one of \"%2\"; only "
                    "one of them is saved.")
                     .arg(id.key())
                     .arg(m_fileNames.at(id.value().constFirst()))});
        }
    }
}

void DataCheck::addStageFindings()
{
    for (int i = 0; i < m_channels.size(); ++i) {
        const InspectedChannel &channel = m_channels.at(i);
        QStringList names = channel.stages.keys();
        std::sort(names.begin(), names.end());
        for (const QString &name : qAsConst(names)) {
            const QString problem = m_stageProblems.value(name);
            if (problem.isEmpty())
                continue;
            const StageUse use = channel.stages.value(name);
            const QString text =
                use.schedules == 1
                    ? problem
                    : tr("%1 %n schedule(s) use it.", nullptr, use.schedules).arg(problem);
            m_report.findings.append({CheckFinding::Kind::Stage, m_fileNames.at(i), channel.name,
                                      use.firstSchedule, text});
        }
    }
}

QString DataCheck::channelPath(const QString &fileName) const
{
    return Path::combine(m_channelFolder, fileName);
}

void DataCheck::addFile(const QString &fileName, const QString &text)
{
    m_report.findings.append({CheckFinding::Kind::PassedOver, fileName, {}, {}, text});
}

} // namespace Zavo
