#include "MainWidgetFixture.h"
#include "MessageBoxAnswer.h"

#include "workspace/ChannelFolder.h"
#include "workspace/ZvScheduleRenameTabWidget.h"

#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTabBar>
#include <QToolTip>
#include <QUndoGroup>
#include <QUndoStack>
#include <QWindow>
#include <QtTest>

#include <algorithm>

using namespace Zavo;
using namespace ZavoTest;

namespace {

const QStringList Names = {QStringLiteral("Alpha"),   QStringLiteral("Beta"),
                           QStringLiteral("Gamma"),   QStringLiteral("Delta"),
                           QStringLiteral("Epsilon"), QStringLiteral("Zeta")};

// A window with tabs, and a mouse whose events reach it as those of the system do.
class DraggingFixture : public MainWidgetFixture
{
public:
    explicit DraggingFixture(const QStringList &names = Names, int width = 1000)
    {
        createTabs(names);
        widget->resize(width, 500);
        widget->show();
        widget->activateWindow();
        // The bar gets its look a moment after it is shown.
        isReady = QTest::qWaitForWindowActive(widget.get()) &&
                  QTest::qWaitFor([this] { return !bar()->styleSheet().isEmpty(); });
        QCoreApplication::sendPostedEvents();
    }

    bool isReady = false;

    QTabBar *bar() const { return tabs()->tabBar(); }

    void press(const QPoint &barPosition, Qt::MouseButton button = Qt::LeftButton)
    {
        m_mouse = bar()->mapTo(widget.get(), barPosition);
        QTest::mousePress(window(), button, {}, m_mouse);
    }
    void press(int index) { press(bar()->tabRect(index).center()); }
    // In steps, as a hand moves; one that flicks takes few.
    void moveTo(int barX, int step = 8)
    {
        const int target =
            std::clamp(bar()->mapTo(widget.get(), QPoint(barX, 0)).x(), 1, widget->width() - 2);
        while (m_mouse.x() != target) {
            m_mouse.rx() += std::clamp(target - m_mouse.x(), -step, step);
            QTest::mouseMove(window(), m_mouse);
        }
    }
    void moveDownBy(int dy)
    {
        m_mouse.ry() += dy;
        QTest::mouseMove(window(), m_mouse);
    }
    void release(Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseRelease(window(), button, {}, m_mouse);
    }
    void click(Qt::MouseButton button) { QTest::mouseClick(window(), button, {}, m_mouse); }

    // Drags by the middle of a tab to where the middle of another is, and a bit on.
    void drag(int from, int to, int step = 8)
    {
        const QRect target = bar()->tabRect(to);
        const int beyond = from < to ? target.width() / 4 : -target.width() / 4;
        press(from);
        moveTo(target.center().x() + beyond, step);
        release();
    }

    QList<int> ids() const
    {
        QList<int> list;
        for (int i = 0; i < tabs()->count(); ++i)
            list.append(area(i)->channel()->id());
        return list;
    }

    // What is wrong with the places of the tabs, in memory; empty if nothing is.
    QString faultInMemory() const
    {
        for (int i = 0; i < tabs()->count(); ++i) {
            const ZvChannel *channel = area(i)->channel();
            if (channel->index() != i || area(i)->tabIndex() != i)
                return QStringLiteral("index %1 at place %2").arg(channel->index()).arg(i);
            if (tabs()->tabText(i) != channel->name())
                return QStringLiteral("title \"%1\" over \"%2\"")
                    .arg(tabs()->tabText(i), channel->name());
        }
        return {};
    }

    // And on disk, after all channels have been saved.
    QString faultOnDisk() const
    {
        widget->saveAllChannel();
        for (int i = 0; i < tabs()->count(); ++i) {
            const ZvChannel channel = readChannelFile(area(i)->channel()->filePath());
            if (channel.id() != area(i)->channel()->id() || channel.index() != i)
                return QStringLiteral("channel %1 is stored at place %2, not %3")
                    .arg(channel.id())
                    .arg(channel.index())
                    .arg(i);
        }
        return {};
    }

private:
    QWindow *window() const { return widget->windowHandle(); }

