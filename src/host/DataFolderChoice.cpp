#include "DataFolderChoice.h"

#include "HostNames.h"
#include "ZvEditorConfig.h"
#include "ZvEditorUserConfig.h"

#include <QDir>

namespace Zavo {

QString DataFolderChoice::stored()
{
    const QString folder =
        ZvEditorUserConfig::value(QLatin1String(HostNames::dataFolderKey)).toString();
    return QDir::isAbsolutePath(folder) ? QDir::cleanPath(folder) : QString();
}

void DataFolderChoice::store(const QString &folder)
{
    ZvEditorUserConfig::setValue(QLatin1String(HostNames::dataFolderKey), folder);
    ZvEditorUserConfig::sync();
}

void DataFolderChoice::apply()
{
    if (qEnvironmentVariableIsEmpty("ZAVO_DATA_DIR"))
        ZvEditorConfig::setDataDir(stored());
}

} // namespace Zavo
