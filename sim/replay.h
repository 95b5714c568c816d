#pragma once

#include "tap/datagram.h"

#include "sim/office.h"

#include <vector>

namespace sim {

/// Plans what was captured on some segment for the segment of this office: each datagram at its
/// recorded time from now on, at its recorded port, from a host that is no part of the office. The
/// office then only has to run. Returns when the last one is due.
Duration replay(Office& office, std::vector<tap::Datagram> const& capture);

} // namespace sim
