#include "check/CheckDialog.h"

#include "ChannelFiles.h"
#include "HostWindow.h"
#include "SlowDisk.h"
#include "TemporaryDataFolder.h"
#include "check/CheckCommand.h"
#include "check/CheckFindingModel.h"
#include "check/CheckNames.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryFile>
#include <QTreeView>
#include <QtTest>

using Zavo::CheckCommand;
using Zavo::CheckDialog;
using Zavo::CheckFinding;
using Zavo::CheckFindingModel;
using Zavo::HostWindow;
using ZavoTest::SlowDisk;
using ZavoTest::TemporaryDataFolder;

namespace CheckNames = Zavo::CheckNames;

class tst_CheckDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void showsFindings();
    void checksAgain();
    void saysThatNothingWasFound();
    void saysWhyItCannotCheck();
    void cancelsAndStartsAgain();
    void diesDuringACheck();
    void neverBlocksTheWindow();
    void modelHoldsTheRules();
    void opensFromTheMenu();
    void showsProgressOnASlowDisk();
    void commandTellsHowFarItIs();

private:
    template<typename T>
    T *part(const char *name) const
    {
        return m_dialog->findChild<T *>(QLatin1String(name));
    }

    void writeChannels(int count, int schedules = 0);
    QString summary() const { return part<QLabel>(CheckNames::summary)->text(); }
    QString cell(int row, int column) const;
    void check();

    std::unique_ptr<TemporaryDataFolder> m_folder;
    std::unique_ptr<CheckDialog> m_dialog;
};

void tst_CheckDialog::init()
{
    m_folder = std::make_unique<TemporaryDataFolder>();
    m_dialog = std::make_unique<CheckDialog>();
}

void tst_CheckDialog::cleanup()
{
    m_dialog.reset();
    m_folder.reset();
}

void tst_CheckDialog::writeChannels(int count, int schedules)
{
    QByteArray days;
    for (int i = 0; i < schedules; ++i) {
        days += "<Schedule type=\"date\" date=\"" +
                QDate::currentDate().addDays(i).toString(Qt::ISODate).toLatin1() + "\">";
        for (int hour = 0; hour < 24; ++hour)
            days += QStringLiteral("<Time stage=\"none.xml\" start=\"%1:00:00.000\" "
                                   "end=\"%1:30:00.000\"/>")
                        .arg(hour, 2, 10, QLatin1Char('0'))
                        .toLatin1();
        days += "</Schedule>\n";
    }
    for (int number = 1; number <= count; ++number)
        m_folder->write(QStringLiteral("channel/") + ZavoTest::channelFileName(number),
                        "<?xml version=\"1.0\"?><Channel version=\"1\" name=\"Lobby\" id=\"" +
                            QByteArray::number(number) + "\" index=\"" +
                            QByteArray::number(number) + "\">" + days + "</Channel>");
}

QString tst_CheckDialog::cell(int row, int column) const
{
    const QAbstractItemModel *const model = part<QTreeView>(CheckNames::findings)->model();
    return model->index(row, column).data().toString();
}

void tst_CheckDialog::check()
{
    QSignalSpy checked(m_dialog.get(), SIGNAL(checked()));
    m_dialog->check();
    QVERIFY(m_dialog->isChecking());
    QVERIFY(checked.wait());
    QVERIFY(!m_dialog->isChecking());
}

void tst_CheckDialog::showsFindings()
{
    writeChannels(2);
    m_folder->write(QStringLiteral("channel/channel3.xml"), "damaged");
    check();
    QVERIFY(m_dialog->isVisible());
    auto *const view = part<QTreeView>(CheckNames::findings);
    QCOMPARE(view->model()->rowCount(), 3);
    QCOMPARE(cell(0, CheckFindingModel::FindingFile), QStringLiteral("channel1.xml"));
    QCOMPARE(cell(0, CheckFindingModel::FindingChannel), QStringLiteral("Lobby"));
    QVERIFY(
        cell(0, CheckFindingModel::FindingText).startsWith(QLatin1String("There is no default")));
    QCOMPARE(cell(2, CheckFindingModel::FindingFile), QStringLiteral("channel3.xml"));
    QCOMPARE(summary(), QStringLiteral("3 finding(s) in 3 channel file(s), 0 stage(s)."));
    QVERIFY(!view->accessibleName().isEmpty());

    auto *const copy = part<QPushButton>(CheckNames::copy);
    QVERIFY(copy->isEnabled());
    QTest::mouseClick(copy, Qt::LeftButton);
    const QStringList lines = QGuiApplication::clipboard()->text().split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 3);
    QVERIFY(lines.constFirst().startsWith(QLatin1String("channel1.xml: Lobby: There is no")));
}

