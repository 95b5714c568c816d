#pragma once

#include "flows.h"

#include <memory>

namespace flows {

/// An office of people called P0, P1 and so on, on a segment with such faults. All have started.
inline std::unique_ptr<sim::Office> open_office(std::uint64_t seed, sim::Segment::Faults faults,
                                                int people = 4)
{
    auto office = std::make_unique<sim::Office>(seed);
    office->segment.faults = faults;
    for (int number = 0; number < people; ++number) {
        auto const name = "P" + std::to_string(number);
        office->peer("ROOM" + std::to_string(number), name, name);
    }
    return office;
}

/// Everybody says something to all, in turn.
inline void talk(sim::Office& office)
{
    for (sim::Peer& peer : office.peers()) {
        peer.person.tick_all();
        peer.person.send("from " + peer.host.name);
        office.run_for(std::chrono::milliseconds(50));
    }
    office.settle();
}

} // namespace flows
