#pragma once

#include "ZvCoreExport.h"

#include <QByteArray>
#include <QString>

#include <string_view>

/// Characters of XML documents: what may stand in them, and how bytes and strings turn into each
/// other. Character for character: nothing is replaced, composed or left out.
namespace Zavo::XmlText {

/// True if the bytes are UTF-8 of the shortest form and hold only characters that XML allows.
ZVCORE_EXPORT bool isValid(std::string_view bytes);

/// Blanks, tabs and line ends only.
bool isBlank(std::string_view text);

/// True if every reference in the text is one of a character or of the five that need no
/// declaration.
bool hasValidReferences(std::string_view text);

/// The string of an attribute as it stands in a document: references resolved, tabs and line ends
/// turned into blanks. The text must be valid.
QString attributeValue(std::string_view text);

/// The string of text between tags: references resolved, line ends turned into LF. The text must be
/// valid.
QString elementText(std::string_view text);

/// The string of a CDATA section: as elementText(), but nothing is a reference.
QString literalText(std::string_view text);

/// True if a document can hold the string as it is: XML allows each of its characters, and no
/// surrogate is without its other half.
ZVCORE_EXPORT bool canHold(const QString &string);

/// The string with what XML would lose or refuse, and with backslashes, written as appendEscaped()
/// does. unescape() takes it back.
ZVCORE_EXPORT QString escaped(const QString &string);

/// Appends the string as the value of an attribute of which attributeValue() and unescaped() give
/// back every code unit: what XML would lose or refuse is written as a backslash, u and four
/// hexadecimal digits, and a backslash is doubled.
void appendEscaped(const QString &string, QByteArray *bytes);

/// Takes back what appendEscaped() did with backslashes. False, with @p string untouched, if a
/// backslash begins nothing that it would have written.
ZVCORE_EXPORT bool unescape(QString *string);

} // namespace Zavo::XmlText
