#include "SceneMouse.h"
#include "TimeBoxes.h"
#include "WorkingAreaFixture.h"

#include "timetable/ZvScheduleItemPropertyWidget.h"

#include "ZvSystemInfo.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLocale>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QToolButton>

using namespace Zavo;
using namespace ZavoTest;

namespace {

const QString toolButtonStyle = QStringLiteral(
    "QToolButton{border-style: none;margin: 1px;color: black;}QToolButton:hover{background-color: "
    "rgb(240, 240, 250);border-style: solid;border-color: rgb(190, 190, 200);border-width: 1px;"
    "border-radius: 2px;}QToolButton:pressed, QToolButton::menu-button{background-color: rgb(204, "
    "204, 255);border-style: solid;border-color: rgb( 180, 180, 180);border-width: 1px;"
    "border-radius: 2px;}QToolButton::menu-indicator{width:7px;height:7px;left:1px;top:1px;}"
    "QToolButton::menu-indicator:pressed{left:0px;top:0px;}");

// Bands at both ends of the day, adjoining ones, and gaps.
QList<ZvTime> someBands()
{
    return {band("00:00:00", "01:00:00", "first.xml"), band("08:00:00", "09:00:00", "b.xml"),
            band("09:00:00", "10:00:00", "c.xml"), band("12:00:00", "13:00:00", "d.xml"),
            band("20:00:00", "24:00:00", "last.xml")};
}

QString shownTime(QTime time)
{
    if (TimeAxis::isEndOfDay(time))
        return QStringLiteral("24:0:0");
    return QStringLiteral("%1:%2:%3").arg(time.hour()).arg(time.minute()).arg(time.second());
}

// What the page keeps of a band, without its milliseconds.
QString shownTimes(const ZvTimeTableTimeItem *item)
{
    return shownTime(item->startTime()) + QLatin1Char('-') + shownTime(item->endTime());
}

// A page and the panel that shows what is selected on it.
class PanelFixture
{
public:
    explicit PanelFixture(const QList<ZvTime> &bands = someBands())
        : page({scheduleOf(defaultInfo, bands)})
        , panel(new ZvScheduleItemPropertyWidget)
    {
        page.area()->switchToDefaultSchedule();
        // clang-format off
        QObject::connect(page.area(), SIGNAL(timeTableTimeItemHasNotSelected(ZvScheduleWorkingArea*)),
                         panel.get(), SLOT(onTimeTableTimeItemHasNotSelected(ZvScheduleWorkingArea*)));
        QObject::connect(page.area(), SIGNAL(timeTableTimeItemsMoved(QList<ZvTimeTableTimeItem*>,ZvScheduleWorkingArea*)),
                         panel.get(), SLOT(onTimeTableTimeItemsMoved(QList<ZvTimeTableTimeItem*>,ZvScheduleWorkingArea*)));
        // clang-format on
        panel->resize(400, 200);
        panel->show();
        page.settle();
    }

    TimeBoxes start() const { return TimeBoxes(editor(0)); }
    TimeBoxes end() const { return TimeBoxes(editor(1)); }
    ZvTimeSpinWidget *editor(int index) const
    {
        return panel->findChildren<ZvTimeSpinWidget *>().at(index);
    }
    QString times() const { return start().text() + QLatin1Char('-') + end().text(); }
    bool isEnabled() const { return editor(0)->isEnabled() && editor(1)->isEnabled(); }
    bool isDisabled() const { return !editor(0)->isEnabled() && !editor(1)->isEnabled(); }
    QLabel *stageLabel() const
    {
        const auto labels = panel->findChildren<QLabel *>();
        const auto found = std::find_if(labels.begin(), labels.end(), [](const QLabel *label) {
            return label->styleSheet().contains(QStringLiteral("1px solid gray"));
        });
        return found == labels.end() ? nullptr : *found;
    }
    QToolButton *button(int index) const { return panel->findChildren<QToolButton *>().at(index); }

    WorkingAreaFixture page;
    std::unique_ptr<ZvScheduleItemPropertyWidget> panel;
};

} // namespace

class tst_ZvScheduleItemPropertyWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The boxes show the digits of the language, and the tests tell them in these.
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void construction();
    void iconsFollowTheScreen();
    void nothingSelected();
    void oneBand_data();
    void oneBand();
    void severalBands();
    void manyBands();
    void namesAreNoMarkup();
    void everyScale_data();
    void everyScale();
    void movedByTheMouse();
    void changedByAPerson();
    void neighboursAreNotPassed();
    void rangesDoNotComeFromTheBandBefore();
    void shortestBand();
    void atTheEndsOfTheDay();
    void shorterThanTheShortest();
    void truncatedSeconds();
    void shortestBandOfTruncatedSeconds();
    void randomStepsKeepTheBandsApart();
    void lookingChangesNothing();
    void navigation();
    void bandIsGone();
    void pageIsGone();
};

void tst_ZvScheduleItemPropertyWidget::construction()
{
    const ZvScheduleItemPropertyWidget panel;
    QVERIFY(panel.widgetResizable());
    QCOMPARE(panel.horizontalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    QCOMPARE(panel.verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    QStringList texts;
    const auto labels = panel.findChildren<QLabel *>();
    for (const QLabel *label : labels)
        texts.append(label->text());
    for (const char *text : {"Selected Stage", "Start Time", "End Time"})
        QVERIFY(texts.contains(QLatin1String(text)));
    const auto buttons = panel.findChildren<QToolButton *>();
    QCOMPARE(buttons.size(), 2);
    QCOMPARE(buttons.at(0)->toolTip(), QStringLiteral("Previous Stage"));
    QCOMPARE(buttons.at(1)->toolTip(), QStringLiteral("Next Stage"));
    QCOMPARE(buttons.at(0)->popupMode(), QToolButton::InstantPopup);
    QCOMPARE(buttons.at(1)->popupMode(), QToolButton::DelayedPopup);
    for (const QToolButton *button : buttons) {
        QVERIFY(!button->autoRaise());
        QVERIFY(!button->icon().pixmap(16).isNull());
        QCOMPARE(button->iconSize(), QSize(16, 16));
        QCOMPARE(button->parentWidget()->styleSheet(), toolButtonStyle);
    }
    const PanelFixture fixture;
    QCOMPARE(fixture.stageLabel()->styleSheet(),
             QStringLiteral("border: 1px solid gray;margin-left: 5px;"));
    QCOMPARE(fixture.stageLabel()->minimumSize(), QSize(24, 24));
    QCOMPARE(fixture.stageLabel()->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(fixture.stageLabel()->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);

    const QLayout *content = panel.widget()->layout();
    const QLayout *topRow = content->itemAt(0)->layout();
    QVERIFY(topRow);
    QCOMPARE(topRow->contentsMargins(), QMargins());
    QCOMPARE(topRow->spacing(), 0);
    QCOMPARE(topRow->itemAt(1)->widget(), buttons.at(0)->parentWidget());
    const QWidget *times = content->itemAt(2)->widget();
    QVERIFY(times);
    QCOMPARE(times->sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred));
    QVERIFY(qobject_cast<QGridLayout *>(times->layout()));
    QCOMPARE(times->layout()->contentsMargins(), QMargins());
    QVERIFY(content->itemAt(3)->spacerItem());
}

void tst_ZvScheduleItemPropertyWidget::iconsFollowTheScreen()
{
    const PanelFixture fixture;
    QSignalSpy changed(fixture.panel.get(), SIGNAL(dpiRatioChanged(double)));
    for (const auto &[ratio, size] : {std::pair(1.5, 24), {1.7, 27}, {2.0, 32}, {1.0, 16}}) {
        ZvSystemInfo::setDpiRatioOverride(ratio);
        fixture.panel->resize(fixture.panel->size() + QSize(1, 1));
        QCOMPARE(fixture.button(0)->iconSize(), QSize(size, size));
        QCOMPARE(fixture.button(1)->iconSize(), QSize(size, size));
        fixture.panel->resize(fixture.panel->size() + QSize(1, 1));
    }
    ZvSystemInfo::setDpiRatioOverride(0.0);
    QCOMPARE(changed.count(), 4);
}

void tst_ZvScheduleItemPropertyWidget::nothingSelected()
{
    PanelFixture fixture;
    fixture.page.select({});
    QCOMPARE(fixture.times(), QStringLiteral("0:0:0-24:0:0"));
    QVERIFY(fixture.isDisabled());
    QCOMPARE(fixture.stageLabel()->text(), QString());
    fixture.page.select({1});
    QVERIFY(fixture.isEnabled());
    fixture.page.select({});
    QCOMPARE(fixture.times(), QStringLiteral("0:0:0-24:0:0"));
    QVERIFY(fixture.isDisabled());
    QCOMPARE(fixture.stageLabel()->text(), QString());
    fixture.page.select({1});
    fixture.panel->onTimeTableTimeItemsMoved({}, fixture.page.area());
    QCOMPARE(fixture.times(), QStringLiteral("0:0:0-24:0:0"));
    QVERIFY(fixture.isDisabled());
}

void tst_ZvScheduleItemPropertyWidget::oneBand_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("times");
    QTest::addColumn<QString>("stage");
    QTest::newRow("first") << 0 << QStringLiteral("0:0:0-1:0:0") << QStringLiteral("first.xml");
    QTest::newRow("middle") << 2 << QStringLiteral("9:0:0-10:0:0") << QStringLiteral("c.xml");
    QTest::newRow("last") << 4 << QStringLiteral("20:0:0-24:0:0") << QStringLiteral("last.xml");
}

void tst_ZvScheduleItemPropertyWidget::oneBand()
{
    QFETCH(int, index);
    PanelFixture fixture;
    for (int before : {3, 0, 4}) {
        fixture.page.select({before});
        fixture.page.select({index});
        QTEST(fixture.times(), "times");
        QTEST(fixture.stageLabel()->text(), "stage");
        QVERIFY(fixture.isEnabled());
    }
}

void tst_ZvScheduleItemPropertyWidget::severalBands()
{
    PanelFixture fixture;
    fixture.page.select({3, 1, 2});
    QCOMPARE(fixture.times(), QStringLiteral("8:0:0-13:0:0"));
    QCOMPARE(fixture.stageLabel()->text(), QStringLiteral("b.xml, c.xml, d.xml"));
    QVERIFY(fixture.isDisabled());
    const QStringList before = fixture.page.texts();
    QSignalSpy changed(fixture.panel.get(), SIGNAL(itemPropertyChangedByUser()));
    QTest::keyClick(fixture.start().hour(), Qt::Key_Up);
    TimeBoxes::turnWheel(fixture.end().hour(), -2);
    fixture.editor(0)->setTime(QTime(5, 0)); // held at the start of the first
    QCOMPARE(fixture.times(), QStringLiteral("8:0:0-13:0:0"));
    QCOMPARE(fixture.page.texts(), before);
    QCOMPARE(changed.count(), 0);
    fixture.page.select({0, 1, 2, 3, 4});
    QCOMPARE(fixture.times(), QStringLiteral("0:0:0-24:0:0"));
    fixture.page.select({2});
    QCOMPARE(fixture.times(), QStringLiteral("9:0:0-10:0:0"));
    QVERIFY(fixture.isEnabled());
}

void tst_ZvScheduleItemPropertyWidget::manyBands()
{
    QList<ZvTime> bands;
    QStringList names;
    for (int i = 0; i < 288; ++i) {
        names.append(QStringLiteral("stage%1.xml").arg(i));
        bands.append(
            {QTime(0, 0).addSecs(300 * i), QTime(0, 0).addSecs(300 * i + 240), names.last()});
    }
    PanelFixture fixture(bands);
    fixture.page.area()->selectAllItems();
    fixture.page.settle();
    QCOMPARE(fixture.stageLabel()->text(), names.join(QStringLiteral(", ")));
    QCOMPARE(fixture.times(), QStringLiteral("0:0:0-23:59:0"));
    // Many names are cut off instead of moving the times out of sight.
    QCOMPARE(fixture.panel->widget()->width(), fixture.panel->viewport()->width());
    QVERIFY(fixture.stageLabel()->height() < 40);
}

void tst_ZvScheduleItemPropertyWidget::namesAreNoMarkup()
{
    PanelFixture fixture({band("08:00:00", "09:00:00", "<b>x</b> & y.xml")});
    fixture.page.select({0});
    QCOMPARE(fixture.stageLabel()->text(), QStringLiteral("<b>x</b> & y.xml"));
    QCOMPARE(fixture.stageLabel()->textFormat(), Qt::PlainText);
}

void tst_ZvScheduleItemPropertyWidget::everyScale_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < timeTableScales.size(); ++i)
        QTest::addRow("%g", timeTableScales.at(i)) << i;
}

