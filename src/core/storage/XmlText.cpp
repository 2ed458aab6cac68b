#include "storage/XmlText.h"

#include <algorithm>
#include <cstring>
#include <optional>

namespace Zavo::XmlText {

namespace {
constexpr uint LastCodePoint = 0x10ffff;
constexpr uint ByteOrderMark = 0xfeff;
constexpr int EscapeDigits = 4;
constexpr int BitsPerHexDigit = 4;
constexpr uint HexBase = 16;
constexpr uint DecimalBase = 10;

bool isCharacter(uint c)
{
    if (c < 0x20)
        return c == '\t' || c == '\n' || c == '\r';
    return c < 0xd800 || (c > 0xdfff && c < 0xfffe) || (c > 0xffff && c <= LastCodePoint);
}

int digitValue(uint c, uint base)
{
    if (c >= '0' && c <= '9')
        return static_cast<int>(c - '0');
    if (base != HexBase)
        return -1;
    if (c >= 'a' && c <= 'f')
        return static_cast<int>(c - 'a' + DecimalBase);
    if (c >= 'A' && c <= 'F')
        return static_cast<int>(c - 'A' + DecimalBase);
    return -1;
}

/// Length of the sequence that the byte begins; 0 if it begins none.
int sequenceLength(uchar first)
{
    if (first < 0x80)
        return 1;
    if (first >= 0xc2 && first < 0xe0)
        return 2;
    if ((first & 0xf0) == 0xe0)
        return 3;
    return first >= 0xf0 && first < 0xf5 ? 4 : 0;
}

uint codePoint(const char *sequence, int length)
{
    static constexpr uchar FirstByteMask[] = {0, 0x7f, 0x1f, 0x0f, 0x07};
    uint c = static_cast<uchar>(*sequence) & FirstByteMask[length];
    for (int i = 1; i < length; ++i)
        c = c << 6 | (static_cast<uchar>(sequence[i]) & 0x3f);
    return c;
}

/// Length of the valid character at the start of the bytes; 0 if there is none.
int characterLength(const char *bytes, std::ptrdiff_t available)
{
    static constexpr uint Smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const int length = sequenceLength(static_cast<uchar>(*bytes));
    if (length == 0 || length > available)
        return 0;
    for (int i = 1; i < length; ++i) {
        if ((static_cast<uchar>(bytes[i]) & 0xc0) != 0x80)
            return 0;
    }
    const uint c = codePoint(bytes, length);
    return c >= Smallest[length] && isCharacter(c) ? length : 0;
}

/// True if all eight bytes are ASCII and none is a control character.
bool isPlainWord(const char *bytes)
{
    quint64 word = 0;
    std::memcpy(&word, bytes, sizeof word);
    constexpr quint64 HighBits = 0x8080808080808080;
    constexpr quint64 Blanks = 0x2020202020202020;
    return ((word | (word - Blanks)) & HighBits) == 0;
}

std::optional<uint> numericReference(std::string_view digits)
{
    const bool hexadecimal = !digits.empty() && digits.front() == 'x';
    const uint base = hexadecimal ? HexBase : DecimalBase;
    if (hexadecimal)
        digits.remove_prefix(1);
    if (digits.empty())
        return {};
    uint c = 0;
    for (const char digit : digits) {
        const int value = digitValue(static_cast<uchar>(digit), base);
        if (value < 0)
            return {};
        c = c * base + static_cast<uint>(value);
        if (c > LastCodePoint)
            return {};
    }
    return isCharacter(c) ? std::optional<uint>(c) : std::nullopt;
}

/// The character of the reference whose name stands between "&" and ";".
std::optional<uint> referenced(std::string_view name)
{
    static constexpr struct
    {
        std::string_view name;
        uint character;
    } Known[] = {{"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}};
    for (const auto &entry : Known) {
        if (entry.name == name)
            return entry.character;
    }
    return !name.empty() && name.front() == '#' ? numericReference(name.substr(1)) : std::nullopt;
}

enum class Place { Attribute, Element, Literal };

class Decoder
{
public:
    Decoder(std::string_view text, Place place)
        : m_text(text)
        , m_lineEnd(place == Place::Attribute ? ' ' : '\n')
        , m_tab(place == Place::Attribute ? ' ' : '\t')
        , m_hasReferences(place != Place::Literal)
        , m_result(static_cast<int>(text.size()), Qt::Uninitialized)
        , m_out(reinterpret_cast<ushort *>(m_result.data()))
    {
    }

    QString run()
    {
        const ushort *begin = m_out;
        while (m_at < m_text.size())
            step(static_cast<uchar>(m_text[m_at]));
        m_result.truncate(static_cast<int>(m_out - begin));
        return m_result;
    }

private:
    void step(uchar c)
    {
        if (c == '&' && m_hasReferences) {
            const size_t end = m_text.find(';', m_at);
            append(*referenced(m_text.substr(m_at + 1, end - m_at - 1)));
            m_at = end + 1;
        } else if (c == '\r' || c == '\n') {
            const bool pair = m_text.substr(m_at, 2) == "\r\n";
            m_at += pair ? 2 : 1;
            *m_out++ = m_lineEnd;
        } else if (c < 0x80) {
            *m_out++ = c == '\t' ? m_tab : c;
            ++m_at;
        } else {
            const int length = sequenceLength(c);
            append(codePoint(m_text.data() + m_at, length));
            m_at += static_cast<size_t>(length);
        }
    }

    // Never more code units than bytes were read, so the result has room.
    void append(uint c)
    {
        if (QChar::requiresSurrogates(c)) {
            *m_out++ = QChar::highSurrogate(c);
            *m_out++ = QChar::lowSurrogate(c);
        } else {
            *m_out++ = static_cast<ushort>(c);
        }
    }

    const std::string_view m_text;
    const ushort m_lineEnd;
    const ushort m_tab;
    const bool m_hasReferences;
    size_t m_at = 0;
    QString m_result;
    ushort *m_out;
};

void appendUtf8(uint c, QByteArray *bytes)
{
    const auto continuation = [](uint bits) { return static_cast<char>(0x80 | (bits & 0x3f)); };
    if (c < 0x800) {
        bytes->append(static_cast<char>(0xc0 | c >> 6));
    } else {
        if (c < 0x10000) {
            bytes->append(static_cast<char>(0xe0 | c >> 12));
        } else {
            bytes->append(static_cast<char>(0xf0 | c >> 18));
            bytes->append(continuation(c >> 12));
        }
        bytes->append(continuation(c >> 6));
    }
    bytes->append(continuation(c));
}

void appendEscape(uint unit, QByteArray *bytes)
{
    static constexpr char Digits[] = "0123456789abcdef";
    bytes->append("\\u");
    for (int shift = (EscapeDigits - 1) * BitsPerHexDigit; shift >= 0; shift -= BitsPerHexDigit)
        bytes->append(Digits[unit >> shift & 0xf]);
}

/// ASCII that stands for itself in an attribute.
bool isPlain(QChar c)
{
    const ushort unit = c.unicode();
    return unit >= 0x20 && unit < 0x7f && unit != '&' && unit != '<' && unit != '>' &&
           unit != '"' && unit != '\\';
}

/// Appends what is plain from the place on, and returns the place behind it.
int appendPlain(const QString &string, int from, QByteArray *bytes)
{
    const auto end = std::find_if_not(string.cbegin() + from, string.cend(), isPlain);
    const auto count = static_cast<int>(end - string.cbegin()) - from;
    bytes->resize(bytes->size() + count);
    std::transform(string.cbegin() + from, end, bytes->end() - count,
                   [](QChar c) { return c.toLatin1(); });
    return from + count;
}

/// Appends an ASCII character that is not plain and no control character.
void appendMarkup(uint c, QByteArray *bytes)
{
    switch (c) {
    case '&':
        bytes->append("&amp;");
        break;
    case '<':
        bytes->append("&lt;");
        break;
    case '>':
        bytes->append("&gt;");
        break;
    case '"':
        bytes->append("&quot;");
        break;
    default:
        bytes->append("\\\\");
    }
}

/// What "u" and four hexadecimal digits stand for.
std::optional<ushort> escapedUnit(const QStringRef &escape)
{
    if (escape.size() != 1 + EscapeDigits || escape.at(0) != QLatin1Char('u'))
        return {};
    uint unit = 0;
    for (int i = 1; i <= EscapeDigits; ++i) {
        const int value = digitValue(escape.at(i).unicode(), HexBase);
        if (value < 0)
            return {};
        unit = unit << BitsPerHexDigit | static_cast<uint>(value);
    }
    return static_cast<ushort>(unit);
}

/// Control characters, and what is no character, with which editors and parsers do as they please.
bool needsEscape(uint unit)
{
    return unit < 0x20 || (unit >= 0x7f && unit < 0xa0) || QChar::isSurrogate(unit) ||
           unit == ByteOrderMark || unit >= 0xfffe;
}

/// The character that begins at the place; a surrogate without its other half stands for itself.
uint characterAt(const QString &string, int at)
{
    const QChar c = string.at(at);
    if (c.isHighSurrogate() && at + 1 < string.size() && string.at(at + 1).isLowSurrogate())
        return QChar::surrogateToUcs4(c, string.at(at + 1));
    return c.unicode();
}

int unitCount(uint c)
{
    return QChar::requiresSurrogates(c) ? 2 : 1;
}
} // namespace

bool isValid(std::string_view bytes)
{
    const char *at = bytes.data();
    const char *const end = at + bytes.size();
    while (at < end) {
        while (end - at >= 8 && isPlainWord(at))
            at += 8;
        if (at == end)
            break;
        const int length = characterLength(at, end - at);
        if (length == 0)
            return false;
        at += length;
    }
    return true;
}

bool isBlank(std::string_view text)
{
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

bool hasValidReferences(std::string_view text)
{
    for (size_t at = text.find('&'); at != std::string_view::npos; at = text.find('&', at + 1)) {
        // No name is longer than that, so a text of nothing but "&" is looked at once.
        constexpr size_t LongestName = 32;
        const size_t length = text.substr(at + 1, LongestName).find(';');
        if (length == std::string_view::npos || !referenced(text.substr(at + 1, length)))
            return false;
    }
    return true;
}

QString attributeValue(std::string_view text)
{
    return Decoder(text, Place::Attribute).run();
}

QString elementText(std::string_view text)
{
    return Decoder(text, Place::Element).run();
}

QString literalText(std::string_view text)
{
    return Decoder(text, Place::Literal).run();
}

bool canHold(const QString &string)
{
    for (int at = 0; at < string.size();) {
        const uint c = characterAt(string, at);
        if (!isCharacter(c))
            return false;
        at += unitCount(c);
    }
    return true;
}

QString escaped(const QString &string)
{
    QString result;
    for (int at = 0; at < string.size();) {
        const uint c = characterAt(string, at);
        QByteArray escape;
        if (c == '\\')
            escape = "\\\\";
        else if (needsEscape(c) && unitCount(c) == 1)
            appendEscape(c, &escape);
        if (escape.isEmpty())
            result += string.midRef(at, unitCount(c));
        else
            result += QLatin1String(escape);
        at += unitCount(c);
    }
    return result;
}

void appendEscaped(const QString &string, QByteArray *bytes)
{
    for (int i = appendPlain(string, 0, bytes); i < string.size();
         i = appendPlain(string, i + 1, bytes)) {
        const uint unit = string.at(i).unicode();
        if (QChar::isHighSurrogate(unit) && i + 1 < string.size() &&
            string.at(i + 1).isLowSurrogate()) {
            ++i;
            appendUtf8(QChar::surrogateToUcs4(QChar(unit), string.at(i)), bytes);
        } else if (needsEscape(unit)) {
            appendEscape(unit, bytes);
        } else if (unit < 0x7f) {
            appendMarkup(unit, bytes);
        } else {
            appendUtf8(unit, bytes);
        }
    }
}

bool unescape(QString *string)
{
    const QLatin1Char backslash('\\');
    QString result;
    int from = 0;
    for (int at = string->indexOf(backslash); at >= 0; at = string->indexOf(backslash, from)) {
        result += string->midRef(from, at - from);
        const QStringRef escape = string->midRef(at + 1, 1 + EscapeDigits);
        if (escape.startsWith(backslash)) {
            result += backslash;
            from = at + 2;
            continue;
        }
        const std::optional<ushort> unit = escapedUnit(escape);
        if (!unit)
            return false;
        result += QChar(*unit);
        from = at + 2 + EscapeDigits;
    }
    result += string->midRef(from);
    *string = result;
    return true;
}

} // namespace Zavo::XmlText
