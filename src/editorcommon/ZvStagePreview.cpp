#include "ZvStagePreview.h"

#include "ZvStagePainter.h"

#include <QImage>
#include <QPainter>

namespace Zavo {

namespace {
constexpr int c_hintWidth = 240;
constexpr int c_hintHeight = 135;
constexpr int c_wellDarkness = 106; ///< percent of the window's colour
} // namespace

ZvStagePreview::ZvStagePreview(QWidget *parent, Qt::WindowFlags flags)
    : QFrame(parent, flags)
{
}

QSize ZvStagePreview::sizeHint() const
{
    return QSize(c_hintWidth, c_hintHeight) + QSize(2, 2) * frameWidth();
}

void ZvStagePreview::clear()
{
    setStage(ZvStage());
}

void ZvStagePreview::setStage(const ZvStage &stage)
{
    m_stage = stage;
    m_picture = QPixmap();
    update();
}

void ZvStagePreview::getImage(QImage **image)
{
    if (!image)
        return;
    const QPixmap &shown = picture();
    *image = shown.isNull() ? nullptr : new QImage(shown.toImage());
}

void ZvStagePreview::paintEvent(QPaintEvent *event)
{
    {
        QPainter painter(this);
        painter.fillRect(contentsRect(), palette().color(QPalette::Window).darker(c_wellDarkness));
        const QPixmap &shown = picture();
        if (!shown.isNull()) {
            QRect place(QPoint(), shown.size() / shown.devicePixelRatio());
            place.moveCenter(contentsRect().center());
            painter.drawPixmap(place.topLeft(), shown);
        }
    }
    QFrame::paintEvent(event);
}

/// The stage as it is shown now, painted if the last painting does not serve.
const QPixmap &ZvStagePreview::picture()
{
    const double ratio = devicePixelRatioF();
    const QSize available = (QSizeF(contentsRect().size()) * ratio).toSize();
    const QSize size = ZvStagePainter::fittingSize(m_stage, available);
    const bool serves = size == m_picture.size() && m_picture.devicePixelRatio() == ratio;
    if (!serves) {
        m_picture = QPixmap::fromImage(ZvStagePainter::paint(m_stage, size));
        m_picture.setDevicePixelRatio(ratio);
    }
    return m_picture;
}

} // namespace Zavo
