#pragma once

#include "EditorFixture.h"

#include "domain/ActionNames.h"
#include "editor/DockNames.h"

#include "ZvSystemInfo.h"

#include <QDockWidget>
#include <QLayout>
#include <QTabBar>

namespace ZavoTest {

/// A host that looks at the editor's docks. It ends an override of the screen's ratio.
class DockHost : public EditorFixture
{
public:
    explicit DockHost(const QStringList &channelNames = {QStringLiteral("Alpha")})
        : EditorFixture(channelNames)
    {
    }
    ~DockHost() { Zavo::ZvSystemInfo::setDpiRatioOverride(0.0); }
    Q_DISABLE_COPY(DockHost)

    /// The editor goes as at the end of a program, and comes again in a window of this size.
    void restart(QSize size = QSize(1400, 800))
    {
        if (editor)
            editor->close();
        window.reset();
        scenes.clear();
        data.settings()->sync();
        makeEditor();
        window->resize(size);
    }

    bool startSettled()
    {
        const bool started = start();
        settle();
        return started;
    }

    void settle() const
    {
        QTest::qWait(5);
        if (window)
            window->layout()->activate();
        QCoreApplication::processEvents();
    }

    QDockWidget *dock(const char *name) const
    {
        return window->findChild<QDockWidget *>(QLatin1String(name));
    }
    QDockWidget *switcher() const { return dock(Zavo::DockName::SwitchSchedule); }
    QDockWidget *list() const { return dock(Zavo::DockName::ScheduleList); }
    QDockWidget *chooser() const { return dock(Zavo::DockName::ChooseStage); }
    QDockWidget *item() const { return dock(Zavo::DockName::ItemProperty); }
    QList<QDockWidget *> docks() const { return {switcher(), list(), chooser(), item()}; }

    bool isInFront(const QDockWidget *dock) const
    {
        return dock->isVisible() && window->rect().intersects(dock->geometry());
    }

    void toDefault() const
    {
        action(Zavo::ActionName::WindowToDefaultPosition)->trigger();
        settle();
    }

    /// Areas, tabs, hidden and floating docks, and what is in front.
    QString layoutText() const
    {
        QString text;
        const QList<QDockWidget *> all = docks();
        for (QDockWidget *one : all) {
            QStringList tabs;
            const QList<QDockWidget *> others = window->tabifiedDockWidgets(one);
            for (const QDockWidget *other : others)
                tabs.append(other->objectName());
            tabs.sort();
            text += QStringLiteral("%1 area=%2%3%4%5 tabs=%6\n")
                        .arg(one->objectName())
                        .arg(window->dockWidgetArea(one))
                        .arg(one->isHidden() ? QStringLiteral(" hidden") : QString(),
                             one->isFloating() ? QStringLiteral(" floating") : QString(),
                             isInFront(one) ? QStringLiteral(" front") : QString(),
                             tabs.join(QLatin1Char(',')));
        }
        return text;
    }
};

} // namespace ZavoTest
