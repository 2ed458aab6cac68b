#include "timetable/TimeTableAccessibility.h"

#include "TimeTableFixture.h"

#include <QAccessible>
#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

using namespace Zavo;
using ZavoTest::band;
using ZavoTest::TimeTableFixture;
using ZavoTest::yOf;

namespace {

// What assistive technology was told: the kind of each event and the name of what it is about.
QStringList heard;

void hear(const QAccessibleEvent *event)
{
    const QString kind =
        QString::fromLatin1(QMetaEnum::fromType<QAccessible::Event>().valueToKey(event->type()));
    const QAccessibleInterface *const about = event->accessibleInterface();
    const bool isOfTable = about && about->object() &&
                           (qobject_cast<ZvTimeTableTimeItem *>(about->object()) ||
                            qobject_cast<ZvTimeTableView *>(about->object()));
    if (isOfTable)
        heard.append(kind + QLatin1Char(' ') + about->text(QAccessible::Name));
}

/// Somebody listens while it lives.
class Listening final
{
    Q_DISABLE_COPY(Listening)

public:
    Listening()
    {
        heard.clear();
        QAccessible::setActive(true);
    }
    ~Listening() { QAccessible::setActive(false); }

    QStringList taken() const
    {
        const QStringList events = heard;
        heard.clear();
        return events;
    }
};

QAccessibleInterface *interfaceOf(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

QString nameOf(const QAccessibleInterface *interface)
{
    return interface ? interface->text(QAccessible::Name) : QStringLiteral("nothing");
}

void act(QAccessibleInterface *interface, const QString &action)
{
    interface->actionInterface()->doAction(action);
}

QList<ZvTime> threeTimes()
{
    return {
        band(QStringLiteral("06:00:00"), QStringLiteral("07:30:00"), QStringLiteral("news.xml")),
        band(QStringLiteral("10:00:00"), QStringLiteral("11:00:00"), QStringLiteral("b.xml")),
        band(QStringLiteral("23:00:00"), QStringLiteral("24:00:00"), QStringLiteral("c.zstg"))};
}

} // namespace

// In the place of Qt's own, which passes nothing on where no platform listens.
void QAccessible::updateAccessibility(QAccessibleEvent *event)
{
    hear(event);
}

class tst_TimeTableAccessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void names_data();
    void names();
    void bandsAreTheItemsOfTheTable();
    void bandsAreFoundOnTheScreen();
    void bandsOutOfSight();
    void selectionIsAState();
    void actions();
    void actionActivatesThePage();
    void unknownActionDoesNothing();
    void bandsThatGo();
    void tableWhoseSceneIsGone();
    void noticeSaysWhyThereIsNothing();
    void nothingIsToldWhileNobodyListens();
    void tellsOfBands();
    void tellsOfTheSelection();
    void tellsOfAMove();
    void manyBandsAreOneEvent();
};

void tst_TimeTableAccessibility::names_data()
{
    QTest::addColumn<ZvTime>("time");
    QTest::addColumn<QString>("name");
    const auto row = [](const char *tag, const char *start, const char *end, const char *name) {
        QTest::newRow(tag) << band(QLatin1String(start), QLatin1String(end),
                                   QStringLiteral("news.xml"))
                           << QString::fromLatin1(name);
    };
    row("plain", "06:00:00", "07:30:00", "news.xml, 06:00:00 to 07:30:00");
    row("to 24 o'clock", "00:00:00", "24:00:00", "news.xml, 00:00:00 to 24:00:00");
    row("truncated", "05:59:59.999", "07:29:59.996", "news.xml, 06:00:00 to 07:30:00");
    row("truncated at the end of the day", "22:00:00", "23:59:59.995",
        "news.xml, 22:00:00 to 24:00:00");
    row("between seconds", "06:00:00.500", "07:30:00.994", "news.xml, 06:00:00 to 07:30:00");
}

