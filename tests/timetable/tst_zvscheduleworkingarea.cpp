#include "WorkingAreaFixture.h"

#include "SignalLog.h"
#include "domain/ScheduleText.h"

#include <QComboBox>
#include <QGraphicsRectItem>
#include <QLabel>
#include <QStatusBar>
#include <QToolButton>
#include <QUndoStack>
#include <QVBoxLayout>
#include <QtTest>

using namespace Zavo;
using namespace ZavoTest;

namespace {

QStringList words(std::initializer_list<const char *> list)
{
    QStringList result;
    for (const char *word : list)
        result.append(QLatin1String(word));
    return result;
}

const QList<ZvTime> morning{band("08:00:00", "09:00:00"), band("10:00:00", "10:30:00", "b.xml")};

} // namespace

class tst_ZvScheduleWorkingArea : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesTheChannelOver();
    void dropsOldDateSchedules();
    void keepsNothingBeforeTodayWithoutDuration();
    void startsWithoutASchedule();
    void isLaidOut();
    void offersTenScales();
    void framesTheDay();

    void switchesToEachKindOfSchedule_data();
    void switchesToEachKindOfSchedule();
    void showsAScheduleThatExists();
    void showsAScheduleThatIsMissing();
    void emptyDefaultScheduleIsEditableIfItExists();
    void switchToTheSameScheduleDoesNothing();
    void forcedSwitchStoresAndFillsAnew();
    void reportsASwitchInOrder();
    void unknownTypeIsNoSchedule();

    void storesTheTableAtASwitch();
    void storesBandsOfTheWholeDay();
    void lookingChangesNothing();
    void storesTheDefaultStage();
    void disabledTableIsNotStored();
    void dropsABandThatHasNoPlace();

    void countsStages();
    void scaleLeavesAllElseAlone();
    void showsTheTimeUnderTheCursor();
    void showsMessages();
    void showsMessagesThroughTheMetaObject();
    void answersQuestionsThroughTheMetaObject();
    void renamesTheChannel();
    void speaksForItsTab();
    void noticesChangesAgainstTheSnapshot();
};

void tst_ZvScheduleWorkingArea::takesTheChannelOver()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, morning)});
    QCOMPARE(page.area()->channelName(), QStringLiteral("Lobby"));
    QCOMPARE(page.channel()->scheduleList().size(), 1);
    QVERIFY(!page.area()->isChannelChanged());
    QVERIFY(page.area()->undoStack());
    QCOMPARE(page.area()->undoStack()->parent(), page.area());
    page.area()->setTabIndex(7);
    QCOMPARE(page.area()->tabIndex(), 7);
    QCOMPARE(page.channel()->index(), 7);
}

void tst_ZvScheduleWorkingArea::dropsOldDateSchedules()
{
    const QDate limit = QDate::currentDate().addDays(-10);
    QList<ZvSchedule> schedules{scheduleOf(defaultInfo), scheduleOf(mondayInfo)};
    for (int offset : {-300, -2, -1, 0, 1})
        schedules.append(scheduleOf(ZvScheduleBasicInfo(limit.addDays(offset)), morning));
    WorkingAreaFixture page(schedules, 10);
    QVERIFY(page.area()->hasSchedule(ZvScheduleBasicInfo(limit)));
    QVERIFY(page.area()->hasSchedule(ZvScheduleBasicInfo(limit.addDays(1))));
    QVERIFY(!page.area()->hasSchedule(ZvScheduleBasicInfo(limit.addDays(-1))));
    QCOMPARE(page.channel()->scheduleList().size(), 4);
    QVERIFY(page.area()->isChannelChanged());
    page.area()->renewSavedChannel();
    QVERIFY(!page.area()->isChannelChanged());
}

void tst_ZvScheduleWorkingArea::keepsNothingBeforeTodayWithoutDuration()
{
    const QDate today = QDate::currentDate();
    WorkingAreaFixture page({scheduleOf(ZvScheduleBasicInfo(today)),
                             scheduleOf(ZvScheduleBasicInfo(today.addDays(-1)))},
                            0);
    QVERIFY(page.area()->hasSchedule(ZvScheduleBasicInfo(today)));
    QCOMPARE(page.channel()->scheduleList().size(), 1);
}

