#include "navigation/LookState.h"

#include <QStyle>
#include <QVariant>
#include <QWidget>

namespace Zavo {

void setLookState(QWidget *widget, const char *property, bool on)
{
    widget->setProperty(property, on);
    widget->style()->polish(widget);
}

} // namespace Zavo
