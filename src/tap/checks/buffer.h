#pragma once

#include "tap/finding.h"

namespace tap {

/// Room for datagrams that wait until the messenger takes them, in bytes.
struct ReceiveBuffer {
    int wanted = 0;  ///< what the messenger asks for
    int granted = 0; ///< what this machine gives to an ordinary program; 0: it could not be tried
};

[[nodiscard]] Finding check_buffer(ReceiveBuffer const& buffer);

} // namespace tap