void tst_ZvScheduleWorkingArea::startsWithoutASchedule()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, morning)});
    QCOMPARE(page.area()->currentScheduleInfo(), ZvScheduleBasicInfo());
    QVERIFY(!page.area()->isCurrentScheduleEnabled());
    QCOMPARE(page.area()->currentScheduleName(), QString());
    QCOMPARE(page.area()->currentTimes(), QList<ZvTime>());
    QCOMPARE(page.area()->focusPolicy(), Qt::StrongFocus);
    QVERIFY(page.child<QToolButton>()->isVisible());
    QVERIFY(page.view()->findChild<QLabel *>()->isVisible());
    QVERIFY(!page.box()->isEnabled());
    const auto *title = page.child<QWidget>(QStringLiteral("HeaderWidget"))->findChild<QLabel *>();
    QCOMPARE(title->text(), QStringLiteral("Schedule of ..."));
    QVERIFY(title->font().italic());
}

void tst_ZvScheduleWorkingArea::isLaidOut()
{
    WorkingAreaFixture page;
    auto *layout = qobject_cast<QBoxLayout *>(page.area()->layout());
    QVERIFY(layout);
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->itemAt(0)->widget(), page.child<QWidget>(QStringLiteral("HeaderWidget")));
    QCOMPARE(layout->itemAt(1)->widget(), page.view());
    auto *statusBar = page.child<QStatusBar>();
    QCOMPARE(layout->itemAt(2)->widget(), statusBar);
    QVERIFY(!statusBar->isSizeGripEnabled());
    auto *button = page.child<QToolButton>();
    QCOMPARE(button->text(), QStringLiteral("You can create this schedule."));
    QCOMPARE(button->minimumHeight(), 24);
    QVERIFY(!button->autoRaise());
    QCOMPARE(button->popupMode(), QToolButton::InstantPopup);
    SignalLog log;
    log.watch(page.area(), SIGNAL(requestCreateCurrentSchedule()));
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(log.count(QStringLiteral("requestCreateCurrentSchedule")), 1);
}

void tst_ZvScheduleWorkingArea::offersTenScales()
{
    WorkingAreaFixture page;
    auto *scales = page.child<QComboBox>();
    QCOMPARE(scales->count(), 10);
    QCOMPARE(scales->currentIndex(), 2);
    QVERIFY(!scales->isEditable());
    const QStringList texts =
        words({"25%", "50%", "100%", "200%", "300%", "600%", "1000%", "1500%", "3000%", "6000%"});
    const QList<int> secondsPerPixel{240, 120, 60, 30, 20, 10, 6, 4, 2, 1};
    for (int row = 0; row < scales->count(); ++row) {
        QCOMPARE(scales->itemText(row), texts.at(row));
        QCOMPARE(scales->itemData(row).toDouble(), timeTableScales.at(row));
        QCOMPARE(60.0 / scales->itemData(row).toDouble(), double(secondsPerPixel.at(row)));
    }
}

void tst_ZvScheduleWorkingArea::framesTheDay()
{
    WorkingAreaFixture page;
    QCOMPARE(page.view()->sceneRect().top(), -20.0);
    QCOMPARE(page.view()->sceneRect().bottom(), 1500.0);
    QVERIFY(!page.scene()->parent());
    QCOMPARE(page.strip()->innerRect().bottom(), 1450.0);
}

void tst_ZvScheduleWorkingArea::switchesToEachKindOfSchedule_data()
{
    QTest::addColumn<ZvScheduleBasicInfo>("info");
    QTest::addColumn<QString>("name");
    QTest::newRow("default") << defaultInfo << QStringLiteral("Default");
    QTest::newRow("day") << mondayInfo
                         << QLocale::system().dayName(Qt::Monday, QLocale::LongFormat);
    QTest::newRow("date") << dateInfo()
                          << QLocale::system().toString(futureDate(), QLocale::LongFormat) +
                                 QLatin1Char('(') +
                                 QLocale::system().dayName(futureDate().dayOfWeek(),
                                                           QLocale::ShortFormat) +
                                 QLatin1Char(')');
}

