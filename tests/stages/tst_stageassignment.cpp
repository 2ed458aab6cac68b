#include "../editor/EditorFixture.h"
#include "../timetable/TimeTableFixture.h"
#include "ListDrag.h"
#include "MessageBoxAnswer.h"

#include "editor/DockNames.h"
#include "stages/StagesNames.h"
#include "stages/ZvScheduleDefaultStageWidget.h"
#include "stages/ZvScheduleStageChooserWidget.h"
#include "stages/ZvScheduleStageListView.h"

#include "ZvEditorUserConfig.h"

#include <QCheckBox>
#include <QDialog>
#include <QDockWidget>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QUndoGroup>
#include <QUndoStack>

using namespace Zavo;
using ZavoTest::band;
using ZavoTest::DragGesture;
using ZavoTest::dragOutOf;
using ZavoTest::EditorFixture;
using ZavoTest::MessageBoxAnswer;
using ZavoTest::textOf;

namespace {
const QString a = QStringLiteral("a.xml");
const QString b = QStringLiteral("b.xml");
const QString c = QStringLiteral("c.xml");
const QString generated = QStringLiteral("a._d_.xml");
} // namespace

/// The stage dock in the whole editor: stages go from its list to the table and the default stage.
class tst_StageAssignment : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<EditorFixture> m_host;
    std::unique_ptr<MessageBoxAnswer> m_boxes;

    QDockWidget *dock() const
    {
        return m_host->window->findChild<QDockWidget *>(QLatin1String(DockName::ChooseStage));
    }
    ZvScheduleStageChooserWidget *chooser() const
    {
        return qobject_cast<ZvScheduleStageChooserWidget *>(dock()->widget());
    }
    ZvScheduleStageListView *list() const
    {
        return chooser()->findChild<ZvScheduleStageListView *>();
    }
    QModelIndex stage(const QString &name) const
    {
        const QAbstractItemModel *model = list()->model();
        return model->match(model->index(0, 0, list()->rootIndex()), Qt::DisplayRole, name)
            .value(0);
    }
    ZvScheduleWorkingArea *area() const { return m_host->main()->currentWorkingArea(); }
    ZvTimeTableView *view() const { return area()->findChild<ZvTimeTableView *>(); }
    QLabel *box() const
    {
        return area()->findChild<ZvScheduleDefaultStageWidget *>()->findChild<QLabel *>();
    }
    QUndoStack *stack() const { return m_host->main()->undoGroup()->activeStack(); }
    QStringList bands() const { return textOf(area()->currentTimes()); }
    QPoint placeOf(const QString &time) const
    {
        view()->centerOn(QPointF(180.0, ZavoTest::yOf(time)));
        QCoreApplication::processEvents();
        return view()->mapFromScene(QPointF(180.0, ZavoTest::yOf(time)));
    }
    QAction *action(const char *name) const
    {
        return list()->findChild<QAction *>(QLatin1String(name));
    }
    /// Opens the context menu, clicks the action with the mouse, and comes back when it is closed.
    void chooseFromMenu(const char *name) const
    {
        auto *menu = list()->findChild<QMenu *>();
        QTimer::singleShot(0, menu, [this, menu, name] {
            QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                              menu->actionGeometry(action(name)).center());
            menu->close();
        });
        Q_EMIT list()->customContextMenuRequested(
            list()->visualRect(list()->currentIndex()).center());
    }
    QDialog *dialog() const { return list()->findChild<QDialog *>(); }
    void execute(int interval) const
    {
        dialog()->findChild<QSpinBox *>()->setValue(interval);
        QTest::mouseClick(dialog()->findChildren<QPushButton *>().first(), Qt::LeftButton);
    }

private Q_SLOTS:
    void init();
    void cleanup();

    void dockHoldsTheChooser();
    void dragsOneStageToTheTable();
    void dragsSeveralStagesToTheTable();
    void dragsAStageToTheDefaultStageBox();
    void dragsSeveralStagesToTheDefaultStageBox();
    void dragThatIsCancelledChangesNothing();
    void dragNeverMovesTheFile();
    void listTakesNoDrops();
    void menuSetsTheDefaultStageWithoutUndo();
    void menuIsDisabledOnADisabledSchedule();
    void switchingResetsTheTableAsOneStep();
    void switchingEveryTenSecondsFillsTheDay();
    void previewStateIsKept();
    void defaultPositionShowsThePreview();
};

void tst_StageAssignment::init()
{
    m_boxes = std::make_unique<MessageBoxAnswer>();
    m_host = std::make_unique<EditorFixture>();
    for (const QString &name : {a, b, c})
        m_host->data.writeStage(name);
    // The list was made with the editor, before there was a folder.
    QVERIFY(m_host->start());
    m_host->window->resize(1200, 800);
    QTRY_COMPARE(list()->model()->rowCount(list()->rootIndex()), 3);
}

