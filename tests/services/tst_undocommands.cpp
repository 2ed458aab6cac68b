#include "services/UndoCommands.h"

#include "TwoTabs.h"

#include "MessageBoxAnswer.h"

#include <QtTest>

#include <functional>
#include <memory>

using namespace Zavo;
using namespace ZavoTest;

namespace {

using Change = std::function<void(ZvScheduleMainWidget *)>;
using Command = std::function<QUndoCommand *(ZvScheduleWorkingArea *)>;

const QList<ZvTime> dropped{band("12:00:00", "13:00:00", "x.xml"),
                            band("14:00:00", "14:00:05", "y.xml")};
const QList<ZvTime> pasted{band("08:30:00", "08:45:00", "x.xml"),
                           band("10:15:00", "12:00:00", "y.xml")};

ZvScheduleWorkingArea *page(const ZvScheduleMainWidget *widget)
{
    return widget->currentWorkingArea();
}

void moveSelectedBand(ZvScheduleMainWidget *widget)
{
    for (ZvTimeTableTimeItem *item : page(widget)->selectedTimeItems()) {
        item->setY(item->y() + 30.0);
        item->updateTimeInfo();
    }
    widget->onItemPropertyChangedByPropertyWidget();
}

void pasteBands(ZvScheduleMainWidget *widget)
{
    const QList<ZvTime> inTheWay = mondayBands.mid(0, 2);
    page(widget)->removeTimeItems(inTheWay);
    page(widget)->insertTimeItems(pasted);
    widget->onTimeItemPasted(inTheWay, pasted);
}

/// What each command does to a page, and which bands are selected afterwards: at once, after an
/// undo and a redo in a row, and after an undo and a redo that had to change the schedule.
struct Case
{
    const char *name;
    Change change;
    const char *selected;
    const char *selectedAfterUndo;
    const char *selectedAfterRedo;
    const char *selectedAfterFarUndo;
    const char *selectedAfterFarRedo;
    bool belongsToASchedule = true;
};

// A schedule that is loaded comes with all its bands selected, and what is inserted is selected
// alone.
const std::vector<Case> cases{
    {"ChangeChannelName",
     [](ZvScheduleMainWidget *widget) {
         widget->changeChannelNameWithUndo(0, QStringLiteral("Renamed"));
     },
     "1", "1", "1", "0 1 2", "0 1 2", false},
    {"ChangeDefaultStageName",
     [](ZvScheduleMainWidget *widget) {
         widget->setDefaultStageToCurrentSchedule(QStringLiteral("new.xml"));
         widget->onDefaultStageNameChangedWithUndo(QStringLiteral("mon.xml"),
                                                   QStringLiteral("new.xml"));
     },
     "1", "1", "1", "0 1 2", "0 1 2"},
    {"CreateSchedule",
     [](ZvScheduleMainWidget *widget) {
         widget->createScheduleWithUndo({tuesdayInfo, dateInfo(1), mondayInfo});
     },
     "1", "1", "1", "0 1 2", "0 1 2"},
    {"RemoveSchedule",
     [](ZvScheduleMainWidget *widget) {
         widget->removeScheduleWithUndo({dateInfo(), mondayInfo, defaultInfo}, false);
     },
     "", "0 1 2", "", "0 1 2", ""},
    {"RemoveSchedule of others",
     [](ZvScheduleMainWidget *widget) {
         widget->removeScheduleWithUndo({defaultInfo, sundayInfo}, false);
     },
     "1", "0 1 2", "0 1 2", "0 1 2", "0 1 2"},
    {"PasteSchedule",
     [](ZvScheduleMainWidget *widget) {
         widget->storeCurrentSchedule();
         widget->removeAndInsertScheduleWithUndo(
             {mondayInfo, sundayInfo}, {scheduleOf(mondayInfo, QStringLiteral("p.xml"), pasted),
                                        scheduleOf(tuesdayInfo, QString(), pasted)});
     },
     "0 1", "0 1 2", "0 1", "0 1 2", "0 1"},
    {"PasteSchedule of nothing over something",
     [](ZvScheduleMainWidget *widget) {
         widget->storeCurrentSchedule();
         widget->removeAndInsertScheduleWithUndo({mondayInfo, dateInfo()}, {});
     },
     "", "0 1 2", "", "0 1 2", ""},
    {"InsertTimeItem",
     [](ZvScheduleMainWidget *widget) {
         page(widget)->insertTimeItems(dropped);
         widget->onTimeItemInserted(dropped);
     },
     "2 3", "", "2 3", "0 1 2", "2 3"},
    {"RemoveTimeItem", [](ZvScheduleMainWidget *widget) { widget->deleteSelectedItems(); }, "", "1",
     "", "1", "0 1"},
    {"RemoveTimeItem by a cut",
     [](ZvScheduleMainWidget *widget) { QVERIFY(widget->cutSelectedItems()); }, "", "1", "", "1",
     "0 1"},
    {"PasteTimeItem", pasteBands, "0 1", "0 1", "0 1", "0 1", "0 1"},
    {"MoveTimeItem", moveSelectedBand, "1", "1", "1", "1", "1"},
    {"ResetTimeTable",
     [](ZvScheduleMainWidget *widget) {
         widget->onResetTimeTable(QStringLiteral("reset.xml"), pasted);
     },
     "0 1", "0 1 2", "0 1", "0 1 2", "0 1"},
    {"ResetTimeTable to nothing",
     [](ZvScheduleMainWidget *widget) { widget->onResetTimeTable(QString(), {}); }, "", "0 1 2", "",
     "0 1 2", ""},
};

} // namespace

