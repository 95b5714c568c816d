#pragma once

#include "tap/datagram.h"

#include <optional>
#include <string_view>

namespace tap {

/// The datagram in a packet as a raw socket gives it: ports and bytes, without its time and its
/// sender. Empty where the packet holds less than it says.
[[nodiscard]] std::optional<Datagram> datagram_in(std::string_view packet);

} // namespace tap
