#include "sim/replay.h"

#include <algorithm>

namespace sim {

Duration replay(Office& office, std::vector<tap::Datagram> const& capture)
{
    auto const begin = office.scheduler.now();
    auto last = begin;
    for (auto const& each : capture) {
        auto const moment = begin + each.when;
        office.scheduler.at(moment, [&office, bytes = each.bytes, port = each.to_port] {
            office.segment.inject(bytes, port);
        });
        last = std::max(last, moment);
    }
    return last;
}

} // namespace sim
