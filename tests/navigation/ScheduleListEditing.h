#pragma once

#include "DialogAnswer.h"
#include "MessageBoxAnswer.h"
#include "ScheduleListFixture.h"
#include "SpecifyDialogParts.h"

#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>

#include <functional>

namespace ZavoTest {

using Dialog = Zavo::ZvScheduleSpecifyScheduleDialog;
using Infos = QList<Zavo::ZvScheduleBasicInfo>;
using Schedules = QList<Zavo::ZvSchedule>;

/// The default schedule with two bands, Monday with one, three days of June with a default stage.
inline Schedules someSchedules()
{
    return {scheduleOf(defaultInfo, 2), scheduleOf(dayInfo(1), 1),
            scheduleOf(juneInfo(3), 0, QStringLiteral("three.xml")),
            scheduleOf(juneInfo(4), 0, QStringLiteral("four.xml")),
            scheduleOf(juneInfo(5), 0, QStringLiteral("five.xml"))};
}

/// A list of those schedules that writes down what it asks for.
class EditingFixture final : public ScheduleListFixture
{
public:
    EditingFixture()
    {
        QGuiApplication::clipboard()->clear();
        const Schedules schedules = someSchedules();
        for (const Zavo::ZvSchedule &schedule : schedules)
            channel.insertSchedule(schedule);
        showChannel();
        // clang-format off
        const char *const signals[] = {
            SIGNAL(requestStoreCurrentSchedule()),
            SIGNAL(requestRemoveSchedule(QList<ZvScheduleBasicInfo>,bool)),
            SIGNAL(requestRemoveAndInsertSchedule(QList<ZvScheduleBasicInfo>,QList<ZvSchedule>)),
            SIGNAL(requestCreateSchedule(QList<ZvScheduleBasicInfo>)),
            SIGNAL(selectedScheduleChanged(ZvScheduleBasicInfo)),
            SIGNAL(requestEditMenuAboutToShow()),
        };
        // clang-format on
        for (const char *name : signals)
            log.watch(&list, name);
    }

    Infos infos(int entry) const { return log.arguments(entry).value(0).value<Infos>(); }
    Schedules inserted(int entry) const { return log.arguments(entry).value(1).value<Schedules>(); }
    /// The result of a paste that is answered by @p answer in the dialog, by key.
    bool paste(const std::function<void(Dialog *)> &answer)
    {
        DialogAnswer<Dialog> dialog(answer);
        return list.pasteItems() && dialog.hasCome();
    }

    MessageBoxAnswer boxes;
    SignalLog log;
};

inline void accept(Dialog *dialog)
{
    QTest::mouseClick(SpecifyDialogParts(dialog).ok(), Qt::LeftButton);
}

inline void cancel(Dialog *dialog)
{
    QTest::keyClick(dialog, Qt::Key_Escape);
}

inline std::function<void(Dialog *)> acceptDate(const QDate &date, bool repeat)
{
    return [date, repeat](Dialog *dialog) {
        QTest::mouseClick(SpecifyDialogParts(dialog).button("Type_Date"), Qt::LeftButton);
        dialog->setDate(date);
        dialog->findChild<QCheckBox *>()->setChecked(repeat);
        accept(dialog);
    };
}

} // namespace ZavoTest
