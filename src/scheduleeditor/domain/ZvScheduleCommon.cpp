#include "domain/ZvScheduleCommon.h"

#include "domain/MessageBox.h"
#include "domain/ScheduleText.h"

#include <QAction>
#include <QWidget>

namespace Zavo {

QList<QAction *> ZvScheduleCommon::actionsByObjectName(QWidget *widget, const QStringList &names)
{
    QList<QAction *> found;
    if (!widget)
        return found;
    QStringList wanted = names;
    const QList<QAction *> actions = widget->actions();
    for (QAction *action : actions) {
        if (wanted.isEmpty())
            break;
        if (wanted.removeAll(action->objectName()) > 0)
            found.append(action);
    }
    return found;
}

void ZvScheduleCommon::removeWidgetActions(QWidget *target, QWidget *source)
{
    if (!target || !source)
        return;
    const QList<QAction *> actions = source->actions();
    for (QAction *action : actions)
        target->removeAction(action);
}

QMessageBox::StandardButton ZvScheduleCommon::confirmSchedulePasteCount(QWidget *parent)
{
    return showMessageBox(parent, QMessageBox::Question, tr("Paste Schedule"),
                          tr("The paste destinations is different from the schedules in clipboard "
                             "in number.\nDo you want to continue the Paste?"),
                          QMessageBox::Yes | QMessageBox::No);
}

void ZvScheduleCommon::showCannotPasteMultiple(QWidget *parent)
{
    showMessageBox(parent, QMessageBox::Critical, tr("Cannot Paste"),
                   tr("It is not possible to paste multiple schedules."));
}

QMessageBox::StandardButton
ZvScheduleCommon::confirmScheduleReplace(const QList<ZvScheduleBasicInfo> &infos, QWidget *parent,
                                         bool removed)
{
    const QString removedOr = removed ? tr("removed or ") : QString();
    QString details;
    if (!infos.isEmpty())
        details = tr("The following schedule will be %1replaced.\n\n").arg(removedOr) +
                  numberedTexts(infos);
    return showMessageBox(parent, QMessageBox::Warning, tr("Paste Schedule"),
                          tr("The schedule exists in paste destination. The schedule will be "
                             "%1replaced.\nDo you want to continue?")
                              .arg(removedOr),
                          QMessageBox::Yes | QMessageBox::No, details);
}

} // namespace Zavo
