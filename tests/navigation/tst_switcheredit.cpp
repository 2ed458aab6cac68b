#include "SwitcherFixture.h"

#include "MessageBoxAnswer.h"
#include "services/ZvScheduleClipboard.h"

#include <QClipboard>
#include <QGuiApplication>

using namespace Zavo;
using namespace ZavoTest;

namespace {

const QDate day1(2031, 5, 5); // a Monday
const ZvScheduleBasicInfo defaultInfo(ZvSchedule::Default);

QDate day(int number)
{
    return day1.addDays(number - 1);
}

ZvScheduleBasicInfo dayInfo(int number)
{
    return ZvScheduleBasicInfo(day(number));
}

ZvSchedule content(const QString &stage)
{
    return scheduleWith(defaultInfo, stage);
}

// A word for each schedule: where it belongs and its default stage.
QString wordOf(const ZvSchedule &schedule)
{
    const QString date = schedule.date().isValid()
                             ? QString::number(day1.daysTo(schedule.date()) + 1)
                             : QStringLiteral("-");
    return QStringLiteral("%1/%2/%3:%4")
        .arg(int(schedule.type()))
        .arg(int(schedule.dayOfWeek()))
        .arg(date, schedule.defaultStage());
}

QStringList wordsOf(const QList<ZvSchedule> &schedules)
{
    QStringList words;
    for (const ZvSchedule &schedule : schedules)
        words.append(wordOf(schedule));
    return words;
}

QList<ZvScheduleBasicInfo> infosOfDays(const QList<int> &numbers)
{
    QList<ZvScheduleBasicInfo> infos;
    for (int number : numbers)
        infos.append(dayInfo(number));
    return infos;
}

const QString pasteTitle = QStringLiteral("Paste Schedule");
const QString replaceText =
    QStringLiteral("The schedule exists in paste destination. The schedule will be replaced.\nDo "
                   "you want to continue?");
const QString removeText =
    QStringLiteral("The schedule exists in paste destination. The schedule will be removed or "
                   "replaced.\nDo you want to continue?");
const QString countText =
    QStringLiteral("The paste destinations is different from the schedules in clipboard in "
                   "number.\nDo you want to continue the Paste?");

const QString store = QStringLiteral("requestStoreCurrentSchedule");
const QString removal = QStringLiteral("requestRemoveSchedule");
const QString exchange = QStringLiteral("requestRemoveAndInsertSchedule");

/// A switcher with a channel: a default schedule, a Monday and the days 1, 3, 10 and 11.
class EditFixture final : public SwitcherFixture
{
public:
    EditFixture()
    {
        QGuiApplication::clipboard()->clear();
        add(defaultInfo, QStringLiteral("default"));
        add(ZvScheduleBasicInfo(Weekday::Monday), QStringLiteral("monday"));
        for (int number : {1, 3, 10, 11})
            add(dayInfo(number), QStringLiteral("d%1").arg(number));
        switcher->setCurrentChannel(&channel);
        log.clear();
    }

    void selectDays(int first, int last)
    {
        switcher->changeCurrentScheduleSelection(dayInfo(first));
        CalendarMouse mouse(calendar());
        mouse.click(day(first));
        if (last > first)
            mouse.click(day(last), Qt::ShiftModifier);
        mouse.releaseKeys();
        log.clear();
    }
    void selectDay(Weekday::Days weekday)
    {
        switcher->changeCurrentScheduleSelection(ZvScheduleBasicInfo(weekday));
        log.clear();
    }
    void selectDefault()
    {
        switcher->changeCurrentScheduleSelection(defaultInfo);
        log.clear();
    }

