#pragma once

#include <QLabel>

namespace Zavo {

/// A label of one line of plain text that gives way: where the text does not fit, dots stand for
/// its end.
class ElidedLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace Zavo
