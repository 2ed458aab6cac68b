#include "TwoTabs.h"

#include "MessageBoxAnswer.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace Zavo;
using namespace ZavoTest;

namespace {

constexpr int editCount = 1000;
constexpr int dayLength = 24 * 60 * 60; ///< seconds

/// Edits the current tab at random, each time by one step of undo.
class RandomEditor final
{
public:
    RandomEditor(const TwoTabs *tabs, quint32 seed)
        : m_tabs(tabs)
        , m_random(seed)
    {
    }

    /// False if this edit found nothing to do.
    bool edit()
    {
        const int before = area()->undoStack()->count();
        switch (below(12)) {
        case 0:
            showAnySchedule();
            break;
        case 1:
            widget()->createScheduleWithUndo({anyInfo(), anyInfo()});
            break;
        case 2:
            widget()->removeScheduleWithUndo({anyInfo()}, false);
            break;
        case 3:
            pasteSchedules();
            break;
        case 4:
            widget()->onResetTimeTable(anyStage(), bands(0, dayLength, below(8)));
            break;
        case 5:
            changeDefaultStage();
            break;
        case 6:
        case 7:
            insertBands();
            break;
        case 8:
            selectSome();
            widget()->deleteSelectedItems();
            break;
        case 9:
            pasteBands();
            break;
        default:
            moveBand();
            break;
        }
        return area()->undoStack()->count() > before;
    }

private:
    ZvScheduleMainWidget *widget() const { return m_tabs->widget(); }
    ZvScheduleWorkingArea *area() const { return m_tabs->first(); }
    bool isEnabled() const { return area()->isCurrentScheduleEnabled(); }
    int below(int bound) { return bound > 0 ? static_cast<int>(m_random.bounded(bound)) : 0; }
    QString anyStage() { return QStringLiteral("stage%1.xml").arg(below(4)); }

    ZvScheduleBasicInfo anyInfo()
    {
        const QList<ZvScheduleBasicInfo> infos{defaultInfo, mondayInfo,  tuesdayInfo,
                                               sundayInfo,  dateInfo(0), dateInfo(1)};
        return infos.at(below(infos.size()));
    }

    /// Bands on whole seconds, in order, between two seconds of the day; some of them adjoin.
    QList<ZvTime> bands(int from, int to, int count)
    {
        QList<ZvTime> made;
        for (int i = 0; i < count && to - from > 20; ++i) {
            const int start = from + (below(3) == 0 ? 0 : below((to - from) / 4));
            const int end = start + 1 + below((to - start) / 2);
            made.append(ZvTime(timeAt(start), timeAt(end), anyStage()));
            from = end;
        }
        return made;
    }

    static QTime timeAt(int second)
    {
        return second >= dayLength ? TimeAxis::endOfDay() : QTime(0, 0).addSecs(second);
    }

    static int secondOf(QTime time)
    {
        return (time.msecsSinceStartOfDay() + ZvTime::ToleranceMs) / 1000;
    }

    void showAnySchedule() { area()->switchToScheduleInfo(anyInfo(), false); }

    void selectSome()
    {
        QList<int> indices;
        for (int i = 0; i < area()->currentTimes().size(); ++i) {
            if (below(2) == 0)
                indices.append(i);
        }
        m_tabs->select(indices);
    }

    void pasteSchedules()
    {
        widget()->storeCurrentSchedule();
        const ZvScheduleBasicInfo info = anyInfo();
        widget()->removeAndInsertScheduleWithUndo(
            {info}, {scheduleOf(info, anyStage(), bands(0, dayLength, below(6)))});
    }

    void changeDefaultStage()
    {
        const QString before = area()->defaultStageName();
        const QString after = below(3) == 0 ? QString() : anyStage();
        if (!isEnabled() || before == after)
            return;
        area()->setDefaultStageName(after);
        widget()->onDefaultStageNameChangedWithUndo(before, after);
    }

    void insertBands()
    {
        const QList<ZvTime> times = area()->currentTimes();
        const int gap = below(times.size() + 1);
        const int from = gap == 0 ? 0 : secondOf(times.at(gap - 1).endTime());
        const int to = gap == times.size() ? dayLength : secondOf(times.at(gap).startTime());
        const QList<ZvTime> made = bands(from, to, 1 + below(2));
        if (!isEnabled() || made.isEmpty())
            return;
        area()->insertTimeItems(made);
        widget()->onTimeItemInserted(made);
    }

    void pasteBands()
    {
        const int from = below(dayLength - 100);
        const QList<ZvTime> pasted = bands(from, qMin(dayLength, from + 7200), 1 + below(3));
        if (!isEnabled() || pasted.isEmpty())
            return;
        const QList<ZvTime> removed =
            area()->timeItemsInRange(pasted.first().startTime(), pasted.last().endTime());
        area()->removeTimeItems(removed);
        area()->insertTimeItems(pasted);
        widget()->onTimeItemPasted(removed, pasted);
    }

    /// By whole seconds, as far as the neighbours allow.
    void moveBand()
    {
        const int count = area()->currentTimes().size();
        if (!isEnabled() || count == 0)
            return;
        m_tabs->select({below(count)});
        ZvTimeTableTimeItem *item = area()->selectedTimeItems().first();
        item->setY(item->y() + (below(121) - 60));
        item->updateTimeInfo();
        widget()->onItemPropertyChangedByPropertyWidget();
    }

    const TwoTabs *m_tabs;
    QRandomGenerator m_random;
};

} // namespace

/// A long day of editing, taken back step by step and done again.
class tst_UndoRandom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void backAndForth_data();
    void backAndForth();
};

void tst_UndoRandom::backAndForth_data()
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : {1U, 20U, 300U})
        QTest::addRow("seed %u", seed) << seed;
}

void tst_UndoRandom::backAndForth()
{
    QFETCH(quint32, seed);
    const MessageBoxAnswer noBoxes;
    const TwoTabs tabs;
    // The state at every hundredth step, each with its schedule on show.
    const QStringList first = tabs.state();
    QVector<QStringList> milestones;
    RandomEditor editor(&tabs, seed);
    const QUndoStack *stack = tabs.first()->undoStack();
    while (stack->count() < editCount) {
        if (editor.edit() && stack->count() % 100 == 0)
            milestones.append(tabs.state());
    }
    const auto schedules = [](const QStringList &state) { return state.mid(6); };
    for (int round = 0; round < 2; ++round) {
        for (int step = editCount; step > 0; --step) {
            if (step % 100 == 0)
                QCOMPARE(schedules(tabs.state()), schedules(milestones.at(step / 100 - 1)));
            tabs.group()->undo();
        }
        QVERIFY(!tabs.group()->canUndo());
        QCOMPARE(schedules(tabs.state()), schedules(first));
        QVERIFY(!tabs.first()->isChannelChanged());
        for (int step = 1; step <= editCount; ++step) {
            tabs.group()->redo();
            if (step % 100 == 0)
                QCOMPARE(schedules(tabs.state()), schedules(milestones.at(step / 100 - 1)));
        }
        QVERIFY(!tabs.group()->canRedo());
    }
    tabs.first()->switchToScheduleInfo(mondayInfo, false);
    for (int step = 0; step < editCount; ++step)
        tabs.group()->undo();
    tabs.first()->switchToScheduleInfo(mondayInfo, false);
    QCOMPARE(tabs.state(), first);
}

QTEST_MAIN(tst_UndoRandom)
#include "tst_undorandom.moc"