    int flags() const { return int(switcher->hasSelectedItems()); }
    QStringList clipboard() const
    {
        return wordsOf(ZvScheduleClipboard::readSchedulesFromClipboard());
    }
    /// What the last request would remove and insert; "remove | insert".
    QList<ZvScheduleBasicInfo> removed() const
    {
        return lastArguments().value(0).value<QList<ZvScheduleBasicInfo>>();
    }
    QStringList inserted() const
    {
        return wordsOf(lastArguments().value(1).value<QList<ZvSchedule>>());
    }

private:
    QVariantList lastArguments() const { return log.arguments(log.names().size() - 1); }
};

void put(const QStringList &stages)
{
    QList<ZvSchedule> list;
    for (const QString &stage : stages)
        list.append(stage.isEmpty() ? ZvSchedule() : content(stage));
    ZvScheduleClipboard::writeSchedulesToClipboard(list);
}

QStringList stages(const char *words)
{
    return QString::fromLatin1(words).split(QLatin1Char(','));
}

} // namespace

/// The edit commands on the switcher, on the real clipboard, with the questions of a paste.
class tst_SwitcherEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void allowsWhatTheSelectionAllows();
    void pastesWhereThereIsAPlace();
    void gathersTheSelection();
    void deletesWithAQuestion();
    void copiesDatesWithTheirGaps();
    void copiesADayAndTheDefault();
    void cutsDates();
    void cutsADayWithoutSchedule();
    void cutsNothingOfTheDefault();
    void selectsNoneAndAllAlike();

    void pasteOfNothing();
    void pastesOverTheDefault();
    void pastesOverADay();
    void refusesSeveralForOne();
    void takesTheOnlyContentForOne();
    void pastesOverDates();
    void pasteRunsOnFromTheFirstDate();
    void pasteAsksAboutTheCount();
    void pasteOfAnEmptyPlaceRemoves();
    void pasteRefusedChangesNothing();
    void pasteOfGapsOverGaps();
    void pasteWithoutAChannel();
    void pasteWithoutASelectedDate();
    void standsItsDeathUnderTheQuestion();
};

void tst_SwitcherEdit::allowsWhatTheSelectionAllows()
{
    EditFixture host;
    host.selectDays(1, 1);
    QCOMPARE(host.flags(), 7);
    host.selectDays(2, 2);
    QCOMPARE(host.flags(), 0);
    host.selectDays(2, 3);
    QCOMPARE(host.flags(), 7);
    host.selectDays(4, 9);
    QCOMPARE(host.flags(), 0);
    host.selectDay(Weekday::Monday);
    QCOMPARE(host.flags(), 7);
    host.selectDay(Weekday::Tuesday);
    QCOMPARE(host.flags(), 0);
    host.selectDefault();
    QCOMPARE(host.flags(), 1);
    host.switcher->onObjectSelected(nullptr);
    QCOMPARE(host.flags(), 0);
}

void tst_SwitcherEdit::pastesWhereThereIsAPlace()
{
    EditFixture host;
    const auto possible = [&host] {
        QString places;
        host.selectDays(2, 2);
        places += host.switcher->isPastingPossible() ? QLatin1String("C") : QLatin1String("-");
        host.selectDay(Weekday::Tuesday);
        places += host.switcher->isPastingPossible() ? QLatin1String("W") : QLatin1String("-");
        host.selectDefault();
        places += host.switcher->isPastingPossible() ? QLatin1String("D") : QLatin1String("-");
        return places;
    };
    QCOMPARE(possible(), QStringLiteral("---"));
    ZvScheduleClipboard::writeTimesToClipboard({{QTime(1, 0), QTime(2, 0), QStringLiteral("a")}});
    QCOMPARE(possible(), QStringLiteral("---"));
    put({QString()});
    QCOMPARE(possible(), QStringLiteral("CWD"));
    host.selectDays(2, 2);
    CalendarMouse(host.calendar()).click(day(2), Qt::ControlModifier);
    QCOMPARE(host.calendar()->selectedDates(), QList<QDate>());
    QVERIFY(!host.switcher->isPastingPossible());
    QCOMPARE(host.flags(), 0);
}

