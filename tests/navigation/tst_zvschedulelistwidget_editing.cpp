#include "navigation/ZvScheduleListWidget.h"

#include "ScheduleListEditing.h"
#include "services/ZvScheduleClipboard.h"

#include <QContextMenuEvent>

using namespace Zavo;
using namespace ZavoTest;

namespace {

QStringList stagesOf(const Schedules &schedules)
{
    QStringList stages;
    for (const ZvSchedule &schedule : schedules)
        stages.append(schedule.defaultStage());
    return stages;
}

} // namespace

/// The edit commands of the schedule list, its menu and its dialogs.
class tst_ZvScheduleListWidgetEditing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhatIsPossible_data();
    void tellsWhatIsPossible();
    void selectsAllAndNone();
    void marksAreReportedOnce();

    void copiesWhatIsChecked();
    void copyReadsTheStoredTable();
    void copyOfNothing();
    void copyKeyLeavesTheClipboardAlone();
    void cutLeavesTheDefaultSchedule();
    void cutOfNothing();
    void deletesWhatIsChecked();
    void deleteKeepsTheDefaultSchedule();
    void deleteOfNothing();

    void createsASchedule();
    void createsByShortcut();
    void creationCancelled();
    void creationOfATakenDate();
    void channelGoesUnderTheDialog();
    void standsItsDeathUnderADialog();

    void menuHoldsTheEditActions();
    void contextMenu();
    void menuAsksForTheState();

    void activationOfARowReportsIt();
    void rowIsSelectedInFull();
    void namesOfSchedules();
    void otherViewKeepsRowsAndMarks();
};

void tst_ZvScheduleListWidgetEditing::tellsWhatIsPossible_data()
{
    QTest::addColumn<Infos>("schedules");
    QTest::addColumn<QList<int>>("checked");
    QTest::addColumn<int>("flags");
    const Infos two{defaultInfo, dayInfo(1)};
    QTest::newRow("no row") << Infos() << QList<int>() << 0;
    QTest::newRow("none of one") << Infos{defaultInfo} << QList<int>() << 8;
    QTest::newRow("none of two") << two << QList<int>() << 8;
    QTest::newRow("default of one") << Infos{defaultInfo} << QList<int>{0} << 17;
    QTest::newRow("default of two") << two << QList<int>{0} << 25;
    QTest::newRow("day of two") << two << QList<int>{1} << 31;
    QTest::newRow("all of two") << two << QList<int>{0, 1} << 23;
    QTest::newRow("day alone") << Infos{dayInfo(1)} << QList<int>{0} << 23;
    QTest::newRow("two of three") << two + Infos{juneInfo(1)} << QList<int>{0, 2} << 31;
}

void tst_ZvScheduleListWidgetEditing::tellsWhatIsPossible()
{
    QFETCH(Infos, schedules);
    QFETCH(QList<int>, checked);
    ScheduleListFixture fixture(schedules);
    fixture.showChannel();
    fixture.check(checked);
    QTEST(int(fixture.list.hasSelectedItems()), "flags");
}

void tst_ZvScheduleListWidgetEditing::selectsAllAndNone()
{
    EditingFixture fixture;
    fixture.model()->item(0)->setCheckState(Qt::PartiallyChecked);
    fixture.list.selectAllItems();
    QCOMPARE(fixture.checkedRows(), QList<int>({0, 1, 2, 3, 4}));
    QCOMPARE(int(fixture.list.hasSelectedItems()), 23);
    fixture.model()->item(0)->setCheckState(Qt::PartiallyChecked);
    fixture.list.deselectAllItems();
    for (int row = 0; row < 5; ++row)
        QCOMPARE(fixture.model()->item(row)->checkState(), Qt::Unchecked);
    QCOMPARE(fixture.log.names(), QStringList());
    QCOMPARE(fixture.selectedRows(), QList<int>{0});
}

void tst_ZvScheduleListWidgetEditing::marksAreReportedOnce()
{
    EditingFixture fixture;
    SignalLog marks;
    marks.watch(fixture.model(), SIGNAL(checkMarksChanged()));
    fixture.list.selectAllItems();
    QCOMPARE(marks.names().size(), 1);
    fixture.click(fixture.markOf(2));
    QCOMPARE(marks.names().size(), 2);
    fixture.list.onScheduleStageCountChanged(dayInfo(1), 8);
    fixture.click(fixture.middleOf(3, 0));
    QCOMPARE(marks.names().size(), 2);
    fixture.list.onScheduleRemoved({}, defaultInfo);
    QCOMPARE(marks.names().size(), 3);
}

