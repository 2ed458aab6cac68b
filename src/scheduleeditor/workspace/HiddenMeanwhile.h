#pragma once

#include <QWidget>

namespace Zavo {

/// Hides a widget while it lives. A shown tab bar lays out all its tabs whenever one is added; a
/// hidden one does it once at the end.
class HiddenMeanwhile final
{
    Q_DISABLE_COPY(HiddenMeanwhile)

public:
    explicit HiddenMeanwhile(QWidget *widget)
        : m_widget(widget)
        , m_wasVisible(widget->isVisible())
    {
        if (m_wasVisible)
            m_widget->hide();
    }
    ~HiddenMeanwhile()
    {
        if (m_wasVisible)
            m_widget->show();
    }

private:
    QWidget *m_widget;
    bool m_wasVisible;
};

} // namespace Zavo
