#pragma once

#include "EditorFixture.h"

#include <QDialog>
#include <QMap>
#include <QTimer>
#include <QToolBar>
#include <QUrl>

namespace Zavo {
class ZvScheduleListWidget;
class ZvScheduleSwitcherWidget;
} // namespace Zavo

namespace ZavoTest {

/// What the commands find when they are given: which schedule is on show, what is selected in its
/// table of three bands, and what is marked in the list of two schedules.
enum class Target {
    Missing, ///< a date that has no schedule; nothing is marked
    Nothing, ///< the schedule of a date; nothing is selected or marked
    Partly,  ///< the same, in a selected week; one band is selected, one schedule marked
    Wholly,  ///< the same; all bands are selected, all schedules marked
    Default  ///< the default schedule; all bands are selected, it alone is marked
};

/// An editor in which every action has something to do, on the second of three tabs, and what can
/// be seen of it from outside: before and after, and what it asks and requests meanwhile. Questions
/// are answered so that the command goes on, dialogs are left by Escape.
class ActionHost final : public QObject, public EditorFixture
{
    Q_OBJECT

public:
    using State = QMap<QString, QString>;

    explicit ActionHost(Target target);
    ~ActionHost() override;
    Q_DISABLE_COPY(ActionHost)

    bool isReady() const { return m_isReady; }

    QToolBar *toolBar() const;
    Zavo::ZvScheduleListWidget *list() const;
    Zavo::ZvScheduleSwitcherWidget *switcher() const;

    /// All actions, those of the menus and their submenus and the one that only the tool bar has.
    QList<QAction *> actions() const;

    QAction *actionOf(const QString &name) const;

    /// What the tests call an action: its text without what a key or a dialog adds.
    static QString nameOf(const QAction *action);

    State state() const;

    /// What has changed since @p before and what happened meanwhile, as one line.
    QString changesSince(const State &before);

    /// Undoes what an edit command did, and forgets it. False if the host is not as it was then.
    bool goBackTo(const State &before);

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /// The desktop.
    void open(const QUrl &url);

private Q_SLOTS:
    void onClosed() { m_events.append(QStringLiteral("closed")); }
    void onQuit() { m_events.append(QStringLiteral("quit")); }
    void onUpload() { m_events.append(QStringLiteral("upload")); }
    void onConfigure() { m_events.append(QStringLiteral("configure")); }
    void onExport(const QString &path);
    void onClipboard() { m_events.append(QStringLiteral("copied")); }
    void answer();

private:
    void writeChannels();
    bool startHidden();
    bool prepare();
    void select() const;
    void mark() const;
    void insertCalendar(State *state) const;
    void connectWitnesses();
    State fileState() const;
    QString tabTexts() const;
    QString visibleDocks() const;

    const Target m_target;
    bool m_isReady = false;
    QPointer<Zavo::ZvScheduleWorkingArea> m_page;
    QTimer m_answers;
    QPointer<QDialog> m_answered;
    QStringList m_events;
};

} // namespace ZavoTest
