#include "domain/MessageBox.h"

#include <QPointer>

namespace Zavo {

QMessageBox::StandardButton showMessageBox(QWidget *parent, QMessageBox::Icon icon,
                                           const QString &title, const QString &text,
                                           QMessageBox::StandardButtons buttons,
                                           const QString &details)
{
    // Not on the stack: a parent that is deleted from the box's event loop takes the box with it.
    const QPointer<QMessageBox> box = new QMessageBox(icon, title, text, buttons, parent);
    box->setTextFormat(Qt::PlainText);
    if (!details.isEmpty())
        box->setDetailedText(details);
    const int pressed = box->exec();
    if (!box)
        return QMessageBox::NoButton;
    delete box;
    return static_cast<QMessageBox::StandardButton>(pressed);
}

} // namespace Zavo
