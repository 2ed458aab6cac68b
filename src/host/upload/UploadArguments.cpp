#include "upload/UploadArguments.h"

#include "storage/ChannelFile.h"
#include "upload/UploadNames.h"

#include <QRegularExpression>

namespace Zavo {

namespace {
const QLatin1String syncOption("--fsync");

QString everythingIn(const QString &folder)
{
    return QStringLiteral("--include=/%1/***").arg(folder);
}

QString everythingIn(const char *folder)
{
    return everythingIn(QString::fromLatin1(folder));
}

// What is said at a login does not belong into a listing, and no shell reads a path.
QStringList plainWords()
{
    return {QStringLiteral("--no-motd"), QStringLiteral("--protect-args")};
}
} // namespace

UploadArguments::UploadArguments(const UploadTarget &target, const UploadSet &set)
    : m_target(target)
    , m_set(set)
{
}

QStringList UploadArguments::look() const
{
    return plainWords() + QStringList(QStringLiteral("--list-only")) +
           endWithoutSync({m_target.destination()});
}

// Contents are compared, not times: a file can be saved twice within a second.
QStringList UploadArguments::assemble() const
{
    return plainWords() +
           QStringList{
               QStringLiteral("--recursive"),
               QStringLiteral("--checksum"),
               QStringLiteral("--delete"),
               QStringLiteral("--chmod=D755,F644"),
               QStringLiteral("--outbuf=N"),
               QStringLiteral("--info=progress2"),
               QStringLiteral("--no-inc-recursive"),
               QStringLiteral("--link-dest=.."),
               QStringLiteral("--exclude=/%1").arg(QLatin1String(UploadNames::emptyFolder))} +
           end({setFolder(), m_target.destination(stagingFolder())});
}

// The time of a file at the target tells when it was put there.
QStringList UploadArguments::fetchReplaced(const QString &folder) const
{
    const QString files = QLatin1String(UploadNames::channelFolder) + QLatin1Char('/');
    return plainWords() +
           QStringList{QStringLiteral("--recursive"),
                       QStringLiteral("--checksum"),
                       QStringLiteral("--times"),
                       QStringLiteral("--chmod=D700,F600"),
                       QStringLiteral("--max-size=%1").arg(ChannelFile::MaximumBytes),
                       QStringLiteral("--compare-dest=%1").arg(setFolder()),
                       QStringLiteral("--include=/%1").arg(files),
                       QStringLiteral("--exclude=/%1*/").arg(files),
                       QStringLiteral("--include=/%1channel*.xml").arg(files),
                       QStringLiteral("--exclude=*")} +
           endWithoutSync({m_target.destination(), folder + QLatin1Char('/')});
}

QStringList UploadArguments::placeStages(const QString &keptFolder) const
{
    return place(keptFolder) + QStringList(QStringLiteral("--exclude=*")) +
           end({setFolder(), m_target.destination()});
}

QStringList UploadArguments::placeAll(const QString &keptFolder) const
{
    return place(keptFolder) +
           QStringList{QStringLiteral("--delete-delay"), everythingIn(UploadNames::channelFolder),
                       QStringLiteral("--include=/%1").arg(QLatin1String(UploadNames::markFile)),
                       QStringLiteral("--exclude=*")} +
           end({setFolder(), m_target.destination()});
}

// An empty folder is sent over the hidden one, since rsync has no other way to remove one.
QStringList UploadArguments::cleanUp() const
{
    const QString empty = setFolder() + QLatin1String(UploadNames::emptyFolder) + QLatin1Char('/');
    return plainWords() +
           QStringList{QStringLiteral("--recursive"), QStringLiteral("--delete"),
                       everythingIn(stagingFolder()), QStringLiteral("--exclude=*")} +
           endWithoutSync({empty, m_target.destination()});
}

QStringList UploadArguments::namesInListing(const QByteArray &listing, const char *kinds)
{
    const QRegularExpression line(
        QStringLiteral("^[%1][^\\s]{9,}\\s+[\\d,.]+\\s+[\\d/-]+\\s+[\\d:.]+\\s(.+)$")
            .arg(QLatin1String(kinds)),
        QRegularExpression::MultilineOption);
    QStringList names;
    auto matches = line.globalMatch(QString::fromUtf8(listing));
    while (matches.hasNext())
        names.append(matches.next().captured(1));
    return names;
}

QStringList UploadArguments::place(const QString &keptFolder) const
{
    const QStringList words =
        plainWords() + QStringList{QStringLiteral("--recursive"), QStringLiteral("--checksum"),
                                   QStringLiteral("--chmod=D755,F644"),
                                   everythingIn(UploadNames::stageFolder)};
    if (keptFolder.isEmpty())
        return words + QStringList(QStringLiteral("--link-dest=%1").arg(stagingFolder()));
    // A link would replace what is to be kept; what is new there is copied from beside.
    return words + QStringList{QStringLiteral("--backup"), QStringLiteral("--delay-updates"),
                               QStringLiteral("--backup-dir=%1").arg(keptFolder),
                               QStringLiteral("--copy-dest=%1").arg(stagingFolder())};
}

QStringList UploadArguments::end(const QStringList &paths) const
{
    return m_target.options() + QStringList(QStringLiteral("--")) + paths;
}

// What only reads, or only removes what nobody uses, need not wait for the disk.
QStringList UploadArguments::endWithoutSync(const QStringList &paths) const
{
    QStringList words = end(paths);
    words.removeAll(syncOption);
    return words;
}

QString UploadArguments::stagingFolder() const
{
    return QLatin1String(UploadNames::stagingPrefix) + m_set.sender;
}

QString UploadArguments::setFolder() const
{
    return m_set.folder->path() + QLatin1Char('/');
}

} // namespace Zavo
