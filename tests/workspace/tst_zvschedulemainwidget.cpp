#include "workspace/ZvScheduleMainWidget.h"

#include "MainWidgetFixture.h"
#include "MessageBoxAnswer.h"
#include "SignalLog.h"
#include "WriteFailure.h"

#include <QDir>
#include <QGraphicsView>
#include <QLayout>
#include <QMenu>
#include <QSignalSpy>
#include <QTabBar>
#include <QTimer>
#include <QUndoGroup>
#include <QUndoStack>
#include <QtTest>

using namespace Zavo;
using namespace ZavoTest;

class tst_ZvScheduleMainWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void content();
    void firstStart();
    void tabOfEachChannel();
    void indicesBecomePositions();
    void basicFileOnItsTab();
    void corruptFilesGiveNoTab();
    void noChannelAtAll();
    void tabsAreCreatedOnce();
    void tabsWaitForTheWidgets();
    void signalsOfTheStart();
    void tabShowsItsChannelUpToDate();
    void folderCannotBeCreated();
    void defaultChannelCannotBeWritten();
    void diesBehindTheMessageOfTheStart_data();
    void diesBehindTheMessageOfTheStart();
    void addedChannelGetsItsTab();
    void nullChannelIsPassedOver();
    void pageReceivesEditMenu();
    void stacksOfTheGroup();
    void takenScenes();
    void pagesLeaveTheirScenes();
    void closeButtonAsksToClose();
    void pageBringsItsTabToTheFront();
    void pagesAreStyledWhenTheyAreSeen();
    void tabsAreMeasuredInTheFontThatTheyKeep();
    void hundredChannels();
};

void tst_ZvScheduleMainWidget::initTestCase()
{
    qRegisterMetaType<QList<ZvChannel *>>("QList<ZvChannel*>");
}

void tst_ZvScheduleMainWidget::content()
{
    MainWidgetFixture main;
    QVERIFY(main.toolBar());
    QVERIFY(main.tabs());
    QVERIFY(main.tabs()->isMovable());
    QCOMPARE(main.tabs()->contextMenuPolicy(), Qt::CustomContextMenu);
    QCOMPARE(main.tabs()->sizePolicy(),
             QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
    QLayout *layout = main.widget->layout();
    QVERIFY(layout);
    QCOMPARE(layout->menuBar(), static_cast<QWidget *>(main.toolBar()));
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->spacing(), 0);
    QVERIFY(!main.widget->currentWorkingArea());
}

void tst_ZvScheduleMainWidget::firstStart()
{
    MainWidgetFixture main;
    main.createTabs();
    QCOMPARE(main.tabs()->count(), 10);
    for (int i = 0; i < 10; ++i) {
        QCOMPARE(main.tabs()->tabText(i), QStringLiteral("Ch.%1").arg(i));
        QVERIFY(!main.tabs()->tabIcon(i).isNull());
        QCOMPARE(main.area(i)->channel()->id(), i);
        QCOMPARE(main.area(i)->channel()->index(), i);
        QVERIFY(!main.area(i)->isChannelChanged());
    }
    QCOMPARE(main.data.names(QStringLiteral("channel")).size(), 11);
    QCOMPARE(main.widget->currentWorkingArea(), main.area(0));
    QVERIFY(main.area(0)->isCurrentScheduleEnabled());
}

void tst_ZvScheduleMainWidget::tabOfEachChannel()
{
    MainWidgetFixture main;
    const QStringList names = {QStringLiteral("Lobby"), QStringLiteral("Café & Bar"),
                               QString::fromUtf8("駅コンコース"), QStringLiteral("<b>Hall</b>")};
    main.createTabs(names);
    QCOMPARE(main.tabTexts(), names);
    QCOMPARE(main.tabs()->currentIndex(), 0);
}

