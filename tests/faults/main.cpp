#include "FaultHouse.h"
#include "FaultRounds.h"
#include "FaultyFiles.h"
#include "FolderFaults.h"
#include "Operation.h"
#include "RandomWork.h"

#include <QApplication>
#include <QCommandLineParser>

#include <unistd.h>

namespace {

using namespace ZavoTest;

constexpr uid_t OrdinaryUser = 65534;
constexpr int DiskKibibytes = 256;

/// Root tries both; anybody else has only himself.
QList<uid_t> users()
{
    return geteuid() == 0 ? QList<uid_t>{0, OrdinaryUser} : QList<uid_t>{geteuid()};
}

/// Only what may point to a mistake.
void logWarnings(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type != QtDebugMsg && !text.startsWith(QLatin1String("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

int number(const QCommandLineParser &parser, const QString &name)
{
    return parser.value(name).toInt();
}

QCommandLineOption numberOption(const char *name, const char *description)
{
    return {QLatin1String(name), QLatin1String(description), QStringLiteral("number"),
            QStringLiteral("0")};
}

class Faults final
{
public:
    explicit Faults(const QCommandLineParser &parser)
        : m_parser(parser)
    {
    }

    /// How much went wrong.
    int run()
    {
        m_house.layOut(m_house.sample(), users().first());
        if (!m_house.open())
            qFatal("the window does not start");
        m_house.editEverything();
        m_operations = allOperations(m_house);
        m_house.settle();
        if (m_parser.isSet(QStringLiteral("calls")))
            everyCall();
        const int pages = number(m_parser, QStringLiteral("full-disk"));
        if (pages > 0)
            fullDisk(pages);
        const int kills = number(m_parser, QStringLiteral("kills"));
        for (const uid_t user : users())
            killed(user, kills / users().size());
        twoPrograms(number(m_parser, QStringLiteral("meetings")));
        return m_failures;
    }

private:
    void everyCall()
    {
        const int budget = number(m_parser, QStringLiteral("calls"));
        for (const Operation &operation : m_operations) {
            if (!isWanted(operation))
                continue;
            for (const uid_t user : users()) {
                FaultRounds rounds(&m_house, budget, stdout);
                prepareFor(operation);
                rounds.everyCall(operation, user);
                tell(operation, user, rounds, "faults");
            }
        }
    }

    void fullDisk(int pages)
    {
        m_house.layOut({}, 0);
        const SmallDisk disk(m_house.folder().path(), DiskKibibytes);
        if (!disk.isOwn()) {
            std::printf("full disk: none can be mounted here\n");
            return;
        }
        for (const Operation &operation : m_operations) {
            if (!isWanted(operation))
                continue;
            for (const uid_t user : users()) {
                FaultRounds rounds(&m_house, 0, stdout);
                prepareFor(operation);
                rounds.fullDisk(operation, user, pages);
                tell(operation, user, rounds, "amounts of room");
            }
        }
    }

    bool isWanted(const Operation &operation) const
    {
        const QString only = m_parser.value(QStringLiteral("only"));
        return only.isEmpty() || only == operation.name;
    }

    // A start is the operation itself where none has been before.
    void prepareFor(const Operation &operation)
    {
        if (operation.needsWindow == m_house.isOpen())
            return;
        m_house.close();
        if (!operation.needsWindow)
            return;
        m_house.layOut(m_house.sample(), users().first());
        m_house.open();
        m_house.editEverything();
        m_house.settle();
    }

    void killed(uid_t user, int rounds)
    {
        if (rounds <= 0)
            return;
        prepareFor(m_operations.front());
        RandomWork work(&m_house, user, m_parser.value(QStringLiteral("seed")).toUInt(), stdout);
        work.killed(rounds);
        m_failures += work.failures();
        std::printf("kills at random times, user %u: %d, of which %d lost something\n", user,
                    rounds, work.failures());
    }

    void twoPrograms(int rounds)
    {
        if (rounds <= 0)
            return;
        prepareFor(m_operations.front());
        RandomWork work(&m_house, users().first(), m_parser.value(QStringLiteral("seed")).toUInt(),
                        stdout);
        work.twoPrograms(rounds);
        m_failures += work.failures();
        std::printf("meetings of two programs: %d, in which %d states were lost\n", rounds,
                    work.failures());
    }

    void tell(const Operation &operation, uid_t user, const FaultRounds &rounds, const char *what)
    {
        m_failures += rounds.failures();
        std::printf("%s, user %u: %d %s, %d went wrong\n", qPrintable(operation.name), user,
                    rounds.runs(), what, rounds.failures());
        std::fflush(stdout);
    }

    const QCommandLineParser &m_parser;
    FaultHouse m_house;
    std::vector<Operation> m_operations;
    int m_failures = 0;
};

} // namespace

int main(int argc, char *argv[])
{
    qInstallMessageHandler(logWarnings);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions(
        {numberOption("calls", "Lets so many calls of each operation go wrong, in every way."),
         numberOption("full-disk",
                      "Works on a small disk, with so many pages less room each time."),
         numberOption("kills", "Kills the program so many times while it saves at random."),
         numberOption("meetings", "Lets two programs save at random so many times."),
         numberOption("seed", "First number of what is random."),
         {QStringLiteral("only"), QStringLiteral("Only the operation of that name."),
          QStringLiteral("name")}});
    parser.process(application);
    FaultyFiles::share();
    const int failures = Faults(parser).run();
    std::printf("%d went wrong in all\n", failures);
    return failures == 0 ? 0 : 1;
}
