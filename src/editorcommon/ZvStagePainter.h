#pragma once

#include <QImage>
#include <QSize>

namespace Zavo {

class ZvStage;

/// Paints stages. Knows no widget.
class ZvStagePainter final
{
public:
    ZvStagePainter() = delete;

    /// The size of @p stage scaled to fit into @p available, at least one pixel in each direction;
    /// empty if either is.
    static QSize fittingSize(const ZvStage &stage, const QSize &available);

    /// @p stage drawn over the whole of a picture of @p size device pixels; null if either is
    /// empty.
    static QImage paint(const ZvStage &stage, const QSize &size);
};

} // namespace Zavo
