#include "navigation/ZvScheduleListWidget.h"

#include "ScheduleListEditing.h"
#include "domain/ScheduleText.h"
#include "services/ZvScheduleClipboard.h"

#include <QMimeData>

using namespace Zavo;
using namespace ZavoTest;

/// Pasting schedules into the schedule list.
class tst_ZvScheduleListWidgetPaste : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pastePossibleWithSchedulesOnly();
    void pasteOfNothing();
    void pasteStandsWhereTheSelectionIs();
    void pasteToAFreeDate();
    void pastesTheFirstWithoutRepeat();
    void pastesConsecutiveDays();
    void pasteClosesTheGaps();
    void pasteToADay();
    void pasteToTheDefaultSchedule();
    void pasteCancelled();
    void pasteOfEmptySchedulesOnly();
    void pasteWithoutAChannel();
    void pasteOfAGivenList();
};

void tst_ZvScheduleListWidgetPaste::pastePossibleWithSchedulesOnly()
{
    EditingFixture fixture;
    QVERIFY(!fixture.list.isPastingPossible());
    ZvScheduleClipboard::writeTimesToClipboard(scheduleOf(defaultInfo, 1).timeList());
    QVERIFY(!fixture.list.isPastingPossible());
    ZvScheduleClipboard::writeSchedulesToClipboard({ZvSchedule()});
    QVERIFY(fixture.list.isPastingPossible());
}

void tst_ZvScheduleListWidgetPaste::pasteOfNothing()
{
    EditingFixture fixture;
    QVERIFY(!fixture.list.pasteItems());
    auto *broken = new QMimeData;
    broken->setData(QStringLiteral("application/x-zavo-schedule-data"), "<ScheduleList><Sche");
    QGuiApplication::clipboard()->setMimeData(broken);
    QVERIFY(fixture.list.isPastingPossible());
    QVERIFY(!fixture.list.pasteItems());
    QCOMPARE(fixture.log.names(), QStringList());
}

void tst_ZvScheduleListWidgetPaste::pasteStandsWhereTheSelectionIs()
{
    EditingFixture fixture;
    ZvScheduleClipboard::writeSchedulesToClipboard({scheduleOf(defaultInfo, 1)});
    const Infos selections{defaultInfo, dayInfo(1), juneInfo(4)};
    for (const ZvScheduleBasicInfo &info : selections) {
        fixture.list.selectSchedule(info);
        QVERIFY(!fixture.paste([&info](Dialog *dialog) {
            QCOMPARE(dialog->windowTitle(), QStringLiteral("Paste Schedule"));
            QCOMPARE(dialog->selectedInfo(), info);
            QVERIFY(dialog->isRepeatChecked());
            cancel(dialog);
        }));
    }
    fixture.list.selectSchedule(ZvScheduleBasicInfo());
    QVERIFY(!fixture.paste([](Dialog *dialog) {
        QCOMPARE(dialog->selectedInfo(), defaultInfo);
        cancel(dialog);
    }));
    QCOMPARE(fixture.list.findChildren<Dialog *>().size(), 0);
}

void tst_ZvScheduleListWidgetPaste::pasteToAFreeDate()
{
    EditingFixture fixture;
    ZvScheduleClipboard::writeSchedulesToClipboard({scheduleOf(dayInfo(2), 3)});
    QVERIFY(fixture.paste(acceptDate(dayOfJune(20), true)));
    QCOMPARE(fixture.log.names(), QStringList({QStringLiteral("requestStoreCurrentSchedule"),
                                               QStringLiteral("requestRemoveAndInsertSchedule")}));
    QCOMPARE(fixture.infos(1), Infos());
    QCOMPARE(fixture.inserted(1).size(), 1);
    const ZvSchedule pasted = fixture.inserted(1).first();
    QCOMPARE(pasted, scheduleOf(juneInfo(20), 3));
    // What the paste does not set is as it came.
    QCOMPARE(int(pasted.dayOfWeek()), 2);
}

