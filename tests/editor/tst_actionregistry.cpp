#include "editor/ActionRegistry.h"

#include <QtTest>

using namespace Zavo;

namespace {

QMenu *newMenu(const char *name)
{
    auto *menu = new QMenu;
    menu->setObjectName(QLatin1String(name));
    return menu;
}

QStringList namesOf(const ActionRegistry &registry)
{
    QStringList names;
    const QList<QMenu *> menus = registry.menus();
    for (const QMenu *menu : menus)
        names.append(menu->objectName());
    return names;
}

} // namespace

class tst_ActionRegistry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lookups();
    void calendarMenuBeforeChannelMenu();
    void calendarMenuWithoutChannelMenu_data();
    void calendarMenuWithoutChannelMenu();
    void menusAreEnteredOnce();
    void helpMenuIsLast();
    void takenMenu();
    void firstOfTwoMenusIsTaken();
    void destructorDeletesAllButHelp();
    void deletesSubmenus();
    void deletesNothing();
    void diedMenusAndActions();
};

void tst_ActionRegistry::lookups()
{
    ActionRegistry registry;
    QVERIFY(!registry.menu(QStringLiteral("Menu_Edit")));
    QVERIFY(!registry.action(QString()));
    QMenu *menu = newMenu("Menu_Edit");
    registry.addMenu(menu);
    QAction *unnamed = menu->addAction(QStringLiteral("unnamed"));
    QAction *named = menu->addAction(QStringLiteral("named"));
    named->setObjectName(QStringLiteral("a"));
    QAction *sameName = menu->addAction(QStringLiteral("same name"));
    sameName->setObjectName(QStringLiteral("a"));
    for (QAction *action : {unnamed, named, sameName})
        registry.addAction(action);
    QCOMPARE(registry.menu(QStringLiteral("Menu_Edit")), menu);
    QVERIFY(!registry.menu(QStringLiteral("menu_edit")));
    QCOMPARE(registry.action(QStringLiteral("a")), named);
    QCOMPARE(registry.action(QString()), unnamed);
    QCOMPARE(registry.actions(), (QList<QAction *>{unnamed, named, sameName}));
}

void tst_ActionRegistry::calendarMenuBeforeChannelMenu()
{
    ActionRegistry registry;
    for (const char *name : {"", "Menu_Edit", "Menu_Channel", "Menu_Window"})
        registry.addMenu(newMenu(name));
    registry.setCalendarMenu(newMenu("Menu_Calendar"));
    QCOMPARE(namesOf(registry),
             (QStringList{QString(), QStringLiteral("Menu_Edit"), QStringLiteral("Menu_Calendar"),
                          QStringLiteral("Menu_Channel"), QStringLiteral("Menu_Window")}));
}

void tst_ActionRegistry::calendarMenuWithoutChannelMenu_data()
{
    QTest::addColumn<QStringList>("menus");
    QTest::addColumn<QStringList>("expected");
    const QString calendar = QStringLiteral("Menu_Calendar");
    QTest::newRow("none") << QStringList() << QStringList{calendar};
    QTest::newRow("one") << QStringList{QStringLiteral("a")}
                         << QStringList{calendar, QStringLiteral("a")};
    QTest::newRow("two") << QStringList{QStringLiteral("a"), QStringLiteral("b")}
                         << QStringList{QStringLiteral("a"), calendar, QStringLiteral("b")};
}

void tst_ActionRegistry::calendarMenuWithoutChannelMenu()
{
    QFETCH(QStringList, menus);
    ActionRegistry registry;
    for (const QString &name : menus)
        registry.addMenu(newMenu(qPrintable(name)));
    registry.setCalendarMenu(newMenu("Menu_Calendar"));
    QTEST(namesOf(registry), "expected");
}

void tst_ActionRegistry::menusAreEnteredOnce()
{
    ActionRegistry registry;
    registry.addMenu(newMenu("Menu_Channel"));
    QMenu *calendar = newMenu("Menu_Calendar");
    registry.setCalendarMenu(calendar);
    registry.setCalendarMenu(calendar);
    registry.setCalendarMenu(nullptr);
    const std::unique_ptr<QMenu> help(newMenu("Menu_Help"));
    registry.setHelpMenu(help.get());
    registry.setHelpMenu(help.get());
    registry.setHelpMenu(nullptr);
    QCOMPARE(registry.menus().size(), 3);
}

