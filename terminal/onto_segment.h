#pragma once

#include "tap/datagram.h"

#include <vector>

namespace terminal {

/// Puts a capture on the real segment, at its recorded pace, to everybody at `port`. Returns how
/// many datagrams went out before the end or Ctrl+C. Raises a Failure.
[[nodiscard]] int put_onto_segment(std::vector<tap::Datagram> const& capture, int port);

} // namespace terminal