void tst_ZvScheduleMainWidget::indicesBecomePositions()
{
    MainWidgetFixture main;
    writeChannelFile(main.data, channelFileName(0), {0, 0, QStringLiteral("a")});
    writeChannelFile(main.data, channelFileName(1), {1, 9, QStringLiteral("b")});
    writeChannelFile(main.data, channelFileName(2), {2, 4, QStringLiteral("c")});
    writeChannelFile(main.data, channelFileName(3), {3, 4, QStringLiteral("d")});
    main.createTabs();
    QCOMPARE(main.tabTexts(), (QStringList{QStringLiteral("a"), QStringLiteral("c"),
                                           QStringLiteral("d"), QStringLiteral("b")}));
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(main.area(i)->channel()->index(), i);
        QCOMPARE(main.area(i)->tabIndex(), i);
    }
    QCOMPARE(main.stored(1).index(), 9);
}

void tst_ZvScheduleMainWidget::basicFileOnItsTab()
{
    MainWidgetFixture main;
    writeChannelFile(main.data, QStringLiteral("channel.xml"), {0, 0, QStringLiteral("Basic")});
    main.createTabs({QStringLiteral("Zero"), QStringLiteral("One")});
    QCOMPARE(main.tabTexts(), (QStringList{QStringLiteral("Basic"), QStringLiteral("One")}));
}

void tst_ZvScheduleMainWidget::corruptFilesGiveNoTab()
{
    MainWidgetFixture main;
    const MessageBoxAnswer noBox;
    main.data.write(QStringLiteral("channel/channel1.xml"), "<channel");
    writeChannelFile(main.data, channelFileName(0), {0, 0, QStringLiteral("a")});
    writeChannelFile(main.data, channelFileName(2), {2, 2, QStringLiteral("c")});
    main.createTabs();
    QCOMPARE(main.tabTexts(), (QStringList{QStringLiteral("a"), QStringLiteral("c")}));
    QCOMPARE(main.area(1)->channel()->index(), 1);
    QCOMPARE(main.data.read(QStringLiteral("channel/channel1.xml")), QByteArray("<channel"));
}

void tst_ZvScheduleMainWidget::noChannelAtAll()
{
    MainWidgetFixture main;
    const MessageBoxAnswer noBox;
    main.data.write(QStringLiteral("channel/channel0.xml"), "nothing");
    QSignalSpy created(main.widget.get(), SIGNAL(tabsCreated(QList<ZvChannel*>)));
    main.createTabs();
    QCOMPARE(main.tabs()->count(), 0);
    QCOMPARE(created.count(), 1);
    QVERIFY(created.first().first().value<QList<ZvChannel *>>().isEmpty());
    main.widget->saveCurrentChannel();
    main.widget->saveAllChannel();
    QVERIFY(main.widget->confirmSaveChannels(1));
    QCOMPARE(main.data.names(QStringLiteral("channel")).size(), 1);
}

void tst_ZvScheduleMainWidget::tabsAreCreatedOnce()
{
    MainWidgetFixture main;
    main.createTabs({QStringLiteral("a"), QStringLiteral("b")});
    main.createTabs();
    QCOMPARE(main.tabs()->count(), 2);
}

void tst_ZvScheduleMainWidget::tabsWaitForTheWidgets()
{
    TemporaryDataFolder data;
    writeChannelFile(data, channelFileName(0), {0, 0, QStringLiteral("a")});
    ZvScheduleMainWidget widget;
    QSignalSpy created(&widget, SIGNAL(tabsCreated(QList<ZvChannel*>)));
    std::vector<std::unique_ptr<QGraphicsScene>> scenes;
    QMetaObject::invokeMethod(&widget, "createTabs");
    QTest::qWait(20);
    QCOMPARE(created.count(), 0);
    widget.setupWidgets();
    QTRY_COMPARE(created.count(), 1);
    for (QGraphicsScene *scene : widget.takeGraphicsScenes())
        scenes.emplace_back(scene);
    QCOMPARE(int(scenes.size()), 1);
}

