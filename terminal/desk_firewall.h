#pragma once

#include "tap/checks/firewall.h"

namespace terminal {

/// What this machine's firewalls let see, with the rights that this process has.
[[nodiscard]] tap::Firewall look_at_firewall(int port);

} // namespace terminal
