#include "TimeBoxes.h"

#include <QLayout>
#include <QLocale>
#include <QSignalSpy>

using namespace Zavo;
using namespace ZavoTest;

namespace {

const QTime EndOfDay(23, 59, 59, 999);

QTime timeOf(const QString &text)
{
    return text == QLatin1String("24:0:0") ? EndOfDay
                                           : QTime::fromString(text, QStringLiteral("h:m:s"));
}

// A shown editor at a time.
struct Editor
{
    explicit Editor(const QString &time)
    {
        widget.show();
        widget.setTime(timeOf(time));
    }

    ZvTimeSpinWidget widget;
    TimeBoxes boxes{&widget};
};

} // namespace

class tst_ZvTimeSpinWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The boxes show the digits of the language, and the tests tell them in these.
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void boxAtTheStart();
    void hourBox();
    void boxWraps_data();
    void boxWraps();
    void wrapStateIsKnownToEverySlot();
    void typedValueNeverWraps();
    void longStepsStopAtTheEnd();

    void widgetAtTheStart();
    void steps_data();
    void steps();
    void typed_data();
    void typed();
    void setTime_data();
    void setTime();
    void signalAtChangesOnly();
    void signalComesWhenAllIsDone();
    void range_data();
    void range();
    void rangeHoldsSteps();
    void rangeHoldsWhatIsTypedWhenItIsFinished();
    void minimumIsLimitedByTheOldMaximum();
    void rangeLeavesTheTimeOnShow();
    void anyInputHoldsTheTimeInANewRange();
    void invalidRange();
    void everySecondOfTheDay();
};

void tst_ZvTimeSpinWidget::boxAtTheStart()
{
    const ZvTimeSpinBox box;
    QCOMPARE(box.minimum(), 0);
    QCOMPARE(box.maximum(), 59);
    QCOMPARE(box.value(), 0);
    QVERIFY(box.wrapping());
    QCOMPARE(int(box.alignment()), int(Qt::AlignRight));
    QVERIFY(!box.isHourBox());
    QCOMPARE(box.wrapState(), 0);
}

void tst_ZvTimeSpinWidget::hourBox()
{
    ZvTimeSpinBox box;
    for (const bool flag : {true, false}) {
        box.setRange(3, 7);
        box.setIsHourBox(flag);
        QCOMPARE(box.isHourBox(), flag);
        QCOMPARE(box.minimum(), 0);
        QCOMPARE(box.maximum(), 24);
    }
}

void tst_ZvTimeSpinWidget::boxWraps_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("steps");
    QTest::addColumn<int>("to");
    QTest::addColumn<int>("state");
    QTest::newRow("up") << 10 << 1 << 11 << 0;
    QTest::newRow("down") << 10 << -1 << 9 << 0;
    QTest::newRow("up over the end") << 59 << 1 << 0 << 1;
    QTest::newRow("down over the end") << 0 << -1 << 59 << 2;
    QTest::newRow("far up") << 59 << 10 << 0 << 1;
    QTest::newRow("far down") << 0 << -10 << 59 << 2;
    QTest::newRow("no step") << 0 << 0 << 0 << 0;
}

void tst_ZvTimeSpinWidget::boxWraps()
{
    QFETCH(int, from);
    QFETCH(int, steps);
    QFETCH(int, state);
    ZvTimeSpinBox box;
    box.setValue(from);
    QSignalSpy carried(&box, SIGNAL(carried()));
    QSignalSpy borrowed(&box, SIGNAL(borrowed()));
    box.stepBy(steps);
    QTEST(box.value(), "to");
    QCOMPARE(box.wrapState(), state);
    QCOMPARE(carried.count(), state == 1 ? 1 : 0);
    QCOMPARE(borrowed.count(), state == 2 ? 1 : 0);
    box.setValue(30);
    QCOMPARE(box.wrapState(), 0);
}

