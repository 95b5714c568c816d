#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tap {

/// A chain of a firewall that keeps a port out.
struct ClosedChain {
    std::string table; ///< family and name, as commands take them: "inet filter"
    std::string name;
};

/// The first chain of incoming IPv4 packets in the text of "nft list ruleset" that lets no datagram
/// to this UDP port pass: by its policy, or by a rule that drops or rejects whatever comes so far.
/// A rule that names the port is taken as met, whatever else it asks for; one with other conditions
/// alone as not met. Sets and maps that have names of their own are not looked into.
[[nodiscard]] std::optional<ClosedChain> closed_chain(std::string_view rules, int port);

} // namespace tap
