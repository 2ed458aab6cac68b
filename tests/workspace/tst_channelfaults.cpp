#include "FolderFaults.h"
#include "MainWidgetFixture.h"
#include "MessageBoxAnswer.h"

#include "workspace/ChannelFolder.h"

#include <QDir>
#include <QSignalSpy>
#include <QtTest>

using namespace Zavo;
using namespace ZavoTest;

namespace {

const QStringList Names = {QStringLiteral("Zero"), QStringLiteral("One"), QStringLiteral("Two")};
const QString OneFile = QStringLiteral("channel/channel1.xml");
const QString BasicFile = QStringLiteral("channel/channel.xml");

using Files = QMap<QString, QByteArray>;

// What a start of the editor would find, and whatever else lies there.
Files channelFiles(const TemporaryDataFolder &data)
{
    Files files;
    const QStringList names = data.names(QStringLiteral("channel"));
    for (const QString &name : names) {
        if (name != QLatin1String(".filler"))
            files.insert(name, data.read(QStringLiteral("channel/") + name));
    }
    return files;
}

QString stageOf(const ZvChannel &channel)
{
    return channel.scheduleList().isEmpty() ? QString()
                                            : channel.scheduleList().first().defaultStage();
}

void edit(const MainWidgetFixture &main, int index, const QString &stage)
{
    main.tabs()->setCurrentIndex(index);
    main.area(index)->setDefaultStageName(stage);
}

void expectNotSaved(MessageBoxAnswer &answer, const QString &name)
{
    answer.expect(QMessageBox::Ok)
        .icon(QMessageBox::Critical)
        .title(QStringLiteral("Save Channel"))
        .text(QStringLiteral("The channel \"%1\" can not be saved.\nPlease check whether it is "
                             "possible to write the file.")
                  .arg(name));
}

void expectNotAdded(MessageBoxAnswer &answer)
{
    answer.expect(QMessageBox::Ok)
        .icon(QMessageBox::Critical)
        .title(QStringLiteral("Add New Channel"))
        .text(QStringLiteral("You can not add the new channel.\nFailed to write new channel file. "
                             "Please check whether it is possible to write to the channel "
                             "folder."));
}

void expectNotDeleted(MessageBoxAnswer &answer)
{
    answer.expect(QMessageBox::Yes).icon(QMessageBox::Warning);
    answer.expect(QMessageBox::Ok)
        .icon(QMessageBox::Critical)
        .title(QStringLiteral("Delete Channel"))
        .text(QStringLiteral("The channel file can not be deleted.\nPlease check whether it is "
                             "possible to delete the file."));
}

void expectFailedStart(MessageBoxAnswer &answer)
{
    answer.expect(QMessageBox::Ok)
        .icon(QMessageBox::Critical)
        .title(QStringLiteral("Create Channel"))
        .text(QStringLiteral("The channel file can not be created. \nPlease make sure that channel "
                             "folder is writable."));
}

} // namespace

#define SKIP_UNLESS_EFFECTIVE(fault)                                                               \
    if (!(fault).isEffective())                                                                    \
    QSKIP("This machine has no means to bring the fault about.")

class tst_ChannelFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readOnlyFolder();
    void readOnlyFolderAtTheNextStart();
    void readOnlyFolderAtTheFirstStart();
    void readOnlyDataFolderAtTheFirstStart();
    void readOnlyBasicChannel();
    void unremovableFile();
    void nameTakenByFolder();
    void basicNameTakenByFolder();
    void nameTakenByFolderAtTheFirstStart();
    void removedMeanwhile();
    void folderRemovedMeanwhile();
    void changedMeanwhile_data();
    void changedMeanwhile();
    void addedMeanwhile();
    void linkIsDeletedNotItsTarget();
    void fullDisk();
    void fullDiskAndTheBasicChannel();
    void fullDiskAtThePrompt();
    void fullDiskAtTheFirstStart();
    void deletingMakesRoom();
};

void tst_ChannelFaults::readOnlyFolder()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    edit(main, 2, QStringLiteral("two.xml"));
    edit(main, 1, QStringLiteral("one.xml"));
    const Files before = channelFiles(main.data);
    {
        const ReadOnlyFolder fault(main.data.channelFolder());
        SKIP_UNLESS_EFFECTIVE(fault);
        MessageBoxAnswer answer;
        expectNotSaved(answer, Names[1]);
        main.widget->saveCurrentChannel();
        for (const QString &name : Names)
            expectNotSaved(answer, name);
        main.widget->saveAllChannel();
        expectNotAdded(answer);
        main.widget->addNewChannel();
        expectNotDeleted(answer);
        main.widget->removeCurrentChannel();
        QVERIFY(answer.isDone());
        QCOMPARE(channelFiles(main.data), before);
    }
    QCOMPARE(main.tabTexts(), Names);
    QCOMPARE(main.area(1)->defaultStageName(), QStringLiteral("one.xml"));
    const MessageBoxAnswer noBox;
    main.widget->saveAllChannel();
    QCOMPARE(stageOf(main.stored(1)), QStringLiteral("one.xml"));
    QCOMPARE(stageOf(main.stored(2)), QStringLiteral("two.xml"));
}