void tst_TimeTableAccessibility::names()
{
    QFETCH(ZvTime, time);
    QTEST(TimeTableAccessibility::nameOf(time), "name");
}

void tst_TimeTableAccessibility::bandsAreTheItemsOfTheTable()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeTimes()));
    QAccessibleInterface *const list = interfaceOf(table.view());
    QCOMPARE(list->role(), QAccessible::List);
    QCOMPARE(nameOf(list), QStringLiteral("Time table"));
    QVERIFY(list->childCount() >= 3);
    const QStringList names{QStringLiteral("news.xml, 06:00:00 to 07:30:00"),
                            QStringLiteral("b.xml, 10:00:00 to 11:00:00"),
                            QStringLiteral("c.zstg, 23:00:00 to 24:00:00")};
    for (int i = 0; i < names.size(); ++i) {
        QAccessibleInterface *const item = list->child(i);
        QVERIFY(item && item->isValid());
        QCOMPARE(nameOf(item), names.at(i));
        QCOMPARE(item->role(), QAccessible::ListItem);
        QCOMPARE(item->parent(), list);
        QCOMPARE(item->childCount(), 0);
        QCOMPARE(list->indexOfChild(item), i);
        QCOMPARE(item, list->child(i));
    }
    // The parts that every view has come after them, and nothing after those.
    QAccessibleInterface *const bar = list->child(3);
    QVERIFY(bar && bar->object()->isWidgetType());
    QCOMPARE(list->indexOfChild(bar), 3);
    QVERIFY(!list->child(-1));
    QVERIFY(!list->child(list->childCount()));
    // A band that comes between takes its place.
    QVERIFY(table.scene()->insertTimeItems(
        {band(QStringLiteral("08:00:00"), QStringLiteral("09:00:00"), QStringLiteral("n.xml"))}));
    QCOMPARE(nameOf(list->child(1)), QStringLiteral("n.xml, 08:00:00 to 09:00:00"));
    QCOMPARE(nameOf(list->child(2)), names.at(1));
}

void tst_TimeTableAccessibility::bandsAreFoundOnTheScreen()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeTimes()));
    table.scrollTo(yOf(QStringLiteral("08:00:00")));
    QAccessibleInterface *const list = interfaceOf(table.view());
    for (const double scale : {1.0, 2.0}) {
        table.setScale(scale);
        table.scrollTo(yOf(QStringLiteral("07:00:00")));
        const QRect rect = list->child(0)->rect();
        QVERIFY(qAbs(rect.height() - 90 * scale) <= 3.0);
        const QPoint inView = table.view()->viewport()->mapFromGlobal(rect.center());
        const double y = table.view()->mapToScene(inView).y();
        QVERIFY(qAbs(y - yOf(QStringLiteral("06:45:00"))) < 2.0);
        QCOMPARE(list->childAt(rect.center().x(), rect.center().y()), list->child(0));
        QVERIFY(!list->child(0)->state().offscreen);
        // Between two bands there is none.
        QAccessibleInterface *const gap = list->childAt(rect.center().x(), rect.bottom() + 8);
        QVERIFY(!gap || gap->role() != QAccessible::ListItem);
    }
}

void tst_TimeTableAccessibility::bandsOutOfSight()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeTimes()));
    QAccessibleInterface *const last = interfaceOf(table.view())->child(2);
    table.scrollTo(0.0);
    QVERIFY(last->state().offscreen);
    table.scrollTo(yOf(QStringLiteral("23:30:00")));
    QVERIFY(!last->state().offscreen);
    QVERIFY(!last->state().invisible);
    table.view()->hide();
    QVERIFY(last->state().invisible);
}

