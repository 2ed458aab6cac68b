#include "stages/GeneratedStage.h"

#include "storage/BoundedFile.h"
#include "storage/DurableFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace Zavo {

namespace {

const QLatin1String generatedMark("_d_.");
constexpr int largestStageBytes = 1 << 30;

bool copyStage(const QString &source, const QString &target)
{
    QByteArray content;
    if (!BoundedFile::read(source, largestStageBytes, &content) ||
        !DurableFile::write(target, content))
        return false;
    // A file system without permissions holds the copy all the same.
    QFile::setPermissions(target, QFile::permissions(source));
    return true;
}

} // namespace

QString GeneratedStage::namePattern()
{
    return QStringLiteral(".*\\._d_\\..*");
}

bool GeneratedStage::isGenerated(const QString &stageName)
{
    return QFileInfo(stageName).completeSuffix().contains(generatedMark);
}

QString GeneratedStage::nameFor(const QString &stageName)
{
    const QFileInfo info(stageName);
    return info.baseName() + QLatin1Char('.') + generatedMark + info.completeSuffix();
}

GeneratedStage::Result GeneratedStage::write(const QString &folder, const QString &stageName)
{
    const QDir dir(folder);
    const QFileInfo target(dir.absoluteFilePath(nameFor(stageName)));
    const bool isTaken = target.exists() || target.isSymLink();
    if (isTaken && !QFile::remove(target.filePath()))
        return OldNotRemoved;
    return copyStage(dir.absoluteFilePath(stageName), target.filePath()) ? Written : NotWritten;
}

} // namespace Zavo