void tst_SwitcherEdit::gathersTheSelection()
{
    EditFixture host;
    host.selectDays(1, 4);
    QCOMPARE(host.switcher->selectedScheduleInfos(), infosOfDays({1, 3}));
    QCOMPARE(wordsOf(host.switcher->selectedSchedules(false)),
             (QStringList{QStringLiteral("2/8/1:d1"), QStringLiteral("2/8/3:d3")}));
    QCOMPARE(wordsOf(host.switcher->selectedSchedules(true)),
             (QStringList{QStringLiteral("2/8/1:d1"), QStringLiteral("0/8/-:"),
                          QStringLiteral("2/8/3:d3"), QStringLiteral("0/8/-:")}));
    host.selectDay(Weekday::Tuesday);
    QCOMPARE(host.switcher->selectedScheduleInfos(),
             QList<ZvScheduleBasicInfo>{ZvScheduleBasicInfo(Weekday::Tuesday)});
    QCOMPARE(wordsOf(host.switcher->selectedSchedules(false)),
             QStringList(QStringLiteral("0/8/-:")));
    host.selectDefault();
    QCOMPARE(host.switcher->selectedScheduleInfos(), QList<ZvScheduleBasicInfo>());
    QCOMPARE(wordsOf(host.switcher->selectedSchedules(false)),
             QStringList(QStringLiteral("1/8/-:default")));
    host.switcher->onObjectSelected(nullptr);
    QVERIFY(host.switcher->selectedSchedules(true).isEmpty());
    QVERIFY(host.switcher->selectedScheduleInfos().isEmpty());
}

void tst_SwitcherEdit::deletesWithAQuestion()
{
    EditFixture host;
    host.selectDays(1, 4);
    host.switcher->deleteSelectedItems();
    QCOMPARE(host.removed(), infosOfDays({1, 3}));
    QCOMPARE(host.log.arguments(0).value(1).toBool(), true);
    QCOMPARE(host.taken(), QStringList{removal});
    host.selectDays(4, 6);
    host.switcher->deleteSelectedItems();
    host.selectDefault();
    host.switcher->deleteSelectedItems();
    QCOMPARE(host.taken(), QStringList());
    host.selectDay(Weekday::Monday);
    host.switcher->deleteSelectedItems();
    QCOMPARE(host.removed(), QList<ZvScheduleBasicInfo>{ZvScheduleBasicInfo(Weekday::Monday)});
}

void tst_SwitcherEdit::copiesDatesWithTheirGaps()
{
    EditFixture host;
    host.selectDays(1, 3);
    QVERIFY(host.switcher->copySelectedItems());
    QCOMPARE(host.taken(), QStringList{store});
    const QList<ZvSchedule> copied = ZvScheduleClipboard::readSchedulesFromClipboard();
    QCOMPARE(copied.size(), 3);
    QCOMPARE(copied.at(0).defaultStage(), QStringLiteral("d1"));
    QVERIFY(copied.at(1).isEmpty());
    QCOMPARE(copied.at(2).defaultStage(), QStringLiteral("d3"));
    CalendarMouse mouse(host.calendar());
    host.selectDays(2, 2);
    mouse.click(day(2), Qt::ControlModifier);
    QCOMPARE(host.calendar()->selectedDates(), QList<QDate>());
    host.log.clear();
    QVERIFY(!host.switcher->copySelectedItems());
    QCOMPARE(host.clipboard().size(), 3);
}

void tst_SwitcherEdit::copiesADayAndTheDefault()
{
    EditFixture host;
    host.selectDay(Weekday::Monday);
    QVERIFY(host.switcher->copySelectedItems());
    QCOMPARE(host.clipboard().size(), 1);
    QVERIFY(host.clipboard().first().endsWith(QStringLiteral(":monday")));
    host.selectDefault();
    QVERIFY(host.switcher->copySelectedItems());
    QVERIFY(host.clipboard().first().endsWith(QStringLiteral(":default")));
    host.switcher->setCurrentChannel(nullptr);
    QVERIFY(host.switcher->copySelectedItems());
    QVERIFY(ZvScheduleClipboard::readSchedulesFromClipboard().first().isEmpty());
    host.switcher->onObjectSelected(nullptr);
    put({QStringLiteral("kept")});
    QVERIFY(!host.switcher->copySelectedItems());
    QVERIFY(host.clipboard().first().endsWith(QStringLiteral(":kept")));
}

