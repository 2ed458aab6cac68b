#include "workspace/ScheduleRecorder.h"

#include "../services/TwoTabs.h"
#include "MessageBoxAnswer.h"

#include <QAbstractButton>
#include <QLocale>
#include <QtTest>

#include <algorithm>

using namespace Zavo;
using namespace ZavoTest;

namespace {

QString question(const QString &subject)
{
    return QStringLiteral("Are you sure you want to delete %1?").arg(subject);
}

QString longText(const QDate &date)
{
    const QLocale locale = QLocale::system();
    return QStringLiteral("%1(%2)").arg(locale.toString(date, QLocale::LongFormat),
                                        locale.dayName(date.dayOfWeek(), QLocale::ShortFormat));
}

ExpectedBox &expectDeletion(MessageBoxAnswer &boxes, QMessageBox::StandardButton reply,
                            const QString &subject)
{
    return boxes.expect(reply)
        .title(QStringLiteral("Confirm Delete"))
        .text(question(subject))
        .icon(QMessageBox::Warning)
        .buttons(QMessageBox::Yes | QMessageBox::No);
}

bool hasDetailsButton(const QMessageBox *box)
{
    const QList<QAbstractButton *> buttons = box->buttons();
    return std::any_of(buttons.cbegin(), buttons.cend(), [box](QAbstractButton *button) {
        return box->buttonRole(button) == QMessageBox::ActionRole;
    });
}

int stepsOf(const ZvScheduleWorkingArea *area)
{
    return area->undoStack()->count();
}

} // namespace

/// Schedules are deleted after a question, and come back whole.
class tst_ScheduleRecorderDeletion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deletionOfTheScheduleOnShow();
    void refusedDeletion();
    void unsavedMovesComeBack();
    void subjectAndDetails_data();
    void subjectAndDetails();
    void deletionAsksByDefault();
    void deletionWithoutAQuestion();
    void confirmation_data();
    void confirmation();
};

void tst_ScheduleRecorderDeletion::deletionOfTheScheduleOnShow()
{
    const TwoTabs tabs;
    const QStringList before = tabs.state();
    MessageBoxAnswer boxes;
    bool details = true;
    const QString monday = QLocale::system().dayName(Qt::Monday, QLocale::LongFormat);
    expectDeletion(boxes, QMessageBox::Yes, QStringLiteral("the schedule of ") + monday)
        .whileShown([&](QMessageBox *box) {
            details = hasDetailsButton(box) || !box->detailedText().isEmpty();
            QCOMPARE(box->parentWidget(), static_cast<QWidget *>(tabs.widget()));
            QCOMPARE(tabs.state(), before);
        });
    tabs.widget()->removeScheduleByCurrentInfoWithUndo();
    QVERIFY(!details);
    QVERIFY(!tabs.first()->hasSchedule(mondayInfo));
    QVERIFY(!tabs.first()->isCurrentScheduleEnabled());
    QCOMPARE(tabs.first()->currentScheduleInfo(), mondayInfo);
    QCOMPARE(stepsOf(tabs.first()), 1);
    tabs.group()->undo();
    QCOMPARE(tabs.state(), before);
}

void tst_ScheduleRecorderDeletion::refusedDeletion()
{
    const TwoTabs tabs;
    const QStringList before = tabs.state();
    const auto edited = QStringList{tabs.selection()};
    for (const QMessageBox::StandardButton reply : {QMessageBox::No, QMessageBox::NoButton}) {
        MessageBoxAnswer boxes;
        boxes.expect(reply);
        boxes.expect(reply);
        tabs.widget()->removeScheduleByCurrentInfoWithUndo();
        tabs.widget()->removeScheduleWithUndo({mondayInfo, dateInfo()}, true);
        QCOMPARE(boxes.answeredCount(), 2);
    }
    QCOMPARE(tabs.state(), before);
    QCOMPARE(QStringList{tabs.selection()}, edited);
    QCOMPARE(stepsOf(tabs.first()), 0);
}

void tst_ScheduleRecorderDeletion::unsavedMovesComeBack()
{
    for (const bool ofCurrent : {true, false}) {
        const TwoTabs tabs;
        ZvTimeTableTimeItem *item = tabs.scene()->timeZoneItem()->timeItems().at(1);
        item->setY(item->y() + 60.0);
        item->updateTimeInfo();
        MessageBoxAnswer boxes;
        boxes.expect(QMessageBox::Yes);
        if (ofCurrent)
            tabs.widget()->removeScheduleByCurrentInfoWithUndo();
        else
            tabs.widget()->removeScheduleWithUndo({mondayInfo});
        tabs.group()->undo();
        QCOMPARE(bandTexts(tabs.first()->currentTimes()).at(1),
                 QStringLiteral("11:00:00.00-12:00:00.00 b.xml"));
    }
}

