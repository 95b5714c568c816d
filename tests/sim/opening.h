#pragma once

#include "sim/office.h"

#include <chrono>

namespace flows {

/// Everybody who is prepared starts, the greetings are over, and all clocks stand at that moment.
inline void open_office(sim::Office& office, text::LocalTime const& moment)
{
    for (sim::Peer& peer : office.peers()) {
        peer.start();
    }
    office.settle();
    office.scheduler.run_until(std::chrono::seconds(6));
    for (sim::Peer& peer : office.peers()) {
        peer.clock.set(moment);
    }
    office.segment.forget();
}

} // namespace flows