void tst_ZvScheduleMainWidget::signalsOfTheStart()
{
    MainWidgetFixture main;
    SignalLog log;
    log.watch(main.widget.get(), SIGNAL(currentChannelChanged(const ZvChannel*)));
    log.watch(main.widget.get(), SIGNAL(requestCurrentScheduleType(ZvScheduleBasicInfo*)));
    log.watch(main.widget.get(),
              SIGNAL(timeTableTimeItemsMoved(QList<ZvTimeTableTimeItem*>,ZvScheduleWorkingArea*)));
    log.watch(main.widget.get(), SIGNAL(currentScheduleInfoChanged(ZvScheduleBasicInfo)));
    log.watch(main.widget.get(), SIGNAL(tabsCreated(QList<ZvChannel*>)));
    main.createTabs({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    QCOMPARE(log.names(),
             (QStringList{QStringLiteral("timeTableTimeItemsMoved"),
                          QStringLiteral("requestCurrentScheduleType"),
                          QStringLiteral("currentScheduleInfoChanged"),
                          QStringLiteral("currentChannelChanged"), QStringLiteral("tabsCreated")}));
    const auto list = log.arguments(4).first().value<QList<ZvChannel *>>();
    QCOMPARE(list.size(), 3);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(list.at(i), main.area(i)->channel());
}

void tst_ZvScheduleMainWidget::tabShowsItsChannelUpToDate()
{
    MainWidgetFixture main;
    main.createTabs({QStringLiteral("a"), QStringLiteral("b")});
    main.area(0)->setDefaultStageName(QStringLiteral("d.xml"));
    main.tabs()->setCurrentIndex(1);
    QStringList stages;
    connect(main.widget.get(), &ZvScheduleMainWidget::currentChannelChanged, main.widget.get(),
            [&stages](const ZvChannel *channel) {
                const QList<ZvSchedule> &schedules = channel->scheduleList();
                stages.append(schedules.first().defaultStage());
            });
    main.tabs()->setCurrentIndex(0);
    QCOMPARE(stages, QStringList{QStringLiteral("d.xml")});
}

void tst_ZvScheduleMainWidget::folderCannotBeCreated()
{
    MainWidgetFixture main;
    main.data.write(QStringLiteral("channel"), "a file");
    QSignalSpy close(main.widget.get(), SIGNAL(requestClose()));
    {
        MessageBoxAnswer answer;
        answer.expect(QMessageBox::Ok)
            .icon(QMessageBox::Critical)
            .title(QStringLiteral("Critical Error"))
            .text(QStringLiteral("Channel Folder cannot be created. \nPlease check the data folder "
                                 "write permission."))
            .whileShown([&close](QMessageBox *) { QCOMPARE(close.count(), 0); });
        main.createTabs();
    }
    QTRY_COMPARE(close.count(), 1);
    QCOMPARE(main.tabs()->count(), 0);
    const MessageBoxAnswer nothingToSave;
    QVERIFY(main.widget->confirmSaveChannels(1));
}

void tst_ZvScheduleMainWidget::defaultChannelCannotBeWritten()
{
    MainWidgetFixture main;
    main.data.makeFolder(QStringLiteral("channel"));
    QSignalSpy close(main.widget.get(), SIGNAL(requestClose()));
    QSignalSpy created(main.widget.get(), SIGNAL(tabsCreated(QList<ZvChannel*>)));
    {
        MessageBoxAnswer answer;
        answer.expect(QMessageBox::Ok)
            .icon(QMessageBox::Critical)
            .title(QStringLiteral("Create Channel"))
            .text(QStringLiteral("The channel file can not be created. \nPlease make sure that "
                                 "channel folder is writable."));
        const WriteFailure fullDisk;
        main.createTabs();
    }
    QCOMPARE(close.count(), 1);
    QCOMPARE(created.count(), 0);
    QCOMPARE(main.tabs()->count(), 0);
    const MessageBoxAnswer nothingToSave;
    QVERIFY(main.widget->confirmSaveChannels(1));
}

void tst_ZvScheduleMainWidget::diesBehindTheMessageOfTheStart_data()
{
    QTest::addColumn<bool>("hasFolder");
    QTest::newRow("no folder") << false;
    QTest::newRow("no channel") << true;
}

void tst_ZvScheduleMainWidget::diesBehindTheMessageOfTheStart()
{
    QFETCH(bool, hasFolder);
    MainWidgetFixture main;
    if (hasFolder)
        main.data.makeFolder(QStringLiteral("channel/channel3.xml"));
    else
        main.data.write(QStringLiteral("channel"), "a file");
    QSignalSpy close(main.widget.get(), SIGNAL(requestClose()));
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Ok).whileShown([&main](QMessageBox *) { main.widget.reset(); });
    main.createTabs();
    QVERIFY(!main.widget);
    QTest::qWait(5);
    QCOMPARE(close.count(), 0);
}

void tst_ZvScheduleMainWidget::addedChannelGetsItsTab()
{
    MainWidgetFixture main;
    main.createTabs({QStringLiteral("a"), QStringLiteral("b")});
    auto *channel = new ZvChannel(main.data.filePath(QStringLiteral("channel/channel7.xml")));
    channel->setId(7);
    channel->setName(QStringLiteral("New"));
    main.widget->addChannel(channel);
    QCOMPARE(main.tabs()->count(), 3);
    QCOMPARE(main.tabs()->tabText(2), QStringLiteral("New"));
    QCOMPARE(main.area(2)->channel(), channel);
    QCOMPARE(channel->index(), 2);
    QCOMPARE(main.tabs()->currentIndex(), 0);
}

void tst_ZvScheduleMainWidget::nullChannelIsPassedOver()
{
    MainWidgetFixture main;
    main.widget->addChannel(nullptr);
    QCOMPARE(main.tabs()->count(), 0);
    QVERIFY(!main.widget->saveChannel(nullptr, true));
    main.widget->saveAsBasicChannelFile(nullptr);
}

void tst_ZvScheduleMainWidget::pageReceivesEditMenu()
{
    MainWidgetFixture main;
    auto menu = std::make_unique<QMenu>();
    main.widget->setEditMenu(menu.get());
    main.createTabs({QStringLiteral("a")});
    main.widget->resize(800, 600);
    main.widget->show();
    bool shown = false;
    connect(menu.get(), &QMenu::aboutToShow, this, [&] {
        shown = true;
        QTimer::singleShot(0, menu.get(), &QMenu::close);
    });
    auto *view = main.area(0)->findChild<QGraphicsView *>();
    QVERIFY(view);
    const QPoint pos = view->viewport()->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, pos, view->viewport()->mapToGlobal(pos));
    QCoreApplication::sendEvent(view->viewport(), &event);
    QTRY_VERIFY(shown);
}

