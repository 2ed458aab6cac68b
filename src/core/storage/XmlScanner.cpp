#include "storage/XmlScanner.h"

#include "storage/XmlText.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <cstring>

namespace Zavo {

namespace {
constexpr std::string_view ByteOrderMark = "\xef\xbb\xbf";

enum CharacterClass : uchar { Other = 0, NameStart = 1, NamePart = 2, Blank = 4 };

constexpr std::array<uchar, 256> characterClasses()
{
    std::array<uchar, 256> classes{};
    for (unsigned c = 0; c < classes.size(); ++c) {
        const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        const bool digit = c >= '0' && c <= '9';
        if (letter || c == '_' || c == ':' || c >= 0x80)
            classes[c] = NameStart | NamePart;
        else if (digit || c == '-' || c == '.')
            classes[c] = NamePart;
        else if (c == ' ' || c == '\t' || c == '\r' || c == '\n')
            classes[c] = Blank;
    }
    return classes;
}

constexpr std::array<uchar, 256> Classes = characterClasses();

bool isOf(CharacterClass wanted, char c)
{
    return (Classes[static_cast<uchar>(c)] & wanted) != 0;
}

bool isAttributeValue(std::string_view value)
{
    for (const char c : value) {
        if (c == '<')
            return false;
        if (c == '&')
            return value.find('<') == std::string_view::npos && XmlText::hasValidReferences(value);
    }
    return true;
}

bool isUtf8Name(std::string_view encoding)
{
    return QByteArray::fromRawData(encoding.data(), static_cast<int>(encoding.size())).toLower() ==
           "utf-8";
}
} // namespace

XmlScanner::XmlScanner(std::string_view document)
    : m_document(document)
    , m_failed(!XmlText::isValid(document))
{
    if (startsWith(ByteOrderMark))
        m_at = ByteOrderMark.size();
}

std::optional<std::string_view> XmlScanner::rawAttribute(std::string_view name) const
{
    for (const Attribute &attribute : m_attributes) {
        if (attribute.name == name)
            return attribute.value;
    }
    return {};
}

std::optional<QString> XmlScanner::attribute(std::string_view name) const
{
    const auto raw = rawAttribute(name);
    return raw ? std::optional<QString>(XmlText::attributeValue(*raw)) : std::nullopt;
}

bool XmlScanner::readRoot()
{
    return !m_failed && skipDeclaration() && next() == Token::Start;
}

bool XmlScanner::readNextChild()
{
    while (true) {
        const Token token = next();
        if (token != Token::Text)
            return token == Token::Start;
        if (!XmlText::isBlank(m_text)) {
            fail();
            return false;
        }
    }
}

bool XmlScanner::skipElement()
{
    const int depth = m_open.size();
    while (m_open.size() >= depth) {
        if (next() == Token::Invalid)
            return false;
    }
    return true;
}

bool XmlScanner::readText(QString *text)
{
    const int depth = m_open.size();
    text->clear();
    while (true) {
        const Token token = next();
        if (token == Token::Invalid)
            return false;
        if (token == Token::End && m_open.size() < depth)
            return true;
        if (token != Token::Text || m_open.size() != depth)
            continue;
        // Nothing in a literal part is a reference, whatever it looks like.
        *text += m_textIsLiteral ? XmlText::literalText(m_text) : XmlText::elementText(m_text);
    }
}

bool XmlScanner::readEnd()
{
    return next() == Token::EndOfDocument;
}

XmlScanner::Token XmlScanner::next()
{
    if (m_failed)
        return Token::Invalid;
    if (m_selfClosed) {
        m_selfClosed = false;
        return closeElement();
    }
    while (m_at < m_document.size()) {
        if (m_document[m_at] != '<') {
            const Token token = scanText();
            if (token != Token::Text || !m_open.isEmpty())
                return token;
        } else if (startsWith("<!--")) {
            if (!skipComment())
                return fail();
        } else if (startsWith("<?")) {
            if (!skipInstruction())
                return fail();
        } else {
            return scanMarkup();
        }
    }
    return m_rootSeen && m_open.isEmpty() ? Token::EndOfDocument : fail();
}

XmlScanner::Token XmlScanner::scanMarkup()
{
    if (startsWith("</"))
        return scanEndTag();
    if (startsWith("<![CDATA["))
        return scanCData();
    return scanStartTag();
}

XmlScanner::Token XmlScanner::scanStartTag()
{
    const size_t end = tagEnd();
    ++m_at;
    if (!scanName(end, &m_name) || !scanAttributes(end))
        return fail();
    m_selfClosed = m_document[m_at] == '/';
    if (m_selfClosed)
        ++m_at;
    const bool secondRoot = m_open.isEmpty() && m_rootSeen;
    if (m_at >= end || m_document[m_at] != '>' || secondRoot || m_open.size() == MaximumDepth)
        return fail();
    ++m_at;
    m_rootSeen = true;
    m_open.append(m_name);
    return Token::Start;
}

XmlScanner::Token XmlScanner::scanEndTag()
{
    const size_t end = tagEnd();
    m_at += 2;
    std::string_view name;
    if (!scanName(end, &name))
        return fail();
    skipBlanks(end);
    if (m_at >= end || m_document[m_at] != '>' || m_open.isEmpty() || m_open.last() != name)
        return fail();
    ++m_at;
    return closeElement();
}

XmlScanner::Token XmlScanner::scanCData()
{
    const size_t begin = m_at + std::string_view("<![CDATA[").size();
    if (m_open.isEmpty() || !skipBehind("<![CDATA[", "]]>"))
        return fail();
    m_text = m_document.substr(begin, m_at - std::string_view("]]>").size() - begin);
    m_textIsLiteral = true;
    return Token::Text;
}

XmlScanner::Token XmlScanner::scanText()
{
    const size_t end = std::min(m_document.find('<', m_at), m_document.size());
    m_text = m_document.substr(m_at, end - m_at);
    m_textIsLiteral = false;
    m_at = end;
    if (XmlText::isBlank(m_text))
        return Token::Text;
    if (m_open.isEmpty() || m_text.find("]]>") != std::string_view::npos ||
        !XmlText::hasValidReferences(m_text))
        return fail();
    return Token::Text;
}

XmlScanner::Token XmlScanner::closeElement()
{
    m_open.removeLast();
    return Token::End;
}

XmlScanner::Token XmlScanner::fail()
{
    m_failed = true;
    return Token::Invalid;
}

bool XmlScanner::skipDeclaration()
{
    if (!startsWith("<?xml") || m_at + 5 >= m_document.size() || !isOf(Blank, m_document[m_at + 5]))
        return true;
    const size_t end = tagEnd();
    m_at += 5;
    if (!scanAttributes(end) || !startsWith("?>"))
        return false;
    m_at += 2;
    static constexpr std::string_view Names[] = {"version", "encoding", "standalone"};
    auto known = std::begin(Names);
    for (const Attribute &attribute : m_attributes) {
        known = std::find(known, std::end(Names), attribute.name);
        if (known == std::end(Names))
            return false;
    }
    const auto standalone = rawAttribute("standalone");
    return rawAttribute("version") == "1.0" &&
           isUtf8Name(rawAttribute("encoding").value_or("utf-8")) &&
           (!standalone || *standalone == "yes" || *standalone == "no");
}

bool XmlScanner::skipBehind(std::string_view opening, std::string_view closing)
{
    const size_t found = m_document.find(closing, m_at + opening.size());
    if (found == std::string_view::npos)
        return false;
    m_at = found + closing.size();
    return true;
}

bool XmlScanner::skipInstruction()
{
    const size_t begin = m_at + 2;
    m_at = begin;
    std::string_view target;
    if (!scanName(m_document.size(), &target) || m_at == m_document.size())
        return false;
    // The name is reserved for the declaration, which stands at the very start or nowhere.
    const bool reserved = target.size() == 3 && qstrnicmp(target.data(), "xml", 3) == 0;
    if (reserved || !(startsWith("?>") || isOf(Blank, m_document[m_at])))
        return false;
    return skipBehind({}, "?>");
}

bool XmlScanner::skipComment()
{
    // Two hyphens end a comment, and only with a bracket behind them.
    return skipBehind("<!--", "--") && m_at < m_document.size() && m_document[m_at++] == '>';
}

bool XmlScanner::scanName(size_t end, std::string_view *name)
{
    const size_t begin = m_at;
    if (begin >= end || !isOf(NameStart, m_document[begin]))
        return false;
    while (m_at < end && isOf(NamePart, m_document[m_at]))
        ++m_at;
    *name = m_document.substr(begin, m_at - begin);
    return true;
}

bool XmlScanner::scanAttributes(size_t end)
{
    m_attributes.clear();
    while (true) {
        const bool separated = skipBlanks(end);
        if (m_at >= end)
            return false;
        if (!isOf(NameStart, m_document[m_at]))
            return hasDistinctAttributes();
        if (!separated || !scanAttribute(end))
            return false;
    }
}

bool XmlScanner::scanAttribute(size_t end)
{
    Attribute attribute;
    if (!scanName(end, &attribute.name))
        return false;
    skipBlanks(end);
    if (m_at >= end || m_document[m_at++] != '=')
        return false;
    skipBlanks(end);
    if (m_at >= end || (m_document[m_at] != '"' && m_document[m_at] != '\''))
        return false;
    const char quote = m_document[m_at++];
    const auto *const closing =
        static_cast<const char *>(std::memchr(m_document.data() + m_at, quote, end - m_at));
    if (!closing)
        return false;
    const auto length = static_cast<size_t>(closing - m_document.data()) - m_at;
    attribute.value = m_document.substr(m_at, length);
    m_at += length + 1;
    m_attributes.append(attribute);
    return isAttributeValue(attribute.value);
}

bool XmlScanner::hasDistinctAttributes() const
{
    QVarLengthArray<std::string_view, MaximumDepth> names;
    for (const Attribute &attribute : m_attributes)
        names.append(attribute.name);
    // Sorted, so that a tag of thousands of attributes costs no thousands squared.
    std::sort(names.begin(), names.end());
    return std::adjacent_find(names.cbegin(), names.cend()) == names.cend();
}

bool XmlScanner::skipBlanks(size_t end)
{
    const size_t begin = m_at;
    while (m_at < end && isOf(Blank, m_document[m_at]))
        ++m_at;
    return m_at > begin;
}

bool XmlScanner::startsWith(std::string_view text) const
{
    return m_document.substr(m_at, text.size()) == text;
}

size_t XmlScanner::tagEnd() const
{
    return std::min(m_document.size(), m_at + MaximumTagBytes);
}

} // namespace Zavo