void tst_TimeTableAccessibility::selectionIsAState()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeTimes()));
    table.view()->activateWindow();
    table.view()->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(table.view()));
    QAccessibleInterface *const list = interfaceOf(table.view());
    QVERIFY(list->child(1)->state().selectable);
    QVERIFY(list->child(1)->state().multiSelectable);
    QVERIFY(!list->child(1)->state().selected);
    QVERIFY(!list->focusChild() || list->focusChild()->role() != QAccessible::ListItem);
    table.select({1, 2});
    QVERIFY(!list->child(0)->state().selected);
    QVERIFY(list->child(1)->state().selected);
    QVERIFY(list->child(2)->state().selected);
    QVERIFY(list->child(1)->state().focused);
    QVERIFY(!list->child(2)->state().focused);
    QCOMPARE(list->focusChild(), list->child(1));
}

void tst_TimeTableAccessibility::actions()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeTimes()));
    table.scrollTo(0.0);
    QAccessibleInterface *const list = interfaceOf(table.view());
    using Action = QAccessibleActionInterface;
    QCOMPARE(
        list->child(2)->actionInterface()->actionNames(),
        (QStringList{Action::pressAction(), Action::toggleAction(), Action::setFocusAction()}));
    act(list->child(2), Action::pressAction());
    QCOMPARE(table.strip()->selectedTimeItems(), QList<ZvTimeTableTimeItem *>{table.item(2)});
    QVERIFY(!list->child(2)->state().offscreen);
    act(list->child(0), Action::toggleAction());
    QCOMPARE(table.strip()->selectedTimeItemCount(), 2);
    act(list->child(2), Action::toggleAction());
    QCOMPARE(table.strip()->selectedTimeItems(), QList<ZvTimeTableTimeItem *>{table.item(0)});
    act(list->child(1), Action::setFocusAction());
    QCOMPARE(table.scene()->selectedTimeItems(), QList<ZvTimeTableTimeItem *>{table.item(1)});
}

void tst_TimeTableAccessibility::actionActivatesThePage()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeTimes()));
    QSignalSpy pressed(table.scene(), SIGNAL(mousePressed()));
    act(interfaceOf(table.item(0)), QAccessibleActionInterface::pressAction());
    QCOMPARE(pressed.count(), 1);
}

void tst_TimeTableAccessibility::unknownActionDoesNothing()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeTimes()));
    act(interfaceOf(table.item(0)), QStringLiteral("Explode"));
    QCOMPARE(table.strip()->selectedTimeItemCount(), 0);
}

void tst_TimeTableAccessibility::bandsThatGo()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeTimes()));
    QAccessibleInterface *const list = interfaceOf(table.view());
    const QAccessible::Id first = QAccessible::uniqueId(list->child(0));
    const QAccessible::Id second = QAccessible::uniqueId(list->child(1));
    table.scene()->removeTimeItems({threeTimes().first()});
    QVERIFY(!QAccessible::accessibleInterface(first));
    QCOMPARE(QAccessible::accessibleInterface(second), list->child(0));
    // A band goes while its own action is under way.
    QObject::connect(
        table.scene(), &ZvTimeTableScene::mousePressed, table.scene(),
        [&table] { table.scene()->removeAllTimeItems(); }, Qt::DirectConnection);
    act(list->child(0), QAccessibleActionInterface::pressAction());
    QCOMPARE(table.count(), 0);
    QVERIFY(!QAccessible::accessibleInterface(second));
}

void tst_TimeTableAccessibility::tableWhoseSceneIsGone()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeTimes()));
    QAccessibleInterface *const list = interfaceOf(table.view());
    QAccessibleInterface *const item = list->child(0);
    table.view()->setScene(nullptr);
    QVERIFY(!item->isValid());
    QVERIFY(item->state().invalid);
    QCOMPARE(item->rect(), QRect());
    QVERIFY(!item->parent());
    QVERIFY(item->actionInterface()->actionNames().isEmpty());
    act(item, QAccessibleActionInterface::pressAction());
    QVERIFY(list->isValid());
    QVERIFY(!list->child(0) || list->child(0)->role() != QAccessible::ListItem);
    table.view()->setScene(table.scene());
    QVERIFY(item->isValid());
}

