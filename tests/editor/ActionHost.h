#pragma once

#include "EditorFixture.h"

#include <QDialog>
#include <QMap>
#include <QTimer>
#include <QToolBar>
#include <QUrl>

class QUndoCommand;

namespace Zavo {
class ZvScheduleListWidget;
class ZvScheduleSwitcherWidget;
} // namespace Zavo

namespace ZavoTest {

/// What the commands find when they are given: which schedule is on show, what is selected in its
/// table of three bands, and what is marked in the list of three schedules.
enum class Target {
    Missing, ///< a date that has no schedule; nothing is marked
    Nothing, ///< the schedule of a date; nothing is selected or marked
    Partly,  ///< the same, in a selected week; one band is selected, one schedule marked
    Wholly,  ///< the same; all bands are selected, all schedules marked
    WeekDay, ///< the schedule of a week day; two bands are selected, it alone is marked
    Default, ///< the default schedule; all bands are selected, it alone is marked
    First    ///< the first tab on a machine that shows what it edits: an empty default schedule,
             ///< which is marked, with neither a history nor anything on the clipboard
};

/// An editor in which every action has something to do, on the second of three tabs but for one
/// target, and what can be seen of it from outside: before and after, and what it asks and requests
/// meanwhile. Questions are answered so that the command goes on, if nothing else is said; dialogs
/// are left by Escape.
class ActionHost final : public QObject, public EditorFixture
{
    Q_OBJECT

public:
    using State = QMap<QString, QString>;

    explicit ActionHost(Target target);
    ~ActionHost() override;
    Q_DISABLE_COPY(ActionHost)

    bool isReady() const { return m_isReady; }

    /// Undoes whatever was done and shows @p target as a new host does, answers included. False if
    /// that cannot be, because the editor or a tab has gone, or because the host would not be like
    /// a new one.
    bool show(Target target);

    /// From now on questions are answered by the button that gives the command up.
    void decline() { m_isDeclining = true; }

    QToolBar *toolBar() const;
    Zavo::ZvScheduleListWidget *list() const;
    Zavo::ZvScheduleSwitcherWidget *switcher() const;

    /// All actions, those of the menus and their submenus and the one that only the tool bar has.
    QList<QAction *> actions() const;

    /// Those of @p menu and its submenus.
    static QList<QAction *> actionsOf(const QMenu *menu);

    QAction *actionOf(const QString &name) const;

    /// What the tests call an action: its text without what a key or a dialog adds.
    static QString nameOf(const QAction *action);

    State state() const;

    /// What has changed since @p before and what happened meanwhile, as one line.
    QString changesSince(const State &before);

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
    bool isFirst() const { return m_target == Target::First; }
    void restoreChannels();
    void removeAddedTabs();
    void undoEdits();
    void restoreFiles();
    void restoreDocks();
    void restoreCalendar();
    void makeEdits();
    void setFirstDefaultStage(const QString &stage);
    void showSchedule();
    void select() const;
    void mark() const;
    void fillClipboard() const;
    void insertCalendar(State *state) const;
    void connectWitnesses();
    State fileState() const;
    QString tabTexts() const;
    QString visibleDocks() const;

    Target m_target;
    bool m_isReady = false;
    bool m_isDeclining = false;
    State m_files;
    QByteArray m_layout;
    QPointer<Zavo::ZvScheduleWorkingArea> m_page;
    QPointer<QWidget> m_nameEditor;
    QMap<int, const QUndoCommand *> m_edits; // the last ones, by tab
    QTimer m_answers;
    QPointer<QDialog> m_answered;
    QStringList m_events;
};

} // namespace ZavoTest
