#include "bench/capacity/crowd.h"
#include "bench/capacity/scenarios.h"
#include "bench/capacity/stage.h"
#include "bench/capacity/talking.h"

#include <algorithm>

namespace capacity {

using namespace std::chrono_literals;

void absence(Arguments const& told, std::ostream& out)
{
    int const people = told.count("people", 10);
    auto const limit = std::chrono::seconds(told.count("limit", 8 * 3600));
    Crowd crowd({.people = people, .acquainted = people, .seed = seed_of(told)},
                {.settings = {{"PLAYSOUND", "0"}}});
    crowd.meet();
    auto const begin = crowd.office.scheduler.now();
    for (int number = 1; number < people; ++number) {
        go_away(crowd.peer(number));
    }
    send_to_all(crowd.peer(0));
    go_away(crowd.peer(0));
    double datagrams = 0;
    double bytes = 0;
    double longest = 0;
    auto const minutes = std::chrono::duration_cast<std::chrono::minutes>(limit).count();
    for (auto minute = 1; minute <= minutes && !(minute > 1 && crowd.quiet()); ++minute) {
        crowd.office.run_for(1min);
        double now_bytes = 0;
        for (auto const& each : crowd.office.segment.sent()) {
            datagrams += 1;
            now_bytes += static_cast<double>(wire_bytes(each.bytes->size()));
            longest = std::max(longest, static_cast<double>(each.bytes->size()));
        }
        bytes += now_bytes;
        out << "flow," << minute << ',' << crowd.office.segment.sent().size() << ',' << now_bytes
            << ',' << longest << '\n';
        crowd.office.segment.forget();
    }
    tell(out, "ended", crowd.quiet() ? seconds(crowd.office.scheduler.now() - begin) : -1);
    tell(out, "datagrams", datagrams);
    tell(out, "wire_bytes", bytes);
    tell(out, "longest", longest);
}

} // namespace capacity
