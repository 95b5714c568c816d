#pragma once

#include "bench/capacity/crowd.h"

#include <cstddef>

/// What people of a crowd say to each other; each in front of the main window, with nothing typed.
namespace capacity {

void send_to_one(sim::Peer& from, sim::Peer& to);
void send_to_all(sim::Peer& from);
void reply(sim::Peer& from);
void reply_to_all(sim::Peer& from);
/// A group of the first `members` others, and a message to it.
void make_group(Crowd& crowd, sim::Peer& owner, int members);
void send_to_group(sim::Peer& from);

void go_away(sim::Peer& peer);
void come_back(sim::Peer& peer);
void close_popups(Crowd& crowd);

/// What a datagram of so many bytes takes on an Ethernet: headers of UDP, IP and Ethernet, its
/// check sum, and the filling of the smallest frame; a long one goes in several frames.
[[nodiscard]] std::size_t wire_bytes(std::size_t datagram);

} // namespace capacity
