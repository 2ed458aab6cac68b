#include "stages/ZvScheduleStageListView.h"

#include "Path.h"
#include "ZvEditorCommon.h"
#include "ZvEditorConfig.h"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace Zavo {

namespace {

const QLatin1String stageFolderName("stage");
const QLatin1String lineBreak("\r\n");
const QLatin1String uriListFormat("text/uri-list");

QStringList decodedLines(const QByteArray &data)
{
    return QUrl::fromPercentEncoding(data).split(lineBreak, Qt::SkipEmptyParts);
}

bool isBelow(const QString &folder, const QString &path)
{
    return path.size() > folder.size() && path.startsWith(folder, Qt::CaseInsensitive) &&
           path.at(folder.size()) == QLatin1Char('/');
}

// A file that does not exist is judged by the nearest folder above it that does.
bool leavesByLink(const QString &folder, const QString &path)
{
    const QString canonicalFolder = QFileInfo(folder).canonicalFilePath();
    QFileInfo file(path);
    while (isBelow(folder, file.filePath())) {
        if (file.exists())
            return !isBelow(canonicalFolder, file.canonicalFilePath());
        if (file.isSymLink())
            return true;
        file.setFile(file.path());
    }
    return false;
}

} // namespace

QStringList ZvScheduleStageListView::stageSuffixes()
{
    static const QStringList suffixes{QStringLiteral("xml"), QStringLiteral("zstg")};
    return suffixes;
}

QByteArray ZvScheduleStageListView::encodeStageNames(const QStringList &names)
{
    QString text;
    for (const QString &name : names)
        text += name + lineBreak;
    return QUrl::toPercentEncoding(text);
}

QStringList ZvScheduleStageListView::decodeStageNames(const QByteArray &data)
{
    return decodedLines(data);
}

QStringList ZvScheduleStageListView::stageNamesFromUriList(const QByteArray &data,
                                                           bool stageFolderOnly)
{
    const QString root =
        QFileInfo(Path::combine(ZvEditorConfig::dataDir(), stageFolderName)).absoluteFilePath();
    QStringList names;
    const QStringList lines = decodedLines(data);
    for (const QString &line : lines) {
        const QFileInfo file(QUrl(line, QUrl::TolerantMode).toLocalFile());
        if (!stageSuffixes().contains(file.suffix()))
            continue;
        const QString path = file.absoluteFilePath();
        if (isBelow(root, path) && !leavesByLink(root, path))
            names.append(path.mid(root.size() + 1));
        else if (!stageFolderOnly)
            names.append(path);
    }
    return names;
}

bool ZvScheduleStageListView::keepStageNames(const QMimeData *mimeData)
{
    if (!mimeData)
        return false;
    const QStringList names = stageNamesFromUriList(mimeData->data(uriListFormat), true);
    if (names.isEmpty())
        return false;
    // The data of a drag under way are handed out as const, but they are the one place that lasts
    // from the entering of a drop target to the drop.
    const_cast<QMimeData *>(mimeData)->setData(ZvEditorCommon::MIME_TYPE_STAGE_NAME,
                                               encodeStageNames(names));
    return true;
}

QStringList ZvScheduleStageListView::keptStageNames(const QMimeData *mimeData)
{
    return mimeData ? decodeStageNames(mimeData->data(ZvEditorCommon::MIME_TYPE_STAGE_NAME))
                    : QStringList();
}

} // namespace Zavo
