#include "ClipboardPage.h"
#include "VirtualDisplay.h"

#include <QApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

#include <memory>

using namespace ZavoTest;

namespace {

constexpr int patienceMs = 60000;

/// Another run of this program, which shows a page on the display.
class PageProcess final
{
public:
    explicit PageProcess(const QString &display)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        environment.insert(QStringLiteral("DISPLAY"), display);
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QCoreApplication::applicationFilePath(),
                        {QLatin1String(ClipboardPage::Argument)});
    }
    Q_DISABLE_COPY(PageProcess)
    ~PageProcess() { end(); }

    QString ask(const QString &command)
    {
        m_process.write(command.toUtf8() + '\n');
        while (!m_process.canReadLine() && m_process.waitForReadyRead(patienceMs)) {
        }
        return QString::fromUtf8(m_process.readLine()).trimmed();
    }

    void end()
    {
        m_process.closeWriteChannel();
        if (!m_process.waitForFinished(patienceMs))
            m_process.kill();
    }

private:
    QProcess m_process;
};

} // namespace

/// Two running programs on one display.
class tst_ClipboardProcesses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void bands();
    void wholeTable();
    void schedules();
    void clipboardOfAProgramThatEnded();

private:
    std::unique_ptr<VirtualDisplay> m_display;
};

void tst_ClipboardProcesses::initTestCase()
{
    if (QStandardPaths::findExecutable(QStringLiteral("Xvfb")).isEmpty())
        QSKIP("There is no Xvfb to show two programs on.");
    m_display = std::make_unique<VirtualDisplay>();
    QVERIFY(!m_display->name().isEmpty());
}

void tst_ClipboardProcesses::bands()
{
    PageProcess source(m_display->name());
    PageProcess target(m_display->name());
    QCOMPARE(target.ask(QStringLiteral("possible")), QStringLiteral("no"));
    QCOMPARE(target.ask(QStringLiteral("paste")), QStringLiteral("no"));
    QCOMPARE(source.ask(QStringLiteral("copy")), QStringLiteral("no"));
    source.ask(QStringLiteral("bands 2"));
    QCOMPARE(source.ask(QStringLiteral("copy")), QStringLiteral("yes"));
    QTRY_COMPARE(target.ask(QStringLiteral("possible")), QStringLiteral("yes"));
    const QStringList pasted = target.ask(QStringLiteral("paste")).split(QStringLiteral("; "));
    QCOMPARE(pasted.size(), 2);
    QVERIFY2(pasted.at(0).endsWith(QLatin1String(" s0.xml")), qPrintable(pasted.at(0)));
    QVERIFY2(pasted.at(1).endsWith(QLatin1String(" s1.xml")), qPrintable(pasted.at(1)));
    // The second one starts where the first one ends.
    QCOMPARE(pasted.at(0).section(QLatin1Char(' '), 0, 0).section(QLatin1Char('-'), 1),
             pasted.at(1).section(QLatin1Char('-'), 0, 0));
    // And back again.
    QCOMPARE(target.ask(QStringLiteral("cut")), QStringLiteral("yes"));
    source.ask(QStringLiteral("bands 0"));
    QCOMPARE(source.ask(QStringLiteral("paste")).count(QLatin1Char(';')), 1);
}

// More than fits into one message of the display's protocol.
void tst_ClipboardProcesses::wholeTable()
{
    PageProcess source(m_display->name());
    PageProcess target(m_display->name());
    source.ask(QStringLiteral("bands 3000"));
    QCOMPARE(source.ask(QStringLiteral("copy")), QStringLiteral("yes"));
    QTRY_COMPARE(target.ask(QStringLiteral("possible")), QStringLiteral("yes"));
    QCOMPARE(target.ask(QStringLiteral("paste")).count(QLatin1Char(';')), 2999);
}

void tst_ClipboardProcesses::schedules()
{
    PageProcess source(m_display->name());
    PageProcess target(m_display->name());
    source.ask(QStringLiteral("writeSchedules"));
    QTRY_COMPARE(target.ask(QStringLiteral("readSchedules")),
                 QStringLiteral("2026-03-09 d.xml [00:00:00.00-00:00:20.00 s0.xml];   []; "
                                "2026-03-11  []"));
    QCOMPARE(target.ask(QStringLiteral("possible")), QStringLiteral("no"));
}

void tst_ClipboardProcesses::clipboardOfAProgramThatEnded()
{
    PageProcess source(m_display->name());
    PageProcess target(m_display->name());
    source.ask(QStringLiteral("bands 2"));
    QCOMPARE(source.ask(QStringLiteral("copy")), QStringLiteral("yes"));
    QTRY_COMPARE(target.ask(QStringLiteral("possible")), QStringLiteral("yes"));
    source.end();
    QTRY_COMPARE(target.ask(QStringLiteral("possible")), QStringLiteral("no"));
    QCOMPARE(target.ask(QStringLiteral("paste")), QStringLiteral("no"));
}

int main(int argc, char *argv[])
{
    if (argc > 1 && qstrcmp(argv[1], ClipboardPage::Argument) == 0) {
        const QApplication application(argc, argv);
        const ClipboardPage page;
        return QApplication::exec();
    }
    QCoreApplication application(argc, argv);
    tst_ClipboardProcesses test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_clipboardprocesses.moc"