void tst_ZvScheduleListWidgetEditing::copiesWhatIsChecked()
{
    EditingFixture fixture;
    fixture.check({4, 0, 2});
    QVERIFY(fixture.list.copySelectedItems());
    QCOMPARE(fixture.log.names(), QStringList{QStringLiteral("requestStoreCurrentSchedule")});
    const Schedules copied = ZvScheduleClipboard::readSchedulesFromClipboard();
    QCOMPARE(stagesOf(copied),
             QStringList({QString(), QStringLiteral("three.xml"), QStringLiteral("five.xml")}));
    QCOMPARE(copied.first().timeList().size(), 2);
    QCOMPARE(copied.last().date(), dayOfJune(5));
    QCOMPARE(fixture.checkedRows(), QList<int>({0, 2, 4}));
}

void tst_ZvScheduleListWidgetEditing::copyReadsTheStoredTable()
{
    EditingFixture fixture;
    fixture.check({1});
    connect(&fixture.list, &ZvScheduleListWidget::requestStoreCurrentSchedule, &fixture.list,
            [&fixture] { fixture.channel.insertSchedule(scheduleOf(dayInfo(1), 7)); });
    QVERIFY(fixture.list.copySelectedItems());
    const Schedules copied = ZvScheduleClipboard::readSchedulesFromClipboard();
    QCOMPARE(copied.value(0).timeList().size(), 7);
}

void tst_ZvScheduleListWidgetEditing::copyOfNothing()
{
    EditingFixture fixture;
    QGuiApplication::clipboard()->setText(QStringLiteral("kept"));
    fixture.model()->item(1)->setCheckState(Qt::PartiallyChecked);
    QVERIFY(!fixture.list.copySelectedItems());
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("kept"));
    fixture.check({1});
    fixture.list.setCurrentChannel(nullptr);
    QVERIFY(!fixture.list.copySelectedItems());
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("kept"));
}

void tst_ZvScheduleListWidgetEditing::copyKeyLeavesTheClipboardAlone()
{
    EditingFixture fixture;
    fixture.check({2});
    QVERIFY(fixture.list.copySelectedItems());
    fixture.click(fixture.middleOf(3, 0));
    QTest::keyClick(fixture.view(), Qt::Key_C, Qt::ControlModifier);
    QVERIFY(ZvScheduleClipboard::hasScheduleData());
}

void tst_ZvScheduleListWidgetEditing::cutLeavesTheDefaultSchedule()
{
    EditingFixture fixture;
    fixture.check({0, 1, 3});
    QVERIFY(fixture.list.cutSelectedItems());
    QCOMPARE(fixture.log.names(), QStringList({QStringLiteral("requestStoreCurrentSchedule"),
                                               QStringLiteral("requestRemoveSchedule")}));
    QCOMPARE(fixture.infos(1), Infos({dayInfo(1), juneInfo(4)}));
    QCOMPARE(fixture.log.arguments(1).value(1).toBool(), false);
    QCOMPARE(ZvScheduleClipboard::readSchedulesFromClipboard().size(), 3);
}

void tst_ZvScheduleListWidgetEditing::cutOfNothing()
{
    EditingFixture fixture;
    QVERIFY(!fixture.list.cutSelectedItems());
    QCOMPARE(fixture.log.count(QStringLiteral("requestRemoveSchedule")), 0);
    QVERIFY(!ZvScheduleClipboard::hasScheduleData());

    // Nothing of the default schedule goes, but it can be pasted.
    fixture.check({0});
    QVERIFY(fixture.list.cutSelectedItems());
    QCOMPARE(fixture.infos(2), Infos());
    QCOMPARE(ZvScheduleClipboard::readSchedulesFromClipboard().size(), 1);
}

void tst_ZvScheduleListWidgetEditing::deletesWhatIsChecked()
{
    EditingFixture fixture;
    fixture.check({2, 4});
    fixture.list.deleteSelectedItems();
    QCOMPARE(fixture.log.names(), QStringList({QStringLiteral("selectedScheduleChanged"),
                                               QStringLiteral("requestRemoveSchedule")}));
    QCOMPARE(fixture.log.arguments(0).value(0).value<ZvScheduleBasicInfo>(), juneInfo(3));
    QCOMPARE(fixture.infos(1), Infos({juneInfo(3), juneInfo(5)}));
    QCOMPARE(fixture.log.arguments(1).value(1).toBool(), true);
}