void tst_ZvScheduleListWidgetPaste::pastesTheFirstWithoutRepeat()
{
    EditingFixture fixture;
    ZvScheduleClipboard::writeSchedulesToClipboard(someSchedules().mid(2));
    QVERIFY(fixture.paste(acceptDate(dayOfJune(20), false)));
    QCOMPARE(fixture.infos(1), Infos());
    QCOMPARE(fixture.inserted(1),
             Schedules{scheduleOf(juneInfo(20), 0, QStringLiteral("three.xml"))});
}

void tst_ZvScheduleListWidgetPaste::pastesConsecutiveDays()
{
    EditingFixture fixture;
    ZvScheduleClipboard::writeSchedulesToClipboard(someSchedules().mid(2));
    const QString details = QStringLiteral("The following schedule will be replaced.\n\n"
                                           "1: %1\n2: %2\n")
                                .arg(dateText(dayOfJune(4)), dateText(dayOfJune(5)));
    fixture.boxes.expect(QMessageBox::Yes)
        .title(QStringLiteral("Paste Schedule"))
        .icon(QMessageBox::Warning)
        .text(QStringLiteral("The schedule exists in paste destination. The schedule will be "
                             "replaced.\nDo you want to continue?"))
        .whileShown([&](const QMessageBox *box) { QCOMPARE(box->detailedText(), details); });
    QVERIFY(fixture.paste(acceptDate(dayOfJune(4), true)));
    QCOMPARE(fixture.infos(1), Infos({juneInfo(4), juneInfo(5)}));
    QCOMPARE(fixture.inserted(1),
             Schedules({scheduleOf(juneInfo(4), 0, QStringLiteral("three.xml")),
                        scheduleOf(juneInfo(5), 0, QStringLiteral("four.xml")),
                        scheduleOf(juneInfo(6), 0, QStringLiteral("five.xml"))}));

    fixture.log.clear();
    fixture.boxes.expect(QMessageBox::No);
    QVERIFY(!fixture.paste(acceptDate(dayOfJune(4), true)));
    fixture.boxes.expect(QMessageBox::NoButton);
    QVERIFY(!fixture.paste(acceptDate(dayOfJune(4), true)));
    QCOMPARE(fixture.log.count(QStringLiteral("requestRemoveAndInsertSchedule")), 0);
    QCOMPARE(ZvScheduleClipboard::readSchedulesFromClipboard().size(), 3);
}

void tst_ZvScheduleListWidgetPaste::pasteClosesTheGaps()
{
    EditingFixture fixture;
    ZvScheduleClipboard::writeSchedulesToClipboard({ZvSchedule(), scheduleOf(juneInfo(1), 1),
                                                    ZvSchedule(), ZvSchedule(),
                                                    scheduleOf(juneInfo(4), 2)});
    QVERIFY(fixture.paste(acceptDate(QDate(2031, 12, 31), true)));
    QCOMPARE(fixture.inserted(1),
             Schedules({scheduleOf(ZvScheduleBasicInfo(QDate(2031, 12, 31)), 1),
                        scheduleOf(ZvScheduleBasicInfo(QDate(2032, 1, 1)), 2)}));
}

void tst_ZvScheduleListWidgetPaste::pasteToADay()
{
    EditingFixture fixture;
    ZvScheduleClipboard::writeSchedulesToClipboard(someSchedules().mid(2));
    fixture.list.selectSchedule(dayInfo(1));
    fixture.log.clear();
    fixture.boxes.expect(QMessageBox::Yes);
    QVERIFY(fixture.paste(accept));
    QCOMPARE(fixture.infos(1), Infos{dayInfo(1)});
    QCOMPARE(fixture.inserted(1),
             Schedules{scheduleOf(dayInfo(1), 0, QStringLiteral("three.xml"))});
    QCOMPARE(fixture.inserted(1).first().date(), dayOfJune(3));

    // The day is today's if no day is selected, and cannot be changed.
    const int today = QDate::currentDate().dayOfWeek();
    fixture.list.selectSchedule(juneInfo(3));
    fixture.channel.removeSchedule(dayInfo(today).toSchedule());
    fixture.log.clear();
    QVERIFY(fixture.paste([](Dialog *dialog) {
        const SpecifyDialogParts parts(dialog);
        QTest::mouseClick(parts.button("Type_DayOfWeek"), Qt::LeftButton);
        QCOMPARE(parts.enabledDays(), QList<int>());
        QTest::keyClick(dialog, Qt::Key_Return);
    }));
    QCOMPARE(fixture.infos(1), Infos());
    QCOMPARE(int(fixture.inserted(1).value(0).dayOfWeek()), today);
}

