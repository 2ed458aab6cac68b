#include "EditorFixture.h"
#include "MessageBoxAnswer.h"

#include <QDesktopServices>

using namespace Zavo;
using namespace ZavoTest;

namespace {

const QString OpenFolder = QStringLiteral("Open Log Folder");
const QString OpenFile = QStringLiteral("Open Log File");
const QString NoFolder = QStringLiteral("The log folder does not exist.\n");
const QString NoFile =
    QStringLiteral("The log file does not exist.\nDo you want to open the log folder?");

/// The desktop: notes what it is asked to open, or has no program for it.
class Desktop final : public QObject
{
    Q_OBJECT

public:
    explicit Desktop(bool canOpen = true)
    {
        QDesktopServices::setUrlHandler(QString(), this, canOpen ? "open" : "openNot");
    }
    ~Desktop() override { QDesktopServices::unsetUrlHandler(QString()); }
    Q_DISABLE_COPY(Desktop)

    static void announceFailure()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("openNot")));
    }

    QList<QUrl> urls;

public Q_SLOTS:
    void open(const QUrl &url) { urls.append(url); }
};

} // namespace

/// The log of uploads is found and handed to the desktop.
class tst_UploadLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void folderIsMade();
    void folderOpens();
    void folderThatCannotBeMade();
    void folderThatCannotBeOpened();
    void lowestNameOpens_data();
    void lowestNameOpens();
    void fileThatCannotBeOpened();
    void noFileOffersTheFolder();
    void noFileAndNoFolder();
    void questionDeclined_data();
    void questionDeclined();
    void logIsLeftAsItIs();
    void withoutAWindow();
    void afterClosing();
    void hostDiesBehindTheQuestion();
};

void tst_UploadLog::folderIsMade()
{
    const TemporaryDataFolder data;
    const QString path = data.filePath(QStringLiteral("Log/Editor"));
    QVERIFY(!QFileInfo::exists(path));
    QCOMPARE(ZvScheduleEditor::getUploadLogDir().absolutePath(), path);
    QVERIFY(QFileInfo(path).isDir());
    QVERIFY(ZvScheduleEditor::getUploadLogDir().exists());
}

void tst_UploadLog::folderOpens()
{
    const MessageBoxAnswer noBoxes;
    const Desktop desktop;
    EditorFixture host;
    QVERIFY(host.start());
    host.action("Action_OPen_Log_Folder")->trigger();
    const QString path = host.data.filePath(QStringLiteral("Log/Editor"));
    QCOMPARE(desktop.urls, QList<QUrl>{QUrl(path)});
    QVERIFY(desktop.urls.first().scheme().isEmpty());
    QVERIFY(QFileInfo(path).isDir());
}

void tst_UploadLog::folderThatCannotBeMade()
{
    const Desktop desktop;
    EditorFixture host;
    host.data.write(QStringLiteral("Log"), "no folder");
    MessageBoxAnswer boxes;
    boxes.expect(QMessageBox::Ok)
        .icon(QMessageBox::Critical)
        .title(OpenFolder)
        .text(NoFolder)
        .buttons(QMessageBox::Ok)
        .whileShown([&host](const QMessageBox *box) {
            QCOMPARE(box->parentWidget(), static_cast<QWidget *>(host.window.get()));
        });
    host.action("Action_OPen_Log_Folder")->trigger();
    QVERIFY(boxes.isDone());
    QVERIFY(desktop.urls.isEmpty());
    QVERIFY(!ZvScheduleEditor::getUploadLogDir().exists());
    // The object remains usable.
    QVERIFY(QFile::remove(host.data.filePath(QStringLiteral("Log"))));
    host.editor->openUploadLogDir();
    QCOMPARE(desktop.urls.size(), 1);
}

void tst_UploadLog::folderThatCannotBeOpened()
{
    const Desktop desktop(false);
    const EditorFixture host;
    MessageBoxAnswer boxes;
    boxes.expect(QMessageBox::Ok)
        .icon(QMessageBox::Critical)
        .title(OpenFolder)
        .text(QStringLiteral("The log folder can not be opened.\n"))
        .buttons(QMessageBox::Ok);
    Desktop::announceFailure();
    host.editor->openUploadLogDir();
}

void tst_UploadLog::lowestNameOpens_data()
{
    QTest::addColumn<QStringList>("names"); // oldest first
    QTest::addColumn<QString>("opened");
    const auto row = [](const char *name, const char *names, const char *opened) {
        QTest::newRow(name) << QString::fromLatin1(names).split(QLatin1Char(' '))
                            << QString::fromLatin1(opened);
    };
    row("one", "UploadLog.txt", "UploadLog.txt");
    row("lower is newer", "UploadLog2.txt UploadLog1.txt", "UploadLog1.txt");
    row("lower is older", "UploadLog1.txt UploadLog2.txt", "UploadLog1.txt");
    row("by characters, not by number", "UploadLog9.txt UploadLog10.txt", "UploadLog10.txt");
    row("others beside", "A.txt UploadLog.log OldUploadLog.txt UploadLog1.txt.bak UploadLog7.txt",
        "UploadLog7.txt");
    row("blanks and more", "UploadLog_b.txt UploadLog_a.txt UploadLogs.txt", "UploadLog_a.txt");
}