void tst_ZvTimeSpinWidget::wrapStateIsKnownToEverySlot()
{
    ZvTimeSpinBox box;
    QList<int> states;
    connect(&box, QOverload<int>::of(&QSpinBox::valueChanged), &box,
            [&] { states.append(box.wrapState()); });
    box.stepDown();
    box.stepUp();
    box.stepUp();
    QCOMPARE(states, (QList<int>{2, 1, 0}));
}

void tst_ZvTimeSpinWidget::typedValueNeverWraps()
{
    ZvTimeSpinBox box;
    box.show();
    QSignalSpy carried(&box, SIGNAL(carried()));
    QSignalSpy borrowed(&box, SIGNAL(borrowed()));
    for (const char *number : {"59", "0", "59", "5"}) {
        TimeBoxes::type(&box, number);
        QCOMPARE(box.text(), QLatin1String(number));
        QCOMPARE(box.wrapState(), 0);
    }
    QCOMPARE(carried.count() + borrowed.count(), 0);
}

void tst_ZvTimeSpinWidget::longStepsStopAtTheEnd()
{
    Editor editor(QStringLiteral("3:4:55"));
    QTest::keyClick(editor.boxes.second(), Qt::Key_PageUp);
    QCOMPARE(editor.boxes.text(), QStringLiteral("3:4:59"));
    QTest::keyClick(editor.boxes.second(), Qt::Key_PageUp);
    QCOMPARE(editor.boxes.text(), QStringLiteral("3:5:0"));
    QTest::keyClick(editor.boxes.second(), Qt::Key_PageDown);
    QCOMPARE(editor.boxes.text(), QStringLiteral("3:4:59"));
}

void tst_ZvTimeSpinWidget::widgetAtTheStart()
{
    ZvTimeSpinWidget widget;
    const TimeBoxes boxes(&widget);
    QCOMPARE(boxes.text(), QStringLiteral("0:0:0"));
    QCOMPARE(widget.currentTime(), QTime(0, 0));
    QVERIFY(boxes.hour()->isHourBox());
    QVERIFY(!boxes.hour()->wrapping());
    QVERIFY(boxes.minute()->wrapping() && boxes.second()->wrapping());
    QStringList units;
    const auto labels = widget.findChildren<QLabel *>();
    for (const QLabel *label : labels)
        units.append(label->text());
    QCOMPARE(units, (QStringList{QStringLiteral("h"), QStringLiteral("m"), QStringLiteral("s")}));
    widget.show();
    QVERIFY(boxes.hour()->x() < boxes.minute()->x() && boxes.minute()->x() < boxes.second()->x());
    QCOMPARE(widget.layout()->contentsMargins(), QMargins());
    QSignalSpy changed(&widget, SIGNAL(timeChanged(QTime,QTime)));
    widget.setTime(QTime(0, 0));
    QCOMPARE(changed.count(), 1);
    QVERIFY(!changed.first().at(0).toTime().isValid());
    QCOMPARE(changed.first().at(1).toTime(), QTime(0, 0));
}