void tst_ZvScheduleListWidgetPaste::pasteToTheDefaultSchedule()
{
    EditingFixture fixture;
    ZvScheduleClipboard::writeSchedulesToClipboard(someSchedules().mid(3));
    fixture.boxes.expect(QMessageBox::Yes).whileShown([](const QMessageBox *box) {
        QCOMPARE(box->detailedText(),
                 QStringLiteral("The following schedule will be replaced.\n\n1: Default\n"));
    });
    QVERIFY(fixture.paste(accept));
    QCOMPARE(fixture.infos(1), Infos{defaultInfo});
    QCOMPARE(fixture.inserted(1),
             Schedules{scheduleOf(defaultInfo, 0, QStringLiteral("four.xml"))});

    fixture.channel.removeSchedule(defaultInfo.toSchedule());
    QVERIFY(fixture.paste(accept));
    QCOMPARE(fixture.infos(3), Infos());
}

void tst_ZvScheduleListWidgetPaste::pasteCancelled()
{
    EditingFixture fixture;
    ZvScheduleClipboard::writeSchedulesToClipboard(someSchedules());
    QVERIFY(!fixture.paste(cancel));
    QVERIFY(!fixture.paste([](Dialog *dialog) {
        QTest::mouseClick(SpecifyDialogParts(dialog).cancel(), Qt::LeftButton);
    }));
    QVERIFY(!fixture.paste([](Dialog *dialog) { dialog->close(); }));
    QCOMPARE(fixture.log.count(QStringLiteral("requestRemoveAndInsertSchedule")), 0);
    QVERIFY(ZvScheduleClipboard::hasScheduleData());
}

void tst_ZvScheduleListWidgetPaste::pasteOfEmptySchedulesOnly()
{
    EditingFixture fixture;
    ZvScheduleClipboard::writeSchedulesToClipboard({ZvSchedule(), ZvSchedule()});
    QVERIFY(!fixture.paste(accept));
    QCOMPARE(fixture.log.names(), QStringList{QStringLiteral("requestStoreCurrentSchedule")});
}

void tst_ZvScheduleListWidgetPaste::pasteWithoutAChannel()
{
    EditingFixture fixture;
    ZvScheduleClipboard::writeSchedulesToClipboard({scheduleOf(defaultInfo, 1)});
    fixture.list.setCurrentChannel(nullptr);
    fixture.log.clear();
    QVERIFY(fixture.paste(accept));
    QCOMPARE(fixture.infos(1), Infos());
}

void tst_ZvScheduleListWidgetPaste::pasteOfAGivenList()
{
    EditingFixture fixture;
    {
        DialogAnswer<Dialog> dialog(acceptDate(dayOfJune(20), true));
        QVERIFY(fixture.list.pasteSchedules({ZvSchedule(), scheduleOf(dayInfo(2), 3)}));
        QVERIFY(dialog.hasCome());
    }
    QCOMPARE(fixture.log.names(), QStringList{QStringLiteral("requestRemoveAndInsertSchedule")});
    QCOMPARE(fixture.inserted(0).value(0).date(), dayOfJune(20));
    DialogAnswer<Dialog> dialog(accept);
    QVERIFY(!fixture.list.pasteSchedules({}));
    QVERIFY(dialog.hasCome());
}

QTEST_MAIN(tst_ZvScheduleListWidgetPaste)
#include "tst_zvschedulelistwidget_paste.moc"
