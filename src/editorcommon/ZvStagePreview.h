#pragma once

#include "ZvEditorCommonExport.h"
#include "ZvStage.h"

#include <QFrame>
#include <QPixmap>

class QImage;

namespace Zavo {

/// Draws one stage as large as its rectangle allows, centred and with its aspect ratio kept. Knows
/// no file: it shows the stage that it is given.
class ZVEDITORCOMMON_EXPORT ZvStagePreview : public QFrame
{
    Q_OBJECT

public:
    /// Shows no stage.
    explicit ZvStagePreview(QWidget *parent = nullptr, Qt::WindowFlags flags = {});

    /// The stage on show, isEmpty() if there is none.
    ZvStage stage() const { return m_stage; }

    /// The size of a thumbnail, in the pixels of the screen.
    QSize sizeHint() const override;

public Q_SLOTS:
    /// Shows no stage.
    void clear();

    /// Shows @p stage; one that isEmpty() shows none.
    void setStage(const ZvStage &stage);

    /// Answers in *@p image with a new picture of the stage, as large as it is shown in device
    /// pixels, or with null if there is none. The caller owns it. A null @p image is passed over.
    void getImage(QImage **image);

protected:
    /// Paints the stage, scaled anew only if its size changed.
    void paintEvent(QPaintEvent *event) override;

private:
    const QPixmap &picture();

    ZvStage m_stage;
    QPixmap m_picture;
};

} // namespace Zavo
