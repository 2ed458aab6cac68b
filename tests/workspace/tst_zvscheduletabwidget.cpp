#include "workspace/ZvScheduleTabWidget.h"

#include "MainWidgetFixture.h"

#include "ZvSystemInfo.h"
#include "workspace/ZvScheduleRenameTabWidget.h"
#include "workspace/ZvTabBar.h"

#include <QSignalSpy>
#include <QToolTip>
#include <QtTest>

using namespace Zavo;
using namespace ZavoTest;

namespace {

// A shown main widget with five tabs and a mouse over their bar.
class TabFixture : public MainWidgetFixture
{
public:
    TabFixture()
    {
        createTabs({QStringLiteral("Alpha"), QStringLiteral("Beta"), QStringLiteral("Gamma"),
                    QStringLiteral("Delta"), QStringLiteral("Epsilon")});
        widget->resize(1200, 500);
        widget->show();
        // The bar gets its look a moment after it is shown.
        hasItsLook = QTest::qWaitFor([this] { return !bar()->styleSheet().isEmpty(); });
    }

    bool hasItsLook = false;

    QTabBar *bar() const { return tabs()->tabBar(); }
    QRect rect(int index) const { return bar()->tabRect(index); }

    void press(int index)
    {
        m_mouse = rect(index).center();
        send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
    }
    // Moves in steps, as a hand does.
    void moveBy(int dx)
    {
        const int step = dx < 0 ? -4 : 4;
        for (int moved = 0; moved != dx; moved += qAbs(dx - moved) < 4 ? dx - moved : step) {
            m_mouse.rx() += qAbs(dx - moved) < 4 ? dx - moved : step;
            send(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton);
        }
    }
    // A move whose source tells no buttons, as a synthesised one.
    void moveToX(int x)
    {
        m_mouse.rx() = x;
        send(QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
    }
    void release() { send(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton); }

    // Indices that the channels hold, in the order of the tabs.
    QList<int> indices() const
    {
        QList<int> list;
        for (int i = 0; i < tabs()->count(); ++i)
            list.append(area(i)->channel()->index());
        return list;
    }
    ZvScheduleRenameTabWidget *editor() const
    {
        const auto editors = tabs()->findChildren<ZvScheduleRenameTabWidget *>();
        for (ZvScheduleRenameTabWidget *candidate : editors) {
            if (candidate->isVisible())
                return candidate;
        }
        return nullptr;
    }

private:
    void send(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        QMouseEvent event(type, m_mouse, bar()->mapToGlobal(m_mouse), button, buttons,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(bar(), &event);
    }

    QPoint m_mouse;
};

const QList<int> InOrder = {0, 1, 2, 3, 4};

} // namespace

class tst_ZvScheduleTabWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void firstTabCannotBeDragged();
    void noTabIsDraggedPastTheFirst();
    void firstTabIsGuardedWhateverButtonsAMoveTells_data();
    void firstTabIsGuardedWhateverButtonsAMoveTells();
    void dragRewritesIndices_data();
    void dragRewritesIndices();
    void clickMovesNothing();
    void pressBesideTheTabs();
    void moveWithoutPress();
    void onTabMoved();
    void correctFirstTab_data();
    void correctFirstTab();
    void currentTabRect();
    void renameStarts_data();
    void renameStarts();
    void otherKeysRenameNothing();
    void editorOverTheTitle();
    void renameEnds_data();
    void renameEnds();
    void renameEndsByFocus();
    void renameIsReportedOnce();
    void secondEditorEndsTheFirst();
    void foreignObjectEndsNothing();
    void otherEditorRenamesTheCurrentTab();
    void renameWithoutTabs();
    void textEdited();
    void lookFollowsTheScreen();
};

void tst_ZvScheduleTabWidget::cleanup()
{
    QToolTip::hideText();
    ZvSystemInfo::setDpiRatioOverride(0.0);
}

void tst_ZvScheduleTabWidget::firstTabCannotBeDragged()
{
    TabFixture main;
    QSignalSpy moved(main.tabs(), SIGNAL(tabMoved(int,int)));
    main.press(0);
    main.moveBy(300);
    QTRY_VERIFY(QToolTip::isVisible());
    QCOMPARE(QToolTip::text(),
             QStringLiteral("<span style=\"font-weight:bold;\">You can not move the first "
                            "tab.</span>"));
    main.release();
    QCOMPARE(main.tabTexts().first(), QStringLiteral("Alpha"));
    QCOMPARE(main.indices(), InOrder);
    QCOMPARE(moved.count(), 0);
}

void tst_ZvScheduleTabWidget::noTabIsDraggedPastTheFirst()
{
    TabFixture main;
    main.press(2);
    const int toTheLine = main.rect(0).center().x() + 2 - main.rect(2).left();
    main.moveBy(toTheLine);
    QCoreApplication::processEvents();
    QVERIFY(!QToolTip::isVisible());
    main.moveBy(-1);
    QTRY_VERIFY(QToolTip::isVisible());
    main.moveBy(-200);
    main.release();
    QCOMPARE(main.tabTexts(),
             (QStringList{QStringLiteral("Alpha"), QStringLiteral("Gamma"), QStringLiteral("Beta"),
                          QStringLiteral("Delta"), QStringLiteral("Epsilon")}));
    QCOMPARE(main.indices(), InOrder);
    QCOMPARE(main.area(1)->channelName(), QStringLiteral("Gamma"));
}

void tst_ZvScheduleTabWidget::firstTabIsGuardedWhateverButtonsAMoveTells_data()
{
    QTest::addColumn<int>("pressed");
    QTest::newRow("first tab") << 0;
    QTest::newRow("third tab") << 2;
}

void tst_ZvScheduleTabWidget::firstTabIsGuardedWhateverButtonsAMoveTells()
{
    QFETCH(int, pressed);
    TabFixture main;
    const int offset = main.rect(pressed).center().x() - main.rect(pressed).left();
    const int middle = main.rect(0).center().x();
    main.press(pressed);
    main.moveToX(main.rect(pressed).center().x() + 2);
    main.moveToX(middle + offset + (pressed == 0 ? 0 : 2));
    QTest::qWait(5);
    QCOMPARE(QToolTip::isVisible(), pressed == 0);
    main.moveToX(middle + offset + 1);
    QTest::qWait(5);
    QVERIFY(QToolTip::isVisible());
    main.release();
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
    main.moveToX(middle);
    QTest::qWait(5);
    QVERIFY(!QToolTip::isVisible());
    QCOMPARE(main.indices(), InOrder);
}

void tst_ZvScheduleTabWidget::dragRewritesIndices_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::newRow("two to four") << 2 << 4;
    QTest::newRow("four to one") << 4 << 1;
    QTest::newRow("one to two") << 1 << 2;
}

