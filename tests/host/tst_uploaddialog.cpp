#include "HostWindow.h"
#include "upload/UploadDialog.h"
#include "upload/UploadNames.h"

#include "MessageBoxAnswer.h"
#include "SignalLog.h"
#include "SlowDisk.h"
#include "UploadBench.h"
#include "editor/ZvScheduleEditor.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>
#include <QStyle>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>
#include <QtTest>

using Zavo::HostWindow;
using Zavo::ListedTarget;
using Zavo::UploadDialog;
using Zavo::UploadTarget;
using ZavoTest::FaultyLine;
using ZavoTest::filesBelow;
using ZavoTest::MessageBoxAnswer;
using ZavoTest::RsyncDaemon;
using ZavoTest::SignalLog;
using ZavoTest::TemporaryDataFolder;

namespace Names = Zavo::UploadNames;

namespace {
constexpr int longestUploadMs = 60000;
} // namespace

class tst_UploadDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void addsATarget();
    void acceptsOnlyAValidAddress();
    void changesAndRemovesATarget();
    void refusesATargetTwice();
    void remembersChecks();
    void uploadsToWhatIsChecked();
    void retriesWhatFailed();
    void cancels();
    void goesOnWhileItIsClosed();
    void asksAboutFindings();
    void asksThoughItIsClosed();
    void asksAtARetryOnlyWhatIsNew();
    void uploadsNothingThatCannotBeChecked();
    void showsTheProgressOfTheCheck();
    void givesUpAtTheEndOfTheProgram();
    void tellsWhatIsMissing();
    void hasNamesForAll();
    void opensFromTheMenu();
    void staysShutInOneMachine();
    void asksBeforeTheProgramEnds();

private:
    void show(const QStringList &addresses);
    QPushButton *button(const char *name) const;
    void click(const char *name) const;
    QTreeWidget *list() const;
    QString result(int row) const { return list()->topLevelItem(row)->text(2); }
    QString summary() const;
    void check(int row) const;
    /// The question about findings, once it is there; null if it does not come.
    QDialog *question() const;
    void answer(const char *name) const;
    void writeFaultyChannel() const
    {
        ZavoTest::writeChannel(*m_folder, 1, QStringLiteral("b.xml"));
    }
    /// Clicks the button, writes the address into the dialog that opens and answers it.
    void enterAddress(const char *name, const QString &address, Qt::Key answer = Qt::Key_Return);
    QStringList addresses() const;
    QString folder(const QString &name);

    std::unique_ptr<TemporaryDataFolder> m_folder;
    std::unique_ptr<QTemporaryDir> m_targets;
    std::unique_ptr<UploadDialog> m_dialog;
};

void tst_UploadDialog::init()
{
    m_folder = std::make_unique<TemporaryDataFolder>();
    m_targets = std::make_unique<QTemporaryDir>();
    m_folder->writeStage(QStringLiteral("a.xml"));
    Zavo::ZvSchedule schedule;
    schedule.setType(Zavo::ZvSchedule::Default);
    schedule.setDefaultStage(QStringLiteral("a.xml"));
    m_folder->makeFolder(QStringLiteral("channel"));
    Zavo::ZvChannel sound(m_folder->filePath(QStringLiteral("channel/channel0.xml")));
    sound.setName(QStringLiteral("Lobby"));
    sound.insertSchedule(schedule);
    QVERIFY(sound.writeToFile());
}

void tst_UploadDialog::cleanup()
{
    m_dialog.reset();
    m_targets.reset();
    m_folder.reset();
}

QString tst_UploadDialog::folder(const QString &name)
{
    const QString path = m_targets->filePath(name);
    QDir().mkpath(path);
    return path;
}

void tst_UploadDialog::show(const QStringList &addresses)
{
    QList<ListedTarget> targets;
    for (const QString &address : addresses)
        targets.append({UploadTarget(address), true});
    Zavo::UploadTargets::store(targets);
    m_dialog = std::make_unique<UploadDialog>(m_folder->filePath(QStringLiteral("Log/Editor")));
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
}

QPushButton *tst_UploadDialog::button(const char *name) const
{
    return m_dialog->findChild<QPushButton *>(QLatin1String(name));
}

void tst_UploadDialog::click(const char *name) const
{
    QVERIFY2(button(name)->isEnabled(), name);
    QTest::mouseClick(button(name), Qt::LeftButton);
}

QTreeWidget *tst_UploadDialog::list() const
{
    return m_dialog->findChild<QTreeWidget *>(QLatin1String(Names::targetList));
}

