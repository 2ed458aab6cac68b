#include "EditorFixture.h"
#include "MessageBoxAnswer.h"
#include "SignalLog.h"
#include "WriteFailure.h"

#include <QGraphicsView>
#include <QSignalSpy>
#include <QToolBar>

using namespace Zavo;
using namespace ZavoTest;

namespace {

QStringList debugLines;
QtMessageHandler previousHandler = nullptr;

void keepDebugLines(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtDebugMsg)
        debugLines.append(message);
    previousHandler(type, context, message);
}

} // namespace

class tst_ZvScheduleEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void construction();
    void nullWindow();
    void hasErrorWithoutError();
    void execFillsTheWindow();
    void execTwice();
    void execBeforeTheWindowIsShown();
    void validatorRunsAfterTheTabs();
    void defaultScheduleIsShown();
    void quitAsksNobody();
    void close();
    void closeAsks();
    void closeStandsWhateverIsAnswered();
    void closeByMenuAndButton();
    void closeBeforeExec();
    void closeBeforeTheTabs();
    void closeInsideANestedLoop();
    void closeTwice();
    void closeDuringThePrompt();
    void afterClose();
    void failedStartCloses();
    void missingFolderCloses();
    void hostDeletesEditorWithoutClose();
    void hostDeletesWindow();
    void hostDeletesEditorInClosed();
    void hostDeletesEditorDuringThePrompt();
    void scenesAreHandedOver();
    void scenesOutliveTheirViews();
};

void tst_ZvScheduleEditor::construction()
{
    const EditorFixture host;
    QCOMPARE(host.editor->objectName(), QStringLiteral("ScheduleEditor"));
    QCOMPARE(host.editor->parent(), static_cast<QObject *>(host.window.get()));
    QVERIFY(!host.window->centralWidget());
    QCOMPARE(host.editor->menu().size(), 5);
}

void tst_ZvScheduleEditor::nullWindow()
{
    const TemporaryDataFolder data;
    ZvScheduleEditor editor(nullptr);
    QVERIFY(!editor.exec());
    QString message = QStringLiteral("old");
    QVERIFY(editor.hasError(&message));
    QCOMPARE(message, QStringLiteral("MainWindow does not exist."));
    QVERIFY(editor.hasError(nullptr));
    QCOMPARE(editor.menu().size(), 5);
    QSignalSpy closed(&editor, SIGNAL(closed()));
    editor.close();
    QCOMPARE(closed.count(), 1);
}

void tst_ZvScheduleEditor::hasErrorWithoutError()
{
    const EditorFixture host;
    QString message = QStringLiteral("old");
    QVERIFY(host.editor->hasError(&message));
    QCOMPARE(message, QString());
}

void tst_ZvScheduleEditor::execFillsTheWindow()
{
    EditorFixture host;
    host.window->show();
    QVERIFY(host.editor->exec());
    QVERIFY(host.main());
    QVERIFY(host.main()->isVisible());
    QCOMPARE(host.tabs()->count(), 0);
    QTRY_COMPARE(host.tabs()->count(), 3);
    QString message;
    host.editor->hasError(&message);
    QCOMPARE(message, QString());
}

void tst_ZvScheduleEditor::execTwice()
{
    EditorFixture host;
    QVERIFY(host.editor->exec());
    QVERIFY(host.start());
    QTest::qWait(10);
    QCOMPARE(host.tabs()->count(), 3);
    QVERIFY(host.editor->exec());
    QTest::qWait(10);
    QCOMPARE(host.tabs()->count(), 3);
}

void tst_ZvScheduleEditor::execBeforeTheWindowIsShown()
{
    EditorFixture host;
    QVERIFY(host.editor->exec());
    QTRY_COMPARE(host.tabs()->count(), 3);
    host.window->show();
    QVERIFY(host.tabs()->isVisible());
    QVERIFY(host.area(0)->isVisible());
}

