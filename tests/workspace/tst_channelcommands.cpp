#include "MainWidgetFixture.h"
#include "MessageBoxAnswer.h"
#include "SignalLog.h"
#include "WriteFailure.h"

#include "workspace/ChannelFolder.h"

#include <QDir>
#include <QSignalSpy>
#include <QTimer>
#include <QUndoGroup>
#include <QUndoStack>
#include <QtTest>

#include <limits>

using namespace Zavo;
using namespace ZavoTest;

namespace {

constexpr int MaximumId = std::numeric_limits<int>::max();

const QStringList Names = {QStringLiteral("Alpha"), QStringLiteral("Beta"),
                           QStringLiteral("Gamma")};

const QString AddTitle = QStringLiteral("Add New Channel");
const QString NotWrittenText =
    QStringLiteral("You can not add the new channel.\nFailed to write new channel file. Please "
                   "check whether it is possible to write to the channel folder.");
const QString DeleteTitle = QStringLiteral("Delete Channel");
const QString NotDeletedText = QStringLiteral(
    "The channel file can not be deleted.\nPlease check whether it is possible to delete the "
    "file.");

QString deleteText(const QString &name)
{
    return QStringLiteral("The channel \"%1\" will be deleted.\nAfter it has been deleted, it can "
                          "not be undone.\n\nAre you sure that you want to delete this channel?")
        .arg(name);
}

QStringList channelFiles(const MainWidgetFixture &main)
{
    return main.data.names(QStringLiteral("channel"));
}

QList<int> indices(const MainWidgetFixture &main)
{
    QList<int> list;
    for (int i = 0; i < main.tabs()->count(); ++i)
        list.append(main.area(i)->channel()->index());
    return list;
}

void remove(const MainWidgetFixture &main, int index)
{
    main.tabs()->setCurrentIndex(index);
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Yes).title(DeleteTitle);
    main.widget->removeCurrentChannel();
}

} // namespace

class tst_ChannelCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void added();
    void addedFileHoldsOnePlaceTooFew();
    void addedToNothing();
    void nothingIsAddedBeforeTheStart();
    void addedIsKeptForTheNextStart();
    void newNumbers_data();
    void newNumbers();
    void takenNames_data();
    void takenNames();
    void smallestFreeId();
    void sixDigitsAreNotFoundAgain();
    void manyAdded();
    void notWritten();
    void folderIsGone();
    void deleted();
    void notDeletedWithoutYes_data();
    void notDeletedWithoutYes();
    void deletedLeavesAHole();
    void deletedTakesItsHistory();
    void deletedLeavesItsScene();
    void deletedIsNotAskedAbout();
    void deletedAndAddedAgain();
    void onlyChannelDeleted();
    void fileStays_data();
    void fileStays();
    void sameIdTwice();
    void widgetDiesDuringTheQuestion();
    void withoutWidgets();
};

void tst_ChannelCommands::added()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    SignalLog log;
    log.watch(main.widget.get(), SIGNAL(currentChannelChanged(const ZvChannel*)));
    const MessageBoxAnswer noBox;
    main.widget->addNewChannel();
    QCOMPARE(main.tabTexts(), Names + QStringList{QStringLiteral("Ch.3")});
    QCOMPARE(main.tabs()->currentIndex(), 3);
    QCOMPARE(log.names().size(), 1);
    const ZvChannel *channel = main.area(3)->channel();
    QCOMPARE(channel->id(), 3);
    QCOMPARE(channel->index(), 3);
    QCOMPARE(channel->filePath(),
             QDir::toNativeSeparators(main.data.filePath(QStringLiteral("channel/channel3.xml"))));
    QCOMPARE(channel->scheduleList().size(), 1);
    QCOMPARE(channel->scheduleList().first().type(), ZvSchedule::Default);
    QVERIFY(channel->scheduleList().first().isEmpty());
    QVERIFY(main.area(3)->isCurrentScheduleEnabled());
    // Its file says another place.
    QVERIFY(main.area(3)->isChannelChanged());
    QCOMPARE(main.widget->undoGroup()->activeStack(), main.area(3)->undoStack());
}

void tst_ChannelCommands::addedFileHoldsOnePlaceTooFew()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.widget->addNewChannel();
    QCOMPARE(main.stored(3).index(), 2);
    QCOMPARE(main.stored(3).id(), 3);
    QCOMPARE(main.stored(3).name(), QStringLiteral("Ch.3"));
    main.widget->saveCurrentChannel();
    QCOMPARE(main.stored(3).index(), 3);
}

