#include "MissingTexts.h"
#include "TextFit.h"

#include "Catalogues.h"
#include "Display.h"
#include "HostNames.h"
#include "HostWindow.h"
#include "LanguageChoice.h"
#include "TemporaryDataFolder.h"
#include "ZvEditorConfig.h"
#include "check/CheckFinding.h"
#include "safety/DataFolderLock.h"
#include "safety/FolderInUseBox.h"
#include "safety/SafetyDesk.h"
#include "safety/SafetyNet.h"
#include "upload/UploadFindingsDialog.h"
#include "upload/UploadNames.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDockWidget>
#include <QLabel>
#include <QListView>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QTreeWidget>
#include <QtTest>

#include <algorithm>
#include <memory>

using namespace Zavo;
using ZavoTest::TemporaryDataFolder;

namespace {

constexpr int lookingIntervalMs = 10;
constexpr int longestTimerMs = 150;
constexpr int mostChoices = 6;

QString testedLanguage()
{
    return qEnvironmentVariable("ZAVO_TEST_LANGUAGE", QStringLiteral("de"));
}

bool isDialogShown()
{
    const QList<QWidget *> windows = QApplication::topLevelWidgets();
    return std::any_of(windows.cbegin(), windows.cend(), [](const QWidget *window) {
        return window->isVisible() && qobject_cast<const QDialog *>(window);
    });
}

} // namespace

/// Goes through the window and all its dialogs in the language that ZAVO_TEST_LANGUAGE names.
class tst_TranslatedWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void speaksTheLanguage();
    void windowHasRoomForItsTexts_data();
    void windowHasRoomForItsTexts();
    void menusHaveMnemonicsOfTheirOwn();
    void dialogsHaveRoomForTheirTexts();
    void dialogsOfOtherTimesHaveRoomForTheirTexts();
    void lacksNoText();

protected Q_SLOTS:
    // No test.
    void lookAtDialogs();

private:
    QWidget *widget(const char *name) const
    {
        return m_window->findChild<QWidget *>(QLatin1String(name));
    }
    void inspect(QWidget *window);
    void look(QWidget *window);
    void selectStage() const;
    QList<QMenu *> allMenus() const;
    QList<QAction *> allActions() const;
    void draw(QWidget *window, const QString &name) const;

    MissingTexts m_missing;
    std::unique_ptr<Catalogues> m_catalogues;
    std::unique_ptr<TemporaryDataFolder> m_data;
    std::unique_ptr<HostWindow> m_window;
    std::unique_ptr<SafetyNet> m_net;
    std::unique_ptr<SafetyDesk> m_desk;
    QSet<QString> m_seenDialogs;
    QStringList m_problems;
    bool m_isLooking = false;
    int m_inspections = 0;
    QSet<QWidget *> m_looked;
};

void tst_TranslatedWindow::initTestCase()
{
    QCoreApplication::installTranslator(&m_missing);
    m_catalogues = std::make_unique<Catalogues>(QStringList{QStringLiteral(ZAVO_TRANSLATIONS)});
    QVERIFY(m_catalogues->load(testedLanguage()));
}

void tst_TranslatedWindow::init()
{
    m_data = std::make_unique<TemporaryDataFolder>();
    m_data->copyFrom(QStringLiteral(ZAVO_SOURCE_DIR "/examples/data"));
    ZvEditorConfig::reload();
    m_net = std::make_unique<SafetyNet>(m_data->path());
    m_window = std::make_unique<HostWindow>();
    QString message;
    QVERIFY2(m_window->start(&message), qPrintable(message));
    m_desk = std::make_unique<SafetyDesk>(m_data->path(), m_net.get(), m_window.get());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    auto *const tabs = m_window->findChild<QTabWidget *>(QLatin1String(HostNames::tabWidget));
    QTRY_VERIFY(tabs->count() > 5);
    QCoreApplication::processEvents();
}

void tst_TranslatedWindow::cleanup()
{
    m_desk.reset();
    m_window.reset();
    m_net.reset();
    m_data.reset();
}

void tst_TranslatedWindow::draw(QWidget *window, const QString &name) const
{
    const QString folder = qEnvironmentVariable("ZAVO_TEST_PICTURES");
    if (!folder.isEmpty())
        QVERIFY(window->grab().save(
            QStringLiteral("%1/%2-%3.png").arg(folder, testedLanguage(), name)));
}

void tst_TranslatedWindow::speaksTheLanguage()
{
    const QMap<QString, QString> files{{QStringLiteral("de"), QStringLiteral("&Datei")},
                                       {QStringLiteral("fr"), QStringLiteral("&Fichier")},
                                       {QStringLiteral("ja"), QStringLiteral("ファイル(&F)")}};
    QCOMPARE(m_window->menuBar()->actions().constFirst()->text(), files.value(testedLanguage()));
    // Days follow, though the locale of the environment is another.
    QCOMPARE(QLocale::system().dayName(Qt::Monday), QLocale(testedLanguage()).dayName(Qt::Monday));
}

