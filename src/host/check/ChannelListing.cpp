#include "check/ChannelListing.h"

#include "DataFolderCheck.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

namespace Zavo {

namespace {

constexpr int longestChannelNumber = 5;

bool looksLikeChannel(const QString &name)
{
    return name.endsWith(QLatin1String(".xml"), Qt::CaseInsensitive) &&
           !name.startsWith(QLatin1Char('.'));
}

} // namespace

ChannelListing ChannelListing::of(const QString &channelFolder)
{
    ChannelListing listing;
    const QFileInfo folderInfo(channelFolder);
    const QString shownName = QDir::toNativeSeparators(channelFolder);
    if (!folderInfo.isDir()) {
        listing.problem =
            QCoreApplication::translate("Zavo::ChannelListing", "There is no folder \"%1\".")
                .arg(shownName);
        return listing;
    }
    const int error = DataFolderCheck::listWholeFolder(QFile::encodeName(channelFolder));
    if (error != 0) {
        listing.problem = QCoreApplication::translate("Zavo::ChannelListing",
                                                      "The folder \"%1\" cannot be listed: %2.")
                              .arg(shownName, qt_error_string(error));
        return listing;
    }
    const QDir folder(channelFolder);
    const QStringList filters = channelNameFilters();
    listing.channels = folder.entryList(filters, QDir::Files, QDir::Name);
    const QSet<QString> opened(listing.channels.cbegin(), listing.channels.cend());
    const auto kinds = QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot;
    const QStringList all = folder.entryList(kinds, QDir::Name);
    for (const QString &name : all) {
        if (name == basicChannelFileName())
            listing.hasBasicFile = QFileInfo(folder, name).isFile();
        else if (!opened.contains(name) && QDir::match(filters, name))
            listing.noFiles.append(name);
        else if (!opened.contains(name) && looksLikeChannel(name))
            listing.foreignNames.append(name);
    }
    return listing;
}

QStringList channelNameFilters()
{
    QStringList filters;
    for (int length = 1; length <= longestChannelNumber; ++length)
        filters.append(QStringLiteral("channel%1.xml").arg(QString(length, QLatin1Char('?'))));
    return filters;
}

QString basicChannelFileName()
{
    return QStringLiteral("channel.xml");
}

} // namespace Zavo