QString tst_UploadDialog::summary() const
{
    return m_dialog->findChild<QLabel *>(QLatin1String(Names::summaryLabel))->text();
}

void tst_UploadDialog::check(int row) const
{
    list()->setCurrentItem(list()->topLevelItem(row));
    list()->setFocus();
    QTest::keyClick(list(), Qt::Key_Space);
}

QDialog *tst_UploadDialog::question() const
{
    const auto found = [this] {
        return m_dialog->findChild<QDialog *>(QLatin1String(Names::findingsDialog));
    };
    return QTest::qWaitFor([&] { return found() && found()->isVisible(); }, longestUploadMs)
               ? found()
               : nullptr;
}

void tst_UploadDialog::answer(const char *name) const
{
    QDialog *const dialog = question();
    QVERIFY(dialog);
    QTest::mouseClick(dialog->findChild<QPushButton *>(QLatin1String(name)), Qt::LeftButton);
}

void tst_UploadDialog::enterAddress(const char *name, const QString &address, Qt::Key answer)
{
    QTimer::singleShot(0, this, [address, answer] {
        QWidget *const dialog = QApplication::activeModalWidget();
        QVERIFY(dialog);
        auto *const field = dialog->findChild<QLineEdit *>(QLatin1String(Names::addressField));
        QVERIFY(field);
        field->selectAll();
        QTest::keyClicks(field, address);
        QTest::keyClick(field, answer);
        if (dialog->isVisible())
            QTest::keyClick(dialog, Qt::Key_Escape);
    });
    click(name);
}

QStringList tst_UploadDialog::addresses() const
{
    QStringList result;
    for (const ListedTarget &listed : Zavo::UploadTargets::load())
        result.append(listed.target.address());
    return result;
}

void tst_UploadDialog::addsATarget()
{
    show({});
    QVERIFY(!button(Names::uploadButton)->isEnabled());
    QVERIFY(!button(Names::changeButton)->isEnabled());
    QVERIFY(!button(Names::removeButton)->isEnabled());
    enterAddress(Names::addButton, QStringLiteral("rsync://display/play"));
    enterAddress(Names::addButton, QStringLiteral("/mnt/a"));
    enterAddress(Names::addButton, QStringLiteral("/mnt/b"), Qt::Key_Escape);
    QCOMPARE(addresses(),
             QStringList({QStringLiteral("rsync://display/play"), QStringLiteral("/mnt/a")}));
    QCOMPARE(list()->topLevelItemCount(), 2);
    QCOMPARE(list()->topLevelItem(1)->checkState(0), Qt::Checked);
    QVERIFY(button(Names::uploadButton)->isEnabled());
}

void tst_UploadDialog::acceptsOnlyAValidAddress()
{
    show({});
    QTimer::singleShot(0, this, [] {
        QWidget *const dialog = QApplication::activeModalWidget();
        auto *const field = dialog->findChild<QLineEdit *>(QLatin1String(Names::addressField));
        auto *const problem = dialog->findChild<QLabel *>(QLatin1String(Names::problemLabel));
        QCOMPARE(problem->text(), QString());
        QTest::keyClicks(field, QStringLiteral("-oProxyCommand=id:/x"));
        QVERIFY(!problem->text().isEmpty());
        QTest::keyClick(field, Qt::Key_Return);
        QVERIFY(dialog->isVisible());
        QTest::keyClick(field, Qt::Key_Escape);
    });
    click(Names::addButton);
    QVERIFY(addresses().isEmpty());
}

void tst_UploadDialog::changesAndRemovesATarget()
{
    show({QStringLiteral("/mnt/a"), QStringLiteral("/mnt/b")});
    list()->setCurrentItem(list()->topLevelItem(1));
    enterAddress(Names::changeButton, QStringLiteral("host:/srv"));
    QCOMPARE(addresses(), QStringList({QStringLiteral("/mnt/a"), QStringLiteral("host:/srv")}));
    list()->setCurrentItem(list()->topLevelItem(0));
    click(Names::removeButton);
    QCOMPARE(addresses(), QStringList{QStringLiteral("host:/srv")});
    list()->setCurrentItem(list()->topLevelItem(0));
    click(Names::removeButton);
    QVERIFY(addresses().isEmpty());
    QVERIFY(!button(Names::uploadButton)->isEnabled());
}