void tst_ChannelCommands::addedToNothing()
{
    MainWidgetFixture main;
    main.data.write(QStringLiteral("channel/channel5.xml"), "<channel");
    main.createTabs();
    QCOMPARE(main.tabs()->count(), 0);
    QList<int> reported;
    connect(main.widget.get(), &ZvScheduleMainWidget::currentChannelChanged, this,
            [&reported](const ZvChannel *channel) { reported.append(channel->index()); });
    main.widget->addNewChannel();
    QCOMPARE(channelFiles(main), (QStringList{channelFileName(0), channelFileName(5)}));
    QCOMPARE(main.area(0)->channel()->id(), 0);
    QCOMPARE(reported, QList<int>{0});
}

// The window is there before the channels are, and somebody may be quick.
void tst_ChannelCommands::nothingIsAddedBeforeTheStart()
{
    MainWidgetFixture main;
    for (int i = 0; i < Names.size(); ++i)
        writeChannelFile(main.data, channelFileName(i), {i, i, Names.at(i)});
    const MessageBoxAnswer noBox;
    main.widget->addNewChannel();
    QCOMPARE(main.tabs()->count(), 0);
    QCOMPARE(channelFiles(main).size(), 3);
    main.createTabs();
    main.widget->addNewChannel();
    QCOMPARE(main.area(3)->channel()->id(), 3);
}

void tst_ChannelCommands::addedIsKeptForTheNextStart()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.widget->addNewChannel();
    main.widget->changeChannelNameWithUndo(3, QStringLiteral("Foyer"));
    main.widget->saveAllChannel();
    ChannelFolder::Channels channels;
    QCOMPARE(ChannelFolder(main.data.path()).load(&channels), ChannelFolder::LoadResult::Loaded);
    QCOMPARE(int(channels.size()), 4);
    QCOMPARE(channels[3]->name(), QStringLiteral("Foyer"));
    QVERIFY(channels[3]->isMatch(*main.area(3)->channel(), false, false));
}

void tst_ChannelCommands::newNumbers_data()
{
    QTest::addColumn<QList<int>>("ids");
    QTest::addColumn<int>("id");
    QTest::newRow("in order") << QList<int>{0, 1, 2} << 3;
    QTest::newRow("a hole stays") << QList<int>{0, 1, 7} << 8;
    QTest::newRow("not in the order of the tabs") << QList<int>{0, 40, 3} << 41;
    QTest::newRow("largest") << QList<int>{0, 1, MaximumId} << 2;
    QTest::newRow("largest alone") << QList<int>{MaximumId} << 0;
    QTest::newRow("one below the largest") << QList<int>{0, MaximumId - 1} << MaximumId;
}

void tst_ChannelCommands::newNumbers()
{
    QFETCH(QList<int>, ids);
    MainWidgetFixture main;
    for (int i = 0; i < ids.size(); ++i)
        writeChannelFile(main.data, channelFileName(50 + i),
                         {ids.at(i), i, QStringLiteral("channel %1").arg(i)});
    main.createTabs();
    QCOMPARE(main.tabs()->count(), ids.size());
    const MessageBoxAnswer noBox;
    main.widget->addNewChannel();
    QTEST(main.widget->currentWorkingArea()->channel()->id(), "id");
    QFETCH(int, id);
    QCOMPARE(main.tabs()->tabText(ids.size()), QStringLiteral("Ch.%1").arg(id));
    QCOMPARE(main.stored(id).id(), id);
}

void tst_ChannelCommands::takenNames_data()
{
    QTest::addColumn<QString>("takenBy");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("number");
    QTest::newRow("corrupt file") << QStringLiteral("file") << 9 << 10;
    QTest::newRow("folder") << QStringLiteral("folder") << 9 << 10;
    QTest::newRow("link to nowhere") << QStringLiteral("link") << 9 << 10;
    QTest::newRow("with a gap") << QStringLiteral("gap") << 9 << 4;
}

