#include "EditorFixture.h"
#include "MessageBoxAnswer.h"
#include "SignalLog.h"

#include <QSettings>
#include <QSignalSpy>

#include <sys/stat.h>
#include <unistd.h>

using namespace Zavo;
using namespace ZavoTest;

namespace {

const QString Title = QStringLiteral("Delete All Channels and Settings");
const QString Question =
    QStringLiteral("All channels and channel settings will be deleted.\nThis operation can not be "
                   "undone.\n\nAre you sure you want to delete all?");
const QString Completed = QStringLiteral("Delete Completed.%1\n\nSchedule Editor will be closed.");
const QString SomeLeft = QStringLiteral("(Some file has not be deleted.)");

void expectQuestion(MessageBoxAnswer &boxes, QMessageBox::StandardButton reply)
{
    boxes.expect(reply)
        .icon(QMessageBox::Warning)
        .title(Title)
        .text(Question)
        .buttons(QMessageBox::Yes | QMessageBox::No);
}

void expectCompletion(MessageBoxAnswer &boxes, const QString &remainder)
{
    boxes.expect(QMessageBox::Ok)
        .icon(QMessageBox::Information)
        .title(Title)
        .text(QString(Completed).arg(remainder))
        .buttons(QMessageBox::Ok);
}

/// While it lives, this process of root acts as a user who may delete nothing but what is theirs.
class PlainUser final
{
public:
    PlainUser() { m_isActive = seteuid(Id) == 0; }
    ~PlainUser()
    {
        if (m_isActive && seteuid(0) != 0)
            qFatal("root cannot come back");
    }
    Q_DISABLE_COPY(PlainUser)

    static constexpr uid_t Id = 65534;
    bool isActive() const { return m_isActive; }

private:
    bool m_isActive = false;
};

} // namespace

/// Everything in the channel folder goes, and the editor with it.
class tst_ChannelReset : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deletesEverythingAndCloses();
    void foldersStay();
    void modifiedChannelsAreNotAsked();
    void nextStartMakesTheDefaultChannels();
    void layoutSurvives();
    void declined_data();
    void declined();
    void missingFolder();
    void fileInPlaceOfTheFolder();
    void oneFileStays();
    void allFilesStay();
    void emptyFolder();
    void beforeTheStart();
    void hostDiesBehindTheQuestion();
    void hostDiesBehindTheCompletion();
    void closedBehindTheQuestion();
};

void tst_ChannelReset::deletesEverythingAndCloses()
{
    EditorFixture host;
    QVERIFY(host.start());
    for (const char *name : {"channel.xml", "channel123456.xml", "notes.txt", ".channel0.xml.tmp",
                             "no ending", "channel1.xml.bak"})
        host.data.write(QStringLiteral("channel/") + QLatin1String(name), "content");
    QVERIFY(QFile::link(host.data.filePath(QStringLiteral("gone")),
                        host.data.filePath(QStringLiteral("channel/channel8.xml"))));
    host.data.write(QStringLiteral("Log/Editor/UploadLog.txt"), "log");
    host.data.writeStage(QStringLiteral("a.xml"));
    SignalLog log;
    log.watch(host.editor, SIGNAL(closed()));
    log.watch(host.editor, SIGNAL(graphicsScenePurged(QList<QGraphicsScene*>)), "scenes");
    MessageBoxAnswer boxes;
    expectQuestion(boxes, QMessageBox::Yes);
    boxes.expect(QMessageBox::Ok)
        .text(QString(Completed).arg(QString()))
        .whileShown([&](const QMessageBox *box) {
            // The files are gone by now, the editor is not.
            QCOMPARE(host.data.names(QStringLiteral("channel")), QStringList());
            QVERIFY(log.names().isEmpty());
            QCOMPARE(box->parentWidget(), static_cast<QWidget *>(host.window.get()));
        });
    host.action("Action_Delete_Channels_Settings")->trigger();
    QVERIFY(boxes.isDone());
    QCOMPARE(log.names(), (QStringList{QStringLiteral("scenes"), QStringLiteral("closed")}));
    QCoreApplication::processEvents();
    QCOMPARE(host.data.names(QStringLiteral("channel")), QStringList());
    QCOMPARE(host.data.read(QStringLiteral("Log/Editor/UploadLog.txt")), QByteArray("log"));
    QVERIFY(QFileInfo::exists(host.data.stageFolder() + QStringLiteral("/a.xml")));
    QVERIFY(!host.window->centralWidget());
}