/// Each command on two real tabs: what it undoes and redoes, on the schedule where it happened and
/// from far away.
class tst_UndoCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void roundTrip_data();
    void roundTrip();
    void roundTripFromAnotherSchedule_data();
    void roundTripFromAnotherSchedule();
    void roundTripFromAnotherTab_data();
    void roundTripFromAnotherTab();
    void roundTripFromAMissingSchedule();
    void switchStoresWhatWasEdited();
    void removedScheduleComesBackWhole();
    void createsTheScheduleOnShow();
    void firstRedo_data();
    void firstRedo();
    void firstRedoOfAReset();
    void noTextsNoIdsNoMerging();
    void replacesEqualBands();

private:
    static void addCases();
    static void comeBack(const TwoTabs &tabs, const Case &row,
                         const ZvScheduleBasicInfo &elsewhere);
};

void tst_UndoCommands::addCases()
{
    QTest::addColumn<int>("number");
    for (size_t i = 0; i < cases.size(); ++i)
        QTest::newRow(cases[i].name) << static_cast<int>(i);
}

/// A step that belongs to a schedule has brought it back; any other leaves on show what was there.
void tst_UndoCommands::comeBack(const TwoTabs &tabs, const Case &row,
                                const ZvScheduleBasicInfo &elsewhere)
{
    if (row.belongsToASchedule)
        return;
    QCOMPARE(tabs.first()->currentScheduleInfo(), elsewhere);
    tabs.first()->switchToScheduleInfo(mondayInfo, false);
}

void tst_UndoCommands::roundTrip_data()
{
    addCases();
}

void tst_UndoCommands::roundTrip()
{
    QFETCH(int, number);
    const Case &row = cases[static_cast<size_t>(number)];
    const MessageBoxAnswer noBoxes;
    const TwoTabs tabs;
    const QStringList before = tabs.state();
    row.change(tabs.widget());
    const QStringList after = tabs.state();
    QVERIFY(after != before);
    QCOMPARE(tabs.selection(), QLatin1String(row.selected));
    QCOMPARE(tabs.first()->undoStack()->count(), 1);
    for (int i = 0; i < 3; ++i) {
        tabs.group()->undo();
        QCOMPARE(tabs.state(), before);
        QCOMPARE(tabs.selection(), QLatin1String(row.selectedAfterUndo));
        QVERIFY(!tabs.first()->isChannelChanged());
        tabs.group()->redo();
        QCOMPARE(tabs.state(), after);
        QCOMPARE(tabs.selection(), QLatin1String(row.selectedAfterRedo));
    }
    QCOMPARE(tabs.first()->undoStack()->count(), 1);
}