void tst_SwitcherEdit::cutsDates()
{
    EditFixture host;
    host.selectDays(2, 3);
    const MessageBoxAnswer noBox;
    QVERIFY(host.switcher->cutSelectedItems());
    QCOMPARE(host.removed(), infosOfDays({3}));
    QCOMPARE(host.log.arguments(1).value(1).toBool(), false);
    QCOMPARE(host.taken(), (QStringList{store, removal}));
    QCOMPARE(host.clipboard().size(), 2);
}

void tst_SwitcherEdit::cutsADayWithoutSchedule()
{
    EditFixture host;
    host.selectDay(Weekday::Tuesday);
    QVERIFY(host.switcher->cutSelectedItems());
    QCOMPARE(host.taken(), (QStringList{store, removal}));
}

void tst_SwitcherEdit::cutsNothingOfTheDefault()
{
    EditFixture host;
    host.selectDefault();
    QVERIFY(host.switcher->cutSelectedItems());
    QCOMPARE(host.taken(), QStringList{store});
    QVERIFY(host.clipboard().first().endsWith(QStringLiteral(":default")));
}

void tst_SwitcherEdit::selectsNoneAndAllAlike()
{
    EditFixture host;
    host.selectDays(1, 3);
    host.switcher->selectAllItems();
    host.switcher->deselectAllItems();
    QCOMPARE(host.calendar()->selectedDates().size(), 3);
    QCOMPARE(host.taken(), QStringList());
}

// Pasting

void tst_SwitcherEdit::pasteOfNothing()
{
    EditFixture host;
    host.selectDays(1, 1);
    QVERIFY(!host.switcher->pasteItems());
    put({QString(), QString()});
    host.selectDefault();
    QVERIFY(!host.switcher->pasteItems());
    QCOMPARE(host.taken(), QStringList{store});
    host.switcher->onObjectSelected(nullptr);
    put({QStringLiteral("a")});
    QVERIFY(!host.switcher->pasteItems());
    QVERIFY(!host.taken().contains(exchange));
}

void tst_SwitcherEdit::pastesOverTheDefault()
{
    EditFixture host;
    host.selectDays(3, 3);
    host.switcher->copySelectedItems();
    host.selectDefault();
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::No)
        .title(pasteTitle)
        .text(removeText)
        .icon(QMessageBox::Warning)
        .buttons(QMessageBox::Yes | QMessageBox::No);
    QVERIFY(!host.switcher->pasteItems());
    QCOMPARE(host.taken(), QStringList{store});
    answer.expect(QMessageBox::Yes).whileShown([](QMessageBox *box) {
        QVERIFY(box->detailedText().isEmpty());
    });
    QVERIFY(host.switcher->pasteItems());
    QCOMPARE(host.removed(), QList<ZvScheduleBasicInfo>{defaultInfo});
    QCOMPARE(host.inserted(), QStringList(QStringLiteral("1/8/-:d3")));
    QCOMPARE(host.taken(), (QStringList{store, exchange}));
}

