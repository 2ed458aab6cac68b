#pragma once

#include "ZvEditorCommon.h"
#include "ZvEditorUserConfig.h"

#include <QDockWidget>
#include <QLabel>
#include <QLayout>
#include <QMainWindow>
#include <QSettings>
#include <QTabBar>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

/// A window with four docks as an editor has them: two as tabs on the left of which the second is
/// hidden, two below each other on the right.
class DockWindow : public QMainWindow
{
public:
    explicit DockWindow(QSize size = QSize(1200, 800), bool shown = true)
    {
        setCentralWidget(new QLabel);
        setTabPosition(Qt::LeftDockWidgetArea, QTabWidget::West);
        setTabPosition(Qt::RightDockWidgetArea, QTabWidget::West);
        resize(size);
        if (shown) {
            show();
            m_isExposed = QTest::qWaitForWindowExposed(this);
        }
        addDockWidget(Qt::LeftDockWidgetArea, switcher);
        addDockWidget(Qt::LeftDockWidgetArea, list);
        addDockWidget(Qt::RightDockWidgetArea, stages);
        addDockWidget(Qt::RightDockWidgetArea, item);
        tabifyDockWidget(switcher, list);
        list->hide();
        resizeDocks({switcher, stages}, {330, 300}, Qt::Horizontal);
        resizeDocks({stages, item}, {600, 170}, Qt::Vertical);
        settle();
    }

    QList<QDockWidget *> docks() const { return {switcher, list, stages, item}; }
    bool isExposed() const { return m_isExposed; }

    void settle()
    {
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
        QTest::qWait(1);
        layout()->activate();
        QCoreApplication::processEvents();
    }

    void store()
    {
        for (QDockWidget *dock : docks())
            Zavo::ZvEditorCommon::storeDockWidgetGeometry(dock, this);
        Zavo::ZvEditorCommon::storeTabifiedSettings(QStringLiteral("ScheduleEditor"), this);
        Zavo::ZvEditorUserConfig::sync();
    }

    void restore()
    {
        for (QDockWidget *dock : docks())
            Zavo::ZvEditorCommon::restoreDockWidgetGeometry(dock, this);
        Zavo::ZvEditorCommon::reorderDockWidgets(docks(), this);
        Zavo::ZvEditorCommon::restoreTabifiedSettings(QStringLiteral("ScheduleEditor"), this);
        settle();
    }

    /// Name of the dock in front of the tab bar that shows @p dock.
    QString frontOf(QDockWidget *dock) const
    {
        const QList<QTabBar *> bars =
            findChildren<QTabBar *>(QString(), Qt::FindDirectChildrenOnly);
        for (const QTabBar *bar : bars) {
            for (int i = 0; bar->isVisible() && i < bar->count(); ++i) {
                if (bar->tabText(i) == dock->windowTitle())
                    return bar->tabText(bar->currentIndex());
            }
        }
        return {};
    }

    /// Everything that is to survive, but for sizes: areas, order, tabs, hidden and floating.
    QString description() const
    {
        QString text;
        for (int i = 0; QLayoutItem *entry = layout()->itemAt(i); ++i) {
            auto *dock = qobject_cast<QDockWidget *>(entry->widget());
            if (!dock)
                continue;
            QStringList tabs;
            for (const QDockWidget *tab : tabifiedDockWidgets(dock))
                tabs << tab->objectName();
            text += QStringLiteral("%1 area=%2 tabs=%3%4%5 front=%6\n")
                        .arg(dock->objectName())
                        .arg(dockWidgetArea(dock))
                        .arg(tabs.join(QLatin1Char(',')))
                        .arg(dock->isHidden() ? QStringLiteral(" hidden") : QString())
                        .arg(dock->isFloating() ? QStringLiteral(" floating") : QString())
                        .arg(frontOf(dock));
        }
        return text;
    }

private:
    QDockWidget *make(const QString &name)
    {
        auto *dock = new QDockWidget(name, this);
        dock->setObjectName(name);
        dock->setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
        dock->setWidget(new QLabel);
        return dock;
    }

    bool m_isExposed = true;

public:
    QDockWidget *const switcher = make(QStringLiteral("SwitchScheuleDock"));
    QDockWidget *const list = make(QStringLiteral("ScheduleListDock"));
    QDockWidget *const stages = make(QStringLiteral("ChooseStageDock"));
    QDockWidget *const item = make(QStringLiteral("ScheduleItemPropertyDock"));
};

/// The user's settings as a file that lasts as long as the test.
class SettingsFixture
{
public:
    SettingsFixture()
        : m_settings(std::make_unique<QSettings>(m_folder.filePath(QStringLiteral("dock.ini")),
                                                 QSettings::IniFormat))
    {
        Zavo::ZvEditorUserConfig::setSettings(m_settings.get());
    }
    ~SettingsFixture() { Zavo::ZvEditorUserConfig::resetSettings(); }
    Q_DISABLE_COPY(SettingsFixture)

    QSettings *operator->() const { return m_settings.get(); }

    /// Writes the file and reads it again, as the next start of a program does.
    void reopen()
    {
        const QString file = m_settings->fileName();
        m_settings->sync();
        m_settings = std::make_unique<QSettings>(file, QSettings::IniFormat);
        Zavo::ZvEditorUserConfig::setSettings(m_settings.get());
    }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<QSettings> m_settings;
};
