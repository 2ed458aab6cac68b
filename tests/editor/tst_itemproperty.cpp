#include "DockHost.h"
#include "MessageBoxAnswer.h"

#include "domain/ActionNames.h"
#include "timetable/ZvScheduleItemPropertyWidget.h"
#include "timetable/ZvTimeSpinBox.h"
#include "timetable/ZvTimeSpinWidget.h"
#include "timetable/ZvTimeTableTimeItem.h"
#include "timetable/ZvTimeTableTimeZoneItem.h"

#include <QLabel>
#include <QUndoStack>

using namespace Zavo;
using namespace ZavoTest;

namespace {

ZvTime band(int from, int to, const char *stage)
{
    return {QTime(from, 0), QTime(to, 0), QLatin1String(stage)};
}

// The editor with bands on two channels, and its panel.
class PanelHost : public DockHost
{
public:
    PanelHost()
        : DockHost({QStringLiteral("Alpha"), QStringLiteral("Beta")})
    {
    }

    bool startWithBands()
    {
        if (!startSettled())
            return false;
        window->activateWindow();
        area(0)->insertTimeItems({band(6, 7, "a.xml"), band(8, 9, "b.xml"), band(9, 11, "c.xml")});
        tabs()->setCurrentIndex(1);
        area(1)->insertTimeItems({band(20, 21, "z.xml")});
        tabs()->setCurrentIndex(0);
        for (int i : {0, 1}) {
            area(i)->undoStack()->clear();
            area(i)->refreshStoredSchedule();
            area(i)->renewSavedChannel();
        }
        return QTest::qWaitForWindowActive(window.get());
    }

    ZvScheduleItemPropertyWidget *panel() const
    {
        return qobject_cast<ZvScheduleItemPropertyWidget *>(item()->widget());
    }
    ZvTimeSpinBox *box(int editorIndex, int part) const
    {
        const auto *time = panel()->findChildren<ZvTimeSpinWidget *>().at(editorIndex);
        return time->findChildren<ZvTimeSpinBox *>().at(part);
    }
    QString shown() const
    {
        QStringList texts;
        for (int editorIndex : {0, 1}) {
            for (int part : {0, 1, 2})
                texts.append(box(editorIndex, part)->text());
        }
        return texts.join(QLatin1Char(':'));
    }
    void select(int index) const
    {
        editor->action_deselectAll();
        for (int i = -1; i < index; ++i)
            panel()->selectNextTimeItem();
        QCoreApplication::processEvents();
    }
    QStringList bands(int index) const
    {
        QStringList texts;
        const QList<ZvTime> times = area(index)->currentTimes();
        for (const ZvTime &time : times)
            texts.append(time.startTime().toString() + QLatin1Char('-') +
                         time.endTime().toString());
        return texts;
    }
    void trigger(const char *name) const
    {
        QVERIFY(QTest::qWaitFor([&] { return action(name)->isEnabled(); }));
        action(name)->trigger();
        QCoreApplication::processEvents();
    }
};

} // namespace

class tst_ItemProperty : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void contentOfTheDock();
    void changesAreUndone();
    void everyChangeIsAStep();
    void noStepWithoutAChange();
    void undoOnAnotherTab();
    void undoOnAnotherSchedule();
    void tabChangedWhileTyping();
    void scheduleChangedWhileTyping();
    void deletedWhileFocused();
    void keysOfThePanelDoNotReachTheTable();
    void changeIsSaved();
    void afterClose();
};

void tst_ItemProperty::contentOfTheDock()
{
    PanelHost host;
    QVERIFY(host.startWithBands());
    QVERIFY(host.panel());
    QVERIFY(host.panel()->isVisible());
    host.select(1);
    QCOMPARE(host.shown(), QStringLiteral("8:0:0:9:0:0"));
    QVERIFY(host.box(0, 0)->isEnabled());
    host.editor->action_selectAll();
    QCoreApplication::processEvents();
    QCOMPARE(host.shown(), QStringLiteral("6:0:0:11:0:0"));
    QVERIFY(!host.box(0, 0)->isEnabled());
    host.editor->action_deselectAll();
    QCoreApplication::processEvents();
    QCOMPARE(host.shown(), QStringLiteral("0:0:0:24:0:0"));
}

