#include "upload/UploadButton.h"

#include <QPushButton>

namespace Zavo {

QPushButton *createUploadButton(QWidget *parent, const char *name, const QString &text,
                                const QString &toolTip, const char *slot)
{
    auto *const button = new QPushButton(text, parent);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(toolTip);
    button->setStatusTip(toolTip);
    button->setAutoDefault(false);
    QObject::connect(button, SIGNAL(clicked()), parent, slot);
    return button;
}

} // namespace Zavo
