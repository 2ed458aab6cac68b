#include "ZvEditorConfig.h"

#include "Path.h"

#include <QStandardPaths>

namespace Zavo {

namespace {
QString &replacedDataDir()
{
    static QString dataDir;
    return dataDir;
}
} // namespace

QString ZvEditorConfig::dataDir()
{
    if (!replacedDataDir().isEmpty())
        return replacedDataDir();
    const QString fromEnvironment = qEnvironmentVariable("ZAVO_DATA_DIR");
    if (!fromEnvironment.isEmpty())
        return fromEnvironment;
    return Path::combine(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation),
                         QStringLiteral("zavo"));
}

void ZvEditorConfig::setDataDir(const QString &dataDir)
{
    replacedDataDir() = dataDir;
}

} // namespace Zavo
