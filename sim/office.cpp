#include "sim/office.h"

#include <algorithm>

namespace sim {

Peer& Office::host(std::string_view name, std::string_view user)
{
    return peers_.emplace_back(scheduler, segment, name, user);
}

Peer& Office::peer(std::string_view name, std::string_view user, std::string_view display_name,
                   Setup const& setup)
{
    auto& peer = host(name, user);
    peer.prepare(display_name, setup);
    peer.start();
    return peer;
}

Peer& Office::newcomer(std::string_view name, std::string_view user, std::string_view display_name)
{
    auto& peer = host(name, user);
    peer.boxes.will_enter(display_name);
    peer.start();
    return peer;
}

bool Office::settle(Duration limit)
{
    auto const end = scheduler.now() + limit;
    while (!quiet()) {
        if (!scheduler.step(end)) {
            scheduler.run_until(end);
            return false;
        }
    }
    return true;
}

bool Office::quiet()
{
    return segment.in_flight() == 0 && std::ranges::none_of(peers_, [](Peer& peer) {
               return peer.running() && peer.frmMain().Timer3.enabled();
           });
}

} // namespace sim