void tst_ChannelFaults::readOnlyFolderAtTheNextStart()
{
    MainWidgetFixture main;
    for (int i = 0; i < Names.size(); ++i)
        writeChannelFile(main.data, channelFileName(i), {i, i, Names.at(i)});
    const ReadOnlyFolder fault(main.data.channelFolder());
    SKIP_UNLESS_EFFECTIVE(fault);
    const MessageBoxAnswer noBox;
    main.createTabs();
    QCOMPARE(main.tabTexts(), Names);
    QVERIFY(main.widget->confirmSaveChannels(1));
}

void tst_ChannelFaults::readOnlyFolderAtTheFirstStart()
{
    MainWidgetFixture main;
    main.data.makeFolder(QStringLiteral("channel"));
    const ReadOnlyFolder fault(main.data.channelFolder());
    SKIP_UNLESS_EFFECTIVE(fault);
    QSignalSpy close(main.widget.get(), SIGNAL(requestClose()));
    MessageBoxAnswer answer;
    expectFailedStart(answer);
    main.createTabs();
    QCOMPARE(close.count(), 1);
    QCOMPARE(main.tabs()->count(), 0);
}

void tst_ChannelFaults::readOnlyDataFolderAtTheFirstStart()
{
    MainWidgetFixture main;
    const ReadOnlyFolder fault(main.data.path());
    SKIP_UNLESS_EFFECTIVE(fault);
    QSignalSpy close(main.widget.get(), SIGNAL(requestClose()));
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Ok)
        .icon(QMessageBox::Critical)
        .title(QStringLiteral("Critical Error"))
        .text(QStringLiteral("Channel Folder cannot be created. \nPlease check the data folder "
                             "write permission."));
    main.createTabs();
    QTRY_COMPARE(close.count(), 1);
    QCOMPARE(main.tabs()->count(), 0);
}

void tst_ChannelFaults::readOnlyBasicChannel()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.widget->saveCurrentChannel();
    edit(main, 0, QStringLiteral("zero.xml"));
    const Files before = channelFiles(main.data);
    QVERIFY(before.contains(QStringLiteral("channel.xml")));
    const ReadOnlyFolder fault(main.data.channelFolder());
    SKIP_UNLESS_EFFECTIVE(fault);
    MessageBoxAnswer answer;
    expectNotSaved(answer, Names[0]);
    main.widget->saveCurrentChannel();
    QCOMPARE(channelFiles(main.data), before);
}

void tst_ChannelFaults::unremovableFile()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    edit(main, 1, QStringLiteral("one.xml"));
    const Files before = channelFiles(main.data);
    {
        const UnremovableFile fault(main.data.filePath(OneFile));
        SKIP_UNLESS_EFFECTIVE(fault);
        MessageBoxAnswer answer;
        expectNotDeleted(answer);
        main.widget->removeCurrentChannel();
        QCOMPARE(main.tabTexts(), Names);
        expectNotSaved(answer, Names[1]);
        main.widget->saveCurrentChannel();
        QVERIFY(answer.isDone());
        QCOMPARE(channelFiles(main.data), before);
    }
    QCOMPARE(main.widget->currentWorkingArea()->channelName(), Names[1]);
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Yes);
    main.widget->removeCurrentChannel();
    QVERIFY(!QFile::exists(main.data.filePath(OneFile)));
}

void tst_ChannelFaults::nameTakenByFolder()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    edit(main, 1, QStringLiteral("one.xml"));
    QVERIFY(QFile::remove(main.data.filePath(OneFile)));
    main.data.write(OneFile + QStringLiteral("/kept.txt"), "kept");
    const Files before = channelFiles(main.data);
    MessageBoxAnswer answer;
    expectNotSaved(answer, Names[1]);
    main.widget->saveCurrentChannel();
    expectNotDeleted(answer);
    main.widget->removeCurrentChannel();
    QVERIFY(answer.isDone());
    QCOMPARE(channelFiles(main.data), before);
    QCOMPARE(main.data.read(OneFile + QStringLiteral("/kept.txt")), QByteArray("kept"));
    QCOMPARE(main.tabTexts(), Names);
}

void tst_ChannelFaults::basicNameTakenByFolder()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    main.data.makeFolder(BasicFile);
    edit(main, 0, QStringLiteral("zero.xml"));
    const MessageBoxAnswer noBox;
    main.widget->saveCurrentChannel();
    QCOMPARE(stageOf(main.stored(0)), QStringLiteral("zero.xml"));
    QVERIFY(QFileInfo(main.data.filePath(BasicFile)).isDir());
}

