#pragma once

class QPainter;

namespace Zavo {

struct ZvStageItem;

/// Writes the text of a stage. It breaks its lines in the same places at every scale of the
/// painter, and is drawn by its outlines, so that no scale makes it coarse.
class ZvStageText final
{
public:
    ZvStageText() = delete;

    /// Writes @p item within its box, wrapped at words and centred from top to bottom. What does
    /// not fit is cut off at the box.
    static void paint(QPainter &painter, const ZvStageItem &item);
};

} // namespace Zavo
