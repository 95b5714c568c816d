#pragma once

#include "tap/finding.h"

#include <optional>
#include <string>

namespace tap {

/// What can be seen of the firewalls of this machine. Empty: it is not there, or does not let
/// itself be asked.
struct Firewall {
    /// Whether a broadcast of this desk came back to it; empty: it was not tried.
    std::optional<bool> echo = {};
    bool privileged = false;             ///< whether the rules could be asked for at all
    std::string as_root = {};            ///< the command that asks for them
    bool ufw_enabled = false;            ///< its switch, which everybody may read
    std::optional<std::string> ufw = {}; ///< of "ufw status"
    bool firewalld_runs = false;
    std::optional<bool> firewalld_lets_in = {}; ///< whether its zone lets the port in
    std::optional<std::string> rules = {};      ///< of "nft list ruleset"

    /// Whether one is there that is asked for its list of what it lets in, and has other lists too.
    [[nodiscard]] bool has_manager() const { return ufw_enabled || firewalld_runs; }
};

/// Whether datagrams to the port come in.
[[nodiscard]] Finding check_firewall(Firewall const& firewall, int port);

} // namespace tap
