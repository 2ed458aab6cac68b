#pragma once

#include <QStringList>

class QWidget;

namespace ZavoTest {

/// The controls below @p root that a person can use but assistive technology has no name for, each
/// by its class and object name. A label that is a control's buddy names it. Parts of a control,
/// such as the line edit of a spin box, belong to it.
QStringList namelessControls(const QWidget *root);

/// The controls that the Tab key goes through from the one in @p window that has the focus, up to
/// the first that comes again. Keys are really struck, so the window has to be active.
QList<QWidget *> tabRound(QWidget *window);

/// What is wrong with the order in which the Tab key goes through @p window: a control that is left
/// out, visited twice, or comes before another that is read earlier within the same panel, from top
/// to bottom and in a line along the writing direction. Empty if nothing is.
QString tabOrderProblem(QWidget *window);

} // namespace ZavoTest
