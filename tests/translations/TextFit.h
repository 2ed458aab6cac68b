#pragma once

#include <QStringList>

class QMenu;
class QWidget;

/// What is wrong with the texts on show. Each line names a widget and its text.
namespace TextFit {

/// Texts of the visible widgets of @p window for which there is no room. Labels that put dots for
/// what does not fit are none of them.
QStringList cutTexts(const QWidget *window);

/// Letters that more than one visible control of @p window has for its mnemonic.
QStringList sharedMnemonics(const QWidget *window);

/// The same of the entries of @p menu.
QStringList sharedMnemonics(const QMenu *menu);

} // namespace TextFit
