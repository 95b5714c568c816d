#include "bench/capacity/scenarios.h"
#include "bench/capacity/stage.h"

#include <algorithm>

namespace capacity {

using namespace std::chrono_literals;

namespace {

/// Ticks of the watch between two checks of one program.
constexpr std::uint64_t ticks_between_checks = 360;

/// What is added up second by second.
struct Sums {
    double seconds = 0;
    double busy = 0;     ///< programs with rows that wait
    double complete = 0; ///< complete lists
    std::size_t greatest_queue = 0;
};

void observe(Scene& scene, Sums& sums)
{
    auto const queues = scene.queues();
    sums.seconds += 1;
    sums.complete += scene.complete_lists();
    sums.busy +=
        static_cast<double>(std::ranges::count_if(queues, [](auto rows) { return rows > 0; }));
    sums.greatest_queue = std::max(sums.greatest_queue, std::ranges::max(queues));
}

} // namespace

void check(Arguments const& told, std::ostream& out)
{
    int const people = told.count("people", 10);
    int const hours = told.count("hours", 4);
    auto const stage = open_stage(told, {.people = people,
                                         .acquainted = people,
                                         .seed = seed_of(told),
                                         .checks = told.count("option", 1) == 1});
    auto& scene = *stage;
    scene.meet();
    for (int number = 0; number < people; ++number) {
        // As if it had been started at some time of the last half hour.
        scene.set_count(number, static_cast<int>(scene.chance.below(ticks_between_checks)));
    }
    Sums sums;
    for (int second = 0; second < hours * 3600; ++second) {
        scene.run_for(1s);
        observe(scene, sums);
        if (second % 60 == 0) {
            scene.point(out);
        }
    }
    auto const [datagrams, announcements] = scene.sent();
    tell(out, "datagrams_an_hour", static_cast<double>(datagrams) / hours);
    tell(out, "rounds_a_program_and_hour", static_cast<double>(announcements) / hours / people);
    tell(out, "busy_share", sums.busy / sums.seconds / people);
    tell(out, "complete_share", sums.complete / sums.seconds / people);
    tell(out, "greatest_queue", static_cast<double>(sums.greatest_queue));
}

} // namespace capacity
