#include "navigation/ZvScheduleListWidget.h"

#include "ScheduleListFixture.h"
#include "ZvSystemInfo.h"
#include "domain/ScheduleText.h"

#include <QAbstractItemModelTester>
#include <QLocale>
#include <QScrollBar>
#include <QVBoxLayout>

using namespace Zavo;
using namespace ZavoTest;

using Infos = QList<ZvScheduleBasicInfo>;

namespace {

const Infos someSchedules{defaultInfo, dayInfo(1), dayInfo(5), juneInfo(3), juneInfo(20)};

} // namespace

/// The rows of the schedule list, its selection and its look.
class tst_ZvScheduleListWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void isLaidOut();
    void showsADefaultScheduleAlone();
    void showsEverySchedule();
    void countsStages();
    void rowsNameTheirSchedules();
    void findsItemsOfASchedule();
    void modelIsSound();

    void nameOfTheChannel();
    void longNameDoesNotWiden();
    void noChannel();
    void sameChannelIsNotReadAgain();
    void columnsAreFittedOnce();

    void selectionFollowsTheTable();
    void selectionOfWhatThereIsNot();
    void selectsNothingTwice();
    void clickSelectsAndDoesNotCheck();
    void clickChecksAndDoesNotSelect();
    void keysSelectAndCheck();
    void keysGoOnFromTheSelectedRow();
    void doubleClickDoesNotEdit();

    void creationShowsTheNewRow();
    void creationWithoutAChannel();
    void removalTakesTheRowAndTheMarks();
    void stageCountIsUpdatedInPlace();

    void activation();
    void followsTheRatio();
    void bringsTheSelectedRowIntoView();
    void changesDoNotScroll();
    void manySchedules();
};

void tst_ZvScheduleListWidget::cleanup()
{
    ZvSystemInfo::setDpiRatioOverride(0);
}

void tst_ZvScheduleListWidget::isLaidOut()
{
    const ScheduleListFixture fixture;
    QCOMPARE(fixture.list.windowTitle(), QStringLiteral("Schedule List"));
    QCOMPARE(fixture.label()->text(), QStringLiteral("Channel: None"));
    const auto *layout = qobject_cast<QVBoxLayout *>(fixture.list.layout());
    QVERIFY(layout);
    QCOMPARE(layout->count(), 2);
    QLayout *line = layout->itemAt(0)->layout();
    QVERIFY(qobject_cast<QHBoxLayout *>(line));
    QCOMPARE(line->itemAt(0)->widget(), fixture.label());
    QCOMPARE(line->itemAt(1)->widget(), fixture.button());
    QCOMPARE(layout->itemAt(1)->widget(), fixture.view());

    const QToolButton *button = fixture.button();
    QCOMPARE(button->minimumWidth(), 30);
    QVERIFY(button->autoRaise());
    QCOMPARE(button->popupMode(), QToolButton::InstantPopup);
    QVERIFY(!button->icon().isNull());
    QVERIFY(button->styleSheet().startsWith(QLatin1String("QToolButton{border-style: none;")));
    QCOMPARE(button->menu(), fixture.menu());

    const QTreeView *view = fixture.view();
    QCOMPARE(view->contextMenuPolicy(), Qt::CustomContextMenu);
    QCOMPARE(view->styleSheet(), QStringLiteral("font-size: 9.0pt;"));
    QVERIFY(!view->isSortingEnabled());
    QCOMPARE(view->model(), fixture.model());
    QCOMPARE(fixture.model()->parent(), &fixture.list);
    QCOMPARE(fixture.model()->rowCount(), 0);
}

void tst_ZvScheduleListWidget::showsADefaultScheduleAlone()
{
    ScheduleListFixture fixture({defaultInfo});
    fixture.showChannel();
    QCOMPARE(fixture.model()->rowCount(), 1);
    QCOMPARE(fixture.texts(0), QStringList{QStringLiteral("Default")});
    QCOMPARE(fixture.texts(1), QStringList{QStringLiteral("default")});
    QCOMPARE(fixture.texts(2), QStringList{QStringLiteral("0")});
    QStringList header;
    for (int column = 0; column < 3; ++column)
        header.append(fixture.model()->headerData(column, Qt::Horizontal).toString());
    QCOMPARE(header, QStringList({QStringLiteral("Schedule"), QStringLiteral("Type"),
                                  QStringLiteral("Stages")}));
}

