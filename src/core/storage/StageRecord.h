#pragma once

#include "ZvStageItem.h"

#include <QColor>
#include <QList>
#include <QSize>

namespace Zavo {

/// What a stage file holds, with its pictures.
struct StageRecord
{
    QSize size;
    QColor background = Qt::black;
    QList<ZvStageItem> items;
};

} // namespace Zavo