void tst_ChannelReset::foldersStay()
{
    EditorFixture host;
    QVERIFY(host.start());
    host.data.write(QStringLiteral("channel/old/channel0.xml"), "kept");
    host.data.makeFolder(QStringLiteral("channel/channel9.xml"));
    host.data.makeFolder(QStringLiteral("elsewhere"));
    QVERIFY(QFile::link(host.data.filePath(QStringLiteral("elsewhere")),
                        host.data.filePath(QStringLiteral("channel/link"))));
    MessageBoxAnswer boxes;
    expectQuestion(boxes, QMessageBox::Yes);
    expectCompletion(boxes, QString());
    host.editor->removeAllChannelsAndSettings();
    QCOMPARE(host.data.names(QStringLiteral("channel")),
             (QStringList{QStringLiteral("channel9.xml"), QStringLiteral("link"),
                          QStringLiteral("old")}));
    QCOMPARE(host.data.read(QStringLiteral("channel/old/channel0.xml")), QByteArray("kept"));
}

void tst_ChannelReset::modifiedChannelsAreNotAsked()
{
    EditorFixture host;
    QVERIFY(host.start());
    host.edit(1, QStringLiteral("x.xml"));
    host.edit(2, QStringLiteral("y.xml"));
    const QSignalSpy closed(host.editor, SIGNAL(closed()));
    MessageBoxAnswer boxes;
    expectQuestion(boxes, QMessageBox::Yes);
    expectCompletion(boxes, QString());
    host.editor->removeAllChannelsAndSettings();
    QVERIFY(boxes.isDone());
    QCOMPARE(boxes.answeredCount(), 2);
    QCOMPARE(closed.count(), 1);
    QCOMPARE(host.data.names(QStringLiteral("channel")), QStringList());
    host.editor->close(); // harmless
    QCOMPARE(closed.count(), 1);
}

void tst_ChannelReset::nextStartMakesTheDefaultChannels()
{
    EditorFixture host;
    QVERIFY(host.start());
    {
        MessageBoxAnswer boxes;
        expectQuestion(boxes, QMessageBox::Yes);
        expectCompletion(boxes, QString());
        host.editor->removeAllChannelsAndSettings();
    }
    host.makeEditor();
    QVERIFY(host.start());
    QCOMPARE(host.tabs()->count(), 10);
    QCOMPARE(host.tabs()->tabText(9), QStringLiteral("Ch.9"));
    QCOMPARE(host.data.names(QStringLiteral("channel")).size(), 11);
}

void tst_ChannelReset::layoutSurvives()
{
    EditorFixture host;
    QVERIFY(host.start());
    host.data.settings()->setValue(QStringLiteral("mine"), 7);
    const QStringList keys = host.data.settings()->allKeys();
    MessageBoxAnswer boxes;
    expectQuestion(boxes, QMessageBox::Yes);
    expectCompletion(boxes, QString());
    host.editor->removeAllChannelsAndSettings();
    QCOMPARE(host.data.settings()->value(QStringLiteral("mine")).toInt(), 7);
    // The layout is stored as by any closing.
    QVERIFY(host.data.settings()->allKeys().size() > keys.size());
}

void tst_ChannelReset::declined_data()
{
    QTest::addColumn<bool>("byEscape");
    QTest::newRow("no") << false;
    QTest::newRow("escape") << true;
}