void tst_ZvScheduleWorkingArea::switchesToEachKindOfSchedule()
{
    QFETCH(ZvScheduleBasicInfo, info);
    QFETCH(QString, name);
    WorkingAreaFixture page({scheduleOf(defaultInfo, {band("01:00:00", "02:00:00")}),
                             scheduleOf(mondayInfo, {band("02:00:00", "03:00:00")}),
                             scheduleOf(dateInfo(-1), {band("03:00:00", "04:00:00")}),
                             scheduleOf(dateInfo(), {band("04:00:00", "05:00:00")})});
    switch (info.type()) {
    case ZvSchedule::Default:
        page.area()->switchToDefaultSchedule();
        break;
    case ZvSchedule::DayOfWeek:
        page.area()->switchToWeekDaySchedule(Qt::Monday);
        break;
    default:
        page.area()->switchToDateSchedule(futureDate());
        break;
    }
    QCOMPARE(page.area()->currentScheduleInfo(), info);
    QCOMPARE(page.area()->currentScheduleName(), name);
    QVERIFY(page.area()->isCurrentScheduleEnabled());
    QCOMPARE(page.texts(), page.storedTexts(info));
    QCOMPARE(page.texts().size(), 1);
    const auto *title = page.child<QWidget>(QStringLiteral("HeaderWidget"))->findChild<QLabel *>();
    QCOMPARE(title->text(), QStringLiteral("Schedule of ") + name);
}

void tst_ZvScheduleWorkingArea::showsAScheduleThatExists()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, morning, QStringLiteral("d.xml"))});
    page.area()->switchToDefaultSchedule();
    QVERIFY(page.area()->isCurrentScheduleEnabled());
    QVERIFY(!page.child<QToolButton>()->isVisible());
    QVERIFY(page.box()->isEnabled());
    QCOMPARE(page.area()->defaultStageName(), QStringLiteral("d.xml"));
    QVERIFY(!page.view()->findChild<QLabel *>()->isVisible());
    const auto *title = page.child<QWidget>(QStringLiteral("HeaderWidget"))->findChild<QLabel *>();
    QCOMPARE(title->font().weight(), 75);
    QVERIFY(!title->font().italic());
    QCOMPARE(page.area()->selectedTimeItems().size(), 2);
}

void tst_ZvScheduleWorkingArea::showsAScheduleThatIsMissing()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, morning, QStringLiteral("d.xml"))});
    page.area()->switchToDefaultSchedule();
    page.area()->removeTimeItems({morning.first()});
    page.area()->switchToWeekDaySchedule(Qt::Monday);

    QCOMPARE(page.storedTexts(defaultInfo).size(), 1);
    QVERIFY(!page.area()->hasSchedule(mondayInfo));
    QVERIFY(!page.area()->isCurrentScheduleEnabled());
    QCOMPARE(page.area()->currentTimes(), QList<ZvTime>());
    QCOMPARE(page.area()->defaultStageName(), QString());
    QVERIFY(page.child<QToolButton>()->isVisible());
    QVERIFY(!page.box()->isEnabled());
    const auto *overlay = page.view()->findChild<QLabel *>();
    QVERIFY(overlay->isVisible());
    QCOMPARE(overlay->text(), QStringLiteral("This schedule does not exist."));
    const auto *title = page.child<QWidget>(QStringLiteral("HeaderWidget"))->findChild<QLabel *>();
    QCOMPARE(title->font().weight(), 50);
    QVERIFY(title->font().italic());
}

void tst_ZvScheduleWorkingArea::emptyDefaultScheduleIsEditableIfItExists()
{
    WorkingAreaFixture with({scheduleOf(defaultInfo)});
    with.area()->switchToDefaultSchedule();
    QVERIFY(with.area()->isCurrentScheduleEnabled());

    WorkingAreaFixture without({scheduleOf(mondayInfo)});
    without.area()->switchToDefaultSchedule();
    QVERIFY(!without.area()->isCurrentScheduleEnabled());
    without.area()->switchToWeekDaySchedule(Qt::Monday);
    QVERIFY(without.area()->isCurrentScheduleEnabled());
}