void tst_ZvScheduleItemPropertyWidget::everyScale()
{
    QFETCH(int, index);
    PanelFixture fixture;
    fixture.page.child<QComboBox>()->setCurrentIndex(index);
    fixture.page.select({3});
    QCOMPARE(fixture.times(), QStringLiteral("12:0:0-13:0:0"));
    TimeBoxes::type(fixture.start().second(), "7");
    TimeBoxes::turnWheel(fixture.end().second(), -1);
    QCOMPARE(fixture.times(), QStringLiteral("12:0:7-12:59:59"));
    QCOMPARE(fixture.page.texts().at(3), QStringLiteral("12:00:07.000-12:59:59.000 d.xml"));
    const ZvTimeTableTimeItem *item = fixture.page.item(3);
    QVERIFY(qAbs(item->y() - yOf(QStringLiteral("12:00:07"))) < 1e-6);
    QVERIFY(qAbs(item->itemHeight() - (3592.0 / 60.0)) < 1e-6);
    fixture.page.select({0});
    fixture.page.select({3});
    QCOMPARE(fixture.times(), QStringLiteral("12:0:7-12:59:59"));
}

void tst_ZvScheduleItemPropertyWidget::movedByTheMouse()
{
    PanelFixture fixture;
    fixture.page.look(QStringLiteral("12:30:00"));
    const QPointF from = middleOf(fixture.page.item(3));
    SceneMouse mouse(fixture.page.view());
    mouse.click(from);
    fixture.page.settle();
    QCOMPARE(fixture.times(), QStringLiteral("12:0:0-13:0:0"));
    QSignalSpy changed(fixture.panel.get(), SIGNAL(itemPropertyChangedByUser()));
    mouse.drag(from, from + QPointF(0.0, 10.0));
    fixture.page.settle();
    const ZvTime time = fixture.page.item(3)->timeInfo();
    QVERIFY(time.startTime() > QTime(12, 5));
    QCOMPARE(fixture.start().hour()->value(), 12);
    QCOMPARE(fixture.start().minute()->value(), time.startTime().minute());
    QCOMPARE(fixture.start().second()->value(), time.startTime().second());
    QCOMPARE(changed.count(), 0);
}

