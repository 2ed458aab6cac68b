#pragma once

#include "ZvEditorCommonExport.h"

#include <QString>
#include <QVariant>

class QSettings;

namespace Zavo {

/// The per-user settings of the suite's editors. To be used on the GUI thread.
class ZVEDITORCOMMON_EXPORT ZvEditorUserConfig
{
public:
    ZvEditorUserConfig() = delete;

    /// The settings object: what setSettings() was given, else an INI file in the user's
    /// configuration folder. Null after setSettings(nullptr), and once a given object has died.
    static QSettings *settings();

    /// Replaces the settings object. The caller keeps the ownership; null makes every read give
    /// its default and every write do nothing.
    static void setSettings(QSettings *settings);

    /// Takes the replacement back: settings() is the user's INI file again.
    static void resetSettings();

    /// The value stored under @p key, else @p defaultValue.
    static QVariant value(const QString &key, const QVariant &defaultValue = QVariant());

    /// Stores @p value under @p key. An empty key stores nothing.
    static void setValue(const QString &key, const QVariant &value);

    /// Writes what is not yet on disk, and takes in what other programs wrote.
    static void sync();
};

} // namespace Zavo
