#include "workspace/ChannelFolder.h"

#include "Path.h"
#include "ZvChannel.h"
#include "ZvSchedule.h"
#include "storage/BoundedFile.h"
#include "storage/ChannelFile.h"
#include "storage/DurableFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>
#include <limits>
#include <system_error>
#include <utility>

namespace Zavo {

namespace {

constexpr int DefaultChannelCount = 10;
constexpr int MaximumNumberLength = 5;
constexpr int MaximumId = std::numeric_limits<int>::max();

const QLatin1String ChannelFolderName("channel");
const QLatin1String BasicFileName("channel.xml");
const QLatin1String ChannelFileFormat("channel%1.xml");
const QLatin1String DefaultNameFormat("Ch.%1");

std::unique_ptr<ZvChannel> channelOfFile(const QString &filePath)
{
    return std::make_unique<ZvChannel>(QDir::toNativeSeparators(filePath));
}

QString defaultName(int number)
{
    return QString(DefaultNameFormat).arg(number);
}

// A link that leads nowhere counts too: what it stood for may come back with its drive.
bool isTaken(const QString &filePath)
{
    const QFileInfo info(filePath);
    return info.exists() || info.isSymLink();
}

} // namespace

ChannelFolder::ChannelFolder(const QString &dataDir)
    : m_path(QDir(Path::combine(dataDir, ChannelFolderName)).absolutePath())
{
}

QString ChannelFolder::path() const
{
    return m_path;
}

QString ChannelFolder::basicFilePath() const
{
    return Path::combine(m_path, BasicFileName);
}

QString ChannelFolder::channelFilePath(int number) const
{
    return Path::combine(m_path, QString(ChannelFileFormat).arg(number));
}

QStringList ChannelFolder::channelFileNames() const
{
    QStringList filters;
    for (int length = 1; length <= MaximumNumberLength; ++length)
        filters.append(QString(ChannelFileFormat).arg(QString(length, QLatin1Char('?'))));
    return QDir(m_path).entryList(filters, QDir::Files, QDir::Name);
}

// A folder that cannot be listed to its end looks like one with fewer files.
bool ChannelFolder::hasNoFiles() const
{
    std::error_code error;
    std::filesystem::directory_iterator entries(QFile::encodeName(m_path).constData(), error);
    while (!error && entries != std::filesystem::directory_iterator()) {
        if (!entries->is_directory(error))
            return false;
        entries.increment(error);
    }
    return !error;
}

bool ChannelFolder::removeAllFiles() const
{
    const QDir dir(m_path);
    const QStringList names = dir.entryList(
        QDir::Files | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Unsorted);
    for (const QString &name : names)
        QFile::remove(dir.absoluteFilePath(name));
    return hasNoFiles();
}

ChannelFolder::LoadResult ChannelFolder::load(Channels *channels) const
{
    channels->clear();
    if (!exists() && !create())
        return LoadResult::FolderNotCreated;
    const QStringList fileNames = channelFileNames();
    if (!fileNames.isEmpty()) {
        *channels = readChannels(fileNames);
    } else if (!createDefaultChannels(channels)) {
        channels->clear();
        return LoadResult::ChannelNotWritten;
    }
    applyBasicFile(channels);
    return LoadResult::Loaded;
}

bool ChannelFolder::exists() const
{
    return QDir(m_path).exists();
}

bool ChannelFolder::create() const
{
    return QDir().mkpath(m_path);
}

ChannelFolder::Channels ChannelFolder::readChannels(const QStringList &fileNames) const
{
    Channels channels;
    channels.reserve(static_cast<std::size_t>(fileNames.size()));
    for (const QString &fileName : fileNames) {
        auto channel = channelOfFile(Path::combine(m_path, fileName));
        if (channel->readFile())
            channels.push_back(std::move(channel));
    }
    sortChannelsByIndex(&channels);
    return channels;
}

bool ChannelFolder::createDefaultChannels(Channels *channels) const
{
    for (int number = 0; number < DefaultChannelCount; ++number) {
        // The listing was empty, so a file here was hidden from it; it is not written over.
        if (isTaken(channelFilePath(number)))
            return false;
        std::unique_ptr<ZvChannel> channel;
        if (number == 0)
            channel = basicChannelAsNumberZero();
        if (!channel)
            channel = newChannel(channelFilePath(number), number, number, defaultName(number));
        if (!channel->writeToFile())
            return false;
        if (channel->id() == BasicChannelId)
            copyToBasicFile(*channel);
        channels->push_back(std::move(channel));
    }
    return true;
}

std::unique_ptr<ZvChannel> ChannelFolder::newChannel(const QString &filePath, int id, int index,
                                                     const QString &name)
{
    auto channel = channelOfFile(filePath);
    channel->setId(id);
    channel->setIndex(index);
    channel->setName(name);
    ZvSchedule schedule;
    schedule.setType(ZvSchedule::Default);
    channel->insertSchedule(schedule);
    return channel;
}

std::optional<int> ChannelFolder::freeId(const QList<int> &takenIds)
{
    const int largest = takenIds.isEmpty() ? BasicChannelId - 1 : takenIds.last();
    if (largest != MaximumId)
        return largest + 1;
    const auto first = std::lower_bound(takenIds.cbegin(), takenIds.cend(), 0);
    int id = 0;
    for (auto taken = first; taken != takenIds.cend() && *taken == id && id != MaximumId; ++taken)
        ++id;
    return id == MaximumId ? std::nullopt : std::optional<int>(id);
}

QString ChannelFolder::freeFilePath(int id) const
{
    const QString ownPath = channelFilePath(id);
    if (!isTaken(ownPath))
        return ownPath;
    for (int number = 0; number < MaximumId; ++number) {
        const QString path = channelFilePath(number);
        if (!isTaken(path))
            return path;
    }
    return {};
}

// Null without a basic file. A basic file that cannot be read still makes the channel, as it was
// constructed.
std::unique_ptr<ZvChannel> ChannelFolder::basicChannelAsNumberZero() const
{
    if (!QFile::exists(basicFilePath()))
        return nullptr;
    auto channel = channelOfFile(basicFilePath());
    if (channel->readFile()) {
        channel->setId(BasicChannelId);
        channel->setIndex(0);
    }
    channel->setFilePath(QDir::toNativeSeparators(channelFilePath(0)));
    if (channel->name().isEmpty())
        channel->setName(defaultName(0));
    return channel;
}

void ChannelFolder::applyBasicFile(Channels *channels) const
{
    if (!QFile::exists(basicFilePath()))
        return;
    auto basic = channelOfFile(basicFilePath());
    if (!basic->readFile())
        return;
    basic->setId(BasicChannelId);
    basic->setIndex(0);
    if (channels->empty() || channels->front()->id() != BasicChannelId)
        channels->insert(channels->begin(), std::move(basic));
    else if (!basic->isMatch(*channels->front(), false, false))
        channels->front() = std::move(basic);
}

void ChannelFolder::copyToBasicFile(const ZvChannel &channel)
{
    const QString filePath = channel.filePath();
    const QString basicPath = Path::combine(QFileInfo(filePath).absolutePath(), BasicFileName);
    QFile::remove(basicPath);
    QByteArray bytes;
    // At a start the copy goes before its original, so it reaches the disk as safely, also where
    // the old one could not be removed.
    if (BoundedFile::read(filePath, ChannelFile::MaximumBytes, &bytes) &&
        DurableFile::write(basicPath, bytes))
        QFile::setPermissions(basicPath, QFile::permissions(filePath));
}

void sortChannelsByIndex(ChannelFolder::Channels *channels)
{
    const std::size_t count = channels->size();
    for (std::size_t i = 0; i < count; ++i) {
        for (std::size_t j = i + 1; j < count; ++j) {
            if ((*channels)[j]->index() < (*channels)[i]->index())
                std::swap((*channels)[i], (*channels)[j]);
        }
        (*channels)[i]->setIndex(static_cast<int>(i));
    }
}

} // namespace Zavo