void tst_ZvScheduleEditor::validatorRunsAfterTheTabs()
{
    EditorFixture host;
    int linesAtTheEnd = -1;
    const auto count = [] {
        return debugLines.filter(QStringLiteral("startScheduleValidator called: 3")).size();
    };
    debugLines.clear();
    previousHandler = qInstallMessageHandler(keepDebugLines);
    QVERIFY(host.editor->exec());
    connect(host.main(), &ZvScheduleMainWidget::tabsCreated, this,
            [&linesAtTheEnd, count] { linesAtTheEnd = count(); });
    const bool came = QTest::qWaitFor([count] { return count() > 0; });
    qInstallMessageHandler(previousHandler);
    QVERIFY(came);
    QCOMPARE(linesAtTheEnd, 0);
    QCOMPARE(count(), 1);
}

void tst_ZvScheduleEditor::defaultScheduleIsShown()
{
    EditorFixture host;
    QVERIFY(host.start());
    for (int i : {0, 2, 1}) {
        host.tabs()->setCurrentIndex(i);
        QCOMPARE(host.area(i)->currentScheduleInfo(), ZvScheduleBasicInfo(ZvSchedule::Default));
        QVERIFY(host.area(i)->isCurrentScheduleEnabled());
    }
}

void tst_ZvScheduleEditor::quitAsksNobody()
{
    EditorFixture host;
    QVERIFY(host.start());
    host.edit(1, QStringLiteral("x.xml"));
    QSignalSpy quit(host.editor, SIGNAL(requestQuit()));
    QSignalSpy closed(host.editor, SIGNAL(closed()));
    const MessageBoxAnswer noBox;
    host.editor->quit();
    QCOMPARE(quit.count(), 1);
    QCOMPARE(closed.count(), 0);
    QCOMPARE(host.tabs()->count(), 3);
}

void tst_ZvScheduleEditor::close()
{
    EditorFixture host;
    QVERIFY(host.start());
    const QPointer<QWidget> main = host.main();
    SignalLog log;
    log.watch(host.editor, SIGNAL(graphicsScenePurged(QList<QGraphicsScene*>)), "scenes");
    log.watch(host.editor, SIGNAL(graphicsScenePurged(QGraphicsScene*)), "scene");
    log.watch(host.editor, SIGNAL(closed()));
    const MessageBoxAnswer noBox;
    host.editor->close();
    QCOMPARE(log.names(), (QStringList{QStringLiteral("scenes"), QStringLiteral("closed")}));
    QCOMPARE(int(host.scenes.size()), 3);
    QVERIFY(!host.window->centralWidget());
    QVERIFY(main && !main->parent() && !main->isVisible());
    QTRY_VERIFY(!main);
    QCOMPARE(log.names().size(), 2);
}

void tst_ZvScheduleEditor::closeAsks()
{
    EditorFixture host;
    QVERIFY(host.start());
    host.edit(1, QStringLiteral("x.xml"));
    host.edit(2, QStringLiteral("y.xml"));
    QSignalSpy closed(host.editor, SIGNAL(closed()));
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Yes)
        .title(QStringLiteral("Save Channel"))
        .text(QStringLiteral("The channel \"Beta\" has been modified."))
        .informativeText(QStringLiteral("Do you want to save your changes before closing?"))
        .whileShown([&](QMessageBox *) {
            QCOMPARE(closed.count(), 0);
            QVERIFY(host.main());
        });
    answer.expect(QMessageBox::No);
    host.editor->close();
    QCOMPARE(closed.count(), 1);
    const auto stageOf = [&host](int number) {
        const ZvChannel channel =
            readChannelFile(host.data.channelFolder() + QLatin1Char('/') + channelFileName(number));
        return channel.scheduleList().first().defaultStage();
    };
    QCOMPARE(stageOf(1), QStringLiteral("x.xml"));
    QCOMPARE(stageOf(2), QString());
}

void tst_ZvScheduleEditor::closeStandsWhateverIsAnswered()
{
    for (const auto reply : {QMessageBox::No, QMessageBox::NoToAll, QMessageBox::YesToAll}) {
        EditorFixture host;
        QVERIFY(host.start());
        host.edit(1, QStringLiteral("x.xml"));
        QSignalSpy closed(host.editor, SIGNAL(closed()));
        MessageBoxAnswer answer;
        answer.expect(reply);
        host.editor->close();
        QCOMPARE(closed.count(), 1);
        QVERIFY(!host.window->centralWidget());
    }
}