void tst_ScheduleRecorderDeletion::subjectAndDetails_data()
{
    QTest::addColumn<QList<ZvScheduleBasicInfo>>("list");
    QTest::addColumn<QString>("subject");
    QTest::addColumn<QString>("lines");
    const QDate date = dateInfo().date();
    const QString one = QStringLiteral("the selected schedule");
    const QString several = QStringLiteral("the selected schedules");
    using List = QList<ZvScheduleBasicInfo>;
    QTest::newRow("none") << List{} << several << QString();
    QTest::newRow("default") << List{defaultInfo} << one << QStringLiteral("1: Default\n");
    QTest::newRow("date") << List{dateInfo()} << one
                          << QStringLiteral("1: %1\n").arg(longText(date));
    // A day of the week has no date, whose day would be its name.
    QTest::newRow("day") << List{mondayInfo} << one << QString();
    ZvScheduleBasicInfo dayWithDate = mondayInfo;
    dayWithDate.setDate(QDate(2026, 3, 11));
    QTest::newRow("day with a date") << List{dayWithDate} << one
                                     << QStringLiteral("1: %1\n").arg(QLocale::system().dayName(
                                            Qt::Wednesday, QLocale::LongFormat));
    QTest::newRow("no type") << List{ZvScheduleBasicInfo()} << one << QString();
    QTest::newRow("several") << List{dateInfo(), mondayInfo, ZvScheduleBasicInfo(), defaultInfo,
                                     dateInfo(1)}
                             << several
                             << QStringLiteral("1: %1\n2: Default\n3: %2\n")
                                    .arg(longText(date), longText(date.addDays(1)));
}

void tst_ScheduleRecorderDeletion::subjectAndDetails()
{
    QFETCH(QList<ZvScheduleBasicInfo>, list);
    QFETCH(QString, subject);
    QFETCH(QString, lines);
    const TwoTabs tabs;
    MessageBoxAnswer boxes;
    const QString details =
        lines.isEmpty() ? QString()
                        : QStringLiteral("The following schedule will be deleted.\n\n") + lines;
    expectDeletion(boxes, QMessageBox::No, subject).whileShown([&details](QMessageBox *box) {
        QCOMPARE(box->detailedText(), details);
        QCOMPARE(hasDetailsButton(box), !details.isEmpty());
    });
    tabs.widget()->removeScheduleWithUndo(list, true);
    QVERIFY(boxes.isDone());
}

void tst_ScheduleRecorderDeletion::deletionAsksByDefault()
{
    const TwoTabs tabs;
    MessageBoxAnswer boxes;
    expectDeletion(boxes, QMessageBox::Yes, QStringLiteral("the selected schedule"));
    QVERIFY(QMetaObject::invokeMethod(tabs.widget(), "removeScheduleWithUndo",
                                      Q_ARG(QList<ZvScheduleBasicInfo>, {dateInfo()})));
    QVERIFY(boxes.isDone());
    QVERIFY(!tabs.first()->hasSchedule(dateInfo()));
}

void tst_ScheduleRecorderDeletion::deletionWithoutAQuestion()
{
    const MessageBoxAnswer noBoxes;
    const TwoTabs tabs;
    tabs.widget()->removeScheduleWithUndo({dateInfo(), defaultInfo, sundayInfo}, false);
    QCOMPARE(tabs.first()->channel()->scheduleList().size(), 1);
    QCOMPARE(stepsOf(tabs.first()), 1);
    // Nothing of these exists; the step is there all the same, and harmless.
    tabs.widget()->removeScheduleWithUndo({dateInfo(9)}, false);
    QCOMPARE(stepsOf(tabs.first()), 2);
    tabs.group()->undo();
    tabs.group()->redo();
    QCOMPARE(tabs.first()->channel()->scheduleList().size(), 1);
}

void tst_ScheduleRecorderDeletion::confirmation_data()
{
    QTest::addColumn<QString>("details");
    QTest::addColumn<int>("reply");
    QTest::addColumn<bool>("isYes");
    QTest::newRow("yes") << QString() << int(QMessageBox::Yes) << true;
    QTest::newRow("no") << QStringLiteral("1: A") << int(QMessageBox::No) << false;
    QTest::newRow("escape") << QStringLiteral("1: A") << int(QMessageBox::NoButton) << false;
}

void tst_ScheduleRecorderDeletion::confirmation()
{
    QFETCH(QString, details);
    QFETCH(int, reply);
    const TwoTabs tabs;
    MessageBoxAnswer boxes;
    bool hasButton = false;
    QString shown;
    expectDeletion(boxes, static_cast<QMessageBox::StandardButton>(reply), QStringLiteral("50%1"))
        .whileShown([&](QMessageBox *box) {
            hasButton = hasDetailsButton(box);
            shown = box->detailedText();
        });
    QTEST(tabs.widget()->confirmDelete(QStringLiteral("50%1"), details), "isYes");
    QCOMPARE(hasButton, !details.isEmpty());
    QCOMPARE(shown, details);
    QVERIFY(tabs.widget()->findChildren<QMessageBox *>().isEmpty());
}

QTEST_MAIN(tst_ScheduleRecorderDeletion)
#include "tst_schedulerecorder_deletion.moc"