    QPoint m_mouse;
};

} // namespace

class tst_TabDragging : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void everyTabToEveryPlace_data();
    void everyTabToEveryPlace();
    void firstTabStays();
    void noTabPassesTheFirst();
    void otherButtonMeanwhile();
    void menuMeanwhile();
    void downAndBack();
    void flicks();
    void scrolledBar();
    void randomDrags();
    void renamesAreUndoneOnTheirChannels();
    void renameStartedInADrag();
    void orderOfTheNextStart();
    void addedAndDeletedBetweenDrags();
};

void tst_TabDragging::cleanup()
{
    QToolTip::hideText();
}

void tst_TabDragging::everyTabToEveryPlace_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    for (int from = 1; from < 5; ++from) {
        for (int to = 1; to < 5; ++to)
            QTest::newRow(qPrintable(QStringLiteral("%1 to %2").arg(from).arg(to))) << from << to;
    }
}

void tst_TabDragging::everyTabToEveryPlace()
{
    QFETCH(int, from);
    QFETCH(int, to);
    DraggingFixture main;
    QVERIFY(main.isReady);
    QSignalSpy moved(main.tabs(), SIGNAL(tabMoved(int,int)));
    main.drag(from, to);
    QList<int> expected = {0, 1, 2, 3, 4, 5};
    expected.move(from, to);
    QCOMPARE(main.ids(), expected);
    QCOMPARE(main.faultInMemory(), QString());
    QCOMPARE(main.faultOnDisk(), QString());
    QCOMPARE(main.tabs()->currentIndex(), to);
    QCOMPARE(main.widget->undoGroup()->activeStack(), main.area(to)->undoStack());
    QCOMPARE(moved.count(), from == to ? 0 : 1);
    QVERIFY(!main.widget->undoGroup()->canUndo());
}

void tst_TabDragging::firstTabStays()
{
    DraggingFixture main;
    QVERIFY(main.isReady);
    main.tabs()->setCurrentIndex(2);
    QSignalSpy moved(main.tabs(), SIGNAL(tabMoved(int,int)));
    main.press(0);
    main.moveTo(900);
    QTRY_COMPARE(QToolTip::text(), QStringLiteral("<span style=\"font-weight:bold;\">You can not "
                                                  "move the first tab.</span>"));
    main.moveTo(5);
    main.release();
    QCOMPARE(main.tabTexts(), Names);
    QCOMPARE(main.tabs()->currentIndex(), 0);
    QCOMPARE(main.faultInMemory(), QString());
    QCOMPARE(moved.count(), 0);
}

void tst_TabDragging::noTabPassesTheFirst()
{
    for (int from = 1; from < Names.size(); ++from) {
        DraggingFixture main;
        QVERIFY(main.isReady);
        main.press(from);
        main.moveTo(-500);
        main.release();
        QList<int> expected = {0, 1, 2, 3, 4, 5};
        expected.move(from, 1);
        QCOMPARE(main.ids(), expected);
        QCOMPARE(main.faultOnDisk(), QString());
    }
}

// The other button neither ends the drag nor the watch over it.
void tst_TabDragging::otherButtonMeanwhile()
{
    DraggingFixture main;
    QVERIFY(main.isReady);
    main.press(3);
    main.moveTo(main.bar()->tabRect(2).left() + 5);
    main.click(Qt::MiddleButton);
    main.moveTo(-500);
    main.release();
    QCOMPARE(main.ids(), (QList<int>{0, 3, 1, 2, 4, 5}));
    QCOMPARE(main.faultInMemory(), QString());
    QCOMPARE(main.faultOnDisk(), QString());
}

