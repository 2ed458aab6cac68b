#include "HostWindow.h"

#include "AccessibleControls.h"
#include "ChannelFiles.h"
#include "ConfigurationDialog.h"
#include "TemporaryDataFolder.h"
#include "channels/ChannelConfigurationDialog.h"
#include "check/CheckDialog.h"
#include "editor/ZvScheduleEditor.h"
#include "exporter/ExportDialog.h"
#include "guide/GuideDialog.h"
#include "safety/BackupDialog.h"
#include "safety/BackupStore.h"
#include "safety/SafetyDesk.h"
#include "safety/SafetyNet.h"
#include "shortcuts/ShortcutDialog.h"
#include "shortcuts/Shortcuts.h"
#include "upload/UploadDialog.h"
#include "upload/UploadTargetDialog.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTabWidget>
#include <QWhatsThis>
#include <QtTest>

using namespace Zavo;
using ZavoTest::TemporaryDataFolder;

namespace {

QStringList helplessEntries(const QMenu *menu)
{
    QStringList entries;
    const QList<QAction *> actions = menu->actions();
    for (const QAction *action : actions) {
        if (action->menu())
            entries.append(helplessEntries(action->menu()));
        else if (!action->isSeparator() &&
                 (action->statusTip().isEmpty() || action->statusTip().endsWith(QLatin1Char('.')) ||
                  !action->whatsThis().endsWith(QLatin1Char('.'))))
            entries.append(action->text());
    }
    return entries;
}

QWidget *whatsThisText()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->inherits("QWhatsThat") && window->isVisible())
            return window;
    }
    return nullptr;
}

} // namespace

class tst_HostAccessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyEntryExplainsItself();
    void tipOfAnEntryIsShownBelow();
    void explainsWhatIsClicked();
    void escapeEndsTheExplaining();
    void windowNamesItsControls();
    void dialogs_data();
    void dialogs();

private:
    void openWindow();
    std::unique_ptr<QDialog> makeDialog(const QString &name);

    std::unique_ptr<TemporaryDataFolder> m_folder;
    std::unique_ptr<SafetyNet> m_net;
    std::unique_ptr<HostWindow> m_window;
    std::unique_ptr<SafetyDesk> m_desk;
    std::unique_ptr<BackupStore> m_store;
    std::unique_ptr<Shortcuts> m_shortcuts;
};

void tst_HostAccessibility::init()
{
    m_folder = std::make_unique<TemporaryDataFolder>();
    m_folder->writeStage(QStringLiteral("a.xml"));
    for (int i = 0; i < 2; ++i)
        ZavoTest::writeChannelFile(*m_folder, ZavoTest::channelFileName(i),
                                   {i, i, QStringLiteral("Channel %1").arg(i)});
}

void tst_HostAccessibility::cleanup()
{
    m_desk.reset();
    m_shortcuts.reset();
    m_store.reset();
    m_window.reset();
    m_net.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_folder.reset();
}

