#include "safety/SafetyDesk.h"

#include "BytesRead.h"
#include "DialogAnswer.h"
#include "DragGesture.h"
#include "FolderFaults.h"
#include "HostWindow.h"
#include "MessageBoxAnswer.h"
#include "Program.h"
#include "TemporaryDataFolder.h"
#include "ZvChannel.h"
#include "ZvSchedule.h"
#include "editor/ZvScheduleEditor.h"
#include "safety/BackupDialog.h"
#include "safety/NoticeBar.h"
#include "safety/SafetyNet.h"
#include "safety/SessionRecord.h"

#include <QAction>
#include <QDir>
#include <QGraphicsView>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeWidget>
#include <QtTest>

#include <utility>

using Zavo::BackupDialog;
using Zavo::BackupState;
using Zavo::HostWindow;
using Zavo::NoticeBar;
using Zavo::SafetyDesk;
using Zavo::SafetyNet;
using Zavo::SessionRecord;
using Zavo::ZvChannel;
using Zavo::ZvSchedule;
using ZavoTest::DialogAnswer;
using ZavoTest::DragGesture;
using ZavoTest::MessageBoxAnswer;
using ZavoTest::ReadOnlyFolder;
using ZavoTest::TemporaryDataFolder;
using ZavoTest::UnremovableFile;

namespace {
constexpr int folderTimeoutMs = 20000;
} // namespace

/// The safety net under the whole program: the window, the folder, and somebody else.
class tst_SafetyDesk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void keepsTheFirstChannels();
    void recordsUnsavedEdits();
    void forgetsAnEditThatIsUndone();
    void tellsTheNextSession();
    void noticesAnotherProgram();
    void asksBeforeItSaves_data();
    void asksBeforeItSaves();
    void staysOpenWhileItAsks();
    void tellsOfABasicFileThatStays();
    void keepsWhatCouldNotBeSaved();
    void tellsOfABasicFileThatGoes();
    void keepsWhatTheResetRemoves();
    void showsTheCopies();
    void showsAThousandChannelsAtOnce();
    void restoresNothingWithoutAWord();
    void restoresAState();
    void restoresTheBasicChannelWithItsCopy();
    void restoresNoDamage();
    void bringsBackADeletedChannel();
    void opensAnewOnTheRestoredState();

private:
    void start();
    void end();
    void drop(int tab = 0);
    void trigger(const char *action);
    void changeAsAnother(int number, const QString &stage);
    QByteArray channel(int number = 0) const;
    QStringList unsaved() const;
    NoticeBar *notices() const { return m_window->findChild<NoticeBar *>(); }
    static QTreeWidget *states(const BackupDialog *dialog);
    static QPushButton *restoreButton(const BackupDialog *dialog);
    static void restoreFirst(const BackupDialog *dialog, int number);
    static HostWindow *openWindow();

    std::unique_ptr<TemporaryDataFolder> m_folder;
    std::unique_ptr<SafetyNet> m_net;
    std::unique_ptr<HostWindow> m_window;
    std::unique_ptr<SafetyDesk> m_desk;
};

void tst_SafetyDesk::init()
{
    m_folder = std::make_unique<TemporaryDataFolder>();
    m_folder->writeStage(QStringLiteral("a.xml"));
    // A schedule that exists on every day, and so takes what is dropped.
    m_folder->write(QStringLiteral("config.ini"), "[General]\nDefaultScheduleUsedFirst=true\n");
    start();
}

void tst_SafetyDesk::cleanup()
{
    end();
    m_folder.reset();
}

void tst_SafetyDesk::start()
{
    m_net = std::make_unique<SafetyNet>(m_folder->path());
    m_window = std::make_unique<HostWindow>();
    QString message;
    QVERIFY2(m_window->start(&message), qPrintable(message));
    m_desk = std::make_unique<SafetyDesk>(m_folder->path(), m_net.get(), m_window.get());
    m_window->show();
    auto *const tabs = m_window->findChild<QTabWidget *>(QStringLiteral("ScheduleTabWidget"));
    QVERIFY(tabs);
    QTRY_VERIFY(tabs->count() > 0);
}

void tst_SafetyDesk::end()
{
    m_desk.reset();
    m_window.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_net.reset();
}