void tst_ZvScheduleWorkingArea::switchToTheSameScheduleDoesNothing()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, morning)});
    page.area()->switchToDefaultSchedule();
    page.area()->removeTimeItems({morning.first()});
    SignalLog log;
    log.watch(page.area(), SIGNAL(currentScheduleInfoChanged(ZvScheduleBasicInfo)));
    log.watch(page.area(), SIGNAL(currentScheuleEnabledChanged(bool)));
    page.area()->switchToDefaultSchedule();
    QCOMPARE(log.names(), QStringList());
    QCOMPARE(page.storedTexts(defaultInfo).size(), 2);
    QCOMPARE(page.texts().size(), 1);
}

void tst_ZvScheduleWorkingArea::forcedSwitchStoresAndFillsAnew()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, morning)});
    page.area()->switchToDefaultSchedule();
    page.area()->removeTimeItems({morning.first()});
    page.area()->switchToScheduleInfo(defaultInfo, true);
    QCOMPARE(page.storedTexts(defaultInfo).size(), 1);
    QCOMPARE(page.texts(), page.storedTexts(defaultInfo));
}

void tst_ZvScheduleWorkingArea::reportsASwitchInOrder()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, morning)});
    SignalLog log;
    log.watch(page.area(), SIGNAL(currentScheduleInfoChanged(ZvScheduleBasicInfo)), "info");
    log.watch(page.area(), SIGNAL(currentScheuleEnabledChanged(bool)), "enabled");
    page.area()->switchToDefaultSchedule();
    QCOMPARE(log.names(), words({"enabled", "info"}));
    QCOMPARE(log.arguments(0), QVariantList({true}));
    QCOMPARE(log.arguments(1).first().value<ZvScheduleBasicInfo>(), defaultInfo);
    log.clear();
    page.area()->switchToWeekDaySchedule(Qt::Friday);
    page.area()->switchToWeekDaySchedule(Qt::Saturday);
    QCOMPARE(log.names(), words({"enabled", "info", "enabled", "info"}));
    QCOMPARE(log.arguments(2), QVariantList({false}));
}

void tst_ZvScheduleWorkingArea::unknownTypeIsNoSchedule()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, morning)});
    page.area()->switchToDefaultSchedule();
    page.area()->switchToScheduleInfo(ZvScheduleBasicInfo(), false);
    QVERIFY(!page.area()->isCurrentScheduleEnabled());
    QCOMPARE(page.area()->currentScheduleName(), QStringLiteral("Unknown"));
    page.area()->switchToScheduleInfo(ZvScheduleBasicInfo(Weekday::NoDay), false);
    const auto *title = page.child<QWidget>(QStringLiteral("HeaderWidget"))->findChild<QLabel *>();
    QCOMPARE(title->text(), QStringLiteral("Schedule of Unknown"));
    QCOMPARE(page.area()->currentScheduleName(), QString());
    page.area()->storeCurrentSchedule();
    QCOMPARE(page.channel()->scheduleList().size(), 1);
}

void tst_ZvScheduleWorkingArea::storesTheTableAtASwitch()
{
    WorkingAreaFixture page(
        {scheduleOf(defaultInfo, morning), scheduleOf(mondayInfo), scheduleOf(dateInfo())});
    const ZvTime added = band("12:00:00", "13:00:00", "c.xml");
    for (const ZvScheduleBasicInfo &info : {mondayInfo, dateInfo(), defaultInfo}) {
        page.area()->switchToScheduleInfo(info, false);
        page.area()->insertTimeItems({added});
    }
    page.area()->switchToScheduleInfo(ZvScheduleBasicInfo(), false);
    QCOMPARE(page.channel()->scheduleList().size(), 3);
    QCOMPARE(page.storedTexts(mondayInfo), QStringList(textOf(added)));
    QCOMPARE(page.storedTexts(dateInfo()), QStringList(textOf(added)));
    QCOMPARE(page.storedTexts(defaultInfo), textOf(morning + QList<ZvTime>{added}));
    page.area()->switchToScheduleInfo(mondayInfo, false);
    QCOMPARE(page.area()->currentTimes(), QList<ZvTime>{added});
}