void tst_ZvScheduleTabWidget::dragRewritesIndices()
{
    QFETCH(int, from);
    QFETCH(int, to);
    TabFixture main;
    const QString name = main.tabs()->tabText(from);
    QSignalSpy moved(main.tabs(), SIGNAL(tabMoved(int,int)));
    main.press(from);
    const int distance = main.rect(to).center().x() - main.rect(from).center().x();
    main.moveBy(distance + (distance > 0 ? 20 : -20));
    main.release();
    QCOMPARE(main.tabs()->currentIndex(), to);
    QCOMPARE(main.tabs()->tabText(to), name);
    QCOMPARE(main.indices(), InOrder);
    QCOMPARE(moved.count(), 1);
    QCOMPARE(moved.first(), (QList<QVariant>{from, to}));
}

void tst_ZvScheduleTabWidget::clickMovesNothing()
{
    TabFixture main;
    QSignalSpy moved(main.tabs(), SIGNAL(tabMoved(int,int)));
    main.press(3);
    main.release();
    QCOMPARE(main.tabs()->currentIndex(), 3);
    QCOMPARE(moved.count(), 0);
    QVERIFY(!QToolTip::isVisible());
}

void tst_ZvScheduleTabWidget::pressBesideTheTabs()
{
    TabFixture main;
    QTest::mouseClick(main.bar(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(main.rect(4).right() + 40, 5));
    QTest::mouseClick(main.bar(), Qt::RightButton, Qt::NoModifier, main.rect(3).center());
    QCOMPARE(main.indices(), InOrder);
    QCOMPARE(main.tabs()->currentIndex(), 0);
}

void tst_ZvScheduleTabWidget::moveWithoutPress()
{
    TabFixture main;
    QTest::mouseMove(main.bar(), main.rect(0).center());
    QTest::mouseMove(main.bar(), main.rect(0).center() + QPoint(3, 0));
    QTest::qWait(5);
    QVERIFY(!QToolTip::isVisible());
}

void tst_ZvScheduleTabWidget::onTabMoved()
{
    TabFixture main;
    QSignalSpy moved(main.tabs(), SIGNAL(tabMoved(int,int)));
    main.tabs()->moveTab(4, 1);
    QCOMPARE(main.indices(), (QList<int>{0, 4, 1, 2, 3}));
    main.tabs()->onTabMoved(4, 1);
    QCOMPARE(main.indices(), InOrder);
    QCOMPARE(moved.count(), 1);
    main.tabs()->onTabMoved(2, 2);
    QCOMPARE(moved.count(), 1);
    main.tabs()->onTabMoved(3, 40);
    QCOMPARE(main.indices(), InOrder);
}

void tst_ZvScheduleTabWidget::correctFirstTab_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("expected");
    QTest::newRow("up") << 0 << 3 << QStringLiteral("BGDAE");
    QTest::newRow("down") << 3 << 0 << QStringLiteral("DABGE");
    QTest::newRow("below the first") << 2 << -5 << QStringLiteral("GABDE");
    QTest::newRow("equal") << 2 << 2 << QStringLiteral("ABGDE");
}