void tst_HostAccessibility::openWindow()
{
    m_net = std::make_unique<SafetyNet>(m_folder->path());
    m_window = std::make_unique<HostWindow>();
    QString message;
    QVERIFY2(m_window->start(&message), qPrintable(message));
    m_desk = std::make_unique<SafetyDesk>(m_folder->path(), m_net.get(), m_window.get());
    m_window->show();
    auto *const tabs = m_window->findChild<QTabWidget *>(QStringLiteral("ScheduleTabWidget"));
    QTRY_COMPARE(tabs->count(), 2);
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void tst_HostAccessibility::everyEntryExplainsItself()
{
    openWindow();
    const QList<QAction *> menus = m_window->menuBar()->actions();
    QCOMPARE(menus.size(), 7);
    for (const QAction *menu : menus)
        QCOMPARE(helplessEntries(menu->menu()), QStringList());
}

void tst_HostAccessibility::tipOfAnEntryIsShownBelow()
{
    openWindow();
    QMenu *const tools = m_window->findChild<QMenu *>(QStringLiteral("Menu_Tools"));
    m_window->menuBar()->setActiveAction(tools->menuAction());
    QVERIFY(QTest::qWaitForWindowExposed(tools));
    QTest::keyClick(tools, Qt::Key_Up);
    QVERIFY(tools->activeAction());
    QCOMPARE(m_window->statusBar()->currentMessage(), tools->activeAction()->statusTip());
    QVERIFY(m_window->statusBar()->isVisible());
    tools->close();
}

void tst_HostAccessibility::explainsWhatIsClicked()
{
    openWindow();
    QTest::keyClick(m_window.get(), Qt::Key_F1, Qt::ShiftModifier);
    QVERIFY(QWhatsThis::inWhatsThisMode());
    QWidget *week = nullptr;
    const QList<QWidget *> widgets = m_window->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->inherits("Zavo::ZvWeekWidget"))
            week = widget;
    }
    QVERIFY(week);
    QWidget *const day = week->childAt(week->width() / 2, week->height() - 20);
    QTest::mouseClick(day ? day : week, Qt::LeftButton);
    QTRY_VERIFY(whatsThisText());
    QVERIFY(!QWhatsThis::inWhatsThisMode());
    QTest::mouseClick(whatsThisText(), Qt::LeftButton);
    QTRY_VERIFY(!whatsThisText());
}

void tst_HostAccessibility::escapeEndsTheExplaining()
{
    openWindow();
    m_window->findChild<QAction *>(QStringLiteral("Action_Whats_This"))->trigger();
    QVERIFY(QWhatsThis::inWhatsThisMode());
    QTest::keyClick(m_window.get(), Qt::Key_Escape);
    QVERIFY(!QWhatsThis::inWhatsThisMode());
    QVERIFY(!whatsThisText());
}

void tst_HostAccessibility::windowNamesItsControls()
{
    openWindow();
    QCOMPARE(ZavoTest::namelessControls(m_window.get()).join(QStringLiteral("; ")), QString());
}

void tst_HostAccessibility::dialogs_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"configuration", "channels", "upload", "target", "export", "check",
                             "guide", "safety copies", "shortcuts"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

std::unique_ptr<QDialog> tst_HostAccessibility::makeDialog(const QString &name)
{
    const QString channel = m_folder->filePath(QStringLiteral("channel/channel0.xml"));
    if (name == QLatin1String("configuration"))
        return std::make_unique<ConfigurationDialog>(false);
    if (name == QLatin1String("channels"))
        return std::make_unique<ChannelConfigurationDialog>();
    if (name == QLatin1String("upload"))
        return std::make_unique<UploadDialog>(m_folder->path());
    if (name == QLatin1String("target"))
        return std::make_unique<UploadTargetDialog>(QString());
    if (name == QLatin1String("guide"))
        return std::make_unique<GuideDialog>();
    if (name == QLatin1String("export")) {
        auto dialog = std::make_unique<ExportDialog>();
        dialog->showChannel(channel);
        return dialog;
    }
    if (name == QLatin1String("check")) {
        auto dialog = std::make_unique<CheckDialog>();
        dialog->check();
        return dialog;
    }
    if (name == QLatin1String("safety copies")) {
        m_store = std::make_unique<BackupStore>(m_folder->path());
        return std::make_unique<BackupDialog>(m_folder->path(), m_store.get());
    }
    m_window = std::make_unique<HostWindow>();
    m_shortcuts = std::make_unique<Shortcuts>(m_window.get());
    return std::make_unique<ShortcutDialog>(m_shortcuts.get());
}

void tst_HostAccessibility::dialogs()
{
    QFETCH(QString, name);
    const std::unique_ptr<QDialog> dialog = makeDialog(name);
    dialog->show();
    dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    QVERIFY(!dialog->windowTitle().isEmpty());
    QCOMPARE(ZavoTest::namelessControls(dialog.get()).join(QStringLiteral("; ")), QString());
    QCOMPARE(ZavoTest::tabOrderProblem(dialog.get()), QString());
}

QTEST_MAIN(tst_HostAccessibility)

#include "tst_hostaccessibility.moc"
