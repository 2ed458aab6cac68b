#pragma once

#include "domain/ZvScheduleBasicInfo.h"

#include <QCoreApplication>
#include <QList>
#include <QMessageBox>
#include <QStringList>

class QAction;
class QWidget;

namespace Zavo {

/// What the widgets that paste schedules and the menu code share. GUI thread only.
class ZvScheduleCommon
{
    Q_DECLARE_TR_FUNCTIONS(Zavo::ZvScheduleCommon)

public:
    ZvScheduleCommon() = delete;

    /// For each of @p names the first action of @p widget with that object name, in the order of
    /// the widget's actions. Empty for a null widget.
    static QList<QAction *> actionsByObjectName(QWidget *widget, const QStringList &names);
    /// Removes every action of @p source from @p target. Nothing happens if one of them is null.
    static void removeWidgetActions(QWidget *target, QWidget *source);

    /// Asks whether to paste although the number of places differs from that of the schedules.
    /// Returns the pressed button, Yes or No.
    static QMessageBox::StandardButton confirmSchedulePasteCount(QWidget *parent);
    static void showCannotPasteMultiple(QWidget *parent);
    /// Asks whether the schedules named by @p infos may be replaced, or, with @p removed, replaced
    /// or removed. Returns the pressed button, Yes or No.
    static QMessageBox::StandardButton
    confirmScheduleReplace(const QList<ZvScheduleBasicInfo> &infos, QWidget *parent, bool removed);
};

} // namespace Zavo