void tst_UploadDialog::refusesATargetTwice()
{
    show({QStringLiteral("/mnt/a"), QStringLiteral("/mnt/b")});
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Ok)
        .text(QStringLiteral("The target \"/mnt/a\" is in the list already."));
    enterAddress(Names::addButton, QStringLiteral("/mnt/a"));
    list()->setCurrentItem(list()->topLevelItem(0));
    enterAddress(Names::changeButton, QStringLiteral("/mnt/a"));
    QVERIFY(answer.isDone());
    QCOMPARE(addresses(), QStringList({QStringLiteral("/mnt/a"), QStringLiteral("/mnt/b")}));
}

void tst_UploadDialog::remembersChecks()
{
    show({QStringLiteral("/mnt/a"), QStringLiteral("/mnt/b")});
    check(0);
    QCOMPARE(list()->topLevelItem(0)->checkState(0), Qt::Unchecked);
    QVERIFY(button(Names::uploadButton)->isEnabled());
    check(1);
    QVERIFY(!button(Names::uploadButton)->isEnabled());
    check(1);
    m_dialog = std::make_unique<UploadDialog>(m_folder->path());
    QCOMPARE(list()->topLevelItem(0)->checkState(0), Qt::Unchecked);
    QCOMPARE(list()->topLevelItem(1)->checkState(0), Qt::Checked);
}

void tst_UploadDialog::uploadsToWhatIsChecked()
{
    const QString unwanted = folder(QStringLiteral("unwanted"));
    show({unwanted, folder(QStringLiteral("b")), folder(QStringLiteral("c"))});
    check(0);
    click(Names::uploadButton);
    QVERIFY(m_dialog->isUploading());
    QVERIFY(button(Names::cancelButton)->isEnabled());
    for (const auto *name : {Names::uploadButton, Names::addButton, Names::removeButton,
                             Names::changeButton, Names::retryButton})
        QVERIFY2(!button(name)->isEnabled(), name);
    QTRY_COMPARE_WITH_TIMEOUT(summary(), QStringLiteral("2 complete, 0 failed, 0 cancelled."),
                              longestUploadMs);
    QCOMPARE(result(0), QString());
    for (int row : {1, 2}) {
        QCOMPARE(result(row), QStringLiteral("Complete."));
        QVERIFY(!list()->topLevelItem(row)->icon(2).isNull());
        auto *const bar =
            qobject_cast<QProgressBar *>(list()->itemWidget(list()->topLevelItem(row), 1));
        QVERIFY(bar);
        QCOMPARE(bar->value(), 100);
    }
    QVERIFY(filesBelow(unwanted).isEmpty());
    QCOMPARE(filesBelow(folder(QStringLiteral("b"))).size(), 2);
    QVERIFY(!button(Names::retryButton)->isEnabled());
    QVERIFY(!button(Names::cancelButton)->isEnabled());
    SignalLog log;
    log.watch(m_dialog.get(), SIGNAL(logRequested()));
    click(Names::logButton);
    QCOMPARE(log.count(QStringLiteral("logRequested")), 1);
}

void tst_UploadDialog::retriesWhatFailed()
{
    const QString late = m_targets->filePath(QStringLiteral("late"));
    show({folder(QStringLiteral("a")), late});
    click(Names::uploadButton);
    QTRY_COMPARE_WITH_TIMEOUT(summary(), QStringLiteral("1 complete, 1 failed, 0 cancelled."),
                              longestUploadMs);
    QVERIFY(result(1).startsWith(QStringLiteral("The target does not exist.")));
    QVERIFY(list()->topLevelItem(1)->toolTip(2).contains(QStringLiteral("No such file")));
    QDir().mkpath(late);
    click(Names::retryButton);
    QTRY_COMPARE_WITH_TIMEOUT(summary(), QStringLiteral("1 complete, 0 failed, 0 cancelled."),
                              longestUploadMs);
    QCOMPARE(result(1), QStringLiteral("Complete."));
    QVERIFY(!filesBelow(late).isEmpty());
}

void tst_UploadDialog::cancels()
{
    RsyncDaemon daemon;
    QVERIFY(daemon.isReady());
    FaultyLine line(daemon.port(), 1, FaultyLine::Fault::GoesSilent);
    show({daemon.address(QStringLiteral("play"), line.port())});
    click(Names::uploadButton);
    QTRY_VERIFY_WITH_TIMEOUT(line.isFaulty(), longestUploadMs);
    click(Names::cancelButton);
    QTRY_COMPARE_WITH_TIMEOUT(summary(), QStringLiteral("0 complete, 0 failed, 1 cancelled."),
                              longestUploadMs);
    QVERIFY(button(Names::retryButton)->isEnabled());
    QVERIFY(filesBelow(daemon.folder()).isEmpty());
}

