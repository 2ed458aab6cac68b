#pragma once

class QPushButton;
class QString;
class QWidget;

namespace Zavo {

/// A button of the upload dialogs, which @p parent owns and whose clicked() goes to @p slot of
/// @p parent. It is found by @p name, and @p toolTip is its status tip too. Return does not press
/// it by accident: it is the default only if it is made so.
QPushButton *createUploadButton(QWidget *parent, const char *name, const QString &text,
                                const QString &toolTip, const char *slot);

} // namespace Zavo
