#pragma once

#include "ChannelFiles.h"
#include "TemporaryDataFolder.h"

#include "editor/ZvScheduleEditor.h"
#include "timetable/ZvScheduleWorkingArea.h"
#include "workspace/WorkspaceNames.h"
#include "workspace/ZvScheduleMainWidget.h"
#include "workspace/ZvScheduleTabWidget.h"

#include "ZvChannel.h"
#include "ZvConfig.h"
#include "ZvEditorConfig.h"

#include <QAction>
#include <QGraphicsScene>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QtTest>

#include <memory>
#include <vector>

namespace ZavoTest {

/// A host as an integrator writes it: a window with the editor's menus, which takes over the
/// scenes.
class EditorFixture
{
public:
    explicit EditorFixture(const QStringList &channelNames = {QStringLiteral("Alpha"),
                                                              QStringLiteral("Beta"),
                                                              QStringLiteral("Gamma")})
    {
        for (int i = 0; i < channelNames.size(); ++i)
            writeChannelFile(data, channelFileName(i), {i, i, channelNames.at(i)});
        useDefaultScheduleFirst(true);
        makeEditor();
    }

    /// Which kind of schedule the next editor starts with: the default one, or that of today.
    void useDefaultScheduleFirst(bool first)
    {
        Zavo::ZvEditorConfig::getConfig()->setDefaultScheduleUsedFirst(first);
    }

    void makeEditor()
    {
        window = std::make_unique<QMainWindow>();
        window->resize(1000, 700);
        editor = new Zavo::ZvScheduleEditor(window.get());
        const QList<QMenu *> menus = editor->menu();
        for (QMenu *menu : menus)
            window->menuBar()->addMenu(menu);
        using Editor = Zavo::ZvScheduleEditor;
        QObject::connect(editor, QOverload<QGraphicsScene *>::of(&Editor::graphicsScenePurged),
                         window.get(),
                         [this](QGraphicsScene *scene) { scenes.emplace_back(scene); });
        QObject::connect(
            editor, QOverload<const QList<QGraphicsScene *> &>::of(&Editor::graphicsScenePurged),
            window.get(), [this](const QList<QGraphicsScene *> &list) {
                for (QGraphicsScene *scene : list)
                    scenes.emplace_back(scene);
            });
    }

    /// Starts the editor in a shown window and waits for its tabs.
    bool start()
    {
        window->show();
        return editor->exec() && QTest::qWaitFor([this] { return tabs()->count() > 0; });
    }

    Zavo::ZvScheduleMainWidget *main() const
    {
        return dynamic_cast<Zavo::ZvScheduleMainWidget *>(window->centralWidget());
    }
    Zavo::ZvScheduleTabWidget *tabs() const
    {
        return window->findChild<Zavo::ZvScheduleTabWidget *>(
            QLatin1String(Zavo::WorkspaceName::TabWidget));
    }
    Zavo::ZvScheduleWorkingArea *area(int index) const
    {
        return qobject_cast<Zavo::ZvScheduleWorkingArea *>(tabs()->widget(index));
    }
    QAction *action(const char *name) const { return editor->getAction(QLatin1String(name)); }

    /// Edits the table on show of a tab.
    void edit(int index, const QString &stage) const
    {
        tabs()->setCurrentIndex(index);
        area(index)->setDefaultStageName(stage);
    }

    TemporaryDataFolder data;
    std::vector<std::unique_ptr<QGraphicsScene>> scenes;
    std::unique_ptr<QMainWindow> window;
    /// Owned by the window.
    QPointer<Zavo::ZvScheduleEditor> editor;
};

} // namespace ZavoTest
