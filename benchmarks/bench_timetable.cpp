#include "Bench.h"
#include "Once.h"
#include "timetable/BareTimeTable.h"
#include "timetable/DenseDay.h"
#include "timetable/Operations.h"
#include "timetable/OwnTimeTable.h"

#include <QApplication>
#include <QProcess>

#include <malloc.h>

namespace {

constexpr int counts[] = {24, 288, 1440, 4320};
constexpr int fewBands = 24;
constexpr int leastCountOfMemory = 1440;
constexpr double memoryGoal = 0.9;

/// A line of the table for each count. The limit is the plain operation of the same name, or our
/// own loading of as many bands.
struct Figure
{
    const char *label;
    const char *operation;
    bool againstOwnLoad;
    double goalOfFew; ///< 0 where few bands are not measured
    double goal;
};

constexpr Figure figures[] = {
    {"switch to a schedule, first frame / bare", "switch", false, 0.9, 0.6},
    {"first load, no labels kept / bare", "firstLoad", false, Bench::NoGoal, Bench::NoGoal},
    {"full repaint at 100% / bare", "repaint", false, 0.0, 0.4},
    {"full repaint at 6000% / bare", "repaintSeconds", false, 0.8, 0.8},
    {"group drag step at 100% / bare", "groupStep", false, 0.0, 0.4},
    {"drag step of one band at 6000% / bare", "bandStep", false, 0.8, 0.8},
    {"select all / bare", "selectAll", false, 0.0, 0.4},
    {"clear / bare", "clear", false, 0.0, 0.6},
    {"insert n/2 in front of n/2 / own load", "insertFront", true, 0.0, 1.2},
    {"remove the first n/2 / own load", "removeFront", true, 0.0, 1.2},
    {"undo of a move of all / own load", "undoMove", true, 0.0, 1.2},
    {"cut of all / own load", "cut", true, 0.0, 2.0},
    {"paste of all / own load", "paste", true, 0.0, 2.0},
    {"undo of a cut / own load", "undoCut", true, 0.0, 2.0},
    {"redo of a cut / own load", "redoCut", true, 0.0, 2.0},
    {"undo of a paste / own load", "undoPaste", true, 0.0, 2.0},
    {"redo of a paste / own load", "redoPaste", true, 0.0, 2.0},
    {"switch between two dates / own load", "switch", true, 0.0, 1.3},
    {"automatic switching / own load", "reset", true, 0.0, 1.3},
    {"undo of automatic switching / own load", "undoReset", true, 0.0, 1.3},
};

int pairsOf(int count)
{
    if (count <= 288)
        return Bench::Table::DefaultPairs;
    return count <= 1440 ? 9 : 5;
}

Operation operationOf(const QVector<Operation> &operations, const QString &name)
{
    const auto found =
        std::find_if(operations.cbegin(), operations.cend(),
                     [&name](const Operation &operation) { return operation.name == name; });
    if (found == operations.cend())
        qFatal("no operation %s", qPrintable(name));
    return *found;
}

std::function<double()> timed(const Operation &operation)
{
    return [operation] {
        operation.prepare();
        return Bench::measureProcessor(operation.work);
    };
}

void addFigure(Bench::Table *table, const Figure &figure, int count, const QVector<Operation> &own,
               const QVector<Operation> &bare)
{
    const double goal = count == fewBands ? figure.goalOfFew : figure.goal;
    if (goal == 0.0)
        return;
    const QString name = QString::fromLatin1(figure.operation);
    const Operation ours = operationOf(own, name);
    const Operation &limit =
        figure.againstOwnLoad ? operationOf(own, QStringLiteral("load")) : operationOf(bare, name);
    table->addFigures({QString::fromLatin1(figure.label), count, goal}, timed(limit), timed(ours),
                      pairsOf(count));
    limit.finish();
    ours.finish();
}

/// Bytes of the heap that a band takes once it was painted, in a program that had none before.
template<typename Table>
double memoryOfBand(Table *table, int count)
{
    table->settle();
    const auto inUse = [] {
        const auto info = mallinfo2();
        return info.uordblks + info.hblkhd;
    };
    const auto before = inUse();
    table->load(DenseDay::bands(count));
    table->settle();
    table->repaint();
    return static_cast<double>(inUse() - before) / count;
}

void printMemory(int count, bool plain)
{
    OwnTimeTable own(0);
    if (plain) {
        BareTimeTable bare(own.viewSize());
        std::printf("%f\n", memoryOfBand(&bare, count));
    } else {
        std::printf("%f\n", memoryOfBand(&own, count));
    }
}

double memoryInOwnProcess(int count, bool plain)
{
    QStringList arguments{QStringLiteral("--memory"), QString::number(count)};
    if (plain)
        arguments.append(QStringLiteral("--bare"));
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), arguments);
    process.waitForFinished(-1);
    bool ok = false;
    const double bytes = process.readAllStandardOutput().trimmed().toDouble(&ok);
    if (!ok)
        qFatal("cannot measure the memory of a band");
    return bytes;
}

void addMemory(Bench::Table *table, int count)
{
    constexpr int pairs = 3;
    table->addFigures(
        {QStringLiteral("memory a band, bytes / bare"), count, memoryGoal},
        [count] { return memoryInOwnProcess(count, true); },
        [count] { return memoryInOwnProcess(count, false); }, pairs);
}

void measure(Bench::Table *table, int count, const QStringList &names)
{
    const auto isWanted = [&names](const char *name) {
        return names.isEmpty() || names.contains(QString::fromLatin1(name));
    };
    OwnTimeTable own(count);
    BareTimeTable bare(own.viewSize());
    bare.load(DenseDay::bands(count));
    bare.settle();
    const QVector<Operation> ownOperations = operationsOf(&own, count);
    const QVector<Operation> bareOperations = operationsOf(&bare, count);
    for (const Figure &figure : figures) {
        if (isWanted(figure.operation))
            addFigure(table, figure, count, ownOperations, bareOperations);
    }
    if (count >= leastCountOfMemory && isWanted("memory"))
        addMemory(table, count);
}

void doOnce(const Operation &operation)
{
    operation.prepare();
    operation.work();
    operation.prepare();
    measuredOperation(&operation.work);
    operation.finish();
}

void doOnce(const QStringList &names, const QVector<Operation> &operations)
{
    for (const QString &name : names)
        doOnce(operationOf(operations, name));
}

void doOnce(const QStringList &names, int count, bool plain)
{
    OwnTimeTable own(count);
    if (!plain) {
        doOnce(names, operationsOf(&own, count));
        return;
    }
    BareTimeTable bare(own.viewSize());
    bare.load(DenseDay::bands(count));
    bare.settle();
    doOnce(names, operationsOf(&bare, count));
}

} // namespace

/// Without arguments the table, or the lines of the operations that are named; with --check the
/// exit status says whether the goals hold; with
/// --once OPERATION[,OPERATION...] COUNT [--bare] single operations, ours or the plain ones, for a
/// profiler.
int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--once")) {
        doOnce(arguments.value(2).split(QLatin1Char(',')), arguments.value(3).toInt(),
               arguments.contains(QStringLiteral("--bare")));
        return 0;
    }
    if (arguments.value(1) == QLatin1String("--memory")) {
        printMemory(arguments.value(2).toInt(), arguments.contains(QStringLiteral("--bare")));
        return 0;
    }
    Bench::Table table(arguments);
    QStringList operations = arguments.mid(1);
    operations.removeAll(QStringLiteral("--check"));
    for (const int count : counts)
        measure(&table, count, operations);
    return table.finish();
}
