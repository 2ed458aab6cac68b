#include "Operations.h"

#include "BareTimeTable.h"
#include "DenseDay.h"
#include "OwnTimeTable.h"

#include <memory>

using namespace Zavo;

namespace {

constexpr double wholeDay = 1.0; // the scale of 100%
constexpr double seconds = 60.0; // that of 6000%
constexpr double movedUnits = 1.0;

/// Says 1 and -1 in turn, so that what is moved comes back.
std::function<int()> alternating()
{
    return [direction = std::make_shared<int>(-1)] { return *direction = -*direction; };
}

template<typename Table>
void fill(Table *table, const QList<ZvTime> &bands)
{
    table->clear();
    table->load(bands);
    table->settle();
}

/// What both tables can do in the same words.
template<typename Table>
QVector<Operation> sharedOperations(Table *table, int count)
{
    const QList<ZvTime> bands = DenseDay::bands(count);
    const auto change = [table](const auto &work) {
        return [table, work] {
            work();
            table->settle();
        };
    };
    const auto look = [table, count](double scale) {
        return [table, count, scale] { table->look(scale, count / 2); };
    };
    return {
        {QStringLiteral("load"), change([table] { table->clear(); }),
         change([table, bands] { table->load(bands); })},
        {QStringLiteral("repaint"), look(wholeDay), [table] { table->repaint(); }},
        {QStringLiteral("repaintSeconds"), look(seconds), [table] { table->repaint(); },
         look(wholeDay)},
        {QStringLiteral("selectAll"), change([table] { table->deselectAll(); }),
         change([table] { table->selectAll(); }), change([table] { table->deselectAll(); })},
        {QStringLiteral("clear"), [table, bands] { fill(table, bands); },
         change([table] { table->clear(); }), [table, bands] { fill(table, bands); }},
    };
}

Operation switchOperation(OwnTimeTable *table)
{
    return {QStringLiteral("switch"), [] {},
            [table, second = std::make_shared<bool>(false)] {
                *second = !*second;
                table->switchTo(*second);
                table->settle();
            }};
}

Operation firstLoadOperation(OwnTimeTable *table, const QList<ZvTime> &bands)
{
    return {QStringLiteral("firstLoad"),
            [table] {
                table->clear();
                table->settle();
                OwnTimeTable::forgetKeptLabels();
            },
            [table, bands] {
                table->load(bands);
                table->settle();
            }};
}

/// A step of a drag that goes on from one time to the next.
Operation dragOperation(OwnTimeTable *table, const QString &name,
                        const std::function<void()> &select)
{
    const auto dragging = std::make_shared<bool>(false);
    return {name,
            [table, select, dragging] {
                if (std::exchange(*dragging, true))
                    return;
                select();
                table->startDrag();
            },
            [table, direction = alternating()] {
                table->dragBy(direction());
                table->settle();
            },
            [table, dragging] {
                table->endDrag();
                *dragging = false;
                table->look(wholeDay, 0);
            }};
}

QVector<Operation> halfOperations(OwnTimeTable *table, const QList<ZvTime> &bands)
{
    const int half = bands.size() / 2;
    return {
        {QStringLiteral("insertFront"), [table, bands, half] { fill(table, bands.mid(half)); },
         [table, bands, half] {
             table->load(bands.mid(0, half));
             table->settle();
         }},
        {QStringLiteral("removeFront"), [table, bands] { fill(table, bands); },
         [table, bands, half] {
             table->remove(bands.mid(0, half));
             table->settle();
         },
         [table, bands] { fill(table, bands); }},
    };
}

/// Each is measured from a table that @p prepare has made.
QVector<Operation> clipboardOperations(OwnTimeTable *table, const QList<ZvTime> &bands)
{
    const auto selected = [table, bands] {
        fill(table, bands);
        table->selectAll();
        table->settle();
    };
    const auto isCut = [table, selected] {
        selected();
        table->cut();
        table->settle();
    };
    const auto isPasted = [table, isCut] {
        isCut();
        table->paste();
        table->settle();
    };
    const auto refill = [table, bands] { fill(table, bands); };
    const auto operation = [table, refill](const char *name, const std::function<void()> &prepare,
                                           void (OwnTimeTable::*work)()) {
        return Operation{QString::fromLatin1(name), prepare,
                         [table, work] {
                             (table->*work)();
                             table->settle();
                         },
                         refill};
    };
    const auto undone = [table](const std::function<void()> &prepare) {
        return [table, prepare] {
            prepare();
            table->undo();
            table->settle();
        };
    };
    return {operation("cut", selected, &OwnTimeTable::cut),
            operation("paste", isCut, &OwnTimeTable::paste),
            operation("undoCut", isCut, &OwnTimeTable::undo),
            operation("redoCut", undone(isCut), &OwnTimeTable::redo),
            operation("undoPaste", isPasted, &OwnTimeTable::undo),
            operation("redoPaste", undone(isPasted), &OwnTimeTable::redo)};
}

Operation undoMoveOperation(OwnTimeTable *table)
{
    return {QStringLiteral("undoMove"), [] {},
            [table, direction = alternating()] {
                QMap<int, QRectF> rects = table->rects();
                const double dy = direction() * movedUnits;
                for (QRectF &rect : rects)
                    rect.translate(0.0, dy);
                table->place(rects);
                table->settle();
            }};
}

/// A table that gives way to another one of as many bands, all different.
QVector<Operation> resetOperations(OwnTimeTable *table, int count)
{
    const QList<ZvTime> bands = DenseDay::bands(count);
    const QList<ZvTime> others = DenseDay::bands(count, 1);
    const auto isFull = [table, bands] { fill(table, bands); };
    const auto reset = [table, others] {
        table->reset(others);
        table->settle();
    };
    const auto isReset = [isFull, reset] {
        isFull();
        reset();
    };
    const auto undo = [table] {
        table->undo();
        table->settle();
    };
    return {{QStringLiteral("reset"), isFull, reset, isFull},
            {QStringLiteral("undoReset"), isReset, undo, isFull}};
}

} // namespace