void tst_SafetyDesk::drop(int tab)
{
    auto *const tabs = m_window->findChild<QTabWidget *>(QStringLiteral("ScheduleTabWidget"));
    tabs->setCurrentIndex(tab);
    auto *const view = tabs->currentWidget()->findChild<QGraphicsView *>();
    QVERIFY(view);
    DragGesture drag(
        DragGesture::filesMimeData({m_folder->filePath(QStringLiteral("stage/a.xml"))}));
    const QPointF centre = view->mapToScene(view->viewport()->rect().center());
    QVERIFY(drag.enter(view, centre));
    QVERIFY(drag.drop());
}

void tst_SafetyDesk::trigger(const char *action)
{
    QAction *const found = m_window->editor()->getAction(QLatin1String(action));
    QVERIFY2(found, action);
    found->trigger();
}

// By bytes and in place: another program need not be one of ours.
void tst_SafetyDesk::changeAsAnother(int number, const QString &stage)
{
    const QString name = QStringLiteral("channel/channel%1.xml").arg(number);
    ZvChannel changed(m_folder->filePath(name));
    QVERIFY(changed.readFile());
    ZvSchedule schedule;
    schedule.setType(ZvSchedule::Default);
    schedule.setDefaultStage(stage);
    changed.insertSchedule(schedule);
    changed.setFilePath(m_folder->filePath(QStringLiteral("theirs.xml")));
    QVERIFY(changed.writeToFile());
    m_folder->write(name, m_folder->read(QStringLiteral("theirs.xml")));
}

QByteArray tst_SafetyDesk::channel(int number) const
{
    return m_folder->read(QStringLiteral("channel/channel%1.xml").arg(number));
}

QStringList tst_SafetyDesk::unsaved() const
{
    const auto session = SessionRecord(m_folder->path()).read();
    return session ? session->unsavedChannels : QStringList(QStringLiteral("no record"));
}

QTreeWidget *tst_SafetyDesk::states(const BackupDialog *dialog)
{
    return dialog->findChild<QTreeWidget *>(QStringLiteral("Safety_State_Tree"));
}

QPushButton *tst_SafetyDesk::restoreButton(const BackupDialog *dialog)
{
    return dialog->findChild<QPushButton *>(QStringLiteral("Safety_Restore_Button"));
}

void tst_SafetyDesk::restoreFirst(const BackupDialog *dialog, int number)
{
    auto *const channels = dialog->findChild<QListWidget *>(QStringLiteral("Safety_Channel_List"));
    channels->setCurrentItem(
        channels->findItems(QStringLiteral("channel%1.xml").arg(number), Qt::MatchContains)
            .constFirst());
    QTreeWidget *const tree = states(dialog);
    tree->setCurrentItem(tree->topLevelItem(tree->topLevelItemCount() - 1));
    QTRY_VERIFY(restoreButton(dialog)->isEnabled());
    restoreButton(dialog)->click();
}

HostWindow *tst_SafetyDesk::openWindow()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (widget->isVisible() && qobject_cast<HostWindow *>(widget))
            return static_cast<HostWindow *>(widget);
    }
    return nullptr;
}

void tst_SafetyDesk::keepsTheFirstChannels()
{
    for (int number = 0; number < 10; ++number) {
        const auto states = m_net->store()->states(QStringLiteral("channel%1.xml").arg(number));
        QCOMPARE(states.size(), 1);
        QCOMPARE(m_folder->read(QDir(m_folder->path()).relativeFilePath(states.constFirst().path)),
                 channel(number));
    }
    QVERIFY(!m_net->leftSession());
    QVERIFY(notices()->isHidden());
}

void tst_SafetyDesk::recordsUnsavedEdits()
{
    QTRY_COMPARE(unsaved(), QStringList());
    drop(2);
    QTRY_COMPARE(unsaved(), QStringList(QStringLiteral("Ch.2")));
    drop(1);
    QTRY_COMPARE(unsaved(), QStringList({QStringLiteral("Ch.1"), QStringLiteral("Ch.2")}));
    trigger("Action_Save_Channel");
    QTRY_COMPARE(unsaved(), QStringList(QStringLiteral("Ch.2")));
    trigger("Action_Undo");
    QTRY_COMPARE(unsaved().size(), 2);
    trigger("Action_Save_All_Channel");
    QTRY_COMPARE(unsaved(), QStringList());
    end();
    QVERIFY(!QFile::exists(SessionRecord(m_folder->path()).filePath()));
}

