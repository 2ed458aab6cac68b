#include "ConfigurationDialog.h"
#include "channels/ChannelConfigurationDialog.h"
#include "check/CheckDialog.h"
#include "check/CheckNames.h"
#include "exporter/ExportDialog.h"
#include "exporter/ExportNames.h"
#include "safety/BackupDialog.h"
#include "safety/BackupStore.h"
#include "upload/UploadDialog.h"
#include "upload/UploadNames.h"

#include "HostNames.h"
#include "UploadBench.h"
#include "ZvChannel.h"

#include <QAbstractItemModel>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>
#include <QtTest>

#include <algorithm>
#include <ctime>
#include <functional>

using Zavo::UploadDialog;
using Zavo::UploadTarget;
using ZavoTest::TemporaryDataFolder;

namespace CheckNames = Zavo::CheckNames;
namespace ExportNames = Zavo::ExportNames;
namespace HostNames = Zavo::HostNames;
namespace UploadNames = Zavo::UploadNames;

namespace {
constexpr int longestMs = 60000;
constexpr int channelCount = 200;
constexpr int schedulesOfAChannel = 50;
// In reads of one of the channels, so that the pace of the machine and of the build do not count.
constexpr int longestPassReads = 30;

/// Of the processor for this thread, so that other programs on the machine do not count either.
qint64 threadNanoseconds()
{
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return qint64(time.tv_sec) * 1000000000 + time.tv_nsec;
}

/// What it takes to read a channel, as the median of some reads.
qint64 readNanoseconds(const QString &channelPath)
{
    constexpr int reads = 9;
    QVector<qint64> times;
    for (int i = 0; i < reads; ++i) {
        const qint64 before = threadNanoseconds();
        Zavo::ZvChannel channel(channelPath);
        if (!channel.readFile())
            return 0;
        times.append(threadNanoseconds() - before);
    }
    std::nth_element(times.begin(), times.begin() + reads / 2, times.end());
    return times.at(reads / 2);
}

/// The longest time for which the thread was at work without going back to the event loop.
class Pulse final : public QObject
{
    Q_OBJECT

public:
    Pulse()
    {
        connect(&m_timer, SIGNAL(timeout()), this, SLOT(beat()));
        m_timer.start(0);
        restart();
    }

    void restart()
    {
        m_last = threadNanoseconds();
        m_longest = 0;
    }

    qint64 longestNanoseconds()
    {
        beat();
        return m_longest;
    }

private Q_SLOTS:
    void beat()
    {
        const qint64 time = threadNanoseconds();
        m_longest = qMax(m_longest, time - m_last);
        m_last = time;
    }

private:
    QTimer m_timer;
    qint64 m_last = 0;
    qint64 m_longest = 0;
};
} // namespace

/// The dialogs of the program over a large data folder: none keeps the window from painting.
class tst_Liveliness : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();
    void checking();
    void choosingChannels();
    void exporting_data();
    void exporting();
    void uploading();
    void lookingAtCopies();
    void configuring();

private:
    static void waitFor(const std::function<bool()> &condition)
    {
        QVERIFY(QTest::qWaitFor(condition, longestMs));
    }
    void judge();

    std::unique_ptr<TemporaryDataFolder> m_folder;
    std::unique_ptr<Pulse> m_pulse;
    qint64 m_readNanoseconds = 0;
};

void tst_Liveliness::initTestCase()
{
    m_folder = std::make_unique<TemporaryDataFolder>();
    m_folder->writeStage(QStringLiteral("a.xml"));
    QByteArray days;
    for (int i = 0; i < schedulesOfAChannel; ++i) {
        days += R"(<Schedule type="date" date=")" +
                QDate::currentDate().addDays(i).toString(Qt::ISODate).toLatin1() + "\">";
        for (int hour = 0; hour < 24; ++hour)
            days += QStringLiteral("<Time stage=\"a.xml\" start=\"%1:00:00.000\" "
                                   "end=\"%1:30:00.000\"/>")
                        .arg(hour, 2, 10, QLatin1Char('0'))
                        .toLatin1();
        days += "</Schedule>\n";
    }
    for (int number = 0; number < channelCount; ++number) {
        const QByteArray digits = QByteArray::number(number);
        const QByteArray channel = R"(<?xml version="1.0"?><Channel version="1" name="Hall )" +
                                   digits + "\" id=\"" + digits + "\" index=\"" + digits + "\">" +
                                   days + "</Channel>";
        const QString name = ZavoTest::channelFileName(number);
        m_folder->write(QStringLiteral("channel/") + name, channel);
        for (int state = 0; state < 3; ++state)
            m_folder->write(
                QStringLiteral("backup/%1/2026-11-2%2T04-05-00.000Z.xml").arg(name).arg(state),
                channel + "<!-- " + QByteArray::number(state) + " -->");
    }
    m_readNanoseconds = readNanoseconds(m_folder->channelFolder() + QLatin1Char('/') +
                                        ZavoTest::channelFileName(0));
    QVERIFY(m_readNanoseconds > 0);
    // Fonts and styles are read once.
    Zavo::ConfigurationDialog first(false);
    first.show();
    QVERIFY(QTest::qWaitForWindowExposed(&first));
}

