#pragma once

#include "ZvEditorCommonExport.h"

#include <QString>

namespace Zavo {

/// The order in which people read file names: case does not matter and a run of digits counts as
/// one number, so "stage2" comes before "Stage10". The same in every locale.
class ZVEDITORCOMMON_EXPORT ZvNaturalOrder
{
public:
    ZvNaturalOrder() = delete;

    /// Negative if @p left comes first, positive if @p right does, 0 only for equal strings.
    static int compare(const QString &left, const QString &right);
};

} // namespace Zavo