void tst_ZvTimeSpinWidget::steps_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<int>("box");
    QTest::addColumn<int>("steps");
    QTest::addColumn<QString>("to");
    const auto row = [](const char *name, const char *from, int box, int steps, const char *to) {
        QTest::newRow(name) << QString::fromLatin1(from) << box << steps << QString::fromLatin1(to);
    };
    row("hour", "5:6:7", 0, 1, "6:6:7");
    row("hour down", "5:6:7", 0, -1, "4:6:7");
    row("hour at the end", "24:0:0", 0, 1, "24:0:0");
    row("hour into the end", "23:12:13", 0, 1, "24:0:0");
    row("hour from the end", "24:0:0", 0, -1, "23:0:0");
    row("hour at the start", "0:6:7", 0, -1, "0:6:7");
    row("minute", "5:6:7", 1, 1, "5:7:7");
    row("minute carries", "5:59:7", 1, 1, "6:0:7");
    row("minute carries into the end", "23:59:7", 1, 1, "24:0:0");
    row("minute at the end", "24:0:0", 1, 1, "24:0:0");
    row("minute borrows", "5:0:7", 1, -1, "4:59:7");
    row("minute at the start", "0:0:0", 1, -1, "0:0:0");
    row("minute at the start keeps the second", "0:0:7", 1, -1, "0:0:7");
    row("minute down at the end", "24:0:0", 1, -1, "24:0:0");
    row("minute down twice at the end", "24:0:0", 1, -2, "24:0:0");
    row("second", "5:6:7", 2, 1, "5:6:8");
    row("second carries", "5:6:59", 2, 1, "5:7:0");
    row("second carries twice", "0:59:59", 2, 1, "1:0:0");
    row("second carries into the end", "23:59:59", 2, 1, "24:0:0");
    row("second at the end", "24:0:0", 2, 1, "24:0:0");
    row("second borrows", "5:6:0", 2, -1, "5:5:59");
    row("second borrows twice", "5:0:0", 2, -1, "4:59:59");
    row("second at the start", "0:0:0", 2, -1, "0:0:0");
    row("second down at the end", "24:0:0", 2, -1, "24:0:0");
    row("second down twice at the end", "24:0:0", 2, -2, "24:0:0");
    row("there and back", "9:59:58", 2, 5, "10:0:3");
    row("back and there", "10:0:2", 2, -5, "9:59:57");
}

void tst_ZvTimeSpinWidget::steps()
{
    QFETCH(QString, from);
    QFETCH(int, box);
    QFETCH(int, steps);
    QFETCH(QString, to);
    for (const char *way : {"keys", "wheel", "arrows"}) {
        Editor editor(from);
        ZvTimeSpinBox *stepped = editor.boxes.box(box);
        for (int i = 0; i < qAbs(steps); ++i) {
            if (qstrcmp(way, "keys") == 0)
                QTest::keyClick(stepped, steps > 0 ? Qt::Key_Up : Qt::Key_Down);
            else if (qstrcmp(way, "wheel") == 0)
                TimeBoxes::turnWheel(stepped, steps > 0 ? 1 : -1);
            else
                TimeBoxes::clickArrow(stepped, steps > 0);
        }
        QVERIFY2(editor.boxes.text() == to,
                 qPrintable(QLatin1String(way) + QLatin1Char(' ') + editor.boxes.text()));
        QCOMPARE(editor.widget.currentTime(), timeOf(to));
    }
}

void tst_ZvTimeSpinWidget::typed_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<int>("box");
    QTest::addColumn<QByteArray>("number");
    QTest::addColumn<QString>("to");
    const auto row = [](const char *name, const char *from, int box, const char *number,
                        const char *to) {
        QTest::newRow(name) << QString::fromLatin1(from) << box << QByteArray(number)
                            << QString::fromLatin1(to);
    };
    row("hour", "5:6:7", 0, "17", "17:6:7");
    row("hour 24", "5:6:7", 0, "24", "24:0:0");
    row("hour beyond", "5:6:7", 0, "25", "2:6:7");
    row("lower minute", "5:40:7", 1, "3", "5:3:7");
    row("higher minute", "5:4:7", 1, "59", "5:59:7");
    row("lower second", "5:6:50", 2, "1", "5:6:1");
    row("minute at the end", "24:0:0", 1, "30", "24:0:0");
    row("second at the end", "24:0:0", 2, "9", "24:0:0");
    row("no number", "5:6:7", 1, "x", "5:6:7");
}

void tst_ZvTimeSpinWidget::typed()
{
    QFETCH(QString, from);
    QFETCH(int, box);
    QFETCH(QByteArray, number);
    Editor editor(from);
    if (number == "x") {
        editor.boxes.box(box)->selectAll();
        QTest::keyClicks(editor.boxes.box(box), QStringLiteral("x-."));
    } else {
        TimeBoxes::type(editor.boxes.box(box), number.constData());
    }
    QTEST(editor.boxes.text(), "to");
}

