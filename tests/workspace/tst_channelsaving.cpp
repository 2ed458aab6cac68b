#include "MainWidgetFixture.h"
#include "MessageBoxAnswer.h"
#include "WriteFailure.h"

#include <QFile>
#include <QtTest>

using namespace Zavo;
using namespace ZavoTest;

namespace {

constexpr int Closing = 1;
constexpr int Uploading = 2;

const QString Names[] = {QStringLiteral("Zero"), QStringLiteral("One"), QStringLiteral("Two"),
                         QStringLiteral("Three")};
const QStringList AllNames = {Names[0], Names[1], Names[2], Names[3]};

QString defaultStageOf(const ZvChannel &channel)
{
    const QList<ZvSchedule> &schedules = channel.scheduleList();
    return schedules.isEmpty() ? QString() : schedules.first().defaultStage();
}

QString modifiedText(const QString &name)
{
    return QStringLiteral("The channel \"%1\" has been modified.").arg(name);
}

QString uploadText(const QString &name)
{
    return modifiedText(name) +
           QStringLiteral("\nIf you upload without saving, previously saved information will be "
                          "uploaded.");
}

QString notSavedText(const QString &name)
{
    return QStringLiteral("The channel \"%1\" can not be saved.\nPlease check whether it is "
                          "possible to write the file.")
        .arg(name);
}

// Edits the table on show of a tab, which the channel learns of only when it is stored.
void edit(const MainWidgetFixture &main, int index, const QString &stage)
{
    main.tabs()->setCurrentIndex(index);
    main.area(index)->setDefaultStageName(stage);
}

} // namespace

class tst_ChannelSaving : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void currentChannel();
    void currentChannelWithoutSchedule();
    void basicChannelRenewsBasicFile();
    void channelInBasicFileLosesIt();
    void allChannels();
    void allChannelsWithoutBasicChannel();
    void failedSaveTellsAndRenewsSnapshot();
    void allChannelsOnFullDisk();
    void widgetDiesBehindTheMessage_data();
    void widgetDiesBehindTheMessage();
    void saveChannelTellsOnlyIfAsked();
    void promptTexts_data();
    void promptTexts();
    void promptPassesOverUnmodified();
    void promptStoresTheTableFirst();
    void promptGoesByAscendingId();
    void yes();
    void no();
    void yesToAll();
    void noToAll();
    void noToAllAfterYes();
    void cancelKeepsWhatWasSaved();
    void escapeCannotCancelClosing();
    void escapeCancelsUploading();
    void savedBeforeUploadIsAskedAgain();
    void failedSaveDoesNotStopThePrompt();
    void basicChannelByPromptRenewsBasicFile();
    void undoneEditIsNotAskedAbout();
    void hostileNameIsShownAsItIs();
    void boxStaysChild();
};

void tst_ChannelSaving::currentChannel()
{
    MainWidgetFixture main;
    main.createTabs(AllNames);
    edit(main, 1, QStringLiteral("one.xml"));
    edit(main, 2, QStringLiteral("two.xml"));
    QCOMPARE(defaultStageOf(main.stored(2)), QString());
    main.widget->saveCurrentChannel();
    QCOMPARE(defaultStageOf(main.stored(2)), QStringLiteral("two.xml"));
    QVERIFY(!main.area(2)->isChannelChanged());
    QCOMPARE(defaultStageOf(main.stored(1)), QString());
    QVERIFY(!QFile::exists(main.data.filePath(QStringLiteral("channel/channel.xml"))));
}

void tst_ChannelSaving::currentChannelWithoutSchedule()
{
    MainWidgetFixture main;
    main.choice = ZvScheduleBasicInfo(QDate(2031, 5, 6));
    main.createTabs({Names[0]});
    QVERIFY(!main.area(0)->isCurrentScheduleEnabled());
    main.widget->saveCurrentChannel();
    QVERIFY(!main.area(0)->isChannelChanged());
    QCOMPARE(main.stored(0).scheduleList().size(), 1);
}