void tst_StageAssignment::cleanup()
{
    m_host.reset();
    m_boxes.reset();
}

void tst_StageAssignment::dockHoldsTheChooser()
{
    QVERIFY(chooser());
    QVERIFY(chooser()->isVisible());
    QVERIFY(chooser()->isPreviewVisible());
}

void tst_StageAssignment::dragsOneStageToTheTable()
{
    const QPoint place = placeOf(QStringLiteral("08:00:00"));
    const auto drag = dragOutOf(list(), stage(b));
    QVERIFY(drag);
    QVERIFY(drag->enter(view()->viewport(), place));
    QVERIFY(drag->drop());
    QCOMPARE(area()->currentTimes().size(), 1);
    const ZvTime dropped = area()->currentTimes().first();
    QCOMPARE(dropped.stageName(), b);
    QVERIFY(qAbs(dropped.startTime().secsTo(QTime(8, 0))) <= 60);
    QTRY_COMPARE(stack()->count(), 1);
    stack()->undo();
    QCOMPARE(bands(), QStringList());
    stack()->redo();
    QCOMPARE(area()->currentTimes(), QList<ZvTime>{dropped});
}

void tst_StageAssignment::dragsSeveralStagesToTheTable()
{
    list()->selectionModel()->select(stage(a), QItemSelectionModel::Select);
    list()->selectionModel()->select(stage(c), QItemSelectionModel::Select);
    const QPoint place = placeOf(QStringLiteral("10:00:00"));
    const auto drag = dragOutOf(list(), stage(c));
    QVERIFY(drag);
    QVERIFY(drag->enter(view()->viewport(), place));
    QVERIFY(drag->drop());
    QCOMPARE(area()->currentTimes().size(), 2);
    QStringList names;
    const QList<ZvTime> times = area()->currentTimes();
    for (const ZvTime &time : times)
        names.append(time.stageName());
    names.sort();
    QCOMPARE(names, QStringList({a, c}));
    QVERIFY(times.first().endTime() <= times.last().startTime());
    QTRY_COMPARE(stack()->count(), 1);
}

void tst_StageAssignment::dragsAStageToTheDefaultStageBox()
{
    const auto drag = dragOutOf(list(), stage(a));
    QVERIFY(drag);
    QVERIFY(drag->enter(box(), QPoint(20, 10)));
    QVERIFY(box()->styleSheet().contains(QStringLiteral("cyan")));
    QVERIFY(drag->drop());
    QCOMPARE(area()->defaultStageName(), a);
    QVERIFY(!box()->styleSheet().contains(QStringLiteral("cyan")));
    QCOMPARE(stack()->count(), 1);
    stack()->undo();
    QCOMPARE(area()->defaultStageName(), QString());
}

void tst_StageAssignment::dragsSeveralStagesToTheDefaultStageBox()
{
    list()->selectAll();
    const auto drag = dragOutOf(list(), stage(b));
    QVERIFY(drag);
    QVERIFY(drag->enter(box(), QPoint(20, 10)));
    QVERIFY(drag->drop());
    QCOMPARE(area()->defaultStageName(), a);
    QCOMPARE(stack()->count(), 1);
}

void tst_StageAssignment::dragThatIsCancelledChangesNothing()
{
    const auto drag = dragOutOf(list(), stage(a));
    QVERIFY(drag);
    QVERIFY(drag->enter(box(), QPoint(20, 10)));
    QVERIFY(drag->enter(view()->viewport(), placeOf(QStringLiteral("08:00:00"))));
    drag->leave();
    QVERIFY(!box()->styleSheet().contains(QStringLiteral("cyan")));
    QCOMPARE(area()->defaultStageName(), QString());
    QCOMPARE(bands(), QStringList());
    QCOMPARE(stack()->count(), 0);
}

void tst_StageAssignment::dragNeverMovesTheFile()
{
    const auto drag = dragOutOf(list(), stage(a));
    QVERIFY(drag);
    QVERIFY(drag->enter(view()->viewport(), placeOf(QStringLiteral("08:00:00"))));
    QVERIFY(drag->drop());
    QVERIFY(drag->dropAction() == Qt::CopyAction || drag->dropAction() == Qt::LinkAction);
    QCOMPARE(m_host->data.names(QStringLiteral("stage")), QStringList({a, b, c}));
}

void tst_StageAssignment::listTakesNoDrops()
{
    const auto drag = dragOutOf(list(), stage(a));
    QVERIFY(drag);
    QVERIFY(!drag->enter(list()->viewport(), list()->visualRect(stage(c)).center()));
    QVERIFY(!drag->drop());
    QCOMPARE(m_host->data.names(QStringLiteral("stage")), QStringList({a, b, c}));
    QCOMPARE(list()->model()->rowCount(list()->rootIndex()), 3);
}

