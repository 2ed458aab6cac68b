#include "workspace/ScheduleToolBar.h"

#include "domain/ActionLookup.h"
#include "domain/ActionNames.h"
#include "workspace/WorkspaceNames.h"

#include "ZvSystemInfo.h"

#include <QAction>
#include <QToolButton>

namespace Zavo {

namespace {

constexpr QSizeF BaseButtonSize{16.0, 16.0}; // pixels at ratio 1
constexpr QSize UploadGap{24, 24};
constexpr QSize CloseGap{16, 16};

QStringList groupNames(std::initializer_list<const char *> names)
{
    QStringList list;
    for (const char *name : names)
        list.append(QLatin1String(name));
    return list;
}

} // namespace

ScheduleToolBar::ScheduleToolBar(const QList<QAction *> &actions, QWidget *parent)
    : QToolBar(parent)
    , m_borrowedActions(actions)
{
    using namespace ActionName;
    setObjectName(QLatin1String(WorkspaceName::ToolBar));
    addGroup(findActionsByName(actions, groupNames({SaveChannel, SaveAllChannel})));
    addGroup(findActionsByName(actions, groupNames({CreateSchedule, DeleteSchedule})));
    addGroup(findActionsByName(actions, groupNames({CreateChannel, DeleteChannel})));
    addActions(findActionsByName(actions, groupNames({OutputChannelData})));
    addBlank({QSizePolicy::Minimum, QSizePolicy::Minimum}, UploadGap);
    addActions(findActionsByName(actions, groupNames({Upload})));
    addBlank({QSizePolicy::Expanding, QSizePolicy::Minimum}, CloseGap);

    m_closeAction =
        addAction(QIcon(QStringLiteral(":/images/close_black.svg")), tr("Close Stage Editor"));
    m_closeAction->setObjectName(QLatin1String(CloseStage));
    m_closeAction->setToolTip(tr("Close Schedule Editor"));
    m_closeAction->setStatusTip(tr("Closes the schedule editor and asks about unsaved channels"));
    m_closeAction->setWhatsThis(tr("Closes the schedule editor. You are asked about each channel "
                                   "with changes that are not saved."));
    if (auto *more = findChild<QToolButton *>(QLatin1String(WorkspaceName::ToolBarExtension)))
        more->setAccessibleName(tr("More commands"));
}

// Borrowed actions may have died before their tool bar, so only those that it still shows are
// touched.
ScheduleToolBar::~ScheduleToolBar()
{
    const QList<QAction *> shown = actions();
    for (QAction *action : shown) {
        if (m_borrowedActions.contains(action))
            removeAction(action);
        else
            delete action;
    }
}

void ScheduleToolBar::addGroup(const QList<QAction *> &actions)
{
    addActions(actions);
    addSeparator();
}

void ScheduleToolBar::addBlank(const QSizePolicy &policy, const QSize &minimumSize)
{
    auto *blank = new QWidget(this);
    blank->setSizePolicy(policy);
    blank->setMinimumSize(minimumSize);
    addWidget(blank);
}

// Polishing all buttons anew is dear, so an equal style sheet is not set again.
void ScheduleToolBar::scaleButtons()
{
    const QSizeF size = BaseButtonSize * ZvSystemInfo::getDpiRatio(this);
    const QString sheet = QStringLiteral("QToolButton {width: %1px; height: %2px;}")
                              .arg(size.width())
                              .arg(size.height());
    if (styleSheet() != sheet)
        setStyleSheet(sheet);
}

} // namespace Zavo
