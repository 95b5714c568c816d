#include "sim/desktop.h"

#include "sim/life.h"
#include "text/failure.h"

#include <algorithm>
#include <cctype>

namespace sim {

namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr auto opening =
    sys_days{year{2026} / month{11} / day{15}} + std::chrono::hours(15) + std::chrono::minutes(15);

std::string found(std::map<std::string, std::string, std::less<>> const& values,
                  std::string_view name)
{
    auto const entry = values.find(name);
    return entry == values.end() ? std::string() : entry->second;
}

} // namespace

text::LocalTime Clock::now() const
{
    auto const passed = opening + shift_ + scheduler_.now();
    auto const today = std::chrono::floor<std::chrono::days>(passed);
    year_month_day const date(today);
    std::chrono::hh_mm_ss const time(std::chrono::floor<std::chrono::seconds>(passed - today));
    return {.year = static_cast<int>(date.year()),
            .month = static_cast<int>(static_cast<unsigned>(date.month())),
            .day = static_cast<int>(static_cast<unsigned>(date.day())),
            .hour = static_cast<int>(time.hours().count()),
            .minute = static_cast<int>(time.minutes().count()),
            .second = static_cast<int>(time.seconds().count())};
}

void Clock::set(text::LocalTime time)
{
    sys_days const today{year{time.year} / month{static_cast<unsigned>(time.month)} /
                         day{static_cast<unsigned>(time.day)}};
    shift_ = today - opening + std::chrono::hours(time.hour) + std::chrono::minutes(time.minute) +
             std::chrono::seconds(time.second) - scheduler_.now();
}

std::string Environment::value(std::string_view name) const
{
    auto const own = own_value(name);
    return own.empty() ? found(desktop, name) : own;
}

std::string Environment::own_value(std::string_view name) const
{
    auto const as_given = found(variables, name);
    if (!as_given.empty()) {
        return as_given;
    }
    std::string upper(name);
    std::ranges::transform(upper, upper.begin(), [](unsigned char letter) {
        return static_cast<char>(std::toupper(letter));
    });
    return found(variables, upper);
}

void Process::store_setting(std::string_view section, std::string_view name, std::string_view value)
{
    auto const entry = std::string(section) + "/" + std::string(name);
    journal_.note("setting " + entry);
    settings.insert_or_assign(entry, std::string(value));
}

void Process::end(int status)
{
    journal_.note("end " + std::to_string(status));
    throw Ended{status};
}

void Outside::open_text(std::string_view path)
{
    journal_.note("open " + std::string(path));
    require_somebody();
    opened.emplace_back(path);
}

void Outside::open_folder(std::string_view path)
{
    open_text(path);
}

void Outside::open_web(std::string_view address)
{
    journal_.note("web " + std::string(address));
    addresses.emplace_back(address);
}

void Outside::start(std::string_view path)
{
    journal_.note("start " + std::string(path));
    require_somebody();
    started.emplace_back(path);
}

void Outside::require_somebody() const
{
    if (refuses) {
        throw text::Failure("File not found", 53, "outside");
    }
}

void Sound::play(std::string_view path)
{
    journal_.note("sound");
    played.emplace_back(path);
}

} // namespace sim
