#pragma once

#include "tap/finding.h"

#include <optional>
#include <string>

namespace tap {

/// What can be seen of the firewalls of this machine. Empty: it is not there, or does not let
/// itself be asked.
struct Firewall {
    bool privileged = false;             ///< whether the rules could be asked for at all
    std::string as_root = {};            ///< the command that asks for them
    bool ufw_enabled = false;            ///< its switch, which everybody may read
    std::optional<std::string> ufw = {}; ///< of "ufw status"
    bool firewalld_runs = false;
    std::optional<bool> firewalld_lets_in = {}; ///< whether its zone lets the port in
    std::optional<std::string> rules = {};      ///< of "nft list ruleset"
};

/// Whether datagrams to the port come in.
[[nodiscard]] Finding check_firewall(Firewall const& firewall, int port);

} // namespace tap