void tst_ZvScheduleTabWidget::correctFirstTab()
{
    QFETCH(int, from);
    QFETCH(int, to);
    TabFixture main;
    Q_EMIT main.tabs()->requestCorrectFirstTab(from, to);
    QCoreApplication::processEvents();
    QString initials;
    for (const QString &text : main.tabTexts())
        initials.append(text.at(0));
    QTEST(initials, "expected");
    QCOMPARE(QToolTip::isVisible(), from != to);
}

void tst_ZvScheduleTabWidget::currentTabRect()
{
    TabFixture main;
    for (int i : {0, 3}) {
        main.tabs()->setCurrentIndex(i);
        QCOMPARE(main.tabs()->currentTabRect(), main.rect(i));
    }
}

void tst_ZvScheduleTabWidget::renameStarts_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("F2") << true;
    QTest::newRow("double click") << false;
}

void tst_ZvScheduleTabWidget::renameStarts()
{
    QFETCH(bool, byKey);
    TabFixture main;
    if (byKey) {
        main.tabs()->setCurrentIndex(2);
        QTest::keyClick(main.bar(), Qt::Key_F2);
    } else {
        // The first click makes the tab current.
        QTest::mouseClick(main.bar(), Qt::LeftButton, Qt::NoModifier, main.rect(2).center());
        QTest::mouseDClick(main.bar(), Qt::LeftButton, Qt::NoModifier, main.rect(2).center());
    }
    QVERIFY(!main.editor());
    QTRY_VERIFY(main.editor());
    QCOMPARE(main.editor()->text(), QStringLiteral("Gamma"));
    QCOMPARE(main.editor()->geometry(), main.rect(2));
}