void tst_ChannelReset::declined()
{
    QFETCH(bool, byEscape);
    const auto reply = byEscape ? QMessageBox::NoButton : QMessageBox::No;
    EditorFixture host;
    QVERIFY(host.start());
    host.edit(1, QStringLiteral("x.xml"));
    const QStringList names = host.data.names(QStringLiteral("channel"));
    const QByteArray content = host.data.read(QStringLiteral("channel/channel1.xml"));
    const QSignalSpy closed(host.editor, SIGNAL(closed()));
    {
        MessageBoxAnswer boxes;
        expectQuestion(boxes, reply);
        host.editor->removeAllChannelsAndSettings();
        QVERIFY(boxes.isDone());
    }
    QCOMPARE(host.data.names(QStringLiteral("channel")), names);
    QCOMPARE(host.data.read(QStringLiteral("channel/channel1.xml")), content);
    QCOMPARE(host.area(1)->defaultStageName(), QStringLiteral("x.xml"));
    QCOMPARE(closed.count(), 0);
    // What was not saved is still asked about.
    MessageBoxAnswer boxes;
    boxes.expect(QMessageBox::No).title(QStringLiteral("Save Channel"));
    host.editor->close();
    QVERIFY(boxes.isDone());
    QCOMPARE(closed.count(), 1);
}

void tst_ChannelReset::missingFolder()
{
    EditorFixture host;
    QVERIFY(host.start());
    QVERIFY(QDir(host.data.channelFolder()).removeRecursively());
    const QSignalSpy closed(host.editor, SIGNAL(closed()));
    MessageBoxAnswer boxes;
    boxes.expect(QMessageBox::Ok)
        .icon(QMessageBox::Critical)
        .title(Title)
        .text(QStringLiteral("The channel folder does not exist."))
        .buttons(QMessageBox::Ok);
    host.editor->removeAllChannelsAndSettings();
    QVERIFY(boxes.isDone());
    QCOMPARE(closed.count(), 0);
    QCOMPARE(host.tabs()->count(), 3);
    QVERIFY(!QFileInfo::exists(host.data.channelFolder()));
}

void tst_ChannelReset::fileInPlaceOfTheFolder()
{
    EditorFixture host;
    QVERIFY(QDir(host.data.channelFolder()).removeRecursively());
    host.data.write(QStringLiteral("channel"), "no folder");
    MessageBoxAnswer boxes;
    boxes.expect(QMessageBox::Ok).text(QStringLiteral("The channel folder does not exist."));
    host.editor->removeAllChannelsAndSettings();
    QCOMPARE(host.data.read(QStringLiteral("channel")), QByteArray("no folder"));
}

// In a folder where all may write but delete only their own, as a shared one can be.
void tst_ChannelReset::oneFileStays()
{
    if (geteuid() != 0)
        QSKIP("only root can make a file of somebody else");
    EditorFixture host;
    QVERIFY(host.start());
    const QByteArray folder = QFile::encodeName(host.data.channelFolder());
    const QStringList names = host.data.names(QStringLiteral("channel"));
    for (const QString &name : names) {
        const QByteArray path = folder + '/' + QFile::encodeName(name);
        if (name != QStringLiteral("channel1.xml"))
            QCOMPARE(chown(path.constData(), PlainUser::Id, PlainUser::Id), 0);
    }
    QCOMPARE(chmod(folder.constData(), 01777), 0);
    QDir above(host.data.path());
    do
        QCOMPARE(chmod(QFile::encodeName(above.absolutePath()).constData(), 0755), 0);
    while (above.cdUp() && above.absolutePath() != QDir::tempPath() && !above.isRoot());
    const QSignalSpy closed(host.editor, SIGNAL(closed()));
    MessageBoxAnswer boxes;
    expectQuestion(boxes, QMessageBox::Yes);
    expectCompletion(boxes, SomeLeft);
    {
        const PlainUser user;
        if (!user.isActive() || !QFileInfo(host.data.channelFolder()).isDir())
            QSKIP("root cannot act as another user here");
        host.editor->removeAllChannelsAndSettings();
    }
    QVERIFY(boxes.isDone());
    QCOMPARE(host.data.names(QStringLiteral("channel")),
             QStringList{QStringLiteral("channel1.xml")});
    QCOMPARE(closed.count(), 1);
}