void tst_CheckDialog::checksAgain()
{
    writeChannels(1);
    check();
    QVERIFY(summary().startsWith(QLatin1String("1 finding")));
    QVERIFY(QFile::remove(m_folder->filePath(QStringLiteral("channel/channel1.xml"))));
    m_folder->writeStage(QStringLiteral("a.xml"));
    m_folder->write(QStringLiteral("channel/channel2.xml"),
                    "<Channel version=\"1\" name=\"\" id=\"0\" index=\"0\"><Schedule "
                    "type=\"default\" defaultStage=\"a.xml\"/></Channel>");
    QSignalSpy checked(m_dialog.get(), SIGNAL(checked()));
    QTest::mouseClick(part<QPushButton>(CheckNames::again), Qt::LeftButton);
    QVERIFY(!part<QPushButton>(CheckNames::again)->isEnabled());
    QVERIFY(checked.wait());
    QVERIFY(part<QPushButton>(CheckNames::again)->isEnabled());
    QCOMPARE(summary(), QStringLiteral("Nothing found in 1 channel file(s), 1 stage(s)."));
}

void tst_CheckDialog::saysThatNothingWasFound()
{
    m_folder->copyFrom(QStringLiteral(ZAVO_SOURCE_DIR "/examples/data"));
    for (const auto *name : {"channel/channel10.xml", "channel/channel12.xml"})
        QVERIFY(QFile::remove(m_folder->filePath(QLatin1String(name))));
    check();
    QVERIFY2(summary().startsWith(QLatin1String("Nothing found in ")), qPrintable(summary()));
    QVERIFY(!part<QPushButton>(CheckNames::copy)->isEnabled());
}

void tst_CheckDialog::saysWhyItCannotCheck()
{
    m_folder->write(QStringLiteral("channel"), "a file");
    check();
    QVERIFY2(summary().contains(m_folder->channelFolder()), qPrintable(summary()));
    QCOMPARE(part<QTreeView>(CheckNames::findings)->model()->rowCount(), 0);
}

void tst_CheckDialog::cancelsAndStartsAgain()
{
    writeChannels(200, 20);
    QSignalSpy checked(m_dialog.get(), SIGNAL(checked()));
    m_dialog->check();
    QTest::mouseClick(part<QPushButton>(CheckNames::cancel), Qt::LeftButton);
    QVERIFY(checked.wait());
    QCOMPARE(summary(), QStringLiteral("The check was cancelled."));
    QVERIFY(!part<QPushButton>(CheckNames::cancel)->isEnabled());
    // Closed and opened again while the first check is still ending: the second is a whole one.
    m_dialog->check();
    m_dialog->reject();
    m_dialog->check();
    QVERIFY(checked.wait());
    QVERIFY2(summary().contains(QLatin1String("in 200 channel file(s)")), qPrintable(summary()));
}

void tst_CheckDialog::diesDuringACheck()
{
    writeChannels(200, 20);
    QElapsedTimer timer;
    m_dialog->check();
    timer.start();
    m_dialog.reset();
    QVERIFY(timer.elapsed() < 2000);
    QCoreApplication::processEvents();
}

void tst_CheckDialog::neverBlocksTheWindow()
{
    writeChannels(300, 50);
    qint64 longest = 0;
    QElapsedTimer sinceLast;
    QTimer pulse;
    connect(&pulse, &QTimer::timeout, &pulse, [&] {
        longest = qMax(longest, sinceLast.elapsed());
        sinceLast.restart();
    });
    QSignalSpy checked(m_dialog.get(), SIGNAL(checked()));
    m_dialog->check();
    sinceLast.start();
    pulse.start(0);
    while (checked.isEmpty())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    QVERIFY(!part<QProgressBar>(CheckNames::progress)->isVisible());
    QCOMPARE(part<QTreeView>(CheckNames::findings)->model()->rowCount(), 300 * (50 + 1 + 1));
    // Twenty times what is to hold, since all the machine's processors are at work here.
    QVERIFY2(longest < 1000, qPrintable(QString::number(longest)));
}

