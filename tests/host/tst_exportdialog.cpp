#include "exporter/ExportDialog.h"

#include "FolderFaults.h"
#include "HostWindow.h"
#include "MessageBoxAnswer.h"
#include "TemporaryDataFolder.h"
#include "editor/ZvScheduleEditor.h"
#include "exporter/ExportNames.h"

#include <QAction>
#include <QComboBox>
#include <QDateEdit>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

using Zavo::ExportDialog;
using Zavo::ExportRequest;
using Zavo::HostWindow;
using ZavoTest::MessageBoxAnswer;
using ZavoTest::TemporaryDataFolder;

namespace ExportNames = Zavo::ExportNames;

class tst_ExportDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void asksForWhatTheFormatNeeds();
    void proposesAName();
    void exportsByClick_data();
    void exportsByClick();
    void asksBeforeItReplaces();
    void saysWhatIsWrong();
    void showsRemarks();
    void remembersTheFolder();
    void dates();
    void diesDuringAnExport();
    void opensFromTheEditor();

private:
    template<typename T>
    T *part(const char *name) const
    {
        return m_dialog->findChild<T *>(QLatin1String(name));
    }

    QString message() const { return part<QLabel>(ExportNames::message)->text(); }
    void choose(ExportRequest::Format format);
    void type(const QString &target);
    void clickExport();
    QString out(const QString &name) const
    {
        return m_folder->filePath(QStringLiteral("out/") + name);
    }

    std::unique_ptr<TemporaryDataFolder> m_folder;
    std::unique_ptr<ExportDialog> m_dialog;
    QString m_channelFile;
};

void tst_ExportDialog::init()
{
    m_folder = std::make_unique<TemporaryDataFolder>();
    m_folder->makeFolder(QStringLiteral("out"));
    m_folder->settings()->setValue(QLatin1String(ExportNames::folderKey),
                                   m_folder->filePath(QStringLiteral("out")));
    m_channelFile = m_folder->write(
        QStringLiteral("channel/channel7.xml"),
        "<Channel version=\"1\" id=\"7\" index=\"0\" name=\"Hall\"><Schedule type=\"default\" "
        "defaultStage=\"none.xml\"/></Channel>");
    m_dialog = std::make_unique<ExportDialog>();
    m_dialog->showChannel(m_channelFile);
}

void tst_ExportDialog::cleanup()
{
    m_dialog.reset();
    m_folder.reset();
}

void tst_ExportDialog::choose(ExportRequest::Format format)
{
    auto *const box = part<QComboBox>(ExportNames::format);
    box->setFocus();
    while (box->currentData().toInt() != format && box->currentIndex() < box->count() - 1)
        QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(box->currentData().toInt(), int(format));
}

void tst_ExportDialog::type(const QString &target)
{
    auto *const edit = part<QLineEdit>(ExportNames::target);
    edit->selectAll();
    QTest::keyClicks(edit, target);
}

void tst_ExportDialog::clickExport()
{
    QSignalSpy exported(m_dialog.get(), SIGNAL(exported()));
    QTest::mouseClick(part<QPushButton>(ExportNames::exportButton), Qt::LeftButton);
    if (m_dialog->isExporting())
        QVERIFY(exported.wait());
    QVERIFY(!m_dialog->isExporting());
}

void tst_ExportDialog::asksForWhatTheFormatNeeds()
{
    const auto shown = [this] {
        return QString::number(part<QDateEdit>(ExportNames::firstDate)->isVisible()) +
               QString::number(part<QDateEdit>(ExportNames::lastDate)->isVisible());
    };
    QCOMPARE(shown(), QStringLiteral("00"));
    choose(ExportRequest::Table);
    QCOMPARE(shown(), QStringLiteral("00"));
    choose(ExportRequest::Calendar);
    QCOMPARE(shown(), QStringLiteral("11"));
    choose(ExportRequest::WeekSheet);
    QCOMPARE(shown(), QStringLiteral("10"));
}

void tst_ExportDialog::proposesAName()
{
    auto *const target = part<QLineEdit>(ExportNames::target);
    QCOMPARE(target->text(), out(QStringLiteral("channel7.zip")));
    choose(ExportRequest::Table);
    QCOMPARE(target->text(), out(QStringLiteral("channel7.csv")));
    // A name of the user's own stays.
    type(out(QStringLiteral("mine.txt")));
    choose(ExportRequest::WeekSheet);
    QCOMPARE(target->text(), out(QStringLiteral("mine.txt")));
    m_dialog->showChannel(m_folder->filePath(QStringLiteral("channel/channel8.xml")));
    QCOMPARE(target->text(), out(QStringLiteral("channel8.pdf")));
}

void tst_ExportDialog::exportsByClick_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("start");
    QTest::newRow("package") << int(ExportRequest::Package) << "channel7.zip"
                             << QByteArray("PK\x03\x04");
    QTest::newRow("table") << int(ExportRequest::Table) << "channel7.csv"
                           << QByteArray("\xef\xbb\xbf"
                                         "channel,");
    QTest::newRow("calendar") << int(ExportRequest::Calendar) << "channel7.ics"
                              << QByteArray("BEGIN:VCALENDAR\r\n");
    QTest::newRow("week sheet") << int(ExportRequest::WeekSheet) << "channel7.pdf"
                                << QByteArray("%PDF-");
}