QVector<Operation> operationsOf(OwnTimeTable *table, int count)
{
    const QList<ZvTime> bands = DenseDay::bands(count);
    const int middle = count / 2;
    QVector<Operation> operations = sharedOperations(table, count);
    operations += switchOperation(table);
    operations += firstLoadOperation(table, bands);
    operations += dragOperation(table, QStringLiteral("groupStep"), [table, middle] {
        table->look(wholeDay, middle);
        table->selectAll();
        table->settle();
    });
    operations += dragOperation(table, QStringLiteral("bandStep"), [table, middle] {
        table->look(seconds, middle);
        table->selectOne(middle);
    });
    operations += halfOperations(table, bands);
    operations += undoMoveOperation(table);
    operations += resetOperations(table, count);
    operations += clipboardOperations(table, bands);
    return operations;
}

QVector<Operation> operationsOf(BareTimeTable *table, int count)
{
    const QList<ZvTime> bands = DenseDay::bands(count);
    const int middle = count / 2;
    const auto reload = [table, bands] { fill(table, bands); };
    const auto clear = [table] {
        table->clear();
        table->settle();
    };
    const auto load = [table, bands] {
        table->load(bands);
        table->settle();
    };
    QVector<Operation> operations = sharedOperations(table, count);
    operations += {QStringLiteral("switch"), [] {}, reload};
    operations += {QStringLiteral("firstLoad"), clear, load};
    operations += {QStringLiteral("groupStep"),
                   [table, middle] {
                       table->look(wholeDay, middle);
                       table->selectAll();
                       table->settle();
                   },
                   [table, direction = alternating()] {
                       table->moveAll(direction());
                       table->settle();
                   }};
    operations += {QStringLiteral("bandStep"), [table, middle] { table->look(seconds, middle); },
                   [table, middle, direction = alternating()] {
                       table->moveOne(middle, direction() / seconds);
                       table->settle();
                   },
                   [table] { table->look(wholeDay, 0); }};
    return operations;
}
