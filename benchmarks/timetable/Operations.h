#pragma once

#include <QString>
#include <QVector>

#include <functional>

class BareTimeTable;
class OwnTimeTable;

/// Something done to a time table, its painting included. It can be done again and again.
struct Operation
{
    QString name;
    std::function<void()> prepare; ///< before each time, not measured
    std::function<void()> work;
    std::function<void()> finish = [] {}; ///< after the last time
};

/// What is measured, and the same for the plain one under the same names. The tables hold
/// DenseDay::bands(@p count) and outlive the operations.
QVector<Operation> operationsOf(OwnTimeTable *table, int count);
QVector<Operation> operationsOf(BareTimeTable *table, int count);
