#include "timetable/KeptInk.h"

#include <QPaintEngine>
#include <QPainter>
#include <QStaticText>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace Zavo {

namespace {

constexpr int mostKeptBytes = 8 * 1024 * 1024;
constexpr int mostBytesOfOne = 64 * 1024;
constexpr int margin = 3;        // px around the text, for glyphs that reach out of their box
constexpr int partsOfPixel = 64; // glyphs are placed to such parts

int s_keptBytes = 0;

/// In parts of a pixel, as the painter cuts it.
int inParts(double pixels)
{
    return static_cast<int>(pixels * partsOfPixel);
}

int floorOfParts(int parts)
{
    return static_cast<int>(std::floor(static_cast<double>(parts) / partsOfPixel));
}

/// The device pixel that a baseline comes to stand on.
int baselineOf(double top, double ascent)
{
    return floorOfParts(inParts(top) + inParts(ascent) + partsOfPixel / 2);
}

void drawGlyphs(QPainter *painter, const QPointF &position, const QStaticText &text,
                const QFont &font)
{
    painter->setFont(font);
    painter->setPen(Qt::black);
    painter->drawStaticText(position, text);
}

void drawSample(QPainter *painter)
{
    painter->setPen(Qt::black);
    painter->drawText(painter->viewport(), QStringLiteral("#Wil"));
}

class SampleWidget final : public QWidget
{
protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        drawSample(&painter);
    }
};

QImage sampleImage(const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    return image;
}

/// Text is smoothed in colours on some screens, or not at all, and in images it never is so.
bool isTextOnScreenLikeInImages()
{
    constexpr QSize size(48, 24);
    SampleWidget widget;
    widget.resize(size);
    QImage shown = sampleImage(size);
    widget.render(&shown, {}, {}, {});
    QImage painted = sampleImage(size);
    QPainter painter(&painted);
    painter.setFont(widget.font());
    drawSample(&painter);
    return shown == painted;
}

bool canCopyText(const QPainter &painter)
{
    static const bool isLikeInImages = isTextOnScreenLikeInImages();
    return isLikeInImages && painter.paintEngine()->type() == QPaintEngine::Raster;
}

bool isUpright(const QTransform &toDevice)
{
    return toDevice.type() <= QTransform::TxScale && toDevice.m11() > 0.0 &&
           toDevice.m11() == toDevice.m22();
}

int firstRowWithInk(const QImage &image, int from, int to, int step)
{
    for (int y = from; y != to; y += step) {
        const auto *row = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        if (std::any_of(row, row + image.width(), [](QRgb pixel) { return pixel != 0; }))
            return y;
    }
    return to;
}

QRect rowsWithInk(const QImage &image)
{
    const int top = firstRowWithInk(image, 0, image.height(), 1);
    const int bottom = firstRowWithInk(image, image.height() - 1, top - 1, -1);
    return {QPoint(0, top), QPoint(image.width() - 1, bottom)};
}

} // namespace

KeptInk::~KeptInk()
{
    forget();
}

void KeptInk::draw(QPainter *painter, const QPointF &position, const QStaticText &text,
                   const QFont &font, double ascent)
{
    const QTransform toDevice = painter->deviceTransform();
    const double ratio = toDevice.m11();
    if (!canCopyText(*painter) || !isUpright(toDevice)) {
        drawGlyphs(painter, position, text, font);
        return;
    }
    const QPointF corner = toDevice.map(position);
    const int left = floorOfParts(inParts(corner.x()));
    const Place place{inParts(corner.x()) - left * partsOfPixel, ratio};
    const bool isAgain = m_drawnAt == place;
    m_drawnAt = place;
    if (!(m_keptAt == place) && !(isAgain && keepAt(place, painter->renderHints(), text, font))) {
        drawGlyphs(painter, position, text, font);
        return;
    }
    if (m_image.isNull())
        return;

    const int down = baselineOf(corner.y(), ascent * ratio) - baselineOf(0.0, ascent * ratio);
    const QPointF target = QPoint(left, down) + m_offset;
    if (toDevice.type() <= QTransform::TxTranslate) {
        painter->drawImage(target - QPointF(toDevice.dx(), toDevice.dy()), m_image);
        return;
    }
    const QTransform world = painter->worldTransform();
    painter->setWorldTransform(toDevice.inverted() * world);
    painter->drawImage(target, m_image);
    painter->setWorldTransform(world);
}

bool KeptInk::keepAt(const Place &place, QPainter::RenderHints hints, const QStaticText &text,
                     const QFont &font)
{
    forget();
    const QSizeF needed = text.size() * place.ratio;
    const double width = std::ceil(needed.width()) + 2 * margin + 1;
    const double height = std::ceil(needed.height()) + 2 * margin;
    constexpr int bytesOfPixel = 4;
    if (width * height * bytesOfPixel > mostBytesOfOne || s_keptBytes > mostKeptBytes)
        return false;

    QImage canvas(static_cast<int>(width), static_cast<int>(height),
                  QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    painter.setRenderHints(hints);
    painter.translate(margin + static_cast<double>(place.fraction) / partsOfPixel, margin);
    painter.scale(place.ratio, place.ratio);
    drawGlyphs(&painter, QPointF(), text, font);
    painter.end();

    const QRect rows = rowsWithInk(canvas);
    m_image = canvas.copy(rows);
    m_offset = rows.topLeft() - QPoint(margin, margin);
    m_keptAt = place;
    s_keptBytes += static_cast<int>(m_image.sizeInBytes());
    return true;
}

void KeptInk::forget()
{
    s_keptBytes -= static_cast<int>(m_image.sizeInBytes());
    m_image = QImage();
    m_keptAt = Place();
}

} // namespace Zavo
