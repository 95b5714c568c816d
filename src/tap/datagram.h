#pragma once

#include <chrono>
#include <string>

namespace tap {

/// One datagram that was seen on the segment.
struct Datagram {
    std::chrono::microseconds when{0}; ///< since the listening began
    std::string from = {};             ///< the sender's address, dotted
    int from_port = 0;
    int to_port = 0;
    std::string bytes = {};

    bool operator==(Datagram const&) const = default;
};

} // namespace tap