void tst_ZvTimeSpinWidget::setTime_data()
{
    QTest::addColumn<QTime>("time");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QTime>("current");
    QTest::newRow("midnight") << QTime(0, 0) << QStringLiteral("0:0:0") << QTime(0, 0);
    QTest::newRow("time") << QTime(7, 8, 9) << QStringLiteral("7:8:9") << QTime(7, 8, 9);
    QTest::newRow("milliseconds are cut")
        << QTime(7, 8, 9, 994) << QStringLiteral("7:8:9") << QTime(7, 8, 9);
    QTest::newRow("end of the day") << EndOfDay << QStringLiteral("24:0:0") << EndOfDay;
    QTest::newRow("just before") << QTime(23, 59, 59, 998) << QStringLiteral("23:59:59")
                                 << QTime(23, 59, 59);
    QTest::newRow("invalid") << QTime() << QStringLiteral("24:0:0") << EndOfDay;
}

void tst_ZvTimeSpinWidget::setTime()
{
    QFETCH(QTime, time);
    for (const char *before : {"0:0:0", "24:0:0", "23:59:59", "12:34:56"}) {
        Editor editor(QString::fromLatin1(before));
        editor.widget.setTime(time);
        QTEST(editor.boxes.text(), "text");
        QTEST(editor.widget.currentTime(), "current");
    }
}

void tst_ZvTimeSpinWidget::signalAtChangesOnly()
{
    Editor editor(QStringLiteral("5:6:7"));
    QSignalSpy changed(&editor.widget, SIGNAL(timeChanged(QTime,QTime)));
    editor.widget.setTime(QTime(5, 6, 7));
    editor.widget.setTimeRange(QTime(0, 0), EndOfDay);
    QCOMPARE(changed.count(), 0);
    editor.boxes.minute()->stepUp();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().at(0).toTime(), QTime(5, 6, 7));
    QCOMPARE(changed.first().at(1).toTime(), QTime(5, 7, 7));
    editor.widget.setTime(QTime(0, 59, 59));
    QCOMPARE(changed.count(), 2);
    editor.boxes.second()->stepUp(); // three boxes change, but one time
    QCOMPARE(changed.count(), 3);
    QCOMPARE(changed.last().at(1).toTime(), QTime(1, 0, 0));
    editor.widget.setTime(EndOfDay);
    changed.clear();
    editor.boxes.second()->stepUp();
    editor.boxes.second()->stepDown();
    editor.boxes.minute()->stepDown();
    editor.boxes.minute()->setValue(30);
    QCOMPARE(changed.count(), 0);
}

// Whoever corrects the time in the slot is heard.
void tst_ZvTimeSpinWidget::signalComesWhenAllIsDone()
{
    Editor editor(QStringLiteral("5:6:7"));
    QStringList texts;
    connect(&editor.widget, &ZvTimeSpinWidget::timeChanged, &editor.widget, [&](QTime, QTime time) {
        texts.append(editor.boxes.text());
        if (time != QTime(4, 0))
            editor.widget.setTime(QTime(4, 0));
    });
    editor.boxes.hour()->stepUp();
    QCOMPARE(texts, (QStringList{QStringLiteral("6:6:7"), QStringLiteral("4:0:0")}));
    QCOMPARE(editor.boxes.text(), QStringLiteral("4:0:0"));
}