void tst_Liveliness::init()
{
    m_pulse = std::make_unique<Pulse>();
    QCoreApplication::processEvents();
    m_pulse->restart();
}

void tst_Liveliness::cleanupTestCase()
{
    m_pulse.reset();
    m_folder.reset();
}

void tst_Liveliness::judge()
{
    const qint64 reads = m_pulse->longestNanoseconds() / m_readNanoseconds;
    QVERIFY2(reads <= longestPassReads, qPrintable(QStringLiteral("%1 reads").arg(reads)));
}

void tst_Liveliness::checking()
{
    Zavo::CheckDialog dialog;
    QSignalSpy checked(&dialog, SIGNAL(checked()));
    dialog.check();
    waitFor([&] { return !checked.isEmpty(); });
    auto *const view = dialog.findChild<QTreeView *>(QLatin1String(CheckNames::findings));
    QVERIFY(view->model()->rowCount() > channelCount * schedulesOfAChannel);
    QTest::qWait(0);
    QTest::keyClick(view, Qt::Key_End);
    QTest::qWait(0);
    judge();
    m_pulse->restart();
    QTest::mouseClick(dialog.findChild<QPushButton *>(QLatin1String(CheckNames::copy)),
                      Qt::LeftButton);
    judge();
}

void tst_Liveliness::choosingChannels()
{
    Zavo::ChannelConfigurationDialog dialog;
    dialog.show();
    auto *const tree = dialog.findChild<QTreeWidget *>(QLatin1String(HostNames::channelTree));
    waitFor([&] { return tree->topLevelItemCount() == channelCount; });
    QTest::qWait(0);
    tree->topLevelItem(3)->setCheckState(0, Qt::Unchecked);
    QTest::qWait(0);
    dialog.reject();
    judge();
}

void tst_Liveliness::exporting_data()
{
    QTest::addColumn<int>("format");
    for (int format = 0; format < 4; ++format)
        QTest::addRow("format %d", format) << format;
}

void tst_Liveliness::exporting()
{
    QFETCH(int, format);
    Zavo::ExportDialog dialog;
    dialog.showChannel(m_folder->filePath(QStringLiteral("channel/channel7.xml")));
    dialog.findChild<QComboBox *>(QLatin1String(ExportNames::format))->setCurrentIndex(format);
    auto *const target = dialog.findChild<QLineEdit *>(QLatin1String(ExportNames::target));
    target->setText(m_folder->filePath(QStringLiteral("export%1").arg(format)));
    QSignalSpy exported(&dialog, SIGNAL(exported()));
    QTest::mouseClick(dialog.findChild<QPushButton *>(QLatin1String(ExportNames::exportButton)),
                      Qt::LeftButton);
    waitFor([&] { return !exported.isEmpty(); });
    QVERIFY(QFile::exists(target->text()));
    judge();
}

void tst_Liveliness::uploading()
{
    const QTemporaryDir target;
    Zavo::UploadTargets::store({{UploadTarget(target.path()), true}});
    UploadDialog dialog(m_folder->filePath(QStringLiteral("Log/Editor")));
    dialog.show();
    auto *const start = dialog.findChild<QPushButton *>(QLatin1String(UploadNames::uploadButton));
    auto *const summary = dialog.findChild<QLabel *>(QLatin1String(UploadNames::summaryLabel));
    for (int round = 0; round < 2; ++round) {
        QTest::mouseClick(start, Qt::LeftButton);
        QDialog *question = nullptr;
        waitFor([&] {
            question = dialog.findChild<QDialog *>(QLatin1String(UploadNames::findingsDialog));
            return question && question->isVisible();
        });
        QTest::mouseClick(
            question->findChild<QPushButton *>(QLatin1String(UploadNames::goOnButton)),
            Qt::LeftButton);
        waitFor([&] { return summary->text().startsWith(QStringLiteral("1 complete")); });
        // What the next one replaces.
        m_folder->write(QStringLiteral("stage/a.xml"), "changed");
        summary->clear();
    }
    judge();
}

void tst_Liveliness::lookingAtCopies()
{
    const Zavo::BackupStore store(m_folder->path());
    Zavo::BackupDialog dialog(m_folder->path(), &store);
    dialog.show();
    auto *const channels = dialog.findChild<QListWidget *>();
    auto *const tree = dialog.findChild<QTreeWidget *>();
    const auto isCompared = [&] {
        for (int row = 0; row < tree->topLevelItemCount(); ++row) {
            if (tree->topLevelItem(row)->text(1) == QLatin1String("..."))
                return false;
        }
        return tree->topLevelItemCount() == 3;
    };
    waitFor([&] {
        return isCompared() &&
               channels->item(channels->count() - 1)->text().contains(QStringLiteral("Hall"));
    });
    channels->setCurrentRow(channelCount / 2);
    waitFor(isCompared);
    judge();
}

void tst_Liveliness::configuring()
{
    Zavo::ConfigurationDialog dialog(false);
    dialog.show();
    QTest::qWait(0);
    judge();
}

QTEST_MAIN(tst_Liveliness)
#include "tst_liveliness.moc"
