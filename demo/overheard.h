#pragma once

#include "sim/segment.h"

#include <cstddef>
#include <string>
#include <vector>

namespace demo {

/// What people say to each other on the segment.
class Overheard {
public:
    /// `segment` must outlive it.
    explicit Overheard(sim::Segment const& segment) : segment_(segment) {}

    /// The messages since the last time, as their readers see them, one line each.
    [[nodiscard]] std::vector<std::string> take();

private:
    sim::Segment const& segment_;
    std::size_t heard_ = 0;
};

} // namespace demo
