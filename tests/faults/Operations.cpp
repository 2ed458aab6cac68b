#include "Operation.h"

#include "FaultyFiles.h"

#include "ChannelFiles.h"
#include "HostWindow.h"
#include "domain/ActionNames.h"
#include "safety/BackupStore.h"
#include "safety/SafetyDesk.h"
#include "stages/ZvScheduleStageListView.h"
#include "workspace/ChannelFolder.h"
#include "workspace/ZvScheduleMainWidget.h"

#include <QItemSelectionModel>
#include <QMessageBox>
#include <QTime>

using namespace Zavo;

namespace ZavoTest {

namespace {

constexpr int SavedTab = 2;
constexpr int DeletedTab = 3;
const QLatin1String NotSaved("can not be saved");
const QLatin1String NotRestored("cannot be restored");

QString channelPath(int number)
{
    return QStringLiteral("channel/") + channelFileName(number);
}

bool isSame(const ChannelsById &left, const ChannelsById &right, int id)
{
    const auto one = left.constFind(id);
    const auto other = right.constFind(id);
    if (one == left.cend() || other == right.cend())
        return (one == left.cend()) == (other == right.cend());
    return one->isMatch(*other, true, false);
}

// The basic channel has a copy that goes before it at a start.
bool isTold(const Outcome &outcome, int id, const QString &words)
{
    return outcome.tells(words) || (id == ChannelFolder::BasicChannelId &&
                                    outcome.tells(QStringLiteral("\"channel.xml\"")));
}

/// Each channel is as it was or as it became; all became so if the user was told nothing else.
QString checkChannels(const Outcome &outcome, const FaultHouse &house, const ChannelsById &old,
                      const ChannelsById &expected, const QLatin1String &words)
{
    const std::optional<ChannelsById> found = house.freshStart();
    if (!found)
        return QStringLiteral("the next start fails");
    QList<int> ids = old.keys() + expected.keys() + found->keys();
    std::sort(ids.begin(), ids.end());
    ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
    for (const int id : qAsConst(ids)) {
        const bool isNew = isSame(*found, expected, id);
        if (!isNew && !isSame(*found, old, id))
            return QStringLiteral("channel %1 is neither old nor new").arg(id);
        if (!isNew && outcome.isDone && !isTold(outcome, id, words))
            return QStringLiteral("channel %1 is the old one, and nobody was told").arg(id);
    }
    return {};
}

QString checkFilesAreUntouched(const Outcome &outcome, const FaultHouse &house,
                               const QStringList &but = {})
{
    for (auto file = house.sample().cbegin(); file != house.sample().cend(); ++file) {
        if (!but.contains(file.key()) && outcome.files.value(file.key()) != file.value())
            return QStringLiteral("\"%1\" is not as it was").arg(file.key());
    }
    return {};
}

Operation save(const FaultHouse &house, int tab)
{
    const ChannelsById old = house.sampleChannels();
    ChannelsById expected = old;
    const ChannelsById edited = house.channels();
    expected.insert(tab, *edited.constFind(tab));
    return {tab == 0 ? QStringLiteral("save of the basic channel") : QStringLiteral("save"),
            house.sample(), true,
            [tab](FaultHouse &in) {
                in.main()->activeTab(tab);
                in.trigger(ActionName::SaveChannel);
            },
            [=](const Outcome &outcome, const FaultHouse &in) {
                QStringList changed{channelPath(tab)};
                if (tab == 0)
                    changed.append(QStringLiteral("channel/channel.xml"));
                const QString wrong = checkFilesAreUntouched(outcome, in, changed);
                return wrong.isEmpty() ? checkChannels(outcome, in, old, expected, NotSaved)
                                       : wrong;
            }};
}

// Each channel that stays as it was is told of by its name.
Operation saveAll(const FaultHouse &house, const QString &name,
                  const std::function<void(FaultHouse &house)> &act)
{
    const ChannelsById old = house.sampleChannels();
    const ChannelsById expected = house.channels();
    return {name, house.sample(), true, act, [=](const Outcome &outcome, const FaultHouse &in) {
                const QString wrong = checkChannels(outcome, in, old, expected, NotSaved);
                if (!wrong.isEmpty() || !outcome.isDone)
                    return wrong;
                const ChannelsById found = in.freshStart().value_or(ChannelsById());
                for (const ZvChannel &channel : expected) {
                    if (!isSame(found, expected, channel.id()) &&
                        !isTold(outcome, channel.id(), channel.name()))
                        return QStringLiteral("nobody was told of \"%1\"").arg(channel.name());
                }
                return QString();
            }};
}

Operation renameAndSave(const FaultHouse &house)
{
    const ChannelsById old = house.sampleChannels();
    const auto newName = QStringLiteral("Renamed");
    return {QStringLiteral("renaming"), house.sample(), true,
            [newName](FaultHouse &in) {
                in.main()->activeTab(SavedTab);
                in.rename(SavedTab, newName);
                in.trigger(ActionName::SaveChannel);
            },
            [=](const Outcome &outcome, const FaultHouse &in) {
                const QString wrong = checkFilesAreUntouched(outcome, in, {channelPath(SavedTab)});
                const ChannelsById found = in.freshStart().value_or(ChannelsById());
                const bool isNew = found.value(SavedTab, ZvChannel({})).name() == newName;
                if (!wrong.isEmpty() || isNew)
                    return wrong;
                if (!isSame(found, old, SavedTab))
                    return QStringLiteral("it is neither old nor new");
                return outcome.isDone && !outcome.tells(NotSaved)
                           ? QStringLiteral("it is the old one, and nobody was told")
                           : QString();
            }};
}

Operation addChannel(const FaultHouse &house)
{
    const ChannelsById old = house.sampleChannels();
    constexpr int id = FaultHouse::ChannelCount;
    ChannelsById expected = old;
    expected.insert(id, *ChannelFolder::newChannel({}, id, id, QStringLiteral("Ch.%1").arg(id)));
    return {QStringLiteral("adding"), house.sample(), true,
            [](FaultHouse &in) { in.trigger(ActionName::CreateChannel); },
            [=](const Outcome &outcome, const FaultHouse &in) {
                const QString wrong = checkFilesAreUntouched(outcome, in);
                return wrong.isEmpty() ? checkChannels(outcome, in, old, expected,
                                                       QLatin1String("Add New Channel|"))
                                       : wrong;
            }};
}

Operation deleteChannel(const FaultHouse &house)
{
    const ChannelsById old = house.sampleChannels();
    ChannelsById expected = old;
    expected.remove(DeletedTab);
    const QString text = QStringLiteral("can not be deleted");
    return {QStringLiteral("deleting"), house.sample(), true,
            [](FaultHouse &in) {
                in.main()->activeTab(DeletedTab);
                in.trigger(ActionName::DeleteChannel);
            },
            [=](const Outcome &outcome, const FaultHouse &in) {
                const QString wrong =
                    checkFilesAreUntouched(outcome, in, {channelPath(DeletedTab)});
                return wrong.isEmpty()
                           ? checkChannels(outcome, in, old, expected,
                                           QLatin1String("The channel file can not be deleted"))
                           : wrong;
            }};
}

Operation firstStart()
{
    ChannelsById expected;
    for (int id = 0; id < 10; ++id)
        expected.insert(id,
                        *ChannelFolder::newChannel({}, id, id, QStringLiteral("Ch.%1").arg(id)));
    return {QStringLiteral("first start"),
            {},
            false,
            [](FaultHouse &in) { in.open(); },
            [=](const Outcome &outcome, const FaultHouse &in) {
                return checkChannels(outcome, in, {}, expected, QLatin1String("Create Channel|"));
            }};
}

Operation start(const FaultHouse &house)
{
    const ChannelsById old = house.sampleChannels();
    return {QStringLiteral("start"), house.sample(), false, [](FaultHouse &in) { in.open(); },
            [=](const Outcome &outcome, const FaultHouse &in) {
                const QString wrong = checkFilesAreUntouched(outcome, in);
                return wrong.isEmpty() ? checkChannels(outcome, in, old, old, NotSaved) : wrong;
            }};
}

// Whatever could not be removed has to be told of; what could has to be gone as a whole.
Operation reset(const FaultHouse &house)
{
    return {QStringLiteral("full reset"), house.sample(), true,
            [](FaultHouse &in) { in.trigger(ActionName::DeleteChannelsSettings); },
            [](const Outcome &outcome, const FaultHouse &in) {
                bool anyLeft = false;
                for (auto file = outcome.files.cbegin(); file != outcome.files.cend(); ++file) {
                    if (file.value() != in.sample().value(file.key()))
                        return QStringLiteral("\"%1\" is neither there nor gone").arg(file.key());
                    anyLeft = anyLeft || file.key().startsWith(QLatin1String("channel/"));
                }
                const bool isTold = outcome.tells(QStringLiteral("Some file has not be deleted")) ||
                                    outcome.tells(QStringLiteral("folder does not exist"));
                if (outcome.isDone && anyLeft && !isTold)
                    return QStringLiteral("files are left, and nobody was told");
                return in.freshStart() ? QString() : QStringLiteral("the next start fails");
            }};
}

Operation generateStage(const FaultHouse &house)
{
    const auto copy = QStringLiteral("stage/news._d_.xml");
    return {
        QStringLiteral("stage generator"), house.sample(), true,
        [](FaultHouse &in) {
            const QModelIndex root = in.stages()->rootIndex();
            in.stages()->setCurrentIndex(in.stages()->model()->index(0, 0, root));
            QMetaObject::invokeMethod(
                in.stages(), "autoSwitchStageRequested",
                Q_ARG(int, 300), Q_ARG(QTime, QTime(0, 0)), Q_ARG(QTime, QTime(23, 59, 59, 999)));
        },
        [=](const Outcome &outcome, const FaultHouse &in) {
            const QString wrong = checkFilesAreUntouched(outcome, in, {copy});
            if (!wrong.isEmpty())
                return wrong;
            const Files &sample = in.sample();
            const QByteArray wanted = sample.value(QStringLiteral("stage/news.xml"));
            const QByteArray found = outcome.files.value(copy);
            if (found == wanted)
                return QString();
            if (outcome.files.contains(copy) && found != sample.value(copy))
                return QStringLiteral("the copy is not whole");
            return outcome.isDone && !outcome.tells(QStringLiteral("Processing was interrupted"))
                       ? QStringLiteral("there is no copy, and nobody was told")
                       : QString();
        }};
}

bool isAmongCopies(const FaultHouse &house, const QString &fileName, const QByteArray &bytes)
{
    const BackupStore store(QFile::decodeName(house.dataDir()));
    const QList<BackupState> states = store.states(fileName);
    return std::any_of(states.cbegin(), states.cend(), [&bytes](const BackupState &state) {
        QFile copy(state.path);
        return copy.open(QIODevice::ReadOnly) && copy.readAll() == bytes;
    });
}

// As the program does it once its window is closed. The state before has to be among the copies,
// unless that was what went wrong.
Operation restore(const FaultHouse &house, int number)
{
    const QString path = channelPath(number);
    const QString fileName = channelFileName(number);
    const auto copyName = QStringLiteral("backup/%1/2026-01-02T03-04-05.678Z.xml").arg(fileName);
    const ChannelsById old = house.sampleChannels();
    ChannelsById expected = old;
    expected.find(number)->setName(QStringLiteral("Earlier %1").arg(number));
    Files before = house.sample();
    const QByteArray present = before.value(path);
    before.insert(copyName, QByteArray(present).replace("Channel ", "Earlier "));
    return {number == 0 ? QStringLiteral("restoring the basic channel")
                        : QStringLiteral("restoring"),
            before, true,
            [=](FaultHouse &in) {
                const QString copy = in.folder().filePath(copyName);
                if (!SafetyDesk::restore(in.folder().path(), {fileName, copy, {}}))
                    QMessageBox::critical(nullptr, {}, NotRestored);
            },
            [=](const Outcome &outcome, const FaultHouse &in) {
                QStringList changed{path};
                if (number == 0)
                    changed.append(QStringLiteral("channel/channel.xml"));
                QString wrong = checkFilesAreUntouched(outcome, in, changed);
                if (wrong.isEmpty())
                    wrong = checkChannels(outcome, in, old, expected, NotRestored);
                // The next start shows it; nothing looks at its copy once the window is closed.
                if (wrong.isEmpty() && outcome.isDone && !outcome.tells(NotRestored) &&
                    !isSame(in.freshStart().value_or(old), expected, number))
                    wrong = QStringLiteral("it is not restored, and nobody was told");
                const bool copyWentWrong = outcome.isDone && FaultyFiles::haveStruck();
                const bool isReplaced = outcome.files.value(path) != present;
                if (wrong.isEmpty() && isReplaced && !copyWentWrong &&
                    !isAmongCopies(in, fileName, present))
                    wrong = QStringLiteral("the state before is among no copies");
                return wrong;
            }};
}

} // namespace

bool Outcome::tells(const QString &words) const
{
    return std::any_of(boxes.cbegin(), boxes.cend(),
                       [&words](const QString &box) { return box.contains(words); });
}

std::vector<Operation> allOperations(const FaultHouse &house)
{
    return {save(house, SavedTab),
            save(house, 0),
            saveAll(house, QStringLiteral("save of all channels"),
                    [](FaultHouse &in) { in.trigger(ActionName::SaveAllChannel); }),
            saveAll(house, QStringLiteral("save at the end"),
                    [](FaultHouse &in) { in.window()->close(); }),
            renameAndSave(house),
            addChannel(house),
            deleteChannel(house),
            reset(house),
            generateStage(house),
            restore(house, SavedTab),
            restore(house, 0),
            start(house),
            firstStart()};
}

} // namespace ZavoTest