void tst_UploadLog::lowestNameOpens()
{
    QFETCH(QStringList, names);
    QFETCH(QString, opened);
    const MessageBoxAnswer noBoxes;
    const Desktop desktop;
    EditorFixture host;
    QDateTime time = QDateTime::currentDateTime().addDays(-100);
    for (const QString &name : names) {
        QFile file(host.data.write(QStringLiteral("Log/Editor/") + name, "log"));
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(time = time.addDays(1), QFileDevice::FileModificationTime));
    }
    host.data.makeFolder(QStringLiteral("Log/Editor/UploadLog0.txt")); // a folder is no log
    host.action("Action_Show_Log_File")->trigger();
    QCOMPARE(desktop.urls,
             QList<QUrl>{QUrl(host.data.filePath(QStringLiteral("Log/Editor/") + opened))});
}

void tst_UploadLog::fileThatCannotBeOpened()
{
    const Desktop desktop(false);
    EditorFixture host;
    host.data.write(QStringLiteral("Log/Editor/UploadLog.txt"), "log");
    MessageBoxAnswer boxes;
    boxes.expect(QMessageBox::Ok)
        .icon(QMessageBox::Critical)
        .title(OpenFile)
        .text(QStringLiteral("The log file can not be opened.\nPlease make sure that you have an "
                             "application that is associated with the extension \".txt\"."))
        .buttons(QMessageBox::Ok);
    Desktop::announceFailure();
    host.editor->showUploadLogFile();
}

void tst_UploadLog::noFileOffersTheFolder()
{
    const Desktop desktop;
    EditorFixture host;
    MessageBoxAnswer boxes;
    boxes.expect(QMessageBox::Yes)
        .icon(QMessageBox::Warning)
        .title(OpenFile)
        .text(NoFile)
        .buttons(QMessageBox::Yes | QMessageBox::No)
        .whileShown([&host](const QMessageBox *box) {
            QCOMPARE(box->parentWidget(), static_cast<QWidget *>(host.window.get()));
        });
    host.editor->showUploadLogFile();
    QCOMPARE(desktop.urls, QList<QUrl>{QUrl(host.data.filePath(QStringLiteral("Log/Editor")))});
    // A link that leads nowhere is no log either.
    QVERIFY(QFile::link(host.data.filePath(QStringLiteral("gone.txt")),
                        host.data.filePath(QStringLiteral("Log/Editor/UploadLog.txt"))));
    boxes.expect(QMessageBox::No).title(OpenFile).text(NoFile);
    host.editor->showUploadLogFile();
    QVERIFY(boxes.isDone());
}

void tst_UploadLog::noFileAndNoFolder()
{
    const Desktop desktop;
    EditorFixture host;
    host.data.write(QStringLiteral("Log/Editor"), "no folder");
    MessageBoxAnswer boxes;
    boxes.expect(QMessageBox::Yes).title(OpenFile).text(NoFile);
    boxes.expect(QMessageBox::Ok).icon(QMessageBox::Critical).title(OpenFolder).text(NoFolder);
    host.editor->showUploadLogFile();
    QVERIFY(boxes.isDone());
    QVERIFY(desktop.urls.isEmpty());
    QCOMPARE(host.data.read(QStringLiteral("Log/Editor")), QByteArray("no folder"));
}

void tst_UploadLog::questionDeclined_data()
{
    QTest::addColumn<bool>("byEscape");
    QTest::newRow("no") << false;
    QTest::newRow("escape") << true;
}

void tst_UploadLog::questionDeclined()
{
    QFETCH(bool, byEscape);
    const auto reply = byEscape ? QMessageBox::NoButton : QMessageBox::No;
    const Desktop desktop;
    const EditorFixture host;
    MessageBoxAnswer boxes;
    boxes.expect(reply).title(OpenFile).text(NoFile);
    host.editor->showUploadLogFile();
    QVERIFY(boxes.isDone());
    QVERIFY(desktop.urls.isEmpty());
}

void tst_UploadLog::logIsLeftAsItIs()
{
    const Desktop desktop;
    EditorFixture host;
    QVERIFY(host.start());
    host.data.write(QStringLiteral("Log/Editor/UploadLog.txt"), "log");
    host.editor->showUploadLogFile();
    host.editor->openUploadLogDir();
    host.editor->close();
    QCOMPARE(host.data.names(QStringLiteral("Log/Editor")),
             QStringList{QStringLiteral("UploadLog.txt")});
    QCOMPARE(host.data.read(QStringLiteral("Log/Editor/UploadLog.txt")), QByteArray("log"));
    QCOMPARE(desktop.urls.size(), 2);
}

void tst_UploadLog::withoutAWindow()
{
    const TemporaryDataFolder data;
    const Desktop desktop;
    ZvScheduleEditor editor(nullptr);
    MessageBoxAnswer boxes;
    boxes.expect(QMessageBox::Yes).title(OpenFile).text(NoFile);
    editor.showUploadLogFile();
    QVERIFY(boxes.isDone());
    QCOMPARE(desktop.urls.size(), 1);
}

void tst_UploadLog::afterClosing()
{
    const MessageBoxAnswer noBoxes;
    const Desktop desktop;
    EditorFixture host;
    QVERIFY(host.start());
    host.editor->close();
    host.action("Action_OPen_Log_Folder")->trigger();
    QCOMPARE(desktop.urls.size(), 1);
    host.action("Action_Change_Channel_Order")->trigger();
    host.action("Action_Show_Channel_Information")->trigger();
}

void tst_UploadLog::hostDiesBehindTheQuestion()
{
    const Desktop desktop;
    EditorFixture host;
    MessageBoxAnswer boxes;
    boxes.expect(QMessageBox::Yes).whileShown([&host](QMessageBox *) { host.window.reset(); });
    host.editor->showUploadLogFile();
    QVERIFY(!host.editor);
    QVERIFY(desktop.urls.isEmpty());
}

QTEST_MAIN(tst_UploadLog)
#include "tst_uploadlog.moc"