void tst_ChannelSaving::basicChannelRenewsBasicFile()
{
    MainWidgetFixture main;
    main.createTabs(AllNames);
    edit(main, 0, QStringLiteral("zero.xml"));
    main.widget->saveCurrentChannel();
    QCOMPARE(main.data.read(QStringLiteral("channel/channel.xml")),
             main.data.read(QStringLiteral("channel/channel0.xml")));
    QCOMPARE(defaultStageOf(main.stored(0)), QStringLiteral("zero.xml"));
}

void tst_ChannelSaving::channelInBasicFileLosesIt()
{
    MainWidgetFixture main;
    writeChannelFile(main.data, QStringLiteral("channel.xml"), {0, 0, QStringLiteral("Basic")});
    main.createTabs({Names[0]});
    QCOMPARE(main.area(0)->channelName(), QStringLiteral("Basic"));
    main.widget->saveCurrentChannel();
    QCOMPARE(main.data.names(QStringLiteral("channel")), QStringList{channelFileName(0)});
    QCOMPARE(main.stored(0).name(), Names[0]);
}

void tst_ChannelSaving::allChannels()
{
    MainWidgetFixture main;
    main.createTabs(AllNames);
    for (int i = 0; i < 4; ++i)
        edit(main, i, QStringLiteral("stage%1.xml").arg(i));
    main.widget->saveAllChannel();
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(defaultStageOf(main.stored(i)), QStringLiteral("stage%1.xml").arg(i));
        QVERIFY(!main.area(i)->isChannelChanged());
    }
    QCOMPARE(main.data.read(QStringLiteral("channel/channel.xml")),
             main.data.read(QStringLiteral("channel/channel0.xml")));
}

void tst_ChannelSaving::allChannelsWithoutBasicChannel()
{
    MainWidgetFixture main;
    writeChannelFile(main.data, channelFileName(3), {3, 0, Names[3]});
    main.createTabs();
    edit(main, 0, QStringLiteral("three.xml"));
    main.widget->saveAllChannel();
    QCOMPARE(defaultStageOf(main.stored(3)), QStringLiteral("three.xml"));
    QCOMPARE(main.data.names(QStringLiteral("channel")), QStringList{channelFileName(3)});
}

void tst_ChannelSaving::failedSaveTellsAndRenewsSnapshot()
{
    MainWidgetFixture main;
    main.createTabs(AllNames);
    edit(main, 1, QStringLiteral("one.xml"));
    const QByteArray before = main.data.read(QStringLiteral("channel/channel1.xml"));
    {
        MessageBoxAnswer answer;
        answer.expect(QMessageBox::Ok)
            .icon(QMessageBox::Critical)
            .title(QStringLiteral("Save Channel"))
            .text(notSavedText(Names[1]))
            .buttons(QMessageBox::Ok);
        const WriteFailure fullDisk;
        main.widget->saveCurrentChannel();
    }
    QCOMPARE(main.data.read(QStringLiteral("channel/channel1.xml")), before);
    QCOMPARE(main.area(1)->defaultStageName(), QStringLiteral("one.xml"));
    QVERIFY(!main.area(1)->isChannelChanged());
    QCOMPARE(main.data.names(QStringLiteral("channel")).size(), 4);
}

void tst_ChannelSaving::allChannelsOnFullDisk()
{
    MainWidgetFixture main;
    main.createTabs({Names[1], Names[2]});
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Ok).text(notSavedText(Names[1]));
    answer.expect(QMessageBox::Ok).text(notSavedText(Names[2]));
    const WriteFailure fullDisk;
    main.widget->saveAllChannel();
}

void tst_ChannelSaving::widgetDiesBehindTheMessage_data()
{
    QTest::addColumn<bool>("savesAll");
    QTest::newRow("current channel") << false;
    QTest::newRow("all channels") << true;
}

void tst_ChannelSaving::widgetDiesBehindTheMessage()
{
    QFETCH(bool, savesAll);
    MainWidgetFixture main;
    main.createTabs(AllNames);
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Ok).whileShown([&main](QMessageBox *) { main.widget.reset(); });
    const WriteFailure fullDisk;
    if (savesAll)
        main.widget->saveAllChannel();
    else
        main.widget->saveCurrentChannel();
    QVERIFY(!main.widget);
}