void tst_SafetyDesk::forgetsAnEditThatIsUndone()
{
    drop(3);
    QTRY_COMPARE(unsaved(), QStringList(QStringLiteral("Ch.3")));
    trigger("Action_Undo");
    QTRY_COMPARE(unsaved(), QStringList());
    trigger("Action_Redo");
    QTRY_COMPARE(unsaved(), QStringList(QStringLiteral("Ch.3")));
}

void tst_SafetyDesk::tellsTheNextSession()
{
    drop(2);
    QTRY_COMPARE(unsaved(), QStringList(QStringLiteral("Ch.2")));
    const QString recordName = QFileInfo(SessionRecord(m_folder->path()).filePath()).fileName();
    const QByteArray record = m_folder->read(recordName);
    end();
    // As if the program had been killed instead.
    m_folder->write(recordName, record);
    start();
    const auto left = m_net->leftSession();
    QVERIFY(left);
    QCOMPARE(left->unsavedChannels, QStringList(QStringLiteral("Ch.2")));
    QVERIFY(left->started.isValid());
    QTRY_COMPARE(unsaved(), QStringList());
    MessageBoxAnswer box;
    box.expect(QMessageBox::Ok).text(SessionRecord::sentence(*left));
    m_desk->tell(SessionRecord::sentence(*left));
    QTRY_VERIFY(box.isDone());
}

void tst_SafetyDesk::noticesAnotherProgram()
{
    MessageBoxAnswer noBox;
    const QSize size = m_window->centralWidget()->size();
    // Not in the first look, which takes everything as it is.
    QTRY_VERIFY_WITH_TIMEOUT(m_net->store()->fileNames().contains(QStringLiteral("channel.xml")),
                             folderTimeoutMs);
    changeAsAnother(3, QStringLiteral("theirs.xml"));
    QTRY_VERIFY_WITH_TIMEOUT(notices()->isVisible(), folderTimeoutMs);
    QVERIFY2(notices()->text().contains(QStringLiteral("channel3.xml")),
             qPrintable(notices()->text()));
    QCOMPARE(m_net->store()->states(QStringLiteral("channel3.xml")).size(), 2);
    const auto *const label = notices()->findChild<QLabel *>(QStringLiteral("Safety_Notice_Label"));
    QVERIFY(label->width() > m_window->width() / 2);
    QVERIFY(notices()->height() < 3 * label->fontMetrics().height());
    notices()->findChild<QAction *>(QStringLiteral("Action_Close_Safety_Notice"))->trigger();
    QVERIFY(notices()->isHidden());
    QTRY_COMPARE(m_window->centralWidget()->size(), size);
}

void tst_SafetyDesk::asksBeforeItSaves_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("yes") << int(QMessageBox::Yes);
    QTest::newRow("no") << int(QMessageBox::No);
    QTest::newRow("escape") << int(QMessageBox::NoButton);
}

void tst_SafetyDesk::asksBeforeItSaves()
{
    QFETCH(int, answer);
    drop();
    changeAsAnother(0, QStringLiteral("theirs.xml"));
    const bool isSaved = answer == QMessageBox::Yes;
    {
        MessageBoxAnswer box;
        box.expect(static_cast<QMessageBox::StandardButton>(answer))
            .text(QStringLiteral("The channel file \"channel0.xml\" was changed by another "
                                 "program."));
        if (!isSaved)
            box.expect(QMessageBox::Ok).title(QStringLiteral("Save Channel"));
        trigger("Action_Save_Channel");
        QVERIFY(box.isDone());
    }
    QCOMPARE(channel().contains("a.xml"), isSaved);
    QCOMPARE(channel().contains("theirs.xml"), !isSaved);
    QByteArray all;
    const auto kept = m_net->store()->states(QStringLiteral("channel0.xml"));
    for (const BackupState &state : kept)
        all += m_folder->read(QDir(m_folder->path()).relativeFilePath(state.path));
    QVERIFY(all.contains("\"a.xml\""));
    QVERIFY(all.contains("\"theirs.xml\""));
}

