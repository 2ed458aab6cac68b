#pragma once

#include "ZvCoreExport.h"

#include <QColor>
#include <QImage>
#include <QList>
#include <QRectF>
#include <QString>
#include <Qt>

namespace Zavo {

/// One thing that stands on a stage: a rectangle, a text or a picture. A plain value in stage
/// pixels.
struct ZVCORE_EXPORT ZvStageItem
{
    /// What can stand on a stage.
    enum Kinds : int {
        Rectangle, ///< filled with the colour
        Text,      ///< written in the colour, centred from top to bottom, wrapped at words
        Picture,   ///< scaled to the box; null if it could not be loaded
    };

    Kinds kind = Rectangle;                  ///< says which of the other fields count
    QRectF box;                              ///< from the top left corner of the stage
    QColor color;                            ///< of a rectangle or a text
    QString text;                            ///< with line breaks
    int textSize = 0;                        ///< height of the font in stage pixels
    bool bold = false;                       ///< of a text
    Qt::Alignment alignment = Qt::AlignLeft; ///< left, right or centred from side to side
    QImage picture;                          ///< null if there is none
};

} // namespace Zavo

Q_DECLARE_TYPEINFO(Zavo::ZvStageItem, Q_MOVABLE_TYPE);