void tst_ZvScheduleItemPropertyWidget::changedByAPerson()
{
    PanelFixture fixture;
    fixture.page.select({3});
    QSignalSpy changed(fixture.panel.get(), SIGNAL(itemPropertyChangedByUser()));
    TimeBoxes::clickArrow(fixture.start().minute(), true);
    QCOMPARE(fixture.page.texts().at(3), QStringLiteral("12:01:00.000-13:00:00.000 d.xml"));
    QCOMPARE(changed.count(), 1);
    QTest::keyClick(fixture.end().hour(), Qt::Key_Up);
    QCOMPARE(fixture.page.texts().at(3), QStringLiteral("12:01:00.000-14:00:00.000 d.xml"));
    QCOMPARE(changed.count(), 2);
    QTest::keyClick(fixture.start().second(), Qt::Key_Down); // two boxes change
    QCOMPARE(fixture.page.texts().at(3), QStringLiteral("12:00:59.000-14:00:00.000 d.xml"));
    QCOMPARE(changed.count(), 3);
    QVERIFY(fixture.page.item(3)->isSelected());
    QStringList others = fixture.page.texts();
    others.removeAt(3);
    QStringList expected = textOf(someBands());
    expected.removeAt(3);
    QCOMPARE(others, expected);
}

void tst_ZvScheduleItemPropertyWidget::neighboursAreNotPassed()
{
    PanelFixture fixture;
    fixture.page.select({2});
    TimeBoxes::turnWheel(fixture.start().second(), -1);
    QCOMPARE(fixture.times(), QStringLiteral("9:0:0-10:0:0"));
    TimeBoxes::type(fixture.start().hour(), "3");
    QCOMPARE(fixture.times(), QStringLiteral("9:0:0-10:0:0"));
    TimeBoxes::type(fixture.end().hour(), "24");
    QCOMPARE(fixture.times(), QStringLiteral("9:0:0-12:0:0"));
    QTest::keyClick(fixture.end().second(), Qt::Key_Up);
    QCOMPARE(fixture.times(), QStringLiteral("9:0:0-12:0:0"));
    QCOMPARE(fixture.page.texts().at(2), QStringLiteral("09:00:00.000-12:00:00.000 c.xml"));
    fixture.page.select({3});
    TimeBoxes::type(fixture.start().hour(), "2");
    QCOMPARE(fixture.times(), QStringLiteral("12:0:0-13:0:0"));
    QCOMPARE(fixture.page.strip()->timeItems().at(2)->itemRect().bottom(),
             fixture.page.item(3)->itemRect().top());
}

