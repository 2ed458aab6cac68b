#include "editor/ZvScheduleEditor.h"
#include "navigation/ZvCalendarWidget.h"
#include "navigation/ZvDayOfWeekWidget.h"
#include "navigation/ZvScheduleDefaultWidget.h"
#include "navigation/ZvScheduleListWidget.h"
#include "navigation/ZvScheduleSpecifyScheduleDialog.h"
#include "navigation/ZvScheduleSwitcherSelectedWidget.h"
#include "navigation/ZvScheduleSwitcherWidget.h"
#include "navigation/ZvScheduledToBeExecutedWidget.h"
#include "navigation/ZvTodayWidget.h"
#include "navigation/ZvWeekWidget.h"
#include "stages/ZvScheduleAutoStageSwichSettingWidget.h"
#include "stages/ZvScheduleDefaultStageWidget.h"
#include "stages/ZvScheduleStageChooserWidget.h"
#include "stages/ZvScheduleStageListView.h"
#include "timetable/ZvScheduleItemPropertyWidget.h"
#include "timetable/ZvScheduleWorkingArea.h"
#include "timetable/ZvTimeSpinBox.h"
#include "timetable/ZvTimeSpinWidget.h"
#include "timetable/ZvTimeTableBaseItem.h"
#include "timetable/ZvTimeTableScene.h"
#include "timetable/ZvTimeTableTimeItem.h"
#include "timetable/ZvTimeTableTimeItemLabel.h"
#include "timetable/ZvTimeTableTimeItemResizeHandle.h"
#include "timetable/ZvTimeTableTimeZoneItem.h"
#include "timetable/ZvTimeTableView.h"
#include "workspace/ZvScheduleMainWidget.h"
#include "workspace/ZvScheduleRenameTabWidget.h"
#include "workspace/ZvScheduleTabWidget.h"

#include <QtTest>

using namespace Zavo;

Q_DECLARE_METATYPE(const QMetaObject *)

/// Whoever records signals or queues them goes by the names of their arguments' types, from the
/// moment the library is loaded. No object is made here: a constructor could make a type known.
class tst_SignalTypes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areKnown_data();
    void areKnown();
};

namespace {

template<typename... Classes>
void addSignalRows()
{
    for (const QMetaObject *object : {&Classes::staticMetaObject...}) {
        for (; object && qstrncmp(object->className(), "Q", 1) != 0;
             object = object->superClass()) {
            for (int i = object->methodOffset(); i < object->methodCount(); ++i) {
                const QMetaMethod method = object->method(i);
                if (method.methodType() == QMetaMethod::Signal && method.parameterCount() > 0)
                    QTest::addRow("%s::%s", object->className(),
                                  method.methodSignature().constData())
                        << object << i;
            }
        }
    }
}

bool isKnown(const QMetaObject *object, int method, int argument)
{
    const QByteArray name = object->method(method).parameterTypes().at(argument);
    if (QMetaType::type(name.constData()) != QMetaType::UnknownType)
        return true;
    // What the generated code makes known by itself, a spy finds.
    int type = -1;
    void *arguments[] = {&type, &argument};
    object->static_metacall(QMetaObject::RegisterMethodArgumentMetaType,
                            method - object->methodOffset(), arguments);
    return type > QMetaType::UnknownType;
}

} // namespace

void tst_SignalTypes::areKnown_data()
{
    QTest::addColumn<const QMetaObject *>("object");
    QTest::addColumn<int>("method");
    addSignalRows<ZvScheduleEditor, ZvScheduleMainWidget, ZvScheduleTabWidget,
                  ZvScheduleRenameTabWidget, ZvScheduleWorkingArea, ZvTimeTableScene,
                  ZvTimeTableView, ZvTimeTableBaseItem, ZvTimeTableTimeZoneItem,
                  ZvTimeTableTimeItem, ZvTimeTableTimeItemLabel, ZvTimeTableTimeItemResizeHandle,
                  ZvScheduleItemPropertyWidget, ZvTimeSpinWidget, ZvTimeSpinBox, ZvCalendarWidget,
                  ZvDayOfWeekWidget, ZvScheduleDefaultWidget, ZvScheduleListWidget,
                  ZvScheduleSpecifyScheduleDialog, ZvScheduleSwitcherSelectedWidget,
                  ZvScheduleSwitcherWidget, ZvScheduledToBeExecutedWidget, ZvTodayWidget,
                  ZvWeekWidget, ZvScheduleAutoStageSwichSettingWidget, ZvScheduleDefaultStageWidget,
                  ZvScheduleStageChooserWidget, ZvScheduleStageListView>();
}

void tst_SignalTypes::areKnown()
{
    QFETCH(const QMetaObject *, object);
    QFETCH(int, method);
    const QList<QByteArray> types = object->method(method).parameterTypes();
    for (int i = 0; i < types.size(); ++i)
        QVERIFY2(isKnown(object, method, i), types.at(i).constData());
}

QTEST_GUILESS_MAIN(tst_SignalTypes)
#include "tst_signaltypes.moc"
