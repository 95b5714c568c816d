#include "tests/soak/company.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace soak {

using namespace std::chrono_literals;

namespace {

/// A Monday.
constexpr text::LocalTime first_day{.year = 2027, .month = 1, .day = 4};

constexpr std::array<std::string_view, 12> words{
    "Lunch at noon?",
    "He said \"no\" twice",
    "is a > b, or is b > c?",
    "see [ROOM7\\BOB]",
    "one line\r\nand another",
    "5:30 is too late: 5:00 it is",
    "  with blanks  ",
    "<b>Please</b> & bring tea",
    ":RE: yesterday",
    "caf\xe9",
    "1, 2, 3",
    "***",
};

/// Works its queue off. One that does not move is not waited for.
bool is_busy(Colleague& who)
{
    return who.running() && !who.stuck && who.main().Timer3.enabled() && !who.main().boxopen.on();
}

} // namespace

Company::Company(std::uint64_t seed, int people)
    : office(seed), chance(seed), clock(office.scheduler)
{
    clock.set(first_day);
    for (int number = 0; number < people; ++number) {
        colleagues.emplace_back(*this, number);
    }
}

void Company::pass_until(int hour, int minute)
{
    auto const now = clock.now();
    auto const left = std::chrono::hours(hour - now.hour) +
                      std::chrono::minutes(minute - now.minute) - std::chrono::seconds(now.second);
    pass(std::max(sim::Duration(0), sim::Duration(left)));
}

sim::Duration Company::up_to(sim::Duration longest)
{
    auto const most = static_cast<std::uint64_t>(longest.count());
    return sim::Duration(static_cast<sim::Duration::rep>(chance.below(most)));
}

void Company::calm()
{
    // Rows that have piled up behind a cleared history take their time: eight a second.
    constexpr int longest = 3 * 60 * 60;
    for (int second = 0; second < longest && !is_quiet(); ++second) {
        pass(1s);
    }
    for (Colleague& each : colleagues) {
        if (is_busy(each)) {
            throw Broken(each.identity + ": the queue is not worked off in three hours; " +
                         std::to_string(each.main().cue.size()) + " rows wait behind " +
                         each.main().cue.front().substr(0, 200));
        }
    }
}

bool Company::is_quiet()
{
    return office.segment.in_flight() == 0 && std::ranges::none_of(colleagues, is_busy);
}

void Company::note(std::string_view who, std::string_view what)
{
    diary.note(stamp().append("  ").append(who).append(" ").append(what));
}

void Company::close_the_books()
{
    for (auto const& sent : office.segment.sent()) {
        diary.fold(sent.host);
        diary.fold(*sent.bytes);
    }
    datagrams_ += office.segment.sent().size();
    office.segment.forget();
    for (Colleague& each : colleagues) {
        each.close_the_books();
    }
}

std::string Company::new_text()
{
    return std::string(words[static_cast<std::size_t>(chance.below(words.size()))]) + " no. " +
           std::to_string(++texts_) + ".";
}

std::string Company::stamp() const
{
    auto const now = clock.now();
    std::array<char, 32> line{};
    auto const length = std::snprintf(line.data(), line.size(), "%02d-%02d %02d:%02d:%02d",
                                      now.month, now.day, now.hour, now.minute, now.second);
    return {line.data(), static_cast<std::size_t>(length)};
}

} // namespace soak
