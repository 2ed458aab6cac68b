#include "navigation/CheckedSchedules.h"

#include "ZvChannel.h"
#include "navigation/ScheduleListModel.h"

#include <QSet>

namespace Zavo {

ZvScheduleCommonInterface::SelectedType
CheckedSchedules::possibleCommands(const ScheduleListModel &model)
{
    using Interface = ZvScheduleCommonInterface;
    const int rows = model.rowCount();
    const int checked = model.checkedCount();
    if (checked == 0)
        return rows > 0 ? Interface::SelectedType(Interface::SelectedSelectAll)
                        : Interface::SelectedType();
    Interface::SelectedType commands = Interface::SelectedCopy | Interface::SelectedDeselectAll;
    if (checked < rows)
        commands |= Interface::SelectedSelectAll;
    const bool isDefaultAlone =
        checked == 1 && model.isChecked(0) && model.info(0).type() == ZvSchedule::Default;
    if (!isDefaultAlone)
        commands |= Interface::SelectedCut | Interface::SelectedDelete;
    return commands;
}

QList<ZvSchedule> CheckedSchedules::copies(const ScheduleListModel &model, const ZvChannel *channel)
{
    QList<ZvSchedule> checked;
    if (!channel)
        return checked;
    const QList<ZvScheduleBasicInfo> infos = model.checkedInfos();
    QSet<ZvScheduleBasicInfo> wanted(infos.cbegin(), infos.cend());
    const QList<ZvSchedule> &schedules = channel->scheduleList();
    for (const ZvSchedule &schedule : schedules) {
        if (wanted.isEmpty())
            break;
        if (wanted.remove(ZvScheduleBasicInfo(schedule)))
            checked.append(schedule);
    }
    return checked;
}

} // namespace Zavo