void tst_ZvScheduleListWidgetEditing::deleteKeepsTheDefaultSchedule()
{
    EditingFixture fixture;
    fixture.check({0});
    fixture.list.deleteSelectedItems();
    QCOMPARE(fixture.model()->item(0)->checkState(), Qt::PartiallyChecked);
    QCOMPARE(fixture.log.names(), QStringList());
    QCOMPARE(int(fixture.list.hasSelectedItems()), 8);

    fixture.list.selectAllItems();
    fixture.list.deleteSelectedItems();
    QCOMPARE(fixture.model()->item(0)->checkState(), Qt::PartiallyChecked);
    QCOMPARE(fixture.infos(1), Infos({dayInfo(1), juneInfo(3), juneInfo(4), juneInfo(5)}));
    const Infos removed = fixture.infos(1);
    for (const ZvScheduleBasicInfo &info : removed)
        fixture.channel.removeSchedule(info.toSchedule());
    fixture.list.onScheduleRemoved(removed, dayInfo(1));
    QCOMPARE(fixture.model()->rowCount(), 1);
    QCOMPARE(fixture.model()->item(0)->checkState(), Qt::Unchecked);
    // A click makes a mark of the half one.
    fixture.model()->item(0)->setCheckState(Qt::PartiallyChecked);
    fixture.click(fixture.markOf(0));
    QCOMPARE(fixture.checkedRows(), QList<int>{0});
}

void tst_ZvScheduleListWidgetEditing::deleteOfNothing()
{
    EditingFixture fixture;
    fixture.list.deleteSelectedItems();
    QCOMPARE(fixture.log.names(), QStringList());
    QCOMPARE(fixture.model()->item(0)->checkState(), Qt::Unchecked);
}

void tst_ZvScheduleListWidgetEditing::createsASchedule()
{
    EditingFixture fixture;
    fixture.list.selectSchedule(juneInfo(3));
    fixture.log.clear();
    connect(&fixture.list, &ZvScheduleListWidget::requestCreateSchedule, &fixture.list,
            [&fixture](const Infos &infos) {
                const int index = fixture.channel.insertSchedule(infos.first().toSchedule());
                fixture.list.onScheduleCreated({index}, fixture.onTable);
            });
    DialogAnswer<Dialog> answer([](Dialog *dialog) {
        QCOMPARE(dialog->windowTitle(), QStringLiteral("Create Schedule"));
        QCOMPARE(dialog->selectedInfo(), juneInfo(6));
        accept(dialog);
    });
    fixture.newAction()->trigger();
    QVERIFY(answer.hasCome());
    QCOMPARE(fixture.log.count(QStringLiteral("requestCreateSchedule")), 1);
    QCOMPARE(fixture.infos(0), Infos{juneInfo(6)});
    QCOMPARE(fixture.list.currentRowInfo(), juneInfo(6));
    QCOMPARE(fixture.list.findChildren<Dialog *>().size(), 0);
}

