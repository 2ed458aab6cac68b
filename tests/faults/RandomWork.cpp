#include "RandomWork.h"

#include "BoxClerk.h"
#include "FaultyFiles.h"
#include "ForkedRun.h"

#include "domain/ActionNames.h"
#include "safety/BackupStore.h"
#include "workspace/ZvScheduleMainWidget.h"

#include <QSet>

#include <unistd.h>

using namespace Zavo;

namespace ZavoTest {

namespace {

constexpr int LongestLifeMs = 60;
constexpr unsigned LongestPauseUs = 300;
constexpr int SavesOfAMeeting = 9; // of two programs together fewer than copies are kept

const QLatin1String SavedWord("saved ");
const QLatin1String TriedWord("tried ");

/// Renames and saves until the process is killed, or so many times.
class Worker final
{
public:
    Worker(FaultHouse *house, const QString &prefix, unsigned seed, const ForkedRun::Report &report)
        : m_house(house)
        , m_prefix(prefix)
        , m_random(seed)
        , m_report(report)
        , m_clerk(report)
    {
        const ChannelsById edited = house->channels();
        for (const ZvChannel &channel : edited)
            m_unsaved.insert(channel.id(), channel.name());
        m_clerk.setAgrees([this] { return m_random() % 2 == 0; });
    }

    void run(int saves)
    {
        for (int number = 0; number != saves; ++number) {
            const int tab = static_cast<int>(m_random() % FaultHouse::ChannelCount);
            m_unsaved.insert(tab, QStringLiteral("%1 %2").arg(m_prefix).arg(number));
            m_house->rename(tab, m_unsaved.value(tab));
            switch (m_random() % 4) {
            case 0:
                save(ActionName::SaveAllChannel, m_unsaved);
                break;
            case 1:
                break;
            default:
                save(ActionName::SaveChannel, {{tab, m_unsaved.value(tab)}});
            }
        }
    }

private:
    void save(const char *action, const QMap<int, QString> &which)
    {
        const QMap<int, QString> names = which;
        tell(TriedWord, names, {});
        m_clerk.takeTexts();
        m_house->trigger(action);
        const QString boxes = m_clerk.takeTexts().join(QLatin1Char('\n'));
        tell(SavedWord, names, boxes);
        for (auto name = names.cbegin(); name != names.cend(); ++name)
            m_unsaved.remove(name.key());
    }

    void tell(const QLatin1String &word, const QMap<int, QString> &names, const QString &boxes)
    {
        for (auto name = names.cbegin(); name != names.cend(); ++name) {
            if (!boxes.contains(QStringLiteral("\"%1\" can not be saved").arg(name.value())))
                m_report(QStringLiteral("%1%2 %3").arg(word).arg(name.key()).arg(name.value()));
        }
    }

