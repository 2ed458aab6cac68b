#include "check/StageInspection.h"

#include "Path.h"
#include "ZvStage.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace Zavo {

namespace {

bool leavesStageFolder(const QString &name)
{
    const QString path = QDir::cleanPath(QStringLiteral("stage/") + name);
    return name.contains(QChar::Null) || !path.startsWith(QLatin1String("stage/"));
}

} // namespace

QString StageInspection::problem(const QString &stageFolder, const QString &name)
{
    if (leavesStageFolder(name))
        return tr("The stage \"%1\" does not lie in the stage folder.").arg(name);
    ZvStage stage(Path::combine(stageFolder, name));
    const QFileInfo file(stage.filePath());
    if (!file.exists())
        return file.isSymLink() ? tr("The stage \"%1\" is a link that leads nowhere.").arg(name)
                                : tr("The stage \"%1\" does not exist.").arg(name);
    if (!file.isFile())
        return tr("The stage \"%1\" is not a file.").arg(name);
    if (!stage.readFile())
        return tr("The stage \"%1\" cannot be read.").arg(name);
    const QList<ZvStageItem> items = stage.items();
    const auto lacking = std::count_if(items.cbegin(), items.cend(), [](const ZvStageItem &item) {
        return item.kind == ZvStageItem::Picture && item.picture.isNull();
    });
    if (lacking == 0)
        return {};
    return tr("The stage \"%1\" lacks %n of its pictures.", nullptr, static_cast<int>(lacking))
        .arg(name);
}

} // namespace Zavo
