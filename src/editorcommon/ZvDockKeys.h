#pragma once

#include <QString>
#include <QUrl>

/// The keys under which the state of docks is kept in the user's settings.
namespace Zavo::DockKeys {

constexpr char Area[] = "Area";
constexpr char Floating[] = "Floating";
constexpr char Visible[] = "Visible";
constexpr char Geometry[] = "Geometry";
constexpr char Order[] = "Order";
constexpr char Screen[] = "Screen";
constexpr char DpiRatio[] = "DpiRatio";
constexpr char GroupCount[] = "Count";
constexpr char GroupDocks[] = "Docks";
constexpr char GroupFront[] = "Front";

/// A name as a part of a key, whatever characters it holds.
inline QString part(const QString &name)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(name));
}

inline QString ofDock(const QString &dockName, const char *key)
{
    return QStringLiteral("DockWidgets/%1/%2").arg(part(dockName), QLatin1String(key));
}

/// The group that holds all keys of ofTabs() and ofGroup().
inline QString tabs(const QString &name)
{
    return QStringLiteral("DockTabs/%1").arg(part(name));
}

inline QString ofTabs(const QString &name, const char *key)
{
    return QStringLiteral("%1/%2").arg(tabs(name), QLatin1String(key));
}

/// @p number counts from 1.
inline QString ofGroup(const QString &name, int number, const char *key)
{
    return QStringLiteral("%1/%2/%3").arg(tabs(name), QString::number(number), QLatin1String(key));
}

} // namespace Zavo::DockKeys