void tst_SwitcherEdit::pastesOverADay()
{
    EditFixture host;
    put({QStringLiteral("new")});
    host.selectDay(Weekday::Friday);
    MessageBoxAnswer answer;
    QVERIFY(host.switcher->pasteItems());
    QCOMPARE(host.removed(), QList<ZvScheduleBasicInfo>());
    QCOMPARE(host.inserted(), QStringList(QStringLiteral("3/5/-:new")));
    host.selectDay(Weekday::Monday);
    answer.expect(QMessageBox::Yes).title(pasteTitle).text(removeText);
    QVERIFY(host.switcher->pasteItems());
    QCOMPARE(host.removed(), QList<ZvScheduleBasicInfo>{ZvScheduleBasicInfo(Weekday::Monday)});
    QCOMPARE(host.inserted(), QStringList(QStringLiteral("3/1/-:new")));
    host.log.clear();
    answer.expect(QMessageBox::No);
    QVERIFY(!host.switcher->pasteItems());
    QCOMPARE(host.taken(), QStringList{store});
    // The date of a schedule stays, though it means nothing here.
    host.selectDays(3, 3);
    host.switcher->copySelectedItems();
    host.selectDay(Weekday::Friday);
    QVERIFY(host.switcher->pasteItems());
    QCOMPARE(host.inserted(), QStringList(QStringLiteral("3/5/3:d3")));
}

void tst_SwitcherEdit::refusesSeveralForOne()
{
    EditFixture host;
    put(stages("a,b"));
    MessageBoxAnswer answer;
    for (const bool isDefault : {true, false}) {
        if (isDefault)
            host.selectDefault();
        else
            host.selectDay(Weekday::Friday);
        answer.expect(QMessageBox::Ok)
            .title(QStringLiteral("Cannot Paste"))
            .text(QStringLiteral("It is not possible to paste multiple schedules."))
            .icon(QMessageBox::Critical)
            .buttons(QMessageBox::Ok);
        QVERIFY(!host.switcher->pasteItems());
        QCOMPARE(host.taken(), QStringList{store});
    }
}

void tst_SwitcherEdit::takesTheOnlyContentForOne()
{
    EditFixture host;
    put(stages(",b,"));
    host.selectDay(Weekday::Friday);
    const MessageBoxAnswer noBox;
    QVERIFY(host.switcher->pasteItems());
    QCOMPARE(host.inserted(), QStringList(QStringLiteral("3/5/-:b")));
}

void tst_SwitcherEdit::pastesOverDates()
{
    EditFixture host;
    put(stages("a,b"));
    host.selectDays(10, 11);
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Yes)
        .title(pasteTitle)
        .text(replaceText)
        .icon(QMessageBox::Warning)
        .whileShown([](QMessageBox *box) {
            const QStringList lines = box->detailedText().split(QLatin1Char('\n'));
            QCOMPARE(lines.first(), QStringLiteral("The following schedule will be replaced."));
            QVERIFY(lines.at(2).startsWith(QStringLiteral("1: ")));
            QVERIFY(lines.at(3).startsWith(QStringLiteral("2: ")));
        });
    QVERIFY(host.switcher->pasteItems());
    QCOMPARE(host.removed(), infosOfDays({10, 11}));
    QCOMPARE(host.inserted(),
             (QStringList{QStringLiteral("2/1/10:a"), QStringLiteral("2/1/11:b")}));
    QCOMPARE(host.taken(), (QStringList{store, exchange}));
}

void tst_SwitcherEdit::pasteRunsOnFromTheFirstDate()
{
    EditFixture host;
    put(stages("a,b,c"));
    host.selectDays(20, 20);
    CalendarMouse mouse(host.calendar());
    for (int number : {24, 25, 26, 28})
        mouse.click(day(number), Qt::ControlModifier);
    QCOMPARE(host.calendar()->selectedDates().size(), 5);
    const MessageBoxAnswer noBox;
    QVERIFY(host.switcher->pasteItems());
    QCOMPARE(host.removed(), QList<ZvScheduleBasicInfo>());
    QCOMPARE(host.inserted(), (QStringList{QStringLiteral("2/1/20:a"), QStringLiteral("2/1/21:b"),
                                           QStringLiteral("2/1/22:c")}));
}

