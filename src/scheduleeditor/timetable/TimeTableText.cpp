#include "timetable/TimeTableText.h"

#include "timetable/TimeTableFont.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QPainter>
#include <QPointer>
#include <QTextBlock>
#include <QTextLayout>

#include <cmath>

namespace Zavo {

namespace {

constexpr int keptTexts =
    5000; // numbers and stages of the densest table that is edited in practice
// A label parts from a text in time of the labels that share it.
constexpr int mostSharers = 64;

} // namespace

TimeTableText::TimeTableText(const QString &text, int pixelSize)
    : font(TimeTableFont::font(pixelSize))
{
    document.setUndoRedoEnabled(false);
    document.setDefaultFont(font);
    document.setPlainText(text);
    m_isOneLine = document.blockCount() == 1;
    m_glyphs.setTextFormat(Qt::PlainText);
    m_glyphs.setPerformanceHint(QStaticText::AggressiveCaching);
    m_glyphs.setText(text);
}

bool TimeTableText::paint(QPainter *painter)
{
    // Kept glyphs stand on other subpixels than the document's where a pixel is no whole number of
    // device pixels, and all on one line.
    const double pixelRatio = painter->deviceTransform().m11();
    if (!m_isOneLine || pixelRatio != std::floor(pixelRatio))
        return false;
    const double margin = document.documentMargin();
    m_ink.draw(painter, QPointF(margin, margin), m_glyphs, font, ascent());
    return true;
}

double TimeTableText::ascent()
{
    if (m_ascent < 0.0) {
        document.documentLayout()->documentSize(); // lays out what is not laid out yet
        const QTextLayout *layout = document.firstBlock().layout();
        m_ascent = layout->lineCount() > 0 ? layout->lineAt(0).ascent() : 0.0;
    }
    return m_ascent;
}

TimeTableTexts::TimeTableTexts(QObject *parent)
    : QObject(parent)
    , m_limit(keptTexts)
{
}

std::shared_ptr<TimeTableText> TimeTableTexts::find(const QString &text, int pixelSize)
{
    static QPointer<TimeTableTexts> texts;
    if (!texts && QCoreApplication::instance())
        texts = new TimeTableTexts(QCoreApplication::instance());
    return texts ? texts->findKept(text, pixelSize)
                 : std::make_shared<TimeTableText>(text, pixelSize);
}

std::shared_ptr<TimeTableText> TimeTableTexts::findKept(const QString &text, int pixelSize)
{
    std::shared_ptr<TimeTableText> &kept = m_texts[{text, pixelSize}];
    if (kept && kept.use_count() <= mostSharers)
        return kept;
    kept = std::make_shared<TimeTableText>(text, pixelSize);
    const std::shared_ptr<TimeTableText> found = kept;
    if (m_texts.size() > m_limit)
        dropUnused();
    return found;
}

void TimeTableTexts::dropUnused()
{
    for (auto text = m_texts.begin(); text != m_texts.end();)
        text = text->use_count() == 1 ? m_texts.erase(text) : ++text;
    // So that a program which needs more does not come here each time.
    m_limit = qMax(keptTexts, 2 * m_texts.size());
}

} // namespace Zavo