void tst_ZvScheduleMainWidget::stacksOfTheGroup()
{
    MainWidgetFixture main;
    main.createTabs({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    QUndoGroup *group = main.widget->undoGroup();
    QCOMPARE(group->stacks().size(), 3);
    for (int i : {0, 2, 1}) {
        main.tabs()->setCurrentIndex(i);
        QCOMPARE(group->activeStack(), main.area(i)->undoStack());
    }
}

void tst_ZvScheduleMainWidget::takenScenes()
{
    MainWidgetFixture main;
    main.createTabs({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    std::vector<std::unique_ptr<QGraphicsScene>> scenes;
    scenes.emplace_back(main.area(1)->takeScene());
    for (QGraphicsScene *scene : main.widget->takeGraphicsScenes())
        scenes.emplace_back(scene);
    QCOMPARE(int(scenes.size()), 3);
    for (const auto &scene : scenes)
        QVERIFY(scene && !scene->parent());
    QVERIFY(main.widget->takeGraphicsScenes().isEmpty());
    main.widget.reset();
    QVERIFY(main.purgedScenes.empty());
}

void tst_ZvScheduleMainWidget::pagesLeaveTheirScenes()
{
    MainWidgetFixture main;
    main.createTabs({QStringLiteral("a"), QStringLiteral("b")});
    main.widget->show();
    main.widget.reset();
    QCOMPARE(int(main.purgedScenes.size()), 2);
}

void tst_ZvScheduleMainWidget::closeButtonAsksToClose()
{
    MainWidgetFixture main;
    QSignalSpy close(main.widget.get(), SIGNAL(requestClose()));
    QAction *button = main.toolBar()->actions().last();
    button->trigger();
    QCOMPARE(close.count(), 0);
    QTRY_COMPARE(close.count(), 1);
}

void tst_ZvScheduleMainWidget::pageBringsItsTabToTheFront()
{
    MainWidgetFixture main;
    main.createTabs({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    main.area(2)->active();
    QCOMPARE(main.tabs()->currentIndex(), 2);
    main.widget->activeTab(1);
    QCOMPARE(main.tabs()->currentIndex(), 1);
    main.widget->activeTab(static_cast<QWidget *>(nullptr));
    QCOMPARE(main.tabs()->currentIndex(), 1);
    main.widget->activeTab(99);
    QCOMPARE(main.tabs()->currentIndex(), 1);
}

// What its view and its bar style in making themselves does not count.
bool isStyled(const QWidget *page)
{
    const auto *header = page->findChild<QWidget *>(QStringLiteral("HeaderWidget"));
    return header && header->testAttribute(Qt::WA_WState_Polished);
}

void tst_ZvScheduleMainWidget::pagesAreStyledWhenTheyAreSeen()
{
    MainWidgetFixture main;
    main.widget->resize(800, 600);
    main.widget->show();
    main.createTabs(
        {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("d")});
    QCoreApplication::sendPostedEvents();
    QVERIFY(isStyled(main.area(0)));
    // One of the unseen ones answers for all when the bar asks for their sizes.
    int styled = 0;
    for (int i = 1; i < 4; ++i)
        styled += isStyled(main.area(i)) ? 1 : 0;
    QVERIFY2(styled <= 1, qPrintable(QString::number(styled)));

    main.tabs()->setCurrentIndex(3);
    QVERIFY(isStyled(main.area(3)));
}

// The bar takes the font of a shown one a moment after it is shown; its tabs may come before.
void tst_ZvScheduleMainWidget::tabsAreMeasuredInTheFontThatTheyKeep()
{
    MainWidgetFixture main;
    main.widget->resize(800, 600);
    main.widget->show();
    const QTabBar *bar = main.tabs()->tabBar();
    QCOMPARE(bar->font().pointSizeF(), 8.9);
    main.createTabs({QStringLiteral("a"), QStringLiteral("b")});
    QCOMPARE(bar->font().pointSizeF(), 9.0);
    const QRect first = bar->tabRect(0);
    QTest::qWait(5);
    QCOMPARE(bar->font().pointSizeF(), 9.0);
    QCOMPARE(bar->tabRect(0), first);
}

void tst_ZvScheduleMainWidget::hundredChannels()
{
    MainWidgetFixture main;
    QStringList names;
    for (int i = 0; i < 100; ++i)
        names.append(QStringLiteral("Channel %1").arg(i, 2, 10, QLatin1Char('0')));
    main.createTabs(names);
    QCOMPARE(main.tabTexts(), names);
    SignalLog log;
    log.watch(main.widget.get(), SIGNAL(requestCurrentScheduleType(ZvScheduleBasicInfo*)));
    main.tabs()->setCurrentIndex(99);
    QCOMPARE(log.names().size(), 1);
    QVERIFY(main.area(99)->isCurrentScheduleEnabled());
    QVERIFY(!main.area(50)->isCurrentScheduleEnabled());
}

QTEST_MAIN(tst_ZvScheduleMainWidget)
#include "tst_zvschedulemainwidget.moc"