void tst_TranslatedWindow::windowHasRoomForItsTexts_data()
{
    QTest::addColumn<QString>("frame");
    QTest::addColumn<QString>("dock");
    QTest::newRow("default schedule") << "DefaultScheduleSelectedWidget"
                                      << "SwitchScheuleDock";
    QTest::newRow("date") << "CalendarSelectedWidget"
                          << "SwitchScheuleDock";
    QTest::newRow("day") << "WeekSelectedWidget"
                         << "SwitchScheuleDock";
    QTest::newRow("schedule list") << "WeekSelectedWidget"
                                   << "ScheduleListDock";
}

void tst_TranslatedWindow::windowHasRoomForItsTexts()
{
    QFETCH(QString, frame);
    QFETCH(QString, dock);
    auto *const chosen = m_window->findChild<QWidget *>(frame);
    QVERIFY(chosen);
    QTest::mouseClick(chosen, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
    auto *const shown = m_window->findChild<QDockWidget *>(dock);
    shown->show();
    shown->raise();
    // Today's date must not be what decides.
    const QLocale locale = QLocale::system();
    const QString today = locale.toString(QDate::currentDate(), QLocale::LongFormat);
    const QList<QLabel *> labels = m_window->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        QString widest = today;
        for (QDate day(2026, 1, 1); label->text() == today && day.year() == 2026;
             day = day.addDays(1)) {
            const QString text = locale.toString(day, QLocale::LongFormat);
            if (label->fontMetrics().horizontalAdvance(text) >
                label->fontMetrics().horizontalAdvance(widest))
                widest = text;
        }
        if (label->text() == today)
            label->setText(widest);
    }
    QTest::qWait(longestTimerMs);
    draw(m_window.get(), QString::fromLatin1(QTest::currentDataTag()));
    // The timers of a change of schedule lay labels out anew.
    QStringList cut;
    QTRY_VERIFY2((cut = TextFit::cutTexts(m_window.get())).isEmpty(),
                 qPrintable(cut.join(QLatin1Char('\n'))));
}

QList<QMenu *> tst_TranslatedWindow::allMenus() const
{
    QList<QMenu *> menus = m_window->findChildren<QMenu *>();
    const QList<QAction *> titles = m_window->menuBar()->actions();
    for (const QAction *title : titles) {
        if (!menus.contains(title->menu()))
            menus.append(title->menu());
    }
    return menus;
}

void tst_TranslatedWindow::menusHaveMnemonicsOfTheirOwn()
{
    QStringList problems;
    const QList<QMenu *> menus = allMenus();
    QVERIFY(menus.size() > 8);
    for (QMenu *menu : menus) {
        Q_EMIT menu->aboutToShow();
        if (menu->isEmpty())
            continue;
        problems += TextFit::sharedMnemonics(menu);
        draw(
            menu,
            QStringLiteral("menu ") +
                menu->title().remove(QLatin1Char('&')).replace(QLatin1Char('/'), QLatin1Char('_')));
    }
    QMenu bar;
    bar.addActions(m_window->menuBar()->actions());
    problems += TextFit::sharedMnemonics(&bar);
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(QLatin1Char('\n'))));
}

void tst_TranslatedWindow::selectStage() const
{
    auto *const list = widget("ChooseStageDock")->findChild<QListView *>();
    QTRY_VERIFY(list->model()->rowCount(list->rootIndex()) > 0);
    list->setCurrentIndex(list->model()->index(0, 0, list->rootIndex()));
}

void tst_TranslatedWindow::inspect(QWidget *window)
{
    // A text that came just now has no room yet.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    for (const QString &line : TextFit::cutTexts(window) + TextFit::sharedMnemonics(window)) {
        const QString problem = window->windowTitle() + QStringLiteral(": ") + line;
        if (!m_problems.contains(problem))
            m_problems.append(problem);
    }
    draw(window, QStringLiteral("%1 %2").arg(window->windowTitle()).arg(++m_inspections));
}

