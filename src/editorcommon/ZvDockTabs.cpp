#include "ZvDockTabs.h"

#include "ZvDockKeys.h"
#include "ZvEditorUserConfig.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QSettings>
#include <QStringList>

#include <algorithm>

namespace Zavo {

namespace {
/// The docks of the window by their names.
QHash<QString, QDockWidget *> namedDocks(const QMainWindow &window)
{
    QHash<QString, QDockWidget *> named;
    const ZvDockArrangement::Cell docks = ZvDockArrangement::of(window).docks();
    for (QDockWidget *dock : docks) {
        if (!dock->objectName().isEmpty())
            named.insert(dock->objectName(), dock);
    }
    return named;
}
} // namespace

ZvDockTabs ZvDockTabs::of(const QString &name, const QMainWindow &window)
{
    ZvDockTabs tabs = seenIn(window);
    if (const std::optional<ZvDockTabs> before = load(name, window)) {
        for (const ZvDockArrangement::Cell &group : before->m_groups)
            tabs.addUnseen(group, window);
    }
    return tabs;
}

ZvDockTabs ZvDockTabs::seenIn(const QMainWindow &window)
{
    ZvDockTabs tabs;
    tabs.m_groups = ZvDockArrangement::of(window).tabGroups();
    for (const ZvDockArrangement::Cell &group : qAsConst(tabs.m_groups)) {
        if (QDockWidget *front = ZvDockArrangement::frontOf(window, group))
            tabs.m_fronts.append(front);
    }
    return tabs;
}

void ZvDockTabs::addUnseen(const ZvDockArrangement::Cell &group, const QMainWindow &window)
{
    ZvDockArrangement::Cell unseen;
    for (QDockWidget *dock : group) {
        const bool isBeside = unseen.isEmpty() ||
                              window.dockWidgetArea(dock) == window.dockWidgetArea(unseen.first());
        if (dock->isHidden() && !holds(dock) && isBeside)
            unseen.append(dock);
    }
    if (unseen.size() > 1)
        m_groups.append(unseen);
}

std::optional<ZvDockTabs> ZvDockTabs::load(const QString &name, const QMainWindow &window)
{
    const QHash<QString, QDockWidget *> docks = namedDocks(window);
    bool isCount = false;
    const int count = ZvEditorUserConfig::value(DockKeys::ofTabs(name, DockKeys::GroupCount))
                          .toString()
                          .toInt(&isCount);
    if (!isCount || count < 0 || count > docks.size())
        return std::nullopt;
    ZvDockTabs tabs;
    for (int i = 1; i <= count; ++i) {
        ZvDockArrangement::Cell group;
        const QStringList names =
            ZvEditorUserConfig::value(DockKeys::ofGroup(name, i, DockKeys::GroupDocks))
                .toStringList();
        for (const QString &dockName : names) {
            QDockWidget *dock = docks.value(dockName);
            if (dock && !group.contains(dock))
                group.append(dock);
        }
        tabs.m_groups.append(group);
        QDockWidget *front = docks.value(
            ZvEditorUserConfig::value(DockKeys::ofGroup(name, i, DockKeys::GroupFront)).toString());
        if (front && group.contains(front))
            tabs.m_fronts.append(front);
    }
    return tabs;
}

bool ZvDockTabs::holds(QDockWidget *dock) const
{
    return std::any_of(
        m_groups.cbegin(), m_groups.cend(),
        [dock](const ZvDockArrangement::Cell &group) { return group.contains(dock); });
}

void ZvDockTabs::save(const QString &name) const
{
    if (QSettings *settings = ZvEditorUserConfig::settings())
        settings->remove(DockKeys::tabs(name));
    ZvEditorUserConfig::setValue(DockKeys::ofTabs(name, DockKeys::GroupCount), m_groups.size());
    for (int i = 1; i <= m_groups.size(); ++i) {
        const ZvDockArrangement::Cell &group = m_groups.at(i - 1);
        QStringList names;
        for (const QDockWidget *dock : group)
            names.append(dock->objectName());
        ZvEditorUserConfig::setValue(DockKeys::ofGroup(name, i, DockKeys::GroupDocks), names);
        const auto front = std::find_if(group.cbegin(), group.cend(), [this](QDockWidget *dock) {
            return m_fronts.contains(dock);
        });
        if (front != group.cend())
            ZvEditorUserConfig::setValue(DockKeys::ofGroup(name, i, DockKeys::GroupFront),
                                         (*front)->objectName());
    }
}

} // namespace Zavo
