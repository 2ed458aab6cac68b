#include "ZvStagePainter.h"

#include "ZvStage.h"
#include "ZvStageText.h"

#include <QPainter>

#include <cmath>

namespace Zavo {

namespace {
/// The whole device pixels that @p box covers, at least one in each direction, so that boxes that
/// adjoin leave no seam and thin ones do not vanish.
QRect pixelsOf(const QPainter &painter, const QRectF &box)
{
    const QRectF canvas(painter.viewport());
    const QRectF exact = painter.transform().mapRect(box).intersected(canvas);
    if (exact.isEmpty())
        return {};
    const QPoint first(static_cast<int>(std::lround(exact.left())),
                       static_cast<int>(std::lround(exact.top())));
    const QPoint end(static_cast<int>(std::lround(exact.right())),
                     static_cast<int>(std::lround(exact.bottom())));
    return {first, QSize(qMax(1, end.x() - first.x()), qMax(1, end.y() - first.y()))};
}

void paintRectangle(QPainter &painter, const ZvStageItem &item)
{
    const QRect pixels = pixelsOf(painter, item.box);
    painter.save();
    painter.resetTransform();
    painter.fillRect(pixels, item.color);
    painter.restore();
}

void paintPicture(QPainter &painter, const ZvStageItem &item)
{
    if (item.picture.isNull() || item.box.isEmpty())
        return;
    const QRectF exact = painter.transform().mapRect(item.box);
    const QRect pixels = pixelsOf(painter, item.box);
    painter.save();
    if (QRectF(painter.viewport()).adjusted(-1, -1, 1, 1).contains(exact)) {
        // Far smaller than the picture, only averaging shows every detail.
        painter.resetTransform();
        painter.drawImage(pixels, item.picture.scaled(pixels.size(), Qt::IgnoreAspectRatio,
                                                      Qt::SmoothTransformation));
    } else {
        painter.drawImage(item.box, item.picture);
    }
    painter.restore();
}

void paintItem(QPainter &painter, const ZvStageItem &item)
{
    switch (item.kind) {
    case ZvStageItem::Rectangle:
        paintRectangle(painter, item);
        break;
    case ZvStageItem::Text:
        ZvStageText::paint(painter, item);
        break;
    case ZvStageItem::Picture:
        paintPicture(painter, item);
        break;
    }
}
} // namespace

QSize ZvStagePainter::fittingSize(const ZvStage &stage, const QSize &available)
{
    if (stage.isEmpty() || available.isEmpty())
        return {};
    return stage.size().scaled(available, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

QImage ZvStagePainter::paint(const ZvStage &stage, const QSize &size)
{
    if (stage.isEmpty() || size.isEmpty())
        return {};
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(image.rect(), stage.background());
    painter.scale(double(size.width()) / stage.size().width(),
                  double(size.height()) / stage.size().height());
    const QList<ZvStageItem> items = stage.items();
    for (const ZvStageItem &item : items)
        paintItem(painter, item);
    return image;
}

} // namespace Zavo