void tst_CheckDialog::modelHoldsTheRules()
{
    CheckFindingModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    CheckFinding finding;
    finding.text = QStringLiteral("<b>a</b>");
    model.setFindings({finding, finding});
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.columnCount(), 4);
    const QModelIndex text = model.index(0, CheckFindingModel::FindingText);
    QCOMPARE(text.data().toString(), finding.text);
    QCOMPARE(text.data(Qt::ToolTipRole).toString(), QStringLiteral("<p>&lt;b&gt;a&lt;/b&gt;</p>"));
    QCOMPARE(model.headerData(0, Qt::Horizontal).toString(), QStringLiteral("File"));
    model.setFindings({});
    QCOMPARE(model.rowCount(), 0);
}

void tst_CheckDialog::opensFromTheMenu()
{
    m_folder->writeStage(QStringLiteral("a.xml"));
    HostWindow window;
    QString message;
    QVERIFY2(window.start(&message), qPrintable(message));
    window.show();
    QTRY_VERIFY(QFile::exists(m_folder->filePath(QStringLiteral("channel/channel9.xml"))));
    auto *const action = window.findChild<QAction *>(QStringLiteral("Action_Check_Data"));
    QVERIFY(action);
    QVERIFY(!action->statusTip().isEmpty());
    action->trigger();
    auto *const dialog = window.findChild<CheckDialog *>();
    QVERIFY(dialog);
    QVERIFY(!dialog->isModal());
    QTRY_VERIFY(!dialog->isChecking());
    QCOMPARE(dialog->findChild<QLabel *>(QLatin1String(CheckNames::summary))->text(),
             QStringLiteral("10 finding(s) in 10 channel file(s), 0 stage(s)."));
    action->trigger();
    QCOMPARE(window.findChildren<CheckDialog *>().size(), 1);
}

void tst_CheckDialog::showsProgressOnASlowDisk()
{
    const int count = 40 * QThread::idealThreadCount();
    writeChannels(count);
    const SlowDisk disk;
    QSignalSpy checked(m_dialog.get(), SIGNAL(checked()));
    auto *const progress = part<QProgressBar>(CheckNames::progress);
    m_dialog->check();
    QVERIFY(!progress->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(progress->isVisible(), 1500);
    QVERIFY(checked.isEmpty());
    QCOMPARE(progress->maximum(), count);
    QVERIFY(progress->value() > 0);
    QVERIFY(checked.wait());
    QVERIFY(!progress->isVisible());

    QTemporaryFile errors;
    QVERIFY(errors.open());
    FILE *const out = fopen("/dev/null", "w");
    FILE *const errorStream = fopen(QFile::encodeName(errors.fileName()).constData(), "w");
    QCOMPARE(CheckCommand(out, errorStream, true).run(), CheckCommand::Found);
    fclose(errorStream);
    fclose(out);
    const QByteArray written = errors.readAll();
    QVERIFY2(written.contains(" of " + QByteArray::number(count) + " files checked"),
             written.constData());
    // The line is taken away behind the last word.
    QVERIFY(written.endsWith("\r\x1b[K"));
}

void tst_CheckDialog::commandTellsHowFarItIs()
{
    writeChannels(1);
    QTemporaryFile out;
    QTemporaryFile errors;
    QVERIFY(out.open());
    QVERIFY(errors.open());
    FILE *const outStream = fopen(QFile::encodeName(out.fileName()).constData(), "w");
    FILE *const errorStream = fopen(QFile::encodeName(errors.fileName()).constData(), "w");
    QCOMPARE(CheckCommand(outStream, errorStream, true).run(), CheckCommand::Found);
    fclose(outStream);
    // A short check has no progress to show.
    fflush(errorStream);
    QCOMPARE(errors.readAll(), QByteArray());
    QVERIFY(out.readAll().endsWith("1 finding(s) in 1 channel file(s), 0 stage(s).\n"));
    // A pipe that no one writes to would be passed over; a full device is no answer.
    FILE *const full = fopen("/dev/full", "w");
    QVERIFY(full);
    QCOMPARE(CheckCommand(full, errorStream, false).run(), CheckCommand::NotChecked);
    fclose(full);
    fclose(errorStream);
}

QTEST_MAIN(tst_CheckDialog)
#include "tst_checkdialog.moc"
