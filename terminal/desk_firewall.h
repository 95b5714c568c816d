#pragma once

#include "tap/checks/firewall.h"
#include "tap/checks/network.h"

namespace terminal {

/// What this machine's firewalls let see, with the rights that this process has; `as_root` asks
/// with all rights.
[[nodiscard]] tap::Firewall look_at_firewall(int port, tap::Echo const& echo,
                                             std::string const& as_root);

} // namespace terminal
