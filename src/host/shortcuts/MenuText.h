#pragma once

class QString;

namespace Zavo::MenuText {

/// The text of a menu or of an entry without its mnemonic, which stands in parentheses behind the
/// text in some languages, and without the dots of what opens a dialog.
QString plain(const QString &text);

} // namespace Zavo::MenuText