    FaultHouse *m_house = nullptr;
    const QString m_prefix;
    std::mt19937 m_random;
    const ForkedRun::Report m_report;
    BoxClerk m_clerk;
    QMap<int, QString> m_unsaved;
};

/// The names in lines that begin with the word, by channel, in their order.
QMap<int, QStringList> namesIn(const QStringList &lines, const QLatin1String &word)
{
    QMap<int, QStringList> names;
    for (const QString &line : lines) {
        if (line.startsWith(word))
            names[line.section(QLatin1Char(' '), 1, 1).toInt()].append(
                line.section(QLatin1Char(' '), 2));
    }
    return names;
}

QSet<QString> namesInCopies(const QString &dataDir)
{
    QSet<QString> names;
    const BackupStore store(dataDir);
    const QStringList files = store.fileNames();
    for (const QString &file : files) {
        const QList<BackupState> states = store.states(file);
        for (const BackupState &state : states) {
            ZvChannel channel(state.path);
            if (channel.readFile())
                names.insert(channel.name());
        }
    }
    return names;
}

} // namespace

RandomWork::RandomWork(FaultHouse *house, uid_t user, unsigned seed, std::FILE *log)
    : m_house(house)
    , m_user(user)
    , m_random(seed)
    , m_log(log)
{
}

void RandomWork::killed(int rounds)
{
    m_house->layOut(m_house->sample(), m_user);
    m_saved.clear();
    for (int id = 0; id < FaultHouse::ChannelCount; ++id)
        m_saved.insert(id, QStringLiteral("Channel %1").arg(id));
    for (int round = 1; round <= rounds; ++round)
        killOnce(round);
}

void RandomWork::killOnce(int round)
{
    const unsigned seed = static_cast<unsigned>(m_random());
    ForkedRun forked(m_user, [&](const ForkedRun::Report &report) {
        m_house->startSafety();
        Worker(m_house, QStringLiteral("Round %1").arg(round), seed, report).run(-1);
    });
    usleep(static_cast<useconds_t>(m_random() % (LongestLifeMs * 1000)));
    forked.kill();
    forked.wait();
    if (!forked.wasKilled())
        fail(round, QStringLiteral("it ended by itself: ") + forked.oddEnd());
    look(forked.lines(), round);
}

void RandomWork::look(const QStringList &lines, int round)
{
    const QMap<int, QStringList> saved = namesIn(lines, SavedWord);
    const QMap<int, QStringList> tried = namesIn(lines, TriedWord);
    const std::optional<ChannelsById> found = m_house->freshStart();
    for (int id = 0; id < FaultHouse::ChannelCount; ++id) {
        if (saved.contains(id))
            m_saved.insert(id, saved.value(id).last());
        const auto channel = found ? found->constFind(id) : ChannelsById::const_iterator();
        if (!found || channel == found->cend()) {
            fail(round, QStringLiteral("channel %1 is gone").arg(id));
            continue;
        }
        const QString name = channel->name();
        const QStringList attempts = tried.value(id);
        const int later = attempts.indexOf(m_saved.value(id)) + 1;
        if (name != m_saved.value(id) && !attempts.mid(later).contains(name)) {
            fail(round, QStringLiteral("channel %1 is called \"%2\" instead of \"%3\"")
                            .arg(QString::number(id), name, m_saved.value(id)));
        }
        m_saved.insert(id, name);
    }
}

void RandomWork::twoPrograms(int rounds)
{
    for (int round = 1; round <= rounds; ++round)
        meetOnce(round);
}

void RandomWork::meetOnce(int round)
{
    m_house->layOut(m_house->sample(), m_user);
    const auto program = [this](const QString &prefix) {
        const unsigned seed = static_cast<unsigned>(m_random());
        return [this, prefix, seed](const ForkedRun::Report &report) {
            FaultPlan plan;
            plan.folder = m_house->dataDir();
            plan.longestPauseUs = LongestPauseUs;
            FaultyFiles::begin(plan);
            m_house->startSafety();
            Worker(m_house, prefix, seed, report).run(SavesOfAMeeting);
            m_house->endSafety();
        };
    };
    ForkedRun one(m_user, program(QStringLiteral("One %1").arg(round)));
    ForkedRun other(m_user, program(QStringLiteral("Other %1").arg(round)));
    one.wait();
    other.wait();
    if (!one.isDone() || !other.isDone())
        fail(round, QStringLiteral("a program: ") + one.oddEnd() + other.oddEnd());
    QSet<QString> found = namesInCopies(m_house->folder().path());
    const std::optional<ChannelsById> started = m_house->freshStart();
    if (!started || started->size() != FaultHouse::ChannelCount)
        fail(round, QStringLiteral("not every channel is there"));
    const ChannelsById channels = started.value_or(ChannelsById());
    for (const ZvChannel &channel : channels)
        found.insert(channel.name());
    const QMap<int, QStringList> saved = namesIn(one.lines() + other.lines(), SavedWord);
    for (const QStringList &names : saved) {
        for (const QString &name : names) {
            if (!found.contains(name))
                fail(round, QStringLiteral("\"%1\" was saved and is nowhere").arg(name));
        }
    }
}

void RandomWork::fail(int round, const QString &what)
{
    ++m_failures;
    std::fprintf(m_log, "round %d: %s\n", round, qPrintable(what));
}

} // namespace ZavoTest
