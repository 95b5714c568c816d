#include "bench/capacity/crowd.h"
#include "bench/capacity/scenarios.h"
#include "network/wire.h"

#include <algorithm>

namespace capacity {

using namespace std::chrono_literals;

namespace {

/// Ticks of the watch between two checks of one program.
constexpr std::uint64_t ticks_between_checks = 360;

/// The programs have been started at some time of the last half hour.
void spread_the_counts(Crowd& crowd)
{
    for (sim::Peer& each : crowd.office.peers()) {
        each.frmMain().usercount = std::to_string(crowd.chance.below(ticks_between_checks));
    }
}

/// What is added up second by second.
struct Sums {
    double seconds = 0;
    double busy = 0;     ///< programs with rows that wait
    double complete = 0; ///< complete lists
    std::size_t greatest_queue = 0;
};

void observe(Crowd& crowd, Sums& sums)
{
    sums.seconds += 1;
    sums.complete += crowd.complete_lists();
    for (sim::Peer& each : crowd.office.peers()) {
        sums.busy += each.queued() > 0 ? 1 : 0;
        sums.greatest_queue = std::max(sums.greatest_queue, each.queued());
    }
}

} // namespace

void check(Arguments const& told, std::ostream& out)
{
    int const people = told.count("people", 10);
    double const hours = told.number("hours", 4);
    Crowd crowd(people, static_cast<std::uint64_t>(told.count("seed", 1)), Crowd::Known::all,
                {.settings = {{"PLAYSOUND", "0"}, {"AUTOCHECKUSERS", told.text("option", "1")}}});
    crowd.meet();
    spread_the_counts(crowd);
    Sums sums;
    auto const end =
        crowd.office.scheduler.now() + std::chrono::seconds(static_cast<int>(hours * 3600));
    for (int second = 0; crowd.office.scheduler.now() < end; ++second) {
        crowd.office.run_for(1s);
        observe(crowd, sums);
        if (second % 60 == 0) {
            crowd.point(out);
        }
    }
    auto const& sent = crowd.office.segment.sent();
    auto const rounds = std::ranges::count_if(
        sent, [](auto const& each) { return each.bytes->starts_with(network::wire::announce); });
    tell(out, "datagrams_an_hour", static_cast<double>(sent.size()) / hours);
    tell(out, "rounds_a_program_and_hour", static_cast<double>(rounds) / hours / people);
    tell(out, "busy_share", sums.busy / sums.seconds / people);
    tell(out, "complete_share", sums.complete / sums.seconds / people);
    tell(out, "greatest_queue", static_cast<double>(sums.greatest_queue));
}

} // namespace capacity