void tst_SafetyDesk::staysOpenWhileItAsks()
{
    drop();
    changeAsAnother(0, QStringLiteral("theirs.xml"));
    MessageBoxAnswer box;
    box.expect(QMessageBox::Yes).whileShown([this](const QMessageBox *) {
        QVERIFY(!m_window->close());
        QVERIFY(!m_window->endSession(true));
        QVERIFY(m_window->isVisible());
    });
    trigger("Action_Save_Channel");
    QVERIFY(channel().contains("a.xml"));
    QVERIFY(m_window->close());
}

// At a start the basic file goes before the file of the channel that was saved.
void tst_SafetyDesk::tellsOfABasicFileThatStays()
{
    {
        const UnremovableFile basic(m_folder->filePath(QStringLiteral("channel/channel.xml")));
        if (!basic.isEffective())
            QSKIP("No file can be kept from being removed here.");
        drop(0);
        trigger("Action_Save_Channel");
        QVERIFY(!notices()->isHidden());
        QVERIFY2(notices()->text().contains(QStringLiteral("\"channel.xml\"")),
                 qPrintable(notices()->text()));
    }
    notices()->findChild<QAction *>(QStringLiteral("Action_Close_Safety_Notice"))->trigger();
    trigger("Action_Save_Channel");
    QVERIFY(notices()->isHidden());
    QCOMPARE(m_folder->read(QStringLiteral("channel/channel.xml")), channel());
}

void tst_SafetyDesk::keepsWhatCouldNotBeSaved()
{
    const QByteArray before = channel();
    drop();
    {
        const ReadOnlyFolder readOnly(m_folder->channelFolder());
        if (!readOnly.isEffective())
            QSKIP("this machine cannot make a folder read-only");
        MessageBoxAnswer answer;
        answer.expect(QMessageBox::Ok);
        trigger("Action_Save_Channel");
        QVERIFY(answer.isDone());
    }
    QCOMPARE(channel(), before);
    const QList<BackupState> states = m_net->store()->states(QStringLiteral("channel0.xml"));
    QCOMPARE(states.size(), 2);
    ZvChannel kept(states.last().path);
    QVERIFY(kept.readFile());
    QCOMPARE(kept.scheduleList().constFirst().timeList().size(), 1);
    trigger("Action_Save_Channel");
    QVERIFY(channel() != before);
}

// A basic file that is another than the file of the first channel is what is edited, and goes.
void tst_SafetyDesk::tellsOfABasicFileThatGoes()
{
    const MessageBoxAnswer noBox;
    const QString basicPath = QStringLiteral("channel/channel.xml");
    end();
    m_folder->write(basicPath, channel(1));
    start();
    drop(0);
    trigger("Action_Save_Channel");
    QVERIFY(m_folder->read(basicPath).isEmpty());
    QVERIFY(!notices()->isHidden());
    // What was saved is the newest copy. Restored, it is in both files, and stays there.
    const auto kept = m_net->store()->states(QStringLiteral("channel.xml"));
    ZvChannel saved(kept.constFirst().path);
    QVERIFY(saved.readFile());
    m_desk.reset();
    m_window.reset();
    QVERIFY(SafetyDesk::restore(m_folder->path(), kept.constFirst()));
    QCOMPARE(m_folder->read(basicPath), channel(0));
    m_net.reset();
    start();
    trigger("Action_Save_Channel");
    QVERIFY(notices()->isHidden());
    QCOMPARE(m_folder->read(basicPath), channel(0));
}

void tst_SafetyDesk::keepsWhatTheResetRemoves()
{
    drop(4);
    trigger("Action_Save_Channel");
    const QByteArray saved = channel(4);
    {
        MessageBoxAnswer box;
        box.expect(QMessageBox::Yes);
        box.expect(QMessageBox::Ok);
        m_window->editor()->removeAllChannelsAndSettings();
    }
    QVERIFY(m_folder->names(QStringLiteral("channel")).isEmpty());
    const auto kept = m_net->store()->states(QStringLiteral("channel4.xml"));
    QCOMPARE(kept.size(), 2);
    QCOMPARE(m_folder->read(QDir(m_folder->path()).relativeFilePath(kept.constFirst().path)),
             saved);
}

