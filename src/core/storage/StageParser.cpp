#include "storage/StageParser.h"

#include "ZvStage.h"

#include <algorithm>
#include <cmath>

namespace Zavo {

namespace {
constexpr std::string_view Version = "1";

struct KindWord
{
    std::string_view word;
    ZvStageItem::Kinds kind;
};
constexpr KindWord KindWords[] = {{"Rectangle", ZvStageItem::Rectangle},
                                  {"Text", ZvStageItem::Text},
                                  {"Picture", ZvStageItem::Picture}};

struct AlignmentWord
{
    std::string_view word;
    Qt::AlignmentFlag alignment;
};
constexpr AlignmentWord AlignmentWords[] = {
    {"left", Qt::AlignLeft}, {"center", Qt::AlignHCenter}, {"right", Qt::AlignRight}};

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// A decimal number with at most one sign and one point, as short as a length in pixels ever is.
bool isNumber(std::string_view text)
{
    constexpr size_t LongestNumber = 16;
    if (!text.empty() && text.front() == '-')
        text.remove_prefix(1);
    return !text.empty() && text.size() <= LongestNumber && isDigit(text.front()) &&
           isDigit(text.back()) && std::count(text.begin(), text.end(), '.') <= 1 &&
           std::all_of(text.begin(), text.end(), [](char c) { return isDigit(c) || c == '.'; });
}

bool isColor(std::string_view text)
{
    constexpr size_t OpaqueLength = 7;
    constexpr size_t AlphaLength = 9;
    return (text.size() == OpaqueLength || text.size() == AlphaLength) && text.front() == '#' &&
           text.find_first_not_of("0123456789abcdefABCDEF", 1) == std::string_view::npos;
}

std::optional<int> toLength(std::optional<qreal> number)
{
    if (!number || *number < 1 || *number > ZvStage::MaximumLength ||
        std::floor(*number) != *number)
        return {};
    return static_cast<int>(*number);
}
} // namespace

StageParser::StageParser(std::string_view document, const StagePictures &pictures)
    : m_xml(document)
    , m_loader(pictures)
{
}

bool StageParser::run(StageRecord *record)
{
    if (!m_xml.readRoot() || m_xml.name() != "Stage" || !readStage(record))
        return false;
    while (m_xml.readNextChild()) {
        const std::string_view word = m_xml.name();
        const auto *const known =
            std::find_if(std::begin(KindWords), std::end(KindWords),
                         [word](const KindWord &k) { return k.word == word; });
        if (known == std::end(KindWords)) {
            m_xml.skipElement();
            continue;
        }
        ZvStageItem item;
        item.kind = known->kind;
        if (record->items.size() == MaximumItems || !readItem(&item))
            return false;
        record->items.append(item);
    }
    return m_xml.readEnd();
}

bool StageParser::readStage(StageRecord *record)
{
    const auto width = toLength(number("width"));
    const auto height = toLength(number("height"));
    if (m_xml.rawAttribute("version") != Version || !width || !height)
        return false;
    record->size = {*width, *height};
    if (!m_xml.rawAttribute("background"))
        return true;
    const auto background = color("background");
    record->background = background.value_or(QColor());
    return background.has_value();
}

bool StageParser::readItem(ZvStageItem *item)
{
    if (!readBox(&item->box))
        return false;
    if (item->kind == ZvStageItem::Picture) {
        const auto source = m_xml.attribute("source");
        if (!source)
            return false;
        item->picture = m_loader.load(*source);
        return m_xml.skipElement();
    }
    const auto ink = color("color");
    if (!ink)
        return false;
    item->color = *ink;
    if (item->kind == ZvStageItem::Rectangle)
        return m_xml.skipElement();
    return readTextStyle(item) && m_xml.readText(&item->text);
}

bool StageParser::readBox(QRectF *box) const
{
    const auto x = number("x");
    const auto y = number("y");
    const auto width = number("width");
    const auto height = number("height");
    if (!x || !y || !width || !height || *width < 0 || *height < 0)
        return false;
    *box = {*x, *y, *width, *height};
    return true;
}

bool StageParser::readTextStyle(ZvStageItem *item) const
{
    const auto size = toLength(number("size"));
    const std::string_view align = m_xml.rawAttribute("align").value_or("left");
    const std::string_view bold = m_xml.rawAttribute("bold").value_or("false");
    const auto *const known =
        std::find_if(std::begin(AlignmentWords), std::end(AlignmentWords),
                     [align](const AlignmentWord &a) { return a.word == align; });
    if (!size || known == std::end(AlignmentWords) || (bold != "true" && bold != "false"))
        return false;
    item->textSize = *size;
    item->alignment = known->alignment;
    item->bold = bold == "true";
    return true;
}

std::optional<qreal> StageParser::number(std::string_view name) const
{
    const std::string_view text = m_xml.rawAttribute(name).value_or("");
    if (!isNumber(text))
        return {};
    return QByteArray(text.data(), static_cast<int>(text.size())).toDouble();
}

std::optional<QColor> StageParser::color(std::string_view name) const
{
    const std::string_view text = m_xml.rawAttribute(name).value_or("");
    if (!isColor(text))
        return {};
    return QColor(QString::fromLatin1(text.data(), static_cast<int>(text.size())));
}

} // namespace Zavo