void tst_UndoCommands::roundTripFromAnotherSchedule_data()
{
    addCases();
}

void tst_UndoCommands::roundTripFromAnotherSchedule()
{
    QFETCH(int, number);
    const Case &row = cases[static_cast<size_t>(number)];
    const MessageBoxAnswer noBoxes;
    const TwoTabs tabs;
    const QStringList before = tabs.state();
    row.change(tabs.widget());
    const QStringList after = tabs.state();
    tabs.first()->switchToDateSchedule(dateInfo(5).date());
    tabs.group()->undo();
    comeBack(tabs, row, dateInfo(5));
    QCOMPARE(tabs.state(), before);
    QCOMPARE(tabs.selection(), QLatin1String(row.selectedAfterFarUndo));
    tabs.first()->switchToScheduleInfo(sundayInfo, false);
    tabs.group()->redo();
    comeBack(tabs, row, sundayInfo);
    QCOMPARE(tabs.state(), after);
    QCOMPARE(tabs.selection(), QLatin1String(row.selectedAfterFarRedo));
}

void tst_UndoCommands::roundTripFromAnotherTab_data()
{
    addCases();
}

void tst_UndoCommands::roundTripFromAnotherTab()
{
    QFETCH(int, number);
    const Case &row = cases[static_cast<size_t>(number)];
    const MessageBoxAnswer noBoxes;
    TwoTabs tabs;
    const QStringList before = tabs.state();
    row.change(tabs.widget());
    const QStringList after = tabs.state();
    const auto visitTheSecondTab = [&tabs] {
        tabs.main.choice = sundayInfo;
        tabs.main.tabs()->setCurrentIndex(1);
        tabs.widget()->createScheduleByCurrentInfoWithUndo();
        tabs.widget()->onResetTimeTable(QStringLiteral("second.xml"), otherBands);
        tabs.main.tabs()->setCurrentIndex(0);
        tabs.main.choice = mondayInfo;
    };
    visitTheSecondTab();
    const QStringList second = stateOf(tabs.second());
    tabs.group()->undo();
    comeBack(tabs, row, sundayInfo);
    QCOMPARE(tabs.state(), before);
    QCOMPARE(tabs.selection(), QLatin1String(row.selectedAfterFarUndo));
    QVERIFY(!tabs.first()->isChannelChanged());
    QCOMPARE(stateOf(tabs.second()), second);
    visitTheSecondTab();
    tabs.group()->redo();
    comeBack(tabs, row, sundayInfo);
    QCOMPARE(tabs.state(), after);
    QCOMPARE(tabs.selection(), QLatin1String(row.selectedAfterFarRedo));
    QCOMPARE(tabs.first()->undoStack()->count(), 1);
}

// A page that shows a schedule that does not exist is disabled; it must not be stored on the way.
void tst_UndoCommands::roundTripFromAMissingSchedule()
{
    const TwoTabs tabs;
    tabs.widget()->deleteSelectedItems();
    tabs.widget()->removeScheduleWithUndo({mondayInfo}, false);
    const QStringList removed = tabs.state();
    tabs.first()->switchToScheduleInfo(tuesdayInfo, false);
    QVERIFY(!tabs.first()->isCurrentScheduleEnabled());
    tabs.group()->undo();
    tabs.group()->undo();
    QVERIFY(!tabs.first()->hasSchedule(tuesdayInfo));
    QCOMPARE(bandTexts(tabs.first()->currentTimes()), bandTexts(mondayBands));
    tabs.group()->redo();
    tabs.group()->redo();
    QCOMPARE(tabs.state(), removed);
}

