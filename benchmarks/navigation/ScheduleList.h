#pragma once

namespace Bench {
class Table;
}

/// Measures the schedule list: the filling with many rows, and the change of one of them.
void benchScheduleList(Bench::Table *table);
