#include "navigation/ZvScheduleSpecifyScheduleDialog.h"

#include "MessageBoxAnswer.h"
#include "SpecifyDialogParts.h"
#include "navigation/FreeSchedule.h"

#include "ZvChannel.h"

#include <QCheckBox>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>
#include <QtTest>

using namespace Zavo;
using namespace ZavoTest;

using Dialog = ZvScheduleSpecifyScheduleDialog;
using Existing = QMap<ZvScheduleBasicInfo, bool>;

namespace {

const ZvScheduleBasicInfo defaultInfo(ZvSchedule::Default);

ZvScheduleBasicInfo dayInfo(int day)
{
    return ZvScheduleBasicInfo(static_cast<Weekday::Days>(day));
}

QDate today(int offset = 0)
{
    return QDate::currentDate().addDays(offset);
}

ZvScheduleBasicInfo dateInfo(int offset)
{
    return ZvScheduleBasicInfo(today(offset));
}

QList<ZvScheduleBasicInfo> dayInfos(int first, int last)
{
    QList<ZvScheduleBasicInfo> infos;
    for (int day = first; day <= last; ++day)
        infos.append(dayInfo(day));
    return infos;
}

ZvChannel channelOf(const QList<ZvScheduleBasicInfo> &infos)
{
    ZvChannel channel(QStringLiteral("/nowhere/channel1.xml"));
    for (const ZvScheduleBasicInfo &info : infos)
        channel.insertSchedule(info.toSchedule());
    return channel;
}

Existing existingOf(const QList<ZvScheduleBasicInfo> &infos)
{
    Existing existing;
    for (const ZvScheduleBasicInfo &info : infos)
        existing.insert(info, true);
    return existing;
}

void showAndWait(Dialog *dialog)
{
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    // Until the size has followed the type.
    QTest::qWait(150);
}

} // namespace

class tst_ZvScheduleSpecifyScheduleDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asksByMode_data();
    void asksByMode();
    void isLaidOut();
    void offersTypesAndDays();
    void standsOnTodayAtFirst();
    void followsTheDate();
    void changesItsMode();

    void createOffersFreeDaysOnly();
    void createStandsWithoutAChannel();
    void pasteKeepsTheDay();
    void presetsAreChecked();

    void proposes_data();
    void proposes();
    void proposesNothingIfAllIsTaken();
    void createProposesADateIfAllDaysAreTaken();
    void createProposesTheNextDate();
    void createFromTheDefaultSchedule();
    void createWithNothingSelected();
    void takenDayIsNotRefused();

    void refusesATakenDate();
    void acceptsWhatIsNotValidated();
    void standsItsDeathUnderTheMessage();
    void isWorkedByKey();
    void isWorkedByMouse();
    void sizeFollowsTheTypeLater();
};

void tst_ZvScheduleSpecifyScheduleDialog::asksByMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::newRow("create") << 0 << QStringLiteral("Create Schedule")
                            << QStringLiteral(
                                   "The new schedule will be created. \nYou have to select "
                                   "Schedule Type and specify a day of week, or a date.");
    QTest::newRow("paste") << 1 << QStringLiteral("Paste Schedule")
                           << QStringLiteral("The schedule will be pasted from a clipboard. \nYou "
                                             "have to specify a destination of pasting.");
    QTest::newRow("jump") << 2 << QStringLiteral("Jump To Schedule")
                          << QStringLiteral("Specify the schedule you want to jump.");
}

void tst_ZvScheduleSpecifyScheduleDialog::asksByMode()
{
    QFETCH(int, mode);
    QFETCH(QString, title);
    QFETCH(QString, text);
    const Dialog dialog(static_cast<Dialog::Mode>(mode), nullptr);
    QCOMPARE(dialog.windowTitle(), title);
    const auto *label = qobject_cast<QLabel *>(dialog.layout()->itemAt(0)->widget());
    QVERIFY(label);
    QCOMPARE(label->text(), text);

    const SpecifyDialogParts parts(&dialog);
    QCOMPARE(parts.button("Type_Default")->isHidden(), mode == Dialog::Create);
    QCOMPARE(parts.checkedType(), mode == Dialog::Create ? QStringLiteral("Type_DayOfWeek")
                                                         : QStringLiteral("Type_Default"));
    const auto *repeat = dialog.findChild<QCheckBox *>();
    QCOMPARE(repeat->isHidden(), mode != Dialog::Paste);
    QCOMPARE(dialog.isRepeatChecked(), mode == Dialog::Paste);
    QCOMPARE(parts.enabledDays().size(), mode == Dialog::Create ? 7 : 0);
}

