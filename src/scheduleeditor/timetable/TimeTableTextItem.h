#pragma once

#include <QGraphicsTextItem>
#include <QSharedPointer>

class QTextDocument;

namespace Zavo {

/// A text of the time table that is not scaled with the view.
///
/// Laying out a document costs more than all else about such an item, so items of the same text and
/// size share one, and documents are kept for the next schedule on show.
class TimeTableTextItem : public QGraphicsTextItem
{
    Q_OBJECT

public:
    explicit TimeTableTextItem(QGraphicsItem *parent = nullptr);
    ~TimeTableTextItem() override;

    bool hasLabel() const { return !m_document.isNull(); }

    /// Shows @p text, as plain text, with letters of @p pixelSize.
    void setLabel(const QString &text, int pixelSize);

private:
    QSharedPointer<QTextDocument> m_document;
};

} // namespace Zavo
