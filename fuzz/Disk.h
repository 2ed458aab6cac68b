#pragma once

#include "Verdict.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QTemporaryDir>

namespace ZavoFuzz {

/// A folder for the files of a run, in memory where the system has such a place.
class Disk final
{
public:
    Disk()
        : m_folder(QFileInfo::exists(QStringLiteral("/dev/shm"))
                       ? QStringLiteral("/dev/shm/zavo-fuzz-XXXXXX")
                       : QDir::tempPath() + QStringLiteral("/zavo-fuzz-XXXXXX"))
    {
        require(m_folder.isValid(), m_folder.errorString());
    }

    QString path(const QString &name) const { return m_folder.filePath(name); }

    /// Writes a file, with its folders, and returns its path.
    QString write(const QString &name, const QByteArray &bytes) const
    {
        const QString place = path(name);
        QFile file(place);
        QDir().mkpath(QFileInfo(place).path());
        require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), place);
        return place;
    }

private:
    QTemporaryDir m_folder;
};

} // namespace ZavoFuzz
