// Everything that a hand can do to the bands of one page, its schedules and its history, in any
// order, against a model that knows nothing but what every place of the history held.
#include "Application.h"
#include "FuzzInput.h"
#include "StripHand.h"
#include "StripHouse.h"
#include "StripLedger.h"
#include "Verdict.h"

#include "ZvChannel.h"
#include "services/UndoCommands.h"
#include "stages/ZvScheduleDefaultStageWidget.h"
#include "timetable/WorkingAreaStatusBar.h"
#include "timetable/ZvScheduleWorkingArea.h"
#include "timetable/ZvTimeTableScene.h"
#include "timetable/ZvTimeTableTimeZoneItem.h"
#include "workspace/ChannelSaver.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QUndoStack>

using namespace Zavo;
using namespace ZavoFuzz;

namespace {

constexpr int MostSteps = 400;
constexpr int DaySeconds = 86400;

class StripStory final
{
public:
    StripStory(StripHouse *house, FuzzInput *input)
        : m_input(input)
        , m_house(*house)
        , m_hand(house)
        , m_ledger(m_house)
        , m_logged(qEnvironmentVariableIsSet("ZAVO_FUZZ_LOG"))
    {
    }

    void run()
    {
        for (int i = 0; i < MostSteps && !m_input->isEmpty(); ++i)
            step();
        m_hand.letGo();
        settle();
        m_ledger.walk();
        m_house.reset();
    }

private:
    void step();
    void useHand(int what);
    void useBands(int what);
    void useSchedules(int what);
    void useHistory(int what);
    void settle();
    void beginCommand();
    void log(const char *what, int detail = 0) const;

    QString stage() { return QStringLiteral("stage%1.xml").arg(m_input->below(4)); }
    QTime time();
    ZvScheduleBasicInfo info();
    QList<ZvTime> times();
    void switchTo(const ZvScheduleBasicInfo &info);
    void drop();
    void pasteSchedules();
    void resetTable();
    void rename();
    void save();