// The release goes to the menu, and the bar never hears of it.
void tst_TabDragging::menuMeanwhile()
{
    DraggingFixture main;
    QVERIFY(main.isReady);
    main.press(4);
    main.moveTo(main.bar()->tabRect(2).center().x() - 10);
    bool shown = false;
    QTimer::singleShot(50, main.widget.get(), [&main, &shown] {
        QWidget *menu = QApplication::activePopupWidget();
        shown = menu != nullptr;
        main.release(Qt::RightButton);
        main.release();
        if (menu)
            menu->close();
    });
    main.press(main.bar()->tabRect(2).center(), Qt::RightButton);
    QTRY_VERIFY(shown);
    main.moveTo(main.bar()->tabRect(1).center().x());
    QTest::qWait(10);
    QVERIFY(!QToolTip::isVisible());
    QCOMPARE(main.ids(), (QList<int>{0, 1, 4, 2, 3, 5}));
    QCOMPARE(main.faultInMemory(), QString());
    QCOMPARE(main.faultOnDisk(), QString());
}

void tst_TabDragging::downAndBack()
{
    DraggingFixture main;
    QVERIFY(main.isReady);
    const int middle = main.bar()->tabRect(3).center().x();
    main.press(1);
    main.moveTo(middle + 10);
    main.moveDownBy(200);
    main.moveTo(main.bar()->tabRect(5).center().x());
    main.moveDownBy(-200);
    main.moveTo(middle + 10);
    main.release();
    QCOMPARE(main.ids(), (QList<int>{0, 2, 3, 1, 4, 5}));
    QCOMPARE(main.faultOnDisk(), QString());
    main.drag(3, 1);
    QCOMPARE(main.tabTexts(), Names);
    QCOMPARE(main.faultOnDisk(), QString());
}

void tst_TabDragging::flicks()
{
    DraggingFixture main;
    QVERIFY(main.isReady);
    main.press(4);
    main.moveTo(-500, 2000);
    main.release();
    QCOMPARE(main.tabTexts(), Names);
    // Onto the right half of the first tab in one go.
    main.press(4);
    main.moveTo(main.bar()->tabRect(0).right() + main.bar()->tabRect(4).width() / 2 - 4, 2000);
    main.release();
    QCOMPARE(main.ids(), (QList<int>{0, 4, 1, 2, 3, 5}));
    main.drag(2, 5, 70);
    QCOMPARE(main.ids().first(), 0);
    QCOMPARE(main.faultInMemory(), QString());
    QCOMPARE(main.faultOnDisk(), QString());
}

void tst_TabDragging::scrolledBar()
{
    QStringList names;
    for (int i = 0; i < 40; ++i)
        names.append(QStringLiteral("Channel %1").arg(i));
    DraggingFixture main(names, 500);
    QVERIFY(main.isReady);
    main.tabs()->setCurrentIndex(39);
    QVERIFY(main.bar()->tabRect(0).right() < 0);
    QVERIFY(main.bar()->tabRect(39).left() > 0);
    main.drag(39, 37);
    QList<int> expected = main.ids();
    std::sort(expected.begin(), expected.end());
    expected.move(39, 37);
    QCOMPARE(main.ids(), expected);
    QCOMPARE(main.faultOnDisk(), QString());
}

// Whatever the hand does, one tab changes its place among the others, and never the first.
void tst_TabDragging::randomDrags()
{
    DraggingFixture main;
    QVERIFY(main.isReady);
    QRandomGenerator random(20240607);
    const int right = main.bar()->tabRect(5).right() + 60;
    for (int round = 0; round < 40; ++round) {
        const QList<int> before = main.ids();
        const int from = random.bounded(6);
        main.press(from);
        const int turns = 1 + random.bounded(3);
        for (int turn = 0; turn < turns; ++turn)
            main.moveTo(random.bounded(-40, right), 4 + random.bounded(40));
        main.release();
        const QList<int> after = main.ids();
        QCOMPARE(after.first(), 0);
        QCOMPARE(after.at(main.tabs()->currentIndex()), before.at(from));
        QList<int> moved = before;
        moved.move(from, main.tabs()->currentIndex());
        QCOMPARE(after, moved);
        QCOMPARE(main.faultInMemory(), QString());
        if (round % 5 == 4)
            QCOMPARE(main.faultOnDisk(), QString());
    }
}

