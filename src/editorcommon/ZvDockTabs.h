#pragma once

#include "ZvDockArrangement.h"

#include <QString>

#include <optional>

namespace Zavo {

/// Which docks of a window are tabs of one group, as it is kept in the user's settings. A group
/// whose docks are all hidden cannot be seen; it is taken to be what it was when last stored.
class ZvDockTabs final
{
public:
    /// The tabs of @p window, with the unseen groups stored under @p name.
    static ZvDockTabs of(const QString &name, const QMainWindow &window);

    /// What is stored under @p name, for the docks that @p window holds; nothing if nothing is.
    static std::optional<ZvDockTabs> load(const QString &name, const QMainWindow &window);

    bool holds(QDockWidget *dock) const;
    QVector<ZvDockArrangement::Cell> groups() const { return m_groups; }
    /// The dock in front of each group that has one.
    ZvDockArrangement::Cell fronts() const { return m_fronts; }

    void save(const QString &name) const;

private:
    static ZvDockTabs seenIn(const QMainWindow &window);
    void addUnseen(const ZvDockArrangement::Cell &group, const QMainWindow &window);

    QVector<ZvDockArrangement::Cell> m_groups;
    ZvDockArrangement::Cell m_fronts;
};

} // namespace Zavo