void tst_ChannelCommands::takenNames()
{
    QFETCH(QString, takenBy);
    QFETCH(int, first);
    QFETCH(int, number);
    MainWidgetFixture main;
    for (int i = 0; i < first; ++i) {
        const bool isMoved = takenBy == QLatin1String("gap") && i == 4;
        writeChannelFile(main.data, channelFileName(isMoved ? first : i),
                         {i, i, QStringLiteral("c%1").arg(i)});
    }
    const QString taken = QStringLiteral("channel/") + channelFileName(first);
    if (takenBy == QLatin1String("file"))
        main.data.write(taken, "<channel");
    else if (takenBy == QLatin1String("folder"))
        main.data.makeFolder(taken);
    else if (takenBy == QLatin1String("link"))
        QVERIFY(QFile::link(QStringLiteral("/nowhere/at/all"), main.data.filePath(taken)));
    main.createTabs();
    QCOMPARE(main.tabs()->count(), first);
    const QByteArray before = main.data.read(taken);
    const MessageBoxAnswer noBox;
    main.widget->addNewChannel();
    const ZvChannel *channel = main.widget->currentWorkingArea()->channel();
    QCOMPARE(channel->id(), first);
    QCOMPARE(channel->name(), QStringLiteral("Ch.%1").arg(first));
    QCOMPARE(QFileInfo(channel->filePath()).fileName(), channelFileName(number));
    QCOMPARE(main.stored(number).id(), first);
    QCOMPARE(main.data.read(taken), before);
}

void tst_ChannelCommands::smallestFreeId()
{
    QCOMPARE(*ChannelFolder::freeId({MaximumId - 1, MaximumId}), 0);
    QCOMPARE(*ChannelFolder::freeId({}), 0);
    QCOMPARE(*ChannelFolder::freeId({-7, -6, 0, 1, 3, MaximumId}), 2);
    QCOMPARE(*ChannelFolder::freeId({-7}), -6);
}

void tst_ChannelCommands::sixDigitsAreNotFoundAgain()
{
    MainWidgetFixture main;
    writeChannelFile(main.data, channelFileName(0), {0, 0, QStringLiteral("a")});
    writeChannelFile(main.data, channelFileName(99999), {99999, 1, QStringLiteral("b")});
    main.createTabs();
    QCOMPARE(main.tabs()->count(), 2);
    main.widget->addNewChannel();
    QCOMPARE(main.stored(100000).name(), QStringLiteral("Ch.100000"));
    QCOMPARE(ChannelFolder(main.data.path()).channelFileNames().size(), 2);
}

void tst_ChannelCommands::manyAdded()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    const MessageBoxAnswer noBox;
    for (int i = 3; i < 40; ++i)
        main.widget->addNewChannel();
    QCOMPARE(main.tabs()->count(), 40);
    for (int i = 3; i < 40; ++i) {
        QCOMPARE(main.area(i)->channel()->id(), i);
        QCOMPARE(main.area(i)->channel()->index(), i);
        QCOMPARE(main.stored(i).index(), i - 1);
    }
}

void tst_ChannelCommands::notWritten()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.tabs()->setCurrentIndex(1);
    {
        MessageBoxAnswer answer;
        answer.expect(QMessageBox::Ok)
            .icon(QMessageBox::Critical)
            .title(AddTitle)
            .text(NotWrittenText)
            .buttons(QMessageBox::Ok);
        const WriteFailure fullDisk;
        main.widget->addNewChannel();
    }
    QCOMPARE(main.tabTexts(), Names);
    QCOMPARE(main.tabs()->currentIndex(), 1);
    QCOMPARE(channelFiles(main).size(), 3);
    main.widget->addNewChannel();
    QCOMPARE(main.tabs()->tabText(3), QStringLiteral("Ch.3"));
}

void tst_ChannelCommands::folderIsGone()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    QVERIFY(QDir(main.data.channelFolder()).removeRecursively());
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Ok).title(AddTitle).text(NotWrittenText);
    main.widget->addNewChannel();
    QCOMPARE(main.tabTexts(), Names);
}

void tst_ChannelCommands::deleted()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.tabs()->setCurrentIndex(1);
    const QPointer<ZvScheduleWorkingArea> area = main.area(1);
    SignalLog log;
    log.watch(main.widget.get(), SIGNAL(currentChannelChanged(const ZvChannel*)));
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Yes)
        .icon(QMessageBox::Warning)
        .title(DeleteTitle)
        .text(deleteText(Names[1]))
        .buttons(QMessageBox::Yes | QMessageBox::No)
        .whileShown([&main](QMessageBox *box) {
            QCOMPARE(box->textFormat(), Qt::PlainText);
            QCOMPARE(main.tabs()->count(), 3);
            QCOMPARE(channelFiles(main).size(), 3);
        });
    main.widget->removeCurrentChannel();
    QVERIFY(!area);
    QCOMPARE(main.tabTexts(), (QStringList{Names[0], Names[2]}));
    QCOMPARE(channelFiles(main), (QStringList{channelFileName(0), channelFileName(2)}));
    QCOMPARE(log.names().size(), 1);
    QCOMPARE(main.widget->currentWorkingArea()->channelName(), Names[2]);
}