void tst_UploadDialog::goesOnWhileItIsClosed()
{
    show({folder(QStringLiteral("a"))});
    click(Names::uploadButton);
    click(Names::closeButton);
    QVERIFY(!m_dialog->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(!m_dialog->isUploading(), longestUploadMs);
    QCOMPARE(result(0), QStringLiteral("Complete."));
}

void tst_UploadDialog::asksAboutFindings()
{
    writeFaultyChannel();
    show({folder(QStringLiteral("a"))});
    click(Names::uploadButton);
    QDialog *const asked = question();
    QVERIFY(asked);
    QVERIFY(m_dialog->isUploading());
    QVERIFY(!button(Names::uploadButton)->isEnabled());
    const QAbstractItemModel *const findings = asked->findChild<QTreeView *>()->model();
    QCOMPARE(findings->rowCount(), 2);
    QVERIFY2(findings->index(0, 0).data().toString() == QLatin1String("channel1.xml"),
             qPrintable(findings->index(0, 0).data().toString()));
    // What is pressed without reading sends nothing.
    QTest::keyClick(asked, Qt::Key_Return);
    QTRY_VERIFY(!m_dialog->isUploading());
    QCOMPARE(summary(), QStringLiteral("Nothing was uploaded."));
    QVERIFY(filesBelow(folder(QStringLiteral("a"))).isEmpty());
    QVERIFY(!m_folder->names().contains(QStringLiteral("Log")));

    click(Names::uploadButton);
    answer(Names::goOnButton);
    QTRY_VERIFY_WITH_TIMEOUT(summary().startsWith(QStringLiteral("1 complete")), longestUploadMs);
    QVERIFY(!filesBelow(folder(QStringLiteral("a"))).isEmpty());
    const QByteArray log = m_folder->read(QStringLiteral("Log/Editor/UploadLog.txt"));
    QVERIFY(log.contains("The check found 2 thing(s):"));
    QVERIFY(log.contains("channel1.xml: Ch.1:"));
    // What was accepted once is asked about again by the next upload.
    click(Names::uploadButton);
    answer(Names::stopButton);
    QTRY_COMPARE(summary(), QStringLiteral("Nothing was uploaded."));
}

void tst_UploadDialog::asksThoughItIsClosed()
{
    writeFaultyChannel();
    show({folder(QStringLiteral("a"))});
    click(Names::uploadButton);
    click(Names::closeButton);
    QVERIFY(question());
    QVERIFY(m_dialog->isVisible());
    QTest::keyClick(question(), Qt::Key_Escape);
    QTRY_VERIFY(!m_dialog->isUploading());
    QVERIFY(filesBelow(folder(QStringLiteral("a"))).isEmpty());
}

void tst_UploadDialog::asksAtARetryOnlyWhatIsNew()
{
    writeFaultyChannel();
    const QString late = m_targets->filePath(QStringLiteral("late"));
    show({late});
    click(Names::uploadButton);
    answer(Names::goOnButton);
    QTRY_VERIFY_WITH_TIMEOUT(summary().startsWith(QStringLiteral("0 complete, 1 failed")),
                             longestUploadMs);
    click(Names::retryButton);
    QTRY_VERIFY_WITH_TIMEOUT(summary().startsWith(QStringLiteral("0 complete, 1 failed")),
                             longestUploadMs);
    ZavoTest::writeChannel(*m_folder, 2, QStringLiteral("c.xml"));
    QDir().mkpath(late);
    click(Names::retryButton);
    answer(Names::goOnButton);
    QTRY_VERIFY_WITH_TIMEOUT(summary().startsWith(QStringLiteral("1 complete")), longestUploadMs);
}

void tst_UploadDialog::uploadsNothingThatCannotBeChecked()
{
    show({folder(QStringLiteral("a"))});
    QVERIFY(QDir(m_folder->channelFolder()).removeRecursively());
    m_folder->write(QStringLiteral("channel"), "a file");
    click(Names::uploadButton);
    QTRY_VERIFY_WITH_TIMEOUT(!m_dialog->isUploading(), longestUploadMs);
    QVERIFY2(summary().contains(m_folder->channelFolder()), qPrintable(summary()));
    QVERIFY(filesBelow(folder(QStringLiteral("a"))).isEmpty());
}

void tst_UploadDialog::showsTheProgressOfTheCheck()
{
    for (int number = 1; number < 100; ++number)
        ZavoTest::writeChannel(*m_folder, number, QStringLiteral("a.xml"));
    show({folder(QStringLiteral("a"))});
    {
        const ZavoTest::SlowDisk slow;
        click(Names::uploadButton);
        QTRY_VERIFY_WITH_TIMEOUT(summary().contains(QStringLiteral("of 100 files")),
                                 longestUploadMs);
        click(Names::cancelButton);
        QTRY_COMPARE_WITH_TIMEOUT(summary(), QStringLiteral("Cancelled before anything was sent."),
                                  longestUploadMs);
    }
    QVERIFY(!m_dialog->isUploading());
    QVERIFY(filesBelow(folder(QStringLiteral("a"))).isEmpty());
}

void tst_UploadDialog::givesUpAtTheEndOfTheProgram()
{
    writeFaultyChannel();
    show({folder(QStringLiteral("a"))});
    click(Names::uploadButton);
    QVERIFY(question());
    m_dialog->cancelUpload();
    QTRY_VERIFY(!m_dialog->isUploading());
    click(Names::uploadButton);
    m_dialog.reset();
    show({folder(QStringLiteral("a"))});
    click(Names::uploadButton);
    QVERIFY(question());
    m_dialog.reset();
    QVERIFY(filesBelow(folder(QStringLiteral("a"))).isEmpty());
}

void tst_UploadDialog::tellsWhatIsMissing()
{
    writeFaultyChannel();
    m_folder->write(QStringLiteral("Log"), "no folder");
    show({folder(QStringLiteral("a"))});
    click(Names::uploadButton);
    answer(Names::goOnButton);
    QTRY_VERIFY_WITH_TIMEOUT(summary().startsWith(QStringLiteral("1 complete")), longestUploadMs);
    QVERIFY(summary().contains(QStringLiteral("1 thing(s) to note")));
    QVERIFY(summary().contains(QStringLiteral("The log cannot be written")));
}

void tst_UploadDialog::hasNamesForAll()
{
    show({folder(QStringLiteral("a"))});
    QVERIFY(!list()->accessibleName().isEmpty());
    for (const QPushButton *each : m_dialog->findChildren<QPushButton *>()) {
        QVERIFY(!each->text().isEmpty());
        QVERIFY2(!each->statusTip().isEmpty(), qPrintable(each->text()));
    }
}

void tst_UploadDialog::opensFromTheMenu()
{
    HostWindow window;
    QString message;
    QVERIFY(window.start(&message));
    window.show();
    QAction *const action = window.editor()->getAction(QStringLiteral("Action_Upload"));
    QVERIFY(action->isEnabled());
    MessageBoxAnswer noBox;
    action->trigger();
    const auto *const dialog = window.findChild<QDialog *>(QLatin1String(Names::dialog));
    QVERIFY(dialog);
    QVERIFY(dialog->isVisible());
    action->trigger();
    QCOMPARE(window.findChildren<QDialog *>(QLatin1String(Names::dialog)).size(), 1);
    window.close();
}

void tst_UploadDialog::staysShutInOneMachine()
{
    m_folder->write(QStringLiteral("config.ini"), "[General]\nAllInOne=true\n");
    const HostWindow window;
    QVERIFY(!window.editor()->getAction(QStringLiteral("Action_Upload"))->isEnabled());
}

void tst_UploadDialog::asksBeforeTheProgramEnds()
{
    RsyncDaemon daemon;
    QVERIFY(daemon.isReady());
    FaultyLine line(daemon.port(), 1, FaultyLine::Fault::GoesSilent);
    Zavo::UploadTargets::store(
        {{UploadTarget(daemon.address(QStringLiteral("play"), line.port())), true}});
    HostWindow window;
    QString message;
    QVERIFY(window.start(&message));
    window.show();
    window.editor()->getAction(QStringLiteral("Action_Upload"))->trigger();
    auto *const dialog = window.findChild<UploadDialog *>(QLatin1String(Names::dialog));
    QTest::mouseClick(dialog->findChild<QPushButton *>(QLatin1String(Names::uploadButton)),
                      Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(line.isFaulty(), longestUploadMs);
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::No).title(QStringLiteral("Upload"));
    answer.expect(QMessageBox::Yes).buttons(QMessageBox::Yes | QMessageBox::No);
    QVERIFY(!window.close());
    QVERIFY(dialog->isUploading());
    QVERIFY(window.close());
    QVERIFY(answer.isDone());
}

QTEST_MAIN(tst_UploadDialog)
#include "tst_uploaddialog.moc"