void tst_TimeTableAccessibility::noticeSaysWhyThereIsNothing()
{
    TimeTableFixture table;
    const QAccessibleInterface *const list = interfaceOf(table.view());
    QCOMPARE(list->text(QAccessible::Description), QString());
    table.view()->setNoScheduleLabelVisible(true);
    QCOMPARE(list->text(QAccessible::Description), QStringLiteral("This schedule does not exist."));
}

void tst_TimeTableAccessibility::nothingIsToldWhileNobodyListens()
{
    TimeTableFixture table;
    heard.clear();
    QVERIFY(table.fill(threeTimes()));
    table.select({1});
    table.scene()->onSelectionChanged();
    QVERIFY(table.scene()->moveSelectedTimeItems(QPointF(0.0, 30.0), QPointF()));
    table.scene()->removeAllTimeItems();
    QCOMPARE(heard, QStringList());
}

void tst_TimeTableAccessibility::tellsOfBands()
{
    TimeTableFixture table;
    const Listening listening;
    QVERIFY(table.scene()->insertTimeItems({threeTimes().first()}));
    QStringList events = listening.taken();
    QVERIFY(events.contains(QStringLiteral("ObjectCreated news.xml, 06:00:00 to 07:30:00")));
    QVERIFY(events.contains(QStringLiteral("ObjectReorder Time table")));
    table.scene()->removeAllTimeItems();
    QVERIFY(listening.taken().contains(QStringLiteral("ObjectReorder Time table")));
    table.scene()->removeAllTimeItems();
    QVERIFY(!listening.taken().contains(QStringLiteral("ObjectReorder Time table")));
}

void tst_TimeTableAccessibility::tellsOfTheSelection()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeTimes()));
    table.view()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(table.view()));
    table.view()->setFocus();
    const Listening listening;
    QObject::connect(table.scene(), SIGNAL(selectionChanged()), table.scene(),
                                           SLOT(onSelectionChanged()), Qt::UniqueConnection);
    table.strip()->selectNextTimeItem();
    const QStringList events = listening.taken();
    QVERIFY(events.contains(QStringLiteral("Selection news.xml, 06:00:00 to 07:30:00")));
    QVERIFY(events.contains(QStringLiteral("Focus news.xml, 06:00:00 to 07:30:00")));
    table.strip()->selectAllTimeItems();
    QVERIFY(listening.taken().contains(QStringLiteral("SelectionWithin Time table")));
}

void tst_TimeTableAccessibility::tellsOfAMove()
{
    TimeTableFixture table;
    QVERIFY(table.fill(threeTimes()));
    table.select({0});
    table.scene()->onSelectionChanged();
    const Listening listening;
    QVERIFY(table.scene()->moveSelectedTimeItems(QPointF(0.0, 30.0), QPointF()));
    QCOMPARE(listening.taken(),
             QStringList{QStringLiteral("NameChanged news.xml, 06:30:00 to 08:00:00")});
}

void tst_TimeTableAccessibility::manyBandsAreOneEvent()
{
    QList<ZvTime> times;
    for (int minute = 0; minute < 1440; ++minute)
        times.append({QTime(0, 0).addSecs(minute * 60), QTime(0, 0).addSecs(minute * 60 + 50),
                      QStringLiteral("a.xml")});
    TimeTableFixture table;
    const Listening listening;
    QVERIFY(table.scene()->insertTimeItems(times));
    QVERIFY(listening.taken().size() <= 4);
    table.strip()->selectAllTimeItems();
    QVERIFY(listening.taken().size() <= 2);
    table.scene()->removeAllTimeItems();
    QVERIFY(listening.taken().size() <= 4);
}

QTEST_MAIN(tst_TimeTableAccessibility)

#include "tst_timetableaccessibility.moc"