void tst_ChannelCommands::notDeletedWithoutYes_data()
{
    QTest::addColumn<int>("reply");
    QTest::newRow("No") << int(QMessageBox::No);
    QTest::newRow("Escape") << int(QMessageBox::NoButton);
}

void tst_ChannelCommands::notDeletedWithoutYes()
{
    QFETCH(int, reply);
    MainWidgetFixture main;
    main.createTabs(Names);
    main.widget->changeChannelNameWithUndo(2, QStringLiteral("Foyer"));
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::StandardButton(reply)).text(deleteText(QStringLiteral("Foyer")));
    main.widget->removeCurrentChannel();
    QCOMPARE(main.tabs()->count(), 3);
    QCOMPARE(channelFiles(main).size(), 3);
    QVERIFY(main.widget->undoGroup()->canUndo());
    QCOMPARE(main.widget->undoGroup()->stacks().size(), 3);
    QVERIFY(main.purgedScenes.empty());
}

void tst_ChannelCommands::deletedLeavesAHole()
{
    MainWidgetFixture main;
    main.createTabs(Names + QStringList{QStringLiteral("Delta")});
    remove(main, 1);
    QCOMPARE(indices(main), (QList<int>{0, 2, 3}));
    main.widget->saveAllChannel();
    QCOMPARE(main.stored(2).index(), 2);
    QCOMPARE(main.stored(3).index(), 3);
    ChannelFolder::Channels channels;
    ChannelFolder(main.data.path()).load(&channels);
    QCOMPARE(int(channels.size()), 3);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(channels[std::size_t(i)]->index(), i);
        QCOMPARE(channels[std::size_t(i)]->name(), main.tabs()->tabText(i));
    }
}

void tst_ChannelCommands::deletedTakesItsHistory()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.widget->changeChannelNameWithUndo(2, QStringLiteral("Two"));
    main.widget->changeChannelNameWithUndo(1, QStringLiteral("One"));
    const QPointer<QUndoStack> stack = main.area(1)->undoStack();
    QCOMPARE(main.widget->undoGroup()->activeStack(), stack.data());
    remove(main, 1);
    QVERIFY(!stack);
    QUndoGroup *group = main.widget->undoGroup();
    QCOMPARE(group->stacks(),
             (QList<QUndoStack *>{main.area(0)->undoStack(), main.area(1)->undoStack()}));
    QCOMPARE(group->activeStack(), main.area(1)->undoStack());
    group->undo();
    QCOMPARE(main.tabTexts(), (QStringList{Names[0], Names[2]}));
    QVERIFY(!group->canUndo());
}

void tst_ChannelCommands::deletedLeavesItsScene()
{
    MainWidgetFixture main;
    writeChannelFile(main.data, channelFileName(1),
                     {1, 1, Names[1], {{QTime(8, 0), QTime(9, 0), QStringLiteral("stage.xml")}}});
    writeChannelFile(main.data, channelFileName(0), {0, 0, Names[0]});
    main.createTabs();
    main.widget->show();
    main.tabs()->setCurrentIndex(1);
    main.area(1)->selectAllItems();
    remove(main, 1);
    QCOMPARE(int(main.purgedScenes.size()), 1);
    QVERIFY(!main.purgedScenes.front()->items().isEmpty());
    QVERIFY(!main.purgedScenes.front()->parent());
    QVERIFY(main.purgedScenes.front()->views().isEmpty());
    QTest::qWait(20);
}

void tst_ChannelCommands::deletedIsNotAskedAbout()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.tabs()->setCurrentIndex(1);
    main.area(1)->setDefaultStageName(QStringLiteral("x.xml"));
    remove(main, 1);
    const MessageBoxAnswer noBox;
    QVERIFY(main.widget->confirmSaveChannels(1));
    main.widget->saveAllChannel();
    QVERIFY(!channelFiles(main).contains(channelFileName(1)));
}