void tst_SafetyDesk::showsTheCopies()
{
    drop(1);
    trigger("Action_Save_Channel");
    DialogAnswer<BackupDialog> answer([](BackupDialog *dialog) {
        auto *const channels =
            dialog->findChild<QListWidget *>(QStringLiteral("Safety_Channel_List"));
        QVERIFY(channels->count() >= 10);
        const auto found = channels->findItems(QStringLiteral("channel1.xml"), Qt::MatchContains);
        QCOMPARE(found.size(), 1);
        QTRY_COMPARE(found.constFirst()->text(), QStringLiteral("Ch.1  (channel1.xml)"));
        channels->setCurrentItem(found.constFirst());
        QCOMPARE(states(dialog)->topLevelItemCount(), 2);
        QTRY_COMPARE(states(dialog)->topLevelItem(0)->text(1), QStringLiteral("as it is now"));
        QTRY_COMPARE(states(dialog)->topLevelItem(1)->text(1),
                     QStringLiteral("schedules: 1 changed"));
        QVERIFY(!restoreButton(dialog)->isEnabled());
        states(dialog)->setCurrentItem(states(dialog)->topLevelItem(0));
        QVERIFY(!restoreButton(dialog)->isEnabled());
        states(dialog)->setCurrentItem(states(dialog)->topLevelItem(1));
        QVERIFY(restoreButton(dialog)->isEnabled());
        // Another channel, before what was asked about the last one is known.
        channels->setCurrentRow(0);
        QVERIFY(!restoreButton(dialog)->isEnabled());
        dialog->reject();
    });
    auto *const help = m_window->findChild<QMenu *>(QStringLiteral("Menu_Help"));
    QCOMPARE(help->actions().constFirst()->objectName(), QStringLiteral("Action_Safety_Copies"));
    help->actions().constFirst()->trigger();
    QVERIFY(answer.hasCome());
    QVERIFY(!m_desk->wantedState());
}

void tst_SafetyDesk::showsAThousandChannelsAtOnce()
{
    constexpr int count = 1000;
    const QByteArray content = channel();
    for (int number = 100; number < 100 + count; ++number) {
        const QString folder = QStringLiteral("backup/channel%1.xml/").arg(number);
        m_folder->write(folder + QStringLiteral("2026-11-21T04-05-00.000Z.xml"), content);
    }
    m_folder->makeFolder(QStringLiteral("backup/channel9999.xml"));
    const qint64 atFirst = ZavoTest::bytesRead();
    if (atFirst < 0)
        QSKIP("this machine does not tell what a process reads");
    BackupDialog dialog(m_folder->path(), m_net->store());
    const qint64 made = ZavoTest::bytesRead() - atFirst;
    QVERIFY2(made < count / 10 * content.size(), qPrintable(QString::number(made)));
    dialog.show();
    auto *const channels = dialog.findChild<QListWidget *>(QStringLiteral("Safety_Channel_List"));
    QTRY_VERIFY(channels->item(channels->count() - 1)->text().startsWith(QStringLiteral("Ch.0")));
    QVERIFY(channels->findItems(QStringLiteral("9999"), Qt::MatchContains).isEmpty());
    QCOMPARE(channels->findItems(QStringLiteral("Ch."), Qt::MatchStartsWith).size(),
             channels->count());
    QVERIFY(channels->count() >= count + 10);
}

void tst_SafetyDesk::restoresNothingWithoutAWord()
{
    drop();
    trigger("Action_Save_Channel");
    MessageBoxAnswer box;
    box.expect(QMessageBox::No).title(QStringLiteral("Restore Channel"));
    DialogAnswer<BackupDialog> answer([](BackupDialog *dialog) { restoreFirst(dialog, 0); });
    m_desk->showCopies();
    QVERIFY(answer.hasCome());
    QVERIFY(!m_desk->wantedState());
    QVERIFY(m_window->isVisible());
}

