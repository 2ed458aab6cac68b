#pragma once

#include "ZvSchedule.h"

#include <string_view>

namespace Zavo::ChannelFile::Words {

constexpr std::string_view Version = "1";

// hh:mm:ss.zzz
constexpr int TimeLength = 12;
constexpr int HourAt = 0;
constexpr int MinuteAt = 3;
constexpr int SecondAt = 6;
constexpr int MsAt = 9;

// yyyy-MM-dd
constexpr int DateLength = 10;
constexpr int YearAt = 0;
constexpr int MonthAt = 5;
constexpr int DayAt = 8;

struct TypeWord
{
    ZvSchedule::ScheduleTypes type;
    std::string_view word;
};
constexpr TypeWord TypeWords[] = {
    {ZvSchedule::Default, "default"}, {ZvSchedule::DayOfWeek, "day"}, {ZvSchedule::Date, "date"}};

/// Empty for a type that no file may hold.
constexpr std::string_view ofType(ZvSchedule::ScheduleTypes type)
{
    for (const TypeWord &entry : TypeWords) {
        if (entry.type == type)
            return entry.word;
    }
    return {};
}

constexpr ZvSchedule::ScheduleTypes toType(std::string_view word)
{
    for (const TypeWord &entry : TypeWords) {
        if (entry.word == word)
            return entry.type;
    }
    return ZvSchedule::NoType;
}

/// Writes a number of so many digits, which are ASCII in every locale.
inline void putDigits(char *text, int digits, int number)
{
    for (int i = digits - 1; i >= 0; --i, number /= 10)
        text[i] = static_cast<char>('0' + number % 10);
}

/// The number that the digits make, or -1 if one of them is none.
inline int toNumber(std::string_view digits)
{
    int number = 0;
    for (const char c : digits) {
        if (c < '0' || c > '9')
            return -1;
        number = number * 10 + (c - '0');
    }
    return number;
}

} // namespace Zavo::ChannelFile::Words