void tst_ZvScheduleWorkingArea::storesBandsOfTheWholeDay()
{
    const QList<ZvTime> day{band("00:00:00", "00:00:05"), band("00:04:05", "12:00:00", "b.xml"),
                            band("12:00:00", "24:00:00", "c.xml")};
    WorkingAreaFixture page({scheduleOf(defaultInfo, day)});
    page.area()->switchToDefaultSchedule();
    for (int turn = 0; turn < 5; ++turn)
        page.area()->switchToScheduleInfo(defaultInfo, true);
    QCOMPARE(page.storedTexts(defaultInfo), textOf(day));
    QVERIFY(!page.area()->isChannelChanged());
}

void tst_ZvScheduleWorkingArea::lookingChangesNothing()
{
    QList<ZvTime> dense;
    for (int second = 0; second + 287 < 86400; second += 299)
        dense.append(ZvTime(QTime(0, 0).addSecs(second), QTime(0, 0).addSecs(second + 287),
                            QStringLiteral("s%1.xml").arg(second % 7)));
    WorkingAreaFixture page({scheduleOf(defaultInfo, dense, QStringLiteral("d.xml")),
                             scheduleOf(mondayInfo, morning), scheduleOf(dateInfo())});
    for (const ZvScheduleBasicInfo &info :
         {defaultInfo, mondayInfo, dateInfo(), defaultInfo, ZvScheduleBasicInfo()})
        page.area()->switchToScheduleInfo(info, false);
    QCOMPARE(page.storedTexts(defaultInfo), textOf(dense));
    QVERIFY(!page.area()->isChannelChanged());
}

void tst_ZvScheduleWorkingArea::storesTheDefaultStage()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo), scheduleOf(mondayInfo)});
    page.area()->switchToDefaultSchedule();
    page.area()->setDefaultStageName(QStringLiteral("sub/d.xml"));
    QCOMPARE(page.area()->defaultSchedule().defaultStage(), QString());
    page.area()->storeCurrentSchedule();
    QCOMPARE(page.area()->defaultSchedule().defaultStage(), QStringLiteral("sub/d.xml"));
    page.area()->switchToWeekDaySchedule(Qt::Monday);
    QCOMPARE(page.area()->defaultStageName(), QString());
    page.area()->switchToDefaultSchedule();
    QCOMPARE(page.area()->defaultStageName(), QStringLiteral("sub/d.xml"));
    QVERIFY(page.box()->isDefaultStageChecked());
    page.area()->setDefaultStageName(QString());
    page.area()->switchToWeekDaySchedule(Qt::Monday);
    QCOMPARE(page.area()->defaultSchedule().defaultStage(), QString());
}

void tst_ZvScheduleWorkingArea::disabledTableIsNotStored()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo)});
    page.area()->switchToWeekDaySchedule(Qt::Monday);
    page.area()->insertTimeItems(morning);
    page.area()->switchToDefaultSchedule();
    QVERIFY(!page.area()->hasSchedule(mondayInfo));
    QCOMPARE(page.area()->currentTimes(), QList<ZvTime>());
    QVERIFY(!page.area()->isChannelChanged());
}

void tst_ZvScheduleWorkingArea::dropsABandThatHasNoPlace()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, morning)});
    // Nothing stores an overlap, but a list that is handed out live can hold anything.
    const QList<ZvTime> overlapping{band("08:00:00", "12:00:00", "a.xml"),
                                    band("13:00:00", "14:00:00", "c.xml"),
                                    band("09:00:00", "13:30:00", "b.xml")};
    page.channel()->scheduleList()[0].setTimeList(overlapping);
    page.boxes()
        .expect(QMessageBox::Ok)
        .title(QStringLiteral("Error"))
        .text(QStringLiteral("Failed to assign \"b.xml\"."))
        .icon(QMessageBox::Critical)
        .buttons(QMessageBox::Ok);
    page.area()->switchToDefaultSchedule();
    QVERIFY(page.boxes().isDone());
    QVERIFY(!page.area()->isCurrentScheduleEnabled());
    QCOMPARE(page.texts().size(), 2);
    page.area()->switchToWeekDaySchedule(Qt::Monday);
    QCOMPARE(page.storedTexts(defaultInfo), textOf(overlapping));
}

