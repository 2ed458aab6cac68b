#include "editor/ZvScheduleEditor.h"

#include "domain/ActionNames.h"
#include "editor/DockNames.h"
#include "editor/ItemPropertyWiring.h"
#include "editor/NavigationWiring.h"
#include "editor/ScheduleDocks.h"
#include "editor/ScheduleListWiring.h"
#include "editor/StageWiring.h"
#include "navigation/ZvScheduleSwitcherWidget.h"
#include "stages/ZvScheduleStageChooserWidget.h"
#include "workspace/ZvScheduleMainWidget.h"

#include "ZvConfig.h"
#include "ZvEditorConfig.h"
#include "ZvEditorUserConfig.h"
#include "ZvSchedule.h"

#include <QAction>
#include <QDate>
#include <QDebug>
#include <QDockWidget>
#include <QEvent>
#include <QMainWindow>
#include <QSignalBlocker>
#include <QTimer>

// The editor's docks: when they are made, filled, laid out and kept.
namespace Zavo {

namespace {
constexpr int PreviewSizeDelay = 1; // ms, for the layout of the window to settle
} // namespace

// The frames, in this order. The content of a dock is made, put into its frame by setWidget() and
// connected right after the frame.
void ZvScheduleEditor::setupDocks()
{
    QDockWidget *switching = m_docks->create(ScheduleDocks::SwitchSchedule, this);
    m_switcherWidget = fillSwitchDock(switching, this, m_mainWidget, m_editState);
    QDockWidget *stages = m_docks->create(ScheduleDocks::ChooseStage, this);
    m_stageChooser = fillStageDock(stages, m_mainWidget);
    fillItemPropertyDock(m_docks->create(ScheduleDocks::ItemProperty, this), m_mainWidget);
    QDockWidget *list = m_docks->create(ScheduleDocks::ScheduleList, this);
    fillScheduleListDock(list, this, m_mainWidget, m_switcherWidget, m_editState);
}

void ZvScheduleEditor::attatchWidgetsToMainWindow()
{
    if (!m_mainWindow || !m_mainWidget)
        return;
    m_mainWindow->setCentralWidget(m_mainWidget);
    m_mainWidget->show();
    if (m_stageChooser)
        m_stageChooser->setPreviewVisible(true);
    m_docks->attach();
}

// Sizing runs the event loop, in which the editor may be closed or deleted.
void ZvScheduleEditor::restoreDockWidgetSetting(bool useDefault)
{
    const QPointer<ZvScheduleEditor> self(this);
    m_docks->setDefaultSizes();
    if (!self || m_closed)
        return;
    if (!useDefault)
        restoreAllWidgetGeometry();
    if (m_stageChooser)
        QTimer::singleShot(PreviewSizeDelay, m_stageChooser, SLOT(setPreviewSizeToDefault()));
}

void ZvScheduleEditor::restoreAllWidgetGeometry()
{
    const QString previewKey = QLatin1String(DockSettingsKey::StagePreviewVisible);
    if (m_stageChooser)
        m_stageChooser->setPreviewVisible(ZvEditorUserConfig::value(previewKey, true).toBool());
    m_docks->restore(objectName());
    if (!m_mainWidget || ZvEditorConfig::getConfig()->defaultScheduleUsedFirst())
        return;
    const QString key = QLatin1String(DockSettingsKey::LastSelectedType);
    const QDate today = QDate::currentDate();
    switch (ZvEditorUserConfig::value(key, ZvSchedule::Default).toInt()) {
    case ZvSchedule::Date:
        m_mainWidget->switchToDateSchedule(today);
        break;
    case ZvSchedule::DayOfWeek:
        m_mainWidget->switchToDayOfWeekSchedule(static_cast<Qt::DayOfWeek>(today.dayOfWeek()));
        break;
    default:
        m_mainWidget->switchToDefaultSchedule();
        break;
    }
}

// Docks that were never placed would be remembered as having no place.
void ZvScheduleEditor::storeAllWidgetGeometry()
{
    if (!m_docks->isAttached())
        return;
    m_docks->store(objectName());
    if (m_stageChooser)
        ZvEditorUserConfig::setValue(QLatin1String(DockSettingsKey::StagePreviewVisible),
                                     m_stageChooser->isPreviewVisible());
    if (m_switcherWidget)
        ZvEditorUserConfig::setValue(QLatin1String(DockSettingsKey::LastSelectedType),
                                     m_switcherWidget->currentScheduleType());
    ZvEditorUserConfig::sync();
}

void ZvScheduleEditor::action_window_to_default_position()
{
    attatchWidgetsToMainWindow();
    restoreDockWidgetSetting(true);
}

void ZvScheduleEditor::action_dock_test()
{
    if (!m_mainWindow)
        return;
    const QList<QDockWidget *> docks = m_mainWindow->findChildren<QDockWidget *>();
    for (const QDockWidget *dock : docks)
        qDebug() << dock << dock->geometry();
}

bool ZvScheduleEditor::eventFilter(QObject *watched, QEvent *event)
{
    const bool scales = event->type() == QEvent::ShowToParent || event->type() == QEvent::Resize;
    if (auto *dock = scales ? qobject_cast<QDockWidget *>(watched) : nullptr)
        ScheduleDocks::scaleButtons(dock);
    return false;
}

// The window menu

void ZvScheduleEditor::setDockWidgetVisible(QDockWidget *dock, bool visible)
{
    if (!dock)
        return;
    dock->setVisible(visible);
    if (visible)
        dock->raise();
}

void ZvScheduleEditor::setVisibleSwitchSchdule(bool visible)
{
    setDockWidgetVisible(m_docks->dock(ScheduleDocks::SwitchSchedule), visible);
}

void ZvScheduleEditor::setVisibleScheduleList(bool visible)
{
    setDockWidgetVisible(m_docks->dock(ScheduleDocks::ScheduleList), visible);
}

void ZvScheduleEditor::setVisibleChooseStage(bool visible)
{
    setDockWidgetVisible(m_docks->dock(ScheduleDocks::ChooseStage), visible);
}

void ZvScheduleEditor::setVisibleItemProperty(bool visible)
{
    setDockWidgetVisible(m_docks->dock(ScheduleDocks::ItemProperty), visible);
}

// A dock behind another tab shows unchecked, so that its row brings it forward; but to look at the
// menu must not hide it.
void ZvScheduleEditor::onMenuWindowAboutToShow()
{
    static constexpr struct
    {
        const char *action;
        ScheduleDocks::Which dock;
    } rows[] = {
        {ActionName::SetVisibleSwitchSchedule, ScheduleDocks::SwitchSchedule},
        {ActionName::SetVisibleScheduleList, ScheduleDocks::ScheduleList},
        {ActionName::SetVisibleChooseStage, ScheduleDocks::ChooseStage},
        {ActionName::SetVisibleItemProperty, ScheduleDocks::ItemProperty},
    };
    for (const auto &row : rows) {
        QAction *action = getAction(QLatin1String(row.action));
        if (!action)
            continue;
        const QSignalBlocker blocker(action);
        action->setChecked(m_docks->isInFront(row.dock));
    }
}

} // namespace Zavo