// A folder of the kernel, in which not even root can delete a file.
void tst_ChannelReset::allFilesStay()
{
    const QString kernelFolder = QStringLiteral("/proc/sys/kernel/random");
    const QStringList names = QDir(kernelFolder).entryList(QDir::Files);
    if (names.isEmpty())
        QSKIP("no such folder here");
    EditorFixture host;
    QVERIFY(host.start());
    QVERIFY(QDir(host.data.channelFolder()).removeRecursively());
    QVERIFY(QFile::link(kernelFolder, host.data.channelFolder()));
    const QSignalSpy closed(host.editor, SIGNAL(closed()));
    MessageBoxAnswer boxes;
    expectQuestion(boxes, QMessageBox::Yes);
    expectCompletion(boxes, SomeLeft);
    host.editor->removeAllChannelsAndSettings();
    QVERIFY(boxes.isDone());
    QCOMPARE(closed.count(), 1);
    QCOMPARE(QDir(kernelFolder).entryList(QDir::Files), names);
}

void tst_ChannelReset::emptyFolder()
{
    EditorFixture host;
    QVERIFY(host.start());
    QVERIFY(QDir(host.data.channelFolder()).removeRecursively());
    host.data.makeFolder(QStringLiteral("channel"));
    MessageBoxAnswer boxes;
    expectQuestion(boxes, QMessageBox::Yes);
    expectCompletion(boxes, QString());
    host.editor->removeAllChannelsAndSettings();
    QVERIFY(boxes.isDone());
}

void tst_ChannelReset::beforeTheStart()
{
    EditorFixture host;
    const QSignalSpy closed(host.editor, SIGNAL(closed()));
    MessageBoxAnswer boxes;
    expectQuestion(boxes, QMessageBox::Yes);
    expectCompletion(boxes, QString());
    host.editor->removeAllChannelsAndSettings();
    QCOMPARE(closed.count(), 1);
    QCOMPARE(host.data.names(QStringLiteral("channel")), QStringList());
}

void tst_ChannelReset::hostDiesBehindTheQuestion()
{
    EditorFixture host;
    QVERIFY(host.start());
    const QStringList names = host.data.names(QStringLiteral("channel"));
    MessageBoxAnswer boxes;
    boxes.expect(QMessageBox::Yes).whileShown([&host](QMessageBox *) { host.window.reset(); });
    host.editor->removeAllChannelsAndSettings();
    QVERIFY(!host.editor);
    QCOMPARE(host.data.names(QStringLiteral("channel")), names);
}

void tst_ChannelReset::hostDiesBehindTheCompletion()
{
    EditorFixture host;
    QVERIFY(host.start());
    MessageBoxAnswer boxes;
    expectQuestion(boxes, QMessageBox::Yes);
    boxes.expect(QMessageBox::Ok).whileShown([&host](QMessageBox *) { host.window.reset(); });
    host.editor->removeAllChannelsAndSettings();
    QVERIFY(!host.editor);
    QVERIFY(boxes.isDone());
}

void tst_ChannelReset::closedBehindTheQuestion()
{
    EditorFixture host;
    QVERIFY(host.start());
    const QSignalSpy closed(host.editor, SIGNAL(closed()));
    MessageBoxAnswer boxes;
    boxes.expect(QMessageBox::Yes).text(Question).whileShown([&host](QMessageBox *) {
        host.editor->close();
    });
    expectCompletion(boxes, QString());
    host.editor->removeAllChannelsAndSettings();
    QCOMPARE(closed.count(), 1);
}

QTEST_MAIN(tst_ChannelReset)
#include "tst_channelreset.moc"
