#pragma once

#include "sim/peer.h"

#include <string>
#include <string_view>
#include <vector>

/// What is to be seen at a peer: every claim of the story is read here, off the program.
namespace demo::seen {

/// Whether a message of this sender is on show.
[[nodiscard]] bool hears(sim::Peer& peer, std::string_view sender);
/// Whether one is on show that, in one line, ends with this text.
[[nodiscard]] bool reads(sim::Peer& peer, std::string_view sender, std::string_view text);
/// A message's text with " / " between its lines.
[[nodiscard]] std::string in_one_line(std::string_view text);

/// The display name, as others see it.
[[nodiscard]] std::string name_of(sim::Peer& peer);
[[nodiscard]] bool has_on_list(sim::Peer& peer, std::string_view name);
/// How many names the list of users shows.
[[nodiscard]] int listed(sim::Peer& peer);
[[nodiscard]] std::string const& status(sim::Peer& peer);

} // namespace demo::seen
