#include "channels/ChannelSettings.h"

#include "Path.h"
#include "storage/BoundedFile.h"
#include "storage/DurableFile.h"
#include "storage/IniText.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace Zavo {

namespace {
constexpr int mostSettingsBytes = 1024 * 1024;
constexpr char notUploadedKey[] = "NotUploaded";
} // namespace

ChannelSettings::ChannelSettings(const QString &dataDir)
    : m_filePath(
          Path::combine(Path::combine(dataDir, QStringLiteral("channel")), QLatin1String(fileName)))
{
    QByteArray bytes;
    if (!BoundedFile::read(m_filePath, mostSettingsBytes, &bytes))
        return;
    const QList<QByteArray> words = IniText(bytes).value(notUploadedKey).split(',');
    for (const QByteArray &word : words) {
        bool isNumber = false;
        const int id = word.trimmed().toInt(&isNumber);
        if (isNumber)
            setUploaded(id, false);
    }
}

void ChannelSettings::setUploaded(int channelId, bool uploaded)
{
    if (uploaded)
        m_notUploaded.remove(channelId);
    else if (channelId != basicChannelId)
        m_notUploaded.insert(channelId);
}

void ChannelSettings::keepOnly(const QSet<int> &channelIds)
{
    m_notUploaded.intersect(channelIds);
}

bool ChannelSettings::write() const
{
    QByteArray bytes;
    // What could not be read must not be lost by writing over it.
    if (!BoundedFile::read(m_filePath, mostSettingsBytes, &bytes) && QFileInfo::exists(m_filePath))
        return false;
    QList<int> ids = m_notUploaded.values();
    std::sort(ids.begin(), ids.end());
    QByteArrayList words;
    for (int id : qAsConst(ids))
        words.append(QByteArray::number(id));
    IniText text(bytes);
    text.setValue(notUploadedKey, words.join(','));
    QDir().mkpath(QFileInfo(m_filePath).path());
    return DurableFile::write(m_filePath, text.toBytes());
}

} // namespace Zavo
