#include "ZvEditorUserConfig.h"

#include <QPointer>
#include <QSettings>

namespace Zavo {

namespace {
struct Replacement
{
    bool active = false;
    QPointer<QSettings> settings;
};

Replacement &replacement()
{
    static Replacement instance;
    return instance;
}

QSettings *userSettings()
{
    static QSettings instance(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Zavo"),
                              QStringLiteral("ScheduleEditor"));
    return &instance;
}
} // namespace

QSettings *ZvEditorUserConfig::settings()
{
    return replacement().active ? replacement().settings.data() : userSettings();
}

void ZvEditorUserConfig::setSettings(QSettings *settings)
{
    replacement() = {true, settings};
}

void ZvEditorUserConfig::resetSettings()
{
    replacement() = {};
}

QVariant ZvEditorUserConfig::value(const QString &key, const QVariant &defaultValue)
{
    const QSettings *current = settings();
    return current && !key.isEmpty() ? current->value(key, defaultValue) : defaultValue;
}

void ZvEditorUserConfig::setValue(const QString &key, const QVariant &value)
{
    QSettings *current = settings();
    if (current && !key.isEmpty())
        current->setValue(key, value);
}

void ZvEditorUserConfig::sync()
{
    if (QSettings *current = settings())
        current->sync();
}

} // namespace Zavo