void tst_ChannelSaving::saveChannelTellsOnlyIfAsked()
{
    MainWidgetFixture main;
    main.createTabs({Names[0]});
    ZvChannel *channel = main.area(0)->channel();
    QVERIFY(main.widget->saveChannel(channel, true));
    const MessageBoxAnswer noBox;
    const WriteFailure fullDisk;
    QVERIFY(!main.widget->saveChannel(channel, false));
}

void tst_ChannelSaving::promptTexts_data()
{
    QTest::addColumn<int>("reason");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("informativeText");
    QTest::addColumn<int>("buttons");
    const int all =
        QMessageBox::Yes | QMessageBox::YesToAll | QMessageBox::No | QMessageBox::NoToAll;
    QTest::newRow("closing") << Closing << modifiedText(Names[1])
                             << QStringLiteral("Do you want to save your changes before closing?")
                             << all;
    QTest::newRow("uploading") << Uploading << uploadText(Names[1])
                               << QStringLiteral(
                                      "Do you want to save your changes before uploading?")
                               << (all | QMessageBox::Cancel);
}

void tst_ChannelSaving::promptTexts()
{
    QFETCH(int, reason);
    QFETCH(QString, text);
    QFETCH(QString, informativeText);
    QFETCH(int, buttons);
    MainWidgetFixture main;
    main.createTabs(AllNames);
    edit(main, 1, QStringLiteral("one.xml"));
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::No)
        .icon(QMessageBox::Question)
        .title(QStringLiteral("Save Channel"))
        .text(text)
        .informativeText(informativeText)
        .buttons(QMessageBox::StandardButtons(buttons));
    QVERIFY(main.widget->confirmSaveChannels(reason));
}

void tst_ChannelSaving::promptPassesOverUnmodified()
{
    MainWidgetFixture main;
    main.createTabs(AllNames);
    for (int i = 0; i < 4; ++i)
        main.tabs()->setCurrentIndex(i);
    const MessageBoxAnswer noBox;
    QVERIFY(main.widget->confirmSaveChannels(Closing));
    QVERIFY(main.widget->confirmSaveChannels(Uploading));
}

void tst_ChannelSaving::promptStoresTheTableFirst()
{
    MainWidgetFixture main;
    main.createTabs(AllNames);
    edit(main, 2, QStringLiteral("two.xml"));
    QVERIFY(!main.area(2)->isChannelChanged());
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Yes).text(modifiedText(Names[2]));
    QVERIFY(main.widget->confirmSaveChannels(Closing));
    QCOMPARE(defaultStageOf(main.stored(2)), QStringLiteral("two.xml"));
}

void tst_ChannelSaving::promptGoesByAscendingId()
{
    MainWidgetFixture main;
    writeChannelFile(main.data, channelFileName(0), {30, 0, QStringLiteral("a")});
    writeChannelFile(main.data, channelFileName(1), {4, 1, QStringLiteral("b")});
    writeChannelFile(main.data, channelFileName(2), {17, 2, QStringLiteral("c")});
    main.createTabs();
    for (int i = 0; i < 3; ++i)
        edit(main, i, QStringLiteral("x.xml"));
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::No).text(modifiedText(QStringLiteral("b")));
    answer.expect(QMessageBox::No).text(modifiedText(QStringLiteral("c")));
    answer.expect(QMessageBox::No).text(modifiedText(QStringLiteral("a")));
    QVERIFY(main.widget->confirmSaveChannels(Closing));
}

void tst_ChannelSaving::yes()
{
    MainWidgetFixture main;
    main.createTabs(AllNames);
    edit(main, 1, QStringLiteral("one.xml"));
    edit(main, 2, QStringLiteral("two.xml"));
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Yes).text(modifiedText(Names[1]));
    answer.expect(QMessageBox::No).text(modifiedText(Names[2]));
    QVERIFY(main.widget->confirmSaveChannels(Closing));
    QCOMPARE(defaultStageOf(main.stored(1)), QStringLiteral("one.xml"));
    QCOMPARE(defaultStageOf(main.stored(2)), QString());
}