    FuzzInput *m_input;
    StripHouse &m_house;
    StripHand m_hand;
    StripLedger m_ledger;
    bool m_logged;
};

void StripStory::log(const char *what, int detail) const
{
    if (!m_logged)
        return;
    const QList<ZvTime> times = m_house.area()->currentTimes();
    std::fprintf(stderr, "%s %d (place %d, %d bands, %s, type %d)\n", what, detail,
                 m_house.area()->undoStack()->index(), times.size(),
                 times.isEmpty() ? "" : qPrintable(times.first().startTime().toString()),
                 m_house.area()->currentScheduleInfo().type());
}

void StripStory::settle()
{
    QCoreApplication::sendPostedEvents();
    m_ledger.check(m_hand.isBusy());
}

void StripStory::step()
{
    const int what = m_input->below(40);
    if (what < 14)
        useHand(what);
    else if (what < 26)
        useBands(what);
    else if (what < 32)
        useSchedules(what);
    else
        useHistory(what);
    settle();
}

void StripStory::useHand(int what)
{
    log("hand", what);
    if (what < 4)
        m_hand.press(m_input);
    else if (what < 7)
        m_hand.move(m_input);
    else if (what < 9)
        m_hand.release();
    else if (what < 11)
        m_hand.pressKey(m_input);
    else if (what < 12)
        m_hand.releaseKey();
    else if (what < 13)
        m_hand.waitForKeyMove();
    else
        m_hand.stepPanel(m_input);
}

// A command comes by a shortcut or from a menu.
void StripStory::beginCommand()
{
    if (m_input->flag())
        m_hand.strikeShortcut();
    else
        m_hand.leave();
}

void StripStory::useBands(int what)
{
    log("bands", what);
    if (what < 18) {
        drop();
        return;
    }
    beginCommand();
    m_house.setAnswer(m_input->below(4) != 0);
    switch (what) {
    case 18:
        m_house.page()->deleteSelectedItems();
        break;
    case 19:
        m_house.page()->cutSelectedItems();
        break;
    case 20:
        m_house.page()->copySelectedItems();
        break;
    case 21:
    case 22:
        m_house.page()->pasteItems();
        break;
    case 23:
        m_house.page()->selectAllItems();
        break;
    case 24:
        m_house.page()->deselectAllItems();
        break;
    default:
        if (m_input->flag())
            m_house.area()->selectNextTimeItem();
        else
            m_house.area()->selectPreviousTimeItem();
    }
}

void StripStory::useSchedules(int what)
{
    log("schedules", what);
    beginCommand();
    switch (what) {
    case 26:
    case 27:
        switchTo(info());
        break;
    case 28:
        if (m_input->flag())
            m_house.page()->createScheduleByCurrentInfoWithUndo();
        else
            m_house.page()->createScheduleWithUndo({info(), info()});
        break;
    case 29:
        m_house.page()->removeScheduleWithUndo({info(), info()}, false);
        break;
    case 30:
        pasteSchedules();
        break;
    default:
        resetTable();
    }
}

void StripStory::useHistory(int what)
{
    log("history", what);
    beginCommand();
    const int boxes = m_house.boxCount();
    switch (what) {
    case 32:
    case 33:
    case 34:
        for (int i = m_input->below(8); i >= 0; --i)
            m_house.page()->undo();
        break;
    case 35:
    case 36:
        for (int i = m_input->below(8); i >= 0; --i)
            m_house.page()->redo();
        break;
    case 37:
        rename();
        break;
    case 38:
        save();
        break;
    default: {
        auto *scales = m_house.area()->findChild<WorkingAreaStatusBar *>()->scaleComboBox();
        scales->setCurrentIndex(m_input->byte() % scales->count());
    }
    }
    require(m_house.boxCount() == boxes, QStringLiteral("the history asks or complains"));
}

QTime StripStory::time()
{
    return QTime(0, 0).addSecs(static_cast<int>(m_input->word() * double(DaySeconds) / 65536.0));
}

ZvScheduleBasicInfo StripStory::info()
{
    const int which = m_input->below(8);
    if (which < 2)
        return ZvScheduleBasicInfo(ZvSchedule::Default);
    if (which < 5)
        return ZvScheduleBasicInfo(static_cast<Weekday::Days>(which));
    return ZvScheduleBasicInfo(QDate(2099, 12, 26 + which));
}

// In order and without overlaps, as all that reaches a page is.
QList<ZvTime> StripStory::times()
{
    QList<ZvTime> times;
    QTime start = time();
    for (int i = m_input->below(4); i > 0; --i) {
        const int gap = m_input->below(3) * 600;
        const int length = 5 + m_input->byte() * 60;
        const QTime from = start.addSecs(gap);
        const QTime to = from.addSecs(length);
        if (from < start || to < from)
            break;
        times.append(ZvTime(from, to, stage()));
        start = to;
    }
    return times;
}

void StripStory::switchTo(const ZvScheduleBasicInfo &info)
{
    if (info.type() == ZvSchedule::Default)
        m_house.page()->switchToDefaultSchedule();
    else if (info.type() == ZvSchedule::Date)
        m_house.page()->switchToDateSchedule(info.date());
    else
        m_house.page()->switchToDayOfWeekSchedule(static_cast<Qt::DayOfWeek>(info.dayOfWeek()));
}

// A stage comes from another widget or program, which has the focus then.
void StripStory::drop()
{
    m_hand.leave();
    const QTime start = time();
    QStringList names;
    for (int i = m_input->below(3); i >= 0; --i)
        names.append(stage());
    const int box = m_input->byte();
    if (m_hand.holdsButton())
        return;
    if (box % 16 == 0)
        m_house.area()->findChild<ZvScheduleDefaultStageWidget *>()->setStageNameWithUndo(
            box % 32 == 0 ? QString() : names.first());
    else if (m_house.area()->isCurrentScheduleEnabled())
        m_house.zone()->insertStages(start, names);
}

void StripStory::pasteSchedules()
{
    QList<ZvScheduleBasicInfo> removed;
    QList<ZvSchedule> inserted;
    ChannelSaver::storeTable(m_house.area());
    for (int i = m_input->below(3); i >= 0; --i) {
        const ZvScheduleBasicInfo place = info();
        ZvSchedule schedule = place.toSchedule();
        schedule.setTimeList(times());
        if (m_input->flag())
            schedule.setDefaultStage(stage());
        const bool isTwice =
            std::any_of(inserted.cbegin(), inserted.cend(),
                        [&](const ZvSchedule &other) { return other.hasSameKey(schedule); });
        if (schedule.isEmpty() || isTwice)
            continue;
        if (m_house.area()->hasSchedule(place))
            removed.append(place);
        inserted.append(schedule);
    }
    if (!inserted.isEmpty())
        m_house.page()->removeAndInsertScheduleWithUndo(removed, inserted);
}

void StripStory::resetTable()
{
    const QList<ZvTime> newTimes = times();
    const QString defaultStage = stage();
    if (m_house.area()->isCurrentScheduleEnabled())
        m_house.page()->onResetTimeTable(defaultStage, newTimes);
}

void StripStory::rename()
{
    ZvScheduleWorkingArea *area = m_house.area();
    const QString name = QStringLiteral("channel %1").arg(m_input->below(4));
    area->completeMove();
    area->undoStack()->push(new UndoCommand::ChangeChannelName(name, area->channelName(), area));
}

void StripStory::save()
{
    ZvScheduleWorkingArea *area = m_house.area();
    ChannelSaver::storeTable(area);
    area->renewSavedChannel();
    ChannelSaver::storeTable(area);
    require(!area->isChannelChanged(), QStringLiteral("what was just saved is modified"));
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    startApplication();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    static auto *house = new StripHouse;
    FuzzInput input(bytes, size);
    StripStory(house, &input).run();
    return 0;
}