void tst_ZvScheduleTabWidget::otherKeysRenameNothing()
{
    TabFixture main;
    QTest::keyClick(main.bar(), Qt::Key_F3);
    QTest::keyClick(main.bar(), Qt::Key_Return);
    QCoreApplication::processEvents();
    QVERIFY(!main.editor());
}

void tst_ZvScheduleTabWidget::editorOverTheTitle()
{
    TabFixture main;
    main.tabs()->setCurrentIndex(1);
    main.tabs()->editTabNameRequested();
    const ZvScheduleRenameTabWidget *editor = main.editor();
    QVERIFY(editor);
    QCOMPARE(editor->geometry(), main.rect(1));
    QCOMPARE(editor->initialText(), QStringLiteral("Beta"));
    QCOMPARE(editor->toolTip(), QStringLiteral("Beta"));
    QCOMPARE(editor->selectedText(), QStringLiteral("Beta"));
    QCOMPARE(QApplication::focusWidget(), static_cast<const QWidget *>(editor));
}

void tst_ZvScheduleTabWidget::renameEnds_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("requests");
    QTest::newRow("new name") << QStringLiteral("Lobby") << 1;
    QTest::newRow("same name") << QStringLiteral("Beta") << 0;
    QTest::newRow("empty") << QString() << 0;
    QTest::newRow("only the case") << QStringLiteral("BETA") << 1;
    QTest::newRow("a blank") << QStringLiteral(" ") << 1;
}

void tst_ZvScheduleTabWidget::renameEnds()
{
    QFETCH(QString, typed);
    QFETCH(int, requests);
    TabFixture main;
    main.tabs()->setCurrentIndex(1);
    QSignalSpy request(main.tabs(), SIGNAL(requestChangeTabName(int,QString)));
    main.tabs()->editTabNameRequested();
    const QPointer<ZvScheduleRenameTabWidget> editor = main.editor();
    QTest::keyClick(editor, Qt::Key_Delete);
    QTest::keyClicks(editor, typed);
    QTest::keyClick(editor, Qt::Key_Return);
    QVERIFY(!editor->isVisible());
    QCOMPARE(request.count(), requests);
    if (requests > 0)
        QCOMPARE(request.first(), (QList<QVariant>{1, typed}));
    QTRY_VERIFY(!editor);
    QCOMPARE(request.count(), requests);
}

void tst_ZvScheduleTabWidget::renameEndsByFocus()
{
    TabFixture main;
    main.tabs()->setCurrentIndex(1);
    QSignalSpy request(main.tabs(), SIGNAL(requestChangeTabName(int,QString)));
    main.tabs()->editTabNameRequested();
    QTest::keyClicks(main.editor(), QStringLiteral("Hall"));
    main.bar()->setFocus();
    QVERIFY(!main.editor());
    QCOMPARE(request.count(), 1);
    QCOMPARE(main.tabs()->tabText(1), QStringLiteral("Hall"));
}

void tst_ZvScheduleTabWidget::renameIsReportedOnce()
{
    ZvScheduleRenameTabWidget editor;
    editor.setInitialText(QStringLiteral("Beta"));
    QSignalSpy finished(&editor, SIGNAL(editingFinished(QObject*)));
    connect(&editor, SIGNAL(editingFinished(QObject*)), &editor, SLOT(hide()));
    editor.show();
    editor.setFocus();
    QTest::keyClick(&editor, Qt::Key_Return);
    QVERIFY(!editor.isVisible());
    QCOMPARE(finished.count(), 1);
    QCOMPARE(finished.first().first().value<QObject *>(), static_cast<QObject *>(&editor));
}

