#include "navigation/LookState.h"

#include <QStyle>
#include <QVariant>
#include <QWidget>

namespace Zavo {

void setLookState(QWidget *widget, const char *property, bool on)
{
    const QVariant state(on);
    if (widget->property(property) == state)
        return;
    widget->setProperty(property, state);
    // Who was not styled yet will be when it is shown.
    if (widget->testAttribute(Qt::WA_WState_Polished))
        widget->style()->polish(widget);
}

} // namespace Zavo