// The range of an editor is held by its earlier one; a later band must not reach into its
// neighbours for that.
void tst_ZvScheduleItemPropertyWidget::rangesDoNotComeFromTheBandBefore()
{
    PanelFixture fixture;
    for (int before : {0, 4}) {
        fixture.page.select({before});
        fixture.page.select({3});
        TimeBoxes::type(fixture.start().hour(), "1");
        QCOMPARE(fixture.times(), QStringLiteral("10:0:0-13:0:0"));
        TimeBoxes::type(fixture.end().hour(), "23");
        QCOMPARE(fixture.times(), QStringLiteral("10:0:0-20:0:0"));
        TimeBoxes::type(fixture.start().hour(), "12");
        TimeBoxes::type(fixture.end().hour(), "13");
        QCOMPARE(fixture.page.texts().at(3), QStringLiteral("12:00:00.000-13:00:00.000 d.xml"));
    }
}

void tst_ZvScheduleItemPropertyWidget::shortestBand()
{
    PanelFixture fixture;
    fixture.page.select({3});
    QSignalSpy changed(fixture.panel.get(), SIGNAL(itemPropertyChangedByUser()));
    TimeBoxes::type(fixture.start().hour(), "13");
    QCOMPARE(fixture.times(), QStringLiteral("12:59:55-13:0:0"));
    QCOMPARE(changed.count(), 1); // 1 o'clock on the way is out of the range
    QCOMPARE(fixture.page.texts().at(3), QStringLiteral("12:59:55.000-13:00:00.000 d.xml"));
    QTest::keyClick(fixture.start().second(), Qt::Key_Up);
    QCOMPARE(fixture.times(), QStringLiteral("12:59:55-13:0:0"));
    QTest::keyClick(fixture.end().second(), Qt::Key_Down);
    QCOMPARE(fixture.times(), QStringLiteral("12:59:55-13:0:0"));
    TimeBoxes::type(fixture.end().hour(), "5");
    QCOMPARE(fixture.times(), QStringLiteral("12:59:55-13:0:0"));
    QCOMPARE(fixture.page.texts().at(3), QStringLiteral("12:59:55.000-13:00:00.000 d.xml"));
}

void tst_ZvScheduleItemPropertyWidget::atTheEndsOfTheDay()
{
    PanelFixture fixture;
    fixture.page.select({0});
    TimeBoxes::turnWheel(fixture.start().second(), -3);
    TimeBoxes::turnWheel(fixture.start().hour(), -3);
    QCOMPARE(fixture.times(), QStringLiteral("0:0:0-1:0:0"));
    TimeBoxes::type(fixture.end().hour(), "0");
    QCOMPARE(fixture.times(), QStringLiteral("0:0:0-0:0:5"));
    QCOMPARE(fixture.page.texts().at(0), QStringLiteral("00:00:00.000-00:00:05.000 first.xml"));
    fixture.page.select({4});
    TimeBoxes::turnWheel(fixture.end().minute(), 1);
    QCOMPARE(fixture.times(), QStringLiteral("20:0:0-24:0:0"));
    TimeBoxes::turnWheel(fixture.end().second(), -1);
    QCOMPARE(fixture.times(), QStringLiteral("20:0:0-24:0:0"));
    TimeBoxes::turnWheel(fixture.end().hour(), -1);
    TimeBoxes::turnWheel(fixture.end().second(), -1);
    QCOMPARE(fixture.times(), QStringLiteral("20:0:0-22:59:59"));
    TimeBoxes::type(fixture.end().hour(), "23");
    QCOMPARE(fixture.times(), QStringLiteral("20:0:0-23:59:59"));
    TimeBoxes::turnWheel(fixture.end().second(), 1);
    QCOMPARE(fixture.page.texts().at(4), QStringLiteral("20:00:00.000-23:59:59.999 last.xml"));
    TimeBoxes::type(fixture.start().hour(), "24");
    QCOMPARE(fixture.page.texts().at(4), QStringLiteral("23:59:54.999-23:59:59.999 last.xml"));
    QVERIFY(fixture.page.item(4)->itemRect().bottom() == TimeAxis::dayBottom);
}

