#include "text/dates.h"

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

} // namespace text