void tst_ZvScheduleListWidget::showsEverySchedule()
{
    ScheduleListFixture fixture({juneInfo(20), dayInfo(5), defaultInfo, juneInfo(3), dayInfo(1)});
    fixture.showChannel();
    const QLocale locale = QLocale::system();
    const auto dateRowText = [&locale](const QDate &date) {
        return locale.toString(date, QLocale::LongFormat) + QLatin1Char('(') +
               locale.dayName(date.dayOfWeek(), QLocale::ShortFormat) + QLatin1Char(')');
    };
    QCOMPARE(fixture.texts(0),
             QStringList({QStringLiteral("Default"), locale.dayName(1), locale.dayName(5),
                          dateRowText(dayOfJune(3)), dateRowText(dayOfJune(20))}));
    QCOMPARE(fixture.texts(1),
             QStringList({QStringLiteral("default"), QStringLiteral("day of week"),
                          QStringLiteral("day of week"), QStringLiteral("date"),
                          QStringLiteral("date")}));
}

void tst_ZvScheduleListWidget::countsStages()
{
    ScheduleListFixture fixture;
    fixture.channel.insertSchedule(scheduleOf(defaultInfo, 3));
    fixture.channel.insertSchedule(scheduleOf(dayInfo(1), 0, QStringLiteral("d.xml")));
    fixture.channel.insertSchedule(scheduleOf(juneInfo(1), 24, QStringLiteral("d.xml")));
    fixture.showChannel();
    QCOMPARE(fixture.texts(2),
             QStringList({QStringLiteral("3"), QStringLiteral("1"), QStringLiteral("25")}));
    const QVariant count = fixture.model()->item(2, 2)->data(Qt::UserRole + 1);
    QCOMPARE(count.userType(), int(QMetaType::Int));
    QCOMPARE(count.toInt(), 25);
}

void tst_ZvScheduleListWidget::rowsNameTheirSchedules()
{
    ScheduleListFixture fixture({defaultInfo, dayInfo(5), juneInfo(20)});
    fixture.showChannel();
    const QVariantList names{QString(), 5, dayOfJune(20)};
    for (int row = 0; row < 3; ++row) {
        for (int column : {0, 1}) {
            const QVariant value = fixture.model()->item(row, column)->data(257);
            QCOMPARE(value.userType(), names.at(row).userType());
            QCOMPARE(value, names.at(row));
        }
        QVERIFY(fixture.model()->item(row, 0)->isCheckable());
        QCOMPARE(fixture.model()->item(row, 0)->checkState(), Qt::Unchecked);
        QVERIFY(!fixture.model()->item(row, 1)->isCheckable());
        QVERIFY(!fixture.model()->item(row, 2)->isCheckable());
    }
}

void tst_ZvScheduleListWidget::findsItemsOfASchedule()
{
    ScheduleListFixture fixture(someSchedules);
    QCOMPARE(fixture.list.rowItems(defaultInfo).size(), 0);
    fixture.showChannel();
    for (int row = 0; row < someSchedules.size(); ++row) {
        const QList<QStandardItem *> items = fixture.list.rowItems(someSchedules.at(row));
        QCOMPARE(items.size(), 3);
        for (int column = 0; column < 3; ++column)
            QCOMPARE(items.at(column), fixture.model()->item(row, column));
    }
    for (const ZvScheduleBasicInfo &missing : {dayInfo(2), juneInfo(4), ZvScheduleBasicInfo()})
        QCOMPARE(fixture.list.rowItems(missing).size(), 0);
    QVERIFY(fixture.list.existsInChannel(juneInfo(3)));
    QVERIFY(!fixture.list.existsInChannel(juneInfo(4)));
}