void tst_ZvScheduleEditor::closeByMenuAndButton()
{
    for (const bool byMenu : {true, false}) {
        EditorFixture host;
        QVERIFY(host.start());
        QSignalSpy closed(host.editor, SIGNAL(closed()));
        auto *toolBar = host.window->findChild<QToolBar *>(QStringLiteral("ScheduleToolBar"));
        QAction *button = toolBar->actions().last();
        if (byMenu) {
            host.editor->getAction(QString())->trigger();
        } else {
            QTest::mouseClick(toolBar->widgetForAction(button), Qt::LeftButton);
            QCOMPARE(closed.count(), 0);
        }
        QTRY_COMPARE(closed.count(), 1);
    }
}

void tst_ZvScheduleEditor::closeBeforeExec()
{
    EditorFixture host;
    QSignalSpy closed(host.editor, SIGNAL(closed()));
    host.editor->close();
    QCOMPARE(closed.count(), 1);
    QVERIFY(host.scenes.empty());
    QVERIFY(!host.editor->exec());
    QString message;
    host.editor->hasError(&message);
    QVERIFY(!message.isEmpty());
    QTest::qWait(20);
    QVERIFY(!host.window->centralWidget());
}

void tst_ZvScheduleEditor::closeBeforeTheTabs()
{
    EditorFixture host;
    QVERIFY(host.editor->exec());
    QSignalSpy created(host.main(), SIGNAL(tabsCreated(QList<ZvChannel*>)));
    host.editor->close();
    QTest::qWait(20);
    QCOMPARE(created.count(), 0);
    QVERIFY(host.scenes.empty());
}

// The widgets live on until the outer loop runs; what was pending must not come to life in them.
void tst_ZvScheduleEditor::closeInsideANestedLoop()
{
    EditorFixture host;
    host.window->show();
    QVERIFY(host.editor->exec());
    const QPointer<ZvScheduleMainWidget> main = host.main();
    int tabs = -1;
    QEventLoop outer;
    QTimer::singleShot(0, &outer, [&] {
        host.editor->close();
        QEventLoop inner;
        QTimer::singleShot(20, &inner, &QEventLoop::quit);
        inner.exec();
        QVERIFY(main);
        tabs = main->findChild<QTabWidget *>()->count();
        outer.quit();
    });
    outer.exec();
    QCOMPARE(tabs, 0);
    QTRY_VERIFY(!main);
}

void tst_ZvScheduleEditor::closeTwice()
{
    EditorFixture host;
    QVERIFY(host.start());
    QSignalSpy closed(host.editor, SIGNAL(closed()));
    host.editor->close();
    host.editor->close();
    QTest::qWait(5);
    host.editor->close();
    QCOMPARE(closed.count(), 1);
}

void tst_ZvScheduleEditor::closeDuringThePrompt()
{
    EditorFixture host;
    QVERIFY(host.start());
    host.edit(1, QStringLiteral("x.xml"));
    QSignalSpy closed(host.editor, SIGNAL(closed()));
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Yes).whileShown([&](QMessageBox *) {
        host.editor->close();
        Q_EMIT host.main()->requestClose();
        QCoreApplication::processEvents();
        QCOMPARE(closed.count(), 0);
    });
    host.editor->close();
    QCOMPARE(closed.count(), 1);
    QTest::qWait(5);
    QCOMPARE(closed.count(), 1);
}

void tst_ZvScheduleEditor::afterClose()
{
    EditorFixture host;
    QVERIFY(host.start());
    host.editor->close();
    for (int round = 0; round < 2; ++round) {
        host.editor->action_save_channel();
        host.editor->action_save_all_channel();
        host.editor->action_undo();
        host.editor->action_redo();
        host.editor->action_selectAll();
        host.editor->action_deselectAll();
        host.editor->action_copy();
        host.editor->action_cut();
        host.editor->action_paste();
        host.editor->action_delete();
        host.editor->action_rename_channel();
        host.editor->action_output_channel_data();
        QCOMPARE(int(host.editor->hasSelectedItems()), 0);
        QVERIFY(!host.editor->isPastingPossible());
        QTest::qWait(30); // the second round comes when the widgets are gone
    }
    QSignalSpy upload(host.editor, SIGNAL(requestShowUploadManager()));
    host.editor->action_upload();
    QCOMPARE(upload.count(), 1);
    QVERIFY(!host.editor->activatedWidget());
    QVERIFY(!host.editor->exec());
    QVERIFY(host.action("Action_Save_Channel"));
}