void tst_ChannelCommands::deletedAndAddedAgain()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    remove(main, 2);
    main.widget->addNewChannel();
    QCOMPARE(main.tabs()->tabText(2), QStringLiteral("Ch.2"));
    QCOMPARE(main.stored(2).name(), QStringLiteral("Ch.2"));
    remove(main, 1);
    main.widget->addNewChannel();
    QCOMPARE(main.area(2)->channel()->id(), 3);
    QCOMPARE(main.tabs()->currentIndex(), 2);
    QCOMPARE(indices(main), (QList<int>{0, 2, 2}));
    main.widget->saveAllChannel();
    ChannelFolder::Channels channels;
    ChannelFolder(main.data.path()).load(&channels);
    QCOMPARE(channels[1]->name(), QStringLiteral("Ch.2"));
    QCOMPARE(channels[2]->name(), QStringLiteral("Ch.3"));
}

void tst_ChannelCommands::onlyChannelDeleted()
{
    MainWidgetFixture main;
    main.createTabs({Names[0]});
    bool released = false;
    connect(main.widget.get(), &ScheduleRouter::timeTableTimeItemHasNotSelected, this,
            [&] { released = released || main.tabs()->count() == 0; });
    remove(main, 0);
    QVERIFY(released);
    QCOMPARE(main.tabs()->count(), 0);
    QVERIFY(!main.widget->undoGroup()->activeStack());
    const MessageBoxAnswer noBox;
    main.widget->removeCurrentChannel();
    main.widget->saveAllChannel();
    main.widget->addNewChannel();
    QCOMPARE(main.tabTexts(), QStringList{QStringLiteral("Ch.0")});
    QCOMPARE(main.area(0)->channel()->index(), 0);
}

void tst_ChannelCommands::fileStays_data()
{
    QTest::addColumn<bool>("becomesFolder");
    QTest::newRow("a folder has its name") << true;
    QTest::newRow("removed by another program") << false;
}

void tst_ChannelCommands::fileStays()
{
    QFETCH(bool, becomesFolder);
    MainWidgetFixture main;
    main.createTabs(Names);
    main.tabs()->setCurrentIndex(1);
    const QString path = main.data.filePath(QStringLiteral("channel/channel1.xml"));
    QVERIFY(QFile::remove(path));
    if (becomesFolder)
        main.data.write(QStringLiteral("channel/channel1.xml/kept.txt"), "kept");
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Yes).text(deleteText(Names[1]));
    answer.expect(QMessageBox::Ok)
        .icon(QMessageBox::Critical)
        .title(DeleteTitle)
        .text(NotDeletedText)
        .buttons(QMessageBox::Ok);
    main.widget->removeCurrentChannel();
    QCOMPARE(main.tabTexts(), Names);
    QCOMPARE(main.tabs()->currentIndex(), 1);
    QCOMPARE(main.widget->undoGroup()->stacks().size(), 3);
    QVERIFY(main.purgedScenes.empty());
    QCOMPARE(main.data.read(QStringLiteral("channel/channel1.xml/kept.txt")),
             becomesFolder ? QByteArray("kept") : QByteArray());
}

void tst_ChannelCommands::sameIdTwice()
{
    MainWidgetFixture main;
    writeChannelFile(main.data, channelFileName(0), {0, 0, Names[0]});
    writeChannelFile(main.data, channelFileName(1), {5, 1, Names[1]});
    writeChannelFile(main.data, channelFileName(2), {5, 2, Names[2]});
    main.createTabs();
    remove(main, 2);
    main.tabs()->setCurrentIndex(1);
    main.area(1)->setDefaultStageName(QStringLiteral("x.xml"));
    main.widget->saveAllChannel();
    QCOMPARE(main.stored(1).scheduleList().first().defaultStage(), QStringLiteral("x.xml"));
    main.widget->addNewChannel();
    QCOMPARE(main.widget->currentWorkingArea()->channel()->id(), 6);
}

void tst_ChannelCommands::widgetDiesDuringTheQuestion()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.tabs()->setCurrentIndex(1);
    QTimer::singleShot(0, this, [&main] { main.widget.reset(); });
    main.widget->removeCurrentChannel();
    QVERIFY(!main.widget);
    QCOMPARE(channelFiles(main).size(), 3);
}

void tst_ChannelCommands::withoutWidgets()
{
    const TemporaryDataFolder data;
    const MessageBoxAnswer noBox;
    ZvScheduleMainWidget widget;
    widget.addNewChannel();
    widget.removeCurrentChannel();
    QMetaObject::invokeMethod(&widget, "onTabCurrentIndexChanged", Q_ARG(int, 0));
    QMetaObject::invokeMethod(&widget, "onTabWidgetContextMenuRequested", Q_ARG(QPoint, QPoint()));
    QVERIFY(data.names().isEmpty());
}

QTEST_MAIN(tst_ChannelCommands)
#include "tst_channelcommands.moc"
