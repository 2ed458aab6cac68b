#pragma once

#include "CalendarMouse.h"
#include "DragGesture.h"
#include "HostWindow.h"
#include "TemporaryDataFolder.h"

#include "ZvEditorConfig.h"

#include <QCalendarWidget>
#include <QDir>
#include <QDockWidget>
#include <QGraphicsView>
#include <QLabel>
#include <QListView>
#include <QtTest>

#include <algorithm>
#include <memory>

/// The program's window on a copy of the example data, operated as by hand.
class PicturedWindow final
{
    static constexpr int SettlingTime = 400; // ms, longer than all timers of a change of schedule

public:
    /// What the window finds in its data folder: all of the example data, or no channels yet.
    enum class Data { Everything, StagesOnly };

    explicit PicturedWindow(Data data = Data::Everything)
    {
        m_data.copyFrom(QStringLiteral(ZAVO_EXAMPLE_DATA));
        if (data == Data::StagesOnly)
            QDir(m_data.channelFolder()).removeRecursively();
        Zavo::ZvEditorConfig::reload();
        m_window = std::make_unique<Zavo::HostWindow>();
        QString message;
        if (!m_window->start(&message))
            qFatal("%s", qPrintable(message));
        m_window->show();
        settle();
    }

    QWidget *widget(const char *name) const
    {
        auto *found = m_window->findChild<QWidget *>(QLatin1String(name));
        if (!found)
            qFatal("there is no %s", name);
        return found;
    }

    void click(QWidget *widget, const QPoint &position) const
    {
        QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, position);
    }

    void clickDay(const QString &text) const
    {
        const QList<QLabel *> labels = widget("WeekWidget")->findChildren<QLabel *>();
        for (QLabel *label : labels) {
            if (label->text() == text)
                click(label, label->rect().center());
        }
    }

    void clickDate(const QDate &date, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        auto *calendar = qobject_cast<QCalendarWidget *>(widget("CalendarWidget"));
        ZavoTest::CalendarMouse(calendar).click(date, modifiers);
    }

    /// Clicks on the table on show, whose minutes are units of its scene.
    void clickTime(const QTime &time) const
    {
        click(table()->viewport(), table()->mapFromScene(placeOf(time)));
    }

    void chooseStage(const QString &name) const
    {
        const auto *list = widget("ChooseStageDock")->findChild<QListView *>();
        const QAbstractItemModel *model = list->model();
        for (int row = 0; row < model->rowCount(list->rootIndex()); ++row) {
            const QModelIndex index = model->index(row, 0, list->rootIndex());
            if (index.data().toString() == name)
                click(list->viewport(), list->visualRect(index).center());
        }
    }

    void raise(const char *dockName) const
    {
        auto *dock = qobject_cast<QDockWidget *>(widget(dockName));
        dock->show();
        dock->raise();
    }

    void settle() const { QTest::qWait(SettlingTime); }

    Zavo::HostWindow *window() const { return m_window.get(); }

    QString stage(const QString &name) const
    {
        return m_data.filePath(QStringLiteral("stage/") + name);
    }

    /// The table on show.
    QGraphicsView *table() const
    {
        const QList<QGraphicsView *> views = m_window->findChildren<QGraphicsView *>();
        const auto shown =
            std::find_if(views.cbegin(), views.cend(),
                         [](const QGraphicsView *view) { return view->isVisible(); });
        return *shown;
    }

    static double yOf(const QTime &time) { return 10.0 + time.msecsSinceStartOfDay() / 60000.0; }

    void drop(const QString &stageName, const QTime &time) const
    {
        ZavoTest::DragGesture drag(ZavoTest::DragGesture::filesMimeData({stage(stageName)}));
        drag.enter(table(), placeOf(time));
        drag.drop();
        settle();
    }

    QPointF placeOf(const QTime &time) const
    {
        return {table()->sceneRect().center().x(), yOf(time)};
    }

    void draw(const QString &filePath) const { draw(*m_window, filePath); }

    void draw(QWidget &widget, const QString &filePath) const
    {
        settle();
        if (!widget.grab().save(filePath))
            qFatal("cannot write %s", qPrintable(filePath));
    }

private:
    ZavoTest::TemporaryDataFolder m_data;
    std::unique_ptr<Zavo::HostWindow> m_window;
};
