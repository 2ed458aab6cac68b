#include "StripLedger.h"

#include "StripHouse.h"
#include "Verdict.h"

#include "storage/ChannelFile.h"
#include "timetable/ZvScheduleWorkingArea.h"
#include "timetable/ZvTimeTableScene.h"
#include "timetable/ZvTimeTableTimeItem.h"
#include "timetable/ZvTimeTableTimeZoneItem.h"

#include <QCoreApplication>
#include <QStringList>
#include <QUndoStack>

#include <typeinfo>

using namespace Zavo;

namespace ZavoFuzz {

namespace {

QString timeText(const ZvTime &time)
{
    const auto format = QStringLiteral("HH:mm:ss.zzz");
    return QStringLiteral("%1-%2 %3")
        .arg(time.startTime().toString(format), time.endTime().toString(format), time.stageName());
}

QString contentText(const ZvChannel &channel)
{
    QStringList lines{channel.name()};
    const QList<ZvSchedule> &list = channel.scheduleList();
    for (const ZvSchedule &schedule : list) {
        lines.append(QStringLiteral(" schedule %1 %2 %3 default \"%4\"")
                         .arg(schedule.type())
                         .arg(static_cast<int>(schedule.dayOfWeek()))
                         .arg(schedule.date().toString(Qt::ISODate), schedule.defaultStage()));
        const QList<ZvTime> &times = schedule.timeList();
        for (const ZvTime &time : times)
            lines.append(QStringLiteral("  ") + timeText(time));
    }
    return lines.join(QLatin1Char('\n'));
}

QString listing(const QUndoStack &stack)
{
    QStringList names;
    for (int i = 0; i < stack.count(); ++i) {
        const QUndoCommand &command = *stack.command(i);
        names.append(QLatin1String(typeid(command).name()));
    }
    return names.join(QLatin1Char(' '));
}

} // namespace

StripLedger::StripLedger(const StripHouse &house)
    : m_house(house)
{
    m_contents.emplace_back(house.content());
}

void StripLedger::checkBands() const
{
    const QList<ZvTimeTableTimeItem *> items = m_house.zone()->timeItems();
    for (int i = 0; i < items.size(); ++i) {
        const ZvTimeTableTimeItem *item = items.at(i);
        const ZvTimeTableTimeItem *previous = i > 0 ? items.at(i - 1) : nullptr;
        const ZvTimeTableTimeItem *next = i + 1 < items.size() ? items.at(i + 1) : nullptr;
        const QString name = QStringLiteral("band %1 (%2)").arg(i).arg(timeText(item->timeInfo()));
        require(item->index() == i, name + QStringLiteral(" has another number"));
        require(item->previousItem() == previous && item->nextItem() == next,
                name + QStringLiteral(" is not linked to its neighbours"));
        require(item->startTime().isValid() && item->endTime() >= item->startTime(),
                name + QStringLiteral(" has no time"));
        if (!previous)
            continue;
        const QString before = timeText(previous->timeInfo());
        require(item->startTime() >= previous->startTime(),
                name + QStringLiteral(" stands behind ") + before);
        require(previous->endTime().msecsTo(item->startTime()) >= -ZvTime::ToleranceMs,
                name + QStringLiteral(" begins before the end of ") + before);
    }
}

void StripLedger::checkSelection() const
{
    require(m_house.scene()->selectedTimeItems() == m_house.zone()->selectedTimeItems(),
            QStringLiteral("the selection is not what is noted"));
}

void StripLedger::checkContent()
{
    const QUndoStack &stack = *m_house.area()->undoStack();
    const auto place = static_cast<size_t>(stack.index());
    std::vector<const QUndoCommand *> commands;
    for (int i = 0; i < stack.count(); ++i)
        commands.push_back(stack.command(i));
    // What was done anew in the place of undone steps leads to contents of its own.
    size_t same = 0;
    while (same < commands.size() && same < m_commands.size() && commands[same] == m_commands[same])
        ++same;
    if (same < m_commands.size())
        m_contents.resize(qMin(same + 1, m_contents.size()));
    m_contents.resize(commands.size() + 1);
    m_commands = commands;

    const ZvChannel content = m_house.content();
    std::optional<ZvChannel> &noted = m_contents[place];
    if (!noted)
        noted = content;
    require(content.isMatch(*noted, false, false),
            QStringLiteral("place %1 of %2 in the history held\n%3\nand now holds\n%4")
                .arg(place)
                .arg(listing(stack), contentText(*noted), contentText(content)));
}

void StripLedger::check(bool isInGesture)
{
    checkBands();
    if (!isInGesture) {
        checkSelection();
        checkContent();
    }
}

void StripLedger::go(int place)
{
    const int boxes = m_house.boxCount();
    m_house.area()->undoStack()->setIndex(place);
    QCoreApplication::sendPostedEvents();
    require(m_house.boxCount() == boxes, QStringLiteral("the history asks or complains"));
    check(false);
}

void StripLedger::walk()
{
    const int count = m_house.area()->undoStack()->count();
    for (int place = m_house.area()->undoStack()->index(); place >= 0; --place)
        go(place);
    for (int place = 0; place <= count; ++place)
        go(place);
    for (int place = count; place >= 0; --place)
        go(place);
    QByteArray bytes;
    const ZvChannel content = m_house.content();
    require(ChannelFile::serialize(
                {content.id(), content.index(), content.name(), content.scheduleList()}, &bytes),
            QStringLiteral("the channel cannot be written"));
}

} // namespace ZavoFuzz
