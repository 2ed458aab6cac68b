#include "upload/UploadTargets.h"

#include "ZvEditorUserConfig.h"
#include "upload/UploadNames.h"

#include <QSet>

namespace Zavo {

QList<ListedTarget> UploadTargets::load()
{
    const QStringList addresses =
        ZvEditorUserConfig::value(QLatin1String(UploadNames::targetsKey)).toStringList();
    const QStringList deselected =
        ZvEditorUserConfig::value(QLatin1String(UploadNames::deselectedTargetsKey)).toStringList();
    QList<ListedTarget> targets;
    QSet<QString> known;
    for (const QString &address : addresses) {
        const UploadTarget target(address);
        if (!target.isValid() || known.contains(target.address()))
            continue;
        known.insert(target.address());
        targets.append({target, !deselected.contains(target.address())});
    }
    return targets;
}

void UploadTargets::store(const QList<ListedTarget> &targets)
{
    QStringList addresses;
    QStringList deselected;
    for (const ListedTarget &listed : targets) {
        addresses.append(listed.target.address());
        if (!listed.selected)
            deselected.append(listed.target.address());
    }
    ZvEditorUserConfig::setValue(QLatin1String(UploadNames::targetsKey), addresses);
    ZvEditorUserConfig::setValue(QLatin1String(UploadNames::deselectedTargetsKey), deselected);
    ZvEditorUserConfig::sync();
}

} // namespace Zavo
