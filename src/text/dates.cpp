#include "text/dates.h"

#include <array>
#include <chrono>
#include <string_view>

namespace text {

namespace {

std::string digits(int number, std::size_t width = 2)
{
    auto text = std::to_string(number);
    return text.size() < width ? std::string(width - text.size(), '0') + text : text;
}

std::string short_year(LocalTime now)
{
    return digits(now.year % 100);
}

std::string clock_hour(LocalTime now)
{
    return digits(now.hour % 12 == 0 ? 12 : now.hour % 12);
}

std::string time_of_day(LocalTime now)
{
    return digits(now.hour) + digits(now.minute) + digits(now.second);
}

char half_of_day(LocalTime now)
{
    return now.hour < 12 ? 'a' : 'p';
}

std::string_view weekday_name(LocalTime now)
{
    static constexpr std::array<std::string_view, 7> names{"Sun", "Mon", "Tue", "Wed",
                                                           "Thu", "Fri", "Sat"};
    auto const date = std::chrono::year(now.year) / now.month / now.day;
    return names.at(std::chrono::weekday(std::chrono::sys_days(date)).c_encoding());
}

std::string_view month_name(LocalTime now)
{
    static constexpr std::array<std::string_view, 12> names{
        "Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    return names.at(static_cast<std::size_t>(now.month - 1));
}

} // namespace

std::string log_stamp(LocalTime now)
{
    return digits(now.month) + "-" + digits(now.day) + "-" + short_year(now) + ":" +
           clock_hour(now) + ":" + digits(now.minute) + half_of_day(now) + ":";
}

std::string file_stamp(LocalTime now)
{
    return short_year(now) + digits(now.month) + digits(now.day) + time_of_day(now);
}

std::string history_stamp(LocalTime now)
{
    return digits(now.year, 4) + digits(now.month) + digits(now.day) + time_of_day(now);
}

std::string history_date(LocalTime now)
{
    return digits(now.month) + "/" + digits(now.day) + "/" + short_year(now) + " " +
           caption_time(now);
}

std::string caption_time(LocalTime now)
{
    return clock_hour(now) + ":" + digits(now.minute) + " " + half_of_day(now) + "m";
}

std::string long_date(LocalTime now)
{
    auto date = std::string(weekday_name(now)) + " ";
    return date.append(month_name(now)) + " " + std::to_string(now.day) + ", " +
           digits(now.year, 4);
}

std::string short_time(LocalTime now)
{
    auto const time = caption_time(now);
    return time.starts_with('0') ? time.substr(1) : time;
}

} // namespace text