void tst_ZvScheduleListWidget::modelIsSound()
{
    ScheduleListFixture fixture(someSchedules);
    const QAbstractItemModelTester tester(fixture.model(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    fixture.showChannel();
    fixture.list.selectAllItems();
    fixture.list.deselectAllItems();
    fixture.channel.removeSchedule(juneInfo(3).toSchedule());
    fixture.list.onScheduleRemoved({juneInfo(3)}, defaultInfo);
    fixture.list.onScheduleStageCountChanged(defaultInfo, 4);
    fixture.list.setCurrentChannel(nullptr);
    fixture.list.selectAllItems();
    QCOMPARE(fixture.model()->rowCount(), 0);
}

void tst_ZvScheduleListWidget::nameOfTheChannel()
{
    ScheduleListFixture fixture({defaultInfo});
    fixture.showChannel();
    QCOMPARE(fixture.label()->text(), QStringLiteral("Channel: Lobby"));
    ZvChannel unnamed(QStringLiteral("/nowhere/channel12.xml"));
    fixture.list.setCurrentChannel(&unnamed);
    QCOMPARE(fixture.label()->text(), QStringLiteral("Channel: channel12.xml"));
    ZvChannel marked(QString{});
    marked.setName(QStringLiteral("<b>%1 & more</b>"));
    fixture.list.setCurrentChannel(&marked);
    QCOMPARE(fixture.label()->text(), QStringLiteral("Channel: <b>%1 & more</b>"));
    QCOMPARE(fixture.label()->textFormat(), Qt::PlainText);
}

void tst_ZvScheduleListWidget::longNameDoesNotWiden()
{
    ScheduleListFixture fixture({defaultInfo});
    const QSize minimum = fixture.list.layout()->minimumSize();
    fixture.channel.setName(QString(500, QLatin1Char('W')));
    fixture.showChannel();
    QCOMPARE(fixture.list.layout()->minimumSize().width(), minimum.width());
    QVERIFY(fixture.button()->geometry().right() < fixture.list.width());
}

void tst_ZvScheduleListWidget::noChannel()
{
    ScheduleListFixture fixture(someSchedules);
    fixture.showChannel();
    fixture.list.setCurrentChannel(nullptr);
    QCOMPARE(fixture.model()->rowCount(), 0);
    QCOMPARE(fixture.label()->text(), QStringLiteral("Channel: Lobby"));
    QCOMPARE(fixture.list.currentRowInfo(), ZvScheduleBasicInfo());
    QVERIFY(!fixture.list.existsInChannel(defaultInfo));
    QCOMPARE(fixture.list.checkedSchedules().size(), 0);
    fixture.list.onScheduleRemoved({defaultInfo}, defaultInfo);
    fixture.list.onScheduleStageCountChanged(defaultInfo, 3);
    QCOMPARE(fixture.model()->rowCount(), 0);
}

void tst_ZvScheduleListWidget::sameChannelIsNotReadAgain()
{
    ScheduleListFixture fixture(someSchedules);
    fixture.showChannel();
    fixture.check({1});
    fixture.showChannel();
    QCOMPARE(fixture.checkedRows(), QList<int>{1});
}

void tst_ZvScheduleListWidget::columnsAreFittedOnce()
{
    ScheduleListFixture fixture(someSchedules);
    fixture.showChannel();
    const QHeaderView *header = fixture.view()->header();
    const int fitted = fixture.view()->columnWidth(0);
    fixture.view()->resizeColumnToContents(0);
    QCOMPARE(fitted, fixture.view()->columnWidth(0) + 16);
    fixture.view()->setColumnWidth(0, 77);
    fixture.list.onScheduleCreated({}, defaultInfo);
    fixture.list.setCurrentChannel(nullptr);
    fixture.showChannel();
    QCOMPARE(header->count(), 3);
    QCOMPARE(fixture.view()->columnWidth(0), 77);
}

void tst_ZvScheduleListWidget::selectionFollowsTheTable()
{
    ScheduleListFixture fixture(someSchedules);
    fixture.onTable = dayInfo(5);
    SignalLog log;
    log.watch(&fixture.list, SIGNAL(selectedScheduleChanged(ZvScheduleBasicInfo)));
    fixture.showChannel();
    QCOMPARE(fixture.selectedRows(), QList<int>{2});
    fixture.list.selectScheduleDate(dayOfJune(20));
    QCOMPARE(fixture.selectedRows(), QList<int>{4});
    fixture.list.selectScheduleDayOfWeek(Qt::Monday);
    QCOMPARE(fixture.selectedRows(), QList<int>{1});
    fixture.list.selectScheduleDefault();
    QCOMPARE(fixture.selectedRows(), QList<int>{0});
    Infos told;
    for (int i = 0; i < log.names().size(); ++i)
        told.append(log.arguments(i).first().value<ZvScheduleBasicInfo>());
    QCOMPARE(told, Infos({dayInfo(5), juneInfo(20), dayInfo(1), defaultInfo}));
}

void tst_ZvScheduleListWidget::selectionOfWhatThereIsNot()
{
    ScheduleListFixture fixture(someSchedules);
    fixture.showChannel();
    fixture.check({1, 3});
    SignalLog log;
    log.watch(&fixture.list, SIGNAL(selectedScheduleChanged(ZvScheduleBasicInfo)));
    fixture.list.selectScheduleDate(dayOfJune(4));
    QCOMPARE(fixture.selectedRows(), QList<int>());
    QCOMPARE(fixture.list.currentRowInfo(), ZvScheduleBasicInfo());
    QCOMPARE(fixture.checkedRows(), QList<int>({1, 3}));
    fixture.list.selectScheduleDayOfWeek(Qt::Sunday);
    fixture.list.selectSchedule(ZvScheduleBasicInfo());
    QCOMPARE(log.names().size(), 0);
}

void tst_ZvScheduleListWidget::selectsNothingTwice()
{
    ScheduleListFixture fixture(someSchedules);
    fixture.showChannel();
    fixture.list.selectScheduleDate(dayOfJune(3));
    SignalLog log;
    log.watch(&fixture.list, SIGNAL(selectedScheduleChanged(ZvScheduleBasicInfo)));
    fixture.list.selectScheduleDate(dayOfJune(3));
    QCOMPARE(log.names().size(), 0);
}

void tst_ZvScheduleListWidget::clickSelectsAndDoesNotCheck()
{
    ScheduleListFixture fixture(someSchedules);
    fixture.showChannel();
    SignalLog log;
    log.watch(&fixture.list, SIGNAL(selectedScheduleChanged(ZvScheduleBasicInfo)));
    fixture.click(fixture.middleOf(3, 0));
    QCOMPARE(log.arguments(0).value(0).value<ZvScheduleBasicInfo>(), juneInfo(3));
    fixture.click(fixture.middleOf(1, 2));
    QCOMPARE(log.arguments(1).value(0).value<ZvScheduleBasicInfo>(), dayInfo(1));
    fixture.click(fixture.middleOf(1, 1));
    QCOMPARE(log.names().size(), 2);
    QCOMPARE(fixture.selectedRows(), QList<int>{1});
    QCOMPARE(fixture.checkedRows(), QList<int>());
}

void tst_ZvScheduleListWidget::clickChecksAndDoesNotSelect()
{
    ScheduleListFixture fixture(someSchedules);
    fixture.showChannel();
    SignalLog log;
    log.watch(&fixture.list, SIGNAL(selectedScheduleChanged(ZvScheduleBasicInfo)));
    fixture.click(fixture.markOf(2));
    fixture.click(fixture.markOf(4));
    QCOMPARE(fixture.checkedRows(), QList<int>({2, 4}));
    QCOMPARE(fixture.list.checkedInfos(), Infos({dayInfo(5), juneInfo(20)}));
    fixture.click(fixture.markOf(2));
    QCOMPARE(fixture.checkedRows(), QList<int>{4});
    QCOMPARE(fixture.selectedRows(), QList<int>{0});
    QCOMPARE(log.names().size(), 0);
}

void tst_ZvScheduleListWidget::keysSelectAndCheck()
{
    ScheduleListFixture fixture(someSchedules);
    fixture.showChannel();
    QTest::keyClick(fixture.view(), Qt::Key_Down);
    QCOMPARE(fixture.list.currentRowInfo(), dayInfo(1));
    QTest::keyClick(fixture.view(), Qt::Key_Space);
    QCOMPARE(fixture.checkedRows(), QList<int>{1});
    QTest::keyClick(fixture.view(), Qt::Key_End);
    QCOMPARE(fixture.list.currentRowInfo(), juneInfo(20));
    // The cursor stands in another column after a click there.
    fixture.click(fixture.middleOf(3, 2));
    QTest::keyClick(fixture.view(), Qt::Key_Space);
    QCOMPARE(fixture.checkedRows(), QList<int>({1, 3}));
    QTest::keyClick(fixture.view(), Qt::Key_Space);
    QCOMPARE(fixture.checkedRows(), QList<int>{1});
    QCOMPARE(fixture.selectedRows(), QList<int>{3});
}

void tst_ZvScheduleListWidget::keysGoOnFromTheSelectedRow()
{
    ScheduleListFixture fixture(someSchedules);
    fixture.onTable = dayInfo(5);
    fixture.showChannel();
    QTest::keyClick(fixture.view(), Qt::Key_Down);
    QCOMPARE(fixture.list.currentRowInfo(), juneInfo(3));
    fixture.list.selectScheduleDefault();
    QTest::keyClick(fixture.view(), Qt::Key_Down);
    QCOMPARE(fixture.list.currentRowInfo(), dayInfo(1));
    fixture.list.selectScheduleDate(dayOfJune(4));
    QTest::keyClick(fixture.view(), Qt::Key_Space);
    QCOMPARE(fixture.checkedRows(), QList<int>());
}

void tst_ZvScheduleListWidget::doubleClickDoesNotEdit()
{
    ScheduleListFixture fixture(someSchedules);
    fixture.showChannel();
    for (int column = 0; column < 3; ++column) {
        fixture.click(fixture.middleOf(1, column));
        QTest::mouseDClick(fixture.view()->viewport(), Qt::LeftButton, Qt::NoModifier,
                           fixture.middleOf(1, column));
        QTest::keyClick(fixture.view(), Qt::Key_F2);
        QVERIFY(!fixture.view()->isPersistentEditorOpen(fixture.model()->index(1, column)));
    }
}

void tst_ZvScheduleListWidget::creationShowsTheNewRow()
{
    ScheduleListFixture fixture(someSchedules);
    fixture.showChannel();
    fixture.check({3});
    const int index = fixture.channel.insertSchedule(juneInfo(10).toSchedule());
    fixture.list.onScheduleCreated({index}, juneInfo(20));
    QCOMPARE(fixture.model()->rowCount(), 6);
    QCOMPARE(fixture.texts(0).at(4), dateText(dayOfJune(10)));
    QCOMPARE(fixture.selectedRows(), QList<int>{5});
    QCOMPARE(fixture.checkedRows(), QList<int>());
}

void tst_ZvScheduleListWidget::creationWithoutAChannel()
{
    ScheduleListFixture fixture;
    SignalLog log;
    log.watch(&fixture.list, SIGNAL(requestCurrentScheduleInfo(ZvScheduleBasicInfo*)));
    fixture.list.onScheduleCreated({0}, defaultInfo);
    QCOMPARE(log.names().size(), 0);
    QCOMPARE(fixture.model()->rowCount(), 0);
}

void tst_ZvScheduleListWidget::removalTakesTheRowAndTheMarks()
{
    ScheduleListFixture fixture(someSchedules);
    fixture.showChannel();
    fixture.check({0, 1, 2});
    fixture.channel.removeSchedule(dayInfo(5).toSchedule());
    fixture.onTable = juneInfo(3);
    fixture.list.onScheduleRemoved({dayInfo(5)}, dayInfo(5));
    QCOMPARE(fixture.model()->rowCount(), 4);
    QCOMPARE(fixture.checkedRows(), QList<int>());
    QCOMPARE(fixture.list.currentRowInfo(), juneInfo(3));
    QCOMPARE(fixture.list.rowItems(dayInfo(5)).size(), 0);
}

void tst_ZvScheduleListWidget::stageCountIsUpdatedInPlace()
{
    ScheduleListFixture fixture(someSchedules);
    fixture.showChannel();
    fixture.check({3});
    fixture.list.onScheduleStageCountChanged(juneInfo(3), 12);
    fixture.list.onScheduleStageCountChanged(defaultInfo, 1);
    fixture.list.onScheduleStageCountChanged(juneInfo(4), 9);
    fixture.list.onScheduleStageCountChanged(ZvScheduleBasicInfo(), 9);
    QCOMPARE(fixture.texts(2),
             QStringList({QStringLiteral("1"), QStringLiteral("0"), QStringLiteral("0"),
                          QStringLiteral("12"), QStringLiteral("0")}));
    QCOMPARE(fixture.model()->item(3, 2)->data(257).toInt(), 12);
    QCOMPARE(fixture.checkedRows(), QList<int>{3});
    QCOMPARE(fixture.selectedRows(), QList<int>{0});
}

void tst_ZvScheduleListWidget::activation()
{
    ScheduleListFixture fixture(someSchedules);
    fixture.showChannel();
    SignalLog log;
    log.watch(&fixture.list, SIGNAL(activated(QWidget*)));
    const auto told = [&log] {
        const int count = log.names().size();
        log.clear();
        return count;
    };
    fixture.click(fixture.middleOf(1, 0));
    QCOMPARE(told(), 1);
    QTest::mousePress(fixture.view()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      fixture.middleOf(2, 0));
    QCOMPARE(told(), 0);
    QTest::mouseRelease(fixture.view()->viewport(), Qt::LeftButton, Qt::NoModifier,
                        fixture.middleOf(2, 0));
    QCOMPARE(told(), 1);
    QTest::mouseClick(fixture.view()->header()->viewport(), Qt::LeftButton);
    QCOMPARE(told(), 1);
    QTest::mouseClick(fixture.label(), Qt::LeftButton);
    QCOMPARE(told(), 1);
    fixture.list.setActivated(false);
    QCOMPARE(told(), 0);
    fixture.list.setActivated(true);
    fixture.list.setActivated();
    QCOMPARE(told(), 2);
    fixture.view()->setFocus(Qt::TabFocusReason);
    QCOMPARE(told(), 1);
    fixture.button()->setFocus();
    fixture.view()->setFocus(Qt::ActiveWindowFocusReason);
    QCOMPARE(told(), 0);
}

void tst_ZvScheduleListWidget::followsTheRatio()
{
    ScheduleListFixture fixture(someSchedules);
    fixture.showChannel();
    fixture.check({1});
    const QPointer<QTreeView> before = fixture.view();
    fixture.list.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fixture.list));
    before->setFocus();
    const QStandardItemModel *model = fixture.model();
    QCOMPARE(before->iconSize(), QSize(16, 16));
    SignalLog log;
    log.watch(&fixture.list, SIGNAL(dpiRatioChanged(double)));
    ZvSystemInfo::setDpiRatioOverride(1.5);
    fixture.list.resize(600, 500);
    QCOMPARE(log.arguments(0).value(0).toDouble(), 1.5);
    // The view that is in the middle of its resizing stays for now.
    QVERIFY(before);
    QCoreApplication::processEvents();
    QVERIFY(!before);
    QCOMPARE(fixture.view()->iconSize(), QSize(24, 24));
    QCOMPARE(fixture.button()->iconSize(), QSize(24, 24));
    QCOMPARE(fixture.view()->columnWidth(0), fixture.view()->header()->defaultSectionSize());
    QCOMPARE(fixture.model(), model);
    QCOMPARE(fixture.view()->model(), model);
    QCOMPARE(fixture.checkedRows(), QList<int>{1});
    QCOMPARE(fixture.selectedRows(), QList<int>());
    QCOMPARE(fixture.list.layout()->count(), 2);
    QVERIFY(fixture.view()->hasFocus());

    // The new view is wired like the old one.
    QTRY_VERIFY(fixture.view()->isVisible());
    QCoreApplication::processEvents();
    SignalLog selection;
    selection.watch(&fixture.list, SIGNAL(selectedScheduleChanged(ZvScheduleBasicInfo)));
    selection.watch(&fixture.list, SIGNAL(activated(QWidget*)));
    fixture.click(fixture.middleOf(3, 2));
    QCOMPARE(selection.names(),
             QStringList({QStringLiteral("selectedScheduleChanged"), QStringLiteral("activated")}));
    fixture.list.resize(610, 500);
    QCOMPARE(log.names().size(), 1);
}