void tst_ChannelSaving::no()
{
    MainWidgetFixture main;
    main.createTabs(AllNames);
    edit(main, 1, QStringLiteral("one.xml"));
    const QByteArray before = main.data.read(QStringLiteral("channel/channel1.xml"));
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::No);
    QVERIFY(main.widget->confirmSaveChannels(Closing));
    QCOMPARE(main.data.read(QStringLiteral("channel/channel1.xml")), before);
    QVERIFY(main.area(1)->isChannelChanged());
}

void tst_ChannelSaving::yesToAll()
{
    MainWidgetFixture main;
    main.createTabs(AllNames);
    for (int i = 0; i < 4; ++i)
        edit(main, i, QStringLiteral("x.xml"));
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::No).text(modifiedText(Names[0]));
    answer.expect(QMessageBox::YesToAll).text(modifiedText(Names[1]));
    QVERIFY(main.widget->confirmSaveChannels(Closing));
    QCOMPARE(defaultStageOf(main.stored(0)), QString());
    for (int i = 1; i < 4; ++i)
        QCOMPARE(defaultStageOf(main.stored(i)), QStringLiteral("x.xml"));
}

void tst_ChannelSaving::noToAll()
{
    MainWidgetFixture main;
    main.createTabs(AllNames);
    for (int i = 0; i < 4; ++i)
        edit(main, i, QStringLiteral("x.xml"));
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::NoToAll).text(modifiedText(Names[0]));
    QVERIFY(main.widget->confirmSaveChannels(Closing));
    for (int i = 0; i < 4; ++i)
        QCOMPARE(defaultStageOf(main.stored(i)), QString());
}

void tst_ChannelSaving::noToAllAfterYes()
{
    MainWidgetFixture main;
    main.createTabs(AllNames);
    for (int i = 0; i < 4; ++i)
        edit(main, i, QStringLiteral("x.xml"));
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Yes).text(uploadText(Names[0]));
    answer.expect(QMessageBox::NoToAll).text(uploadText(Names[1]));
    QVERIFY(main.widget->confirmSaveChannels(Uploading));
    QCOMPARE(defaultStageOf(main.stored(0)), QStringLiteral("x.xml"));
    for (int i = 1; i < 4; ++i)
        QCOMPARE(defaultStageOf(main.stored(i)), QString());
}

void tst_ChannelSaving::cancelKeepsWhatWasSaved()
{
    MainWidgetFixture main;
    main.createTabs(AllNames);
    for (int i = 0; i < 3; ++i)
        edit(main, i, QStringLiteral("x.xml"));
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Yes).text(uploadText(Names[0]));
    answer.expect(QMessageBox::Cancel).text(uploadText(Names[1]));
    QVERIFY(!main.widget->confirmSaveChannels(Uploading));
    QCOMPARE(defaultStageOf(main.stored(0)), QStringLiteral("x.xml"));
    QCOMPARE(defaultStageOf(main.stored(1)), QString());
    QCOMPARE(defaultStageOf(main.stored(2)), QString());
}

// Nothing among the buttons stands for leaving the question open, so Escape does not close it.
void tst_ChannelSaving::escapeCannotCancelClosing()
{
    MainWidgetFixture main;
    main.createTabs({Names[0]});
    edit(main, 0, QStringLiteral("x.xml"));
    MessageBoxAnswer answer;
    bool stayed = false;
    answer.expect(QMessageBox::Yes).whileShown([&stayed](QMessageBox *box) {
        QTest::keyClick(box, Qt::Key_Escape);
        box->close();
        stayed = box->isVisible();
    });
    QVERIFY(main.widget->confirmSaveChannels(Closing));
    QVERIFY(stayed);
    QCOMPARE(defaultStageOf(main.stored(0)), QStringLiteral("x.xml"));
}

void tst_ChannelSaving::escapeCancelsUploading()
{
    MainWidgetFixture main;
    main.createTabs({Names[0]});
    edit(main, 0, QStringLiteral("x.xml"));
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::NoButton).text(uploadText(Names[0]));
    QVERIFY(!main.widget->confirmSaveChannels(Uploading));
    QCOMPARE(defaultStageOf(main.stored(0)), QString());
}

