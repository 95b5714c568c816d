#pragma once

#include "tests/sim/flows.h"

#include <functional>
#include <string>
#include <string_view>

/// What the stories of the desk have in common: what a person arranges in the program's own
/// windows, on the desktop and on the disk. The names of people and datagrams are those of `flows`.
namespace desk {

/// When the stories begin. The watch, which writes into the status line, comes four seconds later.
inline constexpr text::LocalTime moment{2026, 11, 15, 15, 18, 2};

/// Alice, Bob and Carl, whose programs have not been started: a story may lay files on their disks
/// first.
class Desk : public testing::Test {
protected:
    /// `setup` is that of Alice's host.
    explicit Desk(sim::Setup setup = {});

    /// Starts all three, lets them find each other and sets the clocks to the moment.
    void open();
    /// Ends Alice's program the proper way and starts it again.
    void restart_alice();
    /// Alice's program alone is started; how it ends is the story's matter.
    void start_alice() { alice.start(); }

    /// What Alice does while a modal window is open. A window that is still open behind it is a
    /// story that would never end, and fails.
    void while_open(controls::Window& window, std::function<void()> action);
    /// Alice takes "Change Settings" from the menu; `action` ends with Save or Cancel.
    void in_settings(std::function<void()> action);

    /// The datagrams that a host has sent since the story began.
    [[nodiscard]] flows::Lines sent_by(sim::Peer& peer) const
    {
        return office.segment.texts_from(peer.host.name);
    }

    sim::Office office;
    sim::Peer& alice = office.host("ROOM12", "alice");
    sim::Peer& bob = office.host("ROOM07", "bob");
    sim::Peer& carl = office.host("ROOM33", "carl");
};

/// The same, with all three programs running.
class OpenDesk : public Desk {
protected:
    explicit OpenDesk(sim::Setup setup = {}) : Desk(std::move(setup)) { open(); }
};

} // namespace desk