void tst_StageAssignment::menuSetsTheDefaultStageWithoutUndo()
{
    list()->setCurrentIndex(stage(b));
    chooseFromMenu(StagesName::SetAsDefaultStage);
    QCOMPARE(area()->defaultStageName(), b);
    QCOMPARE(stack()->count(), 0);
}

void tst_StageAssignment::menuIsDisabledOnADisabledSchedule()
{
    area()->switchToScheduleInfo(ZvScheduleBasicInfo(Weekday::Monday), true);
    QVERIFY(!area()->isCurrentScheduleEnabled());
    list()->setCurrentIndex(stage(b));
    chooseFromMenu(StagesName::SetAsDefaultStage);
    QVERIFY(!list()->findChild<QMenu *>()->isEnabled());
    QCOMPARE(area()->defaultStageName(), QString());
    area()->switchToScheduleInfo(ZvScheduleBasicInfo(ZvSchedule::Default), true);
    chooseFromMenu(StagesName::SetAsDefaultStage);
    QCOMPARE(area()->defaultStageName(), b);
}

void tst_StageAssignment::switchingResetsTheTableAsOneStep()
{
    const auto drag = dragOutOf(list(), stage(b));
    QVERIFY(drag && drag->enter(view()->viewport(), placeOf(QStringLiteral("08:00:00"))));
    QVERIFY(drag->drop());
    QTRY_COMPARE(stack()->count(), 1);
    area()->setDefaultStageName(c);
    const QStringList before = bands();

    list()->setCurrentIndex(stage(a));
    chooseFromMenu(StagesName::SetSwitchingInterval);
    QVERIFY(dialog() && dialog()->isVisible() && dialog()->isModal());
    execute(6 * 60 * 60);
    QVERIFY(!dialog() || !dialog()->isVisible());
    QCOMPARE(area()->defaultStageName(), a);
    const QList<ZvTime> expected{
        band(QStringLiteral("06:00:00"), QStringLiteral("12:00:00"), generated),
        band(QStringLiteral("18:00:00"), QStringLiteral("24:00:00"), generated)};
    QCOMPARE(area()->currentTimes(), expected);
    QCOMPARE(stack()->count(), 2);
    QCOMPARE(m_host->data.names(QStringLiteral("stage")), QStringList({generated, a, b, c}));

    stack()->undo();
    QCOMPARE(area()->defaultStageName(), c);
    QCOMPARE(bands(), before);
    QVERIFY(m_host->data.names(QStringLiteral("stage")).contains(generated));
    m_host->tabs()->setCurrentIndex(1);
    m_host->tabs()->setCurrentIndex(0);
    stack()->redo();
    QCOMPARE(area()->defaultStageName(), a);
    QCOMPARE(area()->currentTimes(), expected);
}

void tst_StageAssignment::switchingEveryTenSecondsFillsTheDay()
{
    list()->setCurrentIndex(stage(a));
    chooseFromMenu(StagesName::SetSwitchingInterval);
    execute(10);
    QCOMPARE(area()->currentTimes().size(), 4320);
    QCOMPARE(area()->currentTimes().last(),
             band(QStringLiteral("23:59:50"), QStringLiteral("24:00:00"), generated));
    m_host->main()->saveCurrentChannel();
    QCOMPARE(ZavoTest::readChannelFile(area()->channel()->filePath())
                 .scheduleList()
                 .first()
                 .timeList()
                 .size(),
             4320);
    stack()->undo();
    QCOMPARE(bands(), QStringList());
}

void tst_StageAssignment::previewStateIsKept()
{
    QTest::mouseClick(chooser()->findChild<QCheckBox *>(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(8, 8));
    QVERIFY(!chooser()->isPreviewVisible());
    m_host->editor->close();
    QCOMPARE(
        ZvEditorUserConfig::value(QLatin1String(DockSettingsKey::StagePreviewVisible)).toBool(),
        false);
    m_host->makeEditor();
    QVERIFY(m_host->start());
    QVERIFY(chooser()->isVisible());
    QVERIFY(!chooser()->isPreviewVisible());
    QVERIFY(!chooser()->findChild<QCheckBox *>()->isChecked());
}

void tst_StageAssignment::defaultPositionShowsThePreview()
{
    chooser()->setPreviewVisible(false);
    m_host->editor->action_window_to_default_position();
    QVERIFY(chooser()->isPreviewVisible());
    QVERIFY(chooser()->findChild<QCheckBox *>()->isChecked());
}

QTEST_MAIN(tst_StageAssignment)
#include "tst_stageassignment.moc"
