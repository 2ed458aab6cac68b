#pragma once

#include "timetable/KeptInk.h"

#include <QFont>
#include <QHash>
#include <QObject>
#include <QPair>
#include <QStaticText>
#include <QString>
#include <QTextDocument>

#include <memory>

namespace Zavo {

/// A plain text in the font of the time table, laid out.
class TimeTableText final
{
public:
    TimeTableText(const QString &text, int pixelSize);

    /// Draws the text in black, with the upper left corner of the document in the painter's origin.
    /// False, and nothing is drawn, where only the document stands on the right pixels.
    bool paint(QPainter *painter);

    QFont font;
    QTextDocument document;

private:
    double ascent();

    bool m_isOneLine;
    double m_ascent = -1.0; // px, once it was asked for
    QStaticText m_glyphs;
    KeptInk m_ink;
};

/// Lends texts to the labels that bear them. Laying one out costs more than a label does without,
/// in time and in memory, and stages and numbers come again and again: on the bands of a table, on
/// those of the next one, on other pages. Nobody writes to a text that is lent.
///
/// One for the application, which dies with it.
class TimeTableTexts final : public QObject
{
    Q_OBJECT

public:
    /// Never null. @p pixelSize is that of the font.
    static std::shared_ptr<TimeTableText> find(const QString &text, int pixelSize);

private:
    explicit TimeTableTexts(QObject *parent);

    std::shared_ptr<TimeTableText> findKept(const QString &text, int pixelSize);
    void dropUnused();

    QHash<QPair<QString, int>, std::shared_ptr<TimeTableText>> m_texts;
    int m_limit;
};

} // namespace Zavo
