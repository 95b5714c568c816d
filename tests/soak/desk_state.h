#pragma once

#include "sim/peer.h"

#include <string>
#include <vector>

namespace soak {

using Texts = std::vector<std::string>;

/// What a program keeps in its files.
struct DeskState {
    std::string name;
    Texts users;
    Texts options;
    Texts buttons;
    Texts groups;  ///< without members, which are read by the directory of the moment
    Texts history; ///< the last hundred, without times and texts

    bool operator==(DeskState const&) const = default;
};

[[nodiscard]] DeskState state_of(sim::Peer& peer);

/// The parts that differ, in words.
[[nodiscard]] std::string difference(DeskState const& found, DeskState const& wanted);

} // namespace soak
