#pragma once

#include "sim/peer.h"
#include "sim/scheduler.h"
#include "sim/segment.h"
#include "sim/setup.h"

#include <cstdint>
#include <deque>
#include <string_view>

namespace sim {

/// A whole office in one process and in virtual time: any number of complete programs, the same
/// logic that ships, on one segment. One seed, one story.
class Office {
public:
    explicit Office(std::uint64_t seed = 1) : segment(scheduler, seed) {}

    /// A host with an empty program folder, whose program has not been started yet.
    Peer& host(std::string_view name, std::string_view user);

    /// A host whose user has used the program before, started.
    Peer& peer(std::string_view name, std::string_view user, std::string_view display_name,
               Setup const& setup = {});

    /// A host's first start, at which its user enters the name.
    Peer& newcomer(std::string_view name, std::string_view user, std::string_view display_name);

    /// Lets the office run for so long.
    void run_for(Duration time) { scheduler.run_until(scheduler.now() + time); }

    /// Lets the office run until all is quiet: no datagram on its way, no queue being worked off.
    /// Returns false when that did not come about in `limit`.
    bool settle(Duration limit = std::chrono::minutes(10));

    [[nodiscard]] std::deque<Peer>& peers() { return peers_; }

    Scheduler scheduler;
    Segment segment;

private:
    [[nodiscard]] bool quiet();

    std::deque<Peer> peers_;
};

} // namespace sim
