#pragma once

#include "exporter/ExportRequest.h"

#include <QCoreApplication>
#include <QSet>

#include <functional>

class KZip;

namespace Zavo {

class ZvChannel;

/// A zip package of a channel file and the stages that it uses, with their pictures, in the folders
/// that they have in a data folder.
class ChannelPackage final
{
    Q_DECLARE_TR_FUNCTIONS(Zavo::ChannelPackage)

public:
    /// Largest sum of the files that a package takes.
    static constexpr qint64 MaximumBytes = qint64(1024) * 1024 * 1024;

    /// @p isCancelled is asked between files.
    ChannelPackage(const QString &dataDir, std::function<bool()> isCancelled);

    /// The package of the channel, which was read from @p channelBytes. A stage that is missing is
    /// a remark; one whose name leads out of the stage folder is a problem, since whoever unpacks
    /// the package would get it there.
    ExportContent of(const ZvChannel &channel, const QByteArray &channelBytes);

private:
    bool addStages(const ZvChannel &channel, KZip *zip);
    bool addStage(const QString &name, KZip *zip);
    bool addPictures(const QString &stagePath, KZip *zip);
    bool addPicture(const QString &stagePath, const QString &source, KZip *zip);
    bool addFile(const QString &source, const QString &path, KZip *zip);
    bool addBytes(const QByteArray &bytes, const QString &path, KZip *zip);
    bool fail(const QString &problem);

    const QString m_stageFolder;
    const std::function<bool()> m_isCancelled;
    ExportContent m_content;
    QSet<QString> m_added; // places in the package
    qint64 m_bytes = 0;
};

} // namespace Zavo