void tst_ChannelFaults::nameTakenByFolderAtTheFirstStart()
{
    MainWidgetFixture main;
    main.data.write(QStringLiteral("channel/channel3.xml/kept.txt"), "kept");
    QSignalSpy close(main.widget.get(), SIGNAL(requestClose()));
    MessageBoxAnswer answer;
    expectFailedStart(answer);
    main.createTabs();
    QCOMPARE(close.count(), 1);
    QCOMPARE(main.tabs()->count(), 0);
    QCOMPARE(main.data.read(QStringLiteral("channel/channel3.xml/kept.txt")), QByteArray("kept"));
}

void tst_ChannelFaults::removedMeanwhile()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    edit(main, 1, QStringLiteral("one.xml"));
    QVERIFY(QFile::remove(main.data.filePath(OneFile)));
    MessageBoxAnswer answer;
    expectNotDeleted(answer);
    main.widget->removeCurrentChannel();
    QCOMPARE(main.tabTexts(), Names);
    main.widget->saveCurrentChannel();
    QCOMPARE(stageOf(main.stored(1)), QStringLiteral("one.xml"));
    answer.expect(QMessageBox::Yes);
    main.widget->removeCurrentChannel();
    QCOMPARE(main.tabs()->count(), 2);
}

void tst_ChannelFaults::folderRemovedMeanwhile()
{
    MainWidgetFixture main;
    main.createTabs({Names[0], Names[1]});
    edit(main, 1, QStringLiteral("one.xml"));
    QVERIFY(QDir(main.data.channelFolder()).removeRecursively());
    MessageBoxAnswer answer;
    expectNotSaved(answer, Names[0]);
    expectNotSaved(answer, Names[1]);
    main.widget->saveAllChannel();
    expectNotAdded(answer);
    main.widget->addNewChannel();
    expectNotDeleted(answer);
    main.widget->removeCurrentChannel();
    QVERIFY(answer.isDone());
    main.data.makeFolder(QStringLiteral("channel"));
    main.widget->saveAllChannel();
    QCOMPARE(stageOf(main.stored(1)), QStringLiteral("one.xml"));
    QCOMPARE(main.data.names(QStringLiteral("channel")),
             (QStringList{QStringLiteral("channel.xml"), channelFileName(0), channelFileName(1)}));
}

void tst_ChannelFaults::changedMeanwhile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("other channel") << QByteArray();
    QTest::newRow("garbage") << QByteArray("\0\xff<channel", 10);
    QTest::newRow("nothing") << QByteArray("");
}

void tst_ChannelFaults::changedMeanwhile()
{
    QFETCH(QByteArray, content);
    MainWidgetFixture main;
    main.createTabs(Names);
    edit(main, 1, QStringLiteral("one.xml"));
    if (content.isNull())
        writeChannelFile(main.data, channelFileName(1), {77, 5, QStringLiteral("Foreign")});
    else
        main.data.write(OneFile, content);
    const MessageBoxAnswer noBox;
    main.widget->saveCurrentChannel();
    QVERIFY(main.stored(1).isMatch(*main.area(1)->channel(), false, false));
    QCOMPARE(stageOf(main.stored(1)), QStringLiteral("one.xml"));
    QCOMPARE(main.data.names(QStringLiteral("channel")).size(), 3);
}

// Two editors on one folder.
void tst_ChannelFaults::addedMeanwhile()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    writeChannelFile(main.data, channelFileName(3), {3, 3, QStringLiteral("Foreign")});
    const Files before = channelFiles(main.data);
    const MessageBoxAnswer noBox;
    main.widget->addNewChannel();
    Files after = channelFiles(main.data);
    QCOMPARE(after.size(), before.size() + 1);
    QCOMPARE(main.stored(4).name(), QStringLiteral("Ch.3"));
    after.remove(channelFileName(4));
    QCOMPARE(after, before);
}

void tst_ChannelFaults::linkIsDeletedNotItsTarget()
{
    MainWidgetFixture main;
    main.createTabs(Names);
    const QString elsewhere = main.data.filePath(QStringLiteral("elsewhere.xml"));
    QVERIFY(QFile::rename(main.data.filePath(OneFile), elsewhere));
    QVERIFY(QFile::link(elsewhere, main.data.filePath(OneFile)));
    edit(main, 1, QStringLiteral("one.xml"));
    MessageBoxAnswer answer;
    main.widget->saveCurrentChannel();
    QVERIFY(QFileInfo(main.data.filePath(OneFile)).isSymLink());
    QCOMPARE(stageOf(readChannelFile(elsewhere)), QStringLiteral("one.xml"));
    answer.expect(QMessageBox::Yes);
    main.widget->removeCurrentChannel();
    QVERIFY(!QFileInfo(main.data.filePath(OneFile)).isSymLink());
    QCOMPARE(stageOf(readChannelFile(elsewhere)), QStringLiteral("one.xml"));
}