void tst_ZvScheduleListWidgetEditing::createsByShortcut()
{
    EditingFixture fixture;
    fixture.list.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fixture.list));
    QCOMPARE(fixture.newAction()->shortcut(), QKeySequence(QKeySequence::New));
    fixture.list.selectSchedule(dayInfo(1));
    fixture.log.clear();
    DialogAnswer<Dialog> answer([](Dialog *dialog) {
        QTest::mouseClick(SpecifyDialogParts(dialog).day(6), Qt::LeftButton);
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    QTest::keyClick(fixture.view(), Qt::Key_N, Qt::ControlModifier);
    QVERIFY(answer.hasCome());
    QCOMPARE(fixture.log.names().first(), QStringLiteral("requestCreateSchedule"));
    QCOMPARE(fixture.infos(0), Infos{dayInfo(6)});
}

void tst_ZvScheduleListWidgetEditing::creationCancelled()
{
    EditingFixture fixture;
    fixture.check({1});
    for (int i = 0; i < 3; ++i) {
        DialogAnswer<Dialog> answer(cancel);
        fixture.newAction()->trigger();
        QVERIFY(answer.hasCome());
        QCOMPARE(fixture.list.findChildren<Dialog *>().size(), 1);
    }
    QCOMPARE(fixture.log.names(), QStringList());
    QCOMPARE(fixture.checkedRows(), QList<int>{1});
    QCOMPARE(fixture.selectedRows(), QList<int>{0});
}

void tst_ZvScheduleListWidgetEditing::creationOfATakenDate()
{
    EditingFixture fixture;
    fixture.boxes.expect(QMessageBox::Ok).title(QStringLiteral("New Schedule"));
    DialogAnswer<Dialog> answer([](Dialog *dialog) {
        QTest::mouseClick(SpecifyDialogParts(dialog).button("Type_Date"), Qt::LeftButton);
        dialog->setDate(dayOfJune(4));
        accept(dialog);
        QVERIFY(dialog->isVisible());
        dialog->setDate(dayOfJune(14));
        accept(dialog);
    });
    fixture.newAction()->trigger();
    QCOMPARE(fixture.infos(0), Infos{juneInfo(14)});
}

void tst_ZvScheduleListWidgetEditing::channelGoesUnderTheDialog()
{
    EditingFixture fixture;
    DialogAnswer<Dialog> creating([&](Dialog *) { fixture.list.setCurrentChannel(nullptr); });
    fixture.newAction()->trigger();
    QVERIFY(creating.hasCome());
    fixture.showChannel();
    ZvScheduleClipboard::writeSchedulesToClipboard({scheduleOf(defaultInfo, 1)});
    QVERIFY(!fixture.paste([&](Dialog *) { fixture.list.setCurrentChannel(nullptr); }));
    QCOMPARE(fixture.log.count(QStringLiteral("requestCreateSchedule")), 0);
    QCOMPARE(fixture.log.count(QStringLiteral("requestRemoveAndInsertSchedule")), 0);
}

void tst_ZvScheduleListWidgetEditing::standsItsDeathUnderADialog()
{
    ZvChannel channel(QStringLiteral("/nowhere/channel1.xml"));
    channel.insertSchedule(defaultInfo.toSchedule());
    ZvScheduleClipboard::writeSchedulesToClipboard({scheduleOf(defaultInfo, 1)});
    const auto newList = [&channel] {
        auto *list = new ZvScheduleListWidget;
        list->setCurrentChannel(&channel);
        list->show();
        return list;
    };
    QPointer<ZvScheduleListWidget> list = newList();
    {
        DialogAnswer<Dialog> answer([&list](Dialog *) { delete list; });
        QVERIFY(!list->pasteItems());
        QVERIFY(answer.hasCome());
    }
    list = newList();
    {
        DialogAnswer<Dialog> answer([&list](Dialog *) { delete list; });
        list->findChild<QAction *>(QStringLiteral("Action_New_Schedule"))->trigger();
        QVERIFY(!list);
    }
    list = newList();
    MessageBoxAnswer boxes;
    boxes.expect(QMessageBox::NoButton).whileShown([&list](QMessageBox *) {
        QTimer::singleShot(0, qApp, [&list] { delete list; });
    });
    DialogAnswer<Dialog> answer(accept);
    QVERIFY(!list->pasteItems());
    QTRY_VERIFY(!list);
}

void tst_ZvScheduleListWidgetEditing::menuHoldsTheEditActions()
{
    EditingFixture fixture;
    const auto texts = [&fixture] {
        QStringList names;
        const QList<QAction *> actions = fixture.menu()->actions();
        for (const QAction *action : actions)
            names.append(action->isSeparator() ? QStringLiteral("-") : action->text());
        return names;
    };
    const QString create = QStringLiteral("&New Schedule...");
    QMenu edit;
    edit.addAction(QStringLiteral("Copy"));
    edit.addSeparator();
    edit.addAction(QStringLiteral("Paste"));
    fixture.list.setEditMenu(&edit);
    fixture.list.setEditMenu(&edit);
    QCOMPARE(texts(), QStringList({create, QStringLiteral("-"), QStringLiteral("Copy"),
                                   QStringLiteral("-"), QStringLiteral("Paste")}));
    auto *other = new QMenu;
    other->addAction(QStringLiteral("Cut"));
    fixture.list.setEditMenu(other);
    QCOMPARE(texts(), QStringList({create, QStringLiteral("-"), QStringLiteral("Cut")}));
    delete other;
    QCOMPARE(texts(), QStringList({create, QStringLiteral("-")}));
    fixture.list.setEditMenu(&edit);
    fixture.list.setEditMenu(nullptr);
    QCOMPARE(texts(), QStringList({create, QStringLiteral("-")}));
    QCOMPARE(edit.actions().size(), 3);
}

void tst_ZvScheduleListWidgetEditing::contextMenu()
{
    EditingFixture fixture;
    QMenu edit;
    bool copied = false;
    connect(edit.addAction(QStringLiteral("Copy")), &QAction::triggered, &edit,
            [&copied] { copied = true; });
    fixture.list.setEditMenu(&edit);
    const QPoint pos(20, 40);
    QPoint shownAt;
    QTimer::singleShot(20, fixture.menu(), [&] {
        shownAt = fixture.menu()->pos();
        QTest::keyClick(fixture.menu(), Qt::Key_Down);
        QTest::keyClick(fixture.menu(), Qt::Key_Down);
        QTest::keyClick(fixture.menu(), Qt::Key_Return);
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, pos,
                            fixture.view()->viewport()->mapToGlobal(pos));
    QCoreApplication::sendEvent(fixture.view()->viewport(), &event);
    QVERIFY(copied);
    const QPoint below(0, fixture.view()->header()->height());
    QCOMPARE(shownAt, fixture.view()->mapToGlobal(pos + below));
    QCOMPARE(fixture.log.names(), QStringList{QStringLiteral("requestEditMenuAboutToShow")});
}

void tst_ZvScheduleListWidgetEditing::menuAsksForTheState()
{
    EditingFixture fixture;
    SignalLog activations;
    activations.watch(&fixture.list, SIGNAL(activated(QWidget*)));
    QTimer::singleShot(20, fixture.menu(), [&fixture] { fixture.menu()->close(); });
    QTest::mousePress(fixture.button(), Qt::LeftButton);
    QCOMPARE(activations.names().size(), 1);
    QCOMPARE(fixture.log.names(), QStringList{QStringLiteral("requestEditMenuAboutToShow")});
    QVERIFY(!fixture.menu()->isVisible());
}

void tst_ZvScheduleListWidgetEditing::activationOfARowReportsIt()
{
    EditingFixture fixture;
    fixture.list.itemActivated(fixture.model()->index(1, 2));
    QCOMPARE(fixture.log.names(), QStringList{QStringLiteral("selectedScheduleChanged")});
    QCOMPARE(fixture.log.arguments(0).value(0).value<ZvScheduleBasicInfo>(), dayInfo(1));
    QCOMPARE(fixture.selectedRows(), QList<int>{0});
    fixture.list.onItemSelectionChanged({},
                                        fixture.list.rowSelection(fixture.model()->index(2, 0)));
    QCOMPARE(fixture.log.names().size(), 1);
    fixture.list.onItemSelectionChanged(fixture.list.rowSelection(fixture.model()->index(2, 0)),
                                        {});
    QCOMPARE(fixture.log.arguments(1).value(0).value<ZvScheduleBasicInfo>(), juneInfo(3));
}

void tst_ZvScheduleListWidgetEditing::rowIsSelectedInFull()
{
    const EditingFixture fixture;
    const QItemSelection row = fixture.list.rowSelection(fixture.model()->index(3, 1));
    QCOMPARE(row.indexes().size(), 3);
    for (int column = 0; column < 3; ++column)
        QVERIFY(row.contains(fixture.model()->index(3, column)));
}

void tst_ZvScheduleListWidgetEditing::namesOfSchedules()
{
    const Schedules schedules = someSchedules();
    QCOMPARE(ZvScheduleListWidget::infosOfSchedules(schedules, true),
             Infos({dayInfo(1), juneInfo(3), juneInfo(4), juneInfo(5)}));
    QCOMPARE(ZvScheduleListWidget::infosOfSchedules(schedules.mid(0, 2), false),
             Infos({defaultInfo, dayInfo(1)}));
    QCOMPARE(ZvScheduleListWidget::infosOfSchedules({}, true), Infos());
}

void tst_ZvScheduleListWidgetEditing::otherViewKeepsRowsAndMarks()
{
    EditingFixture fixture;
    fixture.check({1, 3});
    fixture.list.selectSchedule(juneInfo(4));
    const QPointer<QTreeView> old = fixture.view();
    fixture.list.createTreeView(2.0);
    QVERIFY(!old);
    QCOMPARE(fixture.view()->iconSize(), QSize(32, 32));
    QCOMPARE(fixture.checkedRows(), QList<int>({1, 3}));
    QCOMPARE(fixture.selectedRows(), QList<int>());
    QCOMPARE(fixture.view()->columnWidth(0), fixture.view()->header()->defaultSectionSize());
    fixture.log.clear();
    fixture.list.selectSchedule(juneInfo(5));
    QCOMPARE(fixture.log.names(), QStringList{QStringLiteral("selectedScheduleChanged")});
}

QTEST_MAIN(tst_ZvScheduleListWidgetEditing)
#include "tst_zvschedulelistwidget_editing.moc"