void tst_ZvTimeSpinWidget::range_data()
{
    QTest::addColumn<QTime>("minimum");
    QTest::addColumn<QTime>("maximum");
    QTest::addColumn<QTime>("time");
    QTest::addColumn<QTime>("held");
    const QTime eight(8, 0);
    const QTime nine(9, 0);
    QTest::newRow("inside") << eight << nine << QTime(8, 30) << QTime(8, 30);
    QTest::newRow("below") << eight << nine << QTime(7, 0) << eight;
    QTest::newRow("above") << eight << nine << QTime(9, 0, 1) << nine;
    QTest::newRow("single") << eight << eight << nine << eight;
    QTest::newRow("turned round") << nine << eight << QTime(8, 30) << nine;
    QTest::newRow("whole day") << QTime(0, 0) << EndOfDay << EndOfDay << EndOfDay;
}

void tst_ZvTimeSpinWidget::range()
{
    QFETCH(QTime, minimum);
    QFETCH(QTime, maximum);
    QFETCH(QTime, time);
    ZvTimeSpinWidget widget;
    widget.setTimeRange(minimum, maximum);
    widget.setTime(time);
    QTEST(widget.currentTime(), "held");
}

void tst_ZvTimeSpinWidget::rangeHoldsSteps()
{
    Editor editor(QStringLiteral("8:0:1"));
    editor.widget.setTimeRange(QTime(8, 0, 0, 500), QTime(9, 30));
    QSignalSpy changed(&editor.widget, SIGNAL(timeChanged(QTime,QTime)));
    editor.boxes.second()->stepDown();
    QCOMPARE(changed.last().at(1).toTime(), QTime(8, 0, 0, 500));
    QCOMPARE(editor.boxes.text(), QStringLiteral("8:0:0"));
    editor.boxes.second()->stepDown();
    QCOMPARE(editor.boxes.text(), QStringLiteral("8:0:0"));
    editor.boxes.hour()->stepUp();
    editor.boxes.minute()->setValue(29);
    TimeBoxes::turnWheel(editor.boxes.minute(), 3);
    QCOMPARE(editor.boxes.text(), QStringLiteral("9:30:0"));
    TimeBoxes::turnWheel(editor.boxes.hour(), 3);
    QCOMPARE(editor.boxes.text(), QStringLiteral("9:30:0"));
}

void tst_ZvTimeSpinWidget::rangeHoldsWhatIsTypedWhenItIsFinished()
{
    Editor editor(QStringLiteral("12:0:0"));
    editor.widget.setTimeRange(QTime(10, 0), QTime(15, 30));
    QSignalSpy changed(&editor.widget, SIGNAL(timeChanged(QTime,QTime)));
    editor.boxes.hour()->selectAll();
    QTest::keyClicks(editor.boxes.hour(), QStringLiteral("1"));
    QCOMPARE(changed.count(), 0);
    QTest::keyClicks(editor.boxes.hour(), QStringLiteral("4"));
    QCOMPARE(changed.last().at(1).toTime(), QTime(14, 0));
    TimeBoxes::type(editor.boxes.hour(), "3");
    QCOMPARE(editor.boxes.text(), QStringLiteral("10:0:0"));
    TimeBoxes::type(editor.boxes.hour(), "24");
    QCOMPARE(editor.boxes.text(), QStringLiteral("15:30:0"));

    editor.widget.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&editor.widget));
    editor.boxes.hour()->setFocus();
    editor.boxes.hour()->selectAll();
    QTest::keyClicks(editor.boxes.hour(), QStringLiteral("2"));
    QCOMPARE(editor.boxes.text(), QStringLiteral("2:30:0"));
    editor.boxes.minute()->setFocus();
    QCOMPARE(editor.boxes.text(), QStringLiteral("10:0:0"));

    // Whoever sets a time meanwhile is not overruled at the end of the typing.
    editor.boxes.hour()->selectAll();
    QTest::keyClicks(editor.boxes.hour(), QStringLiteral("2"));
    editor.widget.setTime(QTime(11, 22, 33, 444));
    changed.clear();
    QTest::keyClick(editor.boxes.hour(), Qt::Key_Return);
    QCOMPARE(editor.boxes.text(), QStringLiteral("11:22:33"));
    QCOMPARE(changed.count(), 0);
}

