#include "tests/soak/weather.h"

#include "tests/soak/company.h"

#include <array>
#include <string>

namespace soak {

using namespace std::chrono_literals;

namespace {

struct Foreigner {
    std::string_view identity, name;
};

constexpr std::array foreigners{Foreigner{"[ROOM97\\CAT]", "CAT POUND"},
                                Foreigner{"[ROOM98\\DAN]", "DAN"},
                                Foreigner{"[ROOM99\\EVE]", "EVE STONE"}};

constexpr std::array<std::string_view, 8> noise{
    "", "]", "no brackets at all", "[A][B]C", "]]", "[---]lost", "---[A\\B]=C", "\xff\xfe\r\n"};

void spoil_segment(Company& company)
{
    auto& faults = company.office.segment.faults;
    switch (company.chance.below(20)) {
    case 0:
        company.note("segment", "loses a fifth");
        faults = {.loss = 0.2, .duplication = 0.1, .reordering = 0.3, .delay = 20ms};
        break;
    case 1:
    case 2:
    case 3:
        company.note("segment", "is not quite perfect");
        faults = {.loss = 0.01, .duplication = 0.02, .reordering = 0.05, .delay = 5ms};
        break;
    case 4:
        company.note("segment", "is in two parts");
        for (Colleague& each : company.colleagues) {
            each.peer.host.side = each.number % 2;
        }
        break;
    default:
        return;
    }
    company.fair = false;
}

/// Somebody's row without "=" is never removed: it blocks the queue until the next start.
void block_a_queue(Company& company)
{
    auto& who = company.one_of(company.colleagues);
    if (who.hears() && who.peer.host.bound.contains(4111)) {
        who.note("is sent a row that blocks the queue");
        who.stuck = true;
        company.office.segment.inject_to(who.peer.host.name, "***ABC");
    }
}

void move_a_clock(Company& company)
{
    auto& who = company.one_of(company.colleagues);
    auto time = who.peer.clock.now();
    if (time.hour > 1) {
        who.note("has a clock that is set back");
        --time.hour;
        who.peer.clock.set(time);
    }
}

} // namespace

void begin_weather(Company& company)
{
    spoil_segment(company);
    if (company.happens(8)) {
        company.one_of(company.colleagues).spoil_disk(company.happens(50));
    }
    if (company.happens(5)) {
        block_a_queue(company);
    }
    if (company.happens(3)) {
        move_a_clock(company);
    }
}

void end_weather(Company& company)
{
    company.fair = true;
    company.office.segment.faults = {};
    for (Colleague& each : company.colleagues) {
        each.peer.host.side = 0;
        each.peer.clock.set(company.clock.now());
        if (each.bad_disk) {
            each.mend_disk();
        }
    }
}

void talk_from_outside(Company& company)
{
    auto& segment = company.office.segment;
    auto const& [identity, name] = company.one_of(foreigners);
    auto const from = std::string(identity);
    auto const& to = company.one_of(company.colleagues).identity;
    switch (company.chance.below(5)) {
    case 0:
        segment.inject("***" + from + "=" + std::string(name));
        break;
    case 1:
        segment.inject("-**" + from + "=" + std::string(name));
        break;
    case 2:
        segment.inject(from + "[ALL]" + std::string(name) + "> " + company.new_text());
        break;
    case 3:
        segment.inject(from + to + std::string(name) + "> " + company.new_text());
        break;
    default:
        segment.inject(company.one_of(noise));
        break;
    }
}

} // namespace soak
