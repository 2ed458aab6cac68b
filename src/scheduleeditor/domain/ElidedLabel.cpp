#include "domain/ElidedLabel.h"

#include <QPainter>
#include <QStyle>

namespace Zavo {

ElidedLabel::ElidedLabel(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {1, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent *event)
{
    if (contentsRect().width() >= sizeHint().width()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    drawFrame(&painter);
    // Within a frame the whole text keeps that distance too.
    const int inset = indent() < 0 && frameWidth() > 0
                          ? fontMetrics().horizontalAdvance(QLatin1Char('x')) / 2
                          : 0;
    const QRect room = contentsRect().adjusted(inset, 0, -inset, 0);
    const QString text = fontMetrics().elidedText(this->text(), Qt::ElideRight, room.width());
    style()->drawItemText(&painter, room, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                          text, foregroundRole());
}

} // namespace Zavo