void tst_ZvTimeSpinWidget::minimumIsLimitedByTheOldMaximum()
{
    ZvTimeSpinWidget widget;
    widget.setTimeRange(QTime(8, 0), QTime(9, 0));
    widget.setTimeRange(QTime(12, 0), QTime(20, 0));
    widget.setTime(QTime(1, 0));
    QCOMPARE(widget.currentTime(), QTime(9, 0));
    widget.setTimeRange(QTime(12, 0), QTime(20, 0));
    widget.setTime(QTime(1, 0));
    QCOMPARE(widget.currentTime(), QTime(12, 0));
    widget.setTime(QTime(23, 0));
    QCOMPARE(widget.currentTime(), QTime(20, 0));
}

void tst_ZvTimeSpinWidget::rangeLeavesTheTimeOnShow()
{
    ZvTimeSpinWidget widget;
    widget.setTime(QTime(3, 0));
    QSignalSpy changed(&widget, SIGNAL(timeChanged(QTime,QTime)));
    widget.setTimeRange(QTime(8, 0), QTime(9, 0));
    QCOMPARE(widget.currentTime(), QTime(3, 0));
    QCOMPARE(changed.count(), 0);
    widget.setTime(widget.currentTime());
    QCOMPARE(widget.currentTime(), QTime(8, 0));
}

// Also one that leaves the boxes as they are.
void tst_ZvTimeSpinWidget::anyInputHoldsTheTimeInANewRange()
{
    Editor editor(QStringLiteral("24:0:0"));
    editor.widget.setTimeRange(QTime(8, 0), QTime(9, 0));
    QSignalSpy changed(&editor.widget, SIGNAL(timeChanged(QTime,QTime)));
    editor.boxes.minute()->stepUp();
    QCOMPARE(editor.boxes.text(), QStringLiteral("9:0:0"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().at(0).toTime(), EndOfDay);
    QCOMPARE(changed.first().at(1).toTime(), QTime(9, 0));
    editor.widget.setTimeRange(QTime(0, 0), QTime(7, 30));
    QTest::keyClick(editor.boxes.hour(), Qt::Key_Return);
    QCOMPARE(editor.boxes.text(), QStringLiteral("7:30:0"));
    QCOMPARE(changed.count(), 2);
}

void tst_ZvTimeSpinWidget::invalidRange()
{
    ZvTimeSpinWidget widget;
    widget.setTimeRange(QTime(), QTime(5, 0));
    widget.setTime(QTime(4, 0));
    QCOMPARE(widget.currentTime(), EndOfDay);
    widget.setTimeRange(QTime(4, 0), QTime());
    widget.setTime(QTime());
    QCOMPARE(widget.currentTime(), EndOfDay);
    widget.setTime(QTime(4, 0));
    QCOMPARE(widget.currentTime(), QTime(4, 0));
}

void tst_ZvTimeSpinWidget::everySecondOfTheDay()
{
    ZvTimeSpinWidget widget;
    const TimeBoxes boxes(&widget);
    widget.setTime(QTime(0, 0));
    for (int second = 1; second <= 86400; ++second) {
        boxes.second()->stepUp();
        const QTime expected =
            second == 86400 ? EndOfDay : QTime::fromMSecsSinceStartOfDay(second * 1000);
        if (widget.currentTime() != expected)
            QCOMPARE(widget.currentTime(), expected);
    }
    widget.setTime(QTime(23, 59, 59));
    for (int second = 86398; second >= 0; --second) {
        boxes.second()->stepDown();
        const QTime expected = QTime::fromMSecsSinceStartOfDay(second * 1000);
        if (widget.currentTime() != expected)
            QCOMPARE(widget.currentTime(), expected);
    }
}

QTEST_MAIN(tst_ZvTimeSpinWidget)
#include "tst_zvtimespinwidget.moc"