void tst_UndoCommands::switchStoresWhatWasEdited()
{
    const TwoTabs tabs;
    tabs.widget()->deleteSelectedItems();
    tabs.first()->switchToDefaultSchedule();
    tabs.first()->insertTimeItems(dropped);
    tabs.group()->undo();
    QCOMPARE(tabs.first()->currentScheduleInfo(), mondayInfo);
    QCOMPARE(bandTexts(tabs.first()->currentTimes()), bandTexts(mondayBands));
    QCOMPARE(bandTexts(tabs.first()->defaultSchedule().timeList()),
             bandTexts(otherBands + dropped));
}

void tst_UndoCommands::removedScheduleComesBackWhole()
{
    const TwoTabs tabs;
    tabs.widget()->removeScheduleWithUndo({dateInfo(), mondayInfo}, false);
    QVERIFY(!tabs.first()->hasSchedule(mondayInfo));
    QVERIFY(!tabs.first()->hasSchedule(dateInfo()));
    tabs.first()->switchToDefaultSchedule();
    tabs.group()->undo();
    QCOMPARE(tabs.first()->currentScheduleInfo(), mondayInfo);
    QVERIFY(tabs.first()->isCurrentScheduleEnabled());
    QCOMPARE(tabs.first()->defaultStageName(), QStringLiteral("mon.xml"));
    QCOMPARE(tabs.first()->weekDaySchedule(Weekday::Monday),
             scheduleOf(mondayInfo, QStringLiteral("mon.xml"), mondayBands));
    QCOMPARE(tabs.first()->dateSchedule(dateInfo().date()),
             scheduleOf(dateInfo(), QString(), otherBands));
}

void tst_UndoCommands::createsTheScheduleOnShow()
{
    const TwoTabs tabs;
    tabs.first()->switchToScheduleInfo(sundayInfo, false);
    const QStringList missing = tabs.state();
    tabs.widget()->createScheduleByCurrentInfoWithUndo();
    const QStringList created = tabs.state();
    QVERIFY(tabs.first()->isCurrentScheduleEnabled());
    tabs.group()->undo();
    QVERIFY(!tabs.first()->isCurrentScheduleEnabled());
    QCOMPARE(tabs.state(), missing);
    tabs.group()->redo();
    QCOMPARE(tabs.state(), created);
}

void tst_UndoCommands::firstRedo_data()
{
    QTest::addColumn<int>("number");
    const char *const names[] = {"ChangeDefaultStageName", "CreateSchedule", "RemoveSchedule",
                                 "PasteSchedule",          "InsertTimeItem", "RemoveTimeItem",
                                 "PasteTimeItem",          "MoveTimeItem"};
    int number = 0;
    for (const char *name : names)
        QTest::newRow(name) << number++;
}

void tst_UndoCommands::firstRedo()
{
    using namespace UndoCommand;
    QFETCH(int, number);
    const TwoTabs tabs;
    ZvScheduleWorkingArea *area = tabs.first();
    const QString name = QStringLiteral("n.xml");
    const QRectF before = tabs.scene()->timeZoneItem()->timeItems().at(0)->itemRect();
    // All belong to another schedule than the one on show.
    const std::vector<Command> commands{
        [&](auto *page) { return new ChangeDefaultStageName(QString(), name, defaultInfo, page); },
        [](auto *page) { return new CreateSchedule({sundayInfo}, defaultInfo, page); },
        [](auto *page) { return new RemoveSchedule({scheduleOf(mondayInfo)}, defaultInfo, page); },
        [](auto *page) {
            return new PasteSchedule({scheduleOf(mondayInfo)}, {scheduleOf(sundayInfo)},
                                     defaultInfo, page);
        },
        [](auto *page) { return new InsertTimeItem(dropped, defaultInfo, page); },
        [](auto *page) { return new RemoveTimeItem(otherBands, defaultInfo, page); },
        [](auto *page) { return new PasteTimeItem(otherBands, dropped, defaultInfo, page); },
        [&](auto *page) {
            return new MoveTimeItem({{0, before.translated(0.0, 300.0)}}, {{0, before}},
                                    defaultInfo, page);
        }};
    const std::unique_ptr<QUndoCommand> command(commands[static_cast<size_t>(number)](area));
    const QStringList untouched = tabs.state();
    command->redo();
    QCOMPARE(tabs.state(), untouched);
    QCOMPARE(tabs.selection(), QStringLiteral("1"));
    command->redo();
    QCOMPARE(area->currentScheduleInfo(), defaultInfo);
    area->switchToScheduleInfo(mondayInfo, false);
    QVERIFY(tabs.state() != untouched);
}

