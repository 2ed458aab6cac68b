#pragma once

#include <QFileInfo>
#include <QString>

namespace Zavo {

/// The copy of the basic channel's file, which goes before its original at a start.
class BasicCopy final
{
public:
    explicit BasicCopy(const QString &dataDir);

    static QString fileName();

    QString filePath() const { return m_path; }
    bool exists() const;

    /// Path of the file of the basic channel itself; empty if there is none that can be read.
    QString originalPath() const;

    /// True if there is a copy and it holds what no channel file holds, or cannot be looked at.
    bool isOutdated() const;

private:
    QFileInfoList channelFiles() const;
    bool isCopyOf(const QString &filePath) const;

    QString m_folder;
    QString m_path;
};

} // namespace Zavo
