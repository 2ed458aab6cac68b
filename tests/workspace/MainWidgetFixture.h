#pragma once

#include "ChannelFiles.h"
#include "TemporaryDataFolder.h"

#include "domain/ZvScheduleBasicInfo.h"
#include "timetable/ZvScheduleWorkingArea.h"
#include "workspace/WorkspaceNames.h"
#include "workspace/ZvScheduleMainWidget.h"
#include "workspace/ZvScheduleTabWidget.h"

#include "ZvChannel.h"

#include <QAction>
#include <QGraphicsScene>
#include <QToolBar>

#include <memory>
#include <vector>

namespace ZavoTest {

/// A main widget on a data folder of its own, with the actions that the tool bar and the schedules
/// reach, as the editor would make it.
class MainWidgetFixture
{
public:
    explicit MainWidgetFixture(const QStringList &actionNames = {})
        : widget(std::make_unique<Zavo::ZvScheduleMainWidget>())
    {
        for (const QString &name : actionNames) {
            actions.push_back(std::make_unique<QAction>());
            actions.back()->setObjectName(name);
        }
        QList<QAction *> list;
        for (const auto &action : actions)
            list.append(action.get());
        widget->setActionList(list);
        widget->setupWidgets();
        QObject::connect(widget.get(), &Zavo::ScheduleRouter::requestCurrentScheduleType,
                         widget.get(), [this](Zavo::ZvScheduleBasicInfo *info) { *info = choice; });
        QObject::connect(widget.get(), &Zavo::ScheduleRouter::graphicsScenePurged, widget.get(),
                         [this](QGraphicsScene *scene) { purgedScenes.emplace_back(scene); });
    }

    /// Reads the channel files and makes their tabs.
    void createTabs() { QMetaObject::invokeMethod(widget.get(), "createTabs"); }

    /// Channel files with ids, indices and numbers from 0, then their tabs.
    void createTabs(const QStringList &names)
    {
        for (int i = 0; i < names.size(); ++i)
            writeChannelFile(data, channelFileName(i), {i, i, names.at(i)});
        createTabs();
    }

    Zavo::ZvScheduleTabWidget *tabs() const
    {
        return widget->findChild<Zavo::ZvScheduleTabWidget *>(
            QLatin1String(Zavo::WorkspaceName::TabWidget));
    }
    QToolBar *toolBar() const
    {
        return widget->findChild<QToolBar *>(QLatin1String(Zavo::WorkspaceName::ToolBar));
    }
    Zavo::ZvScheduleWorkingArea *area(int index) const
    {
        return qobject_cast<Zavo::ZvScheduleWorkingArea *>(tabs()->widget(index));
    }
    QStringList tabTexts() const
    {
        QStringList texts;
        for (int i = 0; i < tabs()->count(); ++i)
            texts.append(tabs()->tabText(i));
        return texts;
    }
    Zavo::ZvChannel stored(int number) const
    {
        return readChannelFile(data.channelFolder() + QLatin1Char('/') + channelFileName(number));
    }

    TemporaryDataFolder data;
    /// What the switcher would answer a tab that asks which schedule to show.
    Zavo::ZvScheduleBasicInfo choice{Zavo::ZvSchedule::Default};
    std::vector<std::unique_ptr<QGraphicsScene>> purgedScenes;
    std::vector<std::unique_ptr<QAction>> actions;
    std::unique_ptr<Zavo::ZvScheduleMainWidget> widget;
};

} // namespace ZavoTest