void tst_ZvScheduleSpecifyScheduleDialog::isLaidOut()
{
    Dialog dialog(Dialog::Paste, nullptr, nullptr, Qt::WindowContextHelpButtonHint);
    QVERIFY(!(dialog.windowFlags() & Qt::WindowContextHelpButtonHint));
    QCOMPARE(dialog.minimumWidth(), 360);
    auto *layout = qobject_cast<QVBoxLayout *>(dialog.layout());
    QVERIFY(layout);
    QCOMPARE(layout->count(), 7);
    const SpecifyDialogParts parts(&dialog);
    const QList<QGroupBox *> groups{parts.groupOf(parts.button("Type_Date")), parts.dayGroup(),
                                    parts.dateGroup()};
    const QStringList titles{QStringLiteral("Schedule Type"), QStringLiteral("Day of Week"),
                             QStringLiteral("Date")};
    for (int i = 0; i < groups.size(); ++i) {
        QCOMPARE(layout->itemAt(2 + i)->widget(), groups.at(i));
        QCOMPARE(groups.at(i)->title(), titles.at(i));
        QVERIFY(groups.at(i)->isFlat());
    }
    for (int index : {1, 5}) {
        QVERIFY(layout->itemAt(index)->spacerItem());
        QCOMPARE(layout->itemAt(index)->sizeHint(), QSize(9, 9));
    }
    QCOMPARE(layout->itemAt(5)->spacerItem()->sizePolicy().verticalPolicy(),
             QSizePolicy::Expanding);

    const auto *box = qobject_cast<QDialogButtonBox *>(layout->itemAt(6)->widget());
    QVERIFY(box && box->centerButtons());
    QCOMPARE(box->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QCOMPARE(parts.dateEdit()->displayFormat(), QStringLiteral(" yyyy - MM - dd "));
    QVERIFY(parts.dateEdit()->calendarPopup());
    QCOMPARE(dialog.findChild<QCheckBox *>()->text(),
             QStringLiteral("Repeat the paste when there are the multiple schedules on the "
                            "clipboard."));
}

void tst_ZvScheduleSpecifyScheduleDialog::offersTypesAndDays()
{
    const Dialog dialog(Dialog::Paste, nullptr);
    const SpecifyDialogParts parts(&dialog);
    const auto describe = [](const QGroupBox *group) {
        QStringList texts;
        const auto buttons = group->findChildren<QRadioButton *>();
        for (const QRadioButton *button : buttons)
            texts.append(QStringLiteral("%1 %2 %3")
                             .arg(button->objectName(), button->text(),
                                  button->property("value").toString()));
        return texts;
    };
    QCOMPARE(describe(parts.groupOf(parts.button("Type_Default"))),
             QStringList({QStringLiteral("Type_Default Default 1"),
                          QStringLiteral("Type_DayOfWeek Day of Week 3"),
                          QStringLiteral("Type_Date Date 2")}));
    QStringList days;
    for (int day = 1; day <= 7; ++day)
        days.append(
            QStringLiteral("DayOfWeek_%1 %2 %1")
                .arg(QString::number(day), QLocale::system().dayName(day, QLocale::ShortFormat)));
    QCOMPARE(describe(parts.dayGroup()), days);
}

void tst_ZvScheduleSpecifyScheduleDialog::standsOnTodayAtFirst()
{
    const Dialog dialog(Dialog::Jump, nullptr);
    QCOMPARE(dialog.selectedType(), 1);
    QCOMPARE(dialog.selectedDay(), today().dayOfWeek());
    QCOMPARE(dialog.selectedDate(), today());
    QCOMPARE(dialog.selectedInfo(), defaultInfo);
}

void tst_ZvScheduleSpecifyScheduleDialog::followsTheDate()
{
    Dialog dialog(Dialog::Paste, nullptr);
    const auto *name = SpecifyDialogParts(&dialog).dateGroup()->findChild<QLabel *>();
    const QLocale locale = QLocale::system();
    QCOMPARE(name->text(), locale.dayName(today().dayOfWeek(), QLocale::LongFormat));
    for (int offset = 1; offset < 8; ++offset) {
        dialog.setDate(today(offset));
        QCOMPARE(name->text(), locale.dayName(today(offset).dayOfWeek(), QLocale::LongFormat));
    }
    dialog.setDate(QDate());
    QCOMPARE(dialog.selectedDate(), today(7));
}

void tst_ZvScheduleSpecifyScheduleDialog::changesItsMode()
{
    const ZvChannel channel = channelOf({defaultInfo, dayInfo(2)});
    Dialog dialog(Dialog::Paste, &channel);
    const SpecifyDialogParts parts(&dialog);
    dialog.setMode(Dialog::Create);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Create Schedule"));
    QVERIFY(parts.button("Type_Default")->isHidden());
    QCOMPARE(parts.checkedType(), QStringLiteral("Type_DayOfWeek"));
    QCOMPARE(parts.enabledDays(), QList<int>({1, 3, 4, 5, 6, 7}));
    QVERIFY(!dialog.isRepeatChecked());

    dialog.setMode(Dialog::Paste);
    QVERIFY(!parts.button("Type_Default")->isHidden());
    QCOMPARE(parts.checkedType(), QStringLiteral("Type_DayOfWeek"));
    QCOMPARE(parts.enabledDays(), QList<int>());
    QVERIFY(dialog.isRepeatChecked());
}

void tst_ZvScheduleSpecifyScheduleDialog::createOffersFreeDaysOnly()
{
    const ZvChannel channel = channelOf({defaultInfo, dayInfo(1), dayInfo(7), dateInfo(0)});
    const Dialog dialog(Dialog::Create, &channel);
    QCOMPARE(SpecifyDialogParts(&dialog).enabledDays(), QList<int>({2, 3, 4, 5, 6}));
}

void tst_ZvScheduleSpecifyScheduleDialog::createStandsWithoutAChannel()
{
    Dialog dialog(Dialog::Create, nullptr);
    dialog.setScheduleInfo(dateInfo(3));
    QCOMPARE(dialog.selectedInfo(), dayInfo(1));
    dialog.setType(ZvSchedule::Date);
    showAndWait(&dialog);
    QTest::mouseClick(SpecifyDialogParts(&dialog).ok(), Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void tst_ZvScheduleSpecifyScheduleDialog::pasteKeepsTheDay()
{
    const ZvChannel channel = channelOf({defaultInfo, dayInfo(3), dateInfo(5)});
    Dialog day(Dialog::Paste, &channel);
    day.setScheduleInfo(dayInfo(3));
    const SpecifyDialogParts parts(&day);
    QCOMPARE(parts.checkedType(), QStringLiteral("Type_DayOfWeek"));
    QVERIFY(parts.day(3)->isChecked());
    QCOMPARE(parts.enabledDays(), QList<int>());
    showAndWait(&day);
    QTest::mouseClick(parts.day(5), Qt::LeftButton);
    QCOMPARE(day.selectedInfo(), dayInfo(3));

    Dialog date(Dialog::Paste, &channel);
    date.setScheduleInfo(dateInfo(5));
    QCOMPARE(date.selectedInfo(), dateInfo(5));
    QVERIFY(date.isRepeatChecked());
    QVERIFY(!SpecifyDialogParts(&date).dateGroup()->isHidden());
    QVERIFY(SpecifyDialogParts(&date).dayGroup()->isHidden());
}

void tst_ZvScheduleSpecifyScheduleDialog::presetsAreChecked()
{
    Dialog dialog(Dialog::Paste, nullptr);
    const int day = dialog.selectedDay();
    for (int unknown : {0, -1, 4, 99}) {
        dialog.setType(unknown);
        QCOMPARE(dialog.selectedType(), 1);
        QVERIFY(SpecifyDialogParts(&dialog).dayGroup()->isHidden());
    }
    for (int unknown : {0, 8, -3}) {
        dialog.setDay(unknown);
        QCOMPARE(dialog.selectedDay(), day);
    }
    dialog.setType(3);
    dialog.setDay(6);
    QCOMPARE(dialog.selectedInfo(), dayInfo(6));
    dialog.setScheduleInfo(ZvScheduleBasicInfo());
    QCOMPARE(dialog.selectedInfo(), dayInfo(6));
}

void tst_ZvScheduleSpecifyScheduleDialog::proposes_data()
{
    using Infos = QList<ZvScheduleBasicInfo>;
    QTest::addColumn<Infos>("existing");
    QTest::addColumn<ZvScheduleBasicInfo>("selected");
    QTest::addColumn<ZvScheduleBasicInfo>("proposal");
    const Infos week = dayInfos(1, 7);
    const ZvScheduleBasicInfo none;
    const ZvScheduleBasicInfo noDate{QDate()};
    QTest::newRow("empty channel") << Infos() << dateInfo(4) << dayInfo(1);
    QTest::newRow("free day") << Infos{defaultInfo} << dayInfo(4) << dayInfo(4);
    QTest::newRow("free date") << Infos{defaultInfo} << dateInfo(4) << dateInfo(4);
    QTest::newRow("default missing") << Infos{dayInfo(1)} << defaultInfo << dayInfo(1);
    QTest::newRow("nothing selected") << Infos{defaultInfo} << none << none;
    QTest::newRow("next day") << Infos{dayInfo(2), dayInfo(3)} << dayInfo(2) << dayInfo(4);
    QTest::newRow("around the week")
        << Infos{dayInfo(6), dayInfo(7), dayInfo(1)} << dayInfo(6) << dayInfo(2);
    QTest::newRow("day before") << dayInfos(1, 5) + dayInfos(7, 7) << dayInfo(7) << dayInfo(6);
    QTest::newRow("all days taken") << week << dayInfo(5) << dateInfo(0);
    QTest::newRow("and today") << week + Infos{dateInfo(0), dateInfo(1)} << dayInfo(5)
                               << dateInfo(2);
    QTest::newRow("next date") << Infos{dateInfo(-8), dateInfo(-7)} << dateInfo(-8) << dateInfo(-6);
    QTest::newRow("default") << Infos{defaultInfo, dateInfo(0)} << defaultInfo << noDate;
}

void tst_ZvScheduleSpecifyScheduleDialog::proposes()
{
    QFETCH(QList<ZvScheduleBasicInfo>, existing);
    QFETCH(ZvScheduleBasicInfo, selected);
    QFETCH(ZvScheduleBasicInfo, proposal);
    QCOMPARE(findFreeSchedule(existingOf(existing), selected, today()), proposal);
}

void tst_ZvScheduleSpecifyScheduleDialog::proposesNothingIfAllIsTaken()
{
    QList<ZvScheduleBasicInfo> infos;
    for (int offset = 0; offset < 1098; ++offset)
        infos.append(dateInfo(offset));
    QCOMPARE(findFreeSchedule(existingOf(infos), dateInfo(0), today()), ZvScheduleBasicInfo());
    QCOMPARE(findFreeSchedule(existingOf(infos), dateInfo(1), today()), dateInfo(1098));

    const ZvChannel channel = channelOf(infos);
    Dialog dialog(Dialog::Create, &channel);
    dialog.setScheduleInfo(dateInfo(0));
    QCOMPARE(dialog.selectedInfo(), dayInfo(today().dayOfWeek()));
}

void tst_ZvScheduleSpecifyScheduleDialog::createProposesADateIfAllDaysAreTaken()
{
    const QList<ZvScheduleBasicInfo> week = dayInfos(1, 7);
    const ZvChannel channel = channelOf(week);
    Dialog dialog(Dialog::Create, &channel);
    dialog.setScheduleInfo(dayInfo(3));
    QCOMPARE(dialog.selectedInfo(), dateInfo(0));

    const ZvChannel full = channelOf(week + QList<ZvScheduleBasicInfo>{dateInfo(0), dateInfo(1)});
    Dialog later(Dialog::Create, &full);
    later.setScheduleInfo(dayInfo(3));
    QCOMPARE(later.selectedInfo(), dateInfo(2));
}

void tst_ZvScheduleSpecifyScheduleDialog::createProposesTheNextDate()
{
    const ZvChannel channel = channelOf({defaultInfo, dateInfo(10), dateInfo(11), dateInfo(13)});
    Dialog dialog(Dialog::Create, &channel);
    dialog.setScheduleInfo(dateInfo(10));
    QCOMPARE(dialog.selectedInfo(), dateInfo(12));
    QVERIFY(!SpecifyDialogParts(&dialog).dateGroup()->isHidden());
}

void tst_ZvScheduleSpecifyScheduleDialog::createFromTheDefaultSchedule()
{
    const ZvChannel channel = channelOf({defaultInfo, dateInfo(0)});
    Dialog dialog(Dialog::Create, &channel);
    dialog.setScheduleInfo(defaultInfo);
    QCOMPARE(dialog.selectedInfo(), dateInfo(0));
    showAndWait(&dialog);
    MessageBoxAnswer boxes;
    boxes.expect(QMessageBox::Ok).title(QStringLiteral("New Schedule"));
    QTest::mouseClick(SpecifyDialogParts(&dialog).ok(), Qt::LeftButton);
    QVERIFY(dialog.isVisible());
}

void tst_ZvScheduleSpecifyScheduleDialog::createWithNothingSelected()
{
    const ZvChannel channel = channelOf({defaultInfo});
    Dialog dialog(Dialog::Create, &channel);
    dialog.setScheduleInfo(ZvScheduleBasicInfo());
    QCOMPARE(SpecifyDialogParts(&dialog).checkedType(), QStringLiteral("Type_DayOfWeek"));
    QCOMPARE(dialog.selectedInfo(), dayInfo(today().dayOfWeek()));
}

void tst_ZvScheduleSpecifyScheduleDialog::takenDayIsNotRefused()
{
    const int day = today().dayOfWeek();
    const ZvChannel channel = channelOf({defaultInfo, dayInfo(day), dateInfo(0)});
    Dialog dialog(Dialog::Create, &channel);
    dialog.setScheduleInfo(dateInfo(0));
    const SpecifyDialogParts parts(&dialog);
    QVERIFY(parts.day(day)->isChecked() && !parts.day(day)->isEnabled());
    showAndWait(&dialog);
    QTest::mouseClick(parts.button("Type_DayOfWeek"), Qt::LeftButton);
    QTest::mouseClick(parts.ok(), Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.selectedInfo(), dayInfo(day));
}

void tst_ZvScheduleSpecifyScheduleDialog::refusesATakenDate()
{
    const ZvChannel channel = channelOf({defaultInfo, dateInfo(2)});
    Dialog dialog(Dialog::Create, &channel);
    dialog.setType(ZvSchedule::Date);
    dialog.setDate(today(2));
    showAndWait(&dialog);
    const SpecifyDialogParts parts(&dialog);
    {
        MessageBoxAnswer boxes;
        boxes.expect(QMessageBox::Ok)
            .icon(QMessageBox::Critical)
            .title(QStringLiteral("New Schedule"))
            .text(QStringLiteral("The schedule of %1 has already existed.\nYou have to specify "
                                 "another date.")
                      .arg(QLocale::system().toString(today(2), QLocale::LongFormat)))
            .buttons(QMessageBox::Ok)
            .whileShown([&dialog](QMessageBox *box) {
                QCOMPARE(box->parentWidget(), static_cast<QWidget *>(&dialog));
            });
        QTest::mouseClick(parts.ok(), Qt::LeftButton);
    }
    QVERIFY(dialog.isVisible());
    parts.dateEdit()->setSelectedSection(QDateTimeEdit::YearSection);
    QTest::keyClick(parts.dateEdit(), Qt::Key_Up);
    QCOMPARE(dialog.selectedDate().year(), today(2).year() + 1);
    dialog.setDate(today(3));
    QTest::mouseClick(parts.ok(), Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.selectedInfo(), dateInfo(3));
}

void tst_ZvScheduleSpecifyScheduleDialog::acceptsWhatIsNotValidated()
{
    const ZvChannel channel = channelOf({defaultInfo, dateInfo(0)});
    Dialog paste(Dialog::Paste, &channel);
    paste.setType(ZvSchedule::Date);
    showAndWait(&paste);
    QTest::mouseClick(SpecifyDialogParts(&paste).ok(), Qt::LeftButton);
    QCOMPARE(paste.selectedInfo(), dateInfo(0));
    QCOMPARE(paste.result(), int(QDialog::Accepted));

    Dialog day(Dialog::Create, &channel);
    showAndWait(&day);
    QTest::mouseClick(SpecifyDialogParts(&day).ok(), Qt::LeftButton);
    QCOMPARE(day.result(), int(QDialog::Accepted));
}

void tst_ZvScheduleSpecifyScheduleDialog::standsItsDeathUnderTheMessage()
{
    const ZvChannel channel = channelOf({defaultInfo, dateInfo(0)});
    QPointer<Dialog> dialog = new Dialog(Dialog::Create, &channel);
    dialog->setType(ZvSchedule::Date);
    showAndWait(dialog);
    MessageBoxAnswer boxes;
    boxes.expect(QMessageBox::NoButton).whileShown([&dialog](QMessageBox *) {
        QTimer::singleShot(0, qApp, [&dialog] { delete dialog; });
    });
    QMetaObject::invokeMethod(dialog, "onAcceptRequired");
    QTRY_VERIFY(!dialog);
}

void tst_ZvScheduleSpecifyScheduleDialog::isWorkedByKey()
{
    const ZvChannel channel = channelOf({defaultInfo, dayInfo(1), dayInfo(2)});
    Dialog dialog(Dialog::Create, &channel);
    dialog.setScheduleInfo(dayInfo(1));
    QCOMPARE(dialog.selectedInfo(), dayInfo(3));
    showAndWait(&dialog);
    dialog.activateWindow();
    const SpecifyDialogParts parts(&dialog);
    parts.day(3)->setFocus();
    QTest::keyClick(parts.day(3), Qt::Key_Right);
    QCOMPARE(dialog.selectedInfo(), dayInfo(4));
    parts.button("Type_DayOfWeek")->setFocus();
    QTest::keyClick(parts.button("Type_DayOfWeek"), Qt::Key_Right);
    QVERIFY(parts.dateEdit()->isVisible() && !parts.day(1)->isVisible());
    // The cursor keys do not reach the hidden type.
    QTest::keyClick(parts.button("Type_Date"), Qt::Key_Right);
    QVERIFY(!parts.button("Type_Default")->isChecked());

    dialog.setType(ZvSchedule::Date);
    parts.dateEdit()->setFocus();
    parts.dateEdit()->setSelectedSection(QDateTimeEdit::YearSection);
    QTest::keyClicks(parts.dateEdit(), QStringLiteral("2031"));
    QCOMPARE(dialog.selectedDate().year(), 2031);
    QTest::keyClick(parts.dateEdit(), Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));

    Dialog other(Dialog::Paste, &channel);
    showAndWait(&other);
    QTest::keyClick(&other, Qt::Key_Escape);
    QVERIFY(!other.isVisible());
    QCOMPARE(other.result(), int(QDialog::Rejected));
}

void tst_ZvScheduleSpecifyScheduleDialog::isWorkedByMouse()
{
    const ZvChannel channel = channelOf({defaultInfo});
    Dialog dialog(Dialog::Paste, &channel);
    showAndWait(&dialog);
    const SpecifyDialogParts parts(&dialog);
    QVERIFY(!parts.dateGroup()->isVisible() && !parts.dayGroup()->isVisible());
    QTest::mouseClick(parts.button("Type_Date"), Qt::LeftButton);
    QVERIFY(parts.dateGroup()->isVisible() && !parts.dayGroup()->isVisible());
    auto *repeat = dialog.findChild<QCheckBox *>();
    QTest::mouseClick(repeat, Qt::LeftButton, Qt::NoModifier, QPoint(8, repeat->height() / 2));
    QVERIFY(!dialog.isRepeatChecked());
    QTest::mouseClick(parts.button("Type_DayOfWeek"), Qt::LeftButton);
    QVERIFY(!parts.dateGroup()->isVisible() && parts.dayGroup()->isVisible());
    QTest::mouseClick(parts.button("Type_Default"), Qt::LeftButton);
    QVERIFY(!parts.dateGroup()->isVisible() && !parts.dayGroup()->isVisible());
    QTest::mouseClick(parts.cancel(), Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(dialog.selectedInfo(), defaultInfo);
}

void tst_ZvScheduleSpecifyScheduleDialog::sizeFollowsTheTypeLater()
{
    Dialog dialog(Dialog::Paste, nullptr);
    showAndWait(&dialog);
    const SpecifyDialogParts parts(&dialog);
    const QSize small = dialog.size();
    QVERIFY(small.width() >= 360);

    QTest::mouseClick(parts.button("Type_Date"), Qt::LeftButton);
    QCoreApplication::processEvents();
    QCOMPARE(dialog.size(), small);
    QTRY_VERIFY(dialog.height() > small.height());
    QVERIFY(dialog.height() >= dialog.layout()->totalMinimumSize().height());
    const QSize large = dialog.size();

    QTest::mouseClick(parts.button("Type_Default"), Qt::LeftButton);
    QCoreApplication::processEvents();
    QCOMPARE(dialog.size(), large);
    QTRY_COMPARE(dialog.size(), small);
}

QTEST_MAIN(tst_ZvScheduleSpecifyScheduleDialog)
#include "tst_zvschedulespecifyscheduledialog.moc"
