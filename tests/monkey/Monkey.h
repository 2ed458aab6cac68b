#pragma once

#include "MonkeyChecks.h"
#include "MonkeyChoice.h"
#include "MonkeyClipboard.h"
#include "MonkeyHouse.h"

#include "ZvSchedule.h"

#include <QObject>
#include <QPointer>

#include <cstdio>

class QWidget;

namespace ZavoTest {

/// Uses the window at random, one event after the other, from the event loop. Whatever asks in a
/// loop of its own is played with, and answered in the end. After every event the checks are made;
/// the first that fails ends the run.
class Monkey final : public QObject
{
    Q_OBJECT

public:
    /// Every event is written to @p log, if it is not null, before it is sent.
    Monkey(unsigned seed, int eventCount, std::FILE *log);

    void start();

    bool hasFailed() const { return m_hasFailed; }

Q_SIGNALS:
    void finished();

private Q_SLOTS:
    void step();
    void answer();

private:
    /// What is held while one click or drag goes on; another may come in the middle of it.
    struct Hand
    {
        Qt::MouseButton button;
        Qt::KeyboardModifiers modifiers;
    };

    static bool reachesBeyondData(const QWidget *widget);
    static QString describe(const QWidget *widget);
    static QString nameOf(const QWidget *topLevel);

    void act();
    void useMouse();
    void drag(QWidget *target, const QPoint &from);
    void turnWheel();
    void useKeys();
    void type();
    void useTable();
    void useTabs();
    void triggerAction();
    void dragStages();
    void fillClipboard();
    void changeSurroundings();
    void answer(QWidget *asked);
    void useDialog(QWidget *dialog);

    QWidget *topLevel();
    QWidget *target(QWidget *topLevel);
    void press(QWidget *widget, const QPoint &position, const Hand &hand, bool down);
    void moveMouse(QWidget *widget, const QPoint &position);
    void click(QWidget *widget, const QPoint &position);
    QPoint tablePosition();
    Qt::KeyboardModifiers someModifiers();

    int nextPause();
    void note(const QString &what);
    void check();
    void checkHistory(QStringList *wrong);
    void fail(const QStringList &wrong);
    void undoAndRedoAll();
    void undoAndRedo(Zavo::ZvScheduleWorkingArea *area, MonkeyChecks::Content content);

    MonkeyChoice m_choice;
    MonkeyChoice m_dialogChoice;
    MonkeyChoice m_paceChoice;
    MonkeyHouse m_house;
    MonkeyChecks m_checks;
    MonkeyClipboard m_clipboard;
    int m_eventsLeft;
    int m_events = 0;
    int m_startCount = 0;
    int m_changeCount = 0;
    int m_undoneCount = 0;
    QString m_lastPlace;
    Zavo::ZvSchedule m_lastTable;
    std::FILE *m_log;
    QPointer<QWidget> m_asked;
    int m_playedWithAsked = 0;
    int m_answerDepth = 0;
    bool m_isActing = false;
    bool m_hasFailed = false;
};

} // namespace ZavoTest