void tst_ExportDialog::exportsByClick()
{
    QFETCH(int, format);
    QFETCH(QString, name);
    QFETCH(QByteArray, start);
    const MessageBoxAnswer noBox;
    choose(static_cast<ExportRequest::Format>(format));
    clickExport();
    QVERIFY2(message().startsWith(QStringLiteral("\"%1\" was written.").arg(out(name))),
             qPrintable(message()));
    QVERIFY(m_folder->read(QStringLiteral("out/") + name).startsWith(start));
    QVERIFY(part<QPushButton>(ExportNames::exportButton)->isEnabled());
}

void tst_ExportDialog::asksBeforeItReplaces()
{
    m_folder->write(QStringLiteral("out/channel7.zip"), "old");
    {
        MessageBoxAnswer answer;
        answer.expect(QMessageBox::No).buttons(QMessageBox::Yes | QMessageBox::No);
        clickExport();
        QVERIFY(answer.isDone());
    }
    QCOMPARE(m_folder->read(QStringLiteral("out/channel7.zip")), QByteArray("old"));
    {
        MessageBoxAnswer answer;
        answer.expect(QMessageBox::Yes);
        clickExport();
        QVERIFY(answer.isDone());
    }
    QVERIFY(m_folder->read(QStringLiteral("out/channel7.zip")).startsWith("PK"));
}

void tst_ExportDialog::saysWhatIsWrong()
{
    const MessageBoxAnswer noBox;
    type(out(QStringLiteral("../up.zip")));
    clickExport();
    QVERIFY2(message().contains(QLatin1String("\"..\"")), qPrintable(message()));
    type(m_channelFile);
    clickExport();
    QVERIFY2(message().contains(QLatin1String("among the files")), qPrintable(message()));
    QVERIFY(m_folder->read(QStringLiteral("channel/channel7.xml")).startsWith("<Channel"));
    type(out(QStringLiteral("a.zip")));
    QVERIFY(QFile::remove(m_channelFile));
    clickExport();
    QVERIFY2(message().contains(QLatin1String("cannot be read")), qPrintable(message()));
    QVERIFY(m_folder->names(QStringLiteral("out")).isEmpty());
}

void tst_ExportDialog::showsRemarks()
{
    clickExport();
    QVERIFY2(message().contains(QLatin1String("The stage \"none.xml\" does not exist.")),
             qPrintable(message()));
}

void tst_ExportDialog::remembersTheFolder()
{
    const QString other = m_folder->makeFolder(QStringLiteral("other"));
    type(other + QStringLiteral("/a.zip"));
    clickExport();
    m_dialog = std::make_unique<ExportDialog>();
    m_dialog->showChannel(m_channelFile);
    QCOMPARE(part<QLineEdit>(ExportNames::target)->text(), other + QStringLiteral("/channel7.zip"));
}

void tst_ExportDialog::dates()
{
    auto *const first = part<QDateEdit>(ExportNames::firstDate);
    auto *const last = part<QDateEdit>(ExportNames::lastDate);
    first->setDate(QDate(2030, 1, 1));
    QCOMPARE(last->minimumDate(), QDate(2030, 1, 1));
    QCOMPARE(last->maximumDate(), QDate(2031, 1, 1));
    QVERIFY(last->date() >= first->date());
}

void tst_ExportDialog::diesDuringAnExport()
{
    QTest::mouseClick(part<QPushButton>(ExportNames::exportButton), Qt::LeftButton);
    m_dialog.reset();
    QCoreApplication::processEvents();
    // Written or not, but nothing in between.
    const QStringList names = m_folder->names(QStringLiteral("out"));
    QVERIFY(names.isEmpty() || names == QStringList{QStringLiteral("channel7.zip")});
}

void tst_ExportDialog::opensFromTheEditor()
{
    HostWindow window;
    QString problem;
    QVERIFY2(window.start(&problem), qPrintable(problem));
    window.show();
    auto *const tabs = window.findChild<QTabWidget *>(QStringLiteral("ScheduleTabWidget"));
    QVERIFY(tabs);
    QTRY_COMPARE(tabs->count(), 1);
    QAction *const action =
        window.editor()->getAction(QStringLiteral("Action_Output_Channel_Data"));
    QVERIFY(action);
    QVERIFY(action->isEnabled());
    action->trigger();
    auto *const dialog = window.findChild<ExportDialog *>();
    QVERIFY(dialog);
    QVERIFY(dialog->isVisible());
    QVERIFY(!dialog->isModal());
    QCOMPARE(dialog->findChild<QLineEdit *>(QLatin1String(ExportNames::target))->text(),
             out(QStringLiteral("channel7.zip")));
}

QTEST_MAIN(tst_ExportDialog)
#include "tst_exportdialog.moc"