void tst_ChannelFaults::fullDisk()
{
    MainWidgetFixture main;
    SmallDisk disk(main.data.makeFolder(QStringLiteral("channel")));
    main.createTabs(Names);
    edit(main, 2, QStringLiteral("two.xml"));
    edit(main, 1, QStringLiteral("one.xml"));
    const Files before = channelFiles(main.data);
    {
        MessageBoxAnswer answer;
        expectNotSaved(answer, Names[1]);
        expectNotAdded(answer);
        disk.fill();
        main.widget->saveCurrentChannel();
        main.widget->addNewChannel();
        disk.makeRoom();
    }
    QCOMPARE(channelFiles(main.data), before);
    QCOMPARE(main.tabTexts(), Names);
    main.widget->saveAllChannel();
    QCOMPARE(stageOf(main.stored(1)), QStringLiteral("one.xml"));
    QCOMPARE(stageOf(main.stored(2)), QStringLiteral("two.xml"));
}

// The basic file is removed before it is copied anew, so that it can be missing but not old.
void tst_ChannelFaults::fullDiskAndTheBasicChannel()
{
    MainWidgetFixture main;
    SmallDisk disk(main.data.makeFolder(QStringLiteral("channel")));
    main.createTabs(Names);
    main.widget->saveCurrentChannel();
    edit(main, 0, QStringLiteral("zero.xml"));
    Files before = channelFiles(main.data);
    {
        MessageBoxAnswer answer;
        expectNotSaved(answer, Names[0]);
        disk.fill();
        main.widget->saveCurrentChannel();
        disk.makeRoom();
    }
    Files after = channelFiles(main.data);
    const QByteArray basic = after.take(QStringLiteral("channel.xml"));
    before.remove(QStringLiteral("channel.xml"));
    QCOMPARE(after, before);
    QVERIFY(basic.isEmpty() || basic == before.value(channelFileName(0)));
    ChannelFolder::Channels channels;
    QCOMPARE(ChannelFolder(main.data.path()).load(&channels), ChannelFolder::LoadResult::Loaded);
    QCOMPARE(channels.front()->name(), Names[0]);
    main.widget->saveCurrentChannel();
    QCOMPARE(stageOf(main.stored(0)), QStringLiteral("zero.xml"));
    QCOMPARE(main.data.read(BasicFile), main.data.read(QStringLiteral("channel/channel0.xml")));
}

void tst_ChannelFaults::fullDiskAtThePrompt()
{
    MainWidgetFixture main;
    SmallDisk disk(main.data.makeFolder(QStringLiteral("channel")));
    main.createTabs(Names);
    edit(main, 1, QStringLiteral("one.xml"));
    edit(main, 2, QStringLiteral("two.xml"));
    const Files before = channelFiles(main.data);
    {
        MessageBoxAnswer answer;
        answer.expect(QMessageBox::YesToAll).icon(QMessageBox::Question);
        expectNotSaved(answer, Names[1]);
        expectNotSaved(answer, Names[2]);
        disk.fill();
        QVERIFY(main.widget->confirmSaveChannels(2));
        disk.makeRoom();
    }
    QCOMPARE(channelFiles(main.data), before);
    QVERIFY(main.area(1)->isChannelChanged());
    QVERIFY(main.area(2)->isChannelChanged());
}

void tst_ChannelFaults::fullDiskAtTheFirstStart()
{
    MainWidgetFixture main;
    SmallDisk disk(main.data.makeFolder(QStringLiteral("channel")));
    QSignalSpy close(main.widget.get(), SIGNAL(requestClose()));
    {
        MessageBoxAnswer answer;
        expectFailedStart(answer);
        disk.fill();
        main.createTabs();
        disk.makeRoom();
    }
    QCOMPARE(close.count(), 1);
    QCOMPARE(channelFiles(main.data), Files());
    main.createTabs();
    QCOMPARE(main.tabs()->count(), 10);
}

void tst_ChannelFaults::deletingMakesRoom()
{
    MainWidgetFixture main;
    SmallDisk disk(main.data.makeFolder(QStringLiteral("channel")));
    main.createTabs(Names);
    main.tabs()->setCurrentIndex(2);
    disk.fill();
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Yes);
    main.widget->removeCurrentChannel();
    disk.makeRoom();
    QCOMPARE(main.tabTexts(), (QStringList{Names[0], Names[1]}));
    QCOMPARE(channelFiles(main.data).keys(), (QStringList{channelFileName(0), channelFileName(1)}));
}

QTEST_MAIN(tst_ChannelFaults)
#include "tst_channelfaults.moc"