void tst_ChannelSaving::savedBeforeUploadIsAskedAgain()
{
    MainWidgetFixture main;
    main.createTabs(AllNames);
    edit(main, 1, QStringLiteral("one.xml"));
    {
        MessageBoxAnswer answer;
        answer.expect(QMessageBox::Yes).text(uploadText(Names[1]));
        QVERIFY(main.widget->confirmSaveChannels(Uploading));
    }
    {
        MessageBoxAnswer answer;
        answer.expect(QMessageBox::No).text(modifiedText(Names[1]));
        QVERIFY(main.widget->confirmSaveChannels(Closing));
    }
    main.widget->saveCurrentChannel();
    const MessageBoxAnswer noBox;
    QVERIFY(main.widget->confirmSaveChannels(Closing));
}

void tst_ChannelSaving::failedSaveDoesNotStopThePrompt()
{
    MainWidgetFixture main;
    main.createTabs({Names[0], Names[1]});
    edit(main, 0, QStringLiteral("x.xml"));
    edit(main, 1, QStringLiteral("x.xml"));
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Yes).text(modifiedText(Names[0]));
    answer.expect(QMessageBox::Ok).text(notSavedText(Names[0]));
    answer.expect(QMessageBox::No).text(modifiedText(Names[1]));
    const WriteFailure fullDisk;
    QVERIFY(main.widget->confirmSaveChannels(Closing));
    QVERIFY(main.area(0)->isChannelChanged());
}

void tst_ChannelSaving::basicChannelByPromptRenewsBasicFile()
{
    MainWidgetFixture main;
    main.createTabs({Names[0], Names[1]});
    edit(main, 0, QStringLiteral("x.xml"));
    edit(main, 1, QStringLiteral("x.xml"));
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::YesToAll);
    QVERIFY(main.widget->confirmSaveChannels(Closing));
    QCOMPARE(main.data.read(QStringLiteral("channel/channel.xml")),
             main.data.read(QStringLiteral("channel/channel0.xml")));
}

void tst_ChannelSaving::undoneEditIsNotAskedAbout()
{
    MainWidgetFixture main;
    main.createTabs(AllNames);
    edit(main, 1, QStringLiteral("one.xml"));
    main.widget->storeCurrentSchedule();
    QVERIFY(main.area(1)->isChannelChanged());
    edit(main, 1, QString());
    const MessageBoxAnswer noBox;
    QVERIFY(main.widget->confirmSaveChannels(Closing));
}

void tst_ChannelSaving::hostileNameIsShownAsItIs()
{
    const QString name = QStringLiteral("<img src=\"x\"> %1 & \"so\"");
    MainWidgetFixture main;
    main.createTabs({name});
    edit(main, 0, QStringLiteral("x.xml"));
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Yes).text(modifiedText(name)).whileShown([](QMessageBox *box) {
        QCOMPARE(box->textFormat(), Qt::PlainText);
    });
    answer.expect(QMessageBox::Ok).text(notSavedText(name)).whileShown([](QMessageBox *box) {
        QCOMPARE(box->textFormat(), Qt::PlainText);
    });
    const WriteFailure fullDisk;
    QVERIFY(main.widget->confirmSaveChannels(Closing));
}

void tst_ChannelSaving::boxStaysChild()
{
    MainWidgetFixture main;
    main.createTabs({Names[0], Names[1]});
    edit(main, 0, QStringLiteral("x.xml"));
    edit(main, 1, QStringLiteral("x.xml"));
    QList<QMessageBox *> boxes;
    const auto look = [&boxes](QMessageBox *box) { boxes.append(box); };
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::No).whileShown(look);
    answer.expect(QMessageBox::No).whileShown(look);
    QVERIFY(main.widget->confirmSaveChannels(Closing));
    QCOMPARE(boxes.size(), 2);
    QCOMPARE(boxes.first(), boxes.last());
    QCOMPARE(main.widget->findChildren<QMessageBox *>(), QList<QMessageBox *>{boxes.first()});
}

QTEST_MAIN(tst_ChannelSaving)
#include "tst_channelsaving.moc"