void tst_ZvScheduleEditor::failedStartCloses()
{
    EditorFixture host(QStringList{});
    QSignalSpy closed(host.editor, SIGNAL(closed()));
    host.window->show();
    QVERIFY(host.editor->exec());
    {
        MessageBoxAnswer answer;
        answer.expect(QMessageBox::Ok).title(QStringLiteral("Create Channel"));
        const WriteFailure fullDisk;
        QTRY_COMPARE(closed.count(), 1);
    }
    QCOMPARE(host.data.names(QStringLiteral("channel")), QStringList());
}

void tst_ZvScheduleEditor::missingFolderCloses()
{
    EditorFixture host(QStringList{});
    host.data.write(QStringLiteral("channel"), "no folder");
    QSignalSpy closed(host.editor, SIGNAL(closed()));
    host.window->show();
    QVERIFY(host.editor->exec());
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Ok).title(QStringLiteral("Critical Error"));
    QTRY_COMPARE(closed.count(), 1);
}

void tst_ZvScheduleEditor::hostDeletesEditorWithoutClose()
{
    EditorFixture host;
    QVERIFY(host.start());
    const QPointer<QWidget> main = host.main();
    const QPointer<QMenu> file = host.editor->menu().first();
    delete host.editor;
    QVERIFY(!main);
    QVERIFY(!file);
    QCOMPARE(int(host.scenes.size()), 3);
    QVERIFY(!host.window->centralWidget());
    QCoreApplication::processEvents();
}

void tst_ZvScheduleEditor::hostDeletesWindow()
{
    EditorFixture host;
    QVERIFY(host.start());
    const QPointer<QWidget> main = host.main();
    host.window.reset();
    QVERIFY(!main);
    QVERIFY(!host.editor);
}

void tst_ZvScheduleEditor::hostDeletesEditorInClosed()
{
    EditorFixture host;
    QVERIFY(host.start());
    const QPointer<QWidget> main = host.main();
    connect(host.editor, &ZvScheduleEditor::closed, this, [&host] { delete host.editor; });
    host.editor->close();
    QVERIFY(!host.editor);
    QTRY_VERIFY(!main);
}

// The question goes with the widgets, unanswered, and nothing is saved.
void tst_ZvScheduleEditor::hostDeletesEditorDuringThePrompt()
{
    EditorFixture host;
    QVERIFY(host.start());
    host.edit(0, QStringLiteral("x.xml"));
    QSignalSpy closed(host.editor, SIGNAL(closed()));
    const QByteArray before = host.data.read(QStringLiteral("channel/channel0.xml"));
    QTimer::singleShot(0, host.window.get(), [&host] { delete host.editor; });
    host.editor->close();
    QVERIFY(!host.editor);
    QCOMPARE(closed.count(), 0);
    QCOMPARE(host.data.read(QStringLiteral("channel/channel0.xml")), before);
    QCOMPARE(int(host.scenes.size()), 3);
}

void tst_ZvScheduleEditor::scenesAreHandedOver()
{
    EditorFixture host;
    QVERIFY(host.start());
    QList<QGraphicsScene *> expected;
    for (int i = 0; i < 3; ++i)
        expected.append(host.area(i)->findChild<QGraphicsView *>()->scene());
    host.editor->close();
    QCOMPARE(int(host.scenes.size()), 3);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(host.scenes[std::size_t(i)].get(), expected.at(i));
        QVERIFY(!host.scenes[std::size_t(i)]->parent());
    }
    QTest::qWait(5);
    for (const auto &scene : host.scenes)
        QVERIFY(!scene->items().isEmpty());
}

void tst_ZvScheduleEditor::scenesOutliveTheirViews()
{
    EditorFixture host;
    QVERIFY(host.start());
    const QPointer<ZvScheduleMainWidget> main = host.main();
    connect(host.editor, &ZvScheduleEditor::closed, this, [&host] { host.scenes.clear(); });
    host.editor->close();
    QVERIFY(host.scenes.empty());
    QVERIFY(main);
    main->show();
    QCoreApplication::processEvents();
    QTRY_VERIFY(!main);
}

QTEST_MAIN(tst_ZvScheduleEditor)
#include "tst_zvscheduleeditor.moc"