void tst_ItemProperty::changesAreUndone()
{
    PanelHost host;
    QVERIFY(host.startWithBands());
    const QStringList before = host.bands(0);
    host.select(1);
    host.box(0, 1)->setFocus();
    QTest::keyClick(host.box(0, 1), Qt::Key_Up);
    QTest::keyClick(host.box(1, 2), Qt::Key_Down);
    const QStringList after{before.at(0), QStringLiteral("08:01:00-08:59:59"), before.at(2)};
    QCOMPARE(host.bands(0), after);
    for (int round = 0; round < 2; ++round) {
        host.trigger(ActionName::Undo);
        QCOMPARE(host.bands(0).at(1), QStringLiteral("08:01:00-09:00:00"));
        QCOMPARE(host.shown(), QStringLiteral("8:1:0:9:0:0"));
        host.trigger(ActionName::Undo);
        QCOMPARE(host.bands(0), before);
        QCOMPARE(host.shown(), QStringLiteral("8:0:0:9:0:0"));
        QTRY_VERIFY(!host.action(ActionName::Undo)->isEnabled());
        host.trigger(ActionName::Redo);
        host.trigger(ActionName::Redo);
        QCOMPARE(host.shown(), QStringLiteral("8:1:0:8:59:59"));
        QTRY_VERIFY(!host.action(ActionName::Redo)->isEnabled());
    }
}

void tst_ItemProperty::everyChangeIsAStep()
{
    PanelHost host;
    QVERIFY(host.startWithBands());
    host.select(0);
    for (int i = 1; i <= 3; ++i) {
        QTest::keyClick(host.box(0, 2), Qt::Key_Up);
        QCOMPARE(host.area(0)->undoStack()->count(), i);
    }
    QTest::keyClick(host.box(0, 2), Qt::Key_PageUp);
    QCOMPARE(host.area(0)->undoStack()->count(), 4);
    host.trigger(ActionName::Undo);
    QTest::keyClick(host.box(1, 0), Qt::Key_Up);
    QCOMPARE(host.area(0)->undoStack()->count(), 4);
    // The undo has given the end back by its geometry, which is a millisecond short.
    QCOMPARE(host.bands(0).at(0), QStringLiteral("06:00:03-07:59:59"));
}

void tst_ItemProperty::noStepWithoutAChange()
{
    PanelHost host;
    QVERIFY(host.startWithBands());
    for (int index : {0, 1, 2, 1})
        host.select(index);
    QTest::keyClick(host.box(1, 2), Qt::Key_Up); // the next band is in the way
    QTest::keyClick(host.box(0, 2), Qt::Key_Return);
    host.editor->action_selectAll();
    host.editor->action_deselectAll();
    QCoreApplication::processEvents();
    QCOMPARE(host.area(0)->undoStack()->count(), 0);
    QVERIFY(!host.area(0)->isChannelChanged());
}

void tst_ItemProperty::undoOnAnotherTab()
{
    PanelHost host;
    QVERIFY(host.startWithBands());
    host.select(0);
    QTest::keyClick(host.box(0, 0), Qt::Key_Down);
    host.tabs()->setCurrentIndex(1);
    QCoreApplication::processEvents();
    host.select(0);
    QCOMPARE(host.shown(), QStringLiteral("20:0:0:21:0:0"));
    QTest::keyClick(host.box(1, 0), Qt::Key_Up);
    QCOMPARE(host.bands(1).at(0), QStringLiteral("20:00:00-22:00:00"));
    host.trigger(ActionName::Undo);
    QCOMPARE(host.bands(1).at(0), QStringLiteral("20:00:00-21:00:00"));
    QCOMPARE(host.bands(0).at(0), QStringLiteral("05:00:00-07:00:00"));
    host.tabs()->setCurrentIndex(0);
    host.trigger(ActionName::Undo);
    QCOMPARE(host.bands(0).at(0), QStringLiteral("06:00:00-07:00:00"));
    QCOMPARE(host.shown(), QStringLiteral("6:0:0:7:0:0"));
}

void tst_ItemProperty::undoOnAnotherSchedule()
{
    PanelHost host;
    QVERIFY(host.startWithBands());
    host.select(2);
    QTest::keyClick(host.box(1, 0), Qt::Key_Up);
    host.main()->switchToDayOfWeekSchedule(Qt::Friday);
    QCoreApplication::processEvents();
    QCOMPARE(host.shown(), QStringLiteral("0:0:0:24:0:0"));
    QVERIFY(!host.box(0, 0)->isEnabled());
    host.trigger(ActionName::Undo);
    QCOMPARE(host.area(0)->currentScheduleInfo(), ZvScheduleBasicInfo(ZvSchedule::Default));
    QCOMPARE(host.bands(0).at(2), QStringLiteral("09:00:00-11:00:00"));
    QCOMPARE(host.shown(), QStringLiteral("9:0:0:11:0:0"));
}