void tst_ActionRegistry::helpMenuIsLast()
{
    const std::unique_ptr<QMenu> help(newMenu("Menu_Help"));
    ActionRegistry registry;
    registry.addMenu(newMenu("Menu_Channel"));
    registry.setHelpMenu(help.get());
    registry.setCalendarMenu(newMenu("Menu_Calendar"));
    QCOMPARE(registry.menus().last(), help.get());
    QCOMPARE(namesOf(registry).first(), QStringLiteral("Menu_Calendar"));
}

void tst_ActionRegistry::takenMenu()
{
    std::unique_ptr<QMenu> taken;
    {
        ActionRegistry registry;
        QVERIFY(!registry.takeMenu(QStringLiteral("Menu_Calendar")));
        registry.setCalendarMenu(newMenu("Menu_Calendar"));
        taken.reset(registry.takeMenu(QStringLiteral("Menu_Calendar")));
        QVERIFY(taken);
        QVERIFY(registry.menus().isEmpty());
        QVERIFY(!registry.takeMenu(QStringLiteral("Menu_Calendar")));
    }
    QCOMPARE(taken->objectName(), QStringLiteral("Menu_Calendar"));
}

void tst_ActionRegistry::firstOfTwoMenusIsTaken()
{
    ActionRegistry registry;
    QMenu *first = newMenu("Menu_Calendar");
    QMenu *second = newMenu("Menu_Calendar");
    registry.addMenu(first);
    registry.addMenu(second);
    const std::unique_ptr<QMenu> taken(registry.takeMenu(QStringLiteral("Menu_Calendar")));
    QCOMPARE(taken.get(), first);
    QCOMPARE(registry.menus(), QList<QMenu *>{second});
}

void tst_ActionRegistry::destructorDeletesAllButHelp()
{
    const std::unique_ptr<QMenu> help(newMenu("Menu_Help"));
    const QPointer<QMenu> edit = newMenu("Menu_Edit");
    const QPointer<QMenu> calendar = newMenu("Menu_Calendar");
    const QPointer<QAction> action = edit->addAction(QStringLiteral("x"));
    {
        ActionRegistry registry;
        registry.addMenu(edit);
        registry.addAction(action);
        registry.setCalendarMenu(calendar);
        registry.setHelpMenu(help.get());
    }
    QVERIFY(!edit);
    QVERIFY(!calendar);
    QVERIFY(!action);
    QCOMPARE(help->objectName(), QStringLiteral("Menu_Help"));
}

void tst_ActionRegistry::deletesSubmenus()
{
    auto *menu = new QMenu;
    QPointer<QAction> plain = menu->addAction(QStringLiteral("plain"));
    menu->addSeparator();
    QPointer<QMenu> inner = new QMenu; // not a child of the menu that shows it
    QPointer<QAction> innerAction = inner->addAction(QStringLiteral("inner"));
    QPointer<QMenu> innermost = inner->addMenu(QStringLiteral("innermost"));
    QPointer<QAction> foreign = new QAction; // nobody's child
    innermost->addAction(foreign);
    menu->addMenu(inner);
    ActionRegistry::deleteMenuAndAction(menu);
    QVERIFY(!plain);
    QVERIFY(!inner);
    QVERIFY(!innerAction);
    QVERIFY(!innermost);
    QVERIFY(!foreign);
}

void tst_ActionRegistry::deletesNothing()
{
    ActionRegistry::deleteMenuAndAction(nullptr);
}

void tst_ActionRegistry::diedMenusAndActions()
{
    ActionRegistry registry;
    QMenu *edit = newMenu("Menu_Edit");
    QMenu *help = newMenu("Menu_Help");
    registry.addMenu(edit);
    registry.setHelpMenu(help);
    QAction *action = edit->addAction(QStringLiteral("x"));
    action->setObjectName(QStringLiteral("x"));
    registry.addAction(action);
    delete help;
    delete edit;
    QVERIFY(registry.menus().isEmpty());
    QVERIFY(registry.actions().isEmpty());
    QVERIFY(!registry.action(QStringLiteral("x")));
    QVERIFY(!registry.takeMenu(QStringLiteral("Menu_Help")));
}

QTEST_MAIN(tst_ActionRegistry)
#include "tst_actionregistry.moc"