void tst_TabDragging::renamesAreUndoneOnTheirChannels()
{
    DraggingFixture main;
    QVERIFY(main.isReady);
    const QStringList renamed = {QStringLiteral("one"), QStringLiteral("two"),
                                 QStringLiteral("three"), QStringLiteral("four"),
                                 QStringLiteral("five")};
    for (int i = 1; i < 6; ++i)
        main.widget->changeChannelNameWithUndo(i, renamed.at(i - 1));
    main.drag(5, 1);
    main.drag(3, 4);
    main.drag(1, 2);
    QCOMPARE(main.ids(), (QList<int>{0, 1, 5, 3, 2, 4}));
    for (int i = 1; i < 6; ++i) {
        main.tabs()->setCurrentIndex(i);
        const int id = main.area(i)->channel()->id();
        main.widget->undoGroup()->undo();
        QCOMPARE(main.tabs()->currentIndex(), i);
        QCOMPARE(main.tabs()->tabText(i), Names.at(id));
        QCOMPARE(main.area(i)->channelName(), Names.at(id));
        QCOMPARE(main.faultInMemory(), QString());
        main.drag(5, 1);
        const int place = main.ids().indexOf(id);
        main.tabs()->setCurrentIndex(0);
        main.area(place)->undoStack()->redo();
        QCOMPARE(main.tabs()->currentIndex(), place);
        QCOMPARE(main.tabs()->tabText(place), renamed.at(id - 1));
        main.drag(1, 5);
        QCOMPARE(main.faultOnDisk(), QString());
    }
}

void tst_TabDragging::renameStartedInADrag()
{
    DraggingFixture main;
    QVERIFY(main.isReady);
    main.press(2);
    main.moveTo(main.bar()->tabRect(4).center().x() + 10);
    QTest::keyClick(main.bar(), Qt::Key_F2);
    main.release();
    auto *editor = qobject_cast<ZvScheduleRenameTabWidget *>(QApplication::focusWidget());
    QVERIFY(editor);
    QCOMPARE(editor->text(), Names[2]);
    QTest::keyClicks(editor, QStringLiteral("Foyer"));
    QTest::keyClick(editor, Qt::Key_Return);
    QCOMPARE(main.ids(), (QList<int>{0, 1, 3, 4, 2, 5}));
    QCOMPARE(main.tabs()->tabText(4), QStringLiteral("Foyer"));
    QCOMPARE(main.faultOnDisk(), QString());
}

void tst_TabDragging::orderOfTheNextStart()
{
    DraggingFixture main;
    QVERIFY(main.isReady);
    main.drag(1, 4);
    main.drag(5, 2);
    main.widget->saveAllChannel();
    ChannelFolder::Channels channels;
    QCOMPARE(ChannelFolder(main.data.path()).load(&channels), ChannelFolder::LoadResult::Loaded);
    QStringList names;
    for (const auto &channel : channels)
        names.append(channel->name());
    QCOMPARE(names, main.tabTexts());
}

void tst_TabDragging::addedAndDeletedBetweenDrags()
{
    DraggingFixture main;
    QVERIFY(main.isReady);
    main.drag(1, 3);
    main.tabs()->setCurrentIndex(2);
    {
        MessageBoxAnswer answer;
        answer.expect(QMessageBox::Yes);
        main.widget->removeCurrentChannel();
    }
    main.widget->addNewChannel();
    QCOMPARE(main.ids(), (QList<int>{0, 2, 1, 4, 5, 6}));
    // A drag tells their places to all that it passes.
    main.drag(5, 1);
    QCOMPARE(main.ids(), (QList<int>{0, 6, 2, 1, 4, 5}));
    QCOMPARE(main.faultInMemory(), QString());
    QCOMPARE(main.faultOnDisk(), QString());
}

QTEST_MAIN(tst_TabDragging)
#include "tst_tabdragging.moc"
