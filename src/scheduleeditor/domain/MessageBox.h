#pragma once

#include <QMessageBox>

namespace Zavo {

/// Shows a modal message box over @p parent and returns the pressed button; NoButton if the parent
/// died under the box. @p details, if there are any, stand behind a button of the box.
QMessageBox::StandardButton showMessageBox(QWidget *parent, QMessageBox::Icon icon,
                                           const QString &title, const QString &text,
                                           QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                                           const QString &details = QString());

} // namespace Zavo