void tst_ZvScheduleItemPropertyWidget::shorterThanTheShortest()
{
    const QList<ZvTime> bands{
        band("00:00:00", "00:00:02", "a.xml"), band("00:00:02", "00:00:04", "b.xml"),
        band("10:00:00", "10:00:03", "c.xml"), band("23:59:58", "24:00:00", "d.xml")};
    PanelFixture fixture(bands);
    const QStringList before = fixture.page.texts();
    for (int i : {0, 1, 2, 3, 1}) {
        fixture.page.select({i});
        QCOMPARE(fixture.times(), shownTimes(fixture.page.item(i)));
    }
    QCOMPARE(fixture.page.texts(), before);
    for (int i = 0; i < 4; ++i) {
        for (const TimeBoxes &boxes : {fixture.start(), fixture.end()}) {
            for (int notches : {1, -1, -1, 1}) {
                fixture.page.select({i});
                TimeBoxes::turnWheel(boxes.second(), notches);
                const QList<ZvTime> times = fixture.page.area()->currentTimes();
                for (int k = 0; k < times.size(); ++k) {
                    QVERIFY(times.at(k).startTime() < times.at(k).endTime());
                    if (k > 0)
                        QVERIFY(times.at(k - 1).endTime() <= times.at(k).startTime());
                }
            }
        }
    }
}

// A load gives many odd seconds back a millisecond short. What is kept is what is shown.
void tst_ZvScheduleItemPropertyWidget::truncatedSeconds()
{
    QList<ZvTime> bands;
    for (int i = 0; i < 60; ++i)
        bands.append(
            ZvTime(QTime(i / 4, i, i), QTime(i / 4, i, i).addSecs(7), QStringLiteral("a")));
    PanelFixture fixture(bands);
    int shortened = 0;
    for (int i = 0; i < 60; ++i) {
        fixture.page.select({i});
        const QTime start = fixture.page.item(i)->startTime();
        const QTime end = fixture.page.item(i)->endTime();
        shortened += start.msec() == 999 ? 1 : 0;
        QCOMPARE(fixture.times(), shownTimes(fixture.page.item(i)));
        TimeBoxes::turnWheel(fixture.end().second(), 1);
        QCOMPARE(fixture.page.item(i)->endTime(), end.addSecs(1).addMSecs(-end.msec()));
        QCOMPARE(fixture.page.item(i)->startTime(), start);
    }
    QVERIFY(shortened > 0);
}

// 00:04:05 is one of them; the shortest band is five seconds of what is kept.
void tst_ZvScheduleItemPropertyWidget::shortestBandOfTruncatedSeconds()
{
    PanelFixture fixture({band("00:04:05", "00:05:00", "a.xml")});
    fixture.page.select({0});
    QCOMPARE(fixture.page.item(0)->startTime(), QTime(0, 4, 4, 999));
    QCOMPARE(fixture.start().text(), QStringLiteral("0:4:4"));
    TimeBoxes::type(fixture.end().second(), "5");
    const ZvTime time = fixture.page.item(0)->timeInfo();
    QCOMPARE(time.startTime(), QTime(0, 4, 4, 999));
    QCOMPARE(time.endTime(), QTime(0, 4, 9, 999));
    QCOMPARE(fixture.times(), QStringLiteral("0:4:4-0:4:9"));
}

// Times taken from the geometry are truncated, so bands that adjoin may meet a millisecond apart.
void tst_ZvScheduleItemPropertyWidget::randomStepsKeepTheBandsApart()
{
    QRandomGenerator random(20250611);
    for (int round = 0; round < 4; ++round) {
        QList<ZvTime> bands;
        for (int second = random.bounded(100); second < 80000;) {
            const int next = second + 5 + random.bounded(2000);
            bands.append(
                {QTime(0, 0).addSecs(second), QTime(0, 0).addSecs(next), QStringLiteral("a")});
            second = next + qMax(0, random.bounded(40) - 20);
        }
        PanelFixture fixture(bands);
        for (int step = 0; step < 150; ++step) {
            fixture.page.select({random.bounded(bands.size())});
            const TimeBoxes boxes = random.bounded(2) == 0 ? fixture.start() : fixture.end();
            const int box = random.bounded(3);
            if (random.bounded(3) == 0)
                boxes.box(box)->setValue(random.bounded(60));
            else
                TimeBoxes::turnWheel(boxes.box(box), random.bounded(7) - 3);
            const QList<ZvTime> times = fixture.page.area()->currentTimes();
            QCOMPARE(times.size(), bands.size());
            for (int i = 0; i < times.size(); ++i) {
                QVERIFY(times.at(i).startTime() < times.at(i).endTime());
                if (i > 0 && times.at(i - 1).endTime().msecsTo(times.at(i).startTime()) < -1)
                    QFAIL(qPrintable(QStringLiteral("%1: %2").arg(i).arg(
                        fixture.page.texts().mid(i - 1, 2).join(QLatin1Char(' ')))));
            }
        }
    }
}