void tst_ZvScheduleListWidget::bringsTheSelectedRowIntoView()
{
    ScheduleListFixture fixture;
    for (int day = 0; day < 300; ++day)
        fixture.channel.insertSchedule(ZvScheduleBasicInfo(dayOfJune(1).addDays(day)).toSchedule());
    fixture.showChannel();
    const QDate late = dayOfJune(1).addDays(250);
    fixture.list.selectScheduleDate(late);
    const QRect row = fixture.view()->visualRect(fixture.model()->index(250, 0));
    QVERIFY(fixture.view()->viewport()->rect().contains(row.center()));
    QVERIFY(!fixture.view()->viewport()->rect().contains(fixture.middleOf(0, 0)));
}

void tst_ZvScheduleListWidget::changesDoNotScroll()
{
    ScheduleListFixture fixture;
    for (int day = 0; day < 300; ++day)
        fixture.channel.insertSchedule(ZvScheduleBasicInfo(dayOfJune(1).addDays(day)).toSchedule());
    fixture.onTable = ZvScheduleBasicInfo(dayOfJune(1).addDays(150));
    fixture.showChannel();
    QScrollBar *bar = fixture.view()->verticalScrollBar();
    bar->setValue(bar->value() + 3);
    const int scrolled = bar->value();
    QVERIFY(scrolled > 100);
    fixture.channel.removeSchedule(ZvScheduleBasicInfo(dayOfJune(1).addDays(160)).toSchedule());
    fixture.list.onScheduleRemoved({}, fixture.onTable);
    QCoreApplication::processEvents();
    QCOMPARE(bar->value(), scrolled);
    fixture.list.onScheduleCreated({}, fixture.onTable);
    QCOMPARE(bar->value(), scrolled);
    ZvChannel other(QStringLiteral("/nowhere/channel8.xml"));
    other.insertSchedule(defaultInfo.toSchedule());
    fixture.list.setCurrentChannel(&other);
    fixture.onTable = defaultInfo;
    fixture.showChannel();
    QCOMPARE(bar->value(), 0);
}

void tst_ZvScheduleListWidget::manySchedules()
{
    ScheduleListFixture fixture({defaultInfo});
    const QDate first(1990, 1, 1);
    for (int day = 0; day < 10000; ++day)
        fixture.channel.insertSchedule(ZvScheduleBasicInfo(first.addDays(day)).toSchedule());
    fixture.showChannel();
    QCOMPARE(fixture.model()->rowCount(), 10001);
    fixture.list.selectAllItems();
    QCOMPARE(fixture.list.checkedInfos().size(), 10001);
    QCOMPARE(fixture.list.checkedSchedules().size(), 10001);
    QCOMPARE(int(fixture.list.hasSelectedItems()), 23);
    fixture.list.onScheduleStageCountChanged(ZvScheduleBasicInfo(first.addDays(7777)), 5);
    QCOMPARE(fixture.model()->item(7778, 2)->text(), QStringLiteral("5"));
    fixture.list.onScheduleCreated({}, ZvScheduleBasicInfo(first.addDays(9999)));
    QCOMPARE(fixture.selectedRows(), QList<int>{10000});
}

QTEST_MAIN(tst_ZvScheduleListWidget)
#include "tst_zvschedulelistwidget.moc"
