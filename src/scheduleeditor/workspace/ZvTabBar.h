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

    /// Takes the look of a shown bar now if it was shown and is about to take it. Who adds many
    /// tabs saves that they are measured twice, in two fonts.
    void takeShownLook();

protected:
    QSize tabSizeHint(int index) const override;

private Q_SLOTS:
    void applyShownLook();

private:
    void applyResizedLook();
    void setScrollerWidth(double width);

    QSizeF m_baseIconSize{16.0, 16.0};
    double m_dpiRatio = 1.0;
    bool m_shownLookDue = false;
};

} // namespace Zavo
