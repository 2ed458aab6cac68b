#include "ZvEditorConfig.h"

#include "Path.h"
#include "ZvConfig.h"

#include <QStandardPaths>

namespace Zavo {

namespace {
QString &replacedDataDir()
{
    static QString dataDir;
    return dataDir;
}

QString configFile()
{
    return Path::combine(ZvEditorConfig::dataDir(), QStringLiteral("config.ini"));
}

ZvConfig &config()
{
    static ZvConfig instance(configFile());
    return instance;
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

ZvConfig *ZvEditorConfig::getConfig()
{
    if (config().filePath() != configFile())
        reload();
    return &config();
}

void ZvEditorConfig::reload()
{
    config() = ZvConfig(configFile());
}

} // namespace Zavo
