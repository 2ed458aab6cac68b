#include "ZvStageText.h"

#include "ZvStageItem.h"

#include <QFont>
#include <QGlyphRun>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>
#include <QTextLayout>
#include <QTextOption>
#include <QtEndian>

namespace Zavo {

namespace {
constexpr double c_boldStrokeOfSize = 1.0 / 24.0; ///< width added to the strokes of a plain font

/// Whether the font itself is bold. The weight that the font claims is the one asked for.
bool isBold(const QRawFont &font)
{
    constexpr int weightClassAt = 4;
    constexpr int boldFrom = 600;
    const QByteArray metrics = font.fontTable("OS/2");
    if (metrics.size() < weightClassAt + int(sizeof(quint16)))
        return true;
    return qFromBigEndian<quint16>(metrics.constData() + weightClassAt) >= boldFrom;
}

QFont fontOf(const ZvStageItem &item)
{
    QFont font;
    font.setPixelSize(qMax(1, item.textSize));
    font.setBold(item.bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

/// Lays out the lines below each other and returns their height.
double layOut(QTextLayout &layout, const ZvStageItem &item)
{
    QTextOption option((item.alignment & Qt::AlignHorizontal_Mask) | Qt::AlignAbsolute);
    option.setWrapMode(QTextOption::WordWrap);
    option.setUseDesignMetrics(true);
    layout.setTextOption(option);
    double height = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(item.box.width());
        line.setPosition(QPointF(0, height));
        height += line.height();
    }
    layout.endLayout();
    return height;
}

QPainterPath outlineOf(const QGlyphRun &run)
{
    QPainterPath outline;
    outline.setFillRule(Qt::WindingFill);
    const QRawFont font = run.rawFont();
    const QVector<quint32> glyphs = run.glyphIndexes();
    const QVector<QPointF> positions = run.positions();
    for (int i = 0; i < glyphs.size(); ++i)
        outline.addPath(font.pathForGlyph(glyphs.at(i)).translated(positions.at(i)));
    return outline;
}

void paintRun(QPainter &painter, const QGlyphRun &run, const ZvStageItem &item)
{
    const QPainterPath outline = outlineOf(run);
    if (outline.isEmpty()) {
        // A font of pictures, as those of coloured symbols are.
        painter.drawGlyphRun(QPointF(), run);
        return;
    }
    painter.fillPath(outline, item.color);
    if (item.bold && !isBold(run.rawFont()))
        painter.strokePath(outline, QPen(item.color, item.textSize * c_boldStrokeOfSize,
                                         Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}
} // namespace

void ZvStageText::paint(QPainter &painter, const ZvStageItem &item)
{
    QString text = item.text;
    text.replace(QLatin1Char('\n'), QChar::LineSeparator);
    QTextLayout layout(text, fontOf(item));
    const double height = layOut(layout, item);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(item.box, Qt::IntersectClip);
    painter.translate(item.box.left(), item.box.center().y() - height / 2);
    painter.setPen(item.color);
    const QRectF visible = painter.transform().inverted().mapRect(QRectF(painter.viewport()));
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        if (line.y() > visible.bottom() || line.y() + line.height() < visible.top())
            continue;
        const QList<QGlyphRun> runs = line.glyphRuns();
        for (const QGlyphRun &run : runs)
            paintRun(painter, run, item);
    }
    painter.restore();
}

} // namespace Zavo
