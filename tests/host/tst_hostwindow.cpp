#include "HostWindow.h"

#include "DragGesture.h"
#include "MessageBoxAnswer.h"
#include "SignalLog.h"
#include "TemporaryDataFolder.h"
#include "ZvSystemInfo.h"
#include "editor/ZvScheduleEditor.h"

#include <QAction>
#include <QDockWidget>
#include <QFile>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QTabWidget>
#include <QtTest>

using Zavo::HostWindow;
using ZavoTest::DragGesture;
using ZavoTest::MessageBoxAnswer;
using ZavoTest::SignalLog;
using ZavoTest::TemporaryDataFolder;

class tst_HostWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void showsTheMenus();
    void offersWhatTheEditorAsksFor();
    void showsItsVersion();
    void opensAsLargeAsItsScreenNeeds_data();
    void opensAsLargeAsItsScreenNeeds();
    void startsWithATabForEachChannel();
    void closesWithoutAQuestion();
    void asksBeforeItCloses_data();
    void asksBeforeItCloses();
    void endsWithTheEditor();
    void ignoresACloseDuringTheQuestion();
    void quitAsksThroughClose();
    void deletesTheScenes();
    void sessionEnds();
    void sessionWaitsIfNobodyCanBeAsked();
    void diesWithoutBeingClosed();

private:
    void start();
    void drop();
    QByteArray firstChannel() const;

    std::unique_ptr<TemporaryDataFolder> m_folder;
    std::unique_ptr<HostWindow> m_window;
};

void tst_HostWindow::init()
{
    m_folder = std::make_unique<TemporaryDataFolder>();
    m_folder->writeStage(QStringLiteral("a.xml"));
    // A schedule that exists on every day, and so takes what is dropped.
    m_folder->write(QStringLiteral("config.ini"), "[General]\nDefaultScheduleUsedFirst=true\n");
    m_window = std::make_unique<HostWindow>();
}

void tst_HostWindow::cleanup()
{
    m_window.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_folder.reset();
    Zavo::ZvSystemInfo::setDpiRatioOverride(0.0);
}

void tst_HostWindow::start()
{
    QString message;
    QVERIFY2(m_window->start(&message), qPrintable(message));
    m_window->show();
    auto *const tabs = m_window->findChild<QTabWidget *>(QStringLiteral("ScheduleTabWidget"));
    QVERIFY(tabs);
    QTRY_COMPARE(tabs->count(), 10);
}

void tst_HostWindow::drop()
{
    auto *const view = m_window->findChild<QTabWidget *>(QStringLiteral("ScheduleTabWidget"))
                           ->currentWidget()
                           ->findChild<QGraphicsView *>();
    QVERIFY(view);
    const QString stage = m_folder->filePath(QStringLiteral("stage/a.xml"));
    DragGesture drag(DragGesture::filesMimeData({stage}));
    const QPointF centre = view->mapToScene(view->viewport()->rect().center());
    QVERIFY(drag.enter(view, centre));
    QVERIFY(drag.drop());
}

QByteArray tst_HostWindow::firstChannel() const
{
    return m_folder->read(QStringLiteral("channel/channel0.xml"));
}

void tst_HostWindow::showsTheMenus()
{
    const QList<QAction *> shown = m_window->menuBar()->actions();
    const QList<QMenu *> menus = m_window->editor()->menu();
    // The window's own menu stands before the help.
    QCOMPARE(shown.size(), menus.size() + 1);
    for (int index = 0; index < menus.size() - 1; ++index)
        QCOMPARE(shown.at(index)->menu(), menus.at(index));
    QCOMPARE(shown.at(menus.size() - 1)->menu()->objectName(), QStringLiteral("Menu_Tools"));
    QCOMPARE(shown.last()->menu(), menus.last());
    QCOMPARE(menus.last()->objectName(), QStringLiteral("Menu_Help"));
    QCOMPARE(menus.last()->title(), QStringLiteral("&Help"));
    QVERIFY(m_window->windowTitle().contains(m_folder->path()));
    QVERIFY(!m_window->windowIcon().isNull());
}

void tst_HostWindow::offersWhatTheEditorAsksFor()
{
    start();
    for (const auto *name : {"Action_Upload", "Action_Output_Channel_Data",
                             "Action_Channel_Configuration", "Action_Save_Channel"}) {
        const QAction *const action = m_window->editor()->getAction(QLatin1String(name));
        QVERIFY2(action, name);
        QVERIFY2(action->isEnabled(), name);
    }
}

void tst_HostWindow::showsItsVersion()
{
    QCoreApplication::setApplicationVersion(QStringLiteral("1.2.3"));
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Ok)
        .title(QStringLiteral("About Zavo Schedule Editor"))
        .text(QStringLiteral("Zavo Schedule Editor 1.2.3"))
        .buttons(QMessageBox::Ok)
        .whileShown([this](const QMessageBox *box) {
            QVERIFY(box->informativeText().contains(m_folder->path()));
            QVERIFY(box->informativeText().contains(QLatin1String(qVersion())));
            QVERIFY(!box->iconPixmap().isNull());
        });
    m_window->findChild<QAction *>(QStringLiteral("Action_About"))->trigger();
    QVERIFY(answer.isDone());
}