void tst_ZvScheduleWorkingArea::countsStages()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, morning, QStringLiteral("d.xml"))});
    SignalLog log;
    log.watch(page.area(), SIGNAL(scheduleStageCountChanged(ZvScheduleBasicInfo,int)), "count");
    const auto counts = [&log] {
        QList<int> numbers;
        for (int i = 0; i < log.names().size(); ++i)
            numbers.append(log.arguments(i).at(1).toInt());
        log.clear();
        return numbers;
    };
    page.area()->switchToDefaultSchedule();
    QCOMPARE(log.arguments(0).first().value<ZvScheduleBasicInfo>(), defaultInfo);
    QCOMPARE(counts(), QList<int>({1, 2, 3}));
    page.area()->setDefaultStageName(QString());
    QCOMPARE(counts(), QList<int>({2}));
    page.area()->setDefaultStageName(QStringLiteral("e.xml"));
    QCOMPARE(counts(), QList<int>({3}));
    page.area()->removeTimeItems(morning);
    QCOMPARE(counts(), QList<int>({1}));
    page.area()->switchToWeekDaySchedule(Qt::Monday);
    QCOMPARE(counts(), QList<int>({0}));
}

void tst_ZvScheduleWorkingArea::scaleLeavesAllElseAlone()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, morning), scheduleOf(mondayInfo, morning)});
    page.area()->switchToDefaultSchedule();
    page.select({1});
    const QStringList texts = page.texts();
    auto *scales = page.child<QComboBox>();
    for (int row = 0; row < scales->count(); ++row) {
        scales->setCurrentIndex(row);
        const double scale = scales->itemData(row).toDouble();
        QCOMPARE(page.view()->transform().m22(), scale);
        QCOMPARE(page.scene()->verticalScale(), scale);
        QCOMPARE(page.area()->currentScheduleInfo(), defaultInfo);
        QCOMPARE(page.area()->selectedTimeItems(), QList<ZvTimeTableTimeItem *>{page.item(1)});
        QCOMPARE(page.texts(), texts);
    }
    page.area()->switchToWeekDaySchedule(Qt::Monday);
    QCOMPARE(page.scene()->verticalScale(), 60.0);
    QCOMPARE(scales->currentIndex(), 9);
    scales->setCurrentIndex(-1);
    QCOMPARE(page.view()->transform().m22(), 60.0);
}

void tst_ZvScheduleWorkingArea::showsTheTimeUnderTheCursor()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo)});
    page.area()->switchToDefaultSchedule();
    page.look(QStringLiteral("10:00:00"));
    QLabel *label = nullptr;
    const QList<QLabel *> labels = page.child<QStatusBar>()->findChildren<QLabel *>();
    for (QLabel *candidate : labels) {
        if (candidate->text() == QLatin1String("--:--:--"))
            label = candidate;
    }
    QVERIFY(label);
    const QPoint point = page.view()->mapFromScene(QPointF(180.0, yOf(QStringLiteral("10:00:00"))));
    QTest::mouseMove(page.view()->viewport(), point);
    QTRY_VERIFY(label->text() != QLatin1String("--:--:--"));
    const QTime time = QTime::fromString(label->text(), QStringLiteral("hh:mm:ss"));
    QVERIFY(qAbs(time.secsTo(QTime(10, 0))) <= 60);
}

void tst_ZvScheduleWorkingArea::showsMessages()
{
    WorkingAreaFixture page;
    page.boxes()
        .expect(QMessageBox::Ok)
        .title(QStringLiteral("Error"))
        .text(QStringLiteral("lost"))
        .icon(QMessageBox::Critical)
        .buttons(QMessageBox::Ok);
    page.area()->onCriticalErrorOccured(QStringLiteral("lost"));
    page.boxes()
        .expect(QMessageBox::Ok)
        .title(QStringLiteral("Notice"))
        .text(QStringLiteral("refused"))
        .icon(QMessageBox::Warning)
        .buttons(QMessageBox::Ok)
        .whileShown([&page](QMessageBox *box) { QCOMPARE(box->parent(), page.area()); });
    page.area()->onWarningErrorOccured(QStringLiteral("refused"));
    QVERIFY(page.boxes().isDone());
}

