#include "storage/IniText.h"

namespace Zavo {

namespace {
constexpr char GeneralGroup[] = "[General]";

bool isHeading(const QByteArray &line)
{
    return line.startsWith('[') && line.endsWith(']');
}

QByteArray withoutQuotes(const QByteArray &value)
{
    const bool quoted = value.size() >= 2 && value.startsWith('"') && value.endsWith('"');
    return quoted ? value.mid(1, value.size() - 2) : value;
}
} // namespace

IniText::IniText(const QByteArray &bytes)
{
    if (bytes.isEmpty())
        return;
    m_lines = bytes.split('\n');
    if (m_lines.last().isEmpty())
        m_lines.removeLast();
    // Keys in front of the first group belong to General.
    bool inGeneral = true;
    for (int i = 0; i < m_lines.size(); ++i) {
        const QByteArray line = m_lines.at(i).trimmed();
        if (isHeading(line))
            inGeneral = line == GeneralGroup;
        if (inGeneral && !line.isEmpty())
            m_generalEnd = i + 1;
    }
}

QByteArray IniText::value(const QByteArray &key) const
{
    const int line = lineOf(key);
    if (line < 0)
        return {};
    const QByteArray text = m_lines.at(line);
    const QByteArray value = withoutQuotes(text.mid(text.indexOf('=') + 1).trimmed());
    return value.isNull() ? QByteArray("") : value;
}

void IniText::setValue(const QByteArray &key, const QByteArray &value)
{
    const QByteArray text = key + '=' + value;
    const int line = lineOf(key);
    if (line >= 0) {
        m_lines[line] = text;
        return;
    }
    if (m_generalEnd < 0) {
        m_lines.prepend(GeneralGroup);
        m_generalEnd = 1;
    }
    m_lines.insert(m_generalEnd++, text);
}

QByteArray IniText::toBytes() const
{
    return m_lines.isEmpty() ? QByteArray() : m_lines.join('\n') + '\n';
}

int IniText::lineOf(const QByteArray &key) const
{
    bool inGeneral = true;
    int found = -1;
    for (int i = 0; i < m_lines.size(); ++i) {
        const QByteArray line = m_lines.at(i).trimmed();
        if (isHeading(line))
            inGeneral = line == GeneralGroup;
        else if (inGeneral && line.contains('=') && line.left(line.indexOf('=')).trimmed() == key)
            found = i; // of a key that is there twice, the last holds
    }
    return found;
}

} // namespace Zavo