void tst_UndoCommands::firstRedoOfAReset()
{
    const TwoTabs tabs;
    UndoCommand::ResetTimeTable reset(QStringLiteral("mon.xml"), QStringLiteral("r.xml"),
                                      mondayBands, dropped, mondayInfo, tabs.first());
    tabs.first()->switchToDefaultSchedule();
    reset.redo();
    QCOMPARE(tabs.first()->currentScheduleInfo(), mondayInfo);
    QCOMPARE(tabs.first()->defaultStageName(), QStringLiteral("r.xml"));
    QCOMPARE(bandTexts(tabs.first()->currentTimes()), bandTexts(dropped));
    UndoCommand::ChangeChannelName rename(QStringLiteral("Other"), QStringLiteral("First"),
                                          tabs.first());
    rename.redo();
    QCOMPARE(tabs.first()->channelName(), QStringLiteral("Other"));
}

void tst_UndoCommands::noTextsNoIdsNoMerging()
{
    const TwoTabs tabs;
    for (int i = 0; i < 2; ++i) {
        for (const Case &row : cases) {
            tabs.first()->switchToScheduleInfo(mondayInfo, false);
            row.change(tabs.widget());
            tabs.group()->undo();
            tabs.group()->redo();
            tabs.first()->undoStack()->undo();
            const QUndoCommand *command = tabs.first()->undoStack()->command(0);
            QVERIFY(command);
            QCOMPARE(command->text(), QString());
            QCOMPARE(command->actionText(), QString());
            QCOMPARE(command->id(), -1);
            QCOMPARE(command->childCount(), 0);
            tabs.select({1});
        }
    }
    QCOMPARE(tabs.group()->undoText(), QString());
    QCOMPARE(tabs.group()->redoText(), QString());
    const auto rename = [&tabs] {
        tabs.first()->undoStack()->push(new UndoCommand::ChangeChannelName(
            QStringLiteral("a"), QStringLiteral("b"), tabs.first()));
    };
    rename();
    rename();
    QCOMPARE(tabs.first()->undoStack()->count(), 2);
}

// Bands that are equal in all but their place in the list are told apart by their times alone.
void tst_UndoCommands::replacesEqualBands()
{
    const TwoTabs tabs;
    const QList<ZvTime> adjoining{band("00:00:00", "08:00:00", "s.xml"),
                                  band("08:00:00", "16:00:00", "s.xml"),
                                  band("16:00:00", "24:00:00", "s.xml")};
    tabs.widget()->onResetTimeTable(QString(), adjoining);
    tabs.select({0, 2});
    tabs.widget()->deleteSelectedItems();
    QCOMPARE(bandTexts(tabs.first()->currentTimes()), bandTexts({adjoining.at(1)}));
    for (int i = 0; i < 20; ++i) {
        tabs.group()->undo();
        QCOMPARE(bandTexts(tabs.first()->currentTimes()), bandTexts(adjoining));
        QCOMPARE(tabs.selection(), QStringLiteral("0 2"));
        tabs.group()->redo();
    }
    QCOMPARE(bandTexts(tabs.first()->currentTimes()), bandTexts({adjoining.at(1)}));
}

QTEST_MAIN(tst_UndoCommands)
#include "tst_undocommands.moc"
