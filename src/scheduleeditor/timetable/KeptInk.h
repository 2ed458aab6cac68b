#pragma once

#include <QImage>
#include <QPainter>

class QFont;
class QStaticText;

namespace Zavo {

/// The pixels of a text, black on nothing, to be copied where the text is painted again.
///
/// Blending glyphs pixel by pixel is most of what a dense table costs to paint, and copying an
/// image with the same result a fraction of it. What is kept in the whole program has a bound;
/// texts beyond it are drawn from their glyphs.
class KeptInk final
{
public:
    KeptInk() = default;
    ~KeptInk();

    /// Draws @p text with its upper left corner at @p position in the painter's coordinates, whose
    /// transform scales by a whole number at most. @p ascent is that of its only line, in the same
    /// units. A text is kept when it is drawn for the second time in a row on the same part of a
    /// pixel.
    void draw(QPainter *painter, const QPointF &position, const QStaticText &text,
              const QFont &font, double ascent);

private:
    Q_DISABLE_COPY(KeptInk)

    struct Place
    {
        int fraction = -1; ///< of a device pixel, from left to right
        double ratio = 0.0;

        bool operator==(const Place &other) const
        {
            return fraction == other.fraction && ratio == other.ratio;
        }
    };

    bool keepAt(const Place &place, QPainter::RenderHints hints, const QStaticText &text,
                const QFont &font);
    void forget();

    Place m_drawnAt;
    Place m_keptAt;
    QImage m_image;
    QPoint m_offset; ///< of the image from the text's upper left corner, in device pixels
};

} // namespace Zavo
