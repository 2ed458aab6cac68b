#include "storage/ChannelFileParser.h"

#include "storage/ChannelFileWords.h"
#include "storage/XmlText.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace Zavo {

namespace {
namespace Words = ChannelFile::Words;

std::optional<int> toInt(std::string_view text)
{
    const bool negative = !text.empty() && text.front() == '-';
    const std::string_view digits = text.substr(negative ? 1 : 0);
    constexpr size_t LongestInt = 10;
    if (digits.empty() || digits.size() > LongestInt)
        return {};
    qint64 number = 0;
    for (const char c : digits) {
        if (c < '0' || c > '9')
            return {};
        number = number * 10 + (c - '0');
    }
    number = negative ? -number : number;
    if (number < std::numeric_limits<int>::min() || number > std::numeric_limits<int>::max())
        return {};
    return static_cast<int>(number);
}

QTime toTime(std::string_view text)
{
    if (text.size() != Words::TimeLength || text[Words::MinuteAt - 1] != ':' ||
        text[Words::SecondAt - 1] != ':' || text[Words::MsAt - 1] != '.')
        return {};
    // A digit that is none gives -1, which no time has.
    return {Words::toNumber(text.substr(Words::HourAt, 2)),
            Words::toNumber(text.substr(Words::MinuteAt, 2)),
            Words::toNumber(text.substr(Words::SecondAt, 2)),
            Words::toNumber(text.substr(Words::MsAt, 3))};
}

QDate toDate(std::string_view text)
{
    if (text.size() != Words::DateLength || text[Words::MonthAt - 1] != '-' ||
        text[Words::DayAt - 1] != '-')
        return {};
    const int year = Words::toNumber(text.substr(Words::YearAt, 4));
    // Years before the first are valid dates, but none of a file.
    if (year < 1)
        return {};
    return {year, Words::toNumber(text.substr(Words::MonthAt, 2)),
            Words::toNumber(text.substr(Words::DayAt, 2))};
}

/// ASCII that stands for itself.
bool isPlain(std::string_view raw)
{
    return std::all_of(raw.begin(), raw.end(),
                       [](char c) { return c >= ' ' && c <= '~' && c != '&' && c != '\\'; });
}
} // namespace

ChannelFileParser::ChannelFileParser(std::string_view document)
    : m_xml(document)
{
}

bool ChannelFileParser::run(ChannelRecord *record)
{
    if (!m_xml.readRoot() || m_xml.name() != "Channel" ||
        m_xml.rawAttribute("version") != Words::Version)
        return false;
    const auto id = toInt(m_xml.rawAttribute("id").value_or(""));
    const auto index = toInt(m_xml.rawAttribute("index").value_or(""));
    const auto name = m_xml.rawAttribute("name");
    if (!id || !index || !name || !readName(*name, &record->name))
        return false;
    record->id = *id;
    record->index = *index;
    while (m_xml.readNextChild()) {
        if (m_xml.name() != "Schedule") {
            m_xml.skipElement();
            continue;
        }
        ZvSchedule schedule;
        if (record->schedules.size() == ChannelFile::MaximumSchedules || !readSchedule(&schedule))
            return false;
        record->schedules.append(schedule);
    }
    return m_xml.readEnd();
}

bool ChannelFileParser::readSchedule(ZvSchedule *schedule)
{
    QString defaultStage;
    if (!readKey(schedule) ||
        !readCachedName(m_xml.rawAttribute("defaultStage").value_or(""), &defaultStage))
        return false;
    schedule->setDefaultStage(defaultStage);
    QList<ZvTime> &bands = schedule->timeList();
    while (m_xml.readNextChild()) {
        if (m_xml.name() == "Time" &&
            (bands.size() == ChannelFile::MaximumBands || !readBand(&bands)))
            return false;
        m_xml.skipElement();
    }
    return true;
}

bool ChannelFileParser::readKey(ZvSchedule *schedule) const
{
    schedule->setType(Words::toType(m_xml.rawAttribute("type").value_or("")));
    switch (schedule->type()) {
    case ZvSchedule::Default:
        return true;
    case ZvSchedule::DayOfWeek:
        schedule->setDayOfWeek(static_cast<Weekday::Days>(
            toInt(m_xml.rawAttribute("day").value_or("")).value_or(Weekday::NoDay)));
        return Weekday::isDay(schedule->dayOfWeek());
    case ZvSchedule::Date:
        schedule->setDate(toDate(m_xml.rawAttribute("date").value_or("")));
        return schedule->date().isValid();
    case ZvSchedule::NoType:
        break;
    }
    return false;
}

bool ChannelFileParser::readBand(QList<ZvTime> *bands)
{
    const QTime start = toTime(m_xml.rawAttribute("start").value_or(""));
    const QTime end = toTime(m_xml.rawAttribute("end").value_or(""));
    const auto raw = m_xml.rawAttribute("stage");
    QString stage;
    if (!start.isValid() || !end.isValid() || end < start || !raw || !readCachedName(*raw, &stage))
        return false;
    bands->append(ZvTime(start, end, stage));
    return true;
}

bool ChannelFileParser::readName(std::string_view raw, QString *name)
{
    if (isPlain(raw)) {
        *name = QString::fromLatin1(raw.data(), static_cast<int>(raw.size()));
        return true;
    }
    *name = XmlText::attributeValue(raw);
    return XmlText::unescape(name);
}

// Equal names share their memory, which also makes comparing them quick. A cache of fixed size
// keeps the time linear whatever the names are.
bool ChannelFileParser::readCachedName(std::string_view raw, QString *name)
{
    CachedName &cached = m_names[std::hash<std::string_view>()(raw) % CacheSize];
    if (cached.raw.data() == nullptr || cached.raw != raw) {
        if (!readName(raw, &cached.name))
            return false;
        cached.raw = raw;
    }
    *name = cached.name;
    return true;
}

} // namespace Zavo