void tst_SwitcherEdit::pasteAsksAboutTheCount()
{
    EditFixture host;
    put(stages("a,b,c"));
    host.selectDays(20, 21);
    MessageBoxAnswer answer;
    for (const QMessageBox::StandardButton refusal : {QMessageBox::No, QMessageBox::NoButton}) {
        answer.expect(refusal)
            .title(pasteTitle)
            .text(countText)
            .icon(QMessageBox::Question)
            .buttons(QMessageBox::Yes | QMessageBox::No);
        QVERIFY(!host.switcher->pasteItems());
        QCOMPARE(host.taken(), QStringList{store});
    }
    answer.expect(QMessageBox::Yes).text(countText);
    QVERIFY(host.switcher->pasteItems());
    QCOMPARE(host.inserted().size(), 3);
    QCOMPARE(host.inserted().last(), QStringLiteral("2/1/22:c"));
    // Both questions, one after the other.
    host.selectDays(9, 10);
    answer.expect(QMessageBox::Yes).text(countText);
    answer.expect(QMessageBox::Yes).text(replaceText);
    QVERIFY(host.switcher->pasteItems());
    QCOMPARE(host.removed(), infosOfDays({10, 11}));
}

void tst_SwitcherEdit::pasteOfAnEmptyPlaceRemoves()
{
    EditFixture host;
    for (int number : {20, 21, 22})
        host.add(dayInfo(number), QStringLiteral("old"));
    host.switcher->setCurrentChannel(nullptr);
    host.switcher->setCurrentChannel(&host.channel);
    host.selectDays(1, 3);
    QVERIFY(host.switcher->copySelectedItems());
    host.selectDays(20, 22);
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Yes).text(removeText).whileShown([](QMessageBox *box) {
        QVERIFY(box->detailedText().startsWith(
            QStringLiteral("The following schedule will be removed or replaced.\n\n1: ")));
    });
    QVERIFY(host.switcher->pasteItems());
    QCOMPARE(host.removed(), infosOfDays({20, 21, 22}));
    QCOMPARE(host.inserted(),
             (QStringList{QStringLiteral("2/1/20:d1"), QStringLiteral("2/1/22:d3")}));
}

void tst_SwitcherEdit::pasteRefusedChangesNothing()
{
    EditFixture host;
    put(stages("a,,b"));
    host.selectDays(1, 3);
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::No).text(removeText);
    QVERIFY(!host.switcher->pasteItems());
    QCOMPARE(host.taken(), QStringList{store});
}

void tst_SwitcherEdit::pasteOfGapsOverGaps()
{
    EditFixture host;
    put({QString(), QString()});
    host.selectDays(20, 21);
    const MessageBoxAnswer noBox;
    QVERIFY(!host.switcher->pasteItems());
    QCOMPARE(host.taken(), QStringList{store});
}

void tst_SwitcherEdit::pasteWithoutAChannel()
{
    EditFixture host;
    put(stages("a"));
    host.switcher->setCurrentChannel(nullptr);
    host.selectDays(1, 1);
    const MessageBoxAnswer noBox;
    QVERIFY(host.switcher->pasteItems());
    QCOMPARE(host.removed(), QList<ZvScheduleBasicInfo>());
    QCOMPARE(host.inserted(), QStringList(QStringLiteral("2/1/1:a")));
}

void tst_SwitcherEdit::pasteWithoutASelectedDate()
{
    EditFixture host;
    put(stages("a"));
    host.selectDays(1, 1);
    CalendarMouse(host.calendar()).click(day(1), Qt::ControlModifier);
    host.log.clear();
    QVERIFY(!host.switcher->pasteItems());
    QCOMPARE(host.taken(), QStringList{store});
}

void tst_SwitcherEdit::standsItsDeathUnderTheQuestion()
{
    EditFixture host;
    put(stages("a"));
    host.selectDefault();
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Yes).whileShown([&host](QMessageBox *) { host.switcher.reset(); });
    ZvScheduleSwitcherWidget *switcher = host.switcher.get();
    QVERIFY(!switcher->pasteItems());
    QVERIFY(!host.log.names().contains(exchange));
}

QTEST_MAIN(tst_SwitcherEdit)
#include "tst_switcheredit.moc"