void tst_SafetyDesk::restoresAState()
{
    const QByteArray before = channel(2);
    drop(2);
    trigger("Action_Save_Channel");
    const QByteArray after = channel(2);
    drop(3);
    MessageBoxAnswer box;
    box.expect(QMessageBox::Yes).title(QStringLiteral("Restore Channel"));
    box.expect(QMessageBox::Yes).text(QStringLiteral("The channel \"Ch.3\" has been modified."));
    DialogAnswer<BackupDialog> answer([](BackupDialog *dialog) { restoreFirst(dialog, 2); });
    m_desk->showCopies();
    QVERIFY(!m_window->isVisible());
    const auto wanted = m_desk->wantedState();
    QVERIFY(wanted);
    QVERIFY(SafetyDesk::restore(m_folder->path(), *wanted));
    QCOMPARE(channel(2), before);
    QVERIFY(channel(3).contains("a.xml"));
    const auto kept = m_net->store()->states(QStringLiteral("channel2.xml"));
    QCOMPARE(kept.size(), 2);
    QCOMPARE(m_folder->read(QDir(m_folder->path()).relativeFilePath(kept.at(1).path)), after);
}

void tst_SafetyDesk::restoresTheBasicChannelWithItsCopy()
{
    const QByteArray before = channel();
    const BackupState first = m_net->store()->states(QStringLiteral("channel0.xml")).constFirst();
    drop();
    trigger("Action_Save_All_Channel");
    QVERIFY(channel() != before);
    QVERIFY(SafetyDesk::restore(m_folder->path(), first));
    QCOMPARE(channel(), before);
    QCOMPARE(m_folder->read(QStringLiteral("channel/channel.xml")), before);
}

void tst_SafetyDesk::restoresNoDamage()
{
    const QByteArray before = channel(1);
    BackupState state = m_net->store()->states(QStringLiteral("channel1.xml")).constFirst();
    state.path = m_folder->write(QStringLiteral("backup/channel1.xml/damaged.xml"), "<Channel");
    QVERIFY(!SafetyDesk::restore(m_folder->path(), state));
    state.path = m_folder->filePath(QStringLiteral("none.xml"));
    QVERIFY(!SafetyDesk::restore(m_folder->path(), state));
    QCOMPARE(channel(1), before);
}

void tst_SafetyDesk::bringsBackADeletedChannel()
{
    const QByteArray before = channel(5);
    QVERIFY(QFile::remove(m_folder->filePath(QStringLiteral("channel/channel5.xml"))));
    const auto kept = m_net->store()->states(QStringLiteral("channel5.xml"));
    QCOMPARE(kept.size(), 1);
    QVERIFY(SafetyDesk::restore(m_folder->path(), kept.constFirst()));
    QCOMPARE(channel(5), before);
}

// The whole program: two windows, one after the other, and in between the file.
void tst_SafetyDesk::opensAnewOnTheRestoredState()
{
    drop(2);
    trigger("Action_Save_Channel");
    const QByteArray after = channel(2);
    end();

    QList<QPointer<HostWindow>> windows;
    bool isAsked = false;
    QTimer person;
    connect(&person, &QTimer::timeout, this, [&] {
        const auto *const tabs =
            openWindow()
                ? openWindow()->findChild<QTabWidget *>(QStringLiteral("ScheduleTabWidget"))
                : nullptr;
        if (!tabs || tabs->count() == 0)
            return;
        if (!windows.contains(openWindow()))
            windows.append(openWindow());
        if (!std::exchange(isAsked, true)) {
            openWindow()->findChild<QAction *>(QStringLiteral("Action_Safety_Copies"))->trigger();
        } else if (windows.size() == 2) {
            windows.last()->close();
        }
    });
    DialogAnswer<BackupDialog> answer([](BackupDialog *dialog) { restoreFirst(dialog, 2); });
    MessageBoxAnswer box;
    box.expect(QMessageBox::Yes).title(QStringLiteral("Restore Channel"));
    person.start(50);
    Zavo::Program program({QStringLiteral("test"), QStringLiteral("--data-dir"), m_folder->path()});
    QCOMPARE(program.run(), 0);
    person.stop();
    QVERIFY(answer.hasCome());
    QCOMPARE(windows.size(), 2);
    QVERIFY(channel(2) != after);
    QVERIFY(!channel(2).contains("a.xml"));
    QVERIFY(m_folder->names(QStringLiteral("backup/channel2.xml")).size() == 2);
    QVERIFY(!m_folder->names().contains(QStringLiteral(".zavo-session")));
}

QTEST_MAIN(tst_SafetyDesk)
#include "tst_safetydesk.moc"