void tst_TranslatedWindow::look(QWidget *window)
{
    m_looked.insert(window);
    m_seenDialogs.insert(QString::fromLatin1(window->metaObject()->className()));
    inspect(window);
    // What is chosen changes what else is shown.
    const QList<QRadioButton *> kinds = window->findChildren<QRadioButton *>();
    for (QRadioButton *kind : kinds) {
        if (kind->isVisible() && kind->isEnabled() && !kind->isChecked()) {
            kind->click();
            inspect(window);
        }
    }
    const QList<QComboBox *> boxes = window->findChildren<QComboBox *>();
    for (QComboBox *box : boxes) {
        for (int i = 0; box->isVisible() && i < qMin(box->count(), mostChoices); ++i) {
            box->setCurrentIndex(i);
            inspect(window);
        }
    }
    const QList<QTreeWidget *> trees = window->findChildren<QTreeWidget *>();
    for (QTreeWidget *tree : trees) {
        QTreeWidgetItem *const first = tree->topLevelItem(0);
        if (first && tree->isVisible()) {
            tree->setCurrentItem(first->childCount() > 0 ? first->child(0) : first);
            inspect(window);
        }
    }
    if (auto *add = window->findChild<QPushButton *>(QLatin1String(UploadNames::addButton)))
        QTest::mouseClick(add, Qt::LeftButton);
}

void tst_TranslatedWindow::lookAtDialogs()
{
    // Not by one timer, which would wait for the dialogs that come from dialogs.
    if (m_isLooking)
        QTimer::singleShot(lookingIntervalMs, this, SLOT(lookAtDialogs()));
    const QList<QWidget *> windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (!qobject_cast<QDialog *>(window) || !window->isVisible() || m_looked.contains(window))
            continue;
        const QPointer<QWidget> guard(window);
        look(window);
        if (guard)
            qobject_cast<QDialog *>(window)->reject();
        m_looked.remove(window);
    }
}

QList<QAction *> tst_TranslatedWindow::allActions() const
{
    QList<QAction *> actions = m_window->findChildren<QAction *>();
    const QList<QMenu *> menus = allMenus();
    for (const QMenu *menu : menus) {
        const QList<QAction *> entries = menu->actions();
        for (QAction *entry : entries) {
            if (!actions.contains(entry))
                actions.append(entry);
        }
    }
    return actions;
}

void tst_TranslatedWindow::dialogsHaveRoomForTheirTexts()
{
    selectStage();
    m_isLooking = true;
    lookAtDialogs();
    const QList<QAction *> actions = allActions();
    for (QAction *const known : actions) {
        const QPointer<QAction> action(known);
        const bool opensDialog =
            action && (action->text().endsWith(QStringLiteral("...")) ||
                       action->objectName() == QLatin1String(HostNames::aboutAction) ||
                       action->objectName() == QLatin1String(HostNames::guideAction));
        if (!opensDialog)
            continue;
        action->setEnabled(true);
        action->trigger();
        QCoreApplication::processEvents();
        QTRY_VERIFY_WITH_TIMEOUT(!isDialogShown(), 30000);
    }
    m_isLooking = false;
    QVERIFY2(m_problems.isEmpty(), qPrintable(m_problems.join(QLatin1Char('\n'))));
    for (const auto *dialog :
         {"Zavo::ConfigurationDialog", "Zavo::ChannelConfigurationDialog", "Zavo::CheckDialog",
          "Zavo::ExportDialog", "Zavo::UploadDialog", "Zavo::UploadTargetDialog",
          "Zavo::BackupDialog", "Zavo::VersionBox", "Zavo::ShortcutDialog", "Zavo::GuideDialog",
          "Zavo::ZvScheduleChangeChannelOrderDialog", "Zavo::ZvScheduleSpecifyScheduleDialog",
          "QMessageBox"})
        QVERIFY2(m_seenDialogs.contains(QLatin1String(dialog)), dialog);
}

void tst_TranslatedWindow::dialogsOfOtherTimesHaveRoomForTheirTexts()
{
    CheckReport report;
    report.findings.append({CheckFinding::Kind::NoChannel, QStringLiteral("channel0.xml"),
                            QStringLiteral("Lobby"), QString(), QStringLiteral("?")});
    UploadFindingsDialog findings(report, m_window.get());
    findings.show();
    inspect(&findings);
    DataFolderLock holder(m_data->path());
    QCOMPARE(holder.take(), DataFolderLock::Result::Taken);
    DataFolderLock other(m_data->path());
    QCOMPARE(other.take(), DataFolderLock::Result::HeldByOther);
    FolderInUseBox inUse(m_data->path(), other, m_window.get());
    inUse.show();
    inspect(&inUse);
    QVERIFY2(m_problems.isEmpty(), qPrintable(m_problems.join(QLatin1Char('\n'))));
}

void tst_TranslatedWindow::lacksNoText()
{
    const QStringList missing = m_missing.texts().values();
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QLatin1Char('\n'))));
}

int main(int argc, char *argv[])
{
    LanguageChoice::applyToDates(testedLanguage());
    const QApplication application(argc, argv);
    Display::chooseFont();
    tst_TranslatedWindow test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_translatedwindow.moc"