void tst_ZvScheduleItemPropertyWidget::lookingChangesNothing()
{
    PanelFixture fixture({band("00:00:01", "00:00:07"), band("08:00:13", "09:17:59"),
                          band("09:17:59", "10:11:11"), band("13:00:01", "23:59:59")});
    QList<QRectF> before;
    for (int i = 0; i < 4; ++i)
        before.append(fixture.page.item(i)->itemRect());
    const QStringList texts = fixture.page.texts();
    QSignalSpy changed(fixture.panel.get(), SIGNAL(itemPropertyChangedByUser()));
    QSignalSpy finished(fixture.page.area(), SIGNAL(timeTableTimeItemsMovingFinished(QMap<int,QRectF>,QMap<int,QRectF>)));
    for (int i : {0, 1, 2, 3, 0, 3, 1})
        fixture.page.select({i});
    fixture.page.select({0, 1, 2, 3});
    fixture.page.select({});
    for (int i = 0; i < 4; ++i)
        QCOMPARE(fixture.page.item(i)->itemRect(), before.at(i));
    QCOMPARE(fixture.page.texts(), texts);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(finished.count(), 0);
}

void tst_ZvScheduleItemPropertyWidget::navigation()
{
    PanelFixture fixture;
    fixture.panel->selectNextTimeItem(); // no page known yet
    fixture.page.select({2});
    QTest::mouseClick(fixture.button(1), Qt::LeftButton);
    fixture.page.settle();
    QCOMPARE(fixture.stageLabel()->text(), QStringLiteral("d.xml"));
    QTest::mouseClick(fixture.button(0), Qt::LeftButton);
    QTest::mouseClick(fixture.button(0), Qt::LeftButton);
    fixture.page.settle();
    QCOMPARE(fixture.stageLabel()->text(), QStringLiteral("b.xml"));
    QVERIFY(fixture.page.item(1)->isSelected());
    fixture.page.select({});
    QTest::mouseClick(fixture.button(1), Qt::LeftButton);
    fixture.page.settle();
    QCOMPARE(fixture.stageLabel()->text(), QStringLiteral("first.xml"));
}

void tst_ZvScheduleItemPropertyWidget::bandIsGone()
{
    PanelFixture fixture;
    fixture.page.select({3});
    ZvTimeSpinBox *focused = fixture.start().minute();
    fixture.panel->activateWindow();
    focused->setFocus();
    // The report comes later; until then the panel knows of a band that is no more.
    const QSignalBlocker unheard(fixture.page.area());
    fixture.page.scene()->removeAllTimeItems();
    TimeBoxes::turnWheel(focused, 1);
    TimeBoxes::type(fixture.end().hour(), "15");
    QVERIFY(fixture.page.texts().isEmpty());
}

void tst_ZvScheduleItemPropertyWidget::pageIsGone()
{
    PanelFixture fixture;
    fixture.page.select({3});
    QGraphicsScene *scene = fixture.page.area()->takeScene();
    fixture.page.destroy();
    TimeBoxes::turnWheel(fixture.start().minute(), 1);
    QTest::mouseClick(fixture.button(0), Qt::LeftButton);
    QTest::mouseClick(fixture.button(1), Qt::LeftButton);
    delete scene;
    TimeBoxes::turnWheel(fixture.end().minute(), 1);
    fixture.panel->onTimeTableTimeItemHasNotSelected();
    QCOMPARE(fixture.times(), QStringLiteral("0:0:0-24:0:0"));
}

QTEST_MAIN(tst_ZvScheduleItemPropertyWidget)
#include "tst_zvscheduleitempropertywidget.moc"