void tst_HostWindow::opensAsLargeAsItsScreenNeeds_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QSize>("size");
    QTest::newRow("1") << 1.0 << QSize(1280, 860);
    QTest::newRow("1.5") << 1.5 << QSize(1920, 1290);
    QTest::newRow("2") << 2.0 << QSize(2560, 1720);
}

void tst_HostWindow::opensAsLargeAsItsScreenNeeds()
{
    QFETCH(double, ratio);
    m_window.reset();
    Zavo::ZvSystemInfo::setDpiRatioOverride(ratio);
    m_window = std::make_unique<HostWindow>();
    QTEST(m_window->size(), "size");
    start();
    const auto width = [this](const char *dock) {
        return m_window->findChild<QDockWidget *>(QLatin1String(dock))->width();
    };
    QCOMPARE(width("SwitchScheuleDock"), int(330 * ratio));
    QCOMPARE(width("ChooseStageDock"), int(300 * ratio));
}

void tst_HostWindow::startsWithATabForEachChannel()
{
    MessageBoxAnswer noBox;
    start();
    QCOMPARE(m_folder->names(QStringLiteral("channel")).size(), 11);
}

void tst_HostWindow::closesWithoutAQuestion()
{
    MessageBoxAnswer noBox;
    SignalLog log;
    log.watch(m_window.get(), SIGNAL(finished()));
    start();
    QVERIFY(m_window->close());
    QVERIFY(!m_window->isVisible());
    QCOMPARE(log.count(QStringLiteral("finished")), 1);
    QVERIFY(m_window->close());
    QCOMPARE(log.count(QStringLiteral("finished")), 1);
}

void tst_HostWindow::asksBeforeItCloses_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("saved");
    QTest::newRow("yes") << int(QMessageBox::Yes) << true;
    QTest::newRow("no") << int(QMessageBox::No) << false;
}

void tst_HostWindow::asksBeforeItCloses()
{
    QFETCH(int, answer);
    QFETCH(bool, saved);
    start();
    const QByteArray before = firstChannel();
    drop();
    MessageBoxAnswer box;
    box.expect(static_cast<QMessageBox::StandardButton>(answer))
        .title(QStringLiteral("Save Channel"))
        .text(QStringLiteral("The channel \"Ch.0\" has been modified."));
    QVERIFY(m_window->close());
    QVERIFY(box.isDone());
    QCOMPARE(firstChannel() != before, saved);
    QCOMPARE(firstChannel().contains("a.xml"), saved);
}

void tst_HostWindow::endsWithTheEditor()
{
    SignalLog log;
    log.watch(m_window.get(), SIGNAL(finished()));
    start();
    m_window->editor()->close();
    QCOMPARE(log.count(QStringLiteral("finished")), 1);
    QVERIFY(!m_window->isVisible());
}

void tst_HostWindow::ignoresACloseDuringTheQuestion()
{
    start();
    drop();
    MessageBoxAnswer box;
    box.expect(QMessageBox::No).whileShown([this](const QMessageBox *) {
        m_window->close();
        QVERIFY(m_window->isVisible());
        QVERIFY(m_window->centralWidget());
    });
    m_window->editor()->quit();
    QCOMPARE(box.answeredCount(), 1);
    QVERIFY(!m_window->isVisible());
}

void tst_HostWindow::quitAsksThroughClose()
{
    SignalLog log;
    log.watch(m_window.get(), SIGNAL(finished()));
    start();
    drop();
    MessageBoxAnswer box;
    box.expect(QMessageBox::Yes);
    m_window->editor()->quit();
    QCOMPARE(log.count(QStringLiteral("finished")), 1);
    QVERIFY(firstChannel().contains("a.xml"));
}

void tst_HostWindow::deletesTheScenes()
{
    start();
    QList<QPointer<QGraphicsScene>> scenes;
    for (const QGraphicsView *view : m_window->findChildren<QGraphicsView *>()) {
        if (view->scene())
            scenes.append(view->scene());
    }
    QVERIFY(scenes.size() >= 10);
    m_window->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (const auto &scene : qAsConst(scenes))
        QVERIFY(scene.isNull());
}

void tst_HostWindow::sessionEnds()
{
    start();
    drop();
    MessageBoxAnswer box;
    box.expect(QMessageBox::Yes);
    QVERIFY(m_window->endSession(true));
    QVERIFY(firstChannel().contains("a.xml"));
    QVERIFY(m_window->endSession(true));
    QVERIFY(m_window->endSession(false));
}

void tst_HostWindow::sessionWaitsIfNobodyCanBeAsked()
{
    MessageBoxAnswer noBox;
    start();
    drop();
    QVERIFY(!m_window->endSession(false));
    QVERIFY(m_window->isVisible());
}

void tst_HostWindow::diesWithoutBeingClosed()
{
    MessageBoxAnswer noBox;
    start();
    drop();
    const QByteArray before = firstChannel();
    m_window.reset();
    QCOMPARE(firstChannel(), before);
}

QTEST_MAIN(tst_HostWindow)
#include "tst_hostwindow.moc"
