#pragma once

#include <QSizeF>
#include <QTabBar>

namespace Zavo {

/// The bar of the channel tabs. Its icons, font and scroll buttons follow the ratio of the screen.
class ZvTabBar final : public QTabBar
{
    Q_OBJECT

public:
    explicit ZvTabBar(QWidget *parent = nullptr);

    bool event(QEvent *event) override;

protected:
    QSize tabSizeHint(int index) const override;

private Q_SLOTS:
    void applyShownLook();

private:
    void applyResizedLook();
    void setScrollerWidth(double width);

    QSizeF m_baseIconSize{16.0, 16.0};
    double m_dpiRatio = 1.0;
};

} // namespace Zavo
