#pragma once

#include "tap/finding.h"

#include <optional>
#include <string>

namespace tap {

/// Who has bound a port.
struct Holder {
    long process = 0;      ///< 0: somebody else's, not to be seen
    std::string name = {}; ///< of its executable
    bool is_messenger = false;
    unsigned long drops = 0; ///< datagrams that the kernel lost for it
};

/// One of the two ports of the messenger.
struct Port {
    int number = 0;
    std::optional<Holder> holder = {}; ///< empty: the port is free
};

/// Whether the messenger can have its ports, and whether they are the ones of other offices.
[[nodiscard]] Findings check_ports(Port const& listening, Port const& sending);

} // namespace tap
