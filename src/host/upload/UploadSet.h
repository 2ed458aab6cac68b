#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

namespace Zavo {

/// What one upload brings to all of its targets: a copy of the channel files and of what they use,
/// made when the upload began. The folder goes with the last record that shares it.
struct UploadSet
{
    std::shared_ptr<QTemporaryDir> folder; ///< holds "channel", "stage" and the mark
    QString origin;                        ///< the data folder, without links
    QString sender;                        ///< a word that stands for this machine and data folder
    int channelCount = 0;
    int stageCount = 0;
    int pictureCount = 0;
    qint64 bytes = 0;
    QStringList remarks; ///< what was not found, a sentence each
    QString problem;     ///< why there is nothing to upload; empty if the set is complete
};

} // namespace Zavo
