#include "FaultHouse.h"

#include "HostWindow.h"
#include "safety/Leftovers.h"
#include "safety/NoticeBar.h"
#include "safety/SafetyDesk.h"
#include "safety/SafetyNames.h"
#include "safety/SafetyNet.h"

#include "ChannelFiles.h"
#include "ZvConfig.h"
#include "ZvEditorConfig.h"
#include "domain/ActionNames.h"
#include "editor/ZvScheduleEditor.h"
#include "stages/ZvScheduleStageListView.h"
#include "timetable/ZvScheduleWorkingArea.h"
#include "workspace/ChannelFolder.h"
#include "workspace/ZvScheduleMainWidget.h"

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>

#include <sys/stat.h>
#include <unistd.h>

using namespace Zavo;

namespace ZavoTest {

namespace {

constexpr int LongestStartMs = 30000;

ZvTime band(int hour, int minutes)
{
    const QTime start(hour, 0);
    return {start, start.addSecs(minutes * 60), QStringLiteral("news.xml")};
}

/// The files in the folders of channels and stages, by their paths below @p dataDir.
Files filesBelow(const QString &dataDir)
{
    const QDir top(dataDir);
    Files files;
    for (const QString &sub : {QStringLiteral("channel/"), QStringLiteral("stage/")}) {
        const QStringList names = QDir(top.filePath(sub)).entryList(QDir::Files | QDir::Hidden);
        for (const QString &name : names) {
            QFile file(top.filePath(sub + name));
            files.insert(sub + name, file.open(QIODevice::ReadOnly) ? file.readAll()
                                                                    : QByteArray("unreadable"));
        }
    }
    return files;
}

void give(const QString &path, uid_t user)
{
    if (geteuid() == 0 && chown(QFile::encodeName(path).constData(), user, user) != 0)
        qFatal("%s cannot be given away", qPrintable(path));
}

} // namespace

FaultHouse::FaultHouse()
{
    makeSample();
    // An ordinary user has to get in, too.
    chmod(QFile::encodeName(QFileInfo(m_folder.path()).path()).constData(), 0755);
    ZvEditorConfig::getConfig()->setDefaultScheduleUsedFirst(true);
}

FaultHouse::~FaultHouse()
{
    close();
}

QByteArray FaultHouse::dataDir() const
{
    return QFile::encodeName(m_folder.path());
}

void FaultHouse::makeSample()
{
    for (int number = 0; number < ChannelCount; ++number) {
        const QString name = QStringLiteral("Channel %1").arg(number);
        writeChannelFile(m_folder, channelFileName(number),
                         {number, number, name, {band(6, 30), band(9 + number, 45)}, true});
    }
    m_folder.write(QStringLiteral("channel/channel.xml"),
                   m_folder.read(QStringLiteral("channel/channel0.xml")));
    m_folder.writeStage(QStringLiteral("news.xml"));
    m_folder.writeStage(QStringLiteral("news._d_.xml"), QStringLiteral("An earlier state"));
    m_sample = present();
    m_sampleChannels = freshStart().value_or(ChannelsById());
}

void FaultHouse::layOut(const Files &files, uid_t user)
{
    const QStringList names = m_folder.names();
    for (const QString &name : names) {
        const QString path = m_folder.filePath(name);
        if (QFileInfo(path).isDir())
            QDir(path).removeRecursively();
        else
            QFile::remove(path);
    }
    give(m_folder.path(), user);
    const QLatin1Char slash('/');
    for (const QString &name : {QStringLiteral("channel"), QStringLiteral("stage")}) {
        if (!files.isEmpty())
            give(m_folder.makeFolder(name), user);
    }
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        give(m_folder.write(file.key(), file.value()), user);
        for (int end = file.key().lastIndexOf(slash); end > 0;
             end = file.key().lastIndexOf(slash, end - 1))
            give(m_folder.filePath(file.key().left(end)), user);
    }
}

Files FaultHouse::present() const
{
    return filesBelow(m_folder.path());
}

std::optional<ChannelsById> FaultHouse::freshStart() const
{
    Leftovers::sweep(m_folder.path());
    ChannelFolder::Channels loaded;
    if (ChannelFolder(m_folder.path()).load(&loaded) != ChannelFolder::LoadResult::Loaded)
        return std::nullopt;
    ChannelsById channels;
    for (const auto &channel : loaded)
        channels.insert(channel->id(), *channel);
    return channels;
}

QStringList FaultHouse::leftovers() const
{
    Leftovers::sweep(m_folder.path());
    QStringList found;
    QDirIterator files(m_folder.path(), {QStringLiteral(".zavo-*.tmp")}, QDir::Files | QDir::Hidden,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        found.append(files.next());
    return found;
}

bool FaultHouse::open()
{
    close();
    m_isFinished = false;
    m_hasTabs = false;
    m_window = std::make_unique<HostWindow>();
    connect(m_window.get(), SIGNAL(finished()), this, SLOT(onFinished()));
    QString message;
    if (!m_window->start(&message))
        return false;
    connect(main(), SIGNAL(tabsCreated(QList<ZvChannel*>)), this, SLOT(onTabsCreated()));
    m_window->show();
    QElapsedTimer time;
    time.start();
    while (!m_isFinished && !m_hasTabs && time.elapsed() < LongestStartMs)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    return m_hasTabs;
}

void FaultHouse::close()
{
    endSafety();
    m_window.reset();
}

void FaultHouse::startSafety()
{
    m_net = std::make_unique<SafetyNet>(m_folder.path());
    if (m_window)
        m_desk = std::make_unique<SafetyDesk>(m_folder.path(), m_net.get(), m_window.get());
}

void FaultHouse::endSafety()
{
    m_desk.reset();
    m_net.reset();
}

QString FaultHouse::notice() const
{
    const auto *const bar =
        m_window ? m_window->findChild<NoticeBar *>(QLatin1String(SafetyNames::noticeBar))
                 : nullptr;
    return bar && !bar->isHidden() ? bar->text() : m_desk ? m_desk->remarkOnSaving() : QString();
}

ZvScheduleMainWidget *FaultHouse::main() const
{
    return m_window ? m_window->findChild<ZvScheduleMainWidget *>() : nullptr;
}

ZvScheduleStageListView *FaultHouse::stages() const
{
    return m_window ? m_window->findChild<ZvScheduleStageListView *>() : nullptr;
}

void FaultHouse::trigger(const char *actionName) const
{
    if (QAction *const action = m_window->editor()->getAction(QLatin1String(actionName)))
        action->trigger();
}

void FaultHouse::rename(int tab, const QString &name) const
{
    main()->changeChannelNameWithUndo(tab, name);
}

void FaultHouse::editEverything() const
{
    for (int tab = 0; tab < ChannelCount; ++tab) {
        main()->activeTab(tab);
        Q_EMIT stages()->requestResetTimeTable(QStringLiteral("news.xml"),
                                               {band(12, 10 + tab), band(20, 59)});
        rename(tab, QStringLiteral("Edited %1").arg(tab));
    }
    main()->activeTab(0);
}

void FaultHouse::settle() const
{
    QCoreApplication::processEvents();
    m_window->setUpdatesEnabled(false);
}

ChannelsById FaultHouse::channels() const
{
    ChannelsById channels;
    const QList<ZvScheduleWorkingArea *> areas = m_window->findChildren<ZvScheduleWorkingArea *>();
    for (ZvScheduleWorkingArea *area : areas) {
        area->refreshStoredSchedule();
        channels.insert(area->channel()->id(), *area->channel());
    }
    return channels;
}

} // namespace ZavoTest