void tst_ZvScheduleWorkingArea::showsMessagesThroughTheMetaObject()
{
    WorkingAreaFixture page;
    const QString title = QStringLiteral("Title");
    const QString text = QStringLiteral("Text");
    page.boxes().expect(QMessageBox::Ok).title(title).text(text).icon(QMessageBox::Warning);
    QVERIFY(QMetaObject::invokeMethod(page.area(), "showWarning",
                                      Q_ARG(QString, title), Q_ARG(QString, text)));
    page.boxes().expect(QMessageBox::Ok).title(title).text(text).icon(QMessageBox::Critical);
    QVERIFY(QMetaObject::invokeMethod(page.area(), "showCritical",
                                      Q_ARG(QString, title), Q_ARG(QString, text)));
    QVERIFY(page.boxes().isDone());
}

void tst_ZvScheduleWorkingArea::answersQuestionsThroughTheMetaObject()
{
    WorkingAreaFixture page;
    const QMessageBox::StandardButtons buttons = QMessageBox::Yes | QMessageBox::No;
    int result = 0;
    int pressed = 0;
    page.boxes().expect(QMessageBox::No).icon(QMessageBox::Warning).buttons(buttons);
    QVERIFY(QMetaObject::invokeMethod(
        page.area(), "showWarningQuestion",
        Q_RETURN_ARG(int, result),
                     Q_ARG(QString, QString()), Q_ARG(QString, QString()), Q_ARG(int *, &pressed)));
    QCOMPARE(result, int(QMessageBox::No));
    QCOMPARE(pressed, int(QMessageBox::No));
    page.boxes().expect(QMessageBox::Yes).icon(QMessageBox::Question).buttons(buttons);
    QVERIFY(QMetaObject::invokeMethod(
        page.area(), "showQuestion",
        Q_RETURN_ARG(int, result), Q_ARG(QString, QString()), Q_ARG(QString, QString())));
    QCOMPARE(result, int(QMessageBox::Yes));
}

void tst_ZvScheduleWorkingArea::renamesTheChannel()
{
    WorkingAreaFixture page;
    SignalLog log;
    log.watch(page.area(), SIGNAL(channelNameChanged(QString,ZvScheduleWorkingArea*)));
    page.area()->changeChannelName(QStringLiteral("Lobby"));
    QCOMPARE(log.names(), QStringList());
    page.area()->changeChannelName(QStringLiteral("lobby"));
    QCOMPARE(log.names().size(), 1);
    QCOMPARE(log.arguments(0).at(0).toString(), QStringLiteral("lobby"));
    QCOMPARE(log.arguments(0).at(1).value<ZvScheduleWorkingArea *>(), page.area());
    QCOMPARE(page.area()->channelName(), QStringLiteral("lobby"));
    QVERIFY(page.area()->isChannelChanged());
}

void tst_ZvScheduleWorkingArea::speaksForItsTab()
{
    WorkingAreaFixture page;
    SignalLog log;
    log.watch(page.area(), SIGNAL(requestActiveWidget(QWidget*)));
    log.watch(page.area(), SIGNAL(requestMoveTabTo(ZvScheduleWorkingArea*,int)));
    page.area()->active();
    page.area()->moveTabTo(4);
    QCOMPARE(log.names(), words({"requestActiveWidget", "requestMoveTabTo"}));
    QCOMPARE(log.arguments(0).first().value<QWidget *>(), page.area());
    QCOMPARE(log.arguments(1).at(1).toInt(), 4);
}

void tst_ZvScheduleWorkingArea::noticesChangesAgainstTheSnapshot()
{
    WorkingAreaFixture page({scheduleOf(defaultInfo, morning)});
    page.area()->switchToDefaultSchedule();
    page.area()->insertTimeItems({band("20:00:00", "21:00:00")});
    QVERIFY(!page.area()->isChannelChanged());
    page.area()->storeCurrentSchedule();
    QVERIFY(page.area()->isChannelChanged());
    page.area()->removeTimeItems({band("20:00:00", "21:00:00")});
    page.area()->storeCurrentSchedule();
    QVERIFY(!page.area()->isChannelChanged());
    page.area()->setTabIndex(3);
    QVERIFY(page.area()->isChannelChanged());
    page.area()->renewSavedChannel();
    QVERIFY(!page.area()->isChannelChanged());
}

QTEST_MAIN(tst_ZvScheduleWorkingArea)
#include "tst_zvscheduleworkingarea.moc"