void tst_ZvScheduleTabWidget::secondEditorEndsTheFirst()
{
    TabFixture main;
    QSignalSpy request(main.tabs(), SIGNAL(requestChangeTabName(int,QString)));
    main.tabs()->editTabNameRequested();
    const QPointer<ZvScheduleRenameTabWidget> first = main.editor();
    QTest::keyClicks(first, QStringLiteral("Hall"));
    main.tabs()->editTabNameRequested();
    QVERIFY(!first->isVisible());
    QCOMPARE(request.count(), 1);
    QVERIFY(main.editor());
    QTRY_VERIFY(!first);
}

void tst_ZvScheduleTabWidget::foreignObjectEndsNothing()
{
    TabFixture main;
    QSignalSpy request(main.tabs(), SIGNAL(requestChangeTabName(int,QString)));
    QLineEdit other(QStringLiteral("Foreign"));
    QMetaObject::invokeMethod(main.tabs(), "editingTabNameFinished", Q_ARG(QObject*, &other));
    QObject *none = nullptr;
    QMetaObject::invokeMethod(main.tabs(), "editingTabNameFinished", Q_ARG(QObject*, none));
    QCOMPARE(request.count(), 0);
}

void tst_ZvScheduleTabWidget::otherEditorRenamesTheCurrentTab()
{
    TabFixture main;
    main.tabs()->setCurrentIndex(3);
    QSignalSpy request(main.tabs(), SIGNAL(requestChangeTabName(int,QString)));
    auto *editor = new ZvScheduleRenameTabWidget(main.tabs());
    const QPointer<QWidget> alive(editor);
    editor->setInitialText(QStringLiteral("Delta"));
    editor->setText(QStringLiteral("delta"));
    QMetaObject::invokeMethod(main.tabs(), "editingTabNameFinished", Q_ARG(QObject*, editor));
    QCOMPARE(request.value(0), (QVariantList{3, QStringLiteral("delta")}));
    QTRY_VERIFY(!alive);
}

void tst_ZvScheduleTabWidget::renameWithoutTabs()
{
    ZvScheduleTabWidget tabs;
    tabs.show();
    tabs.editTabNameRequested();
    QVERIFY(tabs.findChildren<ZvScheduleRenameTabWidget *>().isEmpty());
}

void tst_ZvScheduleTabWidget::textEdited()
{
    ZvScheduleRenameTabWidget editor;
    editor.setInitialText(QStringLiteral("Beta"));
    QSignalSpy edited(&editor, SIGNAL(textEdited(QString,QString)));
    editor.show();
    QTest::keyClick(&editor, Qt::Key_End);
    QTest::keyClicks(&editor, QStringLiteral("!"));
    QCOMPARE(edited.count(), 1);
    QCOMPARE(edited.first(), (QList<QVariant>{QStringLiteral("Beta!"), QStringLiteral("Beta")}));
}

void tst_ZvScheduleTabWidget::lookFollowsTheScreen()
{
    const auto sheet = [](const char *width) {
        return QStringLiteral("QTabBar::scroller {width: %1px;}").arg(QLatin1String(width));
    };
    TabFixture main;
    QCOMPARE(main.bar()->metaObject()->className(), "Zavo::ZvTabBar");
    QVERIFY(main.hasItsLook);
    QCOMPARE(main.bar()->styleSheet(), sheet("48"));
    QCOMPARE(main.bar()->font().pointSizeF(), 9.0);
    const QSize iconSize = main.bar()->iconSize();

    main.tabs()->setTabText(1, QStringLiteral("A longer name"));
    QCoreApplication::processEvents();
    QCOMPARE(main.bar()->styleSheet(), sheet("48"));
    QCOMPARE(main.bar()->iconSize(), iconSize);

    ZvSystemInfo::setDpiRatioOverride(1.6);
    main.tabs()->setTabText(2, QStringLiteral("A longer name makes a longer bar"));
    QTRY_COMPARE(main.bar()->styleSheet(), sheet("51.2"));
    QCOMPARE(main.bar()->iconSize(), QSize(25, 25));
}

QTEST_MAIN(tst_ZvScheduleTabWidget)
#include "tst_zvscheduletabwidget.moc"