void tst_ItemProperty::tabChangedWhileTyping()
{
    PanelHost host;
    QVERIFY(host.startWithBands());
    host.tabs()->setCurrentIndex(1);
    QCoreApplication::processEvents();
    host.select(0);
    host.tabs()->setCurrentIndex(0);
    QCoreApplication::processEvents();
    host.select(1);
    const QStringList others = host.bands(1);
    host.box(0, 0)->setFocus();
    host.box(0, 0)->selectAll();
    QTest::keyClicks(host.box(0, 0), QStringLiteral("2")); // not in the range so far
    host.tabs()->setCurrentIndex(1);
    QCoreApplication::processEvents();
    QCOMPARE(host.bands(1), others);
    QCOMPARE(host.shown(), QStringLiteral("20:0:0:21:0:0"));
    QCOMPARE(host.area(1)->undoStack()->count(), 0);
    host.tabs()->setCurrentIndex(0);
    QCoreApplication::processEvents();
    const QStringList bands = host.bands(0);
    QVERIFY(bands.at(1) == QStringLiteral("08:00:00-09:00:00") ||
            bands.at(1) == QStringLiteral("07:00:00-09:00:00"));
}

void tst_ItemProperty::scheduleChangedWhileTyping()
{
    PanelHost host;
    QVERIFY(host.startWithBands());
    host.select(1);
    host.box(1, 0)->setFocus();
    host.box(1, 0)->selectAll();
    QTest::keyClicks(host.box(1, 0), QStringLiteral("2"));
    const QStringList before = host.bands(0);
    host.main()->switchToDayOfWeekSchedule(Qt::Friday);
    QCoreApplication::processEvents();
    QCOMPARE(host.shown(), QStringLiteral("0:0:0:24:0:0"));
    QTest::keyClicks(host.box(1, 0), QStringLiteral("3"));
    host.main()->switchToDefaultSchedule();
    QCoreApplication::processEvents();
    QCOMPARE(host.bands(0), before);
    QCOMPARE(host.area(0)->undoStack()->count(), 0);
}

void tst_ItemProperty::deletedWhileFocused()
{
    PanelHost host;
    QVERIFY(host.startWithBands());
    host.select(1);
    host.box(0, 1)->setFocus();
    host.editor->action_delete();
    QTest::keyClick(host.box(0, 1), Qt::Key_Up);
    QCoreApplication::processEvents();
    QCOMPARE(host.bands(0).size(), 2);
    QCOMPARE(host.shown(), QStringLiteral("0:0:0:24:0:0"));
    host.trigger(ActionName::Undo);
    QCOMPARE(host.bands(0).size(), 3);
}

// Delete, Ctrl+A, Ctrl+C and the like are the box's own while it has the focus.
void tst_ItemProperty::keysOfThePanelDoNotReachTheTable()
{
    PanelHost host;
    QVERIFY(host.startWithBands());
    host.select(1);
    ZvTimeSpinBox *box = host.box(0, 1);
    box->setFocus();
    QTRY_VERIFY(host.action(ActionName::Delete)->isEnabled());
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(box, Qt::Key_Delete);
    QTest::keyClicks(box, QStringLiteral("30"));
    QCoreApplication::processEvents();
    QCOMPARE(host.bands(0).size(), 3);
    QCOMPARE(host.bands(0).at(1), QStringLiteral("08:30:00-09:00:00"));
    QCOMPARE(host.area(0)->selectedTimeItems().size(), 1);
}

void tst_ItemProperty::changeIsSaved()
{
    PanelHost host;
    QVERIFY(host.startWithBands());
    host.select(2);
    QTest::keyClick(host.box(1, 2), Qt::Key_Up);
    QTest::keyClick(host.box(1, 2), Qt::Key_Up);
    host.action(ActionName::SaveChannel)->trigger();
    const ZvChannel saved =
        readChannelFile(host.data.filePath(QStringLiteral("channel/channel0.xml")));
    QCOMPARE(saved.scheduleList().first().timeList().last().endTime(), QTime(11, 0, 2));
}

void tst_ItemProperty::afterClose()
{
    PanelHost host;
    QVERIFY(host.startWithBands());
    host.select(1);
    const QPointer<ZvScheduleItemPropertyWidget> panel = host.panel();
    const QPointer<ZvTimeSpinBox> box = host.box(0, 1);
    const MessageBoxAnswer noBox;
    host.editor->close();
    host.scenes.clear();
    QVERIFY(panel);
    box->stepUp();
    panel->selectNextTimeItem();
    QTRY_VERIFY(!panel);
}

QTEST_MAIN(tst_ItemProperty)
#include "tst_itemproperty.moc"
