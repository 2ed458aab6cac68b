#pragma once

#include "ZvCoreExport.h"

#include <QString>
#include <QVarLengthArray>

#include <optional>
#include <string_view>

namespace Zavo {

/// Reads an XML document of UTF-8 from start to end, element by element, in time linear in its
/// length and without copying what nobody asks for.
///
/// It is strict: what is not well-formed fails, and so does a document type declaration, nesting
/// beyond 16 elements or a tag beyond 64 KiB. After a failure nothing more is read. Names with a
/// colon are names like any other.
class ZVCORE_EXPORT XmlScanner
{
public:
    static constexpr int MaximumDepth = 16;
    static constexpr int MaximumTagBytes = 64 * 1024;

    /// The document must outlive the scanner.
    explicit XmlScanner(std::string_view document);

    /// Name of the element that was started last.
    std::string_view name() const { return m_name; }

    /// Value of an attribute of the element that was started last, as it stands in the document.
    std::optional<std::string_view> rawAttribute(std::string_view name) const;

    /// Value of an attribute of the element that was started last, references resolved.
    std::optional<QString> attribute(std::string_view name) const;

    /// Starts the root element. False if the document does not begin with one.
    bool readRoot();

    /// Starts the next element inside the one that was started last and is still open. False, with
    /// that one ended, if there is none, or on failure; text that is not blank is one.
    bool readNextChild();

    /// Ends the element that was started last and is still open, passing over all that is in it.
    bool skipElement();

    /// Ends the element that was started last and is still open, passing over the elements in it.
    bool readText(QString *text);

    /// True if the root has ended and nothing follows it.
    bool readEnd();

private:
    enum class Token { Invalid, Start, End, Text, EndOfDocument };
    struct Attribute
    {
        std::string_view name;
        std::string_view value;
    };

    Token next();
    Token scanMarkup();
    Token scanStartTag();
    Token scanEndTag();
    Token scanCData();
    Token scanText();
    Token closeElement();
    Token fail();

    bool skipDeclaration();
    bool skipBehind(std::string_view opening, std::string_view closing);
    bool skipInstruction();
    bool skipComment();
    bool scanName(size_t end, std::string_view *name);
    bool scanAttributes(size_t end);
    bool scanAttribute(size_t end);
    bool hasDistinctAttributes() const;
    bool skipBlanks(size_t end);
    bool startsWith(std::string_view text) const;
    size_t tagEnd() const;

    std::string_view m_document;
    size_t m_at = 0;
    std::string_view m_name;
    std::string_view m_text;
    bool m_textIsLiteral = false; // no references in it
    bool m_selfClosed = false;
    bool m_rootSeen = false;
    bool m_failed = false;
    QVarLengthArray<Attribute, MaximumDepth> m_attributes;
    QVarLengthArray<std::string_view, MaximumDepth> m_open;
};

} // namespace Zavo
