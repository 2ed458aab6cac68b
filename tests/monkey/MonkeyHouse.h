#pragma once

#include "TemporaryDataFolder.h"

#include <QObject>
#include <QPointer>
#include <QUrl>

#include <memory>

class QMenu;
class QUndoGroup;

namespace Zavo {
class HostWindow;
class ZvScheduleEditor;
class ZvScheduleMainWidget;
class ZvScheduleTabWidget;
class ZvScheduleWorkingArea;
class ZvTimeTableTimeZoneItem;
class ZvTimeTableView;
} // namespace Zavo

namespace ZavoTest {

/// The program's window on a copy of the example data, and the way to its parts. Anything may be
/// missing while the window starts or closes.
class MonkeyHouse final : public QObject
{
    Q_OBJECT

public:
    MonkeyHouse();
    ~MonkeyHouse() override;
    Q_DISABLE_COPY(MonkeyHouse)

    /// Whether the editor has finished; open() starts the next one then.
    bool isClosed() const { return m_isClosed; }

    /// Gives up the window, if there is one, and starts another on what lies on the disk. False if
    /// it does not start.
    bool open();

    /// Gives up the window without a question.
    void close();

    TemporaryDataFolder &data() { return m_data; }
    Zavo::HostWindow *window() const { return m_window.get(); }
    Zavo::ZvScheduleEditor *editor() const;
    Zavo::ZvScheduleMainWidget *main() const;
    Zavo::ZvScheduleTabWidget *tabs() const;
    QList<Zavo::ZvScheduleWorkingArea *> areas() const;
    Zavo::ZvScheduleWorkingArea *currentArea() const;
    /// Those of the present page.
    Zavo::ZvTimeTableView *view() const;
    static Zavo::ZvTimeTableTimeZoneItem *timeZone(const Zavo::ZvScheduleWorkingArea *area);
    QStringList stageFiles() const;

public Q_SLOTS:
    /// The desktop, which opens nothing.
    void openOnDesktop(const QUrl &url);

private Q_SLOTS:
    void onFinished();

private:
    TemporaryDataFolder m_data;
    std::unique_ptr<Zavo::HostWindow> m_window;
    bool m_isClosed = true;
};

} // namespace ZavoTest
